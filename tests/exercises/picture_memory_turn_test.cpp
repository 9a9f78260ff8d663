// Picture memory: turning the cards, frame by frame; the waits; the pairs that vanish; help; the keys.
#include "core/codepage.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/message_panels.h"
#include "tests/exercises/picture_memory_fixture.h"
#include "tests/suite/suite_fixture.h"

#include <set>

namespace cserko {
namespace {

// Record i of five lies on the places i (picture side) and 10 + i.
class MemoryTurnTest : public ::testing::Test {
 protected:
  static constexpr int frames = 4; // of half a turn
  static constexpr int a_turn = 2 * (frames + 1);

  MemoryTurnTest() {
    for (int i = 0; i < 20; ++i)
      put_record(machine.files(), i + 1, {Text(memory_words.at(static_cast<std::size_t>(i)))});
    put(u"cserko\\képmem.ini",
        u" 5 \r\n 12 \r\n 2 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n 1 \r\n 4 \r\n");
    for (const TextView name : {u"cserko\\Moving.wav", u"cserko\\swallow1.wav", u"cserko\\kártyahát.wmf"})
      put(name, u"x");
    session.emplace(machine);
    install_feedback(*session);
    install_exercises(*session);
    session->képek.load(machine.files(), session->alapkönyvtár);
    script_board();
    window = &session->window<frm_képmemória>();
    machine.show(*window);
  }
  void TearDown() override {
    EXPECT_TRUE(machine.script.empty());
    EXPECT_TRUE(machine.errors.empty()) << utf8(machine.errors.front());
    EXPECT_EQ(machine.scripted_random_left(), 0U);
  }

  void put(TextView path, TextView content) { machine.files().put(Text(app) + Text(path), to_cp1250(content)); }
  void script_board() {
    machine.script_random(board_script({{0, 0, 10}, {1, 1, 11}, {2, 2, 12}, {3, 3, 13}, {4, 4, 14}}, 19));
  }
  frm_képmem_beáll& dialog() { return session->window<frm_képmem_beáll>(); }
  PictureBox& card(int index) { return window->kép[index]; }
  Label& word(int index) { return window->képszöveg[index]; }
  /// A press on a card, of its word where that lies over it.
  void turn(int index, MouseButton button = MouseButton::Left) {
    if (word(index).shown()) {
      hand::press(word(index), 10, 10, button);
    } else {
      hand::press(card(index), 10, 10, button);
    }
  }
  /// All media commands since the last call, one a line.
  std::string commands() {
    std::string lines;
    const auto& all = machine.media().commands;
    for (; heard < all.size(); ++heard) lines += utf8(all[heard]) + "\n";
    return lines;
  }
  static std::string sound(const std::string& name) {
    return "open \"c:\\cserko\\\\cserko\\" + name + "\" type waveaudio alias hang\nplay hang \n";
  }
  static std::string picture(const PictureBox& box) { return box.Picture ? utf8(box.Picture->path()) : "(none)"; }
  static const inline std::string back = "c:\\cserko\\cserko\\kártyahát.wmf";

