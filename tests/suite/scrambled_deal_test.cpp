// Scrambled word: its design, how it is loaded and closed, and how a puzzle is dealt and scattered.
#include "tests/suite/scrambled_fixture.h"

namespace cserko {
namespace {

class DealTest : public ScrambledTest {};

// Design.

TEST_F(DealTest, StandsInItsDesignPlaces) {
  put_words({u"alma", u"körte"});
  start();
  const frm_cserkó design(session());
  EXPECT_EQ(design.design_size(), (Size{4920, 6330}));
  EXPECT_EQ(place_of(design.lbl_feladat), (Rect{120, 120, 4575, 495}));
  EXPECT_EQ(place_of(design.kép), (Rect{120, 720, 4695, 4695}));
  EXPECT_EQ(place_of(design.betű[0]), (Rect{480, 360, 1095, 1095}));
  EXPECT_EQ(place_of(design.lbl_megoldás), (Rect{120, 5400, 4695, 735}));
  EXPECT_EQ(place_of(design.cmd_újrakever), (Rect{120, 5640, 1095, 255}));
  EXPECT_EQ(place_of(design.cmd_rendez), (Rect{120, 6000, 1095, 255}));
  EXPECT_EQ(place_of(design.cmd_kész), (Rect{1320, 5640, 2295, 615}));
  EXPECT_EQ(place_of(design.cmd_egybetűtfelfed), (Rect{3720, 5640, 1095, 615}));
  EXPECT_EQ(design.betű[0].container(), &design.kép);
}

TEST_F(DealTest, HasItsTexts) {
  put_words({u"alma", u"körte"});
  start();
  const frm_cserkó design(session());
  EXPECT_EQ(utf8(design.Caption), "Cserkó - Cserkó");
  EXPECT_EQ(utf8(design.lbl_feladat.Caption),
            "A keretben egy szó betűit láthatod összekeverve. Rakd ki a betűkből a szót!");
  EXPECT_EQ(utf8(design.lbl_megoldás.Caption), "Megoldás");
  EXPECT_EQ(utf8(design.cmd_újrakever.Caption), "&Újrakever");
  EXPECT_EQ(utf8(design.cmd_rendez.Caption), "&Rendez");
  EXPECT_EQ(utf8(design.cmd_kész.Caption), "Kész");
  EXPECT_EQ(utf8(design.cmd_egybetűtfelfed.Caption), "&Egy betűt felfed");
}

TEST_F(DealTest, HasItsMenu) {
  put_words({u"alma", u"körte"});
  start();
  const frm_cserkó design(session());
  EXPECT_EQ(utf8(design.mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(design.mnu_fájl_újfeladat.Caption), "&Új feladat");
  EXPECT_EQ(utf8(design.mnu_fájl_beálítások.Caption), "&Beállítások");
  EXPECT_EQ(utf8(design.mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(design.mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(design.mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(design.mnu_súgó_súgó.Caption), "&Súgó");
  EXPECT_EQ(design.mnu_súgó_súgó.ShortcutKey, 112);
  EXPECT_EQ(design.mnu_fájl_kilép.container(), &design.mnu_fájl);
  EXPECT_EQ(design.mnu_súgó_súgó.container(), &design.mnu_súgó);
}

TEST_F(DealTest, ThePauseAfterARightAnswerIsThreeSecondsAndOffInTheDesign) {
  put_words({u"alma", u"körte"});
  start();
  const frm_cserkó design(session());
  EXPECT_EQ(design.Timer1.Interval, 3000);
  EXPECT_FALSE(design.Timer1.Enabled);
}

// Loading and closing.

TEST_F(DealTest, LoadingLoadsTheDialogWithIt) {
  deal({u"alma", u"körte"});
  EXPECT_EQ(machine.diary({"load frm_cserkó"}), (std::vector<std::string>{"load frm_cserkó", "load frm_cserkó_beáll"}));
}

TEST_F(DealTest, ClosingByTheMenuUnloadsTheDialogFirst) {
  hand::click(deal({u"alma", u"körte"}).mnu_fájl_kilép);
  EXPECT_EQ(machine.diary({"unload frm_cserkó"}),
            (std::vector<std::string>{"unload frm_cserkó_beáll", "unload frm_cserkó"}));
}

TEST_F(DealTest, ClosingByTheCloseControlUnloadsTheDialogFirst) {
  hand::close(deal({u"alma", u"körte"}));
  EXPECT_EQ(machine.diary({"unload frm_cserkó"}),
            (std::vector<std::string>{"unload frm_cserkó_beáll", "unload frm_cserkó"}));
}

TEST_F(DealTest, TakesNearlyTheWholeScreenAndStandsInItsMiddle) {
  const auto& window = deal({u"alma", u"körte"});
  expect_share_of_screen(window, 0.95);
  EXPECT_EQ(window.Left, (machine.screen_size().width - window.Width) / 2);
  EXPECT_EQ(window.Top, (machine.screen_size().height - window.Height) / 2);
}

TEST_F(DealTest, TheInstructionIsFittedAndKeepsItsText) {
  auto& window = deal({u"alma", u"körte"});
  EXPECT_TRUE(utf8(window.lbl_feladat.Caption).starts_with("A keretben"));
  expect_fitted(window.lbl_feladat);
}

TEST_F(DealTest, TheLetterFontIsTheOneThatFitsAnM) {
  auto& window = deal({u"alma", u"körte"});
  const double box = 1095 * window.kép.Width / 4695; // the design element, scaled
  const double size = window.betű[0].Font.size;
  EXPECT_TRUE(16 * size > 0.9 * box || 23 * size > 0.9 * box);
  EXPECT_TRUE(16 * (size - 1) <= 0.9 * box && 23 * (size - 1) <= 0.9 * box);
  window.betű.each([&](const Label& letter) { EXPECT_EQ(letter.Font.size, size); });
}

TEST_F(DealTest, TheButtonsAreFittedThreePointsSmaller) {
  auto& window = deal({u"alma", u"körte"});
  for (const Button* button : {&window.cmd_kész, &window.cmd_egybetűtfelfed, &window.cmd_újrakever, &window.cmd_rendez})
    expect_fitted(*button, 3);
}

TEST_F(DealTest, HelpOpensThePageOfTheTask) {
  hand::click(deal({u"alma", u"körte"}).mnu_súgó_súgó);
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line),
            "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\Cserkó - A feladat.mht");
}

TEST_F(DealTest, F1OpensTheHelpToo) {
  hand::key(deal({u"alma", u"körte"}), key::f1);
  EXPECT_EQ(machine.processes.size(), 1U);
}

// Which word.

TEST_F(DealTest, TheDrawIsTheWholePartOfRandomTimesTheLastIndex) {
  auto& window = deal({u"alma", u"kos", u"rák", u"hal", u"utolsó"}, 2);
  EXPECT_EQ(window.feladat_index(), 2);
  EXPECT_EQ(captions(window), "r á k ");
}

TEST_F(DealTest, TheLastRecordIsNeverDealt) {
  auto& window = deal({u"alma", u"kos", u"hal"});
  machine.script_random({0.9999999});
  window.beáll();
  EXPECT_EQ(captions(window), "k o s ");
}

TEST_F(DealTest, ADigraphIsOneTile) { EXPECT_EQ(captions(deal({u"dzsessz", u"x"})), "dzs e ssz "); }

TEST_F(DealTest, AtMostCountsLettersNotSyllablesOrCharacters) {
  put_settings(u"kiscserko.ini", {u" 4 ", u"False", u"True", u"False"});
  put_words({u"autó", u"ötöd", u"szalma", u"gyöngy", u"dzsessz", u"csésze", u"x"});
  start();
  // Five letters, four (gy-ö-n-gy).
  machine.script_random({record(2), record(3)});
  auto& window = open<frm_cserkó>();
  EXPECT_EQ(window.feladat_index(), 3);
  // "autó" has three syllables and four letters.
  deal_next(window, 0);
  EXPECT_EQ(window.feladat_index(), 0);
}

TEST_F(DealTest, ExactlyTakesEqualLengthsOnly) {
  put_settings(u"kiscserko.ini", {u" 5 ", u"True", u"False", u"False"});
  put_words({u"alma", u"körte", u"szilvás", u"x"});
  start();
  machine.script_random({record(0), record(2), record(1)});
  EXPECT_EQ(open<frm_cserkó>().feladat_index(), 1);
}

TEST_F(DealTest, AtLeastTakesThatLengthAndMore) {
  put_settings(u"kiscserko.ini", {u" 5 ", u"False", u"False", u"True"});
  put_words({u"alma", u"körte", u"madara", u"x"});
  start();
  machine.script_random({record(0), record(2)});
  auto& window = open<frm_cserkó>();
  EXPECT_EQ(window.feladat_index(), 2);
  deal_next(window, 1);
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(DealTest, AtMostTakesThatLengthAndLess) {
  put_settings(u"kiscserko.ini", {u" 5 ", u"False", u"True", u"False"});
  put_words({u"madara", u"körte", u"kos", u"x"});
  start();
  machine.script_random({record(0), record(1)});
  auto& window = open<frm_cserkó>();
  EXPECT_EQ(window.feladat_index(), 1);
  deal_next(window, 2);
  EXPECT_EQ(window.feladat_index(), 2);
}

TEST_F(DealTest, AWordTooWideForNineTenthsOfTheFrameIsThrownAway) {
  put_words({u"mmmmmmmm", u"kos", u"x"});
  start();
  machine.script_random({record(0), record(1)});
  auto& window = open<frm_cserkó>();
  EXPECT_GT(text_width(window, u"mmmmmmmm"), 0.9 * window.kép.Width);
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(DealTest, AWordOfJustNineTenthsOfTheFrameIsDealt) {
  auto& window = deal({u"eeeeeeeee", u"kos", u"x"}, 1);
  const double width = text_width(window, u"eeeeeeeee");
  window.kép.Width = width / 9 * 10;
  ASSERT_EQ(0.9 * window.kép.Width, width);
  deal_next(window, 0);
  EXPECT_EQ(window.feladat_index(), 0);
  window.kép.Width -= 2;
  machine.script_random({record(0), record(1)});
  window.beáll();
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(DealTest, WithNoOptionOnThePreviousWordStands) {
  auto& window = deal({u"alma", u"kos", u"hal", u"x"}, 1);
  for (int i = 0; i < 3; ++i) dialog().opt_betszám[i].set_value(false);
  window.beáll();
  EXPECT_EQ(window.feladat_index(), 1);
  EXPECT_EQ(captions(window), "k o s ");
}

TEST_F(DealTest, AFileWithThreeTimesFalseDealsNoNewWord) {
  put_settings(u"kiscserko.ini", {u" 12 ", u"False", u"False", u"False"});
  put_words({u"alma", u"kos", u"hal"});
  start();
  auto& window = open<frm_cserkó>();
  for (int i = 0; i < 20; ++i) {
    window.beáll();
    EXPECT_EQ(window.feladat_index(), 0);
  }
}

TEST_F(DealTest, WhereNoWordFitsThePanelSaysWhichSettingToChangeAndTheWindowOpens) {
  put_settings(u"kiscserko.ini", {u" 12 ", u"True", u"False", u"False"});
  put_words({u"alma", u"kos", u"hal"});
  start();
  then_close_message();
  auto& window = open<frm_cserkó>();
  EXPECT_EQ(messages_shown, 1);
  EXPECT_NE(message.find("betűk szám"), std::string::npos) << message;
  EXPECT_TRUE(window.visible());
  // The settings can be relaxed, and the play goes on.
  then_in<frm_cserkó_beáll>([](frm_cserkó_beáll& d) {
    hand::click(d.opt_betszám[1]);
    hand::click(d.OKButton);
  });
  hand::click(window.mnu_fájl_beálítások);
  EXPECT_GE(window.betű.count(), 3);
  EXPECT_TRUE(window.betű[0].Visible);
}

TEST_F(DealTest, WhereNoWordFitsDuringThePlayThePanelSaysSoToo) {
  auto& window = deal({u"alma", u"kos", u"hal"});
  dialog().udbetszám.set_value(12);
  dialog().opt_betszám[0].set_value(true);
  then_close_message();
  hand::click(window.mnu_fájl_újfeladat);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_TRUE(window.visible());
}

// A fresh board.

TEST_F(DealTest, ANewPuzzleShowsLettersAndButtonsAndHidesPictureAndSolution) {
  auto& window = deal({u"alma", u"kos", u"x"});
  EXPECT_FALSE(window.lbl_megoldás.Visible);
  EXPECT_EQ(window.kép.Picture, nullptr);
  EXPECT_FALSE(window.Timer1.Enabled);
  for (const Button* button : {&window.cmd_kész, &window.cmd_egybetűtfelfed, &window.cmd_újrakever, &window.cmd_rendez})
    EXPECT_TRUE(button->Visible);
  window.betű.each([](const Label& letter) { EXPECT_TRUE(letter.Visible); });
}

TEST_F(DealTest, EachLetterHasTheSizeOfItsCaption) {
  auto& window = deal({u"gyöm", u"x"});
  window.betű.each([&](const Label& letter) {
    const Size extent = machine.measure(letter.Font, letter.Caption);
    EXPECT_EQ(letter.Width, extent.width);
    EXPECT_EQ(letter.Height, extent.height);
    EXPECT_FALSE(letter.Border);
  });
}

TEST_F(DealTest, TheElementsOfTheLastPuzzleAreGone) {
  auto& window = deal({u"malac", u"kos", u"x"});
  EXPECT_EQ(window.betű.count(), 5);
  deal_next(window, 1);
  EXPECT_EQ(window.betű.count(), 3);
}

TEST_F(DealTest, ANewPuzzleSelectsNothingAndTakesTheLetterOutOfTheHand) {
  auto& window = deal({u"malac", u"kos", u"x"});
  hand::key(window, key::space);
  hand::press(window.betű[0], 10, 10);
  hand::key(window, key::space);
  deal_next(window, 1);
  EXPECT_TRUE(selected(window).empty());
  const auto before = positions(window);
  hand::move(window.betű[0], 3000, 3000);
  hand::release(window.betű[0], 10, 10);
  hand::key(window, key::right);
  EXPECT_EQ(positions(window), before);
  EXPECT_EQ(selected(window).size(), 1U);
}

TEST_F(DealTest, TheHelpsAreEnabledByTheirCheckBoxesAndStayOnTheScreen) {
  put_settings(u"kiscserko.ini", {u" 12 ", u"False", u"True", u"False", u" 1 ", u" 0 ", u" 2 "});
  auto& window = deal({u"alma", u"kos", u"x"});
  EXPECT_TRUE(window.cmd_újrakever.Enabled);
  EXPECT_FALSE(window.cmd_rendez.Enabled);
  EXPECT_FALSE(window.cmd_egybetűtfelfed.Enabled) << "2 is not ticked";
  EXPECT_TRUE(window.cmd_rendez.Visible);
  EXPECT_TRUE(window.cmd_egybetűtfelfed.Visible);
}

// Scattering.

TEST_F(DealTest, ALetterIsScatteredXFirstWithAMarginOfHundredInXAlone) {
  put_words({u"k", u"x"});
  start();
  machine.script_random({record(0), 0.75, 0.25});
  auto& window = open<frm_cserkó>();
  const Label& letter = window.betű[0];
  EXPECT_EQ(letter.Left, std::floor(0.75 * (window.kép.Width - letter.Width - 100)));
  EXPECT_EQ(letter.Top, std::floor(0.25 * (window.kép.Height - letter.Height)));
}

class PlacementTest : public DealTest {
 protected:
  // Deals "ab" with the letters wanted at these places; of the second letter several tries in turn.
  frm_cserkó& place(Point first, std::initializer_list<Point> second) {
    auto& window = deal({u"ab", u"x"});
    const double width = window.kép.Width - window.betű[0].Width - 100;
    const double height = window.kép.Height - window.betű[0].Height;
    machine.script_random({record(0), drawing(first.x, width), drawing(first.y, height)});
    for (const Point point : second) machine.script_random({drawing(point.x, width), drawing(point.y, height)});
    window.beáll();
    return window;
  }
  double width() { return load<frm_cserkó>().betű[0].Width; }
  double height() { return load<frm_cserkó>().betű[0].Height; }
};

TEST_F(PlacementTest, AnOverlapRedrawsBothCoordinates) {
  auto& window = place({1000, 1000}, {{1000, 1000}, {1100, 1100}, {5000, 3000}});
  EXPECT_EQ(positions(window), (std::vector<Point>{{1000, 1000}, {5000, 3000}}));
}

TEST_F(PlacementTest, TouchingAtTheRightIsNoOverlap) {
  deal({u"ab", u"x"});
  const double right = 1000 + width();
  end_session();
  auto& window = place({1000, 1000}, {{right, 1000}});
  EXPECT_EQ(window.betű[1].Left, right);
}

TEST_F(PlacementTest, OneTwipLessAtTheRightIsAnOverlap) {
  deal({u"ab", u"x"});
  const double right = 1000 + width();
  end_session();
  auto& window = place({1000, 1000}, {{right - 1, 1000}, {right, 1000}});
  EXPECT_EQ(window.betű[1].Left, right);
}

TEST_F(PlacementTest, TouchingBelowIsNoOverlapAndOneTwipLessIs) {
  deal({u"ab", u"x"});
  const double below = 1000 + height();
  end_session();
  auto& window = place({1000, 1000}, {{1000, below - 1}, {1000, below}});
  EXPECT_EQ(window.betű[1].Top, below);
}

TEST_F(PlacementTest, TouchingAtTheLeftAndAboveIsNoOverlap) {
  deal({u"ab", u"x"});
  const double left = 4000 - width();
  const double above = 4000 - height();
  end_session();
  auto& window = place({4000, 4000}, {{left + 1, above + 1}, {left, 4000}});
  EXPECT_EQ(window.betű[1].Left, left);
}

TEST_F(PlacementTest, TouchingAboveIsNoOverlapAndOneTwipLessIs) {
  deal({u"ab", u"x"});
  const double above = 4000 - height();
  end_session();
  auto& window = place({4000, 4000}, {{4000, above + 1}, {4000, above}});
  EXPECT_EQ(window.betű[1].Top, above);
}

TEST_F(PlacementTest, NoLettersOverlapAfterScattering) {
  auto& window = deal({u"virágok", u"x"});
  for (int round = 0; round < 50; ++round) {
    window.beáll();
    for (int i = 0; i < window.betű.count(); ++i) {
      for (int j = 0; j < i; ++j) {
        const Label& a = window.betű[i];
        const Label& b = window.betű[j];
        const bool apart = a.Left >= b.Left + b.Width || b.Left >= a.Left + a.Width || a.Top >= b.Top + b.Height ||
                           b.Top >= a.Top + a.Height;
        ASSERT_TRUE(apart);
      }
    }
  }
}

} // namespace
} // namespace cserko
