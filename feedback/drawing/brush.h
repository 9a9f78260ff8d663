// What pen, eraser, line and rectangle leave on the points of a drawing. Every point is the colour or is not touched:
// soft edges would stay behind as grey rims when an area is filled.
#pragma once

#include "platform/pixel_grid.h"

namespace cserko {

/// The points that a line may touch. Places and width in twips.
GridRect line_extent(const PixelGrid& grid, Point from, Point to, double width);
/// Draws a straight line with round ends. A line from a place to itself is a dot.
void draw_line(PixelGrid& grid, Point from, Point to, double width, Color color);

/// The points that a box covers (twips).
GridRect box_extent(const PixelGrid& grid, const Rect& place);
/// Covers points with one colour; what lies outside is left out.
void fill_box(PixelGrid& grid, const GridRect& place, Color color);

} // namespace cserko
