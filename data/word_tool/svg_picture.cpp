#include "data/pack/picture.h"
#include "data/pack/table.h"
#include "data/word_tool/picture_file.h"

#include <QPainter>

namespace cserko {

QString picture_kinds() { return QStringLiteral("SVG, PNG, JPEG vagy WMF"); }

// Solid fills become a metafile, as the pack's own pictures do; what a metafile cannot hold is drawn into pixels.
PictureFile picture_from_svg(const QByteArray& svg) {
  try {
    SquarePicture picture(svg);
    if (picture.banded()) throw PackError("gradients are smooth in pixels alone");
    return {proved_metafile(picture, "kép"), ".wmf"};
  } catch (const PackError&) {
    QSvgRenderer renderer(svg);
    if (!renderer.isValid() || renderer.viewBoxF().isEmpty()) throw PackError("az SVG kép nem olvasható.");
    QImage image(
        renderer.viewBoxF().size().scaled(kLongestPictureSide, kLongestPictureSide, Qt::KeepAspectRatio).toSize(),
        QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return {encoded_picture(image, "PNG"), ".png"};
  }
}

} // namespace cserko
