#include "tests/tour/camera.h"

#include "tests/tour/checks.h"

#include <QScreen>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace cserko::tour {

namespace {

// Letters are few pixels among many: so many of ten thousand at either end do not count, against stray ones.
constexpr int stray_share = 5;
// A disabled caption is grey and must still be read.
constexpr int faintest_text = 40;
constexpr int faintest_window = 60;
// The paper is never of one shade; where one fills nearly all, nothing has been painted.
constexpr double emptiest_window = 0.95;

bool shows_text(const Element& element) {
  if (!element.shown() || without_mnemonic(element.Caption).find_first_not_of(u" \r\n") == Text::npos) return false;
  switch (element.kind()) {
  case ElementKind::Label:
  case ElementKind::CheckBox:
  case ElementKind::OptionButton:
  case ElementKind::Frame:
    return true;
  case ElementKind::Button:
    return static_cast<const Button&>(element).Picture == nullptr;
  default:
    return false;
  }
}

// How many pixels of each shade of grey a place has.
using Shades = std::array<int, 256>;

Shades count_shades(const QImage& image, QRect place) {
  Shades shades{};
  const QRect inside = place.intersected(image.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = inside.left(); x <= inside.right(); ++x) ++shades[static_cast<std::size_t>(qGray(line[x]))];
  }
  return shades;
}

bool of_one_shade(const Shades& shades) {
  const int pixels = std::accumulate(shades.begin(), shades.end(), 0);
  return *std::max_element(shades.begin(), shades.end()) >= emptiest_window * pixels;
}

// From the darkest shade to the lightest, strays left out.
int contrast(const Shades& shades) {
  const int pixels = std::accumulate(shades.begin(), shades.end(), 0);
  if (pixels == 0) return 0;
  const int stray = static_cast<int>(static_cast<std::int64_t>(pixels) * stray_share / 10000);
  const auto end = [&](auto first, auto last) {
    int passed = 0;
    for (auto shade = first; shade != last; ++shade) {
      passed += *shade;
      if (passed > stray) return static_cast<int>(shade - first);
    }
    return 0;
  };
  return 255 - end(shades.rbegin(), shades.rend()) - end(shades.begin(), shades.end());
}

} // namespace

QImage take_picture(const QWidget& widget) { return take_picture(*widget.screen(), widget.frameGeometry()); }

QImage take_picture(QScreen& screen, QRect place) {
  return screen.grabWindow(0, place.x(), place.y(), place.width(), place.height())
      .toImage()
      .convertToFormat(QImage::Format_RGB32);
}

int contrast(const QImage& image, QRect place) { return contrast(count_shades(image, place)); }

bool is_blank(const QImage& image, QRect place) {
  const Shades shades = count_shades(image, place);
  return contrast(shades) < faintest_window || of_one_shade(shades);
}

Photograph::Photograph(QImage image, QPoint client_corner, double zoom)
    : image_(std::move(image)), corner_(client_corner), zoom_(zoom) {}

QRect Photograph::place_of(const Element& element) const {
  const Point place = element.position_in_window();
  return {corner_.x() + static_cast<int>(std::lround(place.x * zoom_)),
          corner_.y() + static_cast<int>(std::lround(place.y * zoom_)),
          static_cast<int>(std::lround(element.Width * zoom_)), static_cast<int>(std::lround(element.Height * zoom_))};
}

std::vector<std::string> Photograph::faults(const Window& window) const {
  std::vector<std::string> found;
  const QRect client(
      corner_, QSize(static_cast<int>(window.inner_width() * zoom_), static_cast<int>(window.inner_height() * zoom_)));
  if (is_blank(image_, client)) found.push_back(to_utf8(window.Name) + ": the window is blank");
  for (const Element* element : window.elements()) {
    if (shows_text(*element) && contrast(image_, place_of(*element)) < faintest_text)
      found.push_back(to_utf8(window.Name) + ": the text of " + name_of(*element) + " cannot be seen");
  }
  return found;
}

} // namespace cserko::tour
