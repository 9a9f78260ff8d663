// The persistent drawing, at every zoom that the machine chooses.
#include "platform/qt/qt_canvas.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace cserko::test {

namespace {

constexpr Color red{200, 30, 30};
constexpr Color blue{20, 40, 160};

class Drawing : public testing::TestWithParam<double> {
 protected:
  Fonts fonts{GetParam() / twips_per_pixel};
  QtCanvas canvas{{1500, 1200}, fonts, 1.0};

  /// Whether every pixel lets what lies under the canvas show as if nothing had ever been drawn.
  bool bare() const {
    for (int y = 0; y < canvas.image().height(); ++y) {
      const auto* row = reinterpret_cast<const QRgb*>(canvas.image().constScanLine(y));
      if (std::any_of(row, row + canvas.image().width(), [](QRgb pixel) { return pixel != 0; })) return false;
    }
    return true;
  }
  static Point pixel(int x, int y) { return {x * twips_per_pixel, y * twips_per_pixel}; }
};

TEST_P(Drawing, IsWhiteWhereNothingWasDrawnAndOutside) {
  EXPECT_EQ(canvas.point({300, 300}), white);
  EXPECT_EQ(canvas.point({-15, 0}), white);
  EXPECT_EQ(canvas.point({1500, 1200}), white);
  canvas.filled_box({0, 0, 1500, 1200}, red);
  EXPECT_EQ(canvas.point({-15, 0}), white);
  EXPECT_EQ(canvas.point({9000, 9000}), white);
}

TEST_P(Drawing, AFilledBoxCoversItsPlaceAndNoMore) {
  canvas.filled_box({300, 300, 450, 300}, red);
  EXPECT_EQ(canvas.point({315, 315}), red);
  EXPECT_EQ(canvas.point({720, 570}), red);
  EXPECT_EQ(canvas.point({270, 315}), white);
  EXPECT_EQ(canvas.point({780, 315}), white);
}

TEST_P(Drawing, ABoxIsAnOutline) {
  canvas.box({300, 300, 600, 600}, blue);
  EXPECT_EQ(canvas.point({600, 300}), blue);
  EXPECT_EQ(canvas.point({300, 600}), blue);
  EXPECT_EQ(canvas.point({600, 600}), white);
}

TEST_P(Drawing, APointThatIsSetIsReadBack) {
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      const Color color{static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 77};
      canvas.set_point(pixel(x, y), color);
      ASSERT_EQ(canvas.point(pixel(x, y)), color) << x << ", " << y;
    }
  }
}

TEST_P(Drawing, SettingAPointLeavesItsNeighboursAlone) {
  for (int x = 1; x < 99; ++x) {
    canvas.clear();
    canvas.set_point(pixel(x, 10), red);
    ASSERT_EQ(canvas.point(pixel(x - 1, 10)), white) << x;
    ASSERT_EQ(canvas.point(pixel(x + 1, 10)), white) << x;
    ASSERT_EQ(canvas.point(pixel(x, 9)), white) << x;
    ASSERT_EQ(canvas.point(pixel(x, 11)), white) << x;
  }
}

TEST_P(Drawing, PixelsPutInComeOutAgain) {
  PixelImage image{100, 80, {}};
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x)
      image.pixels.push_back({static_cast<std::uint8_t>(2 * x), static_cast<std::uint8_t>(3 * y),
                              static_cast<std::uint8_t>((x * 7 + y * 13) % 256)});
  }
  canvas.set_pixels(image);
  const PixelImage out = canvas.pixels();
  ASSERT_EQ(out.width, image.width);
  ASSERT_EQ(out.height, image.height);
  EXPECT_EQ(out.pixels, image.pixels);
}

TEST_P(Drawing, PixelsThatDoNotFitAreCutOff) {
  canvas.set_pixels({200, 1, std::vector<Color>(200, red)});
  EXPECT_EQ(canvas.point(pixel(99, 0)), red);
  EXPECT_EQ(canvas.pixels().width, 100);
  EXPECT_EQ(canvas.point(pixel(0, 1)), white);
}

TEST_P(Drawing, ALineRunsFromPlaceToPlace) {
  canvas.line({150, 150}, {1350, 1050}, blue, 45);
  EXPECT_EQ(canvas.point({750, 600}), blue);
  EXPECT_EQ(canvas.point({750, 300}), white);
}

