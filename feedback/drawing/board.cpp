#include "feedback/drawing/board.h"

#include "feedback/drawing/brush.h"
#include "feedback/drawing/fitting.h"
#include "platform/platform.h"

#include <algorithm>

namespace cserko {

void DrawingBoard::end() { undo_.end(grid(), picture_); }

void DrawingBoard::line(Point from, Point to, int width, Color color) {
  PixelGrid& points = grid();
  const double twips = width * twips_per_pixel;
  undo_.touch(points, line_extent(points, from, to, twips));
  draw_line(points, from, to, twips, color);
}

void DrawingBoard::rectangle(Point corner, Point opposite, int width, Color color) {
  const Point right_top{opposite.x, corner.y};
  const Point left_bottom{corner.x, opposite.y};
  line(corner, right_top, width, color);
  line(right_top, opposite, width, color);
  line(opposite, left_bottom, width, color);
  line(left_bottom, corner, width, color);
}

void DrawingBoard::erase(const Rect& place) {
  PixelGrid& points = grid();
  const GridRect covered = box_extent(points, place);
  undo_.touch(points, covered);
  fill_box(points, covered, white);
}

void DrawingBoard::clear() {
  undo_.touch(grid(), grid().whole());
  box_.canvas().clear();
  picture_ = nullptr;
}

void DrawingBoard::load(const PixelImage& picture) {
  clear();
  if (picture.empty()) return;
  PixelGrid& points = grid();
  PixelImage shown = fitted_to(picture, points.columns(), points.rows());
  points.paste((points.columns() - shown.width) / 2, (points.rows() - shown.height) / 2, shown);
  const bool larger = picture.width > shown.width || picture.height > shown.height;
  picture_ = std::make_shared<PixelImage>(larger ? std::move(shown) : picture);
}

bool DrawingBoard::contains(Point place) {
  PixelGrid& points = grid();
  return points.contains(points.cell(place.x), points.cell(place.y));
}

Color DrawingBoard::color_at(Point place) {
  PixelGrid& points = grid();
  return contains(place) ? points.at(points.cell(place.x), points.cell(place.y)) : white;
}

void DrawingBoard::flood(Point place, Color color, bool like_a_blot, const std::function<void()>& redraw) {
  PixelGrid& points = grid();
  const FillOrder order{.grid = points,
                        .column = points.cell(place.x),
                        .row = points.cell(place.y),
                        .color = color,
                        .before = [this, &points](int column, int row) { undo_.touch(points, column, row); },
                        .redraw = redraw,
                        .random = [this] { return box_.window().platform().random(); }};
  if (like_a_blot) {
    foltfestés(order);
  } else {
    kitöltés(order);
  }
}

void DrawingBoard::undo() { picture_ = undo_.undo(grid(), picture_); }

void DrawingBoard::redo() { picture_ = undo_.redo(grid(), picture_); }

PixelImage DrawingBoard::image() { return grid().copy(grid().whole()); }

bool is_blank(const PixelImage& image) {
  return std::all_of(image.pixels.begin(), image.pixels.end(), [](Color color) { return color == white; });
}

} // namespace cserko
