// Syllable search: the syllables on their tray, ways to move them, the row, the answer, the pause after it.
#include "core/numbers.h"
#include "tests/exercises/syllable_search_fixture.h"

namespace cserko {
namespace {

class SyllableSearchTest : public SyllableSearchFixture {};

using Order = std::vector<int>;

TEST_F(SyllableSearchTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_szótagkereső>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Szótagkereső");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Rakd ki a szót az összekevert szótagokból!");
  EXPECT_EQ(place_of(window->lbl_feladat), (Rect{240, 0, 5175, 375}));
  EXPECT_EQ(place_of(window->kép), (Rect{240, 360, 5175, 5175}));
  EXPECT_EQ(place_of(window->szövegtároló), (Rect{240, 5520, 5175, 1575}));
  EXPECT_EQ(window->lbl_szótag[0].container(), &window->szövegtároló);
  EXPECT_EQ(place_of(window->cmd_kész), (Rect{1320, 7200, 2535, 615}));
  EXPECT_EQ(utf8(window->cmd_kész.Caption), "Kész");
  EXPECT_EQ(places_of(window->pic_eredmény),
            (std::vector<Rect>{{5520, 360, 1815, 1815}, {5520, 2640, 1815, 1815}, {5520, 4920, 1815, 1815}}));
  EXPECT_EQ(places_of(window->lbl_eredmény),
            (std::vector<Rect>{{5520, 2160, 1815, 375}, {5520, 4440, 1815, 375}, {5520, 6720, 1815, 375}}));
  EXPECT_EQ(window->Timer1.Interval, 2000);
  EXPECT_FALSE(window->Timer1.Enabled);
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_separator.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(window->mnu_súgó_súgó.ShortcutKey, key::f1);
}

TEST_F(SyllableSearchTest, FillsItsShareOfTheScreen) {
  auto& window = deal();
  expect_scaled(window, 0.95, u"kép");
  expect_fitted(window.lbl_feladat);
  expect_fitted(window.cmd_kész);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(3));
}

// The tray.

TEST_F(SyllableSearchTest, EachSyllableHasALabelAsWideAsItIs) {
  auto& window = deal(3);
  EXPECT_EQ(picture(window.kép), picture_path(3));
  EXPECT_EQ(captions(window.lbl_szótag), (std::vector<std::string>{"te", "le", "ví", "zi", "ó"}));
  EXPECT_TRUE(window.szövegtároló.Visible);
  window.lbl_szótag.each([&](const Label& piece) {
    EXPECT_TRUE(piece.Visible);
    EXPECT_EQ(piece.Font, window.lbl_szótag[0].Font);
    EXPECT_DOUBLE_EQ(piece.Width, width(window, piece.Caption));
    EXPECT_DOUBLE_EQ(piece.Height, window.szövegtároló.Height / 3);
    EXPECT_EQ(piece.ForeColor, black);
    EXPECT_FALSE(piece.Border);
  });
  EXPECT_EQ(window.szövegtároló.Font, window.lbl_szótag[0].Font);
}

TEST_F(SyllableSearchTest, TheFirstSyllableMakesTheSizeOfAll) {
  auto& window = deal(3);
  Font font = window.lbl_szótag[0].Font;
  const Size limits{0.9 * window.szövegtároló.Width / 2, 0.9 * window.szövegtároló.Height / 3};
  EXPECT_TRUE(machine.measure(font, u"te").height > limits.height || machine.measure(font, u"te").width > limits.width);
  --font.size;
  EXPECT_LE(machine.measure(font, u"te").height, limits.height);
  EXPECT_LE(machine.measure(font, u"te").width, limits.width);
}

