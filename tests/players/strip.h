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

/// The same of a strip without labels, whose pictures tell their records.
inline int solved_tasks(const ElementArray<PictureBox>& strip) {
  int filled = 0;
  strip.each([&](const PictureBox& picture) { filled += picture.Tag == u"-1" ? 0 : 1; });
  return filled;
}

/// A number that changes with every task that is solved, from the strip and the sets that are behind it.
template<class T> int task_number(const ElementArray<T>& strip, int sets) {
  return sets * (strip.count() + 1) + solved_tasks(strip);
}

/// How many tasks an exercise shows as solved, in its labels or, where it has none, in its pictures.
template<class Exercise> int solved_in(const Exercise& exercise) {
  if constexpr (requires { exercise.lbl_eredmény; }) {
    return solved_tasks(exercise.lbl_eredmény);
  } else if constexpr (requires { exercise.pic_eredmény; }) {
    return solved_tasks(exercise.pic_eredmény);
  } else {
    return solved_tasks(exercise.pic_eredménykép);
  }
}

/// The same for the list of players.
template<class Exercise> int gathered_on_strip(Window& window, const Player& /*player*/) {
  return solved_in(dynamic_cast<Exercise&>(window));
}

} // namespace cserko
