// Knight's jump: how the window is built, how words are chosen, hidden and surrounded by filler, how it is laid out.
#include "tests/exercises/knight_fixture.h"

#include <set>

namespace cserko {
namespace {

class KnightBoardTest : public KnightTest {
 protected:
  static std::string joined(const std::vector<Text>& letters) {
    std::string all;
    for (const Text& letter : letters) all += utf8(letter) + " ";
    return all;
  }
  static std::string first_row(const frm_lóugrás& window) {
    std::string all;
    for (int column = 0; column < 12; ++column) {
      if (window.field({column, 0}).Visible) all += utf8(window.field({column, 0}).Caption);
    }
    return all;
  }
  static int enabled_fields(const frm_lóugrás& window) {
    int enabled = 0;
    window.betű.each([&](const Label& label) { enabled += label.Visible && label.Enabled ? 1 : 0; });
    return enabled;
  }
  /// The next board takes the words of these files.
  void draw_files(std::initializer_list<int> numbers) {
    for (const int number : numbers) machine.script_random({draws(number)});
  }
};

TEST_F(KnightBoardTest, HasItsTexts) {
  auto& window = game({});
  EXPECT_EQ(utf8(window.Name), "frm_lóugrás");
  EXPECT_EQ(utf8(window.Caption), "Cserkó - Lóugrás");
  EXPECT_EQ(utf8(window.Command1.Caption), "Törlés");
  EXPECT_EQ(utf8(window.cmd_súgó.Caption), "Következő lépés");
  EXPECT_EQ(utf8(window.lbl_feladat.Caption),
            "A képekhez tartozó szavak betűit elrejtettem a táblán. Indulj a *-tól, és mindig lépj lólépésben!");
  std::string menu;
  for (const MenuItem* item : {&window.mnu_fájl, &window.mnu_fájl_új_játék, &window.mnu_fájl_beállítások,
                               &window.mnu_fájl_kilép, &window.mnu_súgó, &window.mnu_súgó_súgó})
    menu += utf8(item->Name) + " " + utf8(item->Caption) + "\n";
  EXPECT_EQ(menu, "mnu_fájl &Fájl\nmnu_fájl_új_játék &Új játék\nmnu_fájl_beállítások &Beállítások\n"
                  "mnu_fájl_kilép &Kilép\nmnu_súgó &Súgó\nmnu_súgó_súgó &Súgó\n");
}

TEST_F(KnightBoardTest, TheTaskLineTellsTheRule) {
  auto& window = game({.neighbours = true});
  EXPECT_EQ(utf8(window.lbl_feladat.Caption), "A képekhez tartozó szavak betűit elrejtettem a táblán. Indulj a *-tól, "
                                              "és mindig lépj a szomszédos mezőkre!");
  expect_fitted(window.lbl_feladat);
  EXPECT_TRUE(window.is_move({3, 3}, {4, 4}));
  EXPECT_FALSE(window.is_move({3, 3}, {4, 5}));
}

TEST_F(KnightBoardTest, TheRulesTellWhichMovesAreLegal) {
  for (const bool neighbours : {false, true}) {
    start_numbering();
    auto& window = game({.neighbours = neighbours});
    const Moves& moves = neighbours ? neighbour_moves : knight_moves;
    for (int column = 0; column < 7; ++column) {
      for (int row = 0; row < 7; ++row) {
        const bool listed = std::find(moves.begin(), moves.end(), Square{column - 3, row - 3}) != moves.end();
        if (column == 3 && row == 3) continue; // the field itself is asked nothing
        EXPECT_EQ(window.is_move({3, 3}, {column, row}), listed) << column << ", " << row;
      }
    }
    hand::click(window.mnu_fájl_kilép);
    load<frm_lóugrás_beáll>().optszabály[1].set_value(true);
  }
}

TEST_F(KnightBoardTest, TheFieldsStandInTwelveColumnsAndEightRows) {
  auto& window = game({.columns = 12});
  ASSERT_EQ(window.betű.count(), 96);
  EXPECT_EQ(shown_fields(window), 96);
  EXPECT_EQ(&window.field({5, 2}), &window.betű[29]);
  const double side = window.field({11, 7}).Width;
  for (int row = 0; row < 8; ++row) {
    for (int column = 0; column < 12; ++column) {
      const Label& label = window.field({column, row});
      if (Square{column, row} == window.kurzor()) continue;
      EXPECT_EQ(label.Width, side);
      EXPECT_NEAR(label.Left, std::floor(window.inner_width() / 2) + (column - 6) * side, 0.01);
      EXPECT_NEAR(label.Top, window.field({11, 0}).Top + row * side, 0.01);
      EXPECT_EQ(label.Tag, u"0");
    }
  }
}

TEST_F(KnightBoardTest, TheSquaresAlternate) {
  auto& window = game({});
  EXPECT_EQ(window.Lbl_sötétszürke.BackColor, (Color{128, 128, 128}));
  EXPECT_FALSE(window.Lbl_sötétszürke.Visible);
  EXPECT_FALSE(window.lbl_Szürke.Visible);
  EXPECT_EQ(window.mezőszín(0, 0), window.Lbl_sötétszürke.BackColor);
  EXPECT_EQ(window.mezőszín(1, 0), window.lbl_Szürke.BackColor);
  EXPECT_EQ(window.mezőszín(7, 3), window.Lbl_sötétszürke.BackColor);
  for (int row = 0; row < 8; ++row) {
    for (int column = 0; column < 8; ++column)
      EXPECT_EQ(window.field({column, row}).BackColor, window.mezőszín(column, row));
  }
}

TEST_F(KnightBoardTest, FieldsBeyondTheSettingsAreNotSeen) {
  auto& window = game({.rows = 6, .columns = 7, .pictures = 1});
  EXPECT_EQ(shown_fields(window), 42);
  window.betű.each([](const Label& label) {
    EXPECT_EQ(label.Visible, label.Index % 12 < 7 && label.Index / 12 < 6) << label.Index;
  });
}

TEST_F(KnightBoardTest, ASmallerBoardAfterALargerOneLeavesNothingBehind) {
  auto& window = game({.columns = 12});
  auto& settings = load<frm_lóugrás_beáll>();
  settings.udoszlopokszáma.set_value(6);
  settings.udsorokszáma.set_value(6);
  settings.udképekszáma.set_value(2);
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(shown_fields(window), 36);
  EXPECT_FALSE(window.kép[2].Visible);
  EXPECT_FALSE(window.képnév[3].Visible);
  EXPECT_EQ(utf8(window.képnév[2].Tag + window.képnév[3].Tag), "");
}

// As large as the window allows, on every screen: the fewer rows, the larger the fields.
TEST_F(KnightBoardTest, TheBoardFillsItsHeightAndLiesInsideTheWindow) {
  put_words();
  for (const auto& [width, height] : {std::pair{1024, 600}, std::pair{1280, 1024}, std::pair{3840, 2160}}) {
    machine.set_screen(width, height);
    for (const auto& [rows, columns] : {std::pair{6, 6}, {6, 12}, {8, 12}, {7, 9}, {8, 8}}) {
      want({.rows = rows, .columns = columns, .pictures = 2});
      start();
      auto& window = open<frm_lóugrás>();
      const Label& last = window.field({columns - 1, rows - 1});
      const double side = last.Width;
      EXPECT_NEAR(side * rows, window.Lbl_sötétszürke.Top - window.field({1, 0}).Top, 0.5);
      if (width == 1024) {
        EXPECT_GE(side, 43 * twips_per_pixel);
      }
      // The field of the cursor is a tenth larger on each side.
      EXPECT_GE(window.field({0, 0}).Left, 0);
      EXPECT_GE(window.field({0, 0}).Top, window.képnév[0].Top + window.képnév[0].Height);
      EXPECT_LE(last.Left + 1.1 * side, window.inner_width());
      EXPECT_LE(last.Top + 1.1 * side, window.inner_height());
      end_session();
    }
  }
}

TEST_F(KnightBoardTest, TheLettersHaveTheFirstSizeThatIsTooLarge) {
  for (const int rows : {6, 8}) {
    start_numbering();
    auto& window = game({.rows = rows, .pictures = 1});
    const Label& label = window.field({3, 3});
    cserko::Font font = label.Font;
    const auto overfills = [&] {
      const Size text = machine.measure(font, u"dzs");
      return text.width > 0.9 * label.Width || text.height > 0.9 * label.Height;
    };
    EXPECT_TRUE(overfills());
    font.size -= 1;
    EXPECT_FALSE(overfills());
    EXPECT_EQ(window.field({7, 5}).Font.size, label.Font.size);
    hand::click(window.mnu_fájl_kilép);
    load<frm_lóugrás_beáll>().udsorokszáma.set_value(8);
  }
}

TEST_F(KnightBoardTest, TheWindowTakesNineTenthsOfTheScreen) {
  auto& window = game({});
  expect_share_of_screen(window, 0.9);
  EXPECT_EQ(window.Left + window.Width / 2, machine.screen_size().width / 2);
}

TEST_F(KnightBoardTest, ThePicturesStandInARowInTheMiddleEachWithItsNameBelow) {
  for (const int pictures : {4, 3, 1}) {
    start_numbering();
    auto& window = game({.pictures = pictures});
    const double middle = window.inner_width() / 2;
    const PictureBox& first = window.kép[0];
    const PictureBox& last = window.kép[pictures - 1];
    EXPECT_NEAR((first.Left + last.Left + last.Width) / 2, middle, 0.01);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(window.kép[i].Visible, i < pictures);
      EXPECT_EQ(window.képnév[i].Visible, i < pictures);
      EXPECT_EQ(window.képnév[i].Left, window.kép[i].Left);
      EXPECT_EQ(window.képnév[i].Top, window.kép[i].Top + window.kép[i].Height);
      EXPECT_EQ(window.képnév[i].Caption, u"");
      EXPECT_EQ(window.képnév[i].Tag.empty(), i >= pictures);
    }
    hand::click(window.mnu_fájl_kilép);
    load<frm_lóugrás_beáll>().udképekszáma.set_value(pictures == 4 ? 3 : 1);
  }
}

TEST_F(KnightBoardTest, TheNamesHaveTheSizeOfTheWidestWord) {
  put({.név = u"ló"}); // 1
  put_words();
  want({.pictures = 2});
  start_session();
  draw_files({1, 5}); // ló, barack
  auto& window = game();
  EXPECT_EQ(names(window), "/ló /barack / / ");
  cserko::Font font = window.képnév[0].Font;
  const Size limits{0.9 * window.képnév[0].Width, 0.9 * window.képnév[0].Height};
  const auto overfills = [&](TextView word) {
    return machine.measure(font, word).width > limits.width || machine.measure(font, word).height > limits.height;
  };
  EXPECT_TRUE(overfills(u"barack"));
  font.size -= 1;
  EXPECT_FALSE(overfills(u"barack"));
  EXPECT_EQ(window.képnév[1].Font.size, window.képnév[0].Font.size);
}

// The letters.

TEST_F(KnightBoardTest, LettersAreCutByTheTableLongestFirst) {
  EXPECT_EQ(joined(path_letters(u"dzsem,", 2)), "dzs e m ");
  EXPECT_EQ(joined(path_letters(u"dzsem,", 4)), "d z s e m ");
  EXPECT_EQ(joined(path_letters(u"csdzdzsgylynysztyzs,", 2)), "cs dz dzs gy ly ny sz ty zs ");
  EXPECT_EQ(joined(path_letters(u"asszony,", 2)), "a s sz o ny ") << "a doubled digraph is two letters on the board";
  EXPECT_EQ(joined(path_letters(u"ló,kő,", 2)), "l ó k ő ") << "the border between words leaves no trace";
  EXPECT_EQ(joined(path_letters(u"wxyqű,", 2)), "w x y q ű ");
  EXPECT_EQ(joined(path_letters(u"a'b-c,", 2)), "a ' b - c ") << "what is in no table is a letter of its own";
}

TEST_F(KnightBoardTest, HidesTheWordAlongThePathThatChanceGives) {
  auto& window = board(1, {0, 0}, {7, 7, 1, 8});
  EXPECT_EQ(names(window), "/alma / / / ");
  EXPECT_EQ(window.megoldás(), (std::vector<Square>{{0, 0}, {2, 1}, {4, 2}, {3, 4}, {4, 6}}));
  EXPECT_EQ(along_path(window), "* a l m a ");
  EXPECT_FALSE(window.field({0, 0}).Enabled) << "the start cannot be entered";
  EXPECT_TRUE(window.field({0, 0}).Visible);
}

TEST_F(KnightBoardTest, ADigraphTakesOneFieldInHungarianAndEachCharacterOneInEnglish) {
  put_only({{.név = u"dzsem", .angol = u"dzsem"}});
  want({.pictures = 1});
  start_session();
  machine.script_random({0.5});
  machine.script_random(path({0, 0}, {7, 7, 1}));
  auto& window = game();
  EXPECT_EQ(along_path(window), "* dzs e m ");
  load<frm_lóugrás_beáll>().optnyelv.choose(4);
  machine.script_random({0.5});
  machine.script_random(path({0, 0}, {7, 7, 1, 8, 3}));
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(along_path(window), "* d z s e m ");
}

TEST_F(KnightBoardTest, TheWordsFollowEachOtherWithoutABreak) {
  put_only({{.név = u"ló"}, {.név = u"kő"}, {.név = u"hal"}});
  want({.pictures = 2});
  start_session();
  draw_files({1, 2});
  machine.script_random(path({0, 0}, {7, 7, 1, 8}));
  auto& window = game();
  EXPECT_EQ(along_path(window), "* l ó k ő ");
  for (std::size_t i = 1; i < window.megoldás().size(); ++i)
    EXPECT_TRUE(window.is_move(window.megoldás()[i - 1], window.megoldás()[i]));
}

// The filler.

TEST_F(KnightBoardTest, FillerIsDrawnFromTheLettersOfTheWordsColumnByColumn) {
  put_words();
  want({.pictures = 1});
  start_session();
  machine.script_random({draws(3)}); // szilva
  machine.script_random(path({0, 0}, {7, 7, 1, 8, 3}));
  // The first column from its second row on.
  for (const int letter : {0, 1, 2, 3, 4, 0, 0}) machine.script_random({drawing(letter, 5)});
  auto& window = game();
  std::string column;
  for (int row = 1; row < 8; ++row) column += utf8(window.field({0, row}).Caption) + " ";
  EXPECT_EQ(names(window), "/szilva / / / ");
  EXPECT_EQ(column, "sz i l v a sz sz ");
  EXPECT_EQ(enabled_fields(window), 63) << "all but the start";
}

TEST_F(KnightBoardTest, FillerFollowsHowOftenALetterStandsInTheWords) {
  auto& window = board(1, {0, 0}, {7, 7, 1, 8}); // alma
  int a = 0;
  int all = 0;
  for (int i = 0; i < 30; ++i) {
    if (i > 0) {
      machine.script_random({draws(1)});
      hand::click(window.mnu_fájl_új_játék);
    }
    window.betű.each([&](const Label& label) {
      if (!label.Visible) return;
      ++all;
      if (label.Caption == u"a") ++a;
    });
  }
  EXPECT_NEAR(a / double(all), 0.5, 0.05);
}

TEST_F(KnightBoardTest, WithoutFillerTheBoardIsWalledWithTheCharacter) {
  auto& window = board(1, {0, 0}, {7, 7, 1, 8}, {.filler = false});
  EXPECT_EQ(first_row(window), "*.......");
  EXPECT_EQ(enabled_fields(window), 4);
  EXPECT_FALSE(window.field({0, 1}).Enabled);
  EXPECT_EQ(utf8(window.field({4, 2}).Caption), "l");
}

TEST_F(KnightBoardTest, TheCharacterIsThatOfTheSettings) {
  auto& window = board(1, {0, 0}, {7, 7, 1, 8}, {.filler = false, .character = u"#"});
  EXPECT_EQ(first_row(window), "*#######");
}

TEST_F(KnightBoardTest, InEnglishTheBoxHasTheOppositeSense) {
  auto& window = game({.filler = false, .character = u"?"});
  load<frm_lóugrás_beáll>().optnyelv.choose(4);
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(enabled_fields(window), 63);
  std::set<Text> letters;
  window.betű.each([&](const Label& label) {
    const auto& path = window.megoldás();
    const bool hidden = std::find(path.begin(), path.end(), Square{label.Index % 12, label.Index / 12}) != path.end();
    if (label.Visible && !hidden) letters.insert(label.Caption);
  });
  EXPECT_GE(letters.size(), 18U) << "random letters, not those of the words alone";
  for (const Text& letter : letters) EXPECT_TRUE(letter.size() == 1 && letter[0] >= u'a' && letter[0] <= u'z');
  load<frm_lóugrás_beáll>().chktöltelékbetűk.set_value(1);
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(enabled_fields(window), static_cast<int>(window.megoldás().size()) - 1);
  int walls = 0;
  window.betű.each([&](const Label& label) { walls += label.Visible && label.Caption == u"?" ? 1 : 0; });
  EXPECT_EQ(walls, 64 - static_cast<int>(window.megoldás().size()));
}

TEST_F(KnightBoardTest, RandomLettersAreRoundedAndNotCut) {
  put_only({{.név = u"ló", .angol = u"en"}});
  want({.pictures = 1, .filler = false});
  start_session();
  auto& window = game();
  load<frm_lóugrás_beáll>().optnyelv.choose(4);
  machine.script_random({0.5});
  machine.script_random(path({0, 0}, {7, 7}));
  machine.script_random({0, 0.5 / 25 - 0.001, 0.5 / 25 + 0.001, 0.999, 24.4 / 25});
  hand::click(window.mnu_fájl_új_játék);
  std::string column;
  for (int row = 1; row < 6; ++row) column += utf8(window.field({0, row}).Caption);
  EXPECT_EQ(column, "aabzy");
}

// The choice of words.

TEST_F(KnightBoardTest, AFileIsDrawnByItsNumberAndTheLastOneNever) {
  put_only({{.név = u"ló"}, {.név = u"kő"}, {.név = u"hal"}}, {.név = u"fa"});
  want({.pictures = 1});
  start_session();
  auto& window = game();
  std::set<std::string> seen;
  for (int i = 0; i < 200; ++i) {
    hand::click(window.mnu_fájl_új_játék);
    seen.insert(utf8(window.képnév[0].Tag));
  }
  EXPECT_EQ(seen, (std::set<std::string>{"ló", "kő", "hal"}));
  machine.script_random({0.999});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(utf8(window.képnév[0].Tag), "hal");
  machine.script_random({0});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(utf8(window.képnév[0].Tag), "ló");
  EXPECT_EQ(picture(window.kép[0]), "c:\\cserko\\kepek\\1.wmf");
}

// The number of a file is also taken for the index of a record: that record's name must be short, though it belongs to
// the next file.
TEST_F(KnightBoardTest, TheNumberGoesOnWhileTheRecordOfThatIndexHasALongName) {
  put_only({{.név = u"ló"}, {.név = u"elefántcsont"}, {.név = u"hal"}, {.név = u"kő"}});
  want({.longest = 5, .pictures = 1});
  start_session();
  machine.script_random({draws(1)}); // the record of index 1 is the long one: number 2 follows, whose file is long
  machine.script_random({draws(3)});
  auto& window = game();
  EXPECT_EQ(utf8(window.képnév[0].Tag), "hal");
}

TEST_F(KnightBoardTest, BehindTheLastRecordTheNumberIsTakenAsItStands) {
  put_only({{.név = u"ló"}, {.név = u"kő"}}, {.név = u"elefántcsont", .angol = u"tusk"});
  want({.longest = 5, .pictures = 1});
  start_session();
  auto& window = game();
  load<frm_lóugrás_beáll>().optnyelv.choose(4);
  machine.script_random({draws(2)}); // its record has the long name, the next one is not there
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(utf8(window.képnév[0].Tag), "tusk");
}

TEST_F(KnightBoardTest, RefusesWordsWithABlankAHyphenOrTooManyCharactersAndEmptyOnes) {
  put_only({{.név = u"kis kutya"}, {.név = u"kis-kutya"}, {.név = u"elefántcsont"}, {.név = u""}, {.név = u"HAL"}});
  want({.longest = 11, .pictures = 1});
  start_session();
  auto& window = game();
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(utf8(window.képnév[0].Tag), "hal") << "in lower case";
    hand::click(window.mnu_fájl_új_játék);
  }
}

