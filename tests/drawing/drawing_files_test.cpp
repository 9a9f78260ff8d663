// What comes from files, the clipboard and earlier windows, and what goes to files and the printer. Nothing is lost.
#include "tests/drawing/drawing_fixture.h"

namespace cserko {
namespace {

constexpr TextView kept_folder = u"c:\\pomzu\\cserko\\rajzok\\";

class DrawingFiles : public DrawingTest {
 protected:
  Text kept(int number) { return Text(kept_folder) + to_text(number) + u".bmp"; }
  int middle_x() { return seen().width / 2; }
  int middle_y() { return seen().height / 2; }
  Color middle() { return color_at(middle_x(), middle_y()); }
  void open_file(const Text& path) {
    machine.dialogs().files_to_open = {path};
    hand::click(board().cmd_megnyit);
  }
};

// Opening.

TEST_F(DrawingFiles, OpensAPictureFittedToThePaper) {
  open_board();
  put_bitmap(u"c:\\a.bmp", image_of({"rr", "rr"}));
  open_file(u"c:\\a.bmp");
  const FileQuestion& question = machine.dialogs().open_questions.at(0);
  EXPECT_EQ(utf8(question.filter), "Minden fájl (*.*)|*.*|Képfájlok (*.bmp)|*.bmp");
  EXPECT_EQ(question.filter_index, 2);
  EXPECT_EQ(middle(), red);
  EXPECT_EQ(color_at(0, 0), white) << "beside the square page";
  EXPECT_EQ(color_at(middle_x(), 0), red) << "as high as the paper";
}

TEST_F(DrawingFiles, APictureOfThePapersSizeComesInPointForPoint) {
  open_board();
  PixelImage image = seen();
  for (std::size_t i = 0; i < image.pixels.size(); i += 7) image.pixels[i] = {static_cast<std::uint8_t>(i), 3, 4};
  put_bitmap(u"c:\\a.bmp", image);
  open_file(u"c:\\a.bmp");
  EXPECT_EQ(seen(), image);
}

TEST_F(DrawingFiles, ACancelledOpeningChangesNothing) {
  auto& window = open_board();
  stroke(10, 10, 50, 50);
  const PixelImage before = seen();
  hand::click(window.cmd_megnyit);
  EXPECT_EQ(seen(), before);
}

TEST_F(DrawingFiles, AFileThatIsNoPictureIsToldAndTheDrawingStays) {
  expected_errors = 3;
  open_board();
  stroke(10, 10, 50, 50);
  const PixelImage before = seen();
  machine.files().put(u"c:\\letter.bmp", "Kedves Nagymama!");
  machine.files().put(u"c:\\cut.bmp", write_bitmap(before).substr(0, 5000));
  for (const TextView path : {u"c:\\letter.bmp", u"c:\\cut.bmp", u"c:\\none.bmp"}) {
    open_file(Text(path));
    EXPECT_NE(utf8(machine.errors.back()).find("Ez a fájl nem kép, vagy megsérült: " + utf8(path)), std::string::npos);
    EXPECT_EQ(seen(), before);
  }
}

TEST_F(DrawingFiles, OpeningIsAStepBack) {
  auto& window = open_board();
  stroke(10, 10, 50, 50);
  const PixelImage before = seen();
  put_bitmap(u"c:\\a.bmp", image_of({"r"}));
  open_file(u"c:\\a.bmp");
  hand::click(window.cmd_undo);
  EXPECT_EQ(seen(), before);
  EXPECT_EQ(window.board().picture(), nullptr) << "the picture goes too";
  hand::click(window.cmd_redo);
  EXPECT_EQ(middle(), red);
  EXPECT_NE(window.board().picture(), nullptr);
}

TEST_F(DrawingFiles, APictureLargerThanThePaperIsKeptAsItIsShown) {
  auto& window = open_board();
  PixelImage huge{4000, 1000, {}};
  huge.pixels.assign(4000 * 1000, red);
  put_bitmap(u"c:\\huge.bmp", huge);
  open_file(u"c:\\huge.bmp");
  EXPECT_EQ(window.board().picture()->width, seen().width);
}

// Saving.

TEST_F(DrawingFiles, SavesWhatIsSeenWithTheStrokes) {
  auto& window = open_board();
  put_bitmap(u"c:\\a.bmp", image_of({"r"}));
  open_file(u"c:\\a.bmp");
  stroke(middle_x(), middle_y(), middle_x() + 20, middle_y());
  machine.dialogs().files_to_save = {Text(u"c:\\mine.bmp")};
  hand::click(window.cmd_ment);
  const FileQuestion& question = machine.dialogs().save_questions.at(0);
  EXPECT_EQ(utf8(question.filter), "Képfájl (*.bmp)|*.bmp");
  EXPECT_EQ(question.filter_index, 1);
  EXPECT_EQ(utf8(question.folder), "c:\\");
  EXPECT_EQ(bitmap(u"c:\\mine.bmp"), seen());
  EXPECT_EQ(bitmap(u"c:\\mine.bmp").at(middle_x(), middle_y()), black);
}

TEST_F(DrawingFiles, ACancelledSaveIsAnErrorUnlikeACancelledOpening) {
  expected_errors = 1;
  auto& window = open_board();
  hand::click(window.cmd_ment);
  EXPECT_NE(utf8(machine.errors.at(0)).find("A rajz nincs elmentve: nem választottunk fájlt."), std::string::npos);
  EXPECT_TRUE(window.visible());
}

TEST_F(DrawingFiles, ASaveThatFailsSaysSoAndOffersAnotherPlace) {
  auto& window = open_board();
  stroke(10, 10, 50, 50);
  machine.files().put_folder(u"c:\\full");
  machine.files().make_unwritable(u"c:\\full");
  machine.dialogs().files_to_save = {Text(u"c:\\full\\a.bmp"), Text(u"c:\\nowhere\\a.bmp"), Text(u"c:\\good.bmp")};
  then_close_message();
  then_close_message();
  hand::click(window.cmd_ment);
  EXPECT_EQ(message, "Ide nem sikerült elmenteni a rajzot. Válasszunk másik helyet!");
  EXPECT_EQ(messages_shown, 2);
  EXPECT_EQ(bitmap(u"c:\\good.bmp"), seen());
}

TEST_F(DrawingFiles, AFullDiskLeavesTheOldFileWhole) {
  expected_errors = 1; // the second dialog is put away
  auto& window = open_board();
  machine.files().put(u"c:\\a.bmp", "old");
  machine.files().free_space = 100;
  machine.dialogs().files_to_save = {Text(u"c:\\a.bmp")};
  then_close_message();
  hand::click(window.cmd_ment);
  EXPECT_EQ(file(u"c:\\a.bmp"), "old");
}

// Clearing, the clipboard.

TEST_F(DrawingFiles, ClearingTakesDrawingAndPictureAway) {
  auto& window = open_board();
  put_bitmap(u"c:\\a.bmp", image_of({"r"}));
  open_file(u"c:\\a.bmp");
  stroke(10, 10, 50, 50);
  hand::click(window.cmd_törlés);
  EXPECT_TRUE(blank());
  EXPECT_EQ(window.board().picture(), nullptr);
}

TEST_F(DrawingFiles, PastesThePictureOfTheClipboard) {
  auto& window = open_board();
  stroke(1, 1, 60, 60);
  machine.clipboard = image_of({"b"});
  hand::click(window.Command2);
  EXPECT_EQ(middle(), blue);
  EXPECT_EQ(color_at(1, 1), white) << "the strokes before it are gone";
}

TEST_F(DrawingFiles, AnEmptyClipboardIsToldAndTheDrawingStays) {
  auto& window = open_board();
  stroke(1, 1, 60, 60);
  const PixelImage before = seen();
  then_close_message();
  hand::click(window.Command2);
  EXPECT_EQ(message, "Nincs kép a vágólapon.");
  EXPECT_EQ(seen(), before);
}

// Printing.

TEST_F(DrawingFiles, PrintsTheDrawingAsLargeAsThePageAllows) {
  auto& window = open_board();
  stroke(10, 10, 50, 50);
  const std::int64_t begin = machine.now();
  const auto print_on = [&](Size paper) {
    machine.printing().paper = paper;
    then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) {
      EXPECT_EQ(utf8(panel.pic_üzenet.Tag), "Nyomtatás folyamatban...");
      EXPECT_EQ(panel.timer_bezár.Interval, 4000);
    });
    hand::click(window.cmd_nyomtat);
    return machine.printing().pages.back();
  };
  const auto tall = print_on({3000, 90000});
  EXPECT_TRUE(tall.finished);
  EXPECT_EQ(tall.image, seen());
  EXPECT_EQ(tall.place.left, 0);
  EXPECT_EQ(tall.place.top, 0);
  EXPECT_DOUBLE_EQ(tall.place.width, 3000);
  EXPECT_DOUBLE_EQ(tall.place.height, window.kép.Height * 3000 / window.kép.Width);
  const auto wide = print_on({90000, 2000});
  EXPECT_DOUBLE_EQ(wide.place.height, 2000);
  EXPECT_DOUBLE_EQ(wide.place.width, window.kép.Width * 2000 / window.kép.Height);
  EXPECT_EQ(machine.now() - begin, 8000);
}

