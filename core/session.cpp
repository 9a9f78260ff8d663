#include "core/session.h"

#include "core/frm_folyamat.h"
#include "core/frm_főablak.h"
#include "core/frm_főablak_beállítások.h"
#include "core/frm_grafikus_főablak.h"
#include "core/frm_referencia.h"
#include "core/nothing_fits.h"
#include "core/window_gone.h"

#include <algorithm>

namespace cserko {

namespace {

Text explain(const std::exception& error, const Text& place) {
  return u"Hiba történt itt: " + place + u"\r\n" + from_utf8(error.what());
}

} // namespace

Session::Session(Platform& platform) : alapkönyvtár(platform.application_folder()), platform_(platform) {
  platform_.host = this;
  offer<frm_grafikus_főablak>(u"frm_grafikus_főablak");
}

Session::~Session() {
  platform_.host = nullptr;
  for (const auto& entry : loaded_) platform_.detach(*entry->window);
}

Window* Session::loaded_window(std::type_index type) const {
  const auto found =
      std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& entry) { return entry->type == type; });
  return found == loaded_.end() ? nullptr : (*found)->window.get();
}

bool Session::is_loaded(const Window& window) const {
  return std::any_of(loaded_.begin(), loaded_.end(), [&](const auto& entry) { return entry->window.get() == &window; });
}

Window& Session::adopt(std::type_index type, std::unique_ptr<Window> window) {
  Window& adopted = *window;
  loaded_.push_back(std::make_unique<Loaded>(Loaded{type, std::move(window), event_depth_}));
  adopted.set_inner_size(adopted.design_size());
  platform_.attach(adopted);
  try {
    adopted.Load();
  } catch (...) {
    // Half loaded it would stand in the way of the next try.
    if (is_loaded(adopted)) take_away(adopted);
    throw;
  }
  return adopted;
}

std::vector<Text> Session::offered() const {
  std::vector<Text> names;
  for (const auto& [name, window] : offers_) names.push_back(name);
  return names;
}

bool Session::ticked(TextView window_name, TextView check_box) {
  if (!offers(window_name)) return false;
  const Element* element = window(window_name).find(check_box);
  return element != nullptr && element->kind() == ElementKind::CheckBox &&
         static_cast<const CheckBox*>(element)->ticked();
}

void Session::unload(Window& window) {
  const auto matches = [&](const auto& entry) { return entry->window.get() == &window; };
  const auto found = std::find_if(loaded_.begin(), loaded_.end(), matches);
  if (found == loaded_.end() || (*found)->unloading) return;

  Loaded& entry = **found;
  entry.unloading = true;
  bool cancel = false;
  try {
    window.QueryUnload(cancel);
    if (!cancel) window.Unload();
  } catch (...) {
    entry.unloading = false;
    throw;
  }
  entry.unloading = false;
  // The handlers may have loaded or unloaded other windows: the entry is looked up again.
  if (!cancel) take_away(window);
}

void Session::take_away(Window& window) {
  platform_.hide(window);
  platform_.detach(window);
  const auto gone =
      std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& entry) { return entry->window.get() == &window; });
  unloaded_.push_back(std::move(*gone));
  loaded_.erase(gone);
}

void Session::run_event(Window& window, const std::function<void()>& handler) {
  if (platform_.ended()) return;
  ++event_depth_;
  platform_.event_begins();
  run_guarded([&window] { return window.Caption.empty() ? window.Name : window.Caption; }, handler);
  bury_the_dead(event_depth_);
  --event_depth_;
}

void Session::run_guarded(const std::function<Text()>& place, const std::function<void()>& deed) {
  try {
    deed();
  } catch (const NothingFits& unfit) {
    feedback.tell(unfit.message());
  } catch (const WindowGone&) { // NOLINT(bugprone-empty-catch): the handler has ended with its window
  } catch (const std::exception& error) {
    platform_.report_error(explain(error, place()));
  }
}

