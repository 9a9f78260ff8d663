// The frame that all windows share: scale and place on the screen, the backdrop, the common pause, help, and what
// happens when a handler fails.
#include "core/frame.h"
#include "core/frm_főablak.h"
#include "core/frm_referencia.h"
#include "core/frmháttér.h"
#include "core/frmwait.h"
#include "exercises/letters/frm_cserkó.h"
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

constexpr double screen_width = 1280 * 15;
constexpr double screen_height = 1024 * 15;

class FrameTest : public SuiteTest {
 protected:
  FrameTest() { start(); }
};

// Right edges 1100 and 2000, bottoms 700 and 1200.
struct TwoControls : PlainWindow {
  explicit TwoControls(Session& session) : PlainWindow(session, u"two") { set_inner_size({3000, 2000}); }
  Label label{*this, u"label", {100, 200, 1000, 500}};
  Button button{*this, u"button", {1200, 900, 800, 300}};
  Timer timer{*this, u"timer", 100};
};

TEST_F(FrameTest, ScalingIsLimitedByTheHeightOfTheScreen) {
  machine.set_screen(4000, 1000);
  TwoControls window(session());
  ablak_méretezés(window, 0.5);
  // Inner height before scaling: the lowest edge and half of the margin of 120.
  const double k = (15000 - 450) * 0.5 / (1200 + 60);
  EXPECT_DOUBLE_EQ(window.label.Left, 100 * k);
  EXPECT_DOUBLE_EQ(window.label.Top, 200 * k);
  EXPECT_DOUBLE_EQ(window.label.Width, 1000 * k);
  EXPECT_DOUBLE_EQ(window.label.Height, 500 * k);
  EXPECT_DOUBLE_EQ(window.Height, 1200 * k + 120 + 450);
  EXPECT_DOUBLE_EQ(window.Width, 2000 * k + 120 + 90);
}

TEST_F(FrameTest, AWindowWiderThanItsShareIsLimitedByTheWidth) {
  machine.set_screen(500, 1000);
  TwoControls window(session());
  ablak_méretezés(window, 0.5);
  const double k = (7500 - 90) * 0.5 / (2000 + 60);
  EXPECT_DOUBLE_EQ(window.button.Left, 1200 * k);
  EXPECT_DOUBLE_EQ(window.Height, 1200 * k + 120 + 450);
  EXPECT_DOUBLE_EQ(window.Width, 2000 * k + 120 + 90);
  EXPECT_LE(window.Width, 7500 * 0.5 + 120 + 90);
}

TEST_F(FrameTest, TheWidthIsComparedWithItsFrame) {
  // By the height alone the window would take up 11894 twips inside and 12414 with its frame, grown like the rest.
  machine.set_screen(1620, 1000);
  TwoControls window(session());
  ablak_méretezés(window, 0.5);
  EXPECT_DOUBLE_EQ(window.label.Width, 1000 * (24300 - 90) * 0.5 / (2000 + 60));
}

TEST_F(FrameTest, AMenuBarCountsAsPartOfTheFrame) {
  machine.set_screen(4000, 1000);
  TwoControls window(session());
  const MenuItem menu(window, u"menu", u"Menu");
  ablak_méretezés(window, 0.5);
  const double k = (15000 - 825) * 0.5 / (1200 + 60);
  EXPECT_DOUBLE_EQ(window.Height, 1200 * k + 120 + 825);
}

TEST_F(FrameTest, ControlsInsideAFrameAreScaledToo) {
  machine.set_screen(4000, 1000);
  TwoControls window(session());
  Frame frame(window, u"frame", {0, 0, 900, 900});
  CheckBox inside(frame, u"inside", {30, 60, 400, 300}, u"");
  ablak_méretezés(window, 0.5);
  const double k = window.label.Width / 1000;
  EXPECT_DOUBLE_EQ(inside.Left, 30 * k);
  EXPECT_DOUBLE_EQ(inside.Height, 300 * k);
}

// The scale that a window of the suite should have, from its unscaled design.
template<class W> double expected_scale(Session& session, double factor) {
  W design(session);
  double right = 0;
  double bottom = 0;
  bool has_menu = false;
  for (const Element* element : design.elements()) {
    has_menu = has_menu || element->kind() == ElementKind::MenuItem;
    right = std::max(right, element->Left + element->Width);
    bottom = std::max(bottom, element->Top + element->Height);
  }
  const double chrome = has_menu ? 825 : 450;
  const double width = 120 * factor + right + 90;
  const double k = (screen_height - chrome) * factor / (120 * factor + bottom);
  return width * k > screen_width * factor ? (screen_width - 90) * factor / (width - 90) : k;
}

