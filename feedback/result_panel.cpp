#include "feedback/result_panel.h"

#include "core/frame.h"
#include "feedback/frm_gratuláció.h"

namespace cserko {

ResultPanel::ResultPanel(Session& session, ElementArray<PictureBox>& pictures, ElementArray<Label>& labels, Fit fit)
    : session_(session), pictures_(pictures), labels_(labels), fit_(fit) {
  pictures_[0].TabStop = false;
  pictures_[0].Border = true;
}

void ResultPanel::clear() {
  pictures_.each([](PictureBox& picture) { clear_picture(picture); });
  labels_.each([](Label& label) { label.Caption.clear(); });
}

int ResultPanel::lowest_free() const {
  int index = 0;
  while (index < labels_.count() - 1 && !labels_[index].Caption.empty()) ++index;
  return index;
}

void ResultPanel::show_text(Label& label, const Text& text) const {
  if (fit_ == Fit::OneLine) {
    szöveg_illesztés(label, Text(text));
  } else {
    fit_wrapped(label, text);
  }
}

void ResultPanel::add(int record, const Text& text) {
  const int index = lowest_free();
  show_record_picture(session_, pictures_[index], record);
  show_text(labels_[index], text);
  if (index < labels_.count() - 1) return;
  session_.platform().show_modal(session_.window<frm_gratuláció>());
  clear();
}

} // namespace cserko
