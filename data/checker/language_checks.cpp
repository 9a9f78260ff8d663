#include "data/checker/language_checks.h"

#include "data/pack/language.h"

namespace cserko {
namespace {

void check_words(const QString& text, const QString& language, const Spelling& spelling, Exceptions& excused,
                 QStringList& faults) {
  for (const QString& word : spelling_words(text))
    if (!spelling.accepts(word) && !excused.excuse({language, word}))
      faults << QString("\"%1\" is not in the %2 dictionary: %3").arg(word, language, text);
}

} // namespace

QStringList spelling_faults(const std::vector<WordRecord>& records, const DictionaryPaths& paths, Exceptions& excused) {
  const Spelling hungarian(paths.hungarian + ".aff", paths.hungarian + ".dic");
  const Spelling english(paths.english + ".aff", paths.english + ".dic");
  QStringList faults;
  for (const WordRecord& record : records) {
    for (const QString& text : {record.name, record.definition, record.truth, record.falsehood})
      check_words(text, "Hungarian", hungarian, excused, faults);
    check_words(record.english, "English", english, excused, faults);
  }
  return faults;
}

bool agrees(const QString& syllables, const QString& hyphenated) {
  qsizetype other = 0;
  for (qsizetype i = 0; i < syllables.size(); ++i) {
    if (other < hyphenated.size() && syllables[i] == hyphenated[other]) {
      ++other;
      continue;
    }
    if (syllables[i] != '-') return false;
    const bool single_before = i == 1 || (i >= 2 && syllables[i - 2] == '-');
    const bool single_behind = i + 2 == syllables.size() || (i + 2 < syllables.size() && syllables[i + 2] == '-');
    if (!single_before && !single_behind) return false;
  }
  return other == hyphenated.size();
}

QStringList syllable_faults(const std::vector<WordRecord>& records, const DictionaryPaths& paths, Exceptions& excused) {
  const Hyphenation patterns(paths.hyphenation);
  QStringList faults;
  for (const WordRecord& record : records) {
    const QString expected = patterns.hyphenated(record.name);
    if (!agrees(record.syllables, expected) && !excused.excuse({record.syllables}))
      faults << QString("\"%1\" disagrees with the hyphenation patterns' \"%2\"").arg(record.syllables, expected);
  }
  return faults;
}

} // namespace cserko
