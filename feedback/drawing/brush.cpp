#include "feedback/drawing/brush.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace cserko {

namespace {

constexpr double touch = 1e-6; // a point whose middle lies on the very edge is outside

/// A line as broad as a whole number of points, in points from the corner of the grid.
struct Stroke {
  Point from;
  Point to;
  double radius;
};

Stroke to_points(const PixelGrid& grid, Point from, Point to, double width) {
  const double points = std::max(1.0, std::round(width / grid.pitch()));
  // An odd number of points has one in the middle, an even number has the edge between two there.
  const double middle = std::fmod(points, 2) != 0 ? 0.5 : 0;
  const auto snapped = [&](Point place) -> Point { return {grid.cell(place.x) + middle, grid.cell(place.y) + middle}; };
  return {snapped(from), snapped(to), points / 2};
}

/// What a row has of a convex figure.
struct Span {
  double left = std::numeric_limits<double>::max();
  double right = std::numeric_limits<double>::lowest();

  void take(double x) {
    left = std::min(left, x);
    right = std::max(right, x);
  }
};

void take_end(Span& span, Point center, double radius, double y) {
  const double distance = y - center.y;
  if (std::abs(distance) >= radius) return;
  const double half = std::sqrt(radius * radius - distance * distance);
  span.take(center.x - half);
  span.take(center.x + half);
}

void take_edge(Span& span, Point a, Point b, double y) {
  if ((a.y < y) == (b.y < y) || a.y == b.y) return;
  span.take(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
}

Span span_of(const Stroke& stroke, double y) {
  Span span;
  take_end(span, stroke.from, stroke.radius, y);
  take_end(span, stroke.to, stroke.radius, y);
  const double dx = stroke.to.x - stroke.from.x;
  const double dy = stroke.to.y - stroke.from.y;
  const double length = std::hypot(dx, dy);
  if (length == 0) return span;
  const Point aside{-dy / length * stroke.radius, dx / length * stroke.radius};
  const std::array<Point, 4> corners{
      Point{stroke.from.x + aside.x, stroke.from.y + aside.y}, Point{stroke.to.x + aside.x, stroke.to.y + aside.y},
      Point{stroke.to.x - aside.x, stroke.to.y - aside.y}, Point{stroke.from.x - aside.x, stroke.from.y - aside.y}};
  for (std::size_t i = 0; i < corners.size(); ++i)
    take_edge(span, corners.at(i), corners.at((i + 1) % corners.size()), y);
  return span;
}

} // namespace

GridRect line_extent(const PixelGrid& grid, Point from, Point to, double width) {
  const Stroke stroke = to_points(grid, from, to, width);
  const auto before = [&](double a, double b) { return static_cast<int>(std::floor(std::min(a, b) - stroke.radius)); };
  const auto behind = [&](double a, double b) { return static_cast<int>(std::ceil(std::max(a, b) + stroke.radius)); };
  return grid.inside({before(stroke.from.x, stroke.to.x), before(stroke.from.y, stroke.to.y),
                      behind(stroke.from.x, stroke.to.x), behind(stroke.from.y, stroke.to.y)});
}

void draw_line(PixelGrid& grid, Point from, Point to, double width, Color color) {
  const Stroke stroke = to_points(grid, from, to, width);
  const GridRect extent = line_extent(grid, from, to, width);
  for (int row = extent.top; row < extent.bottom; ++row) {
    const Span span = span_of(stroke, row + 0.5);
    if (span.left > span.right) continue;
    const int first = std::max(extent.left, static_cast<int>(std::ceil(span.left - 0.5 + touch)));
    const int behind = std::min(extent.right, static_cast<int>(std::floor(span.right - 0.5 - touch)) + 1);
    if (first < behind) grid.run(row, first, behind, color);
  }
}

GridRect box_extent(const PixelGrid& grid, const Rect& place) {
  const auto first = [&](double twips) { return static_cast<int>(std::lround(twips / grid.pitch())); };
  GridRect box{first(place.left), first(place.top), first(place.left + place.width), first(place.top + place.height)};
  return grid.inside(box);
}

void fill_box(PixelGrid& grid, const GridRect& place, Color color) {
  const GridRect inside = grid.inside(place);
  for (int row = inside.top; row < inside.bottom && !inside.empty(); ++row)
    grid.run(row, inside.left, inside.right, color);
}

} // namespace cserko
