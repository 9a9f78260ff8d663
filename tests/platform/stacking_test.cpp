// What lies before what, and the windows that a user moves about.
#include "tests/platform/fixture.h"

namespace cserko {
namespace {

class Stacking : public PlatformTest {
 protected:
  Label lower{window, u"lower", {0, 0, 900, 900}, u"a"};
  Label upper{window, u"upper", {300, 300, 900, 900}, u"b"};
  Frame frame{window, u"frame", {2000, 0, 2000, 2000}};
  Label inner{frame, u"inner", {0, 0, 900, 900}, u"c"};
  Label inner_upper{frame, u"inner_upper", {300, 300, 900, 900}, u"d"};
};

TEST_F(Stacking, WhatWasCreatedLaterLiesBeforeTheRest) {
  EXPECT_EQ(hand::element_at(window, 500, 500), &upper);
  EXPECT_EQ(hand::element_at(window, 2500, 500), &inner_upper);
  EXPECT_EQ(window.stacking(), window.elements());
}

TEST_F(Stacking, WhatIsBroughtToTheFrontTakesTheClick) {
  lower.Click = noting("lower");
  upper.Click = noting("upper");
  show();
  hand::click_at(window, 500, 500);
  lower.bring_to_front();
  hand::click_at(window, 500, 500);
  upper.bring_to_front();
  hand::click_at(window, 500, 500);
  EXPECT_EQ(log, (Log{"upper", "lower", "upper"}));
}

TEST_F(Stacking, AnElementComesToTheFrontOfItsContainerOnly) {
  Label cover(window, u"cover", {2000, 0, 900, 900}, u"x");
  inner.bring_to_front();
  EXPECT_EQ(hand::element_at(window, 2500, 500), &cover) << "it lies before the whole frame";
  EXPECT_EQ(hand::element_at(window, 2500, 950), &inner_upper);
  cover.Visible = false;
  EXPECT_EQ(hand::element_at(window, 2500, 500), &inner);
}

TEST_F(Stacking, AContainerBringsWhatItContains) {
  Label cover(window, u"cover", {2000, 0, 900, 900}, u"x");
  frame.bring_to_front();
  EXPECT_EQ(hand::element_at(window, 2500, 500), &inner_upper);
}

TEST_F(Stacking, AnElementLoadedLaterLiesBeforeOneThatWasBroughtToTheFront) {
  ElementArray<Label> letters(window, u"letters", Rect{0, 0, 900, 900});
  lower.bring_to_front();
  letters.load(1).Visible = true;
  EXPECT_EQ(hand::element_at(window, 500, 500), &letters[1]);
}

TEST_F(Stacking, TheOrderOfTheTabKeyStays) {
  lower.Choosable = upper.Choosable = true;
  show();
  EXPECT_EQ(window.focus(), &lower);
  lower.bring_to_front();
  hand::key(window, key::tab);
  EXPECT_EQ(window.focus(), &upper);
}

TEST_F(Stacking, ADropGoesToWhatLiesUppermost) {
  PictureBox source(window, u"source", {5000, 3000, 600, 600});
  source.DragAutomatic = true;
  lower.DragDrop = [this](Element&, double, double) { log.push_back("lower"); };
  upper.DragDrop = [this](Element&, double, double) { log.push_back("upper"); };
  show();
  hand::drag_to(source, {300, 300}, {500, 500});
  lower.bring_to_front();
  hand::drag_to(source, {300, 300}, {500, 500});
  EXPECT_EQ(log, (Log{"upper", "lower"}));
}

// Windows that are moved and resized.

class ResizedWindow : public TestWindow {
 public:
  using TestWindow::TestWindow;
  void Resize() override { sizes.push_back({Width, Height}); }
  std::vector<Size> sizes;
};

class MovedWindow : public PlatformTest {
 protected:
  ResizedWindow panel{platform, log, u"panel"};
};

TEST_F(MovedWindow, AMoveReachesTheWindow) {
  platform.show(panel);
  const Size size{panel.Width, panel.Height};
  hand::move_window(panel, 300, 450);
  EXPECT_EQ(panel.Left, 300);
  EXPECT_EQ(panel.Top, 450);
  EXPECT_EQ((Size{panel.Width, panel.Height}), size);
  EXPECT_TRUE(panel.sizes.empty());
}

TEST_F(MovedWindow, AnotherSizeIsAnEventOfTheWindow) {
  panel.Border = WindowBorder::Sizable;
  platform.show(panel);
  hand::resize_window(panel, 9000, 6000);
  EXPECT_EQ(panel.sizes, std::vector<Size>({{9000, 6000}}));
  EXPECT_EQ(panel.inner_width(), 9000 - HeadlessPlatform::frame_width);
  panel.Height = 7000;
  EXPECT_EQ(panel.sizes.size(), 1U) << "its own doing";
}

TEST_F(MovedWindow, OnlyWhatHasAFrameForItIsMovedAndResized) {
  platform.show(panel);
  EXPECT_THROW(hand::resize_window(panel, 9000, 6000), OutOfReach);
  panel.Border = WindowBorder::None;
  EXPECT_THROW(hand::move_window(panel, 300, 450), OutOfReach);
}

} // namespace
} // namespace cserko
