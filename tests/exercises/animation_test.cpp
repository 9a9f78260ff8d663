// Animations and waits: frame by frame, deaf to the child, and over at once where the window goes.
#include "core/animation.h"
#include "core/nothing_fits.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

struct MovingWindow : PlainWindow {
  explicit MovingWindow(Session& session) : PlainWindow(session, u"moving"), session_(session) {
    button.Click = [this] {
      ++clicks;
      if (on_click) on_click();
      finished = true;
    };
    timer.Tick = [this] { ++ticks; };
    menu.Click = [this] { ++menu_clicks; };
  }
  Button button{*this, u"button", {0, 0, 1500, 600}};
  MenuItem menu{*this, u"menu", u"Menu"};
  Timer timer{*this, u"timer", 100};
  int clicks = 0;
  int ticks = 0;
  int menu_clicks = 0;
  int keys = 0;
  bool finished = false; ///< What stands behind the animation has run.
  std::function<void()> on_click;
  void KeyDown(KeyEvent&) override { ++keys; }

 private:
  Session& session_;
};

class AnimationTest : public ExerciseTest {
 protected:
  AnimationTest() {
    start();
    window = &open<MovingWindow>();
  }
  /// Runs the deed in a click, with an animation of the window.
  void animate(const std::function<void(Animation&)>& deed) {
    window->on_click = [this, deed] {
      Animation animation(session(), *window);
      deed(animation);
    };
    hand::click(window->button);
  }
  MovingWindow* window = nullptr;
};

TEST_F(AnimationTest, EveryStepIsShownForAFrameUpwardsOrDownwards) {
  std::vector<int> shown;
  animate([&](Animation& animation) {
    animation.steps(0, 3, [&](int step) {
      shown.push_back(step);
      EXPECT_EQ(machine.frames, step);
    });
    animation.steps(2, 0, [&](int step) { shown.push_back(step); });
    animation.steps(5, 5, [&](int step) { shown.push_back(step); });
  });
  EXPECT_EQ(shown, (std::vector<int>{0, 1, 2, 3, 2, 1, 0, 5}));
  EXPECT_EQ(machine.frames, 8);
  EXPECT_TRUE(window->finished);
}

TEST_F(AnimationTest, AWaitLastsItsTimeAndAtLeastOneFrame) {
  animate([&](Animation& animation) {
    const std::int64_t start = machine.now();
    animation.wait(1000);
    EXPECT_GE(machine.now() - start, 1000);
    EXPECT_LT(machine.now() - start, 1000 + HeadlessPlatform::frame_time);
    const int frames = machine.frames;
    animation.wait(1);
    EXPECT_EQ(machine.frames, frames + 1);
    animation.wait(0);
    EXPECT_EQ(machine.frames, frames + 2);
  });
}

TEST_F(AnimationTest, AWaitForAConditionAsksBeforeEachFrame) {
  int asked = 0;
  animate([&](Animation& animation) {
    animation.wait_until([&] { return ++asked > 3; });
    EXPECT_EQ(machine.frames, 3);
    animation.wait_until([] { return true; });
    EXPECT_EQ(machine.frames, 3);
  });
}

TEST_F(AnimationTest, NoInputOfAnyKindCountsMeanwhileAndNoneIsKept) {
  machine.during_frame = [&] {
    EXPECT_FALSE(window->Enabled);
    hand::click(window->button);
    hand::key(*window, key::space);
    hand::click(window->menu);
    hand::close(*window);
  };
  animate([](Animation& animation) { animation.wait(200); });
  EXPECT_TRUE(window->Enabled);
  EXPECT_EQ(window->clicks, 1);
  EXPECT_EQ(window->keys, 0);
  EXPECT_EQ(window->menu_clicks, 0);
  EXPECT_TRUE(session().is_loaded(*window));
}

TEST_F(AnimationTest, TheTimersOfTheWindowStandStillAndTickBehindIt) {
  animate([&](Animation& animation) {
    animation.wait(150);
    EXPECT_EQ(window->ticks, 0);
  });
  machine.advance(0);
  EXPECT_EQ(window->ticks, 1) << "the tick that was due is not lost";
  machine.advance(100);
  EXPECT_EQ(window->ticks, 2);
}

TEST_F(AnimationTest, OneInsideAnotherLeavesTheWindowDeaf) {
  animate([&](Animation& animation) {
    { const Animation inner(session(), *window); }
    EXPECT_FALSE(window->Enabled);
    animation.frame();
  });
  EXPECT_TRUE(window->Enabled);
}

