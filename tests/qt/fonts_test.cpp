// What a text measures is what it takes on the screen.
#include "fixture.h"

#include <QFontInfo>
#include <QPainter>

namespace cserko::test {

namespace {

QRect ink_of(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 200) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

class Measure : public QtMachine {
 protected:
  /// A black label on white as the window shows it.
  QImage painted(const Text& text, const Font& font, Size size, bool wrapped) {
    NotingWindow window(*machine, {15000, 9000});
    Label label(window, u"lbl", {0, 0, size.width, size.height}, text);
    label.Font = font;
    label.WordWrap = wrapped;
    label.ForeColor = black;
    show(window);
    return widget(label).grab().toImage();
  }
};

TEST_F(Measure, TheSystemsSerifIsAMetricTwinOfTimes) {
  const Fonts fonts(1 / twips_per_pixel);
  EXPECT_EQ(QFontInfo(fonts.font({u"Times New Roman", 20, false})).family(), "Liberation Serif");
  EXPECT_EQ(QFontInfo(fonts.font({u"Times New Roman CE", 20, false})).family(), "Liberation Serif");
}

TEST_F(Measure, PointsBecomePixelsOfTheZoom) {
  EXPECT_EQ(Fonts(1 / twips_per_pixel).font({u"Times New Roman", 12, false}).pixelSize(), 16);
  EXPECT_EQ(Fonts(2 / twips_per_pixel).font({u"Times New Roman", 12, false}).pixelSize(), 32);
  EXPECT_GE(Fonts(1 / twips_per_pixel).font({u"Times New Roman", 0.1, false}).pixelSize(), 1);
}

TEST_F(Measure, BoldIsWiderAndALargerSizeLarger) {
  const Size plain = machine->measure({u"Times New Roman", 20, false}, u"malac");
  EXPECT_GT(machine->measure({u"Times New Roman", 20, true}, u"malac").width, plain.width);
  EXPECT_GT(machine->measure({u"Times New Roman", 21, false}, u"malac").height, plain.height);
}

TEST_F(Measure, LinesAreBrokenAtEveryKindOfLineEnd) {
  const Font font{u"Times New Roman", 20, false};
  const double line = machine->measure(font, u"a").height;
  for (const TextView text : {u"ab\rcd", u"ab\ncd", u"ab\r\ncd"}) {
    // What the font puts between two lines comes on top.
    EXPECT_GE(machine->measure(font, text).height, 2 * line - 1);
    EXPECT_LE(machine->measure(font, text).height, 2.2 * line);
    EXPECT_DOUBLE_EQ(machine->measure(font, text).width,
                     std::max(machine->measure(font, u"ab").width, machine->measure(font, u"cd").width));
  }
}

TEST_F(Measure, AnEmptyTextIsALineHigh) {
  const Font font{u"Times New Roman", 20, false};
  EXPECT_EQ(machine->measure(font, {}).width, 0);
  EXPECT_EQ(machine->measure(font, {}).height, machine->measure(font, u"a").height);
  EXPECT_NEAR(machine->measure_wrapped(font, {}, 3000).height, machine->measure(font, u"a").height, 1);
}

TEST_F(Measure, WhatFitsByMeasureFitsOnTheScreen) {
  const Font font{u"Times New Roman", 28, false};
  for (const TextView text : {u"zsiráf", u"ŐRÜLT", u"gyűjtőjegy", u"f"}) {
    const Size extent = machine->measure(font, text);
    const Size roomy{extent.width + 1500, extent.height + 1500};
    const QRect ink = ink_of(painted(Text(text), font, roomy, false));
    ASSERT_FALSE(ink.isEmpty());
    // The first and the last letter may lean over by a pixel or two.
    EXPECT_LE(ink.width() * twips_per_pixel, extent.width + 45) << to_utf8(text);
    EXPECT_GE(ink.width() * twips_per_pixel, extent.width * 0.8) << to_utf8(text);
    EXPECT_LE(ink.height() * twips_per_pixel, extent.height) << to_utf8(text);
  }
}

TEST_F(Measure, ALabelAsWideAsItsTextShowsItInOneLine) {
  const Font font{u"Times New Roman", 17, false};
  const Text text = u"két alma";
  const Size extent = machine->measure(font, text);
  // A pixel more, for a label's edges lie on whole pixels.
  const QRect ink = ink_of(painted(text, font, {extent.width + 15, 3 * extent.height}, true));
  EXPECT_LE(ink.height() * twips_per_pixel, extent.height);
}

TEST_F(Measure, AWrappedTextTakesTheHeightThatItMeasures) {
  const Font font{u"Times New Roman", 16, false};
  const Text text = u"A mókus a fán él, és a telet alva tölti.";
  const double line = machine->measure(font, u"a").height;
  for (const double width : {1800.0, 2400.0, 3600.0, 9000.0}) {
    const Size extent = machine->measure_wrapped(font, text, width);
    EXPECT_LE(extent.width, width);
    const QRect ink = ink_of(painted(text, font, {width, extent.height + 1500}, true));
    EXPECT_LE(ink.height() * twips_per_pixel, extent.height);
    EXPECT_GT(ink.height() * twips_per_pixel, extent.height - line);
  }
}

TEST_F(Measure, AWrappedLineIsBrokenAtWholePixels) {
  for (double size = 10; size <= 20; ++size) {
    const Font font{u"Times New Roman", size, false};
    const auto height = [&](double width) { return machine->measure_wrapped(font, u"két alma", width).height; };
    const double line = std::floor(machine->measure(font, u"két alma").width);
    for (double width = line - 2 * twips_per_pixel; width < line + 2 * twips_per_pixel; ++width)
      EXPECT_EQ(height(width), height(std::floor(width / twips_per_pixel) * twips_per_pixel)) << size << ' ' << width;
    EXPECT_GT(height(line - 2 * twips_per_pixel), 1.5 * height(line + 2 * twips_per_pixel)) << size;
  }
}

TEST_F(Measure, ALabelStandsInTheMiddleOfItsPlace) {
  const QRect ink = ink_of(painted(u"ooo", {u"Times New Roman", 24, false}, {4500, 3000}, true));
  EXPECT_NEAR(ink.center().x(), 150, 2);
  EXPECT_NEAR(ink.center().y(), 100, 8);
}

} // namespace
} // namespace cserko::test
