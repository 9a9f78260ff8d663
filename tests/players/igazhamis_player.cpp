#include "tests/players/igazhamis_player.h"

#include "exercises/sentences/frm_igazhamis.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

namespace cserko {

bool IgazhamisPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_igazhamis&>(window);
  ElementArray<Label>& statements = exercise.lbl_állítás;
  if (statements[0].Caption.empty()) return false;
  const Text& truth = records()[exercise.aktuális_kép()].igaz;
  const int right = statements[0].Caption == truth ? 0 : 1;
  const bool wrong = mistake_due(task_number(exercise.lbl_eredmény, sets())) && statements[1 - right].Caption != truth;
  if (choose(statements[wrong ? 1 - right : right], hand) && wrong) mistake_made();
  return true;
}

namespace {

const Played played{{.name = "true_or_false",
                     .window = u"frm_igazhamis",
                     .tasks = 6,
                     .make = make_player<IgazhamisPlayer>,
                     .gathered = gathered_on_strip<frm_igazhamis>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
