// The drawing board by keyboard alone.
#include "tests/drawing/drawing_fixture.h"

#include <set>

namespace cserko {
namespace {

class DrawingKeys : public DrawingTest {
 protected:
  // Where the keyboard's pen begins, in points.
  Point start() { return {std::floor(board().kép.Width / 2 / px), std::floor(board().kép.Height / 2 / px)}; }
  Color color_from_start(int dx, int dy) {
    return color_at(static_cast<int>(start().x) + dx, static_cast<int>(start().y) + dy);
  }
  void keys(std::initializer_list<int> codes, int shift = shift::none) {
    for (const int code : codes) hand::key(board(), code, shift);
  }
};

TEST_F(DrawingKeys, ThePaperHasTheFocusFirst) {
  auto& window = open_board();
  EXPECT_EQ(window.focus(), &window.kép);
}

TEST_F(DrawingKeys, ArrowsMoveThePenAndSpaceDraws) {
  auto& window = open_board();
  keys({key::right});
  EXPECT_TRUE(blank()) << "the pen is lifted";
  EXPECT_TRUE(window.marker[0].Visible);
  keys({key::left, key::space, key::right, key::right, key::down, key::space, key::right});
  EXPECT_EQ(color_from_start(0, 0), black);
  EXPECT_EQ(color_from_start(16, 0), black);
  EXPECT_EQ(color_from_start(16, 8), black);
  EXPECT_EQ(color_from_start(24, 8), white);
  hand::click(window.cmd_undo);
  EXPECT_TRUE(blank()) << "one step";
}

TEST_F(DrawingKeys, AHeldSpaceBarIsOnePress) {
  auto& window = open_board();
  for (int i = 0; i < 5; ++i) input::key_down(window, {key::space, shift::none, u' '});
  input::key_up(window, {key::space, shift::none, u' '});
  keys({key::right});
  EXPECT_EQ(color_from_start(6, 0), black) << "still on the paper";
}

TEST_F(DrawingKeys, ShiftMovesByAPixelAndControlFar) {
  auto& window = open_board();
  keys({'1'});
  hand::key(window, '1', shift::control);
  keys({key::space});
  keys({key::right, key::right, key::right}, shift::shift);
  keys({key::space});
  EXPECT_EQ(color_from_start(3, 0), black);
  EXPECT_EQ(color_from_start(5, 0), white);
  const double left = window.marker[1].Left;
  keys({key::down, key::right}, shift::control);
  EXPECT_EQ(window.marker[1].Left - left, 32 * px);
}

TEST_F(DrawingKeys, ThePenStaysOnThePaper) {
  auto& window = open_board();
  for (int i = 0; i < 400; ++i) keys({key::left, key::up}, shift::control);
  keys({key::space, key::space});
  EXPECT_EQ(color_at(0, 0), black);
  for (int i = 0; i < 400; ++i) keys({key::right, key::down}, shift::control);
  keys({key::space, key::space});
  const PixelImage all = seen();
  EXPECT_EQ(all.at(all.width - 1, all.height - 1), black);
  EXPECT_TRUE(window.kép.Visible);
}

TEST_F(DrawingKeys, DigitsChooseToolsAndWithControlWidths) {
  auto& window = open_board();
  for (int i = 0; i < 5; ++i) {
    keys({'1' + i});
    EXPECT_EQ(window.tool(), i);
    keys({'1' + i}, shift::control);
    EXPECT_EQ(window.kép.DrawWidth, 3 * i + 1);
  }
}

TEST_F(DrawingKeys, EveryToolDrawsByKeyboard) {
  auto& window = open_board();
  keys({'5', key::space, key::right, key::right, key::space});
  EXPECT_EQ(color_from_start(8, 0), black) << "a line";
  keys({'Z'}, shift::control);
  keys({'4', key::space, key::down, key::down, key::left, key::left, key::space});
  EXPECT_EQ(color_from_start(8, 16), black) << "a rectangle";
  EXPECT_EQ(color_from_start(8, 8), white);
  keys({'3', key::up, key::right, key::space});
  EXPECT_EQ(color_from_start(8, 8), black) << "filled";
  keys({'2', key::space, key::right, key::space});
  EXPECT_EQ(color_from_start(8, 8), white) << "wiped";
  EXPECT_TRUE(window.radír.Visible);
}

TEST_F(DrawingKeys, ArrowsGoAmongTheSwatchesWhichAreOneTabStop) {
  auto& window = open_board();
  std::set<const Element*> stops;
  for (int i = 0; i < 100; ++i) {
    hand::key(window, key::tab);
    stops.insert(window.focus());
  }
  EXPECT_EQ(stops.count(&window.szín[0]), 1U);
  EXPECT_EQ(stops.count(&window.szín[1]), 0U);
  for (const Element* wanted : std::initializer_list<const Element*>{
           &window.kép, &window.cmd_művelet[0], &window.cmd_művelet[4], &window.aktívszín, &window.vonalvastagság[1],
           &window.chk_vonalnem, &window.cmd_megnyit, &window.cmd_ment, &window.cmd_nyomtat, &window.cmd_törlés,
           &window.Command1, &window.Command2, &window.cmd_színező})
    EXPECT_EQ(stops.count(wanted), 1U) << utf8(wanted->Name);
  input::focus(window.szín[0]);
  keys({key::right, key::down});
  EXPECT_EQ(window.focus(), &window.szín[17]);
  EXPECT_EQ(window.aktívszín.BackColor, window.szín[17].BackColor);
  keys({key::down});
  EXPECT_EQ(window.focus(), &window.szín[17]) << "there is no further row";
  keys({key::up, key::left});
  EXPECT_EQ(window.focus(), &window.szín[0]);
}

TEST_F(DrawingKeys, ArrowsGoAmongTheWidths) {
  auto& window = open_board();
  input::focus(window.vonalvastagság[1]);
  keys({key::right, key::right});
  EXPECT_EQ(window.kép.DrawWidth, 10);
  keys({key::up});
  EXPECT_EQ(window.kép.DrawWidth, 1);
}

TEST_F(DrawingKeys, EnterOnThePresentColourMixesOne) {
  auto& window = open_board();
  input::focus(window.aktívszín);
  machine.dialogs().colors = {Color{9, 8, 7}};
  keys({key::enter});
  EXPECT_EQ(window.aktívszín.BackColor, (Color{9, 8, 7}));
}

TEST_F(DrawingKeys, ControlKeysOpenSavePrintAndPaste) {
  auto& window = open_board();
  put_bitmap(u"c:\\a.bmp", image_of({"r"}));
  machine.dialogs().files_to_open = {Text(u"c:\\a.bmp")};
  keys({'O'}, shift::control);
  EXPECT_FALSE(blank());
  machine.dialogs().files_to_save = {Text(u"c:\\b.bmp")};
  keys({'S'}, shift::control);
  EXPECT_EQ(bitmap(u"c:\\b.bmp"), seen());
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) { hand::click(panel.cmd_ok); });
  keys({'P'}, shift::control);
  EXPECT_EQ(machine.printing().pages.size(), 1U);
  machine.clipboard = image_of({"b"});
  keys({'V'}, shift::control);
  EXPECT_EQ(color_at(seen().width / 2, seen().height / 2), blue);
  EXPECT_TRUE(window.visible());
}

TEST_F(DrawingKeys, TheMouseDoesNotDrawWhileTheKeyboardDoes) {
  auto& window = open_board();
  keys({key::space});
  move(3, 3);
  release(3, 3);
  keys({key::right, key::space});
  EXPECT_EQ(color_at(3, 3), white);
  EXPECT_EQ(color_from_start(8, 0), black);
  press(3, 3);
  EXPECT_FALSE(window.marker[0].Visible) << "the mouse hides the cross";
  release(3, 3);
}

} // namespace
} // namespace cserko
