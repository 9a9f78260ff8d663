#include "exercises/template/frm_template.h"

#include "core/numbers.h"
#include "feedback/sounds.h"

namespace cserko {

dlg_template::dlg_template(Session& session)
    : SettingsDialog(session, u"dlg_template", {5640, 1440}, u"Cserkó - Minta beállítások", u"template.ini") {
  set_fields({&chk_angol});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"minta - beállítások.mht");
}

void dlg_template::apply() { session().window<frm_template>().beáll(); }

frm_template::frm_template(Session& session)
    : ExerciseWindow(session, u"frm_template", {6480, 6360}, u"Cserkó - Minta"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  kép.TabStop = false;
  lbl_név[0].Choosable = true;
  lbl_név.design_places({{3240, 1020}, {3240, 2220}});
  pic_eredmény.design_places({{120, 3780}, {2240, 3780}, {4360, 3780}});
  lbl_eredmény.design_places({{120, 5880}, {2240, 5880}, {4360, 5880}});
  lbl_név.Click = [this](int index) { lbl_név_click(index); };
  mnu_fájl_új_játék.Click = [this] {
    results_.clear();
    beáll();
  };
  set_settings_entry<dlg_template>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"minta - a feladat.mht");
}

void frm_template::Load() {
  fill_screen({&lbl_feladat});
  results_.clear();
  deal_first([this] { beáll(); });
}

const Text& frm_template::név(int record) const {
  return settings().chk_angol.ticked() ? képek()[record].angol : képek()[record].név;
}

int frm_template::szóválasztás() {
  // The other name must differ from that of the record in play, if there is one already.
  const Text taken = aktuális_kép_ < 0 ? Text() : név(aktuális_kép_);
  return képek().draw(
      platform(), [&](int index) { return !név(index).empty() && név(index) != taken; },
      u"Nincs két szó, amelyikből választani lehetne.");
}

void frm_template::beáll() {
  deal([this] {
    platform().seed_random();
    aktuális_kép_ = -1;
    aktuális_kép_ = szóválasztás();
    const int other = szóválasztás();
    show_record_picture(session(), kép, aktuális_kép_);
    const int place = random_below(platform(), lbl_név.count());
    lbl_név.each([&](Label& name) { szöveg_illesztés(name, Text(név(name.Index == place ? aktuális_kép_ : other))); });
  });
}

void frm_template::no_puzzle() {
  lbl_név.each([](Label& name) { name.Caption.clear(); });
  clear_picture(kép);
}

void frm_template::lbl_név_click(int index) {
  if (!has_puzzle()) return;
  const Text& chosen = lbl_név[index].Caption;
  if (!answer_sound(session(), chosen == név(aktuális_kép_))) return;
  results_.add(aktuális_kép_, chosen);
  beáll();
}

} // namespace cserko
