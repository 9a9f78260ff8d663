// The drawing board with a person at it.
#pragma once

#include "core/frm_főablak.h"
#include "feedback/frm_rajz.h"
#include "feedback/frm_színezőmegnyitás.h"
#include "feedback/message_panels.h"
#include "platform/bitmap.h"
#include "tests/drawing/grid.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {

class DrawingTest : public SuiteTest {
 protected:
  static constexpr double px = twips_per_pixel;

  DrawingTest() {
    put_app_file(u"cserko\\paper.png");
    start();
    load<frm_főablak>();
  }

  frm_rajz& board() { return load<frm_rajz>(); }
  frm_rajz& open_board() {
    auto& window = open<frm_rajz>();
    machine.errors.clear();
    return window;
  }

  /// The middle of a point of the drawing area.
  static Point at(int column, int row) { return {(column + 0.5) * px, (row + 0.5) * px}; }
  Color color_at(int column, int row) { return board().board().color_at(at(column, row)); }
  void choose(int tool) { hand::click(board().cmd_művelet[tool]); }
  void choose_color(Color color) {
    for (int i = 0; i < frm_rajz::swatches; ++i) {
      if (board().szín[i].BackColor == color) {
        hand::click(board().szín[i]);
        return;
      }
    }
    FAIL() << "no such swatch";
  }
  void choose_width(int index) { hand::click(board().vonalvastagság[index]); }

  void press(int column, int row) { hand::press(board().kép, at(column, row).x, at(column, row).y); }
  void move(int column, int row, MouseButton button = MouseButton::Left) {
    hand::move(board().kép, at(column, row).x, at(column, row).y, button);
  }
  void release(int column, int row) { hand::release(board().kép, at(column, row).x, at(column, row).y); }
  void click(int column, int row) {
    press(column, row);
    release(column, row);
  }
  void stroke(int x0, int y0, int x1, int y1) {
    press(x0, y0);
    move(x1, y1);
    release(x1, y1);
  }
  PixelImage seen() { return board().board().image(); }
  bool blank() { return is_blank(seen()); }

  void put_bitmap(TextView path, const PixelImage& image) { machine.files().put(Text(path), write_bitmap(image)); }
  /// The bytes of a file anywhere, "(none)" if there is no such file.
  std::string file(TextView path) const { return machine.files().read_chosen(Text(path)).value_or("(none)"); }
  PixelImage bitmap(TextView path) {
    const auto bytes = machine.files().read_chosen(Text(path));
    return bytes ? read_bitmap(*bytes).value_or(PixelImage{}) : PixelImage{};
  }
};

} // namespace cserko
