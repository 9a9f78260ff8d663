// Rounding and random whole numbers as the whole suite does them.
#pragma once

#include "platform/platform.h"

#include <cmath>

namespace cserko {

/// Rounded to the nearest whole number, a half to the even neighbour.
inline int rounded(double value) {
  const double whole = std::floor(value);
  const double rest = value - whole;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0);
  return static_cast<int>(whole) + (up ? 1 : 0);
}

/// A random whole number from 0 to n - 1: the whole part of (random × n).
inline int random_below(Platform& platform, double n) { return static_cast<int>(std::floor(platform.random() * n)); }

} // namespace cserko
