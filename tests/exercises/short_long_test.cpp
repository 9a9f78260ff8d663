// Short-long: the draw of pair, letter and word, the gap, the column that slides by mouse, click and key, the answer,
// the settings with their list of pairs.
#include "exercises/boards/frm_hosszrövid.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/letter_row_checks.h"
#include "tests/exercises/word_lengths.h"

#include <set>

namespace cserko {
namespace {

constexpr int pairs = 33;

class ShortLongTest : public ExerciseTest {
 protected:
  static int pair_index(const dlg_hosszrövid& dialog, TextView pair) { return dialog.lst_betűpár.find(pair); }

  /// Opens the exercise with the word, without the given letter of the pair (0 upper, 1 lower), at the n-th of its
  /// places of so many. The word behind it is "kutya".
  frm_hosszrövid& deal(const Text& name, TextView pair, int side, int nth = 0, int places = 1,
                       const Text& syllables = {}) {
    put({{.név = name, .szótagolt = syllables}, {.név = u"kutya", .szótagolt = u"ku-tya"}, {.név = u"utolsó"}});
    start();
    put_answer_sounds();
    machine.script_random(
        {drawing(pair_index(load<dlg_hosszrövid>(), pair), pairs), drawing(side, 2), record(0), drawing(nth, places)});
    return open<frm_hosszrövid>();
  }
  static std::string row(const frm_hosszrövid& window) { return letters_of(window.betű); }
  /// Words are shown in syllables. The first word is drawn first and the second one stays: its row without that letter.
  std::string row_behind_the_first_word(TextView pair, int side) {
    put_settings(u"hosszrövid.ini", {u" 10 ", u" 4 ", u" 1 "});
    start();
    machine.script_random(
        {drawing(pair_index(load<dlg_hosszrövid>(), pair), pairs), drawing(side, 2), record(0), record(1), 0.0});
    const std::string shown = row(open<frm_hosszrövid>());
    EXPECT_EQ(machine.scripted_random_left(), 0U);
    return shown;
  }
  static Label& gap(frm_hosszrövid& window) { return window.betű[window.rés_index()]; }
  static void expect_column(frm_hosszrövid& window, double top) {
    const double height = gap(window).Height;
    EXPECT_NEAR(gap(window).Top, top, 1e-6);
    EXPECT_NEAR(window.lbl_felső.Top, top - height, 1e-6);
    EXPECT_NEAR(window.lbl_alsó.Top, top + height, 1e-6);
  }
  static std::set<int> selected_pairs(const dlg_hosszrövid& dialog) {
    std::set<int> all;
    for (int i = 0; i < pairs; ++i)
      if (dialog.lst_betűpár.is_selected(i)) all.insert(i);
    return all;
  }
  void in_dialog(frm_hosszrövid& window, const std::function<void(dlg_hosszrövid&)>& deed) {
    then_in<dlg_hosszrövid>(deed);
    hand::click(window.mnu_fájl_beáll);
  }
};

TEST_F(ShortLongTest, HasItsTextsAndMenus) {
  start();
  const auto window = designed<frm_hosszrövid>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Rövid-hosszú");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Egészítsd ki a szót! Csúsztasd helyére a megfelelő betűt!");
  EXPECT_EQ(utf8(window->cmd_kész.Caption), "Kész");
  EXPECT_EQ(window->pic_eredmény.count(), 6);
  EXPECT_EQ(window->lbl_eredmény.count(), 6);
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(window->mnu_súgó_súgó.ShortcutKey, key::f1);
}

// The round.

TEST_F(ShortLongTest, ALetterOfThePairIsTakenOutAndTheTwoStandAboveAndBelowTheGap) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  EXPECT_EQ(row(window), "h|a|j|.");
  EXPECT_EQ(window.rés_index(), 3);
  EXPECT_EQ(utf8(window.lbl_felső.Caption), "o");
  EXPECT_EQ(utf8(window.lbl_alsó.Caption), "ó");
  EXPECT_EQ(utf8(window.kivett_betű()), "ó");
  EXPECT_EQ(picture(window.kép), picture_path(0));
  expect_column(window, window.line_top());
}

