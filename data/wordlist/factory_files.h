// Small text files that come with the program: factory settings and the letter pairs.
#pragma once

#include <istream>
#include <map>
#include <string>

namespace cserko {

/// Content of each factory settings file by its name (UTF-8), from a tab-separated table with a header line and the
/// columns file, control, kind (number, word, quoted) and value. The rows of a file stand in the order of its lines.
/// Throws std::runtime_error naming the row that is wrong.
std::map<std::string, std::string> factory_settings(std::istream& table);

/// Content of betűpár.kvl from a list of pairs such as "s-sz", one a line, UTF-8. Throws std::runtime_error when a line
/// is no pair or there are not exactly 31 of them.
std::string letter_pairs(std::istream& list);

} // namespace cserko
