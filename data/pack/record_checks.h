// What a picture-word record must be so that the program can use it, and what it should be. The data pack obeys both; a
// user's own word must only be usable.
#pragma once

#include "data/pack/record.h"

#include <QStringList>

namespace cserko {

/// What somebody says who has looked records through, as Hungarian sentences for the person who wrote them.
struct Review {
  QStringList faults;  ///< What the program cannot use.
  QStringList remarks; ///< What is usable and could be better.

  QStringList all() const { return faults + remarks; }
};

/// Why the program cannot use a record: fields that are empty, signs or letters that it does not know, syllables that
/// do not give the name. Empty when it can.
QStringList record_faults(const WordRecord& record);

/// What could be better in a usable record: long, short or unfinished sentences, a definition that gives the word away,
/// a false statement that is the true one denied, a syllable that is none.
QStringList style_remarks(const WordRecord& record);

/// Whether the syllables can be reached from the name as the child does it: by opening breaks between letters, with the
/// first long double consonant behind the first letter (asz-szony) split to both sides.
bool syllables_fit_name(const QString& name, const QString& syllables);

/// Whether each syllable has exactly one vowel, as every Hungarian syllable has.
bool one_vowel_each(const QString& syllables);

/// Whether a text gives the name away: one of its words begins with the name or its stem.
bool names_itself(const QString& name, const QString& text);

/// Whether a word in small letters is the name itself, with one of the common endings or none: almát is a form of alma,
/// almafa is not.
bool is_form_of(const QString& name, const QString& word);

/// Looks through folders of records that are read as one (see RecordFolders). Faults: gaps in the numbers, a text
/// without picture or the reverse, broken pictures, faults of single records, names that occur twice. Remarks:
/// definitions or pictures that occur twice, and the style of single records. Each with the file in front.
Review folder_review(const QStringList& folders);

} // namespace cserko
