#include "tests/players/képmemória_player.h"

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

} // namespace cserko
