#include "exercises/letters/frm_betűfelesleg.h"
#include "feedback/message_panels.h"
#include "tests/players/betűfelesleg_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using SurplusVisit = Visit<frm_betűfelesleg, BetűfeleslegPlayer>;

void hint(const SurplusVisit& visit) {
  visit.act([](frm_betűfelesleg& window) { input::click(window.pic_kép); });
  visit.guide().picture(u"üzenet", "surplus-letter-hint");
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
}

void settings(const SurplusVisit& visit) {
  visit.act([](frm_betűfelesleg& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().picture(u"frm_betűfelesleg_beáll", "surplus-letter-settings");
  visit.guide().act(u"frm_betűfelesleg_beáll", [](Window& window) {
    auto& dialog = static_cast<frm_betűfelesleg_beáll&>(window);
    dialog.udbetszám.set_value(dialog.udbetszám.Max);
    input::choose(dialog.opt_betűforrás[1]);
  });
  visit.guide().picture(u"frm_betűfelesleg_beáll", "surplus-letter-settings-changed");
  visit.guide().act(u"frm_betűfelesleg_beáll",
                    [](Window& window) { input::click(static_cast<frm_betűfelesleg_beáll&>(window).OKButton); });
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const SurplusVisit visit(guide, session, platform, u"frm_betűfelesleg", "surplus-letter");
  guide.intended.push_back({u"frm_betűfelesleg", u"lbl_eredmény", u"pic_eredmény"}); // by one pixel of the design
  guide.for_help("surplus-letter-one-result", "surplus_letter", 562);
  guide.for_help("surplus-letter-settings", "surplus_letter_settings");
  visit.open();
  visit.look_at_focus(1);
  hint(visit);
  visit.err();
  // The letter is red for a second, then the row stands closed up for another.
  visit.solve_until([visit] { return visit.exercise().Timer1.Enabled; });
  visit.look("-right-letter");
  guide.act(
      u"frm_betűfelesleg", [](Window&) {},
      [](Window& window) { return static_cast<frm_betűfelesleg&>(window).lépés() == 1; });
  visit.look("-closed-up");
  solve_one(visit, "-one-result");
  settings(visit);
  visit.act([visit](frm_betűfelesleg& window) {
    draw_worst(visit,
               [](const KépAdat& record) { return kszöveg::letter_count(record.név) > 13 ? 0 : record.név.size(); });
    window.beáll();
  });
  visit.look("-longest");
  solve_one(visit, "-longest-result");
  visit.solve_all();
  visit.act([](frm_betűfelesleg& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_betűfelesleg", lay_out};

} // namespace

} // namespace cserko::tour
