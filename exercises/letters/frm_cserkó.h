// Scrambled word: the letters of a word lie scattered in a frame, and the child drags them into a row. The picture
// stays hidden until the word is right.
#pragma once

#include "core/exercise.h"
#include "core/option_group.h"
#include "core/settings.h"
#include "exercises/shared/scattered_pieces.h"
#include "platform/element_array.h"

#include <array>

namespace cserko {

class frm_cserkó;

/// How long the words are and which helps are allowed.
class frm_cserkó_beáll : public SettingsDialog {
 public:
  explicit frm_cserkó_beáll(Session& session);

  Frame frm_betűszám{*this, u"frm_betűszám", {120, 120, 4680, 1620}, u"A szó betűinek száma"};
  Label labszópárok{frm_betűszám, u"labszópárok", {120, 420, 2640, 480}, u"Szó betűinek száma:"};
  TextBox txtbetszám{frm_betűszám, u"txtbetszám", {2880, 420, 720, 480}};
  UpDown udbetszám{frm_betűszám, u"udbetszám", {3600, 420, 360, 480}, txtbetszám, {4, 12, 1}, 12};
  /// The element numbers run against the order on the screen: file and filter go by the number.
  OptionGroup opt_betszám{frm_betűszám,
                          u"opt_betszám",
                          {{0, {3120, 1080, 1440, 420}, u"Pontosan"},
                           {1, {1560, 1080, 1440, 420}, u"Legfeljebb"},
                           {2, {120, 1080, 1440, 420}, u"Legalább"}},
                          1};

  Frame frm_segítség{*this, u"frm_segítség", {120, 1860, 4680, 2460}, u"Segítségek"};
  CheckBox chk_ismételt_keverés_engedélyezése{frm_segítség,
                                              u"chk_ismételt_keverés_engedélyezése",
                                              {120, 360, 4440, 660},
                                              u"A szó betűinek ismételt keverése a bal egérgomb lenyomására",
                                              0};
  CheckBox chk_szórendezés_engedélyezés{frm_segítség,
                                        u"chk_szórendezés_engedélyezés",
                                        {120, 1080, 4440, 660},
                                        u"A szó betűinek rendezése a jobb egérgomb lenyomására",
                                        1};
  CheckBox Chk_betűfelfed{
      frm_segítség, u"Chk_betűfelfed", {120, 1860, 4440, 420}, u"Betű felfedésének engedélyezése", 1};

  Button OKButton{*this, u"OKButton", {120, 4440, 1480, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1720, 4440, 1480, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3320, 4440, 1480, 660}, u"Súgó"};

  /// Whether a word of that many letters is asked for; nothing where no option is on.
  std::optional<bool> allows(int letters) const;

 protected:
  void apply() override;
};

class frm_cserkó : public ExerciseWindow {
 public:
  explicit frm_cserkó(Session& session);

  Label lbl_feladat{*this, u"lbl_feladat", {120, 120, 4575, 495}, task};
  PictureBox kép{*this, u"kép", {120, 720, 4695, 4695}};
  ElementArray<Label> betű{kép, u"betű", {480, 360, 1095, 1095}};
  Button cmd_újrakever{*this, u"cmd_újrakever", {120, 5640, 1095, 255}, u"&Újrakever"};
  Button cmd_rendez{*this, u"cmd_rendez", {120, 6000, 1095, 255}, u"&Rendez"};
  Button cmd_kész{*this, u"cmd_kész", {1320, 5640, 2295, 615}, u"Kész"};
  Button cmd_egybetűtfelfed{*this, u"cmd_egybetűtfelfed", {3720, 5640, 1095, 615}, u"&Egy betűt felfed"};
  Label lbl_megoldás{*this, u"lbl_megoldás", {120, 5400, 4695, 735}, u"Megoldás"};
  Timer Timer1{*this, u"Timer1", 3000, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_újfeladat{mnu_fájl, u"mnu_fájl_újfeladat", u"&Új feladat"};
  MenuItem mnu_fájl_beálítások{mnu_fájl, u"mnu_fájl_beálítások", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new puzzle from the settings. Throws NothingFits where no word is of the wanted length.
  void beáll();

  /// Index of the word in play. The answer check may change it.
  int feladat_index() const { return feladat_index_; }

  void Load() override;
  void KeyDown(KeyEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  enum class Answer : std::uint8_t { Right, OtherWord, Unknown };
  static constexpr TextView task = u"A keretben egy szó betűit láthatod összekeverve. Rakd ki a betűkből a szót!";

  void bind();
  void new_puzzle();
  void feladat_törlése();
  std::array<Button*, 4> answer_buttons() { return {&cmd_kész, &cmd_egybetűtfelfed, &cmd_újrakever, &cmd_rendez}; }
  void szóválasztás();
  void betűk_szétszórása(const Text& word);
  void újrakeverés();
  void rendezés();
  void felfed();
  void kész();
  void solved();
  Answer kirakott_szó_vizsgálata();
  void show_message(const Text& text);

  void frame_pressed(const MouseEvent& event);
  void task_pressed(const MouseEvent& event);
  double text_width(TextView text) const;

  frm_cserkó_beáll& settings() const { return session().window<frm_cserkó_beáll>(); }
  const KépAdat& record() const { return képek()[feladat_index_]; }

  ScatteredPieces letters_{session(),
                           kép,
                           betű,
                           {.advice = u"Nem férnek el a betűk a keretben.\r\nKérlek, válassz a beállításokban rövidebb "
                                      u"szavakat!",
                            .whole_twips = true}};
  int feladat_index_ = 0;
  Text kirakott_szó_;
  int felfedett_betűk_ = 0;
};

} // namespace cserko
