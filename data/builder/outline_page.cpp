#include "data/builder/outline_page.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygon>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <utility>

namespace cserko {
namespace {

constexpr int kPixels = kPageSide * kPageSide;
constexpr int kLineRadius = 6;      // pixels: a line is about twice as broad
constexpr int kLikeColors = 36;     // colours that differ less, in every channel, count as one
constexpr int kDarkest = 90;        // of 255: darker small areas are painted black
constexpr int kSmallestBlack = 160; // pixels: a smaller dark area is a speck and not an eye

using Labels = std::vector<int>; // an area number for each pixel, row by row

template<class F> void for_neighbours(int pixel, F visit) {
  const int x = pixel % kPageSide, y = pixel / kPageSide;
  if (x > 0) visit(pixel - 1);
  if (x < kPageSide - 1) visit(pixel + 1);
  if (y > 0) visit(pixel - kPageSide);
  if (y < kPageSide - 1) visit(pixel + kPageSide);
}

// Numbers the connected areas whose pixels `alike` holds together; pixels that are not `wanted` get -1.
Labels connected_areas(const std::function<bool(int)>& wanted, const std::function<bool(int, int)>& alike, int& count) {
  Labels labels(kPixels, -1);
  std::vector<int> open;
  count = 0;
  for (int start = 0; start < kPixels; ++start) {
    if (labels[static_cast<size_t>(start)] >= 0 || !wanted(start)) continue;
    labels[static_cast<size_t>(start)] = count;
    open.push_back(start);
    while (!open.empty()) {
      const int pixel = open.back();
      open.pop_back();
      for_neighbours(pixel, [&](int next) {
        if (labels[static_cast<size_t>(next)] >= 0 || !wanted(next) || !alike(pixel, next)) return;
        labels[static_cast<size_t>(next)] = count;
        open.push_back(next);
      });
    }
    ++count;
  }
  return labels;
}

QImage painted(const std::vector<FilledShape>& shapes) {
  QImage image(kPageSide, kPageSide, QImage::Format_ARGB32);
  image.fill(0);
  QPainter painter(&image);
  painter.setPen(Qt::NoPen);
  painter.scale(static_cast<double>(kPageSide) / kMetafileSide, static_cast<double>(kPageSide) / kMetafileSide);
  for (const FilledShape& shape : shapes) {
    QPainterPath path;
    path.setFillRule(shape.rule == FillRule::winding ? Qt::WindingFill : Qt::OddEvenFill);
    for (const GridPolygon& polygon : shape.polygons) {
      path.addPolygon(QPolygonF(QPolygon(QList<QPoint>(polygon.begin(), polygon.end()))));
      path.closeSubpath();
    }
    painter.setBrush(QColor(shape.color));
    painter.drawPath(path);
  }
  return image;
}

bool like_colors(QRgb a, QRgb b) {
  return qAlpha(a) == qAlpha(b) && std::abs(qRed(a) - qRed(b)) < kLikeColors &&
         std::abs(qGreen(a) - qGreen(b)) < kLikeColors && std::abs(qBlue(a) - qBlue(b)) < kLikeColors;
}

// One colour for each family of like colours, so that a chain of shades cannot run from light to dark.
void join_like_colors(QImage& image) {
  std::vector<QRgb> families;
  for (int y = 0; y < kPageSide; ++y)
    for (int x = 0; x < kPageSide; ++x) {
      const QRgb color = image.pixel(x, y);
      const auto family = std::find_if(families.begin(), families.end(), [&](QRgb f) { return like_colors(f, color); });
      if (family == families.end())
        families.push_back(color);
      else
        image.setPixel(x, y, *family);
    }
}

/// The picture as areas: which area each pixel belongs to, and which areas are dark.
class AreaMap {
 public:
  explicit AreaMap(const QImage& image) {
    const auto color = [&](int pixel) { return image.pixel(pixel % kPageSide, pixel / kPageSide); };
    int count = 0;
    labels_ = connected_areas([](int) { return true; }, [&](int a, int b) { return color(a) == color(b); }, count);
    dark_.assign(static_cast<size_t>(count), false);
    background_.assign(static_cast<size_t>(count), false);
    for (int pixel = 0; pixel < kPixels; ++pixel) {
      dark_[label(pixel)] = qAlpha(color(pixel)) != 0 && qGray(color(pixel)) < kDarkest;
      background_[label(pixel)] = qAlpha(color(pixel)) == 0;
    }
    solid_.assign(static_cast<size_t>(count), false);
  }

  /// Joins or blackens areas until each one that is left can be painted.
  void settle() {
    while (settle_once()) {
    }
  }

