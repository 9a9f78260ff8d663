#include "tests/players/piece_mover.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

// A hand that moves whole pixels of any screen does not hit the twip.
constexpr double near_enough = 60;

constexpr double step_share = 0.02; // of the box's width, for an arrow key

bool overlap(const Label& a, double left, double top, const Label& b) {
  return left < b.Left + b.Width && b.Left < left + a.Width && top < b.Top + b.Height && b.Top < top + a.Height;
}

void drag_to(Label& piece, Point place, Hand& hand) { hand.drag(piece, place.x - piece.Left, place.y - piece.Top); }

} // namespace

std::vector<Label*> PieceMover::all() const {
  std::vector<Label*> pieces;
  pieces_.each([&](Label& piece) { pieces.push_back(&piece); });
  return pieces;
}

std::vector<Text> PieceMover::reading() const {
  std::vector<Label*> pieces = all();
  std::stable_sort(pieces.begin(), pieces.end(), [](auto* a, auto* b) { return a->Left < b->Left; });
  std::vector<Text> texts;
  for (const Label* piece : pieces) texts.push_back(piece->Caption);
  return texts;
}

// The row goes across the box.
bool PieceMover::want(const std::vector<Text>& texts) {
  places_.clear();
  std::vector<Label*> free = all();
  double widest = 0;
  for (const Text& text : texts) {
    const auto found = std::find_if(free.begin(), free.end(), [&](Label* piece) { return piece->Caption == text; });
    if (found == free.end()) return false;
    widest = std::max(widest, (*found)->Width);
    places_.push_back({*found, 0});
    free.erase(found);
  }
  // The mouse cannot put pieces at the very edge.
  const double room = box_.Width - widest - 2 * near_enough - 100;
  const double pitch = places_.size() > 1 ? room / static_cast<double>(places_.size() - 1) : 0;
  for (std::size_t i = 0; i < places_.size(); ++i) places_[i].left = near_enough + pitch * static_cast<double>(i);
  return free.empty();
}

// The piece that lies over the middle of another one and would be caught instead, null if none does.
Label* PieceMover::cover_of(const Label& piece) const {
  const double x = piece.Left + piece.Width / 2;
  const double y = piece.Top + piece.Height / 2;
  Label* cover = nullptr;
  for (Label* other : all()) {
    const bool over = other->Index > piece.Index && x >= other->Left && x < other->Left + other->Width &&
                      y >= other->Top && y < other->Top + other->Height;
    if (over) cover = other;
  }
  return cover;
}

// A place where a piece lies over no other one, in the lower left corner if there is none.
Point PieceMover::free_place(const Label& piece) const {
  const std::vector<Label*> pieces = all();
  const double lowest = box_.Height - piece.Height;
  for (double top = lowest; top >= 0; top -= piece.Height / 2) {
    for (double left = 0; left < box_.Width - piece.Width - 200; left += piece.Width / 2) {
      const bool taken = std::any_of(pieces.begin(), pieces.end(), [&](const Label* other) {
        return other != &piece && overlap(piece, left, top, *other);
      });
      const bool in_row = std::abs(top - row_top()) < piece.Height;
      if (!taken && !in_row) return {left, top};
    }
  }
  return {0, lowest};
}

bool PieceMover::drag_one(Hand& hand) const {
  std::vector<Place> left_to_do = places_;
  const double top = row_top();
  std::erase_if(left_to_do, [&](const Place& place) {
    return std::abs(place.piece->Left - place.left) <= near_enough && std::abs(place.piece->Top - top) <= near_enough;
  });
  if (left_to_do.empty()) return false;
  // Pieces made earlier lie lower and go first; what lies over them all is moved aside.
  std::sort(left_to_do.begin(), left_to_do.end(),
            [](const Place& a, const Place& b) { return a.piece->Index < b.piece->Index; });
  const auto reachable = std::find_if(left_to_do.begin(), left_to_do.end(),
                                      [&](const Place& place) { return cover_of(*place.piece) == nullptr; });
  if (reachable != left_to_do.end()) {
    drag_to(*reachable->piece, {reachable->left, top}, hand);
  } else {
    Label& cover = *cover_of(*left_to_do.front().piece);
    drag_to(cover, free_place(cover), hand);
  }
  return true;
}

bool PieceMover::move_one_by_key(Hand& hand) const {
  const double step = box_.Width * step_share;
  const auto in_place = [&](const Place& place) { return std::abs(place.piece->Left - place.left) <= 0.6 * step; };
  if (std::all_of(places_.begin(), places_.end(), in_place)) return false;
  // The space bar would press a button that has the focus.
  if (box_.window().focus() != &box_) {
    hand.key(key::tab, shift::none);
    return true;
  }
  const auto selected =
      std::find_if(places_.begin(), places_.end(), [](const Place& place) { return place.piece->Border; });
  if (selected == places_.end() || in_place(*selected)) {
    hand.key(key::space, shift::none);
  } else {
    hand.key(selected->left < selected->piece->Left ? key::left : key::right, shift::none);
  }
  return true;
}

} // namespace cserko
