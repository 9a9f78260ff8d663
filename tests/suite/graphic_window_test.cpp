// The graphic main window: its places, the light and its sound, how it starts an exercise, its menus and the way out.
#include "core/frm_grafikus_főablak.h"
#include "core/frm_referencia.h"
#include "core/frmháttér.h"
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_zenebeáll.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

struct ExpectedPlace {
  std::string label;
  std::string window;
};

const std::vector<ExpectedPlace> expected_places{{"Betűnézegető", "frm_betűnézegető"},
                                                 {"Betűfelesleg", "frm_betűfelesleg"},
                                                 {"Betűhiány", "frm_betűhiány"},
                                                 {"Betűválogató", "frm_betűválogatás"},
                                                 {"Betűkeverő", "frm_betűkeverő"},
                                                 {"Rövid-hosszú", "frm_hosszrövid"},
                                                 {"Hol van?", "frm_holvan"},
                                                 {"Merre mutat?", "frm_merremutat"},
                                                 {"Mondat-kép", "frm_mondatkép"},
                                                 {"Képhatározó", "frm_képhatározó"},
                                                 {"Igaz-hamis", "frm_igazhamis"},
                                                 {"Szótagoló", "frm_szótagoló"},
                                                 {"SzóVillám", "frm_szóvillám"},
                                                 {"Szólánc", "frm_szólánc"},
                                                 {"Cserkó", "frm_cserkó"},
                                                 {"Lóugrás", "frm_lóugrás"},
                                                 {"Tekergő", "frmverem"},
                                                 {"Szótagkereső", "frm_szótagkereső"},
                                                 {"Képmemória", "frm_képmemória"},
                                                 {"Mondatpárosító", "frm_párosító"}};

const ExpectedPlace& expected(int index) { return expected_places[static_cast<std::size_t>(index)]; }

constexpr int places = 20;

class GraphicWindowTest : public SuiteTest {
 protected:
  GraphicWindowTest() {
    put_words({u"alma", u"körte", u"szilva"});
    put_app_file(u"cserko\\grafhang.wav");
    start();
    offer_stand_ins(session());
    load<frm_főablak_beállítások>().chk_grafikus_főablak.set_value(1);
  }

  frm_grafikus_főablak& window() { return open<frm_grafikus_főablak>(); }

  static void move_over(Element& element, double x = 30) { hand::move(element, x, 30); }
  static void move_over_free_part(Window& main) { input::mouse_move(main, {MouseButton::None, shift::none, 10, 10}); }

  /// The index that is lit, -1 where none is; its label must be opaque and no other.
  static int lit(frm_grafikus_főablak& main) {
    int found = -1;
    for (int i = 0; i < places; ++i) {
      EXPECT_EQ(main.háttér[i].Visible, main.lbl_feladat[i].Opaque) << i;
      if (!main.háttér[i].Visible) continue;
      EXPECT_EQ(found, -1) << "two lights at once";
      found = i;
    }
    return found;
  }

  /// How often the sound of the window was begun since the last call.
  int sounds() {
    const std::string heard = commands();
    int count = 0;
    for (std::size_t at = heard.find("grafhang.wav"); at != std::string::npos; at = heard.find("grafhang.wav", at + 1))
      ++count;
    return count;
  }

  /// The name of the exercise that a deed starts, empty if it starts none.
  std::string started(const std::function<void()>& deed) {
    std::string name;
    then([&](Window& exercise) {
      name = utf8(exercise.Name);
      hand::close(exercise);
    });
    deed();
    machine.script.clear();
    return name;
  }
};

// What it looks like.

TEST_F(GraphicWindowTest, HasItsTitleAndTwentyPlacesInOrder) {
  auto& main = window();
  EXPECT_EQ(utf8(main.Caption), "Tintakő Cserkó");
  ASSERT_EQ(main.img_játék.count(), places);
  ASSERT_EQ(main.háttér.count(), places);
  ASSERT_EQ(main.lbl_feladat.count(), places);
  for (int i = 0; i < places; ++i) EXPECT_EQ(utf8(main.lbl_feladat[i].Caption), expected(i).label);
}

