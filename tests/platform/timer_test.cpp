#include "fixture.h"

namespace cserko {
namespace {

class Timers : public PlatformTest {
 protected:
  /// A handler that notes the time on the clock.
  std::function<void()> noting_time() {
    return [this] { times.push_back(platform.now()); };
  }

  std::vector<std::int64_t> times;
};

class EndlessLoops : public PlatformTest {
 protected:
  void expect_stuck(const std::function<void()>& step) {
    platform.step_limit = 10000;
    EXPECT_THROW(
        {
          for (;;) step();
        },
        Stuck);
    EXPECT_TRUE(platform.ended());
  }
};

TEST_F(EndlessLoops, OfDrawsEnd) {
  expect_stuck([this] { platform.random(); });
}

TEST_F(EndlessLoops, OfLooksAtTheClockEnd) {
  expect_stuck([this] { platform.now(); });
}

TEST_F(EndlessLoops, OfMeasuredTextsEnd) {
  expect_stuck([this] { platform.measure({}, u"a"); });
}

TEST_F(EndlessLoops, OfWrappedTextsEnd) {
  expect_stuck([this] { platform.measure_wrapped({}, u"a", 100); });
}

TEST_F(EndlessLoops, OfRedrawsEnd) {
  expect_stuck([this] { platform.redraw(window); });
}

TEST_F(EndlessLoops, OfFramesEnd) {
  expect_stuck([this] { platform.next_frame(window); });
}

TEST_F(EndlessLoops, AreTakenForSuchOnlyPastTheLimitOfOneEvent) {
  platform.step_limit = 10;
  for (int event = 0; event < 100; ++event) {
    platform.event_begins();
    for (int draw = 0; draw < 10; ++draw) platform.random();
  }
  EXPECT_FALSE(platform.ended());
  EXPECT_THROW(platform.random(), Stuck);
}

TEST_F(Timers, FireEveryIntervalAlsoInWindowsThatAreNotShown) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = noting_time();
  platform.advance(350);
  EXPECT_EQ(times, (std::vector<std::int64_t>{100, 200, 300}));
  EXPECT_EQ(platform.now(), 350);
}

TEST_F(Timers, CountedInFramesTickAtTheNearestFrameButNotBeforeOneIsOver) {
  for (const auto& [interval, period] : {std::pair{10, 17},
                                         {20, 17},
                                         {24, 17},
                                         {30, 34},
                                         {40, 34},
                                         {50, 50},
                                         {60, 67},
                                         {1000, 1000},
                                         {1230, 1234},
                                         {30990, 30984}}) {
    Timer timer(window, u"Timer1", interval);
    timer.WholeFrames = true;
    timer.Tick = noting_time();
    times.clear();
    const std::int64_t start = platform.now();
    platform.advance(period);
    EXPECT_EQ(times, std::vector<std::int64_t>{start + period}) << interval;
  }
}

TEST_F(Timers, CountedInFramesFollowTheDisplay) {
  struct QuickDisplay : HeadlessPlatform {
    double display_frame() const override { return 1000.0 / 144; }
  } quick;
  TestHost quick_host(quick);
  TestWindow other(quick, log);
  Timer timer(other, u"Timer1", 10);
  timer.WholeFrames = true;
  EXPECT_EQ(timer.period(), 7) << "one frame";
  timer.Interval = 12;
  EXPECT_EQ(timer.period(), 14) << "two";
}

TEST_F(Timers, FireInOrderOfTheirTimesAndThenOfTheirCreation) {
  Timer slow(window, u"slow", 200);
  Timer quick(window, u"quick", 100);
  slow.Tick = noting("slow");
  quick.Tick = noting("quick");
  platform.advance(200);
  EXPECT_EQ(log, (Log{"quick", "slow", "quick"}));
}

TEST_F(Timers, StartCountingWhenTheyAreStarted) {
  Timer timer(window, u"Timer1", 100, false);
  timer.Tick = noting_time();
  platform.advance(70);
  timer.Enabled = true;
  platform.advance(100);
  EXPECT_EQ(times, std::vector<std::int64_t>{170});
}

TEST_F(Timers, StopWhenTheyAreDisabledOrTheirIntervalIsZero) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = [&] {
    times.push_back(platform.now());
    timer.Enabled = false;
  };
  platform.advance(1000);
  EXPECT_EQ(times.size(), 1U);
  timer.Enabled = true;
  timer.Interval = 0;
  platform.advance(1000);
  EXPECT_EQ(times.size(), 1U);
}

