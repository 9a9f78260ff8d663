// The drum: its sounds and colours, the keys, the big letter, its end, and the way to it from the congratulation.
#include "core/frm_főablak.h"
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

class DrumTest : public SuiteTest {
 protected:
  DrumTest() {
    put_app_file(u"cserko\\paper.png");
    start();
    load<frm_főablak>();
  }

  void put_drums(std::initializer_list<TextView> names) {
    for (const TextView name : names) put_sounds({u"dob\\" + Text(name)});
  }
  /// So many sounds, named in falling order, so that their listing is not sorted.
  void put_many_drums(int count) {
    for (int i = 0; i < count; ++i) put_sounds({u"dob\\d" + digits(99 - i) + u".wav"});
  }
  static Text digits(int number) { return from_utf8(std::to_string(number)); }

  static std::string start_of(const std::string& name) {
    return "open \"c:\\cserko\\\\hangok\\dob\\" + name + "\" type waveaudio alias hang\nplay hang \n";
  }
  static Color crosswise(Color color) {
    return {static_cast<std::uint8_t>(255 - color.red), static_cast<std::uint8_t>(255 - color.green),
            static_cast<std::uint8_t>(255 - color.blue)};
  }
  /// Random numbers that give every key, the comma first and then the letters, a colour of its own.
  void script_colors(int first) {
    for (int i = 0; i < 27; ++i) {
      for (const int component : {first + i, 100 - i, 255 - i}) machine.script_random({drawing(component, 256)});
    }
  }
};

TEST_F(DrumTest, HasAKeyForTheCommaAndForEachLetter) {
  const auto& drum = load<frm_dobszerkó>();
  EXPECT_EQ(utf8(drum.Caption), "Cserkó - Dobszerkó");
  EXPECT_EQ(drum.billentyű.count(), 27);
  EXPECT_EQ(utf8(drum.billentyű[44].Caption), ",");
  for (int index = 65; index <= 90; ++index)
    EXPECT_EQ(drum.billentyű[index].Caption, Text(1, static_cast<char16_t>(index)));
}

TEST_F(DrumTest, TakesTheLookOfTheMainWindowInTheMiddleOfTheScreen) {
  auto& main = load<frm_főablak>();
  main.BackColor = {10, 20, 30};
  const auto& drum = load<frm_dobszerkó>();
  ASSERT_NE(main.Picture, nullptr);
  EXPECT_EQ(drum.Picture, main.Picture);
  EXPECT_EQ(drum.BackColor, main.BackColor);
  const Size screen = machine.screen_size();
  EXPECT_EQ(drum.Top, screen.height / 2 - drum.Height / 2);
  EXPECT_EQ(drum.Left, screen.width / 2 - drum.Width / 2);
}

TEST_F(DrumTest, TakesSevenTenthsOfTheScreen) { expect_share_of_screen(load<frm_dobszerkó>(), 0.7); }

TEST_F(DrumTest, TheLettersFillTheirKeys) {
  load<frm_dobszerkó>().billentyű.each([this](const Label& key) { expect_fitted(key); });
}

// The sounds.

TEST_F(DrumTest, SoundsAreDealtInTheOrderOfTheListingTheCommaFirst) {
  put_many_drums(30);
  auto& drum = open<frm_dobszerkó>();
  hand::click(drum.billentyű[44]);
  EXPECT_EQ(commands(), start_of("d99.wav"));
  for (int index = 65; index <= 90; ++index) {
    hand::click(drum.billentyű[index]);
    EXPECT_EQ(commands(), "close hang\n" + start_of("d" + std::to_string(98 - (index - 65)) + ".wav"));
  }
}

TEST_F(DrumTest, OnlyWaveFilesAreDealt) {
  put_drums({u"readme.txt", u"snare.wav"});
  auto& drum = open<frm_dobszerkó>();
  hand::click(drum.billentyű[44]);
  EXPECT_EQ(commands(), start_of("snare.wav"));
}

TEST_F(DrumTest, WithFewerSoundsTheLaterKeysAreSilentAndStillShowTheirLetter) {
  put_drums({u"x.wav", u"y.wav", u"z.wav"});
  auto& drum = open<frm_dobszerkó>();
  for (const int index : {44, 65, 66}) hand::click(drum.billentyű[index]);
  EXPECT_EQ(machine.media().played.size(), 3U);
  for (int index = 67; index <= 90; ++index) {
    forget_commands();
    hand::click(drum.billentyű[index]);
    EXPECT_EQ(commands(), "close hang\n" + start_of("")) << "the folder alone";
    EXPECT_EQ(drum.Label1.Caption, Text(1, static_cast<char16_t>(index)));
  }
  EXPECT_EQ(machine.media().played.size(), 3U);
}

