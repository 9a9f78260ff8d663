// The pieces that lie about in a box, as the exercises that share them find them: scattering, reading from left to
// right, lining up, dragging, clicking, keys. What Scrambled word does with them its own tests say.
#include "core/exercise.h"
#include "core/nothing_fits.h"
#include "exercises/shared/scattered_pieces.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

class TrayWindow : public ExerciseWindow {
 public:
  explicit TrayWindow(Session& session) : ExerciseWindow(session, u"tray", {6000, 4000}, u"Tray") {
    set_inner_size(design_size());
    tároló.MouseDown = [this](const MouseEvent& event) {
      if (!pieces.put_down(event)) ++presses_left_over;
    };
  }
  void KeyDown(KeyEvent& event) override { pieces.key_down(event); }

  PictureBox tároló{*this, u"tároló", {100, 100, 5000, 2000}};
  ElementArray<Label> szótag{tároló, u"szótag", {0, 0, 2500, 600}};
  ScatteredPieces pieces{session(), tároló, szótag, {.advice = u"Nem fér el."}};
  int presses_left_over = 0;

 protected:
  void no_puzzle() override { pieces.clear(); }
};

class ScatteredPiecesTest : public ExerciseTest {
 protected:
  /// Three pieces of known size at known places: "va" at 3000, "szil" at 200, "fa" at 1500.
  TrayWindow& three() {
    start();
    auto& window = open<TrayWindow>();
    window.pieces.keyboard = {90, {4000, 3000}};
    window.pieces.clear();
    window.pieces.show({u"va", u"szil", u"fa"}, ScatteredPieces::Height::AsDesigned);
    window.szótag.each([](Label& piece) { piece.Width = 500; });
    window.szótag[0].move_to(3000, 100);
    window.szótag[1].move_to(200, 700);
    window.szótag[2].move_to(1500, 1300);
    forget_commands();
    return window;
  }
  static Point place(const TrayWindow& window, int piece) {
    return {window.szótag[piece].Left, window.szótag[piece].Top};
  }
  static std::vector<int> bordered(const TrayWindow& window) {
    std::vector<int> all;
    window.szótag.each([&](const Label& piece) {
      if (piece.Border) all.push_back(piece.Index);
      EXPECT_EQ(piece.Selected, piece.Border) << "a screen reader is told of it";
    });
    return all;
  }
};

TEST_F(ScatteredPiecesTest, EachTextHasAPieceAsWideAsItIs) {
  auto& window = three();
  window.pieces.show({u"va", u"szil", u"fa"}, ScatteredPieces::Height::AsDesigned);
  EXPECT_EQ(captions(window.szótag), (std::vector<std::string>{"va", "szil", "fa"}));
  window.szótag.each([&](const Label& piece) {
    EXPECT_EQ(piece.Width, machine.measure(window.tároló.Font, piece.Caption).width);
    EXPECT_EQ(piece.Height, 600);
    EXPECT_TRUE(piece.Visible);
  });
  window.pieces.show({u"va"}, ScatteredPieces::Height::OfText);
  EXPECT_EQ(window.szótag[0].Height, machine.measure(window.tároló.Font, u"va").height);
}

TEST_F(ScatteredPiecesTest, ClearingForgetsPiecesSelectionAndGrip) {
  auto& window = three();
  window.pieces.select(2);
  hand::press(window.szótag[0], 10, 10);
  window.pieces.clear();
  EXPECT_EQ(window.szótag.count(), 1);
  EXPECT_FALSE(window.szótag[0].Visible);
  EXPECT_EQ(window.pieces.selected(), std::nullopt);
  const Point before = place(window, 0);
  window.szótag[0].Visible = true;
  hand::move(window.szótag[0], 900, 900);
  EXPECT_EQ(place(window, 0), before);
}

// Scattering.

TEST_F(ScatteredPiecesTest, PlacesAreWholePartsWithinTheMarginAcrossFirst) {
  auto& window = three();
  // Room across: 5000 - 500 - 100, down: 2000 - 600.
  machine.script_random({0.5, 0.25, 0, 0, 0.25, 0.999});
  window.pieces.scatter(100);
  EXPECT_EQ(place(window, 0), (Point{2200, 350}));
  EXPECT_EQ(place(window, 1), (Point{0, 0}));
  EXPECT_EQ(place(window, 2), (Point{1100, 1398}));
}

