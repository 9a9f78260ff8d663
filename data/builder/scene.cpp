// The scene of the graphic main window: a valley with a path that leads from exercise to exercise, the light around the
// chosen one, and the pictures. The places are those of the window itself.
#include "data/builder/scene.h"

#include "core/graphic_places.h"
#include "data/builder/brushwork.h"
#include "data/builder/builder.h"
#include "data/pack/table.h"
#include "data/pack/wmf_writer.h"

#include <cmath>

namespace cserko {
namespace {

constexpr double kWidth = graphic_landscape_size.width, kHeight = graphic_landscape_size.height;
constexpr double kPlateRadius = 650; // of the round ground of a picture, twips

const QColor kInk(0x3B, 0x27, 0x1A), kPlate(0xFD, 0xF6, 0xE3), kPlateEdge(0xDD, 0xC0, 0x90), kShade(0x93, 0xB3, 0x6F),
    kPath(0xF1, 0xE0, 0xBB), kPathEdge(0xDC, 0xC4, 0x93), kBoard(0xFF, 0xF8, 0xE8), kBoardEdge(0xA9, 0x74, 0x4A),
    kPost(0x8A, 0x5D, 0x38), kCrown(0x7D, 0xA8, 0x62), kCrownLight(0x93, 0xBA, 0x74), kFir(0x5F, 0x91, 0x63),
    kFirLight(0x74, 0xA4, 0x72), kCloud(0xFB, 0xFA, 0xF4);

QString to_name(TextView text) { return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())); }

QPointF middle_of(const GraphicPlace& place) {
  return QPointF(place.picture.x, place.picture.y) + QPointF(1, 1) * (graphic_picture_side / 2);
}

// The land from a wavy line down to the lower edge. `wave` is the height of the hills, twips.
void land(QPainter& painter, const QColor& color, double top, double wave, double length, double shift) {
  constexpr double step = 100;
  constexpr int steps = static_cast<int>(kWidth / step) + 2;
  QPolygonF outline;
  for (int i = -1; i <= steps; ++i) {
    const double x = step * i, phase = (x + shift) / length;
    outline << QPointF(x, top + wave * std::sin(phase) + wave * 0.45 * std::sin(phase * 2.3));
  }
  outline << QPointF(step * steps, kHeight) << QPointF(-step, kHeight);
  polygon(painter, color, outline);
}

void sky(QPainter& painter) {
  const QColor bands[] = {{0xD6, 0xE9, 0xEE}, {0xDF, 0xED, 0xEC}, {0xE9, 0xF0, 0xE6}, {0xF3, 0xF2, 0xE0}};
  double top = 0;
  for (const QColor& band : bands) {
    box(painter, band, 0, top, kWidth, kHeight - top);
    top += 260;
  }
}

void cloud(QPainter& painter, double x, double y, double size) {
  disc(painter, kCloud, {x, y}, size, size * 0.42);
  disc(painter, kCloud, {x - size * 0.45, y - size * 0.12}, size * 0.5, size * 0.36);
  disc(painter, kCloud, {x + size * 0.3, y - size * 0.24}, size * 0.55, size * 0.44);
}

void tree(QPainter& painter, double x, double y, double size) {
  disc(painter, kShade, {x, y}, size * 0.42, size * 0.1);
  box(painter, kPost, x - size * 0.06, y - size * 0.4, size * 0.12, size * 0.4);
  disc(painter, kCrown, {x, y - size * 0.68}, size * 0.36, size * 0.38);
  disc(painter, kCrown, {x - size * 0.2, y - size * 0.52}, size * 0.24, size * 0.24);
  disc(painter, kCrown, {x + size * 0.22, y - size * 0.54}, size * 0.24, size * 0.22);
  disc(painter, kCrownLight, {x - size * 0.08, y - size * 0.78}, size * 0.2, size * 0.19);
}

void fir(QPainter& painter, double x, double y, double size) {
  disc(painter, kShade, {x, y}, size * 0.36, size * 0.09);
  box(painter, kPost, x - size * 0.05, y - size * 0.2, size * 0.1, size * 0.2);
  for (int tier = 0; tier < 3; ++tier) {
    const double base = y - size * (0.14 + 0.24 * tier), half = size * (0.34 - 0.08 * tier);
    polygon(painter, kFir, {{x - half, base}, {x + half, base}, {x, base - size * 0.42}});
    polygon(painter, kFirLight, {{x - half, base}, {x - half * 0.2, base}, {x, base - size * 0.42}});
  }
}

