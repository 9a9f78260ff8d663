// The look of the drawing board: its places, swatches, samples, pictures and captions, and what choosing them shows.
#include "core/frame.h"
#include "core/frm_főablak.h"
#include "feedback/drawing/palette.h"
#include "feedback/frm_rajz.h"

#include <algorithm>
#include <array>

namespace cserko {

namespace {

constexpr int columns_of_buttons = 3;
constexpr double button_pitch = 780;
constexpr int columns_of_swatches = 16;
constexpr double swatch_pitch_across = 680;
constexpr double swatch_pitch_down = 705;
constexpr int first_width = 1;
constexpr int width_step = 3;
constexpr int width_at_start = 1; // index of the sample
constexpr double marker_reach = 180;

struct ToolLook {
  TextView name;
  TextView picture;
};

constexpr std::array<ToolLook, frm_rajz::tools> tool_looks{{{u"Toll", u"toll.wmf"},
                                                            {u"Radír", u"radír.wmf"},
                                                            {u"Kitöltés", u"kitöltés.wmf"},
                                                            {u"Téglalap", u"téglalap.wmf"},
                                                            {u"Egyenes", u"egyenes.wmf"}}};

// The place of the next button of a block of three columns.
Rect block_place(const Rect& first, int index) {
  return {first.left + index % columns_of_buttons * button_pitch, first.top + index / columns_of_buttons * button_pitch,
          first.width, first.height};
}

Rect place_of(const Element& element) { return {element.Left, element.Top, element.Width, element.Height}; }

// One Tab stop for a row of choices; the arrows move among them.
template<class T> void make_only_stop(ElementArray<T>& array, int index) {
  array.each([index](T& element) { element.TabStop = element.Index == index; });
}

void draw_sample(PictureBox& box, Color color, double margin) {
  Canvas& canvas = box.canvas();
  canvas.clear();
  canvas.line({margin, box.Height / 2}, {box.Width - margin, box.Height / 2}, color, box.DrawWidth * twips_per_pixel);
}

} // namespace

int frm_rajz::tool() const {
  return aktívgomb.Tag.empty() ? Tool::pen : static_cast<int>(aktívgomb.Tag.front() - u'0');
}

void frm_rajz::design_look() {
  kép.Opaque = true;
  kép.Border = true;
  kép.AccessibleName = u"Rajzlap";
  for (PictureBox* box : {&aktívgomb, &aktívvastagság}) {
    box->TabStop = false;
    box->Border = true;
  }
  aktívgomb.AccessibleName = u"A választott eszköz";
  aktívvastagság.AccessibleName = u"A választott vonalvastagság";
  aktívvastagság.Opaque = true;
  aktívszín.Opaque = true;
  aktívszín.Border = true;
  aktívszín.Choosable = true;
  aktívszín.BackColor = black;
  aktívszín.AccessibleName = u"A választott szín";
  aktívszín.ToolTipText = u"Saját szín keverése (dupla kattintás)";
  chk_foltfestés.Visible = false;
  lbl_idő.Visible = false;
  give_hints();
  design_tools();
  design_widths();
  design_swatches();
  design_rubber_lines();
}

void frm_rajz::give_hints() {
  cmd_nyomtat.ToolTipText = u"Kép nyomtatása";
  cmd_megnyit.ToolTipText = u"Képfájl megnyitása";
  cmd_ment.ToolTipText = u"Kép elmentése képfájlként";
  cmd_törlés.ToolTipText = u"Rajzterület törlése";
  Command1.ToolTipText = u"Kép elmentése a színezőkészletbe";
  Command2.ToolTipText = u"Kép beillesztése a vágólapról a rajzterületre";
  cmd_earlier.ToolTipText = u"Korábbi rajz elővétele";
  cmd_undo.ToolTipText = u"Az utolsó lépés visszavonása (Ctrl+Z)";
  cmd_redo.ToolTipText = u"A visszavont lépés újra (Ctrl+Y)";
}

void frm_rajz::design_tools() {
  const Rect first = place_of(cmd_művelet[0]);
  for (int i = 0; i < tools; ++i) {
    Button& button = i == 0 ? cmd_művelet[0] : cmd_művelet.design(i, block_place(first, i));
    button.AccessibleName = tool_looks.at(static_cast<std::size_t>(i)).name;
    button.ToolTipText = button.AccessibleName + u" (" + to_text(i + 1) + u")";
  }
}

void frm_rajz::design_widths() {
  vonalvastagság[0].Opaque = true;
  vonalvastagság[0].Border = true;
  const Rect first = place_of(vonalvastagság[0]);
  for (int i = 0; i < widths; ++i) {
    PictureBox& box = i == 0 ? vonalvastagság[0] : vonalvastagság.design(i, block_place(first, i));
    box.AccessibleName = to_text(first_width + width_step * i) + u" képpont vastag vonal";
    box.ToolTipText = box.AccessibleName + u" (Ctrl+" + to_text(i + 1) + u")";
  }
}

void frm_rajz::design_swatches() {
  szín[0].Opaque = true;
  szín[0].Border = true;
  szín[0].Choosable = true;
  const Rect first = place_of(szín[0]);
  for (int i = 0; i < swatches; ++i) {
    const double left = first.left + i % columns_of_swatches * swatch_pitch_across;
    const double top = first.top + i / columns_of_swatches * swatch_pitch_down;
    Label& swatch = i == 0 ? szín[0] : szín.design(i, {left, top, first.width, first.height});
    swatch.BackColor = palette.at(static_cast<std::size_t>(i)).color;
    swatch.AccessibleName = palette.at(static_cast<std::size_t>(i)).name;
    swatch.ToolTipText = swatch.AccessibleName;
  }
}

void frm_rajz::design_rubber_lines() {
  Line1.design_places({{0, 0}, {0, 0}, {0, 0}, {0, 0}});
  marker.design_places({{0, 0}, {0, 0}});
  hide_rubber();
  radír.Visible = false;
  marker.each([](Line& line) { line.Visible = false; });
}

void frm_rajz::Load() {
  percek = 0;
  const auto& main_window = session_.window<frm_főablak>();
  Picture = main_window.Picture;
  Width = main_window.Width;
  Height = main_window.Height;
  ablak_középre(session_, *this);
  scale_to_window();
  load_tool_pictures();
  rajz_alapállapot();
  cmd_művelet_click(Tool::pen);
  fit_captions();
  chk_foltfestés.BackColor = BackColor;
  chk_vonalnem.BackColor = BackColor;
  marker_ = {kép.Width / 2, kép.Height / 2};
  load_work_file();
  kept_revision_ = board_.revision();
  kept_at_ = platform().now();
  refresh_buttons();
}

// The design is stretched over the window, whose size is that of the main window on this screen.
void frm_rajz::scale_to_window() {
  const Size design = design_size();
  const double across = inner_width() / design.width;
  const double down = inner_height() / design.height;
  for (Element* element : elements()) {
    element->Left *= across;
    element->Width *= across;
    element->Top *= down;
    element->Height *= down;
  }
}

void frm_rajz::load_tool_pictures() {
  for (int i = 0; i < tools; ++i) {
    const ToolLook& look = tool_looks.at(static_cast<std::size_t>(i));
    Button& button = cmd_művelet[i];
    button.Picture = platform().load_picture(session_.alapkönyvtár + u"cserko\\" + Text(look.picture));
    if (button.Picture) continue;
    button.Caption = look.name;
    button.Font.size = first_overfilling_size(platform(), {button.Font.name, 6, false}, look.name,
                                              {0.9 * button.Width, 0.9 * button.Height}) -
                       1;
  }
}

void frm_rajz::fit_captions() {
  for (Button* button : {&Command1, &cmd_ment, &cmd_megnyit}) szöveg_illesztés(*button);
  // The others are no larger than the longest of the three, so that the row looks even.
  for (Button* button : {&cmd_nyomtat, &cmd_törlés, &Command2, &cmd_színező, &cmd_earlier, &cmd_undo, &cmd_redo}) {
    szöveg_illesztés(*button);
    button->Font.size = std::min(button->Font.size, cmd_megnyit.Font.size) - 1;
  }
  for (CheckBox* box : {&chk_foltfestés, &chk_vonalnem}) box->Font.size = std::max(8.0, Command1.Font.size - 2);
}

void frm_rajz::rajz_alapállapot() {
  vonalvastagság.each([](PictureBox& box) {
    box.DrawWidth = width_step * box.Index + first_width;
    draw_sample(box, black, box.Width / 6);
  });
  vonalvastagság_click(width_at_start);
  szín_click(0);
}

void frm_rajz::cmd_művelet_click(int index) {
  give_up_stroke();
  aktívgomb.Picture = cmd_művelet[index].Picture;
  aktívgomb.Tag = to_text(index);
  radír.Visible = false;
  chk_foltfestés.Visible = index == Tool::fill;
}

void frm_rajz::szín_click(int index) {
  make_only_stop(szín, index);
  set_color(szín[index].BackColor);
}

void frm_rajz::set_color(Color color) {
  aktívszín.BackColor = color;
  show_width();
}

void frm_rajz::vonalvastagság_click(int index) {
  make_only_stop(vonalvastagság, index);
  kép.DrawWidth = vonalvastagság[index].DrawWidth;
  aktívvastagság.DrawWidth = kép.DrawWidth;
  show_width();
}

void frm_rajz::show_width() { draw_sample(aktívvastagság, aktívszín.BackColor, aktívvastagság.Width / 4); }

void frm_rajz::show_marker() {
  const auto show = [](Line& line, const Rect& place) {
    line.Left = place.left;
    line.Top = place.top;
    line.Width = place.width;
    line.Height = place.height;
    line.Visible = true;
  };
  show(marker[0], {marker_.x - marker_reach, marker_.y, 2 * marker_reach, 0});
  show(marker[1], {marker_.x, marker_.y - marker_reach, 0, 2 * marker_reach});
}

void frm_rajz::hide_marker() {
  marker.each([](Line& line) { line.Visible = false; });
}

} // namespace cserko
