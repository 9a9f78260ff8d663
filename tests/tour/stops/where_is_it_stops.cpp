#include "core/kszöveg.h"
#include "exercises/syllables/frm_holvan.h"
#include "feedback/message_panels.h"
#include "tests/players/holvan_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using WhereVisit = Visit<frm_holvan, HolvanPlayer>;

void hint(const WhereVisit& visit, const std::string& name, Element& (*asked)(frm_holvan&)) {
  visit.act([asked](frm_holvan& window) { input::click(asked(window)); });
  visit.guide().picture(u"üzenet", "where-is-it-hint-" + name);
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
}

// OK with one of the sets of directions, and the words as long as they get.
void choose_directions(const WhereVisit& visit, int option, const std::string& state) {
  visit.act([](frm_holvan& window) { input::click(window.mnu_fájl_beáll); });
  if (option == 1) visit.guide().picture(u"frm_holvan_beáll", "where-is-it-settings");
  visit.guide().act(u"frm_holvan_beáll", [option](Window& window) {
    auto& dialog = static_cast<frm_holvan_beáll&>(window);
    dialog.option_irányok.choose(option);
    dialog.ud_maxbetűszám.set_value(dialog.ud_maxbetűszám.Max);
    input::click(dialog.OKButton);
  });
  visit.look(state);
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const WhereVisit visit(guide, session, platform, u"frm_holvan", "where-is-it");
  // The words stand right beside the picture, which the design lets touch them.
  guide.intended.push_back({u"frm_holvan", u"lbl_szó", u"kép"});
  guide.for_help("where-is-it-one-result", "where_is_it", 562);
  guide.for_help("where-is-it-settings", "where_is_it_settings");
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  hint(visit, "picture", [](frm_holvan& window) -> Element& { return window.kép; });
  hint(visit, "word", [](frm_holvan& window) -> Element& { return window.lbl_szó[3]; });
  choose_directions(visit, 1, "-right-and-left");
  choose_directions(visit, 2, "-up-and-down");
  choose_directions(visit, 0, "-all-again");
  // The longest name among the words, which makes the size of all.
  visit.act([visit](frm_holvan& window) {
    const Records& records = visit.session().képek;
    const int longest = worst_record(
        records, [](const KépAdat& record) { return kszöveg::letter_count(record.név) <= 16 ? record.név.size() : 0; });
    visit.platform().chance = {0.5, (longest + 0.5) / records.képszám};
    window.beáll();
  });
  visit.look("-longest");
  visit.solve_all();
  visit.act([](frm_holvan& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_holvan", lay_out};

} // namespace

} // namespace cserko::tour