TEST_F(GraphicWindowTest, HasItsMenus) {
  auto& main = window();
  const auto captions = [&](const MenuItem& menu) {
    std::vector<std::string> entries{utf8(menu.Caption)};
    for (const Element* element : main.elements())
      if (element->container() == &menu) entries.push_back(utf8(element->Caption));
    return entries;
  };
  EXPECT_EQ(captions(main.mnu_fájl),
            (std::vector<std::string>{"&Fájl", "&Főablak beállításai", "&Eseményhangok beállításai",
                                      "&Zene beállítások", "-", "Kilépés"}));
  EXPECT_EQ(captions(main.mnu_jutalomjáték),
            (std::vector<std::string>{"Jutalomjáték", "Dobolás időkorlát nélkül", "Rajzolás időkorlát nélkül"}));
  EXPECT_EQ(captions(main.mnu_súgó), (std::vector<std::string>{"&Súgó", "&Súgó"}));
}

TEST_F(GraphicWindowTest, FillsFourFifthsOfTheScreenInItsMiddle) {
  auto& main = window();
  expect_share_of_screen(main, 0.8);
  EXPECT_DOUBLE_EQ(main.Left + main.Width / 2, machine.screen_size().width / 2);
  EXPECT_DOUBLE_EQ(main.Top + main.Height / 2, machine.screen_size().height / 2);
}

TEST_F(GraphicWindowTest, FitsEveryScreenWithPlacesForFingersAndReadableLabels) {
  for (const auto& [width, height] : {std::pair(1024, 600), std::pair(1280, 1024), std::pair(3840, 2160)}) {
    machine.set_screen(width, height);
    auto& main = window();
    EXPECT_GE(main.Left, 0);
    EXPECT_GE(main.Top, 0);
    for (int i = 0; i < places; ++i) {
      EXPECT_GE(main.img_játék[i].Width, 44 * twips_per_pixel) << width;
      EXPECT_GE(main.lbl_feladat[i].Font.size, 11) << width;
      for (const Element* element :
           {static_cast<const Element*>(&main.háttér[i]), static_cast<const Element*>(&main.lbl_feladat[i])}) {
        EXPECT_GE(element->Left, 0);
        EXPECT_GE(element->Top, 0);
        EXPECT_LE(element->Left + element->Width, main.inner_width()) << i;
        EXPECT_LE(element->Top + element->Height, main.inner_height()) << i;
      }
    }
    session().unload(main);
  }
}

TEST_F(GraphicWindowTest, TheLandscapeReachesOverTheWholeWindowWhateverItsScale) {
  put_app_file(u"cserko\\grafikus\\táj.wmf");
  for (const auto& [width, height] : {std::pair(800, 480), std::pair(1024, 600), std::pair(3840, 2160)}) {
    machine.set_screen(width, height);
    auto& main = window();
    const auto& drawings = dynamic_cast<const RecordedCanvas&>(main.canvas()).drawings();
    ASSERT_EQ(drawings.size(), 1U);
    EXPECT_EQ(utf8(drawings[0].picture->path()), "c:\\cserko\\cserko\\grafikus\\táj.wmf");
    EXPECT_EQ(drawings[0].place.left, 0);
    EXPECT_GE(drawings[0].place.width, main.inner_width()) << width;
    EXPECT_GE(drawings[0].place.height, main.inner_height()) << width;
    // What is drawn for the places stands where the places are.
    EXPECT_DOUBLE_EQ(drawings[0].place.width / graphic_landscape_size.width, main.háttér[7].Top / 2140.0);
    session().unload(main);
  }
}

TEST_F(GraphicWindowTest, NoPlaceHidesAnother) {
  auto& main = window();
  const auto apart = [](const Element& one, const Element& other) {
    const Rect a = place_of(one);
    const Rect b = place_of(other);
    return a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
           b.top + b.height <= a.top;
  };
  for (int i = 0; i < places; ++i) {
    EXPECT_TRUE(apart(main.lbl_feladat[i], main.háttér[i])) << i << ": the light lies on its own label";
    for (int j = 0; j < places; ++j) {
      if (i == j) continue;
      EXPECT_TRUE(apart(main.háttér[i], main.háttér[j])) << i << " and " << j;
      EXPECT_TRUE(apart(main.háttér[i], main.lbl_feladat[j])) << i << " and " << j;
      EXPECT_TRUE(apart(main.lbl_feladat[i], main.lbl_feladat[j])) << i << " and " << j;
    }
  }
}

TEST_F(GraphicWindowTest, LabelsAreBlueTransparentAndNoLargerThanTheirText) {
  auto& main = window();
  main.lbl_feladat.each([&](const Label& label) {
    EXPECT_EQ(utf8(label.Font.name), "Times New Roman");
    EXPECT_EQ(label.ForeColor, (Color{0, 0, 255}));
    EXPECT_FALSE(label.Opaque);
    const Size text = machine.measure(label.Font, label.Caption);
    EXPECT_DOUBLE_EQ(label.Width, text.width);
    EXPECT_DOUBLE_EQ(label.Height, text.height);
  });
}

