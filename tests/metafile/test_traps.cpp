// Files made to hang a player. The bound is one of safety, far above what the ordinary picture takes.
#include "drawing.h"

#include <QElapsedTimer>
#include <numbers>
#include <random>

namespace cserko::test {
namespace {

constexpr int kSide = 900;
constexpr qint64 kMostMilliseconds = 1200;

/// Draws and returns the picture; the whole way from bytes to pixels must stay below the bound.
QImage drawn_in_time(const Wmf& wmf, int side = kSide) {
  const QByteArray file = wmf.file();
  QElapsedTimer timer;
  timer.start();
  const QImage image = draw_file(file, side, side);
  EXPECT_LT(timer.elapsed(), kMostMilliseconds);
  return image;
}

QList<QPoint> noise(int count, int range, unsigned seed = 1) {
  std::minstd_rand random(seed);
  std::uniform_int_distribution<int> coordinate(-range, range);
  QList<QPoint> points;
  for (int i = 0; i < count; ++i) points.append({coordinate(random), coordinate(random)});
  return points;
}

Wmf start() { return Wmf().window(1000, 1000); }

} // namespace

TEST(Traps, FourThousandClipRectangles) {
  Wmf wmf = start().fills(kRed);
  for (int i = 0; i < 4000; ++i) wmf.exclude_clip(i % 64 * 16, i / 64 * 16, i % 64 * 16 + 8, i / 64 * 16 + 8);
  const QImage image = drawn_in_time(wmf.rectangle(0, 0, 1000, 1000));
  EXPECT_TRUE(has_color(image, 2, 2, kWhite)) << "all of them count";
  EXPECT_TRUE(has_color(image, 10, 10, kRed));
  EXPECT_TRUE(has_color(image, 3 * 144 + 2, 850, kWhite));
}

TEST(Traps, ClipsAndShapesInTurn) {
  Wmf wmf = start().fills(kRed);
  for (int i = 0; i < 20000; ++i) {
    const int x = i * 7919 % 1000, y = i * 104729 % 1000;
    wmf.exclude_clip(x, y, x + 3, y + 3).rectangle(0, 0, 1000, 1000);
  }
  drawn_in_time(wmf);
}

TEST(Traps, FarCoordinates) {
  Wmf wmf = Wmf().window(2, 2).pen(0, 1, kBlue).brush(0, kRed).select(0).select(1);
  for (const int style : {0, 1, 2, 3, 4}) {
    wmf.pen(style, 0, kBlue).select(2).remove(2);
    wmf.move_to(-32768, -32768).line_to(32767, 32767).polyline(noise(2000, 32767));
    wmf.polygon(noise(2000, 32767)).ellipse(-32768, -32768, 32767, 32767);
    wmf.arc(0x0817, -32768, -30000, 32767, 30000, {5, 5}, {-5, 9}).round_rect(-32768, -32768, 32767, 32767, 9000, 9000);
  }
  drawn_in_time(wmf);
}

TEST(Traps, FarLineCrossesThePictureWhereItShould) {
  Wmf wmf = Wmf().window(10, 10).pen(0, 1, kBlue).select(0).move_to(-32000, -32000).line_to(32000, 32000);
  const QImage image = drawn_in_time(wmf, 100);
  EXPECT_TRUE(has_color(image, 50, 50, kBlue));
  EXPECT_TRUE(has_color(image, 80, 20, kWhite));
  Wmf big = Wmf().window(10, 10).fills(kRed).ellipse(-20000, -10, 20000, 5);
  EXPECT_TRUE(has_color(drawn_in_time(big, 100), 50, 40, kRed));
  EXPECT_TRUE(has_color(drawn_in_time(big, 100), 50, 60, kWhite));
}

TEST(Traps, SelfCrossingPolygons) {
  for (const int count : {3000, 20000, 65535}) {
    Wmf wmf = start().pen(0, 1, kBlue).brush(0, kRed).select(0).select(1);
    QList<QPoint> points = noise(count, 1000);
    for (QPoint& p : points) p = QPoint(std::abs(p.x()), std::abs(p.y()));
    wmf.polygon(points);
    const QImage image = drawn_in_time(wmf);
    EXPECT_LT(count_color(image, kWhite), kSide * kSide) << "something of it is seen";
  }
}

TEST(Traps, RoughFillMatchesTheSmoothOne) {
  // The same star, once alone and once so often that it goes without smoothing (an odd number of times).
  QList<QPoint> star;
  for (int i = 0; i < 5; ++i) {
    star.append({static_cast<int>(500 + 450 * std::sin(i * 4 * std::numbers::pi / 5)),
                 static_cast<int>(500 - 450 * std::cos(i * 4 * std::numbers::pi / 5))});
  }
  for (const int mode : {1, 2}) {
    const QImage smooth = draw(start().fills(kRed).fill_mode(mode).polygon(star), kSide, kSide);
    const QImage rough =
        draw(start().fills(kRed).fill_mode(mode).poly_polygon(QList<QList<QPoint>>(3001, star)), kSide, kSide);
    int differing = 0;
    for (int y = 0; y < kSide; ++y) {
      for (int x = 0; x < kSide; ++x) {
        const QRgb a = smooth.pixel(x, y), b = rough.pixel(x, y);
        const bool edge = !near_color(a, kRed) && !near_color(a, kWhite);
        differing += !edge && near_color(a, kRed) != near_color(b, kRed) ? 1 : 0;
      }
    }
    EXPECT_EQ(differing, 0) << mode;
    EXPECT_GT(count_color(rough, kRed), 50000);
  }
}

TEST(Traps, PointTotalsBeyondSixteenBits) {
  // 200,000 points in all; the last polygon is drawn only if the total is counted right.
  QList<QList<QPoint>> polygons(2500, noise(80, 10));
  polygons.append({{500, 500}, {900, 500}, {900, 900}, {500, 900}});
  EXPECT_TRUE(has_color(drawn_in_time(start().fills(kRed).poly_polygon(polygons)), 600, 600, kRed));
}

TEST(Traps, ManyPolygonsWithHugeTotals) {
  drawn_in_time(start().pen(0, 1, kBlue).select(0).poly_polygon(QList<QList<QPoint>>(60, noise(60000, 30000))));
}

TEST(Traps, TenThousandFullSizeEllipses) {
  Wmf wmf = start().pen(0, 50, kBlue).brush(0, kRed).select(0).select(1);
  for (int i = 0; i < 10000; ++i) wmf.ellipse(i % 10, 0, 1000, 1000);
  EXPECT_TRUE(has_color(drawn_in_time(wmf), 450, 450, kRed));
}

TEST(Traps, TwentyThousandSaves) {
  Wmf wmf = start().fills(kRed);
  for (int i = 0; i < 20000; ++i) wmf.save();
  EXPECT_TRUE(has_color(drawn_in_time(wmf.rectangle(0, 0, 1000, 1000)), 450, 450, kRed));
}

TEST(Traps, ManySavesWithACostlyState) {
  Wmf wmf = start().fills(kRed);
  for (int i = 0; i < 3000; ++i) wmf.exclude_clip(i % 60 * 16, i / 60 * 16, i % 60 * 16 + 8, i / 60 * 16 + 8);
  for (int i = 0; i < 20000; ++i) wmf.save().intersect_clip(0, 0, 999, 999).rectangle(0, 0, 1000, 1000);
  drawn_in_time(wmf);
}

TEST(Traps, ThickAndDashedNoise) {
  for (const int style : {0, 2}) {
    for (const int width : {0, 40, 32767}) {
      Wmf wmf = start().pen(style, width, kBlue).select(0);
      for (int i = 0; i < 5; ++i) wmf.polyline(noise(30000, 2000, static_cast<unsigned>(i)));
      drawn_in_time(wmf);
    }
  }
}

TEST(Traps, CombiningNoise) {
  for (const int mix : {7, 10}) {
    Wmf wmf = start().pen(0, 3, kBlue).brush(2, kRed, 5).select(0).select(1).rop2(mix);
    for (int i = 0; i < 20; ++i) wmf.polygon(noise(20000, 3000, static_cast<unsigned>(i)));
    drawn_in_time(wmf);
  }
}

TEST(Traps, FullSizeBlits) {
  const QByteArray dib = dib24({{kRed, kGreen}, {kBlue, kYellow}});
  Wmf wmf = start();
  for (int i = 0; i < 5000; ++i) {
    wmf.stretch_dib(rop::kSrcInvert, {0, 0, 1000, 1000}, {0, 0, 2, 2}, dib)
        .pat_blt(rop::kPatInvert, {0, 0, 1000, 1000});
    wmf.record(0x0940, Bytes().u32(rop::kSrcCopy).words({3, 0, 0, 990, 990, 0, 0}).bytes());
  }
  drawn_in_time(wmf);
}

TEST(Traps, PackedBitmapsThatClaimManyPixels) {
  const QByteArray runs = Bytes().words({0x0100, 0x0100}).bytes();
  const QByteArray dib = dib_table(4000, 4000, 8, {kRed}, runs, 1);
  Wmf wmf = start();
  for (int i = 0; i < 500; ++i)
    wmf.stretch_dib(rop::kSrcCopy, {0, 0, 1000, 1000}, {0, 0, 4000, 4000}, dib).dib_pattern(dib);
  drawn_in_time(wmf);
}

TEST(Traps, FloodOfText) {
  Wmf wmf = start().font(-500, "Times New Roman").select(0);
  for (int i = 0; i < 2000; ++i) wmf.text_out(i % 1000, i % 700, QByteArray(500, static_cast<char>('A' + i % 26)));
  drawn_in_time(wmf);
}

TEST(Traps, OneEndlessText) {
  drawn_in_time(start()
                    .font(-30000, "Times New Roman")
                    .select(0)
                    .ext_text_out(-32768, 0, QByteArray(60000, 'W'), {}, QList<int>(60000, 3)));
}

TEST(Traps, FloodOfFonts) {
  Wmf wmf = start();
  for (int i = 0; i < 5000; ++i) {
    wmf.font(-20 - i % 30, "No such font " + QByteArray::number(i)).select(i).text_out(10, i % 1000, "szó");
  }
  drawn_in_time(wmf);
}

TEST(Traps, FloodOfObjects) {
  Wmf wmf = start().fills(kRed);
  for (int i = 0; i < 65533; ++i) wmf.pen(5, 0, 0);
  for (int i = 0; i < 65533; ++i) wmf.remove(2).pen(5, 0, 0).pen(5, 0, 0);
  drawn_in_time(wmf.rectangle(0, 0, 1000, 1000));
}

TEST(Traps, FloodOfRegions) {
  Bytes region;
  region.words({0, 6}).u32(0).words({0, 20000, 2, 0, 0, 1000, 1000});
  for (int i = 0; i < 20000; ++i) region.words({4, i % 1000, i % 1000 + 1, i % 50, i % 50 + 300, 500, 900, 4});
  Wmf wmf = start().fills(kRed).record(0x06FF, region.bytes());
  for (int i = 0; i < 2000; ++i) wmf.select_clip(2).record(0x012B, {2});
  drawn_in_time(wmf);
}

TEST(Traps, MillionsOfSmallRecords) {
  Wmf line = start().pen(0, 1, kBlue).select(0);
  QByteArray step = Wmf().line_to(10, 990).line_to(990, 10).record(0x0626).records();
  const QByteArray file = Wmf::header() + line.records() + step.repeated(300000);
  QElapsedTimer timer;
  timer.start();
  draw_file(file, kSide, kSide);
  EXPECT_LT(timer.elapsed(), kMostMilliseconds);
}

TEST(Traps, LargestTarget) {
  Wmf wmf = start().pen(0, 1, kBlue).brush(0, kRed).select(0).select(1);
  wmf.polygon(noise(65535, 1000)).ellipse(0, 0, 1000, 1000);
  drawn_in_time(wmf, 4000);
}

} // namespace cserko::test
