// Timers, frames, and painting in the middle of a handler.
#include "fixture.h"

namespace cserko::test {

namespace {

class Timing : public QtMachine {
 protected:
  bool passed(int ms) {
    const std::int64_t start = machine->now();
    return wait_for([&] { return machine->now() - start > ms; });
  }
  /// Counts how often a widget is painted.
  struct Paints : QObject {
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::Paint ? 1 : 0;
      return false;
    }
    int count = 0;
  };
};

TEST_F(Timing, TimersOfWindowsThatWereNeverShownFire) {
  NotingWindow window(*machine);
  Timer timer(window, u"tmr", 10);
  int ticks = 0;
  timer.Tick = [&] { ++ticks; };
  machine->sync_all();
  EXPECT_TRUE(wait_for([&] { return ticks >= 3; }));
}

TEST_F(Timing, ATimerStopsWhenItIsDisabledOrItsIntervalIsZero) {
  NotingWindow window(*machine);
  Timer first(window, u"tmr_a", 10);
  Timer second(window, u"tmr_b", 10);
  int ticks = 0;
  first.Tick = [&] {
    ++ticks;
    first.Enabled = false;
  };
  second.Tick = [&] {
    ++ticks;
    second.Interval = 0;
  };
  machine->sync_all();
  EXPECT_TRUE(wait_for([&] { return ticks == 2; }));
  EXPECT_TRUE(passed(80));
  EXPECT_EQ(ticks, 2);
}

TEST_F(Timing, AnotherIntervalTakesEffect) {
  NotingWindow window(*machine);
  Timer timer(window, u"tmr", 60000);
  int ticks = 0;
  timer.Tick = [&] { ++ticks; };
  machine->sync_all();
  timer.Interval = 10;
  machine->sync_all();
  EXPECT_TRUE(wait_for([&] { return ticks > 0; }));
}

TEST_F(Timing, ATimerDoesNotFireWithinItsOwnHandler) {
  NotingWindow window(*machine);
  NotingWindow dialog(*machine, {3000, 3000});
  Timer timer(window, u"tmr", 10);
  Timer other(window, u"tmr_b", 10);
  int depth = 0;
  int deepest = 0;
  int others = 0;
  timer.Tick = [&] {
    deepest = std::max(deepest, ++depth);
    const int before = others;
    machine->pump_events([&] { return others >= before + 5; });
    --depth;
    timer.Enabled = false;
  };
  other.Tick = [&] { ++others; };
  machine->sync_all();
  EXPECT_TRUE(wait_for([&] { return !timer.Enabled; }));
  EXPECT_EQ(deepest, 1);
}

TEST_F(Timing, RedrawPaintsAtOnceAndLetsNoInputIn) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  int clicks = 0;
  label.Click = [&] { ++clicks; };
  show(window);
  Paints paints(widget(label));
  later([&] { click(label); });
  label.Caption = u"B";
  machine->redraw(window);
  EXPECT_GE(paints.count, 1);
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(wait_for([&] { return clicks == 1; }));
}

TEST_F(Timing, RedrawWithNothingNewPaintsNothing) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  machine->redraw(window);
  Paints paints(widget(label));
  for (int time = 0; time < 100; ++time) machine->redraw(window);
  EXPECT_EQ(paints.count, 0);
}

TEST_F(Timing, RedrawsInAQuickRowPaintOnceAFrameAndTheLastStateIsSeen) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  Paints paints(widget(label));
  constexpr int redraws = 2000;
  const std::int64_t start = machine->now();
  for (int i = 1; i <= redraws; ++i) {
    label.Caption = to_text(i);
    machine->redraw(window);
  }
  const std::int64_t frames = (machine->now() - start) / 16 + 1;
  EXPECT_GE(paints.count, 1);
  EXPECT_LE(paints.count, frames);
  const int before = paints.count;
  machine->sync_all();
  EXPECT_TRUE(wait_for([&] { return paints.count > before; }));
}

TEST_F(Timing, RedrawOfAWindowThatIsNotShownIsNothing) {
  NotingWindow window(*machine);
  machine->redraw(window);
  machine->next_frame(window);
  EXPECT_EQ(machine->view_of(window), nullptr);
}

TEST_F(Timing, TenFramesAreSeenAsTenFrames) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  Paints paints(widget(label));
  machine->next_frame(window);
  const int before = paints.count;
  const std::int64_t start = machine->now();
  for (int frame = 0; frame < 10; ++frame) {
    label.Left += 150;
    label.Caption += u"x";
    machine->next_frame(window);
  }
  EXPECT_GE(paints.count - before, 10);
  // Ten frames cannot pass in less than ten frames' time.
  EXPECT_GE(machine->now() - start, 9 * 16);
}

TEST_F(Timing, ATimerThatRanOutWhileTheWindowWasDeafTicksOnceBehindIt) {
  constexpr int interval = 400;
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  Timer timer(window, u"tmr", interval);
  int ticks = 0;
  timer.Tick = [&] { ++ticks; };
  label.Click = [&] {
    const std::int64_t end = machine->now() + interval + 100;
    window.Enabled = false;
    while (machine->now() < end) machine->next_frame(window);
    window.Enabled = true;
    EXPECT_EQ(ticks, 0);
  };
  show(window);
  click(label);
  // The next tick of its own would come much later.
  QCoreApplication::processEvents();
  EXPECT_EQ(ticks, 1);
  EXPECT_TRUE(wait_for([&] { return ticks == 2; })) << "and then it goes on";
}

TEST_F(Timing, WhatIsUncoveredDuringAWaitIsPainted) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  machine->next_frame(window);
  Paints paints(widget(label));
  widget(label).update();
  machine->next_frame(window);
  EXPECT_EQ(paints.count, 1);
}

// The widget that the window system gives a key to.
QWidget* hearer(WindowView& view) { return view.focusWidget() != nullptr ? view.focusWidget() : &view; }

TEST_F(Timing, InALiveFrameKeysAreHeardAndItLastsAFrame) {
  NotingWindow window(*machine);
  window.KeyPreview = true;
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  Paints paints(widget(label));
  machine->next_frame(window);
  const std::int64_t start = machine->now();
  for (int frame = 1; frame <= 5; ++frame) {
    label.Caption += u"x";
    QCoreApplication::postEvent(hearer(view(window)), new QKeyEvent(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier));
    machine->live_frame(window, [] { return false; });
    EXPECT_EQ(window.keys.size(), static_cast<std::size_t>(frame));
  }
  EXPECT_GE(machine->now() - start, 4 * 16);
  EXPECT_GE(paints.count, 5);
}

TEST_F(Timing, ALiveFrameIsOverWhenItsConditionHolds) {
  NotingWindow window(*machine);
  window.KeyPreview = true;
  Timer timer(window, u"tmr", 3);
  int ticks = 0;
  timer.Tick = [&] { ++ticks; };
  show(window);
  QCoreApplication::postEvent(hearer(view(window)), new QKeyEvent(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier));
  machine->live_frame(window, [&] { return !window.keys.empty(); });
  EXPECT_EQ(window.keys.size(), 1U);
  EXPECT_EQ(ticks, 0);
}

TEST_F(Timing, PumpingEndsWhenItsConditionHolds) {
  NotingWindow window(*machine);
  Timer timer(window, u"tmr", 10);
  int ticks = 0;
  timer.Tick = [&] { ++ticks; };
  machine->pump_events([&] { return ticks >= 2; });
  EXPECT_GE(ticks, 2);
}

} // namespace
} // namespace cserko::test
