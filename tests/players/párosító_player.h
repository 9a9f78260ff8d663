// Plays Sentence pairing: by mouse it draws lines from the one column and from the other and clicks pairs, by keyboard
// it chooses a picture and its definition.
#pragma once

#include "exercises/sentences/frm_párosító.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class PárosítóPlayer : public ExercisePlayer {
 public:
  PárosítóPlayer(Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_párosító", mode, mistakes), session_(session) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  enum class Way : std::uint8_t { FromPicture, FromDefinition, Choosing };

  bool may_begin(const PictureBox& definition, const PictureBox& picture);
  void join(PictureBox& picture, PictureBox& definition, Way way, bool err, Hand& hand);

  Session& session_;
  bool owes_mistake_ = false; ///< A wrong answer was due when none was possible.
};

/// How many pictures have their right partner.
int paired(const frm_párosító& exercise);

} // namespace cserko
