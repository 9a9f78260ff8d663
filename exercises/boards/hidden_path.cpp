#include "exercises/boards/hidden_path.h"

#include <cmath>

namespace cserko {

namespace {

constexpr TextView advice =
    u"Ezeket a szavakat nem sikerült elrejteni a táblán.\r\nKérlek, állíts be nagyobb táblát vagy rövidebb szavakat!";

} // namespace

PathSearch::PathSearch(int columns, int rows, const Moves& moves, std::function<double()> random)
    : columns_(columns), rows_(rows), moves_(moves), random_(std::move(random)) {}

std::vector<Square> PathSearch::find(int letters, const std::function<void(Square start)>& started) {
  const auto draw = [this](int n) { return static_cast<int>(std::floor(random_() * n)); };
  path_.assign(static_cast<std::size_t>(letters) + 1, {});
  steps_ = 0;
  for (int start = 0; start < most_starts; ++start) {
    if (start % starts_a_field == 0) {
      path_[0].column = draw(columns_);
      path_[0].row = draw(rows_);
      if (started) started(path_[0]);
    }
    taken_.fill(false);
    taken(path_[0]) = true;
    steps_left_ = steps_a_start;
    if (szó_elhelyezés(1)) return path_;
  }
  throw NothingFits(advice);
}

bool PathSearch::szó_elhelyezés(std::size_t depth) {
  const Square from = path_[depth - 1];
  const auto directions = moves_.size();
  const auto first = static_cast<std::size_t>(random_() * static_cast<double>(directions));
  // Nine turns: the first direction is tried a second time, which is intended.
  for (std::size_t i = first; i <= first + directions; ++i) {
    const Square& move = moves_[i % directions];
    const Square to{from.column + move.column, from.row + move.row};
    if (!is_free(to)) continue;
    if (steps_left_ == 0) return false;
    --steps_left_;
    ++steps_;
    taken(to) = true;
    path_[depth] = to;
    if (depth + 1 == path_.size() || szó_elhelyezés(depth + 1)) return true;
    taken(to) = false;
  }
  return false;
}

bool PathSearch::is_free(Square square) const {
  return square.column >= 0 && square.column < columns_ && square.row >= 0 && square.row < rows_ &&
         !taken_[index(square)];
}

} // namespace cserko
