// From the start of the program to its end: what is prepared in which order, and the two ways out.
#include "core/frm_folyamat.h"
#include "core/frm_főablak.h"
#include "core/frm_grafikus_főablak.h"
#include "core/frm_referencia.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_zenebeáll.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

using Diary = std::vector<std::string>;

class MainTest : public SuiteTest {
 protected:
  MainTest() {
    put_words({u"alma", u"körte", u"szilva"});
    put_app_file(u"dysmid\\a.mid");
    machine.programs.insert(u"c:\\cserko\\portál.exe");
    assemble();
  }

  void then_leave() {
    then([](Window& window) { hand::key(window, key::escape); });
  }
  void then_close() {
    then([](Window& window) { hand::close(window); });
  }
  bool work_file_exists() { return machine.files().exists(Text(user_folder) + u"temp.bmp"); }
};

TEST_F(MainTest, ApplicationFolderHasATrailingBackslash) { EXPECT_EQ(utf8(session().alapkönyvtár), "c:\\cserko\\"); }

TEST_F(MainTest, StartsWithFiveGamesToTheReward) {
  session().játékszámláló = -3;
  then_leave();
  session().Main();
  EXPECT_EQ(session().játékszámláló, 5);
}

TEST_F(MainTest, PreparesEverythingInOrderBeforeTheMainWindow) {
  then_leave();
  session().Main();
  Diary diary = machine.diary({"seed", "open", "play", "close", "load frm_hang", "load frm_zene", "load FrmFolyamat",
                               "show FrmFolyamat", "unload FrmFolyamat", "modal"});
  diary.resize(std::min<std::size_t>(diary.size(), 11));
  EXPECT_EQ(diary, (Diary{"seed", "open \"c:\\cserko\\null.wav\" type waveaudio alias hang", "play hang ",
                          "load frm_hangbeáll", "close hang",
                          "open \"c:\\cserko\\cserko\\clack 1.wav\" type waveaudio alias hang", "play hang ",
                          "load frm_zenebeáll", "load FrmFolyamat", "show FrmFolyamat", "unload FrmFolyamat"}));
}

TEST_F(MainTest, NoClickAtTheStartWhenItIsTurnedOff) {
  put_app_file(u"cserko\\grathang.ini", u" 1 \r\n 1 \r\n 1 \r\n 1 \r\n 0 \r\n");
  then([this](Window& window) {
    EXPECT_EQ(commands(), "open \"c:\\cserko\\null.wav\" type waveaudio alias hang\nplay hang \n");
    hand::key(window, key::escape);
  });
  session().Main();
}

TEST_F(MainTest, AFirstExerciseOpensByItselfOnceAndTheMainWindowIsBehindIt) {
  session().first_exercise = u"frm_cserkó";
  then([this](Window& window) {
    EXPECT_EQ(utf8(window.Name), "frm_cserkó");
    hand::close(window);
  });
  then([](Window& window) {
    EXPECT_EQ(utf8(window.Name), "frm_főablak");
    hand::key(window, key::escape);
  });
  session().Main();
  EXPECT_TRUE(machine.ended());
}

TEST_F(MainTest, AFirstExerciseThatNobodyKnowsLeavesTheMainWindow) {
  session().first_exercise = u"frm_semmi";
  then([](Window& window) {
    EXPECT_EQ(utf8(window.Name), "frm_főablak");
    hand::key(window, key::escape);
  });
  session().Main();
}

TEST_F(MainTest, WithMusicTurnedOffNoMidiAliasIsEverOpened) {
  put_settings(u"zenebeáll.ini", {u" 0 ", u"a.mid"});
  then([this](Window& window) {
    EXPECT_FALSE(load<frm_referencia>().Timer_zene.Enabled);
    machine.advance(5000);
    hand::key(window, key::escape);
  });
  session().Main();
  EXPECT_EQ(commands().find("midi"), std::string::npos);
}

