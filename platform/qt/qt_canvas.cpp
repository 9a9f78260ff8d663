#include "platform/qt/qt_canvas.h"

#include "platform/qt/qt_picture.h"
#include "platform/qt/qt_text.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

int image_side(double pixels, double ratio) { return std::max(1, static_cast<int>(std::lround(pixels * ratio))); }

Color to_color(QRgb pixel) {
  // What lies under the drawing is taken for white.
  const int alpha = qAlpha(pixel);
  const auto over_white = [alpha](int value) {
    return static_cast<std::uint8_t>((value * alpha + 255 * (255 - alpha)) / 255);
  };
  return {over_white(qRed(pixel)), over_white(qGreen(pixel)), over_white(qBlue(pixel))};
}

} // namespace

QtCanvas::QtCanvas(Size size, const Fonts& fonts, double device_ratio)
    : size_(size),
      fonts_(fonts),
      image_(image_side(size.width * fonts.scale(), device_ratio),
             image_side(size.height * fonts.scale(), device_ratio), QImage::Format_ARGB32_Premultiplied) {
  image_.setDevicePixelRatio(device_ratio);
  image_.fill(Qt::transparent);
}

QPointF QtCanvas::to_pixels(Point place) const { return {place.x * fonts_.scale(), place.y * fonts_.scale()}; }

QRectF QtCanvas::to_pixels(Rect place) const {
  return {place.left * fonts_.scale(), place.top * fonts_.scale(), place.width * fonts_.scale(),
          place.height * fonts_.scale()};
}

// The device pixel in which a place begins. At a broken zoom pixels of the suite are of different widths; rounding
// every edge the same way lets them touch without a gap and without covering each other.
int QtCanvas::device_pixel(double twips) const {
  return static_cast<int>(std::lround(twips * fonts_.scale() * image_.devicePixelRatio()));
}

QRect QtCanvas::device_pixels(Rect place) const {
  const QPoint first(device_pixel(place.left), device_pixel(place.top));
  const QPoint behind(device_pixel(place.left + place.width), device_pixel(place.top + place.height));
  return {first, QSize(behind.x() - first.x(), behind.y() - first.y())};
}

void QtCanvas::changed(const QRectF& place) {
  changes_ |= place.normalized().adjusted(-2, -2, 2, 2);
  ++revision_;
}

QRectF QtCanvas::take_changes() const { return std::exchange(changes_, QRectF()); }

void QtCanvas::clear() {
  image_.fill(Qt::transparent);
  changed(to_pixels(Rect{0, 0, size_.width, size_.height}));
}

void QtCanvas::picture(const Picture& picture, Rect place) {
  const QRectF target = to_pixels(place);
  const double ratio = image_.devicePixelRatio();
  const QImage drawn = static_cast<const QtPicture&>(picture).image((target.size() * ratio).toSize());
  if (drawn.isNull()) return;
  QRectF centered(QPointF(), QSizeF(drawn.size()) / ratio);
  centered.moveCenter(target.center());
  QPainter(&image_).drawImage(centered, drawn);
  changed(target);
}

void QtCanvas::line(Point from, Point to, Color color, double width) {
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(to_qt(color), width * fonts_.scale(), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(to_pixels(from), to_pixels(to));
  line_changed(from, to, width);
}

// Pixel by pixel: a wider line of the painter is not everywhere as wide as it is told to be.
void QtCanvas::erase_line(Point from, Point to, double width) {
  const double ratio = image_.devicePixelRatio();
  const QPointF a = to_pixels(from) * ratio;
  const QPointF along = to_pixels(to) * ratio - a;
  const double length_squared = QPointF::dotProduct(along, along);
  // The soft edge of a line reaches into every pixel that it touches with a corner. The painter ends hairlines by a
  // brush of its own, up to 2.22 pixels off.
  const double thickness = width * fonts_.scale() * ratio;
  const double reach = thickness / 2 + (thickness > 1 ? 1 : 2.25);
  const QRect near = QRectF(a, a + along).normalized().adjusted(-reach, -reach, reach, reach).toAlignedRect();
  const QRect inside = near.intersected(image_.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image_.scanLine(y));
    for (int x = inside.left(); x <= inside.right(); ++x) {
      const QPointF here = QPointF(x + 0.5, y + 0.5) - a;
      const double share =
          length_squared > 0 ? std::clamp(QPointF::dotProduct(here, along) / length_squared, 0.0, 1.0) : 0.0;
      const QPointF aside = here - along * share;
      if (QPointF::dotProduct(aside, aside) <= reach * reach) row[x] = 0;
    }
  }
  line_changed(from, to, width);
}