template<class W> double scale_of(Session& session, Element& (*element)(W&)) {
  W design(session);
  return element(session.window<W>()).Top / element(design).Top;
}

TEST_F(FrameTest, EachWindowHasItsShareOfTheScreen) {
  put_words({u"alma", u"körte"});
  start();
  const auto near = [](double actual, double expected) { EXPECT_NEAR(actual, expected, 1e-9); };
  near(scale_of<frm_cserkó>(session(), [](frm_cserkó& w) -> Element& { return w.cmd_kész; }),
       expected_scale<frm_cserkó>(session(), 0.95));
  near(scale_of<frm_gratuláció>(session(), [](frm_gratuláció& w) -> Element& { return w.cmd_ok; }),
       expected_scale<frm_gratuláció>(session(), 0.9));
  near(scale_of<frm_üzenet>(session(), [](frm_üzenet& w) -> Element& { return w.cmd_ok; }),
       expected_scale<frm_üzenet>(session(), 0.9));
  near(scale_of<frm_főablak>(session(), [](frm_főablak& w) -> Element& { return w.cmd_súgó; }),
       expected_scale<frm_főablak>(session(), 0.8));
  near(scale_of<frm_dobszerkó>(session(), [](frm_dobszerkó& w) -> Element& { return w.Label1; }),
       expected_scale<frm_dobszerkó>(session(), 0.7));
  near(scale_of<üzenet>(session(), [](üzenet& w) -> Element& { return w.Command1; }),
       expected_scale<üzenet>(session(), 0.7));
  near(scale_of<szövegüzenet>(session(), [](szövegüzenet& w) -> Element& { return w.Command1; }),
       expected_scale<szövegüzenet>(session(), 0.6));
  near(scale_of<frm_szövegüzenet>(session(), [](frm_szövegüzenet& w) -> Element& { return w.cmd_ok; }),
       expected_scale<frm_szövegüzenet>(session(), 0.6));
}

TEST_F(FrameTest, CentringPutsTheWindowInTheMiddleAndGivesItTheLook) {
  auto& reference = load<frm_referencia>();
  reference.BackColor = {1, 2, 3};
  machine.files().put(Text(app) + u"paper.png", "picture");
  reference.Picture = machine.load_picture(Text(app) + u"paper.png");
  TwoControls window(session());
  ablak_középre(session(), window);
  EXPECT_DOUBLE_EQ(window.Left, screen_width / 2 - window.Width / 2);
  EXPECT_DOUBLE_EQ(window.Top, screen_height / 2 - window.Height / 2);
  EXPECT_EQ(window.BackColor, (Color{1, 2, 3}));
  EXPECT_EQ(window.Picture, reference.Picture);
}

TEST_F(FrameTest, CentringColoursTheControls) {
  auto& reference = load<frm_referencia>();
  reference.BackColor = {1, 2, 3};
  reference.Font.name = u"Times New Roman CE";
  TwoControls window(session());
  Frame frame(window, u"frame", {0, 0, 900, 900});
  frame.BackColor = {9, 9, 9};
  CheckBox in_frame(frame, u"in_frame", {0, 0, 100, 100}, u"");
  OptionButton in_window(window, u"in_window", {0, 0, 100, 100}, u"");
  window.label.BackColor = {200, 0, 0};
  window.label.Opaque = true;
  Label white_label(window, u"white_label", {0, 0, 100, 100});
  white_label.Opaque = true;
  white_label.BackColor = white;
  ablak_középre(session(), window);
  EXPECT_EQ(frame.BackColor, (Color{1, 2, 3}));
  EXPECT_EQ(in_frame.BackColor, frame.BackColor);
  EXPECT_EQ(in_window.BackColor, (Color{1, 2, 3}));
  EXPECT_FALSE(window.label.Opaque);
  EXPECT_TRUE(white_label.Opaque);
  EXPECT_EQ(utf8(window.label.Font.name), "Times New Roman CE");
  EXPECT_EQ(utf8(window.button.Font.name), "Times New Roman CE");
}

TEST_F(FrameTest, LabelsOfTheDrawingWindowKeepTheirColour) {
  TwoControls window(session());
  window.Name = u"frm_rajz";
  window.label.Opaque = true;
  window.label.BackColor = {200, 0, 0};
  window.label.Font.name = u"Other";
  ablak_középre(session(), window);
  EXPECT_TRUE(window.label.Opaque);
  EXPECT_EQ(window.label.BackColor, (Color{200, 0, 0}));
  EXPECT_EQ(utf8(window.label.Font.name), "Other");
}

