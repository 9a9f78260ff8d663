// Plays Short-long: slides the column by drag, click or key until the letter stands in the line, then presses "Kész".
#pragma once

#include "exercises/boards/frm_hosszrövid.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class HosszrövidPlayer : public ExercisePlayer {
 public:
  HosszrövidPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_hosszrövid", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  void slide(frm_hosszrövid& exercise, Hand& hand, Label& letter, double way, int task);
};

} // namespace cserko
