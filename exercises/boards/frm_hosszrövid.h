// Short-long: a word with a gap, in which a column of two letters that are easily confused slides up and down; the
// child slides the right one into the line.
#pragma once

#include "core/exercise.h"
#include "exercises/shared/letter_row.h"
#include "exercises/shared/word_settings.h"
#include "feedback/result_panel.h"

#include <array>
#include <set>

namespace cserko {

/// The pairs of letters that are easily confused, in the order of the dialog: short and long vowels, other accents,
/// consonants.
inline constexpr std::array<TextView, 33> short_long_pairs{
    u"i-í", u"o-ó", u"ö-ő",  u"u-ú",  u"ü-ű",  u"a-á",  u"e-é",  u"o-ö",  u"ó-ő",   u"u-ü",   u"ú-ű",
    u"b-p", u"b-d", u"c-cs", u"f-v",  u"g-gy", u"h-d",  u"k-g",  u"j-ly", u"l-ly",  u"m-n",   u"ö-ü",
    u"ő-ű", u"r-v", u"r-h",  u"sz-s", u"sz-z", u"zs-s", u"zs-z", u"t-d",  u"ty-gy", u"ty-ny", u"gy-ny"};

/// Length and look of the words, and the pairs of letters.
class dlg_hosszrövid : public SettingsDialog, public WordLengths {
 public:
  explicit dlg_hosszrövid(Session& session);

  CheckBox Chk_szótagolva{*this, u"Chk_szótagolva", {120, 1740, 5400, 420}, u"Szavak megjelenítése szótagolva"};
  Button cmd_rövid_hosszú{
      *this, u"cmd_rövid_hosszú", {120, 2280, 5400, 660}, u"Rövid-hosszú magánhangzópárok kijelölése"};
  Button cmd_hangváltoó_ékezet{
      *this, u"cmd_hangváltoó_ékezet", {120, 3030, 5400, 660}, u"Hangváltó ékezetes magánhangzópárok kijelölése"};
  Button cmd_mássalhangzó{*this, u"cmd_mássalhangzó", {120, 3780, 5400, 660}, u"Mássalhangzópárok kijelölése"};
  Button cmd_kijelöléstörlés{*this, u"cmd_kijelöléstörlés", {120, 4530, 5400, 660}, u"Minden kijelölés törlése"};
  ListBox lst_betűpár{*this, u"lst_betűpár", {5640, 120, 1680, 5070}};
  Button OKButton{*this, u"OKButton", {120, 5310, 2320, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {2560, 5310, 2320, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {5000, 5310, 2320, 660}, u"Súgó"};

 protected:
  void apply() override;
  void after_read(bool from_file) override;

 private:
  void select(int first, int last, bool selected);
};

class frm_hosszrövid : public ExerciseWindow {
 public:
  explicit frm_hosszrövid(Session& session);

  Label lbl_feladat{
      *this, u"lbl_feladat", {120, 60, 8775, 360}, u"Egészítsd ki a szót! Csúsztasd helyére a megfelelő betűt!"};
  PictureBox kép{*this, u"kép", {1540, 480, 2580, 2580}};
  Label lbl_felső{*this, u"lbl_felső", {2580, 3720, 495, 660}};
  ElementArray<Label> betű{*this, u"betű", {2580, 4380, 495, 660}};
  Label lbl_alsó{*this, u"lbl_alsó", {2580, 5040, 495, 660}};
  Button cmd_kész{*this, u"cmd_kész", {120, 6360, 5415, 615}, u"Kész"};
  ElementArray<PictureBox> pic_eredmény{*this, u"pic_eredmény", {5640, 480, 1575, 1575}};
  ElementArray<Label> lbl_eredmény{*this, u"lbl_eredmény", {5640, 2160, 1575, 255}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new round from the settings. Throws NothingFits where no word of a wanted length has a selected letter.
  void beáll();
  int szó_index() const { return szó_index_; }
  int rés_index() const { return rés_index_; }
  /// The letter of the pair that stands in the word.
  const Text& kivett_betű() const { return kivett_betű_; }
  /// Top of the line of the word, twips. The gap lies there at the beginning of a round.
  double line_top() const { return line_top_; }

  void Load() override;
  void KeyDown(KeyEvent& event) override;
  void MouseDown(const MouseEvent& event) override;
  void MouseMove(const MouseEvent& event) override;
  void MouseUp(const MouseEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  /// The words that the settings let come.
  struct Wanted {
    LengthRange lengths;
    WordForm form = WordForm::Név;
    bool operator==(const Wanted&) const = default;
  };

  int szó_választás();
  bool fits(int index) const;
  void szó_kirakása();
  void betű_elrejtése();
  void elrendezés();
  void slider_pressed(const MouseEvent& event);
  void slider_moved(const MouseEvent& event);
  void slider_released();
  void letter_clicked(const Label& letter);
  bool beside_column(const MouseEvent& event) const;
  MouseEvent on_slider(const MouseEvent& event) const;
  double scale() const;
  void csúsztatás(double top);
  void kész();
  void találat_rögzítés();
  WordForm form() const;

  dlg_hosszrövid& settings() const { return session().window<dlg_hosszrövid>(); }

  LetterRow row_{betű};
  ResultPanel results_;
  int szó_index_ = -1;
  int rés_index_ = 0;
  std::array<Text, 2> betűpár_;
  Text kivett_betű_;
  Wanted wanted_;
  std::set<Text> wordless_; ///< Letters that no such word holds.
  double egér_y_ = 0;       ///< Where the slider was pressed, in its own twips.
  Gesture gesture_;
  double line_top_ = 0;
};

} // namespace cserko
