#include "core/finally.h"
#include "exercises/syllables/frm_szótagkereső.h"
#include "tests/players/szótagkereső_player.h"
#include "tests/tour/visit.h"

#include <utility>

namespace cserko::tour {

namespace {

using SearchVisit = Visit<frm_szótagkereső, SzótagkeresőPlayer>;

void press_tray(frm_szótagkereső& window, MouseButton button) {
  input::mouse_down(window.szövegtároló, {button, shift::none, 5, 5});
}

bool any_below(frm_szótagkereső& window) {
  bool found = false;
  window.lbl_szótag.each([&](const Label& syllable) {
    found = found || syllable.Top + syllable.Height * 0.6 > window.szövegtároló.Height;
  });
  return found;
}

// The arrow keys lead out of the tray, as far as the picture is high.
void move_by_keyboard(const SearchVisit& visit) {
  visit.act([](frm_szótagkereső&) { press_key(Qt::Key_Space); });
  visit.look("-selected");
  visit.act([visit](frm_szótagkereső& window) {
    while (!any_below(window)) press_key(Qt::Key_Down);
    visit.guide().intended.push_back({u"frm_szótagkereső", u"lbl_szótag", u"szövegtároló"});
  });
  visit.look("-below-the-tray");
  visit.act([visit](frm_szótagkereső& window) {
    visit.guide().intended.pop_back();
    touch_mouse();
    press_tray(window, MouseButton::Left); // they lie on the tray again
  });
}

// Of one word alone it is known that it has not so many syllables.
void nothing_fits(const SearchVisit& visit) {
  visit.act([](frm_szótagkereső& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().act(u"frm_szótagkereső_beáll", [visit](Window& window) {
    auto& dialog = static_cast<frm_szótagkereső_beáll&>(window);
    dialog.ud_minszótagszám.set_value(dialog.ud_minszótagszám.Max);
    Records& records = visit.session().képek;
    const std::int16_t last = std::exchange(records.képszám, std::int16_t{1});
    const Finally all_again([&records, last] { records.képszám = last; });
    input::click(dialog.OKButton);
  });
  visit.close_message("-nothing-fits");
  visit.look("-empty");
  visit.act([visit](frm_szótagkereső& window) {
    UpDown& fewest = visit.session().window<frm_szótagkereső_beáll>().ud_minszótagszám;
    fewest.set_value(fewest.Min);
    window.beáll();
  });
}

void settings(const SearchVisit& visit) {
  visit.act([](frm_szótagkereső& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().picture(u"frm_szótagkereső_beáll", "syllable-search-settings");
  visit.guide().act(u"frm_szótagkereső_beáll", [](Window& window) {
    auto& dialog = static_cast<frm_szótagkereső_beáll&>(window);
    input::toggle(dialog.chk_képnélkül);
    input::click(dialog.OKButton);
  });
  visit.look("-without-picture");
  visit.act(
      [visit](frm_szótagkereső&) { visit.session().window<frm_szótagkereső_beáll>().chk_képnélkül.set_value(0); });
}

// The next puzzle is the worst of the words that can be dealt.
template<class Worth> void deal_worst(const SearchVisit& visit, const std::string& state, Worth worth) {
  visit.act([visit, worth](frm_szótagkereső& window) {
    draw_worst(visit, [worth](const KépAdat& record) {
      const auto breaks = std::count(record.szótagolt.begin(), record.szótagolt.end(), u'-');
      return breaks < 2 ? 0 : worth(record, static_cast<int>(breaks));
    });
    window.beáll();
  });
  visit.look(state);
  visit.act([](frm_szótagkereső& window) { press_tray(window, MouseButton::Right); });
  visit.look(state + "-lined-up");
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const SearchVisit visit(guide, session, platform, u"frm_szótagkereső", "syllable-search");
  // By one pixel of the design.
  guide.intended.push_back({u"frm_szótagkereső", u"kép", u"lbl_feladat"});
  guide.intended.push_back({u"frm_szótagkereső", u"szövegtároló", u"kép"});
  guide.intended.push_back({u"frm_szótagkereső", u"lbl_eredmény", u"pic_eredmény"});
  // What lies about is moved over what lies there.
  guide.intended.push_back({u"frm_szótagkereső", u"lbl_szótag", u"lbl_szótag"});
  guide.for_help("syllable-search", "syllable_search", 562);
  guide.for_help("syllable-search-settings", "syllable_search_settings");
  visit.open();
  visit.look_at_focus(1);
  move_by_keyboard(visit);
  visit.err();
  visit.act([](frm_szótagkereső& window) { press_tray(window, MouseButton::Left); });
  visit.look("-shuffled");
  visit.solve_until([visit] { return !visit.exercise().cmd_kész.Visible; });
  visit.look("-solved");
  solve_one(visit, "-one-result");
  settings(visit);
  deal_worst(visit, "-most-syllables", [](const KépAdat&, int breaks) { return breaks; });
  deal_worst(visit, "-longest", [](const KépAdat& record, int) { return static_cast<int>(record.szótagolt.size()); });
  deal_worst(visit, "-widest-syllable", [](const KépAdat& record, int) {
    return static_cast<int>(record.szótagolt.find(u'-')); // the first one makes the size of all
  });
  nothing_fits(visit);
  visit.solve_all();
  visit.act([](frm_szótagkereső& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_szótagkereső", lay_out};

} // namespace

} // namespace cserko::tour
