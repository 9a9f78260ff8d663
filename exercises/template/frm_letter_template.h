// The model of a letter exercise in two languages: a picture with its word as a row of letters, one of which was
// replaced by another, and the child clicks that one. Like the other template the program does not offer it.
#pragma once

#include "core/exercise.h"
#include "exercises/shared/letter_row.h"
#include "exercises/shared/word_settings.h"
#include "feedback/result_panel.h"

namespace cserko {

/// Language and length of the words.
class dlg_letter_template : public SettingsDialog, public WordLanguage, public WordLengths {
 public:
  explicit dlg_letter_template(Session& session);

  Button OKButton{*this, u"OKButton", {120, 2760, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 2760, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 2760, 1720, 660}, u"Súgó"};

 protected:
  void apply() override;
  void after_read(bool /*from_file*/) override { opt_nyelv.repair(0); }
};

class frm_letter_template : public ExerciseWindow {
 public:
  explicit frm_letter_template(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 120, 8415, 420}, u"Egy betűt kicseréltünk. Kattints rá!"};
  PictureBox kép{*this, u"kép", {120, 660, 5415, 5415}};
  ElementArray<Label> betű{*this, u"betű", {120, 6195, 495, 495}};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {5640, 660, 2895, 1575}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {5640, 2235, 2895, 405}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows a new puzzle from the settings. Throws NothingFits where no word has a wanted length.
  void beáll();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  int szóválasztás();
  void szó_kirakása();
  void betű_click(int letter);
  const Text& word() const;

  dlg_letter_template& settings() const { return session().window<dlg_letter_template>(); }

  LetterRow row_{betű};
  ResultPanel results_;
  int aktuális_kép_ = -1;
  int kicserélt_ = 0; ///< The letter that was replaced.
};

} // namespace cserko
