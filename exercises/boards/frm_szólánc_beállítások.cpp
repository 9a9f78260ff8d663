#include "exercises/boards/frm_szólánc_beállítások.h"

#include "exercises/boards/frm_szólánc.h"

namespace cserko {

frm_szólánc_beállítások::frm_szólánc_beállítások(Session& session)
    : SettingsDialog(session, u"frm_szólánc_beállítások", {5640, 6000}, u"Cserkó - Szólánc - Beállítások",
                     u"szólánc.ini") {
  for (const auto& [heading, box] : {std::pair{&lbl_betszám, &txtbetszám}, {&lbl_képekszáma, &txt_képekszáma}}) {
    heading->Centered = false;
    box->AccessibleName = heading->Caption;
  }
  // Only whole rows can be asked for.
  txt_képekszáma.Locked = true;
  opt_típus.Click = [this](int) { allow_syllables(); };
  set_fields({&opt_típus[0], &opt_típus[1], &opt_típus[2], &udbetszám, &ud_képekszáma, &chk_kezdőszó_felfedése,
              &chk_segítség_engedélyezése, &chk_szavak_megjelenítése_szótagolva, &Check_pontosbetűháttér});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Szólánc  - Beállítások.mht");
}

bool frm_szólánc_beállítások::syllables_shown() const {
  return chk_szavak_megjelenítése_szótagolva.ticked() && rule() == ChainRule::Syllable;
}

void frm_szólánc_beállítások::after_read(bool /*from_file*/) {
  opt_típus.repair(0);
  ud_képekszáma.set_value(ud_képekszáma.value() - ud_képekszáma.value() % ud_képekszáma.Increment);
  allow_syllables();
}

void frm_szólánc_beállítások::allow_syllables() {
  chk_szavak_megjelenítése_szótagolva.Enabled = rule() == ChainRule::Syllable;
}

void frm_szólánc_beállítások::apply() { session().window<frm_szólánc>().mnu_fájl_újjáték_Click(); }

} // namespace cserko
