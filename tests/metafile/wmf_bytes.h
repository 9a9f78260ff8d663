#pragma once

#include <QByteArray>
#include <QList>
#include <QPoint>
#include <QtEndian>
#include <initializer_list>

namespace cserko::test {

/// Little-endian bytes put together field by field.
class Bytes {
 public:
  Bytes& u8(int value) {
    bytes_.append(static_cast<char>(value));
    return *this;
  }
  Bytes& u16(int value) { return u8(value & 0xFF).u8(value >> 8 & 0xFF); }
  Bytes& u32(quint32 value) { return u16(static_cast<int>(value & 0xFFFF)).u16(static_cast<int>(value >> 16)); }
  Bytes& raw(const QByteArray& bytes) {
    bytes_.append(bytes);
    return *this;
  }
  Bytes& words(std::initializer_list<int> values) {
    for (const int value : values) u16(value);
    return *this;
  }
  Bytes& pad(qsizetype to_multiple_of) {
    while (bytes_.size() % to_multiple_of != 0) bytes_.append('\0');
    return *this;
  }
  const QByteArray& bytes() const { return bytes_; }

 private:
  QByteArray bytes_;
};

constexpr quint32 rgb(int r, int g, int b) {
  return static_cast<quint32>(r) | static_cast<quint32>(g) << 8 | static_cast<quint32>(b) << 16;
}
constexpr quint32 kRed = rgb(255, 0, 0), kGreen = rgb(0, 255, 0), kBlue = rgb(0, 0, 255), kBlack = rgb(0, 0, 0),
                  kWhite = rgb(255, 255, 255), kYellow = rgb(255, 255, 0);

namespace rop {
constexpr quint32 kSrcCopy = 0x00CC0020, kSrcAnd = 0x008800C6, kSrcPaint = 0x00EE0086, kSrcInvert = 0x00660046,
                  kPatCopy = 0x00F00021, kBlackness = 0x00000042, kWhiteness = 0x00FF0062, kDstInvert = 0x00550009,
                  kNotSrcCopy = 0x00330008, kPatInvert = 0x005A0049, kMergeCopy = 0x00C000CA;
} // namespace rop

/// Writes a metafile record by record. Arguments are given as people think of them (x before y, left before top) and
/// written in the order of the format.
class Wmf {
 public:
  Wmf& record(int function, const QByteArray& arguments = {}) {
    QByteArray padded = arguments;
    if (padded.size() % 2 != 0) padded.append('\0');
    records_.append(Bytes().u32(static_cast<quint32>(3 + padded.size() / 2)).u16(function).raw(padded).bytes());
    return *this;
  }
  Wmf& record(int function, std::initializer_list<int> words) { return record(function, Bytes().words(words).bytes()); }

  // State.
  Wmf& map_mode(int mode) { return record(0x0103, {mode}); }
  Wmf& window_org(int x, int y) { return record(0x020B, {y, x}); }
  Wmf& window_ext(int w, int h) { return record(0x020C, {h, w}); }
  Wmf& window(int w, int h) { return window_org(0, 0).window_ext(w, h); }
  Wmf& viewport_org(int x, int y) { return record(0x020D, {y, x}); }
  Wmf& viewport_ext(int w, int h) { return record(0x020E, {h, w}); }
  Wmf& offset_window(int x, int y) { return record(0x020F, {y, x}); }
  Wmf& offset_viewport(int x, int y) { return record(0x0211, {y, x}); }
  Wmf& scale_window(int xn, int xd, int yn, int yd) { return record(0x0410, {yd, yn, xd, xn}); }
  Wmf& scale_viewport(int xn, int xd, int yn, int yd) { return record(0x0412, {yd, yn, xd, xn}); }
  Wmf& bk_mode(int mode) { return record(0x0102, {mode}); }
  Wmf& bk_color(quint32 color) { return record(0x0201, Bytes().u32(color).bytes()); }
  Wmf& text_color(quint32 color) { return record(0x0209, Bytes().u32(color).bytes()); }
  Wmf& rop2(int mode) { return record(0x0104, {mode}); }
  Wmf& fill_mode(int mode) { return record(0x0106, {mode}); }
  Wmf& text_align(int flags) { return record(0x012E, {flags}); }
  Wmf& save() { return record(0x001E); }
  Wmf& restore(int level) { return record(0x0127, {level}); }

