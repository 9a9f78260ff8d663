// Plays Picture memory: turns the cards of one pair after the other, as somebody with a perfect memory does.
#pragma once

#include "exercises/boards/frm_képmemória.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class KépmemóriaPlayer : public ExercisePlayer {
 public:
  /// By keyboard one card before each mistake is read by the help key first.
  KépmemóriaPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_képmemória", mode, mistakes) {}

  /// How often the help key was pressed.
  int helps() const { return helps_; }

 protected:
  bool play(Window& window, Hand& hand) override;

 private:
  bool help_first(frm_képmemória& exercise, PictureBox& card, Hand& hand);

  int helps_ = 0;
  int helped_task_ = -1;
};

} // namespace cserko
