// The settings of Picture memory. The dialog also guards the database: it does not let the letter limit fall so low
// that too few words remain.
#pragma once

#include "core/option_group.h"
#include "core/settings.h"

namespace cserko {

class frm_képmem_beáll : public SettingsDialog {
 public:
  explicit frm_képmem_beáll(Session& session);

  static constexpr int no_limit = 13;
  static constexpr int szópárszám_limit = 18;

  Label lbl_szópárszám{*this, u"lbl_szópárszám", {120, 120, 3600, 420}, u"Szópárok száma:"};
  TextBox szópárszámkijelző{*this, u"szópárszámkijelző", {3840, 120, 1200, 420}};
  UpDown szópárszám{*this, u"szópárszám", {5040, 120, 360, 420}, szópárszámkijelző, {5, szópárszám_limit, 1}, 17};
  Label lbl_betűméret{*this, u"lbl_betűméret", {120, 600, 3600, 420}, u"Betűméret:"};
  TextBox txtbetűméret{*this, u"txtbetűméret", {3840, 600, 1200, 420}};
  UpDown udbetűméret{*this, u"udbetűméret", {5040, 600, 360, 420}, txtbetűméret, {4, 17, 1}, 12};
  Label lbl_várid{*this, u"lbl_várid", {120, 1080, 3600, 420}, u"Képek felfedési ideje (mp):"};
  TextBox txtvárid{*this, u"txtvárid", {3840, 1080, 1200, 420}};
  UpDown udvárid{*this, u"udvárid", {5040, 1080, 360, 420}, txtvárid, {1, 10, 1}, 2};
  Label lbl_betszám{*this, u"lbl_betszám", {120, 1560, 3600, 420}, u"Szó betűinek maximális száma:"};
  TextBox txtbetszám{*this, u"txtbetszám", {3840, 1560, 1200, 420}};
  UpDown udbetszám{*this, u"udbetszám", {5040, 1560, 360, 420}, txtbetszám, {2, no_limit, 1}, 12};

  CheckBox chk_anim_enged{*this, u"chk_anim_enged", {120, 2100, 5280, 420}, u"Animáció engedélyezése", 1};
  Label Label_animfinomság{*this, u"Label_animfinomság", {120, 2580, 2520, 420}, u"Az animáció finomsága"};
  ScrollBar HScroll_anim_finomság{*this, u"HScroll_anim_finomság", {2760, 2610, 2040, 360}, 1, 100};
  Label Label_animfinomság_kijelző{*this, u"Label_animfinomság_kijelző", {4860, 2580, 540, 420}, u"10"};
  CheckBox segítség_engedélyezése{
      *this, u"segítség_engedélyezése", {120, 3060, 5280, 420}, u"Segítség engedélyezése", 1};
  CheckBox segít{*this, u"segít", {360, 3540, 5040, 420}, u"Segítség csak megjelenített képeknél"};
  CheckBox chk_képek_bemutatása{
      *this, u"chk_képek_bemutatása", {120, 4020, 5280, 420}, u"Képek bemutatása játék előtt"};
  CheckBox Chk_szótagolva{*this, u"Chk_szótagolva", {120, 4500, 5280, 420}, u"Szótagolva"};

  Frame Frame_pár{*this, u"Frame_pár", {120, 5040, 2580, 1320}, u"Párok"};
  OptionGroup párbeállítás{Frame_pár,
                           u"párbeállítás",
                           {{0, {120, 360, 2280, 420}, u"Kép - Kép"}, {1, {120, 780, 2280, 420}, u"Kép - Szó"}},
                           1};
  Frame Frame_nyelv{*this, u"Frame_nyelv", {2820, 5040, 2580, 1320}, u"Nyelv"};
  OptionGroup optnyelv{
      Frame_nyelv, u"optnyelv", {{2, {120, 360, 2280, 420}, u"Magyar"}, {4, {120, 780, 2280, 420}, u"Angol"}}, 2};

  Button cmd_ok{*this, u"cmd_ok", {120, 6480, 1680, 660}, u"OK"};
  Button cmd_mégsem{*this, u"cmd_mégsem", {1920, 6480, 1740, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3780, 6480, 1620, 660}, u"Súgó"};

  bool english() const { return optnyelv[4].value(); }
  bool with_words() const { return párbeállítás[1].value(); }

 protected:
  void apply() override;
  void after_read(bool from_file) override;
  /// Where either file exists, the factory's is opened, whatever the user has stored: that asymmetry is intended.
  std::optional<Text> file_to_read() const override;

 private:
  void bind();
  void count_words();
  int fitting_words() const;
  void show_help_options();
};

} // namespace cserko
