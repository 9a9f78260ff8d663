#include "drawing.h"
#include "platform/qt/metafile/charset.h"

#include <QFontInfo>
#include <string>

namespace cserko::test {
namespace {

constexpr int kTop = 0, kUpdate = 1, kRight = 2, kCenter = 6, kBottom = 8, kBaseline = 24;
constexpr int kOpaqueBox = 2, kClippedBox = 4;

/// Transparent black text of 40 units in a window of 200.
Wmf start() { return Wmf().window(200, 200).font(-40, "Times New Roman").select(0).bk_mode(1); }
QImage seen(const Wmf& wmf) { return draw(wmf, 200, 200); }

} // namespace

TEST(Text, StartsAtItsPointAndHangsBelowIt) {
  const QRect rect = ink(seen(start().text_out(50, 60, "HHH")));
  EXPECT_NEAR(rect.left(), 50, 3);
  EXPECT_GT(rect.top(), 60);
  EXPECT_NEAR(rect.height(), 40 * 0.66, 4) << "capitals are two thirds of the letter height";
  EXPECT_NEAR(rect.width(), 3 * 40 * 0.72, 8);
}

TEST(Text, StringsOfOddLengthArePadded) {
  EXPECT_FALSE(ink(seen(start().text_out(50, 60, "H"))).isNull());
  EXPECT_EQ(ink(seen(start().text_out(50, 60, "HH"))).top(), ink(seen(start().text_out(50, 60, "H"))).top());
}

TEST(Text, AlignmentSetsItAroundItsPoint) {
  const auto aligned = [](int align) { return ink(seen(start().text_align(align).text_out(100, 100, "HH"))); };
  EXPECT_NEAR(aligned(kTop).left(), 100, 3);
  EXPECT_NEAR(aligned(kRight).right(), 100, 3);
  EXPECT_NEAR(aligned(kCenter).center().x(), 100, 2);
  EXPECT_NEAR(aligned(kBaseline).bottom(), 100, 2);
  EXPECT_LT(aligned(kBottom).bottom(), 97) << "descenders have room below";
  EXPECT_GT(aligned(kTop).top(), 102);
  EXPECT_NEAR(aligned(kRight | kBaseline).right(), 100, 3);
  EXPECT_NEAR(aligned(kRight | kBaseline).bottom(), 100, 2);
}

TEST(Text, AtTheCurrentPositionItMovesIt) {
  const QImage image =
      seen(start().text_align(kUpdate | kBaseline).move_to(10, 100).text_out(0, 0, "H").text_out(0, 0, "H"));
  const QRect one = ink(seen(start().text_align(kBaseline).text_out(10, 100, "H")));
  const QRect both = ink(image);
  EXPECT_EQ(both.left(), one.left());
  EXPECT_NEAR(both.right() - one.right(), 40 * 0.72, 2);
}

TEST(Text, EndingAtTheCurrentPositionItMovesItBack) {
  const QRect one = ink(seen(start().text_align(kRight | kBaseline).text_out(150, 100, "H")));
  const QRect both = ink(
      seen(start().text_align(kUpdate | kRight | kBaseline).move_to(150, 100).text_out(0, 0, "H").text_out(0, 0, "H")));
  EXPECT_EQ(both.right(), one.right());
  EXPECT_NEAR(one.left() - both.left(), 40 * 0.72, 2);
}

TEST(Text, PositiveHeightIsThatOfTheLine) {
  const auto height = [](int h) {
    return ink(seen(Wmf().window(200, 200).font(h, "Times New Roman").select(0).bk_mode(1).text_out(10, 10, "H")))
        .height();
  };
  EXPECT_LT(height(60), height(-60));
  EXPECT_GT(height(60), height(-60) * 3 / 4);
  EXPECT_GT(height(0), 3) << "a default";
}

TEST(Text, ScalesWithThePicture) {
  const QRect small = ink(draw(start().text_out(20, 20, "HHH"), 200, 200));
  const QRect large = ink(draw(start().text_out(20, 20, "HHH"), 800, 800));
  EXPECT_NEAR(large.width(), small.width() * 4, 8);
  EXPECT_NEAR(large.height(), small.height() * 4, 8);
  const QRect wide = ink(draw(start().text_out(20, 20, "HHH"), 400, 200));
  EXPECT_NEAR(wide.width(), small.width() * 2, 4) << "letters become wider with a stretched picture";
  EXPECT_NEAR(wide.height(), small.height(), 1);
}

TEST(Text, EscapementTurnsCounterClockwise) {
  const Wmf wmf = Wmf().window(200, 200).font(-40, "Times New Roman", 900).select(0).bk_mode(1).text_align(kBaseline);
  const QRect rect = ink(seen(Wmf(wmf).text_out(100, 150, "HHH")));
  EXPECT_GT(rect.height(), rect.width()) << "upwards";
  EXPECT_NEAR(rect.bottom(), 150, 3);
  EXPECT_NEAR(rect.right(), 100, 2);
}

TEST(Text, HasItsColour) {
  const QImage image = seen(start().text_color(kRed).text_out(10, 10, "HHH"));
  EXPECT_GT(count_color(image, kRed), 100);
  EXPECT_EQ(count_color(image, kBlack), 0);
}

TEST(Text, OpaqueModeLaysABackgroundBelowTheLine) {
  const QImage image = seen(start().bk_mode(2).bk_color(kYellow).text_align(kBaseline).text_out(50, 100, "HHH"));
  EXPECT_TRUE(has_color(image, 60, 104, kYellow)) << "down to the descenders";
  EXPECT_TRUE(has_color(image, 45, 90, kWhite));
  EXPECT_EQ(count_color(seen(start().bk_color(kYellow).text_out(50, 100, "HHH")), kYellow), 0);
}

TEST(Text, WeightMakesItBold) {
  const auto black = [](int weight) {
    return count_color(seen(Wmf()
                                .window(200, 200)
                                .font(-40, "Times New Roman", 0, 0, weight)
                                .select(0)
                                .bk_mode(1)
                                .text_out(10, 10, "HHH")),
                       kBlack);
  };
  EXPECT_GT(black(700), black(400) * 5 / 4);
}

TEST(Text, CharacterExtraSpreadsLetters) {
  const int plain = ink(seen(start().text_out(10, 10, "HHH"))).width();
  const int spread = ink(seen(start().record(0x0108, {10}).text_out(10, 10, "HHH"))).width();
  EXPECT_NEAR(spread - plain, 20, 2);
}

TEST(Text, JustificationWidensBlanks) {
  const int plain = ink(seen(start().text_out(10, 10, "H H H"))).width();
  const int spread = ink(seen(start().record(0x020A, {2, 30}).text_out(10, 10, "H H H"))).width();
  EXPECT_NEAR(spread - plain, 30, 2);
}

TEST(ExtText, WithoutOptionsIsLikeTextOut) {
  EXPECT_EQ(ink(seen(start().ext_text_out(50, 60, "HHH", {}))), ink(seen(start().text_out(50, 60, "HHH"))));
}

TEST(ExtText, AdvancesPlaceEachLetter) {
  const QImage image = seen(start().ext_text_out(10, 60, "III", {}, {50, 80, 10}));
  EXPECT_GT(count_color(image, kBlack, QRect(10, 60, 20, 60)), 20);
  EXPECT_EQ(count_color(image, kBlack, QRect(30, 60, 28, 60)), 0);
  EXPECT_GT(count_color(image, kBlack, QRect(60, 60, 20, 60)), 20);
  EXPECT_GT(count_color(image, kBlack, QRect(140, 60, 20, 60)), 20);
}

TEST(ExtText, AdvancesCountForAlignment) {
  const QRect rect = ink(seen(start().text_align(kRight).ext_text_out(180, 60, "II", {}, {60, 30})));
  EXPECT_NEAR(rect.left(), 180 - 90, 5);
}

TEST(ExtText, OpaqueBoxIsFilledWithTheBackgroundColour) {
  const QImage image = seen(start().bk_color(kYellow).ext_text_out(50, 60, "H", {kOpaqueBox, 20, 30, 180, 150}));
  EXPECT_TRUE(has_color(image, 22, 32, kYellow));
  EXPECT_TRUE(has_color(image, 178, 148, kYellow));
  EXPECT_TRUE(has_color(image, 18, 32, kWhite));
  EXPECT_GT(count_color(image, kBlack), 20);
}

TEST(ExtText, OpaqueBoxNeedsNoText) {
  const QImage image = seen(start().bk_color(kYellow).ext_text_out(0, 0, "", {kOpaqueBox, 20, 30, 180, 150}));
  EXPECT_TRUE(near_rect(ink(image), QRect(20, 30, 160, 120)));
}

TEST(ExtText, ClippingBoxCutsTheText) {
  const QImage image = seen(start().ext_text_out(50, 60, "HHHH", {kClippedBox, 60, 60, 90, 90}));
  EXPECT_TRUE(QRect(60, 60, 30, 30).contains(ink(image)));
  EXPECT_FALSE(ink(image).isNull());
  const QImage after = seen(start().ext_text_out(50, 60, "HHHH", {kClippedBox, 60, 60, 90, 90}).text_out(10, 150, "H"));
  EXPECT_GT(count_color(after, kBlack, QRect(0, 140, 60, 60)), 10) << "only for this text";
}

TEST(ExtText, GlyphNumbersAreNotLetters) {
  const Wmf box = Wmf().window(200, 200).set_pixel(0, 0, kRed);
  EXPECT_EQ(count_color(seen(Wmf(box).ext_text_out(50, 60, "HHHH", {0x10, 0, 0, 0, 0})), kBlack), 0);
}

TEST(Text, LengthBeyondTheRecordIsSkipped) {
  Wmf wmf = Wmf().window(200, 200).set_pixel(0, 0, kRed);
  wmf.record(0x0521, {60000, 0x4848, 10, 10})
      .record(0x0A32, {10, 10, 60000, 0, 0x4848})
      .record(0x0A32, {10, 10, 9, 2, 0});
  EXPECT_EQ(count_color(seen(wmf), kBlack), 0);
}

TEST(Charset, UpperHalfFollowsTheCharacterSetOfTheFont) {
  EXPECT_EQ(decode_charset("\xF5\xFB\xD5\xDB", 238), QString::fromUtf8("őűŐŰ"));
  EXPECT_EQ(decode_charset("\xF5\xFB", 1), QString::fromUtf8("őű")) << "default set";
  EXPECT_EQ(decode_charset("\xF5\xFB\x80", 0), QString::fromUtf8("õû€"));
  EXPECT_EQ(decode_charset("\xC0\xFF", 204), QString::fromUtf8("Ая"));
  EXPECT_EQ(decode_charset("\xE1\xF9", 161), QString::fromUtf8("αω"));
  EXPECT_EQ(decode_charset("\xF0\xFD", 162), QString::fromUtf8("ğı"));
  EXPECT_EQ(decode_charset("\xE0\xFE", 186), QString::fromUtf8("ąž"));
  EXPECT_EQ(decode_charset("abc~", 238), QStringLiteral("abc~"));
  EXPECT_EQ(decode_charset("\x81", 0), QString(QChar(0xFFFD))) << "not used in this set";
}

TEST(Charset, LettersOfTheFontsSetAreDrawn) {
  const auto drawn = [](int charset, const QByteArray& text) {
    return seen(
        Wmf().window(200, 200).font(-60, "Times New Roman", 0, charset).select(0).bk_mode(1).text_out(10, 10, text));
  };
  EXPECT_NE(drawn(238, "\xF5"), drawn(0, "\xF5"));
  EXPECT_EQ(drawn(238, "o"), drawn(0, "o"));
}

} // namespace cserko::test
