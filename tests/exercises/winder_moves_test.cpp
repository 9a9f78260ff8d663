// Tekergő: the keys, the slides of row and columns frame by frame, and what comes while they slide.
#include "tests/exercises/winder_fixture.h"

namespace cserko {
namespace {

class WinderMovesTest : public WinderTest {
 protected:
  /// What was seen in each frame until now.
  std::vector<std::string> film;
  void watch(const std::function<std::string()>& look) {
    machine.during_frame = [this, look] { film.push_back(look()); };
  }
  /// How far a cell has come from its place, in hundredths of a cell.
  static int down(const frmverem& window, int column, int row) {
    const Label& cell = window.cell(column, row);
    const Label& other = window.cell((column + 1) % 10, row);
    return rounded((cell.Top - other.Top) / other.Height * 100);
  }
  static int right(const frmverem& window, int column) {
    const Label& above = window.cell(column, 7);
    return rounded((window.cell(column, 8).Left - above.Left) / above.Width * 100);
  }
};

TEST_F(WinderMovesTest, ArrowsMoveTheCursorWithASoundAndWrapAtBothEnds) {
  auto& window = empty_game();
  hand::key(window, key::left);
  EXPECT_EQ(window.kurzor(), 3);
  EXPECT_EQ(highlights(window), (std::vector<int>{3}));
  EXPECT_EQ(heard(), step_sound);
  hand::key(window, key::home);
  hand::key(window, key::left);
  EXPECT_EQ(window.kurzor(), 9);
  hand::key(window, key::right);
  EXPECT_EQ(window.kurzor(), 0);
  EXPECT_EQ(highlights(window), (std::vector<int>{0}));
  hand::key(window, key::right);
  EXPECT_EQ(window.kurzor(), 1);
  EXPECT_EQ(heard(), step_sound + " " + step_sound + " " + step_sound);
}

TEST_F(WinderMovesTest, HomeAndEndMoveSilently) {
  auto& window = empty_game();
  hand::key(window, key::end);
  EXPECT_EQ(window.kurzor(), 9);
  hand::key(window, key::home);
  EXPECT_EQ(window.kurzor(), 0);
  EXPECT_EQ(highlights(window), (std::vector<int>{0}));
  EXPECT_EQ(heard(), "");
}

TEST_F(WinderMovesTest, TheHighlightIsTakenBackExactly) {
  auto& window = empty_game();
  const Rect before = place_of(window.cell(5, 8));
  const double size = window.cell(5, 8).Font.size;
  hand::key(window, key::right);
  hand::key(window, key::right);
  const Label& cell = window.cell(5, 8);
  EXPECT_NEAR(cell.Left, before.left, 0.001);
  EXPECT_NEAR(cell.Top, before.top, 0.001);
  EXPECT_NEAR(cell.Width, before.width, 0.001);
  EXPECT_NEAR(cell.Height, before.height, 0.001);
  EXPECT_EQ(cell.Font.size, size);
  EXPECT_FALSE(cell.Opaque);
  EXPECT_EQ(cell.Tag, u"0");
}

TEST_F(WinderMovesTest, TheRowTurnsRoundByKeysOfThreeKinds) {
  auto& window = empty_game();
  const std::string start = "a|b|c|d|e|f|g|h|i|j";
  const std::string to_right = "j|a|b|c|d|e|f|g|h|i";
  const std::string to_left = "b|c|d|e|f|g|h|i|j|a";
  const auto turned = [&](int code, int shift = shift::none) {
    put_row(window, start);
    hand::key(window, code, shift);
    EXPECT_EQ(heard(), move_sound);
    EXPECT_EQ(highlights(window), (std::vector<int>{4}));
    return row(window);
  };
  EXPECT_EQ(turned(key::space), to_right);
  EXPECT_EQ(turned('X'), to_right);
  EXPECT_EQ(turned(key::right, shift::control), to_right);
  EXPECT_EQ(turned(key::right, shift::shift), to_right);
  EXPECT_EQ(turned('Y'), to_left);
  EXPECT_EQ(turned(key::left, shift::control), to_left);
  EXPECT_EQ(turned(key::left, shift::shift), to_left);
}

TEST_F(WinderMovesTest, ATurnSlidesNineCellsInSevenFrames) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  watch([&] {
    std::string all;
    for (const int column : {0, 4, 8, 9}) all += std::to_string(right(window, column)) + " ";
    return all + row(window).substr(0, 3);
  });
  hand::key(window, 'X');
  EXPECT_EQ(film, (std::vector<std::string>{"0 0 0 0 a|b", "17 17 17 0 a|b", "33 33 33 0 a|b", "50 50 50 0 a|b",
                                            "67 67 67 0 a|b", "83 83 83 0 a|b", "100 100 100 0 a|b"}));
  film.clear();
  watch([&] { return std::to_string(right(window, 0)) + " " + std::to_string(right(window, 9)); });
  hand::key(window, 'Y');
  EXPECT_EQ(film.front(), "0 0");
  EXPECT_EQ(film.back(), "0 -100");
  EXPECT_EQ(film.size(), 7U);
  EXPECT_EQ(right(window, 9), 0);
}

TEST_F(WinderMovesTest, AColumnMovesDownAndUpByOneRow) {
  auto& window = empty_game();
  put_column(window, 4, 6, u"abcde");
  hand::key(window, key::down);
  EXPECT_EQ(column(window, 4), ".......abcde.....");
  EXPECT_EQ(heard(), move_sound);
  hand::key(window, key::up);
  hand::key(window, key::up);
  EXPECT_EQ(column(window, 4), ".....abcde.......");
  window.cell(4, 0).Caption = u"q";
  heard();
  hand::key(window, key::up);
  EXPECT_EQ(column(window, 4), "q....abcde.......") << "the cell at the upper end is taken";
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
}

TEST_F(WinderMovesTest, AColumnNeitherLeavesTheBoardNorTakesItsLastLetterOutOfTheRow) {
  auto& window = empty_game();
  hand::key(window, key::end);
  heard();
  put_column(window, 9, 8, u"abcdefghi");
  const std::string full = column(window, 9);
  hand::key(window, key::down); // nothing above, and the lowest letter in row 16
  EXPECT_EQ(column(window, 9), full);
  window.cell(9, 16).Caption = u" ";
  hand::key(window, key::down); // nothing above the middle row
  EXPECT_EQ(column(window, 9), "........abcdefgh.");
  window.cell(9, 16).Caption = u"i";
  window.cell(9, 7).Caption = u"z";
  hand::key(window, key::down); // the lowest letter in row 16
  EXPECT_EQ(column(window, 9), ".......zabcdefghi");
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(machine.frames, 0);
  put_column(window, 9, 7, u" a        ");
  hand::key(window, key::up);
  hand::key(window, key::down);
  EXPECT_EQ(column(window, 9), "........a........") << "the last letter of a column stays";
  EXPECT_EQ(heard(), "");
}

TEST_F(WinderMovesTest, APushSlidesSixteenCellsInFiveFrames) {
  auto& window = empty_game();
  hand::key(window, key::end);
  put_column(window, 9, 7, u"abc");
  watch([&] {
    std::string all;
    for (const int row : {0, 7, 8, 15, 16}) all += std::to_string(down(window, 9, row)) + " ";
    return all;
  });
  hand::key(window, key::down);
  EXPECT_EQ(film, (std::vector<std::string>{"0 0 0 0 0 ", "25 25 25 25 0 ", "50 50 50 50 0 ", "75 75 75 75 0 ",
                                            "100 100 100 100 0 "}));
  film.clear();
  hand::key(window, key::up);
  EXPECT_EQ(film.size(), 5U);
  EXPECT_EQ(film.back(), "0 -100 -100 -100 -100 ");
  EXPECT_EQ(down(window, 9, 3), 0) << "and then every cell is back at its place";
}

TEST_F(WinderMovesTest, AGapInTheRowIsClosedFromAboveFirstElseFromBelow) {
  auto& window = empty_game();
  put_row(window, "a|b|c| |e|f|g|h|i|j");
  put_column(window, 4, 6, u"xy");
  put_column(window, 4, 9, u"z");
  hand::key(window, 'X');
  EXPECT_EQ(column(window, 4), ".......xyz.......");
  put_row(window, "a|b|c| |e|f|g|h|i|j");
  window.cell(4, 7).Caption = u" ";
  put_column(window, 4, 9, u"zu");
  hand::key(window, 'X');
  EXPECT_EQ(column(window, 4), "........zu.......") << "only the half beyond the gap has moved";
}

TEST_F(WinderMovesTest, AGapWithNothingBeyondStays) {
  auto& window = empty_game();
  put_row(window, "a|b|c| |e|f|g|h|i|j");
  hand::key(window, 'X');
  EXPECT_EQ(row(window), "j|a|b|c| |e|f|g|h|i");
}

TEST_F(WinderMovesTest, AGapClosesInEightFramesAndTheCursorKeepsItsPlace) {
  auto& window = empty_game();
  put_row(window, "a|b|c| |e|f|g|h|i|j");
  put_column(window, 4, 6, u"xy");
  const Rect cursor = place_of(window.cell(4, 8));
  machine.during_frame = [&] {
    if (machine.frames <= 7) return;
    film.push_back(std::to_string(down(window, 4, 7)) + " " + std::to_string(down(window, 4, 9)));
    EXPECT_FALSE(window.cell(4, 8).Border);
    EXPECT_EQ(place_of(window.cell(4, 8)), cursor);
  };
  hand::key(window, 'X');
  EXPECT_EQ(film, (std::vector<std::string>{"0 0", "14 0", "29 0", "43 0", "57 0", "71 0", "86 0", "100 0"}));
  EXPECT_EQ(place_of(window.cell(4, 8)), cursor);
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
}

TEST_F(WinderMovesTest, LettersHaveAnEdgeAndEmptyCellsHaveNone) {
  auto& window = deal();
  hand::key(window, 'X');
  window.betű.each(
      [&](const Label& cell) { EXPECT_EQ(cell.Border, cell.Caption != u" " || cell.Tag == u"1") << cell.Index; });
}

// What comes while the letters slide.

TEST_F(WinderMovesTest, AKeyThatComesDuringASlideEndsItAtOnceAndFollowsIt) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  machine.during_frame = [&] {
    if (machine.frames == 2) hand::key(window, 'X');
    if (machine.frames == 5) hand::key(window, key::right);
  };
  hand::key(window, 'X');
  EXPECT_EQ(row(window), "i|j|a|b|c|d|e|f|g|h") << "both turns";
  EXPECT_EQ(window.kurzor(), 5);
  EXPECT_EQ(machine.frames, 5) << "two frames of the first slide and three of the second";
  EXPECT_EQ(heard(), move_sound + " " + move_sound + " " + step_sound);
}

