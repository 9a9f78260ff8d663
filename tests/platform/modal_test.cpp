#include "fixture.h"

namespace cserko {
namespace {

class Modal : public PlatformTest {
 protected:
  TestWindow panel{platform, log, u"panel"};
  Button open{window, u"cmd_open", {0, 0, 900, 300}, u"&Megnyit"};
  Button ok{panel, u"cmd_ok", {0, 0, 900, 300}, u"OK"};

  Modal() {
    open.Click = [this] {
      platform.show_modal(panel);
      log.push_back("returned");
    };
    ok.Click = [this] { platform.hide(panel); };
  }
};

TEST_F(Modal, AShowActivatesTheWindowAndReturnsWhenItIsHidden) {
  platform.user = [this](Window& active) {
    EXPECT_EQ(&active, &panel);
    EXPECT_EQ(platform.modal_depth(), 1U);
    hand::click(ok);
    return true;
  };
  platform.show_modal(panel);
  EXPECT_EQ(log, Log{"panel Activate"});
  EXPECT_FALSE(panel.visible());
  EXPECT_EQ(platform.modal_depth(), 0U);
}

TEST_F(Modal, TheWindowBehindComesToTheFrontAgainAndIsActivated) {
  show();
  platform.user = [this](Window&) {
    hand::click(ok);
    return true;
  };
  hand::click(open);
  EXPECT_EQ(log, (Log{"panel Activate", "window Activate", "returned"}));
  EXPECT_EQ(platform.active_window(), &window);
}

TEST_F(Modal, EachShowTakesTheNextEntryOfTheScriptOnce) {
  show();
  platform.script.emplace_back([this](Window& shown) {
    EXPECT_EQ(&shown, &panel);
    log.push_back("first");
    hand::click(ok);
  });
  platform.script.emplace_back([this](Window&) {
    log.push_back("second");
    hand::click(ok);
  });
  hand::click(open);
  hand::click(open);
  EXPECT_EQ(log, (Log{"panel Activate", "first", "window Activate", "returned", "panel Activate", "second",
                      "window Activate", "returned"}));
  EXPECT_TRUE(platform.script.empty());
}

TEST_F(Modal, ShowsNestAndOnlyTheUppermostTakesInput) {
  TestWindow inner(platform, log, u"inner");
  Button close_inner(inner, u"cmd", {0, 0, 900, 300}, u"Vége");
  close_inner.Click = [&] { platform.hide(inner); };
  Button deeper(panel, u"cmd_deeper", {0, 400, 900, 300}, u"Tovább");
  deeper.Click = [&] { platform.show_modal(inner); };
  show();
  platform.script.emplace_back([&](Window&) { hand::click(deeper); });
  platform.script.emplace_back([&](Window&) {
    EXPECT_EQ(platform.shown_windows(), (std::vector<Window*>{&window, &panel, &inner}));
    EXPECT_THROW(hand::click(ok), OutOfReach);
    EXPECT_THROW(hand::click(open), OutOfReach);
    hand::click(close_inner);
  });
  platform.user = [&](Window&) {
    hand::click(ok);
    return true;
  };
  hand::click(open);
  EXPECT_EQ(platform.active_window(), &window);
  EXPECT_FALSE(inner.visible());
}

TEST_F(Modal, WhileThePersonDoesNothingTheClockMovesToTheNextTimer) {
  Timer timer(panel, u"Timer1", 3000);
  timer.Tick = [this] { platform.hide(panel); };
  platform.show_modal(panel);
  EXPECT_EQ(platform.now(), 3000);
}

TEST_F(Modal, TimersOfOtherWindowsFireUnderIt) {
  Timer clock(window, u"Timer_óra", 1000);
  clock.Tick = noting("clock");
  Timer end(panel, u"Timer1", 2500);
  end.Tick = [this] { platform.hide(panel); };
  platform.show_modal(panel);
  EXPECT_EQ(log, (Log{"panel Activate", "clock", "clock"}));
}

TEST_F(Modal, DeedsTakeTheTimeThatATestGivesThem) {
  int deeds = 0;
  platform.deed_time = 40;
  platform.user = [&](Window&) {
    if (++deeds == 5) platform.hide(panel);
    return true;
  };
  platform.show_modal(panel);
  EXPECT_EQ(platform.now(), 200);
}

TEST_F(Modal, AWindowMayHideBeforeItsShowHasBegunToWait) {
  panel.on_activate = [this] { platform.hide(panel); };
  platform.script.emplace_back([this](Window&) { log.push_back("never"); });
  platform.show_modal(panel);
  EXPECT_EQ(log, Log{"panel Activate"});
  EXPECT_EQ(platform.script.size(), 1U) << "nobody saw the window";
}

TEST_F(Modal, AWindowMayBeDestroyedWhileItIsShown) {
  auto other = std::make_unique<TestWindow>(platform, log, u"other");
  platform.script.emplace_back([&](Window&) { other.reset(); });
  platform.show_modal(*other);
  EXPECT_EQ(other, nullptr);
}

TEST_F(Modal, ABackdropMayShowItsWindowFromItsOwnActivation) {
  bool playing = false;
  window.on_activate = [&] {
    if (playing) return;
    playing = true;
    window.Enabled = false;
    platform.show_modal(panel);
    platform.hide(window);
  };
  platform.user = [this](Window&) {
    hand::click(ok);
    return true;
  };
  platform.show_modal(window);
  EXPECT_EQ(log, (Log{"window Activate", "panel Activate", "window Activate"}));
  EXPECT_TRUE(platform.shown_windows().empty());
}

TEST_F(Modal, ShowingAWindowThatIsShownIsAnError) {
  show();
  EXPECT_THROW(platform.show_modal(window), std::logic_error);
}

TEST_F(Modal, EndingTheProcessEndsAllShows) {
  show();
  platform.script.emplace_back([this](Window&) { platform.end_process(); });
  hand::click(open);
  EXPECT_EQ(log, (Log{"panel Activate", "returned"}));
  EXPECT_TRUE(platform.ended());
  platform.show_modal(panel);
  EXPECT_EQ(log.size(), 2U) << "nothing is shown any more";
}

// What can never end must reach the test through every event boundary.

TEST_F(Modal, AShowThatCanNeverEndIsStuck) {
  show();
  try {
    hand::click(open);
    FAIL() << "the show has returned";
  } catch (const Stuck& stuck) {
    EXPECT_NE(std::string(stuck.what()).find("panel"), std::string::npos) << stuck.what();
  }
  EXPECT_TRUE(platform.ended());
  EXPECT_TRUE(platform.errors.empty());
}

TEST_F(Modal, TimersThatChangeNothingDoNotKeepAShowAliveForEver) {
  Timer decoration(window, u"Timer1", 1);
  decoration.Tick = [] {};
  EXPECT_THROW(platform.show_modal(panel), Stuck);
  EXPECT_GE(platform.now(), platform.patience);
}

TEST_F(Modal, DeedsThatLeadNowhereDoNotEither) {
  platform.deed_limit = 1000;
  platform.user = [](Window&) { return true; };
  EXPECT_THROW(platform.show_modal(panel), Stuck);
}

TEST_F(Modal, WhatThePersonThrowsReachesTheTest) {
  show();
  platform.user = [this](Window&) -> bool {
    hand::click(open);
    return true;
  };
  EXPECT_THROW(hand::click(open), OutOfReach);
  EXPECT_TRUE(platform.errors.empty());
}

TEST_F(Modal, AnErrorInAHandlerOfAModalWindowStaysThere) {
  show();
  int deeds = 0;
  ok.Click = [&] {
    if (++deeds == 1) throw std::runtime_error("elsőre nem megy");
    platform.hide(panel);
  };
  platform.user = [this](Window&) {
    hand::click(ok);
    return true;
  };
  hand::click(open);
  EXPECT_EQ(platform.errors, std::vector<Text>{u"elsőre nem megy"});
  EXPECT_EQ(log.back(), "returned");
}

// Waiting.

TEST_F(Modal, AWaitLetsTimersFireUntilItsConditionHolds) {
  Timer timer(window, u"waittimer", 250);
  int ticks = 0;
  timer.Tick = [&] { ++ticks; };
  int asked = 0;
  platform.during_wait = [&] { ++asked; };
  platform.user = [](Window&) -> bool { throw std::logic_error("the person does not act in a wait"); };
  show();
  platform.pump_events([&] { return ticks >= 2; });
  EXPECT_EQ(platform.now(), 500);
  EXPECT_EQ(asked, 2);
}

TEST_F(Modal, AWaitThatCanNeverEndIsStuck) {
  EXPECT_THROW(platform.pump_events([] { return false; }), Stuck);
  platform.pump_events([] { return false; });
  SUCCEED() << "after that the process has ended and nothing waits";
}

// Modeless windows and their order.

TEST_F(Modal, AModelessShowReturnsAtOnceAndActivates) {
  platform.show(window);
  platform.show(panel);
  EXPECT_EQ(log, (Log{"window Activate", "panel Activate"}));
  EXPECT_EQ(platform.shown_windows(), (std::vector<Window*>{&window, &panel}));
  platform.bring_to_front(window);
  EXPECT_EQ(platform.active_window(), &window);
  platform.advance(0);
  platform.show(window);
  EXPECT_EQ(log.back(), "window Activate");
  EXPECT_EQ(log.size(), 3U);
}

TEST_F(Modal, NoWindowComesInFrontOfAModalOneThatLiesOverIt) {
  platform.show(window);
  platform.script.emplace_back([this](Window&) {
    platform.bring_to_front(window);
    EXPECT_EQ(platform.active_window(), &panel);
    hand::click(ok);
  });
  platform.show_modal(panel);
}

// The screen and other programs.

TEST_F(Modal, TheChromeIsFrameTitleAndMenu) {
  EXPECT_EQ(platform.chrome(window), (Size{90, 450}));
  EXPECT_EQ(window.inner_width(), 6000);
  EXPECT_EQ(window.inner_height(), 4500);
  MenuItem menu(window, u"mnu_fájl", u"&Fájl");
  EXPECT_EQ(platform.chrome(window), (Size{90, 825}));
  window.Border = WindowBorder::None;
  EXPECT_EQ(platform.chrome(window), (Size{0, 0}));
}

TEST_F(Modal, TheScreenHasTheSizeThatATestGivesIt) {
  EXPECT_EQ(platform.screen_size(), (Size{19200, 15360}));
  platform.set_screen(1024, 600);
  EXPECT_EQ(platform.screen_size(), (Size{15360, 9000}));
}

TEST_F(Modal, StartedProgramsMessagesAndErrorsAreWrittenDown) {
  platform.start_process(u"portál.exe klki", ProcessWindow::Normal);
  platform.message_box(u"szia");
  platform.report_error(u"hiba");
  ASSERT_EQ(platform.processes.size(), 1U);
  EXPECT_EQ(platform.processes[0].command_line, u"portál.exe klki");
  EXPECT_EQ(platform.messages, std::vector<Text>{u"szia"});
  EXPECT_EQ(platform.errors, std::vector<Text>{u"hiba"});
  platform.processes_fail = true;
  EXPECT_THROW(platform.start_process(u"x.exe", ProcessWindow::Normal), std::runtime_error);
}

TEST_F(Modal, TheRegistryHoldsWhatATestPutsThere) {
  platform.registry[{u"Software", u"Path"}] = u"c:\\x";
  EXPECT_EQ(platform.registry_value(u"Software", u"Path"), u"c:\\x");
  EXPECT_EQ(platform.registry_value(u"Software", u"Other"), std::nullopt);
}

} // namespace
} // namespace cserko
