#include "platform/headless/recorded_canvas.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

// No drawing reaches further; places beyond, and those that are no number, count as this far away.
constexpr int furthest = 20000;

// The thickest line, in pixels.
constexpr int thickest = 100;

int pixel(double twips) {
  const double pixels = std::floor(twips / twips_per_pixel);
  if (!(pixels > -furthest)) return -furthest;
  return pixels < furthest ? static_cast<int>(pixels) : furthest;
}

// A drawing that goes on for hours forgets its oldest operations and keeps what they left on the raster.
constexpr std::size_t most_drawings = 20000;

// The largest place of the picture's aspect in the middle of the given one.
Rect fitted(Size picture, Rect place) {
  if (picture.width <= 0 || picture.height <= 0) return place;
  const double k = std::min(place.width / picture.width, place.height / picture.height);
  const Size size{picture.width * k, picture.height * k};
  return {place.left + (place.width - size.width) / 2, place.top + (place.height - size.height) / 2, size.width,
          size.height};
}

} // namespace

void RecordedCanvas::add(Drawing drawing) {
  if (drawings_.size() >= most_drawings) {
    raster();
    drawings_.erase(drawings_.begin(), drawings_.begin() + most_drawings / 2);
    rasterized_ = drawings_.size();
  }
  drawings_.push_back(std::move(drawing));
  ++revision_;
}

void RecordedCanvas::clear() {
  drawings_.clear();
  raster_ = {};
  rasterized_ = 0;
  ++clearings_;
  ++revision_;
}

void RecordedCanvas::picture(const Picture& picture, Rect place) {
  const auto* own = dynamic_cast<const HeadlessPicture*>(&picture);
  Drawing drawing{.kind = Drawing::Kind::Picture, .place = place};
  drawing.picture = std::make_shared<HeadlessPicture>(picture.path(), picture.natural_size(),
                                                      own != nullptr ? own->image() : nullptr);
  add(std::move(drawing));
}

void RecordedCanvas::line(Point from, Point to, Color color, double width) {
  add({.kind = Drawing::Kind::Line, .from = from, .to = to, .color = color, .width = width});
}

void RecordedCanvas::erase_line(Point from, Point to, double width) {
  add({.kind = Drawing::Kind::EraseLine, .from = from, .to = to, .color = white, .width = width});
}

void RecordedCanvas::box(Rect place, Color color) { add({.kind = Drawing::Kind::Box, .place = place, .color = color}); }

void RecordedCanvas::filled_box(Rect place, Color color) {
  add({.kind = Drawing::Kind::FilledBox, .place = place, .color = color});
}

void RecordedCanvas::ellipse(Point center, double radius_x, double radius_y, Color color) {
  add({.kind = Drawing::Kind::Ellipse, .from = center, .radius = {radius_x, radius_y}, .color = color});
}

void RecordedCanvas::print(Point place, TextView text, const Font& font, Color color) {
  add({.kind = Drawing::Kind::Print, .from = place, .color = color, .text = Text(text), .font = font});
}

Color RecordedCanvas::point(Point place) const {
  const PixelImage& image = raster();
  const int x = pixel(place.x);
  const int y = pixel(place.y);
  return image.contains(x, y) ? image.at(x, y) : white;
}

void RecordedCanvas::set_point(Point place, Color color) {
  // Points go straight into the raster: a flood of them must not become a list of as many drawings.
  raster();
  mark(pixel(place.x), pixel(place.y), color);
  const bool goes_on =
      !drawings_.empty() && drawings_.back().kind == Drawing::Kind::Points && drawings_.back().color == color;
  if (goes_on) {
    drawings_.back().to = place;
    ++drawings_.back().count;
  } else {
    drawings_.push_back({.kind = Drawing::Kind::Points, .from = place, .to = place, .color = color});
    rasterized_ = drawings_.size();
  }
  ++revision_;
}

PixelImage RecordedCanvas::pixels() const { return raster(); }

void RecordedCanvas::set_pixels(const PixelImage& image) {
  const PixelImage& target = raster();
  for (int y = 0; y < std::min(image.height, target.height); ++y) {
    for (int x = 0; x < std::min(image.width, target.width); ++x) mark(x, y, image.at(x, y));
  }
  add({.kind = Drawing::Kind::Pixels});
  rasterized_ = drawings_.size();
}

std::vector<Text> RecordedCanvas::texts() const {
  std::vector<Text> texts;
  for (const Drawing& drawing : drawings_) {
    if (drawing.kind == Drawing::Kind::Print) texts.push_back(drawing.text);
  }
  return texts;
}

void RecordedCanvas::put(int column, int row, Color color) {
  raster().at(column, row) = color;
  ++revision_;
}

void RecordedCanvas::run(int row, int first, int behind, Color color) {
  PixelImage& image = raster();
  for (int column = first; column < behind; ++column) image.at(column, row) = color;
  ++revision_;
}

PixelImage RecordedCanvas::copy(const GridRect& place) const {
  const PixelImage& image = raster();
  const GridRect part = inside(place);
  PixelImage result{std::max(0, part.right - part.left), std::max(0, part.bottom - part.top), {}};
  for (int row = part.top; row < part.bottom && !part.empty(); ++row) {
    const Color* first = &image.pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(image.width)];
    result.pixels.insert(result.pixels.end(), first + part.left, first + part.right);
  }
  return result;
}