TEST_F(ShortLongTest, OfALetterThatStandsInSeveralPlacesOneIsHidden) {
  auto& window = deal(u"banana", u"a-á", 0, 1, 3);
  EXPECT_EQ(row(window), "b|a|n|.|n|a");
}

TEST_F(ShortLongTest, ALetterOfTwoCharactersIsTakenOutWholeAndItsPartsAreNotFound) {
  put({{.név = u"asztal"}, {.név = u"kastély"}, {.név = u"utolsó"}});
  start();
  const int pair = pair_index(load<dlg_hosszrövid>(), u"sz-s");
  machine.script_random({drawing(pair, pairs), drawing(1, 2), record(0), record(1), 0.0});
  auto& window = open<frm_hosszrövid>();
  EXPECT_EQ(row(window), "k|a|.|t|é|ly") << "the sz of asztal is no s";
  machine.script_random({drawing(pair, pairs), drawing(0, 2), record(1), record(0), 0.0});
  window.beáll();
  EXPECT_EQ(row(window), "a|.|t|a|l");
}

TEST_F(ShortLongTest, TheGapIsAsWideAsTheWiderLetterAndTheRowIsCentred) {
  auto& window = deal(u"kastély", u"sz-s", 1);
  const Font& font = window.betű[0].Font;
  const double wide = machine.measure(font, u"sz").width;
  EXPECT_DOUBLE_EQ(gap(window).Width, wide);
  for (const Label* letter : {&window.lbl_felső, &window.lbl_alsó}) {
    EXPECT_DOUBLE_EQ(letter->Width, wide);
    EXPECT_DOUBLE_EQ(letter->Left, gap(window).Left);
    EXPECT_EQ(letter->Font, font);
  }
  const Label& last = window.betű[window.betű.count() - 1];
  const double middle = window.cmd_kész.Left + window.cmd_kész.Width / 2;
  EXPECT_NEAR(middle - window.betű[0].Left, last.Left + last.Width - middle, 1e-6);
  EXPECT_NEAR(window.line_top() + last.Height / 2, (window.kép.Top + window.kép.Height + window.cmd_kész.Top) / 2, 1);
}

TEST_F(ShortLongTest, TheWiderLetterMayBeTheLowerOne) {
  auto& window = deal(u"kocsi", u"c-cs", 1);
  EXPECT_DOUBLE_EQ(gap(window).Width, machine.measure(window.betű[0].Font, u"cs").width);
}

TEST_F(ShortLongTest, TheColumnStaysBetweenPictureAndButtonAtEveryLengthAndSize) {
  for (const auto& [width, height] : std::vector<std::pair<int, int>>{{1024, 600}, {1280, 1024}, {3840, 2160}}) {
    for (const Text& word : {Text(u"hajó"), Text(u"óóóóóóóóóóóóóóóó"), Text(u"dzsdzsdzsdzsdzsdzsdzsdzsdzsdzsó")}) {
      for (const Text& path : machine.files().all())
        if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
      start_numbering();
      machine.set_screen(width, height);
      put_settings(u"hosszrövid.ini", {u" 16 ", u" 4 "});
      auto& window = deal(word, u"o-ó", 1, 0, word == u"hajó" || word.front() == u'd' ? 1 : 16);
      for (const double far : {-100000.0, 100000.0}) {
        hand::press(gap(window), 5, 5);
        hand::move(gap(window), 5, far);
        hand::release(gap(window), 5, far);
        EXPECT_GE(window.lbl_felső.Top, window.kép.Top + window.kép.Height - 1);
        EXPECT_LE(window.lbl_alsó.Top + window.lbl_alsó.Height, window.cmd_kész.Top + 1);
      }
      EXPECT_GE(window.betű[0].Left, 0);
      const Label& last = window.betű[window.betű.count() - 1];
      EXPECT_LE(last.Left + last.Width, window.pic_eredmény[0].Left);
      end_session();
    }
  }
}

