#include "exercises/letters/frm_betűhiány.h"
#include "feedback/message_panels.h"
#include "tests/players/betűhiány_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_betűhiány, BetűhiányPlayer> visit(guide, session, platform, u"frm_betűhiány", "missing-letter");
  guide.for_help("missing-letter-long-consonant", "missing_letter", 562);
  guide.for_help("missing-letter-settings", "missing_letter_settings");
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([](frm_betűhiány& window) { input::click(window.kép); });
  guide.picture(u"üzenet", "missing-letter-hint");
  guide.act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
  visit.act([](frm_betűhiány& window) { input::click(window.mnu_fájl_beáll); });
  guide.picture(u"dlg_betűhiány", "missing-letter-settings");
  guide.act(u"dlg_betűhiány", [](Window& window) {
    auto& dialog = static_cast<dlg_betűhiány&>(window);
    dialog.ud_maxbetűszám.set_value(dialog.ud_maxbetűszám.Max);
    input::click(dialog.OKButton);
  });
  visit.act([visit](frm_betűhiány& window) {
    draw_worst(visit, [](const KépAdat& record) {
      return record.név.find(u'-') == Text::npos && kszöveg::letter_count(record.név) <= 16 ? record.név.size() : 0;
    });
    window.beáll();
  });
  visit.look("-longest");
  // The letter behind every other one, as large as the row gets.
  visit.act([](frm_betűhiány& window) {
    for (int i = 1; i < window.betű.count(); ++i) input::click(window.betű[i]);
  });
  visit.look("-widest");
  solve_one(visit, "-longest-result");
  visit.act([visit](frm_betűhiány& window) {
    draw_worst(visit, [](const KépAdat& record) {
      return hosszú_kettős_helye(kszöveg(record.név)) >= 2 && kszöveg::letter_count(record.név) >= 6 ? 1 : 0;
    });
    window.beáll();
  });
  visit.look("-long-consonant");
  visit.solve_all();
  visit.act([](frm_betűhiány& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_betűhiány", lay_out};

} // namespace

} // namespace cserko::tour
