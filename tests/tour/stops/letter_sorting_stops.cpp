#include "exercises/shared/frm_irányválasztó.h"
#include "feedback/message_panels.h"
#include "tests/players/betűválogatás_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using SortingVisit = Visit<frm_betűválogatás, BetűválogatásPlayer>;

constexpr TextView settings_window = u"frm_betűválogatás_beállítás";
constexpr TextView panel_window = u"frm_irányválasztó";

int placed(const frm_betűválogatás& window) {
  int shown = 0;
  window.eredménykép.each([&](const PictureBox& place) { shown += place.shown() ? 1 : 0; });
  return shown;
}

void in_settings(const SortingVisit& visit, std::function<void(frm_betűválogatás_beállítás&)> deed) {
  visit.guide().act(settings_window, [deed = std::move(deed)](Window& window) {
    deed(static_cast<frm_betűválogatás_beállítás&>(window));
  });
}

void open_settings(const SortingVisit& visit) {
  visit.act([](frm_betűválogatás& window) { input::click(window.mnubeállítások); });
}

void settings(const SortingVisit& visit) {
  Guide& guide = visit.guide();
  open_settings(visit);
  guide.picture(settings_window, "letter-sorting-settings");
  in_settings(visit, [](frm_betűválogatás_beállítás& dialog) { input::click(dialog.cmd_egy_sem); });
  guide.picture(settings_window, "letter-sorting-settings-no-pair");
  in_settings(visit, [](frm_betűválogatás_beállítás& dialog) {
    input::choose(dialog.opt_nyelv[1]);
    input::toggle(dialog.chk_animáció);
    dialog.scrollbar_finomság.set_value(1);
  });
  guide.picture(settings_window, "letter-sorting-settings-english");
  in_settings(visit, [](frm_betűválogatás_beállítás& dialog) { input::click(dialog.Ok); });
  visit.look("-english");
}

// The picture is looked at where it has shrunk and on its way.
void watch_flight(const SortingVisit& visit) {
  visit.act([visit](frm_betűválogatás& window) {
    visit.platform().redrawn = [visit, step = 0, &window](Window& redrawn) mutable {
      if (&redrawn != &window || window.Enabled || !window.kép.Visible) return;
      ++step;
      if (step == 2) visit.guide().look_at(window, "letter-sorting-flight-begun");
      if (step == 8) visit.guide().look_at(window, "letter-sorting-flight");
    };
  });
  visit.solve_until([visit] { return placed(visit.exercise()) > 0; });
  visit.act([visit](frm_betűválogatás&) { visit.platform().redrawn = {}; });
}

void too_few_words(const SortingVisit& visit) {
  visit.act([](frm_betűválogatás& window) { input::click(window.mnubeállítások); });
  in_settings(visit, [](frm_betűválogatás_beállítás& dialog) {
    dialog.lst_betűpárok.Items = {u"dzs - x"};
    dialog.select_all(true);
    input::click(dialog.Ok);
  });
  visit.guide().picture(u"szövegüzenet", "letter-sorting-too-few-words");
  visit.guide().act(u"szövegüzenet", [](Window& window) { input::click(static_cast<szövegüzenet&>(window).Command1); });
  visit.look("-nothing-fits");
}

void directions(const SortingVisit& visit) {
  Guide& guide = visit.guide();
  open_settings(visit);
  in_settings(visit, [](frm_betűválogatás_beállítás& dialog) {
    input::choose(dialog.opt_nyelv[0]);
    input::toggle(dialog.Chk_szótagolva);
    input::toggle(dialog.chk_iránygyakoroltatása);
    input::click(dialog.Ok);
  });
  guide.picture(panel_window, "direction-panel");
  guide.picture_behind(
      panel_window, [visit]() -> Window& { return visit.exercise(); }, "letter-sorting-directions");
  guide.act(panel_window, [](Window&) { press_key(Qt::Key_Tab); });
  guide.picture(panel_window, "direction-panel-focus");
  guide.act(panel_window, [](Window& window) {
    touch_mouse();
    input::place(window, {window.Left, window.Top, 1500, 1500});
  });
  guide.picture(panel_window, "direction-panel-narrow");
  guide.act(panel_window, [](Window& window) {
    const Size screen = window.platform().screen_size();
    input::place(window, {0, 0, 0.9 * screen.width, window.Height});
  });
  guide.picture(panel_window, "direction-panel-wide");
  guide.act(panel_window, [](Window& window) { input::close(window); });
  visit.look("-syllables");
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const SortingVisit visit(guide, session, platform, u"frm_betűválogatás", "letter-sorting");
  guide.intended.push_back({u"frm_betűválogatás", u"kép", u"eredménykép"}); // on its flight
  guide.intended.push_back({u"frm_betűválogatás", u"kép", u"eredményképnév"});
  guide.intended.push_back({u"frm_betűválogatás", u"kép", u"betű"});
  guide.for_help("letter-sorting-three-results", "letter_sorting");
  guide.for_help("letter-sorting-settings", "letter_sorting_settings");
  guide.for_help("direction-panel", "direction_panel", 422);
  visit.open();
  visit.look_at_focus(1);
  visit.err();
  visit.solve_until([visit] { return placed(visit.exercise()) >= 3; });
  visit.look("-three-results");
  settings(visit);
  watch_flight(visit);
  too_few_words(visit);
  directions(visit);
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_betűválogatás", lay_out};

} // namespace

} // namespace cserko::tour
