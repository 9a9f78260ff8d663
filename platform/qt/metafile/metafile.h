#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <optional>

class QPainter;

namespace cserko {

struct WmfHeader;
struct WmfSurvey;

/// How a picture is laid into a rectangle of another shape.
enum class PictureFit {
  KeepAspect, ///< as large as fits, centred; the rest of the rectangle stays untouched (transparent)
  Stretch,    ///< the whole rectangle, whatever becomes of the proportions
};

/// The largest size inside a box that keeps the proportions of `natural`; neither side below 1.
QSize fitted_size(QSizeF natural, QSize box);

/// A Windows metafile that has been checked and measured, ready to be drawn at any size.
///
/// A picture that only lays colour over colour is drawn on no background, so that it stands on any paper. A picture
/// that combines with what is already there (raster operations such as AND, XOR, invert) means a white sheet below
/// it: it is drawn onto opaque white.
///
/// Nothing here throws. Broken files are drawn up to the first broken record. Drawing ends after about a second, with
/// what has been drawn by then. Text needs a QGuiApplication; without one it is left out.
class Metafile {
 public:
  /// Reads the bytes of a metafile with or without the placeable header. Nothing when they draw nothing at all: no
  /// metafile, or no drawing record before the first broken one.
  static std::optional<Metafile> parse(const QByteArray& bytes);

  /// Size in pixels at 96 dots an inch, neither side below 1. Only the placeable header knows an absolute size; without
  /// it the proportions hold and the longer side is 512.
  QSizeF natural_size() const { return natural_size_; }

  /// True when the picture combines with its background and is therefore drawn onto opaque white.
  bool needs_paper() const { return needs_paper_; }

  /// The picture at a size in pixels, ARGB32 premultiplied. A null image when the size is empty or above the limits
  /// (8192 a side, 40 million pixels).
  QImage render(QSize size, PictureFit fit) const;

  /// Paints the picture into `target` (in the painter's units) at the resolution of the painter's device. False when
  /// nothing was painted.
  bool draw(QPainter& painter, const QRectF& target, PictureFit fit) const;

  /// Memory held, in bytes.
  qsizetype bytes() const { return bytes_.size(); }

 private:
  /// What the window of the file is mapped to before it is scaled to the target.
  struct Page {
    QRectF rect;             ///< the part that fills the target
    QSizeF window;           ///< window extent in force until the file sets one
    QPointF window_org;      ///< likewise
    QSizeF viewport;         ///< viewport extent in force until the file sets one
    double fixed_unit = 1.0; ///< page units to one logical unit of a map mode of fixed measure
  };
  friend class Player;

  Metafile() = default;
  /// Sets up the page; false when the file does not say where it lies.
  bool lay_out_page(const WmfHeader& header, const WmfSurvey& found);
  QImage play(QSize size) const;

  QByteArray bytes_;
  qsizetype first_record_ = 0;
  Page page_;
  QSizeF natural_size_;
  bool needs_paper_ = false;
};

/// Draws a metafile in one go; a null image when nothing could be drawn.
QImage render_metafile(const QByteArray& bytes, QSize size, PictureFit fit);

} // namespace cserko
