// The settings of Picture memory: the design of the dialog, its file of fourteen lines, which file is read, and the
// guard over the number of words.
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/picture_memory_fixture.h"

namespace cserko {
namespace {

class MemorySettingsTest : public ExerciseTest {
 protected:
  static constexpr TextView file_name = u"képmem.ini";
  static constexpr TextView factory = u"cserko\\képmem.ini";

  void put_words(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) put({.név = Text(memory_words.at(i)), .angol = Text(memory_words.at(i))});
  }
  frm_képmem_beáll& dialog() { return load<frm_képmem_beáll>(); }
  /// The game as it is started from the main window, so that the dialog has something to speak to.
  frm_képmemória& game(std::size_t words = 20) {
    put_words(words);
    start();
    return open<frm_képmemória>();
  }
  void in_dialog(frm_képmemória& window, const std::function<void(frm_képmem_beáll&)>& deed) {
    then_in<frm_képmem_beáll>(deed);
    hand::click(window.mnu_fájl_beáll);
  }
  static const inline std::string too_few = "Sajnos nincs elegendő megfelelő szó!";
  static const inline std::string defaults = " 17 \r\n 12 \r\n 2 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n"
                                             " 0 \r\n 1 \r\n 10 \r\n 0 \r\n 0 \r\n";
};

TEST_F(MemorySettingsTest, HasItsTexts) {
  game();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Caption), "Cserkó Képmemória - Beállítások");
  EXPECT_EQ(utf8(d.lbl_szópárszám.Caption), "Szópárok száma:");
  EXPECT_EQ(utf8(d.lbl_betűméret.Caption), "Betűméret:");
  EXPECT_EQ(utf8(d.lbl_várid.Caption), "Képek felfedési ideje (mp):");
  EXPECT_EQ(utf8(d.lbl_betszám.Caption), "Szó betűinek maximális száma:");
  EXPECT_EQ(utf8(d.Label_animfinomság.Caption), "Az animáció finomsága");
  EXPECT_EQ(utf8(d.chk_anim_enged.Caption), "Animáció engedélyezése");
  EXPECT_EQ(utf8(d.segítség_engedélyezése.Caption), "Segítség engedélyezése");
  EXPECT_EQ(utf8(d.segít.Caption), "Segítség csak megjelenített képeknél");
  EXPECT_EQ(utf8(d.chk_képek_bemutatása.Caption), "Képek bemutatása játék előtt");
  EXPECT_EQ(utf8(d.Chk_szótagolva.Caption), "Szótagolva");
  EXPECT_EQ(utf8(d.párbeállítás[0].Caption), "Kép - Kép");
  EXPECT_EQ(utf8(d.párbeállítás[1].Caption), "Kép - Szó");
  EXPECT_EQ(utf8(d.optnyelv[2].Caption), "Magyar");
  EXPECT_EQ(utf8(d.optnyelv[4].Caption), "Angol");
  EXPECT_EQ(d.optnyelv.count(), 2);
}

TEST_F(MemorySettingsTest, HasItsRangesAndDefaults) {
  game();
  auto& d = dialog();
  const auto expect_range = [](const UpDown& updown, int minimum, int maximum, int value) {
    EXPECT_EQ(updown.Min, minimum) << utf8(updown.Name);
    EXPECT_EQ(updown.Max, maximum) << utf8(updown.Name);
    EXPECT_EQ(updown.value(), value) << utf8(updown.Name);
    EXPECT_EQ(updown.Increment, 1) << utf8(updown.Name);
    EXPECT_TRUE(updown.Buddy->Locked) << utf8(updown.Name);
  };
  expect_range(d.szópárszám, 5, 18, 17);
  expect_range(d.udbetűméret, 4, 17, 12);
  expect_range(d.udvárid, 1, 10, 2);
  expect_range(d.udbetszám, 2, 13, 12);
  EXPECT_EQ(d.HScroll_anim_finomság.Max, 100);
  EXPECT_GE(d.HScroll_anim_finomság.Min, 1) << "0 frames cannot be divided by";
  EXPECT_EQ(d.HScroll_anim_finomság.SmallChange, 5);
  EXPECT_EQ(d.HScroll_anim_finomság.LargeChange, 10);
  EXPECT_EQ(d.HScroll_anim_finomság.value(), 10);
  EXPECT_EQ(d.chk_anim_enged.value(), 1);
  EXPECT_EQ(d.segítség_engedélyezése.value(), 1);
  EXPECT_EQ(d.segít.value(), 0);
  EXPECT_EQ(d.chk_képek_bemutatása.value(), 0);
  EXPECT_EQ(d.Chk_szótagolva.value(), 0);
  EXPECT_TRUE(d.párbeállítás[1].value());
  EXPECT_TRUE(d.optnyelv[2].value());
}

