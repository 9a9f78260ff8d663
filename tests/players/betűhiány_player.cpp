#include "tests/players/betűhiány_player.h"

#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

namespace cserko {

namespace {

struct Piece {
  Text text;
  bool halved = false;
};

// The row with all letters.
std::vector<Piece> whole_row(TextView word) {
  const kszöveg text(word);
  const int split_at = hosszú_kettős_helye(text);
  std::vector<Piece> pieces;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) {
    const Text letter = text.szóbetűje(int(i));
    if (i == split_at && i >= 2) {
      pieces.push_back({letter.substr(0, 1)});
      pieces.push_back({letter.substr(letter.size() - 2), true});
    } else {
      pieces.push_back({letter});
    }
  }
  return pieces;
}

struct Gap {
  int position = -1; ///< Index of the letter that was taken; what belongs in comes behind the one before it.
  Text missing;
};

// The gap from which the present row can have come, whatever was put where.
Gap find_gap(const frm_betűhiány& exercise) {
  const std::vector<Piece> all = whole_row(exercise.szó());
  for (std::size_t taken = 1; taken + 1 < all.size(); ++taken) {
    if (all[taken].halved) continue;
    const Text& missing = all[taken + 1].halved ? all[taken + 1].text : all[taken].text;
    std::vector<Piece> rest = all;
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(taken));
    bool fits = static_cast<int>(rest.size()) == exercise.betű.count();
    for (std::size_t i = 0; fits && i < rest.size(); ++i) {
      const Text& shown = exercise.betű[static_cast<int>(i)].Caption;
      const bool before_half = i + 1 < rest.size() && rest[i + 1].halved;
      const Text put_in = before_half ? missing.substr(0, 1) : missing;
      fits = shown == rest[i].text || shown == rest[i].text + put_in;
    }
    if (fits) return {static_cast<int>(taken), missing};
  }
  return {};
}

// Whether the letter stands behind that one: it is longer than in the whole row.
bool holds_it(const frm_betűhiány& exercise, const Gap& gap, int index) {
  const std::vector<Piece> all = whole_row(exercise.szó());
  const int before = index < gap.position ? index : index + 1;
  return exercise.betű[index].Caption != all[static_cast<std::size_t>(before)].text;
}

// The lowest letter but that one behind which the missing one stands, -1 if there is none.
int holds_it_wrongly(const frm_betűhiány& exercise, const Gap& gap, int target) {
  for (int i = 0; i < exercise.betű.count(); ++i) {
    if (i != target && holds_it(exercise, gap, i)) return i;
  }
  return -1;
}

Text text_of(const frm_betűhiány& exercise, int changed = -1, TextView put_in = {}) {
  Text joined;
  exercise.betű.each([&](const Label& letter) {
    joined += letter.Caption;
    if (letter.Index == changed) joined += put_in;
  });
  return joined;
}

// A letter behind which the missing one can be put and makes another word, -1 if there is none.
int wrong_place(const frm_betűhiány& exercise, const Gap& gap) {
  for (int i = exercise.betű.count() - 2; i >= 0; --i) {
    const Label& letter = exercise.betű[i];
    const bool reachable = letter.Tag != LetterRow::second_half || letter.Caption != gap.missing;
    const bool halved = exercise.betű[i + 1].Tag == LetterRow::second_half;
    const TextView put_in = TextView(gap.missing).substr(0, halved ? 1 : gap.missing.size());
    if (reachable && i != gap.position - 1 && text_of(exercise, i, put_in) != exercise.szó()) return i;
  }
  return -1;
}

} // namespace

bool BetűhiányPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_betűhiány&>(window);
  if (!exercise.has_puzzle()) return false;
  const Gap gap = find_gap(exercise);
  if (gap.position < 0) return false;
  const int target = gap.position - 1;
  const int misplaced = holds_it_wrongly(exercise, gap, target);
  const bool solved = text_of(exercise) == exercise.szó();
  if (!mistake_due(task_number(exercise.lbl_eredmény, sets()))) {
    if (solved) {
      press_default(exercise.cmd_kész, hand);
    } else {
      turn_over(exercise, hand, misplaced >= 0 ? misplaced : target, gap.missing, misplaced >= 0);
    }
    return true;
  }
  const int wrong = wrong_place(exercise, gap);
  if (solved) {
    turn_over(exercise, hand, misplaced >= 0 ? misplaced : target, gap.missing, true);
  } else if (misplaced < 0 && wrong >= 0) {
    turn_over(exercise, hand, wrong, gap.missing, false);
  } else {
    press_default(exercise.cmd_kész, hand);
    mistake_made();
  }
  return true;
}

// Puts the letter behind that one, or takes it out from there.
void BetűhiányPlayer::turn_over(frm_betűhiány& exercise, Hand& hand, int changed, TextView missing, bool out) {
  Label& label = exercise.betű[changed + 1];
  if (changed % 2 == 1) {
    choose(label, hand);
  } else if (!by_mouse()) {
    press_on(label, hand, out ? key::left : key::right, shift::control);
  } else {
    const double far = exercise.platform().measure(label.Font, missing).width;
    hand.drag(label, out ? -far : far, 0);
  }
}

namespace {

const Played played{{.name = "missing_letter",
                     .window = u"frm_betűhiány",
                     .tasks = 6,
                     .make = make_player<BetűhiányPlayer>,
                     .gathered = gathered_on_strip<frm_betűhiány>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
