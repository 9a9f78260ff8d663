#include "tests/players/szólánc_player.h"

#include "tests/players/played_exercise.h"

namespace cserko {

namespace {

// The first picture of the pool that is to be seen and passes, null if there is none.
template<class Passes> PictureBox* first_picture(frm_szólánc& exercise, Passes passes) {
  PictureBox* found = nullptr;
  exercise.kép.each([&](PictureBox& picture) {
    if (found == nullptr && picture.shown() && passes(picture)) found = &picture;
  });
  return found;
}

int record_of(const PictureBox& box) { return std::stoi(to_utf8(box.Tag)); }

} // namespace

int SzóláncPlayer::right_places(const frm_szólánc& exercise) const {
  int right = 0;
  while (right < static_cast<int>(solution_.size()) &&
         exercise.pic_eredménykép[right].Tag == solution_[static_cast<std::size_t>(right)])
    ++right;
  return right;
}

// What it has seen was the solution of this set, and its pictures are those of the pool.
bool SzóláncPlayer::knows_solution(const frm_szólánc& exercise) const {
  for (const Text& tag : solution_) {
    bool there = false;
    exercise.kép.each([&](const PictureBox& picture) { there = there || picture.Tag == tag; });
    if (!there) return false;
  }
  return set_ == sets();
}

// One that does not follow the picture before the place.
PictureBox* SzóláncPlayer::wrong_picture(frm_szólánc& exercise, int place) const {
  const ChainIndex& index = chain_index(records(), exercise.rule());
  return first_picture(exercise, [&](const PictureBox& picture) {
    if (place == 0) return picture.Tag != solution_.front();
    return !index.follow(record_of(exercise.pic_eredménykép[place - 1]), record_of(picture));
  });
}

bool SzóláncPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_szólánc&>(window);
  if (!exercise.has_puzzle()) return false;
  if (!knows_solution(exercise)) {
    choose(exercise.cmd_kérdőjel, hand);
    return true;
  }
  const int place = right_places(exercise);
  if (place == chain_length) return false;
  const bool due = mistake_due(sets() * (chain_length + 1) + place);
  PictureBox& target = exercise.pic_eredménykép[place];
  if (target.Tag != frm_szólánc::empty) {
    press_place(target, hand);
    return true;
  }
  PictureBox* wrong = due ? wrong_picture(exercise, place) : nullptr;
  if (due && wrong == nullptr) forgo_mistake();
  PictureBox* picture = wrong != nullptr ? wrong : first_picture(exercise, [&](const PictureBox& other) {
    return other.Tag == solution_[static_cast<std::size_t>(place)];
  });
  if (picture == nullptr) return false;
  if (put(exercise, *picture, place, hand) && wrong != nullptr) mistake_made();
  return true;
}

// Every other picture is dragged where there is a mouse; else it is chosen first, and then its place. Returns whether
// it was put there.
bool SzóláncPlayer::put(frm_szólánc& exercise, PictureBox& picture, int place, Hand& hand) {
  PictureBox& target = exercise.pic_eredménykép[place];
  if (exercise.chosen() == picture.Index) return press_place(target, hand);
  if (by_mouse() && place % 2 == 1) {
    const Point from = picture.position_in_window();
    const Point to = target.position_in_window();
    hand.drag(picture, to.x - from.x, to.y - from.y);
    ++drags_;
    return true;
  }
  choose(picture, hand);
  return false;
}

bool SzóláncPlayer::press_place(PictureBox& place, Hand& hand) {
  if (!by_mouse()) return press_on(place, hand, key::space);
  hand.click(place);
  return true;
}

void SzóláncPlayer::see(const frm_szólánc_segítő& solution) {
  solution_.clear();
  set_ = sets();
  solution.pic_eredménykép.each([this](const PictureBox& picture) { solution_.push_back(picture.Tag); });
}

// Only looks: the panel is then closed as any other.
bool SzóláncPlayer::play_beside(Window& top, Hand& /*hand*/) {
  if (const auto* solution = dynamic_cast<const frm_szólánc_segítő*>(&top)) see(*solution);
  return false;
}

namespace {

const Played played{
    {.name = "word_chain",
     .window = u"frm_szólánc",
     .tasks = chain_length,
     .make = make_player<SzóláncPlayer>,
     .gathered =
         [](Window& window, const Player& player) {
           return dynamic_cast<const SzóláncPlayer&>(player).right_places(dynamic_cast<const frm_szólánc&>(window));
         },
     .prepare =
         [](Files& files) {
           // Letters match, fourteen pictures, the first place empty.
           write_user_settings(files, u"szólánc.ini",
                               "False\r\nFalse\r\nTrue\r\n 12 \r\n 14 \r\n 0 \r\n 1 \r\n 0 \r\n 1 \r\n");
         }}};

} // namespace

} // namespace cserko
