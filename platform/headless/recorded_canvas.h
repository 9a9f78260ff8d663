// A drawing that is written down, operation by operation, with a raster behind it for those who ask for points.
#pragma once

#include "platform/canvas.h"

namespace cserko {

/// One thing that was drawn. Which fields count depends on the kind.
struct Drawing {
  enum class Kind : std::uint8_t { Picture, Line, EraseLine, Box, FilledBox, Ellipse, Print, Points, Pixels };

  Kind kind = Kind::Line;
  Rect place{};         ///< Picture, Box, FilledBox.
  Point from{};         ///< Line, EraseLine; Print: its left top corner; Ellipse: its centre; Points: the first one.
  Point to{};           ///< Line, EraseLine; Points: the last one.
  Size radius{};        ///< Ellipse.
  Color color{};        ///< All but Picture, EraseLine and Pixels.
  double width = 0;     ///< Line, EraseLine; twips.
  PicturePtr picture{}; ///< Picture.
  Text text{};          ///< Print.
  Font font{};          ///< Print.
  int count = 1;        ///< Points: how many of one colour were set in a row.
};

/// A picture of the headless machine, with the pixels that a test has given it, if any.
class HeadlessPicture : public Picture {
 public:
  HeadlessPicture(Text path, Size size, std::shared_ptr<const PixelImage> image)
      : path_(std::move(path)), size_(size), image_(std::move(image)) {}

  const Text& path() const override { return path_; }
  Size natural_size() const override { return size_; }
  /// Its pixels, null where nobody has given it any.
  const std::shared_ptr<const PixelImage>& image() const { return image_; }

 private:
  Text path_;
  Size size_;
  std::shared_ptr<const PixelImage> image_;
};

class RecordedCanvas : public Canvas, private PixelGrid {
 public:
  /// A canvas of that size in twips; the raster has one pixel for each 15 of them.
  explicit RecordedCanvas(Size size) : size_(size) {}

  void clear() override;
  void picture(const Picture& picture, Rect place) override;
  void line(Point from, Point to, Color color, double width = twips_per_pixel) override;
  void erase_line(Point from, Point to, double width = twips_per_pixel) override;
  void box(Rect place, Color color) override;
  void filled_box(Rect place, Color color) override;
  void ellipse(Point center, double radius_x, double radius_y, Color color) override;
  void print(Point place, TextView text, const Font& font, Color color) override;
  Color point(Point place) const override;
  void set_point(Point place, Color color) override;
  PixelImage pixels() const override;
  void set_pixels(const PixelImage& image) override;
  PixelGrid& grid() override { return *this; }
  Size size() const override { return size_; }
  std::uint64_t revision() const override { return revision_; }

  /// What was drawn since the last clearing, in order; of a very long drawing the latest part.
  const std::vector<Drawing>& drawings() const { return drawings_; }
  /// The texts among the drawings.
  std::vector<Text> texts() const;
  /// How often the canvas was cleared.
  int clearings() const { return clearings_; }

 private:
  // The points of the raster. What is written here is no drawing of its own: a flood of points is not written down.
  int columns() const override { return raster().width; }
  int rows() const override { return raster().height; }
  double pitch() const override { return twips_per_pixel; }
  Color at(int column, int row) const override { return raster().at(column, row); }
  void put(int column, int row, Color color) override;
  void run(int row, int first, int behind, Color color) override;
  PixelImage copy(const GridRect& place) const override;
  void paste(int left, int top, const PixelImage& image) override;

  void add(Drawing drawing);
  PixelImage& raster() const;
  void rasterize(const Drawing& drawing) const;
  void rasterize_picture(const Drawing& drawing) const;
  void rasterize_line(Point from, Point to, Color color, double width) const;
  void rasterize_ellipse(const Drawing& drawing) const;
  void fill(Rect place, Color color) const;
  void fill_pixels(int left, int top, int right, int bottom, Color color) const;
  void mark(int x, int y, Color color) const;

  Size size_;
  std::vector<Drawing> drawings_;
  std::uint64_t revision_ = 0;
  int clearings_ = 0;
  // The raster is made when somebody asks for a point and catches up with the drawings then: most never ask.
  mutable PixelImage raster_;
  mutable std::size_t rasterized_ = 0;
};

} // namespace cserko
