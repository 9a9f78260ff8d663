// Surplus letter: a picture with its name, in which one letter is too many; the child clicks that one, and the row
// closes up.
#pragma once

#include "core/exercise.h"
#include "core/option_group.h"
#include "core/settings.h"
#include "exercises/shared/letter_row.h"
#include "feedback/result_panel.h"

namespace cserko {

/// How long the words are, and where the surplus letter comes from.
class frm_betűfelesleg_beáll : public SettingsDialog {
 public:
  explicit frm_betűfelesleg_beáll(Session& session);

  Label labszópárok{*this, u"labszópárok", {120, 120, 3720, 480}, u"Szó betűinek maximális száma:"};
  TextBox txtbetszám{*this, u"txtbetszám", {3960, 120, 720, 480}};
  UpDown udbetszám{*this, u"udbetszám", {4680, 120, 360, 480}, txtbetszám, {4, 13, 1}, 12};
  Frame Frame1{*this, u"Frame1", {120, 720, 5400, 1320}, u"A felesleges betű kiválasztása"};
  OptionGroup opt_betűforrás{
      Frame1,
      u"opt_betűforrás",
      {{0, {120, 360, 5160, 420}, u"A teljes magyar betűkészletből"}, {1, {120, 780, 5160, 420}, u"A szó betűi közül"}},
      0};
  Button OKButton{*this, u"OKButton", {120, 2160, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 2160, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 2160, 1720, 660}, u"&Súgó"};

 protected:
  void apply() override;
  void after_read(bool /*from_file*/) override { opt_betűforrás.repair(0); }
};

class frm_betűfelesleg : public ExerciseWindow {
 public:
  explicit frm_betűfelesleg(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 540, 5655, 300}, task};
  PictureBox pic_kép{*this, u"pic_kép", {120, 840, 5655, 5655}};
  ElementArray<Label> lbl_betű{*this, u"lbl_betű", {120, 6545, 5655, 900}};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {5880, 840, 1575, 1575}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {5880, 2400, 1575, 255}};
  Timer Timer1{*this, u"Timer1", 1000, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// The tag of the letter that is too many; that of a true one is empty.
  static constexpr TextView culprit = u"Én vagyok a bűnös!";

  /// Shows a new puzzle from the settings. Throws NothingFits where no word is short enough.
  void beáll();
  int aktuális_kép() const { return aktuális_kép_; }
  /// 0 while the child may click, 1 once the row has closed up, 2 when the word is over.
  int lépés() const { return lépés_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  static constexpr TextView task = u"Keresd meg a szóban a felesleges betűt és kattints rá!";

  void ablak_beállítás();
  void feladat_törlése();
  int szóválasztás() const;
  void betű_beszúrása(int record);
  void betűk_igazítása();
  void letter_pressed(int letter);
  void letter_released(int letter);
  int surplus_letter() const;
  void next_step();
  void close_up();
  void eredmény_felvétele();

  frm_betűfelesleg_beáll& settings() const { return session().window<frm_betűfelesleg_beáll>(); }

  LetterRow row_{lbl_betű};
  ResultPanel results_;
  double letter_size_ = 0; ///< Of the letters of all words, points.
  int aktuális_kép_ = -1;
  std::int16_t lépés_ = 0;
};

} // namespace cserko
