// Knight's jump by keyboard: the field of the cursor, and a key for all that the mouse can do.
#include "tests/exercises/knight_fixture.h"

namespace cserko {
namespace {

using KnightKeysTest = KnightPlayTest;

TEST_F(KnightKeysTest, TheCursorBeginsInTheCornerLargerThanTheOtherFields) {
  auto& window = alma();
  const Label& here = window.field({0, 0});
  const Label& other = window.field({1, 1});
  EXPECT_EQ(window.kurzor(), (Square{0, 0}));
  EXPECT_EQ(here.Tag, u"1");
  EXPECT_NEAR(here.Width, 1.2 * other.Width, 0.01);
  EXPECT_NEAR(here.Height, 1.2 * other.Height, 0.01);
  EXPECT_NEAR(center(here).x, center(other).x - other.Width, 0.01);
  EXPECT_NEAR(center(here).y, center(other).y - other.Height, 0.01);
  EXPECT_GT(here.Font.size, other.Font.size);
  EXPECT_TRUE(here.Border && here.Selected);
  window.betű.each([&](const Label& label) {
    if (&label != &here) {
      EXPECT_GT(here.layer(), label.layer());
    }
  });
}

TEST_F(KnightKeysTest, ArrowsMoveTheCursorAndLeaveTheFieldAsItWas) {
  auto& window = alma();
  const Rect place = place_of(window.field({1, 0}));
  const double size = window.field({1, 0}).Font.size;
  key(window, key::right);
  EXPECT_EQ(heard(), cursor_sound);
  EXPECT_EQ(window.kurzor(), (Square{1, 0}));
  EXPECT_EQ(window.field({0, 0}).Tag, u"0");
  EXPECT_FALSE(window.field({0, 0}).Border);
  key(window, key::down);
  EXPECT_NEAR(window.field({1, 0}).Left, place.left, 0.01);
  EXPECT_NEAR(window.field({1, 0}).Width, place.width, 0.01);
  EXPECT_EQ(window.field({1, 0}).Font.size, size);
  EXPECT_EQ(window.kurzor(), (Square{1, 1}));
  key(window, key::left);
  key(window, key::up);
  EXPECT_EQ(window.kurzor(), (Square{0, 0}));
  EXPECT_EQ(window.lépésszám(), 1);
}

TEST_F(KnightKeysTest, TheCursorGoesRoundPastWhatIsNotInPlay) {
  auto& window = game({.rows = 6, .columns = 7, .pictures = 1});
  key(window, key::left);
  EXPECT_EQ(window.kurzor(), (Square{6, 0}));
  key(window, key::up);
  EXPECT_EQ(window.kurzor(), (Square{6, 5}));
  key(window, key::right);
  key(window, key::down);
  EXPECT_EQ(window.kurzor(), (Square{0, 0}));
}

TEST_F(KnightKeysTest, EnterAndSpaceEnterTheFieldOfTheCursorAndUndo) {
  auto& window = alma();
  key(window, key::right, 2);
  key(window, key::down);
  heard();
  key(window, key::enter);
  EXPECT_EQ(heard(), step_sound);
  EXPECT_EQ(names(window), "a/alma / / / ");
  key(window, key::space);
  EXPECT_EQ(heard(), undo_sound) << "it stands there";
  key(window, key::space);
  EXPECT_EQ(heard(), step_sound);
  key(window, key::up);
  heard();
  key(window, key::space);
  EXPECT_EQ(heard(), illegal_sound);
}

TEST_F(KnightKeysTest, TheCursorPassesOverAWalkedFieldAndEnterDoesNothingThere) {
  auto& window = alma();
  walk(window, 1);
  heard();
  key(window, key::enter);
  EXPECT_EQ(heard(), "") << "the start has been left";
  EXPECT_EQ(window.lépésszám(), 2);
  key(window, key::right);
  EXPECT_EQ(window.kurzor(), (Square{1, 0}));
}

TEST_F(KnightKeysTest, TheWholeGameByKeysAlone) {
  auto& window = alma({.hint = true});
  then_close_picture();
  key(window, '1');
  EXPECT_EQ(shown_words, "alma ");
  key(window, '2'); // there is no second picture
  key(window, 'S');
  EXPECT_TRUE(window.Line1[0].Visible);
  key(window, key::right, 2);
  key(window, key::down);
  key(window, key::space);
  key(window, key::backspace);
  EXPECT_EQ(window.lépésszám(), 1);
  key(window, key::space);
  key(window, key::right, 2);
  key(window, key::down);
  key(window, key::space);
  key(window, key::left);
  key(window, key::down, 2);
  key(window, key::space);
  key(window, key::right);
  key(window, key::down, 2);
  then_close_congratulation();
  key(window, key::enter);
  EXPECT_EQ(congratulations, 1);
}

TEST_F(KnightKeysTest, TheButtonsAreReachedByTabAndPressedByTheirKeysAlone) {
  auto& window = alma({.hint = true});
  walk(window, 1);
  key(window, key::tab);
  EXPECT_EQ(window.focus(), &window.cmd_súgó);
  heard();
  key(window, key::enter);
  EXPECT_EQ(heard(), "cserko\\alarm.wav") << "the field of the cursor is left alone";
  EXPECT_TRUE(window.Line1[0].Visible);
  key(window, key::tab, 2);
  EXPECT_EQ(window.focus(), &window.Command1);
  key(window, key::space);
  EXPECT_EQ(heard(), undo_sound);
  EXPECT_EQ(window.focus(), &window.kép[0]);
  key(window, key::tab);
  key(window, key::left);
  EXPECT_EQ(window.focus(), &window.kép[0]) << "who moves the cursor plays on the board";
}

TEST_F(KnightKeysTest, AKeyThatIsHeldDownStepsOnce) {
  auto& window = alma();
  key(window, key::right, 2);
  key(window, key::down);
  const auto hold = [&](int code) {
    KeyEvent event;
    event.code = code;
    input::key_down(window, event);
    event.repeated = true;
    for (int i = 0; i < 5; ++i) input::key_down(window, event);
    input::key_up(window, event);
  };
  hold(key::space);
  EXPECT_EQ(window.lépésszám(), 2);
  hold(key::right);
  EXPECT_EQ(window.kurzor(), (Square{0, 1})) << "arrows go on: eight columns, six steps";
}

TEST_F(KnightKeysTest, AHeldHintStaysOnTheBoard) {
  auto& window = alma({.hint = true});
  KeyEvent event;
  event.code = 'S';
  input::key_down(window, event);
  event.repeated = true;
  input::key_down(window, event);
  EXPECT_TRUE(window.Line1[0].Visible);
}

} // namespace
} // namespace cserko
