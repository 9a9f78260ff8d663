#include "exercises/syllables/frm_merremutat.h"
#include "tests/players/merremutat_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using WayVisit = Visit<frm_merremutat, MerremutatPlayer>;

// Every motif of the collection once, in the first of its directions.
void all_motifs(const WayVisit& visit, Session& session) {
  const Text folder = session.alapkönyvtár + u"irkep\\";
  const int motifs = static_cast<int>(session.platform().files().list(folder + u"*.swm").size());
  for (int motif = 1; motif <= motifs; ++motif) {
    visit.act([visit, motif, motifs](frm_merremutat& window) {
      const auto& files = window.irányképek().at(static_cast<std::size_t>(motif)).képfájl;
      const auto first = std::find_if(files.begin(), files.end(), [](const Text& file) { return !file.empty(); });
      visit.platform().chance = {(static_cast<double>(first - files.begin()) + 0.5) / 4, (motif + 0.5) / (motifs + 1)};
      window.beáll();
    });
    visit.look("-motif-" + std::to_string(motif));
  }
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const WayVisit visit(guide, session, platform, u"frm_merremutat", "which-way");
  // By one pixel of the design.
  guide.intended.push_back({u"frm_merremutat", u"lbl_eredmény", u"pic_eredmény"});
  guide.intended.push_back({u"frm_merremutat", u"kép", u"Picture2"});
  guide.for_help("which-way-one-result", "which_way", 562);
  guide.for_help("which-way-settings", "which_way_settings");
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([](frm_merremutat& window) { input::click(window.mnu_fájl_beáll); });
  guide.picture(u"frm_merremutat_beáll", "which-way-settings");
  guide.act(u"frm_merremutat_beáll", [](Window& window) {
    auto& dialog = static_cast<frm_merremutat_beáll&>(window);
    dialog.opt_irány.choose(1);
    input::click(dialog.OKButton);
  });
  visit.look("-up-and-down");
  visit.act([visit](frm_merremutat&) { visit.session().window<frm_merremutat_beáll>().opt_irány.choose(2); });
  all_motifs(visit, session);
  visit.solve_all();
  visit.act([](frm_merremutat& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_merremutat", lay_out};

} // namespace

} // namespace cserko::tour
