// The players of the exercises solve a thousand sets each, by mouse and by keyboard, with wrong answers now and then.
#include "core/exercise_table.h"
#include "core/graphic_places.h"
#include "exercises/exercises.h"
#include "tests/exercises/full_pack_fixture.h"
#include "tests/players/betűválogatás_player.h"
#include "tests/players/képmemória_player.h"

#include <algorithm>
#include <set>

namespace cserko {
namespace {

using Mode = PlayMode;

class EachPlayerTest : public FullPackTest, public ::testing::WithParamInterface<PlayedExercise> {
 protected:
  EachPlayerTest() {
    exercise().prepare(machine.files());
    put_settings(u"szótagoló.ini", {u" 4 ", u" 0 "}); // words of one syllable as well
  }
  static const PlayedExercise& exercise() { return GetParam(); }
  /// A thousand; fewer of those exercises whose one task is a whole game.
  static int many_sets() { return exercise().tasks == 1 ? 100 : 1000; }
  std::unique_ptr<Player> player(Mode mode, int mistakes) { return exercise().make(session(), mode, mistakes); }
};

INSTANTIATE_TEST_SUITE_P(Played, EachPlayerTest, ::testing::ValuesIn(played_exercises()),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(EachPlayerTest, SolvesSetAfterSetByMouseWithMistakes) {
  const auto solver = player(Mode::Mouse, 4);
  play(*solver, many_sets());
  EXPECT_GE(solver->wrong_answers(), many_sets() * exercise().tasks / 6);
  expect_judged(exercise(), *solver);
}

TEST_P(EachPlayerTest, SolvesSetAfterSetByKeyboardAloneWithMistakes) {
  const auto solver = player(Mode::Keyboard, 4);
  play(*solver, many_sets());
  EXPECT_GE(solver->wrong_answers(), many_sets() * exercise().tasks / 6);
  expect_judged(exercise(), *solver);
}

TEST_P(EachPlayerTest, SolvesSetsWithoutAnyMistake) {
  const auto solver = player(Mode::Mouse, 0);
  play(*solver, 20);
  EXPECT_EQ(solver->wrong_answers(), 0);
  expect_judged(exercise(), *solver);
}

// What an exercise is offered as, without the windows of the layers below.
std::vector<std::string> offered_exercises() {
  HeadlessPlatform machine;
  Session session(machine);
  const std::vector<Text> below = session.offered();
  install_exercises(session);
  std::vector<std::string> names;
  for (const Text& name : session.offered())
    if (std::find(below.begin(), below.end(), name) == below.end()) names.push_back(utf8(name));
  return names;
}

TEST(OfferedExercises, StandInTheTableOfTheMainWindow) {
  std::multiset<std::string> table;
  for (const ExerciseEntry& entry : exercise_table) table.insert(utf8(entry.window));
  for (const std::string& name : offered_exercises()) EXPECT_EQ(table.count(name), 1U) << name;
}

TEST(OfferedExercises, HaveAPlaceInTheGraphicMainWindow) {
  std::multiset<std::string> places;
  for (const GraphicPlace& place : graphic_places) places.insert(utf8(place.window));
  for (const std::string& name : offered_exercises()) EXPECT_EQ(places.count(name), 1U) << name;
}

TEST(OfferedExercises, HaveAPlayerEach) {
  std::vector<std::string> played;
  for (const PlayedExercise& exercise : played_exercises()) played.push_back(utf8(exercise.window));
  std::sort(played.begin(), played.end());
  const std::vector<std::string> offered = offered_exercises();
  EXPECT_EQ(played, offered);
}

TEST_F(FullPackTest, EveryExerciseIsOfferedUnderItsOwnName) {
  for (const std::string& name : offered_exercises()) EXPECT_EQ(utf8(session().window(from_utf8(name)).Name), name);
}

class DirectionModeTest : public FullPackTest {
 protected:
  void practise(Mode mode) {
    put_settings(u"betűválogató.ini", {u" 1 ", u" 1 ", u"True", u"False", u" 0 ", u" 14 "});
    BetűválogatásPlayer player(session(), mode, 5);
    load<frm_betűválogatás_beállítás>().chk_iránygyakoroltatása.set_value(1);
    play(player, 200);
    EXPECT_GE(player.wrong_answers(), 200);
    EXPECT_GE(player.directions(), frm_betűválogatás::places * 200) << "all but the first answer";
    EXPECT_EQ(begun(u"good.wav"), frm_betűválogatás::places * player.sets());
    EXPECT_EQ(begun(u"bad.wav"), player.wrong_answers());
  }
};

TEST_F(DirectionModeTest, TheSortingPlayerSaysTheSidesByMouse) { practise(Mode::Mouse); }

TEST_F(DirectionModeTest, TheSortingPlayerSaysTheSidesByKeyboard) { practise(Mode::Keyboard); }

class FullBoardTest : public FullPackTest {
 protected:
  FullBoardTest() { put_app_file(u"cserko\\képmem.ini", u" 18 \r\n"); }
  /// Two cards move up for each pair that is swallowed, and two up and back for each wrong one.
  void expect_pairs_heard(const Player& player, int pairs) {
    EXPECT_EQ(begun(u"swallow1.wav"), pairs * player.sets());
    EXPECT_EQ(begun(u"Moving.wav"), 2 * pairs * player.sets() + 4 * player.wrong_answers());
  }
};

TEST_F(FullBoardTest, TheMemoryPlayerClearsFullBoardsByMouse) {
  KépmemóriaPlayer player(session(), Mode::Mouse, 5);
  play(player, 20);
  EXPECT_GE(player.wrong_answers(), 60);
  expect_pairs_heard(player, 18);
}

TEST_F(FullBoardTest, TheMemoryPlayerClearsFullBoardsByKeyboardAndAsksForHelpByItsKey) {
  KépmemóriaPlayer player(session(), Mode::Keyboard, 5);
  play(player, 20);
  EXPECT_GE(player.wrong_answers(), 60);
  expect_pairs_heard(player, 18);
  EXPECT_GE(player.helps(), 60);
}

} // namespace
} // namespace cserko
