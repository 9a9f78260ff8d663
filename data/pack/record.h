// A picture-word record as its text file holds it.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace cserko {

/// What the person who adds a word writes.
struct WordRecord {
  QString name;       ///< Hungarian name
  QString english;    ///< English name
  QString syllables;  ///< the name with "-" between its syllables
  QString definition; ///< what the thing is, without naming it
  QString truth;      ///< a true statement about it
  QString falsehood;  ///< a false one
};

/// The bytes of the record's text file: eight lines in code page 1250, each ended by CR LF. The first and the third
/// line are thrown away by every reader; here they tell a human reader the language of the line below. Throws PackError
/// when a character is not in the code page.
QByteArray record_bytes(const WordRecord& record);

/// Reads a record's text file back. Nothing when it has fewer than eight lines.
std::optional<WordRecord> read_record(const QByteArray& bytes);

/// Text to code page 1250. Throws PackError naming the character that is not in it.
QByteArray to_code_page(const QString& text);

/// Code page 1250 to text.
QString from_code_page(const QByteArray& bytes);

} // namespace cserko
