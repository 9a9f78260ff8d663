// The drawing board: its look, its tools, the fill, undo, and its end.
#include "feedback/frm_gratuláció.h"
#include "tests/drawing/drawing_fixture.h"

#include <set>

namespace cserko {
namespace {

constexpr Color strong_red{214, 40, 40};
constexpr Color strong_blue{50, 130, 215};

// The look.

TEST_F(DrawingTest, HasItsToolsColoursAndWidths) {
  auto& window = board();
  EXPECT_EQ(utf8(window.Caption), "Cserkó - Rajz");
  EXPECT_EQ(window.cmd_művelet.count(), 5);
  EXPECT_EQ(window.szín.count(), 32);
  EXPECT_EQ(window.vonalvastagság.count(), 5);
  EXPECT_EQ(window.szín[0].BackColor, black);
  EXPECT_EQ(window.Timer2.Interval, 60000);
  EXPECT_TRUE(window.Timer2.Enabled);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(window.vonalvastagság[i].DrawWidth, 3 * i + 1);
  std::set<std::tuple<int, int, int>> colors;
  window.szín.each([&](const Label& swatch) {
    EXPECT_TRUE(swatch.Opaque) << "the suite's look must not wash it away";
    colors.emplace(swatch.BackColor.red, swatch.BackColor.green, swatch.BackColor.blue);
  });
  EXPECT_EQ(colors.size(), 32U) << "all are different";
}

TEST_F(DrawingTest, HasItsTextsAndHints) {
  const auto& window = board();
  const auto expect = [](const Button& button, const char* caption, const char* hint) {
    EXPECT_EQ(utf8(button.Caption), caption);
    EXPECT_EQ(utf8(button.ToolTipText), hint);
  };
  expect(window.cmd_nyomtat, "Nyomtat", "Kép nyomtatása");
  expect(window.cmd_megnyit, "Megnyit", "Képfájl megnyitása");
  expect(window.cmd_ment, "Ment", "Kép elmentése képfájlként");
  expect(window.cmd_törlés, "Törlés", "Rajzterület törlése");
  expect(window.Command1, "Mentés színezőként", "Kép elmentése a színezőkészletbe");
  expect(window.Command2, "Beilleszt", "Kép beillesztése a vágólapról a rajzterületre");
  EXPECT_EQ(utf8(window.cmd_színező.Caption), "Színező megnyitása");
  EXPECT_EQ(utf8(window.chk_foltfestés.Caption), "Foltfestés");
  EXPECT_EQ(utf8(window.chk_vonalnem.Caption), "Fekete színezésének tiltása");
  for (const Button* button : {&window.Command1, &window.cmd_ment, &window.cmd_megnyit}) expect_fitted(*button);
}

TEST_F(DrawingTest, TakesPictureAndSizeFromTheMainWindow) {
  auto& main = load<frm_főablak>();
  const auto& window = board();
  EXPECT_EQ(window.Width, main.Width);
  EXPECT_EQ(window.Height, main.Height);
  EXPECT_EQ(window.Picture, main.Picture);
  const Size screen = machine.screen_size();
  EXPECT_EQ(window.Top, screen.height / 2 - window.Height / 2);
  EXPECT_EQ(window.Left, screen.width / 2 - window.Width / 2);
  EXPECT_EQ(window.chk_foltfestés.BackColor, window.BackColor);
  EXPECT_EQ(window.chk_vonalnem.BackColor, window.BackColor);
}

TEST_F(DrawingTest, EverythingLiesInsideTheWindowOnEveryScreen) {
  for (const auto& [width, height] : {std::pair{1024, 600}, {1280, 1024}, {1920, 1080}, {3840, 2160}}) {
    machine.set_screen(width, height);
    end_session();
    start();
    const auto& window = load<frm_rajz>();
    for (const Element* element : window.elements()) {
      if (element->container() != nullptr || element->kind() == ElementKind::Timer) continue;
      EXPECT_GE(element->Left, 0) << utf8(element->Name);
      EXPECT_GE(element->Top, 0) << utf8(element->Name);
      EXPECT_LE(element->Left + element->Width, window.inner_width()) << utf8(element->Name) << " at " << width;
      EXPECT_LE(element->Top + element->Height, window.inner_height()) << utf8(element->Name) << " at " << width;
    }
  }
}

TEST_F(DrawingTest, TargetsAreLargeEnoughForAFingerAtTheDesignsSize) {
  const frm_rajz window(session());
  const auto large = [](const Element& element) {
    EXPECT_GE(element.Width, 43 * px) << utf8(element.Name);
    EXPECT_GE(element.Height, 44 * px) << utf8(element.Name);
  };
  for (const Element* element : window.elements()) {
    if (element->kind() == ElementKind::Button || element->kind() == ElementKind::CheckBox) large(*element);
  }
  window.szín.each(large);
  window.vonalvastagság.each(large);
}

// Choosing.

TEST_F(DrawingTest, BeginsWithThePenInBlackAndWidthFour) {
  auto& window = board();
  EXPECT_EQ(utf8(window.aktívgomb.Tag), "0");
  EXPECT_EQ(window.aktívszín.BackColor, black);
  EXPECT_EQ(window.kép.DrawWidth, 4);
  EXPECT_EQ(window.aktívvastagság.DrawWidth, 4);
  EXPECT_FALSE(window.chk_foltfestés.Visible);
  EXPECT_FALSE(window.radír.Visible);
  EXPECT_TRUE(blank());
}

TEST_F(DrawingTest, AToolShowsItsPictureAndTheFillItsOption) {
  for (const TextView name : {u"toll", u"radír", u"kitöltés", u"téglalap", u"egyenes"})
    put_app_file(u"cserko\\" + Text(name) + u".wmf");
  auto& window = open_board();
  for (int tool = 0; tool < 5; ++tool) {
    choose(tool);
    EXPECT_EQ(utf8(window.aktívgomb.Tag), std::to_string(tool));
    ASSERT_NE(window.cmd_művelet[tool].Picture, nullptr);
    EXPECT_EQ(window.aktívgomb.Picture, window.cmd_művelet[tool].Picture);
    EXPECT_EQ(window.chk_foltfestés.Visible, tool == frm_rajz::fill);
  }
}

TEST_F(DrawingTest, AToolWithoutItsPictureSaysItsName) { EXPECT_EQ(utf8(board().cmd_művelet[1].Caption), "Radír"); }

TEST_F(DrawingTest, ASwatchGivesItsColourAndTheWidthIsShownInIt) {
  auto& window = open_board();
  hand::click(window.szín[13]);
  EXPECT_EQ(window.aktívszín.BackColor, window.szín[13].BackColor);
  choose_width(4);
  EXPECT_EQ(window.kép.DrawWidth, 13);
  const auto& sample = drawn(window.aktívvastagság);
  ASSERT_EQ(sample.drawings().size(), 1U) << "cleared before";
  EXPECT_EQ(sample.drawings()[0].color, window.szín[13].BackColor);
  EXPECT_EQ(sample.drawings()[0].width, 13 * px);
  EXPECT_EQ(sample.drawings()[0].from.y, window.aktívvastagság.Height / 2);
}

TEST_F(DrawingTest, ADoubleClickOnTheColourChoosesOneOfOnesOwn) {
  auto& window = open_board();
  choose_color(strong_red);
  machine.dialogs().colors = {Color{1, 2, 3}};
  hand::double_click(window.aktívszín);
  EXPECT_EQ(machine.dialogs().color_questions, (std::vector<Color>{strong_red}))
      << "the dialog begins at the present one";
  EXPECT_EQ(window.aktívszín.BackColor, (Color{1, 2, 3}));
  hand::double_click(window.aktívszín); // put away
  EXPECT_EQ(window.aktívszín.BackColor, (Color{1, 2, 3}));
}

// Pen, eraser, line, rectangle.

TEST_F(DrawingTest, ThePenDrawsFromPlaceToPlace) {
  open_board();
  choose_width(0);
  press(10, 10);
  EXPECT_EQ(color_at(10, 10), black) << "a point at once";
  move(40, 10);
  move(40, 30);
  release(40, 30);
  for (int x = 10; x <= 40; ++x) EXPECT_EQ(color_at(x, 10), black) << x;
  for (int y = 10; y <= 30; ++y) EXPECT_EQ(color_at(40, y), black) << y;
  EXPECT_EQ(color_at(20, 20), white);
  move(100, 100, MouseButton::None);
  EXPECT_EQ(color_at(60, 60), white) << "lifted";
}

TEST_F(DrawingTest, ThePenDrawsInTheChosenColourAndWidth) {
  open_board();
  choose_color(strong_red);
  choose_width(2);
  stroke(30, 30, 60, 30);
  int thick = 0;
  for (int y = 0; y < 60; ++y) thick += color_at(45, y) == strong_red ? 1 : 0;
  EXPECT_EQ(thick, 7);
}

TEST_F(DrawingTest, OnlyTheLeftButtonDraws) {
  auto& window = open_board();
  for (int tool = 0; tool < 5; ++tool) {
    choose(tool);
    for (const MouseButton button : {MouseButton::Right, MouseButton::Middle}) {
      hand::press(window.kép, 300, 300, button);
      hand::move(window.kép, 900, 900, button);
      hand::release(window.kép, 900, 900, button);
    }
  }
  EXPECT_TRUE(blank());
}

TEST_F(DrawingTest, AStrokeMayLeaveThePaperAndComeBack) {
  open_board();
  choose_width(0);
  press(5, 5);
  move(-400, 5);
  move(5, 20);
  release(5, 20);
  EXPECT_EQ(color_at(0, 5), black);
  EXPECT_EQ(color_at(5, 20), black);
}

TEST_F(DrawingTest, TheEraserIsAsWideAsFiftyTwipsForEachUnitOfWidth) {
  auto& window = open_board();
  choose(frm_rajz::eraser);
  for (int i = 0; i < 5; ++i) {
    choose_width(i);
    move(100, 100, MouseButton::None);
    EXPECT_TRUE(window.radír.Visible);
    EXPECT_EQ(window.radír.Width, 50 * (3 * i + 1));
    EXPECT_EQ(window.radír.Height, 50 * (3 * i + 1));
    EXPECT_EQ(window.radír.Left + window.radír.Width / 2, at(100, 100).x);
    EXPECT_EQ(window.radír.Top + window.radír.Height / 2, at(100, 100).y);
  }
}

TEST_F(DrawingTest, TheEraserOfWidthOneHasASideOfFiftyTwips) {
  auto& window = open_board();
  choose_width(0);
  choose(frm_rajz::eraser);
  press(50, 50);
  EXPECT_EQ(window.radír.Width, 50);
  release(50, 50);
}

TEST_F(DrawingTest, TheEraserPaintsWhiteAllTheWay) {
  auto& window = open_board();
  window.board().load(image_of(Rows(200, std::string(400, 'r'))));
  const PixelImage before = seen();
  const int top = (before.height - 200) / 2 < 0 ? 0 : before.height / 2;
  choose(frm_rajz::eraser);
  choose_width(1);
  const int left = before.width / 2 - 100;
  stroke(left, top, left + 200, top);
  for (int x = left; x <= left + 200; ++x) EXPECT_EQ(color_at(x, top), white) << x;
  EXPECT_EQ(color_at(left + 100, top + 20), red);
}

TEST_F(DrawingTest, TheEraserFrameGoesWhenTheMouseLeavesThePaperOrTheToolChanges) {
  auto& window = open_board();
  choose(frm_rajz::eraser);
  move(50, 50, MouseButton::None);
  EXPECT_TRUE(window.radír.Visible);
  input::mouse_move(window, MouseEvent{MouseButton::None, 0, 10, 10});
  EXPECT_FALSE(window.radír.Visible);
  move(50, 50, MouseButton::None);
  choose(frm_rajz::pen);
  EXPECT_FALSE(window.radír.Visible);
  move(60, 60, MouseButton::None);
  EXPECT_FALSE(window.radír.Visible);
}

TEST_F(DrawingTest, ALineIsStretchedAndDrawnOnRelease) {
  auto& window = open_board();
  choose(frm_rajz::straight_line);
  choose_width(0);
  press(20, 60);
  EXPECT_TRUE(window.vonal.Visible);
  EXPECT_EQ(window.vonal.Width, 0);
  move(50, 20);
  EXPECT_TRUE(blank()) << "only promised";
  EXPECT_EQ(window.vonal.Left, at(20, 0).x);
  EXPECT_EQ(window.vonal.Top, at(0, 20).y);
  EXPECT_EQ(window.vonal.Width, 30 * px);
  EXPECT_EQ(window.vonal.Height, 40 * px);
  EXPECT_TRUE(window.vonal.Rising);
  move(60, 60);
  EXPECT_FALSE(window.vonal.Rising);
  release(60, 60);
  EXPECT_FALSE(window.vonal.Visible);
  for (int x = 20; x <= 60; ++x) EXPECT_EQ(color_at(x, 60), black) << x;
  EXPECT_EQ(color_at(40, 40), white);
}

TEST_F(DrawingTest, ARectangleIsStretchedByFourLinesAndDrawnOnRelease) {
  auto& window = open_board();
  choose(frm_rajz::rectangle);
  choose_width(0);
  choose_color(strong_blue);
  press(80, 70);
  window.Line1.each([](const Line& line) { EXPECT_TRUE(line.Visible); });
  move(20, 30); // up and to the left of its corner
  EXPECT_TRUE(blank());
  double length = 0;
  window.Line1.each([&](const Line& line) { length += line.Width + line.Height; });
  EXPECT_EQ(length, 2 * (60 + 40) * px);
  release(20, 30);
  window.Line1.each([](const Line& line) { EXPECT_FALSE(line.Visible); });
  for (int x = 20; x <= 80; ++x) {
    EXPECT_EQ(color_at(x, 30), strong_blue) << x;
    EXPECT_EQ(color_at(x, 70), strong_blue) << x;
  }
  for (int y = 30; y <= 70; ++y) {
    EXPECT_EQ(color_at(20, y), strong_blue) << y;
    EXPECT_EQ(color_at(80, y), strong_blue) << y;
  }
  EXPECT_EQ(color_at(50, 50), white);
}

TEST_F(DrawingTest, EscapeGivesUpARubberLine) {
  auto& window = open_board();
  choose(frm_rajz::rectangle);
  press(20, 20);
  move(60, 60);
  hand::key(window, key::escape);
  release(60, 60);
  EXPECT_TRUE(blank());
  EXPECT_FALSE(window.Line1[0].Visible);
  EXPECT_FALSE(window.cmd_undo.Enabled);
}

// The fill.

TEST_F(DrawingTest, TheFillFloodsUpToTheOutline) {
  auto& window = open_board();
  choose(frm_rajz::rectangle);
  stroke(20, 20, 120, 90);
  choose(frm_rajz::fill);
  choose_color(strong_red);
  click(21 + 3, 21 + 3);
  EXPECT_EQ(color_at(70, 50), strong_red);
  EXPECT_EQ(color_at(20, 50), black);
  EXPECT_EQ(color_at(140, 50), white);
  EXPECT_TRUE(window.Enabled);
  EXPECT_EQ(window.Pointer, MousePointer::Arrow);
  EXPECT_EQ(window.kép.DrawWidth, 4) << "as before the fill";
}

TEST_F(DrawingTest, AFillIsSeenGrowingWhileTheWindowTakesNoInput) {
  struct Watcher : DiaryPlatform {};
  auto& window = open_board();
  choose(frm_rajz::fill);
  const int before = machine.redraws;
  click(0, 0);
  const PixelImage all = seen();
  EXPECT_EQ(machine.redraws - before, all.width * all.height / 1000);
  EXPECT_TRUE(window.Enabled);
}

TEST_F(DrawingTest, AClickOnAPointOfThePresentColourChangesNothing) {
  auto& window = open_board();
  choose(frm_rajz::fill);
  click(30, 30);
  const PixelImage before = seen();
  const int redraws = machine.redraws;
  click(50, 50);
  EXPECT_EQ(seen(), before);
  EXPECT_EQ(machine.redraws, redraws);
  hand::click(window.cmd_undo);
  EXPECT_TRUE(blank()) << "it was no step";
}

TEST_F(DrawingTest, ProtectedBlackCannotBeFlooded) {
  auto& window = open_board();
  choose_width(4);
  stroke(40, 40, 80, 40);
  choose(frm_rajz::fill);
  choose_color(strong_red);
  hand::click(window.chk_vonalnem);
  const PixelImage before = seen();
  click(60, 40);
  EXPECT_EQ(seen(), before);
  click(10, 10);
  EXPECT_EQ(color_at(10, 10), strong_red) << "other colours can";
  hand::click(window.chk_vonalnem);
  click(60, 40);
  EXPECT_EQ(color_at(60, 40), strong_red) << "nor is black protected any more";
}

TEST_F(DrawingTest, ABlotGrowsOverEightNeighbours) {
  auto& window = open_board();
  choose(frm_rajz::straight_line);
  choose_width(0);
  const PixelImage all = seen();
  // A slanted line from edge to edge: four neighbours stay on their side, eight go through.
  stroke(-1, 61, 61, -1);
  choose(frm_rajz::fill);
  choose_color(strong_red);
  click(5, 5);
  EXPECT_EQ(color_at(all.width - 1, all.height - 1), white);
  hand::click(window.cmd_undo);
  hand::click(window.chk_foltfestés);
  click(5, 5);
  EXPECT_EQ(color_at(all.width - 1, all.height - 1), strong_red);
}

TEST_F(DrawingTest, AFillInACorridorRunsAlongItAndEnds) {
  auto& window = open_board();
  Rows rows(50, std::string(120, '#'));
  for (int x = 5; x < 110; ++x) rows[10][static_cast<std::size_t>(x)] = '.';
  const PixelImage all = seen();
  PixelImage sheet{all.width, all.height, {}};
  sheet.pixels.assign(all.pixels.size(), black);
  for (int x = 5; x < 110; ++x) sheet.at(x, 10) = white;
  window.board().load(sheet);
  choose(frm_rajz::fill);
  choose_color(strong_red);
  click(5, 10);
  for (int x = 5; x < 110; ++x) EXPECT_EQ(color_at(x, 10), strong_red) << x;
  EXPECT_EQ(color_at(4, 10), black);
}

// Undo and redo.

TEST_F(DrawingTest, EveryToolIsOneStepBack) {
  auto& window = open_board();
  choose_width(0);
  std::vector<PixelImage> states{seen()};
  const auto note = [&] { states.push_back(seen()); };
  stroke(10, 10, 90, 40);
  note();
  choose(frm_rajz::rectangle);
  stroke(20, 20, 70, 60);
  note();
  choose(frm_rajz::straight_line);
  stroke(5, 80, 99, 3);
  note();
  choose(frm_rajz::fill);
  choose_color(strong_blue);
  click(60, 30);
  note();
  choose(frm_rajz::eraser);
  stroke(30, 30, 60, 50);
  note();
  hand::click(window.cmd_törlés);
  note();
  for (std::size_t i = states.size() - 1; i-- > 0;) {
    hand::click(window.cmd_undo);
    EXPECT_EQ(seen(), states[i]) << i;
  }
  EXPECT_FALSE(window.cmd_undo.Enabled);
  for (std::size_t i = 1; i < states.size(); ++i) {
    hand::key(window, 'Y', shift::control);
    EXPECT_EQ(seen(), states[i]) << i;
  }
  EXPECT_FALSE(window.cmd_redo.Enabled);
  hand::key(window, 'Z', shift::control);
  EXPECT_EQ(seen(), states[states.size() - 2]);
}

TEST_F(DrawingTest, AtLeastTwentyStepsGoBack) {
  auto& window = open_board();
  for (int i = 0; i < 25; ++i) stroke(5 + 4 * i, 10, 5 + 4 * i, 60);
  for (int i = 0; i < 25; ++i) hand::click(window.cmd_undo);
  EXPECT_TRUE(blank());
}

TEST_F(DrawingTest, NothingGoesBackWhileTheMouseDraws) {
  auto& window = open_board();
  stroke(10, 10, 50, 10);
  press(10, 30);
  hand::key(window, 'Z', shift::control);
  move(50, 30);
  release(50, 30);
  EXPECT_EQ(color_at(30, 10), black);
  EXPECT_EQ(color_at(30, 30), black);
}

// The time limit.

TEST_F(DrawingTest, AfterTwoMinutesItSaysItIsTimeForLettersKeepsTheDrawingAndEnds) {
  const std::int64_t begin = machine.now();
  PixelImage drawing;
  then_in<frm_rajz>([&](frm_rajz&) {
    stroke(10, 10, 60, 60);
    drawing = seen();
  });
  then_in<frm_szövegüzenet>([&](frm_szövegüzenet& panel) {
    EXPECT_EQ(machine.now() - begin, 120000);
    EXPECT_EQ(utf8(panel.pic_üzenet.Tag), "Folytassuk a játékot a betűkkel!");
    EXPECT_EQ(panel.timer_bezár.Interval, 15000);
  });
  machine.show_modal(board());
  EXPECT_EQ(machine.now() - begin, 135000);
  EXPECT_FALSE(session().loaded<frm_rajz>());
  EXPECT_EQ(bitmap(u"c:\\pomzu\\cserko\\temp.bmp"), drawing);
}

TEST_F(DrawingTest, GoesOnWithTheDrawingThatTimeHasEnded) {
  const PixelImage sheet = [&] {
    const PixelImage all = board().board().image();
    PixelImage image{all.width, all.height, {}};
    image.pixels.assign(all.pixels.size(), strong_red);
    return image;
  }();
  session().unload(board());
  put_bitmap(u"c:\\pomzu\\cserko\\temp.bmp", sheet);
  EXPECT_EQ(seen(), sheet);
  EXPECT_FALSE(board().cmd_undo.Enabled);
}

TEST_F(DrawingTest, ADamagedWorkFileIsAnEmptySheet) {
  machine.files().put(u"c:\\pomzu\\cserko\\temp.bmp", "BM and then nothing");
  EXPECT_TRUE(blank());
}

TEST_F(DrawingTest, AnActivationStartsTheTwoMinutesAnew) {
  auto& window = open_board();
  machine.advance(60000);
  EXPECT_EQ(window.percek, 1);
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) { hand::click(panel.cmd_ok); });
  szöveges_üzenet(session(), u"Közben.", 0);
  EXPECT_EQ(window.percek, 0) << "it has come to the front again";
  machine.advance(60000);
  EXPECT_TRUE(session().loaded<frm_rajz>());
}

