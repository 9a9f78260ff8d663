// The panel of solved tasks that most exercises fill, from the lowest place up: picture boxes, with a label each or
// with the name drawn on the picture. When it is full the child is congratulated.
#pragma once

#include "core/frame.h"
#include "platform/element_array.h"

namespace cserko {

class ResultPanel {
 public:
  /// How the text comes into a label: fitted on one line, or wrapped as large as fits.
  enum class Fit : std::uint8_t { OneLine, Wrapped };

  /// A panel of pictures and labels: a place is free while its label is empty. Made before the further elements of the
  /// arrays are designed, which take its look over.
  ResultPanel(Session& session, ElementArray<PictureBox>& pictures, ElementArray<Label>& labels, Fit fit);
  /// A panel of pictures alone, each with its record in its `Tag`: a place is free while that is "-1". The places may
  /// be fewer or more as long as the panel is empty.
  ResultPanel(Session& session, ElementArray<PictureBox>& pictures);

  /// What follows the congratulation for a full panel. Empties the panel unless it is set; the exercise that sets it
  /// has to see to that.
  std::function<void()> Full;

  /// Empties all places. Belongs into the load of the exercise, before the first deal.
  void clear();

  // Each fills the lowest free place. When that was the last, the window is shown with it, the congratulation comes,
  // modally, and then what `Full` says.

  /// A record's picture, and a text in the label.
  void add(int record, TextView text);
  /// The picture that a box shows, of a record or not, and a text in the label.
  void add(const PictureBox& shown, TextView text);
  /// A record as `kép_rajzolás` draws it with its name, and a text in the label where the panel has labels.
  void add_drawn(int record, const Caption& caption, TextView text = {});

 private:
  void fill(const std::function<void(PictureBox&)>& show_picture, TextView text);
  bool is_free(int index) const;
  int lowest_free() const;
  void show_text(Label& label, TextView text) const;

  Session& session_;
  ElementArray<PictureBox>& pictures_;
  ElementArray<Label>* labels_;
  Fit fit_ = Fit::OneLine;
};

} // namespace cserko
