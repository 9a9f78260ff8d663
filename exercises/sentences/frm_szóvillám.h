// Word flash: after a countdown a word flashes in the middle of a ring of six pictures, and the child chooses the
// picture that it names.
#pragma once

#include "core/exercise.h"
#include "exercises/shared/word_settings.h"
#include "feedback/result_panel.h"

namespace cserko {

/// Language and length of the words, and how long they can be seen.
class frm_szóvillám_beáll : public SettingsDialog, public WordLanguage {
 public:
  explicit frm_szóvillám_beáll(Session& session);

  Frame Frame1{*this, u"Frame1", {120, 1140, 5400, 1500}, u"A szavak hossza"};
  Label lbl_betszámmin{Frame1, u"lbl_betszámmin", {120, 360, 3600, 480}, u"A szó betűinek száma legalább:"};
  TextBox txt_betszámmin{Frame1, u"txt_betszámmin", {3840, 360, 720, 480}};
  UpDown ud_betszámmin{Frame1, u"ud_betszámmin", {4560, 360, 360, 480}, txt_betszámmin, {3, 10, 1}, 3};
  Label lbl_betszámmax{Frame1, u"lbl_betszámmax", {120, 900, 3600, 480}, u"A szó betűinek száma legfeljebb:"};
  TextBox txt_betszámmax{Frame1, u"txt_betszámmax", {3840, 900, 720, 480}};
  UpDown ud_betszámmax{Frame1, u"ud_betszámmax", {4560, 900, 360, 480}, txt_betszámmax, {3, 17, 1}, 10};
  Frame Frame2{*this, u"Frame2", {120, 2760, 5400, 3900}, u"A szó felvillanásának ideje"};
  Label lbl_mp{Frame2, u"lbl_mp", {120, 360, 3600, 480}, u"Másodperc:"};
  TextBox txt_mp{Frame2, u"txt_mp", {3840, 360, 720, 480}};
  UpDown ud_mp{Frame2, u"ud_mp", {4560, 360, 360, 480}, txt_mp, {0, 30, 1}, 1};
  Label lbl_tizedmp{Frame2, u"lbl_tizedmp", {120, 900, 3600, 480}, u"Tizedmásodperc:"};
  TextBox txt_tizedmp{Frame2, u"txt_tizedmp", {3840, 900, 720, 480}};
  UpDown ud_tizedmp{Frame2, u"ud_tizedmp", {4560, 900, 360, 480}, txt_tizedmp, {0, 9, 1}, 0};
  Label lbl_századmp{Frame2, u"lbl_századmp", {120, 1440, 3600, 480}, u"Századmásodperc:"};
  TextBox txt_századmp{Frame2, u"txt_századmp", {3840, 1440, 720, 480}};
  UpDown ud_századmp{Frame2, u"ud_századmp", {4560, 1440, 360, 480}, txt_századmp, {0, 9, 1}, 0};
  Label lbl_time{Frame2, u"lbl_time", {120, 1980, 3600, 600}, u"A szó felvillanásának ideje másodpercben:"};
  Label lbl_idő{Frame2, u"lbl_idő", {3840, 1980, 1440, 600}, u"00.00"};
  Label lbl_note{Frame2,
                 u"lbl_note",
                 {120, 2640, 5160, 1140},
                 u"A számítógép teljesítményétől függően előfordulhat, hogy a különösen rövid idejű felvillanások "
                 u"nem láthatóak. Ebben az esetben, kérem, növelje a villanás időtartamát!"};
  Button OKButton{*this, u"OKButton", {120, 6780, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 6780, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 6780, 1720, 660}, u"&Súgó"};

  /// How long a word is shown, ms: 10 to 30990, and 0 while nothing else is set.
  int flash_time() const { return ud_mp.value() * 1000 + ud_tizedmp.value() * 100 + ud_századmp.value() * 10; }

 protected:
  void apply() override;
  void after_read(bool /*from_file*/) override { opt_nyelv.repair(0); }

 private:
  void show_time();

  CoupledRange lengths_{ud_betszámmin, ud_betszámmax, 10};
};

class frm_szóvillám : public ExerciseWindow {
 public:
  explicit frm_szóvillám(Session& session);

  Label lbl_feladat{
      *this,
      u"lbl_feladat",
      {120, 60, 5895, 375},
      u"A képek között felvillan egy szó. Kattints rá arra a képre, mely a felvillanó szó képét ábrázolja."};
  ElementArray<PictureBox> pic_feladványkép{*this, u"pic_feladványkép", {4920, 1440, 1095, 1095}};
  PictureBox lbl_feladvány{*this, u"lbl_feladvány", {1320, 1680, 3495, 615}};
  Button cmd_újra{*this, u"cmd_újra", {2880, 3120, 375, 375}, u"?"};
  Frame Frame1{*this, u"Frame1", {120, 3480, 5895, 1200}};
  ElementArray<PictureBox> pic_eredmény{Frame1, u"pic_eredmény", {120, 240, 855, 855}};
  Timer Timer_visszaszámláló{*this, u"Timer_visszaszámláló", 500};
  Timer Timer_villám{*this, u"Timer_villám", 1000, false};
  Timer Timer_kérdőjelmegjelenítő{*this, u"Timer_kérdőjelmegjelenítő", 2000, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_újjáték{mnu_fájl, u"mnu_fájl_újjáték", u"&Új játék"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Empties the strip.
  void nagytakarítás();
  /// Shows a new puzzle. Throws NothingFits where fewer than six words have a wanted length.
  void beáll();
  /// Where in the ring the picture of the word stands.
  int helyes_hely() const { return helyes_hely_; }
  int visszaszámlálás() const { return visszaszámlálás_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void new_puzzle();
  void feladat_törlés();
  int szóválasztás();
  std::vector<Text> words_in_ring() const;
  const Text& word(int record) const;
  int record_at(int place) const;
  void count_down();
  void flash();
  void end_flash();
  void pic_feladványkép_click(int index);
  void eredmény_felvétele(int index);

  frm_szóvillám_beáll& settings() const { return session().window<frm_szóvillám_beáll>(); }

  ResultPanel results_;
  std::int16_t visszaszámlálás_ = 0;
  std::int32_t helyes_hely_ = 0;
};

} // namespace cserko
