// What entertains in the main window while nobody plays: the slide show with its swapping letters, and the line
// drawing with its nine figures.
#include "core/frm_főablak.h"
#include "feedback/frm_hangbeáll.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

// The timer's interval of 1 ms means "as fast as the machine likes".
constexpr int tick = idle_pace;

class DecorationTest : public SuiteTest {
 protected:
  /// Starts with the given words; the slide show begins with the record of that index.
  frm_főablak& with_words(std::initializer_list<TextView> names, int first = 0) {
    put_words(names);
    start();
    // One draw for the figure, one for the picture of the load, one for that of the first tick.
    machine.script_random({0.0, 0.0, session().képek.képszám > 0 ? record(first) : 0.0});
    auto& main = load<frm_főablak>();
    machine.show(main);
    return main;
  }
  frm_főablak_beállítások& settings_boxes() { return load<frm_főablak_beállítások>(); }
  static std::string caption(frm_főablak& main) { return utf8(main.lbldisz.Caption); }
  void ticks(int count) { machine.advance(count * tick); }
};

TEST_F(DecorationTest, TheTimerIsSetToOneMillisecondAndOffInTheDesign) {
  put_words({u"alma"});
  start();
  frm_főablak design(session());
  EXPECT_EQ(design.Timer1.Interval, 1);
  EXPECT_FALSE(design.Timer1.Enabled);
  EXPECT_TRUE(load<frm_főablak>().Timer1.Enabled);
}

TEST_F(DecorationTest, RoundStateStartsAsDesigned) {
  put_words({u"alma", u"körte"});
  start();
  frm_főablak design(session());
  EXPECT_EQ(design.cserélő, -100);
  EXPECT_EQ(design.drawing.lépés, 0);
  EXPECT_EQ(design.drawing.szürke, 0);
  EXPECT_EQ(design.drawing.szürke_lépés, 128);
  EXPECT_EQ(design.drawing.szélesség, 0);
  EXPECT_EQ(design.drawing.görbe_szög, 0);
  EXPECT_EQ(design.drawing.görbe_lépés, 0);
  EXPECT_EQ(design.drawing.görbe_arány, 0);
}

TEST_F(DecorationTest, ThePanelIsWhite) {
  auto& main = with_words({u"alma", u"körte"});
  EXPECT_EQ(main.dísz.BackColor, white);
}

// Slide show.

TEST_F(DecorationTest, ShowsARandomPictureWithItsName) {
  auto& main = with_words({u"alma", u"körte", u"szilva"}, 1);
  EXPECT_EQ(caption(main), "körte");
  ASSERT_NE(main.dísz.Picture, nullptr);
  EXPECT_EQ(utf8(main.dísz.Picture->path()), "c:\\cserko\\kepek\\2.wmf");
}

TEST_F(DecorationTest, TheLastRecordIsNeverShown) {
  put_words({u"alma", u"körte"});
  start();
  auto& main = open<frm_főablak>();
  for (int i = 0; i < 50; ++i) {
    main.új_kép();
    ASSERT_EQ(caption(main), "alma");
  }
}

TEST_F(DecorationTest, WithTheIndexZeroAsLastNoPictureIsDrawnAndTheOldOneStays) {
  put_words({u"alma", u"körte"});
  start();
  auto& main = open<frm_főablak>();
  session().képek.képszám = 0;
  const PicturePtr before = main.dísz.Picture;
  const int loads = machine.picture_loads;
  machine.advance(120000);
  hand::click(main.dísz);
  EXPECT_EQ(machine.picture_loads, loads);
  EXPECT_EQ(main.dísz.Picture, before);
  EXPECT_EQ(caption(main), "alma");
}

TEST_F(DecorationTest, TheNameIsFittedToNineTenthsOfItsLabel) {
  auto& main = with_words({u"alma", u"körte"});
  const double size = main.lbldisz.Font.size;
  const auto overfills = [&](double points) {
    return 46 * points > 0.9 * main.lbldisz.Width || 23 * points > 0.9 * main.lbldisz.Height;
  };
  EXPECT_TRUE(overfills(size));
  EXPECT_FALSE(overfills(size - 1));
}

TEST_F(DecorationTest, TheFirstPictureIsDrawnAfterASeedingFromTheClock) {
  put_words({u"alma", u"körte"});
  start();
  const int seedings = machine.seedings;
  load<frm_főablak>();
  EXPECT_EQ(machine.seedings, seedings + 1);
}

