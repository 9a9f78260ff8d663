#include "core/frm_grafikus_főablak.h"

#include "core/arrow_focus.h"
#include "core/finally.h"
#include "core/frame.h"

namespace cserko {

namespace {

constexpr Color blue{0, 0, 255};
constexpr Color lit_ground{255, 243, 176};
constexpr Color glow{255, 224, 130};

bool is_arrow(const KeyEvent& event) {
  return event.code >= key::left && event.code <= key::down && event.shift != shift::control;
}

} // namespace

frm_grafikus_főablak::frm_grafikus_főablak(Session& session)
    : MainWindow(session, u"frm_grafikus_főablak", {13350, 8105}) {
  design_places();
  bind_places();
  bind_menu();
}

void frm_grafikus_főablak::design_places() {
  // All lights lie under all pictures, and these under all labels.
  for (int i = 1; i < graphic_place_count; ++i) háttér.design(i, highlight_rect(graphic_place(i)));
  for (int i = 1; i < graphic_place_count; ++i) img_játék.design(i, picture_rect(graphic_place(i)));
  for (int i = 1; i < graphic_place_count; ++i) lbl_feladat.design(i, label_rect(graphic_place(i)));
  for (int i = 0; i < graphic_place_count; ++i) {
    const GraphicPlace& place = graphic_place(i);
    háttér[i].Visible = false;
    háttér[i].TabStop = false;
    háttér[i].AccessibleName = u"kiemelés";
    img_játék[i].AccessibleName = place.caption;
    img_játék[i].Enabled = session().offers(place.window);
    lbl_feladat[i].Caption = place.caption;
    lbl_feladat[i].WordWrap = false;
    lbl_feladat[i].BackColor = lit_ground;
    lbl_feladat[i].Enabled = img_játék[i].Enabled;
  }
}

void frm_grafikus_főablak::bind_places() {
  const auto pass_over = [this](int index, const MouseEvent&) { light(index); };
  img_játék.MouseMove = pass_over;
  lbl_feladat.MouseMove = pass_over;
  const auto start = [this](int index) { img_játék_click(index); };
  img_játék.Click = start;
  lbl_feladat.Click = start;
  háttér.Click = start;
  img_játék.GotFocus = [this](int index) {
    // A window that comes up gives the focus to its first picture; nobody has chosen that.
    if (seen_) light(index);
  };
}

void frm_grafikus_főablak::bind_menu() {
  bind_entries({mnu_fájl_eseményhang_beáll, mnu_fájl_zene_beáll, mnu_jutalom_dobolás, mnu_jutalom_rajz});
  mnu_fájl_főablak_beáll.Click = [this] { főablak_beállításai(); };
  mnu_fájl_kilép.Click = [this] { session().unload(*this); };
  mnu_súgó_súgó.Click = [this] { open_help(); };
}

void frm_grafikus_főablak::Load() {
  ablak_méretezés(*this, 0.8);
  ablak_középre(session(), *this);
  feliratok();
  show_pictures();
}

void frm_grafikus_főablak::show_pictures() {
  const Text folder = session().alapkönyvtár + Text(graphic_folder);
  const double scale = img_játék[0].Width / graphic_picture_side;
  if (const PicturePtr landscape = platform().load_picture(folder + Text(graphic_landscape))) {
    canvas().picture(*landscape, {0, 0, graphic_landscape_size.width * scale, graphic_landscape_size.height * scale});
  }
  const PicturePtr highlight = platform().load_picture(folder + Text(graphic_highlight));
  háttér.each([&](PictureBox& box) {
    box.Picture = highlight;
    // Without its picture it lights up all the same.
    box.BackColor = glow;
    box.Opaque = box.Border = highlight == nullptr;
  });
  for (int i = 0; i < graphic_place_count; ++i) {
    const GraphicPlace& place = graphic_place(i);
    show_picture_file(img_játék[i], folder + Text(place.window) + u".wmf", place.caption);
  }
}

void frm_grafikus_főablak::feliratok() {
  lbl_feladat.each([this](Label& label) {
    szöveg_illesztés(label);
    const Size text = platform().measure(label.Font, label.Caption);
    label.move_to(label.Left + (label.Width - text.width) / 2, label.Top + (label.Height - text.height) / 2);
    label.Width = text.width;
    label.Height = text.height;
    label.ForeColor = blue;
  });
}

void frm_grafikus_főablak::Activate() {
  // Nothing is lit before the child has touched anything, and no key starts what is not lit.
  if (!seen_) set_focus(nullptr);
  seen_ = true;
  MainWindow::Activate();
}

void frm_grafikus_főablak::KeyDown(KeyEvent& event) {
  if (event.code == key::escape) {
    session().unload(*this);
  } else if (focus() == nullptr && is_arrow(event)) {
    light(last_lit_);
    event.code = 0;
  } else {
    move_focus_by_arrow(*this, event);
  }
}

void frm_grafikus_főablak::MouseMove(const MouseEvent& /*event*/) { put_out_lights(); }

void frm_grafikus_főablak::light(int index) {
  // A mouse that moves on over the same place must not repeat the sound.
  if (háttér[index].Visible) return;
  for (int i = 0; i < graphic_place_count; ++i) {
    háttér[i].Visible = i == index;
    lbl_feladat[i].Opaque = i == index;
  }
  last_lit_ = index;
  // The keys go on from what is lit, and Enter starts it.
  set_focus(&img_játék[index]);
  if (session().ticked(u"frm_hangbeáll", u"chk_hang_a_főablakban"))
    session().feedback.hang_lejátszás(session().alapkönyvtár + u"cserko\\grafhang.wav");
}

void frm_grafikus_főablak::put_out_lights() {
  for (int i = 0; i < graphic_place_count; ++i) {
    if (!háttér[i].Visible) continue;
    háttér[i].Visible = false;
    lbl_feladat[i].Opaque = false;
    lbl_feladat[i].ForeColor = blue;
    set_focus(nullptr);
  }
}

void frm_grafikus_főablak::img_játék_click(int index) {
  const Finally arrow_again([this] { Pointer = MousePointer::Arrow; });
  Pointer = MousePointer::Hourglass;
  platform().redraw(*this);
  indítás(graphic_place(index).window);
}

void frm_grafikus_főablak::főablak_beállításai() {
  platform().show_modal(settings());
  if (!settings().chk_grafikus_főablak.ticked()) session().unload(*this);
}

} // namespace cserko
