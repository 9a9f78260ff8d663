#include "drawing.h"

namespace cserko::test {
namespace {

/// A full-size box with the objects selected at that point.
QImage painted(Wmf wmf) { return draw(wmf.rectangle(0, 0, 100, 100)); }

Wmf start() { return Wmf().window(100, 100); }

} // namespace

TEST(Objects, NewObjectTakesTheLowestFreeSlot) {
  Wmf wmf = start();
  wmf.pen(5, 0, 0).brush(0, kRed).brush(0, kGreen).brush(0, kBlue).remove(1).remove(2).brush(0, kYellow);
  wmf.select(0).select(1);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kYellow));
  wmf.brush(0, kBlack).select(2);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kBlack));
}

TEST(Objects, EveryCreateTakesASlot) {
  const QByteArray dib = dib24({{kGreen}});
  const QByteArray broken = Bytes().words({5, 0, 1, 2, 3}).bytes();
  Wmf wmf = start();
  wmf.palette({kRed, kBlue}).region(0, 0, 10, 10).dib_pattern(dib).record(0x0142, broken).record(0x01F9, {0, 1, 1});
  wmf.record(0x00F8, {1}).record(0x06FE, {1}).record(0x02FD, {1}).font(10, "Arial").pen(5, 0, 0).brush(0, kRed);
  wmf.select(9).select(10);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kRed));
}

TEST(Objects, CreateWithTooFewArgumentsStillTakesASlot) {
  for (const int function : {0x00F7, 0x06FF, 0x0142, 0x01F9, 0x00F8, 0x06FE, 0x02FD, 0x02FA, 0x02FB, 0x02FC}) {
    Wmf wmf = start();
    wmf.record(function).pen(5, 0, 0).brush(0, kRed).select(1).select(2);
    EXPECT_TRUE(has_color(painted(wmf), 50, 50, kRed)) << std::hex << function;
  }
}

TEST(Objects, DeletingASelectedObjectIsHarmless) {
  Wmf wmf = start();
  wmf.fills(kRed).remove(1).remove(0);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kRed));
  wmf.brush(0, kBlue).brush(0, kGreen);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kRed));
}

TEST(Objects, SelectingOrDeletingAFreeSlotDoesNothing) {
  Wmf wmf = start();
  wmf.fills(kRed).select(7).select(65535).remove(9).remove(65535).remove(40).brush(0, kGreen).select(2);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kGreen));
}

TEST(Objects, DeletingTwiceFreesTheSlotOnce) {
  Wmf wmf = start();
  wmf.fills(kRed).brush(0, kBlue).remove(2).remove(2).brush(0, kGreen).brush(0, kYellow).select(2);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kGreen));
  wmf.select(3);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kYellow));
}

TEST(Objects, WithoutObjectsThePenIsBlackAndTheBrushWhite) {
  const QImage image = draw(Wmf().window(100, 100).fills(kRed).rectangle(0, 0, 100, 100));
  EXPECT_TRUE(has_color(image, 50, 50, kRed));
  const QImage plain = painted(start());
  EXPECT_TRUE(has_color(plain, 0, 50, kBlack));
  EXPECT_TRUE(has_color(plain, 50, 50, kWhite));
  EXPECT_EQ(
      qAlpha(render_metafile(start().rectangle(0, 0, 100, 100).file(), {100, 100}, PictureFit::Stretch).pixel(50, 50)),
      255);
}

TEST(Objects, ColoursMayBePaletteIndices) {
  constexpr quint32 kSecondEntry = 0x01000001;
  Wmf wmf = start();
  wmf.palette({kRed, kBlue}).record(0x0234, {0}).fills(kSecondEntry, 1);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kBlue));
}

TEST(Save, RestoreBringsBackEverything) {
  Wmf wmf = start();
  wmf.fills(kRed).save().brush(0, kBlue).select(2).window(200, 200).intersect_clip(0, 0, 10, 10).rop2(7).restore(-1);
  const QImage image = painted(wmf);
  EXPECT_TRUE(has_color(image, 50, 50, kRed));
  EXPECT_TRUE(has_color(image, 95, 95, kRed));
}

TEST(Save, NegativeLevelsCountFromTheLast) {
  Wmf wmf = start();
  wmf.pen(5, 0, 0).brush(0, kRed).brush(0, kGreen).brush(0, kBlue).brush(0, kYellow).select(0);
  wmf.select(1).save().select(2).save().select(3).save().select(4);
  Wmf one = wmf, two = wmf, three = wmf;
  EXPECT_TRUE(has_color(painted(one.restore(-1)), 50, 50, kBlue));
  EXPECT_TRUE(has_color(painted(two.restore(-2)), 50, 50, kGreen));
  EXPECT_TRUE(has_color(painted(three.restore(-3)), 50, 50, kRed));
  EXPECT_TRUE(has_color(painted(two.restore(-1)), 50, 50, kRed)) << "the levels above were dropped";
}

TEST(Save, PositiveLevelsCountFromTheFirst) {
  Wmf wmf = start();
  wmf.pen(5, 0, 0).brush(0, kRed).brush(0, kGreen).brush(0, kBlue).select(0);
  wmf.select(1).save().select(2).save().select(3);
  Wmf one = wmf, two = wmf;
  EXPECT_TRUE(has_color(painted(one.restore(1)), 50, 50, kRed));
  EXPECT_TRUE(has_color(painted(two.restore(2)), 50, 50, kGreen));
  EXPECT_TRUE(has_color(painted(two.restore(1)), 50, 50, kRed));
}

TEST(Save, LevelsThatDoNotExistAreIgnored) {
  Wmf wmf = start();
  wmf.fills(kRed).save().brush(0, kBlue).select(2).restore(0).restore(2).restore(-2).restore(32767).restore(-32768);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kBlue));
  EXPECT_TRUE(has_color(painted(wmf.restore(-1)), 50, 50, kRed));
  EXPECT_TRUE(has_color(painted(wmf.restore(-1).restore(1)), 50, 50, kRed));
}

TEST(Save, SavesBeyondTheDepthStillPairWithTheirRestores) {
  Wmf wmf = start();
  wmf.fills(kRed).brush(0, kBlue).brush(0, kGreen).save().select(2);
  for (int i = 0; i < 1000; ++i) wmf.save();
  wmf.select(3);
  for (int i = 0; i < 1000; ++i) wmf.restore(-1);
  EXPECT_TRUE(has_color(painted(wmf), 50, 50, kBlue));
  EXPECT_TRUE(has_color(painted(wmf.restore(-1)), 50, 50, kRed));
}

} // namespace cserko::test
