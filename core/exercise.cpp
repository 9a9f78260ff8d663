#include "core/exercise.h"

#include <utility>

namespace cserko {

ExerciseWindow::ExerciseWindow(Session& session, TextView name, Size design, TextView caption)
    : Window(session.platform(), name, design, caption), session_(session) {
  KeyPreview = true;
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

void ExerciseWindow::set_close_entry(MenuItem& item) {
  item.Click = [this] { session_.unload(*this); };
}

void ExerciseWindow::set_help_entry(MenuItem& item, TextView page) {
  item.ShortcutKey = key::f1;
  item.Click = [this, page = Text(page)] { súgó_megnyitás(session_, page); };
}

} // namespace cserko