TEST_F(MainTest, WithMusicAllowedTheFirstTitleStartsWithinASecondOfTheMainWindow) {
  put_settings(u"zenebeáll.ini", {u" 1 ", u"a.mid"});
  then([this](Window& window) {
    EXPECT_TRUE(load<frm_referencia>().Timer_zene.Enabled);
    machine.advance(1100);
    EXPECT_EQ(machine.media().mode(MediaAlias::Midi), MediaMode::Playing);
    hand::key(window, key::escape);
  });
  session().Main();
}

TEST_F(MainTest, TheReferenceWindowIsNeverShownAndCarriesTheFontName) {
  then_leave();
  session().Main();
  EXPECT_EQ(utf8(load<frm_referencia>().Font.name), "Times New Roman CE");
  EXPECT_EQ(machine.count("show frm_referencia") + machine.count("modal frm_referencia"), 0);
}

TEST_F(MainTest, RecordsAreLoadedOnceAndTheProgressWindowIsGone) {
  then_leave();
  session().Main();
  EXPECT_EQ(session().képek.képszám, 2);
  EXPECT_EQ(machine.count("load FrmFolyamat"), 1);
}

TEST_F(MainTest, TheProgressWindowIsCentredOnTheScreenAndRedrawnForEachRecord) {
  struct Watcher : HeadlessPlatform {
    void redraw(Window& window) override {
      HeadlessPlatform::redraw(window);
      if (window.Name != u"FrmFolyamat") return;
      const auto& bar = static_cast<FrmFolyamat&>(window).ProgressBar;
      if (times > 0) values.emplace_back(bar.Value, bar.Max);
      caption = to_utf8(window.Caption);
      center = {window.Left + window.Width / 2, window.Top + window.Height / 2};
      ++times;
    }
    std::string caption;
    Point center;
    int times = 0;
    std::vector<std::pair<int, int>> values; // with their maximum
  } watcher;
  for (int i = 1; i <= 3; ++i) watcher.files().put(Text(app) + u"kepek\\" + to_text(i) + u".wms", "1\r\nalma");
  Session session(watcher);
  install_feedback(session);
  session.képadatok_betöltése();
  EXPECT_EQ(watcher.caption, "Adatfeldolgozás...");
  EXPECT_EQ(watcher.center, (Point{1280 * 15 / 2.0, 1024 * 15 / 2.0}));
  EXPECT_EQ(watcher.times, 1 + 3);
  EXPECT_EQ(watcher.values, (std::vector<std::pair<int, int>>{{0, 2}, {0, 2}, {1, 2}}));
}

TEST_F(MainTest, LeavingTheTextWindowEndsTheProcessWithoutTheLauncher) {
  then_leave();
  session().Main();
  EXPECT_TRUE(machine.ended());
  EXPECT_TRUE(machine.processes.empty());
  EXPECT_EQ(machine.count("end"), 1);
}

TEST_F(MainTest, ClosingTheGraphicWindowGoesBackToTheLauncher) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  then_close();
  session().Main();
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line), "c:\\cserko\\portál.exe klki");
  EXPECT_EQ(machine.processes[0].window, ProcessWindow::Normal);
  EXPECT_TRUE(machine.ended());
  EXPECT_EQ(machine.count("modal frm_főablak"), 0);
}

TEST_F(MainTest, TheGraphicExitClosesSoundAndMusicBeforeTheLauncherStarts) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  put_settings(u"zenebeáll.ini", {u" 1 ", u"a.mid"});
  then([this](Window& window) {
    machine.advance(1100);
    hand::close(window);
  });
  session().Main();
  const Diary diary = machine.diary({"close", "start", "end"});
  ASSERT_GE(diary.size(), 4U);
  EXPECT_EQ(Diary(diary.end() - 4, diary.end()),
            (Diary{"close hang", "close midi", "start c:\\cserko\\portál.exe klki", "end"}));
}

TEST_F(MainTest, WithoutTheLauncherTheGraphicWindowIsLeftWithoutAWord) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  machine.programs.clear();
  then_close();
  session().Main();
  EXPECT_TRUE(machine.processes.empty());
  EXPECT_TRUE(machine.ended());
}

