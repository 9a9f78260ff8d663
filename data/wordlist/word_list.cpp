#include "word_list.h"

#include "core/codepage.h"
#include "spelling.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <stdexcept>

namespace cserko {

UnsuitableWords::UnsuitableWords(std::istream& patterns) {
  for (std::string line; std::getline(patterns, line);) {
    if (line.empty() || line.front() == '#') continue;
    Text text = from_utf8(line);
    const bool open_start = text.front() == u'*';
    const bool open_end = text.back() == u'*';
    std::erase(text, u'*');
    if (open_start)
      (open_end ? parts_ : ends_).push_back(text);
    else if (open_end)
      starts_.push_back(text);
    else {
      whole_.push_back(text);
      for (const Text& plural : possible_plurals(text)) whole_.push_back(plural);
    }
  }
  std::ranges::sort(whole_);
}

bool UnsuitableWords::contains(const Text& word) const {
  return std::ranges::binary_search(whole_, word) ||
         std::ranges::any_of(starts_, [&](const Text& start) { return word.starts_with(start); }) ||
         std::ranges::any_of(ends_, [&](const Text& end) { return word.ends_with(end); }) ||
         std::ranges::any_of(parts_, [&](const Text& part) { return word.find(part) != Text::npos; });
}

namespace {

std::vector<std::string> cells_of(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream stream(row);
  for (std::string cell; std::getline(stream, cell, '\t');) cells.push_back(cell);
  return cells;
}

} // namespace

std::vector<Text> picture_names(std::istream& table) {
  std::string row;
  std::getline(table, row);
  const auto header = cells_of(row);
  const auto column = static_cast<std::size_t>(std::ranges::find(header, "name") - header.begin());
  if (column == header.size()) throw std::runtime_error("the table of words has no column \"name\"");
  std::vector<Text> names;
  while (std::getline(table, row)) {
    const auto cells = cells_of(row);
    if (cells.size() > column && !cells[column].empty()) names.push_back(from_utf8(cells[column]));
  }
  return names;
}

std::string word_list_bytes(const std::vector<Text>& words, const UnsuitableWords& unsuitable,
                            const std::vector<Text>& names) {
  std::set<Text> kept(names.begin(), names.end());
  for (const Text& word : words)
    if (!unsuitable.contains(word)) kept.insert(word);
  std::string bytes;
  for (const Text& word : kept) bytes += to_cp1250(word) + "\r\n";
  return bytes;
}

} // namespace cserko
