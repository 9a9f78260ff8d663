// The settings of Tekergő, its question and its panel of rules.
#include "exercises/letters/frmveremsúgó.h"
#include "tests/exercises/winder_fixture.h"

namespace cserko {
namespace {

class WinderSettingsTest : public WinderTest {
 protected:
  frmverembeállítások& dialog() { return load<frmverembeállítások>(); }
  void in_dialog(frmverem& window, const std::function<void(frmverembeállítások&)>& deed) {
    then_in<frmverembeállítások>(deed);
    hand::click(window.mnubeállításokdlg);
  }
  std::string values() {
    auto& d = dialog();
    return std::to_string(d.udszóhossz.value()) + " " + std::to_string(d.udképekszámakezdéskor.value()) + " " +
           std::to_string(d.udfokozat.value()) + " " + std::to_string(d.udváridmegfejt.value()) + " " +
           utf8(d.framenyelv.Tag) + " " + std::to_string(d.chbxképnevek.value()) + " " +
           std::to_string(d.chb_betűkiemelés.value());
  }
};

TEST_F(WinderSettingsTest, HasItsTexts) {
  start();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Caption), "Cserkó Tekergő Beállítások");
  EXPECT_EQ(utf8(d.labelszóhossz.Caption), "Szavak maximális hossza:");
  EXPECT_EQ(utf8(d.labelképekszámakezdéskor.Caption), "Képek száma kezdéskor:");
  EXPECT_EQ(utf8(d.labelfokozat.Caption), "Fokozat:");
  EXPECT_EQ(utf8(d.labelváridmegfejt.Caption), "Várakozás ideje megfejtés után (másodperc):");
  EXPECT_EQ(utf8(d.framenyelv.Caption), "Nyelv");
  EXPECT_EQ(utf8(d.optnyelv[2].Caption), "&Magyar");
  EXPECT_EQ(utf8(d.optnyelv[4].Caption), "&Angol");
  EXPECT_EQ(d.optnyelv.count(), 2);
  EXPECT_EQ(utf8(d.chbxképnevek.Caption), "Képnevek megjelenítése");
  EXPECT_EQ(utf8(d.chb_betűkiemelés.Caption), "A kép nevében szereplő betűk kiemelése");
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(designed<frmverembeállítások>()->txtfokozatmásodpercben.Caption), "Fokozat:");
}

TEST_F(WinderSettingsTest, HasItsRangesAndDefaults) {
  start();
  auto& d = dialog();
  const auto expect_range = [](const UpDown& updown, int minimum, int maximum, int value, const TextBox& box) {
    EXPECT_EQ(updown.Min, minimum) << utf8(updown.Name);
    EXPECT_EQ(updown.Max, maximum) << utf8(updown.Name);
    EXPECT_EQ(updown.Increment, 1);
    EXPECT_EQ(updown.value(), value) << utf8(updown.Name);
    EXPECT_EQ(updown.Buddy, &box);
    EXPECT_EQ(utf8(box.text()), std::to_string(value));
  };
  expect_range(d.udszóhossz, 4, 10, 8, d.txtszóhossz);
  expect_range(d.udképekszámakezdéskor, 5, 16, 10, d.txtképekszámakezdéskor);
  expect_range(d.udfokozat, 1, 5, 5, d.txtfokozat);
  expect_range(d.udváridmegfejt, 0, 10, 2, d.txtváridmegfejt);
  EXPECT_TRUE(d.optnyelv[2].value());
  EXPECT_EQ(utf8(d.framenyelv.Tag), "2");
  EXPECT_EQ(d.chbxképnevek.value(), 0);
  EXPECT_EQ(d.chb_betűkiemelés.value(), 0);
}

TEST_F(WinderSettingsTest, LoadingGivesAllControlsOneFontAndTheHeightOfTheLowest) {
  start();
  auto& d = dialog();
  double bottom = 0;
  for (const Element* element : d.elements()) {
    bottom = std::max(bottom, element->Top + element->Height);
    if (element->kind() == ElementKind::Button) continue;
    EXPECT_EQ(element->Font.size, d.labelszóhossz.Font.size);
  }
  EXPECT_EQ(d.Height, bottom + 500);
  expect_fitted(d.OKButton, 3);
}

