// True or false: a picture with two statements, and the child chooses the true one.
#pragma once

#include "core/exercise.h"
#include "feedback/result_panel.h"

namespace cserko {

class frm_igazhamis : public ExerciseWindow {
 public:
  explicit frm_igazhamis(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 60, 11655, 420}, u"Válaszd ki a képhez tartozó igaz állítást!"};
  Frame Frame2{*this, u"Frame2", {120, 480, 11655, 3015}};
  PictureBox kép{Frame2, u"kép", {120, 240, 2655, 2655}};
  ElementArray<Label> lbl_állítás{Frame2, u"lbl_állítás", {2880, 360, 8655, 855}};
  Frame Frame1{*this, u"Frame1", {120, 3480, 11655, 3615}};
  ElementArray<PictureBox> pic_eredmény{Frame1, u"pic_eredmény", {120, 240, 1815, 1815}};
  ElementArray<Label> lbl_eredmény{Frame1, u"lbl_eredmény", {120, 2040, 1815, 1125}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"Fájl"};
  MenuItem mnu_file_új_játék{mnu_fájl, u"mnu_file_új_játék", u"Új játék"};
  MenuItem mnu_file_separate{mnu_fájl, u"mnu_file_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows a new puzzle. Throws NothingFits where no other record has both statements.
  void feladat_kirakása();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void new_puzzle();
  void feladat_törlés();
  int szóválasztás();
  void lbl_állítás_click(int index);

  ResultPanel results_;
  int aktuális_kép_ = 0;
};

} // namespace cserko
