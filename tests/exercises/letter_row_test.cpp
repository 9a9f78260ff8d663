// The row of letters that several exercises share: fit, layout, long consonants in two pieces, letters put in and taken
// out, and all that a hand or a key can do to a letter.
#include "core/exercise.h"
#include "exercises/shared/letter_row.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

class RowWindow : public ExerciseWindow {
 public:
  explicit RowWindow(Session& session) : ExerciseWindow(session, u"row", {9000, 3000}, u"Row") {
    set_inner_size(design_size());
  }

  ElementArray<Label> betű{*this, u"betű", {100, 100, 500, 500}, TextView(u"dzs")};
  LetterRow row{betű};
  Button cmd_kész{*this, u"cmd_kész", {100, 2400, 2000, 500}, u"Kész"};

 protected:
  void no_puzzle() override { row.clear(); }
};

class LetterRowTest : public ExerciseTest {
 protected:
  using Way = LetterRow::Way;

  RowWindow& show(TextView word) {
    start();
    auto& window = open<RowWindow>();
    lay(window, word);
    return window;
  }
  static void lay(RowWindow& window, TextView word) {
    window.row.clear();
    window.betű[0].Font.size = 20;
    window.row.show(kszöveg(word));
    window.row.lay_out({1000, 500});
  }
  /// Writes down what is pulled; nothing changes unless the way is the one that does.
  void note_pulls(RowWindow& window, std::optional<Way> changes = std::nullopt) {
    window.row.Pull = [this, changes](int letter, Way way) {
      note(way == Way::Right ? "pull " : "push ", letter);
      return way == changes;
    };
  }
  void note_mouse(RowWindow& window) {
    window.row.Pressed = [this](int letter, const MouseEvent&) { note("press ", letter); };
    window.row.Moved = [this](int letter, const MouseEvent&) { note("move ", letter); };
    window.row.Released = [this](int letter, const MouseEvent&) { note("release ", letter); };
  }
  void note(const std::string& what, int letter) { notes += what + std::to_string(letter) + "\n"; }
  std::string notes;

  static std::string tags(const RowWindow& window) {
    std::string all;
    window.betű.each([&](const Label& letter) { all += utf8(letter.Tag); });
    return all;
  }
};

// The word.

TEST_F(LetterRowTest, EachLetterHasALabelOfItsOwn) {
  auto& window = show(u"dzsungel");
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"dzs", "u", "n", "g", "e", "l"}));
  EXPECT_EQ(tags(window), "000000");
  EXPECT_EQ(window.row.text(), u"dzsungel");
}

TEST_F(LetterRowTest, ClearingLeavesOneEmptyHiddenOrdinaryLetter) {
  auto& window = show(u"asszony");
  window.row.split(2);
  window.betű[0].Tag = u"x";
  window.row.clear();
  EXPECT_EQ(window.betű.count(), 1);
  EXPECT_FALSE(window.betű[0].Visible);
  EXPECT_EQ(window.betű[0].Caption, u"");
  EXPECT_EQ(tags(window), "0");
}

TEST_F(LetterRowTest, TheFirstLongDoubleConsonantIsFound) {
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"asszony")), 2);
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"ssz")), 1);
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"poggyász")), 3);
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"meggyes asszony")), 3);
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"kutya")), 0);
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"eddz")), 0) << "one that is no syllable's end";
  EXPECT_EQ(hosszú_kettős_helye(kszöveg(u"")), 0);
  for (const TextView letter : {u"ccs", u"ggy", u"lly", u"nny", u"ssz", u"tty", u"zzs"})
    EXPECT_EQ(hosszú_kettős_helye(kszöveg(Text(u"a") + Text(letter))), 2) << utf8(letter);
}

TEST_F(LetterRowTest, ALongDoubleConsonantIsPartedIntoItsFirstAndItsLastTwoCharacters) {
  auto& window = show(u"asszony");
  window.row.split(2);
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"a", "s", "sz", "o", "ny"}));
  EXPECT_EQ(tags(window), "00300");
  EXPECT_EQ(window.row.text(), u"asszony");
}

