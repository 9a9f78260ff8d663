// Where there is no reader for SVG: the user is told what can be read.
#include "data/pack/table.h"
#include "data/word_tool/picture_file.h"

namespace cserko {

QString picture_kinds() { return QStringLiteral("PNG, JPEG vagy WMF"); }

PictureFile picture_from_svg(const QByteArray& /*svg*/) {
  throw PackError(QStringLiteral("SVG kép ezen a rendszeren nem olvasható; a kép %1 legyen.").arg(picture_kinds()));
}

} // namespace cserko
