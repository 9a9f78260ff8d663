#include "exercises/letters/frmverem.h"
#include "tests/players/verem_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frmverem, VeremPlayer> visit(guide, session, platform, u"frmverem", "winder");
  guide.intended.push_back({u"frmverem", u"betű", u"betű"}); // the cell of the cursor is larger than its place
  guide.for_help("winder", "winder");
  guide.for_help("winder-settings", "winder_settings");
  visit.open();
  visit.act([](frmverem& window) { input::click(window.mnubeállításokdlg); });
  guide.picture(u"frmverembeállítások", "winder-settings");
  guide.act(u"frmverembeállítások",
            [](Window& window) { input::click(static_cast<frmverembeállítások&>(window).CancelButton); });
  visit.close();
}

const Stops stops{u"frmverem", lay_out};

} // namespace

} // namespace cserko::tour
