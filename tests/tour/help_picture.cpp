#include "tests/tour/help_picture.h"

#include "data/help/page_archive.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>
#include <map>
#include <vector>

namespace cserko::tour {

namespace {

constexpr QRgb border = qRgb(0x9c, 0x85, 0x66);
constexpr double next_try = 0.9;
constexpr int narrowest = 200;

// The colours that are seen most, each of them the mean of what looks nearly the same: soft colours stay what they are.
QList<QRgb> palette_of(const QImage& image) {
  constexpr int most = 256;
  struct Sum {
    long count = 0, red = 0, green = 0, blue = 0;
  };
  std::map<QRgb, Sum> sums;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb color = image.pixel(x, y);
      Sum& sum = sums[color & 0xF8F8F8];
      ++sum.count;
      sum.red += qRed(color);
      sum.green += qGreen(color);
      sum.blue += qBlue(color);
    }
  }
  std::vector<Sum> seen;
  for (const auto& [color, sum] : sums) seen.push_back(sum);
  std::stable_sort(seen.begin(), seen.end(), [](const Sum& a, const Sum& b) { return a.count > b.count; });
  if (seen.size() > most) seen.resize(most);
  QList<QRgb> palette;
  for (const Sum& sum : seen) {
    const auto mean = [&sum](long all) { return static_cast<int>(all / sum.count); };
    palette.append(qRgb(mean(sum.red), mean(sum.green), mean(sum.blue)));
  }
  return palette;
}

QByteArray png(const QImage& window, int width) {
  QImage image = window.width() + 2 > width ? window.scaledToWidth(width - 2, Qt::SmoothTransformation) : window;
  image = image.convertToFormat(QImage::Format_RGB32);
  QImage framed(image.size() + QSize(2, 2), QImage::Format_RGB32);
  framed.fill(border);
  QPainter(&framed).drawImage(1, 1, image);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  framed.convertToFormat(QImage::Format_Indexed8, palette_of(framed), Qt::ThresholdDither).save(&buffer, "PNG", 0);
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
