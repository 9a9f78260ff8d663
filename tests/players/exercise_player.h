// What the players of all exercises share: the way from the main window into the exercise, panels and dialogs that are
// closed, a control that is reached by mouse or by keyboard, a mistake now and then.
#pragma once

#include "core/session.h"
#include "tests/players/player.h"

#include <set>

namespace cserko {

class ExercisePlayer : public Player {
 public:
  bool step(Window& top, Hand& hand) final;

  int sets() const override { return static_cast<int>(congratulations_.size()); }
  int wrong_answers() const final { return wrong_answers_; }

 protected:
  /// The exercise by the name of its window. Of every `mistakes` tasks one is answered wrong first; 0 for none.
  ExercisePlayer(const Session& session, TextView exercise, Mode mode, int mistakes)
      : session_(session), exercise_(exercise), mode_(mode), mistakes_(mistakes) {}

  /// One action in the window of the exercise; false when there is nothing to do but wait.
  virtual bool play(Window& window, Hand& hand) = 0;
  /// One action in another window of the exercise; false for a window that is none of its own.
  virtual bool play_beside(Window& /*top*/, Hand& /*hand*/) { return false; }

  const Records& records() const { return session_.képek; }
  bool by_mouse() const { return mode_ == Mode::Mouse; }

  /// Brings an element nearer to being chosen: one click by mouse; by keyboard one step of the focus, or the space bar
  /// when the focus is there. Returns whether it was chosen.
  bool choose(Element& element, Hand& hand);

  /// The same by keyboard with another key than the space bar.
  bool press_on(const Element& element, Hand& hand, int code, int shift = shift::none);

  /// Presses the default button of the exercise: a click, or Enter wherever the focus is but on another button.
  void press_default(Button& button, Hand& hand) const;

  /// Whether the task is to be answered wrong first. A task is told from the last one by a number that changes.
  bool mistake_due(int task);
  /// The wrong answer was given.
  void mistake_made();
  /// No wrong answer is possible.
  void forgo_mistake() { due_ = false; }

 private:
  bool press(Button& button, Hand& hand) const;
  int key_towards(const Element& element);

  const Session& session_;
  TextView exercise_;
  Mode mode_;
  int mistakes_;
  std::set<std::uint64_t> congratulations_;
  int task_ = -1;
  int tasks_ = 0;
  bool due_ = false;
  int wrong_answers_ = 0;
  std::uint64_t aim_ = 0; ///< The element that the focus is on its way to.
  int arrows_ = 0;        ///< How many arrows the way has taken.
};

} // namespace cserko