TEST_F(DrawingFiles, APutAwayPrintDialogPrintsNothing) {
  auto& window = open_board();
  machine.printing().cancelled = true;
  hand::click(window.cmd_nyomtat);
  EXPECT_TRUE(machine.printing().pages.empty());
}

TEST_F(DrawingFiles, WithoutAPrinterAPdfIsOffered) {
  auto& window = open_board();
  machine.printing().installed = false;
  machine.dialogs().files_to_save = {Text(u"c:\\rajz.pdf")};
  then_close_message();
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) { hand::click(panel.cmd_ok); });
  hand::click(window.cmd_nyomtat);
  EXPECT_EQ(message, "Ezen a gépen nincs nyomtató. A rajzot PDF-fájlba nyomtathatjuk.");
  EXPECT_EQ(utf8(machine.dialogs().save_questions.at(0).filter), "PDF-fájl (*.pdf)|*.pdf");
  EXPECT_EQ(utf8(machine.printing().pages.at(0).pdf), "c:\\rajz.pdf");
  then_close_message();
  hand::click(window.cmd_nyomtat); // the second offer is put away
  EXPECT_EQ(machine.printing().pages.size(), 1U);
}

TEST_F(DrawingFiles, APrinterThatFailsIsTold) {
  auto& window = open_board();
  machine.printing().fails = true;
  then_close_message();
  hand::click(window.cmd_nyomtat);
  EXPECT_EQ(message, "Nem sikerült nyomtatni. A nyomtató nem válaszol.");
  EXPECT_EQ(machine.count("load frm_szövegüzenet"), 0);
}