TEST_F(GraphicWindowTest, LabelsAreAsLargeAsTheirGroundAllowsAndStandInItsMiddle) {
  auto& main = window();
  const double scale = main.img_játék[0].Width / graphic_picture_side;
  for (int i = 0; i < places; ++i) {
    const Label& label = main.lbl_feladat[i];
    const Rect ground = label_rect(graphic_place(i));
    EXPECT_NEAR(label.Left + label.Width / 2, (ground.left + ground.width / 2) * scale, 0.01) << i;
    EXPECT_NEAR(label.Top + label.Height / 2, (ground.top + ground.height / 2) * scale, 0.01) << i;
    EXPECT_TRUE(label.Width > 0.9 * ground.width * scale || label.Height > 0.9 * ground.height * scale) << i;
    EXPECT_LE(label.Width, ground.width * scale) << i;
    EXPECT_LE(label.Height, ground.height * scale) << i;
  }
}

TEST_F(GraphicWindowTest, EachPlaceShowsThePictureOfItsExerciseAndTheLightIsOnePicture) {
  for (const ExpectedPlace& place : expected_places)
    put_app_file(u"cserko\\grafikus\\" + from_utf8(place.window) + u".wmf");
  put_app_file(u"cserko\\grafikus\\kiemelés.wmf");
  auto& main = window();
  for (int i = 0; i < places; ++i) {
    ASSERT_NE(main.img_játék[i].Picture, nullptr) << i;
    EXPECT_EQ(utf8(main.img_játék[i].Picture->path()), "c:\\cserko\\cserko\\grafikus\\" + expected(i).window + ".wmf");
    ASSERT_NE(main.háttér[i].Picture, nullptr) << i;
    EXPECT_EQ(utf8(main.háttér[i].Picture->path()), "c:\\cserko\\cserko\\grafikus\\kiemelés.wmf");
    EXPECT_FALSE(main.háttér[i].Opaque);
  }
}

TEST_F(GraphicWindowTest, WithoutItsPicturesItOpensWithPlaceholdersAndALightThatHasAFrame) {
  auto& main = window();
  for (int i = 0; i < places; ++i) {
    EXPECT_EQ(main.img_játék[i].Picture, nullptr);
    EXPECT_FALSE(drawn(main.img_játék[i]).drawings().empty()) << "a placeholder with the name";
  }
  move_over(main.img_játék[3]);
  EXPECT_TRUE(main.háttér[3].Visible && main.háttér[3].Opaque && main.háttér[3].Border);
  EXPECT_EQ(started([&] { hand::click(main.img_játék[3]); }), "frm_betűválogatás");
}

TEST_F(GraphicWindowTest, ScreenReadersHearTheNameOfEachPlace) {
  auto& main = window();
  for (int i = 0; i < places; ++i) {
    EXPECT_EQ(utf8(accessible_name(main.img_játék[i])), expected(i).label);
    EXPECT_EQ(utf8(accessible_name(main.lbl_feladat[i])), expected(i).label);
  }
}

TEST_F(GraphicWindowTest, HasNoTimer) {
  for (const Element* element : window().elements()) EXPECT_NE(element->kind(), ElementKind::Timer);
}

// The light.

TEST_F(GraphicWindowTest, NothingIsLitAndNothingSoundsWhenItOpens) {
  forget_commands();
  auto& main = window();
  EXPECT_EQ(lit(main), -1);
  EXPECT_EQ(main.focus(), nullptr);
  EXPECT_EQ(sounds(), 0);
}

TEST_F(GraphicWindowTest, MovingOnOverOnePlaceLightsItAndSoundsOnce) {
  auto& main = window();
  forget_commands();
  move_over(main.img_játék[4]);
  EXPECT_EQ(lit(main), 4);
  EXPECT_EQ(commands(), "open \"c:\\cserko\\cserko\\grafhang.wav\" type waveaudio alias hang\nplay hang \n");
  move_over(main.img_játék[4], 60);
  move_over(main.lbl_feladat[4]);
  EXPECT_EQ(lit(main), 4);
  EXPECT_EQ(sounds(), 0);
}

