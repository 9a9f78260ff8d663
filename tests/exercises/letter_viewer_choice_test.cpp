// The reading check of Letter viewer: eight pictures, the second of the solution, the three seconds behind a right
// choice, and that both survive whatever is clicked and typed.
#include "tests/exercises/letter_viewer_fixture.h"

#include <random>
#include <set>
#include <utility>

namespace cserko {
namespace {

class LetterViewerChoiceTest : public LetterViewerFixture {
 protected:
  frm_betűnézegető& look_and_choose() { return look({.check = true}); }
  /// What the person does once in the next wait.
  void in_wait(const std::function<void()>& deed) {
    machine.during_wait = [deed, done = false]() mutable {
      if (!std::exchange(done, true)) deed();
    };
  }
};

TEST_F(LetterViewerChoiceTest, ThePictureIsHiddenAmongEight) {
  const auto& w = look_and_choose();
  EXPECT_FALSE(w.kép.Visible);
  expect_one_of_both(w);
  std::set<std::string> tags;
  w.választáskép.each([&](const PictureBox& choice) {
    tags.insert(utf8(choice.Tag));
    const int record = std::stoi(utf8(choice.Tag));
    EXPECT_EQ(picture(choice), picture_path(record));
    EXPECT_EQ(choice.ToolTipText, session().képek[record].név);
  });
  EXPECT_EQ(tags.size(), 8U);
  EXPECT_GE(right_place(w), 0);
  EXPECT_EQ(word(w), "a|l|m|a");
}

TEST_F(LetterViewerChoiceTest, ThePlaceAndTheOthersAreDrawnAndRecordZeroIsNeverAWrongOne) {
  auto& w = look_and_choose();
  // The word for ő is record 6, at place 5; the others in order, with refused draws: 6 itself, 0, one that is there.
  machine.script_random({drawing(0, 1), drawing(5, 8), record(1), record(6), record(2), record(0), record(3), record(1),
                         record(4), record(5), record(7), record(8)});
  type(w, u'ő');
  EXPECT_EQ(machine.scripted_random_left(), 0U);
  std::string tags;
  w.választáskép.each([&](const PictureBox& choice) { tags += utf8(choice.Tag) + " "; });
  EXPECT_EQ(tags, "1 2 3 4 5 6 7 8 ");
}

TEST_F(LetterViewerChoiceTest, TheRightPictureIsHeardShownAndFollowedAfterThreeSeconds) {
  auto& w = look_and_choose();
  machine.script_random({0.0});
  hand::click(w.választáskép[right_place(w)]);
  EXPECT_NE(commands().find("good.wav"), std::string::npos);
  EXPECT_TRUE(w.kép.Visible);
  expect_one_of_both(w);
  machine.advance(2999);
  EXPECT_EQ(word(w), "a|l|m|a");
  machine.advance(1);
  EXPECT_EQ(large(w), "m M");
  EXPECT_EQ(word(w), "dzs|e|m");
  EXPECT_FALSE(w.kép.Visible);
  machine.advance(20000);
  EXPECT_EQ(word(w), "dzs|e|m") << "once";
}

TEST_F(LetterViewerChoiceTest, AfterThreeSecondsADigraphFollowsItselfToo) {
  auto& w = look_and_choose();
  type(w, u'7');
  hand::click(w.választáskép[right_place(w)]);
  machine.advance(3000);
  EXPECT_EQ(large(w), "sz Sz");
}

TEST_F(LetterViewerChoiceTest, AWrongPictureIsHeardAndTheChoiceStaysOpen) {
  auto& w = look_and_choose();
  machine.script_random({0.0});
  hand::click(w.választáskép[(right_place(w) + 1) % 8]);
  EXPECT_NE(commands().find("bad.wav"), std::string::npos);
  EXPECT_FALSE(w.kép.Visible);
  EXPECT_FALSE(w.Timer1.Enabled);
  expect_one_of_both(w);
}

TEST_F(LetterViewerChoiceTest, AnotherButtonAsksWhatAPictureIsAndIsNoAnswer) {
  auto& w = look_and_choose();
  for (const MouseButton button : {MouseButton::Right, MouseButton::Middle}) {
    for (const int place : {right_place(w), (right_place(w) + 1) % 8}) {
      then_in<üzenet>([&](üzenet& panel) {
        EXPECT_EQ(panel.üzenet_szöveg.Caption, w.választáskép[place].ToolTipText);
        EXPECT_EQ(picture(panel.üzenet_kép), picture(w.választáskép[place]));
        hand::click(panel.Command1);
      });
      hand::click(w.választáskép[place], button);
      EXPECT_FALSE(w.kép.Visible);
      EXPECT_EQ(commands().find("hangok"), std::string::npos);
    }
  }
}

TEST_F(LetterViewerChoiceTest, ALetterDuringAChoiceShowsTheSolutionForASecondAndMovesOn) {
  auto& w = look_and_choose();
  const auto begin = machine.now();
  in_wait([&] {
    EXPECT_TRUE(w.kép.Visible);
    expect_one_of_both(w);
    EXPECT_EQ(word(w), "a|l|m|a");
    EXPECT_EQ(large(w), "m M");
  });
  type(w, u'h');
  EXPECT_EQ(machine.now() - begin, 1000);
  EXPECT_EQ(large(w), "h H");
  EXPECT_FALSE(w.kép.Visible);
  EXPECT_FALSE(w.timer_megold.Enabled);
}

TEST_F(LetterViewerChoiceTest, OfWhatIsTypedDuringTheSolutionTheLastIsShownAfterIt) {
  auto& w = look_and_choose();
  const auto begin = machine.now();
  in_wait([&] {
    type(w, u'k');
    type(w, u'7');
    EXPECT_EQ(word(w), "a|l|m|a") << "the solution stands";
    hand::click(w.Label_betű[1]);
    EXPECT_EQ(word(w), "a|l|m|a");
  });
  type(w, u'h');
  EXPECT_EQ(machine.now() - begin, 1000);
  EXPECT_EQ(large(w), "l L");
  EXPECT_FALSE(w.kép.Visible);
}

TEST_F(LetterViewerChoiceTest, AnyCharacterGivesTheSolutionAway) {
  auto& w = look_and_choose();
  type(w, u'-');
  EXPECT_TRUE(w.kép.Visible);
  expect_one_of_both(w);
  EXPECT_EQ(word(w), "a|l|m|a");
  // The next letter comes at once.
  const auto begin = machine.now();
  type(w, u'h');
  EXPECT_EQ(machine.now(), begin);
}

TEST_F(LetterViewerChoiceTest, TheWindowCanBeClosedWhileTheSolutionIsShown) {
  auto& w = look_and_choose();
  in_wait([&] { hand::close(w); });
  type(w, u'h');
  EXPECT_FALSE(session().loaded<frm_betűnézegető>());
  machine.advance(5000);
}

TEST_F(LetterViewerChoiceTest, TheSettingsCanBeChangedWhileTheSolutionIsShown) {
  auto& w = look_and_choose();
  const auto begin = machine.now();
  in_wait([&] {
    then_in<frm_betűnézegető_beáll>([](frm_betűnézegető_beáll& d) {
      hand::click(d.chk_képválasztás);
      hand::click(d.cmd_ok);
    });
    machine.script_random({drawing(25, letters)});
    hand::click(w.mneu_fájl_beállítások);
  });
  type(w, u'h');
  EXPECT_EQ(machine.now() - begin, 1000);
  EXPECT_EQ(large(w), "í Í") << "the letter that the new settings have drawn";
  EXPECT_TRUE(w.kép.Visible);
}

TEST_F(LetterViewerChoiceTest, ALetterInTheThreeSecondsEndsThem) {
  auto& w = look({.check = true});
  hand::click(w.választáskép[right_place(w)]);
  machine.advance(1500);
  type(w, u'k');
  EXPECT_EQ(large(w), "k K");
  hand::click(w.választáskép[right_place(w)]);
  machine.advance(2999);
  EXPECT_TRUE(w.kép.Visible) << "the pause begins anew";
  machine.advance(1);
  EXPECT_FALSE(w.kép.Visible);
  EXPECT_EQ(large(w), "k K");
}

TEST_F(LetterViewerChoiceTest, IsPlayedByKeysAlone) {
  auto& w = look_and_choose();
  ASSERT_EQ(w.focus(), &w.választáskép[0]);
  then_in<üzenet>([&](üzenet& panel) {
    EXPECT_EQ(panel.üzenet_szöveg.Caption, w.választáskép[0].ToolTipText);
    machine.advance(panel.KeyPause);
    hand::key(panel, key::enter);
  });
  hand::key(w, key::enter, shift::control);
  EXPECT_FALSE(w.kép.Visible);
  const int right = right_place(w);
  if (right >= 4) hand::key(w, key::down);
  for (int i = 0; i < right % 4; ++i) hand::key(w, key::right);
  ASSERT_EQ(w.focus(), &w.választáskép[right]);
  hand::key(w, key::space);
  EXPECT_TRUE(w.kép.Visible);
  EXPECT_EQ(w.focus(), &w.kép);
  machine.advance(3000);
  EXPECT_EQ(w.focus(), &w.választáskép[0]);
}

TEST_F(LetterViewerChoiceTest, WithFewerThanEightPicturesItTellsWhichSettingToRelax) {
  for (int record = 4; record <= 10; ++record) machine.files().take(Text(app) + u"kepek\\" + to_text(record) + u".wms");
  put_choices({.check = true});
  start();
  then_close_message();
  machine.script_random({drawing(24, letters)});
  auto& w = open<frm_betűnézegető>();
  EXPECT_NE(message.find("kapcsold ki"), std::string::npos) << message;
  EXPECT_TRUE(w.kép.Visible);
  expect_one_of_both(w);
  then_in<frm_betűnézegető_beáll>([](frm_betűnézegető_beáll& d) {
    hand::click(d.chk_képválasztás);
    hand::click(d.cmd_ok);
  });
  machine.script_random({drawing(24, letters)});
  hand::click(w.mneu_fájl_beállítások);
  EXPECT_EQ(large(w), "a A");
  EXPECT_NE(word(w), "");
}

/// Somebody who clicks and types whatever, also while a solution stands.
class RestlessViewerTest : public LetterViewerChoiceTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  void deed(frm_betűnézegető& w) {
    switch (below(9)) {
    case 0:
    case 1:
      type(w, TextView(u"aelmkszhő179-Hq ")[static_cast<std::size_t>(below(16))]);
      break;
    case 2:
      hand::click(w.kép.Visible ? w.kép : w.választáskép[below(8)]);
      break;
    case 3:
      if (!w.kép.Visible) hand::click(w.választáskép[right_place(w)]);
      break;
    case 4:
      hand::click(below(2) == 0 ? w.Label_kisbetű : w.Label_nagybetű);
      break;
    case 5:
      if (const int letter = below(w.Label_betű.count()); w.Label_betű[letter].Visible)
        hand::click(w.Label_betű[letter]);
      break;
    case 6:
      hand::key(w,
                std::array{key::tab, key::left, key::down, key::space, key::enter}[static_cast<std::size_t>(below(5))]);
      break;
    case 7:
      hand::click(w.mnu_letter_tiles);
      break;
    default:
      if (w.letter_tile[0].Visible) hand::click(w.letter_tile[below(w.letter_tile.count())]);
    }
  }

