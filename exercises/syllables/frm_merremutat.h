// Which way: a picture of something that points left, up, right or down, and a question; the child presses the word of
// the direction. The pictures are a collection of their own beside the records.
#pragma once

#include "core/exercise.h"
#include "core/option_group.h"
#include "core/settings.h"
#include "feedback/result_panel.h"

#include <array>

namespace cserko {

/// Which directions the pictures point in.
class frm_merremutat_beáll : public SettingsDialog {
 public:
  explicit frm_merremutat_beáll(Session& session);

  Frame frame_irányok{*this, u"frame_irányok", {120, 120, 5400, 1860}, u"A használt irányok"};
  OptionGroup opt_irány{frame_irányok,
                        u"opt_irány",
                        {{0, {120, 360, 5160, 420}, u"Jobbra - balra"},
                         {1, {120, 840, 5160, 420}, u"Fel - le"},
                         {2, {120, 1320, 5160, 420}, u"Jobbra - balra, fel - le"}},
                        2};
  Button OKButton{*this, u"OKButton", {120, 2100, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 2100, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 2100, 1720, 660}, u"Súgó"};

  /// Whether pictures of that direction are asked for: 0 left, 1 up, 2 right, 3 down.
  bool allows(int direction) const;

 protected:
  void apply() override;
  void after_read(bool /*from_file*/) override { opt_irány.repair(2); }
};

/// One motif: something that is pictured pointing in up to four directions.
struct IrányKép {
  std::array<Text, 4> képfájl; ///< Full path of the picture for each direction, empty where there is none.
  Text kérdés;                 ///< Without its mark.
};

class frm_merremutat : public ExerciseWindow {
 public:
  explicit frm_merremutat(Session& session);

  Frame Frame1{*this, u"Frame1", {120, 120, 3975, 7815}};
  ElementArray<PictureBox> pic_eredmény{Frame1, u"pic_eredmény", {120, 240, 1815, 1815}};
  ElementArray<Label> lbl_eredmény{Frame1, u"lbl_eredmény", {120, 2040, 1815, 375}};
  Label lbl_feladat{*this, u"lbl_feladat", {4200, 0, 6495, 615}};
  PictureBox Picture2{*this, u"Picture2", {4200, 720, 6495, 735}};
  ElementArray<Button> cmd_irány{Picture2, u"cmd_irány", {240, 120, 1335, 495}};
  PictureBox kép{*this, u"kép", {4200, 1440, 6495, 6495}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Starts a new puzzle from the settings. Throws NothingFits where no picture points in a wanted direction.
  void beáll();
  /// The direction of the puzzle: 0 left, 1 up, 2 right, 3 down.
  int irány() const { return irány_; }
  /// A blank motif, then those of the collection.
  const std::vector<IrányKép>& irányképek() const { return irányképek_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void irányképek_betöltése();
  const Text& képfájl(int motif, int direction) const;
  bool mutat(int direction) const;
  void képválasztás();
  bool szavak_keverése();
  void cmd_irány_click(int button);
  void eredmény_felvétele();

  frm_merremutat_beáll& settings() const { return session().window<frm_merremutat_beáll>(); }

  ResultPanel results_;
  std::vector<IrányKép> irányképek_{1};
  int irány_ = 0;
};

} // namespace cserko