TEST_F(WinderMovesTest, NoKeyIsLostAndNoneActsTwiceHoweverManyComeInAFrame) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  put_column(window, 4, 7, u"x");
  int keys = 0;
  machine.during_frame = [&] {
    if (keys > 0) return;
    keys = 1;
    for (const int code : {int{'X'}, int{'Y'}, int{'Y'}, key::right, int{'Y'}, key::left, int{'X'}, key::down})
      hand::key(window, code);
  };
  hand::key(window, 'Y');
  EXPECT_EQ(row(window), "c|d|e|f|x|h|i|j|a|b");
  EXPECT_EQ(window.cell(4, 9).Caption, u"g");
  EXPECT_EQ(window.kurzor(), 4);
}

TEST_F(WinderMovesTest, EveryKeyIsAnsweredInTheNextFrameAtTheLatest) {
  auto& window = empty_game();
  put_row(window, "a|b|c| |e|f|g|h|i|j");
  put_column(window, 4, 7, u"x");
  std::int64_t pressed = 0;
  std::int64_t latest = 0;
  bool waits = false;
  std::string before;
  machine.during_frame = [&] {
    if (waits && row(window) != before) {
      latest = std::max(latest, machine.now() - pressed);
      waits = false;
    }
    if (waits || machine.frames % 3 != 0 || machine.frames > 60) return;
    before = row(window);
    pressed = machine.now();
    waits = true;
    hand::key(window, 'X');
  };
  hand::key(window, 'X');
  EXPECT_GT(machine.frames, 40);
  EXPECT_LE(latest, 50);
}

