#pragma once

#include "reader.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QRegion>
#include <QSizeF>
#include <set>
#include <variant>
#include <vector>

namespace cserko {

struct WmfPen {
  static constexpr int kNull = 5, kInsideFrame = 6;
  int style = 0;
  double width = 0; ///< logical units; 0 is one device pixel
  QColor color = Qt::black;
};

struct WmfBrush {
  static constexpr int kSolid = 0, kNull = 1, kHatched = 2, kPattern = 3;
  int style = kSolid;
  QColor color = Qt::white;
  int hatch = 0;
  QImage pattern; ///< null if the pattern could not be read: the brush then paints nothing
};

struct WmfFont {
  double height = 0;  ///< logical units; negative: of the letter (em), positive: of the line, 0: a default
  double width = 0;   ///< average letter width, 0 as the height gives it
  int escapement = 0; ///< tenths of a degree, counter-clockwise
  int weight = 400;
  bool italic = false, underline = false, strikeout = false;
  int charset = 0;
  int pitch_and_family = 0;
  QByteArray face; ///< in the code page of the charset
};

struct WmfPalette {
  QList<QRgb> colors;
};

/// Rectangles in logical units.
struct WmfRegion {
  std::vector<QRect> rectangles;
};

/// Takes a slot and can be selected without effect: device bitmaps and objects that could not be read.
struct WmfOther {};

using WmfObject = std::variant<WmfOther, WmfPen, WmfBrush, WmfFont, WmfPalette, WmfRegion>;

/// The numbered objects of a metafile: a new one takes the lowest free slot.
class WmfObjects {
 public:
  void create(WmfObject object);
  void remove(int slot);
  /// Null for a free slot or none.
  const WmfObject* at(int slot) const;

 private:
  struct Slot {
    WmfObject object;
    bool taken = true;
  };
  std::vector<Slot> slots_;
  std::set<int> free_;
};

/// Everything that SaveDC keeps and RestoreDC brings back.
struct WmfState {
  static constexpr int kText = 1, kTwips = 6, kIsotropic = 7, kAnisotropic = 8;

  int map_mode = kAnisotropic;
  QPointF window_org, viewport_org;
  QSizeF window_ext{1, 1}, viewport_ext{1, 1};

  WmfPen pen;
  WmfBrush brush;
  WmfFont font;
  QList<QRgb> palette;

  QPointF position;
  QRegion clip; ///< device pixels; only meaningful when clipped
  bool clipped = false;

  int mix = 13; ///< ROP2 code, 13 copies the pen
  bool opaque_background = true;
  bool winding = false;
  QColor text_color = Qt::black, background_color = Qt::white;
  int text_align = 0;
  double char_extra = 0, break_extra = 0; ///< logical units added to each letter, to each blank
};

/// Readers of the Create records. What cannot be read comes back as WmfOther, since it takes its slot all the same.
WmfPen read_wmf_pen(const WmfRecord& record, const WmfState& state);
WmfBrush read_wmf_brush(const WmfRecord& record, const WmfState& state);
WmfFont read_wmf_font(const WmfRecord& record);
WmfPalette read_wmf_palette(const WmfRecord& record);
WmfRegion read_wmf_region(const WmfRecord& record);

/// The colour at an argument word: direct, or an index into the palette of the state.
QColor read_wmf_color(const WmfRecord& record, qsizetype word, const WmfState& state);

} // namespace cserko
