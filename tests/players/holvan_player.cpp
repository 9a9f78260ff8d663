#include "tests/players/holvan_player.h"

#include "exercises/syllables/frm_holvan.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

#include <cmath>

namespace cserko {

namespace {

// What a child says of a word beside the picture.
TextView side_of(const Element& word, const Element& picture) {
  const double right = word.Left + word.Width / 2 - picture.Left - picture.Width / 2;
  const double down = word.Top + word.Height / 2 - picture.Top - picture.Height / 2;
  if (std::abs(right) > std::abs(down)) return right < 0 ? u"balra" : u"jobbra";
  return down < 0 ? u"fent" : u"lent";
}

} // namespace

bool HolvanPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_holvan&>(window);
  if (!exercise.has_puzzle()) return false;
  TextView side;
  exercise.lbl_szó.each([&](const Label& word) {
    if (word.Caption == records()[exercise.aktuális_kép()].név) side = side_of(word, exercise.kép);
  });
  Button* right = nullptr;
  Button* wrong = nullptr;
  exercise.cmd_irány.each([&](Button& button) {
    if (button.shown()) (button.Caption == side ? right : wrong) = &button;
  });
  if (right == nullptr || wrong == nullptr) return false;
  const bool err = mistake_due(task_number(exercise.pic_eredménykép, sets()));
  if (choose(err ? *wrong : *right, hand) && err) mistake_made();
  return true;
}

namespace {

const Played played{{.name = "where_is_it",
                     .window = u"frm_holvan",
                     .tasks = 6,
                     .make = make_player<HolvanPlayer>,
                     .gathered = gathered_on_strip<frm_holvan>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
