#include "feedback/result_panel.h"

#include "feedback/frm_gratuláció.h"

namespace cserko {

namespace {

constexpr TextView no_record = u"-1";

} // namespace

ResultPanel::ResultPanel(Session& session, ElementArray<PictureBox>& pictures, ElementArray<Label>& labels, Fit fit)
    : ResultPanel(session, pictures) {
  labels_ = &labels;
  fit_ = fit;
}

ResultPanel::ResultPanel(Session& session, ElementArray<PictureBox>& pictures)
    : session_(session), pictures_(pictures), labels_(nullptr) {
  pictures_[0].TabStop = false;
  pictures_[0].Border = true;
}

void ResultPanel::clear() {
  pictures_.each([this](PictureBox& picture) {
    clear_picture(picture);
    if (labels_ == nullptr) picture.Tag = no_record;
  });
  if (labels_ != nullptr) labels_->each([](Label& label) { label.Caption.clear(); });
}

bool ResultPanel::is_free(int index) const {
  return labels_ != nullptr ? (*labels_)[index].Caption.empty() : pictures_[index].Tag == no_record;
}

int ResultPanel::lowest_free() const {
  int index = 0;
  while (index < pictures_.count() - 1 && !is_free(index)) ++index;
  return index;
}

void ResultPanel::show_text(Label& label, TextView text) const {
  if (fit_ == Fit::OneLine) {
    szöveg_illesztés(label, Text(text));
  } else {
    fit_wrapped(label, text);
  }
}

void ResultPanel::fill(const std::function<void(PictureBox&)>& show_picture, TextView text) {
  const int index = lowest_free();
  show_picture(pictures_[index]);
  if (labels_ != nullptr) show_text((*labels_)[index], text);
  if (index < pictures_.count() - 1) return;
  session_.platform().redraw(pictures_[index].window());
  session_.platform().show_modal(session_.window<frm_gratuláció>());
  if (Full) {
    Full();
  } else {
    clear();
  }
}

void ResultPanel::add(int record, TextView text) {
  fill([&](PictureBox& box) { show_record_picture(session_, box, record); }, text);
}

void ResultPanel::add(const PictureBox& shown, TextView text) {
  fill([&](PictureBox& box) { show_picture_of(box, shown, text); }, text);
}

void ResultPanel::add_drawn(int record, const Caption& caption, TextView text) {
  fill([&](PictureBox& box) { kép_rajzolás(session_, box, record, caption); }, text);
}

} // namespace cserko
