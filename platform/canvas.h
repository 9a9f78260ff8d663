// The persistent drawing of a picture box or a window. Places and sizes are in twips from its left top corner.
#pragma once

#include "platform/pixel_grid.h"

namespace cserko {

class Canvas {
 public:
  virtual ~Canvas() = default;

  /// Takes all drawing away; what lies under the canvas shows again.
  virtual void clear() = 0;
  /// Draws a picture to fill the place, its aspect kept.
  virtual void picture(const Picture& picture, Rect place) = 0;
  virtual void line(Point from, Point to, Color color, double width = twips_per_pixel) = 0;
  /// Takes a line away that was drawn from there to there in that width: what lies under the canvas shows again, on a
  /// textured ground too, without a trace of the line's soft edges. Drawings that it crosses lose what they share with
  /// it.
  virtual void erase_line(Point from, Point to, double width = twips_per_pixel) = 0;
  /// An outline, one pixel wide.
  virtual void box(Rect place, Color color) = 0;
  virtual void filled_box(Rect place, Color color) = 0;
  /// An outline of an ellipse, one pixel wide.
  virtual void ellipse(Point center, double radius_x, double radius_y, Color color) = 0;
  /// Text with its left top corner at a place; carriage returns break lines.
  virtual void print(Point place, TextView text, const Font& font, Color color) = 0;

  /// The colour at a place, white where nothing was drawn or outside.
  virtual Color point(Point place) const = 0;
  virtual void set_point(Point place, Color color) = 0;
  /// The drawing as pixels of 15 twips a side.
  virtual PixelImage pixels() const = 0;
  /// Puts pixels in from the left top corner; what does not fit is cut off.
  virtual void set_pixels(const PixelImage& image) = 0;

  /// The points themselves, as fine as the machine shows them.
  virtual PixelGrid& grid() = 0;

  virtual Size size() const = 0;
  /// Grows with every drawing, so that a machine knows when to show it again.
  virtual std::uint64_t revision() const = 0;
};

} // namespace cserko
