#include "drawing.h"

namespace cserko::test {
namespace {

/// A red square on the left upper quarter of a window of 100.
Wmf quarter() {
  Wmf wmf;
  wmf.window(100, 100).fills(kRed).rectangle(0, 0, 50, 50);
  return wmf;
}

QByteArray with_header(const QByteArray& header) {
  return header + quarter().records() + Bytes().u32(3).u16(0).bytes();
}

void expect_quarter(const QByteArray& file) {
  const QImage image = draw_file(file);
  EXPECT_TRUE(has_color(image, 25, 25, kRed));
  EXPECT_TRUE(has_color(image, 75, 25, kWhite));
  EXPECT_TRUE(has_color(image, 25, 75, kWhite));
}

} // namespace

TEST(Headers, PlainHeaderIsEnough) { expect_quarter(quarter().file()); }

TEST(Headers, PlaceableHeaderMayStandInFront) { expect_quarter(quarter().file(Wmf::placeable(0, 0, 100, 100, 1440))); }

TEST(Headers, WrongSizesVersionsAndChecksumsAreIgnored) {
  expect_quarter(with_header(Wmf::header(1, 9, 0x0300, 0xFFFFFFFF)));
  expect_quarter(with_header(Wmf::header(2, 9, 0x0100, 1)));
  expect_quarter(with_header(Wmf::header(1, 77, 0, 0)));
  expect_quarter(quarter().file(Wmf::placeable(0, 0, 100, 100, 1440, 0xBEEF)));
}

TEST(Headers, BoxGivesTheAspectOnlyTheWindowFillsTheTarget) {
  const QByteArray file = quarter().file(Wmf::placeable(700, 700, 2700, 1700, 1440));
  const auto metafile = Metafile::parse(file);
  ASSERT_TRUE(metafile);
  EXPECT_NEAR(metafile->natural_size().width() / metafile->natural_size().height(), 2.0, 1e-6);
  expect_quarter(file);
}

TEST(Headers, BoxTellsTheSizeAtNinetySixDotsAnInch) {
  const auto metafile = Metafile::parse(quarter().file(Wmf::placeable(0, 0, 2880, 1440, 1440)));
  ASSERT_TRUE(metafile);
  EXPECT_EQ(metafile->natural_size(), QSizeF(192, 96));
}

TEST(Headers, BoxWithoutUnitsIsTakenInTwips) {
  const auto metafile = Metafile::parse(quarter().file(Wmf::placeable(0, 0, 1440, 2880, 0)));
  ASSERT_TRUE(metafile);
  EXPECT_EQ(metafile->natural_size(), QSizeF(96, 192));
}

TEST(Headers, BoxWithCornersExchangedIsTheSameBox) {
  const auto metafile = Metafile::parse(quarter().file(Wmf::placeable(2880, 1440, 0, 0, 1440)));
  ASSERT_TRUE(metafile);
  EXPECT_EQ(metafile->natural_size(), QSizeF(192, 96));
}

TEST(Headers, EmptyBoxIsNoBox) {
  const auto metafile = Metafile::parse(quarter().file(Wmf::placeable(5, 5, 5, 900, 1440)));
  ASSERT_TRUE(metafile);
  EXPECT_EQ(metafile->natural_size(), QSizeF(512, 512));
  expect_quarter(quarter().file(Wmf::placeable(5, 5, 5, 900, 1440)));
}

TEST(Headers, WithoutBoxTheWindowGivesTheAspect) {
  Wmf wmf;
  wmf.window(400, 100).fills(kRed).rectangle(0, 0, 10, 10);
  const auto metafile = Metafile::parse(wmf.file());
  ASSERT_TRUE(metafile);
  EXPECT_EQ(metafile->natural_size(), QSizeF(512, 128));
}

TEST(Headers, WithoutBoxAndWindowTheDrawnBoundsGiveThePage) {
  Wmf wmf;
  wmf.fills(kRed).rectangle(300, 100, 400, 150).fills(kBlue, 2).rectangle(400, 100, 500, 150);
  const auto metafile = Metafile::parse(wmf.file());
  ASSERT_TRUE(metafile);
  EXPECT_EQ(metafile->natural_size(), QSizeF(512, 128));
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 2, 2, kRed));
  EXPECT_TRUE(has_color(image, 48, 97, kRed));
  EXPECT_TRUE(has_color(image, 52, 2, kBlue));
  EXPECT_TRUE(has_color(image, 97, 97, kBlue));
}

TEST(Headers, BoxWithoutWindowIsTheWindow) {
  Wmf wmf;
  wmf.fills(kRed).rectangle(1000, 500, 1100, 600);
  const QImage image = draw_file(wmf.file(Wmf::placeable(1000, 500, 1200, 700, 1440)));
  EXPECT_TRUE(near_rect(ink(image), QRect(0, 0, 50, 50)));
}

