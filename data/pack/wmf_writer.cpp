#include "data/pack/wmf_writer.h"

#include <QtEndian>
#include <algorithm>
#include <optional>

namespace cserko {
namespace {

constexpr int kUnitsPerInch = 3200;
constexpr quint16 kAnisotropic = 8;
constexpr quint16 kTransparent = 1;

enum Function : quint16 {
  set_bk_mode = 0x0102,
  set_map_mode = 0x0103,
  set_poly_fill_mode = 0x0106,
  select_object = 0x012D,
  set_window_org = 0x020B,
  set_window_ext = 0x020C,
  create_pen_indirect = 0x02FA,
  create_brush_indirect = 0x02FC,
  polygon = 0x0324,
  poly_polygon = 0x0538,
  end_of_file = 0x0000,
};

class Words {
 public:
  void u16(int value) {
    const quint16 little = qToLittleEndian(static_cast<quint16>(value));
    bytes_.append(reinterpret_cast<const char*>(&little), sizeof little);
  }
  void u32(quint32 value) {
    u16(static_cast<int>(value & 0xFFFF));
    u16(static_cast<int>(value >> 16));
  }
  const QByteArray& bytes() const { return bytes_; }

 private:
  QByteArray bytes_;
};

class RecordStream {
 public:
  void record(Function function, const QByteArray& arguments = {}) {
    const quint32 words = static_cast<quint32>(3 + arguments.size() / 2);
    stream_.u32(words);
    stream_.u16(function);
    bytes_ += stream_.bytes() + arguments;
    stream_ = {};
    largest_ = std::max(largest_, words);
  }
  void record(Function function, std::initializer_list<int> arguments) {
    Words words;
    for (int argument : arguments) words.u16(argument);
    record(function, words.bytes());
  }
  const QByteArray& bytes() const { return bytes_; }
  quint32 largest() const { return largest_; }

 private:
  Words stream_;
  QByteArray bytes_;
  quint32 largest_ = 0;
};

QByteArray null_pen() {
  Words pen;
  pen.u16(5); // no line
  pen.u16(0);
  pen.u16(0);
  pen.u32(0);
  return pen.bytes();
}

QByteArray solid_brush(QRgb color) {
  Words brush;
  brush.u16(0); // solid
  brush.u32(static_cast<quint32>(qRed(color) | qGreen(color) << 8 | qBlue(color) << 16));
  brush.u16(0);
  return brush.bytes();
}

void append_points(Words& words, const GridPolygon& points) {
  for (QPoint point : points) {
    words.u16(point.x());
    words.u16(point.y());
  }
}

void write_figure(RecordStream& stream, const FilledShape& shape) {
  Words words;
  if (shape.polygons.size() == 1) {
    words.u16(static_cast<int>(shape.polygons[0].size()));
    append_points(words, shape.polygons[0]);
    stream.record(polygon, words.bytes());
    return;
  }
  words.u16(static_cast<int>(shape.polygons.size()));
  for (const GridPolygon& part : shape.polygons) words.u16(static_cast<int>(part.size()));
  for (const GridPolygon& part : shape.polygons) append_points(words, part);
  stream.record(poly_polygon, words.bytes());
}

std::vector<QRgb> distinct_colors(const std::vector<FilledShape>& shapes) {
  std::vector<QRgb> colors;
  for (const FilledShape& shape : shapes)
    if (std::find(colors.begin(), colors.end(), shape.color) == colors.end()) colors.push_back(shape.color);
  return colors;
}

QByteArray placeable_header(QSize size) {
  Words header;
  header.u32(0x9AC6CDD7);
  for (int value : {0, 0, 0, size.width(), size.height(), kUnitsPerInch, 0, 0}) header.u16(value);
  quint16 checksum = 0;
  for (int i = 0; i < header.bytes().size(); i += 2)
    checksum ^= qFromLittleEndian<quint16>(header.bytes().constData() + i);
  header.u16(checksum);
  return header.bytes();
}

QByteArray standard_header(const RecordStream& stream, size_t objects) {
  constexpr int header_words = 9;
  Words header;
  header.u16(1); // in memory, the type that files carry too
  header.u16(header_words);
  header.u16(0x0300);
  header.u32(static_cast<quint32>(header_words + stream.bytes().size() / 2));
  header.u16(static_cast<int>(objects));
  header.u32(stream.largest());
  header.u16(0);
  return header.bytes();
}

} // namespace

QByteArray write_metafile(const std::vector<FilledShape>& shapes, QSize size) {
  const std::vector<QRgb> colors = distinct_colors(shapes);
  RecordStream stream;
  stream.record(set_map_mode, {kAnisotropic});
  stream.record(set_window_org, {0, 0});
  stream.record(set_window_ext, {size.height(), size.width()});
  stream.record(set_bk_mode, {kTransparent});
  stream.record(create_pen_indirect, null_pen());
  stream.record(select_object, {0});
  for (QRgb color : colors) stream.record(create_brush_indirect, solid_brush(color));
  std::optional<QRgb> selected;
  std::optional<FillRule> rule;
  for (const FilledShape& shape : shapes) {
    if (selected != shape.color) {
      const auto place = std::find(colors.begin(), colors.end(), shape.color) - colors.begin();
      stream.record(select_object, {static_cast<int>(place) + 1}); // the pen is object 0
      selected = shape.color;
    }
    if (rule != shape.rule) stream.record(set_poly_fill_mode, {static_cast<int>(shape.rule)});
    rule = shape.rule;
    write_figure(stream, shape);
  }
  stream.record(end_of_file);
  return placeable_header(size) + standard_header(stream, colors.size() + 1) + stream.bytes();
}

} // namespace cserko
