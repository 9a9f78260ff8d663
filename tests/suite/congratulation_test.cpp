// The congratulation panel: its sentences, pictures and sounds, the count to the reward, and how often the music is
// toggled on each way out.
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/sounds.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

const std::vector<std::string> praise{"Gratulálok!",
                                      "Nagyszerű!",
                                      "Fantasztikus!",
                                      "Ez igen!",
                                      "Hihetetlen!!!",
                                      "Nagyon jó vagy!",
                                      "Ügyes vagy!",
                                      "Elképesztő, hogy milyen ügyes vagy!",
                                      "Megcsináltad!!!",
                                      "Hurrá!",
                                      "Hajrá!!!",
                                      "Nagyon ügyes vagy!",
                                      "Klassz!",
                                      "Így tovább!",
                                      "Ne mondd, hogy még nem csináltad!",
                                      "Dicséretet érdemelsz!",
                                      "Dicsőség neked!",
                                      "Ha így folytatod, te leszel a legjobb!",
                                      "Igen! Folytasd!",
                                      "Kitűnő!",
                                      "Tiéd minden elismerésem!",
                                      "Rendben!",
                                      "Sikerült!",
                                      "Teljes siker!",
                                      "Éljen! Éljen!",
                                      "Győzelem!",
                                      "Tiéd az aranyérem!",
                                      "Te vagy a győztes!",
                                      "Dübörögjön tapsvihar a tiszteletedre!",
                                      "Virágeső hulljon lábad elé!"};

const std::string tune = "c:\\cserko\\dysmid\\a.mid";

class PanelTest : public SuiteTest {
 protected:
  PanelTest() {
    put_app_file(u"dicskép\\one.wmf");
    put_app_file(u"dysmid\\a.mid");
    put_sounds({u"hurray.wav"});
    start();
    session().offer<DrawingWindow>(u"frm_rajz");
  }

  /// Shows the panel as exercises do, and lets the person act in it.
  void congratulate(const std::function<void(frm_gratuláció&)>& deed) {
    then_in<frm_gratuláció>(deed);
    machine.show_modal(load<frm_gratuláció>());
    EXPECT_FALSE(session().loaded<frm_gratuláció>());
  }
  void congratulate_and_ok() {
    congratulate([](frm_gratuláció& panel) { hand::click(panel.cmd_ok); });
  }
  void sounds_off() { load<frm_hangbeáll>().chk_hang_a_gratulálópanelen.set_value(0); }
  void music_plays() {
    load<frm_hangbeáll>().lst_gratulahang.Items = {u"hurray.wav"};
    machine.media().set_length(from_utf8(tune), 3600000);
    zene_lejátszás(session(), from_utf8(tune));
    forget_commands();
  }
  MediaMode music() { return machine.media().mode(MediaAlias::Midi); }
  std::string left_line() {
    std::string line = "(hidden)";
    congratulate([&](frm_gratuláció& panel) {
      if (panel.lbl_vissza.Visible) line = utf8(panel.lbl_vissza.Caption);
      hand::click(panel.cmd_ok);
    });
    return line;
  }
  void next_panel_offers() { session().játékszámláló = 1; }
};

TEST_F(PanelTest, HasItsTitleAndCaptions) {
  const frm_gratuláció panel(session());
  EXPECT_EQ(utf8(panel.Caption), "Cserkó");
  EXPECT_EQ(utf8(panel.label_szöveg.Caption), "Gratulálok!");
  EXPECT_EQ(utf8(panel.cmd_ok.Caption), "Lássuk a következőt!");
  EXPECT_EQ(utf8(panel.cmd_dob.Caption), "Doboljunk!");
  EXPECT_EQ(utf8(panel.cmd_rajz.Caption), "Rajzoljunk!");
  EXPECT_FALSE(panel.lbl_vissza.Visible);
}

TEST_F(PanelTest, SaysEachOfItsThirtySentences) {
  sounds_off();
  for (int i = 0; i < 30; ++i) {
    machine.script_random({drawing(i, 30), 0.0});
    congratulate([&](frm_gratuláció& panel) {
      EXPECT_EQ(utf8(panel.label_szöveg.Caption), praise[static_cast<std::size_t>(i)]) << i;
      hand::click(panel.cmd_ok);
    });
  }
}