TEST_F(MainTest, ALauncherThatDoesNotStartIsReportedAndTheProgramEndsAllTheSame) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  machine.processes_fail = true;
  then_close();
  session().Main();
  expected_errors = 1;
  EXPECT_TRUE(machine.ended());
}

TEST_F(MainTest, WhatFailsInThePreparationIsToldAndTheMainWindowComesAllTheSame) {
  session().offer<UnloadableWindow>(u"frm_hangbeáll");
  session().offer<UnloadableWindow>(u"frm_zenebeáll");
  bool came = false;
  then([&](Window& window) {
    came = true;
    EXPECT_EQ(machine.errors.size(), 2U);
    EXPECT_EQ(session().képek.képszám, 2);
    EXPECT_EQ(utf8(load<frm_referencia>().Font.name), "Times New Roman CE");
    hand::key(window, key::escape);
  });
  session().Main();
  expected_errors = 2;
  EXPECT_TRUE(came);
  EXPECT_NE(utf8(machine.errors[0]).find("a program indulása"), std::string::npos) << utf8(machine.errors[0]);
}

TEST_F(MainTest, AGraphicWindowThatDoesNotLoadGivesWayToTheTextWindow) {
  session().offer<UnloadableWindow>(u"frm_grafikus_főablak");
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  then_leave();
  session().Main();
  expected_errors = 1;
  EXPECT_EQ(machine.count("modal frm_főablak"), 1);
  EXPECT_TRUE(machine.ended());
}

// A machine on which nothing can be drawn, so that the decoration of the text window does not load.
class NoCanvas : public HeadlessPlatform {
 public:
  std::unique_ptr<Canvas> make_canvas(Size) override { throw std::runtime_error("no canvas"); }
};

TEST(WithoutMainWindow, TheProgramTellsWhyAndEnds) {
  NoCanvas machine;
  Session session(machine);
  install_feedback(session);
  session.Main();
  EXPECT_TRUE(machine.ended());
  ASSERT_FALSE(machine.errors.empty());
  EXPECT_NE(utf8(machine.errors.back()).find("no canvas"), std::string::npos) << utf8(machine.errors.back());
}

TEST_F(MainTest, AStaleWorkFileStaysUntilTheTextWindowIsLeft) {
  machine.files().put(Text(user_folder) + u"temp.bmp", "old");
  then([this](Window& window) {
    EXPECT_TRUE(work_file_exists());
    hand::key(window, key::escape);
  });
  session().Main();
  EXPECT_FALSE(work_file_exists());
}

TEST_F(MainTest, AStaleWorkFileStaysUntilTheGraphicWindowIsLeft) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  machine.files().put(Text(user_folder) + u"temp.bmp", "old");
  then([this](Window& window) {
    EXPECT_TRUE(work_file_exists());
    hand::close(window);
  });
  session().Main();
  EXPECT_FALSE(work_file_exists());
}

TEST_F(MainTest, AWorkFileThatCannotBeDeletedDoesNotKeepTheProgram) {
  machine.files().put(Text(user_folder) + u"temp.bmp", "old");
  machine.files().make_unwritable(Text(user_folder) + u"temp.bmp");
  then_leave();
  session().Main();
  EXPECT_TRUE(machine.ended());
}

TEST_F(MainTest, UntickingTheGraphicOptionBringsTheTextWindowWithoutANewStart) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  then([this](Window& window) {
    load<frm_főablak_beállítások>().chk_grafikus_főablak.set_value(0);
    hand::close(window);
  });
  then_leave();
  session().Main();
  EXPECT_EQ(machine.diary({"modal", "end"}), (Diary{"modal frm_grafikus_főablak", "modal frm_főablak", "end"}));
  EXPECT_EQ(machine.count("load FrmFolyamat"), 1);
  EXPECT_TRUE(machine.processes.empty());
}