TEST(Headers, PictureBesideItsWindowIsShownAsDrawn) {
  Wmf wmf;
  wmf.window(100, 100).fills(kRed).rectangle(5000, 5000, 5100, 5100);
  EXPECT_TRUE(near_rect(ink(draw(wmf)), QRect(0, 0, 100, 100)));
}

TEST(Headers, ExtremeAspectIsLimited) {
  const auto metafile = Metafile::parse(quarter().file(Wmf::placeable(0, 0, 32000, 1, 1440)));
  ASSERT_TRUE(metafile);
  EXPECT_LE(metafile->natural_size().width() / metafile->natural_size().height(), 64.01);
  EXPECT_GE(metafile->natural_size().height(), 1.0);
}

TEST(Records, MissingEndRecordIsFine) {
  QByteArray file = quarter().file();
  file.chop(6);
  expect_quarter(file);
}

TEST(Records, WhatFollowsTheEndRecordIsNotPlayed) {
  expect_quarter(quarter().file() + Wmf().rectangle(0, 0, 100, 100).records());
}

TEST(Records, TooSmallSizeEndsTheDrawingAndKeepsIt) {
  const QByteArray rest = Wmf().rectangle(0, 0, 100, 100).records();
  for (const quint32 size : {0U, 1U, 2U}) {
    expect_quarter(Wmf::header() + quarter().records() + Bytes().u32(size).u16(0x041B).bytes() + rest);
  }
}

TEST(Records, RecordPastTheEndOfTheFileEndsTheDrawingAndKeepsIt) {
  for (const quint32 size : {40U, 0x7FFFFFFFU, 0x80000003U, 0xFFFFFFFFU}) {
    const QByteArray cut = Bytes().u32(size).u16(0x041B).words({100, 100, 0, 0}).bytes();
    expect_quarter(Wmf::header() + quarter().records() + cut);
  }
}

TEST(Records, UnknownRecordsAndEscapesAreSkipped) {
  Wmf wmf;
  wmf.window(100, 100).record(0x0626, {15, 4, 1, 2}).record(0x7B7B, {1, 2, 3}).record(0x0626).fills(kRed);
  wmf.record(0x0999).rectangle(0, 0, 50, 50);
  expect_quarter(wmf.file());
}

TEST(Records, RecordsWithTooFewArgumentsAreSkipped) {
  for (const int function : {0x0103, 0x0104, 0x012D, 0x01F0, 0x0201, 0x0209, 0x020B, 0x020C, 0x0213, 0x0214, 0x0324,
                             0x0325, 0x0410, 0x0415, 0x0416, 0x0418, 0x041B, 0x041F, 0x0521, 0x0538, 0x061C, 0x061D,
                             0x0817, 0x081A, 0x0830, 0x0940, 0x0A32, 0x0B41, 0x0D33, 0x0F43, 0x0127, 0x012C}) {
    Wmf wmf;
    wmf.window(100, 100).fills(kRed).record(function).rectangle(0, 0, 50, 50);
    SCOPED_TRACE(function);
    expect_quarter(wmf.file());
  }
}

TEST(Records, CountsBeyondTheRecordAreCutToIt) {
  Wmf wmf;
  wmf.window(100, 100).fills(kRed);
  wmf.record(0x0324, Bytes().u16(60000).words({0, 0, 50, 0, 50, 50, 0, 50}).bytes());
  expect_quarter(wmf.file());
}

TEST(Records, FileCutAtEveryByteNeitherFailsNorDrawsMore) {
  Wmf wmf;
  wmf.window(100, 100).fills(kRed).rectangle(0, 0, 50, 50).font(-20, "Times New Roman").select(2);
  wmf.ext_text_out(10, 60, "ab", {2, 0, 60, 40, 90}, {12, 12});
  wmf.stretch_dib(rop::kSrcCopy, {60, 60, 20, 20}, {0, 0, 2, 2}, dib24({{kRed, kGreen}, {kBlue, kBlack}}));
  wmf.poly_polygon({{{60, 0}, {90, 0}, {90, 30}}, {{60, 40}, {90, 40}, {90, 50}}});
  const QByteArray whole = wmf.file(Wmf::placeable(0, 0, 100, 100, 100));
  const int full = count_color(draw_file(whole), kWhite);
  int before = 100 * 100;
  for (qsizetype length = 0; length < whole.size(); ++length) {
    const int white = count_color(draw_file(whole.first(length), 100, 100), kWhite);
    EXPECT_LE(white, before) << length;
    before = white;
  }
  EXPECT_EQ(before, full);
}

