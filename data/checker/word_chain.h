// The chains of seven words that the word chain can deal.
#pragma once

#include "data/checker/word_facts.h"

namespace cserko {

/// What must be equal between the end of a word and the start of the next.
enum class ChainType { syllable, two_letters, letter };

/// Number of start words from which the exercise's own search finds seven words of at most `most_letters` letters. The
/// search depends on the order of the records, which is that of the file system: of several orders the least counts.
int chain_starts(const Pack& pack, ChainType type, int most_letters);

} // namespace cserko
