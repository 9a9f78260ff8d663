// What tells a click from a drag.
#pragma once

#include "platform/elements.h"

#include <cmath>

namespace cserko {

/// Follows one press of the mouse until its release. A child's hand is not still: a few pixels are no move yet.
class Gesture {
 public:
  static constexpr double tolerance = 5 * twips_per_pixel;

  /// The press. Places are those of the pointer, twips, from any corner that stays where it is meanwhile.
  void begin(Point place) {
    start_ = place;
    held_ = true;
    moved_ = false;
  }
  /// The pointer has come to a place.
  void follow(Point place) {
    if (std::abs(place.x - start_.x) > tolerance || std::abs(place.y - start_.y) > tolerance) moved_ = true;
  }
  /// What was done counts as a move, however short it was.
  void mark_moved() { moved_ = true; }
  void end() { held_ = false; }

  bool held() const { return held_; }
  /// Whether this press, or the last one, has become a move, also if the pointer came back.
  bool moved() const { return moved_; }

 private:
  Point start_;
  bool held_ = false;
  bool moved_ = false;
};

} // namespace cserko
