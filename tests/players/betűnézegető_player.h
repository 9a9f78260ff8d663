// Plays Letter viewer with its reading check on: finds the picture of the word, then waits for the next one or asks for
// it by a click or a letter.
#pragma once

#include "exercises/letters/frm_betűnézegető.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class BetűnézegetőPlayer : public ExercisePlayer {
 public:
  BetűnézegetőPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_betűnézegető", mode, mistakes) {}

  /// The exercise has no end: so many pictures found are called a set.
  static constexpr int set = 6;
  int found() const { return found_; }
  int sets() const override { return found_ / set; }

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  void find(frm_betűnézegető& exercise, Hand& hand);
  void go_on(frm_betűnézegető& exercise, Hand& hand);

  int found_ = 0;
  int letters_ = 0; ///< How many were typed.
};

} // namespace cserko
