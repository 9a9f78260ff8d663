// The mouse on real windows.
#include "fixture.h"

namespace cserko::test {

namespace {

class Mouse : public QtMachine {
 protected:
  void note_moves(Element& element) {
    element.MouseMove = [this](const MouseEvent& event) { moves.push_back(event); };
  }
  std::vector<MouseEvent> moves;
};

TEST_F(Mouse, APressArrivesInTheElementsOwnTwips) {
  NotingWindow window(*machine);
  PictureBox outer(window, u"pic", {600, 450, 3000, 3000});
  Label inner(outer, u"lbl", {300, 300, 1500, 1500});
  std::vector<MouseEvent> presses;
  inner.MouseDown = [&](const MouseEvent& event) { presses.push_back(event); };
  show(window);
  press(inner, {150, 300}, Qt::RightButton);
  ASSERT_EQ(presses.size(), 1U);
  EXPECT_EQ(presses[0].button, MouseButton::Right);
  EXPECT_NEAR(presses[0].x, 150, 1);
  EXPECT_NEAR(presses[0].y, 300, 1);
  release(window, place(inner, {150, 300}), Qt::RightButton);
}

TEST_F(Mouse, WhatIsPressedKeepsTheMouseUntilItsRelease) {
  NotingWindow window(*machine);
  Label first(window, u"lbl_a", {300, 300, 900, 900});
  Label second(window, u"lbl_b", {3000, 300, 900, 900});
  note_moves(first);
  int wrong = 0;
  second.MouseMove = [&](const MouseEvent&) { ++wrong; };
  second.MouseUp = [&](const MouseEvent&) { ++wrong; };
  std::vector<MouseEvent> ups;
  first.MouseUp = [&](const MouseEvent& event) { ups.push_back(event); };
  show(window);
  press(first, {150, 150});
  move(window, place(second, {150, 150}));
  release(window, place(second, {150, 150}));
  ASSERT_FALSE(moves.empty());
  EXPECT_NEAR(moves.back().x, 2850, 1);
  EXPECT_EQ(moves.back().button, MouseButton::Left);
  ASSERT_EQ(ups.size(), 1U);
  EXPECT_NEAR(ups[0].x, 2850, 1);
  EXPECT_EQ(wrong, 0);
}

TEST_F(Mouse, CoordinatesFollowAnElementThatMovesWhileItIsHeld) {
  NotingWindow window(*machine);
  Label letter(window, u"lbl", {300, 300, 900, 900}, u"A");
  Point grabbed;
  letter.MouseDown = [&](const MouseEvent& event) { grabbed = {event.x, event.y}; };
  letter.MouseMove = [&](const MouseEvent& event) {
    if (event.button == MouseButton::Left)
      letter.move_to(letter.Left + event.x - grabbed.x, letter.Top + event.y - grabbed.y);
  };
  show(window);
  const QPoint start = place(letter, {150, 150});
  press(letter, {150, 150});
  for (int step = 1; step <= 20; ++step) move(window, start + QPoint(5 * step, 3 * step));
  release(window, start + QPoint(100, 60));
  EXPECT_NEAR(letter.Left, 300 + 1500, 1);
  EXPECT_NEAR(letter.Top, 300 + 900, 1);
  EXPECT_EQ(widget(letter).pos(), QPoint(120, 80));
}

TEST_F(Mouse, AReleaseInsideIsAClickAndOutsideIsNone) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900});
  int clicks = 0;
  label.Click = [&] { ++clicks; };
  show(window);
  click(label);
  EXPECT_EQ(clicks, 1);
  press(label, {150, 150});
  release(window, place(label, {150, 150}) + QPoint(200, 100));
  EXPECT_EQ(clicks, 1);
}

TEST_F(Mouse, ButtonsBoxesAndOptionsAreClicked) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {300, 300, 1500, 600}, u"Rendben");
  CheckBox box(window, u"chk", {300, 1200, 1500, 450}, u"Hanggal");
  OptionButton first(window, u"opt_a", {300, 2000, 1500, 450}, u"Egyik", true);
  OptionButton second(window, u"opt_b", {300, 2700, 1500, 450}, u"Másik");
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show(window);
  click(button);
  EXPECT_EQ(clicks, 1);
  click(box);
  EXPECT_TRUE(box.ticked());
  click(box);
  EXPECT_FALSE(box.ticked());
  click(second);
  EXPECT_TRUE(second.value());
  EXPECT_FALSE(first.value());
}

