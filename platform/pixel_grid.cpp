#include "platform/pixel_grid.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

// No drawing reaches further; places beyond, and those that are no number, count as this far away.
constexpr double furthest = 100000;

} // namespace

GridRect PixelGrid::inside(const GridRect& place) const {
  return {std::max(place.left, 0), std::max(place.top, 0), std::min(place.right, columns()),
          std::min(place.bottom, rows())};
}

int PixelGrid::cell(double twips) const {
  const double cells = std::floor(twips / pitch());
  if (!(cells > -furthest)) return static_cast<int>(-furthest);
  return static_cast<int>(std::min(cells, furthest));
}

} // namespace cserko
