// Word chain: a pool of pictures and a row of seven places. The child puts pictures into the row so that each word
// begins as the one before it ends.
#pragma once

#include "core/exercise.h"
#include "exercises/boards/frm_szólánc_beállítások.h"
#include "exercises/shared/gesture.h"

#include <optional>

namespace cserko {

/// The solution: the seven pictures in a row as they belong.
class frm_szólánc_segítő : public Window {
 public:
  explicit frm_szólánc_segítő(Session& session);

  ElementArray<PictureBox> pic_eredménykép{*this, u"pic_eredménykép", {120, 120, 1860, 1860}};
  Button cmd_ok{*this, u"cmd_ok", {5850, 2100, 2040, 660}, u"OK"};

  void Load() override;
  /// Only hides it: the solution lasts as long as the game.
  void QueryUnload(bool& cancel) override;

 private:
  Session& session_;
};

class frm_szólánc : public ExerciseWindow {
 public:
  explicit frm_szólánc(Session& session);

  static constexpr int most_pictures = 28;
  static constexpr int columns = 7;
  static constexpr TextView empty = u"-1"; ///< The tag of what holds no record.

  Label lbl_feladat{*this, u"lbl_feladat", {120, 30, 13620, 420}};
  Frame frm_rejtvény{*this, u"frm_rejtvény", {120, 480, 13620, 4680}, u"A képek"};
  ElementArray<PictureBox> kép{frm_rejtvény, u"kép", {120, 300, 1860, 1020}};
  /// Its name is `frm_szólánc`, as the window's.
  Frame frame_szólánc{*this, u"frm_szólánc", {120, 5220, 13620, 2160}, u"A szólánc"};
  ElementArray<PictureBox> pic_eredménykép{frame_szólánc, u"pic_eredménykép", {120, 300, 1860, 1020}};
  ElementArray<Button> cmd_elcsúsztat{frame_szólánc, u"cmd_elcsúsztat", {3460, 1380, 2160, 660}, TextView(u"Balra")};
  Button cmd_kérdőjel{frame_szólánc, u"cmd_kérdőjel", {5730, 1380, 2160, 660}, u"?"};
  /// What the pointer carries while a picture is dragged.
  PictureBox dragged{*this, u"dragged", {120, 480, 1860, 1020}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_újjáték{mnu_fájl, u"mnu_fájl_újjáték", u"&Új játék"};
  MenuItem mnu_fájl_beállítások{mnu_fájl, u"mnu_fájl_beállítások", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Deals a new game. Throws NothingFits where the settings leave no chain or too few words.
  void mnu_fájl_újjáték_Click();
  /// Whether the row is full and each word begins as the one before it ends; the chain need not be the searched one.
  bool lánc_ellenőrzés() const;
  /// What must match in this game, and how many pictures its pool has.
  ChainRule rule() const { return rule_; }
  int pictures() const { return pictures_; }
  /// The picture of the pool that a click or key has taken up, to be put down on a place.
  std::optional<int> chosen() const { return chosen_; }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void bind();
  void bind_drag();
  void új_lánc();
  void take_settings();
  void new_chain();
  void clear_board();
  void fill_pool();
  void shuffle();
  void ablak_állítás();
  double cell_height(int rows) const;
  void place_elements(double cell_height);
  void fit_texts();

  void drop(int place, int picture);
  void send_back(int place);
  void place_pressed(int place);
  void choose(int picture);
  void put_down_choice();
  void elcsúsztat(int direction);
  void picture_help(int picture);
  void place_help(int place);
  void place_key(int place, KeyEvent& event);

  void carry(const Point& pointer);
  void stop_carrying();

  void draw(PictureBox& box);
  frm_szólánc_beállítások& settings() const { return session().window<frm_szólánc_beállítások>(); }
  frm_szólánc_segítő& solution() const { return session().window<frm_szólánc_segítő>(); }

  // The settings as the game was dealt: what is changed in the dialog and not accepted does not touch it.
  ChainRule rule_ = ChainRule::Syllable;
  int pictures_ = most_pictures;
  cserko::Caption caption_; ///< How names are written on the pictures.

  std::optional<int> chosen_;
  Gesture gesture_;
  int carried_ = 0; ///< The picture that the mouse holds.
  Point grip_;      ///< Where inside it.
};

} // namespace cserko
