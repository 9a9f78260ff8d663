// Picture definition: the picture and its definitions, answers by text, the strip, the settings, the keys.
#include "exercises/sentences/frm_képhatározó.h"
#include "tests/exercises/exercise_fixture.h"

#include <algorithm>
#include <set>

namespace cserko {
namespace {

class DefinitionTest : public ExerciseTest {
 protected:
  void put_numbered(int count) {
    for (int i = 0; i < count; ++i)
      put({.név = u"kép " + to_text(i), .angol = u"picture", .meghatározás = u"meghatározás " + to_text(i)});
  }
  /// What chance gives for a puzzle with these records at these of `places` places, the first of them the right one.
  void script_deal(const std::vector<std::pair<int, int>>& records_at_places, int places) {
    bool right_one = true;
    for (const auto& [index, place] : records_at_places) {
      if (right_one) {
        machine.script_random({record(index), drawing(place, places)});
      } else {
        machine.script_random({drawing(place, places), record(index)});
      }
      right_one = false;
    }
  }
  void script_sound() { machine.script_random({0.0}); }
  /// Opens the exercise with record 3 below record 5, whose definition is the right one.
  frm_képhatározó& deal() {
    start();
    put_answer_sounds();
    script_deal({{5, 0}, {3, 1}}, 2);
    return open<frm_képhatározó>();
  }
  static std::vector<std::string> definitions(const frm_képhatározó& window) {
    std::vector<std::string> all;
    window.lbl_meghatározás.each([&](const PictureBox& box) { all.push_back(utf8(box.Tag)); });
    return all;
  }
  PictureBox& right_one(frm_képhatározó& window) {
    PictureBox* found = nullptr;
    window.lbl_meghatározás.each([&](PictureBox& box) {
      if (box.Tag == session().képek[window.aktuális_kép()].meghatározás) found = &box;
    });
    EXPECT_NE(found, nullptr);
    return *found;
  }
  frm_képhatározó_beáll& dialog() { return session().window<frm_képhatározó_beáll>(); }
};

TEST_F(DefinitionTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_képhatározó>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó Képhatározó");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Mit látsz a képen? Kattints rá a képhez tartozó meghatározásra!");
  EXPECT_EQ(place_of(window->lbl_feladat), (Rect{30, 0, 8055, 495}));
  EXPECT_EQ(place_of(window->kép), (Rect{30, 480, 1790, 1790}));
  EXPECT_EQ(window->lbl_meghatározás[0].Left, 1920);
  EXPECT_EQ(window->lbl_meghatározás[0].Width, 6135);
  const std::vector<double> lefts{120, 1440, 2760, 4080, 5400, 6720};
  for (int i = 0; i < 6; ++i) {
    const double left = lefts[static_cast<std::size_t>(i)];
    EXPECT_EQ(place_of(window->pic_eredmény[i]), (Rect{left, 240, 1215, 1215}));
    EXPECT_EQ(place_of(window->lbl_eredmény[i]), (Rect{left, 1440, 1215, 480}));
    EXPECT_EQ(window->pic_eredmény[i].container(), &window->Frame1);
  }
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_újjáték.Caption), "Új játék");
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
}