TEST_F(MemorySettingsTest, TheWaitIsShownAsATimeText) {
  game();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.txtvárid.text()), "00:00:02");
  d.udvárid.set_value(9);
  EXPECT_EQ(utf8(d.txtvárid.text()), "00:00:09");
  d.udvárid.set_value(10);
  EXPECT_EQ(utf8(d.txtvárid.text()), "00:00:10");
}

TEST_F(MemorySettingsTest, TheTopOfTheLettersReadsNoLimit) {
  game();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.txtbetszám.text()), "12");
  d.udbetszám.set_value(13);
  EXPECT_EQ(utf8(d.txtbetszám.text()), "korlátlan");
}

TEST_F(MemorySettingsTest, TheFinenessIsShownAsANumber) {
  game();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Label_animfinomság_kijelző.Caption), "10");
  d.HScroll_anim_finomság.set_value(45);
  EXPECT_EQ(utf8(d.Label_animfinomság_kijelző.Caption), "45");
}

TEST_F(MemorySettingsTest, WithoutAnimationItsFinenessRests) {
  in_dialog(game(), [](frm_képmem_beáll& d) {
    EXPECT_TRUE(d.HScroll_anim_finomság.Enabled);
    hand::click(d.chk_anim_enged);
    EXPECT_FALSE(d.HScroll_anim_finomság.Enabled);
    EXPECT_FALSE(d.Label_animfinomság.Enabled);
    hand::click(d.chk_anim_enged);
    EXPECT_TRUE(d.HScroll_anim_finomság.Enabled);
    EXPECT_TRUE(d.Label_animfinomság.Enabled);
    hand::click(d.cmd_mégsem);
  });
}

TEST_F(MemorySettingsTest, HelpAllowedShowsTheLineInTheGame) {
  auto& window = game();
  EXPECT_TRUE(window.labszópárok[0].Visible);
  in_dialog(window, [&](frm_képmem_beáll& d) {
    hand::click(d.segítség_engedélyezése);
    EXPECT_FALSE(window.labszópárok[0].Visible);
    EXPECT_FALSE(d.segít.Enabled);
    hand::click(d.segítség_engedélyezése);
    EXPECT_TRUE(window.labszópárok[0].Visible);
    EXPECT_TRUE(d.segít.Enabled);
    hand::click(d.cmd_mégsem);
  });
}

TEST_F(MemorySettingsTest, OnlyHungarianHasSyllables) {
  in_dialog(game(), [](frm_képmem_beáll& d) {
    hand::click(d.optnyelv[4]);
    EXPECT_FALSE(d.Chk_szótagolva.Enabled);
    hand::click(d.optnyelv[2]);
    EXPECT_TRUE(d.Chk_szótagolva.Enabled);
    hand::click(d.cmd_mégsem);
  });
}

TEST_F(MemorySettingsTest, TheBoxesTakeNoTypingAndStepByArrows) {
  in_dialog(game(), [](frm_képmem_beáll& d) {
    hand::write(d.szópárszámkijelző, u"7");
    EXPECT_EQ(d.szópárszám.value(), 17);
    hand::key(d, key::up);
    EXPECT_EQ(d.szópárszám.value(), 18);
    hand::key(d, key::down);
    hand::key(d, key::down);
    EXPECT_EQ(d.szópárszám.value(), 16);
    EXPECT_EQ(utf8(d.szópárszámkijelző.text()), "16");
    hand::click(d.cmd_mégsem);
  });
}

// The file.