TEST_F(DrawingTest, DoesNotCloseWhileAFileDialogHasTheFocus) {
  auto& window = open_board();
  machine.dialogs().while_standing = [&] { machine.advance(300000); };
  hand::click(window.cmd_megnyit);
  EXPECT_TRUE(session().loaded<frm_rajz>());
  EXPECT_EQ(window.percek, 0) << "the end of the dialog activates it";
  EXPECT_EQ(machine.count("load frm_szövegüzenet"), 0);
  machine.dialogs().while_standing = nullptr;
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) { hand::click(panel.cmd_ok); });
  machine.advance(120000);
  EXPECT_FALSE(session().loaded<frm_rajz>());
}

TEST_F(DrawingTest, FromTheMenuItHasNoLimitAndLeavesNoWorkFile) {
  auto& main = open<frm_főablak>();
  then_in<frm_rajz>([this](frm_rajz& window) {
    machine.advance(600000);
    stroke(10, 10, 60, 60);
    hand::close(window);
  });
  hand::click(main.mnu_jutalom_rajz);
  EXPECT_FALSE(session().loaded<frm_rajz>());
  EXPECT_EQ(machine.count("load frm_szövegüzenet"), 0);
  EXPECT_EQ(file(u"c:\\pomzu\\cserko\\temp.bmp"), "(none)");
}

