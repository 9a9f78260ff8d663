// Letter mix-up: the draw of the word, right and wrong spellings in both languages and with syllables, the answer, the
// pause, the row of found pictures.
#include "tests/exercises/letter_mix_up_fixture.h"

#include <set>

namespace cserko {
namespace {

class LetterMixUpTest : public LetterMixUpFixture {};

TEST_F(LetterMixUpTest, HasItsTextsAndMenus) {
  start();
  const auto window = designed<frm_betűkeverő>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Betűkeveredő");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Kattints rá a kép helyesen leírt nevére!");
  EXPECT_EQ(window->pic_eredménykép.count(), 6);
  EXPECT_EQ(window->Timer1.Interval, 1000);
  EXPECT_FALSE(window->Timer1.Enabled);
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(window->mnu_súgó_súgó.ShortcutKey, key::f1);
}

// The spellings.

TEST_F(LetterMixUpTest, AllButOneSpellingHaveTwoInnerLettersSwapped) {
  const auto& window = deal();
  EXPECT_EQ(spellings(window), "tbála|tábla|tlbáa|tálba");
  EXPECT_EQ(picture(window.kép), picture_path(0));
  EXPECT_EQ(found(window), "-1 -1 -1 -1 -1 -1");
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(LetterMixUpTest, TheUppermostIsNeverRightAndEveryOtherOneIsSometimes) {
  put_only({{.név = u"madárka", .szótagolt = u"ma-dár-ka", .angol = u"birdies"},
            {.név = u"kalapács", .szótagolt = u"ka-la-pács", .angol = u"hammers"}});
  start();
  auto& window = open_exercise();
  auto& dialog = load<frm_betűkeverő_beáll>();
  for (const int language : {0, 1}) {
    dialog.opt_nyelv.choose(language);
    for (int count = 3; count <= 6; ++count) {
      dialog.ud_szavakszáma.set_value(count);
      window.ablakbeállítás();
      std::set<int> places;
      for (int i = 0; i < 200; ++i) {
        window.beáll();
        places.insert(right_one(window).Index);
      }
      EXPECT_EQ(places.count(0), 0U);
      EXPECT_EQ(static_cast<int>(places.size()), count - 1);
    }
  }
}

TEST_F(LetterMixUpTest, WrongSpellingsDifferFromEachOtherAndFromTheRightOne) {
  put_tábla();
  start();
  // The second label meets the spelling of the first one, the last one those of both.
  script(0, 2, 4, 3, {{0, 1}, {1, 0}, {1, 2}, {0, 1}, {2, 1}, {2, 0}});
  EXPECT_EQ(spellings(open_exercise()), "tbála|tálba|tábla|tlbáa");
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(LetterMixUpTest, ThreeSwapsAreJustEnoughForFourSpellings) {
  deal();
  auto& window = load<frm_betűkeverő>();
  for (int i = 0; i < 100; ++i) {
    window.beáll();
    std::set<std::string> all;
    window.lbl_szó.each([&](const Label& label) { all.insert(utf8(label.Caption)); });
    EXPECT_EQ(all.size(), 4U);
  }
}

TEST_F(LetterMixUpTest, AWordWithFewerSwapsThanLabelsIsPassedOver) {
  put_settings(u"betűkeverő.ini", {u" 5 ", u" 10 ", u" 0 ", u" 5 "});
  put_only({{.név = u"tábla"}, {.név = u"madárka"}});
  start();
  machine.script_random({record(0), record(1)});
  const auto& window = open_exercise();
  EXPECT_EQ(window.szó_index(), 1);
  EXPECT_EQ(window.lbl_szó.count(), 5);
}

TEST_F(LetterMixUpTest, ASwapOfEqualLettersIsDrawnAgain) {
  put_only({{.név = u"malacka"}, {.név = u"szilva"}});
  start();
  // Inner letters a, l, a, c, k: behind the first "a" come itself and the other "a".
  machine.script_random({record(0), drawing(2, 3), drawing(0, 5), drawing(0, 5), drawing(2, 5), drawing(1, 5)});
  // The next spelling begins with numbers of its own.
  machine.script_random({drawing(3, 5), drawing(4, 5)});
  const auto& window = open_exercise();
  EXPECT_EQ(utf8(window.lbl_szó[0].Caption), "mlaacka");
  EXPECT_EQ(utf8(window.lbl_szó[1].Caption), "malakca");
}

TEST_F(LetterMixUpTest, ADigraphMovesAsOneLetter) {
  put_tábla();
  start();
  script(1, 3, 4, 3, {{0, 1}, {1, 2}, {0, 2}});
  EXPECT_EQ(spellings(open_exercise()), "hgyama|hamgya|hmgyaa|hagyma");
}

// The draw of the word.

TEST_F(LetterMixUpTest, ThreeDifferentInnerLettersAreNeededAndADigraphCountsAsItsFirstCharacter) {
  put_only({{.név = u"banana"}, {.név = u"kasasza"}, {.név = u"tábla"}});
  start();
  machine.script_random({record(0), record(1), record(2)});
  EXPECT_EQ(open_exercise().szó_index(), 2);
}

TEST_F(LetterMixUpTest, WordsOfOtherLengthsAreDrawnAgainAndNoneComesTwiceRunning) {
  put_settings(u"betűkeverő.ini", {u" 6 ", u" 7 "});
  put_only({{.név = u"tábla"}, {.név = u"kalapács"}, {.név = u"mókusok"}, {.név = u"asztalok"}, {.név = u"szilvás"}});
  start();
  // Digraphs are one letter: "kalapács" has seven of them, "asztalok" has as many.
  machine.script_random({record(0), record(1)});
  auto& window = open_exercise();
  EXPECT_EQ(window.szó_index(), 1);
  machine.script_random({record(1), record(3)});
  window.beáll();
  EXPECT_EQ(window.szó_index(), 3);
}

TEST_F(LetterMixUpTest, InEnglishWordsAreCutAndCountedByCharacters) {
  put_settings(u"betűkeverő.ini", {u" 6 ", u" 6 ", u" 1 ", u" 3 ", u"False"});
  put_only({{.név = u"karácsony", .angol = u"xmas"},
            {.név = u"citrom", .angol = u"lemons"},
            {.név = u"cseresznye", .angol = u"cszter"}});
  start();
  machine.script_random({record(0)});
  script(2, 2, 3, 4, {{0, 1}, {1, 2}});
  auto& window = open_exercise();
  EXPECT_EQ(spellings(window), "czster|cstzer|cszter") << "neither digraphs nor hyphens";
  hand::click(window.lbl_szó[2]);
  EXPECT_EQ(commands(), good_sound);
}

// Syllables.

TEST_F(LetterMixUpTest, TheRightSpellingHasTheSyllablesOfItsRecordAndTheWrongOnesThoseOfTheRule) {
  put_settings(u"betűkeverő.ini", {u" 5 ", u" 10 ", u" 1 "});
  auto& window = deal();
  EXPECT_EQ(spellings(window), "tbá-la|tá-bla|tlbá-a|tál-ba");
  EXPECT_EQ(utf8(window.lbl_szó[2].Tag), "tlbáa");
  EXPECT_EQ(utf8(window.lbl_szó[1].Tag), "tábla");
  hand::click(window.lbl_szó[1]);
  EXPECT_EQ(commands(), good_sound);
}

TEST_F(LetterMixUpTest, ARecordWithoutSyllablesIsPassedOverWhereTheyAreShown) {
  put_settings(u"betűkeverő.ini", {u" 5 ", u" 10 ", u" 1 "});
  put_only({{.név = u"tábla"}, {.név = u"hagyma", .szótagolt = u"hagy-ma"}});
  start();
  machine.script_random({record(0), record(1)});
  EXPECT_EQ(open_exercise().szó_index(), 1);
}

TEST(LetterMixUpSyllables, EndBetweenVowelsAndBeforeTheLastConsonantThatLeadsToAVowel) {
  for (const auto& [word, syllables] : {std::pair{u"tábla", "táb-la"},
                                        {u"kiadó", "ki-a-dó"},
                                        {u"asszony", "a-sszony"},
                                        {u"kréta", "kré-ta"},
                                        {u"sztrájkoló", "sztráj-ko-ló"},
                                        {u"ablakkeret", "ab-lak-ke-ret"},
                                        {u"Alma", "Alma"},
                                        {u"piros alma", "pi-ros al-ma"},
                                        {u"a krém", "a k-rém"},
                                        {u"ó", "ó"},
                                        {u"", ""}})
    EXPECT_EQ(utf8(frm_betűkeverő::szó_szótagolás(word)), syllables);
}

// The answer.

TEST_F(LetterMixUpTest, AWrongSpellingIsHeardAndNothingElseChanges) {
  auto& window = deal();
  for (const int wrong : {0, 2, 3}) hand::click(window.lbl_szó[wrong]);
  EXPECT_EQ(begun(u"bad.wav"), 3);
  EXPECT_EQ(spellings(window), "tbála|tábla|tlbáa|tálba");
  EXPECT_FALSE(window.Timer1.Enabled);
  EXPECT_TRUE(window.lbl_szó[0].Visible);
  EXPECT_EQ(window.lbl_szó[0].ForeColor, black);
}

TEST_F(LetterMixUpTest, TheRightSpellingStandsAloneInRedForASecondAndIsFiled) {
  auto& window = deal();
  hand::click(window.lbl_szó[1]);
  EXPECT_EQ(commands(), good_sound);
  window.lbl_szó.each([](const Label& label) { EXPECT_EQ(label.Visible, label.Index == 1); });
  EXPECT_EQ(window.lbl_szó[1].ForeColor, (Color{255, 0, 0}));
  machine.advance(999);
  EXPECT_EQ(found(window), "-1 -1 -1 -1 -1 -1");
  script(1, 3, 4, 3, {{0, 1}, {1, 2}, {0, 2}});
  machine.advance(1);
  EXPECT_EQ(found(window), "0 -1 -1 -1 -1 -1");
  EXPECT_EQ(picture(window.pic_eredménykép[0]), picture_path(0));
  EXPECT_EQ(spellings(window), "hgyama|hamgya|hmgyaa|hagyma");
  window.lbl_szó.each([](const Label& label) {
    EXPECT_TRUE(label.Visible);
    EXPECT_EQ(label.ForeColor, black);
  });
  EXPECT_FALSE(window.Timer1.Enabled);
}

TEST_F(LetterMixUpTest, ASecondClickDuringThePauseDoesNothing) {
  auto& window = deal();
  hand::click(window.lbl_szó[1]);
  machine.advance(500);
  hand::click(window.lbl_szó[1]);
  EXPECT_EQ(commands(), good_sound);
  machine.advance(500);
  EXPECT_EQ(found(window), "0 -1 -1 -1 -1 -1");
}

TEST_F(LetterMixUpTest, ANewGameDuringThePauseIsPlayedAndTheWordBeforeIsNotCounted) {
  auto& window = deal();
  hand::click(window.lbl_szó[1]);
  script(1, 3, 4, 3, {{0, 1}, {1, 2}, {0, 2}});
  hand::click(window.mnu_fájl_újjáték);
  machine.advance(3000);
  EXPECT_EQ(spellings(window), "hgyama|hamgya|hmgyaa|hagyma");
  EXPECT_EQ(found(window), "-1 -1 -1 -1 -1 -1");
}

TEST_F(LetterMixUpTest, ANewGameKeepsTheRow) {
  auto& window = deal();
  hand::click(window.lbl_szó[1]);
  machine.advance(1000);
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_EQ(found(window), "0 -1 -1 -1 -1 -1");
}

TEST_F(LetterMixUpTest, TheSixthPictureIsCongratulatedAndTheRowIsEmptied) {
  auto& window = deal();
  const auto solve = [&] {
    hand::click(right_one(window));
    machine.advance(1000);
  };
  for (int i = 0; i < 5; ++i) solve();
  EXPECT_EQ(congratulations, 0);
  seen_at_congratulation = [&] { EXPECT_NE(utf8(window.pic_eredménykép[5].Tag), "-1"); };
  then_close_congratulation();
  solve();
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(found(window), "-1 -1 -1 -1 -1 -1");
  EXPECT_EQ(pictures(window.pic_eredménykép), no_pictures(6));
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(LetterMixUpTest, IsPlayedByArrowsAndEnter) {
  auto& window = deal();
  EXPECT_EQ(window.focus(), &window.lbl_szó[0]);
  hand::key(window, key::enter);
  EXPECT_EQ(commands(), bad_sound);
  hand::key(window, key::down);
  ASSERT_EQ(window.focus(), &window.lbl_szó[1]);
  hand::key(window, key::enter);
  machine.advance(1000);
  EXPECT_EQ(found(window), "0 -1 -1 -1 -1 -1");
  hand::key(window, key::up);
  EXPECT_EQ(window.focus(), &window.lbl_szó[0]) << "the keys stay among the spellings";
}

TEST_F(LetterMixUpTest, WhereNothingFitsTheWindowStaysTellsWhyAndTheSettingsHelp) {
  put_settings(u"betűkeverő.ini", {u" 12 ", u" 16 "});
  put_tábla();
  start();
  then_close_message();
  auto& window = open_exercise();
  EXPECT_EQ(message, "Nincs elég olyan szavunk, amelyiknek ennyiféleképpen keverhetők a betűi.\r\nKérlek, engedj meg a "
                     "beállításokban rövidebb vagy hosszabb szavakat, vagy kérj kevesebb választási lehetőséget!");
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(captions(window.lbl_szó), nothing(4));
  hand::click(window.lbl_szó[1]);
  hand::key(window, key::enter);
  EXPECT_EQ(commands(), "");
  in_dialog(window, [](frm_betűkeverő_beáll& dialog) {
    dialog.ud_minbetűszám.set_value(5);
    hand::click(dialog.OKButton);
  });
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(LetterMixUpTest, ClosingUnloadsTheDialogHoweverItIsClosed) {
  hand::close(deal());
  EXPECT_FALSE(session().loaded<frm_betűkeverő>());
  EXPECT_FALSE(session().loaded<frm_betűkeverő_beáll>());
}

TEST_F(LetterMixUpTest, HelpOpensItsPage) {
  hand::key(deal(), key::f1);
  EXPECT_EQ(help_page(), help_command("Betűkeverő - a feladat.mht"));
}

// What it looks like.

TEST_F(LetterMixUpTest, TheSpellingsShareTheHeightOfThePictureAndOneSize) {
  put_only({{.név = u"madárka", .szótagolt = u"ma-dárka"}, {.név = u"kalapács", .szótagolt = u"ka-la-pács"}});
  for (const auto& [width, height] : std::vector<std::pair<int, int>>{{1024, 600}, {1280, 1024}, {3840, 2160}}) {
    machine.set_screen(width, height);
    for (int count = 3; count <= 6; ++count) {
      put_settings(u"betűkeverő.ini", {u" 5 ", u" 16 ", u" 1 ", to_text(count)});
      start();
      const auto& window = open<frm_betűkeverő>();
      ASSERT_EQ(window.lbl_szó.count(), count);
      double bottom = window.kép.Top;
      window.lbl_szó.each([&](const Label& label) {
        EXPECT_GE(label.Top, bottom - 1e-6);
        bottom = label.Top + label.Height;
        EXPECT_EQ(label.Font, window.lbl_szó[0].Font);
        EXPECT_LE(machine.measure(label.Font, label.Caption).width, label.Width);
        EXPECT_LE(machine.measure(label.Font, label.Caption).height, label.Height);
      });
      EXPECT_NEAR(bottom, window.kép.Top + window.kép.Height, 1e-6);
      end_session();
    }
  }
}

} // namespace
} // namespace cserko
