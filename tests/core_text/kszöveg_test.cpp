#include "core/kszöveg.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace cserko {
namespace {

using Letters = std::vector<Text>;

Letters letters_of(const kszöveg& text) {
  Letters letters;
  for (int n = 1; n <= text.MAGYARBETŰKSZÁMA(); ++n) letters.push_back(text.szóbetűje(int{n}));
  return letters;
}

Letters letters_of(TextView word) { return letters_of(kszöveg(word)); }

// Cutting into letters.

TEST(Letters, DigraphsAreSingleLetters) {
  EXPECT_EQ(letters_of(u"szó"), (Letters{u"sz", u"ó"}));
  EXPECT_EQ(letters_of(u"bridzs"), (Letters{u"b", u"r", u"i", u"dzs"}));
  EXPECT_EQ(letters_of(u"csúszda"), (Letters{u"cs", u"ú", u"sz", u"d", u"a"}));
  EXPECT_EQ(letters_of(u"edző"), (Letters{u"e", u"dz", u"ő"}));
}

TEST(Letters, ADoubledDigraphIsOneLongLetter) {
  EXPECT_EQ(letters_of(u"asszony"), (Letters{u"a", u"ssz", u"o", u"ny"}));
}

TEST(Letters, EveryLetterOfSeveralCharactersIsKnown) {
  for (const TextView letter : {u"dzs", u"ccs", u"ddz", u"ggy", u"lly", u"nny", u"ssz", u"tty", u"zzs", u"cs", u"dz",
                                u"gy", u"ly", u"ny", u"sz", u"ty", u"zs"})
    EXPECT_EQ(letters_of(u"a" + Text(letter) + u"a"), (Letters{u"a", Text(letter), u"a"})) << to_utf8(letter);
}

TEST(Letters, TheLongestReadingWins) {
  EXPECT_EQ(letters_of(u"dzsem"), (Letters{u"dzs", u"e", u"m"}));
  EXPECT_EQ(letters_of(u"ddzs"), (Letters{u"ddz", u"s"})) << "from the left, without looking ahead";
  EXPECT_EQ(letters_of(u"cccs"), (Letters{u"c", u"ccs"}));
}

TEST(Letters, OtherPairsAreTwoLetters) {
  EXPECT_EQ(letters_of(u"alma-fa 2"), (Letters{u"a", u"l", u"m", u"a", u"-", u"f", u"a", u" ", u"2"}));
  EXPECT_EQ(letters_of(u"hh"), (Letters{u"h", u"h"}));
}

TEST(Letters, KeepTheCaseOfTheText) {
  EXPECT_EQ(letters_of(u"Szó"), (Letters{u"Sz", u"ó"}));
  EXPECT_EQ(letters_of(u"SZÓ"), (Letters{u"SZ", u"Ó"}));
  EXPECT_EQ(letters_of(u"aSsZony"), (Letters{u"a", u"SsZ", u"o", u"ny"}));
}

TEST(Letters, AnEmptyTextHasNone) {
  EXPECT_EQ(kszöveg().MAGYARBETŰKSZÁMA(), 0);
  EXPECT_EQ(letters_of(u""), Letters{});
}

TEST(Letters, FourCompoundsAreCutAtTheirSeam) {
  EXPECT_EQ(letters_of(u"rajzszög"), (Letters{u"r", u"a", u"j", u"z", u"sz", u"ö", u"g"}));
  EXPECT_EQ(letters_of(u"rajzszeg"), (Letters{u"r", u"a", u"j", u"z", u"sz", u"e", u"g"}));
  EXPECT_EQ(letters_of(u"karosszék"), (Letters{u"k", u"a", u"r", u"o", u"s", u"sz", u"é", u"k"}));
  EXPECT_EQ(letters_of(u"magánnyomozó"), (Letters{u"m", u"a", u"g", u"á", u"n", u"ny", u"o", u"m", u"o", u"z", u"ó"}));
}

TEST(Letters, TwoOfTheCompoundsKeepTheirCaseAndTwoAreWrittenSmall) {
  EXPECT_EQ(letters_of(u"RajzSzög"), (Letters{u"R", u"a", u"j", u"z", u"Sz", u"ö", u"g"}));
  EXPECT_EQ(letters_of(u"RAJZSZEG"), (Letters{u"R", u"A", u"J", u"Z", u"SZ", u"E", u"G"}));
  EXPECT_EQ(letters_of(u"KAROSSZÉK"), (Letters{u"k", u"a", u"r", u"o", u"s", u"sz", u"é", u"k"}));
  EXPECT_EQ(letters_of(u"Magánnyomozó"), (Letters{u"m", u"a", u"g", u"á", u"n", u"ny", u"o", u"m", u"o", u"z", u"ó"}));
  kszöveg word(u"KAROSSZÉK");
  EXPECT_EQ(word.value(), u"KAROSSZÉK") << "the text itself stays";
}

TEST(Letters, OnlyTheWholeWordIsAnException) {
  EXPECT_EQ(letters_of(u"karosszékek").size(), 9U) << "k a r o ssz é k e k";
  EXPECT_EQ(letters_of(u"rajzszögek")[3], u"zs");
}

TEST(Letters, OfEnglishTextAreItsCharacters) {
  kszöveg text;
  text.szövegnyelv(4);
  text.value(u"szex");
  EXPECT_EQ(letters_of(text), (Letters{u"s", u"z", u"e", u"x"}));
  text.value(u"karosszék");
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 9) << "the exceptions are Hungarian";
}

