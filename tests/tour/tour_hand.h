// The hand of the players on the tour: it touches the elements themselves, so that each action is over when it returns.
#pragma once

#include "tests/players/hand.h"

namespace cserko::tour {

class TourHand : public Hand {
 public:
  explicit TourHand(Window& window) : window_(window) {}

  void click(Element& element, MouseButton button = MouseButton::Left) override;
  void drag(Element& element, double dx, double dy) override;
  void draw(Element& element, const std::vector<Point>& path, MouseButton button = MouseButton::Left) override;
  void key(int code, int shift) override;

 private:
  Window& window_;
};

/// A key that comes from the window system: from then on the focus is shown, until `touch_mouse`.
void press_key(int qt_key);
/// The mouse is used again, on nothing in particular.
void touch_mouse();

} // namespace cserko::tour
