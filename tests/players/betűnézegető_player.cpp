#include "tests/players/betűnézegető_player.h"

#include "tests/players/played_exercise.h"

namespace cserko {

namespace {

constexpr std::u16string_view keys = u"AEKLMNOSTZ7463"; // letters with many words, and some digraphs

} // namespace

bool BetűnézegetőPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_betűnézegető&>(window);
  if (!exercise.kép.Visible) {
    find(exercise, hand);
    return true;
  }
  // The next word comes by itself, or sooner when it is asked for; the solution of a choice that was given up stands.
  if (exercise.timer_megold.Enabled) return false;
  if (exercise.Timer1.Enabled && found_ % 2 == 0) return false;
  go_on(exercise, hand);
  return true;
}

void BetűnézegetőPlayer::find(frm_betűnézegető& exercise, Hand& hand) {
  int right = 0;
  while (right < exercise.választáskép.count() - 1 && exercise.választáskép[right].Tag != exercise.kép.Tag) ++right;
  const bool wrong = mistake_due(found_);
  const int place = wrong ? (right + 1) % exercise.választáskép.count() : right;
  if (!choose(exercise.választáskép[place], hand)) return;
  if (wrong) {
    mistake_made();
  } else {
    ++found_;
  }
}

void BetűnézegetőPlayer::go_on(frm_betűnézegető& exercise, Hand& hand) {
  if (!by_mouse()) {
    hand.key(keys[static_cast<std::size_t>(letters_++) % keys.size()], shift::none);
  } else if (++letters_ % 2 == 0 && !exercise.Label_kisbetű.Caption.empty() &&
             !exercise.Label_betű[0].Caption.empty()) {
    hand.click(exercise.Label_kisbetű);
  } else {
    hand.click(exercise.kép);
  }
}

namespace {

const Played played{{.name = "letter_viewer",
                     .window = u"frm_betűnézegető",
                     .tasks = BetűnézegetőPlayer::set,
                     .make = make_player<BetűnézegetőPlayer>,
                     // There is no panel and no praise: the pictures that were found are counted.
                     .gathered =
                         [](Window&, const Player& player) {
                           return dynamic_cast<const BetűnézegetőPlayer&>(player).found() % BetűnézegetőPlayer::set;
                         },
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds,
                     .prepare =
                         [](Files& files) {
                           // The reading check is on.
                           write_user_settings(files, u"betűnézegető.ini",
                                               " 12 \r\n 0 \r\n 1 \r\nFalse\r\nTrue\r\n 0 \r\nTrue\r\nFalse\r\n");
                         }}};

} // namespace

} // namespace cserko
