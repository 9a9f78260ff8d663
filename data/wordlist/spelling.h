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

/// Words that may be the infinitive, the "-ó" form or the "-ás" noun of a verb: "úszik" gives "úszni", "úszó", "úszás"
/// and others that are wrong.
std::vector<Text> possible_verb_forms(const Text& verb);

/// All words of the dictionary in lower case letters alone, 2 to 16 of them, with the plural of its nouns and the said
/// forms of its verbs of up to 12 letters; in no order, some more than once. Throws std::runtime_error when the
/// dictionary cannot be read.
std::vector<Text> dictionary_words(const std::filesystem::path& affixes, const std::filesystem::path& dictionary);

} // namespace cserko