TEST_F(DecorationTest, APictureStaysEightAndAHalfSecondsForEachCharacter) {
  // "alma": 4 × 8.64 s.
  auto& main = with_words({u"alma", u"körte", u"szilva"});
  const int loads = machine.picture_loads;
  machine.advance(34500);
  EXPECT_EQ(machine.picture_loads, loads);
  machine.script_random({record(1)});
  machine.advance(2 * tick + 60);
  EXPECT_EQ(machine.picture_loads, loads + 1);
  EXPECT_EQ(caption(main), "körte");
  EXPECT_LE(main.cserélő, -98);
}

TEST_F(DecorationTest, APictureStaysItsWholeTimeAgainWhenTheWindowComesBack) {
  auto& main = with_words({u"alma", u"körte", u"szilva"});
  const int loads_before = machine.picture_loads;
  machine.advance(30000);
  EXPECT_EQ(machine.picture_loads, loads_before);
  then_in<frm_hangbeáll>([](frm_hangbeáll& sounds) { hand::click(sounds.cmd_mégsem); });
  hand::click(main.mnu_file_eseményhangok_beállításai);
  const int loads = machine.picture_loads; // with the icons of the settings
  machine.advance(34500);
  EXPECT_EQ(machine.picture_loads, loads);
  machine.advance(2 * tick + 60);
  EXPECT_EQ(machine.picture_loads, loads + 1);
}

TEST_F(DecorationTest, AClickOnThePanelBringsTheNextPicture) {
  auto& main = with_words({u"alma", u"körte", u"szilva"});
  machine.script_random({record(1)});
  hand::click(main.dísz);
  EXPECT_EQ(caption(main), "körte");
}

TEST_F(DecorationTest, AClickOnTheNameGrowsItForThisPictureOnly) {
  auto& main = with_words({u"alma", u"körte", u"szilva"});
  const double size = main.lbldisz.Font.size;
  hand::click(main.lbldisz);
  hand::click(main.lbldisz);
  EXPECT_EQ(main.lbldisz.Font.size, size + 2);
  machine.script_random({record(0)});
  hand::click(main.dísz);
  EXPECT_EQ(main.lbldisz.Font.size, size);
}

TEST_F(DecorationTest, APictureThatIsMissingIsReplacedByItsName) {
  put_word({u"alma", {}, {}, false});
  auto& main = with_words({u"körte"});
  EXPECT_EQ(caption(main), "alma");
  EXPECT_EQ(drawn(main.dísz).texts().size(), 1U);
  machine.advance(1000);
}

// Swapping letters.

class SwappingTest : public DecorationTest {
 protected:
  frm_főablak& showing(TextView name) {
    put_settings(u"főablak.ini", {u" 0 ", u" 1 ", u" 0 "});
    auto& main = with_words({name, u"x"});
    EXPECT_EQ(caption(main), utf8(name));
    return main;
  }
  /// Lets the counter run up to just before a swap, and then swaps at a position.
  void swap_at(frm_főablak& main, int position, int letters) {
    main.cserélő = 21;
    main.képváltás_ideje = machine.now();
    // The position is the whole part of (1 + (letters − 1) × random).
    machine.script_random({letters > 1 ? (position - 1 + 0.5) / (letters - 1) : 0.0});
    ticks(1);
  }
};

TEST_F(SwappingTest, ANewPictureKeepsItsSpellingFor121TicksThenASwapComesEvery21) {
  auto& main = showing(u"virágcserép");
  main.cserélő = -100;
  main.képváltás_ideje = machine.now();
  ticks(121);
  EXPECT_EQ(main.cserélő, 21);
  EXPECT_EQ(caption(main), "virágcserép");
  ticks(1);
  EXPECT_EQ(main.cserélő, 0);
  const std::string once = caption(main);
  EXPECT_NE(once.size(), std::string("virágcserép").size());
  ticks(21);
  EXPECT_EQ(caption(main), once);
  EXPECT_EQ(main.cserélő, 21);
  ticks(1);
  EXPECT_NE(caption(main), once);
}

TEST_F(SwappingTest, TheLetterBehindThePairFallsOut) {
  auto& main = showing(u"abcdef");
  swap_at(main, 2, 6);
  EXPECT_EQ(caption(main), "acbef");
}

