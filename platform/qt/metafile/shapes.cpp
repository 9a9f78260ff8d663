#include "player.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace cserko {

namespace {

Qt::BrushStyle hatch_style(int hatch) {
  switch (hatch) {
  case 0:
    return Qt::HorPattern;
  case 1:
    return Qt::VerPattern;
  case 2:
    return Qt::FDiagPattern;
  case 3:
    return Qt::BDiagPattern;
  case 4:
    return Qt::CrossPattern;
  case 5:
    return Qt::DiagCrossPattern;
  default:
    return Qt::SolidPattern;
  }
}

Qt::PenStyle line_style(int style) {
  switch (style) {
  case 1:
    return Qt::DashLine;
  case 2:
    return Qt::DotLine;
  case 3:
    return Qt::DashDotLine;
  case 4:
    return Qt::DashDotDotLine;
  case WmfPen::kNull:
    return Qt::NoPen;
  default:
    return Qt::SolidLine;
  }
}

} // namespace

QPen Player::device_pen() const {
  const WmfPen& pen = state_.pen;
  const double most = std::max({canvas_.area().width(), canvas_.area().height(), 1});
  const double width = std::clamp(pen.width * mean_scale(), 1.0, most);
  const Qt::PenStyle style = line_style(pen.style);
  // Round ends would close the gaps of dotted lines.
  const Qt::PenCapStyle cap = style == Qt::SolidLine ? Qt::RoundCap : Qt::FlatCap;
  return QPen(pen.color, width, style, cap, Qt::RoundJoin);
}

QBrush Player::painter_brush(const WmfBrush& brush) {
  switch (brush.style) {
  case WmfBrush::kNull:
    return Qt::NoBrush;
  case WmfBrush::kHatched:
    return QBrush(brush.color, hatch_style(brush.hatch));
  case WmfBrush::kPattern:
    return brush.pattern.isNull() ? QBrush(Qt::NoBrush) : QBrush(brush.pattern);
  default:
    return brush.color;
  }
}

void Player::fill(const Outline& outline, const WmfBrush& brush) {
  if (brush.style == WmfBrush::kHatched && state_.opaque_background) {
    canvas_.fill(outline, state_.winding, state_.background_color);
  }
  canvas_.fill(outline, state_.winding, painter_brush(brush));
}

