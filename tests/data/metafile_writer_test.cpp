#include "data/pack/metafile_device.h"
#include "data/pack/picture.h"
#include "data/pack/polygon.h"
#include "data/pack/table.h"
#include "data/pack/wmf_writer.h"
#include "tests/data/samples.h"

#include <QPainter>
#include <QPainterPath>
#include <QtEndian>
#include <algorithm>

namespace cserko {
namespace {

int u16(const QByteArray& bytes, int offset) { return qFromLittleEndian<quint16>(bytes.constData() + offset); }
quint32 u32(const QByteArray& bytes, int offset) { return qFromLittleEndian<quint32>(bytes.constData() + offset); }

struct Record {
  int function;
  std::vector<int> words;
};

// The records behind the two headers of 22 and 18 bytes.
std::vector<Record> records_of(const QByteArray& metafile) {
  std::vector<Record> records;
  for (int at = 40; at + 6 <= metafile.size();) {
    const int size = static_cast<int>(u32(metafile, at)) * 2;
    Record record{u16(metafile, at + 4), {}};
    for (int i = at + 6; i < at + size; i += 2) record.words.push_back(u16(metafile, i));
    records.push_back(record);
    at += size;
  }
  return records;
}

FilledShape triangle(QRgb color) { return {color, FillRule::odd_even, {{{0, 0}, {6400, 0}, {0, 6400}}}}; }

TEST(MetafileWriter, PutsAPlaceableHeaderWithItsChecksumInFront) {
  const QByteArray file = write_metafile({triangle(qRgb(1, 2, 3))});
  EXPECT_EQ(u32(file, 0), 0x9AC6CDD7u);
  EXPECT_EQ(u16(file, 6), 0);
  EXPECT_EQ(u16(file, 10), 6400);
  EXPECT_EQ(u16(file, 12), 6400);
  EXPECT_EQ(u16(file, 14), 3200);
  int checksum = 0;
  for (int i = 0; i < 20; i += 2) checksum ^= u16(file, i);
  EXPECT_EQ(u16(file, 20), checksum);
}

TEST(MetafileWriter, TheWholePictureMayBeOfAnyShape) {
  const QByteArray file = write_metafile({triangle(qRgb(1, 2, 3))}, {13700, 8450});
  EXPECT_EQ(u16(file, 10), 13700);
  EXPECT_EQ(u16(file, 12), 8450);
  const std::vector<Record> records = records_of(file);
  const auto extent =
      std::find_if(records.begin(), records.end(), [](const Record& r) { return r.function == 0x020C; });
  ASSERT_NE(extent, records.end());
  EXPECT_EQ(extent->words, (std::vector<int>{8450, 13700})) << "the height comes first";
}

TEST(MetafileWriter, TellsSizeObjectsAndLargestRecordInTheStandardHeader) {
  const QByteArray file = write_metafile({triangle(qRgb(1, 2, 3)), triangle(qRgb(4, 5, 6))});
  EXPECT_EQ(u16(file, 22), 1);
  EXPECT_EQ(u16(file, 24), 9);
  EXPECT_EQ(u32(file, 28), static_cast<quint32>(file.size() - 22) / 2);
  EXPECT_EQ(u16(file, 32), 3); // the pen and two brushes
  EXPECT_EQ(u32(file, 34), 3u + 1 + 6);
}

TEST(MetafileWriter, WritesTheRecordsInTheOrderThatPlayersExpect) {
  const std::vector<Record> records = records_of(write_metafile({triangle(qRgb(0x11, 0x22, 0x33))}));
  std::vector<int> functions;
  functions.reserve(records.size());
  for (const Record& record : records) functions.push_back(record.function);
  EXPECT_EQ(functions,
            (std::vector<int>{0x0103, 0x020B, 0x020C, 0x0102, 0x02FA, 0x012D, 0x02FC, 0x012D, 0x0106, 0x0324, 0}));
  EXPECT_EQ(records[0].words, std::vector<int>{8});
  EXPECT_EQ(records[2].words, (std::vector<int>{6400, 6400}));
  EXPECT_EQ(records[4].words, (std::vector<int>{5, 0, 0, 0, 0}));
  EXPECT_EQ(records[6].words, (std::vector<int>{0, 0x2211, 0x0033, 0}));
  EXPECT_EQ(records[9].words, (std::vector<int>{3, 0, 0, 6400, 0, 0, 6400}));
}

TEST(MetafileWriter, JoinsThePolygonsOfOneFigureAndSharesBrushesOfOneColor) {
  FilledShape ring = triangle(qRgb(9, 9, 9));
  ring.rule = FillRule::winding;
  ring.polygons.push_back({{10, 10}, {20, 10}, {10, 20}});
  const std::vector<Record> records = records_of(write_metafile({ring, triangle(qRgb(9, 9, 9))}));
  int brushes = 0;
  std::vector<int> modes;
  for (const Record& record : records) {
    if (record.function == 0x02FC) ++brushes;
    if (record.function == 0x0106) modes.push_back(record.words[0]);
    if (record.function == 0x0538) {
      EXPECT_EQ(std::vector<int>(record.words.begin(), record.words.begin() + 3), (std::vector<int>{2, 3, 3}));
    }
  }
  EXPECT_EQ(brushes, 1);
  EXPECT_EQ(modes, (std::vector<int>{2, 1}));
}

TEST(ToGrid, DropsRepeatedPointsAndThoseOnAStraightLine) {
  const QPolygonF square(QList<QPointF>{{0, 0}, {50, 0.2}, {100, 0}, {100, 0.1}, {100, 100}, {0, 100}, {0, 0}});
  EXPECT_EQ(to_grid(square, 0.75), (GridPolygon{{0, 0}, {100, 0}, {100, 100}, {0, 100}}));
}

TEST(ToGrid, KeepsWhatStraysFartherThanTheTolerance) {
  const QPolygonF bent(QList<QPointF>{{0, 0}, {50, 2}, {100, 0}, {100, 100}});
  EXPECT_EQ(to_grid(bent, 0.75).size(), 4u);
  EXPECT_EQ(to_grid(bent, 3).size(), 3u);
}

TEST(ToGrid, LeavesNothingOfALineOrAPoint) {
  EXPECT_TRUE(to_grid(QPolygonF(QList<QPointF>{{0, 0}, {10, 0}}), 0.75).empty());
  EXPECT_TRUE(to_grid(QPolygonF(QList<QPointF>{{0, 0}, {10, 0}, {20, 0.3}}), 0.75).empty());
  EXPECT_TRUE(to_grid(QPolygonF(QList<QPointF>{{1, 1}, {1.2, 1}, {1.3, 1.2}}), 0.75).empty());
}

TEST(MetafileDevice, TurnsAStrokeIntoAFilledOutline) {
  MetafileDevice device;
  QPainter painter(&device);
  painter.setPen(QPen(Qt::blue, 100));
  painter.drawLine(QPointF(1000, 1000), QPointF(2000, 1000));
  painter.end();
  ASSERT_EQ(device.shapes().size(), 1u);
  EXPECT_EQ(device.shapes()[0].rule, FillRule::winding);
  EXPECT_EQ(device.shapes()[0].color, qRgb(0, 0, 255));
  EXPECT_NEAR(device.bounds().height(), 100, 2);
}

TEST(MetafileDevice, KeepsThePathsOwnFillRule) {
  MetafileDevice device;
  QPainter painter(&device);
  QPainterPath path;
  path.addRect(0, 0, 100, 100);
  path.setFillRule(Qt::WindingFill);
  painter.fillPath(path, Qt::red);
  path.setFillRule(Qt::OddEvenFill);
  painter.fillPath(path, Qt::red);
  painter.end();
  ASSERT_EQ(device.shapes().size(), 2u);
  EXPECT_EQ(device.shapes()[0].rule, FillRule::winding);
  EXPECT_EQ(device.shapes()[1].rule, FillRule::odd_even);
}

// What is painted, as the solid shapes that it becomes.
template<class Paint> std::vector<FilledShape> shapes_of(Paint paint) {
  MetafileDevice device;
  QPainter painter(&device);
  paint(painter);
  painter.end();
  EXPECT_EQ(device.refusal(), "");
  return device.shapes();
}

TEST(MetafileDevice, MixesATranslucentColourWithWhitePaper) {
  const auto shapes = shapes_of([](QPainter& p) { p.fillRect(QRectF(0, 0, 90, 90), QColor(255, 0, 0, 102)); });
  ASSERT_EQ(shapes.size(), 1U);
  EXPECT_EQ(shapes[0].color, qRgb(255, 153, 153));
}

TEST(MetafileDevice, MixesWithTheHighestThingUnderIt) {
  const auto shapes = shapes_of([](QPainter& p) {
    p.fillRect(QRectF(0, 0, 500, 500), Qt::blue);
    p.fillRect(QRectF(0, 0, 300, 300), Qt::black);
    p.setOpacity(0.6);
    p.fillRect(QRectF(100, 100, 100, 100), Qt::red);
  });
  ASSERT_EQ(shapes.size(), 3U); // neither blue nor paper can be seen through it
  EXPECT_EQ(shapes[2].color, qRgb(153, 0, 0));
}

TEST(MetafileDevice, MixesOnceForEachThingThatLiesUnderIt) {
  const auto shapes = shapes_of([](QPainter& p) {
    p.fillRect(QRectF(0, 0, 200, 200), Qt::black);
    p.fillRect(QRectF(1000, 1000, 200, 200), Qt::blue);
    p.fillRect(QRectF(100, 100, 200, 50), QColor(255, 0, 0, 102));
  });
  ASSERT_EQ(shapes.size(), 4U);
  EXPECT_EQ(shapes[2].color, qRgb(255, 153, 153));
  EXPECT_EQ(shapes[3].color, qRgb(102, 0, 0));
  QRect over_black;
  for (const QPoint point : shapes[3].polygons[0]) over_black |= QRect(point, QSize(1, 1));
  EXPECT_EQ(over_black.topLeft(), QPoint(100, 100));
  EXPECT_NEAR(over_black.width(), 100, 2);
}

TEST(MetafileDevice, CutsAGradientIntoBandsFromItsBeginningToItsEnd) {
  constexpr double side = kMetafileSide;
  QLinearGradient straight(0, 0, side, 0);
  QRadialGradient round(side / 2, side / 2, side / 2);
  for (QGradient* gradient : {static_cast<QGradient*>(&straight), static_cast<QGradient*>(&round)}) {
    gradient->setColorAt(0, Qt::black);
    gradient->setColorAt(1, Qt::white);
    const auto shapes = shapes_of([&](QPainter& p) { p.fillRect(QRectF(0, 0, side, side), *gradient); });
    ASSERT_EQ(shapes.size(), 12U);
    for (size_t i = 1; i < shapes.size(); ++i) EXPECT_GT(qRed(shapes[i].color), qRed(shapes[i - 1].color));
    EXPECT_LT(qRed(shapes.front().color), 20);
    EXPECT_GT(qRed(shapes.back().color), 235);
  }
}

TEST(MetafileDevice, KeepsFewBandsOfASmallThingAndNoneThatAreHidden) {
  QLinearGradient gradient(0, 0, 100, 0);
  const QRectF small(0, 0, 100, 100);
  EXPECT_EQ(shapes_of([&](QPainter& p) { p.fillRect(small, gradient); }).size(), 2U);
  const auto covered = shapes_of([&](QPainter& p) {
    p.fillRect(small, gradient);
    p.fillRect(small, Qt::red);
  });
  ASSERT_EQ(covered.size(), 1U);
  EXPECT_EQ(covered[0].color, qRgb(255, 0, 0));
}

TEST(MetafileDevice, TellsOfBands) {
  SquarePicture solid(red_square());
  EXPECT_FALSE(solid.banded());
  SquarePicture gradient(
      svg("<defs><linearGradient id=\"g\"><stop offset=\"0\" stop-color=\"#f00\"/><stop offset=\"1\" "
          "stop-color=\"#00f\"/></linearGradient></defs><path fill=\"url(#g)\" d=\"M8 8h16v16H8z\"/>"));
  EXPECT_TRUE(gradient.banded());
}

TEST(SquarePicture, OfTranslucentAndGraduatedFillsIsNearlyTheSameThroughTheMetafile) {
  SquarePicture picture(
      svg("<defs><linearGradient id=\"g\"><stop offset=\"0\" stop-color=\"#f80\"/><stop offset=\"1\" "
          "stop-color=\"#08f\"/></linearGradient><radialGradient id=\"r\" cx=\"10\" cy=\"10\" r=\"6\" "
          "gradientUnits=\"userSpaceOnUse\"><stop offset=\"0\" stop-color=\"#fff\"/><stop offset=\"1\" "
          "stop-color=\"#080\" stop-opacity=\"0\"/></radialGradient></defs><path fill=\"url(#g)\" d=\"M4 4h24v24H4z\"/>"
          "<circle cx=\"10\" cy=\"10\" r=\"6\" fill=\"url(#r)\"/>"
          "<circle cx=\"20\" cy=\"20\" r=\"6\" fill=\"#000\" opacity=\".4\"/>"
          "<path fill=\"#f00\" opacity=\".5\" d=\"M24 2h6v20h-6z\"/>"));
  EXPECT_NO_THROW(proved_metafile(picture, "test"));
}

TEST(MetafileDevice, RefusesWhatSolidColoursCannotStandFor) {
  const auto refusal = [](const std::function<void(QPainter&)>& paint) {
    MetafileDevice device;
    QPainter painter(&device);
    paint(painter);
    painter.end();
    return device.refusal();
  };
  EXPECT_EQ(refusal([](QPainter& p) { p.fillRect(QRectF(0, 0, 9, 9), Qt::red); }), "");
  EXPECT_NE(refusal([](QPainter& p) { p.fillRect(QRectF(0, 0, 9, 9), QConicalGradient(4, 4, 0)); }), "");
  EXPECT_NE(refusal([](QPainter& p) { p.fillRect(QRectF(0, 0, 9, 9), Qt::Dense4Pattern); }), "");
  EXPECT_NE(refusal([](QPainter& p) { p.drawImage(0, 0, QImage(4, 4, QImage::Format_RGB32)); }), "");
  EXPECT_NE(refusal([](QPainter& p) { p.fillRect(QRectF(0, 0, 99999, 9), Qt::red); }), "");
}

TEST(SquarePicture, IsCentredWithASmallMargin) {
  SquarePicture picture(red_square());
  const QImage image = picture.image(100);
  EXPECT_EQ(image.pixel(2, 50), qRgb(255, 255, 255));
  EXPECT_EQ(image.pixel(6, 50), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(93, 93), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(97, 97), qRgb(255, 255, 255));
}

TEST(SquarePicture, IsTheSameThroughTheMetafileAsThroughTheSvgRenderer) {
  SquarePicture picture(svg("<circle cx=\"12\" cy=\"14\" r=\"9\" fill=\"#0080ff\"/>"
                            "<path fill=\"none\" stroke=\"#203040\" stroke-width=\"2\" d=\"M4 28C10 20 20 30 28 22\"/>"
                            "<path fill=\"#ffd000\" fill-rule=\"evenodd\" d=\"M20 4h8v8h-8zM22 6h4v4h-4z\"/>"));
  const QByteArray metafile = proved_metafile(picture, "test");
  EXPECT_LT(share_of_pixels_off(draw_metafile(metafile, 300), picture.image(300)), 0.01);
}

TEST(SquarePicture, TurnsBeforeItFits) {
  const QByteArray pointer =
      svg("<path fill=\"#ff0000\" d=\"M4 14h24v4H4z\"/><path fill=\"#0000ff\" d=\"M20 10h8v12h-8z\"/>");
  SquarePicture lying(pointer), turned(pointer, QTransform().rotate(90));
  EXPECT_EQ(lying.image(100).pixel(90, 50), qRgb(0, 0, 255));
  EXPECT_EQ(turned.image(100).pixel(50, 90), qRgb(0, 0, 255));
  EXPECT_EQ(turned.image(100).pixel(50, 10), qRgb(255, 0, 0));
}

TEST(SquarePicture, RefusesADrawingThatLeavesItsViewBox) {
  EXPECT_THROW(SquarePicture(svg("<path fill=\"#ff0000\" d=\"M8 8h40v16H8z\"/>")), PackError);
  EXPECT_THROW(SquarePicture(QByteArray("no picture")), PackError);
  EXPECT_THROW(SquarePicture(svg("")), PackError);
}

TEST(ShareOfPixelsOff, CountsPlainDifferencesOnly) {
  QImage a(10, 10, QImage::Format_RGB32), b(10, 10, QImage::Format_RGB32);
  a.fill(qRgb(100, 100, 100));
  b.fill(qRgb(120, 100, 100));
  EXPECT_EQ(share_of_pixels_off(a, b), 0);
  b.setPixel(3, 3, qRgb(200, 100, 100));
  EXPECT_DOUBLE_EQ(share_of_pixels_off(a, b), 0.01);
  EXPECT_EQ(share_of_pixels_off(a, QImage()), 1);
}

} // namespace
} // namespace cserko