TEST_F(DrumTest, WithoutAnySoundEveryKeyIsSilent) {
  auto& drum = open<frm_dobszerkó>();
  hand::key(drum, key::comma);
  hand::key(drum, 'A');
  EXPECT_TRUE(machine.media().played.empty());
  EXPECT_EQ(utf8(drum.Label1.Caption), "A");
}

TEST_F(DrumTest, TheSameKeyAgainRestartsItsSound) {
  put_drums({u"x.wav"});
  auto& drum = open<frm_dobszerkó>();
  hand::key(drum, key::comma);
  hand::key(drum, key::comma);
  EXPECT_EQ(commands(), start_of("x.wav") + "close hang\n" + start_of("x.wav"));
  EXPECT_EQ(machine.media().played.size(), 2U);
}

// The colours.

TEST_F(DrumTest, EachKeyHasARandomColourAndItsComplementForTheLetter) {
  script_colors(7);
  const int seedings = machine.seedings;
  const auto& drum = load<frm_dobszerkó>();
  EXPECT_EQ(machine.seedings, seedings + 1);
  const auto expect_colors = [&](int index, int place) {
    const Color color{static_cast<std::uint8_t>(7 + place), static_cast<std::uint8_t>(100 - place),
                      static_cast<std::uint8_t>(255 - place)};
    EXPECT_EQ(drum.billentyű[index].BackColor, color) << index;
    EXPECT_EQ(drum.billentyű[index].ForeColor, crosswise(color)) << index;
    EXPECT_TRUE(drum.billentyű[index].Opaque) << index;
  };
  expect_colors(44, 0);
  for (int index = 65; index <= 90; ++index) expect_colors(index, index - 64);
}

TEST_F(DrumTest, ColoursReachFromNothingToFull) {
  for (int i = 0; i < 81; ++i) machine.script_random({i % 3 == 0 ? 0.0 : 0.9999999});
  EXPECT_EQ(load<frm_dobszerkó>().billentyű[90].BackColor, (Color{0, 255, 255}));
}

TEST_F(DrumTest, ColoursAreNewAtEveryOpening) {
  script_colors(7);
  session().unload(load<frm_dobszerkó>());
  script_colors(120);
  EXPECT_EQ(load<frm_dobszerkó>().billentyű[44].BackColor, (Color{120, 100, 255}));
}

TEST_F(DrumTest, AStrikeShowsTheLetterCrosswiseAndFloodsTheWindow) {
  script_colors(7);
  auto& drum = open<frm_dobszerkó>();
  hand::click(drum.billentyű[70]);
  EXPECT_EQ(utf8(drum.Label1.Caption), "F");
  EXPECT_TRUE(drum.Label1.Opaque);
  EXPECT_EQ(drum.Label1.BackColor, drum.billentyű[70].ForeColor);
  EXPECT_EQ(drum.Label1.ForeColor, drum.billentyű[70].BackColor);
  EXPECT_EQ(drum.BackColor, drum.billentyű[70].BackColor);
  EXPECT_EQ(drum.Picture, nullptr) << "paper would hide the colour";
}

// The big letter.

TEST_F(DrumTest, TheBigLetterBeginsAsTheTallestGlyphAtTheFirstSizeThatFillsItsPlace) {
  const auto& drum = load<frm_dobszerkó>();
  EXPECT_EQ(utf8(drum.Label1.Caption), "Á");
  cserko::Font font = drum.Label1.Font;
  EXPECT_GT(font.size, 10);
  EXPECT_GE(machine.measure(font, u"Á").height, drum.Label1.Height);
  font.size -= 1;
  EXPECT_LT(machine.measure(font, u"Á").height, drum.Label1.Height);
}

// The keys.

TEST_F(DrumTest, TheKeyboardStrikesTheSameKeysAsTheMouse) {
  auto& drum = open<frm_dobszerkó>();
  hand::key(drum, key::comma);
  EXPECT_EQ(utf8(drum.Label1.Caption), ",");
  EXPECT_EQ(drum.BackColor, drum.billentyű[44].BackColor);
  for (int code = 65; code <= 90; ++code) {
    hand::key(drum, code);
    EXPECT_EQ(drum.Label1.Caption, Text(1, static_cast<char16_t>(code)));
    EXPECT_EQ(drum.BackColor, drum.billentyű[code].BackColor);
  }
}

TEST_F(DrumTest, OtherKeysAreIgnored) {
  auto& drum = open<frm_dobszerkó>();
  const Color before = drum.BackColor;
  for (int code = 1; code <= 255; ++code) {
    if (code == key::escape || code == key::comma || (code >= 65 && code <= 90)) continue;
    hand::key(drum, code);
    EXPECT_EQ(commands(), "") << code;
    EXPECT_EQ(drum.BackColor, before) << code;
  }
  EXPECT_TRUE(drum.visible());
}

