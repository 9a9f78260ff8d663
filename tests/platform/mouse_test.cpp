#include "fixture.h"

namespace cserko {
namespace {

class Mouse : public PlatformTest {
 protected:
  Button button{window, u"cmd_kész", {100, 100, 1000, 500}, u"Kész"};
  Label label{window, u"betű", {2000, 100, 600, 600}, u"a"};
};

TEST_F(Mouse, ClickRunsTheHandlerAsOneEvent) {
  button.Click = noting("click");
  show();
  input::click(button);
  EXPECT_EQ(log, Log{"click"});
  EXPECT_EQ(host.events, 1);
}

TEST_F(Mouse, NothingHappensToWhatIsHiddenOrDisabled) {
  button.Click = noting("click");
  show();
  button.Enabled = false;
  input::click(button);
  button.Enabled = true;
  button.Visible = false;
  input::click(button);
  button.Visible = true;
  window.Enabled = false;
  input::click(button);
  EXPECT_EQ(log, Log{});
}

TEST_F(Mouse, AContainerPassesItsStateOn) {
  Frame frame(window, u"frame", {0, 1000, 3000, 1000});
  CheckBox box(frame, u"chk", {100, 100, 900, 300}, u"Hang");
  show();
  frame.Enabled = false;
  input::toggle(box);
  EXPECT_EQ(box.value(), 0);
  frame.Enabled = true;
  input::toggle(box);
  EXPECT_EQ(box.value(), 1);
}

TEST_F(Mouse, ClickingACheckBoxTicksAndClearsIt) {
  CheckBox box(window, u"chk", {0, 1000, 900, 300}, u"Hang", 2);
  show();
  std::vector<int> values;
  box.Click = [&] { values.push_back(box.value()); };
  hand::click(box);
  hand::click(box);
  hand::click(box);
  EXPECT_EQ(values, (std::vector<int>{1, 0, 1}));
}

TEST_F(Mouse, ClickingAnOptionChoosesItAndAgainChangesNothing) {
  OptionButton one(window, u"opt", {0, 1000, 900, 300}, u"1", true);
  OptionButton two(window, u"opt", {0, 1500, 900, 300}, u"2");
  two.Click = noting("two");
  show();
  hand::click(two);
  hand::click(two);
  EXPECT_FALSE(one.value());
  EXPECT_EQ(log, Log{"two"});
}

TEST_F(Mouse, PressAndReleaseInsideALabelAreAlsoAClick) {
  label.MouseDown = [this](const MouseEvent& event) {
    EXPECT_EQ(event.x, 300);
    log.push_back("down");
  };
  label.MouseUp = [this](const MouseEvent&) { log.push_back("up"); };
  label.Click = noting("click");
  show();
  hand::click(label);
  EXPECT_EQ(log, (Log{"down", "up", "click"}));
}

TEST_F(Mouse, ReleaseOutsideIsNoClickButIsStillHeard) {
  label.MouseUp = [this](const MouseEvent& event) {
    EXPECT_EQ(event.x, 700);
    log.push_back("up");
  };
  label.Click = noting("click");
  show();
  hand::press(label, 10, 10);
  hand::release(label, 700, 10);
  EXPECT_EQ(log, Log{"up"});
}

TEST_F(Mouse, OtherButtonsPressButDoNotClick) {
  label.MouseDown = [this](const MouseEvent& event) {
    EXPECT_EQ(event.button, MouseButton::Middle);
    EXPECT_EQ(event.shift, 7);
    log.push_back("down");
  };
  label.Click = noting("click");
  show();
  hand::click(label, MouseButton::Middle, shift::shift | shift::control | shift::alt);
  EXPECT_EQ(log, Log{"down"});
}

TEST_F(Mouse, AnElementThatHidesOnReleaseIsNotClicked) {
  label.MouseUp = [this](const MouseEvent&) { label.Visible = false; };
  label.Click = noting("click");
  show();
  hand::click(label);
  EXPECT_EQ(log, Log{});
}

TEST_F(Mouse, PressingMovesTheFocusToWhatTakesIt) {
  PictureBox box(window, u"kép", {0, 1000, 900, 900});
  PictureBox without_stop(window, u"dísz", {1000, 1000, 900, 900});
  without_stop.TabStop = false;
  show();
  hand::click(box);
  EXPECT_EQ(window.focus(), &box);
  hand::click(without_stop);
  EXPECT_EQ(window.focus(), &box);
  hand::click(label);
  EXPECT_EQ(window.focus(), &box) << "labels take no focus";
}

TEST_F(Mouse, ADroppedElementGoesToWhatLiesUnderThePointer) {
  label.DragAutomatic = true;
  PictureBox below(window, u"alul", {3000, 0, 1500, 1500});
  PictureBox above(window, u"felül", {3000, 0, 1000, 1000});
  below.DragDrop = [this](Element&, double, double) { log.push_back("below"); };
  above.DragDrop = [this](Element& source, double x, double y) {
    EXPECT_EQ(&source, &label);
    EXPECT_EQ(x, 100);
    EXPECT_EQ(y, 300);
    log.push_back("above");
  };
  show();
  hand::drag_to(label, {300, 300}, {3100, 300});
  EXPECT_EQ(log, Log{"above"});
  above.Visible = false;
  hand::drag_to(label, {300, 300}, {3100, 300});
  EXPECT_EQ(log.back(), "below");
}

TEST_F(Mouse, ADropOnNothingOrOnItselfIsLost) {
  label.DragAutomatic = true;
  label.DragDrop = [this](Element&, double, double) { log.push_back("itself"); };
  show();
  hand::drag(label, 0, 100);
  hand::drag(label, 0, 3000);
  EXPECT_EQ(log, Log{});
}

TEST_F(Mouse, TheWindowItselfHearsWhatNoElementTakes) {
  show();
  hand::click_at(window, 5000, 4000);
  EXPECT_EQ(log, (Log{"window MouseDown", "window MouseUp"}));
  window.Enabled = false;
  hand::click_at(window, 5000, 4000);
  EXPECT_EQ(log.size(), 2U);
}

TEST_F(Mouse, AnErrorInAHandlerEndsThatEventAndNoMore) {
  button.Click = [] { throw std::runtime_error("nem megy"); };
  show();
  hand::click(button);
  EXPECT_EQ(platform.errors, std::vector<Text>{u"nem megy"});
  button.Click = noting("click");
  hand::click(button);
  EXPECT_EQ(log, Log{"click"});
}

TEST_F(Mouse, TheCloseControlAsksTheHost) {
  show();
  hand::close(window);
  EXPECT_EQ(host.close_requests, std::vector<Text>{u"window"});
  EXPECT_TRUE(window.visible()) << "it never closes by itself";
  window.Enabled = false;
  hand::close(window);
  EXPECT_EQ(host.close_requests.size(), 1U);
}

} // namespace
} // namespace cserko
