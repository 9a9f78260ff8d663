// The chains of seven words that the word chain can deal.
#pragma once

#include "data/checker/word_facts.h"

namespace cserko {

/// What must be equal between the end of a word and the start of the next.
enum class ChainType { syllable, two_letters, letter };

/// How many start words have a chain of seven words of at most `most_letters` letters, whatever the order of the
/// records is, which is that of the file system. The exercise first leaves out the last of several words that could
/// come next; where that comes to nothing it tries them all, so that the order counts in one thing alone: the last
/// record is never drawn as a start, and any of them may be it.
int chain_starts(const Pack& pack, ChainType type, int most_letters);

} // namespace cserko
