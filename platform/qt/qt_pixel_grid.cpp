// The points of a drawing one by one: straight into the image, for a painter costs more than the point.
#include "platform/qt/qt_canvas.h"

#include <algorithm>

namespace cserko {

namespace {

QRgb opaque(Color color) { return qRgb(color.red, color.green, color.blue); }

// What is not opaque lies on white paper.
Color over_white(QRgb pixel) {
  const int bare = 255 - qAlpha(pixel); // the colours of the image are multiplied by their opacity already
  return {static_cast<std::uint8_t>(qRed(pixel) + bare), static_cast<std::uint8_t>(qGreen(pixel) + bare),
          static_cast<std::uint8_t>(qBlue(pixel) + bare)};
}

const QRgb* row_of(const QImage& image, int row) { return reinterpret_cast<const QRgb*>(image.constScanLine(row)); }

} // namespace

QRgb* QtCanvas::row_to_write(int row) { return reinterpret_cast<QRgb*>(image_.scanLine(row)); }

void QtCanvas::changed_points(const QRect& points) {
  const double ratio = image_.devicePixelRatio();
  changed(QRectF(points.x() / ratio, points.y() / ratio, points.width() / ratio, points.height() / ratio));
}

Color QtCanvas::at(int column, int row) const { return over_white(row_of(image_, row)[column]); }

void QtCanvas::put(int column, int row, Color color) {
  row_to_write(row)[column] = opaque(color);
  changed_points({column, row, 1, 1});
}

void QtCanvas::run(int row, int first, int behind, Color color) {
  if (first >= behind) return;
  QRgb* line = row_to_write(row);
  std::fill(line + first, line + behind, opaque(color));
  changed_points({first, row, behind - first, 1});
}

PixelImage QtCanvas::copy(const GridRect& place) const {
  const GridRect part = inside(place);
  PixelImage result;
  if (part.empty()) return result;
  result.width = part.right - part.left;
  result.height = part.bottom - part.top;
  result.pixels.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
  for (int row = part.top; row < part.bottom; ++row) {
    const QRgb* line = row_of(image_, row);
    std::transform(line + part.left, line + part.right, std::back_inserter(result.pixels), over_white);
  }
  return result;
}

void QtCanvas::paste(int left, int top, const PixelImage& image) {
  const GridRect part = inside({left, top, left + image.width, top + image.height});
  if (part.empty()) return;
  for (int row = part.top; row < part.bottom; ++row) {
    const auto offset = static_cast<std::size_t>(row - top) * static_cast<std::size_t>(image.width) +
                        static_cast<std::size_t>(part.left - left);
    const Color* from = &image.pixels[offset];
    std::transform(from, from + (part.right - part.left), row_to_write(row) + part.left, opaque);
  }
  changed_points({part.left, part.top, part.right - part.left, part.bottom - part.top});
}

} // namespace cserko
