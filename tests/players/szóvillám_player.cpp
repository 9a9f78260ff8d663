#include "tests/players/szóvillám_player.h"

#include "core/settings.h"
#include "exercises/sentences/frm_szóvillám.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

namespace cserko {

namespace {

constexpr int patient = 3; // in one of so many tasks it waits for the question mark

} // namespace

bool SzóvillámPlayer::shows(const PictureBox& picture, TextView word) const {
  const int record = number_in(picture.Tag).value_or(-1);
  return record >= 0 && (records()[record].név == word || records()[record].angol == word);
}

bool SzóvillámPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_szóvillám&>(window);
  const int task = task_number(exercise.pic_eredmény, sets());
  PictureBox* right = nullptr;
  PictureBox* wrong = nullptr;
  // The box keeps in its tag what it has shown last: a number of the countdown or the word.
  exercise.pic_feladványkép.each(
      [&](PictureBox& picture) { (shows(picture, exercise.lbl_feladvány.Tag) ? right : wrong) = &picture; });
  if (right == nullptr || wrong == nullptr) return false;
  if (mistake_due(task)) {
    if (choose(*wrong, hand)) mistake_made();
    return true;
  }
  if (task % patient == 0 && task != repeated_task_) {
    if (!exercise.cmd_újra.Visible) return false;
    if (choose(exercise.cmd_újra, hand)) {
      repeated_task_ = task;
      ++repetitions_;
    }
    return true;
  }
  choose(*right, hand);
  return true;
}

namespace {

const Played played{{.name = "word_flash",
                     .window = u"frm_szóvillám",
                     .tasks = 6,
                     .make = make_player<SzóvillámPlayer>,
                     .gathered = gathered_on_strip<frm_szóvillám>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds,
                     .prepare = [](Files& files) {
                       // Quick flashes of words of any length.
                       write_user_settings(files, u"szóvillám.ini",
                                           " 3 \r\n 17 \r\n 0 \r\n 2 \r\n 0 \r\nTrue\r\nFalse\r\n");
                     }}};

} // namespace

} // namespace cserko
