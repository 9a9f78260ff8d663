#include "tests/players/szótagkereső_player.h"

#include "exercises/syllables/frm_szótagkereső.h"
#include "tests/players/piece_mover.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

#include <algorithm>

namespace cserko {

namespace {

std::vector<Text> syllables_of(const Text& word) {
  std::vector<Text> syllables(1);
  for (const char16_t character : word) {
    if (character == u'-') {
      syllables.emplace_back();
    } else {
      syllables.back() += character;
    }
  }
  return syllables;
}

} // namespace

bool SzótagkeresőPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_szótagkereső&>(window);
  // After a right answer the red word is shown for a while.
  if (!exercise.has_puzzle() || !exercise.cmd_kész.Visible) return false;
  const std::vector<Text> word = syllables_of(records()[exercise.aktuális_kép()].szótagolt);
  PieceMover syllables(exercise.szövegtároló, exercise.lbl_szótag);
  if (!syllables.want(word)) return false;
  const auto bring_nearer = [&] { return by_mouse() ? syllables.drag_one(hand) : syllables.move_one_by_key(hand); };
  if (mistake_due(task_number(exercise.lbl_eredmény, sets()))) {
    if (syllables.reading() != word) {
      press_default(exercise.cmd_kész, hand);
      mistake_made();
      return true;
    }
    // What lies there by chance is right: the first syllable goes to the end.
    std::vector<Text> wrong = word;
    std::rotate(wrong.begin(), wrong.begin() + 1, wrong.end());
    if (wrong != word && syllables.want(wrong)) return bring_nearer();
    forgo_mistake();
  }
  if (!bring_nearer()) press_default(exercise.cmd_kész, hand);
  return true;
}

namespace {

const Played played{{.name = "syllable_search",
                     .window = u"frm_szótagkereső",
                     .tasks = 3,
                     .make = make_player<SzótagkeresőPlayer>,
                     .gathered = gathered_on_strip<frm_szótagkereső>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
