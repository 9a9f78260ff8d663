#include "data/checker/knight_boards.h"

#include "exercises/boards/hidden_path.h"

#include <QSet>
#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <tuple>

namespace cserko {

namespace {

// The longest paths are searched on each board once, many times with different chances.
bool paths_found(const KnightBoard& board, int letters) {
  constexpr int searches = 50;
  static std::map<std::tuple<int, int, bool>, bool> known;
  const auto [found, fresh] = known.try_emplace({board.rows, board.columns, board.neighbours}, true);
  if (!fresh) return found->second;
  std::mt19937 generator(1);
  PathSearch search(board.columns, board.rows, board.neighbours ? neighbour_moves : knight_moves,
                    [&generator] { return static_cast<double>(generator()) / 4294967296.0; });
  try {
    for (int i = 0; i < searches; ++i) search.find(letters);
  } catch (const NothingFits&) {
    found->second = false;
  }
  return found->second;
}

} // namespace

int knight_words(const Pack& pack, const KnightBoard& board) {
  std::vector<int> lengths;
  QSet<QString> seen;
  int short_names = 0;
  for (const WordFacts& facts : pack.words) {
    if (facts.record.name.size() <= board.most_characters) ++short_names;
    const QString word = (board.english ? facts.record.english : facts.record.name).toLower();
    const bool fits =
        !word.isEmpty() && !word.contains(' ') && !word.contains('-') && word.size() <= board.most_characters;
    if (!fits || seen.contains(word)) continue;
    seen.insert(word);
    lengths.push_back(static_cast<int>(word.size()) + 1); // with the comma behind it
  }
  const double most = 0.8 * board.rows * board.columns;
  const auto drawn = static_cast<int>(lengths.size()) * short_names / static_cast<int>(pack.words.size());
  std::sort(lengths.begin(), lengths.end());
  const auto together = lengths.begin() + std::min<std::ptrdiff_t>(board.pictures, std::ssize(lengths));
  const bool room = std::accumulate(lengths.begin(), together, 0) <= most;
  return room && paths_found(board, static_cast<int>(most) - 1) ? drawn : 0;
}

} // namespace cserko
