// The settings of Word chain: what must match, how long the words are and how many pictures lie about, how much help
// there is.
#pragma once

#include "core/option_group.h"
#include "core/settings.h"
#include "exercises/boards/chain_search.h"

namespace cserko {

class frm_szólánc_beállítások : public SettingsDialog {
 public:
  explicit frm_szólánc_beállítások(Session& session);

  Frame frame_típus{*this, u"frame_típus", {120, 120, 5400, 1740}, u"A szólánc típusa"};
  OptionGroup opt_típus{frame_típus,
                        u"opt_típus",
                        {{0, {120, 360, 5160, 420}, u"Utolsó szótag és első szótag egyeztetése"},
                         {1, {120, 780, 5160, 420}, u"Utolsó két betű és első két betű egyeztetése"},
                         {2, {120, 1200, 5160, 420}, u"Utolsó betű és első betű egyeztetése"}},
                        0};
  Label lbl_betszám{*this, u"lbl_betszám", {120, 1980, 4080, 480}, u"Szó betűinek maximális száma:"};
  TextBox txtbetszám{*this, u"txtbetszám", {4320, 1980, 840, 480}};
  UpDown udbetszám{*this, u"udbetszám", {5160, 1980, 360, 480}, txtbetszám, {4, 17, 1}, 12};
  Label lbl_képekszáma{*this, u"lbl_képekszáma", {120, 2580, 4080, 480}, u"Képek száma"};
  TextBox txt_képekszáma{*this, u"txt_képekszáma", {4320, 2580, 840, 480}};
  UpDown ud_képekszáma{*this, u"ud_képekszáma", {5160, 2580, 360, 480}, txt_képekszáma, {7, 28, 7}, 28};
  CheckBox chk_kezdőszó_felfedése{
      *this, u"chk_kezdőszó_felfedése", {120, 3180, 5400, 480}, u"Az első kép felfedése", 1};
  CheckBox chk_segítség_engedélyezése{
      *this, u"chk_segítség_engedélyezése", {120, 3660, 5400, 480}, u"Segítség engedélyezése", 1};
  CheckBox chk_szavak_megjelenítése_szótagolva{
      *this, u"chk_szavak_megjelenítése_szótagolva", {120, 4140, 5400, 480}, u"Szavak megjelenítése szótagolva"};
  CheckBox Check_pontosbetűháttér{
      *this, u"Check_pontosbetűháttér", {120, 4620, 5400, 480}, u"A betű vonalát pontosan követő háttér", 1};
  Button OKButton{*this, u"OKButton", {120, 5220, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 5220, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 5220, 1720, 660}, u"Súgó"};

  ChainRule rule() const { return static_cast<ChainRule>(opt_típus.chosen()); }
  /// Whether words are shown with their syllables.
  bool syllables_shown() const;

 protected:
  void apply() override;
  void after_read(bool from_file) override;

 private:
  void allow_syllables();
};

} // namespace cserko