TEST_F(PanelTest, SeedsBeforeItDraws) {
  sounds_off();
  const int before = machine.seedings;
  congratulate_and_ok();
  EXPECT_EQ(machine.seedings, before + 1);
}

TEST_F(PanelTest, IsCentred) {
  congratulate([this](frm_gratuláció& panel) {
    EXPECT_DOUBLE_EQ(panel.Left, (machine.screen_size().width - panel.Width) / 2);
    EXPECT_DOUBLE_EQ(panel.Top, (machine.screen_size().height - panel.Height) / 2);
    hand::click(panel.cmd_ok);
  });
}

TEST_F(PanelTest, TakesNineTenthsOfTheScreen) { expect_share_of_screen(load<frm_gratuláció>(), 0.9); }

TEST_F(PanelTest, TheButtonsAreFitted) {
  const auto& panel = load<frm_gratuláció>();
  for (const Button* button : {&panel.cmd_ok, &panel.cmd_dob, &panel.cmd_rajz}) expect_fitted(*button, 3);
}

TEST_F(PanelTest, SentenceAndCountFillTheirPlaces) {
  sounds_off();
  const std::vector<int> sentences{9, 28};
  for (const int sentence : sentences) {
    machine.script_random({drawing(sentence, 30), 0.0});
    congratulate([this](frm_gratuláció& panel) {
      expect_fitted(panel.label_szöveg);
      expect_fitted(panel.lbl_vissza);
      hand::click(panel.cmd_ok);
    });
  }
}

// The picture.

TEST_F(PanelTest, TheOnlyPictureIsShown) {
  machine.script_random({0.0, 0.999});
  congratulate([](frm_gratuláció& panel) {
    ASSERT_NE(panel.Picture1.Picture, nullptr);
    EXPECT_EQ(utf8(panel.Picture1.Picture->path()), "c:\\cserko\\dicskép\\one.wmf");
    hand::click(panel.cmd_ok);
  });
}

TEST_F(PanelTest, ARandomPictureOfAnyKindIsShown) {
  put_app_file(u"dicskép\\two.bmp");
  put_app_file(u"dicskép\\three.png");
  const std::vector<std::string> names{"one.wmf", "two.bmp", "three.png"};
  for (int i = 0; i < 3; ++i) {
    machine.script_random({0.0, drawing(i, 3)});
    congratulate([&](frm_gratuláció& panel) {
      EXPECT_EQ(utf8(panel.Picture1.Picture->path()), "c:\\cserko\\dicskép\\" + names[static_cast<std::size_t>(i)]);
      hand::click(panel.cmd_ok);
    });
  }
}

TEST_F(PanelTest, AnEmptyFolderOfPicturesIsNoFailure) {
  machine.files().take(Text(app) + u"dicskép\\one.wmf");
  congratulate([](frm_gratuláció& panel) {
    EXPECT_EQ(panel.Picture1.Picture, nullptr);
    hand::click(panel.cmd_ok);
  });
}

// The count.

TEST_F(PanelTest, CountsDownInWordsToTheFifthPanel) {
  EXPECT_EQ(left_line(), "Még négyet játszunk, aztán dobolunk vagy rajzolunk!!!");
  EXPECT_EQ(left_line(), "Még hármat játszunk, aztán dobolunk vagy rajzolunk!!!");
  EXPECT_EQ(left_line(), "Még kettőt játszunk, aztán dobolunk vagy rajzolunk!!!");
  EXPECT_EQ(left_line(), "Még egyet játszunk, aztán dobolunk vagy rajzolunk!!!");
  EXPECT_EQ(left_line(), "(hidden)");
  EXPECT_EQ(session().játékszámláló, 0);
}

TEST_F(PanelTest, TheRewardsAreGreyedUntilTheFifthPanel) {
  for (int i = 1; i <= 5; ++i) {
    congratulate([&](frm_gratuláció& panel) {
      EXPECT_EQ(panel.cmd_dob.Enabled, i == 5) << i;
      EXPECT_EQ(panel.cmd_rajz.Enabled, i == 5) << i;
      EXPECT_TRUE(panel.cmd_ok.Enabled);
      EXPECT_EQ(panel.Timer1.Interval, i == 5 ? 10000 : 0) << i;
      hand::click(panel.cmd_ok);
    });
  }
}