TEST_F(SwappingTest, APairAtTheBeginningAndAtTheEnd) {
  auto& main = showing(u"abcdef");
  swap_at(main, 1, 6);
  EXPECT_EQ(caption(main), "badef");
  swap_at(main, 4, 5);
  EXPECT_EQ(caption(main), "badfe");
}

TEST_F(SwappingTest, SwapsWorkOnTheScrambledName) {
  auto& main = showing(u"abcdef");
  swap_at(main, 2, 6);
  swap_at(main, 1, 5);
  EXPECT_EQ(caption(main), "caef");
}

TEST_F(SwappingTest, ADigraphMovesAsOneLetter) {
  auto& main = showing(u"aszdzsb");
  // a, sz, dzs, b
  swap_at(main, 2, 4);
  EXPECT_EQ(caption(main), "adzssz");
}

TEST_F(SwappingTest, TwoLettersSimplySwap) {
  auto& main = showing(u"ab");
  swap_at(main, 1, 2);
  EXPECT_EQ(caption(main), "ba");
}

TEST_F(SwappingTest, OneLetterBecomesTheSameTwice) {
  auto& main = showing(u"a");
  swap_at(main, 1, 1);
  EXPECT_EQ(caption(main), "aa");
}

TEST_F(SwappingTest, EverySwapSeedsTheGenerator) {
  auto& main = showing(u"abcdef");
  const int seedings = machine.seedings;
  swap_at(main, 2, 6);
  EXPECT_EQ(machine.seedings, seedings + 1);
}

TEST_F(SwappingTest, NothingSwapsUnlessItIsTurnedOn) {
  auto& main = showing(u"abcdef");
  settings_boxes().Chkcserkózás.set_value(0);
  main.cserélő = 21;
  main.képváltás_ideje = machine.now();
  ticks(3);
  EXPECT_EQ(caption(main), "abcdef");
  EXPECT_EQ(main.cserélő, 24);
}

TEST_F(SwappingTest, ANewPictureBringsACleanName) {
  auto& main = showing(u"abcdef");
  swap_at(main, 2, 6);
  hand::click(main.dísz);
  EXPECT_EQ(caption(main), "abcdef");
}

// Line drawing.

class LineDrawingTest : public DecorationTest {
 protected:
  frm_főablak& with_figure(int figure) {
    put_settings(u"főablak.ini", {u" 0 ", u" 0 ", u" 1 "});
    put_words({u"alma", u"körte"});
    start();
    machine.script_random({drawing(figure, 9)});
    if (figure == 8) machine.script_random({0.25}); // the curve's own number
    auto& main = open<frm_főablak>();
    EXPECT_EQ(main.drawing.alak, figure);
    main.Timer1.Enabled = false; // the tests tick by hand
    return main;
  }
  static void tick_once(frm_főablak& main) { main.Timer1.Tick(); }
  /// Ticks until the present pass is over.
  static void run_pass(frm_főablak& main) {
    int before = -1;
    while (main.drawing.lépés > before) {
      before = main.drawing.lépés;
      tick_once(main);
    }
  }
  std::size_t lines(frm_főablak& main) { return drawn(main.dísz).drawings().size(); }
  /// Runs a pass and expects that nothing is drawn by lot, though the lot would fall on another figure.
  void expect_no_lot_in_pass(frm_főablak& main) {
    machine.script_random({drawing(5, 6), drawing(4, 9)});
    run_pass(main);
    EXPECT_EQ(machine.scripted_random_left(), 2U);
    while (machine.scripted_random_left() > 0) machine.random();
  }
};

TEST_F(LineDrawingTest, HasNoPictureAndNoName) {
  auto& main = with_figure(0);
  EXPECT_EQ(main.dísz.Picture, nullptr);
  EXPECT_EQ(caption(main), "");
  EXPECT_EQ(machine.picture_loads, 1) << "the paper of the background alone";
}

TEST_F(LineDrawingTest, AStepIsASixtiethOfTheWidth) {
  auto& main = with_figure(0);
  const int width = main.drawing.szélesség;
  EXPECT_EQ(width, static_cast<int>(std::lround(main.dísz.Width)));
  const int first = main.drawing.lépés;
  EXPECT_NEAR(first, width / 60.0, 0.5);
  tick_once(main);
  EXPECT_NEAR(main.drawing.lépés, first + width / 60.0, 0.5);
}

