// The graphic main window: a landscape with a picture for each exercise, which lights up under the mouse.
#pragma once

#include "core/graphic_places.h"
#include "core/main_window.h"
#include "platform/element_array.h"

namespace cserko {

class frm_grafikus_főablak : public MainWindow {
 public:
  explicit frm_grafikus_főablak(Session& session);

  ElementArray<PictureBox> háttér{*this, u"háttér", highlight_rect(graphic_place(0))};
  ElementArray<PictureBox> img_játék{*this, u"img_játék", picture_rect(graphic_place(0))};
  ElementArray<Label> lbl_feladat{*this, u"lbl_feladat", label_rect(graphic_place(0))};

  MenuItem mnu_fájl{*this, u"mnu_fájl", main_menu::file};
  MenuItem mnu_fájl_főablak_beáll{mnu_fájl, u"mnu_fájl_főablak_beáll", main_menu::settings};
  MenuItem mnu_fájl_eseményhang_beáll{mnu_fájl, u"mnu_fájl_eseményhang_beáll", main_menu::sounds};
  MenuItem mnu_fájl_zene_beáll{mnu_fájl, u"mnu_fájl_zene_beáll", main_menu::music};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", main_menu::leave};
  MenuItem mnu_jutalomjáték{*this, u"mnu_jutalomjáték", main_menu::rewards};
  MenuItem mnu_jutalom_dobolás{mnu_jutalomjáték, u"mnu_jutalom_dobolás", main_menu::drum};
  MenuItem mnu_jutalom_rajz{mnu_jutalomjáték, u"mnu_jutalom_rajz", main_menu::drawing};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó", key::f1};

  void Load() override;
  void Activate() override;
  void KeyDown(KeyEvent& event) override;
  void MouseMove(const MouseEvent& event) override;

 private:
  void design_places();
  void bind_places();
  void bind_menu();
  void show_pictures();
  void feliratok();
  void light(int index);
  void put_out_lights();
  void img_játék_click(int index);
  void főablak_beállításai();

  int last_lit_ = 0;
  bool seen_ = false;
};

} // namespace cserko
