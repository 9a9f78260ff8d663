// Spelling and syllables of the word table against the dictionaries.
#pragma once

#include "data/checker/exceptions.h"
#include "data/pack/record.h"

#include <vector>

namespace cserko {

/// Where the dictionaries lie.
struct DictionaryPaths {
  QString hungarian; ///< path of the .aff and .dic files without their endings
  QString english;
  QString hyphenation;
};

/// Words that a dictionary does not know and the exceptions do not excuse.
QStringList spelling_faults(const std::vector<WordRecord>& records, const DictionaryPaths& paths, Exceptions& excused);

/// Names whose syllables disagree with the hyphenation patterns and that the exceptions do not excuse.
QStringList syllable_faults(const std::vector<WordRecord>& records, const DictionaryPaths& paths, Exceptions& excused);

/// Whether syllables agree with a hyphenated word. Patterns are for printed lines and break off no single letter, so a
/// break beside a syllable of one letter may be missing there; any other difference counts.
bool agrees(const QString& syllables, const QString& hyphenated);

} // namespace cserko
