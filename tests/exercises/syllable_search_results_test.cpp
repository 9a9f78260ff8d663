// Syllable search: its results, what it does where something is missing, and its end.
#include "core/numbers.h"
#include "tests/exercises/syllable_search_fixture.h"

namespace cserko {
namespace {

class SyllableSearchResultsTest : public SyllableSearchFixture {};

// The results.

TEST_F(SyllableSearchResultsTest, TheThirdWordIsCongratulatedAfterThePauseAndThePanelEmptied) {
  auto& window = deal();
  const auto solve = [&](int next) {
    lay_right(window);
    hand::click(window.cmd_kész);
    machine.script_random({record(next)});
    machine.advance(2000);
  };
  solve(2);
  solve(3);
  lay_right(window);
  hand::click(window.cmd_kész);
  machine.advance(1999);
  EXPECT_EQ(congratulations, 0);
  seen_at_congratulation = [&] {
    EXPECT_EQ(captions(window.lbl_eredmény), (std::vector<std::string>{"al-ma-fa", "e-ser-nyő", "te-le-ví-zi-ó"}));
    EXPECT_EQ(picture(window.pic_eredmény[2]), picture_path(3));
    EXPECT_EQ(window.lbl_szótag[0].ForeColor, (Color{255, 0, 0})) << "the next word comes after it";
  };
  then_close_congratulation();
  machine.advance(1);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(3));
  EXPECT_EQ(window.lbl_szótag[0].ForeColor, black);
}

TEST_F(SyllableSearchResultsTest, ALongCongratulationDoesNotCountTheWordAgain) {
  auto& window = deal();
  const auto solve = [&] {
    lay_right(window);
    hand::click(window.cmd_kész);
    machine.advance(2000);
  };
  solve();
  solve();
  seen_at_congratulation = [&] {
    machine.advance(20000);
    EXPECT_EQ(utf8(window.lbl_eredmény[2].Caption), utf8(session().képek[window.aktuális_kép()].szótagolt));
  };
  then_close_congratulation();
  solve();
  machine.advance(20000);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
}

TEST_F(SyllableSearchResultsTest, AWordIsCountedWhileTheSettingsStandOpenAndNotAgainByOk) {
  auto& window = deal();
  lay_right(window);
  hand::click(window.cmd_kész);
  change_settings(window, 2, [&](frm_szótagkereső_beáll&) {
    machine.advance(6000);
    EXPECT_EQ(captions(window.lbl_eredmény), (std::vector<std::string>{"al-ma-fa", "", ""}));
  });
  machine.advance(6000);
  EXPECT_EQ(captions(window.lbl_eredmény), (std::vector<std::string>{"al-ma-fa", "", ""}));
}

TEST_F(SyllableSearchResultsTest, OkInTheSettingsWithinThePauseCountsTheWordOnceAndDeals) {
  auto& window = deal();
  lay_right(window);
  hand::click(window.cmd_kész);
  change_settings(window, 2, [](frm_szótagkereső_beáll&) {});
  EXPECT_EQ(captions(window.lbl_eredmény), (std::vector<std::string>{"al-ma-fa", "", ""}));
  EXPECT_EQ(window.aktuális_kép(), 2);
  EXPECT_TRUE(window.cmd_kész.Visible);
  machine.advance(6000);
  EXPECT_EQ(captions(window.lbl_eredmény), (std::vector<std::string>{"al-ma-fa", "", ""}));
  EXPECT_EQ(window.aktuális_kép(), 2) << "the new puzzle stays";
}

TEST_F(SyllableSearchResultsTest, OkWithinThePauseOfTheThirdWordPraisesOnce) {
  auto& window = deal();
  for (int i = 0; i < 3; ++i) {
    lay_right(window);
    hand::click(window.cmd_kész);
    if (i < 2) machine.advance(2000);
  }
  seen_at_congratulation = [&] { machine.advance(20000); };
  then_in<frm_szótagkereső_beáll>([this](frm_szótagkereső_beáll& d) {
    then_close_congratulation();
    hand::click(d.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  EXPECT_EQ(window.lbl_szótag[0].ForeColor, black);
}

// Where something is missing.

TEST_F(SyllableSearchResultsTest, WithoutAWordTheWindowStaysEmptyAndTellsWhy) {
  put_only({{.név = u"pók", .szótagolt = u"pók"}, {.név = u"alma", .szótagolt = u"al-ma"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_szótagkereső>();
  EXPECT_EQ(message, "Nincs elég olyan szavunk, amelyiknek ennyi szótagja van.\r\nKérlek, engedj meg a beállításokban "
                     "kevesebb vagy több szótagot is!");
  EXPECT_TRUE(window.visible());
  EXPECT_TRUE(window.szövegtároló.Visible);
  EXPECT_EQ(captions(window.lbl_szótag), nothing(1));
  hand::click(window.cmd_kész);
  hand::key(window, key::space);
  press_tray(window, {10, 10});
  press_tray(window, {10, 10}, MouseButton::Right);
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_szótagkereső>());
}

TEST_F(SyllableSearchResultsTest, ASingleWordIsSolvedOnceAndCounted) {
  put_only({{.név = u"esernyő", .szótagolt = u"e-ser-nyő"}});
  start();
  auto& window = open<frm_szótagkereső>();
  lay_right(window);
  hand::click(window.cmd_kész);
  then_close_message();
  machine.advance(2000);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "e-ser-nyő");
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(captions(window.lbl_szótag), nothing(1));
  machine.advance(10000);
  EXPECT_EQ(messages_shown, 1);
}

TEST_F(SyllableSearchResultsTest, ARecordWithoutAPictureShowsItsPlaceholder) {
  put_only({{.név = u"esernyő", .szótagolt = u"e-ser-nyő", .has_picture = false}});
  start();
  auto& window = open<frm_szótagkereső>();
  EXPECT_EQ(drawn(window.kép).texts(), std::vector<Text>{u"esernyő"});
}

TEST_F(SyllableSearchResultsTest, SyllablesThatFindNoPlaceAreTold) {
  Text wide;
  for (int i = 0; i < 7; ++i) wide += (i == 0 ? u"" : u"-") + Text(30, u'm');
  put_only({{.név = u"széles", .szótagolt = u"o-" + wide.substr(0, wide.rfind(u'-'))}});
  start();
  then_close_message();
  open<frm_szótagkereső>();
  EXPECT_EQ(message, "Nem férnek el a szótagok a keretben.\r\nKérlek, engedj meg a beállításokban kevesebb szótagot!");
}

// Closing.

TEST_F(SyllableSearchResultsTest, TheDialogGoesWithTheExerciseHoweverItIsClosed) {
  for (const bool by_menu : {true, false}) {
    auto& window = deal();
    load<frm_szótagkereső_beáll>();
    if (by_menu) {
      hand::click(window.mnu_fájl_kilép);
    } else {
      hand::close(window);
    }
    EXPECT_FALSE(session().loaded<frm_szótagkereső>());
    EXPECT_FALSE(session().loaded<frm_szótagkereső_beáll>());
    end_session();
  }
}

TEST_F(SyllableSearchResultsTest, ClosedWithinThePauseNothingComesAfter) {
  auto& window = deal();
  lay_right(window);
  hand::click(window.cmd_kész);
  hand::close(window);
  machine.advance(10000);
  EXPECT_FALSE(session().loaded<frm_szótagkereső>());
}

TEST_F(SyllableSearchResultsTest, HelpOpensItsPageAlsoByKey) {
  auto& window = deal();
  hand::key(window, key::f1);
  hand::click(window.mnu_súgó_súgó);
  expect_help_twice("Szótagkereső - a feladat.mht");
}

} // namespace
} // namespace cserko
