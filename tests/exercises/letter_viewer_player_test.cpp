// The player of Letter viewer finds the pictures of a thousand sets, by mouse and by keyboard, with wrong ones now and
// then.
#include "tests/exercises/letter_viewer_fixture.h"
#include "tests/players/betűnézegető_player.h"
#include "tests/players/headless_hand.h"

#include <algorithm>

namespace cserko {
namespace {

using Mode = ExercisePlayer::Mode;

class LetterViewerPlayerTest : public LetterViewerFixture, public ::testing::WithParamInterface<Mode> {
 protected:
  int begun(TextView file) {
    const Text end = u"\\" + Text(file) + u"\" type waveaudio alias hang";
    const auto& all = machine.media().commands;
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const Text& command) { return command.ends_with(end); }));
  }
  void play(ExercisePlayer& player, const std::function<bool()>& done) {
    HeadlessHand hand(machine);
    machine.deed_time = 20;
    machine.user = [&](Window& top) {
      if (!done()) return player.step(top, hand);
      hand::close(top);
      return true;
    };
    session().Main();
    EXPECT_TRUE(machine.ended());
  }
};

TEST_P(LetterViewerPlayerTest, FindsThePicturesOfAThousandSets) {
  put_choices({.check = true});
  start();
  put_answer_sounds();
  BetűnézegetőPlayer player(session(), GetParam(), 5);
  const int wanted = 1000 * BetűnézegetőPlayer::set;
  play(player, [&] { return player.found() >= wanted; });
  EXPECT_EQ(player.found(), wanted);
  EXPECT_GE(player.wrong_answers(), 1000);
  EXPECT_EQ(begun(u"good.wav"), player.found());
  EXPECT_EQ(begun(u"bad.wav"), player.wrong_answers());
}

INSTANTIATE_TEST_SUITE_P(Ways, LetterViewerPlayerTest, ::testing::Values(Mode::Mouse, Mode::Keyboard));

} // namespace
} // namespace cserko
