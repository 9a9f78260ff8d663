// The fills: their tables, their order, and the odd rule about the clicked point.
#include "feedback/drawing/fills.h"
#include "tests/drawing/grid.h"

#include <random>

namespace cserko {
namespace {

using Places = std::vector<std::pair<int, int>>;

struct Flood {
  Places painted;
  int redraws = 0;
  int draws = 0;
};

enum class Kind { Plain, Blot };

Flood flood(Sheet& sheet, int column, int row, Color color, Kind kind = Kind::Plain,
            const std::vector<double>& numbers = {}) {
  Flood result;
  std::mt19937 chance(7);
  const FillOrder order{.grid = sheet.grid(),
                        .column = column,
                        .row = row,
                        .color = color,
                        .before = [&](int x, int y) { result.painted.emplace_back(x, y); },
                        .redraw = [&] { ++result.redraws; },
                        .random =
                            [&] {
                              const auto next = static_cast<std::size_t>(result.draws++);
                              return next < numbers.size() ? numbers[next]
                                                           : static_cast<double>(chance() >> 8) / (1 << 24);
                            }};
  if (kind == Kind::Plain) {
    kitöltés(order);
  } else {
    foltfestés(order);
  }
  return result;
}

TEST(Fills, TheTablesOfNeighboursAreInTheirOrder) {
  const auto expect_steps = [](const auto& table, const std::vector<std::pair<int, int>>& steps) {
    ASSERT_EQ(table.size(), steps.size());
    for (std::size_t i = 0; i < steps.size(); ++i) {
      EXPECT_EQ(table.at(i).x, steps[i].first) << i;
      EXPECT_EQ(table.at(i).y, steps[i].second) << i;
    }
  };
  expect_steps(four_neighbours, {{0, -1}, {1, 0}, {0, 1}, {-1, 0}});
  expect_steps(eight_neighbours, {{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {1, -1}, {1, 1}, {-1, 1}, {-1, -1}});
}

TEST(Fills, GoesDeepFirstUpThenRightThenDownThenLeft) {
  Sheet sheet({"...", "...", "..."});
  const Flood result = flood(sheet, 1, 2, red);
  EXPECT_EQ(result.painted, (Places{{1, 2}, {1, 1}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {0, 0}, {0, 1}, {0, 2}}));
  EXPECT_EQ(sheet.rows(), (Rows{"rrr", "rrr", "rrr"}));
}

TEST(Fills, StopsAtAnotherColour) {
  Sheet sheet({".....", ".###.", ".#.#.", ".###.", "....."});
  flood(sheet, 2, 2, red);
  EXPECT_EQ(sheet.rows(), (Rows{".....", ".###.", ".#r#.", ".###.", "....."}));
  flood(sheet, 0, 4, blue);
  EXPECT_EQ(sheet.rows(), (Rows{"bbbbb", "b###b", "b#r#b", "b###b", "bbbbb"}));
}

TEST(Fills, TheClickedPointIsNotLookedAtAgain) {
  // In a corridor the left side can be reached only through the clicked point: it stays as it was.
  Sheet sheet({".......", "#######"});
  flood(sheet, 3, 0, red);
  EXPECT_EQ(sheet.rows(), (Rows{"...rrrr", "#######"}));
}

TEST(Fills, AnAreaOnePointWideIsFilledAlongItsTurnsFromItsEnd) {
  Sheet sheet({"#########", "#.......#", "#######.#", "#...###.#", "#.#.....#", "#########"});
  flood(sheet, 1, 1, red);
  EXPECT_EQ(sheet.rows(), (Rows{"#########", "#rrrrrrr#", "#######r#", "#rrr###r#", "#r#rrrrr#", "#########"}));
}

TEST(Fills, ASinglePointEndsAtOnce) {
  Sheet sheet({"###", "#.#", "###"});
  EXPECT_EQ(flood(sheet, 1, 1, red).painted, (Places{{1, 1}}));
  Sheet blot({"###", "#.#", "###"});
  const Flood result = flood(blot, 1, 1, red, Kind::Blot);
  EXPECT_EQ(result.painted, (Places{{1, 1}}));
  EXPECT_EQ(result.draws, 8) << "every direction is tried once";
}

TEST(Fills, FourNeighboursDoNotPassACornerAndEightDo) {
  Sheet sheet({"..#", ".#.", "#.."});
  flood(sheet, 1, 0, red);
  EXPECT_EQ(sheet.rows(), (Rows{"rr#", "r#.", "#.."}));
  Sheet blot({"..#", ".#.", "#.."});
  flood(blot, 0, 0, red, Kind::Blot);
  const Rows rows = blot.rows();
  EXPECT_EQ(rows[2][2], 'r') << "eight neighbours go through a slanted line";
}

TEST(Fills, TheBlotGoesWhereItsDrawsLeadIt) {
  // The whole part of (random × directions left), taken among those left: 0 is up, 7 of 8 the last.
  Sheet sheet({"...", "...", "..."});
  const Flood result = flood(sheet, 1, 1, red, Kind::Blot, {0.99, 0.99, 0.0});
  // Left up; there the last of eight leads off the paper; up leads off it too.
  ASSERT_GE(result.painted.size(), 2U);
  EXPECT_EQ(result.painted[0], (std::pair{1, 1}));
  EXPECT_EQ(result.painted[1], (std::pair{0, 0}));
}

TEST(Fills, TheBlotFillsWhatThePlainFillFills) {
  Sheet plain(blank_rows(40, 30));
  Sheet blot(blank_rows(40, 30));
  flood(plain, 20, 15, red);
  flood(blot, 20, 15, red, Kind::Blot);
  EXPECT_EQ(plain.rows(), blot.rows());
}

TEST(Fills, TheBlotDoesNotLookAtTheClickedPointAgainEither) {
  Sheet sheet({"...", "###"});
  const Flood result = flood(sheet, 1, 0, red, Kind::Blot);
  EXPECT_EQ(result.painted.size(), 2U) << "one side alone";
}

TEST(Fills, RedrawsAtEveryThousandthPoint) {
  Sheet short_of(blank_rows(27, 37)); // 999 points
  EXPECT_EQ(flood(short_of, 0, 0, red).redraws, 0);
  Sheet thousand(blank_rows(50, 20));
  EXPECT_EQ(flood(thousand, 0, 0, red).redraws, 1);
  Sheet more(blank_rows(50, 69));
  EXPECT_EQ(flood(more, 0, 0, red).redraws, 3);
  Sheet blot(blank_rows(50, 69));
  EXPECT_EQ(flood(blot, 0, 0, red, Kind::Blot).redraws, 3);
}

TEST(Fills, AreaOfAMillionPointsNeedsNoCallStack) {
  Sheet sheet(blank_rows(1000, 1000));
  EXPECT_EQ(flood(sheet, 0, 0, red).painted.size(), 1000000U);
}

} // namespace
} // namespace cserko
