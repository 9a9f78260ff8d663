// The settings of Word chain and the layout of its window: the design of the dialog, its file of nine lines, and how
// the pictures fill the screen.
#include "tests/exercises/word_chain_fixture.h"

#include <cmath>

namespace cserko {
namespace {

class WordChainSettings : public WordChainTest {
 protected:
  frm_szólánc_beállítások& dialog() { return load<frm_szólánc_beállítások>(); }
  void in_dialog(frm_szólánc& window, const std::function<void(frm_szólánc_beállítások&)>& deed) {
    then_in<frm_szólánc_beállítások>(deed);
    hand::click(window.mnu_fájl_beállítások);
  }
  static const inline std::string defaults = "True\r\nFalse\r\nFalse\r\n 12 \r\n 28 \r\n 1 \r\n 1 \r\n 0 \r\n 1 \r\n";
};

TEST_F(WordChainSettings, HaveTheirTexts) {
  start();
  auto& d = dialog();
  EXPECT_EQ(captions(d.opt_típus), (std::vector<std::string>{"Utolsó szótag és első szótag egyeztetése",
                                                             "Utolsó két betű és első két betű egyeztetése",
                                                             "Utolsó betű és első betű egyeztetése"}));
  EXPECT_EQ(utf8(d.lbl_betszám.Caption), "Szó betűinek maximális száma:");
  EXPECT_EQ(utf8(d.lbl_képekszáma.Caption), "Képek száma");
  EXPECT_EQ(utf8(d.chk_kezdőszó_felfedése.Caption), "Az első kép felfedése");
  EXPECT_EQ(utf8(d.chk_segítség_engedélyezése.Caption), "Segítség engedélyezése");
  EXPECT_EQ(utf8(d.chk_szavak_megjelenítése_szótagolva.Caption), "Szavak megjelenítése szótagolva");
  EXPECT_EQ(utf8(d.Check_pontosbetűháttér.Caption), "A betű vonalát pontosan követő háttér");
}

TEST_F(WordChainSettings, HaveTheirRangesAndDefaults) {
  start();
  auto& d = dialog();
  EXPECT_EQ(d.opt_típus.chosen(), 0);
  EXPECT_EQ(d.udbetszám.Min, 4);
  EXPECT_EQ(d.udbetszám.Max, 17);
  EXPECT_EQ(d.udbetszám.value(), 12);
  EXPECT_EQ(d.udbetszám.Buddy, &d.txtbetszám);
  EXPECT_EQ(d.ud_képekszáma.Min, 7);
  EXPECT_EQ(d.ud_képekszáma.Max, 28);
  EXPECT_EQ(d.ud_képekszáma.Increment, 7);
  EXPECT_EQ(d.ud_képekszáma.value(), 28);
  EXPECT_EQ(d.ud_képekszáma.Buddy, &d.txt_képekszáma);
  EXPECT_EQ(d.chk_kezdőszó_felfedése.value(), 1);
  EXPECT_EQ(d.chk_segítség_engedélyezése.value(), 1);
  EXPECT_EQ(d.chk_szavak_megjelenítése_szótagolva.value(), 0);
  EXPECT_EQ(d.Check_pontosbetűháttér.value(), 1);
  EXPECT_LE(d.Height, 600 * twips_per_pixel);
}

TEST_F(WordChainSettings, StepByWholeRowsOfPictures) {
  start();
  machine.show(dialog());
  auto& d = dialog();
  std::vector<int> values;
  for (int i = 0; i < 4; ++i) {
    hand::step(d.ud_képekszáma, -1);
    values.push_back(d.ud_képekszáma.value());
  }
  EXPECT_EQ(values, (std::vector<int>{21, 14, 7, 7}));
  hand::write(d.txt_képekszáma, u"9");
  EXPECT_EQ(d.ud_képekszáma.value(), 7);
}

TEST_F(WordChainSettings, ShowSyllablesOnlyWhereSyllablesMatch) {
  start();
  machine.show(dialog());
  auto& d = dialog();
  EXPECT_TRUE(d.chk_szavak_megjelenítése_szótagolva.Enabled);
  d.chk_szavak_megjelenítése_szótagolva.set_value(1);
  EXPECT_TRUE(d.syllables_shown());
  for (const int type : {1, 2}) {
    hand::click(d.opt_típus[type]);
    EXPECT_FALSE(d.chk_szavak_megjelenítése_szótagolva.Enabled);
    EXPECT_FALSE(d.syllables_shown());
  }
  hand::click(d.opt_típus[0]);
  EXPECT_TRUE(d.chk_szavak_megjelenítése_szótagolva.Enabled);
}

TEST_F(WordChainSettings, OkWritesTheNineLinesAndDealsANewGame) {
  put_chain();
  auto& window = deal();
  drag(window, 1, 1);
  in_dialog(window, [&](frm_szólánc_beállítások& d) {
    hand::click(d.chk_kezdőszó_felfedése);
    hand::click(d.Check_pontosbetűháttér);
    hand::step(d.udbetszám, 1);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"szólánc.ini"), "True\r\nFalse\r\nFalse\r\n 13 \r\n 7 \r\n 1 \r\n 1 \r\n 0 \r\n 0 \r\n");
  EXPECT_EQ(row(window), row_of({0, -1, -1, -1, -1, -1, -1}));
  EXPECT_FALSE(dialog().visible());
}

TEST_F(WordChainSettings, EachLineIsReadIntoItsControl) {
  put_settings(u"szólánc.ini", {u"False", u"True", u"False", u" 7 ", u" 21 ", u" 0 ", u" 0 ", u" 1 ", u" 0 "});
  start();
  auto& d = dialog();
  EXPECT_EQ(d.opt_típus.chosen(), 1);
  EXPECT_EQ(d.udbetszám.value(), 7);
  EXPECT_EQ(d.ud_képekszáma.value(), 21);
  EXPECT_EQ(d.chk_kezdőszó_felfedése.value(), 0);
  EXPECT_EQ(d.chk_segítség_engedélyezése.value(), 0);
  EXPECT_EQ(d.chk_szavak_megjelenítése_szótagolva.value(), 1);
  EXPECT_FALSE(d.chk_szavak_megjelenítése_szótagolva.Enabled);
  EXPECT_EQ(d.Check_pontosbetűháttér.value(), 0);
}

TEST_F(WordChainSettings, WhatNoControlCanTakeIsMended) {
  put_settings(u"szólánc.ini", {u"False", u"False", u"False", u" 99 ", u" 20 ", u" 5 "});
  start();
  auto& d = dialog();
  EXPECT_EQ(d.opt_típus.chosen(), 0);
  EXPECT_EQ(d.udbetszám.value(), 12);
  EXPECT_EQ(d.ud_képekszáma.value(), 14) << "whole rows";
  EXPECT_EQ(d.chk_kezdőszó_felfedése.value(), 1);
}

TEST_F(WordChainSettings, TheApplicationFolderIsNotLookedAt) {
  put_app_file(u"szólánc.ini", u"False\r\nFalse\r\nTrue\r\n");
  put_app_file(u"cserko\\szólánc.ini", u"False\r\nFalse\r\nTrue\r\n");
  start();
  EXPECT_EQ(dialog().opt_típus.chosen(), 0);
  dialog().write();
  EXPECT_EQ(settings(u"szólánc.ini"), defaults);
}

TEST_F(WordChainSettings, CancelReadsTheFileAgain) {
  put_chain();
  auto& window = deal();
  drag(window, 1, 1);
  in_dialog(window, [](frm_szólánc_beállítások& d) {
    hand::click(d.opt_típus[2]);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(dialog().opt_típus.chosen(), 0);
  EXPECT_TRUE(dialog().chk_szavak_megjelenítése_szótagolva.Enabled);
  EXPECT_EQ(row(window)[1], "1") << "the game goes on";
}

TEST_F(WordChainSettings, HelpOpensItsPage) {
  start();
  machine.show(dialog());
  hand::click(dialog().cmd_súgó);
  EXPECT_EQ(help_page(), help_command("Szólánc  - Beállítások.mht"));
}

// --- The layout

struct Screen {
  int width;
  int height;
};

class WordChainLayout : public WordChainTest, public ::testing::WithParamInterface<Screen> {
 protected:
  frm_szólánc& game(int pictures) {
    put_chain(25);
    machine.set_screen(GetParam().width, GetParam().height);
    put_settings_of({.pictures = pictures});
    start();
    return open<frm_szólánc>();
  }
  void expect_laid_out(const frm_szólánc& window) {
    const Size screen = machine.screen_size();
    EXPECT_LE(window.Width, screen.width);
    EXPECT_LE(window.Height, screen.height);
    EXPECT_NEAR(window.Left + window.Width / 2, screen.width / 2, 1);
    EXPECT_NEAR(window.Top + window.Height / 2, screen.height / 2, 1);
    const int pictures = window.pictures();
    const double scale = window.kép[0].Width / 1860;
    const PictureBox& last = window.kép[pictures - 1];
    EXPECT_NEAR(window.frm_rejtvény.Height, last.Top + last.Height + 120 * scale, 1);
    EXPECT_GT(window.frame_szólánc.Top, window.frm_rejtvény.Top + window.frm_rejtvény.Height);
    EXPECT_LT(window.frame_szólánc.Top + window.frame_szólánc.Height, window.inner_height());
    EXPECT_LT(window.frame_szólánc.Left + window.frame_szólánc.Width, window.inner_width());
    const auto middle = [](const Element& element) { return element.Left + element.Width / 2; };
    const double width = window.frame_szólánc.Width;
    EXPECT_NEAR(middle(window.cmd_elcsúsztat[0]), width / 3, 1);
    EXPECT_NEAR(middle(window.cmd_kérdőjel), width / 2, 1);
    EXPECT_NEAR(middle(window.cmd_elcsúsztat[1]), width * 2 / 3, 1);
    for (int i = 0; i < pictures; ++i) {
      EXPECT_NEAR(window.kép[i].Left, window.kép[i % 7].Left, 1e-6);
      EXPECT_NEAR(window.kép[i].Top - window.kép[0].Top, i / 7 * (window.kép[0].Height + 60 * scale), 1);
    }
    for (int i = 0; i < 7; ++i) {
      EXPECT_EQ(window.pic_eredménykép[i].Width, window.kép[i].Width);
      EXPECT_EQ(window.pic_eredménykép[i].Left, window.kép[i].Left);
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Screens, WordChainLayout,
                         ::testing::Values(Screen{1024, 600}, Screen{1280, 1024}, Screen{3840, 2160}),
                         [](const auto& screen) { return std::to_string(screen.param.width); });

TEST_P(WordChainLayout, FitsTheScreenWithEveryNumberOfPictures) {
  auto& window = game(28);
  expect_laid_out(window);
  const Rect first = place_of(window.kép[0]);
  auto& settings = load<frm_szólánc_beállítások>();
  for (const int pictures : {21, 14, 7, 28}) {
    settings.ud_képekszáma.set_value(pictures);
    hand::click(window.mnu_fájl_újjáték);
    ASSERT_EQ(window.pictures(), pictures);
    expect_laid_out(window);
    EXPECT_GE(window.kép[0].Height, first.height) << "fewer pictures are not smaller";
  }
  EXPECT_EQ(place_of(window.kép[0]), first) << "nothing drifts";
}

TEST_P(WordChainLayout, CaptionsCanBeRead) {
  put({.név = u"tizenhétbetűsszav", .szótagolt = u"ti-zen"});
  auto& window = game(28);
  window.kép.each([](PictureBox& box) {
    for (const Drawing& drawing : drawn(box).drawings()) {
      if (drawing.kind == Drawing::Kind::Print) {
        EXPECT_GE(drawing.font.size, 10) << utf8(drawing.text);
      }
    }
  });
}

} // namespace
} // namespace cserko
