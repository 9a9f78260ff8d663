#include "drawing.h"

namespace cserko::test {
namespace {

/// Where a filled box from (l, t) to (r, b) is seen after some mapping records.
QRect seen(Wmf mapping, int l, int t, int r, int b, int width = 100, int height = 100) {
  return ink(draw(mapping.fills(kRed).rectangle(l, t, r, b), width, height));
}

} // namespace

TEST(Mapping, WindowFillsTheWholeTarget) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(1000, 500), 0, 0, 1000, 500, 80, 60), QRect(0, 0, 80, 60)));
  EXPECT_TRUE(near_rect(seen(Wmf().window(1000, 500), 500, 250, 1000, 500, 80, 60), QRect(40, 30, 40, 30)));
}

TEST(Mapping, WithoutMapModeIsAnisotropic) {
  EXPECT_TRUE(near_rect(seen(Wmf().map_mode(8).window(1000, 1000), 0, 0, 500, 500), QRect(0, 0, 50, 50)));
  EXPECT_TRUE(near_rect(seen(Wmf().window(1000, 1000), 0, 0, 500, 500), QRect(0, 0, 50, 50)));
}

TEST(Mapping, WindowOriginMayBeAnywhere) {
  EXPECT_TRUE(
      near_rect(seen(Wmf().window_org(-500, 300).window_ext(1000, 1000), -500, 300, 0, 800), QRect(0, 0, 50, 50)));
}

TEST(Mapping, NegativeExtentsTurnThePicture) {
  EXPECT_TRUE(near_rect(seen(Wmf().window_org(0, 100).window_ext(100, -100), 0, 0, 50, 50), QRect(0, 50, 50, 50)));
  EXPECT_TRUE(near_rect(seen(Wmf().window_org(100, 0).window_ext(-100, 100), 0, 0, 50, 50), QRect(50, 0, 50, 50)));
}

TEST(Mapping, ExtentZeroIsIgnored) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).window_ext(0, 50), 0, 0, 50, 50), QRect(0, 0, 50, 50)));
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).window_ext(0, 0), 0, 0, 50, 50), QRect(0, 0, 50, 50)));
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).viewport_ext(0, 9), 0, 0, 50, 50), QRect(0, 0, 50, 50)));
}

TEST(Mapping, WindowMayChangeInMidFile) {
  Wmf wmf;
  wmf.window(100, 100).fills(kRed).rectangle(0, 0, 50, 50).window_org(1000, 1000).window_ext(200, 200);
  wmf.fills(kBlue, 2).rectangle(1100, 1100, 1200, 1200);
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 25, 25, kRed));
  EXPECT_TRUE(has_color(image, 75, 75, kBlue));
  EXPECT_TRUE(has_color(image, 75, 25, kWhite));
}

TEST(Mapping, FirstWindowHoldsForWhatIsDrawnBeforeIt) {
  Wmf wmf;
  wmf.fills(kRed).rectangle(0, 0, 50, 50).window_ext(100, 100).fills(kBlue, 2).rectangle(50, 50, 100, 100);
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 25, 25, kRed));
  EXPECT_TRUE(has_color(image, 75, 75, kBlue));
}

TEST(Mapping, OffsetWindowMovesTheOrigin) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).offset_window(-20, -30), 0, 0, 50, 50), QRect(20, 30, 50, 50)));
}

TEST(Mapping, ScaleWindowChangesTheExtent) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).scale_window(2, 1, 4, 1), 0, 0, 100, 100), QRect(0, 0, 50, 25)));
}

TEST(Mapping, ScaleByZeroIsIgnored) {
  for (Wmf wmf : {Wmf().window(100, 100).scale_window(1, 0, 1, 1), Wmf().window(100, 100).scale_window(0, 1, 1, 1),
                  Wmf().window(100, 100).scale_viewport(1, 1, 1, 0)}) {
    EXPECT_TRUE(near_rect(seen(wmf, 0, 0, 50, 50), QRect(0, 0, 50, 50)));
  }
}

TEST(Mapping, ViewportGivenInFullFillsTheTarget) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).viewport_ext(640, 480), 0, 0, 50, 50), QRect(0, 0, 50, 50)));
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).viewport_org(30, 40).viewport_ext(640, 480), 0, 0, 50, 50),
                        QRect(0, 0, 50, 50)));
}

TEST(Mapping, LaterViewportIsAPartOfTheFirst) {
  Wmf wmf;
  wmf.window(100, 100).viewport_org(0, 0).viewport_ext(200, 200).fills(kRed).rectangle(0, 0, 20, 20);
  wmf.viewport_org(100, 100).viewport_ext(100, 100).fills(kBlue, 2).rectangle(0, 0, 100, 100);
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 10, 10, kRed));
  EXPECT_TRUE(has_color(image, 75, 75, kBlue));
  EXPECT_TRUE(has_color(image, 40, 40, kWhite));
}

TEST(Mapping, ViewportOriginAloneShifts) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).viewport_org(20, 30), 0, 0, 50, 50), QRect(20, 30, 50, 50)));
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).offset_viewport(20, 30), 0, 0, 50, 50), QRect(20, 30, 50, 50)));
}

TEST(Mapping, NegativeViewportTurnsThePicture) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).viewport_org(0, 100).viewport_ext(100, -100), 0, 0, 50, 50),
                        QRect(0, 50, 50, 50)));
}

TEST(Mapping, ScaleViewportShrinksThePicture) {
  EXPECT_TRUE(near_rect(seen(Wmf().window(100, 100).scale_viewport(1, 2, 1, 4), 0, 0, 100, 100), QRect(0, 0, 50, 25)));
}

TEST(Mapping, IsotropicKeepsSquaresSquareInAWindowOfAnotherShape) {
  EXPECT_TRUE(near_rect(seen(Wmf().map_mode(7).window(100, 100).viewport_ext(200, 100), 0, 0, 100, 100, 200, 100),
                        QRect(0, 0, 100, 100)));
}

TEST(Mapping, TextModeCountsPageUnits) {
  EXPECT_TRUE(near_rect(seen(Wmf().map_mode(1).window(100, 100), 0, 0, 50, 50), QRect(0, 0, 50, 50)));
}

TEST(Mapping, ModesOfFixedMeasureCountUpwards) {
  // An inch wide, an inch high; half an inch drawn at the top left.
  Wmf wmf;
  wmf.map_mode(5).fills(kRed).rectangle(0, 0, 500, -500);
  EXPECT_TRUE(near_rect(ink(draw_file(wmf.file(Wmf::placeable(0, 0, 1440, 1440, 1440)))), QRect(0, 0, 50, 50)));
}

TEST(Mapping, ModesOfFixedMeasureWithoutBoxShowWhatIsDrawn) {
  Wmf wmf;
  wmf.map_mode(2).fills(kRed).rectangle(0, 0, 100, -100).fills(kBlue, 2).rectangle(0, -100, 100, -200);
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 50, 25, kRed));
  EXPECT_TRUE(has_color(image, 50, 75, kBlue));
}

TEST(Mapping, ExtremeScalesDoNotFail) {
  Wmf wmf;
  wmf.window(1, 1).fills(kRed);
  for (int i = 0; i < 100; ++i) wmf.scale_window(1, 32767, 1, 32767).scale_viewport(32767, 1, 32767, 1);
  wmf.rectangle(-32768, -32768, 32767, 32767).ellipse(-32768, -32768, 32767, 32767);
  draw(wmf);
}

} // namespace cserko::test
