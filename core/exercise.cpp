#include "core/exercise.h"

#include <cmath>
#include <limits>
#include <utility>

namespace cserko {

namespace {

// The direction of an arrow key, (0, 0) for any other key.
Point direction_of(int code) {
  switch (code) {
  case key::left:
    return {-1, 0};
  case key::right:
    return {1, 0};
  case key::up:
    return {0, -1};
  case key::down:
    return {0, 1};
  default:
    return {};
  }
}

Point center_of(const Element& element) {
  const Point corner = element.position_in_window();
  return {corner.x + element.Width / 2, corner.y + element.Height / 2};
}

// How far a control lies in a direction; what lies aside counts double. Infinite for what does not lie that way.
double distance(Point from, Point to, Point direction) {
  const double along = (to.x - from.x) * direction.x + (to.y - from.y) * direction.y;
  const double aside = std::abs((to.x - from.x) * direction.y) + std::abs((to.y - from.y) * direction.x);
  return along <= 0 ? std::numeric_limits<double>::infinity() : along + 2 * aside;
}

Element* nearest(const Window& window, Point direction) {
  const Element* here = window.focus();
  Element* best = nullptr;
  double best_distance = std::numeric_limits<double>::infinity();
  for (Element* element : window.elements()) {
    if (element == here || !element->focusable() || !element->TabStop || !element->shown() || !element->usable())
      continue;
    if (here == nullptr) return element;
    const double far = distance(center_of(*here), center_of(*element), direction);
    if (far >= best_distance) continue;
    best = element;
    best_distance = far;
  }
  return best;
}

} // namespace

ExerciseWindow::ExerciseWindow(Session& session, TextView name, Size design, TextView caption)
    : Window(session.platform(), name, design, caption), session_(session) {
  KeyPreview = true;
}

void ExerciseWindow::deal(const std::function<void()>& steps) {
  has_puzzle_ = false;
  try {
    steps();
  } catch (...) {
    no_puzzle();
    throw;
  }
  has_puzzle_ = true;
}

void ExerciseWindow::deal_first(const std::function<void()>& deal) {
  try {
    deal();
  } catch (const NothingFits& unfit) {
    unfit_ = unfit.message();
  }
}

void ExerciseWindow::Activate() {
  if (unfit_.empty()) return;
  session_.feedback.tell(std::exchange(unfit_, {}));
}

void ExerciseWindow::KeyDown(KeyEvent& event) {
  // With Ctrl an arrow belongs to the control that has the focus.
  if (event.shift == shift::control) return;
  const Point direction = direction_of(event.code);
  if (direction == Point{}) return;
  if (Element* element = nearest(*this, direction)) set_focus(element);
  event.code = 0;
}

void ExerciseWindow::set_close_entry(MenuItem& item) {
  item.Click = [this] {
    unload_dialogs(DialogAtClose::GoesByMenuOnly);
    session_.unload(*this);
  };
}

void ExerciseWindow::Unload() { unload_dialogs(DialogAtClose::Goes); }

void ExerciseWindow::unload_dialogs(DialogAtClose rule) {
  for (const Companion& dialog : dialogs_) {
    if (dialog.rule == rule) dialog.unload();
  }
}

void ExerciseWindow::set_help_entry(MenuItem& item, TextView page) {
  item.ShortcutKey = key::f1;
  item.Click = [this, page = Text(page)] { súgó_megnyitás(session_, page); };
}

} // namespace cserko
