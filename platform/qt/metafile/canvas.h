#pragma once

#include "geometry.h"

#include <QBrush>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRegion>
#include <memory>

namespace cserko {

/// What one drawing may cost. A file can ask for hours of work in a few kilobytes; past these limits the picture stays
/// as far as it got.
class WmfBudget {
 public:
  explicit WmfBudget(qint64 milliseconds) : milliseconds_(milliseconds) { timer_.start(); }
  bool spent() const { return timer_.hasExpired(milliseconds_); }
  /// Each takes from its allowance; false when it is used up.
  bool take_points(qsizetype count) { return take(points_, count); }
  bool take_clip() { return take(clips_, 1); }
  bool take_pixels(qsizetype count) { return take(pixels_, count); }

 private:
  static bool take(qsizetype& left, qsizetype count) {
    if (count > left) return false;
    left -= count;
    return true;
  }

  QElapsedTimer timer_;
  qint64 milliseconds_;
  qsizetype points_ = 1'000'000;
  qsizetype clips_ = 10'000;
  qsizetype pixels_ = 32'000'000; ///< of bitmaps, decoded
};

/// The surface a metafile is played on, in device pixels: an image, or nothing but the bounds of what would be drawn.
class WmfCanvas {
 public:
  /// A null image only measures.
  WmfCanvas(QImage* image, WmfBudget& budget);

  bool measuring() const { return image_ == nullptr; }
  QRect area() const { return area_; }
  /// Bounds of everything drawn so far, without the width of pens.
  QRectF bounds() const { return bounds_; }
  bool drawn() const { return drawn_; }

  void set_clip(const QRegion& clip, bool clipped);
  /// ROP2 code for fills and strokes.
  void set_mix(int mix) { mix_ = mix; }

  void fill(const Outline& outline, bool winding, const QBrush& brush);
  void stroke(const Outline& outline, const QPen& pen);
  /// Fills whole pixels, whatever the mix.
  void fill_pixels(const QRect& rect, const QBrush& brush);

  /// Marks a rectangle as drawn; bitmaps write their pixels by themselves.
  void note(const QRectF& rect);
  /// The pixels of a rectangle that may be written.
  QRegion writable(const QRect& rect) const;
  QImage& image() { return *image_; }

 private:
  /// Many clips may follow each other before anything is drawn; the painter is told of the last one only.
  void apply_clip();
  /// Sets up the painter for the mix; false when it leaves the picture as it is.
  bool apply_mix();
  QColor mixed(const QColor& color) const;
  QBrush mixed(const QBrush& brush) const;
  void fill_rough(const Outline& outline, bool winding, const QBrush& brush);
  void stroke_line(const QPolygonF& line, bool rough);

  QImage* image_;
  WmfBudget& budget_;
  std::unique_ptr<QPainter> painter_;
  QRect area_;
  QRegion clip_;
  bool clipped_ = false;
  bool clip_changed_ = false;
  int mix_ = 13;
  bool smooth_ = true;
  QRectF bounds_;
  bool drawn_ = false;
};

/// True when a ROP2 code needs to know what is already there.
bool mix_reads_target(int mix);

} // namespace cserko
