// Makes a colouring page, black outlines on white, from a picture of solid fills.
#pragma once

#include "data/pack/wmf_writer.h"

#include <QImage>
#include <vector>

namespace cserko {

/// Side of a colouring page in pixels: as fine as the drawing board of a large screen shows it.
inline constexpr int kPageSide = 1200;

/// The smallest area that a child can be asked to fill, in pixels of the page.
inline constexpr int kSmallestArea = 1400;

/// The page of a picture whose shapes lie on the square 0..kMetafileSide: pure black on pure white, one bit a pixel.
/// Every white area is closed by a line and no smaller than kSmallestArea; what would be smaller is joined to its
/// neighbour or, when it is dark (an eye), painted black.
QImage outline_page(const std::vector<FilledShape>& shapes);

/// Sizes of the connected white areas of a page (side by side, not corner to corner), largest first.
std::vector<int> white_areas(const QImage& page);

} // namespace cserko