TEST_F(SyllableSearchTest, TheSyllablesArePutAtFreePlacesAHundredTwipsOffTheRightEdge) {
  put_words();
  start();
  // The second place of the second syllable is free.
  machine.script_random({record(0), 0.999999, 0.5, 0.999999, 0.5, 0.0, 0.25, 0.4, 0.0});
  auto& window = open<frm_szótagkereső>();
  const auto room_across = [&](int piece) { return window.szövegtároló.Width - window.lbl_szótag[piece].Width - 100; };
  const double room_down = window.szövegtároló.Height - window.lbl_szótag[0].Height;
  EXPECT_EQ(position(window, 0), (Point{std::floor(0.999999 * room_across(0)), std::floor(0.5 * room_down)}));
  EXPECT_EQ(position(window, 1), (Point{0, std::floor(0.25 * room_down)}));
  EXPECT_EQ(position(window, 2), (Point{std::floor(0.4 * room_across(2)), 0}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

// The draw.

TEST_F(SyllableSearchTest, OnlyWordsOfTheWantedNumberOfSyllablesAreDrawn) {
  put_settings(u"szótagkereső.ini", {u" 3 ", u" 4 ", u" 0 "});
  put_words();
  start();
  machine.script_random({record(4), record(3), record(2)});
  EXPECT_EQ(open<frm_szótagkereső>().aktuális_kép(), 2);
}

TEST_F(SyllableSearchTest, TheWordJustSolvedIsNotTheNext) {
  auto& window = deal(2);
  lay_right(window);
  hand::click(window.cmd_kész);
  machine.script_random({record(2), record(2), record(3)});
  machine.advance(2000);
  EXPECT_EQ(window.aktuális_kép(), 3);
}

TEST_F(SyllableSearchTest, TheLastRecordIsNeverDrawn) {
  auto& window = deal();
  for (int i = 0; i < 200; ++i) {
    EXPECT_NE(window.aktuális_kép(), 5);
    window.beáll();
  }
}

TEST_F(SyllableSearchTest, ADrawDoesNotSeedTheGenerator) {
  auto& window = deal();
  const int before = machine.seedings;
  window.beáll();
  EXPECT_EQ(machine.seedings, before);
}

// Dragging and clicking.

TEST_F(SyllableSearchTest, ASyllableIsDraggedWithinTheTrayAndHeardAtBothEnds) {
  auto& window = deal();
  lay(window, {{1000, 100}, {2000, 100}, {3000, 100}});
  forget_commands();
  Label& piece = window.lbl_szótag[0];
  hand::press(piece, 30.6, 40.4);
  EXPECT_EQ(commands(), sound("c:\\cserko\\cserko\\moving.wav"));
  hand::move(piece, 130, 240);
  EXPECT_EQ(position(window, 0), (Point{1099, 300})) << "counted from 31, 40";
  hand::move(piece, -9000, -9000);
  EXPECT_EQ(position(window, 0), (Point{0, 0}));
  hand::move(piece, 99000, 99000);
  EXPECT_EQ(position(window, 0),
            (Point{window.szövegtároló.Width - piece.Width - 100, window.szövegtároló.Height - piece.Height}));
  hand::release(piece, 10, 10);
  EXPECT_EQ(commands(), "close hang\n" + sound("c:\\cserko\\cserko\\moving.wav"));
  EXPECT_EQ(bordered(window), Order{}) << "a drag selects nothing";
}

TEST_F(SyllableSearchTest, OtherButtonsDragNothing) {
  auto& window = deal();
  const std::vector<Point> before = positions(window);
  for (const MouseButton button : {MouseButton::Right, MouseButton::Middle}) {
    hand::press(window.lbl_szótag[1], 10, 10, button);
    hand::move(window.lbl_szótag[1], 900, 900, button);
    hand::release(window.lbl_szótag[1], 900, 900, button);
  }
  EXPECT_EQ(positions(window), before);
}

TEST_F(SyllableSearchTest, AClickPicksASyllableUpAndTheNextOnTheTrayPutsItDown) {
  auto& window = deal();
  lay(window, {{100, 100}, {1200, 100}, {2400, 100}});
  hand::click(window.lbl_szótag[1]);
  EXPECT_EQ(bordered(window), Order{1});
  press_tray(window, {3000, window.szövegtároló.Height - 10});
  EXPECT_EQ(position(window, 1),
            (Point{3000 - window.lbl_szótag[1].Width / 2, window.szövegtároló.Height - window.lbl_szótag[1].Height}));
  EXPECT_EQ(position(window, 0), (Point{100, 100})) << "nothing is shuffled";
  EXPECT_EQ(position(window, 2), (Point{2400, 100}));
}

TEST_F(SyllableSearchTest, APressOfTheEmptyTrayShufflesAndTheSelectionKeepsItsSyllable) {
  auto& window = deal();
  lay(window, {{100, 700}, {1200, 700}, {2400, 700}});
  hand::key(window, key::space);
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{1});
  script_scatter();
  press_tray(window, {10, 10});
  EXPECT_EQ(machine.scripted_random_left(), 0U);
  EXPECT_EQ(position(window, 0), (Point{0, 0}));
  EXPECT_EQ(bordered(window), Order{1});
  const Point before = position(window, 1);
  hand::key(window, key::down);
  EXPECT_EQ(position(window, 1), (Point{before.x, before.y + rounded(0.02 * window.kép.Width)}));
}

TEST_F(SyllableSearchTest, APressOfTheMiddleButtonDoesNothing) {
  auto& window = deal();
  const std::vector<Point> before = positions(window);
  press_tray(window, {2, 2}, MouseButton::Middle);
  EXPECT_EQ(positions(window), before);
}

// The row.

TEST_F(SyllableSearchTest, ARightPressOfTheTrayLinesTheSyllablesUpWithoutJudgingThem) {
  auto& window = deal();
  lay(window, {{2000, 300}, {700, 900}, {1500, 0}});
  forget_commands();
  press_tray(window, {5, 5}, MouseButton::Right);
  double left = 700;
  for (const int index : {1, 2, 0}) {
    EXPECT_EQ(position(window, index), (Point{left, 900}));
    left += width(window, window.lbl_szótag[index].Caption);
  }
  EXPECT_EQ(commands(), "");
}

TEST_F(SyllableSearchTest, TheRowMovesToTheLeftUntilTheWholeWordFits) {
  auto& window = deal();
  const double fits = window.szövegtároló.Width - width(window, u"almafa") - 100;
  for (const double right : {-30.0, 30.0}) {
    lay(window, {{fits + right, 100}, {fits + right + 10, 100}, {fits + right + 20, 100}});
    press_tray(window, {5, 5}, MouseButton::Right);
    EXPECT_DOUBLE_EQ(window.lbl_szótag[0].Left, fits + std::min(right, 0.0));
  }
}

TEST_F(SyllableSearchTest, InTheRowOnlyTheFirstSyllableKeepsItsMarkAndTheArrowsTheirs) {
  auto& window = deal();
  lay(window, {{100, 100}, {1200, 100}, {2400, 100}});
  hand::key(window, key::space);
  press_tray(window, {5, 5}, MouseButton::Right);
  EXPECT_EQ(bordered(window), Order{0});
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{1});
  press_tray(window, {5, 5}, MouseButton::Right);
  EXPECT_EQ(bordered(window), Order{});
  const double before = window.lbl_szótag[1].Left;
  hand::key(window, key::right);
  EXPECT_EQ(window.lbl_szótag[1].Left, before + rounded(0.02 * window.kép.Width));
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{0}) << "none is marked, so the leftmost comes next";
}