TEST_F(Timers, ANewIntervalCountsFromTheEventThatSetIt) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = [&] {
    times.push_back(platform.now());
    timer.Interval = 300;
  };
  platform.advance(750);
  EXPECT_EQ(times, (std::vector<std::int64_t>{100, 400, 700}));
}

TEST_F(Timers, ANewIntervalSetFromOutsideStartsOver) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = noting_time();
  platform.advance(50);
  timer.Interval = 300;
  platform.advance(350);
  EXPECT_EQ(times, std::vector<std::int64_t>{350});
}

TEST_F(Timers, StartOverWithinOneEvent) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = noting_time();
  platform.advance(60);
  timer.restart();
  platform.advance(150);
  EXPECT_EQ(times, std::vector<std::int64_t>{160});
  timer.Enabled = false;
  timer.Enabled = true;
  platform.advance(60);
  EXPECT_EQ(times, (std::vector<std::int64_t>{160, 260})) << "nobody has looked in between";
  timer.Enabled = false;
  platform.advance(40);
  timer.restart();
  platform.advance(100);
  EXPECT_EQ(times, (std::vector<std::int64_t>{160, 260, 410})) << "it starts one that is off";
}

TEST_F(Timers, StartOverInTheirOwnHandler) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = [&] {
    times.push_back(platform.now());
    platform.next_frame(window);
    timer.restart();
  };
  platform.advance(250);
  EXPECT_EQ(times, (std::vector<std::int64_t>{100, 216}));
}

TEST_F(Timers, TheShortestIntervalsAreIdleWork) {
  Timer timer(window, u"Timer1", 1);
  timer.Tick = noting_time();
  platform.advance(2 * idle_pace);
  EXPECT_EQ(times, (std::vector<std::int64_t>{idle_pace, 2 * idle_pace}));
}

TEST_F(Timers, DoNotFireInsideTheirOwnHandler) {
  Timer timer(window, u"Timer1", 100);
  Timer end(window, u"end", 450);
  bool ended = false;
  end.Tick = [&] { ended = true; };
  timer.Tick = [&] {
    times.push_back(platform.now());
    if (times.size() == 1) platform.pump_events([&] { return ended; });
  };
  platform.advance(600);
  EXPECT_EQ(times, (std::vector<std::int64_t>{100, 500, 600})) << "what was missed is not made up for";
}

TEST_F(Timers, AHandlerThatWaitsForItsOwnTimerIsStuckAtOnce) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = [&] { platform.pump_events([] { return false; }); };
  EXPECT_THROW(platform.advance(1000), Stuck);
  EXPECT_EQ(platform.now(), 100);
}

TEST_F(Timers, ATickWithinATickIsRefusedByEveryMachine) {
  Timer timer(window, u"Timer1", 100);
  int depth = 0;
  timer.Tick = [&] {
    ++depth;
    input::tick(timer);
  };
  input::tick(timer);
  EXPECT_EQ(depth, 1);
  EXPECT_FALSE(timer.InTick);
}

TEST_F(Timers, AnErrorInTheHandlerDoesNotBlockTheNextTick) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = [] { throw std::runtime_error("hiba"); };
  platform.advance(200);
  EXPECT_EQ(platform.errors, (std::vector<Text>{u"hiba", u"hiba"}));
  EXPECT_FALSE(timer.InTick);
}

