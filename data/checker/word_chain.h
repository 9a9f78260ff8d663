// The chains of seven words that the word chain can deal.
#pragma once

#include "data/checker/word_facts.h"

namespace cserko {

/// What must be equal between the end of a word and the start of the next.
enum class ChainType { syllable, two_letters, letter };

// The exercise's search depends on the order of the records, which is that of the file system: of several words that
// could come next it never tries the last, and it never starts with the last of all.

/// How many start words have a chain of words of at most `most_letters` letters that the search finds whatever the
/// order is: a proof, which looks at the ways behind each word that is left when any one other is taken away.
int chain_starts_in_any_order(const Pack& pack, ChainType type, int most_letters);

/// The least number of such start words in six orders, among them those of the numbers and of the file names.
int chain_starts_in_some_orders(const Pack& pack, ChainType type, int most_letters);

} // namespace cserko
