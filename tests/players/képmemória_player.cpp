#include "tests/players/képmemória_player.h"

#include "tests/players/played_exercise.h"

namespace cserko {

namespace {

// The first shown card that passes, null if there is none.
template<class Passes> PictureBox* first_card(frm_képmemória& exercise, Passes passes) {
  PictureBox* found = nullptr;
  exercise.kép.each([&](PictureBox& card) {
    if (found == nullptr && card.shown() && passes(card)) found = &card;
  });
  return found;
}

int cards_left(const frm_képmemória& exercise) {
  int count = 0;
  exercise.kép.each([&](const PictureBox& card) { count += card.shown() ? 1 : 0; });
  return count;
}

} // namespace

bool KépmemóriaPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_képmemória&>(window);
  const int task = sets() * (frm_képmemória::places + 1) + cards_left(exercise);
  const bool due = mistake_due(task);
  const PictureBox* open = first_card(exercise, [&](PictureBox& card) { return exercise.felfordítva(card.Index); });
  if (open == nullptr) {
    PictureBox* any = first_card(exercise, [](PictureBox&) { return true; });
    if (any == nullptr) return false;
    if (due && !by_mouse() && helped_task_ != task) {
      if (help_first(exercise, *any, hand)) helped_task_ = task;
      return true;
    }
    choose(*any, hand);
    return true;
  }
  const auto closed = [&](const PictureBox& card) { return !exercise.felfordítva(card.Index); };
  PictureBox* other =
      due ? first_card(exercise, [&](PictureBox& card) { return closed(card) && card.Tag != open->Tag; }) : nullptr;
  const bool wrong = other != nullptr;
  if (!wrong) other = first_card(exercise, [&](PictureBox& card) { return closed(card) && card.Tag == open->Tag; });
  if (other == nullptr) return false;
  if (choose(*other, hand) && wrong) mistake_made();
  return true;
}

// Returns whether the help key was pressed; else the focus has come nearer to the card.
bool KépmemóriaPlayer::help_first(frm_képmemória& exercise, PictureBox& card, Hand& hand) {
  if (exercise.focus() != &card) {
    choose(card, hand);
    return false;
  }
  hand.key('S', shift::none);
  ++helps_;
  return true;
}

namespace {

constexpr int pairs = 5; // the fewest that the settings allow

// The two cards of a pair were turned up, two that differ were turned up and back.
int heard_wrong(const Ears& ears) {
  const int turns = ears.heard(u"Moving.wav") - 2 * ears.heard(u"swallow1.wav");
  return turns % 4 == 0 ? turns / 4 : -1;
}

// Five pairs of a picture and its word, one second to look at two that differ, two frames of half a turn. The game
// reads the settings of the data pack.
void prepare(Files& files) {
  files.write(u"c:\\cserko\\cserko\\képmem.ini",
              " " + std::to_string(pairs) +
                  " \r\n 12 \r\n 1 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n"
                  " 1 \r\n 2 \r\n 0 \r\n 0 \r\n");
}

const Played played{
    {.name = "picture_memory",
     .window = u"frm_képmemória",
     .tasks = pairs,
     .make = make_player<KépmemóriaPlayer>,
     .gathered = [](Window& window,
                    const Player&) { return pairs - cards_left(dynamic_cast<frm_képmemória&>(window)) / 2; },
     .heard_right = [](const Ears& ears) { return ears.heard(u"swallow1.wav"); },
     .heard_wrong = heard_wrong,
     .prepare = prepare}};

} // namespace

} // namespace cserko
