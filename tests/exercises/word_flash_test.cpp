// Word flash: the ring and its draw, the countdown, the time of the word in frames, right and wrong clicks at any time,
// the strip, the keys.
#include "tests/exercises/word_flash_fixture.h"

#include <set>

namespace cserko {
namespace {

class WordFlashTest : public WordFlashFixture {};

TEST_F(WordFlashTest, HasItsTextsPlacesTimersAndMenus) {
  start();
  const auto window = designed<frm_szóvillám>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - SzóVillám");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption),
            "A képek között felvillan egy szó. Kattints rá arra a képre, mely a felvillanó szó képét ábrázolja.");
  EXPECT_EQ(places_of(window->pic_feladványkép), (std::vector<Rect>{{4920, 1440, 1095, 1095},
                                                                    {1560, 480, 1095, 1095},
                                                                    {120, 1440, 1095, 1095},
                                                                    {3480, 480, 1095, 1095},
                                                                    {1560, 2400, 1095, 1095},
                                                                    {3480, 2400, 1095, 1095}}));
  EXPECT_EQ(place_of(window->lbl_feladvány), (Rect{1320, 1680, 3495, 615}));
  EXPECT_EQ(utf8(window->cmd_újra.Caption), "?");
  EXPECT_EQ(place_of(window->cmd_újra), (Rect{2880, 3120, 375, 375}));
  EXPECT_FALSE(window->cmd_újra.Visible);
  EXPECT_EQ(place_of(window->Frame1), (Rect{120, 3480, 5895, 1200}));
  const std::vector<double> lefts{120, 1080, 2040, 3000, 3960, 4920};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(place_of(window->pic_eredmény[i]), (Rect{lefts[static_cast<std::size_t>(i)], 240, 855, 855}));
    EXPECT_EQ(window->pic_eredmény[i].container(), &window->Frame1);
  }
  EXPECT_EQ(window->Timer_visszaszámláló.Interval, 500);
  EXPECT_TRUE(window->Timer_visszaszámláló.Enabled);
  EXPECT_FALSE(window->Timer_villám.Enabled);
  EXPECT_EQ(window->Timer_kérdőjelmegjelenítő.Interval, 2000);
  EXPECT_FALSE(window->Timer_kérdőjelmegjelenítő.Enabled);
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_újjáték.Caption), "&Új játék");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
}

TEST_F(WordFlashTest, FillsItsShareOfTheScreen) { expect_scaled(deal(), 0.95, u"lbl_feladvány"); }

TEST_F(WordFlashTest, ItsTaskAndItsQuestionMarkAreFitted) {
  auto& window = deal();
  expect_fitted(window.lbl_feladat);
  expect_fitted(window.cmd_újra);
}

TEST_F(WordFlashTest, SixRecordsStandInTheRingAndOneOfThemIsTheRightOne) {
  auto& window = deal({5, 3, 0, 7, 1, 4}, 2);
  EXPECT_EQ(ring(window), (std::vector<int>{5, 3, 0, 7, 1, 4}));
  EXPECT_EQ(pictures(window.pic_feladványkép),
            (std::vector<std::string>{picture_path(5), picture_path(3), picture_path(0), picture_path(7),
                                      picture_path(1), picture_path(4)}));
  EXPECT_EQ(window.helyes_hely(), 2);
  EXPECT_EQ(window.visszaszámlálás(), 4);
  EXPECT_EQ(shown(window), "") << "no word before its time";
  EXPECT_EQ(utf8(window.lbl_feladvány.Tag), "");
}

