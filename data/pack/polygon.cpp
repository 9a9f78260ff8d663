#include "data/pack/polygon.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace cserko {
namespace {

double distance_to_segment(QPoint p, QPoint a, QPoint b) {
  const double dx = b.x() - a.x(), dy = b.y() - a.y();
  const double px = p.x() - a.x(), py = p.y() - a.y();
  const double length2 = dx * dx + dy * dy;
  const double t = length2 > 0 ? std::clamp((px * dx + py * dy) / length2, 0.0, 1.0) : 0.0;
  return std::hypot(px - t * dx, py - t * dy);
}

// Douglas-Peucker on the open chain first..last, with a stack of its own: an outline may have thousands of points.
void mark_kept(const GridPolygon& points, size_t first, size_t last, double tolerance, std::vector<bool>& kept) {
  std::vector<std::pair<size_t, size_t>> chains{{first, last}};
  while (!chains.empty()) {
    const auto [from, to] = chains.back();
    chains.pop_back();
    double worst = tolerance;
    size_t worst_index = from;
    for (size_t i = from + 1; i < to; ++i) {
      const double distance = distance_to_segment(points[i], points[from], points[to]);
      if (distance > worst) worst = distance, worst_index = i;
    }
    if (worst_index == from) continue;
    kept[worst_index] = true;
    chains.push_back({from, worst_index});
    chains.push_back({worst_index, to});
  }
}

GridPolygon rounded(const QPolygonF& polygon) {
  GridPolygon points;
  for (const QPointF& exact : polygon) {
    const QPoint point(static_cast<int>(std::lround(exact.x())), static_cast<int>(std::lround(exact.y())));
    if (points.empty() || points.back() != point) points.push_back(point);
  }
  while (points.size() > 1 && points.front() == points.back()) points.pop_back();
  return points;
}

} // namespace

GridPolygon to_grid(const QPolygonF& polygon, double tolerance) {
  GridPolygon points = rounded(polygon);
  if (points.size() < 3) return {};
  // A closed outline has no ends: it is cut at its first point and at the point farthest from it.
  size_t far = 0;
  const auto distance2 = [&](size_t i) {
    const QPoint d = points[i] - points[0];
    return static_cast<qint64>(d.x()) * d.x() + static_cast<qint64>(d.y()) * d.y();
  };
  for (size_t i = 1; i < points.size(); ++i)
    if (distance2(i) > distance2(far)) far = i;
  const size_t count = points.size();
  points.push_back(points.front());
  std::vector<bool> kept(points.size(), false);
  kept[0] = kept[far] = true;
  mark_kept(points, 0, far, tolerance, kept);
  mark_kept(points, far, count, tolerance, kept);
  GridPolygon result;
  for (size_t i = 0; i < count; ++i)
    if (kept[i]) result.push_back(points[i]);
  return result.size() < 3 ? GridPolygon{} : result;
}

} // namespace cserko