TEST_F(GraphicWindowTest, EveryPictureAndEveryLabelLightsItsOwnPlaceAlone) {
  auto& main = window();
  for (int i = 0; i < places; ++i) {
    move_over(main.img_játék[i]);
    EXPECT_EQ(lit(main), i);
  }
  forget_commands();
  for (int i = 0; i < places; ++i) {
    move_over(main.lbl_feladat[i]);
    EXPECT_EQ(lit(main), i);
    EXPECT_EQ(sounds(), 1);
  }
}

TEST_F(GraphicWindowTest, MovingFromOnePictureToTheNextSoundsOnceAndLightsOnlyTheNewOne) {
  auto& main = window();
  move_over(main.img_játék[4]);
  forget_commands();
  move_over(main.img_játék[9]);
  EXPECT_EQ(lit(main), 9);
  EXPECT_EQ(sounds(), 1);
}

TEST_F(GraphicWindowTest, AFreePartOfTheWindowPutsAllLightsOutAndMovingBackSoundsAgain) {
  auto& main = window();
  move_over(main.img_játék[4]);
  main.lbl_feladat[4].ForeColor = black;
  forget_commands();
  move_over_free_part(main);
  EXPECT_EQ(lit(main), -1);
  EXPECT_EQ(main.lbl_feladat[4].ForeColor, (Color{0, 0, 255}));
  EXPECT_EQ(sounds(), 0);
  move_over(main.img_játék[4]);
  EXPECT_EQ(lit(main), 4);
  EXPECT_EQ(sounds(), 1);
}

TEST_F(GraphicWindowTest, WithTheSoundsTurnedOffItLightsUpSilently) {
  auto& main = window();
  load<frm_hangbeáll>().chk_hang_a_főablakban.set_value(0);
  forget_commands();
  move_over(main.img_játék[4]);
  EXPECT_EQ(lit(main), 4);
  hand::key(main, key::right);
  EXPECT_EQ(lit(main), 4) << "the last place of its row";
  hand::key(main, key::down);
  EXPECT_EQ(lit(main), 9);
  EXPECT_EQ(commands(), "");
}

// Starting an exercise.

TEST_F(GraphicWindowTest, APictureStartsTheExerciseOfItsIndexAndSoDoItsLabelAndItsLight) {
  auto& main = window();
  for (int i = 0; i < places; ++i) {
    EXPECT_EQ(started([&] { hand::click(main.img_játék[i]); }), expected(i).window);
    EXPECT_EQ(started([&] { hand::click(main.lbl_feladat[i]); }), expected(i).window);
    move_over(main.img_játék[i]);
    EXPECT_EQ(started([&] { hand::click(main.háttér[i]); }), expected(i).window);
  }
}

TEST_F(GraphicWindowTest, TheIndexDecidesWhichExerciseStartsNotTheLabel) {
  auto& main = window();
  main.lbl_feladat[2].Caption = u"Cserkó";
  EXPECT_EQ(started([&] { hand::click(main.lbl_feladat[2]); }), "frm_betűhiány");
}

TEST_F(GraphicWindowTest, TheFirstTapStarts) {
  auto& main = window();
  forget_commands();
  EXPECT_EQ(started([&] { hand::click(main.img_játék[6]); }), "frm_holvan");
  EXPECT_EQ(lit(main), 6);
  EXPECT_EQ(sounds(), 1);
}

TEST_F(GraphicWindowTest, ThePointerIsAnHourglassWhileTheExerciseStartsAndAnArrowAgainBehindIt) {
  auto& main = window();
  then([&](Window& exercise) {
    EXPECT_EQ(main.Pointer, MousePointer::Hourglass);
    EXPECT_TRUE(load<frmháttér>().visible());
    hand::close(exercise);
  });
  hand::click(main.img_játék[0]);
  EXPECT_EQ(main.Pointer, MousePointer::Arrow);
  EXPECT_FALSE(session().loaded<frmháttér>());
  EXPECT_TRUE(main.visible());
}

TEST_F(GraphicWindowTest, ThePointerIsAnArrowAgainWhereTheExerciseDoesNotLoad) {
  session().offer<UnloadableWindow>(u"frm_holvan");
  auto& main = window();
  hand::click(main.img_játék[6]);
  expected_errors = 1;
  EXPECT_EQ(main.Pointer, MousePointer::Arrow);
  EXPECT_TRUE(main.visible());
}

