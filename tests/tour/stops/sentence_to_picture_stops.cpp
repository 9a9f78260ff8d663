#include "exercises/sentences/frm_mondatkép.h"
#include "tests/players/mondatkép_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_mondatkép, MondatképPlayer> visit(guide, session, platform, u"frm_mondatkép", "sentence-to-picture");
  guide.intended.push_back({u"frm_mondatkép", u"lbl_eredmény", u"pic_eredmény"}); // by one pixel of the design
  guide.for_help("sentence-to-picture-one-result", "sentence_to_picture", 522);
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([visit](frm_mondatkép& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.meghatározás.size(); });
    window.feladat_kirakása();
  });
  visit.look("-longest");
  solve_one(visit, "-longest-result");
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_mondatkép", lay_out};

} // namespace

} // namespace cserko::tour
