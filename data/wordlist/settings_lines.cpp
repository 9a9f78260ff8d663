#include "settings_lines.h"

#include "core/codepage.h"
#include "platform/text.h"

namespace cserko {

namespace {

constexpr const char* line_end = "\r\n";

} // namespace

std::string number_line(int value) {
  std::string line = value < 0 ? "" : " ";
  line += std::to_string(value);
  line += ' ';
  return line + line_end;
}

std::string word_line(bool value) { return std::string(value ? "True" : "False") + line_end; }

std::string text_line(std::string_view value) { return to_cp1250(from_utf8(value)) + line_end; }

std::string quoted_line(std::string_view value) { return '"' + to_cp1250(from_utf8(value)) + '"' + line_end; }

} // namespace cserko
