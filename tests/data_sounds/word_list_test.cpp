#include "core/codepage.h"
#include "data/wordlist/spelling.h"
#include "data/wordlist/word_list.h"
#include "exercises/letters/word_list.h"
#include "pack_files.h"
#include "word_search.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unordered_set>

namespace cserko::test {
namespace {

const std::string& bytes() {
  static const std::string all = bytes_of(in_pack("ms.skt"));
  return all;
}

const std::vector<Text>& words() {
  static const std::vector<Text> all = [] {
    std::vector<Text> decoded;
    for (const std::string& line : lines_of(bytes())) decoded.push_back(from_cp1250(line));
    return decoded;
  }();
  return all;
}

std::vector<Text> names() {
  std::ifstream table(DATA_DIR "/words.tsv");
  return table ? picture_names(table) : std::vector<Text>();
}

UnsuitableWords patterns(const std::string& text) {
  std::istringstream stream(text);
  return UnsuitableWords(stream);
}

TEST(WordList, HoldsAtLeastSixtyThousandWords) { EXPECT_GE(words().size(), 60'000U); }

TEST(WordList, AscendsByCharacterCodeWithoutDoubles) {
  const auto broken = std::ranges::adjacent_find(words(), [](const Text& a, const Text& b) { return !(a < b); });
  EXPECT_EQ(broken, words().end()) << to_utf8(*broken);
}

TEST(WordList, HoldsSmallLettersOnly) {
  const std::vector<Text> own = names();
  const std::unordered_set<Text> free(own.begin(), own.end());
  for (const Text& word : words()) {
    if (free.contains(word)) continue;
    ASSERT_EQ(word.find_first_not_of(u"abcdefghijklmnopqrstuvwxyzáéíóöőúüű"), Text::npos) << to_utf8(word);
    ASSERT_GE(word.size(), 2U) << to_utf8(word);
  }
}

TEST(WordList, IsFoundWholeByTheSearch) {
  for (const Text& word : words()) ASSERT_TRUE(cserko::szó_a_szótárban(bytes(), word)) << to_utf8(word);
}

TEST(WordList, IsFoundWholeByTheRulesOfTheSearch) {
  for (const Text& word : words()) ASSERT_TRUE(szó_a_szótárban_by_rule(bytes(), word)) << to_utf8(word);
}

TEST(WordList, HoldsTheNameOfEveryPicture) {
  EXPECT_FALSE(names().empty());
  for (const Text& name : names()) EXPECT_TRUE(cserko::szó_a_szótárban(bytes(), name)) << to_utf8(name);
}

TEST(WordList, LacksWhatIsNoWord) {
  for (const char16_t* word : {u"aaaa", u"almx", u"qwert", u"zzz", u"űűű", u"kutyaa", u"a", u"szekrénys"}) {
    EXPECT_FALSE(cserko::szó_a_szótárban(bytes(), word)) << to_utf8(word);
    EXPECT_FALSE(szó_a_szótárban_by_rule(bytes(), word)) << to_utf8(word);
  }
}

TEST(WordList, HoldsEverydayWordsAndTheirPlainForms) {
  for (const char16_t* word : {u"alma", u"almák", u"ház", u"házak", u"asszony", u"kutyák", u"fut", u"futó", u"olvasni",
                               u"úszás", u"szép", u"holnap", u"őz", u"űrhajó", u"tűk"})
    EXPECT_TRUE(std::ranges::binary_search(words(), Text(word))) << to_utf8(word);
}

TEST(WordList, HoldsNothingUnsuitable) {
  std::ifstream file(DATA_DIR "/wordlist/unsuitable.txt");
  const UnsuitableWords unsuitable(file);
  const std::vector<Text> own = names();
  for (const Text& word : words()) {
    if (unsuitable.contains(word)) {
      EXPECT_NE(std::ranges::find(own, word), own.end()) << to_utf8(word);
    }
  }
}

TEST(UnsuitableWords, AreToldByWholeStartEndOrPart) {
  const UnsuitableWords words = patterns("# remark\n\nalma\nkör*\n*fal\n*ház*\n");
  for (const char16_t* word : {u"alma", u"almák", u"kör", u"körte", u"kőfal", u"fal", u"házas", u"kőházak"})
    EXPECT_TRUE(words.contains(word)) << to_utf8(word);
  for (const char16_t* word : {u"almás", u"akör", u"falu", u"remark"})
    EXPECT_FALSE(words.contains(word)) << to_utf8(word);
}

TEST(WordListBytes, AreSortedByCharacterNotByByte) {
  const std::string made = word_list_bytes({u"őz", u"út", u"zab", u"alma", u"alma", u"rossz"}, patterns("rossz\n"), {});
  EXPECT_EQ(made, to_cp1250(u"alma\r\nzab\r\nút\r\nőz\r\n"));
}

TEST(WordListBytes, KeepNamesEvenIfAPatternMeetsThem) {
  EXPECT_EQ(word_list_bytes({u"b"}, patterns("alma\n"), {u"alma"}), "alma\r\nb\r\n");
}

TEST(PictureNames, AreTheColumnOfThatName) {
  std::istringstream table("number\tname\tenglish\n0\talma\tapple\n1\tkörte\tpear\n");
  EXPECT_EQ(picture_names(table), (std::vector<Text>{u"alma", u"körte"}));
  std::istringstream other("number\tenglish\n0\tapple\n");
  EXPECT_THROW(picture_names(other), std::runtime_error);
}

TEST(DictionaryWords, AreThePlainOnesWithTheFormsThatTheDictionaryUnderstands) {
  const std::filesystem::path folder = testing::TempDir();
  std::ofstream(folder / "cserko-words.aff") << "SET UTF-8\nSFX P Y 1\nSFX P a ák a is:PLUR is:NOM\n";
  std::ofstream(folder / "cserko-words.dic") << "7\nalma/P po:noun ts:NOM\nfa po:noun ts:NOM\nkg po:noun ts:NOM\n"
                                                "Anna po:noun ts:NOM\nfut po:vrb\naaaa po:noun\nnemismert\n";
  const auto words = dictionary_words(folder / "cserko-words.aff", folder / "cserko-words.dic");
  EXPECT_EQ(words, (std::vector<Text>{u"alma", u"almák", u"fa", u"fut"}));
}

TEST(DictionaryWords, NeedTheirDictionary) {
  EXPECT_THROW(dictionary_words("no-such.aff", "no-such.dic"), std::runtime_error);
}

TEST(PossiblePlurals, LengthenTheLastVowelOrTryEachLink) {
  EXPECT_EQ(possible_plurals(u"alma"), std::vector<Text>{u"almák"});
  EXPECT_EQ(possible_plurals(u"körte"), std::vector<Text>{u"körték"});
  EXPECT_EQ(possible_plurals(u"hajó"), std::vector<Text>{u"hajók"});
  EXPECT_EQ(possible_plurals(u"ház").size(), 4U);
  EXPECT_TRUE(possible_plurals(u"").empty());
}

} // namespace
} // namespace cserko::test
