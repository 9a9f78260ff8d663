#include "tests/players/mondatkép_player.h"

#include "core/settings.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

namespace cserko {

const Text& MondatképPlayer::definition(const PictureBox& picture) const {
  static const Text none;
  const int record = number_in(picture.Tag).value_or(-1);
  return record < 0 ? none : records()[record].meghatározás;
}

bool MondatképPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_mondatkép&>(window);
  PictureBox* right = nullptr;
  PictureBox* wrong = nullptr;
  exercise.pic_feladványkép.each([&](PictureBox& picture) {
    const Text& text = definition(picture);
    if (text.empty()) return;
    (text == exercise.lbl_meghatározás.Tag ? right : wrong) = &picture;
  });
  if (right == nullptr) return false;
  const bool err = mistake_due(task_number(exercise.lbl_eredmény, sets())) && wrong != nullptr;
  if (choose(err ? *wrong : *right, hand) && err) mistake_made();
  return true;
}

namespace {

const Played played{{.name = "sentence_to_picture",
                     .window = u"frm_mondatkép",
                     .tasks = 6,
                     .make = make_player<MondatképPlayer>,
                     .gathered = gathered_on_strip<frm_mondatkép>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
