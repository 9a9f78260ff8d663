// From an SVG text to a metafile on the pack's square, and the proof that the two look the same.
#pragma once

#include "data/pack/drawn_metafile.h"
#include "data/pack/wmf_writer.h"

#include <QByteArray>
#include <QImage>
#include <QSvgRenderer>
#include <QTransform>

namespace cserko {

/// An SVG picture fitted into a square: centred, turned or mirrored, with a small margin on its longer side.
class SquarePicture {
 public:
  /// Takes an SVG text and what is done to it before it is fitted (about its own middle). Throws PackError when it
  /// cannot be read or drawn, or when its drawing leaves its own view box.
  explicit SquarePicture(const QByteArray& svg, const QTransform& turn = {});

  /// The picture as solid polygons on the square: a translucent colour mixed with its ground, a gradient in bands.
  /// Throws PackError when it holds anything that solid fills cannot stand for.
  std::vector<FilledShape> shapes();

  /// The same as a metafile. Throws PackError as above.
  QByteArray metafile();

  /// Whether solid polygons only come near the picture, since it has gradients.
  bool banded();

  /// The picture as the SVG renderer draws it, on white.
  QImage image(int side);

 private:
  void paint(QPainter& painter, int side);

  QSvgRenderer renderer_;
  QTransform to_square_; // from the view box to the square 0..kMetafileSide
};

/// Share (0 to 1) of the pixels of two images of equal size whose colours differ plainly.
double share_of_pixels_off(const QImage& a, const QImage& b);

/// The most that a metafile may differ from its SVG, as a share of the pixels.
inline constexpr double kMostPixelsOff = 0.01;

/// The largest metafile that the pack takes, in bytes.
inline constexpr int kLargestMetafile = 64 * 1024;

/// The metafile of a picture, proved: drawn again and compared, and no larger than kLargestMetafile. Throws PackError,
/// with `name` in front, when it fails.
QByteArray proved_metafile(SquarePicture& picture, const QString& name);

} // namespace cserko