TEST_F(WinderSettingsTest, TheLevelIsToldInSeconds) {
  start();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.txtfokozatmásodpercben.Caption), " 65 másodpercenként kap új elemet.");
  d.txtfokozat.set_text(u"1");
  EXPECT_EQ(utf8(d.txtfokozatmásodpercben.Caption), " 25 másodpercenként kap új elemet.");
  for (const TextView none : {u"", u"x", u"0"}) {
    d.txtfokozat.set_text(none);
    EXPECT_EQ(utf8(d.txtfokozatmásodpercben.Caption), " 25 másodpercenként kap új elemet.");
  }
}

TEST_F(WinderSettingsTest, ATextIsLimitedWhenItsBoxIsLeft) {
  start();
  auto& d = ExerciseTest::open<frmverembeállítások>();
  const auto left = [&](TextBox& box, TextView text) {
    hand::write(box, text);
    input::focus(d.OKButton);
    return utf8(box.text());
  };
  EXPECT_EQ(left(d.txtszóhossz, u"abc"), "4");
  EXPECT_EQ(d.udszóhossz.value(), 4);
  EXPECT_EQ(left(d.txtszóhossz, u"11"), "10");
  EXPECT_EQ(left(d.txtszóhossz, u"6x"), "6");
  EXPECT_EQ(left(d.txtképekszámakezdéskor, u"3"), "5");
  EXPECT_EQ(left(d.txtképekszámakezdéskor, u"99"), "16");
  EXPECT_EQ(left(d.txtfokozat, u"0"), "1");
  EXPECT_EQ(left(d.txtfokozat, u"12"), "10") << "wider than the range of the level, which is intended";
  EXPECT_EQ(d.udfokozat.value(), 5);
}

TEST_F(WinderSettingsTest, ABoxThatIsEnteredIsSelectedAndThePauseAtEachChange) {
  start();
  auto& d = ExerciseTest::open<frmverembeállítások>();
  for (TextBox* box : {&d.txtképekszámakezdéskor, &d.txtszóhossz, &d.txtfokozat}) {
    const int before = box->selections();
    input::focus(*box);
    EXPECT_TRUE(box->all_selected()) << utf8(box->Name);
    EXPECT_EQ(box->selections(), before + 1);
  }
  input::focus(d.txtváridmegfejt);
  EXPECT_FALSE(d.txtváridmegfejt.all_selected());
  hand::key(d, key::up);
  EXPECT_EQ(utf8(d.txtváridmegfejt.text()), "3");
  EXPECT_TRUE(d.txtváridmegfejt.all_selected());
}

TEST_F(WinderSettingsTest, TheGameReadsAndWritesSevenLines) {
  put_settings(u"verem.ini", {u" 6 ", u" 7 ", u" 3 ", u" 0 ", u" 4 ", u" 1 ", u" 1 "});
  put_words();
  start();
  auto& window = open();
  EXPECT_EQ(values(), "6 7 3 0 2 1 1");
  EXPECT_EQ(window.nyelv(), 2) << "the stored language has no lasting effect, which is intended";
  hand::click(window.kilép);
  EXPECT_EQ(settings(u"verem.ini"), " 6 \r\n 7 \r\n 3 \r\n 0 \r\n 2 \r\n 1 \r\n 1 \r\n");
}

TEST_F(WinderSettingsTest, TheFileIsReadAgainAtEachStartOfTheGame) {
  auto& window = deal();
  hand::click(window.kilép);
  put_settings(u"verem.ini", {u" 5 ", u" 6 ", u" 1 ", u" 9 ", u" 2 ", u" 0 ", u" 0 "});
  open();
  EXPECT_EQ(values(), "5 6 1 9 2 0 0");
}

TEST_F(WinderSettingsTest, DamagedLinesAreSkipped) {
  put_settings(u"verem.ini", {u" 60 ", u"x", u" 2 ", u"", u" 77 ", u" 1 "});
  put_words();
  start();
  auto& window = open();
  EXPECT_EQ(values(), "8 10 2 2 2 1 0");
  EXPECT_EQ(window.Timer1.Interval, 35000);
}

