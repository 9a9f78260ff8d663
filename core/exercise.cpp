#include "core/exercise.h"

#include "core/arrow_focus.h"

#include <utility>

namespace cserko {

ExerciseWindow::ExerciseWindow(Session& session, TextView name, Size design, TextView caption)
    : Window(session.platform(), name, design, caption), session_(session) {
  KeyPreview = true;
}

void ExerciseWindow::fill_screen(std::initializer_list<Element*> texts, double share) {
  ablak_méretezés(*this, share);
  for (Element* text : texts) szöveg_illesztés(*text);
  ablak_középre(session_, *this);
}

void ExerciseWindow::deal(const std::function<void()>& steps) {
  has_puzzle_ = false;
  try {
    steps();
  } catch (...) {
    no_puzzle();
    throw;
  }
  has_puzzle_ = true;
}

void ExerciseWindow::deal_first(const std::function<void()>& deal) {
  try {
    deal();
  } catch (const NothingFits& unfit) {
    unfit_ = unfit.message();
  }
}

void ExerciseWindow::Activate() {
  if (unfit_.empty()) return;
  session_.feedback.tell(std::exchange(unfit_, {}));
}

void ExerciseWindow::KeyDown(KeyEvent& event) { move_focus_by_arrow(*this, event); }

void ExerciseWindow::set_close_entry(MenuItem& item) {
  item.Click = [this] {
    unload_dialogs(DialogAtClose::GoesByMenuOnly);
    session_.unload(*this);
  };
}

void ExerciseWindow::Unload() { unload_dialogs(DialogAtClose::Goes); }

void ExerciseWindow::unload_dialogs(DialogAtClose rule) {
  for (const Companion& dialog : dialogs_) {
    if (dialog.rule == rule) dialog.unload();
  }
}

void ExerciseWindow::set_help_entry(MenuItem& item, TextView page) {
  item.ShortcutKey = key::f1;
  item.Click = [this, page = Text(page)] { súgó_megnyitás(session_, page); };
}

} // namespace cserko
