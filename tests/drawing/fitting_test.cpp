#include "feedback/drawing/fitting.h"
#include "tests/drawing/grid.h"

#include <set>

namespace cserko {
namespace {

TEST(Fitting, APictureOfTheSizeOfItsPlaceIsNotTouched) {
  const PixelImage image = image_of({"r.b", "#.#"});
  EXPECT_EQ(fitted_to(image, 3, 2), image);
  EXPECT_EQ(fitted_to(image, 3, 50), image) << "nor one that only leaves room below";
}

TEST(Fitting, KeepsItsProportions) {
  const PixelImage wide = fitted_to(image_of(blank_rows(20, 10)), 100, 100);
  EXPECT_EQ(wide.width, 100);
  EXPECT_EQ(wide.height, 50);
  const PixelImage small = fitted_to(image_of(blank_rows(1, 400)), 100, 100);
  EXPECT_EQ(small.width, 1);
  EXPECT_EQ(small.height, 100);
}

TEST(Fitting, NothingHasNoSize) {
  EXPECT_TRUE(fitted_to({}, 10, 10).empty());
  EXPECT_TRUE(fitted_to(image_of({"r"}), 0, 10).empty());
}

TEST(Fitting, FewColoursStayExactlyThese) {
  PixelImage circle{60, 60, {}};
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      const int distance = (x - 30) * (x - 30) + (y - 30) * (y - 30);
      circle.pixels.push_back(distance < 15 * 15 ? red : distance < 19 * 19 ? black : white);
    }
  }
  for (const int side : {37, 45, 61, 100, 149, 240}) {
    for (const Color color : fitted_to(circle, side, side).pixels)
      EXPECT_TRUE(color == red || color == black || color == white) << side;
  }
}

TEST(Fitting, AnEnlargedEdgeIsSmoothAndNotMadeOfBlocks) {
  // Black below a slanted edge. Enlarged four times, no step of the edge is as high as a point of the source.
  PixelImage slope{64, 64, {}};
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) slope.pixels.push_back(3 * y > 2 * x + 20 ? black : white);
  }
  const PixelImage large = fitted_to(slope, 256, 256);
  int before = -1;
  for (int x = 40; x < 216; ++x) {
    int edge = 0;
    while (edge < 256 && large.at(x, edge) == white) ++edge;
    if (before >= 0) {
      EXPECT_LE(std::abs(edge - before), 2) << x;
    }
    before = edge;
  }
}

TEST(Fitting, AnEdgeHalfWayBetweenTwoPointsIsStraight) {
  // A line of the page whose edge lies just between two points of the place: it ends alike in every row.
  PixelImage line{120, 120, {}};
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 120; ++x) line.pixels.push_back(x >= 46 && x < 58 ? black : white);
  }
  PixelImage lying = line;
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 120; ++x) lying.pixels[static_cast<std::size_t>(y * 120 + x)] = line.at(y, x);
  }
  for (const int side : {90, 150, 180, 210}) {
    const PixelImage shown = fitted_to(line, side, side);
    const PixelImage shown_lying = fitted_to(lying, side, side);
    for (int y = 1; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        ASSERT_EQ(shown.at(x, y), shown.at(x, 0)) << side;
        ASSERT_EQ(shown_lying.at(y, x), shown_lying.at(0, x)) << side;
      }
    }
  }
}

TEST(Fitting, APhotographIsSoftened) {
  PixelImage shades{100, 1, {}};
  for (int x = 0; x < 100; ++x) shades.pixels.push_back({static_cast<std::uint8_t>(2 * x), 0, 0});
  const PixelImage half = fitted_to(shades, 50, 1);
  for (int x = 2; x < 48; ++x) EXPECT_NEAR(half.at(x, 0).red, 4 * x + 1, 2) << x;
}

} // namespace
} // namespace cserko
