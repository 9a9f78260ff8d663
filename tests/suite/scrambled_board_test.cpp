// The board of Scrambled word: dragging, the keyboard, shuffling, sorting and the instruction that is a teacher's aid.
#include "tests/suite/scrambled_fixture.h"

namespace cserko {
namespace {

const std::string moving = "open \"c:\\cserko\\cserko\\moving.wav\" type waveaudio alias hang\nplay hang \n";

class BoardTest : public ScrambledTest {
 protected:
  /// The letters k, o, s stand apart at known places.
  frm_cserkó& kos() {
    auto& window = deal({u"kos", u"utolsó"});
    window.betű[0].move_to(1000, 2000);
    window.betű[1].move_to(4000, 500);
    window.betű[2].move_to(6000, 5000);
    forget_commands();
    return window;
  }
  void allow_shuffling() { dialog().chk_ismételt_keverés_engedélyezése.set_value(1); }
  void forbid_sorting() { dialog().chk_szórendezés_engedélyezés.set_value(0); }
};

// Dragging.

TEST_F(BoardTest, ALetterFollowsThePointWhereItWasTaken) {
  auto& window = kos();
  Label& letter = window.betű[0];
  hand::press(letter, 200.6, 300.6);
  hand::move(letter, 700.4, 200.6);
  // The point where it was taken counts as 201, 301, and the place as a whole number too.
  EXPECT_EQ(letter.Left, 1499);
  EXPECT_EQ(letter.Top, 1900);
  hand::release(letter, 200, 300);
  EXPECT_EQ(letter.Left, 1499);
}

TEST_F(BoardTest, PressAndReleasePlayTheMovingSound) {
  auto& window = kos();
  hand::press(window.betű[0], 10, 10);
  EXPECT_EQ(commands(), moving);
  hand::move(window.betű[0], 500, 10);
  EXPECT_EQ(commands(), "");
  hand::release(window.betű[0], 10, 10);
  EXPECT_EQ(commands(), "close hang\n" + moving);
}

TEST_F(BoardTest, ReleasingAnotherButtonKeepsTheLetterInTheHand) {
  auto& window = kos();
  hand::press(window.betű[0], 10, 10);
  forget_commands();
  hand::release(window.betű[0], 10, 10, MouseButton::Right);
  EXPECT_EQ(commands(), "");
  hand::move(window.betű[0], 510, 10);
  EXPECT_EQ(window.betű[0].Left, 1500);
}

TEST_F(BoardTest, TheMouseStopsAtTheEdgesWithAMarginOfHundredAtTheRight) {
  auto& window = kos();
  Label& letter = window.betű[0];
  hand::press(letter, 10, 10);
  hand::move(letter, -20000, -20000);
  EXPECT_EQ(letter.Left, 0);
  EXPECT_EQ(letter.Top, 0);
  hand::move(letter, 90000, 90000);
  EXPECT_DOUBLE_EQ(letter.Left, window.kép.Width - letter.Width - 100);
  EXPECT_DOUBLE_EQ(letter.Top, window.kép.Height - letter.Height);
}

TEST_F(BoardTest, LettersMayOverlapWhileTheyAreDragged) {
  auto& window = kos();
  hand::drag(window.betű[0], 3000, -1500);
  EXPECT_EQ(window.betű[0].Left, 4000);
  EXPECT_EQ(window.betű[0].Top, 500);
}

TEST_F(BoardTest, OnlyTheLeftButtonDragsAndAnyButtonClearsTheSelection) {
  for (const MouseButton button : {MouseButton::Right, MouseButton::Middle}) {
    auto& window = kos();
    hand::key(window, key::space);
    ASSERT_EQ(selected(window).size(), 1U);
    hand::press(window.betű[1], 10, 10, button);
    hand::move(window.betű[1], 900, 900, button);
    hand::release(window.betű[1], 900, 900, button);
    EXPECT_EQ(window.betű[1].Left, 4000);
    EXPECT_TRUE(selected(window).empty());
    EXPECT_EQ(commands(), "");
    end_session();
  }
}

TEST_F(BoardTest, MovingWithoutPressingMovesNothing) {
  auto& window = kos();
  hand::move(window.betű[0], 900, 900, MouseButton::None);
  EXPECT_EQ(window.betű[0].Left, 1000);
}

TEST_F(BoardTest, PressingALetterClearsTheSelection) {
  auto& window = kos();
  hand::key(window, key::space);
  hand::press(window.betű[2], 10, 10);
  EXPECT_TRUE(selected(window).empty());
}

// Keyboard.

TEST_F(BoardTest, TheStepIsTwoHundredthsOfTheFrame) {
  auto& window = kos();
  hand::key(window, key::space);
  const double before = window.betű[0].Left;
  hand::key(window, key::right);
  EXPECT_EQ(window.betű[0].Left, before + step(window));
  EXPECT_NEAR(step(window), window.kép.Width * 0.02, 0.5);
}

TEST_F(BoardTest, WithoutASelectionAnyKeySelectsTheLeftmostLetter) {
  for (const int code : {32, 37, 38, 39, 40, int{'Q'}, 27}) {
    auto& window = kos();
    hand::key(window, code);
    EXPECT_EQ(selected(window), std::vector<int>{0}) << code;
    EXPECT_EQ(window.betű[0].Left, 1000) << "the key itself does nothing else";
    end_session();
  }
}

TEST_F(BoardTest, TheArrowsMoveTheSelectedLetter) {
  auto& window = kos();
  hand::key(window, key::space);
  Label& letter = window.betű[0];
  hand::key(window, 39);
  hand::key(window, 40);
  EXPECT_EQ(letter.Left, 1000 + step(window));
  EXPECT_EQ(letter.Top, 2000 + step(window));
  hand::key(window, 37);
  hand::key(window, 38);
  EXPECT_EQ(letter.Left, 1000);
  EXPECT_EQ(letter.Top, 2000);
}

TEST_F(BoardTest, TheArrowsReachTheVeryEdges) {
  auto& window = kos();
  hand::key(window, key::space);
  Label& letter = window.betű[0];
  for (int i = 0; i < 60; ++i) hand::key(window, key::right);
  EXPECT_DOUBLE_EQ(letter.Left, window.kép.Width - letter.Width) << "without the margin of the mouse";
  for (int i = 0; i < 60; ++i) hand::key(window, key::down);
  EXPECT_DOUBLE_EQ(letter.Top, window.kép.Height - letter.Height);
  for (int i = 0; i < 60; ++i) hand::key(window, key::left);
  EXPECT_EQ(letter.Left, 0);
  for (int i = 0; i < 60; ++i) hand::key(window, key::up);
  EXPECT_EQ(letter.Top, 0);
}

TEST_F(BoardTest, TheSpaceBarGoesOnFromLeftToRightAndRound) {
  auto& window = kos();
  window.betű[0].Left = 5000; // the order is o, k, s
  const std::vector<int> order{1, 0, 2, 1};
  for (const int expected : order) {
    hand::key(window, key::space);
    EXPECT_EQ(selected(window), std::vector<int>{expected});
  }
}

TEST_F(BoardTest, TheSelectionGoesByTheExactPlace) {
  auto& window = kos();
  window.betű[0].Left = 1000.4;
  window.betű[1].Left = 1000.3;
  hand::key(window, key::space);
  EXPECT_EQ(selected(window), std::vector<int>{1});
}

TEST_F(BoardTest, TheKeysWorkWhereverTheFocusIs) {
  auto& window = kos();
  hand::key(window, key::space);
  input::focus(window.cmd_kész);
  hand::key(window, key::right);
  EXPECT_EQ(window.betű[0].Left, 1000 + step(window));
}

TEST_F(BoardTest, TheArrowsBelongToTheLettersAndMoveNoFocus) {
  auto& window = kos();
  for (int code = key::left; code <= key::down; ++code) {
    KeyEvent event{code};
    window.KeyDown(event);
    EXPECT_EQ(event.code, 0) << code;
  }
}

TEST_F(BoardTest, OtherKeysLeaveTheSelectedLetter) {
  auto& window = kos();
  hand::key(window, key::space);
  for (const int code : {int{'A'}, int{'5'}, key::page_up, key::home, key::delete_}) hand::key(window, code);
  EXPECT_EQ(positions(window)[0], (Point{1000, 2000}));
  EXPECT_EQ(selected(window), std::vector<int>{0});
}

// Shuffling.

TEST_F(BoardTest, ShufflingDrawsNewPlacesWithoutAnyMargin) {
  auto& window = kos();
  allow_shuffling();
  window.beáll();
  machine.script_random({0.99, 0.1, 0.5, 0.5, 0.1, 0.9});
  hand::click(window.cmd_újrakever);
  const auto at = [&](int i, double x, double y) {
    return Point{std::floor(x * (window.kép.Width - window.betű[i].Width)),
                 std::floor(y * (window.kép.Height - window.betű[i].Height))};
  };
  EXPECT_EQ(positions(window), (std::vector<Point>{at(0, 0.99, 0.1), at(1, 0.5, 0.5), at(2, 0.1, 0.9)}));
  EXPECT_GT(window.betű[0].Left, window.kép.Width - window.betű[0].Width - 110);
}

TEST_F(BoardTest, ShufflingTestsEarlierLettersAtTheirNewPlacesAndIgnoresLaterOnes) {
  auto& window = deal({u"ab", u"utolsó"});
  allow_shuffling();
  window.beáll();
  window.betű[0].move_to(0, 0);
  window.betű[1].move_to(5000, 5000);
  const double width = window.kép.Width - window.betű[0].Width;
  const double height = window.kép.Height - window.betű[0].Height;
  // The first one goes where the second still is; the second first tries the same place, then where the first was.
  machine.script_random({drawing(5000, width), drawing(5000, height), drawing(5000, width), drawing(5000, height),
                         drawing(0, width), drawing(0, height)});
  hand::click(window.cmd_újrakever);
  EXPECT_EQ(positions(window), (std::vector<Point>{{5000, 5000}, {0, 0}}));
}

TEST_F(BoardTest, TheLeftButtonOnTheFrameShufflesToo) {
  auto& window = kos();
  allow_shuffling();
  const auto before = positions(window);
  hand::key(window, key::space);
  hand::press(window.kép, 9000, 9000);
  EXPECT_NE(positions(window), before);
  EXPECT_TRUE(selected(window).empty());
}

TEST_F(BoardTest, WhereShufflingIsOffTheFrameOnlyClearsTheSelection) {
  auto& window = kos();
  const auto before = positions(window);
  hand::key(window, key::space);
  EXPECT_FALSE(window.cmd_újrakever.Enabled);
  hand::press(window.kép, 9000, 9000);
  EXPECT_EQ(positions(window), before);
  EXPECT_TRUE(selected(window).empty());
}

TEST_F(BoardTest, AGreyedBoxDoesNotAllowShuffling) {
  auto& window = kos();
  dialog().chk_ismételt_keverés_engedélyezése.set_value(2);
  const auto before = positions(window);
  hand::press(window.kép, 9000, 9000);
  EXPECT_EQ(positions(window), before);
}

// Sorting.

TEST_F(BoardTest, SortingMakesARowFromTheLeftmostLetterInItsHeight) {
  auto& window = kos();
  window.betű[0].Left = 7000; // order o (4000), s (6000), k
  window.kép.Font.size = 5;   // whatever the frame was written on with, the letters are what is measured
  hand::click(window.cmd_rendez);
  const double o = text_width(window, u"o");
  const double s = text_width(window, u"s");
  EXPECT_EQ(positions(window), (std::vector<Point>{{4000 + o + s, 500}, {4000, 500}, {4000 + o, 500}}));
}

TEST_F(BoardTest, ARowThatWouldNotFitStartsFurtherLeft) {
  auto& window = kos();
  for (int i = 0; i < 3; ++i) window.betű[i].Left = 9000 + i;
  hand::click(window.cmd_rendez);
  double left = window.kép.Width - text_width(window, u"kos") - 100;
  for (int i = 0; i < 3; ++i) {
    EXPECT_DOUBLE_EQ(window.betű[i].Left, left) << i;
    EXPECT_EQ(window.betű[i].Top, 2000) << i;
    left += text_width(window, window.betű[i].Caption);
  }
}

TEST_F(BoardTest, ARowThatJustFitsStaysWhereItStarts) {
  auto& window = kos();
  const double limit = window.kép.Width - text_width(window, u"kos") - 100;
  window.betű[0].Left = limit;
  for (int i = 1; i < 3; ++i) window.betű[i].Left = limit + i;
  hand::click(window.cmd_rendez);
  EXPECT_DOUBLE_EQ(window.betű[0].Left, limit);
}

TEST_F(BoardTest, SortingKeepsTheOrderAndClearsTheSelection) {
  auto& window = deal({u"alma", u"utolsó"});
  lay(window, {u"m", u"a", u"l", u"a"});
  hand::key(window, key::space);
  hand::click(window.cmd_rendez);
  EXPECT_TRUE(selected(window).empty());
  std::vector<std::pair<double, std::string>> row;
  window.betű.each([&](const Label& letter) { row.emplace_back(letter.Left, utf8(letter.Caption)); });
  std::sort(row.begin(), row.end());
  EXPECT_EQ(row[0].second + row[1].second + row[2].second + row[3].second, "mala");
}

TEST_F(BoardTest, SortingGoesByWholePlacesAndTheOutcomeOfTheExchangeSort) {
  auto& window = kos();
  // Rounded, k and o are equal; the exchange of k and s puts k behind o.
  window.betű[0].Left = 1999.8;
  window.betű[1].Left = 2000.2;
  window.betű[2].Left = 1000;
  hand::click(window.cmd_rendez);
  const double s = text_width(window, u"s");
  const double o = text_width(window, u"o");
  EXPECT_EQ(positions(window), (std::vector<Point>{{1000 + s + o, 5000}, {1000 + s, 5000}, {1000, 5000}}));
}

TEST_F(BoardTest, TheRightButtonOnTheFrameSortsToo) {
  auto& window = kos();
  hand::press(window.kép, 9000, 9000, MouseButton::Right);
  EXPECT_EQ(window.betű[1].Top, 2000);
  EXPECT_EQ(window.betű[1].Left, 1000 + text_width(window, u"k"));
}

TEST_F(BoardTest, WhereSortingIsOffButtonAndRightButtonOnlyClearTheSelection) {
  auto& window = kos();
  forbid_sorting();
  window.beáll();
  EXPECT_FALSE(window.cmd_rendez.Enabled);
  const auto before = positions(window);
  hand::key(window, key::space);
  hand::click(window.cmd_rendez);
  hand::press(window.kép, 9000, 9000, MouseButton::Right);
  EXPECT_EQ(positions(window), before);
  EXPECT_TRUE(selected(window).empty());
}

TEST_F(BoardTest, TheOptionsAreReadAtEachShuffleAndSort) {
  auto& window = kos();
  forbid_sorting(); // without a new puzzle: the button is still live
  const auto before = positions(window);
  hand::click(window.cmd_rendez);
  EXPECT_EQ(positions(window), before);
}

TEST_F(BoardTest, TheMiddleButtonOnTheFrameDoesNothing) {
  auto& window = kos();
  allow_shuffling();
  const auto before = positions(window);
  hand::press(window.kép, 9000, 9000, MouseButton::Middle);
  EXPECT_EQ(positions(window), before);
}

// Focus.

TEST_F(BoardTest, EveryButtonGivesTheFocusBackToTheFrame) {
  auto& window = kos();
  allow_shuffling();
  window.beáll();
  for (Button* button : {&window.cmd_újrakever, &window.cmd_rendez}) {
    hand::click(*button);
    EXPECT_EQ(window.focus(), &window.kép) << utf8(button->Name);
  }
  then_close_message();
  hand::click(window.cmd_egybetűtfelfed);
  EXPECT_EQ(window.focus(), &window.kép);
  lay(window, {u"s", u"o", u"k"});
  machine.files().put(Text(app) + u"ms.skt", "zzz\r");
  then_close_message();
  hand::click(window.cmd_kész);
  EXPECT_EQ(window.focus(), &window.kép);
}

// The instruction.

TEST_F(BoardTest, APressOnTheInstructionDealsANewWord) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
    auto& window = deal({u"kos", u"hal", u"utolsó"}, 0);
    machine.script_random({record(1)});
    forget_commands();
    hand::press(window.lbl_feladat, 10, 10, button);
    EXPECT_EQ(window.feladat_index(), 1);
    EXPECT_TRUE(utf8(window.lbl_feladat.Caption).starts_with("A keretben"));
    EXPECT_EQ(commands(), "");
    end_session();
  }
}