void Player::stroke(const Outline& outline) {
  const QPen pen = device_pen();
  if (pen.style() != Qt::SolidLine && pen.style() != Qt::NoPen && state_.opaque_background) {
    canvas_.stroke(outline, QPen(state_.background_color, pen.widthF(), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
  }
  canvas_.stroke(outline, pen);
}

void Player::draw_closed(const Outline& outline) {
  fill(outline, state_.brush);
  Outline border = outline;
  for (QPolygonF& line : border) {
    if (!line.isEmpty() && line.first() != line.last()) line.append(line.first());
  }
  stroke(border);
}

template<typename Shape> void Player::draw_box(const QRectF& box, Shape shape) {
  const QPen pen = device_pen();
  fill({shape(box)}, state_.brush);
  // The right and bottom edge of a box do not belong to it, so a hair line around it stays inside; it is moved by half
  // a pixel later, as all hair lines are.
  double right = 0, inset = 0;
  if (state_.pen.style == WmfPen::kInsideFrame && pen.widthF() > 1) inset = pen.widthF() / 2;
  if (pen.widthF() <= 1) right = 1;
  const QRectF border = box.adjusted(inset, inset, -inset - right, -inset - right);
  stroke({shape(border.width() > 0 && border.height() > 0 ? border : box)});
}

void Player::move_to(const WmfRecord& r) { state_.position = QPointF(r.s16(1), r.s16(0)); }

void Player::line_to(const WmfRecord& r) {
  const QPointF to(r.s16(1), r.s16(0));
  stroke({QPolygonF{map(state_.position), map(to)}});
  state_.position = to;
}

void Player::polygon(const WmfRecord& r) {
  const qsizetype count = std::min<qsizetype>(r.u16(0), (r.words() - 1) / 2);
  if (count < 2 || !budget_.take_points(count)) return;
  draw_closed({map_points(r, 1, count)});
}

void Player::polyline(const WmfRecord& r) {
  const qsizetype count = std::min<qsizetype>(r.u16(0), (r.words() - 1) / 2);
  if (count < 2 || !budget_.take_points(count)) return;
  stroke({map_points(r, 1, count)});
}

void Player::poly_polygon(const WmfRecord& r) {
  const qsizetype polygons = std::min<qsizetype>(r.u16(0), r.words() - 1);
  qsizetype word = 1 + polygons;
  Outline outline;
  for (qsizetype i = 0; i < polygons; ++i) {
    const qsizetype count = std::min<qsizetype>(r.u16(1 + i), (r.words() - word) / 2);
    if (budget_.spent() || !budget_.take_points(count)) break;
    if (count >= 2) outline.push_back(map_points(r, word, count));
    word += count * 2;
  }
  if (!outline.empty()) draw_closed(outline);
}

void Player::rectangle(const WmfRecord& r) {
  draw_box(map_box(r, 0), [](const QRectF& box) { return rect_line(box); });
}

void Player::round_rect(const WmfRecord& r) {
  const QSizeF corner(std::abs(r.s16(1) * scale_x_), std::abs(r.s16(0) * scale_y_));
  draw_box(map_box(r, 2), [corner](const QRectF& box) { return round_rect_line(box, corner); });
}

void Player::ellipse(const WmfRecord& r) {
  draw_box(map_box(r, 0), [](const QRectF& box) { return ellipse_line(box, 0, 2 * std::numbers::pi); });
}

Player::ArcLine Player::arc_line(const WmfRecord& r) const {
  const QRectF box = map_box(r, 4);
  const QPointF center = box.center();
  const auto angle = [&](QPointF p) {
    const double rx = std::max(box.width() / 2, 1e-9), ry = std::max(box.height() / 2, 1e-9);
    return std::atan2((p.y() - center.y()) / ry, (p.x() - center.x()) / rx);
  };
  const double start = angle(map(r.s16(3), r.s16(2)));
  // Counter-clockwise as seen, which is towards smaller angles here; equal ends make the whole ellipse.
  double sweep = angle(map(r.s16(1), r.s16(0))) - start;
  if (sweep >= 0) sweep -= 2 * std::numbers::pi;
  return {ellipse_line(box, start, sweep), center};
}

void Player::arc(const WmfRecord& r) { stroke({arc_line(r).line}); }

void Player::pie(const WmfRecord& r) {
  ArcLine arc = arc_line(r);
  arc.line.append(arc.center);
  draw_closed({arc.line});
}

void Player::chord(const WmfRecord& r) { draw_closed({arc_line(r).line}); }

void Player::set_pixel(const WmfRecord& r) {
  // One logical pixel, so that a picture made of pixels has no holes when it is enlarged.
  const QPointF at(r.s16(3), r.s16(2));
  QRect pixel = pixel_rect(map(at), map(at + QPointF(1, 1)));
  pixel.setSize(pixel.size().expandedTo({1, 1}));
  canvas_.fill_pixels(pixel, read_wmf_color(r, 0, state_));
}

void Player::paint_region(const WmfRecord& r) {
  const WmfObject* object = objects_.at(r.u16(0));
  const auto* region = object != nullptr ? std::get_if<WmfRegion>(object) : nullptr;
  if (region == nullptr) return;
  for (const QRect& rect : device_region(*region)) fill({rect_line(rect)}, state_.brush);
}

void Player::fill_region(const WmfRecord& r) {
  const WmfObject* object = objects_.at(r.u16(0));
  const WmfObject* with = objects_.at(r.u16(1));
  const auto* region = object != nullptr ? std::get_if<WmfRegion>(object) : nullptr;
  const auto* brush = with != nullptr ? std::get_if<WmfBrush>(with) : nullptr;
  if (region == nullptr || brush == nullptr) return;
  for (const QRect& rect : device_region(*region)) fill({rect_line(rect)}, *brush);
}

} // namespace cserko
