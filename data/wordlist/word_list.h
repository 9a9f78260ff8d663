// The word list of the program, ms.skt: which words may be shown, and in which order.
#pragma once

#include "platform/text.h"

#include <istream>
#include <string>
#include <vector>

namespace cserko {

/// Words that must not be shown, by a list of patterns.
class UnsuitableWords {
 public:
  /// Reads one pattern a line, UTF-8; empty lines and lines that start with "#" are skipped. "word" stands for the word
  /// and its plural, "word*" for all words that start with it, "*word" for all that end with it, "*word*" for both.
  explicit UnsuitableWords(std::istream& patterns);

  bool contains(const Text& word) const;

 private:
  std::vector<Text> whole_;
  std::vector<Text> starts_;
  std::vector<Text> ends_;
  std::vector<Text> parts_;
};

/// Names of the picture-word table: its column "name", UTF-8, tab-separated, with a header line. Throws
/// std::runtime_error when there is no such column.
std::vector<Text> picture_names(std::istream& table);

/// The bytes of ms.skt: the suitable dictionary words and all names, each once, one a line, code page 1250, CR LF, in
/// ascending order of their UTF-16 code units. That is how the program compares two texts, so its bisection of the file
/// relies on it; it is not the order of the bytes ("ő" and "ű" come behind all other letters, not before "ú").
std::string word_list_bytes(const std::vector<Text>& words, const UnsuitableWords& unsuitable,
                            const std::vector<Text>& names);

} // namespace cserko
