// How a metafile of the pack looks.
#pragma once

#include <QByteArray>
#include <QImage>

namespace cserko {

/// The metafile as the program's own player draws it, on white. A null image when it cannot be drawn.
QImage draw_metafile(const QByteArray& metafile, int side);

} // namespace cserko
