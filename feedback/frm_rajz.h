// The drawing board: a paint program for children. As a reward it ends after two minutes; from the menu of the main
// window it has no limit.
#pragma once

#include "core/session.h"
#include "feedback/drawing/board.h"
#include "feedback/drawing/kept_drawings.h"
#include "platform/element_array.h"

namespace cserko {

class frm_rajz : public Window {
 public:
  explicit frm_rajz(Session& session);

  /// The tools by the index of `cmd_művelet`.
  enum Tool { pen, eraser, fill, rectangle, straight_line };
  static constexpr int tools = 5;
  static constexpr int widths = 5;
  static constexpr int swatches = 32;

  PictureBox kép{*this, u"kép", {2490, 900, 10890, 5880}};
  ElementArray<Button> cmd_művelet{*this, u"cmd_művelet", {120, 900, 690, 690}};
  PictureBox aktívgomb{*this, u"aktívgomb", {1680, 1680, 690, 690}};
  ElementArray<PictureBox> vonalvastagság{*this, u"vonalvastagság", {120, 2520, 690, 690}};
  PictureBox aktívvastagság{*this, u"aktívvastagság", {1680, 3300, 690, 690}};
  Button cmd_undo{*this, u"cmd_undo", {120, 4110, 1080, 660}, u"Vissza"};
  Button cmd_redo{*this, u"cmd_redo", {1290, 4110, 1080, 660}, u"Újra"};
  CheckBox chk_vonalnem{*this, u"chk_vonalnem", {120, 4820, 2250, 960}, u"Fekete színezésének tiltása"};
  CheckBox chk_foltfestés{*this, u"chk_foltfestés", {120, 5785, 2250, 660}, u"Foltfestés"};
  Label lbl_idő{*this, u"lbl_idő", {120, 6450, 2250, 440}};
  Label aktívszín{*this, u"aktívszín", {120, 6900, 2250, 1380}};
  ElementArray<Label> szín{*this, u"szín", {2490, 6900, 650, 675}};
  Button cmd_megnyit{*this, u"cmd_megnyit", {120, 120, 1260, 660}, u"Megnyit"};
  Button cmd_ment{*this, u"cmd_ment", {1470, 120, 840, 660}, u"Ment"};
  Button cmd_nyomtat{*this, u"cmd_nyomtat", {2400, 120, 1320, 660}, u"Nyomtat"};
  Button cmd_törlés{*this, u"cmd_törlés", {3810, 120, 1200, 660}, u"Törlés"};
  Button Command2{*this, u"Command2", {5100, 120, 1380, 660}, u"Beilleszt"};
  Button Command1{*this, u"Command1", {6570, 120, 2520, 660}, u"Mentés színezőként"};
  Button cmd_színező{*this, u"cmd_színező", {9180, 120, 2520, 660}, u"Színező megnyitása"};
  Button cmd_earlier{*this, u"cmd_earlier", {11790, 120, 1590, 660}, u"Előző rajz"};
  // What follows the mouse lies on the drawing area.
  Shape radír{kép, u"radír", {}};
  Line vonal{kép, u"vonal", {}};
  ElementArray<Line> Line1{kép, u"Line1", {}};
  ElementArray<Line> marker{kép, u"marker", {}}; ///< The cross where the keyboard's pen is.
  Timer Timer2{*this, u"Timer2", 60000};
  Timer keep_timer{*this, u"keep_timer", 1000};

  /// Minutes since the window was last activated, as `Timer2` counts them.
  int percek = 0;

  void Load() override;
  void Activate() override { percek = 0; }
  void MouseMove(const MouseEvent& event) override;
  void KeyDown(KeyEvent& event) override;
  void KeyUp(KeyEvent& event) override;
  void Unload() override { keep_if_changed(); }

  /// The drawing itself; what `kép` shows.
  DrawingBoard& board() { return board_; }
  int tool() const;
  /// Gives the drawing area the picture of a colouring page and protects its black lines.
  void open_page(const PixelImage& page);

 private:
  // The look (frm_rajz_look.cpp).
  void design_look();
  void give_hints();
  void design_tools();
  void design_widths();
  void design_swatches();
  void design_rubber_lines();
  void scale_to_window();
  void fit_captions();
  void load_tool_pictures();
  void show_width();
  void set_color(Color color);
  void rajz_alapállapot();
  void cmd_művelet_click(int index);
  void szín_click(int index);
  void vonalvastagság_click(int index);

  void bind_tools();
  void bind_buttons();
  void bind_keys();

  // Drawing.
  void kép_mouse_down(const MouseEvent& event);
  void kép_mouse_move(const MouseEvent& event);
  void kép_mouse_up(const MouseEvent& event);
  void begin_stroke(Point place);
  void draw_to(Point place);
  void end_stroke();
  void give_up_stroke();
  void stretch_rubber(Point to);
  void hide_rubber();
  void place_eraser(Point place);
  void erase_to(Point place);
  void fill_from(Point place);
  void run_as_step(const std::function<void()>& deed);
  void step_back();
  void step_forward();
  void refresh_buttons();

  // Keys.
  void kép_key_down(KeyEvent& event);
  void move_marker(int code, int shift);
  void show_marker();
  void hide_marker();
  void press_at_marker();

  // Files and the rest.
  void cmd_megnyit_click();
  void cmd_ment_click();
  void cmd_nyomtat_click();
  std::unique_ptr<PrintJob> start_printing();
  void Command1_click();
  void Command2_click();
  void cmd_színező_click();
  void choose_color();
  void take_earlier();
  void Timer2_tick();
  void load_work_file();
  void save_work_file();
  void keep_tick();
  void keep_if_changed();

  Session& session_;
  DrawingBoard board_{kép};
  KeptDrawings kept_;
  bool pressed_ = false;     ///< The pen is on the paper.
  bool by_keyboard_ = false; ///< And it is the keyboard's.
  bool space_held_ = false;  ///< The space bar repeats while it is held.
  Point start_;              ///< Where the stroke began.
  Point last_;               ///< Where the pen is.
  Point marker_;             ///< Where the keyboard's pen is.
  std::uint64_t kept_revision_ = 0;
  std::int64_t kept_at_ = 0; ///< When the drawing was last kept, on the machine's clock.
};

} // namespace cserko
