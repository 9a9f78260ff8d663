#include "feedback/drawing/brush.h"
#include "tests/drawing/grid.h"

#include <cmath>

namespace cserko {
namespace {

constexpr double px = twips_per_pixel;

// The middle of a point.
Point at(int column, int row) { return {(column + 0.5) * px, (row + 0.5) * px}; }

TEST(Brush, ADotOfOnePixelIsOnePoint) {
  Sheet sheet(blank_rows(3, 3));
  draw_line(sheet.grid(), at(1, 1), at(1, 1), px, black);
  EXPECT_EQ(sheet.rows(), (Rows{"...", ".#.", "..."}));
}

TEST(Brush, ADotOfFourPixelsIsFourPointsBroadWithRoundCorners) {
  Sheet sheet(blank_rows(6, 6));
  draw_line(sheet.grid(), at(3, 3), at(3, 3), 4 * px, black);
  EXPECT_EQ(sheet.rows(), (Rows{"......", "..##..", ".####.", ".####.", "..##..", "......"}));
}

TEST(Brush, ALyingAndAStandingLineAreAsBroadAsTold) {
  Sheet lying(blank_rows(9, 5));
  draw_line(lying.grid(), at(3, 2), at(5, 2), 3 * px, black);
  EXPECT_EQ(lying.rows(), (Rows{".........", "..#####..", "..#####..", "..#####..", "........."}));
  Sheet standing(blank_rows(3, 4));
  draw_line(standing.grid(), at(1, 0), at(1, 3), px, black);
  EXPECT_EQ(standing.rows(), (Rows{".#.", ".#.", ".#.", ".#."}));
}

TEST(Brush, AThinSlantedLineHasNoGap) {
  for (int dx = -12; dx <= 12; ++dx) {
    for (int dy = -12; dy <= 12; ++dy) {
      Sheet sheet(blank_rows(25, 25));
      draw_line(sheet.grid(), at(12, 12), at(12 + dx, 12 + dy), px, black);
      const PixelGrid& grid = sheet.grid();
      const int steps = std::max({std::abs(dx), std::abs(dy), 1});
      for (int i = 0; i <= steps; ++i) {
        const int x = 12 + static_cast<int>(std::lround(static_cast<double>(dx) * i / steps));
        const int y = 12 + static_cast<int>(std::lround(static_cast<double>(dy) * i / steps));
        bool near = false;
        for (const int aside : {-1, 0, 1})
          near = near || (std::abs(dx) > std::abs(dy) ? grid.contains(x, y + aside) && grid.at(x, y + aside) == black
                                                      : grid.contains(x + aside, y) && grid.at(x + aside, y) == black);
        EXPECT_TRUE(near) << dx << ", " << dy << " at step " << i;
      }
    }
  }
}

TEST(Brush, OnlyTheColourAndWhatWasThereIsSeen) {
  Sheet sheet(blank_rows(60, 40));
  draw_line(sheet.grid(), at(5, 5), at(50, 31), 13 * px, red);
  for (const std::string& row : sheet.rows()) EXPECT_EQ(row.find_first_not_of(".r"), std::string::npos);
}

TEST(Brush, TouchesNothingOutsideItsExtent) {
  for (const int width : {1, 4, 7, 10, 13}) {
    Sheet sheet(blank_rows(60, 60));
    const GridRect extent = line_extent(sheet.grid(), at(20, 40), at(35, 22), width * px);
    draw_line(sheet.grid(), at(20, 40), at(35, 22), width * px, black);
    for (int y = 0; y < 60; ++y) {
      for (int x = 0; x < 60; ++x) {
        const bool inside = x >= extent.left && x < extent.right && y >= extent.top && y < extent.bottom;
        if (!inside) {
          EXPECT_EQ(sheet.grid().at(x, y), white) << width << ": " << x << ", " << y;
        }
      }
    }
  }
}

TEST(Brush, WhatLiesOutsideThePaperIsLeftOut) {
  Sheet sheet(blank_rows(3, 3));
  draw_line(sheet.grid(), at(-500, 1), at(500, 1), px, black);
  EXPECT_EQ(sheet.rows(), (Rows{"...", "###", "..."}));
  draw_line(sheet.grid(), at(-9, -9), at(-5, -5), 4 * px, red);
  EXPECT_EQ(sheet.rows(), (Rows{"...", "###", "..."}));
  const double nowhere = std::nan("");
  draw_line(sheet.grid(), {nowhere, nowhere}, {1e300, -1e300}, px, red);
  draw_line(sheet.grid(), {1e300, 1e300}, {1e300, 1e300}, px, red);
}

TEST(Brush, ABoxCoversThePointsThatItsEdgesRoundTo) {
  Sheet sheet(blank_rows(5, 4));
  fill_box(sheet.grid(), box_extent(sheet.grid(), {px, px, 2 * px, 2 * px}), blue);
  EXPECT_EQ(sheet.rows(), (Rows{".....", ".bb..", ".bb..", "....."}));
  fill_box(sheet.grid(), {-4, 3, 40, 90}, red);
  EXPECT_EQ(sheet.rows().back(), "rrrrr");
}

} // namespace
} // namespace cserko