void QtCanvas::line_changed(Point from, Point to, double width) {
  const double margin = width * fonts_.scale();
  changed(QRectF(to_pixels(from), to_pixels(to)).normalized().adjusted(-margin, -margin, margin, margin));
}

void QtCanvas::box(Rect place, Color color) {
  QPainter painter(&image_);
  painter.setPen(QPen(to_qt(color), twips_per_pixel * fonts_.scale()));
  painter.drawRect(to_pixels(place));
  changed(to_pixels(place));
}

void QtCanvas::filled_box(Rect place, Color color) {
  QPainter painter(&image_);
  const double ratio = image_.devicePixelRatio();
  painter.scale(1 / ratio, 1 / ratio);
  painter.fillRect(device_pixels(place), to_qt(color));
  changed(to_pixels(place));
}

void QtCanvas::ellipse(Point center, double radius_x, double radius_y, Color color) {
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(to_qt(color), twips_per_pixel * fonts_.scale()));
  painter.drawEllipse(to_pixels(center), radius_x * fonts_.scale(), radius_y * fonts_.scale());
  changed(to_pixels(Rect{center.x - radius_x, center.y - radius_y, 2 * radius_x, 2 * radius_y}));
}

void QtCanvas::print(Point place, TextView text, const Font& font, Color color) {
  QPainter painter(&image_);
  painter.setFont(fonts_.font(font));
  painter.setPen(to_qt(color));
  const QFontMetricsF& metrics = fonts_.metrics(font);
  QPointF baseline = to_pixels(place) + QPointF(0, metrics.ascent());
  for (const QString& line : lines_to_qt(text).split('\n')) {
    painter.drawText(baseline, line);
    baseline.ry() += metrics.lineSpacing();
  }
  const Size extent = fonts_.measure(font, text);
  changed(to_pixels(Rect{place.x, place.y, extent.width, extent.height}));
}

Color QtCanvas::point(Point place) const {
  if (place.x < 0 || place.y < 0 || place.x >= size_.width || place.y >= size_.height) return white;
  const QPoint pixel(device_pixel(place.x), device_pixel(place.y));
  return image_.valid(pixel) ? to_color(image_.pixel(pixel)) : white;
}

void QtCanvas::set_point(Point place, Color color) {
  filled_box({place.x, place.y, twips_per_pixel, twips_per_pixel}, color);
}

PixelImage QtCanvas::pixels() const {
  const int width = static_cast<int>(size_.width / twips_per_pixel);
  const int height = static_cast<int>(size_.height / twips_per_pixel);
  PixelImage result{width, height, {}};
  result.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) result.pixels.push_back(point({x * twips_per_pixel, y * twips_per_pixel}));
  }
  return result;
}

void QtCanvas::set_pixels(const PixelImage& source) {
  const auto first_pixel = [this](int index) { return device_pixel(index * twips_per_pixel); };
  for (int y = 0; y < source.height && first_pixel(y) < image_.height(); ++y) {
    const int row = first_pixel(y);
    auto* line = reinterpret_cast<QRgb*>(image_.scanLine(row));
    const Color* colors = &source.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(source.width)];
    for (int x = 0; x < source.width && first_pixel(x) < image_.width(); ++x) {
      const int behind = std::min(first_pixel(x + 1), image_.width());
      std::fill(line + first_pixel(x), line + behind, qRgb(colors[x].red, colors[x].green, colors[x].blue));
    }
    // The row that is done serves for all that belong to the same pixels.
    const int last = std::min(first_pixel(y + 1), image_.height());
    const int filled = std::min(first_pixel(source.width), image_.width());
    for (int copy = row + 1; copy < last; ++copy)
      std::copy(line, line + filled, reinterpret_cast<QRgb*>(image_.scanLine(copy)));
  }
  changed(to_pixels(Rect{0, 0, source.width * twips_per_pixel, source.height * twips_per_pixel}));
}

} // namespace cserko