TEST_F(MainTest, TickingTheGraphicOptionBringsTheGraphicWindowAndUntickingTheTextWindowAgain) {
  then_in<frm_főablak>([](frm_főablak& window) {
    hand::click(window.mnu_fájl_főablak_beállításai);
    EXPECT_TRUE(window.visible());
    EXPECT_TRUE(window.Timer1.Enabled);
    EXPECT_EQ(window.cserélő, -100) << "a new picture is due, as after an exercise";
    hand::key(window, key::escape);
  });
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  then([this](Window& window) {
    EXPECT_FALSE(load<frm_főablak>().visible());
    EXPECT_FALSE(load<frm_főablak>().Timer1.Enabled) << "the decoration rests while the other window is there";
    load<frm_főablak>().cserélő = 7;
    load<frm_főablak_beállítások>().chk_grafikus_főablak.set_value(0);
    hand::close(window);
  });
  session().Main();
  EXPECT_EQ(machine.diary({"modal", "end"}),
            (Diary{"modal frm_főablak", "modal frm_főablak_beállítások", "modal frm_grafikus_főablak", "end"}));
  EXPECT_EQ(machine.count("load FrmFolyamat"), 1);
}

TEST_F(MainTest, ClosingTheGraphicWindowThatTheTextWindowOpenedEndsWithoutTheLauncher) {
  then_in<frm_főablak>([](frm_főablak& window) { hand::click(window.mnu_fájl_főablak_beállításai); });
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  then_close();
  session().Main();
  EXPECT_TRUE(machine.ended());
  EXPECT_TRUE(machine.processes.empty());
}

TEST_F(MainTest, TheWholeRoadLeadsThroughBothWindowsAndAnExerciseAndOutOfTheTextWindow) {
  offer_stand_ins(session());
  machine.files().put(Text(user_folder) + u"temp.bmp", "old");
  then_in<frm_főablak>([](frm_főablak& window) {
    hand::click(window.mnu_fájl_főablak_beállításai);
    EXPECT_TRUE(window.visible());
    hand::key(window, key::escape);
  });
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  then_in<frm_grafikus_főablak>([](frm_grafikus_főablak& window) {
    hand::click(window.img_játék[15]);
    EXPECT_TRUE(window.visible());
    hand::click(window.mnu_fájl_főablak_beáll);
  });
  then([](Window& exercise) { hand::close(exercise); });
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  session().Main();
  EXPECT_EQ(machine.diary({"modal", "end"}),
            (Diary{"modal frm_főablak", "modal frm_főablak_beállítások", "modal frm_grafikus_főablak",
                   "modal frmháttér", "modal frm_lóugrás", "modal frm_főablak_beállítások", "end"}));
  EXPECT_EQ(machine.count("load FrmFolyamat"), 1);
  EXPECT_EQ(machine.count("load frm_főablak_beállítások"), 1);
  EXPECT_EQ(settings(u"főablak.ini"), " 0 \r\n 0 \r\n 0 \r\n");
  EXPECT_TRUE(machine.processes.empty());
  EXPECT_FALSE(work_file_exists());
}

TEST_F(MainTest, UntickedInTheGraphicWindowThatTheProgramOpenedTheTextWindowFollows) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  then_in<frm_grafikus_főablak>([](frm_grafikus_főablak& window) { hand::click(window.mnu_fájl_főablak_beáll); });
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  then_leave();
  session().Main();
  EXPECT_EQ(machine.diary({"modal", "end"}),
            (Diary{"modal frm_grafikus_főablak", "modal frm_főablak_beállítások", "modal frm_főablak", "end"}));
  EXPECT_EQ(machine.count("load FrmFolyamat"), 1);
  EXPECT_TRUE(machine.processes.empty());
}

TEST_F(MainTest, EscapeInTheGraphicWindowGoesBackToTheLauncher) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  then_leave();
  session().Main();
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line), "c:\\cserko\\portál.exe klki");
}

TEST_F(MainTest, AFirstExerciseOpensFromTheGraphicWindowToo) {
  put_settings(u"főablak.ini", {u" 1 ", u" 0 ", u" 0 "});
  session().first_exercise = u"frm_cserkó";
  std::string first;
  then([&](Window& window) {
    first = utf8(window.Name);
    hand::close(window);
  });
  then_close();
  session().Main();
  EXPECT_EQ(first, "frm_cserkó");
}

} // namespace
} // namespace cserko
