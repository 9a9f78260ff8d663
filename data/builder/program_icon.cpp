// The program's icon in all sizes that a desktop asks for. Drawn by code, the same on each machine.
#include "data/builder/program_icon.h"

#include "data/builder/builder.h"
#include "data/pack/table.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

namespace cserko {
namespace {

constexpr int kUnits = 256; // a side of the drawing, whatever its size
constexpr int kSmall = 32;  // pixels; up to this size less is shown
constexpr int kSides[] = {16, 22, 24, 32, 48, 64, 96, 128, 256, 512};

const QColor kCream(0xFF, 0xF6, 0xE0), kEdge(0xC9, 0x6F, 0x2B), kInk(0x3B, 0x27, 0x1A), kGleam(0xF3, 0xC9, 0x8B);

void paint_card(QPainter& painter, double edge) {
  const double margin = edge / 2 + 6;
  painter.setPen(QPen(kEdge, edge));
  painter.setBrush(kCream);
  painter.drawRoundedRect(QRectF(margin, margin, kUnits - 2 * margin, kUnits - 2 * margin), 46, 46);
}

void paint_drop(QPainter& painter, QPointF tip, double height) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(kInk);
  painter.drawPath(ink_drop(tip, height));
  painter.setBrush(kGleam);
  painter.drawEllipse(tip + QPointF(-0.13, 0.725) * height, 0.073 * height, 0.123 * height);
}

void paint_line(QPainter& painter) {
  QPainterPath line({58, 206});
  line.cubicTo(86, 186, 100, 228, 128, 206);
  line.cubicTo(156, 184, 170, 226, 198, 206);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(kEdge, 13, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(line);
}

void paint_icon(QPainter& painter, bool small) {
  painter.setRenderHint(QPainter::Antialiasing);
  paint_card(painter, small ? 20 : 14);
  if (small) {
    paint_drop(painter, {128, 38}, 180);
  } else {
    paint_drop(painter, {128, 40}, 138);
    paint_line(painter);
  }
}

QByteArray svg_icon() {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setTitle(QStringLiteral("Cserkó"));
  svg.setDescription(QStringLiteral("Egy csepp tinta"));
  svg.setSize({kUnits, kUnits});
  svg.setViewBox(QRect(0, 0, kUnits, kUnits));
  QPainter painter(&svg);
  paint_icon(painter, false);
  painter.end();
  return buffer.data();
}

} // namespace

QPainterPath ink_drop(QPointF tip, double height) {
  const double half = height * 0.33;
  QPainterPath drop(tip);
  drop.cubicTo(tip + QPointF(half * 0.35, height * 0.32), tip + QPointF(half, height * 0.42),
               tip + QPointF(half, height * 0.67));
  drop.cubicTo(tip + QPointF(half, height * 0.86), tip + QPointF(half * 0.55, height), tip + QPointF(0, height));
  drop.cubicTo(tip + QPointF(-half * 0.55, height), tip + QPointF(-half, height * 0.86),
               tip + QPointF(-half, height * 0.67));
  drop.cubicTo(tip + QPointF(-half, height * 0.42), tip + QPointF(-half * 0.35, height * 0.32), tip);
  return drop;
}

QImage program_icon(int side) {
  QImage image(side, side, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(static_cast<double>(side) / kUnits, static_cast<double>(side) / kUnits);
  paint_icon(painter, side <= kSmall);
  return image;
}

QByteArray png_of(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG")) throw PackError("a PNG picture cannot be made");
  return buffer.data();
}

void build_program_icons(const BuildPaths& paths) {
  for (const int side : kSides)
    write_if_changed(QString("%1/%2x%2/apps/cserko.png").arg(paths.output).arg(side), png_of(program_icon(side)));
  write_if_changed(paths.output + "/scalable/apps/cserko.svg", svg_icon());
}

} // namespace cserko
