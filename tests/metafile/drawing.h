#pragma once

#include "platform/qt/metafile/metafile.h"
#include "wmf_bytes.h"

#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace cserko::test {

/// The file drawn over the whole of a white image.
inline QImage draw_file(const QByteArray& file, int width = 100, int height = 100) {
  QImage paper(width, height, QImage::Format_RGB32);
  paper.fill(Qt::white);
  const QImage picture = render_metafile(file, {width, height}, PictureFit::Stretch);
  if (!picture.isNull()) QPainter(&paper).drawImage(0, 0, picture);
  return paper;
}

inline QImage draw(const Wmf& wmf, int width = 100, int height = 100) { return draw_file(wmf.file(), width, height); }

inline bool near_color(QRgb pixel, quint32 color) {
  constexpr int kTolerance = 8;
  return std::abs(qRed(pixel) - static_cast<int>(color & 0xFF)) <= kTolerance &&
         std::abs(qGreen(pixel) - static_cast<int>(color >> 8 & 0xFF)) <= kTolerance &&
         std::abs(qBlue(pixel) - static_cast<int>(color >> 16 & 0xFF)) <= kTolerance;
}

inline testing::AssertionResult has_color(const QImage& image, int x, int y, quint32 color) {
  const QRgb pixel = image.pixel(x, y);
  if (near_color(pixel, color)) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << "at " << x << ", " << y << " is " << QColor(pixel).name().toStdString() << ", not "
         << QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF).name().toStdString();
}

/// Number of pixels of a colour inside a rectangle.
inline int count_color(const QImage& image, quint32 color, QRect where = {}) {
  if (where.isNull()) where = image.rect();
  int count = 0;
  for (int y = where.top(); y <= where.bottom(); ++y) {
    for (int x = where.left(); x <= where.right(); ++x) count += near_color(image.pixel(x, y), color) ? 1 : 0;
  }
  return count;
}

/// The smallest rectangle around everything that is not white; null if all is white.
inline QRect ink(const QImage& image) {
  QRect result;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (!near_color(image.pixel(x, y), kWhite)) result |= QRect(x, y, 1, 1);
    }
  }
  return result;
}

inline testing::AssertionResult near_rect(const QRect& rect, const QRect& wanted, int tolerance = 1) {
  const bool same =
      std::abs(rect.left() - wanted.left()) <= tolerance && std::abs(rect.top() - wanted.top()) <= tolerance &&
      std::abs(rect.right() - wanted.right()) <= tolerance && std::abs(rect.bottom() - wanted.bottom()) <= tolerance;
  if (same) return testing::AssertionSuccess();
  return testing::AssertionFailure() << rect.left() << "," << rect.top() << " " << rect.width() << "x" << rect.height()
                                     << " instead of " << wanted.left() << "," << wanted.top() << " " << wanted.width()
                                     << "x" << wanted.height();
}

} // namespace cserko::test
