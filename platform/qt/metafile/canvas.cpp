#include "canvas.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

enum Mix {
  kMixBlack = 1,
  kMixNotMerge,
  kMixMaskNot,
  kMixNotCopy,
  kMixMaskPenNot,
  kMixNot,
  kMixXor,
  kMixNotMask,
  kMixMask,
  kMixNotXor,
  kMixNop,
  kMixMergeNot,
  kMixCopy,
  kMixMergePenNot,
  kMixMerge,
  kMixWhite
};

QPainter::CompositionMode composition(int mix) {
  switch (mix) {
  case kMixNotMerge:
    return QPainter::RasterOp_NotSourceAndNotDestination;
  case kMixMaskNot:
    return QPainter::RasterOp_NotSourceAndDestination;
  case kMixMaskPenNot:
    return QPainter::RasterOp_SourceAndNotDestination;
  case kMixNot:
    return QPainter::RasterOp_NotDestination;
  case kMixXor:
    return QPainter::RasterOp_SourceXorDestination;
  case kMixNotMask:
    return QPainter::RasterOp_NotSourceOrNotDestination;
  case kMixMask:
    return QPainter::RasterOp_SourceAndDestination;
  case kMixNotXor:
    return QPainter::RasterOp_NotSourceXorDestination;
  case kMixMergeNot:
    return QPainter::RasterOp_NotSourceOrDestination;
  case kMixMergePenNot:
    return QPainter::RasterOp_SourceOrNotDestination;
  case kMixMerge:
    return QPainter::RasterOp_SourceOrDestination;
  default:
    return QPainter::CompositionMode_SourceOver;
  }
}

/// Longest thin line that is drawn smoothly, in pixels over the whole shape.
constexpr double kSmoothLength = 300'000;
/// Rasteriser steps above which a fill goes without smoothing.
constexpr double kSmoothFill = 20'000'000;
/// Points stroked between two looks at the clock.
constexpr qsizetype kStrokeChunk = 32;

double length(const Outline& outline) {
  double sum = 0;
  for (const QPolygonF& line : outline) {
    for (qsizetype i = 0; i + 1 < line.size(); ++i) sum += (line[i + 1] - line[i]).manhattanLength();
  }
  return sum;
}

/// A hair line on a whole coordinate lies between two rows of pixels and would be grey in both; moved by half a pixel
/// it fills one. The last row and column are kept on the picture.
QPolygonF on_pixels(const QPolygonF& line, const QRect& area) {
  constexpr double kHalf = 0.5;
  QPolygonF moved = line;
  for (QPointF& p : moved) {
    p += QPointF(kHalf, kHalf);
    if (std::abs(p.x() - area.width()) <= kHalf) p.setX(area.width() - kHalf);
    if (std::abs(p.y() - area.height()) <= kHalf) p.setY(area.height() - kHalf);
  }
  return moved;
}

} // namespace

bool mix_reads_target(int mix) { return composition(mix) != QPainter::CompositionMode_SourceOver; }

WmfCanvas::WmfCanvas(QImage* image, WmfBudget& budget) : image_(image), budget_(budget) {
  if (image_ == nullptr) return;
  area_ = image_->rect();
  painter_ = std::make_unique<QPainter>(image_);
  painter_->setPen(Qt::NoPen);
}

void WmfCanvas::set_clip(const QRegion& clip, bool clipped) {
  if (measuring() || (clipped == clipped_ && (!clipped || clip == clip_))) return;
  clip_ = clip;
  clipped_ = clipped;
  clip_changed_ = true;
}

void WmfCanvas::apply_clip() {
  if (!clip_changed_) return;
  clip_changed_ = false;
  if (clipped_) {
    painter_->setClipRegion(clip_);
  } else {
    painter_->setClipping(false);
  }
}

void WmfCanvas::note(const QRectF& rect) {
  // QRectF's own union leaves out rectangles without area, such as those of upright lines.
  if (!drawn_) {
    bounds_ = rect;
  } else {
    const QPointF low(std::min(bounds_.left(), rect.left()), std::min(bounds_.top(), rect.top()));
    const QPointF high(std::max(bounds_.right(), rect.right()), std::max(bounds_.bottom(), rect.bottom()));
    bounds_ = QRectF(low, high);
  }
  drawn_ = true;
}

QRegion WmfCanvas::writable(const QRect& rect) const {
  const QRect visible = rect & area_;
  return clipped_ ? clip_ & visible : QRegion(visible);
}

QColor WmfCanvas::mixed(const QColor& color) const {
  switch (mix_) {
  case kMixBlack:
    return Qt::black;
  case kMixWhite:
    return Qt::white;
  case kMixNotCopy:
    return QColor::fromRgb(color.rgb() ^ 0xFFFFFF);
  default:
    return color;
  }
}