TEST_F(WordFlashTest, ARecordThatIsInTheRingIsDrawnAgain) {
  start();
  machine.script_random({record(5), record(5), record(3), record(5), record(3), record(0), record(7), record(1),
                         record(4), drawing(0, 6)});
  EXPECT_EQ(ring(open<frm_szóvillám>()), (std::vector<int>{5, 3, 0, 7, 1, 4}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(WordFlashTest, TwoPicturesOfOneWordNeverStandInTheRingTogether) {
  put_settings(u"szóvillám.ini", {u" 3 ", u" 10 ", u" 1 ", u" 0 ", u" 0 ", u"False", u"True"});
  clear_records();
  put({{.név = u"egér", .angol = u"mouse"}, {.név = u"számítógépes egér", .angol = u"mouse"}});
  for (int i = 2; i < 10; ++i) put({.név = u"szó", .angol = u"word " + to_text(i)});
  start();
  machine.script_random(
      {record(1), record(0), record(3), record(1), record(4), record(5), record(6), record(7), drawing(0, 6)});
  EXPECT_EQ(ring(open<frm_szóvillám>()), (std::vector<int>{1, 3, 4, 5, 6, 7}));
}

TEST_F(WordFlashTest, EachDrawIsSeededFromTheClock) {
  start();
  const int before = machine.seedings;
  open<frm_szóvillám>();
  EXPECT_GE(machine.seedings - before, 6);
}

TEST_F(WordFlashTest, TheLastRecordIsNeverDrawn) {
  auto& window = deal();
  for (int i = 0; i < 200; ++i) {
    window.beáll();
    const auto records = ring(window);
    EXPECT_EQ(std::set<int>(records.begin(), records.end()).size(), 6U);
    EXPECT_EQ(std::count(records.begin(), records.end(), session().képek.képszám), 0);
  }
}

TEST_F(WordFlashTest, InHungarianALengthCountsLetters) {
  put_settings(u"szóvillám.ini", {u" 5 ", u" 5 ", u" 1 ", u" 0 ", u" 0 ", u"True", u"False"});
  // "gyűrűk" has five letters, "edzés" four, "szilva" five, "kanna" five, "dzsungel" six.
  clear_records();
  put({{.név = u"gyűrűk"}, {.név = u"edzés"}, {.név = u"szilva"}, {.név = u"kanna"}, {.név = u"dzsungel"}});
  put({{.név = u"almák"}, {.név = u"barna"}, {.név = u"körte"}, {.név = u"vonat"}});
  start();
  machine.script_random(
      {record(0), record(1), record(2), record(3), record(4), record(5), record(6), record(7), drawing(0, 6)});
  EXPECT_EQ(ring(open<frm_szóvillám>()), (std::vector<int>{0, 2, 3, 5, 6, 7}));
}

TEST_F(WordFlashTest, InEnglishALengthCountsCharacters) {
  put_settings(u"szóvillám.ini", {u" 5 ", u" 5 ", u" 1 ", u" 0 ", u" 0 ", u"False", u"True"});
  // "apple" and "cheese" have fewer letters than characters by Hungarian rules; a record without an English name has
  // the length 0.
  clear_records();
  put({{.név = u"hosszú szó", .angol = u"apple"}, {.név = u"kanna", .angol = u"cheese"}, {.név = u"vonat"}});
  put({{.név = u"b", .angol = u"house"}, {.név = u"c", .angol = u"dress"}, {.név = u"d", .angol = u"bread"}});
  put({{.név = u"e", .angol = u"wheel"}, {.név = u"f", .angol = u"horse"}, {.név = u"utolsó", .angol = u"train"}});
  start();
  machine.script_random(
      {record(0), record(1), record(2), record(3), record(4), record(5), record(6), record(7), drawing(0, 6)});
  auto& window = open<frm_szóvillám>();
  EXPECT_EQ(ring(window), (std::vector<int>{0, 3, 4, 5, 6, 7}));
  let_pass_to_word(window);
  EXPECT_EQ(shown(window), "apple");
}

TEST_F(WordFlashTest, TheCountdownShowsThreeTwoOneAndABlank) {
  auto& window = deal();
  machine.advance(499);
  EXPECT_EQ(shown(window), "");
  for (const char* number : {"3", "2", "1", ""}) {
    machine.advance(1);
    EXPECT_EQ(shown(window), number);
    machine.advance(499);
    EXPECT_EQ(shown(window), number);
  }
  machine.advance(1);
  EXPECT_EQ(shown(window), "szó 5");
  EXPECT_EQ(utf8(window.lbl_feladvány.Tag), "szó 5");
}

TEST_F(WordFlashTest, NumbersAndWordAreAsLargeAsFits) {
  auto& window = deal();
  const auto expect_fits = [&](const Text& text) {
    Font font = window.lbl_feladvány.Font;
    EXPECT_EQ(font.size, first_overfilling_size(machine, {.size = 8}, text,
                                                {0.9 * window.lbl_feladvány.Width, 0.9 * window.lbl_feladvány.Height}));
  };
  machine.advance(500);
  expect_fits(u"3");
  machine.advance(2000);
  expect_fits(u"szó 5");
}

TEST_F(WordFlashTest, TheWordStandsOnTheScreenBeforeItsTimeBegins) {
  auto& window = deal();
  machine.advance(2499);
  const int before = machine.redraws;
  machine.advance(1);
  EXPECT_EQ(machine.redraws, before + 1);
  EXPECT_EQ(window.visszaszámlálás(), 4);
  EXPECT_FALSE(window.Timer_visszaszámláló.Enabled);
  EXPECT_EQ(window.Timer_villám.Interval, 1000);
  machine.advance(999);
  EXPECT_EQ(shown(window), "szó 5");
  machine.advance(1);
  EXPECT_EQ(shown(window), "");
  EXPECT_EQ(machine.redraws, before + 2) << "and goes at once";
  EXPECT_FALSE(window.Timer_villám.Enabled);
}

// The frames of the display are 16 2/3 ms long.
TEST_F(WordFlashTest, TheWordGoesAtTheFrameNearestToTheSetTimeButIsSeenForOne) {
  for (const auto& [set, seen] : {std::pair{10, 17}, {20, 17}, {30, 34}, {50, 50}, {120, 117}, {2000, 2000}}) {
    auto& window = deal_with_time(set);
    let_pass_to_word(window);
    EXPECT_EQ(window.Timer_villám.Interval, set);
    machine.advance(seen - 1);
    EXPECT_EQ(shown(window), "szó 5") << set;
    machine.advance(1);
    EXPECT_EQ(shown(window), "") << set;
  }
}

TEST_F(WordFlashTest, ATimeOfNoLengthIsTheShortest) {
  auto& window = deal_with_time(0);
  let_pass_to_word(window);
  machine.advance(16);
  EXPECT_EQ(shown(window), "szó 5");
  machine.advance(1);
  EXPECT_EQ(shown(window), "");
}

TEST_F(WordFlashTest, TheQuestionMarkComesTwoSecondsAfterTheWordHasGone) {
  auto& window = deal();
  let_pass_to_word(window);
  machine.advance(1000 + 1999);
  EXPECT_FALSE(window.cmd_újra.Visible);
  machine.advance(1);
  EXPECT_TRUE(window.cmd_újra.Visible);
  EXPECT_FALSE(window.Timer_kérdőjelmegjelenítő.Enabled);
  machine.advance(10000);
  EXPECT_EQ(shown(window), "") << "nothing comes by itself";
}

TEST_F(WordFlashTest, TheQuestionMarkBringsTheSameWordAgain) {
  auto& window = deal();
  let_pass_to_word(window);
  machine.advance(3000);
  const auto before = ring(window);
  hand::click(window.cmd_újra);
  EXPECT_FALSE(window.cmd_újra.Visible);
  machine.advance(500);
  EXPECT_EQ(shown(window), "3");
  machine.advance(2000);
  EXPECT_EQ(shown(window), "szó 5");
  EXPECT_EQ(ring(window), before);
}

TEST_F(WordFlashTest, TheRightPictureIsHeardKeptAndFollowedByANewRing) {
  auto& window = deal({5, 3, 0, 7, 1, 4}, 0);
  let_pass_to_word(window);
  machine.advance(3000);
  ASSERT_TRUE(window.cmd_újra.Visible);
  script_sound();
  script_ring({2, 8, 6, 1, 0, 3}, 4);
  hand::click(window.pic_feladványkép[0]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.pic_eredmény[0].Tag), "5");
  EXPECT_EQ(utf8(window.pic_eredmény[1].Tag), "-1");
  EXPECT_EQ(ring(window), (std::vector<int>{2, 8, 6, 1, 0, 3}));
  EXPECT_EQ(window.helyes_hely(), 4);
  EXPECT_FALSE(window.cmd_újra.Visible);
  EXPECT_EQ(window.visszaszámlálás(), 4);
  machine.advance(500);
  EXPECT_EQ(shown(window), "3");
}

TEST_F(WordFlashTest, AKeptPictureHasItsWordWithAHalo) {
  auto& window = deal();
  hand::click(window.pic_feladványkép[0]);
  const auto texts = drawn(window.pic_eredmény[0]).texts();
  EXPECT_GT(texts.size(), 1U) << "with a halo, not a plate";
  EXPECT_EQ(std::set<Text>(texts.begin(), texts.end()), std::set<Text>{u"szó 5"});
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(5));
}

TEST_F(WordFlashTest, InEnglishAKeptPictureHasItsEnglishWord) {
  put_settings(u"szóvillám.ini", {u" 3 ", u" 10 ", u" 1 ", u" 0 ", u" 0 ", u"False", u"True"});
  auto& window = deal();
  hand::click(window.pic_feladványkép[0]);
  const auto texts = drawn(window.pic_eredmény[0]).texts();
  EXPECT_EQ(std::set<Text>(texts.begin(), texts.end()), std::set<Text>{u"word 5"});
}

TEST_F(WordFlashTest, TheRightPictureCountsBeforeTheWordHasBeenShown) {
  auto& window = deal();
  machine.advance(700);
  script_sound();
  hand::click(window.pic_feladványkép[0]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.pic_eredmény[0].Tag), "5");
  EXPECT_EQ(window.visszaszámlálás(), 4);
  EXPECT_EQ(shown(window), "") << "the number went with its ring";
  // The countdown was on and goes on: its next tick shows the first number.
  machine.advance(300);
  EXPECT_EQ(shown(window), "3");
}

