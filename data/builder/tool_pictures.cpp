// The pictures on the buttons of the drawing board, drawn by code.
#include "data/builder/brushwork.h"
#include "data/builder/builder.h"
#include "data/pack/table.h"
#include "data/pack/wmf_writer.h"

namespace cserko {
namespace {

const QColor kInk(0x3B, 0x27, 0x1A), kWood(0xF3, 0xD2, 0xA0), kPencil(0xE8, 0xA0, 0x2C), kPencilShade(0xC9, 0x7F, 0x1C),
    kMetal(0xB8, 0xBE, 0xC4), kRubber(0xE8, 0x8A, 0x93), kSleeve(0x3F, 0x6F, 0xA8), kPaint(0x2F, 0x8F, 0x6A),
    kBucket(0xD3, 0xD7, 0xDB), kBucketShade(0xA8, 0xAF, 0xB5);

// The pictures are drawn on a square of 100 units a side.
using Draw = void (*)(QPainter& painter);

// Upright, its tip at the bottom, and then laid aslant.
void pen(QPainter& painter) {
  painter.translate(50, 50);
  painter.rotate(45);
  box(painter, kRubber, -9, -50, 18, 11);
  box(painter, kMetal, -9, -40, 18, 6);
  box(painter, kPencil, -9, -34, 18, 58);
  box(painter, kPencilShade, 3, -34, 6, 58);
  polygon(painter, kWood, {{-9, 24}, {9, 24}, {0, 48}});
  polygon(painter, kInk, {{-3.4, 39}, {3.4, 39}, {0, 48}});
}

void eraser(QPainter& painter) {
  painter.translate(50, 50);
  painter.rotate(-35);
  box(painter, kSleeve, -12, -20, 54, 40);
  box(painter, kRubber, -40, -20, 28, 40);
  box(painter, kInk, -13, -20, 2, 40);
}

void fill(QPainter& painter) {
  QPainterPath drop({20, 52});
  drop.cubicTo(26, 64, 32, 70, 32, 80);
  drop.cubicTo(32, 88, 26, 93, 20, 93);
  drop.cubicTo(14, 93, 8, 88, 8, 80);
  drop.cubicTo(8, 70, 14, 64, 20, 52);
  painter.setBrush(kPaint);
  painter.drawPath(drop);
  polygon(painter, kPaint, {{26, 48}, {46, 22}, {60, 30}, {40, 56}});
  polygon(painter, kBucket, {{24, 46}, {56, 14}, {92, 50}, {60, 82}});
  polygon(painter, kBucketShade, {{78, 36}, {92, 50}, {60, 82}, {46, 68}});
  polygon(painter, kPaint, {{24, 46}, {56, 14}, {61, 19}, {29, 51}});
  polygon(painter, kInk, {{44, 4}, {50, 2}, {62, 36}, {56, 38}});
}

void rectangle(QPainter& painter) {
  QPainterPath frame;
  frame.addRect(QRectF(8, 20, 84, 60));
  frame.addRect(QRectF(18, 30, 64, 40));
  painter.setBrush(kInk);
  painter.drawPath(frame);
}

void straight_line(QPainter& painter) {
  polygon(painter, kInk, {{12, 80}, {80, 12}, {88, 20}, {20, 88}});
  painter.setBrush(kPencil);
  painter.drawEllipse(QPointF(16, 84), 11, 11);
  painter.drawEllipse(QPointF(84, 16), 11, 11);
}

QByteArray picture(Draw draw) {
  return drawn_metafile("the picture of a tool", {kMetafileSide, kMetafileSide}, [draw](QPainter& painter) {
    painter.scale(kMetafileSide / 100.0, kMetafileSide / 100.0);
    draw(painter);
  });
}

} // namespace

void build_tool_pictures(const QString& folder) {
  write_if_changed(folder + "/toll.wmf", picture(pen));
  write_if_changed(folder + "/radír.wmf", picture(eraser));
  write_if_changed(folder + "/kitöltés.wmf", picture(fill));
  write_if_changed(folder + "/téglalap.wmf", picture(rectangle));
  write_if_changed(folder + "/egyenes.wmf", picture(straight_line));
}

} // namespace cserko
