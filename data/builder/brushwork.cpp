#include "data/builder/brushwork.h"

#include "data/pack/metafile_device.h"
#include "data/pack/table.h"

#include <QSvgRenderer>
#include <cmath>

namespace cserko {
namespace {

const QColor kInk(0x3B, 0x27, 0x1A), kEdge(0xB9, 0x8A, 0x55);

// A tall letter is 100 units high and stands on a base line; a low one is 58 high. Bowls are circles.
constexpr double kTall = 100, kTop = 42, kBowl = 29, kMiddle = kTall - kBowl, kWeight = 15, kGap = 22;

struct Letter {
  QPainterPath path;
  double width = 0;
};

void line(QPainterPath& path, double x, double from, double to) {
  path.moveTo(x, from);
  path.lineTo(x, to);
}

void bowl(QPainterPath& path, double x) { path.addEllipse(QPointF(x, kMiddle), kBowl, kBowl); }

// The arch of an n from its left leg.
void arch(QPainterPath& path, double left, double width) {
  path.moveTo(left, kTall);
  path.lineTo(left, kTop + width / 2);
  path.arcTo(QRectF(left, kTop, width, width), 180, -180);
  path.lineTo(left + width, kTall);
}

void accent(QPainterPath& path, double x) {
  path.moveTo(x - 2, 24);
  path.lineTo(x + 13, 4);
}

void add_round(Letter& letter, QChar base) {
  QPainterPath& path = letter.path;
  letter.width = 2 * kBowl;
  if (base == 'b' || base == 'd') line(path, base == 'b' ? 0 : letter.width, 0, kTall);
  if (base == 'a') line(path, letter.width, kTop, kTall);
  if (base == 'e') {
    path.moveTo(1, kMiddle);
    path.lineTo(letter.width, kMiddle);
    path.arcTo(QRectF(0, kTop, letter.width, letter.width), 0, 310);
  } else if (base == 'c') {
    letter.width = 50;
    path.arcMoveTo(QRectF(0, kTop, 2 * kBowl, 2 * kBowl), 45);
    path.arcTo(QRectF(0, kTop, 2 * kBowl, 2 * kBowl), 45, 270);
  } else {
    bowl(path, kBowl);
  }
}

void add_straight(Letter& letter, QChar base) {
  QPainterPath& path = letter.path;
  if (base == 'l') line(path, 0, 0, kTall);
  if (base == 'i') {
    line(path, 0, kTop, kTall);
    path.addEllipse(QPointF(0, 14), 2, 2);
  }
  if (base == 't') {
    line(path, 18, 10, kTall);
    path.moveTo(0, kTop);
    path.lineTo(38, kTop);
    letter.width = 38;
  }
  if (base == 'k') {
    line(path, 0, 0, kTall);
    path.moveTo(44, kTop + 2);
    path.lineTo(4, 72);
    path.lineTo(46, kTall);
    letter.width = 46;
  }
  if (base == 'z') {
    path.addPolygon(QPolygonF({{0, kTop}, {44, kTop}, {0, kTall}, {46, kTall}}));
    letter.width = 46;
  }
  if (base == 'h') line(path, 0, 0, kTop + 30);
  if (base == 'h' || base == 'n') {
    arch(path, 0, 50);
    letter.width = 50;
  }
  if (base == 'm') {
    arch(path, 0, 42);
    arch(path, 42, 42);
    letter.width = 84;
  }
  if (base == 'r') {
    line(path, 0, kTop, kTall);
    path.moveTo(0, kTop + 24);
    path.cubicTo(2, kTop + 6, 16, kTop - 2, 32, kTop + 2);
    letter.width = 32;
  }
  if (base == 's') {
    path.moveTo(42, kTop + 6);
    path.cubicTo(24, kTop - 6, 2, kTop, 3, kTop + 14);
    path.cubicTo(4, kTop + 32, 44, kTop + 24, 44, kTop + 43);
    path.cubicTo(44, kTall + 4, 14, kTall + 3, 0, kTall - 8);
    letter.width = 44;
  }
}

Letter letter_of(QChar character) {
  const QString parts = QString(character).normalized(QString::NormalizationForm_D);
  Letter letter;
  if (QString("abcdeo").contains(parts[0])) {
    add_round(letter, parts[0]);
  } else {
    add_straight(letter, parts[0]);
  }
  if (letter.path.isEmpty()) throw PackError(QString("no letter is drawn for \"%1\"").arg(character));
  if (parts.size() > 1) accent(letter.path, letter.width / 2);
  return letter;
}

} // namespace

void box(QPainter& painter, const QColor& color, double left, double top, double width, double height) {
  painter.setBrush(color);
  painter.drawRect(QRectF(left, top, width, height));
}

void round_box(QPainter& painter, const QColor& color, const QRectF& place, double radius) {
  painter.setBrush(color);
  painter.drawRoundedRect(place, radius, radius);
}

void polygon(QPainter& painter, const QColor& color, const QPolygonF& corners) {
  painter.setBrush(color);
  painter.drawPolygon(corners);
}

void disc(QPainter& painter, const QColor& color, QPointF center, double radius_x, double radius_y) {
  painter.setBrush(color);
  painter.drawEllipse(center, radius_x, radius_y);
}

void shape(QPainter& painter, const QColor& color, const QPainterPath& path) {
  painter.setBrush(color);
  painter.drawPath(path);
}

void stroke(QPainter& painter, const QColor& color, const QPainterPath& path, double width) {
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  painter.restore();
}

void icon(QPainter& painter, const IconSet& icons, const QString& name, const QRectF& place) {
  QSvgRenderer renderer(icons.svg(name));
  if (!renderer.isValid()) throw PackError(name + ": not a readable SVG picture");
  painter.save();
  renderer.render(&painter, place);
  painter.restore();
}

void aslant(QPainter& painter, QPointF place, double angle, const std::function<void()>& draw) {
  painter.save();
  painter.translate(place);
  painter.rotate(angle);
  draw();
  painter.restore();
}

void word(QPainter& painter, const QString& text, QPointF center, double height, const QColor& color) {
  QPainterPath whole;
  double x = 0;
  for (const QChar character : text) {
    const Letter letter = letter_of(character);
    whole.addPath(letter.path.translated(x, 0));
    x += letter.width + kGap;
  }
  // Without ascenders the middle of the low letters counts, so that a word stands in the middle of its card.
  const bool low = whole.boundingRect().top() > kTop - 1;
  painter.save();
  painter.translate(center);
  painter.scale(height / kTall, height / kTall);
  painter.translate(-(x - kGap) / 2, low ? -(kTop + kTall) / 2 : -kTall / 2);
  stroke(painter, color, whole, kWeight);
  painter.restore();
}

void tile(QPainter& painter, const QString& text, QPointF center, double side, double angle, const QColor& paper) {
  aslant(painter, center, angle, [&] {
    const double rim = side * 0.07;
    const QRectF card(-side / 2, -side / 2, side, side);
    round_box(painter, kEdge, card, side * 0.2);
    round_box(painter, paper, card.adjusted(rim, rim, -rim, -rim), side * 0.15);
    word(painter, text, {0, 0}, side * 0.62, kInk);
  });
}

QByteArray drawn_metafile(const QString& what, QSize size, const std::function<void(QPainter&)>& draw) {
  MetafileDevice device;
  QPainter painter(&device);
  painter.setPen(Qt::NoPen);
  draw(painter);
  painter.end();
  if (!device.refusal().isEmpty()) throw PackError(what + " cannot be kept: " + device.refusal());
  return write_metafile(device.shapes(), size);
}

} // namespace cserko
