#include "geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace cserko {

namespace {

constexpr double kFar = 1e6;

int pixel(double value) { return static_cast<int>(std::lround(std::clamp(value, -kFar, kFar))); }

/// One straight side of the clip box: the points with a * x + b * y <= c are inside.
struct Side {
  double a, b, c;
  double outside(QPointF p) const { return a * p.x() + b * p.y() - c; }
};

QPolygonF clip_side(const QPolygonF& polygon, const Side& side) {
  QPolygonF kept;
  kept.reserve(polygon.size() + 8);
  for (qsizetype i = 0; i < polygon.size(); ++i) {
    const QPointF from = polygon[i], to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
    const double d0 = side.outside(from), d1 = side.outside(to);
    if (d0 <= 0) kept.append(from);
    if ((d0 <= 0) != (d1 <= 0)) kept.append(from + (to - from) * (d0 / (d0 - d1)));
  }
  return kept;
}

/// Narrows the part [t0, t1] of a segment to one side of the box; false if nothing is left.
bool clip_segment(const Side& side, QPointF from, QPointF to, double& t0, double& t1) {
  const double d0 = side.outside(from), d1 = side.outside(to);
  if (d0 > 0 && d1 > 0) return false;
  if (d0 > 0) t0 = std::max(t0, d0 / (d0 - d1));
  if (d1 > 0) t1 = std::min(t1, d0 / (d0 - d1));
  return t0 <= t1;
}

bool inside(const QRectF& box, const QRectF& bounds) {
  return bounds.left() >= box.left() && bounds.right() <= box.right() && bounds.top() >= box.top() &&
         bounds.bottom() <= box.bottom();
}

std::array<Side, 4> sides(const QRectF& box) {
  return {{{-1, 0, -box.left()}, {1, 0, box.right()}, {0, -1, -box.top()}, {0, 1, box.bottom()}}};
}

} // namespace

QRect pixel_rect(QPointF a, QPointF b) {
  const int x0 = pixel(a.x()), y0 = pixel(a.y()), x1 = pixel(b.x()), y1 = pixel(b.y());
  return {std::min(x0, x1), std::min(y0, y1), std::abs(x1 - x0), std::abs(y1 - y0)};
}

QPolygonF clip_polygon(const QPolygonF& polygon, const QRectF& box) {
  if (inside(box, polygon.boundingRect())) return polygon;
  QPolygonF kept = polygon;
  for (const Side& side : sides(box)) kept = clip_side(kept, side);
  return kept;
}

Outline clip_line(const QPolygonF& line, const QRectF& box) {
  if (inside(box, line.boundingRect())) return {line};
  Outline kept;
  bool joined = false;
  for (qsizetype i = 0; i + 1 < line.size(); ++i) {
    const QPointF from = line[i], to = line[i + 1];
    double t0 = 0, t1 = 1;
    bool visible = true;
    for (const Side& side : sides(box)) visible = visible && clip_segment(side, from, to, t0, t1);
    if (!visible) {
      joined = false;
      continue;
    }
    if (!joined || t0 > 0) kept.push_back(QPolygonF{from + (to - from) * t0});
    kept.back().append(from + (to - from) * t1);
    joined = t1 >= 1;
  }
  return kept;
}

QPolygonF ellipse_line(const QRectF& rect, double start, double sweep) {
  constexpr double kError = 0.05; // pixels between the curve and its chords
  constexpr double kLeast = 16, kMost = 4096;
  const double rx = rect.width() / 2, ry = rect.height() / 2;
  const double circle = std::clamp(std::numbers::pi * std::sqrt(std::max(rx, ry) / (2 * kError)), kLeast, kMost);
  const int steps = std::max(2, static_cast<int>(std::ceil(circle * std::abs(sweep) / (2 * std::numbers::pi))));
  QPolygonF line;
  line.reserve(steps + 1);
  for (int i = 0; i <= steps; ++i) {
    const double angle = start + sweep * i / steps;
    line.append({rect.center().x() + rx * std::cos(angle), rect.center().y() + ry * std::sin(angle)});
  }
  return line;
}

QPolygonF rect_line(const QRectF& rect) {
  return {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft(), rect.topLeft()};
}

QPolygonF round_rect_line(const QRectF& rect, QSizeF corner) {
  const double w = std::min(corner.width(), rect.width()), h = std::min(corner.height(), rect.height());
  if (w <= 0 || h <= 0) return rect_line(rect);
  constexpr double kQuarter = std::numbers::pi / 2;
  QPolygonF line;
  line += ellipse_line({rect.left(), rect.top(), w, h}, 2 * kQuarter, kQuarter);
  line += ellipse_line({rect.right() - w, rect.top(), w, h}, 3 * kQuarter, kQuarter);
  line += ellipse_line({rect.right() - w, rect.bottom() - h, w, h}, 0, kQuarter);
  line += ellipse_line({rect.left(), rect.bottom() - h, w, h}, kQuarter, kQuarter);
  line.append(line.first());
  return line;
}

double fill_cost(const Outline& outline) {
  double cells = 0;
  QRectF bounds;
  for (const QPolygonF& polygon : outline) {
    bounds |= polygon.boundingRect();
    for (qsizetype i = 0; i < polygon.size(); ++i) {
      const QPointF edge = polygon[i + 1 < polygon.size() ? i + 1 : 0] - polygon[i];
      cells += std::abs(edge.x()) + std::abs(edge.y()) + 1;
    }
  }
  const double a_row = cells / std::max(bounds.height(), 1.0);
  return cells * std::min(a_row, std::max(bounds.width(), 1.0)) / 2;
}

namespace detail {

void EdgeCounts::start_band(int top, int rows) {
  top_ = top;
  rows_ = rows;
  std::fill(counts_.begin(), counts_.end(), 0);
}

void EdgeCounts::add_edge(QPointF from, QPointF to) {
  const int direction = from.y() < to.y() ? 1 : -1;
  if (direction < 0) std::swap(from, to);
  // Rows whose middle lies in [from, to).
  const int first = std::max(pixel(std::ceil(from.y() - 0.5)), top_);
  const int end = std::min(pixel(std::ceil(to.y() - 0.5)), top_ + rows_);
  if (first >= end) return;
  const double slope = (to.x() - from.x()) / (to.y() - from.y());
  double x = from.x() + (first + 0.5 - from.y()) * slope - area_.left();
  int* row = counts_.data() + static_cast<std::ptrdiff_t>(first - top_) * stride_;
  for (int y = first; y < end; ++y, row += stride_, x += slope) {
    const double column = std::clamp(std::ceil(x - 0.5), 0.0, static_cast<double>(area_.width()));
    row[static_cast<int>(column)] += direction;
  }
}

void EdgeCounts::row_spans(int y, bool winding, std::vector<QRect>& spans) const {
  const int* row = counts_.data() + static_cast<std::ptrdiff_t>(y - top_) * stride_;
  int count = 0, start = -1;
  for (int x = 0; x <= area_.width(); ++x) {
    count += row[x];
    const bool filled = x < area_.width() && (winding ? count != 0 : (count & 1) != 0);
    if (filled && start < 0) start = x;
    if (!filled && start >= 0) {
      spans.emplace_back(area_.left() + start, y, x - start, 1);
      start = -1;
    }
  }
}

} // namespace detail

} // namespace cserko
