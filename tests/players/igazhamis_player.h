// Plays True or false: chooses the statement that the record calls true.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class IgazhamisPlayer : public ExercisePlayer {
 public:
  IgazhamisPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_igazhamis", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;
};

} // namespace cserko
