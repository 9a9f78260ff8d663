#include "tests/players/exercise_player.h"

#include "core/exercise_table.h"
#include "core/frm_főablak.h"
#include "feedback/frm_gratuláció.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

// Arrows go to the nearest control; where that does not lead on, the Tab key reaches every one in turn.
constexpr int most_arrows = 15;

Button* start_button(frm_főablak& main, TextView exercise) {
  Button* found = nullptr;
  main.cmd_játék.each([&](Button& button) {
    for (const ExerciseEntry& entry : exercise_table) {
      if (entry.window == exercise && entry.caption == button.Caption) found = &button;
    }
  });
  return found;
}

Button* cancel_button(const Window& window) {
  for (Element* element : window.elements()) {
    if (element->kind() != ElementKind::Button) continue;
    if (auto* button = static_cast<Button*>(element); button->Cancel) return button;
  }
  return nullptr;
}

} // namespace

bool ExercisePlayer::step(Window& top, Hand& hand) {
  if (!top.Enabled) return false;
  if (top.Name == exercise_) return play(top, hand);
  if (auto* main = dynamic_cast<frm_főablak*>(&top)) {
    Button* button = start_button(*main, exercise_);
    return button != nullptr && press(*button, hand);
  }
  if (auto* panel = dynamic_cast<frm_gratuláció*>(&top)) {
    congratulations_.insert(panel->cmd_ok.serial());
    return press(panel->cmd_ok, hand);
  }
  if (play_beside(top, hand)) return true;
  Button* button = cancel_button(top);
  return button != nullptr && press(*button, hand);
}

bool ExercisePlayer::press(Button& button, Hand& hand) const {
  if (!button.shown() || !button.usable()) return false;
  if (!by_mouse() && !hears_keys(button.window())) return false;
  if (by_mouse()) {
    hand.click(button);
  } else {
    hand.key(button.window().focus() == &button ? key::enter : key::tab, shift::none);
  }
  return true;
}

bool ExercisePlayer::choose(Element& element, Hand& hand) {
  if (by_mouse()) {
    hand.click(element);
    return true;
  }
  return press_on(element, hand, key::space);
}

bool ExercisePlayer::press_on(const Element& element, Hand& hand, int code, int shift) {
  const bool there = element.window().focus() == &element;
  if (there) {
    hand.key(code, shift);
  } else {
    hand.key(key_towards(element), shift::none);
  }
  return there;
}

void ExercisePlayer::press_default(Button& button, Hand& hand) const {
  if (by_mouse()) {
    hand.click(button);
  } else {
    hand.key(key::enter, shift::none);
  }
}

int ExercisePlayer::key_towards(const Element& element) {
  if (aim_ != element.serial()) {
    aim_ = element.serial();
    arrows_ = 0;
  }
  const Element* here = element.window().focus();
  if (here == nullptr || ++arrows_ > most_arrows) return key::tab;
  const Point from = here->position_in_window();
  const Point to = element.position_in_window();
  const double dx = to.x + element.Width / 2 - from.x - here->Width / 2;
  const double dy = to.y + element.Height / 2 - from.y - here->Height / 2;
  if (std::abs(dx) >= std::abs(dy)) return dx < 0 ? key::left : key::right;
  return dy < 0 ? key::up : key::down;
}

bool ExercisePlayer::mistake_due(int task) {
  if (task != task_) {
    task_ = task;
    ++tasks_;
    due_ = mistakes_ > 0 && tasks_ % mistakes_ == 0;
  }
  return due_;
}

void ExercisePlayer::mistake_made() {
  due_ = false;
  ++wrong_answers_;
}

} // namespace cserko
