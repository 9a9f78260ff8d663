#include "tests/tour/help_picture.h"

#include "data/help/page_archive.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>

namespace cserko::tour {

namespace {

constexpr QRgb border = qRgb(0x9c, 0x85, 0x66);
constexpr double next_try = 0.9;
constexpr int narrowest = 200;

QByteArray png(const QImage& window, int width) {
  QImage image = window.width() + 2 > width ? window.scaledToWidth(width - 2, Qt::SmoothTransformation) : window;
  image = image.convertToFormat(QImage::Format_RGB32);
  QImage framed(image.size() + QSize(2, 2), QImage::Format_RGB32);
  framed.fill(border);
  QPainter(&framed).drawImage(1, 1, image);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  framed.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither).save(&buffer, "PNG", 0);
  return bytes;
}

} // namespace

bool write_help_picture(const QImage& window, const HelpPicture& picture, const QString& folder) {
  for (int width = std::min(picture.width, widest_picture); width >= narrowest; width = int(width * next_try)) {
    const QByteArray bytes = png(window, width);
    if (bytes.size() > largest_picture) continue;
    QDir().mkpath(folder);
    QSaveFile file(QDir(folder).filePath(QString::fromStdString(picture.name) + ".png"));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  }
  return false;
}

} // namespace cserko::tour
