// The text main window: its buttons and menus, how it starts an exercise, its settings and the way out.
#include "core/frame.h"
#include "core/frm_főablak.h"
#include "core/frm_referencia.h"
#include "core/frmháttér.h"
#include "exercises/letters/frm_cserkó.h"
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_zenebeáll.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

struct ExpectedButton {
  std::string caption;
  std::string window;
};

const std::vector<ExpectedButton> expected_buttons{{"&Cserkó", "frm_cserkó"},
                                                   {"&Tekergő", "frmverem"},
                                                   {"&Betűválogató", "frm_betűválogatás"},
                                                   {"&Képmemória", "frm_képmemória"},
                                                   {"Betű&felesleg", "frm_betűfelesleg"},
                                                   {"Betű&nézegető", "frm_betűnézegető"},
                                                   {"&Szólánc", "frm_szólánc"},
                                                   {"&Lóugrás", "frm_lóugrás"},
                                                   {"&Szótagoló", "frm_szótagoló"},
                                                   {"&Betűhiány", "frm_betűhiány"},
                                                   {"&Rövid-hosszú", "frm_hosszrövid"},
                                                   {"&Betűkeverő", "frm_betűkeverő"},
                                                   {"&Hol van?", "frm_holvan"},
                                                   {"&Szótagkereső", "frm_szótagkereső"},
                                                   {"&Merre mutat?", "frm_merremutat"},
                                                   {"&Képhatározó", "frm_képhatározó"},
                                                   {"&Mondat-kép", "frm_mondatkép"},
                                                   {"&Igaz-hamis", "frm_igazhamis"},
                                                   {"&Mondatpárosító", "frm_párosító"},
                                                   {"Szó&Villám", "frm_szóvillám"}};

class MainWindowTest : public SuiteTest {
 protected:
  MainWindowTest() {
    put_words({u"alma", u"körte", u"szilva"});
    start();
  }
  frm_főablak& window() { return open<frm_főablak>(); }
};

TEST_F(MainWindowTest, NoTwoOfItsElementsLieOnEachOther) {
  std::vector<const Element*> shown;
  for (const Element* element : window().elements())
    if (element->shown() && element->Width > 0) shown.push_back(element);
  ASSERT_GT(shown.size(), expected_buttons.size());
  for (std::size_t i = 0; i < shown.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const Rect a = place_of(*shown[i]);
      const Rect b = place_of(*shown[j]);
      const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
                         b.top + b.height <= a.top;
      EXPECT_TRUE(apart) << utf8(shown[i]->Name) << i << " and " << utf8(shown[j]->Name) << j;
    }
  }
}

TEST_F(MainWindowTest, HasItsTitleAndTwentyButtonsInOrder) {
  auto& main = window();
  EXPECT_EQ(utf8(main.Caption), "Tintakő Cserkó");
  ASSERT_EQ(main.cmd_játék.count(), 20);
  for (int i = 0; i < 20; ++i)
    EXPECT_EQ(utf8(main.cmd_játék[i].Caption), expected_buttons[static_cast<std::size_t>(i)].caption);
  EXPECT_EQ(utf8(main.cmd_súgó.Caption), "Súgó");
}

