// The search of a hidden path: the moves of both rules, the order in which they are tried, the budget.
#include "exercises/boards/hidden_path.h"
#include "tests/suite/suite_fixture.h"

#include <cmath>
#include <random>
#include <set>

namespace cserko {
namespace {

// Random numbers out of a list, in turn.
std::function<double()> numbers(std::vector<double> list) {
  return [list = std::move(list), at = std::size_t{0}]() mutable { return list.at(at++); };
}
// The number by which the whole part of (random × n) is that number.
double hits(int number, int n) { return (number + 0.5) / n; }

std::function<double()> chance(unsigned seed) {
  return [generator = std::mt19937(seed)]() mutable { return std::uniform_real_distribution<double>(0, 1)(generator); };
}

TEST(Moves, OfAKnight) {
  for (const Square& move : knight_moves) EXPECT_EQ(std::abs(move.column * move.row), 2);
  EXPECT_EQ(knight_moves[0], (Square{-1, 2}));
  EXPECT_EQ(knight_moves[1], (Square{-2, 1}));
  EXPECT_EQ(knight_moves[2], (Square{-2, -1}));
  EXPECT_EQ(knight_moves[3], (Square{-1, -2}));
  EXPECT_EQ(knight_moves[4], (Square{1, -2}));
  EXPECT_EQ(knight_moves[5], (Square{2, -1}));
  EXPECT_EQ(knight_moves[6], (Square{2, 1}));
  EXPECT_EQ(knight_moves[7], (Square{1, 2}));
}

TEST(Moves, ToNeighboursDiagonalsIncluded) {
  EXPECT_EQ(neighbour_moves[0], (Square{-1, 1}));
  EXPECT_EQ(neighbour_moves[1], (Square{-1, 0}));
  EXPECT_EQ(neighbour_moves[2], (Square{-1, -1}));
  EXPECT_EQ(neighbour_moves[3], (Square{0, -1}));
  EXPECT_EQ(neighbour_moves[4], (Square{1, -1}));
  EXPECT_EQ(neighbour_moves[5], (Square{1, 0}));
  EXPECT_EQ(neighbour_moves[6], (Square{1, 1}));
  EXPECT_EQ(neighbour_moves[7], (Square{0, 1}));
}

TEST(PathSearch, TakesTwoNumbersForTheStartAndOneForEachStep) {
  PathSearch search(8, 6, knight_moves, numbers({hits(3, 8), hits(2, 6), hits(0, 8), hits(5, 8)}));
  EXPECT_EQ(search.find(2), (std::vector<Square>{{3, 2}, {2, 4}, {4, 3}}));
  EXPECT_EQ(search.steps(), 2);
}

TEST(PathSearch, TurnsOnFromTheDrawnDirectionUntilOneIsFree) {
  // From the corner only the seventh and the eighth direction stay on the board; behind the eighth comes the first.
  PathSearch fourth(8, 8, knight_moves, numbers({0, 0, hits(3, 8)}));
  EXPECT_EQ(fourth.find(1), (std::vector<Square>{{0, 0}, {2, 1}}));
  PathSearch eighth(8, 8, knight_moves, numbers({hits(7, 8), hits(7, 8), hits(7, 8)}));
  EXPECT_EQ(eighth.find(1), (std::vector<Square>{{7, 7}, {5, 6}}));
}

TEST(PathSearch, GoesBackWhereAFieldLeadsNowhere) {
  // On three by two fields a knight comes from the corner to the opposite side, and nowhere else.
  PathSearch knight(3, 2, knight_moves, numbers({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(knight.find(1), (std::vector<Square>{{0, 0}, {2, 1}}));
  // A row of four: the step to the left leads to a dead end.
  PathSearch row(4, 1, neighbour_moves, numbers({hits(1, 4), 0, hits(1, 8), hits(0, 8), hits(0, 8), hits(0, 8)}));
  EXPECT_EQ(row.find(2), (std::vector<Square>{{1, 0}, {2, 0}, {3, 0}}));
  EXPECT_EQ(row.steps(), 3) << "one of them was left again";
}

TEST(PathSearch, TriesTheFirstDirectionASecondTime) {
  // Two fields that only lead to each other: where the first direction goes there, so does the ninth.
  PathSearch search(2, 1, neighbour_moves, chance(1));
  EXPECT_THROW(search.find(2), NothingFits);
  EXPECT_GT(search.steps(), PathSearch::most_starts);
  EXPECT_LT(search.steps(), PathSearch::most_starts * 2);
}

TEST(PathSearch, DrawsANewStartAfterSomeFruitlessOnesAndTellsOfEach) {
  int starts = 0;
  std::set<int> fields;
  PathSearch search(6, 6, knight_moves, chance(3));
  EXPECT_THROW(search.find(36,
                           [&](Square start) {
                             ++starts;
                             fields.insert(start.column + 6 * start.row);
                           }),
               NothingFits)
      << "there is no field for the last letter";
  EXPECT_EQ(starts, PathSearch::most_starts / PathSearch::starts_a_field);
  EXPECT_GT(fields.size(), 20U);
  EXPECT_EQ(search.steps(), PathSearch::most_starts * PathSearch::steps_a_start);
}

TEST(PathSearch, SaysWhichSettingToRelax) {
  PathSearch search(6, 6, knight_moves, chance(1));
  try {
    search.find(36);
    FAIL();
  } catch (const NothingFits& unfit) {
    EXPECT_EQ(utf8(unfit.message()), "Ezeket a szavakat nem sikerült elrejteni a táblán.\r\nKérlek, állíts be nagyobb "
                                     "táblát vagy rövidebb szavakat!");
  }
}

// Longest words on every board that the settings allow: each comes with its path, and far below the budget.
TEST(PathSearch, FindsAPathOnEveryBoardOfTheSettings) {
  const auto random = chance(11);
  int most = 0;
  for (const Moves& moves : {knight_moves, neighbour_moves}) {
    for (int rows = 6; rows <= 8; ++rows) {
      for (int columns = 6; columns <= 12; ++columns) {
        PathSearch search(columns, rows, moves, random);
        const int letters = std::min(48, static_cast<int>(0.8 * rows * columns) - 1);
        for (int i = 0; i < 100; ++i) {
          const std::vector<Square> path = search.find(letters);
          most = std::max(most, search.steps());
          ASSERT_EQ(path.size(), static_cast<std::size_t>(letters + 1));
          std::set<int> fields;
          for (std::size_t at = 0; at < path.size(); ++at) {
            const Square here = path[at];
            ASSERT_TRUE(here.column >= 0 && here.column < columns && here.row >= 0 && here.row < rows);
            ASSERT_TRUE(fields.insert(here.column + 12 * here.row).second) << "no field twice";
            if (at == 0) continue;
            const Square move{here.column - path[at - 1].column, here.row - path[at - 1].row};
            ASSERT_NE(std::find(moves.begin(), moves.end(), move), moves.end());
          }
        }
      }
    }
  }
  EXPECT_LT(most, PathSearch::most_starts * PathSearch::steps_a_start / 10);
}

} // namespace
} // namespace cserko
