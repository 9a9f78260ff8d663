// What the exercises' filters ask of a record, worked out once.
#pragma once

#include "data/pack/record.h"

#include <QString>
#include <QStringList>
#include <array>
#include <vector>

namespace cserko {

/// A word as the exercises see it: its letters (digraphs and their doubles count as one) and the list of them between
/// commas, in which a letter is searched.
struct LetterFacts {
  QString text;
  QStringList letters;
  QString between_commas;

  int count() const { return static_cast<int>(letters.size()); }
  bool holds(const QString& letter) const { return between_commas.contains("," + letter + ","); }
  /// The first or last n letters joined; all of them when there are fewer.
  QString first(int n) const { return letters.mid(0, n).join(QString()); }
  QString last(int n) const {
    return letters.mid(letters.size() - std::min<qsizetype>(n, letters.size())).join(QString());
  }
};

/// Cuts a text by the suite's own letter rules.
LetterFacts letter_facts(const QString& text);

struct WordFacts {
  WordRecord record;
  LetterFacts name, english, syllabified; ///< all three cut by the Hungarian rules, as the exercises cut them
  int syllables = 0;
  double width = 0; ///< of the name in the suite's serif, in units of the font size
};

/// Everything that is checked together.
struct Pack {
  std::vector<WordFacts> words;              ///< in the order of their numbers
  std::vector<std::array<QString, 2>> pairs; ///< of the letter-pair file
  std::array<int, 4> direction_pictures{};   ///< motifs with a picture to the left, up, to the right, down
  double m_width = 0, line_height = 0;       ///< of the serif, in units of the font size
};

/// Reads a built pack. Throws PackError when a file is missing or has the wrong form.
Pack read_pack(const QString& folder);

} // namespace cserko
