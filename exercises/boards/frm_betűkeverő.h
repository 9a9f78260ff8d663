// Letter mix-up: a picture with several spellings of its name, all but one with two letters swapped; the child clicks
// the right one.
#pragma once

#include "core/exercise.h"
#include "exercises/shared/word_settings.h"
#include "feedback/result_panel.h"

namespace cserko {

/// Language, length and number of the spellings.
class frm_betűkeverő_beáll : public SettingsDialog, public WordLanguage, public WordLengths {
 public:
  explicit frm_betűkeverő_beáll(Session& session);

  Label lbl_szavakszáma{*this, u"lbl_szavakszáma", {240, 2760, 3000, 480}, u"Választási lehetőségek száma"};
  TextBox txt_szavakszáma{*this, u"txt_szavakszáma", {3360, 2760, 720, 480}};
  UpDown ud_szavakszáma{*this, u"ud_szavakszáma", {4080, 2760, 360, 480}, txt_szavakszáma, {3, 6, 1}, 4};
  CheckBox Chk_szótagolva{*this, u"Chk_szótagolva", {240, 3360, 5280, 420}, u"Szavak megjelenítése szótagolva"};
  Button OKButton{*this, u"OKButton", {120, 3900, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 3900, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 3900, 1720, 660}, u"Súgó"};

 protected:
  void apply() override;
  void after_read(bool from_file) override;

 private:
  void show_options();
};

class frm_betűkeverő : public ExerciseWindow {
 public:
  explicit frm_betűkeverő(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 60, 8775, 360}, u"Kattints rá a kép helyesen leírt nevére!"};
  PictureBox kép{*this, u"kép", {120, 480, 4200, 4200}};
  ElementArray<Label> lbl_szó{*this, u"lbl_szó", {4440, 480, 4455, 4200}};
  ElementArray<PictureBox> pic_eredménykép{*this, u"pic_eredménykép", {120, 4800, 1360, 1360}};
  Timer Timer1{*this, u"Timer1", 1000, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_újjáték{mnu_fájl, u"mnu_fájl_újjáték", u"&Új játék"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new round from the settings. Throws NothingFits where no word of a wanted length has enough spellings.
  void beáll();
  /// Makes as many labels as the settings ask for.
  void ablakbeállítás();
  int szó_index() const { return szó_index_; }

  /// The word with hyphens where a syllable would end by rule: between two vowels, and before the last of the
  /// consonants that lead to a vowel.
  static Text szó_szótagolás(TextView word);

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  int szó_választás();
  void szavak_kiírása();
  Text wrong_form(const Text& word, int label);
  Text keverés_magyar(const Text& word);
  Text keverés_angol(const Text& word);
  Text swapped(std::vector<Text> letters);
  void fit_spellings();
  bool is_right(const Text& spelling) const;
  void lbl_szó_click(int index);
  void találat_kész();

  frm_betűkeverő_beáll& settings() const { return session().window<frm_betűkeverő_beáll>(); }

  ResultPanel results_;
  int szó_index_ = -1;
  bool english_ = false; ///< The language in which the round was dealt.
};

} // namespace cserko
