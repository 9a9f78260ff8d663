// Plays Where is it: sees on which side of the picture its name stands and presses the word for that side.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class HolvanPlayer : public ExercisePlayer {
 public:
  HolvanPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_holvan", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;
};

} // namespace cserko
