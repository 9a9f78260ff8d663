#include "exercises/sentences/frm_mondatkép.h"

#include "core/numbers.h"
#include "core/settings.h"
#include "feedback/sounds.h"

namespace cserko {

namespace {

constexpr TextView empty_place = u"-1";
constexpr TextView advice = u"Nincs elég olyan kép, amelyikhez meghatározás tartozik.";

} // namespace

frm_mondatkép::frm_mondatkép(Session& session)
    : ExerciseWindow(session, u"frm_mondatkép", {6135, 5425}, u"Cserkó Mondat-Kép"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::Wrapped) {
  lbl_meghatározás.TabStop = false;
  pic_feladványkép[0].Border = true;
  pic_feladványkép.design_places({{4920, 1440}, {1560, 480}, {120, 1440}, {3480, 480}, {1560, 2400}, {3480, 2400}});
  pic_eredmény.design_places({{120, 240}, {1080, 240}, {2040, 240}, {3000, 240}, {3960, 240}, {4920, 240}});
  lbl_eredmény.design_places({{120, 1080}, {1080, 1080}, {2040, 1080}, {3000, 1080}, {3960, 1080}, {4920, 1080}});
  pic_feladványkép.Click = [this](int index) { pic_feladványkép_click(index); };
  mnu_újjáték.Click = [this] {
    results_.clear();
    feladat_kirakása();
  };
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"mondatkép - a feladat.mht");
}

void frm_mondatkép::Load() {
  fill_screen({&lbl_feladat});
  results_.clear();
  deal_first([this] { feladat_kirakása(); });
}

void frm_mondatkép::MouseUp(const MouseEvent& event) {
  // A click on the free background deals another sentence; the strip stays.
  if (event.button == MouseButton::Left) feladat_kirakása();
}

void frm_mondatkép::no_puzzle() { feladat_törlés(); }

void frm_mondatkép::feladat_törlés() {
  pic_feladványkép.each([](PictureBox& picture) {
    clear_picture(picture);
    picture.Tag = empty_place;
  });
  clear_picture(lbl_meghatározás);
}

int frm_mondatkép::szóválasztás() {
  platform().seed_random();
  return képek().draw(
      platform(),
      [this](int index) {
        return index != aktuális_kép_ && !shown_in_ring(index) && !képek()[index].meghatározás.empty();
      },
      advice);
}

bool frm_mondatkép::shown_in_ring(int record) const {
  bool shown = false;
  pic_feladványkép.each([&](const PictureBox& picture) { shown = shown || picture.Tag == to_text(record); });
  return shown;
}

void frm_mondatkép::place(int ring_place, int record) {
  show_record_picture(session(), pic_feladványkép[ring_place], record);
  pic_feladványkép[ring_place].Tag = to_text(record);
}

void frm_mondatkép::feladat_kirakása() {
  deal([this] { new_puzzle(); });
}

void frm_mondatkép::new_puzzle() {
  feladat_törlés();
  aktuális_kép_ = szóválasztás();
  szöveg_illesztés(lbl_meghatározás, Text(képek()[aktuális_kép_].meghatározás));
  const int places = pic_feladványkép.count();
  place(random_below(platform(), places), aktuális_kép_);
  for (int filled = 1; filled < places; ++filled) {
    const int free_place = draw_below(
        platform(), places, [this](int at) { return pic_feladványkép[at].Tag == empty_place; }, advice);
    place(free_place, szóválasztás());
  }
}

void frm_mondatkép::pic_feladványkép_click(int index) {
  if (!has_puzzle()) return;
  const int record = number_in(pic_feladványkép[index].Tag).value();
  // The comparison is by text: another record with the same definition is right too.
  if (!answer_sound(session(), képek()[record].meghatározás == lbl_meghatározás.Tag)) return;
  results_.add(record, lbl_meghatározás.Tag);
  feladat_kirakása();
}

} // namespace cserko