TEST_F(WinderMovesTest, AKeyThatIsHeldDownDoesNotGoOnBehindItsRelease) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  const KeyEvent pressed{'X', shift::none, u'x'};
  KeyEvent held = pressed;
  held.repeated = true;
  machine.during_frame = [&] {
    // It repeats itself far quicker than the row turns, until it is let go.
    if (machine.frames == 1) {
      for (int i = 0; i < 10; ++i) input::key_down(window, held);
      input::key_up(window, held);
    }
  };
  input::key_down(window, pressed);
  EXPECT_EQ(row(window), "i|j|a|b|c|d|e|f|g|h") << "the press and the one repetition that waited";
}

TEST_F(WinderMovesTest, ATimerThatTicksDuringASlideWaitsForItsEnd) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  machine.advance(static_cast<int>(65000 - machine.now() % 65000) - 20);
  const int before = pictures(window);
  machine.during_frame = [&] { EXPECT_EQ(pictures(window), before); };
  hand::key(window, 'X');
  EXPECT_EQ(pictures(window), before + 1);
}

TEST_F(WinderMovesTest, MenuPictureAndCloseControlWaitForTheEndOfASlide) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  show(window, 3, u"alma");
  int panels = 0;
  machine.during_frame = [&] {
    if (machine.frames != 2) return;
    hand::click(window.kép[3]);
    EXPECT_EQ(machine.active_window(), &window);
    hand::close(window);
    EXPECT_TRUE(session().is_loaded(window));
  };
  then_in<üzenet>([&](üzenet& panel) {
    ++panels;
    EXPECT_EQ(row(window), "j|a|b|c|d|e|f|g|h|i");
    hand::click(panel.Command1);
  });
  hand::key(window, 'X');
  EXPECT_EQ(panels, 1);
  EXPECT_FALSE(session().loaded<frmverem>());
  EXPECT_NE(settings(u"verem.ini"), "(none)");
}