void RecordedCanvas::paste(int left, int top, const PixelImage& image) {
  raster();
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) mark(left + x, top + y, image.at(x, y));
  }
  ++revision_;
}

PixelImage& RecordedCanvas::raster() const {
  if (raster_.pixels.empty()) {
    raster_.width = std::max(0, pixel(size_.width));
    raster_.height = std::max(0, pixel(size_.height));
    raster_.pixels.assign(static_cast<std::size_t>(raster_.width) * static_cast<std::size_t>(raster_.height), white);
  }
  for (; rasterized_ < drawings_.size(); ++rasterized_) rasterize(drawings_[rasterized_]);
  return raster_;
}

void RecordedCanvas::rasterize(const Drawing& drawing) const {
  const Rect& place = drawing.place;
  const Point right_bottom{place.left + place.width - 1, place.top + place.height - 1};
  switch (drawing.kind) {
  case Drawing::Kind::Picture:
    rasterize_picture(drawing);
    break;
  case Drawing::Kind::Line:
  case Drawing::Kind::EraseLine: // nothing lies under the raster: bare, it is white
    rasterize_line(drawing.from, drawing.to, drawing.color, drawing.width);
    break;
  case Drawing::Kind::Box:
    rasterize_line({place.left, place.top}, {right_bottom.x, place.top}, drawing.color, twips_per_pixel);
    rasterize_line({right_bottom.x, place.top}, right_bottom, drawing.color, twips_per_pixel);
    rasterize_line(right_bottom, {place.left, right_bottom.y}, drawing.color, twips_per_pixel);
    rasterize_line({place.left, right_bottom.y}, {place.left, place.top}, drawing.color, twips_per_pixel);
    break;
  case Drawing::Kind::FilledBox:
    fill(place, drawing.color);
    break;
  case Drawing::Kind::Ellipse:
    rasterize_ellipse(drawing);
    break;
  case Drawing::Kind::Print: // text leaves no mark on the raster
  case Drawing::Kind::Points:
  case Drawing::Kind::Pixels:
    break;
  }
}

// A picture without known pixels is a grey box.
void RecordedCanvas::rasterize_picture(const Drawing& drawing) const {
  constexpr Color grey{200, 200, 200};
  const auto& picture = static_cast<const HeadlessPicture&>(*drawing.picture);
  const Rect place = fitted(picture.natural_size(), drawing.place);
  if (!picture.image() || picture.image()->pixels.empty()) {
    fill(place, grey);
    return;
  }
  const PixelImage& image = *picture.image();
  const int left = pixel(place.left);
  const int top = pixel(place.top);
  const int width = std::max(1, pixel(place.width));
  const int height = std::max(1, pixel(place.height));
  for (int y = std::max(0, -top); y < std::min(height, raster_.height - top); ++y) {
    for (int x = std::max(0, -left); x < std::min(width, raster_.width - left); ++x)
      mark(left + x, top + y, image.at(x * image.width / width, y * image.height / height));
  }
}

void RecordedCanvas::rasterize_line(Point from, Point to, Color color, double width) const {
  const int brush = std::clamp(pixel(width + twips_per_pixel / 2), 1, thickest);
  const int x0 = pixel(from.x);
  const int y0 = pixel(from.y);
  const int dx = pixel(to.x) - x0;
  const int dy = pixel(to.y) - y0;
  const int steps = std::max({std::abs(dx), std::abs(dy), 1});
  for (int i = 0; i <= steps; ++i) {
    const int x = x0 + static_cast<int>(std::lround(static_cast<double>(dx) * i / steps)) - brush / 2;
    const int y = y0 + static_cast<int>(std::lround(static_cast<double>(dy) * i / steps)) - brush / 2;
    fill_pixels(x, y, x + brush, y + brush, color);
  }
}

void RecordedCanvas::rasterize_ellipse(const Drawing& drawing) const {
  constexpr double whole_turn = 6.283185307179586;
  const int steps = 8 + 7 * std::max(0, pixel(std::max(drawing.radius.width, drawing.radius.height)));
  const auto at = [&](int step) -> Point {
    const double angle = whole_turn * step / steps;
    return {drawing.from.x + drawing.radius.width * std::cos(angle),
            drawing.from.y + drawing.radius.height * std::sin(angle)};
  };
  for (int step = 0; step < steps; ++step) rasterize_line(at(step), at(step + 1), drawing.color, twips_per_pixel);
}

void RecordedCanvas::fill(Rect place, Color color) const {
  fill_pixels(pixel(place.left), pixel(place.top), pixel(place.left + place.width - 1) + 1,
              pixel(place.top + place.height - 1) + 1, color);
}

void RecordedCanvas::fill_pixels(int left, int top, int right, int bottom, Color color) const {
  for (int y = std::max(0, top); y < std::min(raster_.height, bottom); ++y) {
    for (int x = std::max(0, left); x < std::min(raster_.width, right); ++x) mark(x, y, color);
  }
}

void RecordedCanvas::mark(int x, int y, Color color) const {
  if (raster_.contains(x, y)) raster_.at(x, y) = color;
}

} // namespace cserko
