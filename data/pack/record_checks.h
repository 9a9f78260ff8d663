// What a picture-word record must be so that every exercise can use it. The data pack and a user's own words are held
// to the same rules.
#pragma once

#include "data/pack/record.h"

#include <QStringList>

namespace cserko {

/// Everything that is wrong with a record, as Hungarian sentences for the person who wrote it; empty when it is right.
QStringList record_faults(const WordRecord& record);

/// Whether the syllables can be reached from the name as the child does it: by opening breaks between letters, with the
/// first long double consonant behind the first letter (asz-szony) split to both sides.
bool syllables_fit_name(const QString& name, const QString& syllables);

/// Whether each syllable has exactly one vowel, as every Hungarian syllable has.
bool one_vowel_each(const QString& syllables);

/// Whether a text gives the name away: one of its words begins with the name or its stem.
bool names_itself(const QString& name, const QString& text);

/// Everything that is wrong with a folder of records: gaps in the numbers, a text without picture or the reverse,
/// broken pictures, faults of single records, names, definitions or pictures that occur twice. The texts as above, each
/// with the file in front.
QStringList folder_faults(const QString& folder);

} // namespace cserko
