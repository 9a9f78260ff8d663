#include "tests/players/hosszrövid_player.h"

#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

#include <cmath>

namespace cserko {

bool HosszrövidPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_hosszrövid&>(window);
  if (!exercise.has_puzzle()) return false;
  const Label& gap = exercise.betű[exercise.rés_index()];
  const int task = task_number(exercise.lbl_eredmény, sets());
  const bool err = mistake_due(task);
  const bool upper = (exercise.lbl_felső.Caption == exercise.kivett_betű()) != err;
  const double way = exercise.line_top() + (upper ? gap.Height : -gap.Height) - gap.Top;
  if (std::abs(way) >= gap.Height / 2) {
    slide(exercise, hand, upper ? exercise.lbl_felső : exercise.lbl_alsó, way, task);
    return true;
  }
  if (by_mouse()) {
    hand.click(exercise.cmd_kész);
  } else {
    hand.key(key::enter, shift::none);
  }
  if (err) mistake_made();
  return true;
}

void HosszrövidPlayer::slide(frm_hosszrövid& exercise, Hand& hand, Label& letter, double way, int task) {
  if (task % 2 == 0) {
    choose(letter, hand);
  } else if (!by_mouse()) {
    hand.key(way < 0 ? key::up : key::down, shift::none);
  } else {
    hand.drag(task % 3 == 0 ? letter : exercise.betű[exercise.rés_index()], 0, way);
  }
}

namespace {

const Played played{{.name = "short_long",
                     .window = u"frm_hosszrövid",
                     .tasks = 6,
                     .make = make_player<HosszrövidPlayer>,
                     .gathered = gathered_on_strip<frm_hosszrövid>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
