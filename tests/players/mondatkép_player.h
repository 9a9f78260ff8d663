// Plays Sentence to picture: chooses the picture whose record has the definition.
#pragma once

#include "tests/players/exercise_player.h"

namespace cserko {

class MondatképPlayer : public ExercisePlayer {
 public:
  MondatképPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_mondatkép", mode, mistakes) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  const Text& definition(const PictureBox& picture) const;
};

} // namespace cserko
