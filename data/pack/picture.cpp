#include "data/pack/picture.h"

#include "data/pack/metafile_device.h"
#include "data/pack/table.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>

namespace cserko {
namespace {

constexpr double kMargin = 0.04;       // of the square, on each side of the longer direction
constexpr double kMostOverhang = 0.02; // of the view box: more would be cut off by other drawing programs
constexpr int kCompareSide = 512;      // pixels
constexpr int kPlainDifference = 48;   // of 255, in any colour channel: more than another smoothing of an edge makes

void refuse_overhang(const QRect& bounds) {
  const int most = static_cast<int>(kMostOverhang * kMetafileSide);
  const QRect allowed = QRect(0, 0, kMetafileSide, kMetafileSide).adjusted(-most, -most, most, most);
  if (!allowed.contains(bounds)) throw PackError("the drawing leaves its view box");
}

} // namespace

SquarePicture::SquarePicture(const QByteArray& svg, const QTransform& turn) : renderer_(svg) {
  if (!renderer_.isValid()) throw PackError("not a readable SVG picture");
  const QSizeF view = renderer_.viewBoxF().size();
  const double longer = std::max(view.width(), view.height());
  if (longer <= 0) throw PackError("the SVG picture has no size");
  // First on the square as the view box lies, to learn where the drawing itself begins and ends.
  const double scale = kMetafileSide / longer;
  const QPointF middle(view.width() / 2, view.height() / 2);
  to_square_ = QTransform::fromTranslate(-middle.x(), -middle.y()) * QTransform::fromScale(scale, scale) *
               QTransform::fromTranslate(kMetafileSide / 2.0, kMetafileSide / 2.0);
  const auto bounds_now = [&] {
    MetafileDevice device;
    QPainter painter(&device);
    paint(painter, kMetafileSide);
    painter.end();
    if (!device.refusal().isEmpty()) throw PackError(device.refusal());
    if (device.shapes().empty()) throw PackError("nothing is drawn");
    return device.bounds();
  };
  refuse_overhang(bounds_now());
  to_square_ = QTransform::fromTranslate(-middle.x(), -middle.y()) * turn *
               QTransform::fromScale(scale / 2, scale / 2) *
               QTransform::fromTranslate(kMetafileSide / 2.0, kMetafileSide / 2.0);
  const QRectF turned = bounds_now();
  const double grow = (1 - 2 * kMargin) * kMetafileSide / std::max(turned.width(), turned.height());
  to_square_ = to_square_ * QTransform::fromTranslate(-turned.center().x(), -turned.center().y()) *
               QTransform::fromScale(grow, grow) * QTransform::fromTranslate(kMetafileSide / 2.0, kMetafileSide / 2.0);
}

void SquarePicture::paint(QPainter& painter, int side) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = static_cast<double>(side) / kMetafileSide;
  painter.setTransform(to_square_ * QTransform::fromScale(scale, scale));
  renderer_.render(&painter, QRectF(QPointF(0, 0), renderer_.viewBoxF().size()));
}

std::vector<FilledShape> SquarePicture::shapes() {
  MetafileDevice device;
  QPainter painter(&device);
  paint(painter, kMetafileSide);
  painter.end();
  if (!device.refusal().isEmpty()) throw PackError(device.refusal());
  return device.shapes();
}

bool SquarePicture::banded() {
  MetafileDevice device;
  QPainter painter(&device);
  paint(painter, kMetafileSide);
  painter.end();
  return device.banded();
}

QByteArray SquarePicture::metafile() { return write_metafile(shapes()); }

QImage SquarePicture::image(int side) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  paint(painter, side);
  return image;
}

double share_of_pixels_off(const QImage& a, const QImage& b) {
  if (a.size() != b.size() || a.isNull()) return 1;
  qint64 off = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
      const int difference =
          std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
      off += difference > kPlainDifference ? 1 : 0;
    }
  return static_cast<double>(off) / (static_cast<double>(a.width()) * a.height());
}

QByteArray proved_metafile(SquarePicture& picture, const QString& name) {
  QByteArray metafile = picture.metafile();
  if (metafile.size() > kLargestMetafile)
    throw PackError(
        QString("%1: the metafile takes %2 bytes, more than %3").arg(name).arg(metafile.size()).arg(kLargestMetafile));
  const double off = share_of_pixels_off(draw_metafile(metafile, kCompareSide), picture.image(kCompareSide));
  if (off >= kMostPixelsOff)
    throw PackError(
        QString("%1: the metafile differs from its SVG in %2 % of the pixels").arg(name).arg(100 * off, 0, 'f', 2));
  return metafile;
}

} // namespace cserko