TEST_F(ShortLongTest, WordsOfOtherLengthsAndWithHyphensAreDrawnAgainAndNoneComesTwiceRunning) {
  put({{.név = u"dió"},
       {.név = u"hajó-út"},
       {.név = u"óriáskígyó"},
       {.név = u"hajó"},
       {.név = u"ajtó"},
       {.név = u"ó"}});
  put_settings(u"hosszrövid.ini", {u" 8 ", u" 4 "});
  start();
  const double pair = drawing(pair_index(load<dlg_hosszrövid>(), u"o-ó"), pairs);
  machine.script_random({pair, drawing(1, 2), record(0), record(1), record(2), record(3), 0.0});
  auto& window = open<frm_hosszrövid>();
  EXPECT_EQ(window.szó_index(), 3);
  machine.script_random({pair, drawing(1, 2), record(3), record(4), 0.0});
  window.beáll();
  EXPECT_EQ(window.szó_index(), 4);
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(ShortLongTest, OnlySelectedPairsAreDrawn) {
  put({{.név = u"hajó"}, {.név = u"ajtó"}, {.név = u"utolsó"}});
  start();
  auto& dialog = load<dlg_hosszrövid>();
  std::vector<bool> one(pairs, false);
  one[1] = true;
  dialog.lst_betűpár.set_selection(one);
  machine.script_random({drawing(0, pairs), drawing(32, pairs), drawing(1, pairs), drawing(1, 2), record(1), 0.0});
  EXPECT_EQ(row(open<frm_hosszrövid>()), "a|j|t|.");
}

TEST_F(ShortLongTest, APairWithoutAnyWordIsPassedOverForAnother) {
  put({{.név = u"hajó"}, {.név = u"utolsó"}});
  start();
  machine.script_random({drawing(pair_index(load<dlg_hosszrövid>(), u"gy-ny"), pairs), drawing(0, 2)});
  auto& window = open<frm_hosszrövid>();
  EXPECT_EQ(window.szó_index(), 0);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(ShortLongTest, TheOnlyWordOfALetterComesAgainOnceAnotherWasShown) {
  put_only({{.név = u"csikó"}, {.név = u"alma"}}, {.név = u"zseb"});
  start();
  const int o = pair_index(load<dlg_hosszrövid>(), u"o-ó");
  const int a = pair_index(load<dlg_hosszrövid>(), u"a-á");
  std::vector<bool> two(pairs, false);
  two[static_cast<std::size_t>(o)] = two[static_cast<std::size_t>(a)] = true;
  load<dlg_hosszrövid>().lst_betűpár.set_selection(two);
  machine.script_random({drawing(o, pairs), drawing(1, 2), record(0), 0.0});
  auto& window = open<frm_hosszrövid>();
  // No other word has an "ó": the draw goes through them all, then takes the next letter.
  machine.script_random({drawing(o, pairs), drawing(1, 2)});
  while (window.szó_index() == 0) window.beáll();
  machine.script_random({drawing(o, pairs), drawing(1, 2), record(0), 0.0});
  window.beáll();
  EXPECT_EQ(window.szó_index(), 0);
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(ShortLongTest, AWordWhoseSyllablesCutTheLetterIsPassedOverWhereSyllablesAreShown) {
  put_only({{.név = u"malacsült", .szótagolt = u"ma-lac-sült"}, {.név = u"kocsi", .szótagolt = u"ko-csi"}});
  EXPECT_EQ(row_behind_the_first_word(u"c-cs", 1), "k|o|-|.|i");
}

TEST_F(ShortLongTest, AWordThatHoldsTheLetterInItsSyllablesAloneIsPassedOver) {
  put_only({{.név = u"asszony", .szótagolt = u"asz-szony"}, {.név = u"asztal", .szótagolt = u"asz-tal"}});
  EXPECT_EQ(row_behind_the_first_word(u"sz-s", 0), "a|.|-|t|a|l");
}

// The slider.

TEST_F(ShortLongTest, TheSliderFollowsThePointerExactlyAndSnapsAtNothing) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double line = window.line_top();
  Label& slider = gap(window);
  hand::press(slider, 7, 50);
  for (const double to : {-13.0, -101.0, 88.0, 1.0}) {
    hand::move(slider, 7, line + 50 + to - slider.Top);
    expect_column(window, line + to);
  }
  hand::release(slider, 7, 50);
  expect_column(window, line + 1);
}

TEST_F(ShortLongTest, AtEitherEndItStopsAndThePointerComesBackToItsPlace) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double line = window.line_top();
  Label& slider = gap(window);
  const double height = slider.Height;
  hand::press(slider, 7, 50);
  hand::move(slider, 7, line + 50 - 3 * height - slider.Top);
  expect_column(window, line - height);
  hand::move(slider, 7, line + 50 + 3 * height - slider.Top);
  expect_column(window, line + height);
  hand::move(slider, 7, line + 50 + height / 2 - slider.Top);
  expect_column(window, line + height / 2);
}

TEST_F(ShortLongTest, EachLetterOfTheColumnCanBeTaken) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double line = window.line_top();
  hand::drag(window.lbl_alsó, 0, -200);
  expect_column(window, line - 200);
  hand::drag(window.lbl_felső, 0, 150);
  expect_column(window, line - 50);
}