TEST_F(GraphicWindowTest, ThePointerIsAnArrowAgainWhereTheBackdropDoesNotLoad) {
  auto& main = window();
  machine.screen_fails = true;
  hand::click(main.img_játék[6]);
  machine.screen_fails = false;
  expected_errors = 1;
  EXPECT_EQ(main.Pointer, MousePointer::Arrow);
  EXPECT_TRUE(main.visible());
}

TEST(GraphicWindowAlone, AnExerciseThatIsNotBuiltCannotBeLitOrStarted) {
  HeadlessPlatform machine;
  Session session(machine);
  install_feedback(session);
  auto& main = session.window<frm_grafikus_főablak>();
  machine.show(main);
  EXPECT_FALSE(main.img_játék[0].Enabled);
  hand::move(main.img_játék[0], 30, 30);
  hand::click(main.lbl_feladat[0]);
  EXPECT_FALSE(main.háttér[0].Visible);
  EXPECT_TRUE(machine.errors.empty());
}

// Keys.

TEST_F(GraphicWindowTest, ArrowsMoveTheLightByDirectionWithTheSoundOfTheMouse) {
  auto& main = window();
  forget_commands();
  const auto press = [&](int code) {
    hand::key(main, code);
    EXPECT_EQ(sounds(), 1);
    return lit(main);
  };
  EXPECT_EQ(press(key::right), 0) << "the first arrow shows where the keys begin";
  EXPECT_EQ(press(key::right), 1);
  EXPECT_EQ(press(key::down), 6);
  EXPECT_EQ(press(key::down), 11);
  EXPECT_EQ(press(key::left), 10);
  EXPECT_EQ(press(key::up), 5);
  EXPECT_EQ(press(key::up), 0);
}

TEST_F(GraphicWindowTest, FromEveryPlaceAnArrowLeadsToItsNeighbourInRowOrColumnAndNowhereBeyondTheEdge) {
  auto& main = window();
  constexpr int columns = 5;
  for (int i = 0; i < places; ++i) {
    const auto leads_to = [&](int code) {
      move_over(main.img_játék[i]);
      hand::key(main, code);
      return lit(main);
    };
    const int column = i % columns;
    EXPECT_EQ(leads_to(key::left), column > 0 ? i - 1 : i);
    EXPECT_EQ(leads_to(key::right), column < columns - 1 ? i + 1 : i);
    EXPECT_EQ(leads_to(key::up), i >= columns ? i - columns : i);
    EXPECT_EQ(leads_to(key::down), i + columns < places ? i + columns : i);
  }
}

TEST_F(GraphicWindowTest, TabMovesTheLightInReadingOrderBothWays) {
  auto& main = window();
  for (int i = 0; i < places; ++i) {
    hand::key(main, key::tab);
    EXPECT_EQ(lit(main), i);
  }
  hand::key(main, key::tab);
  EXPECT_EQ(lit(main), 0);
  hand::key(main, key::tab, shift::shift);
  EXPECT_EQ(lit(main), places - 1);
}

TEST_F(GraphicWindowTest, EnterAndSpaceStartWhatIsLit) {
  auto& main = window();
  hand::key(main, key::down);
  hand::key(main, key::down);
  EXPECT_EQ(started([&] { hand::key(main, key::enter); }), "frm_hosszrövid");
  EXPECT_EQ(lit(main), 5) << "the light waits there";
  EXPECT_EQ(started([&] { hand::key(main, key::space); }), "frm_hosszrövid");
}

TEST_F(GraphicWindowTest, WhatIsNotLitIsNotStartedByAKey) {
  auto& main = window();
  EXPECT_EQ(started([&] { hand::key(main, key::enter); }), "");
  hand::key(main, key::right);
  move_over_free_part(main);
  EXPECT_EQ(started([&] { hand::key(main, key::enter); }), "");
}

TEST_F(GraphicWindowTest, MouseAndKeysMoveOneAndTheSameLight) {
  auto& main = window();
  move_over(main.img_játék[7]);
  EXPECT_EQ(main.focus(), &main.img_játék[7]);
  hand::key(main, key::right);
  EXPECT_EQ(lit(main), 8);
  EXPECT_EQ(started([&] { hand::key(main, key::enter); }), "frm_mondatkép");
}

TEST_F(GraphicWindowTest, TheKeysComeBackToWhereTheLightWentOut) {
  auto& main = window();
  move_over(main.img_játék[7]);
  move_over_free_part(main);
  EXPECT_EQ(main.focus(), nullptr);
  hand::key(main, key::right);
  EXPECT_EQ(lit(main), 7);
}

