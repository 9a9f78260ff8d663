// Plays Letter mix-up: chooses the spelling that is the name of the picture.
#pragma once

#include "exercises/boards/frm_betűkeverő.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class BetűkeverőPlayer : public ExercisePlayer {
 public:
  BetűkeverőPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_betűkeverő", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;
};

} // namespace cserko
