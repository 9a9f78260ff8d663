// Where is it: a picture between four words, one on each side, of which one is its name; the child presses the button
// that says on which side the name stands.
#pragma once

#include "core/exercise.h"
#include "exercises/shared/word_settings.h"
#include "feedback/result_panel.h"

namespace cserko {

/// Length of the words, and which sides are asked for.
class frm_holvan_beáll : public SettingsDialog, public WordLengths {
 public:
  explicit frm_holvan_beáll(Session& session);

  Frame Frame_irányok{*this, u"Frame_irányok", {120, 1740, 5400, 1860}, u"Irányok"};
  OptionGroup option_irányok{Frame_irányok,
                             u"option_irányok",
                             {{0, {120, 360, 5160, 420}, u"Jobbra - Balra - Fent - Lent"},
                              {1, {120, 840, 5160, 420}, u"Jobbra - Balra"},
                              {2, {120, 1320, 5160, 420}, u"Fent - Lent"}},
                             0};
  Button OKButton{*this, u"OKButton", {120, 3720, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 3720, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 3720, 1720, 660}, u"&Súgó"};

  /// Whether that side is asked for: 0 left, 1 above, 2 right, 3 below.
  bool allows(int direction) const;

 protected:
  void apply() override;
  void after_read(bool /*from_file*/) override { option_irányok.repair(0); }
};

class frm_holvan : public ExerciseWindow {
 public:
  explicit frm_holvan(Session& session);

  Label Label1{*this, u"Label1", {0, 0, 6495, 375}, u"Hol van a kép neve? Nyomd meg a megfelelő gombot!"};
  PictureBox Picture1{*this, u"Picture1", {120, 480, 6495, 735}};
  ElementArray<Button> cmd_irány{Picture1, u"cmd_irány", {240, 120, 1335, 495}};
  PictureBox kép{*this, u"kép", {2160, 2520, 2295, 2295}};
  /// Left of the picture, above it, right of it, below it.
  ElementArray<Label> lbl_szó{*this, u"lbl_szó", {120, 3360, 2055, 735}};
  ElementArray<PictureBox> pic_eredménykép{*this, u"pic_eredménykép", {120, 6360, 1032.5, 1032.5}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_újjáték{mnu_fájl, u"mnu_újjáték", u"& Új játék", key::f1 + 1};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások", key::f1 + 2};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Spreads the results over the width of the box with the buttons.
  void ablak_állítás();
  /// Starts a new puzzle from the settings. Throws NothingFits where fewer words than it takes have a wanted length.
  void beáll();
  /// Index of the record whose picture is shown.
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void szavak_kirakása();
  int szóválasztás();
  void gombok_kiosztása();
  void gombok_ürítése();
  void betűméretek_igazítása();
  void cmd_irány_click(int button);
  void lbl_szó_click(int direction);
  void eredmény_felvétele();

  frm_holvan_beáll& settings() const { return session().window<frm_holvan_beáll>(); }

  ResultPanel results_;
  int aktuális_kép_ = 0;
};

} // namespace cserko