TEST_F(ShortLongTest, OnlyTheLeftButtonAndOnlyTheColumnSlide) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double line = window.line_top();
  Label& slider = gap(window);
  hand::press(slider, 7, 50, MouseButton::Right);
  hand::move(slider, 7, 150, MouseButton::Right);
  hand::release(slider, 7, 150, MouseButton::Right);
  hand::move(slider, 7, 150);
  hand::drag(window.betű[0], 0, 100);
  expect_column(window, line);
}

TEST_F(ShortLongTest, AClickOnALetterPutsItIntoTheLine) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double line = window.line_top();
  hand::click(window.lbl_alsó);
  EXPECT_NEAR(window.lbl_alsó.Top, line, 1e-6);
  hand::click(window.lbl_felső);
  EXPECT_NEAR(window.lbl_felső.Top, line, 1e-6);
}

TEST_F(ShortLongTest, AKeyIsHeardBehindASlide) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  hand::drag(gap(window), 0, 200);
  window.set_focus(&window.lbl_alsó);
  hand::key(window, key::space);
  EXPECT_NEAR(window.lbl_alsó.Top, window.line_top(), 1e-6);
  // Held beyond the end, where the pointer leaves the letter.
  hand::press(window.lbl_felső, 5, 5);
  hand::move(window.lbl_felső, 5, -5000);
  hand::release(window.lbl_felső, 5, -5000);
  hand::key(window, key::space);
  EXPECT_NEAR(window.lbl_felső.Top, window.line_top(), 1e-6);
}

// A finger is broader than an "i", and a press on the background would take the word away.
TEST_F(ShortLongTest, APressBesideTheColumnTakesTheColumn) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double line = window.line_top();
  const double beside = gap(window).Left + gap(window).Width + 75;
  const auto drag = [&](double y, double way) {
    input::mouse_down(window, {MouseButton::Left, 0, beside, y});
    input::mouse_move(window, {MouseButton::Left, 0, beside, y + way});
    input::mouse_up(window, {MouseButton::Left, 0, beside, y + way});
  };
  drag(line + 100, -150);
  expect_column(window, line - 150);
  drag(window.lbl_felső.Top + 10, 90);
  expect_column(window, line - 60);
  hand::click_at(window, beside, window.lbl_alsó.Top + 10);
  EXPECT_NEAR(window.lbl_alsó.Top, line, 1e-6);
  EXPECT_EQ(window.szó_index(), 0);
  hand::click_at(window, gap(window).Left + gap(window).Width + 800, line + 10);
  EXPECT_EQ(window.szó_index(), 1) << "farther off it is the background";
}

