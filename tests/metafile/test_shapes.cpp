#include "drawing.h"

namespace cserko::test {
namespace {

Wmf filled(quint32 color = kRed) { return Wmf().window(100, 100).fills(color); }
/// Lines of a width, no fill.
Wmf lined(int width, int style = 0) {
  return Wmf().window(100, 100).pen(style, width, kBlue).brush(1, 0).select(0).select(1);
}

} // namespace

TEST(Shapes, Rectangle) {
  EXPECT_TRUE(near_rect(ink(draw(filled().rectangle(10, 20, 60, 70))), QRect(10, 20, 50, 50), 0));
  EXPECT_TRUE(near_rect(ink(draw(filled().rectangle(60, 70, 10, 20))), QRect(10, 20, 50, 50), 0))
      << "corners exchanged";
}

TEST(Shapes, Polygon) {
  const QImage image = draw(filled().polygon({{0, 0}, {100, 0}, {0, 100}}));
  EXPECT_TRUE(has_color(image, 20, 20, kRed));
  EXPECT_TRUE(has_color(image, 80, 80, kWhite));
}

TEST(Shapes, PolygonIsClosedByItsBorder) {
  const QImage image = draw(lined(4).polygon({{10, 10}, {90, 10}, {90, 90}, {10, 90}}));
  EXPECT_TRUE(has_color(image, 10, 50, kBlue));
  EXPECT_TRUE(has_color(image, 50, 50, kWhite));
}

TEST(Shapes, PolylineIsNotClosedNorFilled) {
  const QImage image = draw(Wmf()
                                .window(100, 100)
                                .pen(0, 4, kBlue)
                                .brush(0, kRed)
                                .select(0)
                                .select(1)
                                .polyline({{10, 10}, {90, 10}, {90, 90}, {10, 90}}));
  EXPECT_TRUE(has_color(image, 50, 10, kBlue));
  EXPECT_TRUE(has_color(image, 50, 90, kBlue));
  EXPECT_TRUE(has_color(image, 10, 50, kWhite));
  EXPECT_TRUE(has_color(image, 50, 50, kWhite));
}

TEST(Shapes, PolyPolygonIsOnePath) {
  const QList<QList<QPoint>> ring = {{{0, 0}, {100, 0}, {100, 100}, {0, 100}},
                                     {{25, 25}, {75, 25}, {75, 75}, {25, 75}}};
  const QImage odd = draw(filled().fill_mode(1).poly_polygon(ring));
  EXPECT_TRUE(has_color(odd, 10, 10, kRed));
  EXPECT_TRUE(has_color(odd, 50, 50, kWhite));
  const QImage winding = draw(filled().fill_mode(2).poly_polygon(ring));
  EXPECT_TRUE(has_color(winding, 50, 50, kRed));
}

TEST(Shapes, PolyPolygonDrawsEachBorder) {
  const QImage image = draw(lined(4).poly_polygon({{{10, 10}, {40, 10}, {40, 40}}, {{60, 60}, {90, 60}, {90, 90}}}));
  EXPECT_TRUE(has_color(image, 40, 25, kBlue));
  EXPECT_TRUE(has_color(image, 90, 75, kBlue));
  EXPECT_TRUE(has_color(image, 50, 50, kWhite)) << "no line between the two";
}

TEST(Shapes, FillModeDecidesOnSelfCrossing) {
  const QList<QPoint> twice = {{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}, {0, 50}, {50, 50}, {50, 0}, {0, 0}};
  const QList<QPoint> same_way = {{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}, {50, 0}, {50, 50}, {0, 50}, {0, 0}};
  EXPECT_TRUE(has_color(draw(filled().polygon(same_way)), 25, 25, kWhite)) << "odd-even is the default";
  EXPECT_TRUE(has_color(draw(filled().fill_mode(2).polygon(same_way)), 25, 25, kRed));
  EXPECT_TRUE(has_color(draw(filled().fill_mode(2).polygon(twice)), 25, 25, kWhite)) << "opposite turns cancel";
}

TEST(Shapes, LinesStartAtTheCurrentPositionAndMoveIt) {
  const QImage image = draw(lined(4).move_to(10, 10).line_to(90, 10).line_to(90, 90));
  EXPECT_TRUE(has_color(image, 50, 10, kBlue));
  EXPECT_TRUE(has_color(image, 90, 50, kBlue));
  EXPECT_TRUE(has_color(image, 50, 50, kWhite));
}

TEST(Shapes, Ellipse) {
  const QImage image = draw(filled().ellipse(0, 20, 100, 80));
  EXPECT_TRUE(has_color(image, 50, 50, kRed));
  EXPECT_TRUE(has_color(image, 3, 50, kRed));
  EXPECT_TRUE(has_color(image, 50, 23, kRed));
  EXPECT_TRUE(has_color(image, 8, 26, kWhite));
  EXPECT_NEAR(count_color(image, kRed), 3.14159 * 50 * 30, 200);
}

TEST(Shapes, RoundRectRoundsItsCorners) {
  const QImage image = draw(filled().round_rect(0, 0, 100, 100, 60, 40));
  EXPECT_TRUE(has_color(image, 2, 2, kWhite));
  EXPECT_TRUE(has_color(image, 97, 97, kWhite));
  EXPECT_TRUE(has_color(image, 50, 1, kRed));
  EXPECT_TRUE(has_color(image, 1, 50, kRed));
  EXPECT_TRUE(has_color(image, 32, 1, kRed)) << "the corner is 30 wide";
  EXPECT_TRUE(has_color(image, 1, 22, kRed)) << "and 20 high";
  EXPECT_TRUE(has_color(draw(filled().round_rect(0, 0, 100, 100, 0, 0)), 0, 0, kRed));
}

// Arcs run counter-clockwise as seen: from the right end over the top to the left end.
TEST(Shapes, ArcRunsCounterClockwise) {
  const QImage image = draw(lined(6).arc(0x0817, 10, 10, 90, 90, {100, 50}, {0, 50}));
  EXPECT_TRUE(has_color(image, 50, 10, kBlue));
  EXPECT_TRUE(has_color(image, 50, 90, kWhite));
  EXPECT_TRUE(has_color(image, 50, 50, kWhite));
}

TEST(Shapes, ArcWithEqualEndsIsTheWholeEllipse) {
  const QImage image = draw(lined(6).arc(0x0817, 10, 10, 90, 90, {100, 50}, {100, 50}));
  EXPECT_TRUE(has_color(image, 50, 10, kBlue));
  EXPECT_TRUE(has_color(image, 50, 90, kBlue));
}

TEST(Shapes, ArcIsNeverFilled) {
  EXPECT_EQ(count_color(draw(Wmf()
                                 .window(100, 100)
                                 .pen(0, 4, kBlue)
                                 .brush(0, kRed)
                                 .select(0)
                                 .select(1)
                                 .arc(0x0817, 10, 10, 90, 90, {100, 50}, {0, 50})),
                        kRed),
            0);
}

TEST(Shapes, PieGoesThroughTheCentre) {
  const QImage image = draw(filled().arc(0x081A, 0, 0, 100, 100, {100, 50}, {50, 0}));
  EXPECT_TRUE(has_color(image, 70, 30, kRed));
  EXPECT_TRUE(has_color(image, 55, 45, kRed));
  EXPECT_TRUE(has_color(image, 30, 70, kWhite));
  EXPECT_TRUE(has_color(image, 30, 30, kWhite));
}

TEST(Shapes, ChordCutsStraight) {
  const QImage image = draw(filled().arc(0x0830, 0, 0, 100, 100, {100, 50}, {50, 0}));
  EXPECT_TRUE(has_color(image, 80, 25, kRed));
  EXPECT_TRUE(has_color(image, 55, 45, kWhite)) << "the centre lies outside";
}

TEST(Shapes, SetPixelFillsOneLogicalPixel) {
  Wmf wmf;
  wmf.window(10, 10).set_pixel(3, 4, kRed).set_pixel(4, 4, kBlue);
  const QImage image = draw(wmf);
  EXPECT_TRUE(has_color(image, 35, 45, kRed));
  EXPECT_TRUE(has_color(image, 39, 45, kRed));
  EXPECT_TRUE(has_color(image, 40, 45, kBlue)) << "no hole between neighbours";
  EXPECT_TRUE(near_rect(ink(image), QRect(30, 40, 20, 10), 0));
  Wmf fine;
  fine.window(10000, 10000).set_pixel(5000, 5000, kRed);
  EXPECT_EQ(count_color(draw(fine), kRed), 1) << "never less than one pixel of the target";
}

TEST(Pens, WidthIsLogicalWidthTimesMeanScale) {
  Wmf wmf;
  wmf.window(1000, 1000).pen(0, 100, kBlue).select(0).move_to(0, 500).line_to(1000, 500);
  EXPECT_NEAR(count_color(draw(wmf), kBlue, QRect(50, 0, 1, 100)), 10, 1);
  EXPECT_NEAR(count_color(draw(wmf, 100, 300), kBlue, QRect(50, 0, 1, 300)), 20, 1) << "mean of 0.1 and 0.3";
}

TEST(Pens, AreAtLeastOnePixelWide) {
  for (const int width : {0, 1}) {
    Wmf wmf;
    wmf.window(10000, 10000).pen(0, width, kBlue).select(0).move_to(0, 5000).line_to(10000, 5000);
    EXPECT_EQ(count_color(draw(wmf), kBlue, QRect(50, 0, 1, 100)), 1);
  }
}

TEST(Pens, AreAtMostAsWideAsTheTarget) {
  Wmf wmf;
  wmf.window(10, 10).fills(kRed).rectangle(0, 0, 1, 1).pen(0, 32767, kBlue).select(2).move_to(100, 5).line_to(101, 5);
  EXPECT_EQ(count_color(draw(wmf), kBlue), 0) << "the line is 90 away from the window, its pen 10 wide";
}

TEST(Pens, HaveRoundEndsAndJoins) {
  const QImage image = draw(lined(20).polyline({{30, 70}, {70, 70}, {70, 30}}));
  EXPECT_TRUE(has_color(image, 22, 70, kBlue)) << "the cap";
  EXPECT_TRUE(has_color(image, 21, 61, kWhite)) << "is not square";
  EXPECT_TRUE(has_color(image, 79, 79, kWhite)) << "nor is the join";
  EXPECT_TRUE(has_color(image, 76, 76, kBlue));
}

TEST(Pens, NullPenDrawsNothing) {
  const QImage image = draw(filled().rectangle(20, 20, 80, 80).move_to(0, 5).line_to(100, 5));
  EXPECT_TRUE(near_rect(ink(image), QRect(20, 20, 60, 60), 0));
}

TEST(Pens, NullPenAndNullBrushMakeNoPicture) {
  EXPECT_FALSE(
      Metafile::parse(Wmf().window(9, 9).pen(5, 0, 0).brush(1, 0).select(0).select(1).rectangle(0, 0, 9, 9).file()));
}

TEST(Pens, DashedLinesHaveGaps) {
  for (const int style : {1, 2, 3, 4}) {
    const QImage image = draw(lined(1, style).bk_mode(1).move_to(0, 50).line_to(100, 50));
    const int blue = count_color(image, kBlue);
    EXPECT_GT(blue, 20) << style;
    EXPECT_LT(blue, 95) << style;
  }
}

TEST(Pens, GapsAreFilledInOpaqueMode) {
  const QImage image = draw(lined(4, 1).bk_mode(2).bk_color(kYellow).move_to(0, 50).line_to(100, 50));
  EXPECT_GT(count_color(image, kYellow), 40);
}

TEST(Pens, InsideFrameStaysInside) {
  const QImage image = draw(lined(10, 6).rectangle(20, 20, 80, 80));
  EXPECT_TRUE(near_rect(ink(image), QRect(20, 20, 60, 60)));
  EXPECT_TRUE(has_color(image, 25, 50, kBlue));
}

TEST(Pens, HairLineAroundTheWholeWindowIsSeenOnAllSides) {
  const QImage box = draw(lined(0).rectangle(0, 0, 100, 100));
  const QImage polygon = draw(lined(0).polygon({{0, 0}, {100, 0}, {100, 100}, {0, 100}}));
  for (const QImage& image : {box, polygon}) {
    EXPECT_TRUE(has_color(image, 50, 0, kBlue));
    EXPECT_TRUE(has_color(image, 0, 50, kBlue));
    EXPECT_TRUE(has_color(image, 50, 99, kBlue));
    EXPECT_TRUE(has_color(image, 99, 50, kBlue));
  }
}

TEST(Brushes, NullBrushFillsNothing) {
  EXPECT_TRUE(has_color(draw(lined(2).rectangle(10, 10, 90, 90)), 50, 50, kWhite));
}

TEST(Brushes, HatchesLetTheBackgroundThroughOrCoverIt) {
  for (int hatch = 0; hatch <= 5; ++hatch) {
    Wmf open = Wmf()
                   .window(100, 100)
                   .bk_mode(1)
                   .pen(5, 0, 0)
                   .brush(2, kRed, hatch)
                   .select(0)
                   .select(1)
                   .rectangle(0, 0, 100, 100);
    const QImage image = draw(open);
    EXPECT_GT(count_color(image, kRed), 500) << hatch;
    EXPECT_GT(count_color(image, kWhite), 4000) << hatch;
    Wmf covered = Wmf().window(100, 100).bk_color(kYellow).pen(5, 0, 0).brush(2, kRed, hatch).select(0).select(1);
    EXPECT_GT(count_color(draw(covered.rectangle(0, 0, 100, 100)), kYellow), 4000) << hatch;
  }
}

TEST(Brushes, HatchesRunTheRightWay) {
  const auto hatched = [](int hatch) {
    return draw(Wmf()
                    .window(100, 100)
                    .bk_mode(1)
                    .pen(5, 0, 0)
                    .brush(2, kRed, hatch)
                    .select(0)
                    .select(1)
                    .rectangle(0, 0, 100, 100));
  };
  const QImage across = hatched(0), upright = hatched(1), down = hatched(2), up = hatched(3);
  const auto longest = [](const QImage& image, int dx, int dy) {
    int best = 0;
    for (int sy = 0; sy < 16; ++sy) {
      for (int sx = 0; sx < 16; ++sx) {
        int run = 0;
        while (run < 50 && near_color(image.pixel(25 + sx + dx * run, 40 + sy + dy * run), kRed)) ++run;
        best = std::max(best, run);
      }
    }
    return best;
  };
  EXPECT_GT(longest(across, 1, 0), 40);
  EXPECT_GT(longest(upright, 0, 1), 30);
  const auto rising = [&](const QImage& image) {
    int hits = 0;
    for (int y = 20; y < 80; ++y) {
      for (int x = 20; x < 80; ++x) {
        hits += near_color(image.pixel(x, y), kRed) && near_color(image.pixel(x + 1, y - 1), kRed) ? 1 : 0;
        hits -= near_color(image.pixel(x, y), kRed) && near_color(image.pixel(x + 1, y + 1), kRed) ? 1 : 0;
      }
    }
    return hits;
  };
  EXPECT_LT(rising(down), -100) << "2 falls from left to right";
  EXPECT_GT(rising(up), 100) << "3 rises";
}

TEST(Brushes, PatternOfABitmapIsTiledInDevicePixels) {
  Wmf wmf;
  wmf.window(100, 100).pen(5, 0, 0).dib_pattern(dib24({{kRed, kGreen}, {kBlue, kYellow}})).select(0).select(1);
  const QImage image = draw(wmf.rectangle(0, 0, 100, 100));
  for (const quint32 color : {kRed, kGreen, kBlue, kYellow}) EXPECT_EQ(count_color(image, color), 2500);
  EXPECT_TRUE(has_color(image, 0, 0, kRed));
  EXPECT_TRUE(has_color(image, 1, 0, kGreen));
  EXPECT_TRUE(has_color(image, 0, 1, kBlue));
}

TEST(Brushes, MonochromeDevicePatternIsBlackAndWhite) {
  // 8 x 2 pixels, rows of 2 bytes: one row black, one white.
  Bytes bitmap;
  bitmap.words({0, 8, 2, 2}).u8(1).u8(1).u32(0).raw(QByteArray(18, '\0')).words({0x0000, 0x00FF});
  Wmf wmf;
  wmf.window(100, 100).fills(kRed).record(0x01F9, bitmap.bytes()).select(2).rectangle(0, 0, 100, 100);
  const QImage image = draw(wmf);
  EXPECT_EQ(count_color(image, kBlack), 5000);
  EXPECT_EQ(count_color(image, kRed), 0);
}

/// What each ROP2 code makes of a red pen-and-brush colour on yellow.
TEST(Mix, EveryCodeCombinesAsItShould) {
  constexpr quint32 d = kYellow, p = rgb(255, 0, 255), all = 0xFFFFFF;
  const quint32 wanted[] = {0,
                            ~(d | p) & all,
                            d & ~p & all,
                            ~p & all,
                            p & ~d & all,
                            ~d & all,
                            (d ^ p),
                            ~(d & p) & all,
                            d & p,
                            ~(d ^ p) & all,
                            d,
                            (d | ~p) & all,
                            p,
                            (p | ~d) & all,
                            d | p,
                            all};
  for (int code = 1; code <= 16; ++code) {
    Wmf wmf;
    wmf.window(100, 100).fills(d).rectangle(0, 0, 100, 100).fills(p, 2).rop2(code).rectangle(0, 0, 50, 100);
    wmf.pen(0, 20, p).select(4).move_to(75, 0).line_to(75, 100);
    const QImage image = draw(wmf);
    EXPECT_TRUE(has_color(image, 25, 50, wanted[code - 1])) << "fill, code " << code;
    EXPECT_TRUE(has_color(image, 75, 50, wanted[code - 1])) << "line, code " << code;
    EXPECT_TRUE(has_color(image, 55, 50, d)) << code;
  }
}

TEST(Mix, XorTwiceLeavesNothing) {
  Wmf wmf;
  wmf.window(100, 100).fills(kRed).rop2(7).ellipse(10, 10, 90, 90).ellipse(10, 10, 90, 90);
  wmf.pen(0, 0, kBlue).select(2).move_to(0, 0).line_to(100, 70).move_to(0, 0).line_to(100, 70);
  EXPECT_EQ(count_color(draw(wmf), kWhite), 100 * 100);
}

} // namespace cserko::test
