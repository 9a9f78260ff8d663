#pragma once

#include "bitmap.h"
#include "canvas.h"
#include "metafile.h"
#include "state.h"

#include <QSet>
#include <vector>

namespace cserko {

/// Function numbers of the records that are played.
namespace wmf {
enum Function : quint16 {
  kSaveDC = 0x001E,
  kRealizePalette = 0x0035,
  kSetPaletteEntries = 0x0037,
  kCreatePalette = 0x00F7,
  kCreateBrush = 0x00F8,
  kSetBkMode = 0x0102,
  kSetMapMode = 0x0103,
  kSetROP2 = 0x0104,
  kSetPolyFillMode = 0x0106,
  kSetTextCharExtra = 0x0108,
  kRestoreDC = 0x0127,
  kPaintRegion = 0x012B,
  kSelectClipRegion = 0x012C,
  kSelectObject = 0x012D,
  kSetTextAlign = 0x012E,
  kDIBCreatePatternBrush = 0x0142,
  kDeleteObject = 0x01F0,
  kCreatePatternBrush = 0x01F9,
  kSetBkColor = 0x0201,
  kSetTextColor = 0x0209,
  kSetTextJustification = 0x020A,
  kSetWindowOrg = 0x020B,
  kSetWindowExt = 0x020C,
  kSetViewportOrg = 0x020D,
  kSetViewportExt = 0x020E,
  kOffsetWindowOrg = 0x020F,
  kOffsetViewportOrg = 0x0211,
  kLineTo = 0x0213,
  kMoveTo = 0x0214,
  kOffsetClipRgn = 0x0220,
  kFillRegion = 0x0228,
  kSelectPalette = 0x0234,
  kCreatePenIndirect = 0x02FA,
  kCreateFontIndirect = 0x02FB,
  kCreateBrushIndirect = 0x02FC,
  kCreateBitmapIndirect = 0x02FD,
  kPolygon = 0x0324,
  kPolyline = 0x0325,
  kScaleWindowExt = 0x0410,
  kScaleViewportExt = 0x0412,
  kExcludeClipRect = 0x0415,
  kIntersectClipRect = 0x0416,
  kEllipse = 0x0418,
  kRectangle = 0x041B,
  kSetPixel = 0x041F,
  kTextOut = 0x0521,
  kPolyPolygon = 0x0538,
  kRoundRect = 0x061C,
  kPatBlt = 0x061D,
  kCreateBitmap = 0x06FE,
  kCreateRegion = 0x06FF,
  kArc = 0x0817,
  kPie = 0x081A,
  kChord = 0x0830,
  kDIBBitBlt = 0x0940,
  kExtTextOut = 0x0A32,
  kDIBStretchBlt = 0x0B41,
  kSetDIBToDev = 0x0D33,
  kStretchDIB = 0x0F43,
};
} // namespace wmf

/// True for records that leave marks.
bool is_drawing_record(quint16 function);
/// True when the result of a record depends on the pixels below it.
bool reads_target(const WmfRecord& record);

/// Plays records onto a canvas.
class Player {
 public:
  /// `target` is the rectangle of the canvas that the page fills.
  Player(WmfCanvas& canvas, WmfBudget& budget, const Metafile::Page& page, const QRectF& target);
  void play(WmfReader reader);

 private:
  using Handler = void (Player::*)(const WmfRecord&);
  struct Entry {
    quint16 function;
    quint16 least_words; ///< a record with fewer arguments is skipped
    Handler handler;
  };
  static const Entry* find(quint16 function);

  // State (player.cpp).
  void set_map_mode(const WmfRecord& r);
  void set_window_org(const WmfRecord& r);
  void set_window_ext(const WmfRecord& r);
  void set_viewport_org(const WmfRecord& r);
  void set_viewport_ext(const WmfRecord& r);
  void offset_window_org(const WmfRecord& r);
  void offset_viewport_org(const WmfRecord& r);
  void scale_window_ext(const WmfRecord& r);
  void scale_viewport_ext(const WmfRecord& r);
  void set_bk_mode(const WmfRecord& r);
  void set_bk_color(const WmfRecord& r);
  void set_text_color(const WmfRecord& r);
  void set_text_align(const WmfRecord& r);
  void set_text_char_extra(const WmfRecord& r);
  void set_text_justification(const WmfRecord& r);
  void set_rop2(const WmfRecord& r);
  void set_poly_fill_mode(const WmfRecord& r);
  void save_dc(const WmfRecord& r);
  void restore_dc(const WmfRecord& r);
  void create_pen(const WmfRecord& r);
  void create_brush(const WmfRecord& r);
  void create_font(const WmfRecord& r);
  void create_palette(const WmfRecord& r);
  void create_region(const WmfRecord& r);
  void create_dib_pattern(const WmfRecord& r);
  void create_pattern(const WmfRecord& r);
  void create_other(const WmfRecord& r);
  void select_object(const WmfRecord& r);
  void delete_object(const WmfRecord& r);
  void select_clip_region(const WmfRecord& r);
  void intersect_clip_rect(const WmfRecord& r);
  void exclude_clip_rect(const WmfRecord& r);
  void offset_clip_region(const WmfRecord& r);

