// A picture at another size.
#pragma once

#include "platform/pixel_grid.h"

namespace cserko {

/// The picture at the largest size of its own proportions that fits. A picture of few colours, a colouring page or a
/// drawing, keeps exactly these: its edges stay smooth and hard, so that an area can be filled up to its outline. One
/// of many colours, a photograph, is softened.
PixelImage fitted_to(const PixelImage& image, int width, int height);

} // namespace cserko