TEST_F(AnimationTest, AFailureInAStepLeavesTheWindowAlive) {
  then_close_message();
  animate([](Animation& animation) { animation.steps(0, 3, [](int) { throw NothingFits(u"Nincs hely."); }); });
  EXPECT_TRUE(window->Enabled);
  EXPECT_FALSE(window->finished);
}

TEST_F(AnimationTest, WhereTheWindowIsUnloadedTheHandlerEndsAndNobodyIsTold) {
  int steps = 0;
  bool finished = false;
  machine.during_frame = [&] {
    if (machine.frames == 2) session().unload(*window);
  };
  window->on_click = [&] {
    Animation animation(session(), *window);
    animation.steps(0, 10, [&](int) { ++steps; });
    finished = true;
  };
  hand::click(window->button);
  EXPECT_EQ(steps, 2);
  EXPECT_FALSE(finished);
  EXPECT_FALSE(session().loaded<MovingWindow>());
  EXPECT_TRUE(machine.errors.empty());
}

TEST_F(AnimationTest, WhereTheProgramEndsTheHandlerEndsToo) {
  machine.during_frame = [&] { machine.end_process(); };
  animate([](Animation& animation) { animation.wait_until([] { return false; }); });
  EXPECT_FALSE(window->finished);
  EXPECT_EQ(machine.frames, 1);
}

TEST_F(AnimationTest, ALivePauseServesClicksAndTimers) {
  window->on_click = [&] {
    if (window->clicks > 1) return;
    machine.during_wait = [&] {
      machine.during_wait = {};
      hand::click(window->button);
    };
    live_pause(session(), *window, 150);
  };
  hand::click(window->button);
  EXPECT_EQ(window->clicks, 2);
  EXPECT_GE(window->ticks, 1);
  EXPECT_TRUE(window->finished);
}

TEST_F(AnimationTest, ALiveWaitEndsWithItsConditionOrItsWindow) {
  window->on_click = [&] { live_wait(session(), *window, [&] { return window->ticks == 3; }); };
  hand::click(window->button);
  EXPECT_EQ(window->ticks, 3);
  EXPECT_TRUE(window->finished);

  window->finished = false;
  bool reached = false;
  window->on_click = [&] {
    live_wait(session(), *window, [] { return false; });
    reached = true;
  };
  machine.during_wait = [&] { hand::close(*window); };
  hand::click(window->button);
  EXPECT_FALSE(reached);
  EXPECT_FALSE(session().loaded<MovingWindow>());
}

TEST(BetweenTest, APlaceIsTheShareOfTheWay) {
  const Rect from{100, 200, 4000, 3000};
  const Rect to{500, 100, 1000, 1000};
  EXPECT_EQ(between(from, to, 0), from);
  EXPECT_EQ(between(from, to, 1), to);
  EXPECT_EQ(between(from, to, 0.5), (Rect{300, 150, 2500, 2000}));
}

TEST_F(AnimationTest, InALiveFrameKeysTimersAndClicksAreServed) {
  machine.during_frame = [&] { hand::key(*window, key::up); };
  window->on_click = [&] {
    for (int frame = 1; frame <= 10; ++frame) {
      live_frame(session(), *window, [] { return false; });
      EXPECT_EQ(window->keys, frame);
    }
    EXPECT_EQ(window->ticks, 1) << "ten frames are longer than the interval";
  };
  hand::click(window->button);
  EXPECT_EQ(machine.frames, 10);
  EXPECT_EQ(machine.now(), 10 * HeadlessPlatform::frame_time);
  EXPECT_TRUE(window->finished);
}

TEST_F(AnimationTest, ALiveFrameEndsAsSoonAsItsConditionHolds) {
  machine.during_frame = [&] { hand::key(*window, key::up); };
  window->on_click = [&] { live_frame(session(), *window, [this] { return window->keys > 0; }); };
  hand::click(window->button);
  EXPECT_EQ(machine.frames, 1) << "it is shown all the same";
  EXPECT_EQ(machine.now(), 0);
}

TEST_F(AnimationTest, ALiveFrameInWhichTheWindowIsClosedEndsTheHandler) {
  machine.during_frame = [&] { hand::close(*window); };
  bool finished = false;
  window->on_click = [&] {
    live_frame(session(), *window, [] { return false; });
    finished = true;
  };
  hand::click(window->button);
  EXPECT_FALSE(finished);
  EXPECT_TRUE(machine.errors.empty());
}

} // namespace
} // namespace cserko
