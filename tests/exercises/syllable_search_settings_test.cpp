// The settings of Syllable search: the design of the dialog, its ranges, its file of three lines, OK, Cancel and Help.
#include "tests/exercises/syllable_search_fixture.h"

namespace cserko {
namespace {

class SyllableSearchSettingsTest : public SyllableSearchFixture {};

TEST_F(SyllableSearchSettingsTest, HasItsTextsRangesAndDefaults) {
  start();
  auto& d = load<frm_szótagkereső_beáll>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Szótagkereső beállítások");
  EXPECT_EQ(utf8(d.lbl_minszótagszám.Caption), "Minimális szótagszám");
  EXPECT_EQ(utf8(d.lbl_maxszótagszám.Caption), "Maximális szótagszám");
  EXPECT_EQ(utf8(d.chk_képnélkül.Caption), "Játék a kép felfedése nélkül");
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "Súgó (F1)");
  for (const UpDown* updown : {&d.ud_minszótagszám, &d.ud_maxszótagszám}) {
    EXPECT_EQ(updown->Min, 3);
    EXPECT_EQ(updown->Max, 7);
    EXPECT_EQ(updown->Increment, 1);
  }
  EXPECT_EQ(d.ud_minszótagszám.Buddy, &d.txt_minszótagszám);
  EXPECT_EQ(d.ud_maxszótagszám.Buddy, &d.txt_maxszótagszám);
  EXPECT_EQ(utf8(d.txt_minszótagszám.text()), "3");
  EXPECT_EQ(utf8(d.txt_maxszótagszám.text()), "7");
  EXPECT_FALSE(d.chk_képnélkül.ticked());
}

TEST_F(SyllableSearchSettingsTest, TheNumbersLimitEachOther) {
  start();
  auto& d = open<frm_szótagkereső_beáll>();
  d.ud_minszótagszám.set_value(5);
  EXPECT_EQ(d.ud_maxszótagszám.Min, 5);
  d.ud_maxszótagszám.set_value(5);
  EXPECT_EQ(d.ud_minszótagszám.Max, 5);
  hand::step(d.ud_minszótagszám, 1);
  EXPECT_EQ(d.ud_minszótagszám.value(), 5);
  d.ud_maxszótagszám.set_value(7);
  EXPECT_EQ(d.ud_minszótagszám.Max, 7);
}

TEST_F(SyllableSearchSettingsTest, OkWritesThreeLinesHidesTheDialogAndDealsAnew) {
  auto& window = deal();
  change_settings(window, 3, [](frm_szótagkereső_beáll& d) {
    d.ud_minszótagszám.set_value(4);
    d.ud_maxszótagszám.set_value(6);
    hand::click(d.chk_képnélkül);
  });
  EXPECT_EQ(settings(u"szótagkereső.ini"), " 4 \r\n 6 \r\n 1 \r\n");
  EXPECT_FALSE(load<frm_szótagkereső_beáll>().visible());
  EXPECT_EQ(window.aktuális_kép(), 3);
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3)) << "an unsolved word does not count";
}

TEST_F(SyllableSearchSettingsTest, TheThreeLinesAreRead) {
  put_settings(u"szótagkereső.ini", {u" 4 ", u" 5 ", u" 1 "});
  start();
  auto& d = load<frm_szótagkereső_beáll>();
  EXPECT_EQ(d.ud_minszótagszám.value(), 4);
  EXPECT_EQ(d.ud_maxszótagszám.value(), 5);
  EXPECT_EQ(utf8(d.txt_maxszótagszám.text()), "5");
  EXPECT_TRUE(d.chk_képnélkül.ticked());
  EXPECT_EQ(d.ud_minszótagszám.Max, 5);
  EXPECT_EQ(d.ud_maxszótagszám.Min, 4);
}

TEST_F(SyllableSearchSettingsTest, AFileThatEndsEarlyLeavesTheRest) {
  put_settings(u"szótagkereső.ini", {u" 6 "});
  start();
  auto& d = load<frm_szótagkereső_beáll>();
  EXPECT_EQ(d.ud_minszótagszám.value(), 6);
  EXPECT_EQ(d.ud_maxszótagszám.value(), 7);
  EXPECT_FALSE(d.chk_képnélkül.ticked());
}

TEST_F(SyllableSearchSettingsTest, CancelReadsTheFileAgainAndKeepsThePuzzle) {
  put_settings(u"szótagkereső.ini", {u" 3 ", u" 6 ", u" 0 "});
  auto& window = deal();
  const std::vector<Point> before = positions(window);
  then_in<frm_szótagkereső_beáll>([](frm_szótagkereső_beáll& d) {
    d.ud_maxszótagszám.set_value(4);
    hand::click(d.chk_képnélkül);
    hand::key(d, key::escape);
  });
  hand::click(window.mnu_fájl_beáll);
  const auto& d = load<frm_szótagkereső_beáll>();
  EXPECT_FALSE(d.visible());
  EXPECT_EQ(d.ud_maxszótagszám.value(), 6);
  EXPECT_FALSE(d.chk_képnélkül.ticked());
  EXPECT_EQ(positions(window), before);
}

TEST_F(SyllableSearchSettingsTest, HelpAndItsKeyOpenThePageOfTheExercise) {
  auto& window = deal();
  then_in<frm_szótagkereső_beáll>([](frm_szótagkereső_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::key(d, key::f1);
    hand::click(d.CancelButton);
  });
  hand::click(window.mnu_fájl_beáll);
  expect_help_twice("Szótagkereső - a feladat.mht");
}

TEST_F(SyllableSearchSettingsTest, AFileThatCannotBeWrittenLeavesTheNewSettingsInForce) {
  put_settings(u"szótagkereső.ini", {u" 3 ", u" 7 ", u" 0 "});
  auto& window = deal();
  machine.files().make_unwritable(Text(user_folder) + u"szótagkereső.ini");
  change_settings(window, 3, [](frm_szótagkereső_beáll& d) { d.ud_minszótagszám.set_value(5); });
  expected_errors = 1;
  EXPECT_EQ(settings(u"szótagkereső.ini"), " 3 \r\n 7 \r\n 0 \r\n");
  EXPECT_EQ(window.aktuális_kép(), 3);
}

} // namespace
} // namespace cserko
