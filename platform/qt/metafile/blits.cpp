#include "player.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace cserko {

namespace {

quint8 operation_of(const WmfRecord& r) { return static_cast<quint8>(r.u16(1) & 0xFF); }

/// One direction of a blit: pixels [s0, s1) of the source go to [d0, d1) of the target; d1 below d0 mirrors.
struct Axis {
  double s0, s1, d0, d1;

  /// Cuts off what lies outside the source; false when nothing is left.
  bool trim(double size) {
    if (s1 < s0) {
      std::swap(s0, s1);
      std::swap(d0, d1);
    }
    if (s1 - s0 <= 0 || s0 >= size || s1 <= 0) return false;
    const double each = (d1 - d0) / (s1 - s0);
    if (s1 > size) {
      d1 -= (s1 - size) * each;
      s1 = size;
    }
    if (s0 < 0) {
      d0 -= s0 * each;
      s0 = 0;
    }
    return true;
  }

  /// Source pixel for each of `count` target pixels that start `skip` pixels into a target of `whole`.
  std::vector<int> columns(int skip, int count, int whole) const {
    std::vector<int> result(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      double part = (skip + i + 0.5) / whole;
      if (d1 < d0) part = 1 - part;
      const double at = std::floor(s0 + part * (s1 - s0));
      result[static_cast<std::size_t>(i)] = static_cast<int>(std::clamp(at, std::floor(s0), std::ceil(s1) - 1));
    }
    return result;
  }
};

/// A source that is made smaller is averaged, so that thin lines in it do not get lost.
bool worth_smoothing(const Axis& x, const Axis& y, const QRect& target) {
  const double w = x.s1 - x.s0, h = y.s1 - y.s0;
  return target.width() <= w && target.height() <= h && (target.width() < w || target.height() < h);
}

const QRgb* pixels_of(const QImage& image, int row) { return reinterpret_cast<const QRgb*>(image.constScanLine(row)); }

QImage pattern_image(const QBrush& brush, const QColor& background, const QRect& rect) {
  QImage image(rect.size(), QImage::Format_RGB32);
  image.fill(background);
  QPainter painter(&image);
  painter.setBrushOrigin(-rect.topLeft());
  painter.fillRect(image.rect(), brush);
  return image;
}

} // namespace

