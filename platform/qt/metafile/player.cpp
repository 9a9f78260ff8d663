#include "player.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cserko {

namespace {

constexpr std::size_t kSaveDepth = 256;
constexpr double kLeastExtent = 1e-3, kMostExtent = 1e7;
constexpr int kMostPatternPixels = 1024 * 1024;

bool usable(QSizeF extent) {
  const auto in_range = [](double v) { return std::abs(v) >= kLeastExtent && std::abs(v) <= kMostExtent; };
  return in_range(extent.width()) && in_range(extent.height());
}

/// Arguments stand in reverse order: y before x.
QPointF point_at(const WmfRecord& r, qsizetype word) { return QPointF(r.s16(word + 1), r.s16(word)); }

/// Extent times a fraction a side: y denominator, y numerator, x denominator, x numerator.
QSizeF scaled(QSizeF extent, const WmfRecord& r) {
  const double y_denominator = r.s16(0), y_numerator = r.s16(1), x_denominator = r.s16(2), x_numerator = r.s16(3);
  if (y_denominator == 0 || x_denominator == 0) return extent;
  const QSizeF result(extent.width() * x_numerator / x_denominator, extent.height() * y_numerator / y_denominator);
  return usable(result) ? result : extent;
}

} // namespace

const Player::Entry* Player::find(quint16 function) {
  static constexpr auto kEntries = std::to_array<Entry>({
      {wmf::kSaveDC, 0, &Player::save_dc},
      {wmf::kCreatePalette, 0, &Player::create_palette},
      {wmf::kCreateBrush, 0, &Player::create_other},
      {wmf::kSetBkMode, 1, &Player::set_bk_mode},
      {wmf::kSetMapMode, 1, &Player::set_map_mode},
      {wmf::kSetROP2, 1, &Player::set_rop2},
      {wmf::kSetPolyFillMode, 1, &Player::set_poly_fill_mode},
      {wmf::kSetTextCharExtra, 1, &Player::set_text_char_extra},
      {wmf::kRestoreDC, 1, &Player::restore_dc},
      {wmf::kPaintRegion, 1, &Player::paint_region},
      {wmf::kSelectClipRegion, 1, &Player::select_clip_region},
      {wmf::kSelectObject, 1, &Player::select_object},
      {wmf::kSetTextAlign, 1, &Player::set_text_align},
      {wmf::kDIBCreatePatternBrush, 0, &Player::create_dib_pattern},
      {wmf::kDeleteObject, 1, &Player::delete_object},
      {wmf::kCreatePatternBrush, 0, &Player::create_pattern},
      {wmf::kSetBkColor, 2, &Player::set_bk_color},
      {wmf::kSetTextColor, 2, &Player::set_text_color},
      {wmf::kSetTextJustification, 2, &Player::set_text_justification},
      {wmf::kSetWindowOrg, 2, &Player::set_window_org},
      {wmf::kSetWindowExt, 2, &Player::set_window_ext},
      {wmf::kSetViewportOrg, 2, &Player::set_viewport_org},
      {wmf::kSetViewportExt, 2, &Player::set_viewport_ext},
      {wmf::kOffsetWindowOrg, 2, &Player::offset_window_org},
      {wmf::kOffsetViewportOrg, 2, &Player::offset_viewport_org},
      {wmf::kLineTo, 2, &Player::line_to},
      {wmf::kMoveTo, 2, &Player::move_to},
      {wmf::kOffsetClipRgn, 2, &Player::offset_clip_region},
      {wmf::kFillRegion, 2, &Player::fill_region},
      {wmf::kSelectPalette, 1, &Player::select_object},
      {wmf::kCreatePenIndirect, 0, &Player::create_pen},
      {wmf::kCreateFontIndirect, 0, &Player::create_font},
      {wmf::kCreateBrushIndirect, 0, &Player::create_brush},
      {wmf::kCreateBitmapIndirect, 0, &Player::create_other},
      {wmf::kPolygon, 1, &Player::polygon},
      {wmf::kPolyline, 1, &Player::polyline},
      {wmf::kScaleWindowExt, 4, &Player::scale_window_ext},
      {wmf::kScaleViewportExt, 4, &Player::scale_viewport_ext},
      {wmf::kExcludeClipRect, 4, &Player::exclude_clip_rect},
      {wmf::kIntersectClipRect, 4, &Player::intersect_clip_rect},
      {wmf::kEllipse, 4, &Player::ellipse},
      {wmf::kRectangle, 4, &Player::rectangle},
      {wmf::kSetPixel, 4, &Player::set_pixel},
      {wmf::kTextOut, 3, &Player::text_out},
      {wmf::kPolyPolygon, 1, &Player::poly_polygon},
      {wmf::kRoundRect, 6, &Player::round_rect},
      {wmf::kPatBlt, 6, &Player::pat_blt},
      {wmf::kCreateBitmap, 0, &Player::create_other},
      {wmf::kCreateRegion, 0, &Player::create_region},
      {wmf::kArc, 8, &Player::arc},
      {wmf::kPie, 8, &Player::pie},
      {wmf::kChord, 8, &Player::chord},
      {wmf::kDIBBitBlt, 8, &Player::dib_bit_blt},
      {wmf::kExtTextOut, 4, &Player::ext_text_out},
      {wmf::kDIBStretchBlt, 10, &Player::dib_stretch_blt},
      {wmf::kSetDIBToDev, 9, &Player::set_dib_to_dev},
      {wmf::kStretchDIB, 11, &Player::stretch_dib},
  });
  static_assert(std::ranges::is_sorted(kEntries, {}, &Entry::function));
  const auto* found = std::ranges::lower_bound(kEntries, function, {}, &Entry::function);
  return found != kEntries.end() && found->function == function ? found : nullptr;
}

