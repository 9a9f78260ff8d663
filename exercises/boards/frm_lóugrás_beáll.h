// The settings of Knight's jump. The game reads its options from these controls.
#pragma once

#include "core/option_group.h"
#include "core/settings.h"

namespace cserko {

class frm_lóugrás_beáll : public SettingsDialog {
 public:
  explicit frm_lóugrás_beáll(Session& session);

  Frame Frame_tábla{*this, u"Frame_tábla", {120, 120, 5640, 3360}, u"A játéktábla"};
  Label lbl_sorokszáma{Frame_tábla, u"lbl_sorokszáma", {180, 360, 3780, 420}, u"So&rok száma:"};
  TextBox txtsorokszáma{Frame_tábla, u"txtsorokszáma", {4080, 360, 960, 420}};
  UpDown udsorokszáma{Frame_tábla, u"udsorokszáma", {5040, 360, 360, 420}, txtsorokszáma, {6, 8, 1}, 8};
  Label lbl_oszlopokszáma{Frame_tábla, u"lbl_oszlopokszáma", {180, 840, 3780, 420}, u"&Oszlopok száma:"};
  TextBox txtoszlopokszáma{Frame_tábla, u"txtoszlopokszáma", {4080, 840, 960, 420}};
  UpDown udoszlopokszáma{Frame_tábla, u"udoszlopokszáma", {5040, 840, 360, 420}, txtoszlopokszáma, {6, 12, 1}, 8};
  Label lbl_szóbetmaxszám{Frame_tábla, u"lbl_szóbetmaxszám", {180, 1320, 3780, 420}, u"Szó ma&ximális betűszáma:"};
  TextBox txtszóbetmaxszám{Frame_tábla, u"txtszóbetmaxszám", {4080, 1320, 960, 420}};
  UpDown udszóbetmaxszám{Frame_tábla, u"udszóbetmaxszám", {5040, 1320, 360, 420}, txtszóbetmaxszám, {4, 12, 1}, 12};
  Label lbl_képekszáma{Frame_tábla, u"lbl_képekszáma", {180, 1800, 3780, 420}, u"Ké&pek száma:"};
  TextBox txtképekszáma{Frame_tábla, u"txtképekszáma", {4080, 1800, 960, 420}};
  UpDown udképekszáma{Frame_tábla, u"udképekszáma", {5040, 1800, 360, 420}, txtképekszáma, {1, 4, 1}, 4};
  CheckBox chktöltelékbetűk{Frame_tábla, u"chktöltelékbetűk", {180, 2280, 5280, 420}, u"&Töltelék-betűk beszúrása", 1};
  Label lbl_töltelékkarakter{Frame_tábla, u"lbl_töltelékkarakter", {180, 2760, 3780, 420}, u"Töltelék&karakter:"};
  TextBox txt_töltelékkarakter{Frame_tábla, u"txt_töltelékkarakter", {4080, 2760, 960, 420}, u"."};

  Frame Frame_szabály{*this, u"Frame_szabály", {120, 3600, 5640, 1320}, u"Szabály"};
  OptionGroup optszabály{
      Frame_szabály,
      u"optszabály",
      {{0, {180, 360, 5280, 420}, u"Lépés &lólépésben"}, {1, {180, 780, 5280, 420}, u"Lépés a &szomszédos mezőkre"}},
      0};
  Frame Frame_olvasás{*this, u"Frame_olvasás", {120, 5040, 5640, 1320}, u"Olvasás"};
  CheckBox chk_képekbemutatása{
      Frame_olvasás, u"chk_képekbemutatása", {180, 360, 5280, 420}, u"Képek &bemutatása játék előtt"};
  CheckBox befejezés_után_olvasás{
      Frame_olvasás, u"befejezés_után_olvasás", {180, 780, 5280, 420}, u"Befejezés &után olvasás"};
  Frame Frame_nyelv{*this, u"Frame_nyelv", {120, 6480, 5640, 900}, u"Nyelv"};
  OptionGroup optnyelv{
      Frame_nyelv, u"optnyelv", {{2, {180, 360, 2580, 420}, u"&Magyar"}, {4, {2880, 360, 2580, 420}, u"&Angol"}}, 2};
  CheckBox chk_segítség_engedélyezése{
      *this, u"chk_segítség_engedélyezése", {300, 7500, 5400, 420}, u"Segítség &engedélyezése"};

  Button OKButton{*this, u"OKButton", {5880, 240, 1920, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {5880, 1020, 1920, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {5880, 1800, 1920, 660}, u"Súgó"};

 protected:
  /// Selects the language that has been read, or Hungarian where there was no file, and allows the game's hint.
  void after_read(bool from_file) override;
  void apply() override;

 private:
  void keep_one_character();
  int language() const;
  void take_language(int language);
  void allow_hint();

  std::optional<int> language_read_; ///< What the file says.
};

} // namespace cserko
