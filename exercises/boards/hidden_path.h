// A hidden path over the fields of a board: a random walk that enters no field twice and is as long as the words that
// are to be read along it. It knows no window.
#pragma once

#include "core/nothing_fits.h"

#include <array>
#include <functional>
#include <vector>

namespace cserko {

/// A field by its column and row, or the way from one field to another.
struct Square {
  int column = 0;
  int row = 0;
  bool operator==(const Square&) const = default;
};

/// The moves of a rule, in the order in which a search turns through them.
using Moves = std::array<Square, 8>;
inline constexpr Moves knight_moves{{{-1, 2}, {-2, 1}, {-2, -1}, {-1, -2}, {1, -2}, {2, -1}, {2, 1}, {1, 2}}};
inline constexpr Moves neighbour_moves{{{-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}}};

/// Searches such paths depth-first, each field with a random first direction. What a search may cost has no limit but
/// the board, so it works under a budget: past it, or where it has failed by itself, it starts over with new random
/// directions, and now and then from another field.
class PathSearch {
 public:
  /// Largest board.
  static constexpr int most_columns = 12;
  static constexpr int most_rows = 8;

  static constexpr int steps_a_start = 500; ///< Fields entered before it starts over.
  static constexpr int starts_a_field = 5;  ///< Starts before another start field is drawn.
  static constexpr int most_starts = 400;   ///< Far above what any board of the settings needs: fewer than twenty.

  /// A board of so many columns and rows, at most the largest. `random` gives numbers in [0, 1).
  PathSearch(int columns, int rows, const Moves& moves, std::function<double()> random);

  /// Draws a start field, of which `started` is told each time, and finds a path of so many steps, at least one, from
  /// there: the start field and the field of each step. Throws NothingFits after the last start.
  std::vector<Square> find(int letters, const std::function<void(Square start)>& started = {});

  /// Fields entered by the last search, those of all its starts.
  int steps() const { return steps_; }

 private:
  bool szó_elhelyezés(std::size_t depth);
  bool is_free(Square square) const;
  bool& taken(Square square) { return taken_[index(square)]; }
  static std::size_t index(Square square) {
    return static_cast<std::size_t>(square.column) + std::size_t{most_columns} * static_cast<std::size_t>(square.row);
  }

  int columns_;
  int rows_;
  Moves moves_;
  std::function<double()> random_;
  std::array<bool, static_cast<std::size_t>(most_columns) * most_rows> taken_{};
  std::vector<Square> path_;
  int steps_ = 0;
  int steps_left_ = 0; ///< Of this start.
};

} // namespace cserko