TEST_F(ShortLongTest, ArrowsSlideByEvenStepsThatScaleWithTheWindow) {
  const auto step_on = [this](int width, int height) {
    machine.set_screen(width, height);
    auto& window = deal(u"hajó", u"o-ó", 1);
    const double line = window.line_top();
    hand::key(window, key::down);
    const double step = gap(window).Top - line;
    hand::key(window, key::down);
    EXPECT_NEAR(gap(window).Top - line, 2 * step, 1e-6);
    hand::key(window, key::up);
    hand::key(window, key::up);
    hand::key(window, key::up);
    EXPECT_NEAR(gap(window).Top - line, -step, 1e-6);
    EXPECT_NEAR(step, 20 * window.kép.Height / 2580, 1e-6);
    for (int i = 0; i < 100; ++i) hand::key(window, key::up);
    EXPECT_NEAR(gap(window).Top, line - gap(window).Height, 1e-6);
    end_session();
    start_numbering();
    return step;
  };
  EXPECT_GT(step_on(1920, 1200), step_on(1024, 600));
}

// The answer.

TEST_F(ShortLongTest, TheLowerLetterIsTakenOnlyAboveHalfAHeight) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const double half = gap(window).Height / 2;
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), bad_sound) << "untouched it is the upper one";
  hand::drag(gap(window), 0, -std::floor(half));
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + bad_sound);
  hand::drag(gap(window), 0, half);
  hand::drag(gap(window), 0, half);
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + bad_sound) << "pulled down it is the upper one too";
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  hand::click(window.lbl_felső);
  hand::click(window.lbl_alsó);
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "hajó");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(0));
  EXPECT_EQ(window.szó_index(), 1) << "the next word";
}

TEST_F(ShortLongTest, WithSyllablesTheHyphensAreLettersAndTheSyllabifiedFormIsRight) {
  put_settings(u"hosszrövid.ini", {u" 10 ", u" 4 ", u" 1 "});
  auto& window = deal(u"hajó", u"o-ó", 1, 0, 1, u"ha-jó");
  EXPECT_EQ(row(window), "h|a|-|j|.");
  hand::click(window.lbl_alsó);
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "hajó");
}

TEST_F(ShortLongTest, NameAndSyllablesAreBothRightWhateverIsShownNext) {
  auto& window = deal(u"hajó", u"o-ó", 1, 0, 1, u"ha-jó");
  // Without a file the box stays as it was left.
  const auto turn_over_syllables = [&] {
    in_dialog(window, [](dlg_hosszrövid& d) {
      hand::click(d.Chk_szótagolva);
      hand::click(d.CancelButton);
    });
  };
  turn_over_syllables();
  hand::click(window.lbl_alsó);
  const int pair = pair_index(load<dlg_hosszrövid>(), u"u-ú");
  machine.script_random({0.0, drawing(pair, pairs), drawing(0, 2), record(1), 0.0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "hajó");
  EXPECT_EQ(row(window), "k|.|-|ty|a");
  turn_over_syllables();
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[1].Caption), "kutya");
}

TEST_F(ShortLongTest, AClickOnTheBackgroundIsANewWordWithoutSoundOrCount) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  hand::click_at(window, window.cmd_kész.Left - 20, window.inner_height() - 20);
  EXPECT_EQ(window.szó_index(), 1);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(ShortLongTest, TheSixthWordIsCongratulatedAndThePanelIsEmptied) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  const auto solve = [&] {
    hand::click(window.lbl_felső.Caption == window.kivett_betű() ? window.lbl_felső : window.lbl_alsó);
    hand::click(window.cmd_kész);
  };
  for (int i = 0; i < 5; ++i) solve();
  EXPECT_EQ(congratulations, 0);
  EXPECT_NE(utf8(window.lbl_eredmény[4].Caption), "");
  then_close_congratulation();
  solve();
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
}

