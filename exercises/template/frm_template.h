// The smallest complete exercise, the model for new ones: a picture with two names, and the child chooses the right
// one. The program does not offer it; "How to add an exercise" in docs/architecture.md says what to do with a copy.
#pragma once

#include "core/exercise.h"
#include "core/settings.h"
#include "feedback/result_panel.h"

namespace cserko {

/// The settings, one control for each line of the file.
class dlg_template : public SettingsDialog {
 public:
  explicit dlg_template(Session& session);

  CheckBox chk_angol{*this, u"chk_angol", {120, 120, 5400, 420}, u"Angol nevek"};
  Button OKButton{*this, u"OKButton", {120, 660, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 660, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 660, 1720, 660}, u"Súgó"};

 protected:
  void apply() override;
};

class frm_template : public ExerciseWindow {
 public:
  explicit frm_template(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 120, 6240, 420}, u"Mi látható a képen?"};
  PictureBox kép{*this, u"kép", {120, 660, 3000, 3000}};
  ElementArray<Label> lbl_név{*this, u"lbl_név", {3240, 660, 3120, 720}};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {120, 3780, 2000, 2000}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {120, 5880, 2000, 360}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_új_játék{mnu_fájl, u"mnu_fájl_új_játék", u"&Új játék"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows a new puzzle from the settings. Throws NothingFits where there are no two records with different names.
  void beáll();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  int szóválasztás();
  const Text& név(int record) const;
  void lbl_név_click(int index);

  dlg_template& settings() const { return session().window<dlg_template>(); }

  ResultPanel results_;
  int aktuális_kép_ = -1; ///< The record in play, -1 while there is none.
};

} // namespace cserko