TEST_F(KnightBoardTest, AWordInsideAnEarlierOneIsRefusedButNotTheReverse) {
  put_only({{.név = u"hal"}, {.név = u"halász"}, {.név = u"kő"}});
  want({.pictures = 2});
  start_session();
  draw_files({2, 1, 3}); // halász, then hal is refused
  auto& window = game();
  EXPECT_EQ(names(window), "/halász /kő / / ");
  draw_files({1, 2}); // hal, then halász
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(names(window), "/hal /halász / / ");
}

TEST_F(KnightBoardTest, ASetThatIsTooLongIsDrawnAnewAsAWhole) {
  put_only({{.név = u"barackos"}, {.név = u"szilvás"}, {.név = u"körtefa"}, {.név = u"macskák"}, {.név = u"ló"}});
  want({.rows = 6, .columns = 6});
  start_session();
  draw_files({1, 2, 3, 4}); // 9 + 8 + 8 + 8 with their commas, and 28 are allowed
  draw_files({5, 2, 3});    // the first three of the next set
  draw_files({4});          // 3 + 8 + 8 + 8
  auto& window = game();
  EXPECT_EQ(names(window), "/ló /szilvás /körtefa /macskák ");
}

TEST_F(KnightBoardTest, ASetOfExactlyTheLimitIsTaken) {
  put_only({{.név = u"szilvás"}, {.név = u"körtefa"}, {.név = u"macskák"}, {.név = u"asz"}, {.név = u"asza"}});
  want({.rows = 6, .columns = 6}); // 28.8 characters
  start_session();
  draw_files({1, 2, 3, 4}); // 8 + 8 + 8 + 4 = 28
  auto& window = game();
  EXPECT_EQ(names(window), "/szilvás /körtefa /macskák /asz ");
  draw_files({1, 2, 3, 5}); // 29
  draw_files({1, 2, 3, 4});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(names(window), "/szilvás /körtefa /macskák /asz ");
}