TEST_F(LetterRowTest, ALongDoubleConsonantAtTheEndIsPartedToo) {
  auto& window = show(u"meggy");
  window.row.split(3);
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"m", "e", "g", "gy"}));
  EXPECT_EQ(tags(window), "0003");
}

TEST_F(LetterRowTest, TextAndTagMoveUpWhereALetterIsPutIn) {
  auto& window = show(u"asszony");
  window.row.split(2);
  window.row.insert(1).Caption = u"x";
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"a", "x", "s", "sz", "o", "ny"}));
  EXPECT_EQ(tags(window), "000300");
  EXPECT_TRUE(window.betű[5].Visible);
}

TEST_F(LetterRowTest, TextAndTagMoveDownWhereALetterIsTakenOut) {
  auto& window = show(u"asszony");
  window.row.split(2);
  window.row.remove(1);
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"a", "sz", "o", "ny"}));
  EXPECT_EQ(tags(window), "0300");
}

TEST_F(LetterRowTest, TheLastLetterCanBeTakenOut) {
  auto& window = show(u"sas");
  window.row.remove(2);
  EXPECT_EQ(window.row.text(), u"sa");
}

// Size and place.

TEST_F(LetterRowTest, TheLettersStandSideBySideInTheFontOfTheFirst) {
  auto& window = show(u"szilva");
  double left = 1000;
  window.betű.each([&](const Label& letter) {
    const Size extent = machine.measure(window.betű[0].Font, letter.Caption);
    EXPECT_EQ(place_of(letter), (Rect{left, 500, extent.width, extent.height})) << utf8(letter.Caption);
    EXPECT_EQ(letter.Font, window.betű[0].Font);
    EXPECT_TRUE(letter.Visible);
    left += extent.width;
  });
  EXPECT_DOUBLE_EQ(window.row.text_width(), machine.measure(window.betű[0].Font, u"szilva").width);
}

TEST_F(LetterRowTest, ALetterMayHaveAWidthOfItsOwn) {
  auto& window = show(u"ló");
  window.row.letter_width = [](const Label& letter) { return letter.Index == 0 ? 700.0 : 300.0; };
  window.row.lay_out({1000, 500});
  EXPECT_EQ(window.betű[0].Width, 700);
  EXPECT_EQ(window.betű[1].Left, 1700);
}

TEST_F(LetterRowTest, TheLargestSizeThatKeepsToBothLimitsIsTaken) {
  auto& window = show(u"szilva");
  const auto extent = [&](double size) {
    Font font = window.betű[0].Font;
    font.size = size;
    return machine.measure(font, u"szilva--");
  };
  window.row.fit(u"szilva--", {4000, 100000});
  EXPECT_LE(extent(window.betű[0].Font.size).width, 4000);
  EXPECT_GT(extent(window.betű[0].Font.size + 1).width, 4000);
  window.row.fit(u"szilva--", {100000, 400});
  EXPECT_LE(extent(window.betű[0].Font.size).height, 400);
  EXPECT_GT(extent(window.betű[0].Font.size + 1).height, 400);
}

// Pulling.

TEST_F(LetterRowTest, APullCountsFromAQuarterOfTheWidthUnlessAnotherDistanceIsGiven) {
  auto& window = show(u"mama");
  note_pulls(window);
  Label& letter = window.betű[1];
  letter.Width = 800;
  hand::press(letter, 400, 10);
  hand::move(letter, 599, 10);
  EXPECT_EQ(notes, "");
  hand::move(letter, 600, 10);
  EXPECT_EQ(notes, "pull 1\n");
  window.row.pull_distance = [](int) { return 350.0; };
  hand::move(letter, 60, 10);
  EXPECT_EQ(notes, "pull 1\n");
  hand::move(letter, 50, 10);
  EXPECT_EQ(notes, "pull 1\npush 1\n");
}

