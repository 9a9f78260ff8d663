#include "tests/players/szótagoló_player.h"

#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

#include <algorithm>

namespace cserko {

namespace {

bool break_after(const Label& letter) { return letter.Caption.ends_with(u'-'); }

// Before which letters the word has a break. Nothing where the row cannot become the word.
std::optional<std::vector<bool>> wanted_breaks(const frm_szótagoló& exercise, TextView syllables) {
  std::vector<bool> breaks(static_cast<std::size_t>(exercise.betű.count()), false);
  TextView rest = syllables;
  for (int i = 0; i < exercise.betű.count(); ++i) {
    const bool halved = exercise.betű.loaded(i + 1) && exercise.betű[i + 1].Tag == u"3";
    Text closed = exercise.betű[i].Caption;
    if (break_after(exercise.betű[i])) closed.pop_back();
    if (halved) closed = closed.substr(0, 1);
    const Text open = (halved ? exercise.betű[i + 1].Caption : closed) + u"-";
    const bool opened = exercise.betű.loaded(i + 1) && rest.starts_with(open);
    if (!opened && !rest.starts_with(closed)) return std::nullopt;
    if (opened) breaks[static_cast<std::size_t>(i) + 1] = true;
    rest.remove_prefix(opened ? open.size() : closed.size());
  }
  return rest.empty() ? std::optional(breaks) : std::nullopt;
}

} // namespace

bool SzótagolóPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_szótagoló&>(window);
  if (exercise.aktuális_kép() < 0) return false;
  const auto wanted = wanted_breaks(exercise, records()[exercise.aktuális_kép()].szótagolt);
  if (!wanted) return false;
  int first_wrong = 0;
  for (int i = exercise.betű.count() - 1; i > 0; --i) {
    if (break_after(exercise.betű[i - 1]) != (*wanted)[static_cast<std::size_t>(i)]) first_wrong = i;
  }
  if (mistake_due(task_number(exercise.lbl_eredmény, sets()))) {
    if (first_wrong > 0) {
      press_default(exercise.cmd_kész, hand);
      mistake_made();
      return true;
    }
    if (exercise.betű.count() > 1) {
      change_break(exercise, 1, hand);
      return true;
    }
    forgo_mistake();
  }
  if (first_wrong > 0) {
    change_break(exercise, first_wrong, hand);
  } else {
    press_default(exercise.cmd_kész, hand);
  }
  return true;
}

void SzótagolóPlayer::change_break(frm_szótagoló& exercise, int letter, Hand& hand) {
  Label& label = exercise.betű[letter];
  const bool open = break_after(exercise.betű[letter - 1]);
  if (letter % 2 == 0) {
    choose(label, hand);
    return;
  }
  if (!by_mouse()) {
    press_on(label, hand, open ? key::left : key::right, shift::control);
    return;
  }
  // Far enough that the row, which moves under the pointer, does not change it back.
  const double hyphen = exercise.platform().measure(label.Font, u"-").width;
  const double far = label.Width / 2 + hyphen;
  hand.drag(label, open ? -far : far, 0);
}

namespace {

const Played played{{.name = "syllabifier",
                     .window = u"frm_szótagoló",
                     .tasks = 6,
                     .make = make_player<SzótagolóPlayer>,
                     .gathered = gathered_on_strip<frm_szótagoló>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds,
                     .prepare = [](Files& files) {
                       // Words of two to four syllables, so that each of them has a break to open.
                       write_user_settings(files, u"szótagoló.ini", " 4 \r\n 1 \r\n");
                     }}};

} // namespace

} // namespace cserko