TEST_F(PanelTest, RewardsThatDoNotExistStayGreyed) {
  end_session();
  Session bare(machine);
  bare.képek.load(machine.files(), bare.alapkönyvtár);
  bare.játékszámláló = 1;
  auto& panel = bare.window<frm_gratuláció>();
  EXPECT_FALSE(panel.cmd_dob.Enabled);
  EXPECT_FALSE(panel.cmd_rajz.Enabled);
  EXPECT_EQ(panel.Timer1.Interval, 10000);
}

TEST_F(PanelTest, TheOfferLastsTenSeconds) {
  next_panel_offers();
  const auto start = machine.now();
  congratulate([this](frm_gratuláció& panel) {
    machine.advance(9999);
    EXPECT_TRUE(panel.visible());
  });
  EXPECT_EQ(machine.now() - start, 10000);
}

TEST_F(PanelTest, APanelWithoutAnOfferDoesNotCloseByItself) {
  congratulate([this](frm_gratuláció& panel) {
    machine.advance(60000);
    EXPECT_TRUE(panel.visible());
    hand::click(panel.cmd_ok);
  });
}

TEST_F(PanelTest, AnUnusedOfferComesAgainAndTheCounterFallsOn) {
  next_panel_offers();
  congratulate_and_ok();
  for (const int expected : {-1, -2}) {
    congratulate([&](frm_gratuláció& panel) {
      EXPECT_TRUE(panel.cmd_dob.Enabled);
      EXPECT_TRUE(panel.cmd_rajz.Enabled);
      EXPECT_FALSE(panel.lbl_vissza.Visible);
      EXPECT_EQ(panel.Timer1.Interval, 10000);
      hand::click(panel.cmd_ok);
    });
    EXPECT_EQ(session().játékszámláló, expected);
  }
}

TEST_F(PanelTest, TheCounterIsNotSaved) {
  congratulate_and_ok();
  EXPECT_EQ(session().játékszámláló, 4);
  EXPECT_EQ(start().játékszámláló, 5);
}

// The rewards.

