#include "spelling.h"

#include <algorithm>
#include <fstream>
#include <hunspell.hxx>
#include <stdexcept>

namespace cserko {

namespace {

constexpr std::size_t shortest_word = 2;
constexpr std::size_t longest_word = 16; // no picture has a longer name
constexpr std::size_t longest_noun_for_plural = 12;

bool is_small_letter(char16_t character) {
  return (character >= u'a' && character <= u'z') || TextView(u"áéíóöőúüű").find(character) != TextView::npos;
}

/// Entries such as "aaaa…" only help the dictionary to count syllables.
bool repeats_one_letter(const Text& word) {
  return word.size() > 2 && word.find_first_not_of(word[0]) == Text::npos;
}

bool is_plain_word(const Text& word) {
  return word.size() >= shortest_word && word.size() <= longest_word && std::ranges::all_of(word, is_small_letter) &&
         !repeats_one_letter(word);
}

/// Whether an analysis of the dictionary holds a field, such as "po:noun", whole.
bool holds(const std::string& analysis, const std::string& field) {
  return (analysis + ' ').find(' ' + field + ' ') != std::string::npos;
}

/// Compounds that the dictionary makes up by itself name their parts.
bool is_listed(const std::string& analysis) { return analysis.find("pa:") == std::string::npos; }

bool is_word(Hunspell& speller, const std::string& word) {
  const auto analyses = speller.analyze(word);
  return speller.spell(word) && std::ranges::any_of(analyses, [](const std::string& analysis) {
           return is_listed(analysis) && analysis.find(" po:") != std::string::npos;
         });
}

bool is_noun(Hunspell& speller, const std::string& word) {
  return std::ranges::any_of(speller.analyze(word), [&](const std::string& analysis) {
    return is_listed(analysis) && holds(analysis, "st:" + word) && holds(analysis, "po:noun") &&
           holds(analysis, "ts:NOM") && analysis.find("is:") == std::string::npos;
  });
}

bool is_plural_of(Hunspell& speller, const std::string& word, const std::string& noun) {
  return speller.spell(word) && std::ranges::any_of(speller.analyze(word), [&](const std::string& analysis) {
           return is_listed(analysis) && holds(analysis, "st:" + noun) && holds(analysis, "po:noun") &&
                  holds(analysis, "is:PLUR") && holds(analysis, "is:NOM") &&
                  analysis.find("POSS") == std::string::npos;
         });
}

void add_plurals(Hunspell& speller, const Text& word, std::vector<Text>& words) {
  const std::string noun = to_utf8(word);
  if (word.size() > longest_noun_for_plural || !is_noun(speller, noun)) return;
  for (const Text& plural : possible_plurals(word))
    if (is_plural_of(speller, to_utf8(plural), noun)) words.push_back(plural);
}

/// The word of a dictionary line such as "alma/129<TAB>1".
Text word_of(const std::string& line) { return from_utf8(line.substr(0, line.find_first_of("/\t \r"))); }

} // namespace

std::vector<Text> possible_plurals(const Text& noun) {
  if (noun.empty()) return {};
  const Text start = noun.substr(0, noun.size() - 1);
  if (noun.back() == u'a') return {start + u"ák"};
  if (noun.back() == u'e') return {start + u"ék"};
  if (TextView(u"áéiíoóöőuúüű").find(noun.back()) != TextView::npos) return {noun + u"k"};
  return {noun + u"ok", noun + u"ek", noun + u"ök", noun + u"ak"};
}

std::vector<Text> dictionary_words(const std::filesystem::path& affixes, const std::filesystem::path& dictionary) {
  std::ifstream lines(dictionary);
  std::string line;
  if (!std::getline(lines, line)) throw std::runtime_error("cannot read " + dictionary.string()); // the count of words
  Hunspell speller(affixes.string().c_str(), dictionary.string().c_str());
  std::vector<Text> words;
  while (std::getline(lines, line)) {
    const Text word = word_of(line);
    if (!is_plain_word(word) || !is_word(speller, to_utf8(word))) continue;
    words.push_back(word);
    add_plurals(speller, word, words);
  }
  return words;
}

} // namespace cserko