bool is_drawing_record(quint16 function) {
  switch (function) {
  case wmf::kPaintRegion:
  case wmf::kFillRegion:
  case wmf::kLineTo:
  case wmf::kPolygon:
  case wmf::kPolyline:
  case wmf::kEllipse:
  case wmf::kRectangle:
  case wmf::kSetPixel:
  case wmf::kTextOut:
  case wmf::kPolyPolygon:
  case wmf::kRoundRect:
  case wmf::kPatBlt:
  case wmf::kArc:
  case wmf::kPie:
  case wmf::kChord:
  case wmf::kDIBBitBlt:
  case wmf::kExtTextOut:
  case wmf::kDIBStretchBlt:
  case wmf::kSetDIBToDev:
  case wmf::kStretchDIB:
    return true;
  default:
    return false;
  }
}

bool reads_target(const WmfRecord& record) {
  switch (record.function()) {
  case wmf::kSetROP2:
    return mix_reads_target(record.u16(0));
  case wmf::kDIBBitBlt:
    // Without a bitmap of its own the picture itself is the source.
    if (record.words() <= 9 && raster_reads_source(static_cast<quint8>(record.u16(1)))) return true;
    [[fallthrough]];
  case wmf::kDIBStretchBlt:
    if (record.words() <= 11 && raster_reads_source(static_cast<quint8>(record.u16(1)))) return true;
    [[fallthrough]];
  case wmf::kPatBlt:
  case wmf::kStretchDIB:
    return raster_reads_target(static_cast<quint8>(record.u16(1)));
  default:
    return false;
  }
}

Player::Player(WmfCanvas& canvas, WmfBudget& budget, const Metafile::Page& page, const QRectF& target)
    : canvas_(canvas), budget_(budget), page_(page), target_(target) {
  state_.window_org = page.window_org;
  state_.window_ext = page.window;
  state_.viewport_ext = page.viewport;
  update_mapping();
}

void Player::play(WmfReader reader) {
  WmfRecord record;
  while (!budget_.spent() && reader.next(record)) {
    const Entry* entry = find(record.function());
    if (entry != nullptr && record.words() >= entry->least_words) (this->*entry->handler)(record);
  }
}

// Mapping: logical units → page units by window and viewport, page units → device by the target.

void Player::update_mapping() {
  double sx = state_.viewport_ext.width() / state_.window_ext.width();
  double sy = state_.viewport_ext.height() / state_.window_ext.height();
  if (state_.map_mode == WmfState::kIsotropic) {
    const double scale = std::min(std::abs(sx), std::abs(sy));
    sx = std::copysign(scale, sx);
    sy = std::copysign(scale, sy);
  } else if (state_.map_mode == WmfState::kText) {
    sx = sy = 1;
  } else if (state_.map_mode > WmfState::kText && state_.map_mode <= WmfState::kTwips) {
    sx = page_.fixed_unit;
    sy = -page_.fixed_unit; // the modes of fixed measure count upwards
  }
  const double tx = target_.width() / page_.rect.width(), ty = target_.height() / page_.rect.height();
  scale_x_ = sx * tx;
  scale_y_ = sy * ty;
  shift_x_ = target_.left() + (state_.viewport_org.x() - page_.rect.left() - state_.window_org.x() * sx) * tx;
  shift_y_ = target_.top() + (state_.viewport_org.y() - page_.rect.top() - state_.window_org.y() * sy) * ty;
}