TEST_F(BoardTest, TheMiddleButtonWithAllThreeKeysShowsTheNewWordUntilItIsReleased) {
  auto& window = deal({u"kos", u"hal", u"utolsó"}, 0);
  machine.script_random({record(1)});
  forget_commands();
  hand::press(window.lbl_feladat, 10, 10, MouseButton::Middle, 7);
  EXPECT_EQ(utf8(window.lbl_feladat.Caption), "hal");
  EXPECT_EQ(commands(), "open \"c:\\cserko\\cserko\\alarm.wav\" type waveaudio alias hang\nplay hang \n");
  hand::release(window.lbl_feladat, 10, 10, MouseButton::Right);
  EXPECT_EQ(utf8(window.lbl_feladat.Caption),
            "A keretben egy szó betűit láthatod összekeverve. Rakd ki a betűkből a szót!");
}

TEST_F(BoardTest, TheWordIsNotShownWithFewerKeysOrAnotherButton) {
  auto& window = deal({u"kos", u"hal", u"utolsó"}, 0);
  for (const int shift : {0, 1, 2, 4, 3, 5, 6}) {
    hand::press(window.lbl_feladat, 10, 10, MouseButton::Middle, shift);
    EXPECT_TRUE(utf8(window.lbl_feladat.Caption).starts_with("A keretben")) << shift;
  }
  hand::press(window.lbl_feladat, 10, 10, MouseButton::Left, 7);
  EXPECT_TRUE(utf8(window.lbl_feladat.Caption).starts_with("A keretben"));
}

TEST_F(BoardTest, TheMenuDealsANewWord) {
  auto& window = deal({u"kos", u"hal", u"utolsó"}, 0);
  machine.script_random({record(1)});
  hand::click(window.mnu_fájl_újfeladat);
  EXPECT_EQ(window.feladat_index(), 1);
}

// Click and click, beside the drag.

TEST_F(BoardTest, AClickPicksALetterUpAndTheNextClickOnTheFramePutsItDown) {
  auto& window = kos();
  hand::click(window.betű[0], MouseButton::Left);
  EXPECT_EQ(selected(window), std::vector<int>{0});
  hand::press(window.kép, 3000, 4000);
  EXPECT_NEAR(window.betű[0].Left + window.betű[0].Width / 2, 3000, 1);
  EXPECT_NEAR(window.betű[0].Top + window.betű[0].Height / 2, 4000, 1);
  EXPECT_TRUE(selected(window).empty());
}

} // namespace
} // namespace cserko
