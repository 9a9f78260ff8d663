// Plays Sentence pairing: by mouse it draws lines from the one column and from the other and clicks pairs, by keyboard
// it chooses a picture and its definition.
#pragma once

#include "exercises/sentences/frm_párosító.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class PárosítóPlayer : public ExercisePlayer {
 public:
  /// Where lines are checked late, those from a definition take others out of play than they join: it draws none then.
  PárosítóPlayer(const Session& session, Mode mode, int mistakes = 0, bool checked_late = false)
      : ExercisePlayer(session, u"frm_párosító", mode, mistakes), checked_late_(checked_late) {}

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  enum class Way : std::uint8_t { FromPicture, FromDefinition, Choosing };

  void join(PictureBox& picture, PictureBox& definition, Way way, bool err, Hand& hand);

  bool checked_late_;
  int drawn_back_ = -1; ///< The task in which a line was last drawn from a definition.
};

/// How many pictures have their right partner.
int paired(const frm_párosító& exercise);

} // namespace cserko
