// Plays Picture definition: chooses the definition of the picture's record.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class KéphatározóPlayer : public ExercisePlayer {
 public:
  KéphatározóPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_képhatározó", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;
};

} // namespace cserko