// Language.

TEST(Language, IsHungarianAtFirst) { EXPECT_EQ(kszöveg().szövegnyelv(), 2); }

TEST(Language, IsSetByCodeOrByWordInAnyCase) {
  kszöveg text;
  text.szövegnyelv(4);
  EXPECT_EQ(text.szövegnyelv(), 4);
  text.szövegnyelv(u"Magyar");
  EXPECT_EQ(text.szövegnyelv(), 2);
  text.szövegnyelv(u"ENGLISH");
  EXPECT_EQ(text.szövegnyelv(), 4);
  text.szövegnyelv(2);
  text.szövegnyelv(u"angol");
  EXPECT_EQ(text.szövegnyelv(), 4);
}

TEST(Language, AnythingElseChangesNothing) {
  kszöveg text;
  text.szövegnyelv(4);
  for (const int code : {0, 1, 3, 5, -2}) text.szövegnyelv(code);
  text.szövegnyelv(u"deutsch");
  text.szövegnyelv(u"");
  EXPECT_EQ(text.szövegnyelv(), 4);
}

TEST(Language, AChangeDoesNotCutAgain) {
  kszöveg text(u"szó");
  text.szövegnyelv(4);
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 2);
  text.value(text.value());
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 3);
}

// Cutting characters off.

TEST(Cutting, FunctionsLeaveTheTextAlone) {
  const kszöveg text(u"asszony");
  EXPECT_EQ(text.jobbrólvágott(2), u"asszo");
  EXPECT_EQ(text.balrólvágott(2), u"szony");
  EXPECT_EQ(text.value(), u"asszony");
}

TEST(Cutting, ProceduresChangeTheTextButNotTheLetters) {
  kszöveg text(u"asszony");
  text.levág_jobbról(1);
  EXPECT_EQ(text.value(), u"asszon");
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 4);
  EXPECT_EQ(text.szóbetűje(4), u"ny");
  text.levág_balról(3);
  EXPECT_EQ(text.value(), u"zon");
  EXPECT_EQ(text.szóbetűje(1), u"a");
}

TEST(Cutting, MoreThanThereIsBecomesTheLengthAlsoForTheCaller) {
  kszöveg text(u"alma");
  int n = 9;
  EXPECT_EQ(text.jobbrólvágott(n), u"");
  EXPECT_EQ(n, 4);
  n = 9;
  EXPECT_EQ(text.balrólvágott(n), u"");
  EXPECT_EQ(n, 4);
  n = 9;
  text.levág_jobbról(n);
  EXPECT_EQ(n, 4);
  EXPECT_EQ(text.value(), u"");
  text.value(u"alma");
  n = 9;
  text.levág_balról(n);
  EXPECT_EQ(n, 4);
  EXPECT_EQ(text.value(), u"");
}

