// The checks of the tour find what they are made for, and nothing in a window that is as it should be.
#include "platform/element_array.h"
#include "platform/headless/headless_platform.h"
#include "tests/tour/checks.h"

#include <gmock/gmock.h>

namespace cserko::tour {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class SampleWindow : public Window {
 public:
  explicit SampleWindow(Platform& platform) : Window(platform, u"minta", {6000, 3000}, u"Minta") {
    set_inner_size(design_size());
  }

  Label upper{*this, u"upper", {120, 120, 2400, 480}, u"Egy"};
  Label lower{*this, u"lower", {120, 720, 2400, 480}, u"Kettő"};
  PictureBox board{*this, u"board", {3000, 120, 2400, 2400}};
  ElementArray<Label> letter{board, u"letter", {0, 0, 480, 480}, TextView(u"m")};
  Button press{*this, u"press", {120, 1500, 1500, 480}, u"&Kész"};
};

class TourChecks : public ::testing::Test {
 protected:
  HeadlessPlatform platform;
  SampleWindow window{platform};
};

TEST_F(TourChecks, NothingIsWrongWithAWindowWhoseElementsFit) { EXPECT_THAT(faults(window), IsEmpty()); }

TEST_F(TourChecks, ALineThatIsWiderThanItsLabelIsClipped) {
  window.upper.WordWrap = false;
  window.upper.Caption = u"Egy nagyon hosszú sor, amelyik sehogyan sem fér el";
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("minta: upper clips its text")));
}

TEST_F(TourChecks, AWrappedTextThatIsTallerThanItsLabelIsClipped) {
  window.upper.Caption = u"Egy nagyon hosszú szöveg, amelyik több sorban sem fér el abban a kis helyben";
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("minta: upper clips its text")));
}

TEST_F(TourChecks, AMnemonicMarkTakesNoRoom) {
  window.press.Width = platform.measure(window.press.Font, u"Kész").width;
  EXPECT_THAT(faults(window), IsEmpty());
}

TEST_F(TourChecks, ACaptionThatOverfillsItsButtonIsClipped) {
  window.press.Font.size = 40;
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("press clips its text")));
}

TEST_F(TourChecks, ElementsOnTopOfEachOtherAreFound) {
  window.lower.Top = window.upper.Top + 240;
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("lower lies on upper")));
}

TEST_F(TourChecks, AnEmptyLabelHidesNothing) {
  window.lower.Top = window.upper.Top;
  window.lower.Caption.clear();
  EXPECT_THAT(faults(window), IsEmpty());
}

TEST_F(TourChecks, AHiddenElementHidesNothing) {
  window.lower.Top = window.upper.Top;
  window.lower.Visible = false;
  EXPECT_THAT(faults(window), IsEmpty());
}

TEST_F(TourChecks, AnIntendedOverlapIsNoFaultInItsOwnWindowOnly) {
  window.letter.design(1, {240, 0, 480, 480}, u"m");
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("letter(1) lies on letter(0)")));
  EXPECT_THAT(faults(window, {false, {{u"minta", u"letter", u"letter"}}}), IsEmpty());
  EXPECT_THAT(faults(window, {false, {{u"másik", u"letter", u"letter"}}}), ElementsAre(HasSubstr("letter(1)")));
}

TEST_F(TourChecks, AnElementThatReachesOutOfItsContainerIsFound) {
  window.letter[0].Left = window.board.Width - 240;
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("letter(0) reaches outside")));
}

TEST_F(TourChecks, AnElementThatMayLieOnItsContainerMayReachOutOfIt) {
  window.letter[0].Left = window.board.Width - 240;
  EXPECT_THAT(faults(window, {false, {{u"minta", u"letter", u"board"}}}), IsEmpty());
  EXPECT_THAT(faults(window, {false, {{u"minta", u"letter", u"letter"}}}), ElementsAre(HasSubstr("letter(0)")));
}

TEST_F(TourChecks, AnElementThatReachesOutOfTheWindowIsFound) {
  window.press.Top = window.inner_height() - 240;
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("press reaches outside")));
}

TEST_F(TourChecks, AWindowThatIsLargerThanTheScreenIsFound) {
  window.Width = platform.screen_size().width + 150;
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("larger than the screen"), HasSubstr("outside the screen")));
}

TEST_F(TourChecks, AWindowThatHangsOverTheEdgeOfTheScreenIsFound) {
  window.Left = platform.screen_size().width - window.Width / 2;
  EXPECT_THAT(faults(window), ElementsAre(HasSubstr("outside the screen")));
}

TEST_F(TourChecks, ADialogMustFitALowScreen) {
  window.Height = tallest_dialog + 15;
  EXPECT_THAT(faults(window), IsEmpty());
  EXPECT_THAT(faults(window, {true, {}}), ElementsAre(HasSubstr("dialog of 601 pixels")));
}

} // namespace
} // namespace cserko::tour
