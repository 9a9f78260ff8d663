// Plays Syllabifier: opens the breaks of the word, with pulls and clicks in turn or with the keys for both, and closes
// those that are wrong.
#pragma once

#include "exercises/syllables/frm_szótagoló.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class SzótagolóPlayer : public ExercisePlayer {
 public:
  SzótagolóPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_szótagoló", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  void change_break(frm_szótagoló& exercise, int letter, Hand& hand);
};

} // namespace cserko