TEST_F(DefinitionTest, TheDialogHasItsTextsRangesAndDefaults) {
  start();
  const auto window = designed<frm_képhatározó_beáll>();
  EXPECT_EQ(utf8(window->Caption), "Képhatározó Beállítások");
  EXPECT_EQ(utf8(window->Check_képnévis.Caption), "Mutassa a kép nevét is");
  EXPECT_EQ(window->Check_képnévis.value(), 0);
  EXPECT_EQ(utf8(window->Label1.Caption), "A meghatározások száma");
  EXPECT_EQ(window->Ud_meghatározásokszáma.Min, 2);
  EXPECT_EQ(window->Ud_meghatározásokszáma.Max, 6);
  EXPECT_EQ(window->Ud_meghatározásokszáma.Increment, 1);
  EXPECT_EQ(window->Ud_meghatározásokszáma.value(), 2);
  EXPECT_EQ(utf8(window->OKButton.Caption), "OK");
  EXPECT_EQ(utf8(window->CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(window->cmd_súgó.Caption), "Súgó");
}

TEST_F(DefinitionTest, FillsItsShareOfTheScreen) {
  put_numbered(8);
  expect_scaled(deal(), 0.95, u"kép");
}

TEST_F(DefinitionTest, APictureStandsBesideItsDefinitionAndAnotherOne) {
  put_numbered(8);
  auto& window = deal();
  EXPECT_EQ(window.aktuális_kép(), 5);
  EXPECT_EQ(utf8(window.kép.Tag), "5");
  EXPECT_EQ(picture(window.kép), picture_path(5));
  EXPECT_EQ(window.kép.drawn_canvas() == nullptr || drawn(window.kép).texts().empty(), true)
      << "no name on the picture";
  EXPECT_EQ(definitions(window), (std::vector<std::string>{"meghatározás 5", "meghatározás 3"}));
  EXPECT_EQ(drawn(window.lbl_meghatározás[0]).texts(), std::vector<Text>{u"meghatározás 5"});
}

TEST_F(DefinitionTest, TheDefinitionsShareTheHeightOfThePicture) {
  put_numbered(12);
  put_settings(u"kephat.ini", {u" 0 ", u" 4 "});
  start();
  auto& window = open<frm_képhatározó>();
  ASSERT_EQ(window.lbl_meghatározás.count(), 4);
  const double height = (window.kép.Height - 3 * 60) / 4;
  for (int i = 0; i < 4; ++i) {
    const PictureBox& box = window.lbl_meghatározás[i];
    EXPECT_NEAR(box.Height, height, 1e-6);
    EXPECT_NEAR(box.Top, window.lbl_meghatározás[0].Top + i * (height + 60), 1e-6);
    EXPECT_EQ(box.Left, window.lbl_meghatározás[0].Left);
    EXPECT_EQ(box.Width, window.lbl_meghatározás[0].Width);
    EXPECT_TRUE(box.Visible);
  }
}

TEST_F(DefinitionTest, FewerDefinitionsAreTaller) {
  put_numbered(12);
  put_settings(u"kephat.ini", {u" 0 ", u" 4 "});
  start();
  auto& window = open<frm_képhatározó>();
  const double before = window.lbl_meghatározás[0].Height;
  then_in<frm_képhatározó_beáll>([](frm_képhatározó_beáll& panel) {
    panel.Ud_meghatározásokszáma.set_value(2);
    hand::click(panel.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(window.lbl_meghatározás.count(), 2);
  EXPECT_GT(window.lbl_meghatározás[0].Height, before);
  EXPECT_NE(definitions(window)[1], "");
}

TEST_F(DefinitionTest, TakenPlacesAndDefinitionsThatAreShownAreDrawnAgain) {
  put({{.név = u"a", .meghatározás = u"közös"}, {.név = u"b", .meghatározás = u"közös"}});
  put_numbered(6);
  put_settings(u"kephat.ini", {u" 0 ", u" 3 "});
  start();
  machine.script_random({record(1), drawing(2, 3)});
  machine.script_random({drawing(2, 3), drawing(0, 3), record(0), record(1), record(4)});
  machine.script_random({drawing(0, 3), drawing(1, 3), record(4), record(2)});
  auto& window = open<frm_képhatározó>();
  EXPECT_EQ(definitions(window), (std::vector<std::string>{"meghatározás 2", "meghatározás 0", "közös"}));
}

TEST_F(DefinitionTest, NoPuzzleComesTwiceRunningAndTheLastRecordNever) {
  put_numbered(9);
  auto& window = deal();
  int last = window.aktuális_kép();
  for (int i = 0; i < 300; ++i) {
    window.beáll();
    EXPECT_NE(window.aktuális_kép(), last);
    EXPECT_NE(window.aktuális_kép(), 8);
    const auto all = definitions(window);
    EXPECT_EQ(std::count(all.begin(), all.end(), "meghatározás " + std::to_string(window.aktuális_kép())), 1);
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size());
    last = window.aktuális_kép();
  }
}

TEST_F(DefinitionTest, ARecordWithoutADefinitionIsNeverDrawn) {
  put_numbered(2);
  put({.név = u"x"});
  put_numbered(4);
  start();
  machine.script_random({record(2), record(1), drawing(0, 2), drawing(1, 2), record(2), record(3)});
  EXPECT_EQ(definitions(open<frm_képhatározó>()), (std::vector<std::string>{"meghatározás 1", "meghatározás 0"}));
}

TEST_F(DefinitionTest, TheRightDefinitionIsHeardKeptAndFollowedByTheNextPicture) {
  put_numbered(8);
  auto& window = deal();
  script_sound();
  script_deal({{4, 1}, {2, 0}}, 2);
  hand::click(window.lbl_meghatározás[0]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "meghatározás 5");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(5));
  EXPECT_EQ(window.aktuális_kép(), 4);
  EXPECT_EQ(definitions(window), (std::vector<std::string>{"meghatározás 2", "meghatározás 4"}));
}

TEST_F(DefinitionTest, AWrongDefinitionIsHeardAndThePuzzleStays) {
  put_numbered(8);
  auto& window = deal();
  const auto before = definitions(window);
  script_sound();
  hand::click(window.lbl_meghatározás[1]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(definitions(window), before);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(DefinitionTest, TheSixthRightAnswerIsCongratulatedAndTheStripIsEmptied) {
  put_numbered(9);
  auto& window = deal();
  for (int solved = 0; solved < 5; ++solved) hand::click(right_one(window));
  EXPECT_EQ(congratulations, 0);
  const int sixth = window.aktuális_kép();
  seen_at_congratulation = [&] {
    EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "meghatározás " + std::to_string(sixth));
    EXPECT_EQ(window.aktuális_kép(), sixth) << "the next picture comes behind the panel";
  };
  then_close_congratulation();
  hand::click(right_one(window));
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_NE(window.aktuális_kép(), sixth);
}

TEST_F(DefinitionTest, WithTheSettingThePicturesShowTheirNames) {
  put_numbered(8);
  put_settings(u"kephat.ini", {u" 1 ", u" 2 "});
  auto& window = deal();
  const auto shows_name = [](PictureBox& box, const Text& name) {
    const auto texts = drawn(box).texts();
    return std::find(texts.begin(), texts.end(), name) != texts.end();
  };
  EXPECT_TRUE(shows_name(window.kép, u"kép 5"));
  EXPECT_GT(drawn(window.kép).texts().size(), 1U) << "with a halo, not a plate";
  EXPECT_EQ(utf8(window.kép.Tag), "5");
  hand::click(right_one(window));
  EXPECT_TRUE(shows_name(window.pic_eredmény[0], u"kép 5"));
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "meghatározás 5");
}

TEST_F(DefinitionTest, ANewGameEmptiesTheStripAndDeals) {
  put_numbered(9);
  auto& window = deal();
  hand::click(right_one(window));
  const int before = window.aktuális_kép();
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_NE(window.aktuális_kép(), before);
}

TEST_F(DefinitionTest, OkWritesTheTwoLinesEmptiesTheStripAndDeals) {
  put_numbered(12);
  auto& window = deal();
  hand::click(right_one(window));
  then_in<frm_képhatározó_beáll>([](frm_képhatározó_beáll& panel) {
    panel.Check_képnévis.set_value(1);
    panel.Ud_meghatározásokszáma.set_value(6);
    EXPECT_EQ(utf8(panel.Label_meghatározásokszáma.Caption), "6");
    hand::click(panel.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(settings(u"kephat.ini"), " 1 \r\n 6 \r\n");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(window.lbl_meghatározás.count(), 6);
  const auto all = definitions(window);
  EXPECT_EQ(std::count(all.begin(), all.end(), ""), 0);
}

TEST_F(DefinitionTest, CancelPutsTheFileBackAndLeavesThePuzzle) {
  put_numbered(12);
  put_settings(u"kephat.ini", {u" 1 ", u" 3 "});
  start();
  auto& window = open<frm_képhatározó>();
  const auto before = definitions(window);
  then_in<frm_képhatározó_beáll>([](frm_képhatározó_beáll& panel) {
    panel.Check_képnévis.set_value(0);
    panel.Ud_meghatározásokszáma.set_value(6);
    hand::click(panel.CancelButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(dialog().Check_képnévis.value(), 1);
  EXPECT_EQ(dialog().Ud_meghatározásokszáma.value(), 3);
  EXPECT_EQ(utf8(dialog().Label_meghatározásokszáma.Caption), "3");
  EXPECT_EQ(definitions(window), before);
}

TEST_F(DefinitionTest, WithTooFewDefinitionsTheWindowStaysAndTellsWhichSettingToRelax) {
  put_numbered(4);
  put({.név = u"x"});
  put_settings(u"kephat.ini", {u" 0 ", u" 6 "});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_képhatározó>();
  EXPECT_EQ(message,
            "Nincs elég olyan kép, amelyikhez meghatározás tartozik.\r\nKérlek, kérj a beállításokban kevesebb "
            "meghatározást!");
  EXPECT_EQ(definitions(window), std::vector<std::string>(6, ""));
  EXPECT_EQ(picture(window.kép), "(none)");
  hand::click(window.lbl_meghatározás[0]);
  EXPECT_EQ(commands(), "") << "an empty place is no answer";
  then_in<frm_képhatározó_beáll>([](frm_képhatározó_beáll& panel) {
    panel.Ud_meghatározásokszáma.set_value(2);
    hand::click(panel.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_NE(definitions(window)[0], "");
}

TEST_F(DefinitionTest, ALongDefinitionIsBrokenIntoLinesRatherThanPrintedSmall) {
  Text text(u"Nagyon");
  for (int i = 0; i < 50; ++i) text += u" hosszú";
  put({{.név = u"a", .meghatározás = u"a"}, {.név = u"b", .meghatározás = text}});
  put_numbered(4);
  start();
  script_deal({{1, 0}, {2, 1}}, 2);
  auto& window = open<frm_képhatározó>();
  PictureBox& box = window.lbl_meghatározás[0];
  EXPECT_EQ(box.Tag, text);
  const auto texts = drawn(box).texts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find(u'\r'), Text::npos);
  Text joined = texts[0];
  std::replace(joined.begin(), joined.end(), u'\r', u' ');
  EXPECT_EQ(joined, text);
  const Size extent = machine.measure(box.Font, texts[0]);
  EXPECT_LE(extent.width, box.Width);
  EXPECT_LE(extent.height, box.Height);
  EXPECT_LT(machine.measure(box.Font, u"Nagyon hosszú").width, machine.measure(box.Font, text).width);
  // One point more would not fit any longer.
  EXPECT_GT(box.Font.size, first_overfilling_size(machine, {.size = 6}, text, {box.Width, box.Height}));
}

TEST_F(DefinitionTest, ClosingKeepsTheDialog) {
  put_numbered(8);
  auto& window = deal();
  dialog().Ud_meghatározásokszáma.set_value(5);
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_képhatározó>());
  ASSERT_TRUE(session().loaded<frm_képhatározó_beáll>());
  EXPECT_EQ(dialog().Ud_meghatározásokszáma.value(), 5);
}

TEST_F(DefinitionTest, HelpOpensItsPage) {
  put_numbered(8);
  auto& window = deal();
  hand::click(window.mnu_súgó_súgó);
  EXPECT_EQ(help_page(), help_command("képhatározó - a feladat.mht"));
}

TEST_F(DefinitionTest, TheHelpOfTheDialogOpensItsPage) {
  put_numbered(8);
  auto& window = deal();
  then_in<frm_képhatározó_beáll>([](frm_képhatározó_beáll& panel) {
    hand::click(panel.cmd_súgó);
    hand::click(panel.CancelButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(help_page(), help_command("képhatározó - beállítások.mht"));
}

TEST_F(DefinitionTest, IsPlayedByArrowsAndSpaceOrEnterAlone) {
  put_numbered(9);
  auto& window = deal();
  hand::key(window, key::tab);
  ASSERT_NE(window.focus(), nullptr);
  EXPECT_EQ(utf8(window.focus()->Name), "lbl_meghatározás");
  window.set_focus(&window.lbl_meghatározás[1]);
  hand::key(window, key::up);
  EXPECT_EQ(window.focus(), &window.lbl_meghatározás[0]);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "meghatározás 5");
  window.set_focus(&right_one(window));
  hand::key(window, key::enter);
  EXPECT_NE(utf8(window.lbl_eredmény[1].Caption), "");
}

} // namespace
} // namespace cserko
