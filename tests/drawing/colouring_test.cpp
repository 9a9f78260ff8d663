// Colouring pages: making them, the dialog that opens them, and how they are coloured.
#include "tests/drawing/drawing_fixture.h"

namespace cserko {
namespace {

constexpr TextView own_folder = u"c:\\pomzu\\cserko\\kifest\\";
constexpr TextView pack_folder = u"c:\\cserko\\cserko\\kifest\\";

class Colouring : public DrawingTest {
 protected:
  /// A page: a black frame on white paper.
  static PixelImage frame() {
    Rows rows(30, std::string(30, '.'));
    for (std::size_t i = 5; i < 25; ++i) {
      for (const std::size_t edge : {5U, 6U, 23U, 24U}) rows[edge][i] = rows[i][edge] = '#';
    }
    return image_of(rows);
  }
  void put_pages(int count) {
    for (int i = 0; i < count; ++i) put_bitmap(Text(pack_folder) + to_text(i) + u".kif", frame());
  }
  void open_picture(const PixelImage& image) {
    put_bitmap(u"c:\\a.bmp", image);
    machine.dialogs().files_to_open = {Text(u"c:\\a.bmp")};
    hand::click(board().cmd_megnyit);
  }
  Text own(int number) { return Text(own_folder) + to_text(number) + u".kif"; }
  PixelImage preview(frm_színezőmegnyitás& dialog) {
    PixelGrid& grid = dialog.kép.canvas().grid();
    return grid.copy(grid.whole());
  }
};

// Making.

TEST_F(Colouring, TheFirstSavedPageGetsTheNumberNought) {
  machine.files().put_folder(Text(own_folder));
  auto& window = open_board();
  open_picture(frame());
  hand::click(window.Command1);
  EXPECT_EQ(bitmap(own(0)), frame());
  hand::click(window.Command1);
  EXPECT_EQ(bitmap(own(1)), frame());
}

TEST_F(Colouring, AGapIsFilledFirst) {
  for (const int number : {0, 1, 3}) put_bitmap(own(number), image_of({"r"}));
  auto& window = open_board();
  open_picture(frame());
  hand::click(window.Command1);
  EXPECT_EQ(bitmap(own(2)), frame());
  EXPECT_EQ(file(own(4)), "(none)");
}

TEST_F(Colouring, StrokesDrawnSinceAreNotInThePageButInAFile) {
  machine.files().put_folder(Text(own_folder));
  auto& window = open_board();
  open_picture(frame());
  stroke(3, 3, 200, 100);
  hand::click(window.Command1);
  EXPECT_EQ(bitmap(own(0)), frame());
  machine.dialogs().files_to_save = {Text(u"c:\\mine.bmp")};
  hand::click(window.cmd_ment);
  EXPECT_EQ(bitmap(u"c:\\mine.bmp"), seen());
  EXPECT_EQ(seen().at(3, 3), black);
}

TEST_F(Colouring, APastedPictureMakesAPageToo) {
  machine.files().put_folder(Text(own_folder));
  auto& window = open_board();
  machine.clipboard = frame();
  hand::click(window.Command2);
  hand::click(window.Command1);
  EXPECT_EQ(bitmap(own(0)), frame());
}

TEST_F(Colouring, WithoutAPictureOrAFolderNothingIsSavedAndNothingSaid) {
  auto& window = open_board();
  open_picture(frame());
  hand::click(window.Command1); // the folder is not there
  EXPECT_EQ(file(own(0)), "(none)");
  machine.files().put_folder(Text(own_folder));
  hand::click(window.cmd_törlés);
  stroke(3, 3, 200, 100);
  hand::click(window.Command1); // strokes are no picture
  EXPECT_EQ(file(own(0)), "(none)");
  EXPECT_EQ(machine.count("load szövegüzenet"), 0);
}

// The dialog.

TEST_F(Colouring, TheDialogListsThePagesAndShowsTheFirst) {
  put_pages(3);
  put_app_file(u"cserko\\kifest\\readme.txt");
  auto& window = open_board();
  then_in<frm_színezőmegnyitás>([this](frm_színezőmegnyitás& dialog) {
    EXPECT_EQ(utf8(dialog.Caption), "Cserkó - Rajz - Színező megnyitása");
    EXPECT_EQ(utf8(dialog.cmd_ok.Caption), "Színező megnyitása");
    EXPECT_EQ(utf8(dialog.CancelButton.Caption), "Mégsem");
    EXPECT_EQ(utf8(dialog.File1.Pattern), "*.kif");
    EXPECT_EQ(dialog.File1.count(), 3);
    EXPECT_EQ(dialog.File1.list_index(), 0);
    const PixelImage shown = preview(dialog);
    EXPECT_EQ(shown.at(shown.width / 5, shown.height / 2), black) << "its left line";
    EXPECT_FALSE(board().kép.Enabled) << "so that the closing click draws nothing";
    hand::click(dialog.CancelButton);
  });
  hand::click(window.cmd_színező);
  EXPECT_TRUE(window.kép.Enabled);
  EXPECT_FALSE(session().loaded<frm_színezőmegnyitás>());
  EXPECT_TRUE(blank());
  EXPECT_FALSE(window.chk_vonalnem.ticked());
}

TEST_F(Colouring, APageIsOpenedWithItsBlackProtected) {
  put_pages(2);
  auto& window = open_board();
  stroke(1, 1, 30, 30);
  then_in<frm_színezőmegnyitás>([](frm_színezőmegnyitás& dialog) { hand::click(dialog.cmd_ok); });
  hand::click(window.cmd_színező);
  EXPECT_FALSE(session().loaded<frm_színezőmegnyitás>());
  EXPECT_TRUE(window.chk_vonalnem.ticked());
  EXPECT_EQ(color_at(1, 1), white) << "cleared before";
  const PixelImage page = seen();
  choose(frm_rajz::fill);
  choose_color({214, 40, 40});
  click(page.width / 2, page.height / 2);
  EXPECT_EQ(color_at(page.width / 2, page.height / 2), (Color{214, 40, 40}));
  EXPECT_EQ(color_at(0, 0), white) << "the fill stops at the frame";
  const PixelImage before = seen();
  int line = page.width / 2;
  while (color_at(line, page.height / 2) != black) --line;
  click(line, page.height / 2);
  EXPECT_EQ(seen(), before) << "black cannot be flooded";
  hand::click(window.cmd_undo);
  hand::click(window.cmd_undo);
  EXPECT_EQ(color_at(1, 1), black) << "and what was there before comes back";
}

TEST_F(Colouring, ADoubleClickOpensThePage) {
  put_pages(2);
  put_bitmap(Text(pack_folder) + u"1.kif", image_of({"b"}));
  auto& window = open_board();
  then_in<frm_színezőmegnyitás>([](frm_színezőmegnyitás& dialog) {
    hand::select(dialog.File1, 1);
    dialog.File1.DblClick();
  });
  hand::click(window.cmd_színező);
  EXPECT_EQ(color_at(seen().width / 2, 5), blue);
  EXPECT_TRUE(window.chk_vonalnem.ticked());
}

TEST_F(Colouring, TheUsersPagesStandBehindThoseOfThePack) {
  put_pages(1);
  put_bitmap(own(0), image_of({"r"}));
  auto& window = open_board();
  then_in<frm_színezőmegnyitás>([this](frm_színezőmegnyitás& dialog) {
    ASSERT_EQ(dialog.File1.count(), 2);
    EXPECT_EQ(utf8(dialog.File1.Items[0]), "0.kif");
    EXPECT_EQ(utf8(dialog.File1.Items[1]), "Saját 0.kif");
    hand::select(dialog.File1, 1);
    const PixelImage shown = preview(dialog);
    EXPECT_EQ(shown.at(shown.width / 2, shown.height / 2), red);
    hand::click(dialog.cmd_ok);
  });
  hand::click(window.cmd_színező);
  EXPECT_EQ(color_at(seen().width / 2, 5), red);
}

TEST_F(Colouring, InstalledUnderTheFixedRootThereIsOneFolder) {
  session().alapkönyvtár = u"c:\\pomzu\\";
  put_bitmap(own(0), frame());
  auto& window = open_board();
  then_in<frm_színezőmegnyitás>([](frm_színezőmegnyitás& dialog) {
    EXPECT_EQ(dialog.File1.count(), 1);
    hand::click(dialog.CancelButton);
  });
  hand::click(window.cmd_színező);
}

TEST_F(Colouring, WithoutAnyPageThatIsToldAndTheBoardGoesOn) {
  expected_errors = 1;
  auto& window = open_board();
  hand::click(window.cmd_színező);
  EXPECT_NE(utf8(machine.errors.at(0)).find("Nincs színező ebben a mappában"), std::string::npos);
  EXPECT_TRUE(window.kép.Enabled);
  stroke(10, 10, 50, 50);
  EXPECT_FALSE(blank());
}

TEST_F(Colouring, AFileThatIsNoPictureFailsInThePreviewAlone) {
  expected_errors = 2;
  put_pages(3);
  machine.files().put(Text(pack_folder) + u"0.kif", "x");
  auto& window = open_board();
  then_in<frm_színezőmegnyitás>([](frm_színezőmegnyitás& dialog) {
    EXPECT_FALSE(dialog.cmd_ok.Enabled);
    hand::select(dialog.File1, 1);
    EXPECT_TRUE(dialog.cmd_ok.Enabled);
    hand::select(dialog.File1, 0);
    hand::click(dialog.CancelButton);
  });
  hand::click(window.cmd_színező);
  EXPECT_NE(utf8(machine.errors.at(0)).find("Ez a fájl nem kép, vagy megsérült"), std::string::npos);
}

TEST_F(Colouring, ByKeyboardAlone) {
  put_pages(1);
  put_bitmap(Text(pack_folder) + u"1.kif", image_of({"b"}));
  auto& window = open_board();
  then_in<frm_színezőmegnyitás>([](frm_színezőmegnyitás& dialog) {
    EXPECT_EQ(dialog.focus(), &dialog.File1);
    hand::key(dialog, key::down);
    hand::key(dialog, key::enter);
  });
  input::focus(window.cmd_színező);
  hand::key(window, key::space);
  EXPECT_EQ(color_at(seen().width / 2, 5), blue);
}

} // namespace
} // namespace cserko
