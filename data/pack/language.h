// The spelling and hyphenation dictionaries of the system, behind two small classes.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

namespace cserko {

/// A spelling dictionary.
class Spelling {
 public:
  /// Opens the dictionary of two files. Throws PackError when one is missing.
  Spelling(const QString& affix_file, const QString& word_file);
  ~Spelling();

  bool accepts(const QString& word) const;

 private:
  struct Library;
  std::unique_ptr<Library> library_;
};

/// A hyphenation dictionary.
class Hyphenation {
 public:
  /// Opens the pattern file. Throws PackError when it is missing.
  explicit Hyphenation(const QString& pattern_file);
  ~Hyphenation();

  /// The word with "-" at each break that the patterns give, long double consonants written out on both sides. Patterns
  /// are for printed lines: they break off no single letter.
  QString hyphenated(const QString& word) const;

 private:
  struct Library;
  std::unique_ptr<Library> library_;
};

/// The words of a text as a spelling dictionary takes them.
QStringList spelling_words(const QString& text);

} // namespace cserko
