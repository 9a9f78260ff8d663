#include "platform/text.h"

#include <gtest/gtest.h>

namespace cserko {
namespace {

TEST(Text, HungarianLettersSurviveUtf8InBothDirections) {
  const Text letters = u"árvíztűrő tükörfúrógép ÁRVÍZTŰRŐ TÜKÖRFÚRÓGÉP";
  EXPECT_EQ(from_utf8(to_utf8(letters)), letters);
}

TEST(Text, CharactersOutsideTheBasicPlaneBecomeTwoUnits) {
  EXPECT_EQ(from_utf8("\xF0\x9F\x98\x80"), u"\xD83D\xDE00");
  EXPECT_EQ(to_utf8(u"\xD83D\xDE00"), "\xF0\x9F\x98\x80");
}

TEST(Text, MalformedBytesBecomeOneReplacementCharacterEach) {
  EXPECT_EQ(from_utf8("a\xFF"
                      "b"),
            u"a\xFFFD"
            u"b");
  EXPECT_EQ(from_utf8("\xC0\xAF"), u"\xFFFD\xFFFD") << "overlong";
  EXPECT_EQ(from_utf8("\xED\xA0\x80"), u"\xFFFD\xFFFD\xFFFD") << "a surrogate";
  EXPECT_EQ(from_utf8("\xC5"), u"\xFFFD") << "cut short";
  EXPECT_EQ(from_utf8("\xF5\x80\x80\x80"), u"\xFFFD\xFFFD\xFFFD\xFFFD") << "behind the last code point";
}

TEST(Text, LoneSurrogateBecomesTheReplacementCharacter) {
  EXPECT_EQ(to_utf8(Text(1, char16_t{0xD800})), "\xEF\xBF\xBD");
  EXPECT_EQ(to_utf8(Text(1, char16_t{0xDC00})), "\xEF\xBF\xBD");
}

TEST(Text, CaseMapsTheLettersOfTheCodePageInBothDirections) {
  const Text small = u"abcxyzáéíóöőúüűščřžąłťýţ";
  const Text capital = u"ABCXYZÁÉÍÓÖŐÚÜŰŠČŘŽĄŁŤÝŢ";
  EXPECT_EQ(lower_case(TextView(capital)), small);
  for (std::size_t i = 0; i < small.size(); ++i) EXPECT_EQ(upper_case(small[i]), capital[i]);
}

TEST(Text, CaseLeavesEverythingElseAsItIs) {
  for (const char16_t c : Text(u"0 .&×÷ß€\u2026\u0101x").substr(0, 9)) {
    EXPECT_EQ(lower_case(c), c);
    EXPECT_EQ(upper_case(c), c);
  }
}

TEST(Text, ComparisonIgnoringCaseKnowsTheHungarianLetters) {
  EXPECT_TRUE(equal_ignoring_case(u"Árvíz.WAV", u"áRVÍZ.wav"));
  EXPECT_FALSE(equal_ignoring_case(u"arviz", u"árviz"));
  EXPECT_FALSE(equal_ignoring_case(u"a", u"ab"));
}

TEST(Text, NumbersAreWrittenWithoutBlanks) {
  EXPECT_EQ(to_text(0), u"0");
  EXPECT_EQ(to_text(-12), u"-12");
  EXPECT_EQ(to_text(32767), u"32767");
}

} // namespace
} // namespace cserko