QPointF Player::map(QPointF logical) const {
  return QPointF(logical.x() * scale_x_ + shift_x_, logical.y() * scale_y_ + shift_y_);
}

QRectF Player::map_box(const WmfRecord& r, qsizetype word) const {
  return QRectF(map(point_at(r, word + 2)), map(point_at(r, word))).normalized();
}

QPolygonF Player::map_points(const WmfRecord& r, qsizetype word, qsizetype count) const {
  QPolygonF points;
  points.reserve(count);
  for (qsizetype i = 0; i < count; ++i) points.append(map(r.s16(word + i * 2), r.s16(word + i * 2 + 1)));
  return points;
}

double Player::mean_scale() const { return (std::abs(scale_x_) + std::abs(scale_y_)) / 2; }

void Player::set_map_mode(const WmfRecord& r) {
  state_.map_mode = r.u16(0);
  update_mapping();
}

void Player::set_window_org(const WmfRecord& r) {
  state_.window_org = point_at(r, 0);
  update_mapping();
}

void Player::set_window_ext(const WmfRecord& r) {
  const QSizeF extent(r.s16(1), r.s16(0));
  if (usable(extent)) state_.window_ext = extent;
  update_mapping();
}

void Player::set_viewport_org(const WmfRecord& r) {
  state_.viewport_org = point_at(r, 0);
  update_mapping();
}

void Player::set_viewport_ext(const WmfRecord& r) {
  const QSizeF extent(r.s16(1), r.s16(0));
  if (usable(extent)) state_.viewport_ext = extent;
  update_mapping();
}

void Player::offset_window_org(const WmfRecord& r) {
  state_.window_org += point_at(r, 0);
  update_mapping();
}

void Player::offset_viewport_org(const WmfRecord& r) {
  state_.viewport_org += point_at(r, 0);
  update_mapping();
}

void Player::scale_window_ext(const WmfRecord& r) {
  state_.window_ext = scaled(state_.window_ext, r);
  update_mapping();
}

void Player::scale_viewport_ext(const WmfRecord& r) {
  state_.viewport_ext = scaled(state_.viewport_ext, r);
  update_mapping();
}

// Plain attributes.

void Player::set_bk_mode(const WmfRecord& r) {
  constexpr int kTransparent = 1;
  state_.opaque_background = r.u16(0) != kTransparent;
}

void Player::set_bk_color(const WmfRecord& r) { state_.background_color = read_wmf_color(r, 0, state_); }
void Player::set_text_color(const WmfRecord& r) { state_.text_color = read_wmf_color(r, 0, state_); }
void Player::set_text_align(const WmfRecord& r) { state_.text_align = r.u16(0); }
void Player::set_text_char_extra(const WmfRecord& r) { state_.char_extra = r.s16(0); }

void Player::set_text_justification(const WmfRecord& r) {
  const int blanks = r.s16(0);
  state_.break_extra = blanks > 0 ? static_cast<double>(r.s16(1)) / blanks : 0;
}

void Player::set_rop2(const WmfRecord& r) {
  state_.mix = r.u16(0);
  canvas_.set_mix(state_.mix);
}

void Player::set_poly_fill_mode(const WmfRecord& r) {
  constexpr int kWinding = 2;
  state_.winding = r.u16(0) == kWinding;
}

// Saving and restoring.

void Player::save_dc(const WmfRecord&) {
  // Too deep to be kept, but counted, so that each restore still meets its own save.
  if (saved_.size() >= kSaveDepth) {
    ++saves_ignored_;
  } else {
    saved_.push_back(state_);
  }
}

void Player::restore_dc(const WmfRecord& r) {
  const int level = r.s16(0), depth = static_cast<int>(saved_.size()) + saves_ignored_;
  // Counted from the top if negative, from the first save if positive. `kept` saves stay below it.
  const int kept = level < 0 ? depth + level : level - 1;
  if (level == 0 || kept < 0 || kept >= depth) return;
  if (kept >= static_cast<int>(saved_.size())) {
    saves_ignored_ = kept - static_cast<int>(saved_.size());
    return;
  }
  saves_ignored_ = 0;
  state_ = saved_[static_cast<std::size_t>(kept)];
  saved_.resize(static_cast<std::size_t>(kept));
  update_mapping();
  canvas_.set_mix(state_.mix);
  update_clip();
}

// Objects.