// The backdrop.

struct Game : PlainWindow {
  explicit Game(Session& session) : PlainWindow(session, u"game") {}
  int rounds = 0;
  Button button{*this, u"button", {0, 0, 500, 500}, u"x"};
};

class BackdropTest : public FrameTest {
 protected:
  void play(const std::function<void(Game&)>& deed) {
    then_in<Game>(deed);
    run_on_backdrop(session(), [this]() -> Window& { return load<Game>(); });
  }
};

TEST_F(BackdropTest, TheExerciseRunsModallyOnTheBackdropAndBothAreUnloaded) {
  play([](Game& game) { hand::close(game); });
  EXPECT_EQ(
      machine.diary({"modal", "load game", "unload"}),
      (std::vector<std::string>{"modal frmháttér", "load game", "modal game", "unload game", "unload frmháttér"}));
  EXPECT_EQ(machine.active_window(), nullptr);
}

TEST_F(BackdropTest, HidingTheExerciseEndsItToo) {
  play([this](Game& game) { machine.hide(game); });
  EXPECT_FALSE(session().loaded<Game>());
  EXPECT_FALSE(session().loaded<frmháttér>());
}

TEST_F(BackdropTest, FillsTheScreenWithoutAFrameAndTakesNoClicks) {
  play([this](Game& game) {
    auto& backdrop = load<frmháttér>();
    EXPECT_EQ(backdrop.Border, WindowBorder::None);
    EXPECT_EQ(backdrop.Left, 0);
    EXPECT_EQ(backdrop.Top, 0);
    EXPECT_EQ(backdrop.Width, screen_width);
    EXPECT_EQ(backdrop.Height, screen_height);
    EXPECT_FALSE(backdrop.Enabled);
    EXPECT_TRUE(backdrop.visible());
    hand::close(game);
  });
}

TEST_F(BackdropTest, CoversThePanelsOfTheDesktopToo) {
  machine.panels = {600, 450, 0, 300};
  play([this](Game& game) {
    auto& backdrop = load<frmháttér>();
    EXPECT_EQ(backdrop.Left, -600);
    EXPECT_EQ(backdrop.Top, -450);
    EXPECT_EQ(backdrop.Width, 600 + screen_width);
    EXPECT_EQ(backdrop.Height, 450 + screen_height + 300);
    EXPECT_DOUBLE_EQ(backdrop.label_óra.Top, backdrop.Height - backdrop.label_óra.Height);
    hand::close(game);
  });
}

TEST_F(BackdropTest, ShowsTheTimeInTheLowerRightCornerAndFollowsIt) {
  machine.set_time_of_day({7, 5});
  play([this](Game& game) {
    auto& backdrop = load<frmháttér>();
    const Label& clock = backdrop.label_óra;
    EXPECT_EQ(utf8(clock.Caption), "07:05");
    EXPECT_DOUBLE_EQ(clock.Left, backdrop.Width - clock.Width);
    EXPECT_DOUBLE_EQ(clock.Top, backdrop.Height - clock.Height);
    EXPECT_EQ(backdrop.Timer_óra.Interval, 30000);
    machine.set_time_of_day({23, 59});
    machine.advance(30000);
    EXPECT_EQ(utf8(clock.Caption), "23:59");
    hand::close(game);
  });
}

TEST_F(BackdropTest, AnExerciseIsMadeAnewForEachStart) {
  play([](Game& game) {
    game.rounds = 1;
    hand::close(game);
  });
  play([](Game& game) {
    EXPECT_EQ(game.rounds, 0);
    hand::close(game);
  });
}

TEST_F(BackdropTest, AnExerciseThatCannotOpenIsReportedAndDoesNotLeaveTheBackdropBehind) {
  struct Broken : PlainWindow {
    explicit Broken(Session& s) : PlainWindow(s, u"broken") {}
    void Load() override { throw std::runtime_error("a.txt nem olvasható"); }
  };
  for (std::size_t start = 1; start <= 2; ++start) {
    run_on_backdrop(session(), [this]() -> Window& { return load<Broken>(); });
    EXPECT_FALSE(session().loaded<frmháttér>());
    EXPECT_FALSE(session().loaded<Broken>()) << "half loaded it would be shown at the next start";
    EXPECT_EQ(machine.active_window(), nullptr);
    expected_errors = start;
    ASSERT_EQ(machine.errors.size(), start);
    EXPECT_NE(utf8(machine.errors.back()).find("a.txt nem olvasható"), std::string::npos);
  }
}

