// The words that can be hidden on the boards of Knight's jump.
#pragma once

#include "data/checker/word_facts.h"

namespace cserko {

/// Settings of a board.
struct KnightBoard {
  int rows;
  int columns;
  int most_characters;
  int pictures;
  bool english;
  bool neighbours; ///< The rule: to neighbouring fields, or as a knight.
};

/// Number of words that are drawn for such a board, 0 where even the shortest of them do not fit on it together, or
/// where no path is found for as many letters as it may hold.
///
/// A number that is drawn stands for a file and for an index of the records: that record's name must be short as well.
/// The order of the records is that of the file system, so it counts how many words that leaves on average.
int knight_words(const Pack& pack, const KnightBoard& board);

} // namespace cserko
