// What the frame does for every exercise: the entry of the settings, closing with or without the dialog, failed deals.
#include "core/exercise.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

struct SettingsWindow : PlainWindow {
  explicit SettingsWindow(Session& session) : PlainWindow(session, u"settings") {}
};
struct SolutionWindow : PlainWindow {
  explicit SolutionWindow(Session& session) : PlainWindow(session, u"solution") {}
};

template<DialogAtClose rule> struct Exercise : ExerciseWindow {
  explicit Exercise(Session& session) : ExerciseWindow(session, u"exercise", {3000, 2000}, u"Exercise") {
    set_settings_entry<SettingsWindow>(settings_entry, rule);
    set_dialog<SolutionWindow>(rule);
    set_close_entry(close_entry);
    new_task.Click = [this] {
      deal([this] {
        if (fails) fails();
      });
    };
  }
  MenuItem new_task{*this, u"new_task", u"Új"};
  MenuItem settings_entry{*this, u"settings_entry", u"Beállítások"};
  MenuItem close_entry{*this, u"close_entry", u"Kilép"};
  std::function<void()> fails;
  int cleared = 0;

 protected:
  void no_puzzle() override { ++cleared; }
};

class ExerciseWindowTest : public ExerciseTest {
 protected:
  ExerciseWindowTest() { start(); }
  /// What is unloaded, in order, when the exercise is closed with both its windows loaded.
  template<DialogAtClose rule> std::vector<std::string> closed(bool by_menu) {
    auto& window = open<Exercise<rule>>();
    load<SettingsWindow>();
    load<SolutionWindow>();
    const std::size_t before = machine.diary({"unload"}).size();
    if (by_menu) {
      hand::click(window.close_entry);
    } else {
      hand::close(window);
    }
    const auto all = machine.diary({"unload"});
    return {all.begin() + static_cast<std::ptrdiff_t>(before), all.end()};
  }
  static inline const std::vector<std::string> with_dialogs{"unload settings", "unload solution", "unload exercise"};
  static inline const std::vector<std::string> alone{"unload exercise"};
};

TEST_F(ExerciseWindowTest, WindowsThatGoAreUnloadedFirstHoweverItIsClosed) {
  EXPECT_EQ(closed<DialogAtClose::Goes>(true), with_dialogs);
  EXPECT_EQ(closed<DialogAtClose::Goes>(false), with_dialogs);
}

TEST_F(ExerciseWindowTest, WindowsThatGoByTheMenuOnlyStayWhereTheCloseControlIsUsed) {
  EXPECT_EQ(closed<DialogAtClose::GoesByMenuOnly>(false), alone);
  EXPECT_EQ(closed<DialogAtClose::GoesByMenuOnly>(true), with_dialogs);
}

TEST_F(ExerciseWindowTest, WindowsThatStayDoSo) {
  EXPECT_EQ(closed<DialogAtClose::Stays>(true), alone);
  EXPECT_EQ(closed<DialogAtClose::Stays>(false), alone);
  EXPECT_TRUE(session().loaded<SettingsWindow>());
}

TEST_F(ExerciseWindowTest, WindowsThatWereNeverLoadedAreNotLoadedToBeClosed) {
  auto& window = open<Exercise<DialogAtClose::Goes>>();
  hand::click(window.close_entry);
  EXPECT_EQ(machine.diary({"load settings", "load solution"}), std::vector<std::string>{});
}

TEST_F(ExerciseWindowTest, TheEntryShowsTheSettingsModally) {
  auto& window = open<Exercise<DialogAtClose::Stays>>();
  int shown = 0;
  then_in<SettingsWindow>([&](SettingsWindow& dialog) {
    ++shown;
    machine.hide(dialog);
  });
  hand::click(window.settings_entry);
  EXPECT_EQ(shown, 1);
  EXPECT_TRUE(session().loaded<SettingsWindow>());
}

TEST_F(ExerciseWindowTest, ADealThatFitsMakesAPuzzleAndOneThatFailsEndsIt) {
  auto& window = open<Exercise<DialogAtClose::Stays>>();
  EXPECT_FALSE(window.has_puzzle());
  hand::click(window.new_task);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_EQ(window.cleared, 0);

  window.fails = [] { throw NothingFits(u"Egy szó sem illik."); };
  then_close_message();
  hand::click(window.new_task);
  EXPECT_EQ(message, "Egy szó sem illik.");
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(window.cleared, 1);
}

TEST_F(ExerciseWindowTest, AFailureOfAnyKindEndsThePuzzleAndReachesTheReport) {
  auto& window = open<Exercise<DialogAtClose::Stays>>();
  hand::click(window.new_task);
  window.fails = [] { throw FileError("the word list is gone"); };
  hand::click(window.new_task);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(window.cleared, 1);
  expected_errors = 1;
}

TEST_F(ExerciseWindowTest, WhileADealRunsThereIsNoPuzzle) {
  auto& window = open<Exercise<DialogAtClose::Stays>>();
  hand::click(window.new_task);
  window.fails = [&] { EXPECT_FALSE(window.has_puzzle()); };
  hand::click(window.new_task);
  EXPECT_TRUE(window.has_puzzle());
}

} // namespace
} // namespace cserko
