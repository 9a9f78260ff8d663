// Picture memory: its design, the deal of the pairs over the board, which records are refused, the font of the words.
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/picture_memory_fixture.h"

#include <map>
#include <set>

namespace cserko {
namespace {

class MemoryDealTest : public ExerciseTest {
 protected:
  void put_words(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      const Text word(memory_words.at(i));
      put({.név = word, .szótagolt = u"-" + word, .angol = u"the " + word});
    }
  }
  frm_képmem_beáll& dialog() { return load<frm_képmem_beáll>(); }
  int last_record() { return session().képek.képszám; }
  void script_board(const std::vector<Pair>& pairs) { machine.script_random(board_script(pairs, last_record())); }
  /// The five pairs of a small board: record i lies on the places i and 10 + i.
  static std::vector<Pair> five_pairs() { return {{0, 0, 10}, {1, 1, 11}, {2, 2, 12}, {3, 3, 13}, {4, 4, 14}}; }
  /// Opens a board of five pairs; twenty words are put unless the test has put others.
  frm_képmemória& open_five(const std::vector<Pair>& pairs) {
    put_settings_of(5);
    start();
    script_board(pairs);
    return open<frm_képmemória>();
  }
  /// A user's and factory file that ask for so many pairs, everything else as it is.
  void put_settings_of(int pairs, int letters = 12) {
    put_app_file(u"cserko\\képmem.ini", u" " + to_text(pairs) + u" \r\n 12 \r\n 2 \r\n " + to_text(letters) + u" \r\n");
  }
  static std::map<int, int> tags(const frm_képmemória& window) {
    std::map<int, int> all;
    window.kép.each([&](const PictureBox& card) {
      if (!card.Tag.empty()) all[card.Index] = std::stoi(utf8(card.Tag));
    });
    return all;
  }
  static const inline std::string advice = "Kevés olyan szavunk van, amelyik ráfér egy kártyára.\r\nKérlek, engedj meg "
                                           "a beállításokban hosszabb szavakat vagy kevesebb szópárt!";
};

TEST_F(MemoryDealTest, HasItsTextsAndMenus) {
  start();
  const auto window = designed<frm_képmemória>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Képmemória");
  EXPECT_EQ(utf8(window->Label_feladat.Caption), "Keresd meg az összetartozó párokat!");
  EXPECT_EQ(utf8(window->labszópárok[0].Caption), "Az egér jobb gombjával a képre kattintva segítséget kap.");
  EXPECT_EQ(window->kép.count(), 36);
  EXPECT_EQ(window->képszöveg.count(), 36);
  EXPECT_EQ(window->Timer1.Interval, 1000);
  EXPECT_FALSE(window->nemkép.Visible);
  EXPECT_FALSE(window->nemszöveg.Visible);
  EXPECT_FALSE(window->teszt.Visible);
  for (const MenuItem* item : {&window->mnu_fájl_új_játék, &window->mnu_fájl_beáll, &window->mnu_fájl_kilép})
    EXPECT_EQ(item->container(), &window->mnu_fájl);
}

TEST_F(MemoryDealTest, FillsItsShareOfTheScreenWithSixRowsOfSix) {
  put_words(20);
  auto& window = open_five(five_pairs());
  // The board as it is designed: six cards and five gaps each way below the two lines of text.
  const Size chrome = machine.chrome(window);
  const double bottom = 960 + 6 * 1200 + 5 * 60;
  const double scale = (machine.screen_size().height - chrome.height) * 0.98 / (120 * 0.98 + bottom);
  EXPECT_NEAR(window.kép[0].Width, 1560 * scale, 0.001);
  EXPECT_NEAR(window.kép[0].Height, 1200 * scale, 0.001);
  for (int i = 1; i < 36; ++i) {
    const PictureBox& card = window.kép[i];
    const PictureBox& before = window.kép[i % 6 == 0 ? i - 6 : i - 1];
    EXPECT_EQ((Size{card.Width, card.Height}), (Size{window.kép[0].Width, window.kép[0].Height}));
    if (i % 6 == 0) {
      EXPECT_EQ(card.Left, window.kép[0].Left);
      EXPECT_EQ(card.Top, before.Top + before.Height + 60);
    } else {
      EXPECT_EQ(card.Left, before.Left + before.Width + 60);
      EXPECT_EQ(card.Top, before.Top);
    }
    EXPECT_LE(card.Left + card.Width, window.inner_width());
    EXPECT_LE(card.Top + card.Height, window.inner_height());
  }
}

TEST_F(MemoryDealTest, EachRecordLiesOnTwoPlaces) {
  put_words(20);
  auto& window = open_five(five_pairs());
  EXPECT_EQ(tags(window),
            (std::map<int, int>{{0, 0}, {10, 0}, {1, 1}, {11, 1}, {2, 2}, {12, 2}, {3, 3}, {13, 3}, {4, 4}, {14, 4}}));
  for (int i = 0; i < 36; ++i) {
    const bool used = i < 5 || (i >= 10 && i < 15);
    EXPECT_EQ(window.kép[i].Visible, used);
    EXPECT_FALSE(window.képszöveg[i].Visible);
    EXPECT_FALSE(window.felfordítva(i));
    EXPECT_EQ(window.képoldal(i), i < 5);
  }
}

TEST_F(MemoryDealTest, EveryCardShowsTheBack) {
  put_app_file(u"cserko\\kártyahát.wmf");
  put_words(20);
  auto& window = open_five(five_pairs());
  EXPECT_EQ(picture(window.kép[0]), "c:\\cserko\\cserko\\kártyahát.wmf");
  EXPECT_EQ(picture(window.kép[14]), "c:\\cserko\\cserko\\kártyahát.wmf");
}

TEST_F(MemoryDealTest, APlaceIsTheRoundedShareOfThirtyFive) {
  put_words(20);
  put_settings_of(5);
  start();
  // 0.49 and 0.51, 34.49 and 34.51 of 35; then taken places are drawn again.
  machine.script_random({0.49 / 35, hitting(0, 19), 34.51 / 35});
  machine.script_random({0.49 / 35, 0.51 / 35, hitting(1, 19), 34.51 / 35, 34.49 / 35});
  script_board({{2, 2, 12}, {3, 3, 13}, {4, 4, 14}});
  const auto all = tags(open<frm_képmemória>());
  EXPECT_EQ(all.at(0), 0);
  EXPECT_EQ(all.at(35), 0);
  EXPECT_EQ(all.at(1), 1);
  EXPECT_EQ(all.at(34), 1);
}

TEST_F(MemoryDealTest, ARecordIsTheRoundedShareOfTheLastIndexSoThatTheLastIsReached) {
  put_words(6);
  auto& window = open_five({{5, 0, 10}, {1, 1, 11}, {2, 2, 12}, {3, 3, 13}, {4, 4, 14}});
  EXPECT_EQ(tags(window).at(0), 5);
  machine.script_random({0.49 / 5, 0.51 / 5, 4.49 / 5, 4.51 / 5});
  EXPECT_EQ(window.KépFileNév(), 0);
  EXPECT_EQ(window.KépFileNév(), 1);
  EXPECT_EQ(window.KépFileNév(), 4);
  EXPECT_EQ(window.KépFileNév(), 5);
}

TEST_F(MemoryDealTest, ARecordWithoutAWordInTheLanguageIsNoPick) {
  put({.név = u"", .angol = u"only"});
  put({.név = u"csak"});
  put_words(6);
  auto& window = open_five({{2, 0, 10}, {3, 1, 11}, {4, 2, 12}, {5, 3, 13}, {6, 4, 14}});
  machine.script_random({hitting(0, 7), hitting(1, 7)});
  EXPECT_EQ(window.KépFileNév(), 1);
  dialog().optnyelv[4].set_value(true);
  machine.script_random({hitting(1, 7), hitting(0, 7)});
  EXPECT_EQ(window.KépFileNév(), 0);
}

TEST_F(MemoryDealTest, ARecordThatWasUsedIsRefusedAndSoIsAnotherWithTheSameWord) {
  put_words(6);
  put({.név = u"alma"});
  put_settings_of(5);
  start();
  machine.script_random({hitting(0, 35), hitting(0, 6), hitting(10, 35)});
  machine.script_random({hitting(1, 35), hitting(0, 6), hitting(6, 6), hitting(1, 6), hitting(11, 35)});
  script_board({{2, 2, 12}, {3, 3, 13}, {4, 4, 14}});
  EXPECT_EQ(tags(open<frm_képmemória>()).at(1), 1);
}

TEST_F(MemoryDealTest, LongWordsAreRefusedByTheirLetters) {
  put({{.név = u"sárgadinnye"}, {.név = u"gyöngytyúk"}});
  put_words(6);
  // "gyöngytyúk" has seven letters, "sárgadinnye" ten.
  put_settings_of(5, 7);
  start();
  machine.script_random({hitting(0, 35), hitting(0, 7), hitting(1, 7), hitting(10, 35)});
  script_board({{2, 1, 11}, {3, 2, 12}, {4, 3, 13}, {5, 4, 14}});
  EXPECT_EQ(tags(open<frm_képmemória>()).at(0), 1);
}

TEST_F(MemoryDealTest, TheTopOfTheLimitMeansNone) {
  const Text thirteen = u"abcdefghijklm";
  const Text twenty = u"abcdefghijklmnopqrst";
  put({{.név = thirteen}, {.név = twenty}});
  put_words(6);
  put_settings_of(5, 13);
  put_app_file(u"cserko\\képmem.ini", u" 5 \r\n 4 \r\n 2 \r\n 13 \r\n");
  start();
  script_board({{0, 0, 10}, {1, 1, 11}, {2, 2, 12}, {3, 3, 13}, {4, 4, 14}});
  EXPECT_EQ(tags(open<frm_képmemória>()).at(1), 1);
  EXPECT_EQ(utf8(dialog().txtbetszám.text()), "korlátlan");
}

TEST_F(MemoryDealTest, AWordTooWideForACardInTheSizeOfTheSettingsIsRefused) {
  put({.név = u"mmmmmmmmmmmm"});
  put_words(6);
  put_app_file(u"cserko\\képmem.ini", u" 5 \r\n 17 \r\n 2 \r\n 12 \r\n");
  start();
  machine.script_random({hitting(0, 35), hitting(0, 6), hitting(1, 6), hitting(10, 35)});
  script_board({{2, 1, 11}, {3, 2, 12}, {4, 3, 13}, {5, 4, 14}});
  auto& window = open<frm_képmemória>();
  EXPECT_EQ(tags(window).at(0), 1);
  Font font;
  font.size = 17;
  EXPECT_GT(machine.measure(font, u"mmmmmmmmmmmm").width, window.kép[0].Width);
  // In a smaller size it fits.
  font.size = 4;
  EXPECT_LE(machine.measure(font, u"mmmmmmmmmmmm").width, window.kép[0].Width);
  dialog().udbetűméret.set_value(4);
  script_board({{0, 0, 10}, {2, 1, 11}, {3, 2, 12}, {4, 3, 13}, {5, 4, 14}});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(tags(window).at(0), 0);
}

TEST_F(MemoryDealTest, ARecordWhosePictureFailsIsRefused) {
  put({{.név = u"nincs", .has_picture = false}, {.név = u"rossz"}});
  put_words(6);
  machine.break_picture(u"c:\\cserko\\kepek\\2.wmf");
  put_settings_of(5);
  start();
  machine.script_random({hitting(0, 35), hitting(0, 7), hitting(1, 7), hitting(2, 7), hitting(10, 35)});
  script_board({{3, 1, 11}, {4, 2, 12}, {5, 3, 13}, {6, 4, 14}});
  EXPECT_EQ(tags(open<frm_képmemória>()).at(0), 2);
}

TEST_F(MemoryDealTest, EighteenPairsFillAllPlaces) {
  put_words(20);
  put_settings_of(18);
  start();
  auto& window = open<frm_képmemória>();
  for (int round = 0; round < 20; ++round) {
    const auto all = tags(window);
    EXPECT_EQ(all.size(), 36U);
    std::map<int, int> times;
    for (const auto& [place, index] : all) ++times[index];
    EXPECT_EQ(times.size(), 18U);
    for (const auto& [index, count] : times) EXPECT_EQ(count, 2);
    hand::click(window.mnu_fájl_új_játék);
  }
}

TEST_F(MemoryDealTest, SeedsOncePerBoard) {
  put_words(20);
  auto& window = open_five(five_pairs());
  const int before = machine.seedings;
  window.beáll();
  EXPECT_EQ(machine.seedings, before + 1);
}

TEST_F(MemoryDealTest, ANewGameClearsTheBoardAndItsTime) {
  put_words(20);
  auto& window = open_five(five_pairs());
  dialog().chk_anim_enged.set_value(0);
  hand::press(window.kép[10], 10, 10);
  EXPECT_TRUE(window.felfordítva(10));
  EXPECT_TRUE(window.képszöveg[10].Visible);
  machine.advance(5000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:05");
  script_board({{5, 20, 30}, {6, 21, 31}, {7, 22, 32}, {8, 23, 33}, {9, 24, 34}});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_FALSE(window.felfordítva(10));
  EXPECT_FALSE(window.képszöveg[10].Visible);
  EXPECT_EQ(utf8(window.képszöveg[10].Caption), "");
  EXPECT_FALSE(window.kép[10].Visible);
  EXPECT_EQ(utf8(window.kép[10].Tag), "");
  machine.advance(1000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:01");
}

TEST_F(MemoryDealTest, TheTimeIsShownInHoursMinutesAndSeconds) {
  put_words(20);
  auto& window = open_five(five_pairs());
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:00");
  machine.advance((3600 * 11 + 60 * 59 + 58) * 1000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "11:59:58");
}

TEST_F(MemoryDealTest, ThePairsAreShownBeforeTheGameWhereThatIsWished) {
  put_words(20);
  put_app_file(u"cserko\\képmem.ini",
               u" 5 \r\n 12 \r\n 2 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n 1 \r\n 10 \r\n 1 \r\n");
  start();
  script_board(five_pairs());
  std::vector<std::string> shown;
  for (int i = 0; i < 5; ++i) {
    then_in<üzenet>([&](üzenet& panel) {
      shown.push_back(utf8(panel.üzenet_szöveg.Caption) + " " + picture(panel.üzenet_kép));
      hand::click(panel.Command1);
    });
  }
  open<frm_képmemória>();
  ASSERT_EQ(shown.size(), 5U);
  EXPECT_EQ(shown[0], "alma " + picture_path(0));
  EXPECT_EQ(shown[4], "cica " + picture_path(4));
}

TEST_F(MemoryDealTest, TheWordFollowsLanguageAndSyllables) {
  put_words(20);
  auto& window = open_five(five_pairs());
  EXPECT_EQ(utf8(window.képnévnyelv(3)), "kutya");
  dialog().Chk_szótagolva.set_value(1);
  EXPECT_EQ(utf8(window.képnévnyelv(3)), "-kutya");
  dialog().optnyelv[4].set_value(true);
  EXPECT_EQ(utf8(window.képnévnyelv(3)), "the kutya");
}

TEST_F(MemoryDealTest, TheTextFilesOfThePictureFolderAreCounted) {
  put_words(7);
  put_app_file(u"kepek\\8.txt");
  start();
  EXPECT_EQ(open<frm_képmemória>().képszámlálás(), 7);
}

TEST_F(MemoryDealTest, AllWordsTakeTheLargestSizeAtWhichTheWidestFitsACard) {
  put_words(20);
  auto& window = open_five(five_pairs());
  const Text widest = u"szilva";
  const double limit = 0.9 * window.kép[0].Width;
  Font font = window.képszöveg[0].Font;
  EXPECT_LE(machine.measure(font, widest).width, limit);
  ++font.size;
  EXPECT_GT(machine.measure(font, widest).width, limit);
  for (int i = 0; i < 36; ++i) {
    const Label& word = window.képszöveg[i];
    EXPECT_EQ(word.Font.size, font.size - 1);
    EXPECT_NEAR(word.Left + word.Width / 2, window.kép[i].Left + window.kép[i].Width / 2, 0.001);
    EXPECT_NEAR(word.Top + word.Height / 2, window.kép[i].Top + window.kép[i].Height / 2, 0.001);
  }
}

TEST_F(MemoryDealTest, VeryShortWordsAreLimitedByTheirWidthAlone) {
  put({{.név = u"ló"}, {.név = u"tó"}, {.név = u"út"}, {.név = u"őz"}, {.név = u"só"}, {.név = u"ér"}});
  auto& window = open_five(five_pairs());
  const Size card{window.kép[0].Width, window.kép[0].Height};
  Font font = window.képszöveg[0].Font;
  const auto widest = [&] {
    double width = 0;
    for (const TextView word : {u"ló", u"tó", u"út", u"őz", u"só"})
      width = std::max(width, machine.measure(font, word).width);
    return width;
  };
  EXPECT_LE(widest(), 0.9 * card.width);
  EXPECT_GT(machine.measure(font, u"ló").height, card.height) << "the line is higher than the card";
  ++font.size;
  EXPECT_GT(widest(), 0.9 * card.width);
}

TEST_F(MemoryDealTest, WhereTooFewWordsFitTheWindowStaysAndTellsWhy) {
  // The dialog counts words; that their pictures are missing shows at the deal only.
  put_words(4);
  for (int i = 0; i < 3; ++i) put({.név = u"kép" + to_text(i), .has_picture = false});
  put_settings_of(5);
  start();
  then_close_message();
  auto& window = open<frm_képmemória>();
  EXPECT_EQ(message, advice);
  EXPECT_TRUE(window.visible());
  EXPECT_TRUE(window.Enabled);
  then_close_message();
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(messages_shown, 2);
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_képmemória>());
}

TEST_F(MemoryDealTest, BothWaysOfClosingUnloadTheDialogFirst) {
  for (const bool by_menu : {true, false}) {
    put_words(20);
    auto& window = open_five(five_pairs());
    const std::size_t before = machine.diary({"unload frm_képmem"}).size();
    if (by_menu) {
      hand::click(window.mnu_fájl_kilép);
    } else {
      hand::close(window);
    }
    const auto unloaded = machine.diary({"unload frm_képmem"});
    ASSERT_EQ(unloaded.size(), before + 2);
    EXPECT_EQ(unloaded[before], "unload frm_képmem_beáll");
    EXPECT_EQ(unloaded[before + 1], "unload frm_képmemória");
    end_session();
    start_numbering();
  }
}

TEST_F(MemoryDealTest, HelpOpensItsPage) {
  put_words(20);
  auto& window = open_five(five_pairs());
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("Képmemória - a feladat.mht"));
}

} // namespace
} // namespace cserko