 private:
  std::mt19937 random_{GetParam()};
};

TEST_P(RestlessViewerTest, TheSolutionKeepsItsSecondAndTheNextWordItsThree) {
  auto& w = look_and_choose();
  int solutions = 0;
  int next_words = 0;
  bool inside = false;
  machine.during_wait = [&] {
    if (!w.timer_megold.Enabled || std::exchange(inside, true)) return;
    const std::string shown = word(w);
    const std::string letter = large(w);
    for (int i = below(4); i > 0; --i) deed(w);
    inside = false;
    EXPECT_TRUE(w.kép.Visible) << "the solution stands";
    EXPECT_EQ(word(w), shown);
    EXPECT_EQ(large(w), letter);
    expect_one_of_both(w);
  };
  for (int i = 0; i < 300; ++i) {
    const bool open = !w.kép.Visible;
    const std::string shown = word(w);
    const auto begin = machine.now();
    deed(w);
    expect_one_of_both(w);
    EXPECT_FALSE(w.timer_megold.Enabled);
    if (open && word(w) != shown) {
      ++solutions;
      EXPECT_EQ(machine.now() - begin, 1000) << "no way leads from a choice to another word but over the solution";
    } else if (!open) {
      EXPECT_EQ(machine.now(), begin) << "where no choice is open nothing waits";
    }
    if (!w.Timer1.Enabled || below(3) > 0) continue;
    ++next_words;
    const std::string letter = large(w);
    machine.advance(3000);
    EXPECT_FALSE(w.Timer1.Enabled);
    EXPECT_EQ(large(w), letter);
    EXPECT_FALSE(w.kép.Visible) << "the next choice";
  }
  EXPECT_GT(solutions, 10);
  EXPECT_GT(next_words, 3);
}

INSTANTIATE_TEST_SUITE_P(AnyOrder, RestlessViewerTest, ::testing::Range(1U, 21U));

} // namespace
} // namespace cserko