TEST_F(MainWindowTest, HasItsMenus) {
  auto& main = window();
  EXPECT_EQ(utf8(main.mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(main.mnu_fájl_főablak_beállításai.Caption), "&Főablak beállításai");
  EXPECT_EQ(utf8(main.mnu_file_eseményhangok_beállításai.Caption), "&Eseményhangok beállításai");
  EXPECT_EQ(utf8(main.mnu_fájl_zenebeállítások.Caption), "&Zene beállítások");
  EXPECT_EQ(utf8(main.mnu_fájl_separator.Caption), "-");
  EXPECT_EQ(utf8(main.mnu_fájl_kilépés.Caption), "Kilépés");
  EXPECT_EQ(utf8(main.mnu_jutalomjáték.Caption), "Jutalomjáték");
  EXPECT_EQ(utf8(main.mnu_jutalomjáték_dobolás.Caption), "Dobolás időkorlát nélkül");
  EXPECT_EQ(utf8(main.mnu_jutalom_rajz.Caption), "Rajzolás időkorlát nélkül");
  EXPECT_EQ(main.mnu_fájl_kilépés.container(), &main.mnu_fájl);
  EXPECT_EQ(main.mnu_jutalom_rajz.container(), &main.mnu_jutalomjáték);
}

TEST_F(MainWindowTest, HelpComesLastForTheTabKey) {
  auto& main = window();
  EXPECT_EQ(utf8(main.focus()->Name), "cmd_játék");
  hand::key(main, key::tab, shift::shift);
  EXPECT_EQ(main.focus(), &main.cmd_súgó);
}

TEST_F(MainWindowTest, AButtonWithoutAnExerciseIsDisabled) {
  auto& main = window();
  for (int i = 0; i < 20; ++i) {
    const Text name = from_utf8(expected_buttons[static_cast<std::size_t>(i)].window);
    EXPECT_EQ(main.cmd_játék[i].Enabled, session().offers(name)) << utf8(name);
  }
  EXPECT_TRUE(main.cmd_játék[0].Enabled);
}

TEST_F(MainWindowTest, EveryButtonStartsItsExercise) {
  offer_stand_ins(session());
  auto& main = window();
  for (int i = 0; i < 20; ++i) {
    std::string shown;
    then([&](Window& exercise) {
      shown = utf8(exercise.Name);
      hand::close(exercise);
    });
    hand::click(main.cmd_játék[i]);
    EXPECT_EQ(shown, expected_buttons[static_cast<std::size_t>(i)].window);
  }
}

TEST_F(MainWindowTest, TheCaptionDecidesWhichExerciseStarts) {
  auto& main = window();
  main.cmd_játék[7].Caption = u"&Cserkó";
  main.cmd_játék[7].Enabled = true;
  std::string shown;
  then([&](Window& exercise) {
    shown = utf8(exercise.Name);
    hand::close(exercise);
  });
  hand::click(main.cmd_játék[7]);
  EXPECT_EQ(shown, "frm_cserkó");
}

TEST_F(MainWindowTest, ACaptionThatMatchesNoneDoesNothing) {
  auto& main = window();
  main.cmd_játék[0].Caption = u"Cserkó";
  hand::click(main.cmd_játék[0]);
  EXPECT_EQ(machine.count("modal frmháttér"), 0);
  EXPECT_EQ(main.Timer1.Interval, 1);
}

TEST_F(MainWindowTest, TheWidestCaptionFitsAndGivesItsSizeToAll) {
  auto& main = window();
  // "Mondatpárosító" and "Rövid-hosszú": the former is wider (14 characters and one M).
  Button& widest = main.cmd_játék[18];
  const double size = widest.Font.size;
  const auto width_at = [&](double points) { return (13 * 10 + 16) * points; };
  EXPECT_LE(width_at(size - 1), 0.9 * widest.Width);
  EXPECT_TRUE(width_at(size) > 0.9 * widest.Width || 23 * size > 0.9 * widest.Height);
  main.cmd_játék.each([&](Button& button) { EXPECT_EQ(button.Font.size, size) << utf8(button.Caption); });
  EXPECT_EQ(main.cmd_súgó.Font.size, size);
}

TEST_F(MainWindowTest, ATieInWidthGivesTheLaterButtonTheMeasuringRole) {
  // Both captions are equally wide; only the later button is too low for any text, which shows in the common size.
  struct Tied : frm_főablak {
    explicit Tied(Session& s) : frm_főablak(s) {
      cmd_játék[18].Caption = u"mmmmmmmmmmmm";
      cmd_játék[19].Caption = u"MMMMMMMMMMMM";
      cmd_játék[19].Height = 20;
    }
  };
  auto& main = load<Tied>();
  EXPECT_EQ(main.cmd_játék[0].Font.size, 6);
  szöveg_illesztés(main.cmd_játék[18]);
  EXPECT_GT(main.cmd_játék[18].Font.size, 6);
}

// Starting an exercise.

TEST_F(MainWindowTest, TheDecorationRestsWhileAnExerciseRuns) {
  auto& main = window();
  main.cserélő = 7;
  then_in<frm_cserkó>([&](frm_cserkó& exercise) {
    EXPECT_EQ(main.Timer1.Interval, 0);
    const int before = main.cserélő;
    machine.advance(60000);
    EXPECT_EQ(main.cserélő, before);
    hand::close(exercise);
  });
  hand::click(main.cmd_játék[0]);
  EXPECT_EQ(main.Timer1.Interval, 1);
  EXPECT_TRUE(main.Timer1.Enabled);
  EXPECT_EQ(main.cserélő, -100);
}

TEST_F(MainWindowTest, ANewPictureComesAtTheFirstTickAfterAnExercise) {
  auto& main = window();
  then([](Window& exercise) { hand::close(exercise); });
  hand::click(main.cmd_játék[0]);
  const int loads = machine.picture_loads;
  machine.advance(60);
  EXPECT_EQ(machine.picture_loads, loads + 1);
}

TEST_F(MainWindowTest, TheExerciseStandsOnTheBackdrop) {
  auto& main = window();
  then_in<frm_cserkó>([&](frm_cserkó& exercise) {
    EXPECT_TRUE(load<frmháttér>().visible());
    hand::close(exercise);
  });
  hand::click(main.cmd_játék[0]);
  EXPECT_FALSE(session().loaded<frmháttér>());
  EXPECT_FALSE(session().loaded<frm_cserkó>());
}

// Menu.

TEST_F(MainWindowTest, HelpOpensTheSuitesPageInAMinimisedWindowWithTheFocus) {
  hand::click(window().cmd_súgó);
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line),
            "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\cserkó súgó.mht");
  EXPECT_EQ(machine.processes[0].window, ProcessWindow::MinimizedWithFocus);
}

