// The look of the windows: their icon, the paper behind everything, the back of the cards and the tools of the
// drawing board. Drawn by code, the same on each machine.
#include "data/builder/brushwork.h"
#include "data/builder/builder.h"
#include "data/builder/program_icon.h"
#include "data/pack/table.h"
#include "data/pack/wmf_writer.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace cserko {
namespace {

constexpr int kWindowIconSide = 256;

// A flower of ink drops for the back of a card.
QByteArray card_back() {
  constexpr int petals = 8;
  const QColor cream(0xFB, 0xF1, 0xD8), edge(0xC9, 0x6F, 0x2B), ink(0x7A, 0x52, 0x2E);
  const double centre = kMetafileSide / 2.0;
  return drawn_metafile("the back of the cards", {kMetafileSide, kMetafileSide}, [&](QPainter& painter) {
    painter.translate(centre, centre);
    for (int petal = 0; petal < petals; ++petal) {
      painter.setBrush(petal % 2 == 0 ? cream : edge);
      painter.drawPath(ink_drop({0, centre * 0.16}, centre * 0.52));
      painter.setBrush(ink);
      painter.drawEllipse(QPointF(0, centre * 0.84), centre * 0.045, centre * 0.045);
      painter.rotate(360.0 / petals);
    }
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(0, 0), centre * 0.08, centre * 0.08);
  });
}

// A plus or a cross on a round plate: an entry joins a list, or leaves it.
QByteArray list_icon(const QColor& plate, double turn) {
  constexpr double arm = 0.62, thickness = 0.2; // as parts of the plate's radius
  const double radius = kMetafileSide / 2.0;
  return drawn_metafile("an icon", {kMetafileSide, kMetafileSide}, [&](QPainter& painter) {
    painter.translate(radius, radius);
    painter.setBrush(plate);
    painter.drawEllipse(QPointF(0, 0), radius * 0.96, radius * 0.96);
    painter.setBrush(QColor(0xFF, 0xF6, 0xE0));
    for (const double angle : {turn, turn + 90}) {
      painter.save();
      painter.rotate(angle);
      painter.drawRect(QRectF(-arm * radius, -thickness / 2 * radius, 2 * arm * radius, thickness * radius));
      painter.restore();
    }
  });
}

// A small generator of its own keeps the paper's grain the same in every build.
class Grain {
 public:
  double next() {
    state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<double>(state_ >> 40) / static_cast<double>(1 << 24);
  }

 private:
  std::uint64_t state_ = 1;
};

constexpr int kPaperSide = 256;
using Sheet = std::vector<double>;

size_t place(int x, int y) { return static_cast<size_t>(y) * kPaperSide + static_cast<size_t>(x); }

// Softens the grain with a box that wraps round, so that the sheet tiles without a seam.
Sheet softened(const Sheet& sheet, int reach) {
  Sheet result(sheet.size());
  for (int y = 0; y < kPaperSide; ++y)
    for (int x = 0; x < kPaperSide; ++x) {
      double sum = 0;
      for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx) {
          const int px = (x + dx + kPaperSide) % kPaperSide, py = (y + dy + kPaperSide) % kPaperSide;
          sum += sheet[place(px, py)];
        }
      result[place(x, y)] = sum / ((2 * reach + 1) * (2 * reach + 1));
    }
  return result;
}

// Cream, with a grain so faint that no letter on it is harder to read.
QImage paper() {
  Grain grain;
  Sheet noise(place(0, kPaperSide));
  for (double& value : noise) value = grain.next() - 0.5;
  const Sheet fine = softened(noise, 1), broad = softened(softened(noise, 6), 6);
  QImage image(kPaperSide, kPaperSide, QImage::Format_RGB32);
  for (int y = 0; y < kPaperSide; ++y)
    for (int x = 0; x < kPaperSide; ++x) {
      const size_t i = place(x, y);
      const int shade = static_cast<int>(std::lround(std::clamp(fine[i] * 10 + broad[i] * 60, -4.0, 4.0)));
      image.setPixel(x, y, qRgb(std::min(255, 251 + shade), 244 + shade, 226 + shade));
    }
  return image;
}

} // namespace

void build_look(const BuildPaths& paths) {
  write_if_changed(paths.output + "/cserko-icon.png", png_of(program_icon(kWindowIconSide)));
  write_if_changed(paths.output + "/paper.png", png_of(paper()));
  write_if_changed(paths.output + "/kártyahát.wmf", card_back());
  build_tool_pictures(paths.output);
  write_if_changed(paths.output + "/listára.wmf", list_icon(QColor(0x3F, 0x6B, 0x3A), 0));
  write_if_changed(paths.output + "/listáról.wmf", list_icon(QColor(0x9A, 0x3B, 0x26), 45));
}

} // namespace cserko