TEST_F(WinderMovesTest, ANewGameChosenDuringASlideComesBehindIt) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  machine.during_frame = [&] {
    if (machine.frames == 1) hand::click(window.újjáték);
  };
  hand::key(window, 'X');
  EXPECT_EQ(pictures(window), 10);
  int letters = 0;
  window.kép.each([&](const PictureBox& slot) {
    if (slot.Visible) letters += kszöveg::letter_count(slot.Tag);
  });
  EXPECT_EQ(window.letters_on_board(), letters) << "nothing of the slide is left in it";
}

// By mouse or finger alone.

class WinderPullTest : public WinderMovesTest {
 protected:
  /// Pulls a cell by so many cells.
  static void pull(frmverem& window, int column, int row, double across, double along) {
    hand::drag(window.cell(column, row), across * window.cell(0, 0).Width, along * window.cell(0, 0).Height);
  }
};

TEST_F(WinderPullTest, AClickLetsTheCursorWalkToItsColumnStepByStepAndSilently) {
  auto& window = empty_game();
  std::vector<int> columns_seen;
  machine.during_wait = [&] {
    if (columns_seen.empty() || columns_seen.back() != window.kurzor()) columns_seen.push_back(window.kurzor());
  };
  const auto start = machine.now();
  hand::click(window.cell(8, 2));
  EXPECT_EQ(columns_seen, (std::vector<int>{5, 6, 7, 8}));
  EXPECT_GE(machine.now() - start, 4 * 30);
  EXPECT_EQ(highlights(window), (std::vector<int>{8}));
  hand::click(window.cell(6, 16));
  EXPECT_EQ(window.kurzor(), 6);
  EXPECT_EQ(heard(), "");
}

TEST_F(WinderPullTest, KeysAndTimerAreServedWhileTheCursorWalks) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  bool pressed = false;
  machine.during_wait = [&] {
    if (!std::exchange(pressed, true)) hand::key(window, 'X');
  };
  hand::click(window.cell(8, 2));
  EXPECT_EQ(row(window), "j|a|b|c|d|e|f|g|h|i");
  EXPECT_EQ(window.kurzor(), 8);
}

TEST_F(WinderPullTest, ASecondClickLeadsTheWalkElsewhere) {
  auto& window = empty_game();
  bool clicked = false;
  machine.during_wait = [&] {
    if (window.kurzor() == 6 && !std::exchange(clicked, true)) hand::click(window.cell(1, 1));
  };
  hand::click(window.cell(9, 2));
  EXPECT_EQ(window.kurzor(), 1);
  EXPECT_EQ(highlights(window), (std::vector<int>{1}));
}

TEST_F(WinderPullTest, TheWindowMayBeClosedWhileTheCursorWalks) {
  auto& window = empty_game();
  machine.during_wait = [&] {
    if (session().loaded<frmverem>()) hand::close(window);
  };
  hand::click(window.cell(9, 2));
  EXPECT_FALSE(session().loaded<frmverem>());
}

TEST_F(WinderPullTest, ThePulledMiddleRowTurnsByWholeCellsFromHalfACellOn) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  pull(window, 2, 8, 0.45, 0);
  EXPECT_EQ(row(window), "a|b|c|d|e|f|g|h|i|j");
  pull(window, 2, 8, 0.55, 0);
  EXPECT_EQ(row(window), "j|a|b|c|d|e|f|g|h|i");
  EXPECT_EQ(heard(), move_sound);
  pull(window, 7, 8, -3.2, 0.3);
  EXPECT_EQ(row(window), "c|d|e|f|g|h|i|j|a|b");
  EXPECT_EQ(heard(), move_sound + " " + move_sound + " " + move_sound);
  EXPECT_EQ(window.kurzor(), 4) << "a pull is no click, and the row turns without the cursor";
}

