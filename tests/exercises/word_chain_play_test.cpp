// Word chain: help, the solution, moving the row, the judgement, closing, and deals that fail.
#include "tests/exercises/word_chain_fixture.h"

namespace cserko {
namespace {

using WordChainPlay = WordChainTest;

// --- Help

TEST_F(WordChainPlay, TheRightButtonTellsWhatAPictureIs) {
  put_chain();
  auto& window = deal({.help = false});
  then_note_hint();
  hand::click(pool(window, 1), MouseButton::Right);
  EXPECT_EQ(told, std::vector<std::string>{"becica " + picture_path(1)});
  drag(window, 2, 0);
  then_note_hint();
  hand::click(window.pic_eredménykép[0], MouseButton::Right);
  EXPECT_EQ(told.back(), "cado " + picture_path(2));
  EXPECT_EQ(row(window)[0], "2") << "it stays";
  hand::click(window.pic_eredménykép[1], MouseButton::Right);
  EXPECT_EQ(told.size(), 2U) << "an empty place tells nothing";
}

TEST_F(WordChainPlay, ThePoolTellsSyllablesWhereTheyAreShownAndTheRowNeverDoes) {
  put_chain();
  auto& window = deal({.syllables = true});
  then_note_hint();
  hand::click(pool(window, 1), MouseButton::Right);
  drag(window, 1, 0);
  then_note_hint();
  hand::click(window.pic_eredménykép[0], MouseButton::Right);
  EXPECT_EQ(told, (std::vector<std::string>{"be-ci-ca " + picture_path(1), "becica " + picture_path(1)}));
}

TEST_F(WordChainPlay, SAsksWhatThePictureIsThatHasTheFocus) {
  put_chain();
  auto& window = deal();
  then_note_hint();
  window.set_focus(&pool(window, 3));
  hand::key(window, 'S');
  drag(window, 3, 6);
  then_note_hint();
  window.set_focus(&window.pic_eredménykép[6]);
  hand::key(window, 'S');
  EXPECT_EQ(told, std::vector<std::string>(2, "dofu " + picture_path(3)));
  window.set_focus(&window.pic_eredménykép[5]);
  hand::key(window, 'S');
}

TEST_F(WordChainPlay, ARightPressEndsADrag) {
  put_chain();
  auto& window = deal();
  PictureBox& source = pool(window, 1);
  hand::press(source, 20, 20);
  hand::move(source, 900, 700);
  then_in<üzenet>([](üzenet& panel) { hand::click(panel.Command1); });
  hand::press(source, 900, 700, MouseButton::Right);
  EXPECT_FALSE(window.dragged.Visible);
  hand::move(source, 1200, 900);
  EXPECT_FALSE(window.dragged.Visible);
}

// --- The solution

TEST_F(WordChainPlay, TheQuestionMarkShowsTheSolutionAndSoundsTheAlarm) {
  put_chain();
  auto& window = deal();
  load<frm_hangbeáll>().chk_hangjelzés_segítségkérés.set_value(1);
  forget_commands();
  then_in<frm_szólánc_segítő>([&](frm_szólánc_segítő& shown) {
    EXPECT_EQ(tags(shown.pic_eredménykép), row_of({0, 1, 2, 3, 4, 5, 6}));
    for (int i = 0; i < 7; ++i) EXPECT_EQ(picture(shown.pic_eredménykép[i]), picture_path(i));
    hand::click(shown.cmd_ok);
  });
  hand::click(window.cmd_kérdőjel);
  EXPECT_EQ(begun(u"alarm.wav"), 1);
  // Closed by its own control it is hidden as well, and shows the same again.
  for (int i = 0; i < 2; ++i) {
    then_in<frm_szólánc_segítő>([&](frm_szólánc_segítő& shown) {
      EXPECT_EQ(picture(shown.pic_eredménykép[6]), picture_path(6));
      hand::close(shown);
    });
    hand::click(window.cmd_kérdőjel);
  }
}

TEST_F(WordChainPlay, WithoutHelpTheQuestionMarkRests) {
  put_chain();
  EXPECT_FALSE(deal({.help = false}).cmd_kérdőjel.Enabled);
}

TEST_F(WordChainPlay, TheSolutionLiesInOneRowAsThePlacesDo) {
  put_chain();
  auto& window = deal();
  auto& shown = load<frm_szólánc_segítő>();
  expect_scaled(shown, 0.9, u"cmd_ok");
  const double scale = shown.pic_eredménykép[0].Width / window.pic_eredménykép[0].Width;
  for (int i = 1; i < 7; ++i) {
    EXPECT_EQ(shown.pic_eredménykép[i].Top, shown.pic_eredménykép[0].Top);
    EXPECT_NEAR(shown.pic_eredménykép[i].Left - shown.pic_eredménykép[0].Left,
                scale * (window.pic_eredménykép[i].Left - window.pic_eredménykép[0].Left), 1);
  }
}

// --- Moving the row

TEST_F(WordChainPlay, TheRowMovesToTheLeftAndTheFirstWordFallsBack) {
  put_chain();
  auto& window = deal();
  for (const auto& [record, place] : {std::pair{4, 0}, {1, 1}, {2, 6}}) drag(window, record, place);
  hand::click(window.cmd_elcsúsztat[0]);
  EXPECT_EQ(row(window), row_of({1, -1, -1, -1, -1, 2, -1}));
  EXPECT_TRUE(pool(window, 4).Visible);
  EXPECT_EQ(picture(window.pic_eredménykép[0]), picture_path(1));
  EXPECT_EQ(picture(window.pic_eredménykép[1]), "(none)");
  EXPECT_EQ(picture(window.pic_eredménykép[5]), picture_path(2));
  EXPECT_EQ(picture(window.pic_eredménykép[6]), "(none)");
}

TEST_F(WordChainPlay, TheRowMovesToTheRightAndTheLastWordFallsBack) {
  put_chain();
  auto& window = deal();
  for (const auto& [record, place] : {std::pair{4, 0}, {1, 5}, {2, 6}}) drag(window, record, place);
  hand::click(window.cmd_elcsúsztat[1]);
  EXPECT_EQ(row(window), row_of({-1, 4, -1, -1, -1, -1, 1}));
  EXPECT_TRUE(pool(window, 2).Visible);
  EXPECT_EQ(picture(window.pic_eredménykép[0]), "(none)");
  EXPECT_EQ(picture(window.pic_eredménykép[6]), picture_path(1));
}

// --- The judgement

TEST_F(WordChainPlay, TheWholeChainIsPraisedAndTheNextGameDealt) {
  put_chain();
  auto& window = deal();
  for (int i = 0; i < 6; ++i) {
    drag(window, i, i);
    EXPECT_FALSE(window.lánc_ellenőrzés());
  }
  seen_at_congratulation = [&] { EXPECT_TRUE(window.lánc_ellenőrzés()); };
  then_close_congratulation();
  drag(window, 6, 6);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
  for (int i = 0; i < 7; ++i) EXPECT_TRUE(window.kép[i].Visible);
}

TEST_F(WordChainPlay, AFullRowOfOtherWordsOrInAnotherOrderIsNoChain) {
  put_chain();
  auto& window = deal();
  for (const auto& [record, place] : {std::pair{0, 0}, {2, 1}, {1, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}})
    drag(window, record, place);
  EXPECT_FALSE(window.lánc_ellenőrzés());
  EXPECT_EQ(congratulations, 0);
  for (const int place : {1, 2}) hand::click(window.pic_eredménykép[place]);
  drag(window, 1, 1);
  EXPECT_EQ(congratulations, 0);
  then_close_congratulation();
  drag(window, 2, 2);
  EXPECT_EQ(congratulations, 1);
}

TEST_F(WordChainPlay, AnyOtherTrueChainWins) {
  put_chain();
  // Ends and begins as the last word does.
  put({.név = u"héka", .szótagolt = u"hé-ka"});
  put({.név = u"vége", .szótagolt = u"vége"});
  start();
  put_settings_of({.pictures = 14});
  auto& window = [&]() -> frm_szólánc& {
    machine.set_seed(5);
    load<frm_szólánc_beállítások>().ud_képekszáma.set_value(7);
    load<frm_szólánc_beállítások>().chk_kezdőszó_felfedése.set_value(0);
    script_chain();
    script_shuffle();
    return open<frm_szólánc>();
  }();
  for (int i = 0; i < 6; ++i) drag(window, i, i);
  // A picture that was not searched for lies in the pool.
  PictureBox& last = pool(window, 6);
  last.Tag = u"8";
  then_close_congratulation();
  drag(window, 8, 6);
  EXPECT_EQ(congratulations, 1);
}

TEST_F(WordChainPlay, TwoLettersMatchWithTheirDigraphs) {
  for (const TextView name : {u"kúsz", u"úszog", u"ogab", u"abce", u"cefi", u"fijo", u"jola"})
    put({.név = Text(name), .szótagolt = Text(name)});
  put({.név = u"utolsó"});
  auto& window = deal({.type = 1});
  for (int i = 0; i < 6; ++i) drag(window, i, i);
  then_close_congratulation();
  drag(window, 6, 6);
  EXPECT_EQ(congratulations, 1);
}

TEST_F(WordChainPlay, TheSettingsOfTheDealHoldUntilTheNextOne) {
  put_chain(10);
  put_settings_of({.pictures = 14});
  start();
  auto& window = open<frm_szólánc>();
  auto& settings = load<frm_szólánc_beállítások>();
  for (int place = 0; place < 7; ++place) {
    const int shown = [&] {
      for (int i = 13; i >= 0; --i)
        if (window.kép[i].Visible) return std::stoi(utf8(window.kép[i].Tag));
      return -1;
    }();
    if (place < 6) drag(window, shown, place);
  }
  // There is no file to read again: the controls keep what was changed.
  machine.files().take(Text(user_folder) + u"szólánc.ini");
  then_in<frm_szólánc_beállítások>([](frm_szólánc_beállítások& dialog) {
    dialog.opt_típus.choose(2);
    dialog.ud_képekszáma.set_value(7);
    hand::click(dialog.CancelButton);
  });
  hand::click(window.mnu_fájl_beállítások);
  EXPECT_EQ(settings.ud_képekszáma.value(), 7);
  EXPECT_EQ(window.rule(), ChainRule::Syllable);
  for (int place = 0; place < 6; ++place) hand::click(window.pic_eredménykép[place]);
  for (int i = 0; i < 14; ++i) EXPECT_TRUE(window.kép[i].Visible) << i;
}

// --- Closing, and deals that fail

TEST_F(WordChainPlay, TheMenuAndTheCloseControlTakeSettingsAndSolutionWithThem) {
  put_chain();
  auto& window = deal();
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_szólánc>());
  EXPECT_FALSE(session().loaded<frm_szólánc_beállítások>());
  EXPECT_FALSE(session().loaded<frm_szólánc_segítő>());
  hand::close(open<frm_szólánc>());
  EXPECT_FALSE(session().loaded<frm_szólánc>());
  EXPECT_FALSE(session().loaded<frm_szólánc_beállítások>());
  EXPECT_FALSE(session().loaded<frm_szólánc_segítő>());
}

TEST_F(WordChainPlay, HelpOpensItsPage) {
  put_chain();
  auto& window = deal();
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("Szólánc  - A feladat.mht"));
}