// Pictures that cannot be loaded.

TEST_F(KnightBoardTest, AWordWithoutAPictureMakesRoomForAnotherOne) {
  put_only({{.név = u"ló", .has_picture = false}, {.név = u"kő"}});
  want({.pictures = 1});
  start_session();
  draw_files({1, 2});
  auto& window = game();
  EXPECT_EQ(names(window), "/kő / / / ");
  EXPECT_EQ(picture(window.kép[0]), "c:\\cserko\\kepek\\2.wmf");
}

TEST_F(KnightBoardTest, ThatOneMayHaveAHyphen) {
  put_only({{.név = u"ló", .has_picture = false}, {.név = u"kő-ház"}});
  want({.pictures = 1});
  start_session();
  draw_files({2, 1, 2}); // refused, without a picture, taken in its place
  auto& window = game();
  EXPECT_EQ(names(window), "/kő-ház / / / ");
  EXPECT_EQ(along_path(window), "* k ő - h á z ");
}

TEST_F(KnightBoardTest, AFileThatCannotBeReadIsPassedOver) {
  put_only({{.név = u"ló"}, {.név = u"kő"}});
  want({.pictures = 1});
  machine.files().make_unreadable(u"c:\\cserko\\kepek\\1.wms");
  start_session();
  draw_files({1, 2});
  EXPECT_EQ(names(game()), "/kő / / / ");
}

