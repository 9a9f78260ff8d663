#include "tests/players/betűkeverő_player.h"

#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

namespace cserko {

bool BetűkeverőPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_betűkeverő&>(window);
  if (!exercise.has_puzzle() || exercise.Timer1.Enabled) return false;
  const KépAdat& record = records()[exercise.szó_index()];
  Label* right = nullptr;
  Label* wrong = nullptr;
  const int task = task_number(exercise.pic_eredménykép, sets());
  exercise.lbl_szó.each([&](Label& spelling) {
    const Text& text = spelling.Caption;
    if (text == record.név || text == record.szótagolt || text == record.angol) {
      right = &spelling;
    } else if (wrong == nullptr || task % 2 == 0) {
      wrong = &spelling;
    }
  });
  if (right == nullptr || wrong == nullptr) return false;
  const bool err = mistake_due(task);
  Label& aim = err ? *wrong : *right;
  const bool by_enter = !by_mouse() && task % 2 == 0;
  const bool chosen = by_enter ? press_on(aim, hand, key::enter) : choose(aim, hand);
  if (chosen && err) mistake_made();
  return true;
}

namespace {

const Played played{{.name = "letter_mix_up",
                     .window = u"frm_betűkeverő",
                     .tasks = 6,
                     .make = make_player<BetűkeverőPlayer>,
                     .gathered = gathered_on_strip<frm_betűkeverő>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
