#include "spelling.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <hunspell.hxx>
#include <stdexcept>
#include <string_view>

namespace cserko {

namespace {

constexpr std::size_t shortest_word = 2;
constexpr std::size_t longest_word = 16; // no picture has a longer name
constexpr std::size_t longest_root = 12; // whose plural or verbal forms are taken too

bool is_small_letter(char16_t character) {
  return (character >= u'a' && character <= u'z') || TextView(u"áéíóöőúüű").find(character) != TextView::npos;
}

/// Entries such as "aaaa…" only help the dictionary to count syllables.
bool repeats_one_letter(const Text& word) { return word.size() > 2 && word.find_first_not_of(word[0]) == Text::npos; }

/// Abbreviations such as "kg" are no words to be laid out of letters.
bool has_vowel(const Text& word) { return word.find_first_of(u"aáeéiíoóöőuúüű") != Text::npos; }

bool is_plain_word(const Text& word) {
  return word.size() >= shortest_word && word.size() <= longest_word && std::ranges::all_of(word, is_small_letter) &&
         has_vowel(word) && !repeats_one_letter(word);
}

/// Whether an analysis of the dictionary holds a field, such as "po:noun", whole.
bool holds(const std::string& analysis, std::string_view field) {
  return (analysis + ' ').find(' ' + std::string(field) + ' ') != std::string::npos;
}

/// Compounds that the dictionary makes up by itself name their parts.
bool is_listed(const std::string& analysis) { return analysis.find("pa:") == std::string::npos; }

/// What the dictionary itself lists under a word: not the compounds that it makes up.
std::vector<std::string> listed_analyses(Hunspell& speller, const std::string& word) {
  if (!speller.spell(word)) return {};
  std::vector<std::string> analyses = speller.analyze(word);
  std::erase_if(analyses, [](const std::string& analysis) { return !is_listed(analysis); });
  return analyses;
}

bool any_holds(const std::vector<std::string>& analyses, std::string_view field) {
  return std::ranges::any_of(analyses, [&](const std::string& analysis) { return holds(analysis, field); });
}

/// A form that the dictionary does not list but understands: a word made from a root of a given kind with given fields.
struct Derivation {
  std::string_view kind;   // of the root
  std::string_view form;   // what the analysis has to hold besides
  std::string_view ending; // and that no other ending follows
};

constexpr std::array<Derivation, 4> derivations = {{
    {"po:noun", "is:PLUR", "is:NOM"},
    {"po:vrb", "is:ni_INFINITIVE_inf", ""},
    {"po:vrb", "ds:Ó_PRESPART_adj", "ts:NOM"},
    {"po:vrb", "ds:Ás_PROCESS/RESULT_noun", "ts:NOM"},
}};

std::size_t count_of(const std::string& text, std::string_view part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

bool derives(const std::string& analysis, const std::string& root, const Derivation& derivation) {
  const std::size_t inflections = derivation.kind == "po:noun" ? 2 : derivation.ending.empty() ? 1 : 0;
  return holds(analysis, "st:" + root) && holds(analysis, derivation.kind) && holds(analysis, derivation.form) &&
         (derivation.ending.empty() || holds(analysis, derivation.ending)) && count_of(analysis, " is:") == inflections;
}

bool is_form_of(Hunspell& speller, const std::string& word, const std::string& root) {
  const auto analyses = listed_analyses(speller, word);
  return std::ranges::any_of(derivations, [&](const Derivation& derivation) {
    return std::ranges::any_of(analyses, [&](const auto& analysis) { return derives(analysis, root, derivation); });
  });
}

/// Adds a word of the dictionary and its forms. Only the forms of its kind are tried, as each try costs much.
void add_word(Hunspell& speller, const Text& word, std::vector<Text>& words) {
  const std::string root = to_utf8(word);
  const auto analyses = listed_analyses(speller, root);
  const auto has_kind = [](const std::string& analysis) { return analysis.find(" po:") != std::string::npos; };
  if (std::ranges::none_of(analyses, has_kind)) return;
  words.push_back(word);
  if (word.size() > longest_root) return;
  std::vector<Text> forms;
  if (any_holds(analyses, "po:noun")) forms = possible_plurals(word);
  if (any_holds(analyses, "po:vrb")) {
    const std::vector<Text> verbal = possible_verb_forms(word);
    forms.insert(forms.end(), verbal.begin(), verbal.end());
  }
  for (const Text& form : forms)
    if (is_form_of(speller, to_utf8(form), root)) words.push_back(form);
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

std::vector<Text> possible_verb_forms(const Text& verb) {
  const Text root = verb.ends_with(u"ik") ? verb.substr(0, verb.size() - 2) : verb;
  return {root + u"ni", root + u"ani", root + u"eni", root + u"ó", root + u"ő", root + u"ás", root + u"és"};
}

std::vector<Text> dictionary_words(const std::filesystem::path& affixes, const std::filesystem::path& dictionary) {
  std::ifstream lines(dictionary);
  std::string line;
  if (!std::getline(lines, line)) throw std::runtime_error("cannot read " + dictionary.string()); // the count of words
  Hunspell speller(affixes.string().c_str(), dictionary.string().c_str());
  std::vector<Text> words;
  while (std::getline(lines, line)) {
    const Text word = word_of(line);
    if (is_plain_word(word)) add_word(speller, word, words);
  }
  return words;
}

} // namespace cserko
