#include "fixture.h"

#include <limits>

namespace cserko {
namespace {

constexpr Color red{255, 0, 0};

class CanvasTest : public testing::Test {
 protected:
  RecordedCanvas canvas{{1500, 750}};
};

TEST_F(CanvasTest, IsWhiteWhereNothingWasDrawnAndOutside) {
  EXPECT_EQ(canvas.point({0, 0}), white);
  EXPECT_EQ(canvas.point({-15, 0}), white);
  EXPECT_EQ(canvas.point({1500, 0}), white);
  EXPECT_EQ(canvas.pixels().width, 100);
  EXPECT_EQ(canvas.pixels().height, 50);
}

TEST_F(CanvasTest, WritesDownEveryOperationWithItsArguments) {
  const Font font{u"Times New Roman", 12, true};
  canvas.line({0, 15}, {150, 30}, red, 30);
  canvas.box({1, 2, 3, 4}, black);
  canvas.filled_box({5, 6, 7, 8}, red);
  canvas.ellipse({10, 20}, 30, 40, black);
  canvas.print({50, 60}, u"alma", font, red);
  canvas.picture(HeadlessPicture(u"c:\\1.wmf", {1500, 1500}, nullptr), {0, 0, 150, 150});
  using Kind = Drawing::Kind;
  const auto& drawings = canvas.drawings();
  ASSERT_EQ(drawings.size(), 6U);
  EXPECT_EQ(drawings[0].kind, Kind::Line);
  EXPECT_EQ(drawings[0].to, (Point{150, 30}));
  EXPECT_EQ(drawings[0].width, 30);
  EXPECT_EQ(drawings[1].place, (Rect{1, 2, 3, 4}));
  EXPECT_EQ(drawings[2].color, red);
  EXPECT_EQ(drawings[3].radius, (Size{30, 40}));
  EXPECT_EQ(drawings[4].text, u"alma");
  EXPECT_EQ(drawings[4].font, font);
  EXPECT_EQ(drawings[5].picture->path(), u"c:\\1.wmf");
  EXPECT_EQ(canvas.texts(), std::vector<Text>{u"alma"});
}

TEST_F(CanvasTest, DrawsLinesBoxesAndEllipsesOnItsRaster) {
  canvas.line({0, 0}, {150, 150}, red);
  EXPECT_EQ(canvas.point({75, 75}), red);
  EXPECT_EQ(canvas.point({75, 15}), white);
  canvas.filled_box({300, 300, 150, 150}, black);
  EXPECT_EQ(canvas.point({300, 300}), black);
  EXPECT_EQ(canvas.point({449, 449}), black);
  EXPECT_EQ(canvas.point({450, 450}), white);
  canvas.box({600, 300, 150, 150}, red);
  EXPECT_EQ(canvas.point({600, 375}), red);
  EXPECT_EQ(canvas.point({735, 435}), red);
  EXPECT_EQ(canvas.point({675, 375}), white) << "an outline is hollow";
  canvas.ellipse({1200, 375}, 150, 75, black);
  EXPECT_EQ(canvas.point({1350, 375}), black);
  EXPECT_EQ(canvas.point({1200, 300}), black);
  EXPECT_EQ(canvas.point({1200, 375}), white);
}

TEST_F(CanvasTest, ThickLinesCoverTheirWidth) {
  canvas.line({150, 300}, {600, 300}, red, 45);
  for (const double y : {285.0, 300.0, 315.0}) EXPECT_EQ(canvas.point({300, y}), red);
  EXPECT_EQ(canvas.point({300, 345}), white);
}

TEST_F(CanvasTest, AnErasedLineLeavesTheGroundAndIsWrittenDown) {
  canvas.line({150, 300}, {600, 150}, red, 45);
  canvas.line({150, 450}, {600, 450}, black, 15);
  canvas.erase_line({150, 300}, {600, 150}, 45);
  for (int x = 0; x < 100; ++x) {
    for (int y = 0; y < 29; ++y) ASSERT_EQ(canvas.point({x * 15.0, y * 15.0}), white) << x << ", " << y;
  }
  EXPECT_EQ(canvas.point({300, 450}), black);
  const Drawing& last = canvas.drawings().back();
  EXPECT_EQ(last.kind, Drawing::Kind::EraseLine);
  EXPECT_EQ(last.from, (Point{150, 300}));
  EXPECT_EQ(last.to, (Point{600, 150}));
  EXPECT_EQ(last.width, 45);
}

TEST_F(CanvasTest, PointsAreSetAndCountedTogether) {
  for (int x = 0; x < 10; ++x) canvas.set_point({x * 15.0, 30}, red);
  EXPECT_EQ(canvas.point({135, 30}), red);
  EXPECT_EQ(canvas.point({150, 30}), white);
  ASSERT_EQ(canvas.drawings().size(), 1U);
  EXPECT_EQ(canvas.drawings()[0].count, 10);
  canvas.set_point({0, 30}, black);
  EXPECT_EQ(canvas.point({0, 30}), black);
  EXPECT_EQ(canvas.drawings().size(), 2U);
}

TEST_F(CanvasTest, LaterDrawingCoversEarlierPoints) {
  canvas.set_point({15, 15}, red);
  canvas.filled_box({0, 0, 150, 150}, black);
  EXPECT_EQ(canvas.point({15, 15}), black);
  canvas.set_point({15, 15}, red);
  EXPECT_EQ(canvas.point({15, 15}), red);
}

TEST_F(CanvasTest, ClearingTakesEverythingAway) {
  canvas.filled_box({0, 0, 150, 150}, black);
  EXPECT_EQ(canvas.point({15, 15}), black);
  const std::uint64_t before = canvas.revision();
  canvas.clear();
  EXPECT_EQ(canvas.point({15, 15}), white);
  EXPECT_TRUE(canvas.drawings().empty());
  EXPECT_EQ(canvas.clearings(), 1);
  EXPECT_GT(canvas.revision(), before);
}

TEST_F(CanvasTest, EveryDrawingChangesTheRevision) {
  std::uint64_t before = canvas.revision();
  const auto changed = [&] { return std::exchange(before, canvas.revision()) < canvas.revision(); };
  canvas.line({0, 0}, {1, 1}, red);
  EXPECT_TRUE(changed());
  canvas.set_point({0, 0}, red);
  EXPECT_TRUE(changed());
  canvas.set_point({0, 0}, red);
  EXPECT_TRUE(changed());
  canvas.set_pixels({1, 1, {black}});
  EXPECT_TRUE(changed());
  canvas.point({0, 0});
  EXPECT_FALSE(changed());
}

TEST_F(CanvasTest, PixelsGoInAndOutAndWhatDoesNotFitIsCutOff) {
  canvas.filled_box({0, 0, 1500, 750}, red);
  PixelImage image{200, 2, std::vector<Color>(400, black)};
  canvas.set_pixels(image);
  EXPECT_EQ(canvas.point({1485, 15}), black);
  EXPECT_EQ(canvas.point({0, 30}), red);
  const PixelImage out = canvas.pixels();
  EXPECT_EQ(out.pixels.size(), 5000U);
  EXPECT_EQ(out.pixels[0], black);
  EXPECT_EQ(out.pixels[200], red);
}

TEST_F(CanvasTest, APictureKeepsItsAspectInTheMiddleOfItsPlace) {
  const auto image = std::make_shared<PixelImage>(PixelImage{2, 1, {black, red}});
  canvas.picture(HeadlessPicture(u"a.bmp", {30, 15}, image), {0, 0, 600, 600});
  EXPECT_EQ(canvas.point({0, 0}), white) << "above the picture";
  EXPECT_EQ(canvas.point({15, 300}), black);
  EXPECT_EQ(canvas.point({585, 300}), red);
}

TEST_F(CanvasTest, WildPlacesAreHarmless) {
  const double huge = std::numeric_limits<double>::max();
  const double none = std::numeric_limits<double>::quiet_NaN();
  canvas.line({-huge, none}, {huge, huge}, red, huge);
  canvas.filled_box({-huge, -huge, none, huge}, red);
  canvas.ellipse({none, 0}, 1e6, none, red);
  canvas.set_point({none, huge}, red);
  EXPECT_EQ(canvas.point({none, none}), white);
  RecordedCanvas nothing({0, -15});
  nothing.set_point({0, 0}, red);
  EXPECT_EQ(nothing.point({0, 0}), white);
}

TEST_F(CanvasTest, ADrawingThatNeverEndsForgetsItsOldestOperationsButNotTheirMarks) {
  canvas.filled_box({0, 0, 150, 150}, black);
  for (int i = 0; i < 50000; ++i) canvas.line({300, 300}, {315, 300}, red);
  EXPECT_LE(canvas.drawings().size(), 20000U);
  EXPECT_EQ(canvas.point({15, 15}), black);
}

TEST_F(CanvasTest, BelongsToBoxesAndWindows) {
  HeadlessPlatform platform;
  Log log;
  TestWindow window(platform, log);
  EXPECT_EQ(window.drawn_canvas(), nullptr);
  EXPECT_EQ(window.canvas().size(), (Size{6000, 4500}));
}

} // namespace
} // namespace cserko
