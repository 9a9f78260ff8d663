// Missing letter: a picture with its name, from which a letter was taken out; the child finds the gap and pulls the
// letter behind it to the right.
#pragma once

#include "core/exercise.h"
#include "exercises/shared/letter_row.h"
#include "exercises/shared/word_settings.h"
#include "feedback/result_panel.h"

#include <set>

namespace cserko {

/// Language and length of the words.
class dlg_betűhiány : public SettingsDialog, public WordLanguage, public WordLengths {
 public:
  explicit dlg_betűhiány(Session& session);

  Button OKButton{*this, u"OKButton", {120, 2760, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 2760, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 2760, 1720, 660}, u"&Súgó"};

 protected:
  void apply() override;
  void after_read(bool /*from_file*/) override { opt_nyelv.repair(0); }
};

class frm_betűhiány : public ExerciseWindow {
 public:
  explicit frm_betűhiány(Session& session);

  Label lbl_feladat{*this,
                    u"lbl_feladat",
                    {120, 60, 8775, 360},
                    u"A szóból hiányzik egy betű! Keresd meg a helyét és húzd jobbra az utána következő betűt!"};
  PictureBox kép{*this, u"kép", {120, 480, 5415, 5415}};
  ElementArray<Label> betű{*this, u"betű", {120, 5915, 495, 400}};
  Button cmd_kész{*this, u"cmd_kész", {120, 6360, 5415, 615}, u"Kész"};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {5640, 480, 1575, 1575}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {5640, 2160, 1575, 255}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new puzzle from the settings. Throws NothingFits where no word has a wanted length.
  void beáll();
  int aktuális_kép() const { return aktuális_kép_; }
  /// The whole word of the puzzle, in the language that it was dealt in.
  const Text& szó() const { return szó_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void feladat_törlés();
  int szóválasztás();
  void szó_kirakása(const Text& word);
  void betű_kivétele(int position);
  void betűk_igazítása();
  bool letter_changed(int letter, LetterRow::Way way);
  void kész();

  dlg_betűhiány& settings() const { return session().window<dlg_betűhiány>(); }

  LetterRow row_{betű};
  ResultPanel results_;
  int aktuális_kép_ = -1; ///< Stays during the next draw, so that no word comes twice running.
  Text szó_;
  Text hiányzó_;             ///< The letter that was taken out.
  std::set<int> kiegészült_; ///< The letters behind which the child has put it.
  double illesztett_ = 0;    ///< Size of the letters as the word was fitted, points.
};

} // namespace cserko
