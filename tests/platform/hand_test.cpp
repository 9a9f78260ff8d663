#include "fixture.h"
#include "tests/players/headless_hand.h"

namespace cserko {
namespace {

class HandTest : public PlatformTest {
 protected:
  PictureBox frame{window, u"kép", {120, 720, 4695, 3000}};
  Label letter{frame, u"betű", {300, 300, 400, 400}, u"sz"};
  Button button{window, u"cmd_kész", {120, 120, 900, 300}, u"Kész"};
  Point grip_{};

  /// The letter follows the mouse from where it was taken, as letters of a game do.
  void make_letter_follow() {
    letter.MouseDown = [this](const MouseEvent& event) { grip_ = {event.x, event.y}; };
    letter.MouseMove = [this](const MouseEvent& event) {
      letter.move_to(letter.Left + event.x - grip_.x, letter.Top + event.y - grip_.y);
    };
  }
};

TEST_F(HandTest, DragsAnElementThatFollowsTheMouse) {
  make_letter_follow();
  show();
  hand::drag(letter, 1000, -200);
  EXPECT_DOUBLE_EQ(letter.Left, 1300);
  EXPECT_DOUBLE_EQ(letter.Top, 100);
}

TEST_F(HandTest, TheMouseComesToTheSamePlaceAlsoWhenTheElementStays) {
  std::vector<Point> seen;
  letter.MouseMove = [&](const MouseEvent& event) { seen.push_back({event.x, event.y}); };
  Point released{};
  letter.MouseUp = [&](const MouseEvent& event) { released = {event.x, event.y}; };
  show();
  hand::drag(letter, 1000, -200);
  EXPECT_EQ(seen.size(), 4U);
  EXPECT_EQ(seen.back(), (Point{1200, 0}));
  EXPECT_EQ(released, (Point{1200, 0}));
}

TEST_F(HandTest, LetsGoOfAnElementThatGoesAway) {
  ElementArray<Label> letters(window, u"betű", {0, 0, 300, 300});
  letters.load(1).Visible = true;
  letters.MouseMove = [&](int, const MouseEvent&) { letters.unload_from(1); };
  letters.MouseUp = [this](int, const MouseEvent&) { log.push_back("up"); };
  show();
  hand::drag(letters[1], 500, 0);
  EXPECT_EQ(log, Log{});
}

TEST_F(HandTest, ReachesOnlyWhatIsShownInTheWindowAtTheFront) {
  EXPECT_THROW(hand::click(button), OutOfReach) << "the window is not shown";
  show();
  button.Visible = false;
  EXPECT_THROW(hand::click(button), OutOfReach);
  button.Visible = true;
  TestWindow other(platform, log, u"other");
  platform.show(other);
  EXPECT_THROW(hand::click(button), OutOfReach);
  EXPECT_THROW(hand::click(letter), OutOfReach);
  EXPECT_THROW(hand::key(window, 'A'), OutOfReach);
  EXPECT_THROW(hand::close(window), OutOfReach);
}

TEST_F(HandTest, ADisabledButtonJustDoesNotReact) {
  button.Click = noting("click");
  button.Enabled = false;
  show();
  hand::click(button);
  EXPECT_EQ(log, Log{});
}

TEST_F(HandTest, ChoosesMenuEntriesThatHaveNoPlace) {
  MenuItem menu(window, u"mnu_fájl", u"&Fájl");
  MenuItem item(menu, u"mnu_fájl_kilép", u"&Kilép");
  item.Click = noting("exit");
  show();
  hand::click(item);
  EXPECT_EQ(log, Log{"exit"});
  menu.Enabled = false;
  hand::click(item);
  EXPECT_EQ(log.size(), 1U);
}

TEST_F(HandTest, DrawsFreehandWithAnyButton) {
  std::vector<Point> points;
  const auto note = [&](const MouseEvent& event) {
    EXPECT_EQ(event.button, MouseButton::Right);
    points.push_back({event.x, event.y});
  };
  letter.MouseDown = letter.MouseMove = letter.MouseUp = note;
  show();
  hand::draw(letter, {{10, 20}, {500, -40}, {700, 900}}, MouseButton::Right);
  EXPECT_EQ(points, (std::vector<Point>{{10, 20}, {500, -40}, {700, 900}, {700, 900}}));
}

TEST_F(HandTest, TwoQuickClicksAreADoubleClick) {
  letter.Click = noting("click");
  letter.DblClick = noting("double");
  letter.MouseDown = [this](const MouseEvent&) { log.push_back("down"); };
  show();
  hand::double_click(letter);
  EXPECT_EQ(log, (Log{"down", "click", "down", "double", "click"}));
}

TEST_F(HandTest, ClicksAtAPlaceWhateverLiesUppermost) {
  letter.Click = noting("letter");
  frame.MouseDown = [this](const MouseEvent& event) {
    EXPECT_EQ(event.x, 880);
    log.push_back("frame");
  };
  button.Click = noting("button");
  show();
  EXPECT_EQ(hand::element_at(window, 500, 1100), &letter);
  hand::click_at(window, 500, 1100);
  hand::click_at(window, 1000, 3000);
  hand::click_at(window, 200, 200);
  EXPECT_EQ(log, (Log{"letter", "frame", "button"}));
  letter.Visible = false;
  EXPECT_EQ(hand::element_at(window, 500, 1100), &frame);
  EXPECT_EQ(hand::element_at(window, 5900, 100), nullptr);
}

TEST_F(HandTest, ClickingAButtonGivesItTheFocus) {
  show();
  EXPECT_EQ(window.focus(), &frame);
  hand::click(button);
  EXPECT_EQ(window.focus(), &button);
}

TEST_F(HandTest, AKeyComesUpInTheWindowThatItHasOpened) {
  TestWindow panel(platform, log, u"panel");
  button.Click = [&] { platform.show(panel); };
  button.Default = true;
  show();
  hand::key(window, key::enter);
  EXPECT_EQ(log, (Log{"window KeyDown 13", "panel Activate", "panel KeyUp 13"}));
}

TEST_F(HandTest, APlayerUsesItThroughTheInterface) {
  make_letter_follow();
  window.KeyPreview = true;
  button.Click = noting("click");
  show();
  HeadlessHand headless(platform);
  Hand& player_hand = headless;
  player_hand.click(button);
  player_hand.drag(letter, 300, 0);
  player_hand.key(key::left, shift::none);
  EXPECT_DOUBLE_EQ(letter.Left, 600);
  EXPECT_EQ(log, (Log{"click", "window KeyDown 37", "window KeyUp 37"}));
}

} // namespace
} // namespace cserko
