// The frame of an exercise window: what all of them do on opening, from their menu and on closing.
#pragma once

#include "core/frame.h"
#include "core/nothing_fits.h"

namespace cserko {

class ExerciseWindow : public Window {
 public:
  void Activate() override;
  /// Arrow keys move the focus to the nearest control in that direction, so that every exercise can be played without
  /// a mouse; with Ctrl they are left to the control.
  void KeyDown(KeyEvent& event) override;

 protected:
  ExerciseWindow(Session& session, TextView name, Size design, TextView caption);

  Session& session() const { return session_; }
  Records& képek() const { return session_.képek; }

  /// The first puzzle, dealt while the window loads. Where no record fits, the window opens all the same, so that the
  /// settings can be relaxed, and tells why as soon as it is seen.
  void deal_first(const std::function<void()>& deal);

  /// Binds the menu entries that every exercise has.
  void set_close_entry(MenuItem& item);
  void set_help_entry(MenuItem& item, TextView page);

 private:
  Session& session_;
  Text unfit_;
};

} // namespace cserko
