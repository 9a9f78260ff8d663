// The hand of a player. A player solves rounds through the elements alone, and the same player plays on every machine:
// it is given the hand that fits.
#pragma once

#include "platform/platform.h"

namespace cserko {

/// Whether a window hears Space and Enter by now. A player waits for it: presses that come too early put it off.
inline bool hears_keys(const Window& window) { return window.platform().now() >= window.keys_heard_from(); }

class Hand {
 public:
  virtual ~Hand() = default;

  /// Clicks an element in its middle.
  virtual void click(Element& element, MouseButton button = MouseButton::Left) = 0;
  /// Takes an element in its middle, moves it by that distance (twips) and lets go.
  virtual void drag(Element& element, double dx, double dy) = 0;
  /// Draws freehand: presses at the first point, moves through all others and lets go at the last. The points are in
  /// the element's coordinates as it stands at the press (twips).
  virtual void draw(Element& element, const std::vector<Point>& path, MouseButton button = MouseButton::Left) = 0;
  /// Presses and releases a key in the window at the front: its code and the shift mask.
  virtual void key(int code, int shift) = 0;
};

} // namespace cserko
