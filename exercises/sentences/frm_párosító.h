// Sentence pairing: five pictures on the left, five definitions on the right, and the child joins each picture to its
// definition by drawing a line.
#pragma once

#include "core/exercise.h"
#include "core/option_group.h"
#include "core/settings.h"
#include "exercises/shared/gesture.h"

namespace cserko {

/// Whether every line is checked at once, or all of them when nothing is left to be joined.
class frm_párosító_beáll : public SettingsDialog {
 public:
  explicit frm_párosító_beáll(Session& session);

  Frame Frame1{*this, u"Frame1", {120, 120, 5400, 1500}, u"Ellenőrzés"};
  OptionGroup Option_ellenőr{Frame1,
                             u"Option_ellenőr",
                             {{0, {120, 360, 5160, 480}, u"Ellenőrzés minden párosításkor"},
                              {1, {120, 900, 5160, 480}, u"Ellenőrzés csak ha mindnek van párja"}},
                             1};
  Button OKButton{*this, u"OKButton", {120, 1740, 1720, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {1960, 1740, 1720, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {3800, 1740, 1720, 660}, u"&Súgó"};

 protected:
  void apply() override;
};

class frm_párosító : public ExerciseWindow {
 public:
  explicit frm_párosító(Session& session);

  PictureBox label_feladat{*this, u"label_feladat", {120, 0, 7575, 375}};
  ElementArray<PictureBox> pic_feladvány{*this, u"pic_feladvány", {120, 480, 975, 975}};
  ElementArray<PictureBox> lbl_feladvány{*this, u"lbl_feladvány", {3360, 480, 4335, 975}};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"Fájl"};
  MenuItem mnu_fájl_újrakezd{mnu_fájl, u"mnu_fájl_újrakezd", u"&Újrakezdi", 'U', shift::control};
  MenuItem mnu_fájl_újjáték{mnu_fájl, u"mnu_fájl_újjáték", u"Új játék", 'N', shift::control};
  MenuItem mnu_beáll{mnu_fájl, u"mnu_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilépés{mnu_fájl, u"mnu_fájl_kilépés", u"Kilépés"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Shows a new set. Throws NothingFits where fewer than five records have a definition.
  void beáll();
  /// Whether the picture of that row has its right partner.
  bool párosítva(int index) const { return párosítva_.at(static_cast<std::size_t>(index)); }

  void Load() override;

 protected:
  void no_puzzle() override { feladat_törlés(); }

 private:
  enum class Side : std::uint8_t { Pictures, Definitions };
  struct Place {
    Side side;
    int index;
    bool operator==(const Place&) const = default;
  };
  struct LinePoint {
    std::int32_t x;
    std::int32_t y;
  };

  void bind(Side side);
  ElementArray<PictureBox>& column(Side side) { return side == Side::Pictures ? pic_feladvány : lbl_feladvány; }
  PictureBox& element(Place place) { return column(place.side)[place.index]; }
  static Side other(Side side) { return side == Side::Pictures ? Side::Definitions : Side::Pictures; }

  void new_puzzle();
  void feladat_törlés();
  int szóválasztás();
  void szöveg_kiírás(std::vector<Text> texts);
  void újrakezdés();
  bool mind_párosítva() const;

  void press(Place place, const MouseEvent& event);
  void move(Place place, const MouseEvent& event);
  void release(Place place, const MouseEvent& event);
  void release_of_definition(int definition, int picture);
  void release_of_picture(int picture, int definition, const MouseEvent& event);
  void line_ended();
  void wipe_line();

  void choose(Place place);
  void unchoose();
  void join(Place from, Place to);
  void leave_dead_focus();

  bool check_at_once() const { return settings().Option_ellenőr[0].value(); }
  frm_párosító_beáll& settings() const { return session().window<frm_párosító_beáll>(); }

  std::vector<bool> párosítva_;
  std::vector<LinePoint> vonal_; ///< The line that is being drawn, or the last one; none before the first press.
  float cél_bal_ = 0;
  float cél_fent_ = 0;
  float cél_jobb_ = 0;
  float cél_lent_ = 0;
  Gesture gesture_;
  std::optional<Place> chosen_; ///< What a click or a key has chosen, to be joined with the next one.
};

} // namespace cserko
