#include "core/kszöveg.h"
#include "exercises/boards/frm_betűkeverő.h"
#include "tests/players/betűkeverő_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using MixUpVisit = Visit<frm_betűkeverő, BetűkeverőPlayer>;

// The settings are left with words of any length, and with those of English or of syllables.
void settings(const MixUpVisit& visit, int choices, bool english, const std::string& state) {
  visit.act([](frm_betűkeverő& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().picture(u"frm_betűkeverő_beáll", "letter-mix-up-settings" + state);
  visit.guide().act(u"frm_betűkeverő_beáll", [choices, english](Window& window) {
    auto& dialog = static_cast<frm_betűkeverő_beáll&>(window);
    dialog.ud_maxbetűszám.set_value(dialog.ud_maxbetűszám.Max);
    dialog.ud_szavakszáma.set_value(choices);
    dialog.Chk_szótagolva.set_value(1);
    input::choose(dialog.opt_nyelv[english ? 1 : 0]);
  });
  visit.guide().picture(u"frm_betűkeverő_beáll", "letter-mix-up-settings" + state + "-changed");
  visit.guide().act(u"frm_betűkeverő_beáll",
                    [](Window& window) { input::click(static_cast<frm_betűkeverő_beáll&>(window).OKButton); });
}

void longest(const MixUpVisit& visit, Text KépAdat::*form, const std::string& state) {
  visit.act([visit, form](frm_betűkeverő& window) {
    draw_worst(visit, [form](const KépAdat& record) {
      const Text& word = record.*form;
      const auto letters = form == &KépAdat::angol ? static_cast<int>(word.size()) : kszöveg::letter_count(record.név);
      return letters > 16 ? std::size_t{0} : word.size();
    });
    window.beáll();
  });
  visit.look(state);
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const MixUpVisit visit(guide, session, platform, u"frm_betűkeverő", "letter-mix-up");
  guide.for_help("letter-mix-up-one-result", "letter_mix_up", 562);
  guide.for_help("letter-mix-up-settings", "letter_mix_up_settings");
  visit.open();
  visit.look_at_focus(1);
  visit.err();
  // The right spelling stands alone for a second.
  visit.solve_until([visit] { return visit.exercise().Timer1.Enabled; });
  visit.look("-right-spelling");
  solve_one(visit, "-one-result");
  settings(visit, 6, false, "");
  longest(visit, &KépAdat::szótagolt, "-longest-syllables");
  solve_one(visit, "-longest-result");
  settings(visit, 3, true, "-english");
  longest(visit, &KépAdat::angol, "-longest-english");
  visit.solve_all();
  visit.act([](frm_betűkeverő& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_betűkeverő", lay_out};

} // namespace

} // namespace cserko::tour