TEST_F(WinderSettingsTest, OkDealsANewGameWithTheNewIntervalAndWritesNothing) {
  auto& window = deal();
  in_dialog(window, [](frmverembeállítások& d) {
    hand::step(d.udfokozat, -1);
    hand::step(d.udképekszámakezdéskor, -1);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(window.Timer1.Interval, 55000);
  EXPECT_TRUE(window.Timer1.running());
  EXPECT_EQ(pictures(window), 9);
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
  EXPECT_EQ(settings(u"verem.ini"), "(none)");
  EXPECT_FALSE(dialog().visible());
  EXPECT_TRUE(session().loaded<frmverembeállítások>());
}

TEST_F(WinderSettingsTest, OkLeavesTheBoxInWhichSomebodyTypes) {
  auto& window = deal();
  in_dialog(window, [](frmverembeállítások& d) {
    hand::write(d.txtképekszámakezdéskor, u"1");
    hand::key(d, key::enter);
  });
  EXPECT_EQ(pictures(window), 5);
  EXPECT_EQ(dialog().focus(), &dialog().txtszóhossz);
}

TEST_F(WinderSettingsTest, TheCloseControlIsOk) {
  auto& window = deal();
  in_dialog(window, [](frmverembeállítások& d) {
    hand::step(d.udképekszámakezdéskor, -1);
    hand::close(d);
  });
  EXPECT_EQ(pictures(window), 9);
  EXPECT_FALSE(dialog().visible());
}

TEST_F(WinderSettingsTest, CancelTakesBackAllButThePauseAndTheCheckBoxesAndLeavesTheGame) {
  auto& window = deal();
  const std::string before = board(window);
  in_dialog(window, [](frmverembeállítások& d) {
    for (UpDown* updown : {&d.udszóhossz, &d.udképekszámakezdéskor, &d.udfokozat, &d.udváridmegfejt})
      hand::step(*updown, -1);
    hand::click(d.optnyelv[4]);
    hand::click(d.chbxképnevek);
    hand::click(d.chb_betűkiemelés);
    hand::key(d, key::escape);
  });
  EXPECT_EQ(values(), "8 10 5 1 2 1 1");
  EXPECT_TRUE(dialog().optnyelv[2].value());
  EXPECT_EQ(board(window), before);
  EXPECT_EQ(window.Timer1.Interval, 65000);
}

TEST_F(WinderSettingsTest, EnglishLastsUntilTheProgramEnds) {
  auto& window = deal();
  load<frmverembeállítások>().udszóhossz.set_value(10);
  in_dialog(window, [](frmverembeállítások& d) {
    hand::click(d.optnyelv[4]);
    EXPECT_EQ(utf8(d.framenyelv.Tag), "4");
    hand::click(d.OKButton);
  });
  EXPECT_EQ(window.nyelv(), 4);
  hand::click(window.kilép);
  EXPECT_EQ(settings(u"verem.ini"), " 10 \r\n 10 \r\n 5 \r\n 2 \r\n 4 \r\n 0 \r\n 0 \r\n");
  EXPECT_EQ(open().nyelv(), 4);
  end_session();
  start();
  EXPECT_EQ(open().nyelv(), 2);
}

TEST_F(WinderSettingsTest, TheNamesAreShownAndHiddenAtOnce) {
  auto& window = deal();
  in_dialog(window, [&](frmverembeállítások& d) {
    hand::click(d.chbxképnevek);
    window.képnév.each([&](const Label& name) { EXPECT_EQ(name.Visible, window.kép[name.Index].Visible); });
    hand::click(d.chbxképnevek);
    window.képnév.each([](const Label& name) { EXPECT_FALSE(name.Visible); });
    hand::click(d.CancelButton);
  });
}

TEST_F(WinderSettingsTest, WhereNothingFitsTheReasonIsToldOverTheGame) {
  auto& window = deal();
  in_dialog(window, [this](frmverembeállítások& d) {
    d.udszóhossz.set_value(4);
    d.udképekszámakezdéskor.set_value(16);
    then_close_message();
    hand::click(d.OKButton);
  });
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(dialog().visible());
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_FALSE(window.Timer1.running());
}

TEST_F(WinderSettingsTest, HelpByButtonAndKey) {
  auto& window = deal();
  in_dialog(window, [](frmverembeállítások& d) {
    hand::click(d.cmd_súgó);
    hand::key(d, key::f1);
    hand::click(d.CancelButton);
  });
  expect_help_twice("Tekergő  - Beállítások.mht");
}

TEST_F(WinderSettingsTest, TheDialogWorksWithoutTheGame) {
  put_settings(u"verem.ini", {u" 6 ", u" 7 ", u" 3 ", u" 0 ", u" 4 ", u" 1 ", u" 1 "});
  start();
  EXPECT_EQ(dialog().udszóhossz.value(), 6);
  EXPECT_FALSE(session().loaded<frmverem>());
}

// The question.

TEST_F(WinderSettingsTest, TheQuestionHasItsTextsAndAnswersByTheTag) {
  start();
  auto& question = load<frmveremigennem>();
  EXPECT_EQ(utf8(question.Caption), "Cserkó");
  EXPECT_EQ(utf8(question.Command1.Caption), "&Igen");
  EXPECT_EQ(utf8(question.Command2.Caption), "&Nem");
  then_in<frmveremigennem>([](frmveremigennem& shown) { hand::click(shown.Command1); });
  EXPECT_TRUE(question.ask(u"Kérdés?"));
  EXPECT_EQ(utf8(question.Tag), "True");
  EXPECT_FALSE(question.visible());
  then_in<frmveremigennem>([](frmveremigennem& shown) { hand::click(shown.Command2); });
  EXPECT_FALSE(question.ask(u"Kérdés?"));
  EXPECT_EQ(utf8(question.Tag), "False");
}

TEST_F(WinderSettingsTest, TheQuestionGivesItsFontToTheSettingsAndTakesItsHeightFromThem) {
  start();
  auto& d = dialog();
  d.labelszóhossz.Font.size = 30;
  auto& question = load<frmveremigennem>();
  double bottom = 0;
  for (const Element* element : d.elements()) bottom = std::max(bottom, element->Top + element->Height);
  EXPECT_EQ(question.Height, bottom + 500);
  EXPECT_EQ(d.labelszóhossz.Font.size, designed<frmveremigennem>()->Label1.Font.size);
  EXPECT_LE(question.Command1.Top + question.Command1.Height, question.inner_height());
}

// The panel of rules, which nothing opens.

TEST_F(WinderSettingsTest, ThePanelOfRulesHasSixGroupsOfText) {
  start();
  auto& panel = ExerciseTest::open<frmveremsúgó>();
  EXPECT_EQ(utf8(panel.Caption), "Cserkó Tekergő Súgó");
  std::string groups;
  for (const Frame* frame : {&panel.Frame1, &panel.Frame2, &panel.Frame3, &panel.Frame4, &panel.Frame5, &panel.Frame6})
    groups += utf8(frame->Caption) + "|";
  EXPECT_EQ(groups, "A feladat|Mozgások|A győzelem|A vereség|Beállítási lehetőségek|Segítség|");
  EXPECT_EQ(utf8(panel.lab(3).Caption),
            "     Vesztesz, ha a gép már nem tud újabb képet elhelyezni a játéktéren. Egyszerre legfeljebb 18 kép "
            "lehet fent.");
  EXPECT_EQ(utf8(panel.lab(4).Caption),
            "     A program számos beállítási lehetőséggel rendelkezik. Beállíthatod, hogy legfeljebb hány betűből "
            "álló szavakat helyezzen el a gép a feladványban. Megszabhatod, hogy milyen nyelven szeretnéd kapni a "
            "feladványokat, meghatározhatod, milyen gyakran adjon új képet a gép, és hány képpel induljon az új játék. "
            "Szintén Te döntöd el, kérsz-e segítséget a játék alatt.\r     A beállítások a Fájl menü Beállítások "
            "pontjából érhetőek el.");
  for (int i = 0; i < 6; ++i) {
    const Label& text = panel.lab(i);
    EXPECT_EQ(utf8(text.Caption).substr(0, 5), "     ");
    EXPECT_EQ(text.Index, i);
    EXPECT_LE(machine.measure_wrapped(text.Font, text.Caption, text.Width).height, text.Height) << i;
  }
  hand::click(panel.OKButton);
  EXPECT_FALSE(session().loaded<frmveremsúgó>());
}

} // namespace
} // namespace cserko