TEST_F(MainWindowTest, TheDecorationStopsDuringItsSettings) {
  auto& main = window();
  then_in<frm_főablak_beállítások>([&](frm_főablak_beállítások& dialog) {
    EXPECT_FALSE(main.Timer1.Enabled);
    hand::click(dialog.OKButton);
  });
  hand::click(main.mnu_fájl_főablak_beállításai);
  EXPECT_TRUE(main.Timer1.Enabled);
}

TEST_F(MainWindowTest, TheDecorationGoesOnUnderTheEventSounds) {
  auto& main = window();
  then_in<frm_hangbeáll>([&](frm_hangbeáll& dialog) {
    EXPECT_TRUE(main.Timer1.Enabled);
    const int before = main.cserélő;
    machine.advance(200);
    EXPECT_GT(main.cserélő, before);
    hand::click(dialog.cmd_mégsem);
  });
  hand::click(main.mnu_file_eseményhangok_beállításai);
}

TEST_F(MainWindowTest, MusicAndDecorationStopDuringTheMusicSettings) {
  put_app_file(u"dysmid\\a.mid");
  auto& main = window();
  load<frm_zenebeáll>().chk_zene_enged.set_value(1);
  auto& music_timer = load<frm_referencia>().Timer_zene;
  music_timer.Enabled = true;
  session().feedback.zene_lejátszás(u"c:\\cserko\\dysmid\\a.mid");
  forget_commands();
  then_in<frm_zenebeáll>([&](frm_zenebeáll& dialog) {
    EXPECT_EQ(commands(), "close midi\n");
    EXPECT_FALSE(main.Timer1.Enabled);
    EXPECT_FALSE(music_timer.Enabled);
    hand::click(dialog.cmd_ok);
  });
  hand::click(main.mnu_fájl_zenebeállítások);
  EXPECT_TRUE(main.Timer1.Enabled);
  EXPECT_TRUE(music_timer.Enabled);
}

TEST_F(MainWindowTest, MusicStaysSilentAfterItsSettingsIfItWasTurnedOff) {
  auto& main = window();
  load<frm_zenebeáll>().chk_zene_enged.set_value(1);
  load<frm_referencia>().Timer_zene.Enabled = true;
  then_in<frm_zenebeáll>([&](frm_zenebeáll& dialog) {
    hand::click(dialog.chk_zene_enged);
    hand::click(dialog.cmd_ok);
  });
  hand::click(main.mnu_fájl_zenebeállítások);
  EXPECT_FALSE(load<frm_referencia>().Timer_zene.Enabled);
}

TEST_F(MainWindowTest, TheDecorationGoesOnWhenTheBackdropDoesNotLoad) {
  auto& main = window();
  machine.screen_fails = true;
  hand::click(main.cmd_játék[0]);
  machine.screen_fails = false;
  expected_errors = 1;
  EXPECT_EQ(machine.errors.size(), 1U);
  EXPECT_EQ(main.Timer1.Interval, 1);
  EXPECT_EQ(main.cserélő, -100);
}

TEST_F(MainWindowTest, MusicAndDecorationGoOnWhenTheMusicSettingsDoNotLoad) {
  session().offer<UnloadableWindow>(u"frm_zenebeáll");
  auto& main = window();
  auto& music_timer = load<frm_referencia>().Timer_zene;
  music_timer.Enabled = true;
  hand::click(main.mnu_fájl_zenebeállítások);
  expected_errors = 1;
  EXPECT_TRUE(main.Timer1.Enabled);
  EXPECT_TRUE(music_timer.Enabled);
}

