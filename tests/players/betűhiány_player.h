// Plays Missing letter: puts the letter into its gap, with pulls and clicks in turn or with the keys for both, and
// takes it out where it does not belong.
#pragma once

#include "exercises/letters/frm_betűhiány.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class BetűhiányPlayer : public ExercisePlayer {
 public:
  BetűhiányPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_betűhiány", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  void turn_over(frm_betűhiány& exercise, Hand& hand, int changed, TextView missing, bool out);
};

} // namespace cserko
