// Looking words up in the sorted list, byte rule by byte rule.
#include "core/codepage.h"
#include "exercises/letters/word_list.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace cserko {
namespace {

using Words = std::vector<Text>;

std::string list_of(Words words, std::string_view line_end) {
  std::sort(words.begin(), words.end());
  std::string bytes;
  for (const Text& word : words) bytes += to_cp1250(word) + std::string(line_end);
  return bytes;
}

// Words of growing length, with accents, in no order.
Words many_words(int count) {
  Words words;
  const Text letters = u"aábcdeéfghiíjklmnoóöőpqrstuúüűvwxyz";
  for (int i = 0; i < count; ++i) {
    Text word;
    for (int rest = i * 7919 + 13; rest > 0; rest /= 35) word += letters[static_cast<std::size_t>(rest % 35)];
    words.push_back(word + Text(static_cast<std::size_t>(i % 9), u'k'));
  }
  std::sort(words.begin(), words.end());
  words.erase(std::unique(words.begin(), words.end()), words.end());
  return words;
}

class WordListTest : public ::testing::TestWithParam<std::string> {};

TEST_P(WordListTest, EveryWordOfALongListIsFound) {
  const Words words = many_words(3000);
  const std::string bytes = list_of(words, GetParam());
  for (const Text& word : words) ASSERT_TRUE(szó_a_szótárban(bytes, word)) << to_utf8(word);
}

TEST_P(WordListTest, WhatIsNotInALongListIsNotFound) {
  const Words words = many_words(3000);
  const std::string bytes = list_of(words, GetParam());
  for (const TextView word : {u"0", u"aaaa", u"mmmmm-", u"űűűűűű-", u"zzzzzzzz", u"k k"})
    EXPECT_FALSE(szó_a_szótárban(bytes, word)) << to_utf8(word);
}

TEST_P(WordListTest, EveryWordOfAShortListIsFound) {
  const Words words{u"alma", u"körte", u"szilva"};
  const std::string bytes = list_of(words, GetParam());
  for (const Text& word : words) EXPECT_TRUE(szó_a_szótárban(bytes, word)) << to_utf8(word);
  EXPECT_FALSE(szó_a_szótárban(bytes, u"alm"));
  EXPECT_FALSE(szó_a_szótárban(bytes, u"almák"));
}

TEST_P(WordListTest, ListsOfEverySizeAroundTheStepOfFiveHundredBytesWork) {
  const Words all = many_words(220);
  for (std::size_t count = 1; count <= all.size(); ++count) {
    const Words words(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count));
    const std::string bytes = list_of(words, GetParam());
    for (const Text& word : words) ASSERT_TRUE(szó_a_szótárban(bytes, word)) << count << " " << to_utf8(word);
    ASSERT_FALSE(szó_a_szótárban(bytes, u"zzzzzz")) << count;
    ASSERT_FALSE(szó_a_szótárban(bytes, u"0")) << count;
  }
}

TEST_P(WordListTest, TheLastLineMayLackItsEnd) {
  const Words words = many_words(500);
  std::string bytes = list_of(words, GetParam());
  bytes.resize(bytes.size() - GetParam().size());
  EXPECT_TRUE(szó_a_szótárban(bytes, words.back()));
  EXPECT_TRUE(szó_a_szótárban(bytes, words.front()));
}

INSTANTIATE_TEST_SUITE_P(LineEnds, WordListTest, ::testing::Values("\r", "\r\n"), [](const auto& line_end) {
  return line_end.param.size() == 1 ? "CarriageReturn" : "WithLineFeed";
});

TEST(WordList, TheComparisonIsOfWholeWordsAndOfCase) {
  const std::string bytes = "alma\rk\xF6rte\r";
  EXPECT_TRUE(szó_a_szótárban(bytes, u"körte"));
  EXPECT_FALSE(szó_a_szótárban(bytes, u"Körte"));
  EXPECT_FALSE(szó_a_szótárban(bytes, u"korte"));
}

TEST(WordList, AnEmptyListHoldsNothing) {
  EXPECT_FALSE(szó_a_szótárban("", u"alma"));
  EXPECT_FALSE(szó_a_szótárban("\r\r\r", u"alma"));
}

// Lines of 32 characters whose last 28 sort right behind the line itself: "kaaakbbb…" and "kbbb…".
Text long_line(char16_t first) { return Text(1, first) + u"aaa" + Text(1, first) + Text(27, u'b'); }
Text tail_of(char16_t first) { return Text(1, first) + Text(27, u'b'); }

TEST(WordList, TheTailOfALongerWordCountsWhereTheReadingStartsInIt) {
  Words words;
  for (char16_t c = u'a'; c <= u'z'; ++c) words.push_back(long_line(c));
  const std::string bytes = list_of(words, "\r\n");
  int found = 0;
  for (char16_t c = u'a'; c <= u'z'; ++c) {
    EXPECT_TRUE(szó_a_szótárban(bytes, long_line(c)));
    if (szó_a_szótárban(bytes, tail_of(c))) ++found;
  }
  EXPECT_GE(found, 1) << "30 bytes before the place where the bisection stopped lies the tail of a line";
  EXPECT_LT(found, 26);
}

// 180 lines of five bytes, "b100" to "b279". The first step compares with line 90, which leaves less than 500 bytes.
std::string short_lines(std::size_t line, const std::string& four_characters) {
  std::string bytes;
  for (int i = 100; i < 280; ++i) bytes += "b" + std::to_string(i) + "\r";
  return bytes.replace(line * 5, 4, four_characters);
}

TEST(WordList, TheLastFiveHundredBytesAreReadLineByLineAndNeedNoOrder) {
  EXPECT_TRUE(szó_a_szótárban(short_lines(179, "b19x"), u"b19x"));
  EXPECT_FALSE(szó_a_szótárban(short_lines(60, "b19x"), u"b19x")) << "that half was left behind";
}

TEST(WordList, TheReadingStopsAtTheLineThatTheSearchHasPassed) {
  EXPECT_TRUE(szó_a_szótárban(short_lines(89, "aaaa"), u"aaaa"));
  EXPECT_FALSE(szó_a_szótárban(short_lines(91, "aaaa"), u"aaaa"));
}

TEST(WordList, WordsLongerThanTheBackStepAreFoundToo) {
  Words words;
  for (int i = 0; i < 100; ++i) words.push_back(Text(60, u'a') + to_text(100 + i));
  const std::string bytes = list_of(words, "\r\n");
  int found = 0;
  for (const Text& word : words) found += szó_a_szótárban(bytes, word) ? 1 : 0;
  // The one line that the reading starts in the middle of can be missed; every other one is found.
  EXPECT_GE(found, 97);
}

TEST(WordList, BinaryContentEndsTheSearch) {
  std::string noise;
  for (int i = 0; i < 100000; ++i) noise.push_back(static_cast<char>((i * 131) ^ (i >> 3)));
  EXPECT_FALSE(szó_a_szótárban(noise, u"alma"));
  EXPECT_FALSE(szó_a_szótárban(std::string(100000, 'x'), u"alma"));
  EXPECT_FALSE(szó_a_szótárban(std::string(100000, '\r'), u"alma"));
}

} // namespace
} // namespace cserko
