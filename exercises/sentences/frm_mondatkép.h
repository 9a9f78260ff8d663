// Sentence to picture: a definition stands in the middle of a ring of six pictures, and the child chooses the picture
// that it describes.
#pragma once

#include "core/exercise.h"
#include "feedback/result_panel.h"

namespace cserko {

class frm_mondatkép : public ExerciseWindow {
 public:
  explicit frm_mondatkép(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 60, 5895, 375}, u"Kattints rá a meghatározáshoz tartozó képre!"};
  ElementArray<PictureBox> pic_feladványkép{*this, u"pic_feladványkép", {4920, 1440, 1095, 1095}};
  PictureBox lbl_meghatározás{*this, u"lbl_meghatározás", {1320, 1680, 3495, 615}};
  Frame Frame1{*this, u"Frame1", {120, 3490, 5895, 1815}};
  ElementArray<PictureBox> pic_eredmény{Frame1, u"pic_eredmény", {120, 240, 855, 855}};
  ElementArray<Label> lbl_eredmény{Frame1, u"lbl_eredmény", {120, 1080, 855, 600}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"Fájl"};
  MenuItem mnu_újjáték{mnu_fájl, u"mnu_újjáték", u"Új játék"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows a new puzzle. Throws NothingFits where fewer than six records have a definition.
  void feladat_kirakása();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;
  void MouseUp(const MouseEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  void new_puzzle();
  void feladat_törlés();
  int szóválasztás();
  bool shown_in_ring(int record) const;
  void place(int ring_place, int record);
  void pic_feladványkép_click(int index);

  ResultPanel results_;
  int aktuális_kép_ = 0;
};

} // namespace cserko
