// How players lay scattered pieces into a row that reads as they want, by mouse or by keyboard.
#pragma once

#include "platform/element_array.h"
#include "tests/players/hand.h"

namespace cserko {

/// Looks at the pieces anew for each step; keeps nothing from one to the next.
class PieceMover {
 public:
  /// The box holds the pieces, and the arrow keys move one by a fiftieth of its width.
  PieceMover(PictureBox& box, ElementArray<Label>& pieces) : box_(box), pieces_(pieces) {}

  /// The texts of the pieces from left to right.
  std::vector<Text> reading() const;

  /// Takes the order that is wanted; of equal texts the piece that was made first comes first. False where the pieces
  /// have other texts.
  bool want(const std::vector<Text>& texts);

  // One step towards it, false when all of them are in place.

  bool drag_one(Hand& hand) const;
  bool move_one_by_key(Hand& hand) const;

 private:
  /// Where a piece has to go: its left edge in the box, twips.
  struct Place {
    Label* piece;
    double left;
  };

  std::vector<Label*> all() const;
  double row_top() const { return (box_.Height - pieces_[0].Height) / 2; }
  Label* cover_of(const Label& piece) const;
  Point free_place(const Label& piece) const;

  PictureBox& box_;
  ElementArray<Label>& pieces_;
  std::vector<Place> places_;
};

} // namespace cserko