TEST_F(LetterRowTest, EveryMoveBeyondTheDistancePullsAgainWithAnyButton) {
  auto& window = show(u"mama");
  note_pulls(window);
  hand::press(window.betű[1], 10, 10, MouseButton::Right);
  hand::move(window.betű[1], 900, 10, MouseButton::Right);
  hand::move(window.betű[1], 910, 10, MouseButton::Right);
  hand::release(window.betű[1], 910, 10, MouseButton::Right);
  hand::move(window.betű[1], 920, 10);
  EXPECT_EQ(notes, "pull 1\npull 1\n");
}

TEST_F(LetterRowTest, TheFirstLetterIsNeverPulled) {
  auto& window = show(u"mama");
  note_pulls(window);
  hand::drag(window.betű[0], 2000, 0);
  hand::click(window.betű[0]);
  window.set_focus(&window.betű[0]);
  hand::key(window, key::right, shift::control);
  hand::key(window, key::space);
  EXPECT_EQ(notes, "");
}

TEST_F(LetterRowTest, WhatComesWhileAPullRunsIsIgnored) {
  auto& window = show(u"mama");
  window.row.Pull = [&](int letter, Way) {
    note("pull ", letter);
    hand::move(window.betű[1], 3000, 10);
    hand::key(window, key::left, shift::control);
    return true;
  };
  hand::press(window.betű[1], 10, 10);
  hand::move(window.betű[1], 2000, 10);
  EXPECT_EQ(notes, "pull 1\n");
}

TEST_F(LetterRowTest, APullThatFailsLeavesTheRowAlive) {
  expected_errors = 1;
  auto& window = show(u"mama");
  window.row.Pull = [](int, Way) -> bool { throw std::runtime_error("broken"); };
  hand::press(window.betű[1], 10, 10);
  hand::move(window.betű[1], 2000, 10);
  hand::release(window.betű[1], 2000, 10);
  note_pulls(window);
  hand::drag(window.betű[1], 2000, 0);
  EXPECT_NE(notes, "");
}

// Clicks.

TEST_F(LetterRowTest, AClickDoesWhatAPullWouldAndWhereThatChangesNothingAPush) {
  auto& window = show(u"mama");
  note_pulls(window, Way::Right);
  hand::click(window.betű[2]);
  EXPECT_EQ(notes, "pull 2\n");
  notes.clear();
  note_pulls(window);
  hand::click(window.betű[2]);
  EXPECT_EQ(notes, "pull 2\npush 2\n");
}

TEST_F(LetterRowTest, AClickMayMeanSomethingOfItsOwn) {
  auto& window = show(u"mama");
  note_pulls(window);
  window.row.Clicked = [this](int letter) { note("click ", letter); };
  hand::click(window.betű[0]);
  hand::click(window.betű[3]);
  EXPECT_EQ(notes, "click 0\nclick 3\n");
}

TEST_F(LetterRowTest, AShakingHandStillClicks) {
  auto& window = show(u"mama");
  window.row.Clicked = [this](int letter) { note("click ", letter); };
  Label& letter = window.betű[1];
  letter.Width = 800;
  hand::press(letter, 400, 200);
  hand::move(letter, 400 + Gesture::tolerance, 200 - Gesture::tolerance);
  hand::release(letter, 400, 200);
  EXPECT_EQ(notes, "click 1\n");
}

TEST_F(LetterRowTest, AHesitantMoveIsNeitherAPullNorAClick) {
  auto& window = show(u"mama");
  note_pulls(window);
  Label& letter = window.betű[1];
  letter.Width = 800;
  for (const Point away : {Point{Gesture::tolerance + 1, 0}, Point{-199, 0}, Point{0, Gesture::tolerance + 1}}) {
    hand::press(letter, 400, 200);
    hand::move(letter, 400 + away.x, 200 + away.y);
    hand::release(letter, 400 + away.x, 200 + away.y);
    hand::press(letter, 400, 200);
    hand::move(letter, 400 + away.x, 200 + away.y);
    hand::move(letter, 400, 200);
    hand::release(letter, 400, 200);
  }
  EXPECT_EQ(notes, "");
}