TEST_F(ShortLongTest, IsPlayedByKeysAlone) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  for (int i = 0; i < 3 && window.focus() != &window.lbl_alsó; ++i) hand::key(window, key::tab);
  ASSERT_EQ(window.focus(), &window.lbl_alsó);
  hand::key(window, key::space);
  hand::key(window, key::enter);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "hajó");
}

TEST_F(ShortLongTest, WhereNothingFitsTheWindowStaysTellsWhyAndTheSettingsHelp) {
  put({{.név = u"hajó"}, {.név = u"utolsó"}});
  put_settings(u"hosszrövid.ini", {u" 16 ", u" 12 "});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_hosszrövid>();
  EXPECT_EQ(message, "Nincs elég ilyen szavunk.\r\nKérlek, jelölj ki a beállításokban több betűpárt, vagy engedj meg "
                     "rövidebb vagy hosszabb szavakat is!");
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_FALSE(window.lbl_felső.Visible);
  hand::click(window.cmd_kész);
  hand::key(window, key::up);
  EXPECT_EQ(commands(), "");
  in_dialog(window, [](dlg_hosszrövid& dialog) {
    dialog.ud_minbetűszám.set_value(4);
    hand::click(dialog.OKButton);
  });
  EXPECT_EQ(window.szó_index(), 0);
  EXPECT_TRUE(window.lbl_felső.Visible);
}

TEST_F(ShortLongTest, ClosingUnloadsTheDialogHoweverItIsClosed) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  hand::close(window);
  EXPECT_FALSE(session().loaded<frm_hosszrövid>());
  EXPECT_FALSE(session().loaded<dlg_hosszrövid>());
}

TEST_F(ShortLongTest, HelpOpensItsPage) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("Rövid-hosszú - A feladat.mht"));
}

// The settings.

TEST_F(ShortLongTest, TheDialogHasItsTextsRangesAndPairs) {
  start();
  auto& d = load<dlg_hosszrövid>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Rövid-hosszú");
  EXPECT_EQ(utf8(d.Chk_szótagolva.Caption), "Szavak megjelenítése szótagolva");
  EXPECT_EQ(utf8(d.cmd_rövid_hosszú.Caption), "Rövid-hosszú magánhangzópárok kijelölése");
  EXPECT_EQ(utf8(d.cmd_hangváltoó_ékezet.Caption), "Hangváltó ékezetes magánhangzópárok kijelölése");
  EXPECT_EQ(utf8(d.cmd_mássalhangzó.Caption), "Mássalhangzópárok kijelölése");
  EXPECT_EQ(utf8(d.cmd_kijelöléstörlés.Caption), "Minden kijelölés törlése");
  expect_fresh_lengths(d);
  expect_lengths_to_limit_each_other(d);
  EXPECT_EQ(d.Chk_szótagolva.value(), 0);
  EXPECT_EQ(d.lst_betűpár.selected_count(), pairs);
  Text all;
  for (const Text& pair : d.lst_betűpár.Items) all += pair + u" ";
  EXPECT_EQ(utf8(all), "i-í o-ó ö-ő u-ú ü-ű a-á e-é o-ö ó-ő u-ü ú-ű b-p b-d c-cs f-v g-gy h-d k-g j-ly l-ly m-n ö-ü "
                       "ő-ű r-v r-h sz-s sz-z zs-s zs-z t-d ty-gy ty-ny gy-ny ");
}

