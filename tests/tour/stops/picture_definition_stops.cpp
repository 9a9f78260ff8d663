#include "exercises/sentences/frm_képhatározó.h"
#include "tests/players/képhatározó_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

constexpr TextView settings_window = u"frm_képhatározó_beáll";

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_képhatározó, KéphatározóPlayer> visit(guide, session, platform, u"frm_képhatározó",
                                                        "picture-definition");
  // The design lays the picture and the definitions against the task line.
  guide.intended.push_back({u"frm_képhatározó", u"kép", u"lbl_feladat"});
  guide.intended.push_back({u"frm_képhatározó", u"lbl_meghatározás", u"lbl_feladat"});
  guide.intended.push_back({u"frm_képhatározó", u"lbl_eredmény", u"pic_eredmény"});
  guide.for_help("picture-definition", "picture_definition");
  guide.for_help("picture-definition-settings", "picture_definition_settings");
  visit.open();
  visit.look_at_focus(1);
  visit.err();
  visit.act([](frm_képhatározó& window) { input::click(window.mnu_fájl_beáll); });
  guide.picture(settings_window, "picture-definition-settings");
  guide.act(settings_window, [](Window& window) {
    auto& dialog = static_cast<frm_képhatározó_beáll&>(window);
    dialog.Check_képnévis.set_value(1);
    dialog.Ud_meghatározásokszáma.set_value(dialog.Ud_meghatározásokszáma.Max);
    input::click(dialog.OKButton);
  });
  visit.look("-six");
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_képhatározó", lay_out};

} // namespace

} // namespace cserko::tour