TEST_F(WordChainPlay, WithoutAChainItOpensEmptyAndSaysWhy) {
  put({{.név = u"alma", .szótagolt = u"al-ma"}, {.név = u"körte", .szótagolt = u"kör-te"}, {.név = u"utolsó"}});
  start();
  then_close_message();
  auto& window = open<frm_szólánc>();
  EXPECT_EQ(message, "Ezekkel a beállításokkal nem találtam hét szóból álló láncot.\r\nKérlek, engedj meg a "
                     "beállításokban hosszabb szavakat, vagy válassz másik típust!");
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_TRUE(window.frame_szólánc.Visible);
  EXPECT_FALSE(window.cmd_kérdőjel.Enabled);
  EXPECT_EQ(window.Pointer, MousePointer::Arrow);
  window.kép.each([](const PictureBox& box) { EXPECT_FALSE(box.Visible); });
  for (int i = 0; i < 7; ++i) hand::click(window.pic_eredménykép[i]);
  for (const int direction : {0, 1}) hand::click(window.cmd_elcsúsztat[direction]);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
}

TEST_F(WordChainPlay, ADealThatFailsLeavesNothingOfTheGameBefore) {
  put_chain();
  auto& window = deal({.first_shown = true});
  drag(window, 1, 1);
  hand::click(pool(window, 2));
  auto& settings = load<frm_szólánc_beállítások>();
  settings.ud_képekszáma.set_value(14);
  then_close_message();
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_EQ(message, "Kevés ilyen rövid szavunk van ennyi képhez.\r\nKérlek, kérj a beállításokban kevesebb képet, "
                     "vagy engedj meg hosszabb szavakat!");
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_FALSE(window.chosen());
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
  EXPECT_EQ(pictures(window.pic_eredménykép), no_pictures(7));
  EXPECT_EQ(pictures(load<frm_szólánc_segítő>().pic_eredménykép), no_pictures(7));
  window.kép.each([](const PictureBox& box) {
    EXPECT_FALSE(box.Visible);
    EXPECT_EQ(utf8(box.Tag), "-1");
  });
  settings.ud_képekszáma.set_value(7);
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_EQ(row(window)[0], "0");
  EXPECT_TRUE(window.cmd_kérdőjel.Enabled);
}

} // namespace
} // namespace cserko
