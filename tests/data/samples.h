// Records and pictures that the tests of the data tools share.
#pragma once

#include "data/checker/word_facts.h"
#include "data/pack/record.h"

#include <QByteArray>
#include <QString>
#include <gtest/gtest.h>
#include <ostream>

// Lets a failed expectation show its texts.
inline void PrintTo(const QString& text, std::ostream* stream) { *stream << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& texts, std::ostream* stream) { *stream << texts.join(" | ").toStdString(); }

namespace cserko {

/// A record that has no fault.
inline WordRecord apple() {
  return {"alma",
          "apple",
          "al-ma",
          QStringLiteral("Kerek, ropogós gyümölcs, a fán terem."),
          QStringLiteral("Piros héja és zöld levele van."),
          QStringLiteral("Kerekein gurulva jár az úton.")};
}

/// An SVG picture on a square of 32 units.
inline QByteArray svg(const QByteArray& body) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 32 32\">" + body + "</svg>";
}

/// A red square in the middle.
inline QByteArray red_square() { return svg("<path fill=\"#ff0000\" d=\"M8 8h16v16H8z\"/>"); }

/// A record's facts from its name and syllables alone.
inline WordFacts word(const QString& name, const QString& syllables, const QString& english = "thing") {
  WordFacts facts;
  facts.record = {name, english, syllables, name + " d", name + " t", name + " f"};
  facts.name = letter_facts(name);
  facts.english = letter_facts(english);
  facts.syllabified = letter_facts(syllables);
  facts.syllables = static_cast<int>(syllables.count('-')) + 1;
  return facts;
}

} // namespace cserko