TEST_F(DrawingTest, AWorkFileThatCannotBeWrittenIsNoError) {
  open_board();
  stroke(10, 10, 60, 60);
  machine.files().make_unwritable(u"c:\\pomzu");
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) { hand::click(panel.cmd_ok); });
  machine.advance(120000);
  EXPECT_FALSE(session().loaded<frm_rajz>());
  EXPECT_EQ(file(u"c:\\pomzu\\cserko\\temp.bmp"), "(none)");
}

TEST_F(DrawingTest, TheMisspeltFolderIsMadeNowhereUseful) {
  machine.files().put_folder(u"c:\\pomzu\\cserko");
  open_board();
  then_in<frm_szövegüzenet>([](frm_szövegüzenet& panel) { hand::click(panel.cmd_ok); });
  machine.advance(120000);
  EXPECT_FALSE(machine.files().folder_exists(u"c:\\pomzu\\cserok"));
  EXPECT_NE(file(u"c:\\pomzu\\cserko\\temp.bmp"), "(none)");
}

// The way to it.

TEST_F(DrawingTest, AsARewardItStartsTheCountAnew) {
  put_app_file(u"dicskép\\one.wmf");
  session().játékszámláló = 1;
  then_in<frm_gratuláció>([](frm_gratuláció& panel) {
    EXPECT_TRUE(panel.cmd_rajz.Enabled);
    hand::click(panel.cmd_rajz);
  });
  then_in<frm_rajz>([this](frm_rajz& window) {
    EXPECT_EQ(session().játékszámláló, 5);
    EXPECT_TRUE(window.Timer2.Enabled);
    hand::close(window);
  });
  machine.show_modal(load<frm_gratuláció>());
  EXPECT_FALSE(session().loaded<frm_gratuláció>());
}

TEST_F(DrawingTest, BothRewardsAreAliveByOneTest) {
  put_app_file(u"dicskép\\one.wmf");
  for (const std::int16_t left : {std::int16_t{3}, std::int16_t{1}}) {
    session().játékszámláló = left;
    auto& panel = load<frm_gratuláció>();
    EXPECT_EQ(panel.cmd_rajz.Enabled, panel.cmd_dob.Enabled);
    EXPECT_EQ(panel.cmd_rajz.Enabled, left == 1);
    session().unload(panel);
  }
}

} // namespace
} // namespace cserko
