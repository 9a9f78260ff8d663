// Windows bitmaps: what the suite saves, and what it opens of others. A picture of another program may be damaged or
// made to harm; it is read or refused, never trusted.
#pragma once

#include "platform/pixel_grid.h"

#include <optional>
#include <string>
#include <string_view>

namespace cserko {

/// Larger pictures are refused: no screen shows that many points.
inline constexpr std::int64_t most_bitmap_points = 40'000'000;

/// The whole content of a bitmap file of 24 bits a point.
std::string write_bitmap(const PixelImage& image);

/// Reads a bitmap file: 1, 4, 8, 16, 24 or 32 bits a point, run-length coded or with masks, from the bottom or the top.
/// None if it is no bitmap, damaged, cut short or too large.
std::optional<PixelImage> read_bitmap(std::string_view file);

} // namespace cserko
