#include "factory_files.h"

#include "settings_lines.h"

#include <sstream>
#include <stdexcept>
#include <vector>

namespace cserko {

namespace {

std::string settings_line(const std::string& kind, const std::string& value) {
  if (kind == "number") return number_line(std::stoi(value));
  if (kind == "word" && (value == "True" || value == "False")) return word_line(value == "True");
  if (kind == "quoted") return quoted_line(value);
  throw std::runtime_error("no such kind of line or value: " + kind + " " + value);
}

} // namespace

std::map<std::string, std::string> factory_settings(std::istream& table) {
  std::map<std::string, std::string> files;
  std::string row;
  std::getline(table, row); // the header
  while (std::getline(table, row)) {
    std::istringstream stream(row);
    std::string file;
    std::string control;
    std::string kind;
    std::string value;
    std::getline(stream, file, '\t');
    std::getline(stream, control, '\t');
    std::getline(stream, kind, '\t');
    if (!std::getline(stream, value)) throw std::runtime_error("too few columns: " + row);
    files[file] += settings_line(kind, value);
  }
  return files;
}

std::string letter_pairs(std::istream& list) {
  constexpr int pair_count = 31; // the program reads this many
  std::string bytes;
  int count = 0;
  for (std::string line; std::getline(list, line); ++count) {
    const auto hyphen = line.find('-');
    if (hyphen == std::string::npos || hyphen == 0 || hyphen + 1 == line.size())
      throw std::runtime_error("not a pair of letters: \"" + line + "\"");
    bytes += text_line(line);
  }
  if (count != pair_count) throw std::runtime_error("there must be 31 pairs of letters");
  return bytes;
}

} // namespace cserko
