// The settings of Word flash: the design of the dialog, its ranges, the time that it shows, its file of seven lines,
// OK, Cancel and Help.
#include "tests/exercises/word_flash_fixture.h"

namespace cserko {
namespace {

class WordFlashSettingsTest : public WordFlashFixture {
 protected:
  void in_dialog(frm_szóvillám& window, const std::function<void(frm_szóvillám_beáll&)>& deed) {
    then_in<frm_szóvillám_beáll>(deed);
    hand::click(window.mnu_fájl_beáll);
  }
  static void set_time(frm_szóvillám_beáll& dialog, int seconds, int tenths, int hundredths) {
    dialog.ud_mp.set_value(seconds);
    dialog.ud_tizedmp.set_value(tenths);
    dialog.ud_századmp.set_value(hundredths);
  }
  static void expect_range(const UpDown& updown, int least, int most, int value) {
    EXPECT_EQ(updown.Min, least) << utf8(updown.Name);
    EXPECT_EQ(updown.Max, most) << utf8(updown.Name);
    EXPECT_EQ(updown.Increment, 1) << utf8(updown.Name);
    EXPECT_EQ(updown.value(), value) << utf8(updown.Name);
    EXPECT_EQ(updown.Buddy->text(), to_text(value)) << utf8(updown.Name);
  }
};

TEST_F(WordFlashSettingsTest, HasItsTexts) {
  start();
  const auto d = designed<frm_szóvillám_beáll>();
  EXPECT_EQ(utf8(d->Caption), "Cserkó - Szóvillám Beállítások");
  EXPECT_EQ(utf8(d->frame_nyelv.Caption), "Nyelv");
  EXPECT_EQ(captions(d->opt_nyelv), (std::vector<std::string>{"Magyar", "Angol"}));
  EXPECT_EQ(utf8(d->Frame1.Caption), "A szavak hossza");
  EXPECT_EQ(utf8(d->lbl_betszámmin.Caption), "A szó betűinek száma legalább:");
  EXPECT_EQ(utf8(d->lbl_betszámmax.Caption), "A szó betűinek száma legfeljebb:");
  EXPECT_EQ(utf8(d->Frame2.Caption), "A szó felvillanásának ideje");
  EXPECT_EQ(utf8(d->lbl_mp.Caption), "Másodperc:");
  EXPECT_EQ(utf8(d->lbl_tizedmp.Caption), "Tizedmásodperc:");
  EXPECT_EQ(utf8(d->lbl_századmp.Caption), "Századmásodperc:");
  EXPECT_EQ(utf8(d->lbl_time.Caption), "A szó felvillanásának ideje másodpercben:");
  EXPECT_EQ(utf8(d->lbl_idő.Caption), "00.00");
  EXPECT_EQ(utf8(d->lbl_note.Caption),
            "A számítógép teljesítményétől függően előfordulhat, hogy a különösen rövid idejű felvillanások nem "
            "láthatóak. Ebben az esetben, kérem, növelje a villanás időtartamát!");
  EXPECT_EQ(utf8(d->OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d->CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d->cmd_súgó.Caption), "&Súgó");
}

TEST_F(WordFlashSettingsTest, HasItsRangesAndDefaults) {
  start();
  auto& d = load<frm_szóvillám_beáll>();
  EXPECT_EQ(d.opt_nyelv.chosen(), 0);
  expect_range(d.ud_betszámmin, 3, 10, 3);
  expect_range(d.ud_betszámmax, 3, 17, 10);
  expect_range(d.ud_mp, 0, 30, 1);
  expect_range(d.ud_tizedmp, 0, 9, 0);
  expect_range(d.ud_századmp, 0, 9, 0);
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "1.00");
  EXPECT_TRUE(d.OKButton.Enabled);
}

TEST_F(WordFlashSettingsTest, ItsTextsFitTheirPlaces) {
  start();
  auto& d = load<frm_szóvillám_beáll>();
  for (const Element* element : d.elements()) {
    if (element->kind() != ElementKind::Label) continue;
    const Size extent = machine.measure_wrapped(element->Font, element->Caption, element->Width);
    EXPECT_LE(extent.height, element->Height) << utf8(element->Name);
    EXPECT_LE(extent.width, element->Width) << utf8(element->Name);
  }
  EXPECT_LE(d.inner_height(), 560 * twips_per_pixel);
}

TEST_F(WordFlashSettingsTest, TheLengthsLimitEachOther) {
  start();
  auto& d = load<frm_szóvillám_beáll>();
  d.ud_betszámmax.set_value(7);
  EXPECT_EQ(d.ud_betszámmin.Max, 7);
  d.ud_betszámmax.set_value(17);
  EXPECT_EQ(d.ud_betszámmin.Max, 10);
  d.ud_betszámmin.set_value(9);
  EXPECT_EQ(d.ud_betszámmax.Min, 9);
}

TEST_F(WordFlashSettingsTest, EveryPartOfTheTimeIsShown) {
  start();
  auto& d = load<frm_szóvillám_beáll>();
  set_time(d, 30, 9, 9);
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "30.99");
  EXPECT_EQ(d.flash_time(), 30990);
  set_time(d, 0, 0, 1);
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "0.01");
  EXPECT_EQ(d.flash_time(), 10);
  d.ud_tizedmp.set_value(4);
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "0.41");
}

