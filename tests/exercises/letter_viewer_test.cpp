// Letter viewer: its window, which characters are letters, which words are found, how a word is laid out.
#include "tests/exercises/letter_viewer_fixture.h"

namespace cserko {
namespace {

class LetterViewerTest : public LetterViewerFixture {};

// The window.

TEST_F(LetterViewerTest, HasItsTextsMenuAndPlaces) {
  start();
  const auto w = designed<frm_betűnézegető>();
  EXPECT_EQ(utf8(w->Caption), "Cserkó - Betűnézegető");
  EXPECT_EQ(utf8(w->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(w->mneu_fájl_beállítások.Caption), "&Beállítások");
  EXPECT_EQ(utf8(w->mnu_fájl_separator.Caption), "-");
  EXPECT_EQ(utf8(w->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(w->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(w->mnu_súgó_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(w->lbl_feladat.Caption), "Keresd meg azt a képet, melynek nevét a képek alatt látod!");
  EXPECT_EQ(place_of(w->lbl_feladat), (Rect{120, 0, 7095, 375}));
  EXPECT_EQ(place_of(w->kép), (Rect{1920, 360, 3615, 3615}));
  EXPECT_EQ(place_of(w->Label_betű[0]), (Rect{2880, 3960, 1470, 600}));
  EXPECT_EQ(place_of(w->Label_kisbetű), (Rect{120, 4680, 3375, 3375}));
  EXPECT_EQ(place_of(w->Label_nagybetű), (Rect{3720, 4680, 3375, 3375}));
  EXPECT_EQ(places_of(w->választáskép), (std::vector<Rect>{{120, 360, 1695, 1695},
                                                           {1920, 360, 1695, 1695},
                                                           {3720, 360, 1695, 1695},
                                                           {5520, 360, 1695, 1695},
                                                           {120, 2160, 1695, 1695},
                                                           {1920, 2160, 1695, 1695},
                                                           {3720, 2160, 1695, 1695},
                                                           {5520, 2160, 1695, 1695}}));
  EXPECT_EQ(w->timer_megold.Interval, 1000);
  EXPECT_EQ(w->Timer1.Interval, 3000);
  EXPECT_FALSE(w->timer_megold.Enabled);
  EXPECT_FALSE(w->Timer1.Enabled);
  EXPECT_EQ(utf8(w->kép.Tag), "-1");
}

TEST_F(LetterViewerTest, OpensWithARandomLetter) {
  const auto& w = look();
  expect_scaled(w, 0.95, u"Label_nagybetű");
  EXPECT_EQ(large(w), "m M");
  EXPECT_EQ(word(w), "a|l|m|a");
  EXPECT_EQ(utf8(w.kép.Tag), "0");
  EXPECT_EQ(picture(w.kép), picture_path(0));
  expect_one_of_both(w);
  EXPECT_TRUE(w.kép.Visible);
}

TEST_F(LetterViewerTest, EachRandomLetterOfTheLanguageCanCome) {
  const Text hungarian = u"ertzuiopőúóüöűáélkjhgfdsaícvbnm";
  auto& w = look();
  for (std::size_t i = 0; i < hungarian.size(); ++i) {
    machine.script_random({drawing(static_cast<double>(i), letters)});
    w.véletlenkép();
    EXPECT_EQ(w.Label_kisbetű.Caption, Text(1, hungarian[i]));
  }
  end_session();
  const Text english = u"ertzuioplkjhgfdsacvbnm";
  auto& e = look({.english = true});
  for (std::size_t i = 0; i < english.size(); ++i) {
    machine.script_random({drawing(static_cast<double>(i), english_letters)});
    e.véletlenkép();
    EXPECT_EQ(e.Label_kisbetű.Caption, Text(1, english[i]));
  }
}

// Characters.

TEST_F(LetterViewerTest, AKeyShowsItsLetterWithASound) {
  auto& w = look();
  hand::type(w, u"h");
  EXPECT_EQ(large(w), "h H");
  EXPECT_NE(commands().find("c:\\cserko\\cserko\\moving.wav"), std::string::npos);
}

TEST_F(LetterViewerTest, ACapitalShowsTheSameAsTheSmallLetter) {
  auto& w = look();
  hand::type(w, u"H");
  EXPECT_EQ(large(w), "h H");
  type(w, u'Ű', shift::shift);
  EXPECT_EQ(large(w), "ű Ű");
}

TEST_F(LetterViewerTest, TheDigitsAreTheDigraphs) {
  auto& w = look();
  const std::vector<std::string> wanted{"cs Cs", "dz Dz", "dzs Dzs", "gy Gy", "ly Ly",
                                        "ny Ny", "sz Sz", "ty Ty",   "zs Zs"};
  for (int digit = 1; digit <= 9; ++digit) {
    type(w, static_cast<char16_t>(u'0' + digit));
    EXPECT_EQ(large(w), wanted[static_cast<std::size_t>(digit - 1)]);
  }
  hand::key(w, '7');
  EXPECT_EQ(large(w), "sz Sz");
  EXPECT_EQ(colors(w).find('R'), word(w).starts_with("sz") ? 0U : 1U);
}

TEST_F(LetterViewerTest, AllLettersOfAHungarianKeyboardAreTaken) {
  auto& w = look();
  for (const char16_t letter : TextView(u"qwertzuiopasdfghjklyxcvbnmáéíóöőúüű")) {
    type(w, letter);
    EXPECT_EQ(w.Label_kisbetű.Caption, Text(1, letter));
    EXPECT_EQ(w.Label_nagybetű.Caption, Text(1, upper_case(letter)));
  }
}

TEST_F(LetterViewerTest, AnyOtherCharacterChangesNothingButStopsTheTimer) {
  auto& w = look({.check = true});
  hand::click(w.választáskép[right_place(w)]);
  ASSERT_TRUE(w.Timer1.Enabled);
  const std::string before = word(w);
  for (const char16_t other : TextView(u"0-+.,!äßłčэ€[")) {
    type(w, other);
    EXPECT_EQ(large(w), "m M");
    EXPECT_EQ(word(w), before);
    EXPECT_FALSE(w.Timer1.Enabled);
  }
  machine.advance(10000);
  EXPECT_EQ(word(w), before);
}

TEST_F(LetterViewerTest, InEnglishDigitsAndAccentsAreNoLetters) {
  auto& w = look({.english = true});
  EXPECT_EQ(word(w), "m|o|u|s|e");
  for (const char16_t other : TextView(u"7á9ő")) {
    type(w, other);
    EXPECT_EQ(large(w), "m M");
    EXPECT_EQ(word(w), "m|o|u|s|e");
  }
  type(w, u'g');
  EXPECT_EQ(word(w), "d|o|g");
}

TEST_F(LetterViewerTest, LettersTypedWithAltGrCountAndShortcutsDoNot) {
  auto& w = look();
  type(w, u'í', shift::control | shift::alt);
  EXPECT_EQ(large(w), "í Í");
  type(w, u'h', shift::control);
  type(w, u'h', shift::alt);
  EXPECT_EQ(large(w), "í Í");
}

// Words.

TEST_F(LetterViewerTest, AWordDoesNotFollowItself) {
  auto& w = look();
  machine.script_random({drawing(0, 2), drawing(0, 2), drawing(1, 2)});
  type(w, u'm');
  EXPECT_EQ(word(w), "dzs|e|m");
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(LetterViewerTest, TheOnlyWordOfALetterIsRepeated) {
  auto& w = look();
  for (int i = 0; i < 3; ++i) {
    type(w, u'ő');
    EXPECT_EQ(word(w), "k|ő");
    EXPECT_EQ(picture(w.kép), picture_path(6));
  }
}

TEST_F(LetterViewerTest, ALetterInsideALongerOneIsNotFound) {
  auto& w = look();
  for (int i = 0; i < 20; ++i) {
    type(w, u's');
    EXPECT_EQ(word(w), "") << "every s of the words is part of another letter";
  }
}

TEST_F(LetterViewerTest, TheLastRecordIsShownToo) {
  auto& w = look();
  type(w, u'ú');
  EXPECT_EQ(utf8(w.kép.Tag), "9");
}

TEST_F(LetterViewerTest, TheLengthLimitsTheWords) {
  auto& w = look({.longest = 4});
  for (int i = 0; i < 20; ++i) {
    type(w, u'a');
    EXPECT_LE(w.Label_betű.count(), 4);
  }
}

TEST_F(LetterViewerTest, WithoutALimitLongWordsComeToo) {
  start_numbering();
  put({{.név = u"összeszerelhetőségükkel"}, {.név = u"alma"}});
  auto& w = look({.longest = 13});
  type(w, u'ü');
  EXPECT_EQ(utf8(w.kép.Tag), "0");
}

TEST_F(LetterViewerTest, OnlyTheFirstLetterCountsWhereThatIsWanted) {
  auto& w = look({.first = true});
  EXPECT_EQ(word(w), "") << "no word begins with m";
  for (int i = 0; i < 20; ++i) {
    type(w, u'a');
    EXPECT_TRUE(word(w).starts_with("a|"));
    type(w, u'7');
    EXPECT_EQ(word(w), "sz|é|k");
    type(w, u's');
    EXPECT_EQ(word(w), "");
    type(w, u'd');
    EXPECT_EQ(word(w), "");
  }
}

TEST_F(LetterViewerTest, ALetterWithoutAShortWordShowsAnEmptyFrameAndNoMessage) {
  auto& w = look({.longest = 3, .first = true});
  type(w, u'h');
  EXPECT_EQ(word(w), "h|a|l");
  type(w, u'a');
  EXPECT_EQ(large(w), "a A");
  EXPECT_EQ(word(w), "");
  EXPECT_FALSE(w.Label_betű[0].Visible);
  EXPECT_EQ(picture(w.kép), "(none)");
  EXPECT_TRUE(w.kép.Visible);
  EXPECT_EQ(messages_shown, 0);
  hand::type(w, u"h");
  EXPECT_EQ(word(w), "h|a|l");
}

TEST_F(LetterViewerTest, AnEmptyFrameEndsAChoiceToo) {
  auto& w = look({.check = true});
  ASSERT_FALSE(w.kép.Visible);
  type(w, u'q');
  EXPECT_EQ(picture(w.kép), "(none)");
  expect_one_of_both(w);
  EXPECT_TRUE(w.kép.Visible);
}

TEST_F(LetterViewerTest, InEnglishTheEnglishWordCounts) {
  auto& w = look({.longest = 5, .english = true});
  for (int i = 0; i < 20; ++i) {
    type(w, u'c');
    EXPECT_TRUE(word(w) == "c|h|a|i|r" || word(w) == "c|i|t|y") << word(w);
  }
}

TEST_F(LetterViewerTest, InEnglishTheFirstCharacterCounts) {
  auto& w = look({.first = true, .english = true});
  for (int i = 0; i < 10; ++i) {
    type(w, u'd');
    EXPECT_EQ(word(w), "d|o|g");
  }
}

TEST_F(LetterViewerTest, AnEnglishWordIsRefusedByItsHungarianOne) {
  // "dog" is short enough, its "kutya" of four letters is not; "dzsem" of three letters is.
  auto& w = look({.longest = 3, .english = true});
  EXPECT_EQ(word(w), "j|a|m");
  type(w, u'd');
  EXPECT_EQ(word(w), "");
  EXPECT_EQ(messages_shown, 0);
}

TEST_F(LetterViewerTest, AWordThatAloneIsAllowedRepeatsItselfAmongRefusedOnes) {
  start_numbering();
  put({{.név = u"hal", .angol = u"cat"}, {.név = u"asszony", .angol = u"cap"}, {.név = u"ló", .angol = u"xxxxx"}});
  auto& w = look({.longest = 3, .english = true});
  for (int i = 0; i < 3; ++i) {
    type(w, u'c');
    EXPECT_EQ(word(w), "c|a|t");
  }
}

TEST_F(LetterViewerTest, HungarianWordsAreShownBySyllablesWhereWanted) {
  auto& w = look({.syllables = true});
  EXPECT_EQ(word(w), "a|l|-|m|a");
  EXPECT_EQ(colors(w), "...R.");
}

// The layout of the word.

TEST_F(LetterViewerTest, TheLetterIsPickedOutInRedWhereverItStands) {
  auto& w = look();
  EXPECT_EQ(colors(w), "..R.");
  machine.script_random({drawing(1, 5)});
  type(w, u'a');
  EXPECT_EQ(word(w), "a|sz|t|a|l");
  EXPECT_EQ(colors(w), "R..R.");
}

TEST_F(LetterViewerTest, TheWordStandsCentredUnderThePictureInTheHeightThatIsFree) {
  const auto& w = look();
  const Label& first = w.Label_betű[0];
  const double free = std::round((w.Label_kisbetű.Top - w.kép.Top - w.kép.Height) * 0.9);
  EXPECT_GE(machine.measure(first.Font, u"alma").height, free);
  Font smaller = first.Font;
  smaller.size -= 1;
  EXPECT_LT(machine.measure(smaller, u"alma").height, free);
  EXPECT_DOUBLE_EQ(first.Top, w.kép.Top + w.kép.Height);
  const Label& last = w.Label_betű[3];
  EXPECT_NEAR((first.Left + last.Left + last.Width) / 2, w.kép.Left + w.kép.Width / 2, 0.01);
  for (int i = 1; i < 4; ++i) {
    EXPECT_DOUBLE_EQ(w.Label_betű[i].Left, w.Label_betű[i - 1].Left + w.Label_betű[i - 1].Width);
    EXPECT_DOUBLE_EQ(w.Label_betű[i].Width, machine.measure(first.Font, w.Label_betű[i].Caption).width);
    EXPECT_FALSE(w.Label_betű[i].Border);
  }
}

TEST_F(LetterViewerTest, SeparatedLettersHaveBordersAndAreWider) {
  const auto& w = look({.apart = true});
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(w.Label_betű[i].Border);
    EXPECT_GT(w.Label_betű[i].Width, machine.measure(w.Label_betű[i].Font, w.Label_betű[i].Caption).width);
  }
}

TEST_F(LetterViewerTest, ALongWordStaysInTheWindow) {
  start_numbering();
  put({{.név = u"összeszerelhetőségükkelmarkológép", .szótagolt = u"ösz-sze-sze-rel-he-tő-sé-gük-kel-mar-ko-ló-gép"},
       {.név = u"alma"}});
  for (const bool apart : {false, true}) {
    auto& w = look({.longest = 13, .apart = apart, .syllables = true});
    type(w, u'ü');
    ASSERT_GT(w.Label_betű.count(), 30);
    EXPECT_GE(w.Label_betű[0].Left, 0);
    const Label& last = w.Label_betű[w.Label_betű.count() - 1];
    EXPECT_LE(last.Left + last.Width, w.inner_width());
    end_session();
  }
}

TEST_F(LetterViewerTest, BothLargeLettersTakeTheSizeThatTheWiderOneAllows) {
  auto& w = look();
  for (const char16_t typed : TextView(u"mi3ű")) {
    type(w, typed);
    const auto overfills = [&](const Label& label, double size) {
      Font font = label.Font;
      font.size = size;
      const Size extent = machine.measure(font, label.Caption);
      return extent.width > 0.9 * label.Width || extent.height > 0.9 * label.Height;
    };
    const double size = w.Label_kisbetű.Font.size;
    EXPECT_EQ(w.Label_nagybetű.Font.size, size);
    EXPECT_TRUE(overfills(w.Label_kisbetű, size) || overfills(w.Label_nagybetű, size));
    EXPECT_FALSE(overfills(w.Label_kisbetű, size - 1) || overfills(w.Label_nagybetű, size - 1));
  }
}

// Clicks that go on.

TEST_F(LetterViewerTest, AClickOnThePictureShowsARandomLetter) {
  auto& w = look();
  machine.script_random({drawing(19, letters), drawing(0, 2)});
  hand::click(w.kép);
  EXPECT_EQ(large(w), "h H");
}

TEST_F(LetterViewerTest, AClickOnALargeLetterShowsTheNextWordOfTheLetter) {
  auto& w = look();
  hand::click(w.Label_kisbetű);
  EXPECT_EQ(word(w), "dzs|e|m");
  hand::click(w.Label_nagybetű);
  EXPECT_EQ(word(w), "a|l|m|a");
  type(w, u'7');
  hand::click(w.Label_kisbetű);
  EXPECT_EQ(large(w), "sz Sz") << "a digraph too";
}

TEST_F(LetterViewerTest, AClickOnALetterOfTheWordMovesToThatLetter) {
  auto& w = look();
  hand::click(w.Label_betű[1]);
  EXPECT_EQ(large(w), "l L");
  type(w, u'3');
  EXPECT_EQ(word(w), "dzs|e|m");
  hand::click(w.Label_betű[1]);
  EXPECT_EQ(large(w), "e E");
  type(w, u'3');
  hand::click(w.Label_betű[0]);
  EXPECT_EQ(large(w), "dzs Dzs");
}

TEST_F(LetterViewerTest, AClickOnADoubledDigraphMovesToTheDigraph) {
  auto& w = look();
  type(w, u'6'); // "asszony" is the only word with ny
  ASSERT_EQ(word(w), "a|ssz|o|ny");
  hand::click(w.Label_betű[1]);
  EXPECT_EQ(large(w), "sz Sz");
}

TEST_F(LetterViewerTest, InEnglishEveryLetterOfAWordCanBeClicked) {
  auto& w = look({.english = true});
  type(w, u'y');
  ASSERT_EQ(word(w), "c|i|t|y");
  hand::click(w.Label_betű[2]);
  EXPECT_EQ(large(w), "t T");
}

TEST_F(LetterViewerTest, InPlainViewingNothingComesByItself) {
  auto& w = look();
  machine.advance(20000);
  EXPECT_EQ(word(w), "a|l|m|a");
}

TEST_F(LetterViewerTest, TheMenuOpensTheHelpAndLeaves) {
  auto& w = look();
  hand::key(w, key::f1);
  EXPECT_EQ(help_page(), help_command("Betűnézegető - a feladat.mht"));
  hand::click(w.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_betűnézegető>());
  EXPECT_FALSE(session().loaded<frm_betűnézegető_beáll>());
}

TEST_F(LetterViewerTest, ClosingTheWindowUnloadsTheDialogToo) {
  auto& w = look();
  hand::close(w);
  EXPECT_FALSE(session().loaded<frm_betűnézegető_beáll>());
}

} // namespace
} // namespace cserko
