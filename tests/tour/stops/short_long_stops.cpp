#include "exercises/boards/frm_hosszrövid.h"
#include "tests/players/hosszrövid_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using ShortLongVisit = Visit<frm_hosszrövid, HosszrövidPlayer>;

void in_dialog(const ShortLongVisit& visit, std::function<void(dlg_hosszrövid&)> deed) {
  visit.guide().act(u"dlg_hosszrövid",
                    [deed = std::move(deed)](Window& window) { deed(static_cast<dlg_hosszrövid&>(window)); });
}

// The column drawn up or down as far as it goes.
void slide(const ShortLongVisit& visit, bool up, const std::string& state) {
  visit.act([up](frm_hosszrövid& window) { input::click(up ? window.lbl_alsó : window.lbl_felső); });
  visit.look(state);
}

void settings(const ShortLongVisit& visit) {
  visit.act([](frm_hosszrövid& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().picture(u"dlg_hosszrövid", "short-long-settings");
  in_dialog(visit, [](dlg_hosszrövid& dialog) { input::click(dialog.cmd_kijelöléstörlés); });
  visit.guide().picture(u"dlg_hosszrövid", "short-long-settings-no-pair");
  in_dialog(visit, [](dlg_hosszrövid& dialog) {
    input::click(dialog.cmd_rövid_hosszú);
    dialog.ud_maxbetűszám.set_value(dialog.ud_maxbetűszám.Max);
    input::toggle(dialog.Chk_szótagolva);
  });
  visit.guide().picture(u"dlg_hosszrövid", "short-long-settings-some-pairs");
  in_dialog(visit, [](dlg_hosszrövid& dialog) { input::click(dialog.OKButton); });
}

// The longest word with an "i" or "o": the first of its pair, the letter and the word come by chance, in this order.
void longest_word(const ShortLongVisit& visit, TextView letter, double pair) {
  visit.act([visit, letter, pair](frm_hosszrövid& window) {
    const Records& records = visit.session().képek;
    int worst = 0;
    for (int i = 1; i < records.képszám; ++i) {
      if (records.MAGYARBETŰKSZÁMA(i) <= 16 && records.vanebenne(i, letter, WordForm::Szótagolt) &&
          records.vanebenne(i, letter) && records[i].név.find(u'-') == Text::npos &&
          records[i].szótagolt.size() > records[worst].szótagolt.size())
        worst = i;
    }
    visit.platform().chance = {(pair + 0.5) / 33, 0.25, (worst + 0.5) / records.képszám};
    window.beáll();
  });
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const ShortLongVisit visit(guide, session, platform, u"frm_hosszrövid", "short-long");
  guide.for_help("short-long-one-result", "short_long", 562);
  guide.for_help("short-long-settings", "short_long_settings");
  visit.open();
  visit.look_at_focus(1);
  slide(visit, true, "-lower");
  slide(visit, false, "-upper");
  visit.err();
  solve_one(visit, "-one-result");
  settings(visit);
  longest_word(visit, u"i", 0);
  visit.look("-longest");
  slide(visit, true, "-longest-lower");
  slide(visit, false, "-longest-upper");
  solve_one(visit, "-longest-result");
  visit.solve_all();
  visit.act([](frm_hosszrövid& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_hosszrövid", lay_out};

} // namespace

} // namespace cserko::tour