TEST(Records, NothingDrawnIsNoPicture) {
  EXPECT_FALSE(Metafile::parse({}));
  EXPECT_FALSE(Metafile::parse("Ez nem kép."));
  EXPECT_FALSE(Metafile::parse(QByteArray(5000, 'x')));
  EXPECT_FALSE(Metafile::parse(QByteArray(5000, '\0')));
  EXPECT_FALSE(Metafile::parse(Wmf().window(100, 100).file()));
  EXPECT_FALSE(Metafile::parse(Wmf().window(100, 100).record(0x0626, {15}).file()));
  EXPECT_TRUE(render_metafile("junk", {10, 10}, PictureFit::Stretch).isNull());
}

TEST(Paper, PlainPictureHasNoBackground) {
  const auto metafile = Metafile::parse(quarter().file());
  ASSERT_TRUE(metafile);
  EXPECT_FALSE(metafile->needs_paper());
  const QImage image = metafile->render({100, 100}, PictureFit::Stretch);
  EXPECT_EQ(qAlpha(image.pixel(75, 75)), 0);
  EXPECT_EQ(qAlpha(image.pixel(25, 25)), 255);
}

TEST(Paper, PictureThatCombinesWithItsBackgroundStandsOnWhite) {
  Wmf xor_pen = quarter();
  xor_pen.rop2(7);
  Wmf mask = quarter();
  mask.dib_bit_blt(rop::kSrcAnd, {0, 0, 1, 1}, 0, 0, dib24({{kBlack}}));
  Wmf invert = quarter();
  invert.pat_blt(rop::kDstInvert, {0, 0, 1, 1});
  for (const Wmf& wmf : {xor_pen, mask, invert}) {
    const auto metafile = Metafile::parse(wmf.file());
    ASSERT_TRUE(metafile);
    EXPECT_TRUE(metafile->needs_paper());
    EXPECT_EQ(metafile->render({100, 100}, PictureFit::Stretch).pixel(75, 75), 0xFFFFFFFF);
  }
}

TEST(Paper, OperationsThatOnlyLayOverNeedNoPaper) {
  Wmf wmf = quarter();
  wmf.rop2(1).rop2(16).rop2(4).rop2(11).rop2(13).pat_blt(rop::kPatCopy, {0, 0, 1, 1});
  wmf.pat_blt(rop::kBlackness, {0, 0, 1, 1}).pat_blt(rop::kWhiteness, {0, 0, 1, 1});
  wmf.stretch_dib(rop::kSrcCopy, {0, 0, 1, 1}, {0, 0, 1, 1}, dib24({{kRed}}));
  const auto metafile = Metafile::parse(wmf.file());
  ASSERT_TRUE(metafile);
  EXPECT_FALSE(metafile->needs_paper());
}

TEST(Fit, KeptAspectIsCentred) {
  Wmf wmf;
  wmf.window(100, 50).fills(kRed).rectangle(0, 0, 100, 50);
  const auto metafile = Metafile::parse(wmf.file());
  ASSERT_TRUE(metafile);
  const QImage image = metafile->render({100, 100}, PictureFit::KeepAspect);
  EXPECT_EQ(image.size(), QSize(100, 100));
  EXPECT_EQ(qAlpha(image.pixel(50, 20)), 0);
  EXPECT_EQ(qAlpha(image.pixel(50, 50)), 255);
  EXPECT_EQ(qAlpha(image.pixel(50, 80)), 0);
}

TEST(Fit, SizesBeyondTheLimitsGiveNothing) {
  const auto metafile = Metafile::parse(quarter().file());
  ASSERT_TRUE(metafile);
  EXPECT_TRUE(metafile->render({0, 10}, PictureFit::Stretch).isNull());
  EXPECT_TRUE(metafile->render({-5, 10}, PictureFit::KeepAspect).isNull());
  EXPECT_TRUE(metafile->render({8193, 1}, PictureFit::Stretch).isNull());
  EXPECT_TRUE(metafile->render({8192, 8192}, PictureFit::Stretch).isNull());
  EXPECT_FALSE(metafile->render({1, 1}, PictureFit::Stretch).isNull());
}

TEST(Fit, DrawPaintsIntoTheTargetOfAPainter) {
  const auto metafile = Metafile::parse(quarter().file());
  ASSERT_TRUE(metafile);
  QImage paper(200, 200, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  painter.scale(2, 2);
  EXPECT_TRUE(metafile->draw(painter, QRectF(50, 50, 50, 50), PictureFit::Stretch));
  EXPECT_FALSE(metafile->draw(painter, QRectF(50, 50, 0, 50), PictureFit::Stretch));
  painter.end();
  EXPECT_TRUE(near_rect(ink(paper), QRect(100, 100, 50, 50)));
}

} // namespace cserko::test