TEST_F(SyllableSearchTest, ASyllableThatLosesItsMarkInTheRowIsNotPutDownByTheNextClick) {
  auto& window = deal();
  lay(window, {{100, 700}, {1200, 700}, {2400, 700}});
  hand::click(window.lbl_szótag[1]);
  press_tray(window, {5, 5}, MouseButton::Right);
  script_scatter();
  press_tray(window, {5, 5});
  EXPECT_EQ(machine.scripted_random_left(), 0U) << "the tray is shuffled";
}

// Keys.

TEST_F(SyllableSearchTest, AnyKeySelectsWhileNothingIsSelectedAndTheSpaceBarGoesOnByLeft) {
  auto& window = deal();
  lay(window, {{2400, 100}, {100, 100}, {1200, 100}});
  hand::key(window, 'X');
  EXPECT_EQ(bordered(window), Order{1});
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{2});
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{0});
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{1});
}

TEST_F(SyllableSearchTest, TheArrowsKeepToTheEdgesOfThePicture) {
  auto& window = deal();
  lay(window, {{10, 10}, {1200, 100}, {2400, 100}});
  Label& piece = window.lbl_szótag[0];
  hand::key(window, key::space);
  hand::key(window, key::left);
  hand::key(window, key::up);
  EXPECT_EQ(position(window, 0), (Point{0, 0}));
  for (int i = 0; i < 60; ++i) {
    hand::key(window, key::right);
    hand::key(window, key::down);
  }
  EXPECT_DOUBLE_EQ(piece.Left, window.kép.Width - piece.Width);
  EXPECT_DOUBLE_EQ(piece.Top, window.kép.Height - piece.Height);
  EXPECT_GT(piece.Top, window.szövegtároló.Height) << "out of sight";
}