TEST_F(MainWindowTest, TheWindowStaysAndItsDecorationGoesOnWhenTheGraphicWindowDoesNotLoad) {
  session().offer<UnloadableWindow>(u"frm_grafikus_főablak");
  auto& main = window();
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  hand::click(main.mnu_fájl_főablak_beállításai);
  expected_errors = 1;
  EXPECT_TRUE(main.visible());
  EXPECT_TRUE(main.Timer1.Enabled);
}

TEST_F(MainWindowTest, TheDrumFromTheMenuHasNoTimeLimit) {
  then_in<frm_dobszerkó>([&](frm_dobszerkó& drum) {
    EXPECT_FALSE(drum.Timer_ablakbezárás.Enabled);
    machine.advance(120000);
    EXPECT_TRUE(drum.visible());
    hand::close(drum);
  });
  hand::click(window().mnu_jutalomjáték_dobolás);
}

TEST_F(MainWindowTest, TheDecorationGoesOnUnderAReward) {
  auto& main = window();
  then_in<frm_dobszerkó>([&](frm_dobszerkó& drum) {
    EXPECT_TRUE(main.Timer1.Enabled);
    const int before = main.cserélő;
    machine.advance(200);
    EXPECT_GT(main.cserélő, before);
    hand::close(drum);
  });
  hand::click(main.mnu_jutalomjáték_dobolás);
}

TEST_F(MainWindowTest, TheDrawingFromTheMenuHasNoTimeLimit) {
  session().offer<DrawingWindow>(u"frm_rajz");
  then_in<DrawingWindow>([](DrawingWindow& drawing) {
    EXPECT_FALSE(drawing.Timer2.Enabled);
    hand::close(drawing);
  });
  hand::click(window().mnu_jutalom_rajz);
}

TEST_F(MainWindowTest, ARewardThatIsNotThereIsGreyed) {
  EXPECT_EQ(window().mnu_jutalom_rajz.Enabled, session().offers(u"frm_rajz"));
  Session bare(machine);
  frm_főablak main(bare);
  EXPECT_FALSE(main.mnu_jutalom_rajz.Enabled);
  EXPECT_FALSE(main.mnu_jutalomjáték_dobolás.Enabled);
}

// The way out.

class LeavingTest : public MainWindowTest {
 protected:
  void expect_left() {
    EXPECT_TRUE(machine.ended());
    EXPECT_EQ(file(u"c:\\pomzu\\cserk.pmz"), " 0 \r\n 0 \r\n");
    EXPECT_TRUE(machine.processes.empty());
  }
};

TEST_F(LeavingTest, TheMenuLeaves) {
  hand::click(window().mnu_fájl_kilépés);
  expect_left();
}

TEST_F(LeavingTest, EscapeLeaves) {
  hand::key(window(), 27);
  expect_left();
}

TEST_F(LeavingTest, TheCloseControlLeaves) {
  hand::close(window());
  expect_left();
}

TEST_F(LeavingTest, OtherKeysDoNotLeave) {
  auto& main = window();
  for (const int code : {key::backspace, key::delete_, key::f1, int{'Q'}}) hand::key(main, code);
  EXPECT_FALSE(machine.ended());
}

TEST_F(LeavingTest, LeavingWritesThenClosesSoundThenMusicThenDeletesTheWorkFileThenEnds) {
  put_app_file(u"dysmid\\a.mid");
  session().feedback.hang_lejátszás(u"*");
  session().feedback.zene_lejátszás(u"c:\\cserko\\dysmid\\a.mid");
  forget_commands();
  machine.files().put(Text(user_folder) + u"temp.bmp", "drawing");
  hand::key(window(), key::escape);
  EXPECT_EQ(machine.diary({"write", "close", "remove", "end"}),
            (std::vector<std::string>{"write c:\\pomzu\\cserk.pmz", "close hang", "close midi",
                                      "remove c:\\pomzu\\cserko\\temp.bmp", "end"}));
}

TEST_F(LeavingTest, TheOrderFileHoldsDrawingThenSwapping) {
  auto& main = window();
  load<frm_főablak_beállítások>().rajz.set_value(1);
  hand::key(main, key::escape);
  EXPECT_EQ(file(u"c:\\pomzu\\cserk.pmz"), " 1 \r\n 0 \r\n");
}

TEST_F(LeavingTest, AFullDiskDoesNotKeepThePersonIn) {
  auto& main = window();
  machine.files().free_space = 0;
  hand::key(main, key::escape);
  EXPECT_TRUE(machine.ended());
  expected_errors = machine.errors.size();
}