  // Objects.
  Wmf& pen(int style, int width, quint32 color) {
    return record(0x02FA, Bytes().u16(style).u16(width).u16(0).u32(color).bytes());
  }
  Wmf& brush(int style, quint32 color, int hatch = 0) {
    return record(0x02FC, Bytes().u16(style).u32(color).u16(hatch).bytes());
  }
  Wmf& font(int height, const QByteArray& face, int escapement = 0, int charset = 0, int weight = 400) {
    Bytes bytes;
    bytes.words({height, 0, escapement, 0, weight}).u8(0).u8(0).u8(0).u8(charset).words({0, 0}).raw(face).u8(0).u8(0);
    return record(0x02FB, bytes.bytes());
  }
  Wmf& palette(const QList<quint32>& colors) {
    Bytes bytes;
    bytes.u16(0x0300).u16(static_cast<int>(colors.size()));
    for (const quint32 color : colors) bytes.u32(color);
    return record(0x00F7, bytes.bytes());
  }
  /// A region of one rectangle.
  Wmf& region(int left, int top, int right, int bottom) {
    Bytes bytes;
    bytes.words({0, 6}).u32(0).words({0, 1, 2, left, top, right, bottom, 2, top, bottom, left, right, 2});
    return record(0x06FF, bytes.bytes());
  }
  Wmf& dib_pattern(const QByteArray& dib) { return record(0x0142, Bytes().words({5, 0}).raw(dib).bytes()); }
  Wmf& select(int slot) { return record(0x012D, {slot}); }
  Wmf& remove(int slot) { return record(0x01F0, {slot}); }
  /// A null pen and a brush in two slots from `slot` on, both selected: fills only.
  Wmf& fills(quint32 color, int slot = 0) { return pen(5, 0, 0).brush(0, color).select(slot).select(slot + 1); }

  // Clip.
  Wmf& intersect_clip(int l, int t, int r, int b) { return record(0x0416, {b, r, t, l}); }
  Wmf& exclude_clip(int l, int t, int r, int b) { return record(0x0415, {b, r, t, l}); }
  Wmf& select_clip(int slot) { return record(0x012C, {slot}); }

  // Shapes.
  Wmf& move_to(int x, int y) { return record(0x0214, {y, x}); }
  Wmf& line_to(int x, int y) { return record(0x0213, {y, x}); }
  Wmf& polygon(const QList<QPoint>& points) { return record(0x0324, counted(points)); }
  Wmf& polyline(const QList<QPoint>& points) { return record(0x0325, counted(points)); }
  Wmf& poly_polygon(const QList<QList<QPoint>>& polygons) {
    Bytes bytes;
    bytes.u16(static_cast<int>(polygons.size()));
    for (const auto& polygon : polygons) bytes.u16(static_cast<int>(polygon.size()));
    for (const auto& polygon : polygons) put(bytes, polygon);
    return record(0x0538, bytes.bytes());
  }
  Wmf& rectangle(int l, int t, int r, int b) { return record(0x041B, {b, r, t, l}); }
  Wmf& round_rect(int l, int t, int r, int b, int w, int h) { return record(0x061C, {h, w, b, r, t, l}); }
  Wmf& ellipse(int l, int t, int r, int b) { return record(0x0418, {b, r, t, l}); }
  /// Arc 0817, Pie 081A, Chord 0830: box, start point, end point.
  Wmf& arc(int function, int l, int t, int r, int b, QPoint start, QPoint end) {
    return record(function, {end.y(), end.x(), start.y(), start.x(), b, r, t, l});
  }
  Wmf& set_pixel(int x, int y, quint32 color) { return record(0x041F, Bytes().u32(color).words({y, x}).bytes()); }

  // Text.
  Wmf& text_out(int x, int y, const QByteArray& text) {
    return record(0x0521, Bytes().u16(static_cast<int>(text.size())).raw(text).pad(2).words({y, x}).bytes());
  }
  struct TextBox {
    int options = 0;
    int left = 0, top = 0, right = 0, bottom = 0;
  };
  Wmf& ext_text_out(int x, int y, const QByteArray& text, TextBox box, const QList<int>& advances = {}) {
    Bytes bytes;
    bytes.words({y, x, static_cast<int>(text.size()), box.options});
    if (box.options != 0) bytes.words({box.left, box.top, box.right, box.bottom});
    bytes.raw(text).pad(2);
    for (const int advance : advances) bytes.u16(advance);
    return record(0x0A32, bytes.bytes());
  }

