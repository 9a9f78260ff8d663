// Plays Letter sorting: reads the word and clicks its letter or presses the arrow towards it; where the direction panel
// asks, says the side by its word.
#pragma once

#include "exercises/letters/frm_betűválogatás.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class BetűválogatásPlayer : public ExercisePlayer {
 public:
  BetűválogatásPlayer(Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_betűválogatás", mode, mistakes), session_(session) {}

  /// How many directions were said.
  int directions() const { return directions_; }

 protected:
  bool play(Window& window, Hand& hand) override;
  bool play_beside(Window& top, Hand& hand) override;

 private:
  struct Answer {
    int letter;
    bool wrong;
  };
  Answer answer(const frm_betűválogatás& exercise);

  Session& session_;
  int directions_ = 0;
};

} // namespace cserko
