// The settings of Missing letter: the design of the dialog, its ranges, its file of four lines, OK, Cancel and Help.
#include "tests/exercises/missing_letter_fixture.h"
#include "tests/exercises/word_lengths.h"

namespace cserko {
namespace {

class MissingLetterSettingsTest : public MissingLetterFixture {
 protected:
  void in_dialog(frm_betűhiány& window, const std::function<void(dlg_betűhiány&)>& deed) {
    then_in<dlg_betűhiány>(deed);
    hand::click(window.mnu_fájl_beáll);
  }
};

TEST_F(MissingLetterSettingsTest, HasItsTextsRangesAndDefaults) {
  start();
  auto& d = load<dlg_betűhiány>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Betűhiány beállítások");
  EXPECT_EQ(utf8(d.frame_nyelv.Caption), "Nyelv");
  EXPECT_EQ(captions(d.opt_nyelv), (std::vector<std::string>{"Magyar", "Angol"}));
  EXPECT_EQ(d.opt_nyelv.chosen(), 0);
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "&Súgó");
  expect_fresh_lengths(d);
  for (const OptionButton* option : {&d.opt_nyelv[0], &d.opt_nyelv[1]}) EXPECT_EQ(option->container(), &d.frame_nyelv);
}

TEST_F(MissingLetterSettingsTest, TheLengthsLimitEachOther) {
  start();
  auto& d = load<dlg_betűhiány>();
  expect_lengths_to_limit_each_other(d);
}

TEST_F(MissingLetterSettingsTest, OkWritesFourLinesHidesTheDialogAndDealsAnew) {
  auto& window = deal(u"almafa", 2, 6, u"apple");
  in_dialog(window, [this](dlg_betűhiány& d) {
    d.ud_maxbetűszám.set_value(5);
    hand::click(d.opt_nyelv[1]);
    script(1, 2, 5);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"betűhiány.ini"), " 4 \r\n 5 \r\nFalse\r\nTrue\r\n");
  EXPECT_FALSE(load<dlg_betűhiány>().visible());
  EXPECT_EQ(row(window), "b|r|a|d");
}

TEST_F(MissingLetterSettingsTest, TheResultsSurviveANewSetting) {
  auto& window = deal(u"almafa", 2, 6);
  hand::click(window.betű[2]);
  hand::click(window.cmd_kész);
  in_dialog(window, [](dlg_betűhiány& d) { hand::click(d.OKButton); });
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "almafa");
}

TEST_F(MissingLetterSettingsTest, TheFourLinesAreRead) {
  put_settings(u"betűhiány.ini", {u" 11 ", u" 13 ", u"False", u"True"});
  start();
  auto& d = load<dlg_betűhiány>();
  EXPECT_EQ(d.ud_minbetűszám.value(), 11);
  EXPECT_EQ(d.ud_maxbetűszám.value(), 13);
  EXPECT_TRUE(d.english());
  EXPECT_EQ(utf8(d.txt_minbetűszám.text()), "11");
}

TEST_F(MissingLetterSettingsTest, HungarianIsOnWhereTheFileHasNeitherLanguage) {
  put_settings(u"betűhiány.ini", {u" 4 ", u" 9 ", u"False", u"False"});
  start();
  EXPECT_EQ(load<dlg_betűhiány>().ud_maxbetűszám.value(), 9);
  EXPECT_TRUE(load<dlg_betűhiány>().opt_nyelv[0].value());
  EXPECT_FALSE(load<dlg_betűhiány>().english());
}

TEST_F(MissingLetterSettingsTest, OfBothLanguagesInTheFileTheLaterOneHolds) {
  put_settings(u"betűhiány.ini", {u" 4 ", u" 9 ", u"True", u"True"});
  start();
  EXPECT_TRUE(load<dlg_betűhiány>().english());
}

TEST_F(MissingLetterSettingsTest, AFileThatEndsEarlyLeavesTheRest) {
  put_settings(u"betűhiány.ini", {u" 6 "});
  start();
  auto& d = load<dlg_betűhiány>();
  EXPECT_EQ(d.ud_minbetűszám.value(), 6);
  EXPECT_EQ(d.ud_maxbetűszám.value(), 10);
  EXPECT_FALSE(d.english());
}

TEST_F(MissingLetterSettingsTest, CancelReadsTheFileAgainAndKeepsThePuzzle) {
  put_settings(u"betűhiány.ini", {u" 5 ", u" 9 ", u"True", u"False"});
  auto& window = deal(u"almafa", 2, 6);
  hand::click(window.betű[2]);
  in_dialog(window, [](dlg_betűhiány& d) {
    d.ud_maxbetűszám.set_value(16);
    hand::click(d.opt_nyelv[1]);
    hand::key(d, key::escape);
  });
  const auto& d = load<dlg_betűhiány>();
  EXPECT_FALSE(d.visible());
  EXPECT_EQ(d.ud_maxbetűszám.value(), 9);
  EXPECT_FALSE(d.english());
  EXPECT_EQ(row(window), "a|lm|a|f|a");
}

TEST_F(MissingLetterSettingsTest, AFileThatCannotBeWrittenLeavesTheNewSettingsInForce) {
  put_settings(u"betűhiány.ini", {u" 4 ", u" 10 ", u"True", u"False"});
  auto& window = deal(u"almafa", 2, 6);
  machine.files().make_unwritable(Text(user_folder) + u"betűhiány.ini");
  in_dialog(window, [](dlg_betűhiány& d) {
    d.ud_maxbetűszám.set_value(6);
    hand::click(d.OKButton);
  });
  expected_errors = 1;
  EXPECT_EQ(settings(u"betűhiány.ini"), " 4 \r\n 10 \r\nTrue\r\nFalse\r\n");
  EXPECT_EQ(load<dlg_betűhiány>().ud_maxbetűszám.value(), 6);
}

TEST_F(MissingLetterSettingsTest, HelpOpensThePageOfTheSettings) {
  auto& window = deal(u"almafa", 2, 6);
  in_dialog(window, [](dlg_betűhiány& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(help_page(), help_command("Betűhiány - beállítások.mht"));
}

} // namespace
} // namespace cserko