TEST_F(MemorySettingsTest, OkWritesFourteenLinesInTheirOrder) {
  auto& window = game();
  in_dialog(window, [](frm_képmem_beáll& d) { hand::click(d.cmd_ok); });
  EXPECT_EQ(settings(file_name), defaults);
  in_dialog(window, [](frm_képmem_beáll& d) {
    d.szópárszám.set_value(9);
    d.udbetűméret.set_value(8);
    d.udvárid.set_value(3);
    d.udbetszám.set_value(11);
    hand::click(d.optnyelv[4]);
    hand::click(d.párbeállítás[0]);
    hand::click(d.segítség_engedélyezése);
    d.segít.set_value(1);
    hand::click(d.chk_anim_enged);
    d.HScroll_anim_finomság.set_value(25);
    d.chk_képek_bemutatása.set_value(0);
    d.Chk_szótagolva.set_value(1);
    hand::click(d.cmd_ok);
  });
  EXPECT_EQ(settings(file_name), " 9 \r\n 8 \r\n 3 \r\n 11 \r\nFalse\r\nTrue\r\nTrue\r\nFalse\r\n 0 \r\n 1 \r\n 0 \r\n"
                                 " 25 \r\n 0 \r\n 1 \r\n");
}

TEST_F(MemorySettingsTest, ThePicturesBeforeTheGameHaveTheThirteenthLine) {
  auto& window = game();
  in_dialog(window, [this](frm_képmem_beáll& d) {
    d.szópárszám.set_value(5);
    hand::click(d.chk_képek_bemutatása);
    for (int i = 0; i < 5; ++i) then_in<üzenet>([](üzenet& panel) { hand::click(panel.Command1); });
    hand::click(d.cmd_ok);
  });
  EXPECT_TRUE(settings(file_name).ends_with(" 10 \r\n 1 \r\n 0 \r\n")) << settings(file_name);
}

TEST_F(MemorySettingsTest, EachLineIsReadIntoItsOwnControl) {
  put_app_file(factory, u" 9 \r\n 8 \r\n 3 \r\n 11 \r\nFalse\r\nTrue\r\nTrue\r\nFalse\r\n 0 \r\n 1 \r\n 0 \r\n"
                        u" 25 \r\n 0 \r\n 1 \r\n");
  game();
  auto& d = dialog();
  EXPECT_EQ(d.szópárszám.value(), 9);
  EXPECT_EQ(d.udbetűméret.value(), 8);
  EXPECT_EQ(d.udvárid.value(), 3);
  EXPECT_EQ(utf8(d.txtvárid.text()), "00:00:03");
  EXPECT_EQ(d.udbetszám.value(), 11);
  EXPECT_FALSE(d.optnyelv[2].value());
  EXPECT_TRUE(d.optnyelv[4].value());
  EXPECT_FALSE(d.Chk_szótagolva.Enabled);
  EXPECT_TRUE(d.párbeállítás[0].value());
  EXPECT_FALSE(d.párbeállítás[1].value());
  EXPECT_EQ(d.segítség_engedélyezése.value(), 0);
  EXPECT_FALSE(load<frm_képmemória>().labszópárok[0].Visible);
  EXPECT_EQ(d.segít.value(), 1);
  EXPECT_EQ(d.chk_anim_enged.value(), 0);
  EXPECT_FALSE(d.HScroll_anim_finomság.Enabled);
  EXPECT_EQ(d.HScroll_anim_finomság.value(), 25);
  EXPECT_EQ(d.chk_képek_bemutatása.value(), 0);
  EXPECT_EQ(d.Chk_szótagolva.value(), 1);
}

TEST_F(MemorySettingsTest, TheThirteenthLineShowsThePictures) {
  put_words(20);
  put_app_file(factory, u" 9 \r\n 8 \r\n 3 \r\n 11 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n 1 \r\n"
                        u" 25 \r\n 1 \r\n 0 \r\n");
  start();
  EXPECT_EQ(dialog().chk_képek_bemutatása.value(), 1);
}

TEST_F(MemorySettingsTest, AFactoryFileIsReadEvenIfTheUserHasOneOfHisOwn) {
  put_settings(file_name, {u" 6 ", u" 5 "});
  put_app_file(factory, u" 9 \r\n 8 \r\n");
  game();
  EXPECT_EQ(dialog().szópárszám.value(), 9);
  EXPECT_EQ(dialog().udbetűméret.value(), 8);
}