TEST(Cutting, LessThanOneBecomesZeroInTheFunctionsAndStaysInTheProcedures) {
  kszöveg text(u"alma");
  int n = -3;
  EXPECT_EQ(text.jobbrólvágott(n), u"alma");
  EXPECT_EQ(n, 0);
  n = -3;
  EXPECT_EQ(text.balrólvágott(n), u"alma");
  EXPECT_EQ(n, 0);
  n = -3;
  text.levág_jobbról(n);
  text.levág_balról(n);
  EXPECT_EQ(n, -3);
  EXPECT_EQ(text.value(), u"alma");
}

TEST(Cutting, AnEmptyTextTakesAnyNumber) {
  kszöveg text;
  int n = 1;
  EXPECT_EQ(text.jobbrólvágott(n), u"");
  EXPECT_EQ(n, 0);
  n = 1;
  text.levág_balról(n);
  EXPECT_EQ(n, 0);
}

// Inserting.

TEST(Inserting, PutsTheTextBeforeThePosition) {
  kszöveg text(u"alma");
  text.beszúr(3, u"XY");
  EXPECT_EQ(text.value(), u"alXYma");
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 4) << "the letters stay those of before";
}

TEST(Inserting, PastTheEndAppendsAndTheCallerHearsOfIt) {
  kszöveg text(u"alma");
  int position = 99;
  text.beszúr(position, u"fa");
  EXPECT_EQ(text.value(), u"almafa");
  EXPECT_EQ(position, 5);
}

TEST(Inserting, BeforeTheBeginningPrependsAndTheCallerHearsOfIt) {
  kszöveg text(u"alma");
  int position = 0;
  text.beszúr(position, u"vad");
  EXPECT_EQ(text.value(), u"vadalma");
  EXPECT_EQ(position, 1);
}

TEST(Inserting, AsAFunctionLeavesTheTextAlone) {
  const kszöveg text(u"alma");
  int position = -5;
  EXPECT_EQ(text.beszúr_nem_változik(position, u"X"), u"Xalma");
  EXPECT_EQ(position, 1);
  EXPECT_EQ(text.beszúr_nem_változik(5, u"X"), u"almaX");
  EXPECT_EQ(text.value(), u"alma");
}

// Length.

TEST(Length, CountsCharactersNotLetters) { EXPECT_EQ(kszöveg(u"asszony").lenght(), 7); }

TEST(Length, LengthensByTheFillerAndCutsOnTheRight) {
  kszöveg text(u"szó");
  text.lenght(5);
  EXPECT_EQ(text.value(), u"szó  ");
  text.töltelékkarakter(u"*");
  text.lenght(6);
  EXPECT_EQ(text.value(), u"szó  *");
  text.lenght(2);
  EXPECT_EQ(text.value(), u"sz");
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 2) << "the letters stay those of before";
  text.lenght(-4);
  EXPECT_EQ(text.value(), u"");
}

TEST(Length, TheFillerIsOneCharacterAndNeverNone) {
  kszöveg text;
  EXPECT_EQ(text.töltelékkarakter(), u" ");
  text.töltelékkarakter(u"xyz");
  EXPECT_EQ(text.töltelékkarakter(), u"x");
  text.töltelékkarakter(u"");
  EXPECT_EQ(text.töltelékkarakter(), u"x");
}

// Replacing.

TEST(Replacing, ReplacesEveryOccurrenceAndCutsAnew) {
  kszöveg text(u"kakas");
  text.csere(u"ka", u"szo");
  EXPECT_EQ(text.value(), u"szoszos");
  EXPECT_EQ(letters_of(text), (Letters{u"sz", u"o", u"sz", u"o", u"s"}));
}

TEST(Replacing, DoesNotSearchAReplacementAgain) {
  kszöveg text(u"aaa");
  text.csere(u"a", u"aa");
  EXPECT_EQ(text.value(), u"aaaaaa");
  text.value(u"aaab");
  text.csere(u"aab", u"b");
  EXPECT_EQ(text.value(), u"ab") << "what arises at the seam is not found";
}

