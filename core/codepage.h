// Code page 1250, the code of all text files of the suite, and the reading of such files line by line.
#pragma once

#include "platform/text.h"

#include <cstddef>

namespace cserko {

/// Text of bytes in code page 1250. The five bytes that it leaves undefined become the control characters of the same
/// value, so that every byte survives a round trip.
Text from_cp1250(std::string_view bytes);

/// Bytes in code page 1250; a character outside it becomes "?".
std::string to_cp1250(TextView text);

/// The code (0 to 255) of a character, -1 outside the code page.
int cp1250_code(char16_t character);

/// The character of a code. Throws std::out_of_range outside 0 to 255.
char16_t cp1250_character(int code);

/// Reads bytes line by line. Lines end with CR LF, LF or CR alone; the last one may lack its end. The bytes must
/// outlive the reader.
class LineReader {
 public:
  /// Starts at a byte, counted from 0; a start behind the bytes is their end.
  explicit LineReader(std::string_view bytes, std::size_t start = 0);

  /// Whether no line is left.
  bool end() const { return position_ >= bytes_.size(); }

  /// The next line without its end; empty where none is left.
  std::string_view next();

  /// Where the next line starts, in bytes from 0.
  std::size_t position() const { return position_; }

 private:
  std::string_view bytes_;
  std::size_t position_;
};

} // namespace cserko
