// Where there is no reader for SVG: the user is told what can be read.
#include "data/pack/table.h"
#include "data/word_tool/picture_file.h"

namespace cserko {

PictureFile picture_from_svg(const QByteArray& /*svg*/) {
  throw PackError("SVG kép ezen a rendszeren nem olvasható; a kép PNG, JPEG vagy WMF legyen.");
}

} // namespace cserko