// What is kept by itself.

TEST_F(DrawingFiles, TheDrawingIsKeptWhenTheWindowCloses) {
  auto& window = open_board();
  stroke(10, 10, 50, 50);
  const PixelImage drawing = seen();
  hand::close(window);
  EXPECT_EQ(bitmap(kept(1)), drawing);
}

TEST_F(DrawingFiles, IsKeptEveryTwentySecondsAtMostAndOnlyWhileNothingIsPressed) {
  open_board();
  stroke(10, 10, 50, 10);
  machine.advance(10000);
  EXPECT_EQ(file(kept(1)), "(none)");
  machine.advance(11000);
  const std::string first = file(kept(1));
  EXPECT_NE(first, "(none)");
  stroke(10, 20, 50, 20);
  machine.advance(15000);
  EXPECT_EQ(file(kept(1)), first) << "not yet";
  press(10, 30);
  move(60, 30);
  machine.advance(10000);
  EXPECT_EQ(file(kept(1)), first) << "the child draws";
  release(60, 30);
  machine.advance(1000);
  EXPECT_EQ(bitmap(kept(1)), seen());
}

TEST_F(DrawingFiles, WhatIsKeptIsOfferedAtTheNextOpening) {
  hand::click(open_board().cmd_törlés);
  EXPECT_FALSE(board().cmd_earlier.Enabled) << "nothing was kept";
  stroke(10, 10, 50, 50);
  const PixelImage first = seen();
  hand::close(board());

  open_board();
  EXPECT_TRUE(blank());
  EXPECT_TRUE(board().cmd_earlier.Enabled);
  stroke(80, 10, 20, 50);
  const PixelImage second = seen();
  hand::close(board());
  EXPECT_EQ(bitmap(kept(1)), first) << "a new drawing does not take the place of an earlier one";
  EXPECT_EQ(bitmap(kept(2)), second);

  open_board();
  hand::click(board().cmd_earlier);
  EXPECT_EQ(seen(), second) << "the latest first";
  hand::click(board().cmd_earlier);
  EXPECT_EQ(seen(), first);
  hand::click(board().cmd_earlier);
  EXPECT_EQ(seen(), second) << "round again";
  hand::click(board().cmd_undo);
  EXPECT_EQ(seen(), first) << "and nothing is lost by looking";
}

