// Counts what the person has come by in all runs of the program together: windows, titles, drums, help pages.
#pragma once

#include "core/session.h"
#include "platform/headless/headless_platform.h"

namespace cserko {

/// A machine that remembers which windows were loaded and how often each was shown.
class CountingMachine : public HeadlessPlatform {
 public:
  void attach(Window& window) override {
    shown_.try_emplace(window.Name, 0);
    HeadlessPlatform::attach(window);
  }
  void show(Window& window) override {
    ++shown_[window.Name];
    HeadlessPlatform::show(window);
  }
  void show_modal(Window& window) override {
    ++shown_[window.Name];
    HeadlessPlatform::show_modal(window);
  }

  /// Every window that was ever loaded, by its name.
  const std::map<Text, int>& shown() const { return shown_; }

 private:
  std::map<Text, int> shown_;
};

/// The names of all help pages, from the first lines of the folder in which they are written.
std::set<Text> written_help_pages(const std::string& folder);

class Census {
 public:
  /// The person should come by all these help pages.
  explicit Census(std::set<Text> help_pages) : wanted_pages_(std::move(help_pages)) {}

  /// Adds what one run of the program has brought.
  void add(CountingMachine& machine, const Session& session);

  /// Prints all counts and returns what was never reached though it is there: windows that are offered and got no event
  /// or that were loaded and never shown, music, drums, help pages.
  std::set<Text> report(std::ostream& out, const std::map<Text, int>& events_by_window) const;

 private:
  std::set<Text> wanted_pages_;
  std::map<Text, int> shown_;
  std::set<Text> offered_;
  std::map<Text, int> titles_;
  std::map<Text, int> drums_;
  std::map<Text, int> help_pages_;
};

} // namespace cserko
