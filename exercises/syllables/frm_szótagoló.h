// Syllabifier: a picture with its name as a row of letters; the child pulls letters apart where a syllable ends.
#pragma once

#include "core/exercise.h"
#include "core/settings.h"
#include "exercises/shared/letter_row.h"
#include "feedback/result_panel.h"

namespace cserko {

/// How many syllables the words have.
class dlg_szótagoló : public SettingsDialog {
 public:
  explicit dlg_szótagoló(Session& session);

  Frame Frame1{*this, u"Frame1", {120, 120, 5400, 1500}, u"Szótagok"};
  Label lbl_szótagszám{Frame1, u"lbl_szótagszám", {120, 360, 3000, 480}, u"Maximális szótagszám"};
  TextBox txt_szótagszám{Frame1, u"txt_szótagszám", {3240, 360, 720, 480}};
  UpDown udszótagszám{Frame1, u"udszótagszám", {3960, 360, 360, 480}, txt_szótagszám, {2, 7, 1}, 2};
  CheckBox chk_egyszótagúak_kizárva{
      Frame1, u"chk_egyszótagúak_kizárva", {120, 960, 5160, 420}, u"Egy szótagú szavak kizárása"};
  Button OKButton{*this, u"OKButton", {120, 1740, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 1740, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 1740, 1720, 660}, u"Súgó"};

  /// Whether a word of that many syllables is asked for.
  bool allows(int syllables) const;

 protected:
  void apply() override;
};

class frm_szótagoló : public ExerciseWindow {
 public:
  explicit frm_szótagoló(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 120, 10815, 495}, u"Szótagold a szót!"};
  PictureBox kép{*this, u"kép", {120, 720, 6735, 6735}};
  ElementArray<Label> betű{*this, u"betű", {120, 7475, 495, 495}, TextView(u"dzs")};
  Button cmd_kész{*this, u"cmd_kész", {120, 8280, 6735, 495}, u"Kész"};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {6960, 720, 1935, 1935}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {6960, 2640, 1935, 255}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beállítások{mnu_fájl, u"mnu_fájl_beállítások", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new puzzle from the settings. Throws NothingFits where no word has a wanted number of syllables.
  void beáll();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void feladat_törlés();
  int szóválasztás();
  void szó_kirakása(const Text& word);
  void betűk_igazítása();
  bool break_changed(int letter, LetterRow::Way way);
  void kész();

  dlg_szótagoló& settings() const { return session().window<dlg_szótagoló>(); }

  LetterRow row_{betű};
  ResultPanel results_;
  int aktuális_kép_ = -1;
};

} // namespace cserko