QBrush WmfCanvas::mixed(const QBrush& brush) const {
  if (mix_ == kMixBlack || mix_ == kMixWhite) return mixed(brush.color());
  if (brush.style() == Qt::TexturePattern) return brush;
  QBrush result = brush;
  result.setColor(mixed(brush.color()));
  return result;
}

bool WmfCanvas::apply_mix() {
  if (mix_ == kMixNop) return false;
  apply_clip();
  const QPainter::CompositionMode mode = composition(mix_);
  painter_->setCompositionMode(mode);
  // Raster operations combine whole pixels; there is no half of an exclusive or.
  smooth_ = mode == QPainter::CompositionMode_SourceOver;
  painter_->setRenderHint(QPainter::Antialiasing, smooth_);
  return true;
}

void WmfCanvas::fill(const Outline& outline, bool winding, const QBrush& brush) {
  if (brush.style() == Qt::NoBrush) return;
  if (measuring()) {
    for (const QPolygonF& polygon : outline) note(polygon.boundingRect());
    return;
  }
  if (!apply_mix()) return;
  constexpr int kMargin = 2;
  const QRectF box = area_.adjusted(-kMargin, -kMargin, kMargin, kMargin);
  Outline visible;
  for (const QPolygonF& polygon : outline) {
    if (budget_.spent()) return;
    QPolygonF part = clip_polygon(polygon, box);
    if (part.size() > 2) visible.push_back(std::move(part));
  }
  if (visible.empty()) return;
  if (fill_cost(visible) > kSmoothFill) return fill_rough(visible, winding, mixed(brush));
  painter_->setPen(Qt::NoPen);
  painter_->setBrush(mixed(brush));
  const Qt::FillRule rule = winding ? Qt::WindingFill : Qt::OddEvenFill;
  if (visible.size() == 1) return painter_->drawPolygon(visible.front(), rule);
  QPainterPath path;
  path.setFillRule(rule);
  for (const QPolygonF& polygon : visible) {
    path.addPolygon(polygon);
    path.closeSubpath();
  }
  painter_->drawPath(path);
}

void WmfCanvas::fill_rough(const Outline& outline, bool winding, const QBrush& brush) {
  painter_->setRenderHint(QPainter::Antialiasing, false);
  painter_->setPen(Qt::NoPen);
  painter_->setBrush(brush);
  fill_spans(outline, winding, area_, [this](const std::vector<QRect>& spans) {
    if (!spans.empty()) painter_->drawRects(spans.data(), static_cast<int>(spans.size()));
    return !budget_.spent();
  });
}

void WmfCanvas::stroke(const Outline& outline, const QPen& pen) {
  if (pen.style() == Qt::NoPen) return;
  if (measuring()) {
    for (const QPolygonF& line : outline) note(line.boundingRect());
    return;
  }
  if (!apply_mix()) return;
  constexpr double kThin = 1.5;
  const bool thin = pen.widthF() < kThin;
  const double margin = pen.widthF() + 2;
  const QRectF box = QRectF(area_).adjusted(-margin, -margin, margin, margin);
  Outline visible;
  for (const QPolygonF& line : outline) {
    if (budget_.spent()) return;
    for (QPolygonF& part : clip_line(thin ? on_pixels(line, area_) : line, box)) visible.push_back(std::move(part));
  }
  const bool rough = thin && (!smooth_ || length(visible) > kSmoothLength);
  QPen used = pen;
  used.setColor(mixed(pen.color()));
  used.setCosmetic(rough);
  painter_->setPen(used);
  painter_->setBrush(Qt::NoBrush);
  painter_->setRenderHint(QPainter::Antialiasing, smooth_ && !rough);
  for (const QPolygonF& line : visible) {
    if (budget_.spent()) return;
    stroke_line(line, rough);
  }
}

void WmfCanvas::stroke_line(const QPolygonF& line, bool rough) {
  constexpr qsizetype kWhole = 512; // shapes up to this size in one go, so that dashes run on
  const qsizetype chunk = rough ? kStrokeChunk * 16 : kStrokeChunk;
  if (line.size() <= kWhole && length({line}) <= kSmoothLength) {
    painter_->drawPolyline(line);
    return;
  }
  for (qsizetype i = 0; i + 1 < line.size() && !budget_.spent(); i += chunk) {
    const qsizetype count = std::min(chunk + 1, line.size() - i);
    painter_->drawPolyline(line.constData() + i, static_cast<int>(count));
  }
}

void WmfCanvas::fill_pixels(const QRect& rect, const QBrush& brush) {
  if (brush.style() == Qt::NoBrush) return;
  note(rect);
  if (measuring()) return;
  apply_clip();
  painter_->setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter_->setRenderHint(QPainter::Antialiasing, false);
  painter_->fillRect(rect & area_, brush);
}

} // namespace cserko
