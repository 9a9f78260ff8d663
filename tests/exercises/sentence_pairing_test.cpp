// Sentence pairing: the set and its draw, the line and its wiping, the two ways of checking, lines from both columns,
// choosing without drawing, the keys.
#include "tests/exercises/sentence_pairing_fixture.h"
#include "tests/players/párosító_player.h"

#include <set>

namespace cserko {
namespace {

class PairingTest : public PairingFixture {};

TEST_F(PairingTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_párosító>();
  EXPECT_EQ(utf8(window->Caption), "Mondatpárosító");
  EXPECT_EQ(place_of(window->label_feladat), (Rect{120, 0, 7575, 375}));
  const std::vector<double> tops{480, 1560, 2640, 3720, 4800};
  for (int i = 0; i < rows; ++i) {
    const double top = tops[static_cast<std::size_t>(i)];
    EXPECT_EQ(place_of(window->pic_feladvány[i]), (Rect{120, top, 975, 975}));
    EXPECT_EQ(place_of(window->lbl_feladvány[i]), (Rect{3360, top, 4335, 975}));
  }
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_újrakezd.Caption), "&Újrakezdi");
  EXPECT_EQ(utf8(shortcut_text(window->mnu_fájl_újrakezd)), "Ctrl+U");
  EXPECT_EQ(utf8(window->mnu_fájl_újjáték.Caption), "Új játék");
  EXPECT_EQ(utf8(shortcut_text(window->mnu_fájl_újjáték)), "Ctrl+N");
  EXPECT_EQ(utf8(window->mnu_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilépés.Caption), "Kilépés");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(shortcut_text(window->mnu_súgó_súgó)), "F1");
}

TEST_F(PairingTest, FillsItsShareOfTheScreenAndShowsItsTask) {
  auto& window = deal();
  expect_scaled(window, 0.95, u"pic_feladvány");
  EXPECT_EQ(text_of(window.label_feladat), "Kösd össze a képeket a hozzájuk tartozó meghatározásokkal!");
  EXPECT_EQ(window.label_feladat.BackColor, window.BackColor);
}

TEST_F(PairingTest, FivePicturesAndTheirDefinitionsStandInOrdersOfTheirOwn) {
  auto& window = deal();
  EXPECT_EQ(tags(window.lbl_feladvány), (std::vector<std::string>{"0", "1", "2", "3", "4"}));
  EXPECT_EQ(tags(window.pic_feladvány), (std::vector<std::string>{"4", "3", "2", "1", "0"}));
  for (int i = 0; i < rows; ++i) {
    EXPECT_EQ(text_of(window.lbl_feladvány[i]), "meghatározás " + std::to_string(i));
    EXPECT_EQ(picture(window.pic_feladvány[i]), picture_path(partner(i)));
  }
  EXPECT_EQ(live(window.pic_feladvány), all_rows);
  EXPECT_EQ(solved(window), std::vector<int>());
}

TEST_F(PairingTest, TakenRowsAndRecordsThatAreShownOrHaveNoDefinitionAreDrawnAgain) {
  clear_records();
  put({{.név = u"a", .meghatározás = u"A"}, {.név = u"b"}, {.név = u"c", .meghatározás = u"C"}});
  for (const TextView name : {u"d", u"e", u"f", u"g"}) put({.név = Text(name), .meghatározás = Text(name)});
  start();
  const auto row = [](int i) { return drawing(i, rows); };
  machine.script_random({record(2), row(3), row(1)});
  machine.script_random({record(2), record(1), record(0), row(3), row(0), row(1), row(1), row(4)});
  machine.script_random({record(3), row(0), row(1), row(4), row(0)});
  machine.script_random({record(4), row(1), row(2), row(0), row(3)});
  machine.script_random({record(5), row(4), row(2)});
  auto& window = open<frm_párosító>();
  EXPECT_EQ(tags(window.lbl_feladvány), (std::vector<std::string>{"0", "3", "4", "2", "5"}));
  EXPECT_EQ(tags(window.pic_feladvány), (std::vector<std::string>{"3", "2", "5", "4", "0"}));
}

