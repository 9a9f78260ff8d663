// The settings of Scrambled word: the design of the dialog, its file of seven lines, OK and Cancel.
#include "tests/suite/scrambled_fixture.h"

namespace cserko {
namespace {

class ScrambledSettingsTest : public ScrambledTest {
 protected:
  static std::vector<bool> options(frm_cserkó_beáll& d) {
    return {d.opt_betszám[0].value(), d.opt_betszám[1].value(), d.opt_betszám[2].value()};
  }
  /// Opens the dialog from the menu of the exercise.
  void in_dialog(frm_cserkó& window, const std::function<void(frm_cserkó_beáll&)>& deed) {
    then_in<frm_cserkó_beáll>(deed);
    hand::click(window.mnu_fájl_beálítások);
  }
};

TEST_F(ScrambledSettingsTest, HasItsTextsAndDefaults) {
  put_words({u"kos", u"utolsó"});
  start();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Cserkó beállítások");
  EXPECT_EQ(utf8(d.labszópárok.Caption), "Szó betűinek száma:");
  EXPECT_EQ(utf8(d.frm_betűszám.Caption), "A szó betűinek száma");
  EXPECT_EQ(utf8(d.frm_segítség.Caption), "Segítségek");
  EXPECT_EQ(utf8(d.opt_betszám[0].Caption), "Pontosan");
  EXPECT_EQ(utf8(d.opt_betszám[1].Caption), "Legfeljebb");
  EXPECT_EQ(utf8(d.opt_betszám[2].Caption), "Legalább");
  EXPECT_EQ(utf8(d.chk_ismételt_keverés_engedélyezése.Caption),
            "A szó betűinek ismételt keverése a bal egérgomb lenyomására");
  EXPECT_EQ(utf8(d.chk_szórendezés_engedélyezés.Caption), "A szó betűinek rendezése a jobb egérgomb lenyomására");
  EXPECT_EQ(utf8(d.Chk_betűfelfed.Caption), "Betű felfedésének engedélyezése");
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "Súgó");
  EXPECT_EQ(d.udbetszám.value(), 12);
  EXPECT_EQ(d.udbetszám.Min, 4);
  EXPECT_EQ(d.udbetszám.Max, 12);
  EXPECT_EQ(d.udbetszám.Increment, 1);
  EXPECT_EQ(d.udbetszám.Buddy, &d.txtbetszám);
  EXPECT_EQ(options(d), (std::vector<bool>{false, true, false}));
  EXPECT_EQ(d.chk_ismételt_keverés_engedélyezése.value(), 0);
  EXPECT_EQ(d.chk_szórendezés_engedélyezés.value(), 1);
  EXPECT_EQ(d.Chk_betűfelfed.value(), 1);
}

TEST_F(ScrambledSettingsTest, TheOptionsRunAgainstTheOrderOnTheScreen) {
  put_words({u"kos", u"utolsó"});
  start();
  auto& d = dialog();
  const std::vector<double> lefts{3120, 1560, 120};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(d.opt_betszám[i].Top, 1080);
    EXPECT_EQ(d.opt_betszám[i].Left, lefts[static_cast<std::size_t>(i)]);
    EXPECT_EQ(d.opt_betszám[i].container(), &d.frm_betűszám);
  }
}

TEST_F(ScrambledSettingsTest, OkWritesSevenLines) {
  auto& window = deal({u"kos", u"utolsó"});
  in_dialog(window, [](frm_cserkó_beáll& d) {
    d.udbetszám.set_value(9);
    hand::click(d.opt_betszám[1]);
    hand::click(d.chk_ismételt_keverés_engedélyezése);
    hand::click(d.Chk_betűfelfed);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"kiscserko.ini"), " 9 \r\nFalse\r\nTrue\r\nFalse\r\n 1 \r\n 1 \r\n 0 \r\n");
}

TEST_F(ScrambledSettingsTest, EachOptionHasItsOwnLine) {
  const std::vector<std::string> expected{"True\r\nFalse\r\nFalse", "False\r\nTrue\r\nFalse", "False\r\nFalse\r\nTrue"};
  auto& window = deal({u"karok", u"utolsó"});
  for (int i = 0; i < 3; ++i) {
    in_dialog(window, [&](frm_cserkó_beáll& d) {
      d.udbetszám.set_value(5);
      d.opt_betszám[i].set_value(true);
      hand::click(d.OKButton);
    });
    EXPECT_NE(settings(u"kiscserko.ini").find(expected[static_cast<std::size_t>(i)]), std::string::npos) << i;
  }
}

TEST_F(ScrambledSettingsTest, TheSevenLinesAreReadInTheirOrder) {
  put_settings(u"kiscserko.ini", {u" 6 ", u"False", u"False", u"True", u" 1 ", u" 0 ", u" 0 "});
  put_words({u"karavella", u"utolsó"});
  start();
  auto& d = dialog();
  EXPECT_EQ(d.udbetszám.value(), 6);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "6");
  EXPECT_EQ(options(d), (std::vector<bool>{false, false, true}));
  EXPECT_EQ(d.chk_ismételt_keverés_engedélyezése.value(), 1);
  EXPECT_EQ(d.chk_szórendezés_engedélyezés.value(), 0);
  EXPECT_EQ(d.Chk_betűfelfed.value(), 0);
}

