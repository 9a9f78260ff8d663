#include "core/main_window.h"

#include "core/finally.h"
#include "core/frm_referencia.h"
#include "core/frmháttér.h"

#include <utility>

namespace cserko {

MainWindow::MainWindow(Session& session, TextView name, Size design)
    : Window(session.platform(), name, design, u"Tintakő Cserkó"), session_(session) {
  KeyPreview = true;
}

void MainWindow::bind_entries(const Entries& entries) {
  const auto bind = [this](MenuItem& item, TextView window, std::function<void()> click) {
    item.Click = std::move(click);
    item.Enabled = session_.offers(window);
  };
  bind(entries.sounds, u"frm_hangbeáll", [this] { platform().show_modal(session_.window(u"frm_hangbeáll")); });
  bind(entries.music, u"frm_zenebeáll", [this] { zenebeállítások(); });
  bind(entries.drum, u"frm_dobszerkó", [this] { free_reward(u"frm_dobszerkó", u"Timer_ablakbezárás"); });
  bind(entries.drawing, u"frm_rajz", [this] { free_reward(u"frm_rajz", u"Timer2"); });
}

void MainWindow::Activate() {
  const Text first = std::exchange(session_.first_exercise, {});
  if (session_.offers(first)) indítás(first);
}

void MainWindow::indítás(TextView exercise) {
  run_on_backdrop(session_, [this, exercise]() -> Window& { return session_.window(exercise); });
}

void MainWindow::zenebeállítások() {
  Timer& music_timer = session_.window<frm_referencia>().Timer_zene;
  bool music_goes_on = music_timer.Enabled;
  const Finally go_on([&] { music_timer.Enabled = music_goes_on; });
  music_timer.Enabled = false;
  session_.feedback.zene_lejátszás({});
  platform().show_modal(session_.window(u"frm_zenebeáll"));
  music_goes_on = session_.ticked(u"frm_zenebeáll", u"chk_zene_enged");
}

void MainWindow::free_reward(TextView window, TextView closing_timer) {
  Window& reward = session_.window(window);
  if (Element* timer = reward.find(closing_timer)) timer->Enabled = false;
  platform().show_modal(reward);
}

void MainWindow::open_help() {
  const Text& folder = session_.alapkönyvtár;
  platform().start_process(folder + u"tintabrowser.exe " + folder + u"cserko\\help\\cserkó súgó.mht",
                           ProcessWindow::MinimizedWithFocus);
}

} // namespace cserko
