// The player of Scrambled word solves words by the thousand, by mouse and by keyboard, with mistakes and helps.
#include "core/frm_főablak.h"
#include "tests/players/cserkó_player.h"
#include "tests/players/headless_hand.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

class PlayerTest : public SuiteTest {
 protected:
  PlayerTest() {
    put_sample_pack(machine.files());
    start();
  }

  // Plays from the start of the program until so many words are solved, then leaves.
  void play(CserkóPlayer& player, int words) {
    HeadlessHand hand(machine);
    machine.deed_time = 20;
    machine.user = [&](Window& top) {
      if (player.sets() < words) return player.step(top, hand);
      // The panel of the last word is still to be closed.
      if (dynamic_cast<frm_cserkó*>(&top) == nullptr && dynamic_cast<frm_főablak*>(&top) == nullptr)
        return player.step(top, hand);
      hand::close(top);
      return true;
    };
    session().Main();
  }
};

TEST_F(PlayerTest, SolvesFiveHundredWordsByMouseWithMistakesAndHelps) {
  CserkóPlayer player(session(), CserkóPlayer::Mode::Mouse, 5);
  play(player, 500);
  EXPECT_EQ(player.sets(), 500);
  EXPECT_GE(player.wrong_answers(), 80);
  EXPECT_GE(player.revelations(), 40);
  EXPECT_TRUE(machine.ended());
}

TEST_F(PlayerTest, SolvesFiveHundredWordsByKeyboardAloneWithMistakesAndHelps) {
  CserkóPlayer player(session(), CserkóPlayer::Mode::Keyboard, 5);
  play(player, 500);
  EXPECT_EQ(player.sets(), 500);
  EXPECT_GE(player.wrong_answers(), 80);
  EXPECT_GE(player.revelations(), 40);
}

TEST_F(PlayerTest, SolvesWordsWithoutAnyMistake) {
  CserkóPlayer player(session(), CserkóPlayer::Mode::Mouse);
  play(player, 50);
  EXPECT_EQ(player.sets(), 50);
  EXPECT_EQ(player.wrong_answers(), 0);
  EXPECT_EQ(player.revelations(), 0);
}

} // namespace
} // namespace cserko
