// Plays Word flash: reads the word that the box has shown and chooses its picture; now and then it asks for the word
// once more first.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class SzóvillámPlayer : public ExercisePlayer {
 public:
  SzóvillámPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_szóvillám", mode, mistakes) {}

  /// How often it has asked for the word once more.
  int repetitions() const { return repetitions_; }

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  bool shows(const PictureBox& picture, TextView word) const;

  int repetitions_ = 0;
  int repeated_task_ = -1;
};

} // namespace cserko