TEST_F(SyllableSearchTest, TheFirstFocusIsOnTheTrayAndComesBackToIt) {
  auto& window = deal();
  EXPECT_EQ(window.focus(), &window.szövegtároló);
  hand::key(window, key::tab);
  EXPECT_EQ(window.focus(), &window.cmd_kész);
  hand::key(window, key::enter);
  EXPECT_EQ(window.focus(), &window.szövegtároló);
}

TEST_F(SyllableSearchTest, IsPlayedByKeysAlone) {
  auto& window = deal();
  lay(window, {{1500, 100}, {100, 100}, {2400, 100}});
  hand::key(window, key::space);
  EXPECT_EQ(bordered(window), Order{1});
  while (window.lbl_szótag[1].Left <= 1500 || window.lbl_szótag[1].Left >= 2400) hand::key(window, key::right);
  hand::key(window, key::enter);
  EXPECT_EQ(begun(u"good.wav"), 1);
  machine.advance(2000);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "al-ma-fa");
}

TEST_F(SyllableSearchTest, ASelectionOfASyllableThatIsGoneCountsAsNone) {
  auto& window = deal(3);
  for (int i = 0; i < 5; ++i) hand::key(window, key::space);
  deal_next(window, 0);
  EXPECT_EQ(bordered(window), Order{});
  lay(window, {{1200, 100}, {100, 100}, {2400, 100}});
  hand::key(window, key::right);
  EXPECT_EQ(bordered(window), Order{1}) << "the key selects, as with nothing selected";
  EXPECT_EQ(position(window, 1), (Point{100, 100}));
}

TEST_F(SyllableSearchTest, NorIsASyllableMovedThatTheHandStillHeldAtTheNextWord) {
  auto& window = deal(3);
  hand::press(window.lbl_szótag[0], 10, 10);
  deal_next(window, 0);
  const std::vector<Point> before = positions(window);
  hand::move(window.lbl_szótag[0], 500, 500);
  EXPECT_EQ(positions(window), before);
}

// The answer.

TEST_F(SyllableSearchTest, ARightOrderTurnsRedAndIsCountedAfterTwoSeconds) {
  auto& window = deal();
  lay_right(window);
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"good.wav"), 1);
  window.lbl_szótag.each([](const Label& piece) { EXPECT_EQ(piece.ForeColor, (Color{255, 0, 0})); });
  EXPECT_FALSE(window.cmd_kész.Visible);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  machine.advance(1999);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  machine.script_random({record(2)});
  machine.advance(1);
  EXPECT_EQ(captions(window.lbl_eredmény), (std::vector<std::string>{"al-ma-fa", "", ""}));
  EXPECT_EQ(pictures(window.pic_eredmény), (std::vector<std::string>{picture_path(0), "(none)", "(none)"}));
  EXPECT_EQ(captions(window.lbl_szótag), (std::vector<std::string>{"e", "ser", "nyő"}));
  EXPECT_EQ(window.lbl_szótag[0].ForeColor, black);
  EXPECT_TRUE(window.cmd_kész.Visible);
  EXPECT_FALSE(window.Timer1.Enabled);
}

