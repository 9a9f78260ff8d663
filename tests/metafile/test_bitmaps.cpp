#include "drawing.h"
#include "platform/qt/metafile/bitmap.h"

namespace cserko::test {
namespace {

const QByteArray& four() {
  static const QByteArray dib = dib24({{kRed, kGreen}, {kBlue, kYellow}});
  return dib;
}

Wmf start() { return Wmf().window(100, 100); }

void expect_quarters(const QImage& image, quint32 lt, quint32 rt, quint32 lb, quint32 rb) {
  EXPECT_TRUE(has_color(image, 25, 25, lt));
  EXPECT_TRUE(has_color(image, 75, 25, rt));
  EXPECT_TRUE(has_color(image, 25, 75, lb));
  EXPECT_TRUE(has_color(image, 75, 75, rb));
}

/// A bitmap in another coding drawn over the whole window.
QImage whole(const QByteArray& dib, int size = 2) {
  return draw(start().stretch_dib(rop::kSrcCopy, {0, 0, 100, 100}, {0, 0, size, size}, dib));
}

} // namespace

TEST(Bitmaps, StretchDibDrawsTheWholeBitmapUpright) {
  expect_quarters(whole(four()), kRed, kGreen, kBlue, kYellow);
  EXPECT_TRUE(has_color(whole(four()), 49, 49, kRed));
  EXPECT_TRUE(has_color(whole(four()), 50, 50, kYellow));
}

TEST(Bitmaps, TopDownBitmapsAreDrawnUprightToo) {
  expect_quarters(whole(dib24({{kRed, kGreen}, {kBlue, kYellow}}, true)), kRed, kGreen, kBlue, kYellow);
}

TEST(Bitmaps, StretchDibTakesItsSourceFromTheLowerLeft) {
  const auto part = [](int x, int y) {
    return draw(start().stretch_dib(rop::kSrcCopy, {0, 0, 100, 100}, {x, y, 1, 1}, four()));
  };
  EXPECT_TRUE(has_color(part(0, 0), 50, 50, kBlue));
  EXPECT_TRUE(has_color(part(1, 0), 50, 50, kYellow));
  EXPECT_TRUE(has_color(part(0, 1), 50, 50, kRed));
}

TEST(Bitmaps, DibStretchBltTakesItsSourceFromTheTopLeft) {
  const auto part = [](int x, int y) {
    return draw(start().dib_stretch_blt(rop::kSrcCopy, {0, 0, 100, 100}, {x, y, 1, 1}, four()));
  };
  EXPECT_TRUE(has_color(part(0, 0), 50, 50, kRed));
  EXPECT_TRUE(has_color(part(1, 0), 50, 50, kGreen));
  EXPECT_TRUE(has_color(part(0, 1), 50, 50, kBlue));
}

TEST(Bitmaps, DibBitBltTakesItsSourceFromTheTopLeftUnscaled) {
  Wmf wmf = Wmf().window(4, 4);
  wmf.dib_bit_blt(rop::kSrcCopy, {1, 1, 2, 2}, 0, 0, four());
  const QImage image = draw(wmf);
  EXPECT_TRUE(near_rect(ink(image), QRect(25, 25, 50, 50), 0));
  EXPECT_TRUE(has_color(image, 30, 30, kRed));
  EXPECT_TRUE(has_color(image, 70, 70, kYellow));
  EXPECT_TRUE(
      has_color(draw(Wmf().window(1, 1).dib_bit_blt(rop::kSrcCopy, {0, 0, 1, 1}, 1, 1, four())), 50, 50, kYellow));
  EXPECT_TRUE(
      has_color(draw(Wmf().window(1, 1).dib_bit_blt(rop::kSrcCopy, {0, 0, 1, 1}, 0, 1, four())), 50, 50, kBlue));
}

TEST(Bitmaps, SetDibToDevTakesItsSourceFromTheLowerLeft) {
  const auto drawn = [](Wmf::Area from, int rows, int first, const QByteArray& dib) {
    return draw(Wmf().window(2, 2).set_dib_to_dev(0, 0, from, rows, first, dib));
  };
  expect_quarters(drawn({0, 0, 2, 2}, 2, 0, four()), kRed, kGreen, kBlue, kYellow);
  const QImage lower = drawn({0, 0, 2, 1}, 2, 0, four());
  EXPECT_TRUE(has_color(lower, 25, 25, kBlue));
  EXPECT_TRUE(has_color(lower, 75, 25, kYellow));
}

TEST(Bitmaps, SetDibToDevMayHoldSomeRowsOnly) {
  // The header speaks of two rows, the bytes hold one.
  QByteArray lower = dib24({{kBlue, kYellow}});
  lower[8] = 2;
  const QImage image = draw(Wmf().window(2, 2).set_dib_to_dev(0, 0, {0, 0, 2, 2}, 1, 0, lower));
  expect_quarters(image, kWhite, kWhite, kBlue, kYellow);
  const QImage upper = draw(Wmf().window(2, 2).set_dib_to_dev(0, 0, {0, 0, 2, 2}, 1, 1, lower));
  expect_quarters(upper, kBlue, kYellow, kWhite, kWhite);
}

TEST(Bitmaps, SomeRowsMayComeWithTheOldHeaderToo) {
  Bytes lower;
  lower.u32(12).words({2, 2, 1, 24});
  for (const quint32 color : {kBlue, kYellow}) lower.u8(color >> 16 & 255).u8(color >> 8 & 255).u8(color & 255);
  lower.u16(0);
  const auto drawn = [&](int rows, const QByteArray& dib) {
    return draw(Wmf().window(2, 2).set_dib_to_dev(0, 0, {0, 0, 2, 2}, rows, 0, dib));
  };
  expect_quarters(drawn(1, lower.bytes()), kWhite, kWhite, kBlue, kYellow);
  Bytes both(lower);
  for (const quint32 color : {kRed, kGreen}) both.u8(color >> 16 & 255).u8(color >> 8 & 255).u8(color & 255);
  expect_quarters(drawn(2, both.u16(0).bytes()), kRed, kGreen, kBlue, kYellow);
}

TEST(Bitmaps, NegativeSizesMirror) {
  const auto stretched = [](Wmf::Area to, Wmf::Area from) {
    return draw(start().dib_stretch_blt(rop::kSrcCopy, to, from, four()));
  };
  expect_quarters(stretched({100, 0, -100, 100}, {0, 0, 2, 2}), kGreen, kRed, kYellow, kBlue);
  expect_quarters(stretched({0, 100, 100, -100}, {0, 0, 2, 2}), kBlue, kYellow, kRed, kGreen);
  expect_quarters(stretched({0, 0, 100, 100}, {2, 0, -2, 2}), kGreen, kRed, kYellow, kBlue);
  expect_quarters(stretched({100, 100, -100, -100}, {2, 2, -2, -2}), kRed, kGreen, kBlue, kYellow);
}

TEST(Bitmaps, WindowThatCountsUpwardsNeedsANegativeHeight) {
  Wmf wmf = Wmf().window_org(0, 100).window_ext(100, -100);
  wmf.stretch_dib(rop::kSrcCopy, {0, 100, 100, -100}, {0, 0, 2, 2}, four());
  expect_quarters(draw(wmf), kRed, kGreen, kBlue, kYellow);
}

TEST(Bitmaps, SourceBeyondTheBitmapLeavesThatPartOut) {
  const QImage image = draw(start().dib_stretch_blt(rop::kSrcCopy, {0, 0, 100, 100}, {0, 0, 4, 4}, four()));
  EXPECT_TRUE(near_rect(ink(image), QRect(0, 0, 50, 50), 0));
  const QImage before = draw(start().dib_stretch_blt(rop::kSrcCopy, {0, 0, 100, 100}, {-2, -2, 4, 4}, four()));
  EXPECT_TRUE(near_rect(ink(before), QRect(50, 50, 50, 50), 0));
}

TEST(Bitmaps, LargeBitmapsAreAveragedWhenMadeSmaller) {
  QList<QList<quint32>> rows;
  for (int y = 0; y < 64; ++y) rows.append(QList<quint32>(64, y % 2 == 0 ? kBlack : kWhite));
  const QImage image = draw(start().stretch_dib(rop::kSrcCopy, {0, 0, 100, 100}, {0, 0, 64, 64}, dib24(rows)), 16, 16);
  EXPECT_NEAR(qRed(image.pixel(8, 8)), 128, 20);
}

TEST(Bitmaps, MadeLargerTheyKeepSharpPixels) {
  const QImage image = whole(four());
  EXPECT_EQ(count_color(image, kRed), 2500);
  EXPECT_EQ(count_color(image, kYellow), 2500);
}

TEST(BitmapCodings, OneBit) {
  const QByteArray dib = dib_table(2, 2, 1, {kRed, kBlue}, Bytes().u32(0x40).u32(0x80).bytes());
  expect_quarters(whole(dib), kBlue, kRed, kRed, kBlue);
}

TEST(BitmapCodings, FourAndEightBits) {
  const QList<quint32> colors = {kRed, kGreen, kBlue, kYellow};
  expect_quarters(whole(dib_table(2, 2, 4, colors, Bytes().u32(0x23).u32(0x01).bytes())), kRed, kGreen, kBlue, kYellow);
  expect_quarters(whole(dib_table(2, 2, 8, colors, Bytes().u32(0x0302).u32(0x0100).bytes())), kRed, kGreen, kBlue,
                  kYellow);
}

TEST(BitmapCodings, SixteenBitsAreFiveEach) {
  const QByteArray dib = dib_table(2, 2, 16, {}, Bytes().words({0x001F, 0x7FE0, 0x7C00, 0x03E0}).bytes());
  expect_quarters(whole(dib), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, SixteenBitsByMasks) {
  Bytes bytes;
  bytes.raw(dib_table(2, 2, 16, {}, {}, 3)).u32(0xF800).u32(0x07E0).u32(0x001F);
  bytes.words({0x001F, 0xFFE0, 0xF800, 0x07E0});
  expect_quarters(whole(bytes.bytes()), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, ThirtyTwoBitsAreOpaque) {
  const QByteArray dib =
      dib_table(2, 2, 32, {}, Bytes().u32(0x000000FF).u32(0x00FFFF00).u32(0x00FF0000).u32(0x0000FF00).bytes());
  expect_quarters(whole(dib), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, RunLengths) {
  const QList<quint32> colors = {kRed, kGreen, kBlue, kYellow};
  const QByteArray runs = Bytes().words({0x0201, 0x0301, 0x0000, 0x0001, 0x0101, 0x0100}).bytes();
  expect_quarters(whole(dib_table(2, 2, 8, colors, runs, 1)), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, OldHeader) {
  Bytes dib;
  dib.u32(12).words({2, 2, 1, 24});
  for (const quint32 color : {kBlue, kYellow}) dib.u8(color >> 16 & 255).u8(color >> 8 & 255).u8(color & 255);
  dib.u16(0);
  for (const quint32 color : {kRed, kGreen}) dib.u8(color >> 16 & 255).u8(color >> 8 & 255).u8(color & 255);
  dib.u16(0);
  expect_quarters(whole(dib.bytes()), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, LastRowMayLackItsPadding) {
  QByteArray dib = four();
  dib.chop(2);
  expect_quarters(whole(dib), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, TableMayHoldPaletteIndices) {
  Bytes dib;
  dib.u32(40).u32(2).u32(2).words({1, 8}).u32(0).u32(0).u32(0).u32(0).u32(4).u32(0);
  dib.words({3, 2, 1, 0}).u32(0x0302).u32(0x0100);
  Wmf wmf = start();
  wmf.palette({kYellow, kBlue, kGreen, kRed}).select(0);
  wmf.stretch_dib(rop::kSrcCopy, {0, 0, 100, 100}, {0, 0, 2, 2}, dib.bytes(), 1);
  expect_quarters(draw(wmf), kRed, kGreen, kBlue, kYellow);
}

TEST(BitmapCodings, BrokenBitmapsDrawNothingAndStopNothing) {
  QList<QByteArray> broken;
  const auto patched = [&broken](qsizetype offset, quint32 value, int bytes) {
    QByteArray dib = four();
    for (int i = 0; i < bytes; ++i) dib[offset + i] = static_cast<char>(value >> 8 * i);
    broken.append(dib);
  };
  for (const quint32 size : {0U, 11U, 13U, 39U, 125U, 0xFFFFFFFFU}) patched(0, size, 4);
  for (const quint32 side : {0U, 0x80000000U, 0x7FFFFFFFU, 0xFFFFFFFFU, 5000U}) patched(4, side, 4);
  for (const quint32 side : {0U, 0x80000000U, 0x7FFFFFFFU, 5000U}) patched(8, side, 4);
  for (const quint32 depth : {0U, 2U, 7U, 48U, 64U, 0xFFFFU}) patched(14, depth, 2);
  for (const quint32 coding : {1U, 2U, 3U, 4U, 5U, 99U}) patched(16, coding, 4);
  for (qsizetype length = 0; length < four().size() - 3; ++length) broken.append(four().first(length));
  for (const QByteArray& dib : broken) {
    Wmf wmf = start();
    wmf.stretch_dib(rop::kSrcCopy, {0, 0, 100, 100}, {0, 0, 2, 2}, dib);
    wmf.dib_bit_blt(rop::kSrcCopy, {0, 0, 100, 100}, 0, 0, dib + QByteArray(dib.size() < 4 ? 4 : 0, '\1'));
    wmf.dib_pattern(dib).fills(kRed, 1).rectangle(0, 0, 50, 50);
    const QImage image = draw(wmf);
    EXPECT_TRUE(has_color(image, 25, 25, kRed));
    EXPECT_TRUE(has_color(image, 75, 75, kWhite)) << dib.toHex().toStdString();
  }
}

TEST(BitmapCodings, PixelsAreCapped) {
  const QByteArray runs = Bytes().words({0x0100, 0x0100}).bytes();
  EXPECT_TRUE(check_dib(dib_table(4000, 4000, 8, {kRed}, runs, 1), DibColors::Direct));
  EXPECT_FALSE(check_dib(dib_table(40000, 40000, 8, {kRed}, runs, 1), DibColors::Direct));
  EXPECT_FALSE(check_dib(dib_table(0x7FFFFFFF, 0x7FFFFFFF, 8, {kRed}, runs, 1), DibColors::Direct));
}

TEST(RasterOperations, OnBitmaps) {
  struct Case {
    quint32 operation, on_yellow;
  };
  constexpr quint32 s = rgb(255, 0, 255), d = kYellow, all = 0xFFFFFF;
  for (const Case& c :
       {Case{rop::kSrcCopy, s}, Case{rop::kSrcAnd, s & d}, Case{rop::kSrcPaint, s | d}, Case{rop::kSrcInvert, s ^ d},
        Case{rop::kNotSrcCopy, ~s & all}, Case{rop::kBlackness, kBlack}, Case{rop::kWhiteness, kWhite},
        Case{rop::kDstInvert, ~d & all}, Case{rop::kPatCopy, d}, Case{rop::kMergeCopy, s & d}}) {
    const Wmf paper = start().fills(d).rectangle(0, 0, 100, 100);
    const QByteArray dib = dib24({{s}});
    const QImage images[] = {draw(Wmf(paper).dib_stretch_blt(c.operation, {0, 0, 50, 100}, {0, 0, 1, 1}, dib)),
                             draw(Wmf(paper).stretch_dib(c.operation, {0, 0, 50, 100}, {0, 0, 1, 1}, dib)),
                             draw(Wmf(paper).window(2, 1).dib_bit_blt(c.operation, {0, 0, 1, 1}, 0, 0, dib))};
    for (const QImage& image : images) {
      EXPECT_TRUE(has_color(image, 25, 50, c.on_yellow)) << std::hex << c.operation;
      EXPECT_TRUE(has_color(image, 75, 50, d)) << std::hex << c.operation;
    }
  }
}

TEST(RasterOperations, OnPatterns) {
  struct Case {
    quint32 operation, wanted;
  };
  constexpr quint32 p = rgb(255, 0, 255), d = kYellow, all = 0xFFFFFF;
  for (const Case& c : {Case{rop::kPatCopy, p}, Case{rop::kPatInvert, p ^ d}, Case{rop::kBlackness, kBlack},
                        Case{rop::kWhiteness, kWhite}, Case{rop::kDstInvert, ~d & all}}) {
    const Wmf paper = start().fills(d).rectangle(0, 0, 100, 100).fills(p, 2);
    const QImage images[] = {draw(Wmf(paper).pat_blt(c.operation, {0, 0, 50, 100})),
                             draw(Wmf(paper).dib_bit_blt(c.operation, {0, 0, 50, 100}, 0, 0, {})),
                             draw(Wmf(paper).dib_stretch_blt(c.operation, {0, 0, 50, 100}, {0, 0, 1, 1}, {})),
                             draw(Wmf(paper).pat_blt(c.operation, {50, 100, -50, -100}))};
    for (const QImage& image : images) {
      EXPECT_TRUE(has_color(image, 25, 50, c.wanted)) << std::hex << c.operation;
      EXPECT_TRUE(has_color(image, 75, 50, d)) << std::hex << c.operation;
    }
  }
}

TEST(RasterOperations, EveryCodeIsItsTruthTable) {
  for (int code = 0; code < 256; ++code) {
    const auto c = static_cast<quint8>(code);
    const QRgb result = raster_operation(c, 0xFF0F0F0F, 0xFF333333, 0xFF555555);
    QRgb wanted = 0;
    for (int bit = 0; bit < 8; ++bit) {
      const int index = (0x0F >> bit & 1) << 2 | (0x33 >> bit & 1) << 1 | (0x55 >> bit & 1);
      wanted |= static_cast<QRgb>(code >> index & 1) << bit;
    }
    EXPECT_EQ(result & 0xFF, wanted) << code;
    EXPECT_EQ(qAlpha(result), 255);
  }
}

TEST(RasterOperations, MaskAndImageMakeATransparentSprite) {
  // White where the paper stays, then the picture black there.
  Wmf wmf = start().fills(kYellow).rectangle(0, 0, 100, 100);
  const QByteArray mask = dib24({{kWhite, kBlack}, {kBlack, kWhite}});
  const QByteArray sprite = dib24({{kBlack, kRed}, {kBlue, kBlack}});
  wmf.dib_stretch_blt(rop::kSrcAnd, {0, 0, 100, 100}, {0, 0, 2, 2}, mask);
  wmf.dib_stretch_blt(rop::kSrcPaint, {0, 0, 100, 100}, {0, 0, 2, 2}, sprite);
  expect_quarters(draw(wmf), kYellow, kRed, kBlue, kYellow);
}

TEST(RasterOperations, BlitWithoutBitmapCopiesThePicture) {
  Wmf wmf = start().fills(kRed).rectangle(0, 0, 20, 20);
  wmf.record(0x0940, Bytes().u32(rop::kSrcCopy).words({0, 0, 0, 20, 20, 60, 50}).bytes());
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 55, 65, kRed));
  EXPECT_TRUE(has_color(image, 75, 65, kWhite));
}

} // namespace cserko::test
