// Small drawings as text, a letter a point: '.' is white, '#' black, 'r' red, 'b' blue.
#pragma once

#include "platform/canvas.h"
#include "platform/headless/recorded_canvas.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace cserko {

inline constexpr Color red{255, 0, 0};
inline constexpr Color blue{0, 0, 255};

inline Color color_of(char letter) {
  switch (letter) {
  case '#':
    return black;
  case 'r':
    return red;
  case 'b':
    return blue;
  default:
    return white;
  }
}

inline char letter_of(Color color) {
  for (const char letter : {'#', 'r', 'b', '.'}) {
    if (color_of(letter) == color) return letter;
  }
  return '?';
}

using Rows = std::vector<std::string>;

inline PixelImage image_of(const Rows& rows) {
  PixelImage image{rows.empty() ? 0 : static_cast<int>(rows.front().size()), static_cast<int>(rows.size()), {}};
  for (const std::string& row : rows) {
    for (const char letter : row) image.pixels.push_back(color_of(letter));
  }
  return image;
}

inline Rows rows_of(const PixelImage& image) {
  Rows rows;
  for (int y = 0; y < image.height; ++y) {
    std::string& row = rows.emplace_back();
    for (int x = 0; x < image.width; ++x) row.push_back(letter_of(image.at(x, y)));
  }
  return rows;
}

inline Rows rows_of(PixelGrid& grid) { return rows_of(grid.copy(grid.whole())); }

/// A canvas with a drawing on it.
class Sheet {
 public:
  explicit Sheet(const Rows& rows)
      : canvas_({static_cast<double>(rows.front().size()) * twips_per_pixel,
                 static_cast<double>(rows.size()) * twips_per_pixel}) {
    canvas_.grid().paste(0, 0, image_of(rows));
  }
  PixelGrid& grid() { return canvas_.grid(); }
  Rows rows() { return rows_of(grid()); }

 private:
  RecordedCanvas canvas_;
};

inline Rows blank_rows(int width, int height) {
  return Rows(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), '.'));
}

} // namespace cserko