void Session::run_start_step(const std::function<void()>& step) {
  run_guarded([] { return u"a program indulása"; }, step);
}

void Session::bury_the_dead(int event_depth) {
  // A window unloads itself from its own handlers, and whoever showed it may still hold it. Nobody does any more when
  // the event in which it was loaded has ended.
  unloaded_.erase(std::remove_if(unloaded_.begin(), unloaded_.end(),
                                 [&](const auto& entry) { return entry->event_depth >= event_depth; }),
                  unloaded_.end());
}

void Session::close_request(Window& window) {
  run_event(window, [&] { unload(window); });
}

void Session::képadatok_betöltése() {
  auto& progress = window<FrmFolyamat>();
  progress.Caption = u"Adatfeldolgozás...";
  const Size screen = platform_.screen_size();
  progress.Left = screen.width / 2 - progress.Width / 2;
  progress.Top = screen.height / 2 - progress.Height / 2;
  platform_.show(progress);
  platform_.redraw(progress);
  képek.load(platform_.files(), alapkönyvtár, [&](int index) {
    progress.ProgressBar.Max = képek.képszám;
    platform_.redraw(progress);
    progress.ProgressBar.Value = index;
  });
  unload(progress);
  if (képek.left_out() > 0) {
    platform_.report_error(u"Túl sok a kép: az utolsó " + to_text(képek.left_out()) + u" szót nem használjuk.");
  }
}

void Session::Main() {
  prepare();
  run_main_windows();
  if (platform_.ended()) return;
  close_down();
}

void Session::prepare() {
  // Each step for itself: what fails in one keeps nobody from the others, and from a main window.
  run_start_step([this] {
    platform_.seed_random();
    játékszámláló = 5;
    feedback.hang_lejátszás(u"*");
    if (ticked(u"frm_hangbeáll", u"chk_hang_a_főablakban"))
      feedback.hang_lejátszás(alapkönyvtár + u"cserko\\clack 1.wav");
  });
  run_start_step([this] { window<frm_referencia>().Timer_zene.Enabled = ticked(u"frm_zenebeáll", u"chk_zene_enged"); });
  run_start_step([this] { window<frm_referencia>().Font.name = u"Times New Roman CE"; });
  run_start_step([this] { képadatok_betöltése(); });
}

Window* Session::load_main_window(bool with_pictures) {
  Window* loaded = nullptr;
  run_start_step([&] { loaded = with_pictures ? &window(u"frm_grafikus_főablak") : &window<frm_főablak>(); });
  return loaded;
}

void Session::run_main_windows() {
  const auto graphic = [this] {
    bool chosen = false;
    run_start_step([&] { chosen = window<frm_főablak_beállítások>().chk_grafikus_főablak.ticked(); });
    return chosen;
  };
  // The text window leaves by ending the process, so in practice only the graphic one returns here.
  while (!platform_.ended()) {
    bool with_pictures = graphic();
    Window* main = load_main_window(with_pictures);
    if (main == nullptr && with_pictures) {
      // Better the plain window than none.
      with_pictures = false;
      main = load_main_window(false);
    }
    if (main == nullptr) return;
    platform_.show_modal(*main);
    if (graphic() == with_pictures) return;
  }
}

void Session::close_down() {
  feedback.hang_lejátszás({});
  feedback.zene_lejátszás({});
  delete_work_file(platform_);
  const Text launcher = alapkönyvtár + u"portál.exe";
  try {
    // The suite may have been installed without the launcher.
    if (platform_.program_exists(launcher)) platform_.start_process(launcher + u" klki", ProcessWindow::Normal);
  } catch (const std::exception& error) {
    platform_.report_error(from_utf8(error.what()));
  }
  platform_.end_process();
}

void delete_work_file(Platform& platform) {
  const Text work_file = Text(fixed_root) + u"temp.bmp";
  if (!platform.files().exists(work_file)) return;
  try {
    platform.files().remove(work_file);
  } catch (const FileError&) {
    // It is looked for again at the next exit.
  }
}

} // namespace cserko
