// The panel of solved tasks that most exercises fill: picture boxes with a label each, congratulation when it is full.
#pragma once

#include "core/session.h"
#include "platform/element_array.h"

namespace cserko {

class ResultPanel {
 public:
  /// How the text comes into a label: fitted on one line, or wrapped as large as fits.
  enum class Fit : std::uint8_t { OneLine, Wrapped };

  /// Made before the further elements of the arrays are designed, which take its look over.
  ResultPanel(Session& session, ElementArray<PictureBox>& pictures, ElementArray<Label>& labels, Fit fit);

  /// Empties all places.
  void clear();
  /// Puts a record with its text into the lowest free place. When that was the last, congratulates, modally, and
  /// empties the panel.
  void add(int record, const Text& text);

 private:
  int lowest_free() const;
  void show_text(Label& label, const Text& text) const;

  Session& session_;
  ElementArray<PictureBox>& pictures_;
  ElementArray<Label>& labels_;
  Fit fit_;
};

} // namespace cserko
