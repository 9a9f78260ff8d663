// Polygons on the metafile's whole-number grid.
#pragma once

#include <QPoint>
#include <QPolygonF>
#include <vector>

namespace cserko {

using GridPolygon = std::vector<QPoint>;

/// Brings a closed polygon to the grid: rounds, drops repeated points and every point that lies nearer than `tolerance`
/// (grid units) to the line between its kept neighbours. Empty when fewer than three points are left.
GridPolygon to_grid(const QPolygonF& polygon, double tolerance);

} // namespace cserko