TEST_F(ShortLongTest, TheButtonsSelectStretchesThatAddUpAndOkNeedsAPair) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  in_dialog(window, [](dlg_hosszrövid& d) {
    const auto selected = [&] { return selected_pairs(d); };
    hand::click(d.cmd_kijelöléstörlés);
    EXPECT_EQ(selected(), std::set<int>());
    EXPECT_FALSE(d.OKButton.Enabled);
    hand::click(d.cmd_rövid_hosszú);
    EXPECT_EQ(selected(), (std::set<int>{0, 1, 2, 3, 4}));
    EXPECT_TRUE(d.OKButton.Enabled);
    hand::click(d.cmd_hangváltoó_ékezet);
    EXPECT_EQ(selected(), (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    hand::click(d.cmd_kijelöléstörlés);
    hand::click(d.cmd_mássalhangzó);
    EXPECT_EQ(selected().size(), 22U);
    EXPECT_EQ(*selected().begin(), 11);
    hand::click(d.cmd_kijelöléstörlés);
    hand::select(d.lst_betűpár, 7);
    EXPECT_EQ(selected(), std::set<int>{7});
    EXPECT_TRUE(d.OKButton.Enabled);
    hand::click(d.CancelButton);
  });
}

TEST_F(ShortLongTest, TheListTakesSeveralByFingerShiftCtrlAndSpace) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  in_dialog(window, [](dlg_hosszrövid& d) {
    const auto selected = [&] { return selected_pairs(d); };
    hand::click(d.cmd_kijelöléstörlés);
    hand::select(d.lst_betűpár, 2);
    hand::select(d.lst_betűpár, 5, shift::shift);
    EXPECT_EQ(selected(), (std::set<int>{2, 3, 4, 5}));
    hand::select(d.lst_betűpár, 30, shift::control);
    hand::select(d.lst_betűpár, 3, shift::control);
    EXPECT_EQ(selected(), (std::set<int>{2, 4, 5, 30}));
    d.set_focus(&d.lst_betűpár);
    hand::key(d, key::down);
    hand::key(d, key::space);
    EXPECT_EQ(selected(), (std::set<int>{2, 5, 30}));
    EXPECT_TRUE(d.OKButton.Enabled);
    for (const int rest : {2, 5, 30}) hand::select(d.lst_betűpár, rest);
    EXPECT_FALSE(d.OKButton.Enabled);
    hand::click(d.CancelButton);
  });
}

TEST_F(ShortLongTest, OkWritesTheLongestTheShortestTheSyllablesAndThirtyThreeWords) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  in_dialog(window, [](dlg_hosszrövid& d) {
    d.ud_maxbetűszám.set_value(9);
    d.ud_minbetűszám.set_value(5);
    d.ud_minbetűszám.set_value(4);
    d.Chk_szótagolva.set_value(1);
    hand::click(d.cmd_kijelöléstörlés);
    hand::select(d.lst_betűpár, 1);
    hand::select(d.lst_betűpár, 3);
    hand::click(d.OKButton);
  });
  std::string expected = " 9 \r\n 4 \r\n 1 \r\n";
  for (int i = 0; i < pairs; ++i) expected += i == 1 || i == 3 ? "True\r\n" : "False\r\n";
  EXPECT_EQ(settings(u"hosszrövid.ini"), expected);
  EXPECT_EQ(row(window), "k|.|-|ty|a");
}

TEST_F(ShortLongTest, AFileWithoutAnySelectedPairSelectsAll) {
  put_settings(u"hosszrövid.ini", {u" 9 ", u" 5 ", u" 1 ", u"False", u"True"});
  start();
  EXPECT_EQ(load<dlg_hosszrövid>().lst_betűpár.selected_count(), 1);
  end_session();
  put_settings(u"hosszrövid.ini", {u" 9 ", u" 5 ", u" 1 ", u"False", u"False"});
  start();
  auto& d = load<dlg_hosszrövid>();
  EXPECT_EQ(d.ud_maxbetűszám.value(), 9);
  EXPECT_EQ(d.ud_minbetűszám.value(), 5);
  EXPECT_EQ(d.Chk_szótagolva.value(), 1);
  EXPECT_EQ(d.lst_betűpár.selected_count(), pairs);
  EXPECT_TRUE(d.OKButton.Enabled);
}

TEST_F(ShortLongTest, TheHelpOfTheDialogOpensItsPage) {
  auto& window = deal(u"hajó", u"o-ó", 1);
  in_dialog(window, [](dlg_hosszrövid& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(help_page(), help_command("Rövid-hosszú - beállítások.mht"));
}

} // namespace
} // namespace cserko
