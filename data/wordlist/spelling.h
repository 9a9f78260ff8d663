// Words of the Hungarian spelling dictionary.
#pragma once

#include "platform/text.h"

#include <filesystem>
#include <string>
#include <vector>

namespace cserko {

/// Words that may be the plural of a noun, whatever its vowels ask for: "alma" gives "almák", "ház" gives "házok",
/// "házek", "házök" and "házak". A dictionary has to tell which of them is right.
std::vector<Text> possible_plurals(const Text& noun);

/// All words of the dictionary in lower case letters alone, 2 to 16 of them, and the plural of its nouns of up to 12
/// letters; in no order, some more than once. Throws std::runtime_error when the dictionary cannot be read.
std::vector<Text> dictionary_words(const std::filesystem::path& affixes, const std::filesystem::path& dictionary);

} // namespace cserko
