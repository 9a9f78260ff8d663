#include "core/codepage.h"
#include "data/wordlist/factory_files.h"
#include "pack_files.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace cserko::test {
namespace {

std::string factory(std::string_view name) { return bytes_of(in_pack("cserko/" + std::string(name))); }

TEST(FactorySettings, OfLetterSortingAreItsDesignValues) {
  EXPECT_EQ(factory("betűválogató.ini"), " 0 \r\n 3 \r\nTrue\r\nFalse\r\n 0 \r\n 14 \r\n");
}

TEST(FactorySettings, OfTheLetterViewerAreItsDesignValues) {
  EXPECT_EQ(factory("betűnézegető.ini"), " 12 \r\n 0 \r\n 0 \r\nFalse\r\nTrue\r\n 1 \r\nTrue\r\nFalse\r\n");
}

TEST(FactorySettings, OfTheKnightsJumpAreItsDesignValues) {
  EXPECT_EQ(factory("lóugrás.ini"), " 8 \r\n 8 \r\n 12 \r\n 4 \r\n 2 \r\n 0 \r\n 1 \r\n\".\"\r\n 0 \r\n 0 \r\n"
                                    "True\r\nFalse\r\nTrue\r\nFalse\r\n");
}

TEST(FactorySettings, OfThePictureMemoryAreItsDesignValues) {
  EXPECT_EQ(factory("képmem.ini"),
            " 17 \r\n 12 \r\n 2 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n 1 \r\n"
            " 10 \r\n 0 \r\n 0 \r\n");
}

TEST(FactorySettings, AreToldByATable) {
  std::istringstream table("file\tcontrol\tkind\tvalue\na.ini\tx\tnumber\t-5\na.ini\ty\tquoted\t\xC5\x91\n");
  const auto files = factory_settings(table);
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files.at("a.ini"), "-5 \r\n\"\xF5\"\r\n");
}

TEST(FactorySettings, RefuseAWrongRow) {
  for (const char* row : {"a.ini\tx\tnumber", "a.ini\tx\tcolour\t1", "a.ini\tx\tword\tyes"}) {
    std::istringstream table("file\tcontrol\tkind\tvalue\n" + std::string(row) + "\n");
    EXPECT_THROW(factory_settings(table), std::runtime_error) << row;
  }
}

TEST(LetterPairs, AreThirtyOneDifferentOnes) {
  const auto lines = lines_of(bytes_of(in_pack("betűpár.kvl")));
  EXPECT_EQ(lines.size(), 31U);
  EXPECT_EQ((std::set<std::string>(lines.begin(), lines.end())).size(), lines.size());
}

TEST(LetterPairs, AreTwoLettersOfTheAlphabetWithAHyphenBetween) {
  const std::set<Text> alphabet = {u"a",  u"á", u"b",  u"c", u"cs", u"d", u"dz", u"dzs", u"e", u"é",
                                   u"f",  u"g", u"gy", u"h", u"i",  u"í", u"j",  u"k",   u"l", u"ly",
                                   u"m",  u"n", u"ny", u"o", u"ó",  u"ö", u"ő",  u"p",   u"r", u"s",
                                   u"sz", u"t", u"ty", u"u", u"ú",  u"ü", u"ű",  u"v",   u"z", u"zs"};
  for (const std::string& line : lines_of(bytes_of(in_pack("betűpár.kvl")))) {
    const Text pair = from_cp1250(line);
    const auto hyphen = pair.find(u'-');
    ASSERT_NE(hyphen, Text::npos) << to_utf8(pair);
    EXPECT_TRUE(alphabet.contains(pair.substr(0, hyphen))) << to_utf8(pair);
    EXPECT_TRUE(alphabet.contains(pair.substr(hyphen + 1))) << to_utf8(pair);
    EXPECT_NE(pair.substr(0, hyphen), pair.substr(hyphen + 1));
  }
}

TEST(LetterPairs, LeaveEnoughForEnglishWords) {
  int plain = 0;
  for (const std::string& line : lines_of(bytes_of(in_pack("betűpár.kvl"))))
    if (line.size() == 3 && static_cast<unsigned char>(line[0]) < 193 && static_cast<unsigned char>(line[2]) < 193)
      ++plain;
  EXPECT_GE(plain, 8);
}

TEST(LetterPairs, AreRefusedInAnyOtherNumber) {
  std::string list;
  for (int i = 0; i < 30; ++i) list += "s-sz\n";
  std::istringstream short_list(list);
  EXPECT_THROW(letter_pairs(short_list), std::runtime_error);
  std::istringstream right_list(list + "a-b\n");
  EXPECT_EQ(lines_of(letter_pairs(right_list)).size(), 31U);
  std::istringstream wrong_line(list + "ab\n");
  EXPECT_THROW(letter_pairs(wrong_line), std::runtime_error);
}

} // namespace
} // namespace cserko::test