void Player::create_pen(const WmfRecord& r) { objects_.create(read_wmf_pen(r, state_)); }
void Player::create_brush(const WmfRecord& r) { objects_.create(read_wmf_brush(r, state_)); }
void Player::create_font(const WmfRecord& r) { objects_.create(read_wmf_font(r)); }
void Player::create_palette(const WmfRecord& r) { objects_.create(read_wmf_palette(r)); }
void Player::create_region(const WmfRecord& r) { objects_.create(read_wmf_region(r)); }
void Player::create_other(const WmfRecord&) { objects_.create(WmfOther{}); }

void Player::create_dib_pattern(const WmfRecord& r) {
  constexpr int kDibWord = 2;
  const auto colors = r.u16(1) == 1 ? DibColors::PaletteIndex : DibColors::Direct;
  WmfBrush brush;
  brush.style = WmfBrush::kPattern;
  const QByteArrayView dib = r.bytes(kDibWord);
  const std::optional<DibInfo> info = check_dib(dib, colors);
  if (info && info->pixels() <= kMostPatternPixels && budget_.take_pixels(info->pixels())) {
    brush.pattern = decode_dib(dib, *info, colors, state_.palette);
  }
  objects_.create(brush);
}

void Player::create_pattern(const WmfRecord& r) {
  WmfBrush brush;
  brush.style = WmfBrush::kPattern;
  brush.pattern = decode_mono_pattern(r.bytes(0));
  objects_.create(brush);
}

void Player::select_object(const WmfRecord& r) {
  const WmfObject* object = objects_.at(r.u16(0));
  if (object == nullptr) return;
  if (const auto* pen = std::get_if<WmfPen>(object)) state_.pen = *pen;
  if (const auto* brush = std::get_if<WmfBrush>(object)) state_.brush = *brush;
  if (const auto* font = std::get_if<WmfFont>(object)) state_.font = *font;
  if (const auto* palette = std::get_if<WmfPalette>(object)) state_.palette = palette->colors;
  if (const auto* region = std::get_if<WmfRegion>(object)) apply_region(*region);
}

void Player::delete_object(const WmfRecord& r) { objects_.remove(r.u16(0)); }

// Clip.

QRegion Player::device_region(const WmfRegion& region) const {
  QList<QRect> rects;
  for (const QRect& rect : region.rectangles) {
    const QRect pixels = pixel_rect(map(rect.x(), rect.y()), map(rect.x() + rect.width(), rect.y() + rect.height()));
    if (!pixels.isEmpty()) rects.append(pixels);
  }
  QRegion result;
  for (const QRect& rect : rects) {
    if (budget_.spent()) break;
    result += rect;
  }
  return result;
}

void Player::apply_region(const WmfRegion& region) {
  if (!budget_.take_clip()) return;
  state_.clip = device_region(region);
  state_.clipped = true;
  update_clip();
}

void Player::select_clip_region(const WmfRecord& r) {
  const WmfObject* object = objects_.at(r.u16(0));
  const auto* region = object != nullptr ? std::get_if<WmfRegion>(object) : nullptr;
  if (region != nullptr) return apply_region(*region);
  // No region was recorded as number 0, whatever object that is: it lifts the clip.
  if (r.u16(0) != 0) return;
  state_.clipped = false;
  state_.clip = {};
  update_clip();
}

void Player::intersect_clip(const QRegion& region) {
  state_.clip = state_.clipped ? state_.clip & region : region;
  state_.clipped = true;
  update_clip();
}

void Player::intersect_clip_rect(const WmfRecord& r) {
  if (!budget_.take_clip()) return;
  const QRectF box = map_box(r, 0);
  intersect_clip(pixel_rect(box.topLeft(), box.bottomRight()));
}

void Player::exclude_clip_rect(const WmfRecord& r) {
  constexpr int kMostRects = 4096;
  if (!budget_.take_clip() || (state_.clipped && state_.clip.rectCount() > kMostRects)) return;
  const QRectF box = map_box(r, 0);
  if (!state_.clipped) state_.clip = canvas_.area();
  state_.clip -= pixel_rect(box.topLeft(), box.bottomRight());
  state_.clipped = true;
  update_clip();
}

void Player::offset_clip_region(const WmfRecord& r) {
  if (!state_.clipped || !budget_.take_clip()) return;
  const QPointF by = map(point_at(r, 0)) - map(0, 0);
  const QRect moved = pixel_rect(QPointF(0, 0), QPointF(std::abs(by.x()), std::abs(by.y())));
  state_.clip.translate(by.x() < 0 ? -moved.width() : moved.width(), by.y() < 0 ? -moved.height() : moved.height());
  update_clip();
}

} // namespace cserko
