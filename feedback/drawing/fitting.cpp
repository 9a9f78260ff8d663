#include "feedback/drawing/fitting.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_set>

namespace cserko {

namespace {

constexpr std::size_t few_colors = 64;
constexpr float same_votes = 1e-4F; // of the votes: so much is the work of rounding

std::uint32_t number_of(Color color) {
  return static_cast<std::uint32_t>(color.red) << 16 | static_cast<std::uint32_t>(color.green) << 8 | color.blue;
}

bool has_few_colors(const PixelImage& image) {
  std::unordered_set<std::uint32_t> colors;
  for (std::size_t i = 0; i < image.pixels.size(); ++i) {
    if (i > 0 && image.pixels[i] == image.pixels[i - 1]) continue;
    colors.insert(number_of(image.pixels[i]));
    if (colors.size() > few_colors) return false;
  }
  return true;
}

// A bell of four points' breadth, never negative.
double bell(double distance) {
  const double x = std::abs(distance);
  if (x < 1) return 2.0 / 3 - x * x + x * x * x / 2;
  if (x < 2) return (2 - x) * (2 - x) * (2 - x) / 6;
  return 0;
}

/// Which points of a row (or column) of the source make one of the target, and how much each counts.
struct Share {
  int first = 0;
  std::vector<float> weights;
};

std::vector<Share> shares(int source, int target) {
  const double step = static_cast<double>(source) / target;
  const double breadth = std::max(1.0, step);
  std::vector<Share> result(static_cast<std::size_t>(target));
  for (int i = 0; i < target; ++i) {
    const double middle = (i + 0.5) * step - 0.5;
    const int first = std::max(0, static_cast<int>(std::ceil(middle - 2 * breadth)));
    const int last = std::min(source - 1, static_cast<int>(std::floor(middle + 2 * breadth)));
    Share& share = result[static_cast<std::size_t>(i)];
    share.first = first;
    for (int at = first; at <= last; ++at) share.weights.push_back(static_cast<float>(bell((at - middle) / breadth)));
  }
  return result;
}

// All points of a place of the source with what each of them counts.
template<class F> void each_share(const PixelImage& image, const Share& across, const Share& down, F&& take) {
  for (std::size_t y = 0; y < down.weights.size(); ++y) {
    for (std::size_t x = 0; x < across.weights.size(); ++x) {
      take(image.at(across.first + static_cast<int>(x), down.first + static_cast<int>(y)),
           down.weights[y] * across.weights[x]);
    }
  }
}

// The colour that counts most. Where two count the same, which is so all along an edge that runs half-way between two
// points, the darker one is taken: rounding would choose now this, now that, and make a comb of the edge.
Color elected(const PixelImage& image, const Share& across, const Share& down) {
  std::array<std::pair<Color, float>, few_colors> votes;
  std::size_t candidates = 0;
  each_share(image, across, down, [&](Color color, float weight) {
    std::size_t i = 0;
    while (i < candidates && votes[i].first != color) ++i;
    if (i == candidates) votes[candidates++] = {color, 0.0F};
    votes[i].second += weight;
  });
  const auto brightness = [](Color color) { return color.red + color.green + color.blue; };
  const auto* best = votes.begin();
  for (const auto* vote = votes.begin() + 1; vote < votes.begin() + candidates; ++vote) {
    const float lead = vote->second - best->second;
    const bool tie = std::abs(lead) <= same_votes * best->second;
    if (tie ? brightness(vote->first) < brightness(best->first) : lead > 0) best = vote;
  }
  return best->first;
}

Color mean(const PixelImage& image, const Share& across, const Share& down) {
  float red = 0;
  float green = 0;
  float blue = 0;
  float all = 0;
  each_share(image, across, down, [&](Color color, float weight) {
    red += weight * static_cast<float>(color.red);
    green += weight * static_cast<float>(color.green);
    blue += weight * static_cast<float>(color.blue);
    all += weight;
  });
  const auto part = [all](float sum) { return static_cast<std::uint8_t>(std::lround(sum / all)); };
  return {part(red), part(green), part(blue)};
}

} // namespace

PixelImage fitted_to(const PixelImage& image, int width, int height) {
  if (image.empty() || width <= 0 || height <= 0) return {};
  const double scale = std::min(static_cast<double>(width) / image.width, static_cast<double>(height) / image.height);
  const auto side = [scale](int length) { return std::max(1, static_cast<int>(std::lround(length * scale))); };
  PixelImage result{std::min(width, side(image.width)), std::min(height, side(image.height)), {}};
  if (result.width == image.width && result.height == image.height) return image;
  const auto pick = has_few_colors(image) ? elected : mean;
  const std::vector<Share> across = shares(image.width, result.width);
  const std::vector<Share> down = shares(image.height, result.height);
  result.pixels.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
  for (const Share& row : down) {
    for (const Share& column : across) result.pixels.push_back(pick(image, column, row));
  }
  return result;
}

} // namespace cserko
