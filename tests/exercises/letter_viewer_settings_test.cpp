// The settings of Letter viewer: the design of the dialog, its file of eight lines, OK, Cancel and Help; and the letter
// tiles, which are no setting.
#include "tests/exercises/letter_viewer_fixture.h"

namespace cserko {
namespace {

class LetterViewerSettingsTest : public LetterViewerFixture {
 protected:
  void in_dialog(frm_betűnézegető& window, const std::function<void(frm_betűnézegető_beáll&)>& deed) {
    then_in<frm_betűnézegető_beáll>(deed);
    hand::click(window.mneu_fájl_beállítások);
  }
};

TEST_F(LetterViewerSettingsTest, HasItsTextsRangeAndDefaults) {
  start();
  auto& d = load<frm_betűnézegető_beáll>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Betűnézegető beállítások");
  EXPECT_EQ(utf8(d.labszópárok.Caption), "Szó betűinek maximális száma:");
  EXPECT_EQ(utf8(d.chk_betűk_szétválasztása.Caption), "Betűk szétválasztása");
  EXPECT_EQ(utf8(d.chk_képválasztás.Caption), "Olvasás ellenőrzése képválasztással");
  EXPECT_EQ(utf8(d.Frame1.Caption), "Betűhelyzet");
  EXPECT_EQ(utf8(d.opt_betűhelyzet[0].Caption), "A szó első betűje");
  EXPECT_EQ(utf8(d.opt_betűhelyzet[1].Caption), "Bárhol a szóban");
  EXPECT_EQ(utf8(d.Chk_szótagolva.Caption), "Szavak megjelenítése szótagolva");
  EXPECT_EQ(utf8(d.frame_nyelv.Caption), "Nyelv");
  EXPECT_EQ(utf8(d.opt_nyelv[0].Caption), "Magyar");
  EXPECT_EQ(utf8(d.opt_nyelv[1].Caption), "Angol");
  EXPECT_EQ(utf8(d.cmd_ok.Caption), "Ok");
  EXPECT_EQ(utf8(d.cmd_mégsem.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "Súgó   (F1)");
  EXPECT_EQ(d.udbetszám.Min, 3);
  EXPECT_EQ(d.udbetszám.Max, 13);
  EXPECT_EQ(d.udbetszám.Increment, 1);
  EXPECT_EQ(d.udbetszám.value(), 12);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "12");
  EXPECT_EQ(d.chk_betűk_szétválasztása.value(), 0);
  EXPECT_EQ(d.chk_képválasztás.value(), 0);
  EXPECT_FALSE(d.opt_betűhelyzet[0].value());
  EXPECT_TRUE(d.opt_betűhelyzet[1].value());
  EXPECT_EQ(d.Chk_szótagolva.value(), 1);
  EXPECT_TRUE(d.Chk_szótagolva.Enabled);
  EXPECT_TRUE(d.opt_nyelv[0].value());
  EXPECT_FALSE(d.opt_nyelv[1].value());
}

TEST_F(LetterViewerSettingsTest, ThirteenLettersAreNoLimit) {
  start();
  auto& d = load<frm_betűnézegető_beáll>();
  d.udbetszám.set_value(13);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "korlátlan");
  EXPECT_EQ(d.longest(), 100);
  d.udbetszám.set_value(3);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "3");
  EXPECT_EQ(d.longest(), 3);
}

TEST_F(LetterViewerSettingsTest, SyllablesCanOnlyBeChosenInHungarian) {
  start();
  auto& d = open<frm_betűnézegető_beáll>();
  hand::click(d.opt_nyelv[1]);
  EXPECT_FALSE(d.Chk_szótagolva.Enabled);
  hand::click(d.opt_nyelv[0]);
  EXPECT_TRUE(d.Chk_szótagolva.Enabled);
  end_session();
  put_choices({.english = true});
  start();
  EXPECT_FALSE(load<frm_betűnézegető_beáll>().Chk_szótagolva.Enabled);
}

TEST_F(LetterViewerSettingsTest, OkWritesEightLinesAndShowsARandomLetter) {
  auto& w = look();
  in_dialog(w, [this](frm_betűnézegető_beáll& d) {
    hand::step(d.udbetszám, -1);
    hand::click(d.chk_betűk_szétválasztása);
    hand::click(d.opt_betűhelyzet[0]);
    hand::click(d.Chk_szótagolva);
    machine.script_random({drawing(17, letters)});
    hand::click(d.cmd_ok);
  });
  EXPECT_EQ(settings(u"betűnézegető.ini"), " 11 \r\n 1 \r\n 0 \r\nTrue\r\nFalse\r\n 1 \r\nTrue\r\nFalse\r\n");
  EXPECT_EQ(large(w), "k K");
}