TEST_F(ScatteredPiecesTest, APieceThatWouldOverlapAnEarlierOneIsDrawnAgain) {
  auto& window = three();
  machine.script_random({0, 0, 0.05, 0, 0.9, 0, 0.5, 0});
  window.pieces.scatter(0);
  EXPECT_EQ(place(window, 0), (Point{0, 0}));
  EXPECT_EQ(place(window, 1), (Point{4050, 0}));
  EXPECT_EQ(place(window, 2), (Point{2250, 0}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(ScatteredPiecesTest, TouchingIsNoOverlapAndLaterPiecesDoNotCount) {
  auto& window = three();
  EXPECT_FALSE(window.pieces.átfedés(1, 2500, 100));
  EXPECT_TRUE(window.pieces.átfedés(1, 2501, 100));
  EXPECT_FALSE(window.pieces.átfedés(1, 3500, 100));
  EXPECT_TRUE(window.pieces.átfedés(1, 3499, 699));
  EXPECT_FALSE(window.pieces.átfedés(1, 3499, 700));
  EXPECT_FALSE(window.pieces.átfedés(1, 1500, 1300)) << "piece 2 lies there";
  EXPECT_FALSE(window.pieces.átfedés(0, 200, 700));
}

TEST_F(ScatteredPiecesTest, WhereThereIsNoPlaceTheAdviceIsThrown) {
  auto& window = three();
  window.szótag.each([](Label& piece) { piece.Width = 4000; });
  window.szótag.each([](Label& piece) { piece.Height = 1500; });
  try {
    window.pieces.scatter(100);
    FAIL() << "nothing was thrown";
  } catch (const NothingFits& unfit) {
    EXPECT_EQ(unfit.message(), u"Nem fér el.");
  }
}

// From left to right.

TEST_F(ScatteredPiecesTest, ThePiecesAreReadFromLeftToRightWhateverTheirHeight) {
  auto& window = three();
  EXPECT_EQ(window.pieces.by_left(ScatteredPieces::By::ExactLeft), (std::vector<int>{1, 2, 0}));
  window.szótag[0].Left = 200.4;
  window.szótag[1].Left = 200.2;
  window.szótag[2].Left = 200.3;
  EXPECT_EQ(window.pieces.by_left(ScatteredPieces::By::ExactLeft), (std::vector<int>{1, 2, 0}));
  EXPECT_EQ(window.pieces.by_left(ScatteredPieces::By::RoundedLeft), (std::vector<int>{0, 1, 2}));
}

TEST_F(ScatteredPiecesTest, LinedUpTheyFollowEachOtherFromTheLeftmostInItsHeight) {
  auto& window = three();
  EXPECT_EQ(window.pieces.line_up(1000, ScatteredPieces::By::ExactLeft), (std::vector<int>{1, 2, 0}));
  const auto width = [&](TextView text) { return machine.measure(window.tároló.Font, text).width; };
  EXPECT_EQ(place(window, 1), (Point{200, 700}));
  EXPECT_EQ(place(window, 2), (Point{200 + width(u"szil"), 700}));
  EXPECT_EQ(place(window, 0), (Point{200 + width(u"szil") + width(u"fa"), 700}));
}

TEST_F(ScatteredPiecesTest, ARowThatWouldNotFitStartsFurtherLeft) {
  auto& window = three();
  window.pieces.line_up(4800, ScatteredPieces::By::ExactLeft);
  EXPECT_EQ(window.szótag[1].Left, 100);
}

// Dragging and clicking.

TEST_F(ScatteredPiecesTest, APieceFollowsTheLeftButtonWithinTheBoxAndSounds) {
  auto& window = three();
  Label& piece = window.szótag[1];
  hand::press(piece, 100.4, 50);
  hand::move(piece, 350.5, 60);
  EXPECT_EQ(place(window, 1), (Point{450.5, 710})) << "taken at 100, and the place is not rounded";
  hand::move(piece, 99999, 99999);
  EXPECT_EQ(place(window, 1), (Point{4400, 1400}));
  hand::move(piece, -99999, -99999);
  EXPECT_EQ(place(window, 1), (Point{0, 0}));
  hand::release(piece, 100, 50);
  const std::string moving = sound("c:\\cserko\\cserko\\moving.wav");
  EXPECT_EQ(commands(), moving + "close hang\n" + moving);
  EXPECT_EQ(window.pieces.selected(), std::nullopt);
}

TEST_F(ScatteredPiecesTest, AnotherButtonOnlyTellsOfItsPress) {
  auto& window = three();
  std::string pressed;
  window.pieces.Pressed = [&](int piece, const MouseEvent&) { pressed += std::to_string(piece); };
  hand::press(window.szótag[1], 10, 10, MouseButton::Right);
  hand::move(window.szótag[1], 500, 10, MouseButton::Right);
  hand::release(window.szótag[1], 500, 10, MouseButton::Right);
  EXPECT_EQ(place(window, 1), (Point{200, 700}));
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(pressed, "1");
}

TEST_F(ScatteredPiecesTest, AClickPicksUpAndTheNextOnTheBoxPutsDown) {
  auto& window = three();
  hand::click(window.szótag[1]);
  EXPECT_EQ(bordered(window), std::vector<int>{1});
  hand::press(window.tároló, 2000, 400);
  hand::release(window.tároló, 2000, 400);
  EXPECT_EQ(place(window, 1), (Point{1750, 100}));
  EXPECT_EQ(window.presses_left_over, 0);
  hand::press(window.tároló, 4000, 400);
  EXPECT_EQ(place(window, 1), (Point{1750, 100}));
  EXPECT_EQ(window.presses_left_over, 1);
}

TEST_F(ScatteredPiecesTest, WhatHasLostItsBorderIsNotPickedUpAnyMore) {
  auto& window = three();
  hand::click(window.szótag[1]);
  window.szótag[1].Border = false;
  hand::press(window.tároló, 4000, 1800);
  EXPECT_EQ(place(window, 1), (Point{200, 700}));
  EXPECT_EQ(window.presses_left_over, 1);
}

TEST_F(ScatteredPiecesTest, AClickOfAShakingHandPicksUpButADragDoesNot) {
  auto& window = three();
  hand::press(window.szótag[1], 100, 100);
  hand::move(window.szótag[1], 100 + Gesture::tolerance, 100);
  hand::release(window.szótag[1], 100, 100);
  EXPECT_EQ(bordered(window), std::vector<int>{1});
  window.pieces.kijelölés_törlése();
  hand::press(window.szótag[1], 100, 100);
  for (int i = 0; i < 3; ++i) hand::move(window.szótag[1], 130, 100);
  hand::release(window.szótag[1], 100, 100);
  EXPECT_EQ(bordered(window), std::vector<int>{});
}

TEST_F(ScatteredPiecesTest, OnlyTheLeftButtonPutsDown) {
  auto& window = three();
  hand::click(window.szótag[1]);
  hand::press(window.tároló, 2000, 400, MouseButton::Right);
  EXPECT_EQ(place(window, 1), (Point{200, 700}));
  EXPECT_EQ(window.presses_left_over, 1);
}

// Keys.

TEST_F(ScatteredPiecesTest, TheSpaceBarGoesOnFromLeftToRightAndRound) {
  auto& window = three();
  for (const int next : {1, 2, 0, 1}) {
    hand::key(window, key::space);
    EXPECT_EQ(bordered(window), std::vector<int>{next});
    EXPECT_EQ(window.pieces.selected(), next);
  }
}

TEST_F(ScatteredPiecesTest, AnyKeySelectsWhileNothingIsSelected) {
  auto& window = three();
  hand::key(window, key::right);
  EXPECT_EQ(window.pieces.selected(), 1);
  EXPECT_EQ(place(window, 1), (Point{200, 700}));
}

TEST_F(ScatteredPiecesTest, TheArrowsMoveUpToTheLimitsOfTheKeyboard) {
  auto& window = three();
  window.pieces.select(1);
  hand::key(window, key::right);
  hand::key(window, key::down);
  EXPECT_EQ(place(window, 1), (Point{290, 790}));
  hand::key(window, key::left);
  hand::key(window, key::up);
  EXPECT_EQ(place(window, 1), (Point{200, 700}));
  window.szótag[1].move_to(3450, 2350);
  hand::key(window, key::right);
  hand::key(window, key::down);
  EXPECT_EQ(place(window, 1), (Point{3500, 2400})) << "4000 and 3000 less its size, below the box too";
  window.szótag[1].move_to(50, 50);
  hand::key(window, key::left);
  hand::key(window, key::up);
  EXPECT_EQ(place(window, 1), (Point{0, 0}));
}

} // namespace
} // namespace cserko
