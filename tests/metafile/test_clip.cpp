#include "drawing.h"

namespace cserko::test {
namespace {

Wmf start() { return Wmf().window(100, 100).fills(kRed); }
QImage painted(Wmf wmf) { return draw(wmf.rectangle(0, 0, 100, 100)); }

} // namespace

TEST(Clip, IntersectNarrows) {
  EXPECT_TRUE(near_rect(ink(painted(start().intersect_clip(10, 20, 60, 70))), QRect(10, 20, 50, 50)));
  EXPECT_TRUE(near_rect(ink(painted(start().intersect_clip(10, 20, 60, 70).intersect_clip(40, 0, 99, 99))),
                        QRect(40, 20, 20, 50)));
  EXPECT_TRUE(ink(painted(start().intersect_clip(0, 0, 10, 10).intersect_clip(50, 50, 60, 60))).isNull());
}

TEST(Clip, ExcludeCutsAHole) {
  const QImage image = painted(start().exclude_clip(25, 25, 75, 75));
  EXPECT_TRUE(has_color(image, 10, 10, kRed));
  EXPECT_TRUE(has_color(image, 50, 50, kWhite));
  EXPECT_EQ(count_color(image, kRed), 100 * 100 - 50 * 50);
}

TEST(Clip, RegionIsSelectedByItsSlot) {
  EXPECT_TRUE(near_rect(ink(painted(start().region(30, 40, 60, 80).select_clip(2))), QRect(30, 40, 30, 40)));
  EXPECT_TRUE(near_rect(ink(painted(start().region(30, 40, 60, 80).select(2))), QRect(30, 40, 30, 40)));
}

TEST(Clip, RegionReplacesTheClipBefore) {
  EXPECT_TRUE(near_rect(ink(painted(start().region(30, 40, 60, 80).intersect_clip(0, 0, 5, 5).select_clip(2))),
                        QRect(30, 40, 30, 40)));
}

TEST(Clip, SelectingNoRegionLiftsTheClip) {
  EXPECT_TRUE(near_rect(ink(painted(start().intersect_clip(0, 0, 5, 5).select_clip(0))), QRect(0, 0, 100, 100)));
  EXPECT_TRUE(near_rect(ink(painted(start().intersect_clip(0, 0, 5, 5).select_clip(55))), QRect(0, 0, 5, 5)));
}

TEST(Clip, RegionOfManyScans) {
  Bytes region;
  region.words({0, 6}).u32(0).words({0, 2, 4, 0, 0, 100, 100});
  region.words({2, 0, 50, 0, 10, 2}).words({4, 50, 100, 20, 30, 90, 100, 4});
  const QImage image = painted(start().record(0x06FF, region.bytes()).select_clip(2));
  EXPECT_TRUE(has_color(image, 5, 25, kRed));
  EXPECT_TRUE(has_color(image, 25, 25, kWhite));
  EXPECT_TRUE(has_color(image, 25, 75, kRed));
  EXPECT_TRUE(has_color(image, 95, 75, kRed));
  EXPECT_EQ(count_color(image, kRed), 10 * 50 + 20 * 50);
}

TEST(Clip, OffsetMovesTheClip) {
  EXPECT_TRUE(
      near_rect(ink(painted(start().intersect_clip(10, 10, 20, 20).record(0x0220, {-5, 30}))), QRect(40, 5, 10, 10)));
}

TEST(Clip, BelongsToTheSavedState) {
  EXPECT_TRUE(near_rect(ink(painted(start().save().intersect_clip(0, 0, 5, 5).restore(-1))), QRect(0, 0, 100, 100)));
  EXPECT_TRUE(
      near_rect(ink(painted(start().intersect_clip(0, 0, 50, 50).save().intersect_clip(0, 0, 5, 5).restore(-1))),
                QRect(0, 0, 50, 50)));
}

TEST(Clip, HoldsForBitmapsToo) {
  Wmf wmf = start();
  wmf.exclude_clip(0, 0, 50, 100).stretch_dib(rop::kSrcCopy, {0, 0, 100, 100}, {0, 0, 1, 1}, dib24({{kBlue}}));
  EXPECT_TRUE(near_rect(ink(draw(wmf)), QRect(50, 0, 50, 100)));
}

TEST(Clip, HoldsForRasterOperationsOnPatterns) {
  Wmf wmf = start();
  wmf.intersect_clip(20, 20, 40, 40).pat_blt(rop::kDstInvert, {0, 0, 100, 100});
  EXPECT_EQ(count_color(draw(wmf), kBlack), 20 * 20);
}

TEST(Region, IsPaintedWithTheSelectedOrAGivenBrush) {
  Wmf wmf = start();
  wmf.region(10, 10, 30, 30).brush(0, kBlue).record(0x012B, {2}).record(0x0220, {0, 0});
  EXPECT_EQ(count_color(draw(wmf), kRed), 400);
  EXPECT_EQ(count_color(draw(start().region(10, 10, 30, 30).brush(0, kBlue).record(0x0228, {2, 3})), kBlue), 400);
}

} // namespace cserko::test