TEST_F(ScrambledSettingsTest, AFileWithAllOptionsFalseTurnsAllOff) {
  put_settings(u"kiscserko.ini", {u" 6 ", u"False", u"False", u"False"});
  put_words({u"kos", u"utolsó"});
  start();
  EXPECT_EQ(options(dialog()), (std::vector<bool>{false, false, false}));
  EXPECT_FALSE(dialog().allows(5).has_value());
}

TEST_F(ScrambledSettingsTest, ALengthOutsideTheRangeIsSkipped) {
  for (const TextView value : {u" 3 ", u" 13 ", u"-1 ", u"x", u""}) {
    put_settings(u"kiscserko.ini", {value, u"True"});
    put_words({u"kos", u"utolsó"});
    start();
    EXPECT_EQ(dialog().udbetszám.value(), 12) << utf8(value);
    EXPECT_TRUE(dialog().opt_betszám[0].value());
  }
}

TEST_F(ScrambledSettingsTest, OkDealsANewWordEvenIfNothingChanged) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  in_dialog(window, [this](frm_cserkó_beáll& d) {
    machine.script_random({record(1)});
    hand::click(d.OKButton);
  });
  EXPECT_EQ(window.feladat_index(), 1);
  EXPECT_FALSE(dialog().visible());
}

TEST_F(ScrambledSettingsTest, OkChangesTheHelps) {
  auto& window = deal({u"kos", u"utolsó"});
  EXPECT_TRUE(window.cmd_egybetűtfelfed.Enabled);
  in_dialog(window, [](frm_cserkó_beáll& d) {
    hand::click(d.Chk_betűfelfed);
    hand::click(d.OKButton);
  });
  EXPECT_FALSE(window.cmd_egybetűtfelfed.Enabled);
}

TEST_F(ScrambledSettingsTest, CancelGoesOnWithThePuzzleAndReadsTheFile) {
  put_settings(u"kiscserko.ini", {u" 6 ", u"False", u"True", u"False", u" 0 ", u" 1 ", u" 1 "});
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  const auto before = positions(window);
  in_dialog(window, [](frm_cserkó_beáll& d) {
    d.udbetszám.set_value(12);
    hand::click(d.opt_betszám[2]);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(dialog().udbetszám.value(), 6);
  EXPECT_EQ(options(dialog()), (std::vector<bool>{false, true, false}));
  EXPECT_EQ(positions(window), before);
}

TEST_F(ScrambledSettingsTest, WithoutAFileCancelledChangesTakeEffectAtTheNextPuzzle) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  in_dialog(window, [](frm_cserkó_beáll& d) {
    hand::click(d.chk_szórendezés_engedélyezés);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(settings(u"kiscserko.ini"), "(none)");
  EXPECT_TRUE(window.cmd_rendez.Enabled);
  window.beáll();
  EXPECT_FALSE(window.cmd_rendez.Enabled);
}

TEST_F(ScrambledSettingsTest, SettingsSurviveTheExerciseInTheirFileAlone) {
  auto& window = deal({u"kos", u"utolsó"});
  in_dialog(window, [](frm_cserkó_beáll& d) {
    d.udbetszám.set_value(7);
    hand::click(d.OKButton);
  });
  hand::close(window);
  EXPECT_FALSE(session().loaded<frm_cserkó_beáll>());
  open<frm_cserkó>();
  EXPECT_EQ(dialog().udbetszám.value(), 7);
}

TEST_F(ScrambledSettingsTest, HelpOpensThePageOfTheSettings) {
  auto& window = deal({u"kos", u"utolsó"});
  in_dialog(window, [](frm_cserkó_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line),
            "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\Cserkó - Beállítási lehetőségek.mht");
}

TEST_F(ScrambledSettingsTest, AReadOnlyFileIsReportedAndTheNewSettingsStillDeal) {
  put_settings(u"kiscserko.ini", {u" 6 "});
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  machine.files().make_unwritable(Text(user_folder) + u"kiscserko.ini");
  in_dialog(window, [this](frm_cserkó_beáll& d) {
    machine.script_random({record(1)});
    hand::click(d.OKButton);
  });
  expected_errors = 1;
  EXPECT_EQ(settings(u"kiscserko.ini"), " 6 \r\n");
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(ScrambledSettingsTest, TheStepperKeepsToItsRange) {
  auto& window = deal({u"kos", u"utolsó"});
  in_dialog(window, [](frm_cserkó_beáll& d) {
    for (int i = 0; i < 20; ++i) hand::step(d.udbetszám, -1);
    EXPECT_EQ(d.udbetszám.value(), 4);
    for (int i = 0; i < 20; ++i) hand::step(d.udbetszám, 1);
    EXPECT_EQ(d.udbetszám.value(), 12);
    hand::click(d.CancelButton);
  });
}

} // namespace
} // namespace cserko
