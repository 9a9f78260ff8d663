// Letter viewer: for a typed letter the letter itself, large, and a word with a picture that contains it. With the
// reading check on the picture is to be found among eight.
#pragma once

#include "core/exercise.h"
#include "core/option_group.h"
#include "core/settings.h"
#include "exercises/shared/letter_row.h"

namespace cserko {

/// Which words are shown, and how.
class frm_betűnézegető_beáll : public SettingsDialog {
 public:
  explicit frm_betűnézegető_beáll(Session& session);

  static constexpr int no_limit = 13;

  Label labszópárok{*this, u"labszópárok", {120, 120, 3600, 480}, u"Szó betűinek maximális száma:"};
  TextBox txtbetszám{*this, u"txtbetszám", {3840, 120, 1320, 480}};
  UpDown udbetszám{*this, u"udbetszám", {5160, 120, 360, 480}, txtbetszám, {3, no_limit, 1}, 12};
  CheckBox chk_betűk_szétválasztása{
      *this, u"chk_betűk_szétválasztása", {120, 720, 5400, 420}, u"Betűk szétválasztása", 0};
  CheckBox chk_képválasztás{
      *this, u"chk_képválasztás", {120, 1200, 5400, 420}, u"Olvasás ellenőrzése képválasztással", 0};
  CheckBox Chk_szótagolva{*this, u"Chk_szótagolva", {120, 1680, 5400, 420}, u"Szavak megjelenítése szótagolva", 1};
  Frame Frame1{*this, u"Frame1", {120, 2220, 2640, 1320}, u"Betűhelyzet"};
  OptionGroup opt_betűhelyzet{
      Frame1,
      u"opt_betűhelyzet",
      {{0, {120, 360, 2400, 420}, u"A szó első betűje"}, {1, {120, 780, 2400, 420}, u"Bárhol a szóban"}},
      1};
  Frame frame_nyelv{*this, u"frame_nyelv", {2880, 2220, 2640, 1320}, u"Nyelv"};
  OptionGroup opt_nyelv{
      frame_nyelv, u"opt_nyelv", {{0, {120, 360, 2400, 420}, u"Magyar"}, {1, {120, 780, 2400, 420}, u"Angol"}}, 0};
  Button cmd_ok{*this, u"cmd_ok", {120, 3660, 1720, 660}, u"Ok"};
  Button cmd_mégsem{*this, u"cmd_mégsem", {1960, 3660, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 3660, 1720, 660}, u"Súgó   (F1)"};

  bool english() const { return opt_nyelv.chosen() == 1; }
  /// Letters of the longest word.
  int longest() const { return udbetszám.value() == no_limit ? 100 : udbetszám.value(); }

 protected:
  void apply() override;
  void after_read(bool from_file) override;
};

class frm_betűnézegető : public ExerciseWindow {
 public:
  explicit frm_betűnézegető(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 0, 7095, 375}, task};
  PictureBox kép{*this, u"kép", {1920, 360, picture_size, picture_size}};
  ElementArray<PictureBox> választáskép{*this, u"választáskép", {120, 360, 1695, 1695}};
  ElementArray<Label> Label_betű{*this, u"Label_betű", {2880, 3960, 1470, 600}};
  Label Label_kisbetű{*this, u"Label_kisbetű", {120, 4680, 3375, 3375}};
  Label Label_nagybetű{*this, u"Label_nagybetű", {3720, 4680, 3375, 3375}};
  /// One for each letter of the alphabet, for those who have no keyboard; hidden until they are asked for.
  ElementArray<Label> letter_tile{*this, u"letter_tile", {120, 4680, 660, 660}};
  Timer timer_megold{*this, u"timer_megold", 1000, false};
  Timer Timer1{*this, u"Timer1", 3000, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mneu_fájl_beállítások{mnu_fájl, u"mneu_fájl_beállítások", u"&Beállítások"};
  MenuItem mnu_letter_tiles{mnu_fájl, u"mnu_letter_tiles", u"Betű&táblácskák"};
  MenuItem mnu_fájl_separator{mnu_fájl, u"mnu_fájl_separator", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows a random letter. Throws NothingFits where the reading check finds too few pictures.
  void véletlenkép();
  /// Lays the letter tiles out anew where they are shown: their letters follow the language.
  void lay_out_tiles();

  void Load() override;
  void KeyDown(KeyEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  static constexpr double picture_size = 3615;
  static constexpr TextView task = u"Keresd meg azt a képet, melynek nevét a képek alatt látod!";

  void bind();
  void arrange();
  void betű_mutatása(char16_t character);
  void show_solution();
  void show_letter(const Text& letter);
  void show_word(int record);
  int szó_keresése(const Text& letter);
  int draw_found();
  void szó_kiírása(const Text& word);
  void fit_word();
  double word_width() const;
  void szó_törlése();
  void betűméret_illesztése();
  void képválasztás_felállítása();
  void show_picture();
  void picture_chosen(int place);
  void ask(int place);
  void repeat(TextView letter);

  bool choice_is_open() const { return kép.Tag != u"-1" && !kép.Visible; }
  frm_betűnézegető_beáll& settings() const { return session().window<frm_betűnézegető_beáll>(); }

  LetterRow row_{Label_betű};
  std::vector<int> found_; ///< The records that fit the present letter.
  int shown_ = -1;         ///< The record whose word is on show, as the tag of `kép` says.
  char16_t next_ = 0;      ///< What was typed last.
  bool megoldás_látszik_ = false;
  bool megoldás_letelt_ = false;
};

} // namespace cserko