// The settings of the window and their two files.

class MainSettingsTest : public SuiteTest {
 protected:
  MainSettingsTest() {
    put_words({u"alma", u"körte"});
    start();
  }
  frm_főablak_beállítások& dialog() { return open<frm_főablak_beállítások>(); }
};

TEST_F(MainSettingsTest, HasThreeCheckBoxesAndOk) {
  auto& boxes = dialog();
  EXPECT_EQ(utf8(boxes.chk_grafikus_főablak.Caption), "&Grafikus főablak");
  EXPECT_EQ(utf8(boxes.rajz.Caption), "&Rajz");
  EXPECT_EQ(utf8(boxes.Chkcserkózás.Caption), "Cser&kózás");
  EXPECT_EQ(boxes.find(u"CancelButton"), nullptr);
}

TEST_F(MainSettingsTest, OkWritesGraphicSwappingDrawing) {
  auto& boxes = dialog();
  boxes.chk_grafikus_főablak.set_value(1);
  boxes.Chkcserkózás.set_value(2);
  hand::click(boxes.OKButton);
  EXPECT_EQ(settings(u"főablak.ini"), " 1 \r\n 2 \r\n 0 \r\n");
}

TEST_F(MainSettingsTest, ReadsGraphicSwappingDrawing) {
  put_settings(u"főablak.ini", {u" 0 ", u" 1 ", u" 0 "});
  auto& boxes = dialog();
  EXPECT_EQ(boxes.chk_grafikus_főablak.value(), 0);
  EXPECT_EQ(boxes.Chkcserkózás.value(), 1);
  EXPECT_EQ(boxes.rajz.value(), 0);
}

TEST_F(MainSettingsTest, TheOrderFileBeatsTheSettingsFileAtActivation) {
  put_settings(u"főablak.ini", {u" 0 ", u" 1 ", u" 0 "});
  machine.files().put(u"c:\\pomzu\\cserk.pmz", " 1 \r\n 0 \r\n");
  auto& boxes = load<frm_főablak_beállítások>();
  EXPECT_EQ(boxes.rajz.value(), 0);
  open<frm_főablak>();
  EXPECT_EQ(boxes.rajz.value(), 1);
  EXPECT_EQ(boxes.Chkcserkózás.value(), 0);
}

TEST_F(MainSettingsTest, WithoutAnOrderFileTheSettingsFileStands) {
  put_settings(u"főablak.ini", {u" 0 ", u" 1 ", u" 1 "});
  open<frm_főablak>();
  EXPECT_EQ(load<frm_főablak_beállítások>().Chkcserkózás.value(), 1);
  EXPECT_EQ(load<frm_főablak_beállítások>().rajz.value(), 1);
}

TEST_F(MainSettingsTest, ABrokenOrderFileIsIgnored) {
  put_settings(u"főablak.ini", {u" 0 ", u" 1 ", u" 1 "});
  machine.files().put(u"c:\\pomzu\\cserk.pmz", "\x01\x02 zzz");
  open<frm_főablak>();
  EXPECT_EQ(load<frm_főablak_beállítások>().rajz.value(), 1);
}

TEST_F(MainSettingsTest, AChoiceHoldsAgainstAnOlderOrderFileWhenTheMainWindowComesBack) {
  machine.files().put(u"c:\\pomzu\\cserk.pmz", " 0 \r\n 0 \r\n");
  auto& main = open<frm_főablak>();
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& boxes) {
    hand::click(boxes.rajz);
    hand::click(boxes.OKButton);
  });
  hand::click(main.mnu_fájl_főablak_beállításai);
  EXPECT_EQ(load<frm_főablak_beállítások>().rajz.value(), 1);
  EXPECT_EQ(load<frm_főablak_beállítások>().Chkcserkózás.value(), 0);
}

TEST_F(MainSettingsTest, TheOrderFileIsReadAtEveryActivation) {
  auto& main = open<frm_főablak>();
  machine.files().put(u"c:\\pomzu\\cserk.pmz", " 1 \r\n 0 \r\n");
  then_in<frm_hangbeáll>([](frm_hangbeáll& sounds) { hand::click(sounds.cmd_mégsem); });
  hand::click(main.mnu_file_eseményhangok_beállításai);
  EXPECT_EQ(load<frm_főablak_beállítások>().rajz.value(), 1);
}

} // namespace
} // namespace cserko
