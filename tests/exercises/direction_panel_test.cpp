// The direction panel by itself, and the direction mode of Letter sorting that asks on it.
#include "core/numbers.h"
#include "tests/exercises/letter_sorting_fixture.h"

namespace cserko {
namespace {

class DirectionPanelTest : public LetterSortingTest {
 protected:
  /// Chance for a question: the arms of "Jobbra" and "Balra".
  void script_arms(int right, int left) { machine.script_random({drawing(right, 4), drawing(left, 4)}); }
  frm_irányválasztó& shown_panel() {
    start();
    script_arms(0, 1);
    return open<frm_irányválasztó>();
  }
  static std::vector<std::string> words_of(const frm_irányválasztó& panel) {
    std::vector<std::string> all;
    panel.cmd_iránygomb.each([&](const Label& label) { all.push_back(label.Visible ? utf8(label.Caption) : "-"); });
    return all;
  }
  /// How much of an arm's width the longer word fills.
  double filled(const Label& arm) const { return machine.measure(arm.Font, u"Jobbra").width / arm.Width; }

  frm_betűválogatás& practising(int first_place = 0) {
    auto& window = deal(first_place);
    dialog().chk_iránygyakoroltatása.set_value(1);
    return window;
  }
  /// Closes the panel at the next question.
  void then_close_panel() {
    then_on_panel([this](frm_irányválasztó& panel) { hand::close(panel); });
  }
  void then_choose(TextView word, const std::function<void()>& before = {}) {
    then_on_panel([word, before](frm_irányválasztó& panel) {
      if (before) before();
      hand::click(arm(panel, word));
    });
  }
};

TEST_F(DirectionPanelTest, HasItsTitleAndCanBeResized) {
  const auto& panel = shown_panel();
  EXPECT_EQ(utf8(panel.Caption), "Irányválasztó");
  EXPECT_EQ(panel.Border, WindowBorder::Sizable);
  EXPECT_EQ(panel.cmd_iránygomb.count(), 4);
}

TEST_F(DirectionPanelTest, TheArmsStandInACross) {
  const auto& panel = shown_panel();
  const auto& arms = panel.cmd_iránygomb;
  EXPECT_EQ(arms[0].Left, arms[2].Left);
  EXPECT_EQ(arms[1].Top, arms[3].Top);
  EXPECT_LT(arms[1].Left + arms[1].Width, arms[0].Left);
  EXPECT_LT(arms[0].Left + arms[0].Width, arms[3].Left);
  EXPECT_LT(arms[0].Top + arms[0].Height, arms[1].Top);
  EXPECT_LT(arms[1].Top + arms[1].Height, arms[2].Top);
  EXPECT_LE(arms[3].Left + arms[3].Width, panel.inner_width());
  EXPECT_LE(arms[2].Top + arms[2].Height, panel.inner_height());
}

TEST_F(DirectionPanelTest, AtFirstItLiesAtTheTopAndCanBeReadOnEveryScreen) {
  for (const auto& [width, height] : {std::pair{1280, 1024}, {1024, 600}, {3840, 2160}}) {
    machine.set_screen(width, height);
    const auto& panel = shown_panel();
    EXPECT_EQ(panel.Top, 0);
    EXPECT_NEAR(panel.Left + panel.Width / 2, width * twips_per_pixel / 2, 1);
    EXPECT_GE(panel.cmd_iránygomb[0].Font.size, 12) << height;
    EXPECT_LE(panel.Height, 0.22 * height * twips_per_pixel) << height;
    if (height > 1000) {
      EXPECT_GE(panel.cmd_iránygomb[0].Height, 44 * twips_per_pixel) << height;
    }
    end_session();
    start_numbering();
  }
}

TEST_F(DirectionPanelTest, TheWordsStandAtDrawnArmsNeverAtTheSame) {
  start();
  machine.script_random({drawing(2, 4), drawing(2, 4), drawing(2, 4), drawing(0, 4)});
  const auto& panel = open<frm_irányválasztó>();
  EXPECT_EQ(words_of(panel), (std::vector<std::string>{"Balra", "-", "Jobbra", "-"}));
  EXPECT_EQ(utf8(panel.Tag), "Vége");
}

TEST_F(DirectionPanelTest, EveryShowDrawsAnew) {
  auto& panel = shown_panel();
  EXPECT_EQ(words_of(panel), (std::vector<std::string>{"Jobbra", "Balra", "-", "-"}));
  machine.hide(panel);
  script_arms(3, 2);
  machine.show(panel);
  EXPECT_EQ(words_of(panel), (std::vector<std::string>{"-", "-", "Balra", "Jobbra"}));
}

TEST_F(DirectionPanelTest, AClickAnswersWithTheWord) {
  start();
  for (const TextView word : {u"Jobbra", u"Balra"}) {
    then_choose(word);
    EXPECT_EQ(irány_kérdés(session()), word);
    EXPECT_TRUE(session().loaded<frm_irányválasztó>());
    EXPECT_FALSE(load<frm_irányválasztó>().visible());
    EXPECT_EQ(words_of(load<frm_irányválasztó>()), std::vector<std::string>(4, "-")) << "no old words at the next show";
  }
}

TEST_F(DirectionPanelTest, ClosingAnswersWithTheEnd) {
  start();
  then_choose(u"Jobbra");
  irány_kérdés(session());
  then_close_panel();
  EXPECT_EQ(utf8(irány_kérdés(session())), "Vége");
  EXPECT_FALSE(session().loaded<frm_irányválasztó>());
}

TEST_F(DirectionPanelTest, EscapeCloses) {
  start();
  then_on_panel([](frm_irányválasztó& panel) { hand::key(panel, key::escape); });
  EXPECT_EQ(utf8(irány_kérdés(session())), "Vége");
  EXPECT_FALSE(session().loaded<frm_irányválasztó>());
}

TEST_F(DirectionPanelTest, ArrowsMoveAmongTheArmsAndEnterChooses) {
  start();
  script_arms(3, 1);
  then_on_panel([](frm_irányválasztó& panel) {
    EXPECT_EQ(panel.focus(), &panel.cmd_iránygomb[1]) << "an arrow is no answer";
    hand::key(panel, key::right);
    EXPECT_EQ(panel.focus(), &panel.cmd_iránygomb[3]);
    hand::key(panel, key::left);
    EXPECT_EQ(panel.focus(), &panel.cmd_iránygomb[1]);
    EXPECT_TRUE(panel.visible());
    hand::key(panel, key::enter);
  });
  EXPECT_EQ(utf8(irány_kérdés(session())), "Balra");
  script_arms(2, 0);
  then_on_panel([](frm_irányválasztó& panel) {
    hand::key(panel, key::down);
    hand::key(panel, key::enter);
  });
  EXPECT_EQ(utf8(irány_kérdés(session())), "Jobbra");
}

TEST_F(DirectionPanelTest, TheLabelsGrowWithThePanelAndTheHeightFollows) {
  auto& panel = shown_panel();
  double before = 0;
  for (const double width : {6000.0, 9000.0, 15000.0}) {
    hand::resize_window(panel, width, 3000);
    const Label& arm = panel.cmd_iránygomb[1];
    EXPECT_EQ(panel.Width, width);
    EXPECT_GT(arm.Font.size, before);
    before = arm.Font.size;
    EXPECT_GT(filled(arm), 0.9);
    EXPECT_LT(filled(arm), 1);
    EXPECT_DOUBLE_EQ(arm.Height, 1.1 * machine.measure(arm.Font, u"Jobbra").height);
    EXPECT_NEAR(panel.inner_height(), panel.cmd_iránygomb[2].Top + arm.Height, 100);
  }
}

TEST_F(DirectionPanelTest, HoweverNarrowItIsMadeItCanBeRead) {
  auto& panel = shown_panel();
  hand::resize_window(panel, 1500, 1500);
  EXPECT_GE(panel.cmd_iránygomb[0].Font.size, 12);
  EXPECT_LT(filled(panel.cmd_iránygomb[0]), 1);
}

TEST_F(DirectionPanelTest, RemembersWhereTheUserPutIt) {
  auto& panel = shown_panel();
  hand::resize_window(panel, 9000, 3000);
  hand::move_window(panel, 1200, 3300);
  const double height = panel.Height;
  hand::close(panel);
  EXPECT_EQ(settings(u"irány.ini"), " 1200 \r\n 3300 \r\n 9000 \r\n " + utf8(to_text(rounded(height))) + " \r\n");
  const auto& again = load<frm_irányválasztó>();
  EXPECT_EQ(again.Left, 1200);
  EXPECT_EQ(again.Top, 3300);
  EXPECT_EQ(again.Width, 9000);
  EXPECT_NEAR(again.Height, height, 1);
}

TEST_F(DirectionPanelTest, ADamagedPlaceIsNotTaken) {
  put_settings(u"irány.ini", {u" 1200 ", u"x", u" 9000 ", u" 3000 "});
  const auto& panel = shown_panel();
  EXPECT_EQ(panel.Top, 0);
  EXPECT_NEAR(panel.Left + panel.Width / 2, machine.screen_size().width / 2, 1);
}

// --- The direction mode ---

TEST_F(DirectionPanelTest, TheModeBeginsBehindTheFirstAnswer) {
  auto& window = practising(0);
  EXPECT_FALSE(session().loaded<frm_irányválasztó>()) << "not when the exercise loads";
  std::string task;
  then_on_panel([&](frm_irányválasztó& panel) {
    task = utf8(window.Label1.Caption);
    hand::close(panel);
  });
  solve(window, 1);
  EXPECT_EQ(task, "Kattints a jó irány nevére az irányválasztás panelen!");
  EXPECT_EQ(utf8(window.Label1.Caption), "Kattints arra a betűre, amelyik benne van az alábbi szóban!");
}

TEST_F(DirectionPanelTest, TheLeftArrowIsTreatedJustTheSame) {
  auto& window = practising(0);
  then_close_panel();
  script_sound();
  script_place(1);
  hand::key(window, key::left);
  EXPECT_EQ(shown(window)[0], "sas");
  EXPECT_EQ(dialog().chk_iránygyakoroltatása.value(), 0);
}

TEST_F(DirectionPanelTest, AWrongAnswerBeginsItToo) {
  auto& window = practising(0);
  then_close_panel();
  script_sound();
  hand::click(window.betű[1]);
  EXPECT_EQ(dialog().chk_iránygyakoroltatása.value(), 0);
}

TEST_F(DirectionPanelTest, DirectionsAnswerUntilThePanelIsClosed) {
  auto& window = practising(0);
  script_sound();
  script_place(6);
  then_choose(u"Jobbra", [&] {
    EXPECT_EQ(shown(window)[0], "sas");
    forget_commands();
    script_sound();
    script_place(1);
  });
  then_choose(u"Jobbra", [&] {
    EXPECT_EQ(commands(), "close hang\n" + good_sound);
    EXPECT_EQ(shown(window)[6], "szék");
    script_sound();
  });
  then_choose(u"Balra", [&] {
    EXPECT_EQ(commands(), "close hang\n" + bad_sound) << "sál stands to the left";
    script_sound();
    script_place(2);
  });
  then_on_panel([&](frm_irányválasztó& panel) {
    EXPECT_EQ(shown(window)[1], "sál");
    EXPECT_EQ(machine.modal_depth(), 1U) << "the questions do not pile up";
    hand::close(panel);
  });
  hand::click(window.betű[0]);
  EXPECT_EQ(dialog().chk_iránygyakoroltatása.value(), 0) << "the check box shows it at once";
  EXPECT_FALSE(session().loaded<frm_irányválasztó>());
  solve(window, 3);
}

TEST_F(DirectionPanelTest, ThePanelStaysWhereItWasPutFromQuestionToQuestion) {
  auto& window = practising(0);
  then_on_panel([this](frm_irányválasztó& panel) {
    hand::resize_window(panel, 8000, 3000);
    hand::move_window(panel, 300, 600);
    script_sound();
    hand::click(arm(panel, u"Jobbra"));
  });
  then_on_panel([](frm_irányválasztó& panel) {
    EXPECT_EQ(panel.Left, 300);
    EXPECT_EQ(panel.Top, 600);
    EXPECT_EQ(panel.Width, 8000);
    hand::close(panel);
  });
  solve(window, 1);
}

TEST_F(DirectionPanelTest, OkBeginsTheModeInTheNewRound) {
  auto& window = deal(0);
  then_in<frm_betűválogatás_beállítás>([this](frm_betűválogatás_beállítás& d) {
    hand::click(d.chk_iránygyakoroltatása);
    script_round(4);
    hand::click(d.Ok);
  });
  std::string word;
  then_on_panel([&](frm_irányválasztó& panel) {
    word = utf8(window.középsőképnév.Caption);
    hand::close(panel);
  });
  hand::click(window.mnubeállítások);
  EXPECT_EQ(word, "sor");
  EXPECT_FALSE(dialog().chk_iránygyakoroltatása.ticked());
}

TEST_F(DirectionPanelTest, DuringAFlightNothingIsAskedAndBehindItOnce) {
  put_settings(file_name, {u" 1 ", u" 1 ", u"True", u"False", u" 0 ", u" 14 "});
  auto& window = practising(0);
  machine.during_frame = [&] {
    EXPECT_FALSE(session().loaded<frm_irányválasztó>());
    hand::click(window.betű[0]);
    hand::key(window, key::left);
  };
  int asked = 0;
  then_on_panel([&](frm_irányválasztó& panel) {
    ++asked;
    machine.during_frame = {};
    hand::close(panel);
  });
  solve(window, 1);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(tags(window), "001111111111");
}

TEST_F(DirectionPanelTest, ARoundThatCannotBeDealtGivesTheInstructionBack) {
  auto& window = deal(0);
  solve_but_last(window);
  dialog().chk_iránygyakoroltatása.set_value(1);
  dialog().lst_betűpárok.set_selection({false, true, false});
  then_close_congratulation();
  then_close_message();
  script_sound();
  hand::click(window.betű[1]);
  EXPECT_NE(message.find("b - d"), std::string::npos) << message;
  hand::click(window.betű[1]);
  EXPECT_FALSE(session().loaded<frm_irányválasztó>()) << "there is nothing to ask for";
  EXPECT_EQ(utf8(window.Label1.Caption), "Kattints arra a betűre, amelyik benne van az alábbi szóban!");
}

TEST_F(DirectionPanelTest, TheProgramMayEndAtAQuestion) {
  auto& window = practising(0);
  then_on_panel([this](frm_irányválasztó&) { machine.end_process(); });
  solve(window, 1);
  EXPECT_TRUE(machine.ended());
}

TEST_F(DirectionPanelTest, AHiddenPanelGoesWithTheExercise) {
  auto& window = practising(0);
  then_choose(u"Balra", [this] {
    script_sound();
    script_place(2);
  });
  then_on_panel([&](frm_irányválasztó& panel) {
    dialog().chk_iránygyakoroltatása.set_value(0);
    script_sound();
    hand::click(arm(panel, u"Jobbra"));
  });
  solve(window, 1);
  EXPECT_TRUE(session().loaded<frm_irányválasztó>());
  hand::click(window.mnu_beáll_kilépés);
  EXPECT_FALSE(session().loaded<frm_irányválasztó>());
  EXPECT_NE(settings(u"irány.ini"), "(none)");
}

} // namespace
} // namespace cserko
