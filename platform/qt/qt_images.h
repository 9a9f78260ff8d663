// Images between the suite and Qt.
#pragma once

#include "platform/pixel_grid.h"

#include <QImage>

namespace cserko {

/// The image, opaque.
QImage to_qt(const PixelImage& image);
/// The image on white paper; none where it is null or larger than any the suite takes.
std::optional<PixelImage> from_qt(const QImage& image);

} // namespace cserko