TEST_F(PanelTest, TakingTheDrumStartsTheCountAnew) {
  next_panel_offers();
  then_in<frm_gratuláció>([](frm_gratuláció& panel) { hand::click(panel.cmd_dob); });
  then_in<frm_dobszerkó>([this](frm_dobszerkó& drum) {
    EXPECT_EQ(session().játékszámláló, 5);
    EXPECT_TRUE(drum.Timer_ablakbezárás.Enabled) << "as a reward the drum has its time limit";
    hand::close(drum);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_FALSE(session().loaded<frm_gratuláció>());
  EXPECT_EQ(left_line(), "Még négyet játszunk, aztán dobolunk vagy rajzolunk!!!");
}

TEST_F(PanelTest, TakingTheDrawingStartsTheCountAnew) {
  next_panel_offers();
  then_in<frm_gratuláció>([](frm_gratuláció& panel) { hand::click(panel.cmd_rajz); });
  then_in<DrawingWindow>([this](DrawingWindow& drawing) {
    EXPECT_EQ(session().játékszámláló, 5);
    EXPECT_TRUE(drawing.Timer2.Enabled);
    hand::close(drawing);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_FALSE(session().loaded<frm_gratuláció>());
}

TEST_F(PanelTest, ThePanelStaysBehindARewardThatLastsLongerThanTheOffer) {
  next_panel_offers();
  then_in<frm_gratuláció>([](frm_gratuláció& panel) { hand::click(panel.cmd_rajz); });
  then_in<DrawingWindow>([this](DrawingWindow& drawing) {
    machine.advance(25000);
    EXPECT_TRUE(session().loaded<frm_gratuláció>());
    hand::close(drawing);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_FALSE(session().loaded<frm_gratuláció>());
}

// Sound and music.

const std::string play_hurray = "open \"c:\\cserko\\\\hangok\\hurray.wav\" type waveaudio alias hang\nplay hang \n";

TEST_F(PanelTest, TheMusicPausesAndAPraiseSoundPlays) {
  music_plays();
  congratulate([this](frm_gratuláció& panel) {
    EXPECT_EQ(commands(), "Status midi mode\npause midi\n" + play_hurray);
    EXPECT_EQ(music(), MediaMode::Paused);
    hand::click(panel.cmd_ok);
  });
}

TEST_F(PanelTest, ThePraiseSoundIsARandomEntry) {
  put_sounds({u"x.wav", u"y.wav"});
  load<frm_hangbeáll>().lst_gratulahang.Items = {u"hurray.wav", u"x.wav", u"y.wav"};
  machine.script_random({0.0, 0.0, drawing(2, 3)});
  congratulate_and_ok();
  ASSERT_FALSE(machine.media().played.empty());
  EXPECT_EQ(utf8(machine.media().played.back()), "c:\\cserko\\\\hangok\\y.wav");
}

TEST_F(PanelTest, TheButtonTogglesTheMusicTwiceSoThatItStaysPaused) {
  music_plays();
  congratulate([this](frm_gratuláció& panel) {
    forget_commands();
    hand::click(panel.cmd_ok);
  });
  EXPECT_EQ(commands(), "close hang\nStatus midi mode\nplay midi\nStatus midi mode\npause midi\n");
  EXPECT_EQ(music(), MediaMode::Paused);
}

TEST_F(PanelTest, TheNextPanelThenLetsThePausedMusicPlay) {
  music_plays();
  congratulate_and_ok();
  congratulate([this](frm_gratuláció& panel) {
    EXPECT_EQ(music(), MediaMode::Playing);
    hand::click(panel.cmd_ok);
  });
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, TheTimerTogglesTheMusicOnceSoThatItGoesOn) {
  music_plays();
  next_panel_offers();
  congratulate([this](frm_gratuláció&) { forget_commands(); });
  EXPECT_EQ(commands(), "close hang\nStatus midi mode\nplay midi\n");
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, TheCloseControlTogglesTheMusicOnce) {
  music_plays();
  congratulate([this](frm_gratuláció& panel) {
    forget_commands();
    hand::close(panel);
  });
  EXPECT_EQ(commands(), "close hang\nStatus midi mode\nplay midi\n");
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, ARewardTogglesTheMusicOnce) {
  music_plays();
  next_panel_offers();
  then_in<frm_gratuláció>([this](frm_gratuláció& panel) {
    forget_commands();
    hand::click(panel.cmd_rajz);
  });
  then_in<DrawingWindow>([this](DrawingWindow& drawing) {
    EXPECT_EQ(music(), MediaMode::Paused);
    hand::close(drawing);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_EQ(commands(), "close hang\nStatus midi mode\nplay midi\n");
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, WithSoundsOffTheMusicIsNotTouched) {
  music_plays();
  sounds_off();
  congratulate_and_ok();
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, WithSoundsOffNoOtherWayOutTouchesTheMusicEither) {
  music_plays();
  sounds_off();
  congratulate([](frm_gratuláció& panel) { hand::close(panel); });
  next_panel_offers();
  congratulate([](frm_gratuláció&) {}); // closes by itself
  then_in<frm_gratuláció>([](frm_gratuláció& panel) { hand::click(panel.cmd_rajz); });
  then_in<DrawingWindow>([](DrawingWindow& drawing) { hand::close(drawing); });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, WithoutMusicNothingIsAskedOfIt) {
  load<frm_hangbeáll>().lst_gratulahang.Items = {u"hurray.wav"};
  congratulate_and_ok();
  EXPECT_EQ(commands(), play_hurray + "close hang\n");
}

TEST_F(PanelTest, AFailedPauseIsToldInThePlatformsMessageBox) {
  music_plays();
  machine.media().refuse(u"pause midi", 6);
  sounds_off();
  zene_szünet(session());
  ASSERT_EQ(machine.messages.size(), 1U);
  EXPECT_EQ(machine.messages[0], machine.media().error_text(6));
  EXPECT_EQ(music(), MediaMode::Playing);
}

TEST_F(PanelTest, MusicThatHasEndedIsNotToggled) {
  music_plays();
  machine.advance(3600001);
  congratulate_and_ok();
  EXPECT_EQ(commands().find("midi\nplay midi"), std::string::npos);
  EXPECT_EQ(music(), MediaMode::Stopped);
}

} // namespace
} // namespace cserko
