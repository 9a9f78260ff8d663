#include "exercises/sentences/frm_párosító.h"
#include "tests/players/párosító_player.h"
#include "tests/tour/visit.h"

#include <cmath>

namespace cserko::tour {

namespace {

constexpr TextView settings_window = u"frm_párosító_beáll";

using PairingVisit = Visit<frm_párosító, PárosítóPlayer>;

// A wavy line from a picture, as a hand draws it, to a place of the window.
void draw_wave(frm_párosító& window, int from, Point to) {
  constexpr int points = 60;
  PictureBox& picture = window.pic_feladvány[from];
  const Point start{picture.Width / 2, picture.Height / 2};
  const Point end{to.x - picture.Left, to.y - picture.Top};
  std::vector<Point> way;
  for (int i = 0; i <= points; ++i) {
    const double share = static_cast<double>(i) / points;
    way.push_back({start.x + (end.x - start.x) * share,
                   start.y + (end.y - start.y) * share + std::sin(share * 12) * share * (1 - share) * 1200});
  }
  TourHand(window).draw(picture, way);
}

Point middle_of(const PictureBox& box) { return {box.Left + box.Width / 2, box.Top + box.Height / 2}; }

int definition_of(const frm_párosító& window, int picture) {
  int found = 0;
  window.lbl_feladvány.each([&](const PictureBox& box) {
    if (box.Tag == window.pic_feladvány[picture].Tag) found = box.Index;
  });
  return found;
}

void check_at_once(Guide& guide, const PairingVisit& visit, bool at_once, const std::string& name) {
  visit.act([](frm_párosító& window) { input::click(window.mnu_beáll); });
  guide.act(settings_window, [at_once](Window& window) {
    input::choose(static_cast<frm_párosító_beáll&>(window).Option_ellenőr[at_once ? 0 : 1]);
  });
  guide.picture(settings_window, name);
  guide.act(settings_window, [](Window& window) { input::click(static_cast<frm_párosító_beáll&>(window).OKButton); });
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const PairingVisit visit(guide, session, platform, u"frm_párosító", "sentence-pairing");
  guide.for_help("sentence-pairing-two-lines", "sentence_pairing", 522);
  guide.for_help("sentence-pairing-settings-at-once", "sentence_pairing_settings");
  visit.open();
  visit.look_at_focus();
  visit.act([](frm_párosító& window) { input::click(window.pic_feladvány[1]); });
  visit.look("-chosen");
  visit.act([](frm_párosító& window) { input::click(window.pic_feladvány[1]); });
  check_at_once(guide, visit, true, "sentence-pairing-settings-at-once");
  visit.act([](frm_párosító& window) {
    for (const int row : {1, 3}) draw_wave(window, row, middle_of(window.lbl_feladvány[definition_of(window, row)]));
  });
  visit.look("-two-lines");
  // A line that is let go in the free strip, across the others: nothing of it stays on the ground.
  visit.act([](frm_párosító& window) {
    const PictureBox& picture = window.pic_feladvány[0];
    draw_wave(window, 0, {picture.Left + 2.2 * picture.Width, middle_of(window.pic_feladvány[4]).y});
  });
  visit.look("-wiped");
  check_at_once(guide, visit, false, "sentence-pairing-settings-late");
  visit.act([](frm_párosító& window) {
    for (const int row : {0, 2}) {
      const int wrong = (definition_of(window, row) + 1) % window.lbl_feladvány.count();
      draw_wave(window, row, middle_of(window.lbl_feladvány[wrong]));
    }
  });
  visit.look("-wrong-lines");
  visit.act([visit](frm_párosító& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.meghatározás.size(); });
    window.beáll();
  });
  visit.look("-longest");
  check_at_once(guide, visit, true, "sentence-pairing-settings");
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_párosító", lay_out};

} // namespace

} // namespace cserko::tour
