// Knight's jump is played: moves, undoing, the end, the message, the hint, the reading.
#include "tests/exercises/knight_fixture.h"

#include <algorithm>

namespace cserko {
namespace {

TEST_F(KnightPlayTest, TheGameBeginsOnTheStartFieldWithOneStep) {
  auto& window = alma();
  EXPECT_EQ(window.lépésszám(), 1);
  EXPECT_EQ(window.út(), (std::vector<Square>{{2, 1}, {0, 0}}));
  EXPECT_EQ(ground(window, {0, 0}), "own");
  EXPECT_EQ(window.focus(), &window.kép[0]);
  machine.script_random({draws(1)});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(heard(), step_sound) << "the entry of the start sounds as a step";
}

TEST_F(KnightPlayTest, ALegalStepTakesTheLetterAndColoursTheFieldThatIsLeft) {
  auto& window = alma();
  click(window, {2, 1});
  EXPECT_EQ(heard(), step_sound);
  EXPECT_EQ(names(window), "a/alma / / / ");
  EXPECT_EQ(window.lépésszám(), 2);
  EXPECT_EQ(ground(window, {0, 0}), "dark green") << "whose square is dark";
  EXPECT_EQ(window.field({0, 0}).ForeColor, white);
  EXPECT_EQ(ground(window, {2, 1}), "own");
  click(window, {4, 2});
  EXPECT_EQ(ground(window, {2, 1}), "light green") << "whose square is light";
  EXPECT_EQ(window.field({2, 1}).ForeColor, black);
  EXPECT_FALSE(window.field({2, 1}).Enabled);
  EXPECT_TRUE(window.field({4, 2}).Enabled);
  EXPECT_EQ(names(window), "al/alma / / / ");
}

TEST_F(KnightPlayTest, AnIllegalStepOnlySounds) {
  auto& window = alma();
  for (const Square to : {Square{1, 1}, {0, 1}, {5, 5}}) {
    click(window, to);
    EXPECT_EQ(heard(), illegal_sound);
    EXPECT_EQ(ground(window, to), "own");
  }
  EXPECT_EQ(window.lépésszám(), 1);
  EXPECT_EQ(names(window), "/alma / / / ");
}

TEST_F(KnightPlayTest, ByTheOtherRuleAStepGoesToANeighbour) {
  auto& window = board(1, {3, 3}, {6, 8, 8, 2}, {.neighbours = true});
  EXPECT_EQ(window.megoldás(), (std::vector<Square>{{3, 3}, {4, 3}, {4, 4}, {4, 5}, {3, 5}}));
  click(window, {5, 4});
  EXPECT_EQ(heard(), illegal_sound);
  click(window, {2, 2});
  EXPECT_EQ(heard(), step_sound);
  EXPECT_EQ(window.út().back(), (Square{2, 2}));
}

TEST_F(KnightPlayTest, AWalkedFieldCannotBeEnteredAgain) {
  auto& window = alma();
  click(window, {2, 1});
  click(window, {4, 2});
  heard();
  click(window, {2, 1});
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(window.lépésszám(), 3);
}

TEST_F(KnightPlayTest, AWrongLetterIsTakenAsItStands) {
  auto& window = alma();
  const Square wrong = wrong_way(window);
  const std::string letter = utf8(window.field(wrong).Caption);
  click(window, wrong);
  EXPECT_EQ(names(window), letter + "/alma / / / ");
}

// Undoing.

TEST_F(KnightPlayTest, TheButtonTakesAStepBack) {
  auto& window = alma();
  walk(window, 2);
  heard();
  hand::click(window.Command1);
  EXPECT_EQ(heard(), undo_sound);
  EXPECT_EQ(window.lépésszám(), 2);
  EXPECT_EQ(names(window), "a/alma / / / ");
  EXPECT_EQ(ground(window, {4, 2}), "own");
  EXPECT_EQ(ground(window, {2, 1}), "own");
  EXPECT_EQ(window.field({2, 1}).ForeColor, black);
  EXPECT_TRUE(window.field({2, 1}).Enabled);
  EXPECT_TRUE(window.field({4, 2}).Enabled);
  EXPECT_EQ(window.focus(), &window.kép[0]);
}

TEST_F(KnightPlayTest, AClickOnTheFieldStoodOnTakesTheStepBack) {
  auto& window = alma();
  walk(window, 1);
  heard();
  click(window, {2, 1});
  EXPECT_EQ(heard(), undo_sound);
  EXPECT_EQ(window.lépésszám(), 1);
  EXPECT_TRUE(window.field({0, 0}).Enabled);
  click(window, {0, 0});
  EXPECT_EQ(heard(), "") << "the start is never taken back";
  EXPECT_EQ(window.lépésszám(), 1);
  walk(window, 1);
  EXPECT_EQ(names(window), "a/alma / / / ");
  EXPECT_FALSE(window.field({0, 0}).Enabled);
}

TEST_F(KnightPlayTest, NothingIsUndoneOnTheStartField) {
  auto& window = alma();
  hand::click(window.Command1);
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(window.lépésszám(), 1);
  EXPECT_EQ(window.focus(), &window.kép[0]) << "in any case";
}

TEST_F(KnightPlayTest, UndoingTakesAsManyCharactersAsTheFieldHas) {
  put_only({{.név = u"kedzs"}, {.név = u"ló"}});
  want({.pictures = 2});
  start_session();
  machine.script_random({draws(1), draws(2)});
  machine.script_random(path({0, 0}, {7, 7, 1, 8, 3}));
  auto& window = game();
  walk(window, 3);
  EXPECT_EQ(names(window), "kedzs/kedzs /ló / / ");
  hand::click(window.Command1);
  EXPECT_EQ(names(window), "ke/kedzs /ló / / ");
  walk(window, 0);
  click(window, window.megoldás()[3]);
  click(window, window.megoldás()[4]);
  EXPECT_EQ(names(window), "kedzs/kedzs l/ló / / ");
  hand::click(window.Command1);
  hand::click(window.Command1);
  EXPECT_EQ(names(window), "ke/kedzs /ló / / ") << "from the last name that is not empty";
}

// The start on the field that stands before every way.

TEST_F(KnightPlayTest, AStartOnTheThirdColumnAndSecondRowIsNotEnteredAndTheFirstStepGoesAnywhere) {
  auto& window = board(1, {2, 1}, {7, 8, 2, 2});
  EXPECT_EQ(window.lépésszám(), 0);
  EXPECT_EQ(heard(), "");
  hand::click(window.Command1);
  EXPECT_EQ(window.lépésszám(), 0);
  click(window, {7, 7});
  EXPECT_EQ(heard(), step_sound);
  EXPECT_EQ(window.út(), (std::vector<Square>{{2, 1}, {7, 7}}));
  EXPECT_EQ(names(window), utf8(window.field({7, 7}).Caption) + "/alma / / / ");
  EXPECT_EQ(ground(window, {2, 1}), "own");
  hand::click(window.Command1);
  EXPECT_EQ(window.lépésszám(), 1) << "nor is that step taken back";
  click(window, {7, 6});
  EXPECT_EQ(heard(), illegal_sound);
}

TEST_F(KnightPlayTest, FromThereTheNamesAreFoundAllTheSame) {
  auto& window = board(1, {2, 1}, {7, 8, 2, 2});
  then_close_congratulation();
  walk(window, 4);
  EXPECT_EQ(congratulations, 1);
}

// The end.

TEST_F(KnightPlayTest, TheHiddenPathWinsAndANewBoardFollows) {
  auto& window = alma();
  walk(window, 3);
  seen_at_congratulation = [&] { EXPECT_EQ(names(window), "alma/alma / / / "); };
  then_close_congratulation();
  const auto before = window.megoldás();
  click(window, {4, 6});
  EXPECT_EQ(congratulations, 1);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_NE(window.megoldás(), before);
  EXPECT_EQ(window.képnév[0].Caption, u"");
  window.betű.each([&](const Label& label) {
    if (label.Visible) {
      EXPECT_EQ(ground(window, {label.Index % 12, label.Index / 12}), "own");
    }
  });
}

TEST_F(KnightPlayTest, AnotherWayToTheSameNamesWinsToo) {
  auto& window = alma({.filler = false});
  window.field({1, 2}).Caption = u"a";
  window.field({1, 2}).Enabled = true;
  window.field({3, 3}).Caption = u"l";
  window.field({3, 3}).Enabled = true;
  window.field({4, 5}).Caption = u"m";
  window.field({4, 5}).Enabled = true;
  window.field({6, 6}).Caption = u"a";
  window.field({6, 6}).Enabled = true;
  then_close_congratulation();
  for (const Square to : {Square{1, 2}, {3, 3}, {4, 5}, {6, 6}}) click(window, to);
  EXPECT_EQ(congratulations, 1);
}

TEST_F(KnightPlayTest, ReadingAfterTheEnd) {
  auto& window = alma({.read_at_end = true});
  walk(window, 3);
  then_close_message();
  then_close_picture();
  then_close_congratulation();
  click(window, {4, 6});
  EXPECT_EQ(message, "\rNagyon ügyesen megfejtetted!\rKérlek, olvasd fel a kép nevét!");
  EXPECT_EQ(shown_words, "alma ");
  EXPECT_EQ(shown_picture, "c:\\cserko\\kepek\\1.wmf");
  EXPECT_EQ(congratulations, 1);
}

TEST_F(KnightPlayTest, ReadingOfSeveralPictures) {
  put_only({{.név = u"ló"}, {.név = u"kő"}});
  want({.pictures = 2, .read_at_end = true});
  start_session();
  auto& window = game();
  then_close_message();
  then_close_picture();
  then_close_picture();
  then_close_congratulation();
  const std::string wanted = utf8(window.képnév[0].Tag + u" " + window.képnév[1].Tag + u" ");
  walk(window, 4);
  EXPECT_EQ(message, "\rNagyon ügyesen megfejtetted!\rKérlek, olvasd fel a képek nevét!");
  EXPECT_EQ(shown_words, wanted);
}

TEST_F(KnightPlayTest, PicturesAreShownBeforeTheGame) {
  put_only({{.név = u"ló"}, {.név = u"kő"}});
  want({.pictures = 2, .presented = true});
  start_session();
  then_close_message();
  then_close_picture();
  then_close_picture();
  auto& window = game();
  EXPECT_EQ(message, "Most megmutatom Neked a képeket, amikkel játszani fogunk!");
  EXPECT_EQ(shown_words, utf8(window.képnév[0].Tag + u" " + window.képnév[1].Tag + u" "));
  load<frm_lóugrás_beáll>().udképekszáma.set_value(1);
  then_close_message();
  then_close_picture();
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(message, "Most megmutatom Neked a képet, amivel játszani fogunk!");
}

// All names full, and wrong.

TEST_F(KnightPlayTest, FullNamesThatAreWrongBringTheMessageAndEachUndoingTakesALetter) {
  auto& window = alma();
  fill_names_wrongly(window, 4);
  EXPECT_EQ(message, full_message);
  EXPECT_EQ(window.lépésszám(), 5);
  for (std::size_t left = 3; left > 0; --left) {
    hand::click(window.Command1);
    EXPECT_EQ(window.képnév[0].Caption.size(), left);
  }
}

TEST_F(KnightPlayTest, OfSeveralFullNamesTheLastThatHasALetterLosesIt) {
  put_only({{.név = u"alma"}, {.név = u"labda"}});
  want({.pictures = 2, .neighbours = true});
  start_session();
  auto& window = game();
  fill_names_wrongly(window, 9);
  const std::size_t whole = window.képnév[0].Tag.size();
  for (std::size_t letters = 9; letters-- > 0;) {
    hand::click(window.Command1);
    EXPECT_EQ(window.képnév[0].Caption.size(), std::min(letters, whole));
    EXPECT_EQ(window.képnév[1].Caption.size(), letters - std::min(letters, whole));
  }
}

TEST_F(KnightPlayTest, NamesOfAGameBeforeCountForNothing) {
  auto& window = game({});
  walk(window, static_cast<int>(window.megoldás().size()) - 2);
  ASSERT_FALSE(window.képnév[3].Caption.empty());
  load<frm_lóugrás_beáll>().udképekszáma.set_value(1);
  machine.script_random({draws(1)});
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(names(window), "/alma / / / ");
  fill_names_wrongly(window, 4);
}

TEST_F(KnightPlayTest, WithFullNamesAFurtherStepOnlyBringsTheMessageAgain) {
  auto& window = alma();
  click(window, wrong_way(window));
  then_close_message();
  while (messages_shown == 0) click(window, ways_on(window).front());
  const std::string before = names(window);
  heard();
  then_close_message();
  click(window, ways_on(window).front());
  EXPECT_EQ(messages_shown, 2);
  EXPECT_EQ(names(window), before);
  EXPECT_EQ(window.lépésszám(), 5);
  EXPECT_EQ(heard(), "");
}

TEST_F(KnightPlayTest, AWideWrongNameGetsSmallerUntilItFits) {
  auto& window = board(8, {0, 0}, {7, 7, 1, 8, 3}); // tehén
  const double size = window.képnév[0].Font.size;
  window.képnév[0].Width = machine.measure(window.képnév[0].Font, u"tehé").width;
  for (const Square square : {window.megoldás()[1], window.megoldás()[2], window.megoldás()[3]})
    window.field(square).Caption = u"mm";
  walk(window, 2);
  EXPECT_LT(window.képnév[0].Font.size, size);
  EXPECT_LE(machine.measure(window.képnév[0].Font, u"mmmm").width, window.képnév[0].Width);
  hand::click(window.Command1);
  EXPECT_EQ(window.képnév[0].Font.size, size);
}

// Help.

TEST_F(KnightPlayTest, AClickOnAPictureShowsItWithTheWholeWord) {
  auto& window = alma();
  then_close_picture();
  hand::click(window.kép[0]);
  EXPECT_EQ(shown_words, "alma ");
  EXPECT_EQ(shown_picture, "c:\\cserko\\kepek\\1.wmf");
  EXPECT_EQ(heard(), "");
}

TEST_F(KnightPlayTest, TheFieldStoodOnBlinksAndNoOther) {
  auto& window = alma();
  walk(window, 1);
  machine.advance(400);
  EXPECT_EQ(ground(window, {2, 1}), "light green");
  EXPECT_EQ(ground(window, {0, 0}), "dark green");
  machine.advance(400);
  EXPECT_EQ(ground(window, {2, 1}), "own");
  EXPECT_EQ(ground(window, {4, 2}), "own");
  machine.advance(400);
  walk(window, 0);
  click(window, {4, 2});
  EXPECT_EQ(ground(window, {2, 1}), "light green");
  machine.advance(400);
  EXPECT_EQ(ground(window, {4, 2}), "dark green");
  EXPECT_EQ(window.field({4, 2}).ForeColor, white);
}

// The hint.

TEST_F(KnightPlayTest, TheHintIsForThoseWhoAreAllowedIt) {
  auto& window = alma();
  EXPECT_FALSE(window.cmd_súgó.Enabled);
  key(window, 'S');
  EXPECT_FALSE(window.Line1[0].Visible);
}

TEST_F(KnightPlayTest, TheHintDrawsTheTrueWayThroughTheNextField) {
  auto& window = alma({.hint = true});
  EXPECT_FALSE(window.Line1[0].Visible);
  EXPECT_EQ((Point{window.Line1[0].Left, window.Line1[0].Top}), center(window.field({0, 0}))) << "hidden on the start";
  walk(window, 1);
  heard();
  hand::click(window.cmd_súgó);
  EXPECT_EQ(heard(), "cserko\\alarm.wav");
  EXPECT_EQ(window.focus(), &window.kép[0]);
  ASSERT_EQ(window.Line1.count(), 2);
  const auto& path = window.megoldás();
  for (int i = 0; i < 2; ++i) {
    const Line& line = window.Line1[i];
    const Point from = center(window.field(path[static_cast<std::size_t>(i)]));
    const Point to = center(window.field(path[static_cast<std::size_t>(i + 1)]));
    EXPECT_TRUE(line.Visible);
    EXPECT_EQ(line.ForeColor, yellow);
    EXPECT_EQ(place_of(line),
              (Rect{std::min(from.x, to.x), std::min(from.y, to.y), std::abs(to.x - from.x), std::abs(to.y - from.y)}));
    EXPECT_EQ(line.Rising, (to.x - from.x) * (to.y - from.y) < 0);
    window.betű.each([&](const Label& label) { EXPECT_GT(line.layer(), label.layer()); });
    // On a broader line of the other colour, which no line is hidden by.
    EXPECT_EQ(place_of(window.Line_szegély[i]), place_of(line));
    EXPECT_GT(window.Line_szegély[i].BorderWidth, line.BorderWidth);
    EXPECT_EQ(window.Line_szegély[i].ForeColor, blue);
    EXPECT_LT(window.Line_szegély[1].layer(), line.layer());
  }
}

TEST_F(KnightPlayTest, TheHintShowsTheTrueWayHoweverTheChildHasWalked) {
  auto& window = alma({.hint = true});
  const Square wrong = wrong_way(window);
  click(window, wrong);
  hand::click(window.cmd_súgó);
  ASSERT_EQ(window.Line1.count(), 2);
  EXPECT_EQ(window.Line1[0].Width, std::abs(center(window.field({2, 1})).x - center(window.field({0, 0})).x));
}

TEST_F(KnightPlayTest, AFallingAndARisingLineAreTold) {
  auto& window = board(1, {2, 2}, {5, 7, 1, 8}, {.hint = true}); // up to the right, then down to the right
  hand::click(window.cmd_súgó);
  EXPECT_TRUE(window.Line1[0].Rising);
  walk(window, 1);
  hand::click(window.cmd_súgó);
  EXPECT_FALSE(window.Line1[1].Rising);
}

TEST_F(KnightPlayTest, ABlueFrontRunsAlongTheHint) {
  auto& window = alma({.hint = true});
  walk(window, 1);
  hand::click(window.cmd_súgó);
  EXPECT_EQ(colors(window), "yy");
  machine.advance(100);
  EXPECT_EQ(colors(window), "by");
  EXPECT_EQ(window.Line_szegély[0].ForeColor, yellow) << "seen on every green";
  machine.advance(100);
  EXPECT_EQ(colors(window), "bb");
  machine.advance(100);
  EXPECT_EQ(colors(window), "yy");
  machine.advance(100);
  EXPECT_EQ(colors(window), "by");
}

TEST_F(KnightPlayTest, AClickAnUndoingAndAKeyTakeTheHintAway) {
  auto& window = alma({.hint = true});
  walk(window, 1);
  const std::vector<std::function<void()>> deeds{[&] {
                                                   click(window, {7, 7});
                                                 },
                                                 [&] {
                                                   click(window, {4, 2});
                                                 },
                                                 [&] { hand::click(window.Command1); }, [&] { key(window, key::left); },
                                                 [&] { key(window, 'Q'); }};
  for (const auto& deed : deeds) {
    hand::click(window.cmd_súgó);
    EXPECT_TRUE(window.Timer_segítő.running());
    deed();
    EXPECT_EQ(window.Line1.count(), 1);
    EXPECT_EQ(window.Line_szegély.count(), 1);
    EXPECT_FALSE(window.Line1[0].Visible);
    EXPECT_FALSE(window.Line_szegély[0].Visible);
    EXPECT_FALSE(window.Timer_segítő.running());
  }
}

TEST_F(KnightPlayTest, TheHintEndsWithTheLastLetter) {
  auto& window = alma({.hint = true});
  for (const Square to : {Square{2, 1}, {4, 2}, {3, 4}}) window.field(to).Caption = u"x";
  window.field({4, 6}).Caption = u"";
  walk(window, 3);
  window.képnév[0].Tag = u"almafa"; // a name that is longer than its path
  click(window, {4, 6});
  click(window, ways_on(window).front());
  hand::click(window.cmd_súgó);
  EXPECT_EQ(window.Line1.count(), 4);
}

// The window.

TEST_F(KnightPlayTest, TheDialogStaysWhenTheGameIsClosed) {
  auto& window = alma();
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_lóugrás>());
  EXPECT_TRUE(session().loaded<frm_lóugrás_beáll>());
}

TEST_F(KnightPlayTest, HelpByMenuAndKey) {
  auto& window = alma();
  hand::click(window.mnu_súgó_súgó);
  hand::key(window, key::f1);
  expect_help_twice("Lóugrás  - A feladat.mht");
}

} // namespace
} // namespace cserko