TEST_F(WinderPullTest, ThePulledColumnTakesTheCursorAndMovesWithinItsLimits) {
  auto& window = empty_game();
  put_column(window, 8, 6, u"abcd");
  pull(window, 8, 3, 0.2, 1.1);
  EXPECT_EQ(column(window, 8), ".......abcd......");
  EXPECT_EQ(highlights(window), (std::vector<int>{8}));
  EXPECT_EQ(heard(), move_sound);
  pull(window, 8, 8, 0, 5);
  EXPECT_EQ(column(window, 8), "........abcd.....") << "its last letter stays in the row";
  EXPECT_EQ(heard(), move_sound);
  pull(window, 8, 16, 0, -2.6);
  EXPECT_EQ(column(window, 8), ".....abcd........");
}

TEST_F(WinderPullTest, APullBackGoesBack) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  Label& cell = window.cell(3, 8);
  const double width = window.cell(0, 0).Width;
  hand::draw(cell, {{width / 2, 100}, {width * 2.5, 100}, {width / 2, 100}});
  EXPECT_EQ(row(window), "a|b|c|d|e|f|g|h|i|j");
  EXPECT_EQ(heard().size(), 4 * move_sound.size() + 3);
  EXPECT_EQ(window.kurzor(), 4) << "it ends where it began and is no click all the same";
}

TEST_F(WinderPullTest, OutsideTheMiddleRowASidewaysPullDoesNothing) {
  auto& window = empty_game();
  const std::string before = board(window);
  pull(window, 2, 0, 3, 0.2);
  EXPECT_EQ(board(window), before);
  EXPECT_EQ(window.kurzor(), 4);
  hand::click(window.cell(2, 0));
  EXPECT_EQ(window.kurzor(), 2) << "the next click counts again";
}

TEST_F(WinderPullTest, AQuickPullThatIsOverBeforeTheLettersHaveComeIsCarriedOut) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  Label& cell = window.cell(2, 8);
  const double width = window.cell(0, 0).Width;
  bool gone_on = false;
  machine.during_frame = [&] {
    if (std::exchange(gone_on, true)) return;
    const double moved = cell.Left - window.cell(2, 7).Left;
    hand::move(cell, width * 4.5 - moved, 100);
    hand::release(cell, width * 4.5 - moved, 100);
  };
  hand::press(cell, width / 2, 100);
  hand::move(cell, width * 1.1, 100);
  EXPECT_EQ(row(window), "g|h|i|j|a|b|c|d|e|f") << "four cells";
  hand::move(cell, width * 8, 100, MouseButton::None);
  EXPECT_EQ(row(window), "g|h|i|j|a|b|c|d|e|f") << "and it is over";
}

TEST_F(WinderPullTest, AMoveWithoutTheButtonEndsAPullWhoseReleaseWasLost) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  Label& cell = window.cell(2, 8);
  const double width = window.cell(0, 0).Width;
  hand::press(cell, width / 2, 100);
  hand::move(cell, width * 2, 100, MouseButton::None);
  hand::move(cell, width * 3, 100);
  EXPECT_EQ(row(window), "a|b|c|d|e|f|g|h|i|j");
}

TEST_F(WinderPullTest, OnlyTheLeftButtonPulls) {
  auto& window = empty_game();
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  Label& cell = window.cell(2, 8);
  hand::draw(cell, {{100, 100}, {3000, 100}}, MouseButton::Right);
  EXPECT_EQ(row(window), "a|b|c|d|e|f|g|h|i|j");
}

TEST_F(WinderPullTest, APulledWordIsSolvedAndThePullEndsThere) {
  auto& window = empty_game();
  load<frmverembeállítások>().udváridmegfejt.set_value(0);
  put_row(window, "x|x|l|ó|x|x|x|x|x|x");
  window.cell(3, 8).Caption = u"x";
  put_column(window, 3, 7, u"ó");
  show(window, 5, u"ló");
  pull(window, 3, 8, 0, 3);
  EXPECT_FALSE(window.kép[5].Visible);
  EXPECT_EQ(window.cell(3, 8).Caption, u"x") << "the gap is closed from below";
}

} // namespace
} // namespace cserko
