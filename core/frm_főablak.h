// The text main window: a button for each exercise, the menu, and a decoration that entertains while nobody plays.
#pragma once

#include "core/decoration.h"
#include "core/main_window.h"
#include "platform/element_array.h"

#include <limits>

namespace cserko {

class frm_főablak : public MainWindow {
 public:
  explicit frm_főablak(Session& session);

  PictureBox dísz{*this, u"dísz", {120, 120, 5880, 5880}};
  Label lbldisz{*this, u"lbldisz", {120, 6120, 5880, 1137}};
  ElementArray<Button> cmd_játék{*this, u"cmd_játék", {6120, 120, 1960, 917}};
  Button cmd_súgó{*this, u"cmd_súgó", {10280, 6342, 1960, 917}, u"Súgó"};
  Timer Timer1{*this, u"Timer1", 1, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", main_menu::file};
  MenuItem mnu_fájl_főablak_beállításai{mnu_fájl, u"mnu_fájl_főablak_beállításai", main_menu::settings};
  MenuItem mnu_file_eseményhangok_beállításai{mnu_fájl, u"mnu_file_eseményhangok_beállításai", main_menu::sounds};
  MenuItem mnu_fájl_zenebeállítások{mnu_fájl, u"mnu_fájl_zenebeállítások", main_menu::music};
  MenuItem mnu_fájl_separator{mnu_fájl, u"mnu_fájl_separator", u"-"};
  MenuItem mnu_fájl_kilépés{mnu_fájl, u"mnu_fájl_kilépés", main_menu::leave};
  MenuItem mnu_jutalomjáték{*this, u"mnu_jutalomjáték", main_menu::rewards};
  MenuItem mnu_jutalomjáték_dobolás{mnu_jutalomjáték, u"mnu_jutalomjáték_dobolás", main_menu::drum};
  MenuItem mnu_jutalom_rajz{mnu_jutalomjáték, u"mnu_jutalom_rajz", main_menu::drawing};

  static constexpr std::int64_t long_ago = std::numeric_limits<std::int32_t>::min();

  LineDrawing drawing;                     ///< The figures; its fields are the state of the decoration.
  std::int64_t képváltás_ideje = long_ago; ///< When the current picture came, ms on the machine's clock.
  int cserélő = -100;                      ///< Ticks counted towards the next swap of letters.

  /// Starts an exercise on the backdrop; the decoration rests meanwhile.
  void indítás(TextView exercise) override;
  /// The next picture of the slide show with its name.
  void új_kép();
  /// The only way out of this window: ends the program.
  void kilépés();

  void Load() override;
  void Activate() override;
  void KeyDown(KeyEvent& event) override;
  void QueryUnload(bool& cancel) override;

 private:
  void design_buttons();
  void bind_menu();
  void gomb_betűméret();
  void dísz_indítás();
  void dísz_click();
  void Timer1_tick();
  void show_slide();
  void swap_letters();
  void főablak_beállításai();
  void zenebeállítások() override;
  void cmd_játék_click(int index);
  void rest_decoration();
};

} // namespace cserko