TEST_P(Drawing, ALineThatIsErasedLeavesNoTraceAtAnyAngle) {
  for (const double width : {15.0, 45.0, 60.0}) {
    for (int degrees = 0; degrees < 360; degrees += 7) {
      const double angle = degrees * 3.14159265358979 / 180;
      const Point from{751.3, 602.9};
      const Point to{from.x + 433.7 * std::cos(angle), from.y + 433.7 * std::sin(angle)};
      canvas.line(from, to, black, width);
      ASSERT_FALSE(bare()) << degrees;
      canvas.erase_line(from, to, width);
      ASSERT_TRUE(bare()) << "width " << width << ", " << degrees << " degrees";
    }
  }
}

TEST_P(Drawing, APathOfThePointerIsErasedPieceByPiece) {
  std::vector<Point> path;
  for (int i = 0; i < 90; ++i) path.push_back({200 + i * 11.0, 600 + 350 * std::sin(i / 7.0)});
  for (std::size_t i = 1; i < path.size(); ++i) canvas.line(path[i - 1], path[i], blue, 45);
  for (std::size_t i = 1; i < path.size(); ++i) canvas.erase_line(path[i - 1], path[i], 45);
  EXPECT_TRUE(bare());
}

TEST_P(Drawing, ErasingTakesNothingThatLiesAside) {
  canvas.filled_box({0, 0, 1500, 570}, red);
  canvas.line({0, 645}, {1500, 645}, blue, 45);
  canvas.erase_line({0, 645}, {1500, 645}, 45);
  EXPECT_EQ(canvas.point({750, 555}), red);
  EXPECT_EQ(canvas.point({750, 645}), white);
}

TEST_P(Drawing, AnEllipseIsAnOutlineAroundItsCentre) {
  canvas.ellipse({750, 600}, 600, 300, blue);
  EXPECT_EQ(canvas.point({750, 600}), white);
  EXPECT_NE(canvas.point({150, 600}), white);
  EXPECT_NE(canvas.point({750, 300}), white);
}

TEST_P(Drawing, ClearingTakesAllAway) {
  canvas.filled_box({0, 0, 1500, 1200}, red);
  canvas.clear();
  EXPECT_EQ(canvas.point({750, 600}), white);
  EXPECT_EQ(qAlpha(canvas.image().pixel(5, 5)), 0);
}

TEST_P(Drawing, TextStaysWithinWhatItMeasures) {
  const Font font{u"Times New Roman", 12, false};
  const Text text = u"Őz\rgyűjt";
  const Size extent = fonts.measure(font, text);
  canvas.print({150, 150}, text, font, black);
  int inside = 0;
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      if (canvas.point(pixel(x, y)) == white) continue;
      const double left = x * twips_per_pixel;
      const double top = y * twips_per_pixel;
      // A pixel beyond the edge is what smoothing makes of a letter that touches it.
      EXPECT_GE(left, 150 - 15) << x << ", " << y;
      EXPECT_GE(top, 150 - 15) << x << ", " << y;
      EXPECT_LE(left, 150 + extent.width + 15) << x << ", " << y;
      EXPECT_LE(top, 150 + extent.height + 15) << x << ", " << y;
      ++inside;
    }
  }
  EXPECT_GT(inside, 50);
}

TEST_P(Drawing, EveryDrawingIsNoticed) {
  std::uint64_t last = canvas.revision();
  const auto noticed = [&] { return std::exchange(last, canvas.revision()) != canvas.revision(); };
  EXPECT_FALSE(noticed());
  canvas.line({0, 0}, {100, 100}, red, twips_per_pixel);
  EXPECT_TRUE(noticed());
  canvas.erase_line({0, 0}, {100, 100}, twips_per_pixel);
  EXPECT_TRUE(noticed());
  canvas.box({0, 0, 100, 100}, red);
  EXPECT_TRUE(noticed());
  canvas.ellipse({100, 100}, 50, 50, red);
  EXPECT_TRUE(noticed());
  canvas.print({0, 0}, u"a", {}, red);
  EXPECT_TRUE(noticed());
  canvas.set_point({0, 0}, red);
  EXPECT_TRUE(noticed());
  canvas.set_pixels({1, 1, {red}});
  EXPECT_TRUE(noticed());
  canvas.clear();
  EXPECT_TRUE(noticed());
}

TEST_P(Drawing, KeepsTheSizeItWasMadeWith) {
  EXPECT_EQ(canvas.size(), (Size{1500, 1200}));
  const QtCanvas nothing({0, 0}, fonts, 1.0);
  EXPECT_EQ(nothing.size(), (Size{0, 0}));
  EXPECT_EQ(nothing.point({0, 0}), white);
}

INSTANTIATE_TEST_SUITE_P(Zooms, Drawing, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 2.75),
                         [](const auto& zoom) { return std::to_string(static_cast<int>(zoom.param * 100)); });

} // namespace
} // namespace cserko::test
