// Syllable search: the syllables of a word lie scattered on a tray under its picture, and the child puts them into
// their order from left to right. The picture may be kept back; any word of the records that the syllables spell is
// right then.
#pragma once

#include "core/exercise.h"
#include "core/settings.h"
#include "exercises/shared/scattered_pieces.h"
#include "feedback/result_panel.h"

namespace cserko {

/// How many syllables the words have, and whether their picture is shown.
class frm_szótagkereső_beáll : public SettingsDialog {
 public:
  explicit frm_szótagkereső_beáll(Session& session);

  Label lbl_minszótagszám{*this, u"lbl_minszótagszám", {120, 120, 3360, 480}, u"Minimális szótagszám"};
  TextBox txt_minszótagszám{*this, u"txt_minszótagszám", {3600, 120, 720, 480}};
  UpDown ud_minszótagszám{*this, u"ud_minszótagszám", {4320, 120, 360, 480}, txt_minszótagszám, {3, 7, 1}, 3};
  Label lbl_maxszótagszám{*this, u"lbl_maxszótagszám", {120, 660, 3360, 480}, u"Maximális szótagszám"};
  TextBox txt_maxszótagszám{*this, u"txt_maxszótagszám", {3600, 660, 720, 480}};
  UpDown ud_maxszótagszám{*this, u"ud_maxszótagszám", {4320, 660, 360, 480}, txt_maxszótagszám, {3, 7, 1}, 7};
  CheckBox chk_képnélkül{*this, u"chk_képnélkül", {120, 1260, 5400, 480}, u"Játék a kép felfedése nélkül"};
  Button OKButton{*this, u"OKButton", {120, 1860, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 1860, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 1860, 1720, 660}, u"Súgó (F1)"};

 protected:
  void apply() override;

 private:
  CoupledRange szótagszám_{ud_minszótagszám, ud_maxszótagszám};
};

class frm_szótagkereső : public ExerciseWindow {
 public:
  explicit frm_szótagkereső(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {240, 0, 5175, 375}, u"Rakd ki a szót az összekevert szótagokból!"};
  PictureBox kép{*this, u"kép", {240, 360, 5175, 5175}};
  PictureBox szövegtároló{*this, u"szövegtároló", {240, 5520, 5175, 1575}};
  ElementArray<Label> lbl_szótag{szövegtároló, u"lbl_szótag", {0, 0, 2587.5, 525}};
  Button cmd_kész{*this, u"cmd_kész", {1320, 7200, 2535, 615}, u"Kész"};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {5520, 360, 1815, 1815}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {5520, 2160, 1815, 375}};
  Timer Timer1{*this, u"Timer1", 2000, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separator{mnu_fájl, u"mnu_fájl_separator", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new puzzle from the settings. Throws NothingFits where no word has a wanted number of syllables.
  void beáll();
  /// Takes a word up whose pause after the answer is not over yet; does nothing where there is none.
  void megoldott_felvétele();
  int aktuális_kép() const { return aktuális_kép_; }

  void Load() override;
  void KeyDown(KeyEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  void feladat_törlés();
  int szóválasztás();
  void szótagok_kirakása(TextView szótagolt);
  void szövegtároló_press(const MouseEvent& event);
  void szótagok_sorbarakása();
  bool helyes_e();
  void kész();
  void eredmény_felvétele();

  frm_szótagkereső_beáll& settings() const { return session().window<frm_szótagkereső_beáll>(); }

  ScatteredPieces pieces_{session(),
                          szövegtároló,
                          lbl_szótag,
                          {.advice = u"Nem férnek el a szótagok a keretben.\r\nKérlek, engedj meg a beállításokban "
                                     u"kevesebb szótagot!"}};
  ResultPanel results_;
  int aktuális_kép_ =
      -1; ///< Stays during the next draw, so that no word comes twice running. The answer may change it.
};

} // namespace cserko
