// Plays Which way: sees from the file of the picture where it points.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class MerremutatPlayer : public ExercisePlayer {
 public:
  MerremutatPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_merremutat", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;
};

} // namespace cserko
