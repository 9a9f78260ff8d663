#include "exercises/syllables/frm_szótagoló.h"
#include "tests/players/szótagoló_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_szótagoló, SzótagolóPlayer> visit(guide, session, platform, u"frm_szótagoló", "syllabifier");
  guide.intended.push_back({u"frm_szótagoló", u"lbl_eredmény", u"pic_eredmény"}); // by one pixel of the design
  guide.for_help("syllabifier-one-result", "syllabifier", 562);
  guide.for_help("syllabifier-settings", "syllabifier_settings");
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([](frm_szótagoló& window) { input::click(window.mnu_fájl_beállítások); });
  guide.picture(u"dlg_szótagoló", "syllabifier-settings");
  guide.act(u"dlg_szótagoló", [](Window& window) {
    auto& dialog = static_cast<dlg_szótagoló&>(window);
    dialog.udszótagszám.set_value(dialog.udszótagszám.Max);
    input::click(dialog.OKButton);
  });
  visit.act([visit](frm_szótagoló& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.szótagolt.size(); });
    window.beáll();
  });
  visit.look("-longest");
  solve_one(visit, "-longest-result");
  // A long double consonant has a letter more where it is broken up.
  visit.act([visit](frm_szótagoló& window) {
    draw_worst(visit, [](const KépAdat& record) {
      const auto breaks = std::count(record.szótagolt.begin(), record.szótagolt.end(), u'-');
      return record.szótagolt.size() - static_cast<std::size_t>(breaks) > record.név.size();
    });
    window.beáll();
  });
  visit.look("-long-consonant");
  solve_one(visit, "-long-consonant-result");
  visit.solve_all();
  visit.act([](frm_szótagoló& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_szótagoló", lay_out};

} // namespace

} // namespace cserko::tour