// The common pause.

TEST_F(FrameTest, AWaitLastsTwoTicksAndUnloadsItself) {
  EXPECT_TRUE(wait(session(), 100));
  EXPECT_EQ(machine.now(), 200);
  EXPECT_FALSE(session().loaded<frmwait>());
}

TEST_F(FrameTest, AWaitIsAtMostTwiceSixtyFiveSeconds) {
  machine.patience = 1000000;
  EXPECT_TRUE(wait(session(), 70000));
  EXPECT_EQ(machine.now(), 2 * 65535);
}

TEST_F(FrameTest, AWaitOfNoTimeEndsToo) {
  EXPECT_TRUE(wait(session(), 0));
  EXPECT_EQ(machine.now(), 2 * idle_pace);
}

TEST_F(FrameTest, AnEventDuringAWaitMayWaitItselfAndShortensNothing) {
  struct Waiting : PlainWindow {
    explicit Waiting(Session& s) : PlainWindow(s, u"waiting") {
      timer.Tick = [this, &s] {
        timer.Enabled = false;
        EXPECT_TRUE(wait(s, 20));
        inner_end = platform().now();
      };
    }
    Timer timer{*this, u"timer", 30};
    std::int64_t inner_end = 0;
  };
  const auto& window = load<Waiting>();
  EXPECT_TRUE(wait(session(), 100));
  EXPECT_EQ(window.inner_end, 30 + 2 * 20);
  EXPECT_EQ(machine.now(), 2 * 100);
  EXPECT_FALSE(session().loaded<frmwait>());
}

TEST_F(FrameTest, EventsOfOtherWindowsHappenDuringAWait) {
  struct Ticking : PlainWindow {
    explicit Ticking(Session& s) : PlainWindow(s, u"ticking") {
      timer.Tick = [this] { ++ticks; };
    }
    Timer timer{*this, u"timer", 30};
    int ticks = 0;
  };
  auto& window = load<Ticking>();
  wait(session(), 100);
  EXPECT_EQ(window.ticks, 6);
}

// Help.

TEST_F(FrameTest, HelpStartsTheViewerMaximisedWithThePageUnquoted) {
  súgó_megnyitás(session(), u"Cserkó - A feladat.mht");
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line),
            "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\Cserkó - A feladat.mht");
  EXPECT_EQ(machine.processes[0].window, ProcessWindow::Maximized);
}

// The event boundary.

struct Failing : PlainWindow {
  explicit Failing(Session& session) : PlainWindow(session, u"failing") {
    Caption = u"Hibázó";
    throws.Click = [] { throw std::runtime_error("a.txt nem olvasható"); };
    unfit.Click = [] { throw NothingFits(u"Lazíts a beállításon!"); };
    works.Click = [this] { ++clicks; };
  }
  Button throws{*this, u"throws", {0, 0, 500, 500}};
  Button unfit{*this, u"unfit", {500, 0, 500, 500}};
  Button works{*this, u"works", {1000, 0, 500, 500}};
  int clicks = 0;
};

TEST_F(FrameTest, AnExceptionEndsItsHandlerAndIsReportedWithWindowAndCause) {
  auto& window = open<Failing>();
  hand::click(window.throws);
  expected_errors = 1;
  ASSERT_EQ(machine.errors.size(), 1U);
  EXPECT_NE(utf8(machine.errors[0]).find("Hibázó"), std::string::npos);
  EXPECT_NE(utf8(machine.errors[0]).find("a.txt nem olvasható"), std::string::npos);
  EXPECT_TRUE(window.visible());
  hand::click(window.works);
  EXPECT_EQ(window.clicks, 1);
}

TEST_F(FrameTest, NothingFitsIsToldInTheSuitesOwnPanelAndTheWindowStays) {
  auto& window = open<Failing>();
  then_close_message();
  hand::click(window.unfit);
  EXPECT_EQ(message, "Lazíts a beállításon!");
  EXPECT_TRUE(machine.messages.empty());
  EXPECT_TRUE(window.visible());
  hand::click(window.works);
  EXPECT_EQ(window.clicks, 1);
}

TEST_F(FrameTest, AFailingTimerGoesOnTicking) {
  struct Ticking : PlainWindow {
    explicit Ticking(Session& s) : PlainWindow(s, u"ticking") {
      timer.Tick = [] { throw std::runtime_error("tick"); };
    }
    Timer timer{*this, u"timer", 100};
  };
  load<Ticking>();
  machine.advance(350);
  expected_errors = 3;
}

} // namespace
} // namespace cserko
