#include "exercises/sentences/frm_igazhamis.h"
#include "tests/players/igazhamis_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_igazhamis, IgazhamisPlayer> visit(guide, session, platform, u"frm_igazhamis", "true-or-false");
  guide.intended.push_back({u"frm_igazhamis", u"Frame1", u"Frame2"}); // by one pixel of the design, as the next
  guide.intended.push_back({u"frm_igazhamis", u"lbl_eredmény", u"pic_eredmény"});
  guide.for_help("true-or-false-one-result", "true_or_false", 622);
  visit.open();
  visit.look_at_focus(1);
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([visit](frm_igazhamis& window) {
    draw_worst(visit, [](const KépAdat& record) { return std::max(record.igaz.size(), record.hamis.size()); });
    window.feladat_kirakása();
  });
  visit.look("-longest");
  visit.act([visit](frm_igazhamis& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.igaz.size(); });
    window.feladat_kirakása();
  });
  solve_one(visit, "-longest-result");
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_igazhamis", lay_out};

} // namespace

} // namespace cserko::tour
