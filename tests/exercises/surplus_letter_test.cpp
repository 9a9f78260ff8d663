// Surplus letter: its window, the letter that comes in, what the clicks do, the two seconds behind the right one.
#include "tests/exercises/surplus_letter_fixture.h"

namespace cserko {
namespace {

class SurplusLetterTest : public SurplusLetterFixture {};

// The window.

TEST_F(SurplusLetterTest, HasItsTextsMenuAndPlaces) {
  start();
  const auto w = designed<frm_betűfelesleg>();
  EXPECT_EQ(utf8(w->Caption), "Cserkó - Betűfelesleg");
  EXPECT_EQ(utf8(w->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(w->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(w->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(w->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(w->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(w->pic_kép.Width, 5655);
  EXPECT_EQ(w->pic_kép.Height, 5655);
  EXPECT_EQ(places_of(w->pic_eredmény), (std::vector<Rect>{{5880, 840, 1575, 1575},
                                                           {7560, 840, 1575, 1575},
                                                           {5880, 2760, 1575, 1575},
                                                           {7560, 2760, 1575, 1575},
                                                           {5880, 4680, 1575, 1575},
                                                           {7560, 4680, 1575, 1575}}));
  EXPECT_EQ(places_of(w->lbl_eredmény), (std::vector<Rect>{{5880, 2400, 1575, 255},
                                                           {7560, 2400, 1575, 255},
                                                           {5880, 4320, 1575, 255},
                                                           {7560, 4320, 1575, 255},
                                                           {5880, 6240, 1575, 255},
                                                           {7560, 6240, 1575, 255}}));
  EXPECT_EQ(w->Timer1.Interval, 1000);
  EXPECT_FALSE(w->Timer1.Enabled);
}

TEST_F(SurplusLetterTest, TheInstructionStandsOverThePictureAndThePictureRightUnderIt) {
  const auto& w = deal();
  expect_scaled(w, 0.9, u"pic_eredmény");
  EXPECT_EQ(utf8(w.lbl_feladat.Caption), "Keresd meg a szóban a felesleges betűt és kattints rá!");
  EXPECT_EQ(w.lbl_feladat.Left, w.pic_kép.Left);
  const Size text = machine.measure(w.lbl_feladat.Font, w.lbl_feladat.Caption);
  EXPECT_EQ(w.lbl_feladat.Width, text.width);
  EXPECT_EQ(w.lbl_feladat.Height, text.height);
  EXPECT_GT(text.width, 0.9 * w.pic_kép.Width);
  EXPECT_LE(text.width, w.pic_kép.Width);
  EXPECT_DOUBLE_EQ(w.pic_kép.Top, w.lbl_feladat.Top + w.lbl_feladat.Height);
  EXPECT_DOUBLE_EQ(w.pic_kép.Top, w.pic_eredmény[0].Top);
}

TEST_F(SurplusLetterTest, TheLettersAreAsLargeAsTheSampleWordAllowsWhateverTheWord) {
  const auto& w = deal();
  Font smaller = w.lbl_betű[0].Font;
  EXPECT_GT(machine.measure(smaller, u"markológép-kezelő").width, 0.9 * w.pic_kép.Width);
  smaller.size -= 1;
  EXPECT_LE(machine.measure(smaller, u"markológép-kezelő").width, 0.9 * w.pic_kép.Width);
  w.lbl_betű.each([&](const Label& letter) { EXPECT_EQ(letter.Font, w.lbl_betű[0].Font); });
}

TEST_F(SurplusLetterTest, TheRowStandsCentredUnderThePictureAndEndsTheWindow) {
  const auto& w = deal();
  const double width = machine.measure(w.lbl_betű[0].Font, u"aszrtal").width;
  EXPECT_DOUBLE_EQ(w.lbl_betű[0].Left, w.pic_kép.Left + w.pic_kép.Width / 2 - width / 2);
  EXPECT_DOUBLE_EQ(w.lbl_betű[0].Top, w.pic_kép.Top + w.pic_kép.Height + 50);
  for (int i = 1; i < w.lbl_betű.count(); ++i) {
    EXPECT_DOUBLE_EQ(w.lbl_betű[i].Left, w.lbl_betű[i - 1].Left + w.lbl_betű[i - 1].Width);
    EXPECT_EQ(w.lbl_betű[i].Top, w.lbl_betű[0].Top);
    EXPECT_TRUE(w.lbl_betű[i].Visible);
  }
  const double bottom = w.lbl_betű[0].Top + w.lbl_betű[0].Height;
  EXPECT_GE(w.Height, bottom + 800);
  EXPECT_GE(w.inner_height(), bottom + 60);
  EXPECT_LE(w.Height, machine.screen_size().height);
  EXPECT_DOUBLE_EQ(w.Top + w.Height / 2, machine.screen_size().height / 2);
}

TEST_F(SurplusLetterTest, FitsTheSmallestScreen) {
  machine.set_screen(1024, 600);
  const auto& w = deal();
  EXPECT_GE(w.Top, 0);
  EXPECT_LE(w.Width, machine.screen_size().width);
  EXPECT_LE(w.lbl_betű[0].Top + w.lbl_betű[0].Height, w.inner_height());
  w.pic_eredmény.each([&](const PictureBox& box) { EXPECT_LE(box.Left + box.Width, w.inner_width()); });
}

// Words longer than the sample.

class LongWordTest : public SurplusLetterFixture {
 protected:
  frm_betűfelesleg& deal_word(const Text& word) {
    for (const Text& path : machine.files().all()) {
      if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
    }
    start_numbering();
    put({{.név = word}, {.név = u"alma"}, {.név = u"utolsó"}});
    put_settings(u"betfelesleg.ini", {u" 13 ", u"True", u"False"});
    start();
    machine.script_random({record(0), 0.5, 0.5});
    return open_exercise();
  }
  static void expect_inside(const frm_betűfelesleg& window) {
    window.lbl_betű.each([&](const Label& letter) {
      EXPECT_GE(letter.Left, 100) << letter.Index;
      EXPECT_LE(letter.Left + letter.Width, window.inner_width() - 100) << letter.Index;
      EXPECT_GE(letter.Top, window.lbl_eredmény[5].Top + window.lbl_eredmény[5].Height);
    });
  }
};

TEST_F(LongWordTest, AWordWiderThanThePictureStaysInTheWindowAtItsSize) {
  const auto& usual = deal();
  const double size = usual.lbl_betű[0].Font.size;
  end_session();
  const auto& window = deal_word(u"szaggyszonyszelly szam"); // thirteen letters of up to three characters
  EXPECT_GT(machine.measure(window.lbl_betű[0].Font, window.pic_kép.Tag).width, window.pic_kép.Width);
  EXPECT_EQ(window.lbl_betű[0].Font.size, size);
  expect_inside(window);
}

TEST_F(LongWordTest, AWordWiderThanTheWindowTakesSmallerLettersAndTheNextOneTheOldOnes) {
  auto& window = deal_word(u"nnyccsggyllyttyzzsssznnyccsggyllyttyzzs"); // thirteen again
  expect_inside(window);
  EXPECT_LT(machine.measure(window.lbl_betű[0].Font, u"markológép-kezelő").width, 0.9 * window.pic_kép.Width);
  machine.script_random({record(1), 0.5, 0.5});
  window.beáll();
  EXPECT_GT(machine.measure(window.lbl_betű[0].Font, u"markológép-kezelő").width, 0.9 * window.pic_kép.Width);
}

// The letter that comes in.

TEST_F(SurplusLetterTest, ALetterOfTheWholeAlphabetStandsBeforeTheDrawnPlace) {
  const auto& w = deal();
  EXPECT_EQ(row(w), "a|sz|r|t|a|l");
  EXPECT_EQ(culprit(w), 2);
  w.lbl_betű.each(
      [](const Label& letter) { EXPECT_EQ(letter.Tag, letter.Index == 2 ? frm_betűfelesleg::culprit : u""); });
  EXPECT_EQ(utf8(w.pic_kép.Tag), "asztal");
  EXPECT_EQ(picture(w.pic_kép), picture_path(0));
  EXPECT_EQ(w.aktuális_kép(), 0);
  EXPECT_EQ(w.lépés(), 0);
  EXPECT_EQ(colors(w), "......");
}

TEST_F(SurplusLetterTest, TheAlphabetHasItsDigraphsAsSingleLetters) {
  const std::vector<std::string> letters{"cs", "gy", "ly", "ny", "sz", "ty", "zs", "e", "r", "t", "z", "u", "i",
                                         "o",  "p",  "ő",  "ú",  "ó",  "ü",  "ö",  "ű", "á", "é", "l", "k", "j",
                                         "h",  "g",  "f",  "d",  "s",  "a",  "c",  "v", "b", "n", "m", "í"};
  ASSERT_EQ(letters.size(), static_cast<std::size_t>(alphabet));
  start();
  auto& w = open_exercise();
  for (int i = 0; i < alphabet; ++i) {
    script(0, i, alphabet, 1, 5);
    w.beáll();
    EXPECT_EQ(utf8(w.lbl_betű[1].Caption), letters[static_cast<std::size_t>(i)]);
  }
}

TEST_F(SurplusLetterTest, TheLetterCanComeFromTheWordItself) {
  put_settings(u"betfelesleg.ini", {u" 12 ", u"False", u"True"});
  start();
  script(0, 1, 5, 3, 5); // its second letter, before its fourth
  EXPECT_EQ(row(open_exercise()), "a|sz|t|sz|a|l");
}

TEST_F(SurplusLetterTest, ItIsNeverTheFirstAndNoneOfTheLastTwo) {
  start();
  auto& w = open_exercise();
  for (const double chance : {0.0, 0.3, 0.6, 0.999999}) {
    machine.script_random({record(0), 0.5, chance});
    w.beáll();
    EXPECT_EQ(w.lbl_betű.count(), 6);
    EXPECT_GE(culprit(w), 1);
    EXPECT_LE(culprit(w), 3);
  }
  machine.script_random({record(0), 0.5, 0.0});
  w.beáll();
  EXPECT_EQ(culprit(w), 1);
  machine.script_random({record(0), 0.5, 0.999999});
  w.beáll();
  EXPECT_EQ(culprit(w), 3);
}

TEST_F(SurplusLetterTest, InAShortWordItStandsAsNearTheStartAsTheWordAllows) {
  start_numbering();
  put({{.név = u"ló"}, {.név = u"ó"}, {.név = u"fül"}, {.név = u"utolsó"}});
  start();
  auto& w = open_exercise();
  machine.script_random({record(0), drawing(8, alphabet), 0.99});
  w.beáll();
  EXPECT_EQ(row(w), "l|r|ó");
  EXPECT_EQ(culprit(w), 1);
  machine.script_random({record(1), drawing(8, alphabet), 0.99});
  w.beáll();
  EXPECT_EQ(row(w), "r|ó");
  EXPECT_EQ(culprit(w), 0);
  machine.script_random({record(1), drawing(8, alphabet), 0.0});
  w.beáll();
  EXPECT_EQ(row(w), "ó|r");
  machine.script_random({record(2), drawing(8, alphabet), 0.99});
  w.beáll();
  EXPECT_EQ(row(w), "f|r|ü|l");
}

TEST_F(SurplusLetterTest, OnlyWordsWithAtMostSoManyLettersAreDrawnAndNeverTheLastRecord) {
  put_settings(u"betfelesleg.ini", {u" 4 ", u"True", u"False"});
  start();
  // "asztal" has five letters and "szilva" too; the last record cannot be hit.
  machine.script_random({record(0), record(1), 0.999999, 0.5, 0.0});
  EXPECT_EQ(open_exercise().aktuális_kép(), 2);
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(SurplusLetterTest, TheSameWordMayComeTwice) {
  auto& w = deal();
  script(0, 0, alphabet, 1, 5);
  w.beáll();
  EXPECT_EQ(row(w), "a|cs|sz|t|a|l");
}

// The clicks.

TEST_F(SurplusLetterTest, ALetterIsRedWhileItIsPressedAndBlackAgainWhenItWasTheWrongOne) {
  auto& w = deal();
  hand::press(w.lbl_betű[0], 10, 10);
  EXPECT_EQ(colors(w), "R.....");
  EXPECT_EQ(heard(), "");
  machine.script_random({0.0});
  hand::release(w.lbl_betű[0], 10, 10);
  EXPECT_EQ(colors(w), "......");
  EXPECT_EQ(heard(), "bad ");
  EXPECT_FALSE(w.Timer1.Enabled);
  EXPECT_EQ(captions(w.lbl_eredmény), nothing(6));
}

TEST_F(SurplusLetterTest, TheRightLetterStaysRedAndIsHeard) {
  auto& w = deal();
  machine.script_random({0.0});
  hand::click(w.lbl_betű[2]);
  EXPECT_EQ(colors(w), "..R...");
  EXPECT_EQ(heard(), "good ");
  EXPECT_TRUE(w.Timer1.Enabled);
  EXPECT_EQ(w.lépés(), 0);
}

TEST_F(SurplusLetterTest, AnyButtonOfTheMouseAnswers) {
  for (const MouseButton button : {MouseButton::Right, MouseButton::Middle}) {
    auto& w = deal();
    machine.script_random({0.0, 0.0});
    hand::press(w.lbl_betű[1], 10, 10, button);
    EXPECT_EQ(colors(w), ".R....");
    hand::release(w.lbl_betű[1], 10, 10, button);
    EXPECT_EQ(heard(), "bad ");
    hand::click(w.lbl_betű[2], button);
    EXPECT_EQ(heard(), "good ");
    end_session();
  }
}

TEST_F(SurplusLetterTest, OfADoubledPairEitherLetterIsTheSurplusOne) {
  put_settings(u"betfelesleg.ini", {u" 12 ", u"False", u"True"});
  for (const int clicked : {1, 2}) {
    start();
    put_answer_sounds();
    script(0, 1, 5, 1, 5); // a second "sz" before the "sz"
    auto& w = open_exercise();
    ASSERT_EQ(row(w), "a|sz|sz|t|a|l");
    ASSERT_EQ(culprit(w), 1);
    machine.script_random({0.0});
    hand::click(w.lbl_betű[clicked]);
    EXPECT_EQ(heard(), "good ");
    EXPECT_EQ(culprit(w), clicked) << "the tag moves to the clicked one";
    EXPECT_EQ(colors(w), clicked == 1 ? ".R...." : "..R...");
    machine.advance(1000);
    EXPECT_EQ(row(w), "a|sz|t|a|l");
    end_session();
  }
}

TEST_F(SurplusLetterTest, TheNeighbourBehindCountsToo) {
  put_settings(u"betfelesleg.ini", {u" 12 ", u"False", u"True"});
  start();
  put_answer_sounds();
  script(0, 1, 5, 2, 5); // a second "sz" behind the "sz"
  auto& w = open_exercise();
  ASSERT_EQ(culprit(w), 2);
  machine.script_random({0.0});
  hand::click(w.lbl_betű[1]);
  EXPECT_EQ(heard(), "good ");
}

TEST_F(SurplusLetterTest, EqualLettersThatAreNoNeighboursDoNotCount) {
  put_settings(u"betfelesleg.ini", {u" 12 ", u"False", u"True"});
  start();
  put_answer_sounds();
  script(0, 0, 5, 2, 5); // an "a" between "sz" and "t"
  auto& w = open_exercise();
  ASSERT_EQ(row(w), "a|sz|a|t|a|l");
  for (const int other : {0, 4}) {
    machine.script_random({0.0});
    hand::click(w.lbl_betű[other]);
    EXPECT_EQ(heard(), "bad ");
  }
  EXPECT_EQ(culprit(w), 2);
}

TEST_F(SurplusLetterTest, ASecondClickBeforeTheFirstTickIsHandledLikeTheFirst) {
  auto& w = deal();
  machine.script_random({0.0, 0.0, 0.0});
  hand::click(w.lbl_betű[2]);
  machine.advance(500);
  EXPECT_EQ(heard(), "good ");
  hand::click(w.lbl_betű[0]);
  EXPECT_EQ(heard(), "bad ");
  hand::click(w.lbl_betű[2]);
  EXPECT_EQ(heard(), "good ");
  machine.advance(499);
  EXPECT_EQ(w.lépés(), 0) << "the second is not begun anew";
  machine.advance(1);
  EXPECT_EQ(w.lépés(), 1);
}

// The two seconds.

TEST_F(SurplusLetterTest, AfterASecondTheRowClosesUp) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  const double left = w.lbl_betű[0].Left;
  const double top = w.lbl_betű[0].Top;
  machine.advance(999);
  EXPECT_EQ(row(w), "a|sz|r|t|a|l");
  machine.advance(1);
  EXPECT_EQ(w.lépés(), 1);
  EXPECT_EQ(row(w), "a|sz|t|a|l");
  EXPECT_EQ(colors(w), ".....");
  EXPECT_EQ(w.lbl_betű[0].Left, left) << "the first letter stays where it is";
  for (int i = 1; i < w.lbl_betű.count(); ++i) {
    EXPECT_DOUBLE_EQ(w.lbl_betű[i].Left, w.lbl_betű[i - 1].Left + w.lbl_betű[i - 1].Width);
    EXPECT_EQ(w.lbl_betű[i].Top, top);
  }
}

TEST_F(SurplusLetterTest, FromTheFirstTickOnClicksDoNothing) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  machine.advance(1000);
  forget_commands();
  hand::press(w.lbl_betű[1], 10, 10);
  EXPECT_EQ(colors(w), ".....");
  hand::release(w.lbl_betű[1], 10, 10);
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(colors(w), ".....");
}

TEST_F(SurplusLetterTest, ALetterThatIsHeldOverTheTickIsBlackInTheNextWord) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  hand::press(w.lbl_betű[0], 10, 10);
  machine.advance(1000);
  forget_commands();
  hand::release(w.lbl_betű[0], 10, 10);
  EXPECT_EQ(heard(), "");
  script(1, 0, alphabet, 1, 5);
  machine.advance(1000);
  EXPECT_EQ(colors(w), "......");
}

TEST_F(SurplusLetterTest, AfterTwoSecondsTheWordIsInThePanelBySyllablesAndTheNextOneComes) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  machine.advance(1999);
  EXPECT_EQ(captions(w.lbl_eredmény), nothing(6));
  script(1, 0, alphabet, 1, 5);
  machine.advance(1);
  EXPECT_EQ(utf8(w.lbl_eredmény[0].Caption), "asz-tal");
  EXPECT_EQ(picture(w.pic_eredmény[0]), picture_path(0));
  EXPECT_EQ(row(w), "sz|cs|i|l|v|a");
  EXPECT_EQ(w.lépés(), 0);
  EXPECT_FALSE(w.Timer1.Enabled);
}

TEST_F(SurplusLetterTest, SixWordsAreCongratulatedOnceAndThePanelIsEmpty) {
  auto& w = deal();
  then_close_congratulation();
  seen_at_congratulation = [&] {
    EXPECT_EQ(pictures(w.pic_eredmény).back(), picture(w.pic_kép));
    machine.advance(5000);
    EXPECT_EQ(congratulations, 1) << "the timer stands still meanwhile";
  };
  for (int solved = 0; solved < 6; ++solved) {
    hand::click(w.lbl_betű[culprit(w)]);
    machine.advance(2000);
  }
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(w.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(w.pic_eredmény), no_pictures(6));
  EXPECT_GE(culprit(w), 1);
}

TEST_F(SurplusLetterTest, ANewPuzzleBetweenTheTicksIsNotSolvedByThem) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  machine.advance(500);
  then_in<frm_betűfelesleg_beáll>([this](frm_betűfelesleg_beáll& dialog) {
    script(1, 0, alphabet, 1, 5);
    hand::click(dialog.OKButton);
  });
  hand::click(w.mnu_fájl_beáll);
  machine.advance(5000);
  EXPECT_EQ(row(w), "sz|cs|i|l|v|a");
  EXPECT_EQ(w.lépés(), 0);
  EXPECT_EQ(captions(w.lbl_eredmény), nothing(6));
}

TEST_F(SurplusLetterTest, ClosingBetweenTheTicksEndsEverything) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  hand::close(w);
  EXPECT_FALSE(session().loaded<frm_betűfelesleg>());
  EXPECT_FALSE(session().loaded<frm_betűfelesleg_beáll>());
  machine.advance(3000);
}

// The hint, the menu, the keys.

TEST_F(SurplusLetterTest, AClickOnThePictureShowsItLargeWithItsName) {
  auto& w = deal();
  then_in<üzenet>([&](üzenet& panel) {
    EXPECT_EQ(utf8(panel.üzenet_szöveg.Caption), "asztal");
    EXPECT_EQ(picture(panel.üzenet_kép), picture_path(0));
    hand::click(panel.Command1);
  });
  hand::click(w.pic_kép);
  EXPECT_EQ(row(w), "a|sz|r|t|a|l");
}

TEST_F(SurplusLetterTest, TheMenuOpensTheHelpAndLeaves) {
  auto& w = deal();
  hand::click(w.mnu_súgó_súgó);
  EXPECT_EQ(help_page(), help_command("Betűfelesleg - a feladat.mht"));
  EXPECT_EQ(w.mnu_súgó_súgó.ShortcutKey, key::f1);
  load<frm_betűfelesleg_beáll>();
  hand::click(w.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_betűfelesleg>());
  EXPECT_FALSE(session().loaded<frm_betűfelesleg_beáll>());
}

TEST_F(SurplusLetterTest, IsPlayedByKeysAlone) {
  auto& w = deal();
  ASSERT_EQ(w.focus(), &w.lbl_betű[0]) << "the keys begin on a letter";
  machine.script_random({0.0, 0.0});
  hand::key(w, key::right);
  hand::key(w, key::space);
  EXPECT_EQ(heard(), "bad ");
  EXPECT_EQ(colors(w), "......");
  hand::key(w, key::right);
  ASSERT_EQ(w.focus(), &w.lbl_betű[2]);
  hand::key(w, key::enter);
  EXPECT_EQ(heard(), "good ");
  EXPECT_EQ(colors(w), "..R...");
  machine.advance(2000);
  EXPECT_EQ(utf8(w.lbl_eredmény[0].Caption), "asz-tal");
  EXPECT_EQ(w.focus(), &w.lbl_betű[2]) << "and stay in the row in the next word";
  then_in<üzenet>([&](üzenet& panel) {
    machine.advance(panel.KeyPause);
    hand::key(panel, key::enter);
  });
  hand::key(w, key::up);
  ASSERT_EQ(w.focus(), &w.pic_kép);
  hand::key(w, key::space);
}

TEST_F(SurplusLetterTest, TheFocusStaysInTheRowWhenItClosesUpUnderIt) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  for (int i = 0; i < 3; ++i) hand::key(w, key::right);
  ASSERT_EQ(w.focus(), &w.lbl_betű[5]);
  machine.advance(1000);
  EXPECT_EQ(w.focus(), &w.lbl_betű[4]);
}

// Nothing fits.

TEST_F(SurplusLetterTest, WhereNoWordIsShortEnoughItTellsWhyAndNothingCanBePlayed) {
  start_numbering();
  put({{.név = u"asztal"}, {.név = u"szilva"}, {.név = u"kutya"}, {.név = u"utolsó"}});
  put_settings(u"betfelesleg.ini", {u" 4 ", u"True", u"False"});
  start_numbering();
  put({{.név = u"asztal"}, {.név = u"szilva"}, {.név = u"lapát"}, {.név = u"alma"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& w = open_exercise();
  EXPECT_NE(message.find("több betűt"), std::string::npos) << message;
  hand::click(w.pic_kép);
  EXPECT_FALSE(w.lbl_betű[0].Visible);
  EXPECT_EQ(picture(w.pic_kép), "(none)");
  EXPECT_EQ(heard(), "");
  // A relaxed setting brings the next puzzle.
  then_in<frm_betűfelesleg_beáll>([](frm_betűfelesleg_beáll& dialog) {
    dialog.udbetszám.set_value(5);
    hand::click(dialog.OKButton);
  });
  hand::click(w.mnu_fájl_beáll);
  EXPECT_EQ(w.lbl_betű.count(), 6);
}

TEST_F(SurplusLetterTest, ADealThatFailsLaterLeavesTheResultsAndNoOldWord) {
  auto& w = deal();
  hand::click(w.lbl_betű[2]);
  machine.advance(2000);
  load<frm_betűfelesleg_beáll>().udbetszám.set_value(4);
  machine.script_random({record(2), 0.5, 0.5});
  w.beáll();
  hand::click(w.lbl_betű[culprit(w)]);
  for (const Text& path : machine.files().all()) {
    if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
  }
  start_numbering();
  put({{.név = u"szilva"}, {.név = u"lapát"}});
  session().képek.load(machine.files(), session().alapkönyvtár);
  then_close_message();
  EXPECT_THROW(w.beáll(), NothingFits);
  w.platform().host->run_event(w, [&] { w.beáll(); });
  EXPECT_EQ(utf8(w.lbl_eredmény[0].Caption), "asz-tal");
  EXPECT_FALSE(w.lbl_betű[0].Visible);
  EXPECT_EQ(w.pic_kép.Tag, u"");
  machine.advance(3000);
}

TEST_F(SurplusLetterTest, ARecordWithoutANameIsNoPuzzle) {
  start_numbering();
  put({{.név = u""}, {.név = u"alma"}, {.név = u"utolsó"}, {.név = u"utolsó"}});
  start();
  machine.script_random({record(0), record(1), 0.5, 0.5});
  EXPECT_EQ(open_exercise().aktuális_kép(), 1);
}

} // namespace
} // namespace cserko