TEST(Replacing, IsCaseSensitiveAndMayReplaceByNothing) {
  kszöveg text(u"Alma a fa alatt");
  text.csere(u"a", u"");
  EXPECT_EQ(text.value(), u"Alm  f ltt");
}

TEST(Replacing, CutsAnewAlsoWhereNothingWasFound) {
  kszöveg text(u"asszony");
  text.levág_jobbról(1);
  text.csere(u"x", u"y");
  EXPECT_EQ(text.value(), u"asszon");
  EXPECT_EQ(letters_of(text), (Letters{u"a", u"ssz", u"o", u"n"}));
}

TEST(Replacing, AnEmptyTextIsNeverFound) {
  kszöveg text(u"alma");
  text.csere(u"", u"x");
  EXPECT_EQ(text.value(), u"alma");
}

// Single letters.

TEST(Letter, PastTheEndIsTheLastAndTheCallerHearsOfIt) {
  const kszöveg text(u"asszony");
  int n = 12;
  EXPECT_EQ(text.szóbetűje(n), u"ny");
  EXPECT_EQ(n, 4);
}

TEST(Letter, BelowOneIsEmptyAndStays) {
  const kszöveg text(u"asszony");
  int n = -1;
  EXPECT_EQ(text.szóbetűje(n), u"");
  EXPECT_EQ(n, -1);
  EXPECT_EQ(text.szóbetűje(0), u"");
}

TEST(Letter, OfAnEmptyTextIsEmpty) {
  int n = 3;
  EXPECT_EQ(kszöveg().szóbetűje(n), u"");
  EXPECT_EQ(n, 0);
}

TEST(Letter, VowelsAreTheFourteenSmallOnes) {
  for (const char16_t vowel : Text(u"aáeéiíoóöőuúüű"))
    EXPECT_TRUE(kszöveg(Text(1, vowel)).EzabetűMagánhangzóE(1)) << to_utf8(Text(1, vowel));
  for (const TextView other : {u"b", u"sz", u"A", u"Á", u"Ő", u"y", u"ä", u"-"})
    EXPECT_FALSE(kszöveg(other).EzabetűMagánhangzóE(1)) << to_utf8(other);
}

TEST(Letter, AskingForALetterThatIsNotThereIsAnError) {
  const kszöveg text(u"szó");
  EXPECT_TRUE(text.EzabetűMagánhangzóE(2));
  EXPECT_FALSE(text.EzabetűMagánhangzóE(3)) << "the places behind the letters are empty, not missing";
  EXPECT_THROW(text.EzabetűMagánhangzóE(0), std::out_of_range);
  EXPECT_THROW(text.EzabetűMagánhangzóE(4), std::out_of_range);
  EXPECT_THROW(kszöveg().EzabetűMagánhangzóE(1), std::out_of_range);
}

// Several letters.

TEST(Parts, FirstAndLastLettersAreJoined) {
  const kszöveg text(u"asszony");
  EXPECT_EQ(text.magyarleft(2), u"assz");
  EXPECT_EQ(text.magyarright(2), u"ony");
  EXPECT_EQ(text.magyarleft(4), u"asszony");
  EXPECT_EQ(text.magyarright(4), u"asszony");
}

TEST(Parts, NoneOrFewerThanNoneAreEmpty) {
  const kszöveg text(u"alma");
  EXPECT_EQ(text.magyarleft(0), u"");
  EXPECT_EQ(text.magyarright(0), u"");
  EXPECT_EQ(text.magyarleft(-1), u"");
  EXPECT_EQ(text.magyarright(-1), u"");
  EXPECT_EQ(kszöveg().magyarright(-2), u"");
}

TEST(Parts, LettersThatAreNotThereAreAnError) {
  const kszöveg text(u"alma");
  EXPECT_THROW(text.magyarleft(5), std::out_of_range);
  EXPECT_THROW(text.magyarright(5), std::out_of_range);
  EXPECT_THROW(kszöveg().magyarleft(0), std::out_of_range);
  EXPECT_THROW(kszöveg().magyarright(0), std::out_of_range);
  EXPECT_THROW(kszöveg(u"").magyarleft(1), std::out_of_range);
}

