#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <algorithm>
#include <vector>

namespace cserko {

/// The lines of one shape in device pixels. Curves are flattened before they come here.
using Outline = std::vector<QPolygonF>;

/// Whole pixels of a rectangle given by two corners in any order, each edge rounded by itself so that neighbours meet;
/// far values are brought into a range that is safe to reckon with.
QRect pixel_rect(QPointF a, QPointF b);

/// The part of a filled polygon inside a box. Winding numbers inside the box stay as they are.
QPolygonF clip_polygon(const QPolygonF& polygon, const QRectF& box);

/// The parts of an open line inside a box.
Outline clip_line(const QPolygonF& line, const QRectF& box);

/// Part of an ellipse as a line, from an angle on (radians, 0 at the right, growing downwards) over a sweep.
QPolygonF ellipse_line(const QRectF& rect, double start, double sweep);

/// A closed rectangle with rounded corners; `corner` is the width and height of the corner ellipses.
QPolygonF round_rect_line(const QRectF& rect, QSizeF corner);

/// A closed rectangle.
QPolygonF rect_line(const QRectF& rect);

/// Steps that the painter's rasteriser needs about for a filled outline. Its cells stand in one list a row that is
/// walked from the left for each edge, so crossing edges cost their number squared.
double fill_cost(const Outline& outline);

/// Spans of a filled outline, one pixel high, without smoothing: each edge costs one step a row however many others it
/// crosses. Calls `spans` with the rectangles of a row, and now and then with none to ask whether to go on; it returns
/// false to end.
template<typename Spans> void fill_spans(const Outline& outline, bool winding, QRect area, Spans spans);

namespace detail {
/// Running counts of edges crossed, for a band of rows.
class EdgeCounts {
 public:
  EdgeCounts(QRect area, int rows)
      : area_(area),
        stride_(area.width() + 1),
        counts_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(stride_)) {}
  void start_band(int top, int rows);
  void add_edge(QPointF from, QPointF to);
  /// Collects the spans of one row.
  void row_spans(int y, bool winding, std::vector<QRect>& spans) const;

 private:
  QRect area_;
  int stride_;
  int top_ = 0, rows_ = 0;
  std::vector<int> counts_;
};
} // namespace detail

template<typename Spans> void fill_spans(const Outline& outline, bool winding, QRect area, Spans spans) {
  constexpr int kBandCells = 4'000'000;
  constexpr int kEdgesBetween = 4096;
  // Low bands, so that there is something to see when the time ends in the middle.
  constexpr int kBandRows = 64;
  const int band = std::clamp(kBandCells / (area.width() + 1), 1, std::min(kBandRows, std::max(area.height(), 1)));
  detail::EdgeCounts counts(area, band);
  std::vector<QRect> found;
  for (int top = area.top(); top <= area.bottom(); top += band) {
    const int rows = std::min(band, area.bottom() + 1 - top);
    counts.start_band(top, rows);
    int edges = 0;
    for (const QPolygonF& polygon : outline) {
      for (qsizetype i = 0; i < polygon.size(); ++i) {
        counts.add_edge(polygon[i], polygon[i + 1 < polygon.size() ? i + 1 : 0]);
        if (++edges % kEdgesBetween == 0 && !spans(found)) return;
      }
    }
    for (int y = top; y < top + rows; ++y, found.clear()) {
      counts.row_spans(y, winding, found);
      if (!found.empty() && !spans(found)) return;
    }
  }
}

} // namespace cserko