void flowers(QPainter& painter, double x, double y, const QColor& petals) {
  constexpr double spots[][2] = {{0, 0}, {150, 70}, {-130, 90}, {60, 170}, {-60, 210}, {230, 190}};
  for (const auto& spot : spots) {
    const QPointF at(x + spot[0], y + spot[1]);
    for (int petal = 0; petal < 5; ++petal) {
      const double angle = petal * 2 * 3.14159265 / 5;
      disc(painter, petals, at + QPointF(std::cos(angle), std::sin(angle)) * 24, 19, 19);
    }
    disc(painter, QColor(0xF2, 0xC2, 0x4E), at, 16, 16);
  }
}

void cottage(QPainter& painter, double x, double y, double size) {
  const QColor wall(0xFB, 0xF0, 0xD9), roof(0xC9, 0x7B, 0x55), dark_roof(0xB3, 0x68, 0x46);
  disc(painter, kShade, {x, y}, size * 0.62, size * 0.09);
  box(painter, dark_roof, x + size * 0.2, y - size * 0.86, size * 0.12, size * 0.3);
  box(painter, wall, x - size * 0.4, y - size * 0.48, size * 0.8, size * 0.48);
  polygon(painter, roof,
          {{x - size * 0.52, y - size * 0.45}, {x + size * 0.52, y - size * 0.45}, {x, y - size * 0.92}});
  box(painter, kPost, x - size * 0.08, y - size * 0.3, size * 0.18, size * 0.3);
  for (const double left : {-0.31, 0.18}) {
    box(painter, QColor(0xA9, 0xD3, 0xDC), x + size * left, y - size * 0.34, size * 0.14, size * 0.15);
  }
}

void pond(QPainter& painter, double x, double y, double width, double height) {
  disc(painter, kShade, {x, y + 12}, width + 50, height + 36);
  disc(painter, QColor(0xA9, 0xD3, 0xDC), {x, y}, width, height);
  disc(painter, QColor(0xBE, 0xDF, 0xE5), {x - width * 0.2, y - height * 0.2}, width * 0.6, height * 0.5);
}

// One way through all rows, to and fro.
QPainterPath way() {
  constexpr int columns = 5;
  QPainterPath path;
  for (int row = 0; row * columns < graphic_place_count; ++row) {
    const bool back = row % 2 == 1;
    for (int step = 0; step < columns; ++step) {
      const int column = back ? columns - 1 - step : step;
      const QPointF at = middle_of(graphic_place(row * columns + column)) + QPointF(0, 300);
      if (path.elementCount() == 0) {
        path.moveTo(at);
        continue;
      }
      const QPointF from = path.currentPosition();
      if (step == 0) {
        // Around the end of the row, outside the boards.
        const double out = back ? 1850 : -1850;
        path.cubicTo(from + QPointF(out, 250), at + QPointF(out, -250), at);
      } else {
        const double sway = step % 2 == 0 ? 160 : -160;
        path.cubicTo(from + QPointF((at.x() - from.x()) * 0.4, sway), at - QPointF((at.x() - from.x()) * 0.4, sway),
                     at);
      }
    }
  }
  return path;
}

// The round ground of a picture and the board of its label.
void station(QPainter& painter, const GraphicPlace& place) {
  const QPointF middle = middle_of(place);
  const Rect label = label_rect(place);
  const QRectF board(label.left, label.top, label.width, label.height);
  for (const double post : {0.16, 0.84})
    box(painter, kPost, board.left() + board.width() * post - 40, board.top() - 60, 80, board.height() + 130);
  disc(painter, kShade, middle + QPointF(0, 40), kPlateRadius + 30, kPlateRadius + 20);
  disc(painter, kPlateEdge, middle, kPlateRadius, kPlateRadius);
  disc(painter, kPlate, middle, kPlateRadius - 32, kPlateRadius - 32);
  round_box(painter, kBoardEdge, board.adjusted(-75, -14, 75, 14), 110);
  round_box(painter, kBoard, board.adjusted(-43, 18, 43, -18), 84);
}

