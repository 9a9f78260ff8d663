// The settings of Surplus letter: the design of the dialog, its file of three lines, OK, Cancel and Help.
#include "tests/exercises/surplus_letter_fixture.h"

namespace cserko {
namespace {

class SurplusLetterSettingsTest : public SurplusLetterFixture {
 protected:
  void in_dialog(frm_betűfelesleg& window, const std::function<void(frm_betűfelesleg_beáll&)>& deed) {
    then_in<frm_betűfelesleg_beáll>(deed);
    hand::click(window.mnu_fájl_beáll);
  }
};

TEST_F(SurplusLetterSettingsTest, HasItsTextsRangeAndDefaults) {
  start();
  auto& d = load<frm_betűfelesleg_beáll>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Betűfelesleg beállítások");
  EXPECT_EQ(utf8(d.labszópárok.Caption), "Szó betűinek maximális száma:");
  EXPECT_EQ(utf8(d.Frame1.Caption), "A felesleges betű kiválasztása");
  EXPECT_EQ(utf8(d.opt_betűforrás[0].Caption), "A teljes magyar betűkészletből");
  EXPECT_EQ(utf8(d.opt_betűforrás[1].Caption), "A szó betűi közül");
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "&Súgó");
  EXPECT_EQ(d.udbetszám.Min, 4);
  EXPECT_EQ(d.udbetszám.Max, 13);
  EXPECT_EQ(d.udbetszám.Increment, 1);
  EXPECT_EQ(d.udbetszám.value(), 12);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "12");
  EXPECT_TRUE(d.opt_betűforrás[0].value());
  EXPECT_FALSE(d.opt_betűforrás[1].value());
}

TEST_F(SurplusLetterSettingsTest, OkWritesThreeLinesAndDealsAnew) {
  auto& w = deal();
  in_dialog(w, [this](frm_betűfelesleg_beáll& d) {
    hand::step(d.udbetszám, 1);
    hand::click(d.opt_betűforrás[1]);
    script(2, 3, 4, 1, 4);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"betfelesleg.ini"), " 13 \r\nFalse\r\nTrue\r\n");
  EXPECT_TRUE(session().loaded<frm_betűfelesleg_beáll>());
  EXPECT_EQ(row(w), "a|a|l|m|a");
}

TEST_F(SurplusLetterSettingsTest, TheThreeLinesAreRead) {
  put_settings(u"betfelesleg.ini", {u" 7 ", u"False", u"True"});
  start();
  auto& d = load<frm_betűfelesleg_beáll>();
  EXPECT_EQ(d.udbetszám.value(), 7);
  EXPECT_FALSE(d.opt_betűforrás[0].value());
  EXPECT_TRUE(d.opt_betűforrás[1].value());
}

TEST_F(SurplusLetterSettingsTest, AShortFileLeavesTheRestAndTwoFalseOptionsTheWholeAlphabet) {
  put_settings(u"betfelesleg.ini", {u" 5 "});
  start();
  EXPECT_EQ(load<frm_betűfelesleg_beáll>().udbetszám.value(), 5);
  EXPECT_TRUE(load<frm_betűfelesleg_beáll>().opt_betűforrás[0].value());
  end_session();
  put_settings(u"betfelesleg.ini", {u" 5 ", u"False", u"False"});
  start();
  EXPECT_TRUE(load<frm_betűfelesleg_beáll>().opt_betűforrás[0].value());
}

TEST_F(SurplusLetterSettingsTest, CancelAndTheCloseBoxReadTheFileAgainAndKeepThePuzzle) {
  put_settings(u"betfelesleg.ini", {u" 6 ", u"True", u"False"});
  auto& w = deal();
  for (const bool by_button : {true, false}) {
    in_dialog(w, [by_button](frm_betűfelesleg_beáll& d) {
      d.udbetszám.set_value(9);
      hand::click(d.opt_betűforrás[1]);
      if (by_button) {
        hand::click(d.CancelButton);
      } else {
        hand::close(d);
      }
    });
    EXPECT_EQ(load<frm_betűfelesleg_beáll>().udbetszám.value(), 6);
    EXPECT_TRUE(load<frm_betűfelesleg_beáll>().opt_betűforrás[0].value());
    EXPECT_EQ(row(w), "a|sz|r|t|a|l");
  }
}

TEST_F(SurplusLetterSettingsTest, HelpOpensThePageOfTheSettings) {
  auto& w = deal();
  in_dialog(w, [](frm_betűfelesleg_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(help_page(), help_command("Betűfelesleg - beállítások.mht"));
}

} // namespace
} // namespace cserko