TEST_F(LineDrawingTest, APassEndsOneStepBehindHalfTheWidth) {
  auto& main = with_figure(7);
  const double end = main.drawing.szélesség / 2.0 + main.drawing.szélesség / 60.0;
  int last = 0;
  while (main.drawing.szürke == 0) {
    last = main.drawing.lépés;
    tick_once(main);
  }
  EXPECT_EQ(main.drawing.lépés, 0);
  EXPECT_LT(last, end);
  EXPECT_GE(std::nearbyint(last + main.drawing.szélesség / 60.0), end) << "no step sooner";
}

TEST_F(LineDrawingTest, EveryTickSeedsTheGenerator) {
  auto& main = with_figure(0);
  const int seedings = machine.seedings;
  tick_once(main);
  tick_once(main);
  EXPECT_EQ(machine.seedings, seedings + 2);
}

TEST_F(LineDrawingTest, EachTickAddsAFewLinesAndEachFigureDraws) {
  for (int figure = 0; figure < 9; ++figure) {
    auto& main = with_figure(figure);
    const std::size_t least = figure <= 2 ? 16 : figure == 6 ? 4 : 1;
    const std::size_t most = figure <= 2 ? 20 : figure == 6 ? 4 : figure == 8 ? 1 : 40;
    for (int i = 0; i < 5; ++i) {
      const std::size_t before = lines(main);
      tick_once(main);
      const std::size_t added = lines(main) - before;
      EXPECT_TRUE(added >= least && added <= most) << figure << ": " << added;
    }
    end_session();
  }
}

TEST_F(LineDrawingTest, TheNarrowingFrameFollowsTheArctangent) {
  auto& main = with_figure(6);
  tick_once(main);
  const auto& all = drawn(main.dísz).drawings();
  const double width = main.drawing.szélesség;
  const double x = std::atan(main.drawing.lépés / (width / 2) * 3.14159265358979) * (width / 2.4) + width / 2;
  std::vector<double> ends;
  for (std::size_t i = all.size() - 4; i < all.size(); ++i) ends.push_back(all[i].from.x + all[i].from.y);
  std::sort(ends.begin(), ends.end());
  EXPECT_NEAR(ends[0], width - x, 1e-6);
  EXPECT_NEAR(ends[1], width - x, 1e-6);
  EXPECT_NEAR(ends[2], x, 1e-6);
  EXPECT_NEAR(ends[3], x, 1e-6);
}

TEST_F(LineDrawingTest, TheGreyRunsThroughBlackMiddleAndWhiteAndBack) {
  auto& main = with_figure(7); // never changes by itself
  std::vector<int> greys{main.drawing.szürke};
  for (int i = 0; i < 6; ++i) {
    run_pass(main);
    greys.push_back(main.drawing.szürke);
  }
  EXPECT_EQ(greys, (std::vector<int>{0, 128, 256, 128, 0, 128, 256}));
}

TEST_F(LineDrawingTest, GreyAbove255CountsAs255) {
  auto& main = with_figure(7);
  run_pass(main);
  run_pass(main);
  ASSERT_EQ(main.drawing.szürke, 256);
  EXPECT_EQ(drawn(main.dísz).drawings().back().color, white);
}

TEST_F(LineDrawingTest, AfterTheWhitePassTheFigureChangesWithAChanceOfOneInSix) {
  auto& main = with_figure(0);
  run_pass(main);
  run_pass(main);
  ASSERT_EQ(main.drawing.szürke, 256);
  machine.script_random({drawing(5, 6), drawing(4, 9)});
  main.dísz.Tag = u"q";
  run_pass(main);
  EXPECT_EQ(main.drawing.alak, 4);
  EXPECT_EQ(utf8(main.dísz.Tag), "");
  EXPECT_EQ(main.drawing.szürke, 128);
}

TEST_F(LineDrawingTest, OtherwiseTheFigureStaysAfterTheWhitePass) {
  auto& main = with_figure(0);
  run_pass(main);
  run_pass(main);
  machine.script_random({drawing(4, 6)});
  run_pass(main);
  EXPECT_EQ(main.drawing.alak, 0);
}

