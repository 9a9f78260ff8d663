#include "core/codepage.h"

#include <gtest/gtest.h>
#include <set>

namespace cserko {
namespace {

TEST(CodePage, EveryByteSurvivesTheRoundTrip) {
  std::set<char16_t> characters;
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    const Text character = from_cp1250(byte);
    ASSERT_EQ(character.size(), 1U);
    EXPECT_EQ(to_cp1250(character), byte) << code;
    EXPECT_EQ(cp1250_code(character[0]), code);
    EXPECT_EQ(cp1250_character(code), character[0]);
    characters.insert(character[0]);
  }
  EXPECT_EQ(characters.size(), 256U) << "no character stands twice";
}

TEST(CodePage, TheLowerHalfIsAscii) {
  for (int code = 0; code < 128; ++code) EXPECT_EQ(cp1250_character(code), code);
}

TEST(CodePage, HoldsTheHungarianLettersAtTheirCodes) {
  const Text letters = u"ÁÉÍÓÖŐÚÜŰáéíóöőúüű";
  EXPECT_EQ(to_cp1250(letters), "\xC1\xC9\xCD\xD3\xD6\xD5\xDA\xDC\xDB\xE1\xE9\xED\xF3\xF6\xF5\xFA\xFC\xFB");
  EXPECT_EQ(from_cp1250("\xE1rv\xEDzt\xFBr\xF5 t\xFCk\xF6rf\xFAr\xF3g\xE9p"), u"árvíztűrő tükörfúrógép");
}

TEST(CodePage, HoldsTheQuotationMarksAndDashesOfHungarianText) {
  EXPECT_EQ(from_cp1250("\x84\x94\x96\x97\x85\x80"), u"„”–—…€");
}

TEST(CodePage, HoldsTheLettersOfTheNeighbours) {
  EXPECT_EQ(from_cp1250("\x8A\x9E\xA3\xB9\xC8\xF8\xDE\xFF\xA1\xB2"), u"ŠžŁąČřŢ˙ˇ˛");
}

TEST(CodePage, UndefinedBytesBecomeTheControlCharacterOfTheSameValue) {
  for (const int code : {0x81, 0x83, 0x88, 0x90, 0x98}) EXPECT_EQ(cp1250_character(code), code);
}

TEST(CodePage, ACharacterOutsideBecomesAQuestionMark) {
  EXPECT_EQ(to_cp1250(u"aőбñ"), "a\xF5??");
  EXPECT_EQ(to_cp1250(u"\xD83D\xDE00"), "??") << "one for each unit";
  EXPECT_EQ(cp1250_code(u'õ'), -1) << "õ is not ő";
  EXPECT_EQ(cp1250_code(u'\xFFFF'), -1);
  EXPECT_EQ(cp1250_code(char16_t{0x80}), -1) << "the code of € is taken";
}

TEST(CodePage, CodesAreBytes) {
  EXPECT_THROW(cp1250_character(256), std::out_of_range);
  EXPECT_THROW(cp1250_character(-1), std::out_of_range);
}

// Lines.

std::vector<std::string> lines_of(std::string_view bytes) {
  std::vector<std::string> lines;
  for (LineReader reader(bytes); !reader.end();) lines.emplace_back(reader.next());
  return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReading, TakesEveryKindOfLineEnd) {
  EXPECT_EQ(lines_of("a\r\nb\r\nc\r\n"), (Lines{"a", "b", "c"}));
  EXPECT_EQ(lines_of("a\nb\nc\n"), (Lines{"a", "b", "c"}));
  EXPECT_EQ(lines_of("a\rb\rc\r"), (Lines{"a", "b", "c"}));
  EXPECT_EQ(lines_of("a\nb\r\nc\rd"), (Lines{"a", "b", "c", "d"}));
}

TEST(LineReading, TheLastLineEndMayBeMissing) {
  EXPECT_EQ(lines_of("a\r\nb"), (Lines{"a", "b"}));
  EXPECT_EQ(lines_of("a"), Lines{"a"});
}

TEST(LineReading, EmptyLinesCount) {
  EXPECT_EQ(lines_of("\r\n\r\na"), (Lines{"", "", "a"}));
  EXPECT_EQ(lines_of("\n\r"), (Lines{"", ""})) << "LF CR are two line ends";
  EXPECT_EQ(lines_of("\r\r\n\n"), (Lines{"", "", ""}));
}

TEST(LineReading, NothingHasNoLines) {
  EXPECT_EQ(lines_of(""), Lines{});
  LineReader reader("");
  EXPECT_TRUE(reader.end());
  EXPECT_EQ(reader.next(), "");
  EXPECT_EQ(reader.next(), "") << "reading on is harmless";
}

TEST(LineReading, BlanksAndZeroBytesBelongToTheLine) {
  EXPECT_EQ(lines_of(std::string_view(" a \0b \r\n", 8)), Lines{std::string(" a \0b ", 6)});
}

TEST(LineReading, TellsWhereTheNextLineStarts) {
  LineReader reader("alma\r\nk\nz");
  reader.next();
  EXPECT_EQ(reader.position(), 6U);
  reader.next();
  EXPECT_EQ(reader.position(), 8U);
  reader.next();
  EXPECT_EQ(reader.position(), 9U);
}

TEST(LineReading, StartsAnywhereAlsoInTheMiddleOfALineOrOfItsEnd) {
  LineReader middle("alma\r\nkorte", 2);
  EXPECT_EQ(middle.next(), "ma");
  LineReader between("alma\r\nkorte", 5);
  EXPECT_EQ(between.next(), "");
  EXPECT_EQ(between.next(), "korte");
  const LineReader behind("alma", 99);
  EXPECT_TRUE(behind.end());
  EXPECT_EQ(behind.position(), 4U);
}

} // namespace
} // namespace cserko
