// Somebody who does anything at all to the window at the front: clicks, drags, keys, settings, closing, waiting.
#pragma once

#include "platform/headless/headless_platform.h"

namespace cserko {

/// The person has tried every ordinary way out of the windows and is still inside.
class NoWayOut : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class RestlessPerson {
 public:
  /// Does `events` things in all, on any number of machines in turn. Some hundred events apart the person goes back to
  /// the main window, which must always be possible.
  RestlessPerson(std::uint64_t seed, int events) : generator_(seed), events_left_(events) {}

  /// Sits down at a machine; must outlive it.
  void sit_down(HeadlessPlatform& machine);

  /// One step of somebody who plays properly; false where there is nothing to do. The person does so now and then, so
  /// that what comes after a right answer is reached too.
  std::function<bool(Window& top)> sensible;

  int events_left() const { return events_left_; }
  /// How many events each window has got, by its name.
  const std::map<Text, int>& events_by_window() const { return events_by_window_; }

 private:
  bool act(Window& top);
  void anything(Window& top);
  void go_home(Window& top);

  void click_somewhere(Window& top);
  void click_element(Window& top);
  void choose_menu(Window& top);
  void change_control(Window& top);
  void drag_element(Window& top);
  void loose_mouse(Window& top);
  void press_key(Window& top);
  void wait();

  Element* any_element(Window& top, const std::function<bool(const Element&)>& wanted);
  int below(int n) { return static_cast<int>(generator_() % static_cast<std::uint64_t>(n)); }
  double within(double length) { return length * below(1000) / 1000; }

  HeadlessPlatform* machine_ = nullptr;
  std::mt19937_64 generator_;
  std::map<Text, int> events_by_window_;
  int events_left_;
  int until_home_ = 300;
  int steps_home_ = 0;
  int sensible_steps_ = 0;
};

} // namespace cserko