QByteArray landscape(const IconSet& icons) {
  return drawn_metafile("the landscape", QSizeF(kWidth, kHeight).toSize(), [&](QPainter& painter) {
    sky(painter);
    disc(painter, QColor(0xFA, 0xEE, 0xC4), {2650, 470}, 330, 330);
    disc(painter, QColor(0xF8, 0xDC, 0x8C), {2650, 470}, 240, 240);
    cloud(painter, 5350, 330, 430);
    cloud(painter, 8050, 480, 360);
    cloud(painter, 10750, 300, 420);
    land(painter, QColor(0xCB, 0xDD, 0xC4), 900, 130, 1500, 300);
    land(painter, QColor(0xC3, 0xDB, 0xA8), 1250, 150, 1900, 2400);
    land(painter, QColor(0xB8, 0xD4, 0x97), 2250, 120, 1700, 900);
    land(painter, QColor(0xC2, 0xDA, 0x9F), 4150, 130, 2100, 4000);
    land(painter, QColor(0xB4, 0xD1, 0x90), 6050, 120, 1800, 1500);
    stroke(painter, kPathEdge, way(), 380);
    stroke(painter, kPath, way(), 310);
    cottage(painter, 8000, 1380, 640);
    tree(painter, 2300, 1420, 640);
    fir(painter, 4850, 1300, 560);
    fir(painter, 5280, 1420, 680);
    tree(painter, 10650, 1430, 700);
    fir(painter, 10230, 1330, 520);
    pond(painter, 5250, 3080, 420, 170);
    icon(painter, icons, "duck", {5010, 2690, 400, 400});
    tree(painter, 2350, 3180, 620);
    flowers(painter, 7850, 2860, QColor(0xF4, 0xF0, 0xE4));
    fir(painter, 10650, 3240, 640);
    flowers(painter, 2300, 4780, QColor(0xE9, 0xA3, 0x9A));
    tree(painter, 7950, 5120, 660);
    icon(painter, icons, "ewe", {5000, 4560, 480, 480});
    flowers(painter, 10550, 4800, QColor(0xC9, 0xB4, 0xDC));
    fir(painter, 2350, 7000, 640);
    icon(painter, icons, "hedgehog", {5080, 6620, 400, 400});
    tree(painter, 10650, 7010, 640);
    flowers(painter, 7850, 6700, QColor(0xF4, 0xF0, 0xE4));
    for (const GraphicPlace& place : graphic_places) station(painter, place);
  });
}

// A sun of rays around a bright round ground with a rim: seen by its shape as well as by its colour.
QByteArray highlight() {
  constexpr int rays = 24;
  return drawn_metafile("the highlight", {kMetafileSide, kMetafileSide}, [](QPainter& painter) {
    constexpr double half = kMetafileSide / 2.0;
    const double rim = half * kPlateRadius / (graphic_picture_side / 2 + graphic_glow);
    painter.translate(half, half);
    for (int ray = 0; ray < rays; ++ray) {
      const double tip = half * (ray % 2 == 0 ? 0.995 : 0.965);
      polygon(painter, QColor(0xF2, 0xA9, 0x2E), {{-rim * 0.13, -rim * 0.97}, {rim * 0.13, -rim * 0.97}, {0, -tip}});
      painter.rotate(360.0 / rays);
    }
    disc(painter, QColor(0xC9, 0x6F, 0x2B), {0, 0}, rim, rim);
    disc(painter, QColor(0xFF, 0xE0, 0x7A), {0, 0}, rim * 0.93, rim * 0.93);
    disc(painter, QColor(0xFF, 0xF4, 0xC4), {0, 0}, rim * 0.84, rim * 0.84);
  });
}

} // namespace

void build_scene(const BuildPaths& paths) {
  const IconSet icons(paths.icons);
  const QString folder = paths.output + "/";
  write_if_changed(folder + to_name(graphic_landscape), landscape(icons));
  write_if_changed(folder + to_name(graphic_highlight), highlight());
  for (const GraphicPlace& place : graphic_places)
    write_if_changed(folder + to_name(place.window) + ".wmf", scene_picture(icons, place.window));
}

} // namespace cserko