TEST_F(LetterViewerSettingsTest, TheEightLinesAreRead) {
  put_settings(u"betűnézegető.ini", {u" 13 ", u" 1 ", u" 1 ", u"True", u"False", u" 0 ", u"False", u"True"});
  start();
  auto& d = load<frm_betűnézegető_beáll>();
  EXPECT_EQ(d.udbetszám.value(), 13);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "korlátlan");
  EXPECT_EQ(d.chk_betűk_szétválasztása.value(), 1);
  EXPECT_EQ(d.chk_képválasztás.value(), 1);
  EXPECT_TRUE(d.opt_betűhelyzet[0].value());
  EXPECT_FALSE(d.opt_betűhelyzet[1].value());
  EXPECT_EQ(d.Chk_szótagolva.value(), 0);
  EXPECT_FALSE(d.opt_nyelv[0].value());
  EXPECT_TRUE(d.opt_nyelv[1].value());
}

TEST_F(LetterViewerSettingsTest, TheFactoryFileIsReadWhereTheUserHasNone) {
  put_app_file(u"\\cserko\\betűnézegető.ini", u" 5 \r\n");
  start();
  EXPECT_EQ(load<frm_betűnézegető_beáll>().udbetszám.value(), 5);
  end_session();
  put_settings(u"betűnézegető.ini", {u" 7 "});
  start();
  EXPECT_EQ(load<frm_betűnézegető_beáll>().udbetszám.value(), 7);
}

TEST_F(LetterViewerSettingsTest, CancelReadsTheFileAgainAndKeepsTheWord) {
  auto& w = look();
  in_dialog(w, [](frm_betűnézegető_beáll& d) {
    d.udbetszám.set_value(4);
    hand::click(d.opt_nyelv[1]);
    hand::click(d.cmd_mégsem);
  });
  EXPECT_EQ(load<frm_betűnézegető_beáll>().udbetszám.value(), 12);
  EXPECT_FALSE(load<frm_betűnézegető_beáll>().english());
  EXPECT_EQ(word(w), "a|l|m|a");
}

TEST_F(LetterViewerSettingsTest, HelpAndF1OpenThePageOfTheExercise) {
  auto& w = look();
  in_dialog(w, [](frm_betűnézegető_beáll& d) {
    hand::key(d, key::f1);
    hand::click(d.cmd_mégsem);
  });
  EXPECT_EQ(help_page(), help_command("Betűnézegető - a feladat.mht"));
}

// The letter tiles.

class LetterTilesTest : public LetterViewerFixture {
 protected:
  static std::string tiles(const frm_betűnézegető& window) {
    std::string all;
    window.letter_tile.each([&](const Label& tile) { all += utf8(tile.Caption) + " "; });
    return all;
  }
  static std::vector<Rect> places(const frm_betűnézegető& window) {
    std::vector<Rect> all;
    for (const Element* element : window.elements()) {
      if (element->Name != u"letter_tile") all.push_back(place_of(*element));
    }
    return all;
  }
};

TEST_F(LetterTilesTest, AreHiddenUntilTheMenuOpensThem) {
  auto& w = look();
  EXPECT_EQ(utf8(w.mnu_letter_tiles.Caption), "Betű&táblácskák");
  EXPECT_FALSE(w.letter_tile[0].Visible);
  EXPECT_FALSE(w.mnu_letter_tiles.Checked);
  hand::click(w.mnu_letter_tiles);
  EXPECT_TRUE(w.mnu_letter_tiles.Checked);
  EXPECT_EQ(tiles(w),
            "a á b c cs d dz dzs e é f g gy h i í j k l ly m n ny o ó ö ő p q r s sz t ty u ú ü ű v w x y z zs ");
}

TEST_F(LetterTilesTest, EachShowsItsLetter) {
  auto& w = look();
  hand::click(w.mnu_letter_tiles);
  for (int i = 0; i < w.letter_tile.count(); ++i) {
    hand::click(w.letter_tile[i]);
    EXPECT_EQ(w.Label_kisbetű.Caption, w.letter_tile[i].Caption);
  }
}

