// The settings of Letter sorting, among them the pairs of letters that are practised.
#pragma once

#include "core/option_group.h"
#include "core/settings.h"

namespace cserko {

class frm_betűválogatás_beállítás : public SettingsDialog {
 public:
  explicit frm_betűválogatás_beállítás(Session& session);

  static constexpr int pair_count = 31; ///< So many lines of the file of pairs are read.

  Label lbl_betűpárok{*this, u"lbl_betűpárok", {120, 120, 2400, 360}, u"Betűpárok:"};
  ListBox lst_betűpárok{*this, u"lst_betűpárok", {120, 480, 2400, 5520}};
  Button cmd_összes{*this, u"cmd_összes", {2640, 120, 4800, 600}, u"Az összes betűpár kijelölése"};
  Button cmd_egy_sem{*this, u"cmd_egy_sem", {2640, 780, 4800, 600}, u"Minden kijelölés megszüntetése"};
  Button cmd_megfordít{*this, u"cmd_megfordít", {2640, 1440, 4800, 600}, u"A kijelölés megfordítása"};
  Frame frame_nyelv{*this, u"frame_nyelv", {2640, 2160, 4800, 900}, u"Nyelv"};
  OptionGroup opt_nyelv{
      frame_nyelv, u"opt_nyelv", {{0, {120, 360, 2220, 420}, u"Magyar"}, {1, {2460, 360, 2220, 420}, u"Angol"}}, 0};
  CheckBox Chk_szótagolva{*this, u"Chk_szótagolva", {2640, 3180, 4800, 420}, u"Szótagolva"};
  Label Label1{*this, u"Label1", {2640, 3660, 3240, 420}, u"Szavak maximális hossza:"};
  Label labszóhossz{*this, u"labszóhossz", {5940, 3660, 960, 420}};
  UpDown udszóhossz{*this, u"udszóhossz", {6900, 3600, 540, 540}, labszóhossz, {5, 14, 1}, 14};
  CheckBox chk_animáció{*this, u"chk_animáció", {2640, 4140, 4800, 420}, u"Animáció"};
  Label Label3{*this, u"Label3", {2640, 4620, 2940, 420}, u"Az animáció finomsága:"};
  Label label_finomság{*this, u"label_finomság", {5640, 4620, 1800, 420}};
  ScrollBar scrollbar_finomság{*this, u"scrollbar_finomság", {2640, 5100, 4800, 360}, 1, 5};
  CheckBox chk_iránygyakoroltatása{
      *this, u"chk_iránygyakoroltatása", {2640, 5580, 4800, 420}, u"Irányok gyakoroltatása"};
  Button Ok{*this, u"Ok", {120, 6180, 2360, 660}, u"OK"};
  Button cancel{*this, u"cancel", {2600, 6180, 2360, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {5080, 6180, 2360, 660}, u"Súgó"};

  bool english() const { return opt_nyelv.chosen() == 1; }
  /// Selects all pairs of the list, or none.
  void select_all(bool selected);

  void Load() override;

 protected:
  /// Tells the exercise by the `Tag` of `Ok` that its settings were accepted.
  void accept() override;
  /// What was changed is taken back by the exercise, as far as it is.
  void close_box() override { platform().hide(*this); }
  void after_read(bool from_file) override;

 private:
  struct Pair {
    Text left;
    Text right;
  };

  void bind();
  void read_pairs();
  void opt_nyelv_click();
  void invert_selection();
  void show_animation();

  std::vector<Pair> pairs_;
};

} // namespace cserko
