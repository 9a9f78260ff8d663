// What a strip of solved tasks tells a player.
#pragma once

#include "platform/element_array.h"
#include "tests/players/player.h"

namespace cserko {

/// How many tasks a strip shows as solved.
inline int solved_tasks(const ElementArray<Label>& strip) {
  int filled = 0;
  strip.each([&](const Label& label) { filled += label.Caption.empty() ? 0 : 1; });
  return filled;
}

/// A number that changes with every task that is solved, from the strip and the sets that are behind it.
inline int task_number(const ElementArray<Label>& strip, int sets) {
  return sets * (strip.count() + 1) + solved_tasks(strip);
}

/// How many an exercise shows as solved whose strip is its `lbl_eredmény`, for the list of players.
template<class Exercise> int gathered_on_strip(Window& window, const Player& /*player*/) {
  return solved_tasks(dynamic_cast<Exercise&>(window).lbl_eredmény);
}

} // namespace cserko