TEST_F(LetterRowTest, AClickOfAnotherButtonOrOneThatEndsOutsideIsNone) {
  auto& window = show(u"mama");
  note_pulls(window);
  hand::click(window.betű[1], MouseButton::Right);
  hand::press(window.betű[1], 10, 10);
  hand::release(window.betű[1], 10, -10);
  EXPECT_EQ(notes, "");
}

// The mouse as it is.

TEST_F(LetterRowTest, PressMoveAndReleaseAreTold) {
  auto& window = show(u"mama");
  note_mouse(window);
  hand::press(window.betű[0], 10, 10, MouseButton::Right);
  hand::move(window.betű[0], 10, 90, MouseButton::Right);
  hand::release(window.betű[0], 10, -500, MouseButton::Right);
  EXPECT_EQ(notes, "press 0\nmove 0\nrelease 0\n");
}

TEST_F(LetterRowTest, TheSpaceBarPressesAndReleases) {
  auto& window = show(u"mama");
  note_mouse(window);
  hand::click(window.betű[1]);
  EXPECT_EQ(notes, "press 1\nrelease 1\n") << "the mouse once";
  hand::key(window, key::space);
  EXPECT_EQ(notes, "press 1\nrelease 1\npress 1\nrelease 1\n");
}

TEST_F(LetterRowTest, TheSpaceBarWorksAfterAReleaseThatIsNoClick) {
  auto& window = show(u"mama");
  note_mouse(window);
  hand::drag(window.betű[1], 3000, 0);
  notes.clear();
  hand::key(window, key::space);
  EXPECT_EQ(notes, "press 1\nrelease 1\n");
}

TEST_F(LetterRowTest, ALetterThatIsGoneByTheReleaseIsForgotten) {
  auto& window = show(u"mama");
  note_mouse(window);
  window.row.Pressed = [&](int, const MouseEvent&) { lay(window, u"a"); };
  window.set_focus(&window.betű[3]);
  hand::key(window, key::space);
  EXPECT_EQ(window.row.text(), u"a");
}

TEST_F(LetterRowTest, ANewWordEndsThePressThatIsOn) {
  auto& window = show(u"mama");
  note_pulls(window);
  hand::press(window.betű[0], 10, 10);
  lay(window, u"papa");
  hand::move(window.betű[1], 2000, 10);
  EXPECT_EQ(notes, "");
}

// Keys.

TEST_F(LetterRowTest, ArrowsMoveAmongTheLettersAndWithCtrlPullAndPush) {
  auto& window = show(u"mama");
  note_pulls(window);
  window.set_focus(&window.betű[0]);
  hand::key(window, key::right);
  hand::key(window, key::right);
  ASSERT_EQ(window.focus(), &window.betű[2]);
  hand::key(window, key::right, shift::control);
  hand::key(window, key::left, shift::control);
  EXPECT_EQ(notes, "pull 2\npush 2\n");
  EXPECT_EQ(window.focus(), &window.betű[2]);
  hand::key(window, key::left);
  EXPECT_EQ(window.focus(), &window.betű[1]);
}

TEST_F(LetterRowTest, EnterClicksUnlessAButtonIsTheDefaultOne) {
  auto& window = show(u"mama");
  window.row.Clicked = [this](int letter) { note("click ", letter); };
  window.set_focus(&window.betű[1]);
  hand::key(window, key::enter);
  EXPECT_EQ(notes, "click 1\n");
  window.cmd_kész.Default = true;
  hand::key(window, key::enter);
  EXPECT_EQ(notes, "click 1\n");
}

TEST_F(LetterRowTest, TheNextWordKeepsTheFocusInTheRow) {
  auto& window = show(u"mamut");
  window.set_focus(&window.betű[4]);
  lay(window, u"ló");
  EXPECT_EQ(window.focus(), &window.betű[1]);
  window.set_focus(&window.cmd_kész);
  lay(window, u"mamut");
  EXPECT_EQ(window.focus(), &window.cmd_kész);
}

} // namespace
} // namespace cserko
