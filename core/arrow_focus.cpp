#include "core/arrow_focus.h"

#include <cmath>
#include <limits>

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

void move_focus_by_arrow(Window& window, KeyEvent& event) {
  if (event.shift == shift::control) return;
  const Point direction = direction_of(event.code);
  if (direction == Point{}) return;
  if (Element* element = nearest(window, direction)) window.set_focus(element);
  event.code = 0;
}

} // namespace cserko