// Where nothing fits.

class KnightUnfitTest : public KnightBoardTest {
 protected:
  void expect_empty(const frm_lóugrás& window) {
    EXPECT_FALSE(window.has_puzzle());
    EXPECT_EQ(shown_fields(window), 0);
    EXPECT_EQ(names(window), "/ / / / ");
    window.kép.each([](const PictureBox& box) { EXPECT_FALSE(box.Visible); });
  }
};

TEST_F(KnightUnfitTest, NoWordIsShortEnough) {
  put_only({{.név = u"elefántcsont"}}, {.név = u"elefántcsontok"});
  want({.longest = 5});
  then_close_message();
  start_session();
  auto& window = game();
  EXPECT_EQ(message, "Kevés olyan szavunk van, amelyik elég rövid.\r\nKérlek, engedj meg a beállításokban hosszabb "
                     "szavakat vagy kevesebb képet!");
  expect_empty(window);
  // Nothing of the exercise can be played, and nothing of it fails.
  for (const int code : {key::left, key::enter, key::space, key::backspace, int{'S'}, int{'1'}})
    hand::key(window, code);
  hand::click(window.Command1);
  machine.advance(1000);
  expect_empty(window);
  EXPECT_EQ(heard(), "");
}

TEST_F(KnightUnfitTest, TooFewDifferentWords) {
  put_only({{.név = u"ló"}, {.név = u"kő"}, {.név = u"ló"}});
  want({.pictures = 3});
  then_close_message();
  start_session();
  expect_empty(game());
}