TEST_F(MemorySettingsTest, AFileOfTheUserAloneIsNotRead) {
  put_settings(file_name, {u" 6 ", u" 5 "});
  game();
  EXPECT_EQ(dialog().szópárszám.value(), 17);
  EXPECT_EQ(dialog().udbetűméret.value(), 12);
}

TEST_F(MemorySettingsTest, AFactoryFileAloneIsRead) {
  put_app_file(factory, u" 9 \r\n 8 \r\n");
  game();
  EXPECT_EQ(dialog().szópárszám.value(), 9);
}

TEST_F(MemorySettingsTest, OkLeavesTheFactoryFileAsItWasAndALaterStartReadsThatOne) {
  put_app_file(factory, u" 9 \r\n 8 \r\n");
  auto& window = game();
  in_dialog(window, [](frm_képmem_beáll& d) {
    d.szópárszám.set_value(12);
    hand::click(d.cmd_ok);
  });
  EXPECT_TRUE(settings(file_name).starts_with(" 12 \r\n 8 \r\n"));
  EXPECT_EQ(file(Text(app) + Text(factory)), " 9 \r\n 8 \r\n");
  hand::close(window);
  open<frm_képmemória>();
  EXPECT_EQ(dialog().szópárszám.value(), 9);
}

TEST_F(MemorySettingsTest, CancelReadsTheFactoryFileAgain) {
  put_app_file(factory, u" 9 \r\n 8 \r\n");
  auto& window = game();
  const Text tag = window.kép[0].Tag;
  in_dialog(window, [](frm_képmem_beáll& d) {
    d.szópárszám.set_value(12);
    hand::key(d, key::escape);
  });
  EXPECT_FALSE(dialog().visible());
  EXPECT_EQ(dialog().szópárszám.value(), 9);
  EXPECT_EQ(window.kép[0].Tag, tag) << "the board stays";
}

TEST_F(MemorySettingsTest, CancelBringsBackMorePairsThanTheChangedLetterLimitAllows) {
  put_app_file(factory, u" 18 \r\n 8 \r\n 3 \r\n 13 \r\n");
  auto& window = game();
  ASSERT_EQ(dialog().szópárszám.value(), 18);
  in_dialog(window, [](frm_képmem_beáll& d) {
    while (d.szópárszám.Max == 18) hand::step(d.udbetszám, -1);
    EXPECT_LT(d.szópárszám.value(), 18);
    hand::click(d.cmd_mégsem);
  });
  EXPECT_EQ(dialog().udbetszám.value(), 13);
  EXPECT_EQ(dialog().szópárszám.value(), 18);
  EXPECT_EQ(dialog().szópárszám.Max, 18);
}

TEST_F(MemorySettingsTest, WithoutAFactoryFileCancelledChangesStay) {
  put_settings(file_name, {u" 6 "});
  auto& window = game();
  in_dialog(window, [](frm_képmem_beáll& d) {
    d.szópárszám.set_value(12);
    hand::click(d.cmd_mégsem);
  });
  EXPECT_EQ(dialog().szópárszám.value(), 12);
}

TEST_F(MemorySettingsTest, OkDealsANewBoardFromTheSettings) {
  auto& window = game();
  in_dialog(window, [](frm_képmem_beáll& d) {
    d.szópárszám.set_value(6);
    hand::click(d.cmd_ok);
  });
  int cards = 0;
  window.kép.each([&](const PictureBox& card) { cards += card.Visible ? 1 : 0; });
  EXPECT_EQ(cards, 12);
}

TEST_F(MemorySettingsTest, HelpOpensItsPage) {
  in_dialog(game(), [](frm_képmem_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.cmd_mégsem);
  });
  EXPECT_EQ(help_page(), help_command("Képmemória - Beállítások.mht"));
}

TEST_F(MemorySettingsTest, AFileWithNoOptionOnLeavesTheDefaultsOn) {
  put_app_file(factory, u" 9 \r\n 12 \r\n 2 \r\n 12 \r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\n");
  game();
  EXPECT_EQ(dialog().szópárszám.value(), 9);
  EXPECT_EQ(dialog().optnyelv.chosen(), 2);
  EXPECT_EQ(dialog().párbeállítás.chosen(), 1);
}

// The guard.