TEST_F(LetterTilesTest, AreLargeEnoughForAFingerAndLieSideBySideUnderTheLargeLetters) {
  for (const auto& [width, height] : {std::pair{1024, 600}, {1280, 1024}, {3840, 2160}}) {
    machine.set_screen(width, height);
    for (const bool english : {false, true}) {
      auto& w = look({.english = english});
      hand::click(w.mnu_letter_tiles);
      const double scale = w.kép.Width / 3615;
      w.letter_tile.each([&](const Label& tile) {
        EXPECT_GE(tile.Width, 660 * scale - 0.01);
        EXPECT_GE(tile.Height, 660 * scale - 0.01);
        EXPECT_GE(tile.Top, w.Label_kisbetű.Top + w.Label_kisbetű.Height);
        EXPECT_GE(tile.Left, 0);
        EXPECT_LE(tile.Left + tile.Width, w.inner_width());
        EXPECT_LE(tile.Top + tile.Height, w.inner_height());
        const Size text = machine.measure(tile.Font, tile.Caption);
        EXPECT_LE(text.width, tile.Width);
        EXPECT_LE(text.height, tile.Height);
        w.letter_tile.each([&](const Label& other) {
          const bool apart = &other == &tile || other.Left >= tile.Left + tile.Width - 0.01 ||
                             tile.Left >= other.Left + other.Width - 0.01 ||
                             other.Top >= tile.Top + tile.Height - 0.01 || tile.Top >= other.Top + other.Height - 0.01;
          EXPECT_TRUE(apart) << utf8(tile.Caption) << " and " << utf8(other.Caption);
        });
      });
      EXPECT_GE(w.Top, 0);
      EXPECT_LE(w.Height, machine.screen_size().height);
      end_session();
    }
  }
}

TEST_F(LetterTilesTest, ClosingThemBringsEverythingBackToItsPlace) {
  auto& w = look();
  const std::vector<Rect> before = places(w);
  const double height = w.Height;
  for (int i = 0; i < 5; ++i) {
    hand::click(w.mnu_letter_tiles);
    EXPECT_LT(w.kép.Width, before[1].width);
    EXPECT_EQ(word(w), "a|l|m|a");
    EXPECT_EQ(colors(w), "..R.");
    hand::click(w.mnu_letter_tiles);
  }
  const std::vector<Rect> after = places(w);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_NEAR(after[i].left, before[i].left, 0.01) << i;
    EXPECT_NEAR(after[i].top, before[i].top, 0.01) << i;
    EXPECT_NEAR(after[i].width, before[i].width, 0.01) << i;
    EXPECT_NEAR(after[i].height, before[i].height, 0.01) << i;
  }
  EXPECT_NEAR(w.Height, height, 0.01);
}

TEST_F(LetterTilesTest, FollowTheLanguageOfTheSettings) {
  auto& w = look();
  hand::click(w.mnu_letter_tiles);
  then_in<frm_betűnézegető_beáll>([](frm_betűnézegető_beáll& d) {
    hand::click(d.opt_nyelv[1]);
    hand::click(d.cmd_ok);
  });
  hand::click(w.mneu_fájl_beállítások);
  EXPECT_EQ(tiles(w), "a b c d e f g h i j k l m n o p q r s t u v w x y z ");
  hand::click(w.letter_tile[3]);
  EXPECT_EQ(word(w), "d|o|g");
}

TEST_F(LetterTilesTest, AChoiceStaysOpenWhenTheyComeAndATileEndsItLikeAKey) {
  auto& w = look({.check = true});
  hand::click(w.mnu_letter_tiles);
  EXPECT_FALSE(w.kép.Visible);
  expect_one_of_both(w);
  const auto begin = machine.now();
  hand::click(w.letter_tile[13]);
  EXPECT_EQ(machine.now() - begin, 1000);
  EXPECT_EQ(large(w), "h H");
}

TEST_F(LetterTilesTest, AreNotStored) {
  auto& w = look();
  const std::string before = settings(u"betűnézegető.ini");
  hand::click(w.mnu_letter_tiles);
  EXPECT_EQ(settings(u"betűnézegető.ini"), before);
  hand::click(w.mnu_fájl_kilép);
  auto& again = open<frm_betűnézegető>();
  EXPECT_FALSE(again.letter_tile[0].Visible);
}

TEST_F(LetterTilesTest, CanBeReachedByTheKeysToo) {
  auto& w = look();
  hand::click(w.mnu_letter_tiles);
  w.set_focus(&w.letter_tile[0]);
  hand::key(w, key::right);
  EXPECT_EQ(w.focus(), &w.letter_tile[1]);
  hand::key(w, key::space);
  EXPECT_EQ(large(w), "á Á");
}

} // namespace
} // namespace cserko
