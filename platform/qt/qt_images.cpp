#include "platform/qt/qt_images.h"

#include "platform/bitmap.h"

#include <QPainter>
#include <algorithm>

namespace cserko {

QImage to_qt(const PixelImage& image) {
  if (image.empty()) return {};
  QImage result(image.width, image.height, QImage::Format_RGB32);
  for (int y = 0; y < image.height; ++y) {
    const Color* row = &image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width)];
    std::transform(row, row + image.width, reinterpret_cast<QRgb*>(result.scanLine(y)),
                   [](Color color) { return qRgb(color.red, color.green, color.blue); });
  }
  return result;
}

std::optional<PixelImage> from_qt(const QImage& image) {
  if (image.isNull() || static_cast<std::int64_t>(image.width()) * image.height() > most_bitmap_points)
    return std::nullopt;
  QImage opaque = image.convertToFormat(QImage::Format_RGB32);
  if (image.hasAlphaChannel()) {
    opaque.fill(Qt::white);
    QImage drawn = image;
    drawn.setDevicePixelRatio(1);
    QPainter(&opaque).drawImage(0, 0, drawn);
  }
  PixelImage result{opaque.width(), opaque.height(), {}};
  result.pixels.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
  for (int y = 0; y < result.height; ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
    std::transform(row, row + result.width, std::back_inserter(result.pixels), [](QRgb pixel) {
      return Color{static_cast<std::uint8_t>(qRed(pixel)), static_cast<std::uint8_t>(qGreen(pixel)),
                   static_cast<std::uint8_t>(qBlue(pixel))};
    });
  }
  return result;
}

} // namespace cserko