TEST_F(MemorySettingsTest, LoweringTheLettersLowersTheTopOfThePairs) {
  // Eleven words have at most 4 letters, "kutya" and "könyv" among them: "ty" and "ny" are one letter.
  in_dialog(game(), [](frm_képmem_beáll& d) {
    d.udbetszám.set_value(4);
    EXPECT_EQ(d.szópárszám.Max, 11);
    EXPECT_EQ(d.szópárszám.value(), 11);
    EXPECT_EQ(utf8(d.szópárszámkijelző.text()), "11");
    d.udbetszám.set_value(12);
    EXPECT_EQ(d.szópárszám.Max, 18);
    EXPECT_EQ(d.szópárszám.value(), 11);
    hand::click(d.cmd_mégsem);
  });
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(MemorySettingsTest, WithTooFewWordsItSaysSoAndTheLettersSpringBack) {
  // Words of at most 3 letters: ló, hal, szék ("sz" is one letter).
  in_dialog(game(), [this](frm_képmem_beáll& d) {
    d.udbetszám.set_value(4);
    hand::step(d.udbetszám, -1);
    EXPECT_EQ(d.udbetszám.value(), 4);
    EXPECT_EQ(utf8(d.txtbetszám.text()), "4");
    EXPECT_EQ(d.szópárszám.Max, 11);
    ASSERT_EQ(machine.messages.size(), 1U);
    EXPECT_EQ(utf8(machine.messages[0]), too_few);
    hand::click(d.cmd_mégsem);
  });
}

TEST_F(MemorySettingsTest, SpringingBackGoesOnUntilEnoughWordsFit) {
  in_dialog(game(), [this](frm_képmem_beáll& d) {
    d.udbetszám.set_value(2);
    EXPECT_EQ(d.udbetszám.value(), 4);
    EXPECT_EQ(machine.messages.size(), 2U);
    hand::click(d.cmd_mégsem);
  });
}

TEST_F(MemorySettingsTest, TheCountStopsAtEighteenAndEachWordCountsOnce) {
  for (int i = 0; i < 3; ++i) put_words(6);
  start();
  EXPECT_EQ(dialog().szópárszám.Max, 6);
}

TEST_F(MemorySettingsTest, NoLimitHasNoMeaningInTheCount) {
  put_words(6);
  for (int i = 0; i < 4; ++i) put({.név = u"abcdefghijklmn" + to_text(i)});
  start();
  auto& d = dialog();
  d.udbetszám.set_value(13);
  EXPECT_EQ(d.szópárszám.Max, 6) << "words of more than thirteen letters are not counted";
}

TEST_F(MemorySettingsTest, TheLastRecordIsCountedToo) {
  put_words(5);
  start();
  EXPECT_EQ(dialog().szópárszám.Max, 5);
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(MemorySettingsTest, AChangeOfLanguageCountsAtTheNextChangeOfLettersOnly) {
  put_words(8);
  for (int i = 0; i < 4; ++i) put({.név = u"szó" + to_text(i)});
  in_dialog(game(0), [](frm_képmem_beáll& d) {
    EXPECT_EQ(d.szópárszám.Max, 12);
    hand::click(d.optnyelv[4]);
    EXPECT_EQ(d.szópárszám.Max, 12);
    hand::step(d.udbetszám, -1);
    // The eight words, and the empty one that four records share.
    EXPECT_EQ(d.szópárszám.Max, 9);
    hand::click(d.cmd_mégsem);
  });
}

TEST_F(MemorySettingsTest, WithFewerThanFiveWordsInAllTheDialogEndsAtTheTop) {
  put_words(4);
  start();
  EXPECT_EQ(dialog().udbetszám.value(), 13);
  EXPECT_FALSE(machine.messages.empty());
  for (const Text& text : machine.messages) EXPECT_EQ(utf8(text), too_few);
}

TEST_F(MemorySettingsTest, TheWindowsOwnControlCancels) {
  put_app_file(factory, u" 9 \r\n");
  auto& window = game();
  in_dialog(window, [](frm_képmem_beáll& d) {
    d.szópárszám.set_value(12);
    hand::close(d);
  });
  EXPECT_TRUE(session().loaded<frm_képmem_beáll>());
  EXPECT_EQ(dialog().szópárszám.value(), 9);
}

} // namespace
} // namespace cserko