TEST_F(WordFlashTest, AWrongPictureIsHeardAndTheWordComesAgain) {
  auto& window = deal();
  let_pass_to_word(window);
  machine.advance(1500);
  const auto before = ring(window);
  script_sound();
  hand::click(window.pic_feladványkép[3]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(ring(window), before);
  EXPECT_EQ(window.helyes_hely(), 0);
  EXPECT_EQ(utf8(window.pic_eredmény[0].Tag), "-1");
  machine.advance(500);
  EXPECT_EQ(shown(window), "3");
  machine.advance(2000);
  EXPECT_EQ(shown(window), "szó 5");
}

TEST_F(WordFlashTest, AfterAWrongClickInThePauseTheQuestionMarkMayComeDuringTheCountdown) {
  auto& window = deal();
  let_pass_to_word(window);
  machine.advance(1500);
  hand::click(window.pic_feladványkép[3]);
  machine.advance(1500);
  EXPECT_EQ(shown(window), "1");
  EXPECT_TRUE(window.cmd_újra.Visible);
}

TEST_F(WordFlashTest, AWrongClickDuringTheCountdownDoesNotDisturbIt) {
  auto& window = deal();
  machine.advance(1250);
  hand::click(window.pic_feladványkép[3]);
  EXPECT_EQ(shown(window), "2");
  machine.advance(250);
  EXPECT_EQ(shown(window), "1");
}

TEST_F(WordFlashTest, AnAnswerDuringTheFlashEndsItSoThatNothingOfItComesIntoTheNextPuzzle) {
  auto& window = deal();
  let_pass_to_word(window);
  machine.advance(400);
  script_sound();
  script_ring({2, 8, 6, 1, 0, 3}, 0);
  hand::click(window.pic_feladványkép[0]);
  EXPECT_EQ(shown(window), "") << "the answered word is gone";
  machine.advance(600);
  EXPECT_EQ(shown(window), "3") << "when the old word would have gone";
  machine.advance(2600);
  EXPECT_EQ(shown(window), "szó 2");
  EXPECT_FALSE(window.cmd_újra.Visible);
}

TEST_F(WordFlashTest, AWordHasItsWholeTimeThoughAWrongClickBroughtItDuringItsFlash) {
  auto& window = deal_with_time(3000);
  let_pass_to_word(window);
  machine.advance(100);
  hand::click(window.pic_feladványkép[3]);
  machine.advance(2500);
  EXPECT_EQ(shown(window), "szó 5");
  machine.advance(2999);
  EXPECT_EQ(shown(window), "szó 5");
  machine.advance(1);
  EXPECT_EQ(shown(window), "");
}

TEST_F(WordFlashTest, TheSixthRightPictureIsCongratulatedAndTheStripIsEmptied) {
  auto& window = deal();
  for (int solved = 0; solved < 5; ++solved) hand::click(window.pic_feladványkép[window.helyes_hely()]);
  EXPECT_EQ(congratulations, 0);
  const Text sixth = window.pic_feladványkép[window.helyes_hely()].Tag;
  seen_at_congratulation = [&] {
    EXPECT_EQ(window.pic_eredmény[5].Tag, sixth);
    EXPECT_EQ(window.pic_feladványkép[window.helyes_hely()].Tag, sixth) << "the next ring comes behind the panel";
  };
  then_close_congratulation();
  hand::click(window.pic_feladványkép[window.helyes_hely()]);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(strip(window), std::vector<std::string>(6, "-1"));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
}

TEST_F(WordFlashTest, ANewGameEmptiesTheStripAndDeals) {
  auto& window = deal();
  hand::click(window.pic_feladványkép[0]);
  script_ring({2, 8, 6, 1, 0, 3}, 4);
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_EQ(strip(window), std::vector<std::string>(6, "-1"));
  EXPECT_EQ(ring(window), (std::vector<int>{2, 8, 6, 1, 0, 3}));
}

TEST_F(WordFlashTest, WithFewerThanSixWordsTheWindowStaysAndTellsWhichSettingToRelax) {
  clear_records();
  put_only({{.név = u"egy"}, {.név = u"két"}, {.név = u"alma"}, {.név = u"kutya"}, {.név = u"bicikli"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_szóvillám>();
  EXPECT_EQ(message,
            "Nincs hat ilyen hosszú szavunk.\r\nKérlek, engedj meg a beállításokban rövidebb vagy hosszabb szavakat "
            "is!");
  EXPECT_EQ(ring(window), std::vector<int>(6, -1));
  EXPECT_EQ(pictures(window.pic_feladványkép), no_pictures(6));
  hand::click(window.pic_feladványkép[0]);
  EXPECT_EQ(commands(), "") << "an empty place is no answer";
  machine.advance(10000);
  EXPECT_EQ(shown(window), "");
  EXPECT_FALSE(window.cmd_újra.Visible);
}

TEST_F(WordFlashTest, ADealThatFailsEndsTheFlashAndTheQuestionMarkOfTheOldOne) {
  auto& window = deal();
  let_pass_to_word(window);
  settings_dialog().ud_betszámmax.set_value(10);
  settings_dialog().ud_betszámmin.set_value(10);
  then_close_message();
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_EQ(shown(window), "");
  machine.advance(10000);
  EXPECT_FALSE(window.cmd_újra.Visible);
}

TEST_F(WordFlashTest, HelpOpensItsPage) {
  auto& window = deal();
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("szóvillám - a feladat.mht"));
}

TEST_F(WordFlashTest, ClosingTakesTheDialogWithIt) {
  auto& window = deal();
  EXPECT_TRUE(session().loaded<frm_szóvillám_beáll>());
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_szóvillám>());
  EXPECT_FALSE(session().loaded<frm_szóvillám_beáll>());
}

TEST_F(WordFlashTest, TheWindowsOwnCloseControlTakesTheDialogWithItToo) {
  hand::close(deal());
  EXPECT_FALSE(session().loaded<frm_szóvillám_beáll>());
}

TEST_F(WordFlashTest, IsPlayedByArrowsAndSpaceOrEnterAlone) {
  auto& window = deal({5, 3, 0, 7, 1, 4}, 2);
  window.set_focus(&window.pic_feladványkép[0]);
  hand::key(window, key::left);
  EXPECT_NE(window.focus(), &window.pic_feladványkép[0]);
  window.set_focus(&window.pic_feladványkép[2]);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.pic_eredmény[0].Tag), "0");
  window.set_focus(&window.pic_feladványkép[window.helyes_hely()]);
  hand::key(window, key::enter);
  EXPECT_NE(utf8(window.pic_eredmény[1].Tag), "-1");
}

TEST_F(WordFlashTest, TheQuestionMarkIsReachedByTabAndHandsTheFocusOn) {
  auto& window = deal();
  let_pass_to_word(window);
  machine.advance(3000);
  for (int i = 0; i < 10 && window.focus() != &window.cmd_újra; ++i) hand::key(window, key::tab);
  ASSERT_EQ(window.focus(), &window.cmd_újra);
  hand::key(window, key::space);
  EXPECT_FALSE(window.cmd_újra.Visible);
  ASSERT_NE(window.focus(), nullptr);
  EXPECT_EQ(utf8(window.focus()->Name), "pic_feladványkép");
  machine.advance(500);
  EXPECT_EQ(shown(window), "3");
}

} // namespace
} // namespace cserko
