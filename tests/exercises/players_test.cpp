// The players of the exercises solve a thousand sets each, by mouse and by keyboard, with wrong answers now and then.
#include "core/frm_főablak.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/picture_memory_fixture.h"
#include "tests/players/betűfelesleg_player.h"
#include "tests/players/betűhiány_player.h"
#include "tests/players/betűválogatás_player.h"
#include "tests/players/headless_hand.h"
#include "tests/players/igazhamis_player.h"
#include "tests/players/képmemória_player.h"
#include "tests/players/mondatkép_player.h"
#include "tests/players/szótagoló_player.h"

#include <algorithm>

namespace cserko {
namespace {

using Mode = ExercisePlayer::Mode;

class ExercisePlayersTest : public ExerciseTest {
 protected:
  ExercisePlayersTest() {
    for (const auto& [name, syllables] : {std::pair{u"alma", u"al-ma"},
                                          {u"asszony", u"asz-szony"},
                                          {u"ló", u"ló"},
                                          {u"ó", u"ó"},
                                          {u"pillangó", u"pil-lan-gó"},
                                          {u"szilva", u"szil-va"},
                                          {u"mennyezet", u"meny-nye-zet"},
                                          {u"dzsem", u"dzsem"},
                                          {u"esernyő", u"e-ser-nyő"},
                                          {u"utolsó", u"u-tol-só"}})
      put_full(name, syllables);
    for (const TextView word : memory_words) put_full(Text(word), Text(word));
    put_settings(u"szótagoló.ini", {u" 4 ", u" 0 "});
    // Flights of ten frames.
    put_app_file(u"betűpár.kvl", u"a-e\r\nk-l\r\n");
    put_settings(u"betűválogató.ini", {u" 1 ", u" 1 ", u"True", u"False", u" 0 ", u" 14 "});
    // Six pairs, one second of waiting, two frames of half a turn.
    put_app_file(u"cserko\\képmem.ini",
                 u" 6 \r\n 12 \r\n 1 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n"
                 u" 1 \r\n 2 \r\n 0 \r\n 0 \r\n");
    start();
    put_answer_sounds();
  }
  void put_full(const Text& name, const Text& syllables) {
    put({.név = name,
         .szótagolt = syllables,
         .angol = u"the " + name,
         .meghatározás = name + u" meghatározása.",
         .igaz = name + u" igaz állítása.",
         .hamis = name + u" hamis állítása."});
  }

  /// Plays from the start of the program until so many sets are solved, then leaves.
  void play(ExercisePlayer& player, int sets) {
    HeadlessHand hand(machine);
    machine.deed_time = 20;
    machine.user = [&](Window& top) {
      // The panel of the last set is still to be closed.
      const bool panel = dynamic_cast<frm_gratuláció*>(&top) != nullptr;
      if (player.sets() < sets || panel) return player.step(top, hand);
      hand::close(top);
      return true;
    };
    session().Main();
    EXPECT_EQ(player.sets(), sets);
    EXPECT_TRUE(machine.ended());
  }

  /// How often a sound was begun.
  int begun(TextView file) {
    const Text end = u"\\" + Text(file) + u"\" type waveaudio alias hang";
    const auto& all = machine.media().commands;
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const Text& command) { return command.ends_with(end); }));
  }
  /// The sounds tell what the exercise itself thought of the answers: six right ones in each set, and wrong each time
  /// that the player meant to be.
  void expect_judged(const ExercisePlayer& player, int tasks = 6) {
    EXPECT_EQ(begun(u"good.wav"), tasks * player.sets());
    EXPECT_EQ(begun(u"bad.wav"), player.wrong_answers());
  }
  void expect_judged(const BetűválogatásPlayer& player) {
    expect_judged(static_cast<const ExercisePlayer&>(player), frm_betűválogatás::places);
  }
  /// Picture memory moves two cards up for each pair that it swallows, and two up and back for each wrong one.
  void expect_judged(const KépmemóriaPlayer& player, int pairs = 6) {
    EXPECT_EQ(begun(u"swallow1.wav"), pairs * player.sets());
    EXPECT_EQ(begun(u"Moving.wav"), 2 * pairs * player.sets() + 4 * player.wrong_answers());
  }
};

template<class P> class EachPlayerTest : public ExercisePlayersTest {};
using Players = ::testing::Types<BetűfeleslegPlayer, BetűválogatásPlayer, IgazhamisPlayer, MondatképPlayer,
                                 SzótagolóPlayer, KépmemóriaPlayer, BetűhiányPlayer>;
TYPED_TEST_SUITE(EachPlayerTest, Players);

TYPED_TEST(EachPlayerTest, SolvesAThousandSetsByMouseWithMistakes) {
  TypeParam player(this->session(), Mode::Mouse, 5);
  this->play(player, 1000);
  EXPECT_GE(player.wrong_answers(), 1000);
  this->expect_judged(player);
}

TYPED_TEST(EachPlayerTest, SolvesAThousandSetsByKeyboardAloneWithMistakes) {
  TypeParam player(this->session(), Mode::Keyboard, 5);
  this->play(player, 1000);
  EXPECT_GE(player.wrong_answers(), 1000);
  this->expect_judged(player);
}

TYPED_TEST(EachPlayerTest, SolvesSetsWithoutAnyMistake) {
  TypeParam player(this->session(), Mode::Mouse);
  this->play(player, 20);
  EXPECT_EQ(player.wrong_answers(), 0);
  this->expect_judged(player);
}

class DirectionModeTest : public ExercisePlayersTest {
 protected:
  void practise(Mode mode) {
    BetűválogatásPlayer player(session(), mode, 5);
    load<frm_betűválogatás_beállítás>().chk_iránygyakoroltatása.set_value(1);
    play(player, 200);
    EXPECT_GE(player.wrong_answers(), 200);
    EXPECT_GE(player.directions(), frm_betűválogatás::places * 200) << "all but the first answer";
    expect_judged(player);
  }
};

TEST_F(DirectionModeTest, TheSortingPlayerSaysTheSidesByMouse) { practise(Mode::Mouse); }

TEST_F(DirectionModeTest, TheSortingPlayerSaysTheSidesByKeyboard) { practise(Mode::Keyboard); }

class FullBoardTest : public ExercisePlayersTest {
 protected:
  FullBoardTest() { put_app_file(u"cserko\\képmem.ini", u" 18 \r\n"); }
};

TEST_F(FullBoardTest, TheMemoryPlayerClearsFullBoardsByMouse) {
  KépmemóriaPlayer player(session(), Mode::Mouse, 5);
  play(player, 20);
  EXPECT_GE(player.wrong_answers(), 60);
  expect_judged(player, 18);
}

TEST_F(FullBoardTest, TheMemoryPlayerClearsFullBoardsByKeyboardAndAsksForHelpByItsKey) {
  KépmemóriaPlayer player(session(), Mode::Keyboard, 5);
  play(player, 20);
  EXPECT_GE(player.wrong_answers(), 60);
  expect_judged(player, 18);
  EXPECT_GE(player.helps(), 60);
}

} // namespace
} // namespace cserko
