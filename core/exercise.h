// The frame of an exercise window: what all of them do on opening, from their menu and on closing.
#pragma once

#include "core/frame.h"
#include "core/nothing_fits.h"

namespace cserko {

/// What becomes of an exercise's dialog when the exercise is closed: it goes first, and what was changed without being
/// accepted goes with it; or it stays loaded, and the next start of the exercise finds its controls as they were.
enum class DialogAtClose : std::uint8_t {
  Goes,           ///< However the exercise is closed.
  GoesByMenuOnly, ///< By the menu entry; it stays where the close control of the window is used.
  Stays
};

class ExerciseWindow : public Window {
 public:
  void Activate() override;
  /// Arrow keys move the focus to the nearest control in that direction, so that every exercise can be played without
  /// a mouse; with Ctrl they are left to the control.
  void KeyDown(KeyEvent& event) override;
  /// Unloads the dialogs that go with the exercise. An exercise with a last handler of its own calls this one in it.
  void Unload() override;

  /// Whether there is a task to solve: the last deal has succeeded.
  bool has_puzzle() const { return has_puzzle_; }

 protected:
  ExerciseWindow(Session& session, TextView name, Size design, TextView caption);

  Session& session() const { return session_; }
  Records& képek() const { return session_.képek; }

  /// How most exercises come onto the screen: as large as the share of it allows, with these texts fitted into their
  /// places, in the middle.
  void fill_screen(std::initializer_list<Element*> texts, double share = 0.95);

  /// Deals a puzzle. Where that fails, for whatever reason, the old puzzle is over all the same: `no_puzzle` clears
  /// away what is left of it and of the new one, and the failure goes on to the caller.
  void deal(const std::function<void()>& steps);
  /// Leaves nothing on the screen that could be played or would give an old word away. Menu, settings and results stay.
  virtual void no_puzzle() = 0;
  /// The first puzzle, dealt while the window loads. Where no record fits, the window opens all the same, so that the
  /// settings can be relaxed, and tells why as soon as it is seen.
  void deal_first(const std::function<void()>& deal);

  /// Binds the entry that shows the settings, modally.
  template<class Dialog> void set_settings_entry(MenuItem& item, DialogAtClose rule) {
    item.Click = [this] { platform().show_modal(session_.window<Dialog>()); };
    set_dialog<Dialog>(rule);
  }
  /// The same rule for a further window of the exercise, or for settings whose entry does more.
  template<class Dialog> void set_dialog(DialogAtClose rule) {
    dialogs_.push_back({rule, [this] {
                          if (session_.loaded<Dialog>()) session_.unload(session_.window<Dialog>());
                        }});
  }
  /// Bind the menu entries that every exercise has.
  void set_close_entry(MenuItem& item);
  void set_help_entry(MenuItem& item, TextView page);

 private:
  struct Companion {
    DialogAtClose rule;
    std::function<void()> unload;
  };
  void unload_dialogs(DialogAtClose rule);

  Session& session_;
  Text unfit_;
  std::vector<Companion> dialogs_;
  bool has_puzzle_ = false;
};

} // namespace cserko