  HeadlessPlatform machine;
  std::optional<Session> session;
  frm_képmemória* window = nullptr;
  std::size_t heard = 0;
};

// One card.

TEST_F(MemoryTurnTest, ThePictureSideShowsItsPictureAndWaits) {
  turn(1);
  EXPECT_EQ(picture(card(1)), "c:\\cserko\\kepek\\2.wmf");
  EXPECT_EQ(card(1).BackColor, white);
  EXPECT_TRUE(window->felfordítva(1));
  EXPECT_FALSE(word(1).Visible);
  EXPECT_TRUE(window->Enabled);
}

TEST_F(MemoryTurnTest, TheSecondSideShowsItsWord) {
  turn(11);
  EXPECT_EQ(picture(card(11)), "(none)");
  EXPECT_EQ(utf8(word(11).Caption), "körte");
  EXPECT_TRUE(word(11).Visible);
  EXPECT_EQ(card(11).BackColor, white);
  EXPECT_EQ(word(11).BackColor, white);
  EXPECT_TRUE(window->felfordítva(11));
}

TEST_F(MemoryTurnTest, AmongPicturesBothSidesShowTheSamePicture) {
  dialog().párbeállítás[0].set_value(true);
  turn(11);
  EXPECT_EQ(picture(card(11)), "c:\\cserko\\kepek\\2.wmf");
  EXPECT_FALSE(word(11).Visible);
  int both_open = 0;
  machine.during_frame = [&] {
    if (picture(card(1)) == back) return;
    ++both_open;
    EXPECT_EQ(picture(card(1)), "c:\\cserko\\kepek\\2.wmf");
    EXPECT_EQ(picture(card(11)), picture(card(1)));
    EXPECT_FALSE(word(1).Visible);
  };
  turn(1);
  EXPECT_GT(both_open, 60) << "the second that they lie open";
  EXPECT_FALSE(card(1).Visible);
  EXPECT_FALSE(card(11).Visible);
}

TEST_F(MemoryTurnTest, ATurnSqueezesTheCardTowardsItsMiddleAndBackFrameByFrame) {
  const double full = card(1).Width;
  const double center = card(1).Left + full / 2;
  const Rect before = place_of(card(1));
  std::vector<double> widths;
  machine.during_frame = [&] {
    widths.push_back(card(1).Width / full * frames);
    EXPECT_NEAR(card(1).Left + card(1).Width / 2, center, 0.001);
    EXPECT_EQ(picture(card(1)), widths.size() <= frames + 1 ? back : "c:\\cserko\\kepek\\2.wmf");
  };
  turn(1);
  ASSERT_EQ(widths.size(), static_cast<std::size_t>(a_turn));
  const std::vector<double> expected{4, 3, 2, 1, 0, 0, 1, 2, 3, 4};
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_NEAR(widths[i], expected[i], 0.001) << i;
  EXPECT_NEAR(card(1).Left, before.left, 0.001);
  EXPECT_EQ(card(1).Width, before.width);
}

TEST_F(MemoryTurnTest, TheWordIsSqueezedWithItsCard) {
  const double full = window->nemszöveg.Width;
  std::vector<double> widths;
  machine.during_frame = [&] {
    if (!word(11).Visible) return;
    widths.push_back(word(11).Width / full * frames);
    EXPECT_NEAR(word(11).Left + word(11).Width / 2, card(11).Left + card(11).Width / 2, 0.001);
    EXPECT_NEAR(word(11).Top + word(11).Height / 2, card(11).Top + card(11).Height / 2, 0.001);
  };
  turn(11);
  ASSERT_EQ(widths.size(), static_cast<std::size_t>(frames + 1));
  for (int i = 0; i <= frames; ++i) EXPECT_NEAR(widths[static_cast<std::size_t>(i)], i, 0.001);
}

TEST_F(MemoryTurnTest, TheFinenessIsTheNumberOfFrames) {
  for (const int fineness : {1, 10, 100}) {
    script_board();
    window->beáll();
    dialog().HScroll_anim_finomság.set_value(fineness);
    const int before = machine.frames;
    turn(0);
    EXPECT_EQ(machine.frames - before, 2 * (fineness + 1));
  }
}

TEST_F(MemoryTurnTest, ATurnIsHeardOnce) {
  turn(1);
  EXPECT_EQ(commands(), sound("Moving.wav"));
}

TEST_F(MemoryTurnTest, WithoutAnimationATurnIsHeardTwiceAndTakesNoFrame) {
  dialog().chk_anim_enged.set_value(0);
  const int before = machine.frames;
  turn(1);
  EXPECT_EQ(machine.frames, before);
  EXPECT_EQ(commands(), sound("Moving.wav") + "close hang\n" + sound("Moving.wav"));
  EXPECT_TRUE(window->felfordítva(1));
}

TEST_F(MemoryTurnTest, TheCardThatLiesTurnedUpDoesNothing) {
  turn(1);
  commands();
  const int before = machine.frames;
  turn(1);
  EXPECT_EQ(machine.frames, before);
  EXPECT_EQ(commands(), "");
  EXPECT_TRUE(window->felfordítva(1));
  EXPECT_TRUE(window->Enabled);
}

TEST_F(MemoryTurnTest, NeitherDoesTheWordThatLiesTurnedUp) {
  turn(11);
  ASSERT_TRUE(word(11).shown());
  commands();
  const int before = machine.frames;
  hand::press(word(11), 10, 10);
  hand::press(card(11), 10, 10);
  EXPECT_EQ(machine.frames, before);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(utf8(word(11).Caption), "körte");
  EXPECT_TRUE(window->felfordítva(11));
}

TEST_F(MemoryTurnTest, TheMiddleButtonTurnsToo) {
  turn(1, MouseButton::Middle);
  EXPECT_TRUE(window->felfordítva(1));
}

// Two cards.

TEST_F(MemoryTurnTest, TheWindowIsDeafWhileCardsTurnAndWait) {
  turn(1);
  int tried = 0;
  machine.during_frame = [&] {
    ++tried;
    EXPECT_FALSE(window->Enabled);
    hand::press(card(2), 10, 10);
    hand::press(card(2), 10, 10, MouseButton::Right);
    hand::click(card(3));
    hand::key(*window, key::space);
    hand::click(window->mnu_fájl_új_játék);
    hand::close(*window);
  };
  turn(2 + 10);
  machine.during_frame = {};
  EXPECT_GT(tried, 100);
  EXPECT_TRUE(window->Enabled);
  EXPECT_TRUE(session->loaded<frm_képmemória>());
  for (int i = 0; i < 36; ++i) EXPECT_FALSE(window->felfordítva(i)) << i;
  EXPECT_EQ(picture(card(2)), back);
  EXPECT_EQ(picture(card(3)), back);
}

TEST_F(MemoryTurnTest, DifferentCardsTurnBackOneWholeSecondAfterTheSetTime) {
  dialog().chk_anim_enged.set_value(0);
  for (const int seconds : {1, 2, 10}) {
    dialog().udvárid.set_value(seconds);
    turn(1);
    const std::int64_t start = machine.now();
    machine.during_frame = [&] { EXPECT_EQ(picture(card(1)), "c:\\cserko\\kepek\\2.wmf"); };
    turn(12);
    machine.during_frame = {};
    EXPECT_GE(machine.now() - start, (seconds + 1) * 1000);
    EXPECT_LT(machine.now() - start, (seconds + 1) * 1000 + HeadlessPlatform::frame_time);
    EXPECT_EQ(picture(card(1)), back);
    EXPECT_EQ(picture(card(12)), back);
    EXPECT_FALSE(word(12).Visible);
    EXPECT_FALSE(window->felfordítva(1));
  }
}

TEST_F(MemoryTurnTest, TurningBackClosesBothCardsAndOpensBoth) {
  turn(1);
  commands();
  const int before = machine.frames;
  const std::int64_t start = machine.now();
  turn(12);
  const auto waited = static_cast<int>((machine.now() - start) / HeadlessPlatform::frame_time);
  EXPECT_EQ(machine.frames - before, waited);
  EXPECT_EQ(machine.frames - before, 3 * a_turn + 188) << "its own turn, a wait of three seconds, two turns back";
  EXPECT_EQ(commands(), "close hang\n" + sound("Moving.wav") + "close hang\n" + sound("Moving.wav") + "close hang\n" +
                            sound("Moving.wav"));
  EXPECT_EQ(card(1).Width, window->nemkép.Width);
  EXPECT_EQ(card(12).Width, window->nemkép.Width);
  EXPECT_TRUE(card(1).Visible);
}

TEST_F(MemoryTurnTest, TheClockGoesOnDuringTheWait) {
  dialog().chk_anim_enged.set_value(0);
  turn(1);
  std::set<std::string> seen;
  machine.during_frame = [&] { seen.insert(utf8(window->időkijelző.Caption)); };
  turn(12);
  EXPECT_EQ(seen, (std::set<std::string>{"00:00:00", "00:00:01", "00:00:02"}));
}

TEST_F(MemoryTurnTest, APairVanishesAfterASecond) {
  dialog().chk_anim_enged.set_value(0);
  turn(1);
  const std::int64_t start = machine.now();
  turn(11);
  EXPECT_GE(machine.now() - start, 1000);
  EXPECT_LT(machine.now() - start, 1000 + HeadlessPlatform::frame_time);
  for (const int index : {1, 11}) {
    EXPECT_FALSE(card(index).Visible);
    EXPECT_FALSE(word(index).Visible);
    EXPECT_FALSE(window->felfordítva(index));
    EXPECT_EQ(picture(card(index)), back);
  }
  EXPECT_TRUE(card(0).Visible);
  EXPECT_TRUE(window->Enabled);
}

TEST_F(MemoryTurnTest, APairShrinksTowardsTheMiddlesOfItsCards) {
  turn(1);
  const Rect first = place_of(card(1));
  const Rect second = place_of(card(11));
  std::vector<double> heights;
  machine.during_frame = [&] {
    const double share = card(1).Height / first.height;
    if (share < 1 || !heights.empty()) heights.push_back(share * frames);
    if (heights.empty()) return;
    for (const auto& [index, place] : {std::pair{1, first}, std::pair{11, second}}) {
      EXPECT_NEAR(card(index).Width, place.width * share, 0.001);
      EXPECT_NEAR(card(index).Height, place.height * share, 0.001);
      EXPECT_NEAR(card(index).Left + card(index).Width / 2, place.left + place.width / 2, 0.001);
      EXPECT_NEAR(card(index).Top + card(index).Height / 2, place.top + place.height / 2, 0.001);
    }
  };
  const int before = machine.frames;
  turn(11);
  EXPECT_EQ(machine.frames - before, a_turn + 63 + frames + 1) << "a turn, a wait of one second, the shrinking";
  ASSERT_EQ(heights.size(), static_cast<std::size_t>(frames)) << "the first frame has the full size";
  for (int i = 0; i < frames; ++i) EXPECT_NEAR(heights[static_cast<std::size_t>(i)], frames - 1 - i, 0.001);
  // For the next board they have their size again.
  EXPECT_NEAR(card(1).Height, first.height, 0.001);
  EXPECT_NEAR(card(1).Top, first.top, 0.001);
  EXPECT_EQ(card(11).Width, second.width);
}

TEST_F(MemoryTurnTest, APairIsSwallowedWithSuccessSoundsAndElseMoved) {
  dialog().chk_anim_enged.set_value(0);
  turn(1);
  turn(11);
  std::string heard_now = commands();
  EXPECT_TRUE(heard_now.ends_with("close hang\n" + sound("swallow1.wav"))) << heard_now;
  session->window<frm_hangbeáll>().chk_hang_a_feladatokban_helyes.set_value(0);
  turn(2);
  turn(12);
  heard_now = commands();
  EXPECT_EQ(heard_now.find("swallow"), std::string::npos);
  EXPECT_TRUE(heard_now.ends_with("close hang\n" + sound("Moving.wav")));
}

TEST_F(MemoryTurnTest, TheOrderOfTheTwoCardsDoesNotMatter) {
  dialog().chk_anim_enged.set_value(0);
  turn(11);
  turn(1);
  EXPECT_FALSE(card(1).Visible);
  EXPECT_FALSE(card(11).Visible);
}

TEST_F(MemoryTurnTest, TheLastPairIsCongratulatedAndANewBoardIsDealt) {
  dialog().chk_anim_enged.set_value(0);
  int congratulations = 0;
  machine.script.push_back([&](Window& shown) {
    auto* panel = dynamic_cast<frm_gratuláció*>(&shown);
    ASSERT_NE(panel, nullptr);
    ++congratulations;
    window->kép.each([](const PictureBox& any) { EXPECT_FALSE(any.Visible); });
    hand::click(panel->cmd_ok);
  });
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(congratulations, 0);
    turn(i);
    if (i == 4) {
      machine.script_random({0.0, 0.0, 0.0}); // sentence, picture and sound of the praise
      script_board();
    }
    turn(10 + i);
  }
  EXPECT_EQ(congratulations, 1);
  int visible = 0;
  window->kép.each([&](const PictureBox& any) { visible += any.Visible ? 1 : 0; });
  EXPECT_EQ(visible, 10);
  EXPECT_TRUE(window->Enabled);
}

// Help.

class MemoryHelpTest : public MemoryTurnTest {
 protected:
  /// What the help on a card says, "(none)" where none comes.
  std::string help_on(int index) {
    std::string said = "(none)";
    machine.script.push_back([&](Window& shown) {
      auto& panel = dynamic_cast<üzenet&>(shown);
      said = utf8(panel.üzenet_szöveg.Caption) + " " + picture(panel.üzenet_kép);
      hand::click(panel.Command1);
    });
    turn(index, MouseButton::Right);
    if (said == "(none)") machine.script.clear();
    return said;
  }
};

TEST_F(MemoryHelpTest, TheRightButtonReadsACardWithoutTurningIt) {
  EXPECT_EQ(help_on(2), "szilva c:\\cserko\\kepek\\3.wmf");
  EXPECT_EQ(help_on(12), "szilva c:\\cserko\\kepek\\3.wmf");
  EXPECT_FALSE(window->felfordítva(2));
  EXPECT_EQ(picture(card(2)), back);
}

TEST_F(MemoryHelpTest, ItCanBeForbidden) {
  dialog().segítség_engedélyezése.set_value(0);
  EXPECT_EQ(help_on(2), "(none)");
  EXPECT_FALSE(window->felfordítva(2)) << "the right button never turns";
}

TEST_F(MemoryHelpTest, ItCanBeAllowedForTurnedCardsAlone) {
  dialog().segít.set_value(1);
  EXPECT_EQ(help_on(12), "(none)");
  turn(12);
  EXPECT_EQ(help_on(12), "szilva c:\\cserko\\kepek\\3.wmf") << "on the word that lies over the card";
}

// Keys.

TEST_F(MemoryHelpTest, IsPlayedByArrowsSpaceEnterAndSAlone) {
  dialog().chk_anim_enged.set_value(0);
  window->set_focus(&card(0));
  hand::key(*window, key::right);
  EXPECT_EQ(window->focus(), &card(1));
  hand::key(*window, key::space);
  EXPECT_TRUE(window->felfordítva(1));
  machine.script.push_back([](Window& shown) {
    EXPECT_EQ(utf8(dynamic_cast<üzenet&>(shown).üzenet_szöveg.Caption), "körte");
    hand::key(shown, key::escape);
  });
  hand::key(*window, 'S');
  // The board: 0 to 4 in the first row, 10 and 11 at the end of the second, 12 to 14 in the third.
  hand::key(*window, key::down);
  EXPECT_EQ(window->focus(), &card(13));
  for (const int code : {key::right, key::right, key::right, key::up}) hand::key(*window, code);
  std::set<int> reached;
  for (const int code : {key::left, key::left, key::left, key::left, key::down, key::left, key::left, key::right,
                         key::right, key::up, key::right, key::up, key::down, key::right}) {
    hand::key(*window, code);
    reached.insert(window->focus()->Index);
  }
  EXPECT_GE(reached.size(), 6U);
  for (int i = 0; i < 36 && window->focus() != &card(11); ++i) hand::key(*window, key::tab);
  ASSERT_EQ(window->focus(), &card(11));
  hand::key(*window, key::enter);
  EXPECT_FALSE(card(1).Visible);
  EXPECT_FALSE(card(11).Visible);
}

TEST_F(MemoryHelpTest, FromACardThatHasVanishedTheFocusGoesOnToTheNext) {
  dialog().chk_anim_enged.set_value(0);
  turn(11);
  turn(1);
  ASSERT_FALSE(card(1).Visible);
  EXPECT_EQ(window->focus(), &card(2));
  hand::key(*window, key::left);
  EXPECT_EQ(window->focus(), &card(0));
  hand::key(*window, key::space);
  EXPECT_TRUE(window->felfordítva(0));
}

TEST_F(MemoryHelpTest, OnlyTheCardsTakeTheFocus) {
  std::set<int> reached;
  for (int i = 0; i < 10; ++i) {
    hand::key(*window, key::tab);
    ASSERT_NE(window->focus(), nullptr);
    EXPECT_EQ(utf8(window->focus()->Name), "kép");
    reached.insert(window->focus()->Index);
  }
  EXPECT_EQ(reached.size(), 10U);
}

} // namespace
} // namespace cserko
