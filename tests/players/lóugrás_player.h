// Plays Knight's jump: walks the hidden path as somebody who knows the names, with a wrong step now and then that is
// taken back, or astray until the names are full and the program asks to look them through.
#pragma once

#include "exercises/boards/frm_lóugrás.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class LóugrásPlayer : public ExercisePlayer {
 public:
  /// Of every `mistakes` letters one is taken from a wrong field first, 0 for none. Of so many boards one begins with a
  /// walk astray, 0 for none.
  LóugrásPlayer(const Session& session, Mode mode, int mistakes = 0, int boards_astray = 0)
      : ExercisePlayer(session, u"frm_lóugrás", mode, mistakes), boards_astray_(boards_astray) {}

  /// Messages, hints and pictures large, as they were seen or asked for.
  int messages() const { return messages_; }
  int hints() const { return hints_; }
  int helps() const { return helps_; }

 protected:
  bool play(Window& window, Hand& hand) override;
  bool play_beside(Window& top, Hand& hand) override;

 private:
  bool step_onto(frm_lóugrás& game, Square square, Hand& hand) const;
  bool take_back(frm_lóugrás& game, Hand& hand);
  bool ask(frm_lóugrás& game, Hand& hand);

  int boards_astray_;
  bool astray_ = false;
  int board_astray_ = -1; ///< The last board that began so.
  int board_asked_ = -1;  ///< The last board on which the hint and a picture were asked for.
  int asked_ = 0;
  int messages_ = 0;
  int hints_ = 0;
  int helps_ = 0;
};

} // namespace cserko