TEST_F(LineDrawingTest, OnlyTheWhitePassChangesTheFigure) {
  auto& main = with_figure(0);
  run_pass(main);
  run_pass(main);
  machine.script_random({drawing(0, 6)});
  run_pass(main);
  run_pass(main);
  ASSERT_EQ(main.drawing.szürke, 0);
  expect_no_lot_in_pass(main);
  EXPECT_EQ(main.drawing.alak, 0);
  EXPECT_EQ(main.drawing.szürke, 128);
}

TEST_F(LineDrawingTest, NothingOfTheOldFigureIsLeftWhenItChangesByItself) {
  auto& main = with_figure(0);
  run_pass(main);
  run_pass(main);
  machine.script_random({drawing(5, 6), drawing(6, 9)});
  const int clearings = drawn(main.dísz).clearings();
  run_pass(main);
  ASSERT_EQ(main.drawing.alak, 6);
  EXPECT_EQ(drawn(main.dísz).clearings(), clearings + 1) << "smoothed edges outlive a white pass";
  EXPECT_EQ(lines(main), 4U) << "the first step of the new figure";
}

TEST_F(LineDrawingTest, AFigureThatStaysIsNotCleared) {
  auto& main = with_figure(0);
  run_pass(main);
  run_pass(main);
  machine.script_random({drawing(4, 6)});
  const int clearings = drawn(main.dísz).clearings();
  run_pass(main);
  EXPECT_EQ(drawn(main.dísz).clearings(), clearings);
}

TEST_F(LineDrawingTest, TheCurvesAreLeftByAClickAlone) {
  for (const int figure : {7, 8}) {
    auto& main = with_figure(figure);
    for (int i = 0; i < 12; ++i) expect_no_lot_in_pass(main);
    EXPECT_EQ(main.drawing.alak, figure);
    machine.script_random({drawing(2, 9)});
    hand::click(main.dísz);
    EXPECT_EQ(main.drawing.alak, 2);
    end_session();
  }
}

TEST_F(LineDrawingTest, AClickTakesARandomFigureAndClearsThePanel) {
  auto& main = with_figure(3);
  tick_once(main);
  EXPECT_GT(lines(main), 0U);
  main.dísz.Tag = u"q";
  machine.script_random({drawing(8, 9)});
  hand::click(main.dísz);
  EXPECT_EQ(main.drawing.alak, 8);
  EXPECT_EQ(lines(main), 0U);
  EXPECT_EQ(utf8(main.dísz.Tag), "");
}

TEST_F(LineDrawingTest, TheWanderingCurveStartsWithARandomNumberAndJoinsItsPoints) {
  auto& main = with_figure(8);
  EXPECT_EQ(utf8(main.dísz.Tag), "q");
  EXPECT_EQ(main.drawing.görbe_arány, 0.25);
  EXPECT_EQ(main.drawing.görbe_lépés, 40);
  EXPECT_EQ(lines(main), 0U);
  tick_once(main);
  tick_once(main);
  const auto& all = drawn(main.dísz).drawings();
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].to, all[1].from);
  EXPECT_NEAR(main.drawing.görbe_szög, 3 * 3.14159265358979 / 40, 1e-9);
}

TEST_F(LineDrawingTest, TheRosetteHasItsConstants) {
  auto& main = with_figure(7);
  EXPECT_EQ(main.drawing.görbe_lépés, 3000);
  EXPECT_EQ(main.drawing.görbe_arány, 100);
  const double steps = main.drawing.görbe_szög / (3.14159265358979 / 3000 + 0.001);
  EXPECT_GE(steps, 1);
  EXPECT_NEAR(steps, std::nearbyint(steps), 1e-9) << "points lie a step of the angle apart";
}

TEST_F(LineDrawingTest, WhereAPictureWasShownTheDrawingBeginsOnAnEmptyPanel) {
  auto& main = with_words({u"alma", u"körte"});
  main.Timer1.Enabled = false;
  settings_boxes().rajz.set_value(1);
  tick_once(main);
  EXPECT_EQ(main.dísz.Picture, nullptr);
  EXPECT_EQ(caption(main), "");
  EXPECT_GT(lines(main), 0U);
}

TEST_F(LineDrawingTest, TheOptionChoosesTheBranchAtEveryTick) {
  auto& main = with_figure(0);
  settings_boxes().rajz.set_value(0);
  machine.script_random({record(0)});
  machine.advance(tick);
  tick_once(main);
  EXPECT_EQ(caption(main), "alma");
}

} // namespace
} // namespace cserko