  std::vector<bool> lines() const {
    std::vector<bool> black(kPixels, false);
    for (int pixel = 0; pixel < kPixels; ++pixel) {
      if (solid_[label(pixel)]) black[static_cast<size_t>(pixel)] = true;
      const int x = pixel % kPageSide, y = pixel / kPageSide;
      const bool edge = (x + 1 < kPageSide && label(pixel + 1) != label(pixel)) ||
                        (y + 1 < kPageSide && label(pixel + kPageSide) != label(pixel));
      if (edge) dab(black, x, y);
    }
    return black;
  }

 private:
  size_t label(int pixel) const { return static_cast<size_t>(labels_[static_cast<size_t>(pixel)]); }

  static void dab(std::vector<bool>& black, int x, int y) {
    for (int dy = -kLineRadius; dy <= kLineRadius; ++dy)
      for (int dx = -kLineRadius; dx <= kLineRadius; ++dx) {
        const int px = x + dx, py = y + dy;
        const bool inside = px >= 0 && py >= 0 && px < kPageSide && py < kPageSide;
        if (inside && dx * dx + dy * dy <= kLineRadius * kLineRadius + 1)
          black[static_cast<size_t>(py) * kPageSide + static_cast<size_t>(px)] = true;
      }
  }

  bool settle_once() {
    const std::vector<bool> black = lines();
    std::vector<int> size(dark_.size(), 0), open(dark_.size(), 0);
    std::vector<std::map<size_t, int>> border(dark_.size());
    for (int pixel = 0; pixel < kPixels; ++pixel) {
      ++size[label(pixel)];
      if (!black[static_cast<size_t>(pixel)]) ++open[label(pixel)];
      for_neighbours(pixel, [&](int next) {
        if (label(next) != label(pixel)) ++border[label(pixel)][label(next)];
      });
    }
    // The smallest first: an area that takes in its small neighbours may become large enough itself.
    size_t smallest = size.size();
    for (size_t i = 0; i < size.size(); ++i) {
      const bool settled = size[i] == 0 || solid_[i] || open[i] >= kSmallestArea;
      if (!settled && (smallest == size.size() || size[i] < size[smallest])) smallest = i;
    }
    if (smallest == size.size()) return false;
    if (dark_[smallest] && size[smallest] >= kSmallestBlack)
      solid_[smallest] = true;
    else
      join(smallest, border[smallest]);
    return true;
  }

  void join(size_t area, const std::map<size_t, int>& border) {
    const auto weight = [&](const std::pair<const size_t, int>& side) {
      return (background_[side.first] != background_[area] || solid_[side.first] ? 0 : kPixels) + side.second;
    };
    const auto best = std::max_element(border.begin(), border.end(),
                                       [&](const auto& a, const auto& b) { return weight(a) < weight(b); });
    for (int& own : labels_)
      if (own == static_cast<int>(area)) own = static_cast<int>(best->first);
  }

  Labels labels_;
  std::vector<bool> dark_, background_, solid_;
};

QImage to_page(const std::vector<bool>& black) {
  QImage page(kPageSide, kPageSide, QImage::Format_Mono);
  page.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  std::memset(page.bits(), 0,
              static_cast<size_t>(page.sizeInBytes())); // the spare bits behind each row, too: all go to file
  for (int pixel = 0; pixel < kPixels; ++pixel)
    page.setPixel(pixel % kPageSide, pixel / kPageSide, black[static_cast<size_t>(pixel)] ? 0 : 1);
  return page;
}

// Corners that the lines cut off from their area are too small to paint.
void blacken_corners(std::vector<bool>& black) {
  int count = 0;
  const Labels areas = connected_areas([&](int pixel) { return !black[static_cast<size_t>(pixel)]; },
                                       [](int, int) { return true; }, count);
  std::vector<int> size(static_cast<size_t>(count), 0);
  for (int area : areas)
    if (area >= 0) ++size[static_cast<size_t>(area)];
  for (size_t pixel = 0; pixel < areas.size(); ++pixel)
    if (areas[pixel] >= 0 && size[static_cast<size_t>(areas[pixel])] < kSmallestArea) black[pixel] = true;
}

} // namespace

QImage outline_page(const std::vector<FilledShape>& shapes) {
  QImage image = painted(shapes);
  join_like_colors(image);
  AreaMap areas(image);
  areas.settle();
  std::vector<bool> black = areas.lines();
  blacken_corners(black);
  return to_page(black);
}

std::vector<int> white_areas(const QImage& page) {
  int count = 0;
  const auto white = [&](int pixel) { return qGray(page.pixel(pixel % kPageSide, pixel / kPageSide)) == 255; };
  const Labels areas = connected_areas(
      white, [](int, int) { return true; }, count);
  std::vector<int> sizes(static_cast<size_t>(count), 0);
  for (int area : areas)
    if (area >= 0) ++sizes[static_cast<size_t>(area)];
  std::sort(sizes.begin(), sizes.end(), std::greater<>());
  return sizes;
}

} // namespace cserko
