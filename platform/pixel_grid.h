// The single points of a canvas, for what reads and writes very many of them: fills, brushes, saved pictures.
#pragma once

#include "platform/elements.h"

namespace cserko {

/// Colours row by row.
struct PixelImage {
  int width = 0;
  int height = 0;
  std::vector<Color> pixels;

  Color at(int x, int y) const { return pixels[offset(x, y)]; }
  Color& at(int x, int y) { return pixels[offset(x, y)]; }
  bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
  bool empty() const { return width <= 0 || height <= 0; }
  bool operator==(const PixelImage&) const = default;

 private:
  std::size_t offset(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }
};

/// A rectangle of points; the right and bottom edge lie behind it.
struct GridRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool empty() const { return left >= right || top >= bottom; }
  bool operator==(const GridRect&) const = default;
};

/// The points of a canvas as fine as the machine shows them. Columns and rows count from 0; what lies outside is the
/// caller's error in `at`, `put` and `run`.
class PixelGrid {
 public:
  virtual ~PixelGrid() = default;

  virtual int columns() const = 0;
  virtual int rows() const = 0;
  /// Twips from one point to the next.
  virtual double pitch() const = 0;
  /// White where nothing was drawn.
  virtual Color at(int column, int row) const = 0;
  virtual void put(int column, int row, Color color) = 0;
  /// One colour for the points of a row from the first column up to the one before `behind`.
  virtual void run(int row, int first, int behind, Color color) = 0;
  virtual PixelImage copy(const GridRect& place) const = 0;
  /// Puts an image in with its left top corner at a point; what lies outside is cut off.
  virtual void paste(int left, int top, const PixelImage& image) = 0;

  GridRect whole() const { return {0, 0, columns(), rows()}; }
  bool contains(int column, int row) const { return column >= 0 && row >= 0 && column < columns() && row < rows(); }
  /// The part of a rectangle that lies inside.
  GridRect inside(const GridRect& place) const;
  /// The column or row in which a place of the canvas (twips) lies; beyond the edges where the place is.
  int cell(double twips) const;
};

} // namespace cserko