TEST_F(Mouse, WhatIsDisabledIsNotClicked) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {300, 300, 1500, 600}, u"Rendben");
  Label label(window, u"lbl", {300, 1200, 1500, 600});
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  label.Click = [&] { ++clicks; };
  button.Enabled = false;
  label.Enabled = false;
  show(window);
  click(button);
  click(label);
  EXPECT_EQ(clicks, 0);
}

TEST_F(Mouse, ThePlainWindowHasItsOwnMouseEvents) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900});
  show(window);
  const QPoint corner = place(label, {0, 0});
  QTest::mousePress(view(window).windowHandle(), Qt::LeftButton, {}, corner + QPoint(100, 100));
  ASSERT_EQ(window.presses.size(), 1U);
  EXPECT_NEAR(window.presses[0].x, 1800, 1);
  EXPECT_NEAR(window.presses[0].y, 1800, 1);
}

TEST_F(Mouse, AnElementDroppedOnAnotherIsHandedToIt) {
  NotingWindow window(*machine);
  PictureBox source(window, u"pic_a", {300, 300, 900, 900});
  PictureBox target(window, u"pic_b", {3000, 300, 900, 900});
  source.DragAutomatic = true;
  const Element* dropped = nullptr;
  double x = 0;
  target.DragDrop = [&](Element& what, double at, double) {
    dropped = &what;
    x = at;
  };
  show(window);
  press(source, {150, 150});
  EXPECT_EQ(widget(source).cursor().shape(), Qt::ClosedHandCursor);
  move(window, place(target, {300, 300}));
  release(window, place(target, {300, 300}));
  EXPECT_EQ(dropped, &source);
  EXPECT_NEAR(x, 300, 1);
  EXPECT_NE(widget(source).cursor().shape(), Qt::ClosedHandCursor);
}

TEST_F(Mouse, UpDownStepsWithinItsRange) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 900, 450});
  UpDown updown(window, u"ud", {1200, 300, 300, 450}, box, {1, 3, 1}, 2);
  show(window);
  const QPoint up = place(updown, {150, 75});
  for (int time = 0; time < 3; ++time) QTest::mouseClick(view(window).windowHandle(), Qt::LeftButton, {}, up);
  EXPECT_EQ(updown.value(), 3);
  EXPECT_EQ(box.text(), u"3");
}

TEST_F(Mouse, ChoosingInAListSelectsAndChoosingTheSameAgainClicksAgain) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.Items = {u"alma", u"béka", u"cica"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  show(window);
  const QPoint second = place(list, {300, 525});
  QTest::mouseClick(view(window).windowHandle(), Qt::LeftButton, {}, second);
  const int chosen = list.list_index();
  EXPECT_GT(chosen, 0);
  EXPECT_EQ(clicks, 1);
  QTest::mouseClick(view(window).windowHandle(), Qt::LeftButton, {}, second);
  EXPECT_EQ(list.list_index(), chosen);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Mouse, PressingWhatTakesNoFocusLeavesTheTypingWhereItIs) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 1500, 450});
  Label label(window, u"lbl", {300, 1200, 1500, 600}, u"felirat");
  PictureBox picture(window, u"pic", {300, 2000, 1500, 600});
  picture.TabStop = false;
  show(window);
  type(window, "a");
  click(label);
  type(window, "b");
  click(picture);
  type(window, "c");
  click(picture, {3000, 75});
  type(window, "d");
  EXPECT_EQ(window.focus(), &box);
  EXPECT_EQ(box.text(), u"abcd");
}

TEST_F(Mouse, PressingWhatTakesTheFocusMovesIt) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 1500, 450});
  Label label(window, u"lbl", {300, 1200, 1500, 600}, u"betű");
  label.Choosable = true;
  Button button(window, u"cmd", {300, 2000, 1500, 600}, u"Rendben");
  show(window);
  click(label);
  EXPECT_EQ(window.focus(), &label);
  EXPECT_TRUE(widget(label).hasFocus());
  click(button);
  EXPECT_EQ(window.focus(), &button);
  click(box);
  EXPECT_EQ(window.focus(), &box);
}

TEST_F(Mouse, AnEventThatThrowsIsToldOfAndEndsThatEventAlone) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900});
  int presses = 0;
  label.MouseDown = [&](const MouseEvent&) {
    if (++presses == 1) throw std::runtime_error("baj van");
  };
  show(window);
  QString told;
  answer_box([&](QMessageBox& box) { told = box.text(); });
  click(label);
  EXPECT_EQ(told, "baj van");
  click(label);
  EXPECT_EQ(presses, 2);
}

} // namespace
} // namespace cserko::test
