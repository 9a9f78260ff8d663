#include "data/pack/drawn_metafile.h"

#include "platform/qt/metafile/metafile.h"

#include <QPainter>

namespace cserko {

QImage draw_metafile(const QByteArray& metafile, int side) {
  QImage drawn = render_metafile(metafile, QSize(side, side), PictureFit::Stretch);
  if (drawn.isNull()) return drawn;
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter(&image).drawImage(0, 0, drawn);
  return image;
}

} // namespace cserko
