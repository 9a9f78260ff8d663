// Tekergő is played: games won by mouse and by keyboard, games lost by waiting.
#include "core/frm_főablak.h"
#include "tests/exercises/winder_fixture.h"
#include "tests/players/headless_hand.h"
#include "tests/players/verem_player.h"

namespace cserko {
namespace {

using Mode = ExercisePlayer::Mode;

class WinderPlayersTest : public WinderTest {
 protected:
  WinderPlayersTest() {
    put_words();
    put_settings(u"verem.ini", {u" 8 ", u" 5 ", u" 2 ", u" 1 ", u" 2 ", u" 0 ", u" 1 "});
    start();
  }
  void play(VeremPlayer& player, int won, int lost) {
    HeadlessHand hand(machine);
    machine.deed_time = 20;
    machine.user = [&](Window& top) {
      const bool home = dynamic_cast<frm_főablak*>(&top) != nullptr;
      const bool done = player.sets() >= won && player.losses() + (home ? 1 : 0) >= lost;
      if (!done || !(home || dynamic_cast<frmverem*>(&top) != nullptr)) return player.step(top, hand);
      hand::close(top);
      return true;
    };
    session().Main();
    EXPECT_TRUE(machine.ended());
  }
};

TEST_F(WinderPlayersTest, WinsTwoHundredGamesAndLosesFiftyByKeyboardAlone) {
  VeremPlayer player(session(), Mode::Keyboard, 4, 4);
  play(player, 200, 50);
  EXPECT_EQ(player.sets(), 200);
  EXPECT_EQ(machine.count("modal frmveremigennem"), 50);
  EXPECT_GE(player.wrong_answers(), 40);
}

TEST_F(WinderPlayersTest, WinsTwoHundredGamesAndLosesFiftyByMouseAlone) {
  VeremPlayer player(session(), Mode::Mouse, 4, 4);
  play(player, 200, 50);
  EXPECT_EQ(player.sets(), 200);
  EXPECT_EQ(machine.count("modal frmveremigennem"), 50);
}

} // namespace
} // namespace cserko
