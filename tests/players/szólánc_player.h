// Plays Word chain: looks at the solution and puts its pictures into the row from left to right, by dragging, by
// clicking or by keys. A wrong picture is put where the next one belongs and sent back.
#pragma once

#include "exercises/boards/frm_szólánc.h"
#include "tests/players/exercise_player.h"

namespace cserko {

class SzóláncPlayer : public ExercisePlayer {
 public:
  SzóláncPlayer(const Session& session, Mode mode, int mistakes = 0)
      : ExercisePlayer(session, u"frm_szólánc", mode, mistakes) {}

  /// How many places from the left hold what the solution has there.
  int right_places(const frm_szólánc& exercise) const;
  /// How often a picture was dragged.
  int drags() const { return drags_; }

 protected:
  bool play(Window& window, Hand& hand) override;
  bool play_beside(Window& top, Hand& hand) override;
  /// Remembers what the solution shows.
  void see(const frm_szólánc_segítő& solution);

 private:
  bool knows_solution(const frm_szólánc& exercise) const;
  PictureBox* wrong_picture(frm_szólánc& exercise, int place) const;
  bool put(frm_szólánc& exercise, PictureBox& picture, int place, Hand& hand);
  bool press_place(PictureBox& place, Hand& hand);

  std::vector<Text> solution_; ///< The tags of its pictures.
  int set_ = -1;               ///< Of which set.
  int drags_ = 0;
};

} // namespace cserko