TEST_F(Timers, OfWindowsThatAreGoneDoNotFire) {
  auto other = std::make_unique<TestWindow>(platform, log, u"other");
  Timer timer(*other, u"Timer1", 100);
  timer.Tick = noting_time();
  platform.advance(100);
  platform.detach(*other);
  platform.advance(500);
  EXPECT_EQ(times.size(), 1U);
}

TEST_F(Timers, AHandlerMayTakeItsOwnWindowAway) {
  struct Short : TestWindow {
    using TestWindow::TestWindow;
    Timer timer{*this, u"Timer1", 100};
  };
  Short other(platform, log, u"other");
  other.timer.Tick = [&] {
    times.push_back(platform.now());
    platform.detach(other);
  };
  platform.advance(500);
  EXPECT_EQ(times.size(), 1U);
}

TEST_F(Timers, WithoutAHandlerTheyDoNotKeepTheMachineBusy) {
  Timer timer(window, u"Timer1", 100);
  EXPECT_THROW(platform.pump_events([] { return false; }), Stuck);
}

TEST_F(Timers, AnAnimationFrameTakesTimeButLetsNoTimerFire) {
  Timer timer(window, u"Timer1", 20);
  timer.Tick = noting_time();
  platform.advance(0);
  for (int i = 0; i < 10; ++i) platform.next_frame(window);
  EXPECT_EQ(platform.frames, 10);
  EXPECT_EQ(platform.redraws, 10);
  EXPECT_EQ(platform.now(), 10 * HeadlessPlatform::frame_time);
  EXPECT_TRUE(times.empty());
  platform.advance(0);
  EXPECT_EQ(times.size(), 1U) << "what was due meanwhile fires once";
}

TEST_F(Timers, NoneFiresWhenTheProcessHasEnded) {
  Timer timer(window, u"Timer1", 100);
  timer.Tick = [&] {
    times.push_back(platform.now());
    platform.end_process();
  };
  platform.advance(1000);
  EXPECT_EQ(times.size(), 1U);
}

TEST_F(Timers, TheTimeOfDayGoesOnWithTheClock) {
  platform.set_time_of_day({23, 59});
  EXPECT_EQ(platform.time_of_day().hour, 23);
  platform.advance(60000);
  EXPECT_EQ(platform.time_of_day().hour, 0);
  EXPECT_EQ(platform.time_of_day().minute, 0);
  platform.set_time_of_day({8, 5});
  EXPECT_EQ(platform.time_of_day().hour, 8);
  EXPECT_EQ(platform.time_of_day().minute, 5);
}

// Chance.

TEST_F(Timers, ScriptedRandomNumbersComeFirstAndInOrder) {
  platform.script_random({0.25, 0, 0.999});
  EXPECT_EQ(platform.random(), 0.25);
  EXPECT_EQ(platform.scripted_random_left(), 2U);
  EXPECT_EQ(platform.random(), 0);
  EXPECT_EQ(platform.random(), 0.999);
  for (int i = 0; i < 1000; ++i) {
    const double number = platform.random();
    EXPECT_GE(number, 0);
    EXPECT_LT(number, 1);
  }
}

TEST_F(Timers, ARandomNumberOutsideItsRangeIsRefused) {
  EXPECT_THROW(platform.script_random({1.0}), InvalidValue);
  EXPECT_THROW(platform.script_random({-0.1}), InvalidValue);
}

TEST_F(Timers, SeedingFromTheClockDoesNotDisturbTheGenerator) {
  platform.set_seed(7);
  const double first = platform.random();
  const double second = platform.random();
  HeadlessPlatform again;
  again.set_seed(7);
  EXPECT_EQ(again.random(), first);
  again.seed_random();
  EXPECT_EQ(again.random(), second);
  EXPECT_EQ(again.seedings, 1);
}

} // namespace
} // namespace cserko