TEST_F(WordFlashSettingsTest, AFlashOfNoLengthCannotBeConfirmed) {
  auto& window = deal();
  in_dialog(window, [](frm_szóvillám_beáll& d) {
    d.ud_mp.set_value(0);
    EXPECT_EQ(utf8(d.lbl_idő.Caption), "0.00");
    EXPECT_FALSE(d.OKButton.Enabled);
    hand::click(d.OKButton);
    hand::key(d, key::enter);
    EXPECT_TRUE(d.visible());
    d.ud_századmp.set_value(1);
    EXPECT_TRUE(d.OKButton.Enabled);
    d.ud_századmp.set_value(0);
    EXPECT_FALSE(d.OKButton.Enabled);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(settings(u"szóvillám.ini"), "(none)");
}

TEST_F(WordFlashSettingsTest, OkWritesSevenLinesEmptiesTheStripAndDealsAnew) {
  auto& window = deal();
  hand::click(window.pic_feladványkép[0]);
  in_dialog(window, [this](frm_szóvillám_beáll& d) {
    d.ud_betszámmax.set_value(12);
    d.ud_betszámmin.set_value(4);
    set_time(d, 2, 3, 4);
    hand::click(d.opt_nyelv[1]);
    script_ring({2, 8, 6, 1, 0, 3}, 4);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"szóvillám.ini"), " 4 \r\n 12 \r\n 2 \r\n 3 \r\n 4 \r\nFalse\r\nTrue\r\n");
  EXPECT_FALSE(settings_dialog().visible());
  EXPECT_EQ(strip(window), std::vector<std::string>(6, "-1"));
  EXPECT_EQ(ring(window), (std::vector<int>{2, 8, 6, 1, 0, 3}));
  machine.advance(2500);
  EXPECT_EQ(shown(window), "word 0");
  EXPECT_EQ(window.Timer_villám.Interval, 2340);
}

TEST_F(WordFlashSettingsTest, EveryLineOfTheFileIsRead) {
  put_settings(u"szóvillám.ini", {u" 6 ", u" 14 ", u" 3 ", u" 4 ", u" 5 ", u"False", u"True"});
  start();
  auto& d = load<frm_szóvillám_beáll>();
  expect_range(d.ud_betszámmin, 3, 10, 6);
  expect_range(d.ud_betszámmax, 6, 17, 14);
  EXPECT_EQ(d.ud_mp.value(), 3);
  EXPECT_EQ(d.ud_tizedmp.value(), 4);
  EXPECT_EQ(d.ud_századmp.value(), 5);
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "3.45");
  EXPECT_EQ(utf8(d.txt_mp.text()), "3");
  EXPECT_EQ(d.opt_nyelv.chosen(), 1);
}

TEST_F(WordFlashSettingsTest, AFileThatEndsEarlyLeavesTheRest) {
  put_settings(u"szóvillám.ini", {u" 4 ", u" 9 ", u" 0 "});
  start();
  auto& d = load<frm_szóvillám_beáll>();
  EXPECT_EQ(d.ud_betszámmin.value(), 4);
  EXPECT_EQ(d.ud_betszámmax.value(), 9);
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "0.00");
  EXPECT_FALSE(d.OKButton.Enabled);
  EXPECT_EQ(d.opt_nyelv.chosen(), 0);
}

TEST_F(WordFlashSettingsTest, WithoutALanguageInTheFileTheWordsAreHungarian) {
  put_settings(u"szóvillám.ini", {u" 4 ", u" 9 ", u" 1 ", u" 0 ", u" 0 ", u"False", u"False"});
  start();
  EXPECT_EQ(load<frm_szóvillám_beáll>().opt_nyelv.chosen(), 0);
}

TEST_F(WordFlashSettingsTest, CancelPutsTheFileBackAndLeavesThePuzzle) {
  put_settings(u"szóvillám.ini", {u" 4 ", u" 9 ", u" 1 ", u" 5 ", u" 0 ", u"True", u"False"});
  auto& window = deal();
  const auto before = ring(window);
  in_dialog(window, [](frm_szóvillám_beáll& d) {
    set_time(d, 9, 9, 9);
    d.ud_betszámmin.set_value(7);
    hand::click(d.opt_nyelv[1]);
    hand::click(d.CancelButton);
  });
  auto& d = settings_dialog();
  EXPECT_EQ(utf8(d.lbl_idő.Caption), "1.50");
  EXPECT_EQ(d.ud_betszámmin.value(), 4);
  EXPECT_EQ(d.opt_nyelv.chosen(), 0);
  EXPECT_EQ(ring(window), before);
}

TEST_F(WordFlashSettingsTest, TheHelpOpensItsPage) {
  auto& window = deal();
  in_dialog(window, [](frm_szóvillám_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(help_page(), help_command("Szóvillám - beállítások.mht"));
}

} // namespace
} // namespace cserko