  // Bitmaps.
  struct Area {
    int x = 0, y = 0, w = 0, h = 0;
  };
  Wmf& pat_blt(quint32 operation, Area to) {
    return record(0x061D, Bytes().u32(operation).words({to.h, to.w, to.y, to.x}).bytes());
  }
  Wmf& dib_bit_blt(quint32 operation, Area to, int sx, int sy, const QByteArray& dib) {
    Bytes bytes;
    bytes.u32(operation).words({sy, sx});
    if (dib.isEmpty()) bytes.u16(0);
    return record(0x0940, bytes.words({to.h, to.w, to.y, to.x}).raw(dib).bytes());
  }
  Wmf& dib_stretch_blt(quint32 operation, Area to, Area from, const QByteArray& dib) {
    Bytes bytes;
    bytes.u32(operation).words({from.h, from.w, from.y, from.x});
    if (dib.isEmpty()) bytes.u16(0);
    return record(0x0B41, bytes.words({to.h, to.w, to.y, to.x}).raw(dib).bytes());
  }
  Wmf& stretch_dib(quint32 operation, Area to, Area from, const QByteArray& dib, int usage = 0) {
    Bytes bytes;
    bytes.u32(operation).words({usage, from.h, from.w, from.y, from.x, to.h, to.w, to.y, to.x});
    return record(0x0F43, bytes.raw(dib).bytes());
  }
  /// `from` is measured from the lower left; `rows` rows from `first` on are in the bitmap.
  Wmf& set_dib_to_dev(int x, int y, Area from, int rows, int first, const QByteArray& dib) {
    return record(0x0D33, Bytes().words({0, rows, first, from.y, from.x, from.h, from.w, y, x}).raw(dib).bytes());
  }

  const QByteArray& records() const { return records_; }
  /// The 18 bytes of the plain header.
  static QByteArray header(int type = 1, int header_words = 9, int version = 0x0300, quint32 words = 0) {
    return Bytes().words({type, header_words, version}).u32(words).words({64}).u32(0).words({0}).bytes();
  }
  static QByteArray placeable(int left, int top, int right, int bottom, int per_inch, int checksum = 0) {
    return Bytes().u32(0x9AC6CDD7).words({0, left, top, right, bottom, per_inch}).u32(0).u16(checksum).bytes();
  }
  /// The whole file with its end record.
  QByteArray file(const QByteArray& box = {}) const {
    return box + header() + records_ + Bytes().u32(3).u16(0).bytes();
  }

 private:
  static void put(Bytes& bytes, const QList<QPoint>& points) {
    for (const QPoint& p : points) bytes.words({p.x(), p.y()});
  }
  static QByteArray counted(const QList<QPoint>& points) {
    Bytes bytes;
    bytes.u16(static_cast<int>(points.size()));
    put(bytes, points);
    return bytes.bytes();
  }

  QByteArray records_;
};

/// A bitmap of 24 bits a pixel from rows given top to bottom.
inline QByteArray dib24(const QList<QList<quint32>>& rows, bool top_down = false) {
  const int height = static_cast<int>(rows.size()), width = static_cast<int>(rows.first().size());
  Bytes bytes;
  bytes.u32(40).u32(static_cast<quint32>(width)).u32(static_cast<quint32>(top_down ? -height : height)).words({1, 24});
  for (int i = 0; i < 6; ++i) bytes.u32(0);
  for (int i = 0; i < height; ++i) {
    for (const quint32 color : rows[top_down ? i : height - 1 - i]) {
      bytes.u8(color >> 16 & 0xFF).u8(color >> 8 & 0xFF).u8(color & 0xFF);
    }
    bytes.pad(4);
  }
  return bytes.bytes();
}

/// A bitmap with a colour table, pixels given as bytes ready packed, rows bottom to top and padded.
inline QByteArray dib_table(int width, int height, int depth, const QList<quint32>& colors, const QByteArray& pixels,
                            quint32 compression = 0) {
  Bytes bytes;
  bytes.u32(40).u32(static_cast<quint32>(width)).u32(static_cast<quint32>(height)).words({1, depth});
  bytes.u32(compression).u32(0).u32(0).u32(0).u32(static_cast<quint32>(colors.size())).u32(0);
  for (const quint32 color : colors) bytes.u8(color >> 16 & 0xFF).u8(color >> 8 & 0xFF).u8(color & 0xFF).u8(0);
  return bytes.raw(pixels).bytes();
}

} // namespace cserko::test
