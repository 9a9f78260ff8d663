// Letter sorting: two letters that children confuse, and pictures that fly to the letter of their word. In the
// direction mode the child names the side on a panel instead of clicking the letter.
#pragma once

#include "core/exercise.h"
#include "exercises/letters/frm_betűválogatás_beállítás.h"

namespace cserko {

class frm_betűválogatás : public ExerciseWindow {
 public:
  explicit frm_betűválogatás(Session& session);

  static constexpr int places = 12; ///< The first half of them belongs to the left letter.

  ElementArray<Label> betű{*this, u"betű", {720, 120, 1500, 1695}, TextView(u"s")};
  Label Label1{
      *this, u"Label1", {2340, 840, 6660, 540}, u"Kattints arra a betűre, amelyik benne van az alábbi szóban!"};
  ElementArray<PictureBox> eredménykép{*this, u"eredménykép", {120, 1920, 1335, 1335}};
  ElementArray<Label> eredményképnév{*this, u"eredményképnév", {120, 3360, 1335, 255}};
  PictureBox kép{*this, u"kép", {3000, 1440, 5400, 5400}};
  Label középsőképnév{*this, u"középsőképnév", {3000, 6960, 5295, 615}, u"Label2"};

  MenuItem mnufőbeáll{*this, u"mnufőbeáll", u"&Fájl"};
  MenuItem mnu_beall_ujjatek{mnufőbeáll, u"mnu_beall_ujjatek", u"Új játék"};
  MenuItem mnubeállítások{mnufőbeáll, u"mnubeállítások", u"&Beállítások"};
  MenuItem mnu_beáll_separate{mnufőbeáll, u"mnu_beáll_separate", u"-"};
  MenuItem mnu_beáll_kilépés{mnufőbeáll, u"mnu_beáll_kilépés", u"&Kilépés"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows the next picture of the round, or of a new round when the old one is over, with the congratulation first
  /// where there is something to congratulate on. Throws NothingFits where no pair is selected, or where the drawn
  /// one has too few words.
  void következő_feladat();
  /// Ends the round and deals a new one. Throws NothingFits as above.
  void új_sorozat();

  void Load() override;
  void KeyDown(KeyEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  bool round_goes_on() const;
  void draw_round();
  void draw_pair();
  void draw_words();
  void next_picture();
  void fit_letters();

  void answer(int letter);
  void judge(int letter);
  void fly(int place);
  void irány_gyakorlás();
  void change_settings();

  frm_betűválogatás_beállítás& settings() const { return session().window<frm_betűválogatás_beállítás>(); }
};

} // namespace cserko
