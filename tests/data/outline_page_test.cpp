#include "data/builder/outline_page.h"
#include "tests/data/samples.h"

namespace cserko {
namespace {

FilledShape box(QRgb color, int x, int y, int width, int height) {
  return {color, FillRule::odd_even, {{{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}}}};
}

constexpr QRgb kRed = qRgb(255, 0, 0), kBlue = qRgb(0, 0, 255), kDark = qRgb(20, 20, 20);

TEST(OutlinePage, IsPureBlackOnPureWhiteAndOneBitDeep) {
  const QImage page = outline_page({box(kRed, 1000, 1000, 4000, 4000)});
  EXPECT_EQ(page.depth(), 1);
  EXPECT_EQ(page.size(), QSize(kPageSide, kPageSide));
  EXPECT_EQ(page.pixel(300, 300), qRgb(255, 255, 255));
  EXPECT_EQ(page.pixel(1000 * kPageSide / kMetafileSide, 300), qRgb(0, 0, 0));
}

TEST(OutlinePage, ClosesEachColoredAreaWithALine) {
  EXPECT_EQ(white_areas(outline_page({box(kRed, 1000, 1000, 4000, 4000)})).size(), 2u);
  EXPECT_EQ(white_areas(outline_page({box(kRed, 1000, 1000, 4000, 4000), box(kBlue, 2000, 2000, 2000, 2000)})).size(),
            3u);
}

TEST(OutlinePage, JoinsShadesOfOneColor) {
  EXPECT_EQ(
      white_areas(outline_page({box(kRed, 1000, 1000, 4000, 4000), box(qRgb(240, 10, 10), 2000, 2000, 2000, 2000)}))
          .size(),
      2u);
}

TEST(OutlinePage, JoinsAreasTooSmallToPaint) {
  const std::vector<int> areas =
      white_areas(outline_page({box(kRed, 1000, 1000, 4000, 4000), box(kBlue, 2000, 2000, 150, 150)}));
  EXPECT_EQ(areas.size(), 2u);
  EXPECT_GE(areas.back(), kSmallestArea);
}

TEST(OutlinePage, PaintsSmallDarkAreasBlack) {
  const QImage page = outline_page({box(kRed, 1000, 1000, 4000, 4000), box(kDark, 2000, 2000, 200, 200)});
  const int middle = 2100 * kPageSide / kMetafileSide;
  EXPECT_EQ(page.pixel(middle, middle), qRgb(0, 0, 0));
  EXPECT_EQ(white_areas(page).size(), 2u);
}

TEST(WhiteAreas, AreCountedSideBySideAndNotCornerToCorner) {
  QImage page(kPageSide, kPageSide, QImage::Format_Mono);
  page.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
  page.fill(0);
  page.setPixel(10, 10, 1);
  page.setPixel(11, 11, 1);
  page.setPixel(12, 11, 1);
  EXPECT_EQ(white_areas(page), (std::vector<int>{2, 1}));
}

} // namespace
} // namespace cserko
