#include "core/finally.h"
#include "exercises/sentences/frm_párosító.h"
#include "tests/players/párosító_player.h"
#include "tests/tour/visit.h"

#include <cmath>
#include <utility>

namespace cserko::tour {

namespace {

constexpr TextView settings_window = u"frm_párosító_beáll";

using PairingVisit = Visit<frm_párosító, PárosítóPlayer>;

// A wavy line from a picture, as a hand draws it, to a place of the window.
std::vector<Point> wave(const frm_párosító& window, int from, Point to) {
  constexpr int points = 60;
  const PictureBox& picture = window.pic_feladvány[from];
  const Point start{picture.Width / 2, picture.Height / 2};
  const Point end{to.x - picture.Left, to.y - picture.Top};
  std::vector<Point> way;
  for (int i = 0; i <= points; ++i) {
    const double share = static_cast<double>(i) / points;
    way.push_back({start.x + (end.x - start.x) * share,
                   start.y + (end.y - start.y) * share + std::sin(share * 12) * share * (1 - share) * 1200});
  }
  return way;
}

void draw_wave(frm_párosító& window, int from, Point to) {
  TourHand(window).draw(window.pic_feladvány[from], wave(window, from, to));
}

// Where a line is let go that leads nowhere.
Point free_place(const frm_párosító& window, int from) {
  const PictureBox& picture = window.pic_feladvány[from];
  return {picture.Left + 2.2 * picture.Width, window.pic_feladvány[4].Top + picture.Height / 2};
}

// A line that is still held.
void look_at_half_a_line(const PairingVisit& visit) {
  visit.act([](frm_párosító& window) {
    const std::vector<Point> way = wave(window, 0, free_place(window, 0));
    PictureBox& picture = window.pic_feladvány[0];
    input::mouse_down(picture, {MouseButton::Left, shift::none, way.front().x, way.front().y});
    for (const Point& point : way) input::mouse_move(picture, {MouseButton::Left, shift::none, point.x, point.y});
  });
  visit.look("-half-drawn");
  visit.act([](frm_párosító& window) {
    const Point end = wave(window, 0, free_place(window, 0)).back();
    input::mouse_up(window.pic_feladvány[0], {MouseButton::Left, shift::none, end.x, end.y});
  });
}

// Four definitions are one too few.
void nothing_fits(const PairingVisit& visit) {
  visit.act([visit](frm_párosító& window) {
    Records& records = visit.session().képek;
    const std::int16_t last = std::exchange(records.képszám, std::int16_t{4});
    const Finally all_again([&records, last] { records.képszám = last; });
    input::click(window.mnu_fájl_újjáték);
  });
  visit.close_message("-nothing-fits");
  visit.look("-empty");
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
  visit.act([](frm_párosító& window) { input::click(window.lbl_feladvány[2]); });
  visit.look("-definition-chosen");
  visit.act([](frm_párosító& window) { input::click(window.lbl_feladvány[2]); });
  check_at_once(guide, visit, true, "sentence-pairing-settings-at-once");
  visit.act([](frm_párosító& window) {
    for (const int row : {1, 3}) draw_wave(window, row, middle_of(window.lbl_feladvány[definition_of(window, row)]));
  });
  visit.look("-two-lines");
  look_at_half_a_line(visit);
  // It is let go in the free strip, across the others: nothing of it stays on the ground.
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
  nothing_fits(visit);
  check_at_once(guide, visit, true, "sentence-pairing-settings");
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_párosító", lay_out};

} // namespace

} // namespace cserko::tour