TEST_F(KnightUnfitTest, NoPictureCanBeLoaded) {
  put_only({{.név = u"ló", .has_picture = false}, {.név = u"kő", .has_picture = false}});
  want({.pictures = 1});
  then_close_message();
  start_session();
  expect_empty(game());
}

TEST_F(KnightUnfitTest, ThereAreNoFiles) {
  then_close_message();
  start_session();
  expect_empty(game());
}

TEST_F(KnightUnfitTest, TheWordsTogetherAreTooLongForTheBoard) {
  put_only({{.név = u"barackos"}, {.név = u"szilvásokat"}, {.név = u"körtefa"}, {.név = u"macskák"}});
  want({.rows = 6, .columns = 6});
  then_close_message();
  start_session();
  auto& window = game();
  EXPECT_EQ(message, "Ennyi hosszú szó nem fér el a táblán.\r\nKérlek, állíts be nagyobb táblát, rövidebb szavakat "
                     "vagy kevesebb képet!");
  expect_empty(window);
  // A larger board, and it goes on.
  then_in<frm_lóugrás_beáll>([](frm_lóugrás_beáll& settings) {
    settings.udsorokszáma.set_value(8);
    settings.udoszlopokszáma.set_value(8);
    hand::click(settings.OKButton);
  });
  hand::click(window.mnu_fájl_beállítások);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_EQ(shown_fields(window), 64);
}

TEST_F(KnightUnfitTest, AFailedDealLeavesNothingOfTheGameBefore) {
  auto& window = game({.pictures = 2});
  walk(window, 2);
  const auto walked = window.út().back();
  for (int i = 1; i <= 20; ++i) machine.files().take(u"c:\\cserko\\kepek\\" + to_text(i) + u".wmf");
  then_close_message();
  hand::click(window.mnu_fájl_új_játék);
  expect_empty(window);
  EXPECT_EQ(window.field(walked).Caption, u"");
}

} // namespace
} // namespace cserko
