#include "tests/players/betűfelesleg_player.h"

#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

#include <algorithm>

namespace cserko {

namespace {

// The letters of which each can go, so that the word is left.
std::vector<int> surplus_letters(const frm_betűfelesleg& exercise, const Text& word) {
  std::vector<int> found;
  for (int i = 0; i < exercise.lbl_betű.count(); ++i) {
    Text rest;
    exercise.lbl_betű.each([&](const Label& letter) { rest += letter.Index == i ? Text() : letter.Caption; });
    if (rest == word) found.push_back(i);
  }
  return found;
}

} // namespace

bool BetűfeleslegPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_betűfelesleg&>(window);
  if (!exercise.has_puzzle() || exercise.Timer1.Enabled) return false;
  const std::vector<int> right = surplus_letters(exercise, records()[exercise.aktuális_kép()].név);
  if (right.empty()) return false;
  if (mistake_due(task_number(exercise.lbl_eredmény, sets()))) {
    answer_wrong(exercise, right, hand);
    return true;
  }
  // Of three equal letters the outer ones need not be neighbours of the surplus one.
  choose(exercise.lbl_betű[right[right.size() / 2]], hand);
  return true;
}

void BetűfeleslegPlayer::answer_wrong(frm_betűfelesleg& exercise, const std::vector<int>& right, Hand& hand) {
  int wrong = 0;
  while (wrong < exercise.lbl_betű.count() && std::find(right.begin(), right.end(), wrong) != right.end()) ++wrong;
  if (wrong == exercise.lbl_betű.count()) {
    forgo_mistake();
  } else if (choose(exercise.lbl_betű[wrong], hand)) {
    mistake_made();
  }
}

namespace {

const Played played{{.name = "surplus_letter",
                     .window = u"frm_betűfelesleg",
                     .tasks = 6,
                     .make = make_player<BetűfeleslegPlayer>,
                     .gathered = gathered_on_strip<frm_betűfelesleg>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