TEST_F(SyllableSearchTest, AWrongOrderIsHeardAndStaysLinedUp) {
  auto& window = deal();
  lay(window, {{2000, 300}, {700, 900}, {1500, 0}});
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"bad.wav"), 1);
  EXPECT_EQ(begun(u"good.wav"), 0);
  EXPECT_EQ(position(window, 1), (Point{700, 900}));
  EXPECT_EQ(window.lbl_szótag[0].Top, 900);
  EXPECT_EQ(window.lbl_szótag[0].ForeColor, black);
  EXPECT_TRUE(window.cmd_kész.Visible);
  machine.advance(5000);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  EXPECT_EQ(captions(window.lbl_szótag), (std::vector<std::string>{"al", "ma", "fa"}));
}

TEST_F(SyllableSearchTest, OnlyTheOrderFromLeftToRightCounts) {
  auto& window = deal();
  lay(window, {{10, 1000}, {20, 0}, {30, 500}});
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"good.wav"), 1);
}

TEST_F(SyllableSearchTest, TwoSyllablesAtTheSameLeftKeepTheirOrder) {
  auto& window = deal();
  lay(window, {{500, 900}, {500, 100}, {1500, 0}});
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"good.wav"), 1);
}

TEST_F(SyllableSearchTest, WithThePictureOnlyTheDrawnWordIsRight) {
  auto& window = deal();
  lay_as(window, {1, 2, 0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"bad.wav"), 1) << "though it spells another word";
}

TEST_F(SyllableSearchTest, TheSolvedSyllablesCanBeDraggedOn) {
  auto& window = deal();
  lay_right(window);
  hand::click(window.cmd_kész);
  hand::drag(window.lbl_szótag[2], 900, 300);
  EXPECT_NEAR(position(window, 2).y, 400, 1);
  hand::key(window, key::enter);
  EXPECT_EQ(begun(u"good.wav"), 1) << "there is nothing to answer";
  machine.advance(2000);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "al-ma-fa");
}

// Without the picture.

TEST_F(SyllableSearchTest, WithoutThePictureItComesWithTheRightAnswer) {
  put_settings(u"szótagkereső.ini", {u" 3 ", u" 7 ", u" 1 "});
  auto& window = deal();
  EXPECT_EQ(picture(window.kép), "(none)");
  lay_as(window, {2, 1, 0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"bad.wav"), 1);
  EXPECT_EQ(picture(window.kép), "(none)");
  lay_right(window);
  hand::click(window.cmd_kész);
  EXPECT_EQ(picture(window.kép), picture_path(0));
}

TEST_F(SyllableSearchTest, WithoutThePictureAnotherWordOfTheRecordsIsRightToo) {
  put_settings(u"szótagkereső.ini", {u" 3 ", u" 7 ", u" 1 "});
  auto& window = deal();
  lay_as(window, {1, 2, 0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(begun(u"good.wav"), 1);
  EXPECT_EQ(window.aktuális_kép(), 1);
  EXPECT_EQ(picture(window.kép), picture_path(1));
  machine.script_random({record(1), record(0)});
  machine.advance(2000);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "ma-fa-al");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(1));
  EXPECT_EQ(window.aktuális_kép(), 0) << "the other word counts as the last one";
}

TEST_F(SyllableSearchTest, WithoutThePictureTheLastRecordIsRightToo) {
  put_settings(u"szótagkereső.ini", {u" 3 ", u" 7 ", u" 1 "});
  auto& window = deal();
  lay_as(window, {2, 0, 1});
  hand::click(window.cmd_kész);
  machine.advance(2000);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "fa-al-ma");
}

} // namespace
} // namespace cserko
