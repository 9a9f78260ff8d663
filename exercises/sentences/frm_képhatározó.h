// Picture definition: one picture and several definitions; the child chooses the one that belongs to the picture.
#pragma once

#include "core/exercise.h"
#include "core/settings.h"
#include "feedback/result_panel.h"

namespace cserko {

/// How many definitions there are, and whether the picture shows its name.
class frm_képhatározó_beáll : public SettingsDialog {
 public:
  explicit frm_képhatározó_beáll(Session& session);

  CheckBox Check_képnévis{*this, u"Check_képnévis", {120, 120, 5400, 480}, u"Mutassa a kép nevét is"};
  Label Label1{*this, u"Label1", {120, 720, 3600, 480}, u"A meghatározások száma"};
  Label Label_meghatározásokszáma{*this, u"Label_meghatározásokszáma", {3840, 720, 720, 480}};
  UpDown Ud_meghatározásokszáma{
      *this, u"Ud_meghatározásokszáma", {4560, 660, 540, 600}, Label_meghatározásokszáma, {2, 6, 1}, 2};
  Button OKButton{*this, u"OKButton", {120, 1380, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 1380, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 1380, 1720, 660}, u"Súgó"};

 protected:
  void apply() override;
};

class frm_képhatározó : public ExerciseWindow {
 public:
  explicit frm_képhatározó(Session& session);

  Label lbl_feladat{
      *this, u"lbl_feladat", {30, 0, 8055, 495}, u"Mit látsz a képen? Kattints rá a képhez tartozó meghatározásra!"};
  PictureBox kép{*this, u"kép", {30, 480, 1790, 1790}};
  ElementArray<PictureBox> lbl_meghatározás{*this, u"lbl_meghatározás", {1920, 480, 6135, 865}};
  Frame Frame1{*this, u"Frame1", {30, 2370, 8055, 2040}};
  ElementArray<PictureBox> pic_eredmény{Frame1, u"pic_eredmény", {120, 240, 1215, 1215}};
  ElementArray<Label> lbl_eredmény{Frame1, u"lbl_eredmény", {120, 1440, 1215, 480}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"Fájl"};
  MenuItem mnu_fájl_újjáték{mnu_fájl, u"mnu_fájl_újjáték", u"Új játék"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Empties the strip and fits the number of definitions to the settings.
  void nagytakarítás();
  /// Shows a new puzzle. Throws NothingFits where too few records have a definition of their own.
  void beáll();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;

 protected:
  void no_puzzle() override { feladat_törlés(); }

 private:
  void new_puzzle();
  void feladat_törlés();
  int szóválasztás();
  bool shown(const Text& definition) const;
  void lbl_meghatározás_click(int index);
  void eredmény_felvétele(int index);

  frm_képhatározó_beáll& settings() const { return session().window<frm_képhatározó_beáll>(); }

  ResultPanel results_;
  int aktuális_kép_ = 0;
};

} // namespace cserko
