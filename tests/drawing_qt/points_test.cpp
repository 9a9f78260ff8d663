// The points of the real canvas, at every zoom; pictures between the suite, Qt, files and the clipboard.
#include "platform/bitmap.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_images.h"
#include "tests/qt/fixture.h"

#include <QBuffer>
#include <QClipboard>

namespace cserko::test {
namespace {

constexpr Color red{255, 0, 0};

class Points : public testing::TestWithParam<double> {
 protected:
  Fonts fonts{GetParam() / twips_per_pixel};
  QtCanvas canvas{{1500, 1200}, fonts, 1.0};
  PixelGrid& grid = canvas.grid();
};

TEST_P(Points, AreThoseOfTheScreen) {
  EXPECT_EQ(grid.columns(), static_cast<int>(std::lround(100 * GetParam())));
  EXPECT_EQ(grid.rows(), static_cast<int>(std::lround(80 * GetParam())));
  EXPECT_DOUBLE_EQ(grid.pitch(), 15 / GetParam());
}

TEST_P(Points, WhatIsPutIsReadAndItsNeighboursStay) {
  for (int row = 0; row < grid.rows(); row += 7) {
    for (int column = 0; column < grid.columns(); column += 5) {
      EXPECT_EQ(grid.at(column, row), white);
      grid.put(column, row, red);
      EXPECT_EQ(grid.at(column, row), red);
    }
  }
  EXPECT_EQ(grid.at(1, 1), white);
}

TEST_P(Points, ARunCoversItsPointsAlone) {
  grid.run(3, 10, 20, red);
  EXPECT_EQ(grid.at(9, 3), white);
  EXPECT_EQ(grid.at(10, 3), red);
  EXPECT_EQ(grid.at(19, 3), red);
  EXPECT_EQ(grid.at(20, 3), white);
  EXPECT_EQ(grid.at(15, 2), white);
  grid.run(3, 5, 5, black);
  EXPECT_EQ(grid.at(5, 3), white);
}

TEST_P(Points, APartIsCopiedAndPutBackExactly) {
  PixelImage image{13, 9, {}};
  for (int i = 0; i < 13 * 9; ++i)
    image.pixels.push_back({static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(2 * i), 200});
  grid.paste(20, 30, image);
  EXPECT_EQ(grid.copy({20, 30, 33, 39}), image);
  grid.paste(-5, grid.rows() - 4, image); // over the edges
  EXPECT_EQ(grid.at(0, grid.rows() - 4), image.at(5, 0));
  EXPECT_EQ(grid.at(7, grid.rows() - 1), image.at(12, 3));
  EXPECT_TRUE(grid.copy({-10, -10, 0, 0}).empty());
}

TEST_P(Points, EveryChangeIsNoticedAndItsPlaceShownAgain) {
  (void)canvas.take_changes();
  const std::uint64_t before = canvas.revision();
  grid.put(50, 40, red);
  EXPECT_NE(canvas.revision(), before);
  EXPECT_TRUE(canvas.take_changes().contains(QRectF(50, 40, 1, 1)));
}

INSTANTIATE_TEST_SUITE_P(Zooms, Points, testing::Values(1.0, 1.25, 1.75, 2.5),
                         [](const auto& zoom) { return std::to_string(static_cast<int>(zoom.param * 100)); });

class Pictures : public QtMachine {
 protected:
  static PixelImage sample() { return {2, 2, {red, white, black, {1, 2, 3}}}; }
  static std::string encoded(const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    to_qt(sample()).save(&buffer, format);
    return bytes.toStdString();
  }
};

TEST_F(Pictures, ComeThroughQtAsTheyWere) {
  EXPECT_EQ(from_qt(to_qt(sample())), sample());
  EXPECT_EQ(from_qt(QImage()), std::nullopt);
  QImage clear(1, 1, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  EXPECT_EQ(from_qt(clear), (PixelImage{1, 1, {white}}));
}

TEST_F(Pictures, FilesOfOtherProgramsAreRead) {
  for (const char* format : {"BMP", "PNG"}) EXPECT_EQ(machine->decode_picture(encoded(format)), sample()) << format;
  EXPECT_EQ(machine->decode_picture("Kedves Nagymama!"), std::nullopt);
  EXPECT_EQ(machine->decode_picture(""), std::nullopt);
  EXPECT_EQ(machine->decode_picture(encoded("BMP").substr(0, 60)), std::nullopt);
}

TEST_F(Pictures, OtherProgramsReadWhatIsWritten) {
  QImage read;
  ASSERT_TRUE(read.loadFromData(QByteArray::fromStdString(write_bitmap(sample())), "BMP"));
  EXPECT_EQ(from_qt(read), sample());
}

TEST_F(Pictures, TheClipboardsIsTaken) {
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(machine->clipboard_image(), std::nullopt);
  QGuiApplication::clipboard()->setImage(to_qt(sample()));
  EXPECT_EQ(machine->clipboard_image(), sample());
}

} // namespace
} // namespace cserko::test
