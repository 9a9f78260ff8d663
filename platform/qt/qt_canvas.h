// The persistent drawing of a picture box or window as an image.
#pragma once

#include "platform/canvas.h"
#include "platform/qt/fonts.h"

#include <QImage>

namespace cserko {

class QtCanvas : public Canvas, private PixelGrid {
 public:
  /// `size` in twips; `device_ratio` is the number of device pixels to a device-independent one.
  QtCanvas(Size size, const Fonts& fonts, double device_ratio);

  void clear() override;
  void picture(const Picture& picture, Rect place) override;
  void line(Point from, Point to, Color color, double width) override;
  void erase_line(Point from, Point to, double width) override;
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

  const QImage& image() const { return image_; }
  /// What was drawn since the last call, in device-independent pixels.
  QRectF take_changes() const;

 private:
  // The points are those of the device (qt_pixel_grid.cpp).
  int columns() const override { return image_.width(); }
  int rows() const override { return image_.height(); }
  double pitch() const override { return 1 / (fonts_.scale() * image_.devicePixelRatio()); }
  Color at(int column, int row) const override;
  void put(int column, int row, Color color) override;
  void run(int row, int first, int behind, Color color) override;
  PixelImage copy(const GridRect& place) const override;
  void paste(int left, int top, const PixelImage& image) override;
  QRgb* row_to_write(int row);
  void changed_points(const QRect& points);

  QPointF to_pixels(Point place) const;
  QRectF to_pixels(Rect place) const;
  int device_pixel(double twips) const;
  QRect device_pixels(Rect place) const;
  void changed(const QRectF& place);
  void line_changed(Point from, Point to, double width);

  Size size_;
  const Fonts& fonts_;
  QImage image_;
  std::uint64_t revision_ = 0;
  mutable QRectF changes_;
};

} // namespace cserko