// Menus and the way out.

TEST_F(GraphicWindowTest, ItStaysAfterItsSettingsWhileTheOptionIsTicked) {
  auto& main = window();
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.Chkcserkózás);
    hand::click(dialog.OKButton);
  });
  hand::click(main.mnu_fájl_főablak_beáll);
  EXPECT_TRUE(session().loaded<frm_grafikus_főablak>());
  EXPECT_TRUE(main.visible());
}

TEST_F(GraphicWindowTest, ItGoesAfterItsSettingsWhenTheOptionWasCleared) {
  auto& main = window();
  then_in<frm_főablak_beállítások>([](frm_főablak_beállítások& dialog) {
    hand::click(dialog.chk_grafikus_főablak);
    hand::click(dialog.OKButton);
  });
  hand::click(main.mnu_fájl_főablak_beáll);
  EXPECT_FALSE(session().loaded<frm_grafikus_főablak>());
}

TEST_F(GraphicWindowTest, MenuEscapeAndCloseControlUnloadIt) {
  const std::vector<std::function<void(frm_grafikus_főablak&)>> ways{
      [](frm_grafikus_főablak& main) { hand::click(main.mnu_fájl_kilép); },
      [](frm_grafikus_főablak& main) { hand::key(main, key::escape); },
      [](frm_grafikus_főablak& main) { hand::close(main); }};
  for (const auto& leave : ways) {
    leave(window());
    EXPECT_FALSE(session().loaded<frm_grafikus_főablak>());
    EXPECT_FALSE(machine.ended()) << "what comes then is not its own business";
  }
}

TEST_F(GraphicWindowTest, TheEventSoundsCanBeSet) {
  bool shown = false;
  then_in<frm_hangbeáll>([&](frm_hangbeáll& dialog) {
    shown = true;
    hand::click(dialog.cmd_mégsem);
  });
  hand::click(window().mnu_fájl_eseményhang_beáll);
  EXPECT_TRUE(shown);
}

TEST_F(GraphicWindowTest, TheMusicStopsDuringItsSettingsAndGoesOnExactlyIfItIsAllowed) {
  put_app_file(u"dysmid\\a.mid");
  auto& main = window();
  auto& music = load<frm_zenebeáll>();
  auto& music_timer = load<frm_referencia>().Timer_zene;
  for (const int allowed : {1, 0}) {
    music.chk_zene_enged.set_value(1);
    music_timer.Enabled = true;
    session().feedback.zene_lejátszás(u"c:\\cserko\\dysmid\\a.mid");
    forget_commands();
    then_in<frm_zenebeáll>([&](frm_zenebeáll& dialog) {
      EXPECT_EQ(commands(), "close midi\n");
      EXPECT_FALSE(music_timer.Enabled);
      if (allowed == 0) hand::click(dialog.chk_zene_enged);
      hand::click(dialog.cmd_ok);
    });
    hand::click(main.mnu_fájl_zene_beáll);
    EXPECT_EQ(music_timer.Enabled, allowed == 1);
  }
}

TEST_F(GraphicWindowTest, TheDrumHasNoTimeLimit) {
  bool shown = false;
  then_in<frm_dobszerkó>([&](frm_dobszerkó& drum) {
    shown = true;
    EXPECT_FALSE(drum.Timer_ablakbezárás.Enabled);
    hand::close(drum);
  });
  hand::click(window().mnu_jutalom_dobolás);
  EXPECT_TRUE(shown);
}

TEST_F(GraphicWindowTest, TheDrawingHasNoTimeLimit) {
  session().offer<DrawingWindow>(u"frm_rajz");
  bool shown = false;
  then_in<DrawingWindow>([&](DrawingWindow& drawing) {
    shown = true;
    EXPECT_FALSE(drawing.Timer2.Enabled);
    hand::close(drawing);
  });
  hand::click(window().mnu_jutalom_rajz);
  EXPECT_TRUE(shown);
}

TEST_F(GraphicWindowTest, HelpOpensTheSuitesPageFromTheMenuAndByF1) {
  auto& main = window();
  hand::click(main.mnu_súgó_súgó);
  hand::key(main, key::f1);
  ASSERT_EQ(machine.processes.size(), 2U);
  for (const auto& process : machine.processes) {
    EXPECT_EQ(utf8(process.command_line), "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\cserkó súgó.mht");
    EXPECT_EQ(process.window, ProcessWindow::MinimizedWithFocus);
  }
}

} // namespace
} // namespace cserko
