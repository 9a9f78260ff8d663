#include "tests/players/betűválogatás_player.h"

#include "core/kszöveg.h"
#include "exercises/shared/frm_irányválasztó.h"
#include "tests/players/played_exercise.h"

namespace cserko {

BetűválogatásPlayer::Answer BetűválogatásPlayer::answer(const frm_betűválogatás& exercise) {
  int waiting = 0;
  exercise.eredménykép.each([&waiting](const PictureBox& place) { waiting += place.Tag == u"1" ? 1 : 0; });
  const bool wrong = mistake_due(sets() * (frm_betűválogatás::places + 1) + waiting);
  const Text letters = kszöveg::letter_list(exercise.középsőképnév.Caption);
  const int right = kszöveg::in_list(letters, exercise.betű[0].Caption) ? 0 : 1;
  return {wrong ? 1 - right : right, wrong};
}

bool BetűválogatásPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_betűválogatás&>(window);
  if (!exercise.has_puzzle()) return false;
  const auto [letter, wrong] = answer(exercise);
  if (by_mouse()) {
    hand.click(exercise.betű[letter]);
  } else {
    hand.key(letter == 0 ? key::left : key::right, shift::none);
  }
  if (wrong) mistake_made();
  return true;
}

bool BetűválogatásPlayer::play_beside(Window& top, Hand& hand) {
  auto* panel = dynamic_cast<frm_irányválasztó*>(&top);
  if (panel == nullptr || !session_.loaded<frm_betűválogatás>()) return false;
  const auto [letter, wrong] = answer(session_.window<frm_betűválogatás>());
  const TextView word = letter == 0 ? frm_irányválasztó::balra : frm_irányválasztó::jobbra;
  Label* arm = nullptr;
  panel->cmd_iránygomb.each([&](Label& label) {
    if (label.shown() && label.Caption == word) arm = &label;
  });
  if (arm == nullptr) return false;
  if (choose(*arm, hand)) {
    ++directions_;
    if (wrong) mistake_made();
  }
  return true;
}

namespace {

const Played played{{.name = "letter_sorting",
                     .window = u"frm_betűválogatás",
                     .tasks = frm_betűválogatás::places,
                     .make = make_player<BetűválogatásPlayer>,
                     .gathered =
                         [](Window& window, const Player&) {
                           int shown = 0;
                           dynamic_cast<frm_betűválogatás&>(window).eredménykép.each(
                               [&](const PictureBox& place) { shown += place.shown() ? 1 : 0; });
                           return shown;
                         },
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds,
                     .prepare =
                         [](Files& files) {
                           // Flights of ten frames, words of every length.
                           write_user_settings(files, u"betűválogató.ini",
                                               " 1 \r\n 1 \r\nTrue\r\nFalse\r\n 0 \r\n 14 \r\n");
                         }}};

} // namespace

} // namespace cserko