TEST_F(DrawingFiles, ItIsOfferedAtTheNextStartToo) {
  open_board();
  stroke(10, 10, 50, 50);
  const PixelImage drawing = seen();
  machine.advance(21000); // and then the power goes
  end_session();
  start();
  open_board();
  hand::click(board().cmd_earlier);
  EXPECT_EQ(seen(), drawing);
}

TEST_F(DrawingFiles, AnEmptySheetIsNeverKeptOverADrawing) {
  open_board();
  stroke(10, 10, 50, 50);
  const PixelImage drawing = seen();
  machine.advance(21000);
  hand::click(board().cmd_törlés);
  machine.advance(21000);
  hand::close(board());
  EXPECT_EQ(bitmap(kept(1)), drawing);
}

TEST_F(DrawingFiles, NoMoreThanTenAreKept) {
  for (int i = 0; i < 14; ++i) {
    open_board();
    stroke(10, 10 + i, 50, 50);
    hand::close(board());
  }
  EXPECT_EQ(machine.files().list(Text(kept_folder) + u"*.bmp").size(), KeptDrawings::most);
  EXPECT_EQ(file(kept(4)), "(none)");
  EXPECT_NE(file(kept(14)), "(none)");
}

TEST_F(DrawingFiles, ADamagedOneIsPassedOver) {
  put_bitmap(kept(1), image_of({"r"}));
  machine.files().put(kept(2), "BM");
  machine.files().put(Text(kept_folder) + u"levél.bmp", "x");
  open_board();
  hand::click(board().cmd_earlier);
  EXPECT_EQ(middle(), red);
  hand::click(board().cmd_earlier);
  EXPECT_EQ(middle(), red);
}

TEST_F(DrawingFiles, IfNoneCanBeReadThatIsTold) {
  machine.files().put(kept(1), "BM");
  open_board();
  then_close_message();
  hand::click(board().cmd_earlier);
  EXPECT_EQ(message, "A korábbi rajz sajnos nem olvasható.");
}

TEST_F(DrawingFiles, AFolderThatCannotBeWrittenDisturbsNobody) {
  machine.files().put_folder(u"c:\\pomzu");
  machine.files().make_unwritable(u"c:\\pomzu");
  open_board();
  stroke(10, 10, 50, 50);
  machine.advance(30000);
  hand::close(board());
  EXPECT_FALSE(session().loaded<frm_rajz>());
}

TEST_F(DrawingFiles, TheWorkFileIsNoKeptDrawing) {
  put_bitmap(u"c:\\pomzu\\cserko\\temp.bmp", image_of({"r"}));
  hand::close(open_board());
  EXPECT_EQ(file(kept(1)), "(none)") << "nothing new was drawn on it";
}

} // namespace
} // namespace cserko
