// The settings of Where is it: the design of the dialog, its ranges, its file of five lines, OK, Cancel and Help.
#include "tests/exercises/where_is_it_fixture.h"
#include "tests/exercises/word_lengths.h"

namespace cserko {
namespace {

class WhereIsItSettingsTest : public WhereIsItFixture {};

TEST_F(WhereIsItSettingsTest, HasItsTextsRangesAndDefaults) {
  start();
  auto& d = load<frm_holvan_beáll>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Hol van? - Beállítások");
  EXPECT_EQ(utf8(d.Frame_irányok.Caption), "Irányok");
  EXPECT_EQ(captions(d.option_irányok),
            (std::vector<std::string>{"Jobbra - Balra - Fent - Lent", "Jobbra - Balra", "Fent - Lent"}));
  EXPECT_EQ(d.option_irányok.chosen(), 0);
  EXPECT_EQ(d.option_irányok[2].container(), &d.Frame_irányok);
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "&Súgó");
  expect_fresh_lengths(d);
}

TEST_F(WhereIsItSettingsTest, TheLengthsLimitEachOtherAndTheShortestEndsAtTwelve) {
  start();
  auto& d = load<frm_holvan_beáll>();
  expect_lengths_to_limit_each_other(d);
}

TEST_F(WhereIsItSettingsTest, OkWritesFiveLinesHidesTheDialogAndDealsAnew) {
  auto& window = deal(1);
  hand::click(right_button(window));
  change_settings(window, [](frm_holvan_beáll& d) {
    d.ud_maxbetűszám.set_value(6);
    hand::click(d.option_irányok[2]);
  });
  EXPECT_EQ(settings(u"holvan.ini"), " 4 \r\n 6 \r\nFalse\r\nFalse\r\nTrue\r\n");
  EXPECT_FALSE(load<frm_holvan_beáll>().visible());
  std::vector<std::string> shown = buttons(window);
  std::sort(shown.begin(), shown.end());
  EXPECT_EQ(shown, (std::vector<std::string>{"", "", "fent", "lent"}));
  EXPECT_EQ(results(window)[0], "1") << "the results stay";
}

TEST_F(WhereIsItSettingsTest, TheFiveLinesAreRead) {
  put_settings(u"holvan.ini", {u" 11 ", u" 13 ", u"False", u"True", u"False"});
  start();
  auto& d = load<frm_holvan_beáll>();
  EXPECT_EQ(d.ud_minbetűszám.value(), 11);
  EXPECT_EQ(d.ud_maxbetűszám.value(), 13);
  EXPECT_EQ(d.option_irányok.chosen(), 1);
  EXPECT_EQ(utf8(d.txt_minbetűszám.text()), "11");
}

TEST_F(WhereIsItSettingsTest, AllSidesAreAskedForWhereTheFileHasNoOptionOn) {
  put_settings(u"holvan.ini", {u" 4 ", u" 9 ", u"False", u"False", u"False"});
  start();
  auto& d = load<frm_holvan_beáll>();
  EXPECT_EQ(d.ud_maxbetűszám.value(), 9);
  EXPECT_EQ(d.option_irányok.chosen(), 0);
}

TEST_F(WhereIsItSettingsTest, AFileThatEndsEarlyLeavesTheRest) {
  put_settings(u"holvan.ini", {u" 6 "});
  start();
  auto& d = load<frm_holvan_beáll>();
  EXPECT_EQ(d.ud_minbetűszám.value(), 6);
  EXPECT_EQ(d.ud_maxbetűszám.value(), 10);
  EXPECT_EQ(d.option_irányok.chosen(), 0);
}

TEST_F(WhereIsItSettingsTest, CancelReadsTheFileAgainAndKeepsThePuzzle) {
  put_settings(u"holvan.ini", {u" 4 ", u" 9 ", u"True", u"False", u"False"});
  auto& window = deal(0);
  then_in<frm_holvan_beáll>([](frm_holvan_beáll& d) {
    d.ud_maxbetűszám.set_value(16);
    hand::click(d.option_irányok[1]);
    hand::key(d, key::escape);
  });
  hand::key(window, key::f1 + 2);
  const auto& d = load<frm_holvan_beáll>();
  EXPECT_FALSE(d.visible());
  EXPECT_EQ(d.ud_maxbetűszám.value(), 9);
  EXPECT_EQ(d.option_irányok.chosen(), 0);
  EXPECT_EQ(words(window), (std::vector<std::string>{"alma", "körte", "szilva", "medve"}));
}

TEST_F(WhereIsItSettingsTest, HelpOpensThePageOfTheSettings) {
  auto& window = deal(0);
  then_in<frm_holvan_beáll>([](frm_holvan_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(help_page(), help_command("hol van - beállítások.mht"));
}

TEST_F(WhereIsItSettingsTest, AFileThatCannotBeWrittenLeavesTheNewSettingsInForce) {
  put_settings(u"holvan.ini", {u" 4 ", u" 10 ", u"True", u"False", u"False"});
  auto& window = deal(0);
  machine.files().make_unwritable(Text(user_folder) + u"holvan.ini");
  change_settings(window, [](frm_holvan_beáll& d) { hand::click(d.option_irányok[1]); });
  expected_errors = 1;
  EXPECT_EQ(settings(u"holvan.ini"), " 4 \r\n 10 \r\nTrue\r\nFalse\r\nFalse\r\n");
  EXPECT_EQ(load<frm_holvan_beáll>().option_irányok.chosen(), 1);
}

} // namespace
} // namespace cserko
