// The settings of Syllabifier: the design of the dialog, its file of two lines, OK, Cancel and Help.
#include "tests/exercises/syllabifier_fixture.h"

namespace cserko {
namespace {

class SyllabifierSettingsTest : public SyllabifierFixture {
 protected:
  void in_dialog(frm_szótagoló& window, const std::function<void(dlg_szótagoló&)>& deed) {
    then_in<dlg_szótagoló>(deed);
    hand::click(window.mnu_fájl_beállítások);
  }
};

TEST_F(SyllabifierSettingsTest, HasItsTextsRangeAndDefaults) {
  start();
  auto& d = load<dlg_szótagoló>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Szótagoló beállítások");
  EXPECT_EQ(utf8(d.Frame1.Caption), "Szótagok");
  EXPECT_EQ(utf8(d.lbl_szótagszám.Caption), "Maximális szótagszám");
  EXPECT_EQ(utf8(d.chk_egyszótagúak_kizárva.Caption), "Egy szótagú szavak kizárása");
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "Súgó");
  EXPECT_EQ(d.udszótagszám.Min, 2);
  EXPECT_EQ(d.udszótagszám.Max, 7);
  EXPECT_EQ(d.udszótagszám.Increment, 1);
  EXPECT_EQ(d.udszótagszám.value(), 2);
  EXPECT_EQ(d.udszótagszám.Buddy, &d.txt_szótagszám);
  EXPECT_EQ(utf8(d.txt_szótagszám.text()), "2");
  EXPECT_EQ(d.chk_egyszótagúak_kizárva.value(), 0);
  for (const Element* element : {static_cast<Element*>(&d.udszótagszám), static_cast<Element*>(&d.txt_szótagszám),
                                 static_cast<Element*>(&d.chk_egyszótagúak_kizárva)})
    EXPECT_EQ(element->container(), &d.Frame1);
}

TEST_F(SyllabifierSettingsTest, OkWritesTwoLinesHidesTheDialogAndDealsAnew) {
  auto& window = deal(u"alma", u"al-ma");
  hand::click(window.betű[2]);
  in_dialog(window, [](dlg_szótagoló& d) {
    for (int i = 0; i < 3; ++i) hand::step(d.udszótagszám, 1);
    hand::click(d.chk_egyszótagúak_kizárva);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"szótagoló.ini"), " 5 \r\n 1 \r\n");
  EXPECT_TRUE(session().loaded<dlg_szótagoló>());
  EXPECT_FALSE(load<dlg_szótagoló>().visible());
  EXPECT_EQ(row(window), "a|l|m|a") << "the puzzle in progress is dropped";
}

TEST_F(SyllabifierSettingsTest, OkMakesTheFolder) {
  auto& window = deal(u"alma", u"al-ma");
  EXPECT_FALSE(machine.files().folder_exists(u"c:\\pomzu\\cserko"));
  in_dialog(window, [](dlg_szótagoló& d) { hand::click(d.OKButton); });
  EXPECT_EQ(settings(u"szótagoló.ini"), " 2 \r\n 0 \r\n");
}

TEST_F(SyllabifierSettingsTest, TheResultsSurviveANewSetting) {
  auto& window = deal(u"ló", u"ló");
  hand::click(window.cmd_kész);
  in_dialog(window, [](dlg_szótagoló& d) { hand::click(d.OKButton); });
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "ló");
}

TEST_F(SyllabifierSettingsTest, TheTwoLinesAreReadAtTheFirstLook) {
  put_settings(u"szótagoló.ini", {u" 4 ", u" 1 "});
  start();
  auto& d = load<dlg_szótagoló>();
  EXPECT_EQ(d.udszótagszám.value(), 4);
  EXPECT_EQ(utf8(d.txt_szótagszám.text()), "4");
  EXPECT_EQ(d.chk_egyszótagúak_kizárva.value(), 1);
}

TEST_F(SyllabifierSettingsTest, AFileThatEndsEarlyLeavesTheRest) {
  put_settings(u"szótagoló.ini", {u" 6 "});
  start();
  EXPECT_EQ(load<dlg_szótagoló>().udszótagszám.value(), 6);
  EXPECT_EQ(load<dlg_szótagoló>().chk_egyszótagúak_kizárva.value(), 0);
}

TEST_F(SyllabifierSettingsTest, CancelReadsTheFileAgainAndKeepsThePuzzle) {
  put_settings(u"szótagoló.ini", {u" 4 ", u" 0 "});
  auto& window = deal(u"alma", u"al-ma");
  hand::click(window.betű[2]);
  in_dialog(window, [](dlg_szótagoló& d) {
    d.udszótagszám.set_value(7);
    hand::click(d.chk_egyszótagúak_kizárva);
    hand::key(d, key::escape);
  });
  EXPECT_FALSE(load<dlg_szótagoló>().visible());
  EXPECT_EQ(load<dlg_szótagoló>().udszótagszám.value(), 4);
  EXPECT_EQ(load<dlg_szótagoló>().chk_egyszótagúak_kizárva.value(), 0);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierSettingsTest, WithoutAFileCancelledChangesStayInForce) {
  auto& window = deal(u"alma", u"al-ma");
  in_dialog(window, [](dlg_szótagoló& d) {
    d.udszótagszám.set_value(7);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(settings(u"szótagoló.ini"), "(none)");
  EXPECT_EQ(load<dlg_szótagoló>().udszótagszám.value(), 7);
}

TEST_F(SyllabifierSettingsTest, HelpOpensThePageOfTheSettings) {
  auto& window = deal(u"alma", u"al-ma");
  in_dialog(window, [](dlg_szótagoló& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(help_page(), help_command("szótagoló - beállítások.mht"));
}

TEST_F(SyllabifierSettingsTest, AFileThatCannotBeWrittenLeavesTheNewSettingsInForce) {
  put_settings(u"szótagoló.ini", {u" 2 ", u" 0 "});
  auto& window = deal(u"alma", u"al-ma");
  machine.files().make_unwritable(Text(user_folder) + u"szótagoló.ini");
  in_dialog(window, [](dlg_szótagoló& d) {
    d.udszótagszám.set_value(3);
    hand::click(d.OKButton);
  });
  expected_errors = 1;
  EXPECT_EQ(settings(u"szótagoló.ini"), " 2 \r\n 0 \r\n");
  EXPECT_EQ(load<dlg_szótagoló>().udszótagszám.value(), 3);
}

} // namespace
} // namespace cserko