TEST(Parts, TheLettersHaveAsManyPlacesAsTheTextHasCharacters) {
  const kszöveg text(u"szó");
  EXPECT_EQ(text.magyarleft(3), u"szó") << "the third place is empty";
  EXPECT_THROW(text.magyarleft(4), std::out_of_range);
  EXPECT_THROW(text.magyarright(3), std::out_of_range);
}

TEST(Parts, TheNumberOfLettersCannotBeSet) {
  kszöveg text(u"szó");
  text.MAGYARBETŰKSZÁMA(7);
  EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 2);
}

// Lists.

TEST(CommaList, HasACommaBeforeAndBehindEveryLetter) {
  EXPECT_EQ(kszöveg(u"aszó").VesszősSzöveg(), u",a,sz,ó,");
  EXPECT_EQ(kszöveg().VesszősSzöveg(), u",");
}

TEST(CommaList, FindsWholeLettersOnly) {
  const kszöveg text(u"szó");
  EXPECT_FALSE(text.vanebenne(u"s"));
  EXPECT_FALSE(text.vanebenne(u"z"));
  EXPECT_TRUE(text.vanebenne(u"sz"));
  EXPECT_TRUE(text.vanebenne(u"ó"));
  EXPECT_FALSE(text.vanebenne(u"Sz")) << "case counts";
  EXPECT_FALSE(text.vanebenne(u""));
  EXPECT_FALSE(kszöveg().vanebenne(u"a"));
}

// The article.

TEST(Article, FollowsTheFirstLetter) {
  EXPECT_EQ(kszöveg(u"alma").Névelővel(false), u"az alma");
  EXPECT_EQ(kszöveg(u"alma").Névelővel(true), u"Az alma");
  EXPECT_EQ(kszöveg(u"szék").Névelővel(false), u"a szék");
  EXPECT_EQ(kszöveg(u"szék").Névelővel(true), u"A szék");
  EXPECT_EQ(kszöveg(u"őz").Névelővel(false), u"az őz");
}

TEST(Article, ACapitalVowelCountsAsNone) {
  EXPECT_EQ(kszöveg(u"Alma").Névelővel(false), u"a Alma");
  EXPECT_EQ(kszöveg(u"Alma").Névelővel(true), u"A Alma");
}

TEST(Article, StandsBeforeTheTextAsItIsNow) {
  kszöveg text(u"alma");
  text.levág_balról(1);
  EXPECT_EQ(text.Névelővel(false), u"az lma") << "the first letter is still that of before";
}

// Texts that nobody keeps.

TEST(Passing, SaysTheSameAsTheKeptText) {
  for (const TextView text :
       {u"",     u"szó",      u"Szó",       u"asszony",   u"bridzs",    u"edzés",      u"DZSungel",
        u"ccsz", u"rajzszög", u"RajzSzeg",  u"karosszék", u"KAROSSZÉK", u"karosszéke", u"Magánnyomozó",
        u"gy",   u"g",        u"asz-szony", u"két szó",   u"a,b",       u"őrség"}) {
    const kszöveg kept(text);
    EXPECT_EQ(kszöveg::letter_count(text), kept.MAGYARBETŰKSZÁMA()) << to_utf8(text);
    EXPECT_EQ(kszöveg::letter_list(text), kept.VesszősSzöveg()) << to_utf8(text);
  }
  EXPECT_EQ(kszöveg::letter_count(u"asszony"), 4);
  EXPECT_EQ(kszöveg::letter_list(u"KAROSSZÉK"), u",k,a,r,o,s,sz,é,k,");
  EXPECT_EQ(kszöveg::letter_list(u"RAJZSZÖG"), u",R,A,J,Z,SZ,Ö,G,");
}

TEST(Passing, AListHoldsWholeLettersOnly) {
  EXPECT_TRUE(kszöveg::in_list(kszöveg::letter_list(u"szó"), u"sz"));
  EXPECT_FALSE(kszöveg::in_list(kszöveg::letter_list(u"szó"), u"s"));
}

TEST(Article, NeedsALetter) { EXPECT_THROW(kszöveg().Névelővel(false), std::out_of_range); }

} // namespace
} // namespace cserko