  // Shapes (shapes.cpp).
  void move_to(const WmfRecord& r);
  void line_to(const WmfRecord& r);
  void polygon(const WmfRecord& r);
  void polyline(const WmfRecord& r);
  void poly_polygon(const WmfRecord& r);
  void rectangle(const WmfRecord& r);
  void round_rect(const WmfRecord& r);
  void ellipse(const WmfRecord& r);
  void arc(const WmfRecord& r);
  void pie(const WmfRecord& r);
  void chord(const WmfRecord& r);
  void set_pixel(const WmfRecord& r);
  void paint_region(const WmfRecord& r);
  void fill_region(const WmfRecord& r);

  // Text (text.cpp).
  void text_out(const WmfRecord& r);
  void ext_text_out(const WmfRecord& r);

  // Bitmaps (blits.cpp).
  void pat_blt(const WmfRecord& r);
  void dib_bit_blt(const WmfRecord& r);
  void dib_stretch_blt(const WmfRecord& r);
  void stretch_dib(const WmfRecord& r);
  void set_dib_to_dev(const WmfRecord& r);

  // Mapping.
  void update_mapping();
  QPointF map(QPointF logical) const;
  QPointF map(double x, double y) const { return map(QPointF(x, y)); }
  /// A rectangle of a record that gives bottom, right, top, left from `word` on; corners in order.
  QRectF map_box(const WmfRecord& r, qsizetype word) const;
  QPolygonF map_points(const WmfRecord& r, qsizetype word, qsizetype count) const;
  double mean_scale() const;

  // Painting with the objects of the state.
  QPen device_pen() const;
  static QBrush painter_brush(const WmfBrush& brush);
  void fill(const Outline& outline, const WmfBrush& brush);
  void stroke(const Outline& outline);
  /// Fill and border.
  void draw_closed(const Outline& outline);
  /// A box shape with the border moved inside where the pen asks for it.
  template<typename Shape> void draw_box(const QRectF& box, Shape shape);
  struct ArcLine {
    QPolygonF line;
    QPointF center;
  };
  ArcLine arc_line(const WmfRecord& r) const;
  QRegion device_region(const WmfRegion& region) const;
  void apply_region(const WmfRegion& region);
  void intersect_clip(const QRegion& region);
  void update_clip() { canvas_.set_clip(state_.clip, state_.clipped); }

  // Text.
  struct TextRun;
  struct TextFont;
  TextFont text_font();
  /// The outlines of the letters in font units, and how far they advance.
  QPainterPath letters(const TextRun& run, const TextFont& font, double& width) const;
  void draw_text(const TextRun& run);
  void draw_text_measured(const TextRun& run, QPointF at);

  // Bitmaps.
  struct Blit {
    QPointF corner, opposite; ///< device; the signs of the difference mirror
    QRectF source;            ///< pixels of the bitmap, from its top left; negative sizes mirror
    quint8 operation = 0xCC;
  };
  void blit(Blit blit, const QImage& source);
  void pattern_blit(const QRect& rect, quint8 operation);
  /// A blit whose record holds no bitmap: pattern only, or the picture itself as source (logical units).
  void bitmapless_blit(const WmfRecord& r, QPointF source, QSizeF source_size, qsizetype size_word);
  /// How the bitmap of a record is to be read.
  struct DibPart {
    DibColors colors = DibColors::Direct;
    bool from_bottom = false; ///< the source origin is the lower left corner
    int rows = 0;             ///< rows present where the record holds only some, from `first_row` on
    int first_row = 0;
  };
  void dib_blit(QByteArrayView dib, const DibPart& part, Blit blit);

  WmfCanvas& canvas_;
  WmfBudget& budget_;
  Metafile::Page page_;
  QRectF target_;
  WmfState state_;
  std::vector<WmfState> saved_;
  int saves_ignored_ = 0;
  WmfObjects objects_;
  double scale_x_ = 1, scale_y_ = 1, shift_x_ = 0, shift_y_ = 0;
  QSet<QByteArray> faces_; ///< looked up so far
};

} // namespace cserko
