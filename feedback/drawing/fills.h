// The two fills of the drawing board. They walk from point to point, so that a child sees the colour spread.
#pragma once

#include "platform/pixel_grid.h"

#include <array>
#include <functional>

namespace cserko {

struct FillStep {
  int x = 0;
  int y = 0;
};

inline constexpr std::array<FillStep, 4> four_neighbours{{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};
inline constexpr std::array<FillStep, 8> eight_neighbours{
    {{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {1, -1}, {1, 1}, {-1, 1}, {-1, -1}}};

/// What a fill needs of its surroundings.
struct FillOrder {
  PixelGrid& grid;
  int column = 0; ///< The point that was clicked, inside the grid.
  int row = 0;
  Color color{};                        ///< Another one than that of the point.
  std::function<void(int, int)> before; ///< Told of each point (column, row) before it is painted.
  std::function<void()> redraw;         ///< Runs at every 1000th point.
  std::function<double()> random;       ///< In [0, 1); `foltfestés` alone draws.
};

/// Fills the area of the clicked point's colour, depth first over the four neighbours in the order of their table.
///
/// The walk ends when it is back at the clicked point: what can be reached only by another side of that very point
/// stays as it was. That is intended.
void kitöltés(const FillOrder& order);

/// The same over eight neighbours, each time in a direction drawn from those that the point has not tried yet, so that
/// the area grows like a blot.
void foltfestés(const FillOrder& order);

} // namespace cserko
