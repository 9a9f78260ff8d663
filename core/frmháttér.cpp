#include "core/frmháttér.h"

#include "core/frm_referencia.h"

namespace cserko {

namespace {

Text two_digits(int number) { return (number < 10 ? u"0" : u"") + to_text(number); }

} // namespace

frmháttér::frmháttér(Session& session)
    : Window(session.platform(), u"frmháttér", {6000, 4500}, u""), session_(session) {
  Border = WindowBorder::None;
  label_óra.Font.size = 18;
  Timer_óra.Tick = [this] { show_time(); };
}

void frmháttér::Load() {
  const auto& reference = session_.window<frm_referencia>();
  Picture = reference.Picture;
  BackColor = reference.BackColor;
  // Panels of the desktop are covered too: nothing but the exercise is there for the child to click at.
  const Rect screen = platform().whole_screen();
  Left = screen.left;
  Top = screen.top;
  Width = screen.width;
  Height = screen.height;
}

void frmháttér::Activate() {
  // Coming to the front again while the exercise is on must not start it again.
  if (playing_) return;
  playing_ = true;
  platform().bring_to_front(*this);
  show_time();
  Enabled = false;
  try {
    play();
  } catch (...) {
    // Without an exercise nobody could close the backdrop: it takes no clicks.
    session_.unload(*this);
    throw;
  }
  session_.unload(*this);
}

void frmháttér::play() {
  Window& exercise = feladat();
  platform().show_modal(exercise);
  session_.unload(exercise);
}

void frmháttér::show_time() {
  const TimeOfDay now = platform().time_of_day();
  label_óra.Caption = two_digits(now.hour) + u":" + two_digits(now.minute);
  const Size extent = platform().measure(label_óra.Font, label_óra.Caption);
  label_óra.Width = extent.width;
  label_óra.Height = extent.height;
  label_óra.Left = Width - label_óra.Width;
  label_óra.Top = Height - label_óra.Height;
}

void run_on_backdrop(Session& session, std::function<Window&()> exercise) {
  auto& backdrop = session.window<frmháttér>();
  backdrop.feladat = std::move(exercise);
  session.platform().show_modal(backdrop);
}

} // namespace cserko
