// Tekergő: how the window is built, how a game is dealt, and how pictures and their letters come.
#include "tests/exercises/winder_fixture.h"

namespace cserko {
namespace {

class WinderDealTest : public WinderTest {
 protected:
  /// Settings of the game: longest word, pictures at the start.
  void put_settings_of(int longest, int pictures, int level = 5) {
    put_settings(u"verem.ini", {u" " + to_text(longest) + u" ", u" " + to_text(pictures) + u" ",
                                u" " + to_text(level) + u" ", u" 0 ", u" 2 ", u" 0 ", u" 0 "});
  }
  /// What chance gives for a picture: its slot among so many free ones, its file, and where its letters begin to fall.
  std::vector<double> drawn(int slot, int free, int file, int files, const std::string& directions) {
    std::vector<double> numbers{drawing(slot, free), drawing(file, files - 1)};
    for (const char direction : directions) numbers.push_back(direction == 'o' ? 0.2 : 0.7); // "o" from above
    return numbers;
  }
  void script(const std::vector<std::vector<double>>& numbers) {
    for (const auto& part : numbers) machine.script_random(part);
  }
  /// Five words of two letters, and a game that begins with all of them.
  void put_five() {
    for (const TextView word : {u"ló", u"kő", u"tű", u"fa", u"só", u"vaj"}) put({.név = Text(word)});
    put_settings_of(4, 5);
  }
  std::string tags(const frmverem& window) {
    std::string all;
    window.kép.each([&](const PictureBox& slot) { all += utf8(slot.Tag) + ","; });
    return all;
  }
};

TEST_F(WinderDealTest, HasItsTexts) {
  auto& window = deal();
  EXPECT_EQ(utf8(window.Caption), "Cserkó - Tekergő");
  std::string menu;
  for (const MenuItem* item :
       {&window.mnufile, &window.mnubeállításokdlg, &window.elv1, &window.újjáték, &window.elv2, &window.kilép,
        &window.mnusúgó, &window.mnusúgósúgó, &window.elv3, &window.mnusúgónévjegy})
    menu += utf8(item->Name) + " " + utf8(item->Caption) + "\n";
  EXPECT_EQ(menu, "mnufile &Fájl\nmnubeállításokdlg &Beállítások...\nelv1 -\nújjáték &Új játék\nelv2 -\nkilép &Kilép\n"
                  "mnusúgó &Súgó\nmnusúgósúgó &Súgó...\nelv3 -\nmnusúgónévjegy &Névjegy...\n");
}

TEST_F(WinderDealTest, HasItsDesignPlaces) {
  start();
  const auto design = designed<frmverem>();
  EXPECT_EQ(place_of(design->betű[0]), (Rect{120, 360, 390, 465}));
  EXPECT_EQ(design->kép[0].Width, 1320);
  EXPECT_EQ(design->kép[0].Height, 1320);
  EXPECT_EQ(design->képnév[0].Width, 1335);
  EXPECT_EQ(design->képnév[0].Height, 255);
  EXPECT_FALSE(design->Timer1.Enabled);
  EXPECT_EQ(design->kurzor(), 4);
}

TEST_F(WinderDealTest, TheCellsStandInTenColumnsAndSeventeenRows) {
  auto& window = deal();
  ASSERT_EQ(window.betű.count(), 170);
  const Label& first = window.cell(0, 0);
  EXPECT_EQ(&window.cell(3, 2), &window.betű[23]);
  for (int row = 0; row < 17; ++row) {
    for (int column = 0; column < 10; ++column) {
      if (column == 4 && row == 8) continue; // the cursor
      const Label& cell = window.cell(column, row);
      EXPECT_NEAR(cell.Left, first.Left + column * first.Width, 0.01);
      EXPECT_NEAR(cell.Top, first.Top + row * first.Height, 0.01);
      EXPECT_EQ(cell.Width, first.Width);
      EXPECT_TRUE(cell.Visible);
    }
  }
}

TEST_F(WinderDealTest, ThePicturesStandInThreeColumnsBesideTheBoardEachWithItsNameBelow) {
  auto& window = deal();
  ASSERT_EQ(window.kép.count(), 18);
  ASSERT_EQ(window.képnév.count(), 18);
  const double scale = window.cell(0, 0).Width / 390;
  const PictureBox& first = window.kép[0];
  EXPECT_NEAR(first.Left, window.cell(9, 0).Left + window.cell(9, 0).Width + 300 * scale, 0.01);
  EXPECT_NEAR(first.Top, window.cell(9, 16).Top + window.cell(9, 16).Height - 6 * first.Height, 0.01);
  for (int i = 0; i < 18; ++i) {
    const PictureBox& slot = window.kép[i];
    EXPECT_NEAR(slot.Left, first.Left + i % 3 * first.Width, 0.01);
    EXPECT_NEAR(slot.Top, first.Top + i / 3 * (first.Height + window.képnév[0].Height), 0.01);
    EXPECT_NEAR(window.képnév[i].Left, slot.Left, 0.01);
    EXPECT_NEAR(window.képnév[i].Top, slot.Top + slot.Height, 0.01);
  }
}

TEST_F(WinderDealTest, FillsNineTenthsOfTheScreenAndFitsIt) {
  for (const auto& [width, height] : {std::pair{1024, 600}, std::pair{1280, 1024}, std::pair{3840, 2160}}) {
    start_numbering();
    machine.set_screen(width, height);
    auto& window = deal();
    const Size screen = machine.screen_size();
    EXPECT_GT(window.Height, 0.85 * screen.height);
    EXPECT_LT(window.Height, screen.height);
    EXPECT_NEAR(window.Left + window.Width / 2, screen.width / 2, 0.01);
    const Label& name = window.képnév[17];
    EXPECT_LE(name.Top + name.Height, window.inner_height());
    EXPECT_LE(name.Left + name.Width, window.inner_width());
    end_session();
  }
}

TEST_F(WinderDealTest, TheLettersAreAsLargeAsTheLongestOneFits) {
  auto& window = deal();
  const Label& cell = window.cell(0, 0);
  cserko::Font font = cell.Font;
  EXPECT_LT(machine.measure(font, u"dzs").width, cell.Width);
  EXPECT_LE(machine.measure(font, u"dzs").height, cell.Height);
  font.size += 1;
  const Size larger = machine.measure(font, u"dzs");
  EXPECT_TRUE(larger.width >= cell.Width || larger.height > cell.Height);
  EXPECT_EQ(window.cell(9, 16).Font.size, cell.Font.size);
}

TEST_F(WinderDealTest, TheBoardAndItsMiddleRowAreFramedByLinesOfThreePixels) {
  auto& window = deal();
  const Label& first = window.cell(0, 0);
  const auto& canvas = dynamic_cast<const RecordedCanvas&>(window.canvas());
  std::vector<double> across;
  int lines = 0;
  for (const Drawing& drawing : canvas.drawings()) {
    if (drawing.kind != Drawing::Kind::Line) continue;
    ++lines;
    EXPECT_EQ(drawing.width, 45);
    if (drawing.from.y == drawing.to.y) across.push_back(rounded((drawing.from.y - first.Top) / first.Height));
  }
  EXPECT_EQ(lines, 8);
  EXPECT_EQ(across, (std::vector<double>{0, 17, 8, 9}));
}

TEST_F(WinderDealTest, OpensWithTheCursorOnTheFifthColumnAndTheTimerOn) {
  auto& window = deal();
  EXPECT_EQ(window.kurzor(), 4);
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
  EXPECT_EQ(pictures(window), 10);
  EXPECT_TRUE(window.Timer1.running());
  EXPECT_EQ(window.Timer1.Interval, 65000);
}

TEST_F(WinderDealTest, TheCursorIsLargerInFrontAndHasAnEdge) {
  auto& window = deal();
  const Label& cursor = window.cell(4, 8);
  const Label& above = window.cell(4, 7);
  EXPECT_NEAR(cursor.Left, above.Left - 50, 0.01);
  EXPECT_NEAR(cursor.Top, above.Top + above.Height - 50, 0.01);
  EXPECT_NEAR(cursor.Width, above.Width + 100, 0.01);
  EXPECT_NEAR(cursor.Height, above.Height + 100, 0.01);
  EXPECT_EQ(cursor.Font.size, above.Font.size + 4);
  for (const Element* other : window.elements()) {
    if (other != &cursor) {
      EXPECT_LT(other->layer(), cursor.layer());
    }
  }
}

TEST_F(WinderDealTest, LettersFallOntoTheLowestColumnsFromAboveOrBelow) {
  put_five();
  start();
  script({drawn(0, 18, 0, 6, "oo"), drawn(0, 17, 1, 6, "ou"), drawn(3, 16, 2, 6, "uo"), drawn(14, 15, 3, 6, "uu"),
          drawn(0, 14, 4, 6, "oo")});
  auto& window = open();
  EXPECT_EQ(tags(window), "ló,kő,só, , ,tű, , , , , , , , , , , ,fa,");
  // The first letter of a column stands in the middle row, whichever end it comes from; a column with that letter
  // alone counts as an empty one and takes the next.
  EXPECT_EQ(row(window, 7), "ó| |ű| |ó| | | | | ");
  EXPECT_EQ(row(window, 8), "l|k|t|f|s| | | | | ");
  EXPECT_EQ(row(window, 9), " |ő| |a| | | | | | ");
}

TEST_F(WinderDealTest, APictureHasItsWordAsTagAndToolTipAndItsNameBelowIfWanted) {
  put_five();
  start();
  script({drawn(0, 18, 0, 6, "oo"), drawn(0, 17, 1, 6, "oo"), drawn(0, 16, 2, 6, "oo"), drawn(0, 15, 3, 6, "oo"),
          drawn(0, 14, 4, 6, "oo")});
  auto& window = open();
  EXPECT_EQ(utf8(window.kép[1].Tag), "kő");
  EXPECT_EQ(utf8(window.kép[1].ToolTipText), "kő");
  EXPECT_EQ(picture(window.kép[1]), picture_path(1));
  EXPECT_EQ(utf8(window.képnév[1].Caption), "kő");
  EXPECT_FALSE(window.képnév[1].Visible);
  expect_fitted(window.képnév[1]);
}

TEST_F(WinderDealTest, AColumnThatIsAlreadyHighTakesNoLetterWhileALowerOneIsThere) {
  auto& window = deal();
  empty_board(window);
  for (int column = 0; column < 10; ++column) put_column(window, column, 6, u"bbbbb");
  window.cell(7, 10).Caption = u" ";
  script({drawn(0, 18, 9, 20, "uuu")}); // ház
  machine.advance(65000);
  EXPECT_EQ(column(window, 7), "......bbbbh......");
  EXPECT_EQ(column(window, 0), "......bbbbbá.....") << "now all are as high as each other: the first one";
  EXPECT_EQ(column(window, 1), "......bbbbbz.....");
}

TEST_F(WinderDealTest, ATakenStartCellSendsTheLetterToTheNextColumnAndRoundTheEnd) {
  auto& window = deal();
  empty_board(window);
  // The last column is the lowest, with its upper end taken.
  for (int column = 0; column < 9; ++column) put_column(window, column, 3, u"bbbbbbbbbbb");
  window.cell(9, 0).Caption = u"x";
  put_column(window, 9, 8, u"y");
  script({drawn(0, 18, 9, 20, "ooo")}); // ház
  machine.advance(65000);
  EXPECT_EQ(column(window, 9), "x.......y........");
  EXPECT_EQ(column(window, 0), "záhbbbbbbbbbbb...");
}

TEST_F(WinderDealTest, WhereAllCellsOfTheStartRowAreTakenTheOtherEndIsUsed) {
  auto& window = deal();
  empty_board(window);
  for (int column = 0; column < 10; ++column) window.cell(column, 0).Caption = u"q";
  script({drawn(0, 18, 9, 20, "ooo")});
  machine.advance(65000);
  EXPECT_EQ(column(window, 0), "q.......há.......") << "from below, though the draw says from above";
  EXPECT_EQ(column(window, 1), "q.......z........");
}

TEST_F(WinderDealTest, WhereBothEndsAreTakenTheGameIsLost) {
  auto& window = empty_game();
  for (int column = 0; column < 10; ++column) window.cell(column, 0).Caption = window.cell(column, 16).Caption = u"q";
  then_answer(true);
  machine.advance(65000);
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(pictures(window), 10) << "a new game";
}

TEST_F(WinderDealTest, TheSameWordIsNotDrawnTwiceNorOneThatIsPartOfAnother) {
  for (const TextView word : {u"almafa", u"alma", u"kő", u"tű", u"fa", u"só", u"vaj"}) put({.név = Text(word)});
  put_settings_of(6, 5);
  start();
  machine.script_random(drawn(0, 18, 0, 7, "oooooo"));
  // The word itself, a part of it twice, then one that is new.
  machine.script_random({drawing(0, 17), drawing(0, 6), drawing(1, 6), drawing(4, 6), drawing(2, 6), 0.2, 0.2});
  script({drawn(0, 16, 3, 7, "oo"), drawn(0, 15, 5, 7, "oo")});
  // The last file is come to only by walking on; nothing leads there, so the draw goes on until it finds nothing.
  then_close_message();
  auto& window = open();
  EXPECT_EQ(message, "Kevés olyan szavunk van, amelyik elég rövid.\r\nKérlek, engedj meg a beállításokban hosszabb "
                     "szavakat vagy kevesebb képet!");
  EXPECT_FALSE(window.has_puzzle());
}

TEST_F(WinderDealTest, ALongerWordMayFollowItsPart) {
  for (const TextView word : {u"alma", u"almafa", u"kő", u"tű", u"só", u"vaj"}) put({.név = Text(word)});
  put_settings_of(6, 5);
  start();
  script({drawn(0, 18, 0, 6, "oooo"), drawn(0, 17, 1, 6, "oooooo"), drawn(0, 16, 2, 6, "oo"), drawn(0, 15, 3, 6, "oo"),
          drawn(0, 14, 4, 6, "oo")});
  EXPECT_EQ(tags(open()), "alma,almafa,kő,tű,só, , , , , , , , , , , , , ,");
}

TEST_F(WinderDealTest, TheLengthThatLimitsCountsCharactersNotLetters) {
  // "szoba" has five characters and four letters, "szék" four characters and three letters.
  for (const TextView word : {u"szoba", u"szék", u"kő", u"tű", u"fa", u"só", u"vaj"}) put({.név = Text(word)});
  put_settings_of(4, 5);
  start();
  // The draw of "szoba" walks on to "szék".
  script({drawn(0, 18, 0, 7, "ooo"), drawn(0, 17, 2, 7, "oo"), drawn(0, 16, 3, 7, "oo"), drawn(0, 15, 4, 7, "oo"),
          drawn(0, 14, 5, 7, "oo")});
  auto& window = open();
  EXPECT_EQ(tags(window), "szék,kő,tű,fa,só, , , , , , , , , , , , , ,");
  EXPECT_EQ(row(window).substr(0, 4), "sz|k") << "a digraph has one cell";
}

TEST_F(WinderDealTest, TheLastFileComesOnlyByWalkingOnAndBehindItTheSearchFails) {
  for (const TextView word : {u"kő", u"tű", u"fa", u"só", u"hosszúszó", u"vaj"}) put({.név = Text(word)});
  put({.név = u"túlhosszúszó"});
  put_settings_of(4, 5);
  start();
  script({drawn(0, 18, 0, 7, "oo"), drawn(0, 17, 1, 7, "oo"), drawn(0, 16, 2, 7, "oo"), drawn(0, 15, 3, 7, "oo")});
  machine.script_random({drawing(0, 14), drawing(4, 6), 0.2, 0.2, 0.2}); // over "hosszúszó" to "vaj"
  EXPECT_EQ(tags(open()), "kő,tű,fa,só,vaj, , , , , , , , , , , , , ,");
}

TEST_F(WinderDealTest, ASearchThatEndsBehindTheLastFileIsDrawnAnew) {
  for (const TextView word : {u"kő", u"tű", u"fa", u"só", u"vaj", u"hosszúszó", u"nagyonhosszú"})
    put({.név = Text(word)});
  put_settings_of(4, 5);
  start();
  script({drawn(0, 18, 0, 7, "oo"), drawn(0, 17, 1, 7, "oo"), drawn(0, 16, 2, 7, "oo"), drawn(0, 15, 3, 7, "oo")});
  machine.script_random({drawing(0, 14), drawing(5, 6), drawing(4, 6), 0.2, 0.2, 0.2});
  EXPECT_EQ(tags(open()), "kő,tű,fa,só,vaj, , , , , , , , , , , , , ,");
}

TEST_F(WinderDealTest, AWordThatOnlyTheLastFileHasIsFoundThroughTheOneBeforeIt) {
  for (const TextView word : {u"kő", u"tű", u"fa", u"só", u"hosszúszó", u"vaj"}) put({.név = Text(word)});
  put_settings_of(4, 5);
  start();
  EXPECT_EQ(pictures(open()), 5);
}

TEST_F(WinderDealTest, WhatCannotBeReadIsNeverDrawnAndAMissingPictureIsReplacedByItsWord) {
  put_five();
  put({.név = u"méz", .has_picture = false});
  put({.név = u"út"});
  machine.files().make_unreadable(u"c:\\cserko\\kepek\\2.wms");
  machine.break_picture(u"c:\\cserko\\kepek\\1.wmf");
  start();
  machine.script_random({drawing(0, 18), drawing(1, 7), drawing(0, 7), 0.2, 0.2}); // file 2 is drawn in vain
  script({drawn(0, 17, 2, 8, "oo"), drawn(0, 16, 3, 8, "oo"), drawn(0, 15, 4, 8, "oo"), drawn(0, 14, 6, 8, "ooo")});
  auto& window = open();
  EXPECT_EQ(tags(window), "ló,tű,fa,só,méz, , , , , , , , , , , , , ,");
  for (const int slot : {0, 4}) {
    EXPECT_EQ(window.kép[slot].Picture, nullptr);
    EXPECT_EQ(cserko::drawn(window.kép[slot]).texts(), (std::vector<Text>{window.kép[slot].Tag}));
  }
}

TEST_F(WinderDealTest, EnglishWordsAreReadFromTheFourthLineAndCutIntoCharacters) {
  for (const auto& [name, english] : {std::pair{u"a", u"Dish"}, std::pair{u"b", u"szxy"}, std::pair{u"c", u"cup"},
                                      std::pair{u"d", u"hen"}, std::pair{u"e", u"fox"}, std::pair{u"f", u"owl"}})
    put({.név = name, .angol = english});
  put_settings_of(4, 5);
  start();
  load<frmverembeállítások>().optnyelv.choose(4);
  script({drawn(0, 18, 0, 6, "oooo"), drawn(0, 17, 1, 6, "oooo"), drawn(0, 16, 2, 6, "ooo"), drawn(0, 15, 3, 6, "ooo"),
          drawn(0, 14, 4, 6, "ooo")});
  auto& window = open();
  EXPECT_EQ(window.nyelv(), 4);
  EXPECT_EQ(tags(window), "dish,szxy,cup,hen,fox, , , , , , , , , , , , , ,");
  EXPECT_EQ(column(window, 0), ".......id........");
  EXPECT_EQ(column(window, 2), ".......zs........");
}

TEST_F(WinderDealTest, TheIntervalFollowsTheLevelAndEachTickBringsAPicture) {
  put_words();
  put_settings_of(8, 5, 1);
  start();
  auto& window = open();
  EXPECT_EQ(window.Timer1.Interval, 25000);
  machine.advance(24999);
  EXPECT_EQ(pictures(window), 5);
  machine.advance(1);
  EXPECT_EQ(pictures(window), 6);
  machine.advance(25000);
  EXPECT_EQ(pictures(window), 7);
}

TEST_F(WinderDealTest, NamesAreShownWhereTheSettingsWantThem) {
  put_words();
  put_settings(u"verem.ini", {u" 8 ", u" 5 ", u" 1 ", u" 0 ", u" 2 ", u" 1 ", u" 0 "});
  start();
  auto& window = open();
  window.képnév.each([&](const Label& name) { EXPECT_EQ(name.Visible, window.kép[name.Index].Visible); });
  machine.advance(25000);
  EXPECT_EQ(pictures(window), 6);
  window.képnév.each([&](const Label& name) { EXPECT_EQ(name.Visible, window.kép[name.Index].Visible); });
}

TEST_F(WinderDealTest, ANewGameForgetsTheOldOneAndStartsTheTimerAfresh) {
  auto& window = deal();
  machine.advance(60000);
  hand::click(window.újjáték);
  EXPECT_EQ(pictures(window), 10);
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
  machine.advance(64999);
  EXPECT_EQ(pictures(window), 10);
  machine.advance(1);
  EXPECT_EQ(pictures(window), 11);
  int letters = 0;
  window.kép.each([&](const PictureBox& slot) {
    if (slot.Visible) letters += kszöveg::letter_count(slot.Tag);
  });
  EXPECT_EQ(window.letters_on_board(), letters);
}

TEST_F(WinderDealTest, AnEmptyFolderIsToldAndTheWindowLives) {
  start();
  then_close_message();
  auto& window = open();
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(window.letters_on_board(), 0);
  for (const int code : {key::right, key::up, int{'X'}, key::home, key::enter}) hand::key(window, code);
  EXPECT_EQ(heard(), "") << "nothing to play with, and nothing is won";
  machine.advance(200000);
  hand::key(window, key::escape);
  EXPECT_FALSE(session().loaded<frmverem>());
}

TEST_F(WinderDealTest, ADealThatFailsLeavesNothingOfTheOldGame) {
  auto& window = deal();
  load<frmverembeállítások>().udszóhossz.set_value(4);
  load<frmverembeállítások>().udképekszámakezdéskor.set_value(16);
  then_close_message();
  hand::click(window.újjáték);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_EQ(window.letters_on_board(), 0);
  EXPECT_EQ(pictures(window), 0);
  EXPECT_FALSE(window.Timer1.Enabled);
  load<frmverembeállítások>().udszóhossz.set_value(8);
  hand::click(window.újjáték);
  EXPECT_EQ(pictures(window), 16);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(WinderDealTest, WhereNoFurtherWordFitsItIsToldOnceAndTheGameGoesOn) {
  put_five();
  start();
  auto& window = open();
  put_column(window, 9, 0, u"qqqqqq");
  const std::string before = board(window);
  then_close_message();
  machine.advance(65000);
  machine.advance(650000);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_EQ(board(window), before);
  EXPECT_TRUE(window.has_puzzle());
  hand::key(window, key::end);
  EXPECT_EQ(window.kurzor(), 9);
}

TEST_F(WinderDealTest, EachFileIsReadOnce) {
  auto& window = deal();
  for (int game = 0; game < 20; ++game) hand::click(window.újjáték);
  const int before = machine.files().reads();
  for (int game = 0; game < 20; ++game) hand::click(window.újjáték);
  EXPECT_EQ(machine.files().reads(), before);
}

} // namespace
} // namespace cserko