TEST_F(PairingTest, TheLastRecordIsNeverDrawnAndNoneComesTwiceInASet) {
  auto& window = deal();
  for (int i = 0; i < 200; ++i) {
    window.beáll();
    const auto records = tags(window.lbl_feladvány);
    EXPECT_EQ(std::set<std::string>(records.begin(), records.end()).size(), 5U);
    EXPECT_EQ(std::count(records.begin(), records.end(), "7"), 0);
    auto pictures_of = tags(window.pic_feladvány);
    EXPECT_TRUE(std::is_permutation(records.begin(), records.end(), pictures_of.begin()));
  }
}

TEST_F(PairingTest, TheWidestDefinitionGivesAllTheirFont) {
  clear_records();
  for (const TextView text : {u"rövid", u"egy valamivel hosszabb meghatározás", u"még rövid", u"ez is", u"az is", u"x"})
    put({.név = u"n", .meghatározás = Text(text)});
  auto& window = deal();
  const PictureBox& box = window.lbl_feladvány[1];
  const double size = first_overfilling_size(machine, {.size = 8}, u"egy valamivel hosszabb meghatározás",
                                             {0.9 * box.Width, 0.9 * box.Height});
  EXPECT_GE(size, 14);
  window.lbl_feladvány.each([&](PictureBox& each) {
    EXPECT_EQ(each.Font.size, size);
    const Drawing& text = drawn(each).drawings().back();
    const Size extent = machine.measure(each.Font, text.text);
    EXPECT_NEAR(text.from.x, each.Width / 2 - extent.width / 2, 1e-6);
    EXPECT_NEAR(text.from.y, each.Height / 2 - extent.height / 2, 1e-6);
  });
}

TEST_F(PairingTest, DefinitionsThatWouldBeSmallOnOneLineAreBrokenIntoLinesOfOneSize) {
  machine.set_screen(1024, 600);
  clear_records();
  const Text text = u"Vezetékes készülék ívelt része, amelyet a fülünkhöz szoktunk emelni.";
  put({.név = u"n", .meghatározás = text});
  for (int i = 0; i < 5; ++i) put({.név = u"n", .meghatározás = u"Ez egy rövid mondat."});
  auto& window = deal();
  const auto texts = drawn(window.lbl_feladvány[0]).texts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find(u'\r'), Text::npos);
  Text joined = texts[0];
  std::replace(joined.begin(), joined.end(), u'\r', u' ');
  EXPECT_EQ(joined, text);
  EXPECT_GE(window.lbl_feladvány[0].Font.size, 14);
  window.lbl_feladvány.each([&](PictureBox& box) {
    EXPECT_EQ(box.Font.size, window.lbl_feladvány[0].Font.size);
    const Size extent = machine.measure(box.Font, drawn(box).texts()[0]);
    EXPECT_LE(extent.width, 0.9 * box.Width);
    EXPECT_LE(extent.height, 0.9 * box.Height);
  });
}

TEST_F(PairingTest, TheLineIsTheWholeWayOfThePointer) {
  auto& window = deal_checking_at_once();
  PictureBox& from = window.pic_feladvány[0];
  std::vector<Point> way{middle(from)};
  for (int i = 1; i < 40; ++i) way.push_back({middle(from).x + 150.0 * (i % 17), middle(from).y + 240.0 * (i % 11)});
  way.push_back(middle(window.lbl_feladvány[partner(0)]));
  draw_through(from, {way.begin() + 1, way.end()});
  const auto drawn_lines = drawn_as(window, Drawing::Kind::Line);
  ASSERT_EQ(drawn_lines.size(), way.size() - 1);
  for (std::size_t i = 0; i < drawn_lines.size(); ++i) {
    EXPECT_NEAR(drawn_lines[i].from.x, way[i].x, 0.5);
    EXPECT_NEAR(drawn_lines[i].from.y, way[i].y, 0.5);
    EXPECT_NEAR(drawn_lines[i].to.x, way[i + 1].x, 0.5);
    EXPECT_NEAR(drawn_lines[i].to.y, way[i + 1].y, 0.5);
    EXPECT_EQ(drawn_lines[i].width, 45);
  }
}

