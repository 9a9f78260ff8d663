// Lines of the settings files, as the program reads and writes them.
#pragma once

#include <string>

namespace cserko {

/// A number or the value of a check box: a blank or a minus in the place of the sign, the digits, a blank.
inline std::string number_line(int value) {
  std::string line = value < 0 ? "" : " ";
  line += std::to_string(value);
  return line += " \r\n";
}

/// A truth value as a word.
inline std::string word_line(bool value) { return value ? "True\r\n" : "False\r\n"; }

/// A text as it is, such as a file name.
inline std::string text_line(const std::string& value) { return value + "\r\n"; }

/// A text between quotation marks.
inline std::string quoted_line(const std::string& value) { return '"' + value + "\"\r\n"; }

} // namespace cserko
