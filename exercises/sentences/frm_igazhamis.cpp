#include "exercises/sentences/frm_igazhamis.h"

#include "core/numbers.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

frm_igazhamis::frm_igazhamis(Session& session)
    : ExerciseWindow(session, u"frm_igazhamis", {11895, 7215}, u"Cserkó Igaz-hamis"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::Wrapped) {
  kép.TabStop = false;
  lbl_állítás[0].Choosable = true;
  lbl_állítás.design_places({{2880, 360}, {2880, 2040}});
  pic_eredmény.design_places({{120, 240}, {2040, 240}, {3960, 240}, {5880, 240}, {7800, 240}, {9720, 240}});
  lbl_eredmény.design_places({{120, 2040}, {2040, 2040}, {3960, 2040}, {5880, 2040}, {7800, 2040}, {9720, 2040}});
  lbl_állítás.Click = [this](int index) { lbl_állítás_click(index); };
  mnu_file_új_játék.Click = [this] {
    results_.clear();
    feladat_kirakása();
  };
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"igazhamis - a feladat.mht");
}

void frm_igazhamis::Load() {
  fill_screen({&lbl_feladat});
  results_.clear();
  deal_first([this] { feladat_kirakása(); });
}

void frm_igazhamis::no_puzzle() { feladat_törlés(); }

void frm_igazhamis::feladat_törlés() {
  lbl_állítás.each([](Label& statement) { statement.Caption.clear(); });
  clear_picture(kép);
}

int frm_igazhamis::szóválasztás() {
  platform().seed_random();
  return képek().draw(
      platform(),
      [this](int index) {
        return index != aktuális_kép_ && !képek()[index].igaz.empty() && !képek()[index].hamis.empty();
      },
      u"Nincs elég olyan kép, amelyikhez igaz és hamis mondat is tartozik.");
}

void frm_igazhamis::feladat_kirakása() {
  deal([this] { new_puzzle(); });
}

void frm_igazhamis::new_puzzle() {
  feladat_törlés();
  aktuális_kép_ = szóválasztás();
  const KépAdat& record = képek()[aktuális_kép_];
  show_record_picture(session(), kép, aktuális_kép_);
  szöveg_illesztés(lbl_állítás[random_below(platform(), lbl_állítás.count())], Text(record.igaz));
  lbl_állítás.each([&](Label& statement) {
    if (statement.Caption.empty()) szöveg_illesztés(statement, Text(record.hamis));
  });
  // One size for both, so that the length of neither gives it away.
  const double smallest = std::min(lbl_állítás[0].Font.size, lbl_állítás[1].Font.size);
  lbl_állítás.each([&](Label& statement) { statement.Font.size = smallest; });
}

void frm_igazhamis::lbl_állítás_click(int index) {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), lbl_állítás[index].Caption == képek()[aktuális_kép_].igaz)) return;
  results_.add(aktuális_kép_, lbl_állítás[index].Caption);
  feladat_kirakása();
}

} // namespace cserko