void Player::blit(Blit blit, const QImage& source) {
  Axis x{blit.source.x(), blit.source.x() + blit.source.width(), blit.corner.x(), blit.opposite.x()};
  Axis y{blit.source.y(), blit.source.y() + blit.source.height(), blit.corner.y(), blit.opposite.y()};
  if (!x.trim(source.width()) || !y.trim(source.height())) return;
  QRect target = pixel_rect({x.d0, y.d0}, {x.d1, y.d1});
  target.setSize(target.size().expandedTo({1, 1}));
  QImage image = source;
  constexpr quint8 kSrcCopy = 0xCC;
  if (blit.operation == kSrcCopy && worth_smoothing(x, y, target)) {
    const QRect part = QRectF(QPointF(x.s0, y.s0), QPointF(x.s1, y.s1)).toAlignedRect() & source.rect();
    image = source.copy(part).scaled(target.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image = image.convertToFormat(QImage::Format_RGB32);
    x.s0 = y.s0 = 0;
    x.s1 = image.width();
    y.s1 = image.height();
  }
  const QRegion writable = canvas_.writable(target);
  if (writable.isEmpty()) return;
  const QRect visible = writable.boundingRect();
  const std::vector<int> columns = x.columns(visible.x() - target.x(), visible.width(), target.width());
  const std::vector<int> rows = y.columns(visible.y() - target.y(), visible.height(), target.height());
  QImage pattern;
  if (raster_reads_pattern(blit.operation)) {
    pattern = pattern_image(painter_brush(state_.brush), state_.background_color, visible);
  }
  for (const QRect& rect : writable) {
    for (int ty = rect.top(); ty <= rect.bottom() && !budget_.spent(); ++ty) {
      const auto* from = pixels_of(image, rows[static_cast<std::size_t>(ty - visible.top())]);
      const QRgb* brush = pattern.isNull() ? nullptr : pixels_of(pattern, ty - visible.top());
      auto* to = reinterpret_cast<QRgb*>(canvas_.image().scanLine(ty));
      for (int tx = rect.left(); tx <= rect.right(); ++tx) {
        const int column = tx - visible.left();
        const QRgb pixel = from[columns[static_cast<std::size_t>(column)]];
        to[tx] = raster_operation(blit.operation, brush != nullptr ? brush[column] : 0, pixel, to[tx]);
      }
    }
  }
}

void Player::pattern_blit(const QRect& rect, quint8 operation) {
  constexpr quint8 kBlackness = 0x00, kPatCopy = 0xF0, kWhiteness = 0xFF;
  if (operation == kBlackness) return canvas_.fill_pixels(rect, Qt::black);
  if (operation == kWhiteness) return canvas_.fill_pixels(rect, Qt::white);
  const QBrush brush = painter_brush(state_.brush);
  const bool hatched = state_.brush.style == WmfBrush::kHatched;
  if (operation == kPatCopy) {
    if (hatched && state_.opaque_background) canvas_.fill_pixels(rect, state_.background_color);
    return canvas_.fill_pixels(rect, brush);
  }
  canvas_.note(rect);
  const QRegion writable = canvas_.writable(rect);
  if (canvas_.measuring() || writable.isEmpty()) return;
  const QRect visible = writable.boundingRect();
  QImage pattern;
  if (raster_reads_pattern(operation)) pattern = pattern_image(brush, state_.background_color, visible);
  for (const QRect& part : writable) {
    for (int y = part.top(); y <= part.bottom() && !budget_.spent(); ++y) {
      auto* to = reinterpret_cast<QRgb*>(canvas_.image().scanLine(y));
      const QRgb* from = pattern.isNull() ? nullptr : pixels_of(pattern, y - visible.top());
      for (int x = part.left(); x <= part.right(); ++x) {
        to[x] = raster_operation(operation, from != nullptr ? from[x - visible.left()] : 0, 0, to[x]);
      }
    }
  }
}

void Player::bitmapless_blit(const WmfRecord& r, QPointF source, QSizeF source_size, qsizetype size_word) {
  const QSizeF size(r.s16(size_word + 1), r.s16(size_word));
  const QPointF at(r.s16(size_word + 3), r.s16(size_word + 2));
  const QPointF corner = map(at), opposite = map(at + QPointF(size.width(), size.height()));
  const quint8 operation = operation_of(r);
  if (!raster_reads_source(operation)) return pattern_blit(pixel_rect(corner, opposite), operation);
  // The source is the picture itself.
  canvas_.note(QRectF(corner, opposite).normalized());
  if (canvas_.measuring()) return;
  const QPointF from = map(source), to = map(source + QPointF(source_size.width(), source_size.height()));
  const QImage image = canvas_.image().copy();
  blit({corner, opposite, QRectF(from, to), operation}, image);
}

void Player::pat_blt(const WmfRecord& r) {
  const QPointF at(r.s16(5), r.s16(4));
  pattern_blit(pixel_rect(map(at), map(at + QPointF(r.s16(3), r.s16(2)))), operation_of(r));
}

void Player::dib_blit(QByteArrayView dib, const DibPart& part, Blit blit) {
  if (!raster_reads_source(blit.operation)) {
    return pattern_blit(pixel_rect(blit.corner, blit.opposite), blit.operation);
  }
  const int whole = dib_header_rows(dib);
  const bool some_rows = part.rows > 0 && part.rows < whole;
  const std::optional<DibInfo> info = check_dib(dib, part.colors, some_rows ? part.rows : 0);
  if (!info) return;
  canvas_.note(QRectF(blit.corner, blit.opposite).normalized());
  if (canvas_.measuring() || !budget_.take_pixels(info->pixels())) return;
  const QImage image = decode_dib(dib, *info, part.colors, state_.palette);
  if (image.isNull()) return;
  const int height = some_rows ? whole : info->height;
  const bool upwards = part.from_bottom && !info->top_down;
  if (upwards) blit.source.moveTop(height - blit.source.y() - blit.source.height());
  if (some_rows) blit.source.translate(0, -(upwards ? height - part.first_row - part.rows : part.first_row));
  this->blit(blit, image);
}

void Player::dib_bit_blt(const WmfRecord& r) {
  constexpr qsizetype kDibWord = 8, kBitmapless = 9;
  if (r.words() <= kBitmapless) {
    const qsizetype size_word = r.words() == kBitmapless ? 5 : 4;
    const QSizeF size(r.s16(size_word + 1), r.s16(size_word));
    return bitmapless_blit(r, QPointF(r.s16(3), r.s16(2)), size, size_word);
  }
  const QSizeF size(r.s16(5), r.s16(4));
  const QPointF at(r.s16(7), r.s16(6));
  const QPointF opposite = at + QPointF(size.width(), size.height());
  dib_blit(r.bytes(kDibWord), {}, {map(at), map(opposite), QRectF(QPointF(r.s16(3), r.s16(2)), size), operation_of(r)});
}

void Player::dib_stretch_blt(const WmfRecord& r) {
  constexpr qsizetype kDibWord = 10, kBitmapless = 11;
  const QSizeF source_size(r.s16(3), r.s16(2));
  const QPointF source(r.s16(5), r.s16(4));
  if (r.words() <= kBitmapless) return bitmapless_blit(r, source, source_size, r.words() == kBitmapless ? 7 : 6);
  const QPointF at(r.s16(9), r.s16(8));
  const QPointF opposite = at + QPointF(r.s16(7), r.s16(6));
  dib_blit(r.bytes(kDibWord), {}, {map(at), map(opposite), QRectF(source, source_size), operation_of(r)});
}

void Player::stretch_dib(const WmfRecord& r) {
  constexpr qsizetype kDibWord = 11;
  DibPart part;
  part.colors = r.u16(2) == 1 ? DibColors::PaletteIndex : DibColors::Direct;
  part.from_bottom = true;
  const QPointF at(r.s16(10), r.s16(9));
  const QPointF opposite = at + QPointF(r.s16(8), r.s16(7));
  const QRectF source(QPointF(r.s16(6), r.s16(5)), QSizeF(r.s16(4), r.s16(3)));
  dib_blit(r.bytes(kDibWord), part, {map(at), map(opposite), source, operation_of(r)});
}

void Player::set_dib_to_dev(const WmfRecord& r) {
  constexpr qsizetype kDibWord = 9;
  constexpr quint8 kSrcCopy = 0xCC;
  DibPart part;
  part.colors = r.u16(0) == 1 ? DibColors::PaletteIndex : DibColors::Direct;
  part.from_bottom = true;
  part.rows = r.u16(1);
  part.first_row = r.u16(2);
  // Meant as device pixels of an unknown device; as logical units they keep their place in the picture.
  const QSizeF size(r.u16(6), r.u16(5));
  const QPointF at(r.s16(8), r.s16(7));
  const QPointF opposite = at + QPointF(size.width(), size.height());
  dib_blit(r.bytes(kDibWord), part, {map(at), map(opposite), QRectF(QPointF(r.s16(4), r.s16(3)), size), kSrcCopy});
}

} // namespace cserko