// The end.

TEST_F(DrumTest, EscapeEndsItAtOnceWithoutAMessage) {
  hand::key(open<frm_dobszerkó>(), key::escape);
  EXPECT_FALSE(session().loaded<frm_dobszerkó>());
  EXPECT_EQ(machine.count("load frm_szövegüzenet"), 0);
}

TEST_F(DrumTest, AfterAMinuteItSaysComeAndPlayForFifteenSecondsAndEnds) {
  const std::int64_t start = machine.now();
  then_in<frm_dobszerkó>([](frm_dobszerkó& drum) {
    EXPECT_EQ(drum.Timer_ablakbezárás.Interval, 60000);
    EXPECT_TRUE(drum.Timer_ablakbezárás.Enabled);
  });
  then_in<frm_szövegüzenet>([&](frm_szövegüzenet& panel) {
    EXPECT_EQ(machine.now() - start, 60000);
    EXPECT_EQ(utf8(panel.pic_üzenet.Tag), "Gyere, játszunk egy kicsit újra a betűkkel!");
    EXPECT_EQ(panel.timer_bezár.Interval, 15000);
    EXPECT_TRUE(session().loaded<frm_dobszerkó>());
  });
  machine.show_modal(load<frm_dobszerkó>());
  EXPECT_EQ(machine.now() - start, 75000);
  EXPECT_FALSE(session().loaded<frm_dobszerkó>());
}

TEST_F(DrumTest, TheClosingMessagePutAwayEarlyEndsItAtThatMoment) {
  then_in<frm_dobszerkó>([](frm_dobszerkó&) {});
  then_in<frm_szövegüzenet>([this](frm_szövegüzenet& panel) {
    machine.advance(2000);
    hand::click(panel.cmd_ok);
  });
  const std::int64_t start = machine.now();
  machine.show_modal(load<frm_dobszerkó>());
  EXPECT_EQ(machine.now() - start, 62000);
  EXPECT_FALSE(session().loaded<frm_dobszerkó>());
}

TEST_F(DrumTest, FromTheMenuItEndsByEscapeAloneAndNeverSpeaks) {
  auto& main = open<frm_főablak>();
  then_in<frm_dobszerkó>([this](frm_dobszerkó& drum) {
    machine.advance(600000);
    hand::key(drum, 'D');
    EXPECT_EQ(utf8(drum.Label1.Caption), "D");
    hand::key(drum, key::escape);
  });
  hand::click(main.mnu_jutalomjáték_dobolás);
  EXPECT_FALSE(session().loaded<frm_dobszerkó>());
  EXPECT_EQ(machine.count("load frm_szövegüzenet"), 0);
}

// From the congratulation.

TEST_F(DrumTest, AsARewardItTogglesTheMusicOnceAndStartsTheCountAnew) {
  put_drums({u"x.wav"});
  put_sounds({u"hurray.wav"});
  put_app_file(u"dysmid\\a.mid");
  put_app_file(u"dicskép\\one.wmf");
  load<frm_hangbeáll>().lst_gratulahang.Items = {u"hurray.wav"};
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\a.mid");
  session().játékszámláló = 1;
  then_in<frm_gratuláció>([this](frm_gratuláció& panel) {
    EXPECT_TRUE(panel.cmd_dob.Enabled);
    EXPECT_EQ(panel.cmd_rajz.Enabled, session().offers(u"frm_rajz")) << "greyed as long as there is no drawing";
    forget_commands();
    hand::click(panel.cmd_dob);
  });
  then_in<frm_dobszerkó>([this](frm_dobszerkó& drum) {
    EXPECT_EQ(session().játékszámláló, 5);
    EXPECT_EQ(machine.media().mode(MediaAlias::Midi), MediaMode::Paused);
    hand::key(drum, key::comma);
    hand::key(drum, key::escape);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_EQ(commands(), "close hang\n" + start_of("x.wav") + "close hang\nStatus midi mode\nplay midi\n");
  EXPECT_EQ(machine.media().mode(MediaAlias::Midi), MediaMode::Playing);
  EXPECT_FALSE(session().loaded<frm_gratuláció>());
}

TEST_F(DrumTest, AGreyedButtonOpensNoDrum) {
  session().játékszámláló = 3;
  then_in<frm_gratuláció>([](frm_gratuláció& panel) {
    hand::click(panel.cmd_dob);
    EXPECT_TRUE(panel.visible());
    hand::click(panel.cmd_ok);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_FALSE(session().loaded<frm_dobszerkó>());
  EXPECT_EQ(session().játékszámláló, 2);
}

} // namespace
} // namespace cserko
