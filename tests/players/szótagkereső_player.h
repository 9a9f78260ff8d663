// Plays Syllable search: lays the syllables into their order, by dragging or with the keys.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class SzótagkeresőPlayer : public ExercisePlayer {
 public:
  SzótagkeresőPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_szótagkereső", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;
};

} // namespace cserko
