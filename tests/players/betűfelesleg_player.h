// Plays Surplus letter: chooses the letter without which the row is the name of the picture.
#pragma once

#include "exercises/letters/frm_betűfelesleg.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class BetűfeleslegPlayer : public ExercisePlayer {
 public:
  BetűfeleslegPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_betűfelesleg", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  void answer_wrong(frm_betűfelesleg& exercise, const std::vector<int>& right, Hand& hand);
};

} // namespace cserko