TEST_F(PairingTest, ALineIntoTheStripOrToItsOwnColumnIsWipedWithoutASound) {
  auto& window = deal();
  draw_through(window.pic_feladvány[0], {in_strip(window, 2), in_strip(window, 4)});
  EXPECT_EQ(lines(window), 2U);
  EXPECT_EQ(wiped(window), 2U);
  draw_through(window.pic_feladvány[0], {in_strip(window, 1), middle(window.pic_feladvány[3])});
  EXPECT_EQ(wiped(window), 4U);
  draw_through(window.lbl_feladvány[0], {in_strip(window, 1), middle(window.lbl_feladvány[3])});
  EXPECT_EQ(wiped(window), 6U);
  EXPECT_EQ(inked(window), 0) << "nothing is left";
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(live(window.pic_feladvány), all_rows);
  EXPECT_EQ(live(window.lbl_feladvány), all_rows);
}

TEST_F(PairingTest, ALineIsWipedAlongItsOwnPoints) {
  auto& window = deal();
  draw_through(window.pic_feladvány[0], {in_strip(window, 2), in_strip(window, 4), in_strip(window, 1)});
  const auto line = drawn_as(window, Drawing::Kind::Line);
  const auto wipe = drawn_as(window, Drawing::Kind::EraseLine);
  ASSERT_EQ(line.size(), wipe.size());
  for (std::size_t i = 0; i < line.size(); ++i) {
    EXPECT_EQ(line[i].from, wipe[i].from);
    EXPECT_EQ(line[i].to, wipe[i].to);
    EXPECT_EQ(line[i].width, wipe[i].width);
  }
}

TEST_F(PairingTest, ALineThatIsCrossedByAWipedOneLosesItsPixelsThere) {
  auto& window = deal_checking_at_once();
  join(window, 2, 2);
  const int whole = inked(window);
  const Point crossing = in_strip(window, 2);
  EXPECT_NE(drawing_of(window).point(crossing), white);
  draw_through(window.pic_feladvány[0],
               {{crossing.x, middle(window.pic_feladvány[0]).y}, {crossing.x, middle(window.pic_feladvány[4]).y}});
  EXPECT_EQ(drawing_of(window).point(crossing), white);
  EXPECT_LT(inked(window), whole);
  EXPECT_GT(inked(window), whole / 2) << "and nothing else of it";
}

TEST_F(PairingTest, CheckedAtOnceARightPairStaysAndGoesDead) {
  auto& window = deal_checking_at_once();
  join(window, 1, 3);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(wiped(window), 0U);
  EXPECT_GT(inked(window), 0);
  EXPECT_EQ(live(window.pic_feladvány), (std::vector<int>{0, 2, 3, 4}));
  EXPECT_EQ(live(window.lbl_feladvány), (std::vector<int>{0, 1, 2, 4}));
  EXPECT_EQ(solved(window), std::vector<int>{1});
}

TEST_F(PairingTest, CheckedAtOnceAWrongLineVanishesAndNothingGoesDead) {
  auto& window = deal_checking_at_once();
  join(window, 1, 2);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(inked(window), 0);
  EXPECT_EQ(live(window.pic_feladvány), all_rows);
  EXPECT_EQ(live(window.lbl_feladvány), all_rows);
  draw_line(window.lbl_feladvány[1], window.pic_feladvány[0]);
  EXPECT_EQ(inked(window), 0);
  EXPECT_EQ(live(window.lbl_feladvány), all_rows);
  EXPECT_EQ(solved(window), std::vector<int>());
}

