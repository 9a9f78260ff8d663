// The template exercise: what every exercise has and does, tested on the smallest one. A model for the tests of others.
#include "exercises/template/frm_template.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

class TemplateTest : public ExerciseTest {
 protected:
  TemplateTest() {
    put({{.név = u"alma", .angol = u"apple"},
         {.név = u"kutya", .angol = u"dog"},
         {.név = u"hal", .angol = u"fish"},
         {.név = u"utolsó", .angol = u"last"}});
  }
  /// Opens the exercise with "alma" above and "kutya" below.
  frm_template& deal() {
    start();
    put_answer_sounds();
    script(0, 1, 0);
    return open<frm_template>();
  }
  /// What chance gives for a puzzle: the record, the other one, the place of the right name.
  void script(int right, int other, int place) {
    machine.script_random({record(right), record(other), drawing(place, 2)});
  }
};

TEST_F(TemplateTest, ShowsAPictureAndTwoNames) {
  auto& window = deal();
  expect_scaled(window, 0.95, u"kép");
  EXPECT_EQ(picture(window.kép), picture_path(0));
  EXPECT_EQ(captions(window.lbl_név), (std::vector<std::string>{"alma", "kutya"}));
}

TEST_F(TemplateTest, ARecordIsNotDrawnBesideItself) {
  start();
  machine.script_random({record(2), record(2), record(1), drawing(1, 2)});
  EXPECT_EQ(captions(open<frm_template>().lbl_név), (std::vector<std::string>{"kutya", "hal"}));
}

TEST_F(TemplateTest, TheRightNameIsHeardKeptAndFollowedByTheNextPuzzle) {
  auto& window = deal();
  machine.script_random({0.0});
  script(2, 1, 1);
  hand::click(window.lbl_név[0]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "alma");
  EXPECT_EQ(captions(window.lbl_név), (std::vector<std::string>{"kutya", "hal"}));
}

TEST_F(TemplateTest, TheWrongNameIsHeardAndNothingChanges) {
  auto& window = deal();
  machine.script_random({0.0});
  hand::click(window.lbl_név[1]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(window.aktuális_kép(), 0);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
}

TEST_F(TemplateTest, AFullPanelIsCongratulatedAndEmptied) {
  auto& window = deal();
  then_close_congratulation();
  for (int solved = 0; solved < 3; ++solved)
    hand::click(
        window.lbl_név[utf8(window.lbl_név[0].Caption) == utf8(session().képek[window.aktuális_kép()].név) ? 0 : 1]);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
}

TEST_F(TemplateTest, ANewGameEmptiesThePanelAndDeals) {
  auto& window = deal();
  hand::click(window.lbl_név[0]);
  script(1, 2, 0);
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
  EXPECT_EQ(window.aktuális_kép(), 1);
}

TEST_F(TemplateTest, TheSettingsAreOneLineAndDealAnew) {
  auto& window = deal();
  then_in<dlg_template>([this](dlg_template& dialog) {
    hand::click(dialog.chk_angol);
    script(1, 2, 0);
    hand::click(dialog.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(settings(u"template.ini"), " 1 \r\n");
  EXPECT_EQ(captions(window.lbl_név), (std::vector<std::string>{"dog", "fish"}));
}

TEST_F(TemplateTest, WhereNoTwoNamesDifferItTellsWhyAndStays) {
  start_numbering();
  for (int i = 0; i < 4; ++i) put({.név = u"alma"});
  start();
  then_close_message();
  auto& window = open<frm_template>();
  EXPECT_EQ(message, "Nincs két szó, amelyikből választani lehetne.");
  hand::click(window.lbl_név[0]);
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(3));
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_template>());
}

TEST_F(TemplateTest, IsPlayedByKeysAlone) {
  auto& window = deal();
  ASSERT_EQ(window.focus(), &window.lbl_név[0]);
  hand::key(window, key::down);
  EXPECT_EQ(window.focus(), &window.lbl_név[1]);
  hand::key(window, key::up);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "alma");
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("minta - a feladat.mht"));
}

TEST_F(TemplateTest, TheProgramDoesNotOfferIt) {
  start();
  EXPECT_FALSE(session().offers(u"frm_template"));
}

} // namespace
} // namespace cserko
