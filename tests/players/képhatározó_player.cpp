#include "tests/players/képhatározó_player.h"

#include "core/settings.h"
#include "exercises/sentences/frm_képhatározó.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

namespace cserko {

bool KéphatározóPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_képhatározó&>(window);
  const int record = number_in(exercise.kép.Tag).value_or(-1);
  if (record < 0) return false;
  PictureBox* right = nullptr;
  PictureBox* wrong = nullptr;
  exercise.lbl_meghatározás.each([&](PictureBox& definition) {
    (definition.Tag == records()[record].meghatározás ? right : wrong) = &definition;
  });
  if (right == nullptr) return false;
  const bool err = mistake_due(task_number(exercise.lbl_eredmény, sets())) && wrong != nullptr;
  if (choose(err ? *wrong : *right, hand) && err) mistake_made();
  return true;
}

namespace {

const Played played{{.name = "picture_definition",
                     .window = u"frm_képhatározó",
                     .tasks = 6,
                     .make = make_player<KéphatározóPlayer>,
                     .gathered = gathered_on_strip<frm_képhatározó>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