TEST_F(PairingTest, CheckedAtOnceALineFromADefinitionMakesItsOwnPairDead) {
  auto& window = deal_checking_at_once();
  draw_line(window.lbl_feladvány[1], window.pic_feladvány[3]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(live(window.pic_feladvány), (std::vector<int>{0, 1, 2, 4}));
  EXPECT_EQ(live(window.lbl_feladvány), (std::vector<int>{0, 2, 3, 4}));
  EXPECT_EQ(solved(window), std::vector<int>{3});
}

TEST_F(PairingTest, CheckedLateAWrongLineFromAPictureStaysAndItsTwoEndsGoDead) {
  auto& window = deal();
  join(window, 1, 2);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(wiped(window), 0U);
  EXPECT_GT(inked(window), 0);
  EXPECT_EQ(live(window.pic_feladvány), (std::vector<int>{0, 2, 3, 4}));
  EXPECT_EQ(live(window.lbl_feladvány), (std::vector<int>{0, 1, 3, 4}));
  EXPECT_EQ(solved(window), std::vector<int>());
}

TEST_F(PairingTest, CheckedLateAFullBoardWithAWrongPairStartsTheSameSetOver) {
  auto& window = deal();
  const auto before = tags(window.lbl_feladvány);
  join(window, 0, 3);
  join(window, 1, 4);
  for (const int row : {2, 3}) join(window, row, partner(row));
  forget_commands();
  EXPECT_GT(inked(window), 0);
  join(window, 4, 0);
  EXPECT_EQ(begun(u"good.wav"), 3);
  EXPECT_EQ(begun(u"bad.wav"), 3) << "once more for the whole board";
  EXPECT_EQ(inked(window), 0);
  EXPECT_EQ(live(window.pic_feladvány), all_rows);
  EXPECT_EQ(live(window.lbl_feladvány), all_rows);
  EXPECT_EQ(solved(window), std::vector<int>());
  EXPECT_EQ(tags(window.lbl_feladvány), before);
  EXPECT_EQ(text_of(window.lbl_feladvány[0]), "meghatározás 0") << "the definitions are not wiped";
}

TEST_F(PairingTest, CheckedLateALineFromADefinitionMakesTheCrossedOnesDead) {
  auto& window = deal();
  draw_line(window.lbl_feladvány[1], window.pic_feladvány[4]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(live(window.pic_feladvány), (std::vector<int>{0, 2, 3, 4}));
  EXPECT_EQ(live(window.lbl_feladvány), (std::vector<int>{0, 1, 2, 3}));
  EXPECT_GT(inked(window), 0);
}

TEST_F(PairingTest, CheckedLateARightLineFromADefinitionMakesItsOwnPairDeadAsWell) {
  auto& window = deal();
  draw_line(window.lbl_feladvány[1], window.pic_feladvány[3]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(live(window.pic_feladvány), (std::vector<int>{0, 2, 4}));
  EXPECT_EQ(live(window.lbl_feladvány), (std::vector<int>{0, 2, 4}));
  EXPECT_EQ(solved(window), std::vector<int>{3});
}

// Both ends of a pair are dead then, and none of them can begin a line.
TEST_F(PairingTest, CheckedLateALineFromADefinitionCanLockAPairUntilTheSetStartsOver) {
  auto& window = deal();
  draw_line(window.lbl_feladvány[4], window.pic_feladvány[0]);
  EXPECT_EQ(solved(window), std::vector<int>{0});
  join(window, 4, 0);
  draw_line(window.lbl_feladvány[0], window.pic_feladvány[4]);
  EXPECT_EQ(solved(window), std::vector<int>{0});
  EXPECT_EQ(commands(), good_sound);
  for (const int row : {1, 2, 3}) join(window, row, partner(row));
  EXPECT_EQ(begun(u"good.wav"), 4);
  EXPECT_EQ(begun(u"bad.wav"), 1) << "nothing is left to be joined, and one pair is missing";
  EXPECT_EQ(solved(window), std::vector<int>());
  EXPECT_EQ(live(window.pic_feladvány), all_rows);
  join(window, 4, 0);
  EXPECT_EQ(solved(window), std::vector<int>{4});
}

TEST_F(PairingTest, ADropOnADeadElementIsStillHandled) {
  auto& window = deal();
  join(window, 1, 4); // takes the definition of picture 0
  join(window, 0, 4);
  EXPECT_EQ(begun(u"good.wav"), 1);
  EXPECT_EQ(solved(window), std::vector<int>{0});
}

TEST_F(PairingTest, ADeadElementBeginsNoLine) {
  auto& window = deal();
  join(window, 1, 3);
  const std::size_t before = lines(window);
  forget_commands();
  join(window, 1, 2);
  EXPECT_EQ(lines(window), before);
  EXPECT_EQ(commands(), "");
}

TEST_F(PairingTest, TheFifthRightPairIsCongratulatedAndANewSetFollows) {
  for (const TextView mode : {u"True", u"False"}) {
    end_session();
    put_settings(u"paros.ini", {mode});
    auto& window = deal();
    congratulations = 0;
    for (int i = 0; i < 4; ++i) join(window, i, partner(i));
    EXPECT_EQ(congratulations, 0);
    seen_at_congratulation = [&] {
      EXPECT_EQ(tags(window.lbl_feladvány), (std::vector<std::string>{"0", "1", "2", "3", "4"}));
      EXPECT_EQ(solved(window), all_rows);
      EXPECT_EQ(lines(window), 5U);
    };
    then_close_congratulation();
    machine.script_random({0.0, 0.0, 0.0}); // the sound of the answer and those of the praise
    const int errors_before = begun(u"bad.wav");
    join(window, 4, 0);
    EXPECT_EQ(congratulations, 1);
    EXPECT_EQ(begun(u"bad.wav"), errors_before) << "the new set is not taken for a full one";
    EXPECT_EQ(lines(window), 0U);
    EXPECT_EQ(solved(window), std::vector<int>());
    EXPECT_EQ(live(window.pic_feladvány), all_rows);
  }
}

TEST_F(PairingTest, TheRightButtonWipesTheLastLine) {
  auto& window = deal_checking_at_once();
  join(window, 1, 3);
  EXPECT_GT(inked(window), 0);
  hand::click(window.pic_feladvány[0], MouseButton::Right);
  EXPECT_EQ(inked(window), 0);
  EXPECT_EQ(solved(window), std::vector<int>{1}) << "its pair stays solved";
}

TEST_F(PairingTest, TheRightButtonDrawsNothingAndItsDropIsJudged) {
  auto& window = deal_checking_at_once();
  const PictureBox& definition = window.lbl_feladvány[1];
  hand::draw(
      window.pic_feladvány[0],
      {{10, 10},
       {definition.Left + 100 - window.pic_feladvány[0].Left, definition.Top + 100 - window.pic_feladvány[0].Top}},
      MouseButton::Right);
  EXPECT_EQ(lines(window), 0U);
  EXPECT_EQ(commands(), bad_sound);
}

TEST_F(PairingTest, AReleaseBeforeAnyPressDoesNothing) {
  auto& window = deal();
  hand::release(window.pic_feladvány[0], 10, 10);
  hand::move(window.pic_feladvány[0], 3000, 10);
  EXPECT_EQ(lines(window), 0U);
  EXPECT_EQ(wiped(window), 0U);
  EXPECT_EQ(commands(), "");
}

TEST_F(PairingTest, StartingOverKeepsTheSetAndMakesAllLive) {
  auto& window = deal_checking_at_once();
  join(window, 1, 3);
  hand::key(window, 'U', shift::control);
  EXPECT_EQ(lines(window), 0U);
  EXPECT_EQ(solved(window), std::vector<int>());
  EXPECT_EQ(tags(window.pic_feladvány), (std::vector<std::string>{"4", "3", "2", "1", "0"}));
  join(window, 1, 3);
  EXPECT_EQ(begun(u"good.wav"), 2);
  EXPECT_EQ(solved(window), std::vector<int>{1});
}

TEST_F(PairingTest, ANewGameDealsAnotherSet) {
  auto& window = deal();
  join(window, 1, 3);
  script_set({6, 5, 4, 3, 2});
  hand::key(window, 'N', shift::control);
  EXPECT_EQ(tags(window.lbl_feladvány), (std::vector<std::string>{"6", "5", "4", "3", "2"}));
  EXPECT_EQ(lines(window), 0U);
  EXPECT_EQ(live(window.pic_feladvány), all_rows);
}

TEST_F(PairingTest, AClickChoosesAndAClickOnTheOtherSideJoinsByAStraightLine) {
  auto& window = deal_checking_at_once();
  hand::click(window.pic_feladvány[1]);
  EXPECT_TRUE(window.pic_feladvány[1].Selected);
  EXPECT_NE(window.pic_feladvány[1].BackColor, window.pic_feladvány[0].BackColor);
  hand::click(window.lbl_feladvány[3]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(solved(window), std::vector<int>{1});
  EXPECT_FALSE(window.pic_feladvány[1].Selected);
  const auto line = drawn_as(window, Drawing::Kind::Line);
  ASSERT_FALSE(line.empty());
  const Point from = middle(window.pic_feladvány[1]);
  const Point to = middle(window.lbl_feladvány[3]);
  const auto expect_near = [](Point place, Point wanted) {
    EXPECT_NEAR(place.x, wanted.x, 1);
    EXPECT_NEAR(place.y, wanted.y, 1);
  };
  expect_near(line.front().from, from);
  expect_near(line.back().to, to);
  for (const Drawing& piece : line) {
    const double share = (piece.to.x - from.x) / (to.x - from.x);
    expect_near(piece.to, {piece.to.x, from.y + share * (to.y - from.y)});
  }
}

TEST_F(PairingTest, ClickedFromTheDefinitionItIsALineFromTheDefinition) {
  auto& window = deal();
  hand::click(window.lbl_feladvány[1]);
  hand::click(window.pic_feladvány[4]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(live(window.pic_feladvány), (std::vector<int>{0, 2, 3, 4})) << "the crossed ones";
}

TEST_F(PairingTest, AWrongPairOfClicksIsWipedAndNothingStaysChosen) {
  auto& window = deal_checking_at_once();
  hand::click(window.pic_feladvány[1]);
  hand::click(window.lbl_feladvány[2]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(inked(window), 0);
  EXPECT_FALSE(window.pic_feladvány[1].Selected);
}

TEST_F(PairingTest, AClickInTheSameColumnMovesTheChoiceAndOneOnTheChosenTakesItBack) {
  auto& window = deal();
  hand::click(window.pic_feladvány[1]);
  hand::click(window.pic_feladvány[2]);
  EXPECT_FALSE(window.pic_feladvány[1].Selected);
  EXPECT_TRUE(window.pic_feladvány[2].Selected);
  hand::click(window.pic_feladvány[2]);
  EXPECT_FALSE(window.pic_feladvány[2].Selected);
  hand::click(window.lbl_feladvány[2]);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(lines(window), 0U);
}

TEST_F(PairingTest, ALineThatComesBackIsNoClick) {
  auto& window = deal();
  draw_through(window.pic_feladvány[1], {in_strip(window, 1), middle(window.pic_feladvány[1])});
  EXPECT_FALSE(window.pic_feladvány[1].Selected);
  hand::key(window, key::space);
  EXPECT_TRUE(window.pic_feladvány[1].Selected) << "a key right behind it is heard";
}

TEST_F(PairingTest, ALineThatWasDrawnTakesTheChoiceAway) {
  auto& window = deal_checking_at_once();
  hand::click(window.pic_feladvány[1]);
  join(window, 0, 4);
  EXPECT_FALSE(window.pic_feladvány[1].Selected);
}

TEST_F(PairingTest, IsPlayedByTheKeyboardAlone) {
  auto& window = deal_checking_at_once();
  window.set_focus(&window.pic_feladvány[1]);
  hand::key(window, key::space);
  EXPECT_TRUE(window.pic_feladvány[1].Selected);
  hand::key(window, key::right);
  ASSERT_EQ(window.focus(), &window.lbl_feladvány[1]);
  hand::key(window, key::down);
  hand::key(window, key::down);
  ASSERT_EQ(window.focus(), &window.lbl_feladvány[3]);
  hand::key(window, key::enter);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(solved(window), std::vector<int>{1});
  EXPECT_EQ(window.focus(), &window.pic_feladvány[0]) << "the definition that had the focus is dead";
}

TEST_F(PairingTest, PicturesAndDefinitionsHaveNamesForScreenReaders) {
  auto& window = deal();
  EXPECT_EQ(utf8(accessible_name(window.lbl_feladvány[0])), "meghatározás 0");
  EXPECT_EQ(utf8(accessible_name(window.pic_feladvány[0])), "kép 4");
}

TEST_F(PairingTest, WithTooFewDefinitionsTheWindowStaysAndTellsWhy) {
  clear_records();
  for (int i = 0; i < 4; ++i) put({.név = u"n", .meghatározás = u"m " + to_text(i)});
  put({{.név = u"x"}, {.név = u"y"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_párosító>();
  EXPECT_EQ(message, "Nincs elég olyan kép, amelyikhez meghatározás tartozik.");
  EXPECT_EQ(pictures(window.pic_feladvány), no_pictures(5));
  EXPECT_EQ(tags(window.lbl_feladvány), std::vector<std::string>(5, "-1"));
  join(window, 0, 0);
  hand::click(window.pic_feladvány[0]);
  hand::click(window.lbl_feladvány[0]);
  hand::click(window.mnu_fájl_újrakezd);
  EXPECT_EQ(commands(), "") << "empty places are no answer";
  EXPECT_EQ(lines(window), 0U);
}

TEST_F(PairingTest, HelpOpensItsPage) {
  auto& window = deal();
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("mondatpárosító - a feladat.mht"));
}

TEST_F(PairingTest, ClosingKeepsTheDialog) {
  auto& window = deal_checking_at_once();
  join(window, 0, 0);
  hand::click(window.mnu_fájl_kilépés);
  EXPECT_FALSE(session().loaded<frm_párosító>());
  EXPECT_TRUE(session().loaded<frm_párosító_beáll>());
}

class PairingSettingsTest : public PairingFixture {
 protected:
  frm_párosító_beáll& dialog() { return session().window<frm_párosító_beáll>(); }
  static std::vector<bool> options(const frm_párosító_beáll& d) {
    return {d.Option_ellenőr[0].value(), d.Option_ellenőr[1].value()};
  }
};

TEST_F(PairingSettingsTest, HasItsTextsAndDefault) {
  start();
  const auto d = designed<frm_párosító_beáll>();
  EXPECT_EQ(utf8(d->Caption), "Mondatpárosító - Beállítások");
  EXPECT_EQ(utf8(d->Frame1.Caption), "Ellenőrzés");
  EXPECT_EQ(captions(d->Option_ellenőr),
            (std::vector<std::string>{"Ellenőrzés minden párosításkor", "Ellenőrzés csak ha mindnek van párja"}));
  EXPECT_EQ(options(*d), (std::vector<bool>{false, true}));
  EXPECT_EQ(utf8(d->OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d->CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d->cmd_súgó.Caption), "&Súgó");
}

TEST_F(PairingSettingsTest, TheFileHoldsTheFirstOptionAndTheOtherIsItsOpposite) {
  put_settings(u"paros.ini", {u"True"});
  start();
  EXPECT_EQ(options(dialog()), (std::vector<bool>{true, false}));
  end_session();
  put_settings(u"paros.ini", {u"False"});
  start();
  EXPECT_EQ(options(dialog()), (std::vector<bool>{false, true}));
}

TEST_F(PairingSettingsTest, OkWritesItsLineAndDealsAnew) {
  auto& window = deal();
  then_in<frm_párosító_beáll>([this](frm_párosító_beáll& d) {
    hand::click(d.Option_ellenőr[0]);
    script_set({6, 5, 4, 3, 2});
    hand::click(d.OKButton);
  });
  hand::click(window.mnu_beáll);
  EXPECT_EQ(settings(u"paros.ini"), "True\r\n");
  EXPECT_FALSE(dialog().visible());
  EXPECT_EQ(tags(window.lbl_feladvány), (std::vector<std::string>{"6", "5", "4", "3", "2"}));
  join(window, 0, 0);
  EXPECT_EQ(inked(window), 0) << "checked at once";
}

TEST_F(PairingSettingsTest, CancelPutsTheFileBackAndKeepsTheSet) {
  put_settings(u"paros.ini", {u"True"});
  auto& window = deal();
  then_in<frm_párosító_beáll>([](frm_párosító_beáll& d) {
    hand::click(d.Option_ellenőr[1]);
    hand::click(d.CancelButton);
  });
  hand::click(window.mnu_beáll);
  EXPECT_EQ(options(dialog()), (std::vector<bool>{true, false}));
  EXPECT_EQ(tags(window.lbl_feladvány), (std::vector<std::string>{"0", "1", "2", "3", "4"}));
}

TEST_F(PairingSettingsTest, TheHelpOpensItsPage) {
  auto& window = deal();
  then_in<frm_párosító_beáll>([](frm_párosító_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  hand::click(window.mnu_beáll);
  EXPECT_EQ(help_page(), help_command("Mondatpárosító - beállítások.mht"));
}

class PairingPlayerTest : public PairingFixture, public ::testing::WithParamInterface<PlayMode> {};

INSTANTIATE_TEST_SUITE_P(BothHands, PairingPlayerTest, ::testing::Values(PlayMode::Mouse, PlayMode::Keyboard));

// The mode in which wrong lines stay: a full board is heard as wrong once more and starts over. Lines that lock others
// are drawn by none, or the same set would start over for ever.
TEST_P(PairingPlayerTest, SolvesSetsThatAreCheckedLateThoughItErrs) {
  start();
  put_answer_sounds();
  PárosítóPlayer player(session(), GetParam(), 7);
  play(player, 200);
  EXPECT_GE(player.wrong_answers(), 100);
  EXPECT_GT(begun(u"bad.wav"), player.wrong_answers());
}

} // namespace
} // namespace cserko
