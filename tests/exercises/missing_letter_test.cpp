// Missing letter: the draw, the row with its gap, the letter put in and taken out by pull, click and key, the answer.
#include "core/numbers.h"
#include "tests/exercises/missing_letter_fixture.h"

#include <set>

namespace cserko {
namespace {

constexpr auto put_in = "c:\\cserko\\cserko\\clack 1.wav";
constexpr auto taken_out = "c:\\cserko\\cserko\\clack 2.wav";

class MissingLetterTest : public MissingLetterFixture {};

TEST_F(MissingLetterTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_betűhiány>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Betűhiány");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption),
            "A szóból hiányzik egy betű! Keresd meg a helyét és húzd jobbra az utána következő betűt!");
  EXPECT_EQ(place_of(window->kép), (Rect{120, 480, 5415, 5415}));
  EXPECT_EQ(place_of(window->cmd_kész), (Rect{120, 6360, 5415, 615}));
  EXPECT_EQ(utf8(window->cmd_kész.Caption), "Kész");
  std::vector<Rect> pictures_at;
  std::vector<Rect> labels_at;
  for (const double top : {480, 2640, 4800}) {
    for (const double left : {5640, 7320}) {
      pictures_at.push_back({left, top, 1575, 1575});
      labels_at.push_back({left, top + 1680, 1575, 255});
    }
  }
  EXPECT_EQ(places_of(window->pic_eredmény), pictures_at);
  EXPECT_EQ(places_of(window->lbl_eredmény), labels_at);
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(window->mnu_súgó_súgó.ShortcutKey, key::f1);
}

TEST_F(MissingLetterTest, FillsItsShareOfTheScreen) {
  auto& window = deal(u"alma", 1, 4);
  expect_scaled(window, 0.95, u"kép");
  expect_fitted(window.cmd_kész);
  expect_fitted(window.lbl_feladat);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

// The draw.

TEST_F(MissingLetterTest, HungarianWordsAreCountedInLettersAndMayHoldABlankButNoHyphen) {
  put({{.név = u"szó"},        // two letters
       {.név = u"gyöngysor"},  // seven letters in nine characters
       {.név = u"alma-fa"},    // a hyphen
       {.név = u"hat alma"},   // a blank: eight
       {.név = u"nyolcbetűs"}, // nine
       {.név = u"utolsó"}});
  put_settings(u"betűhiány.ini", {u" 7 ", u" 8 ", u"True", u"False"});
  start();
  machine.script_random({record(0), record(2), record(4), record(3), 0.0});
  auto& window = open<frm_betűhiány>();
  EXPECT_EQ(window.aktuális_kép(), 3);
  machine.script_random({record(3), record(1), 0.0});
  window.beáll();
  EXPECT_EQ(window.aktuális_kép(), 1) << "and no word comes twice running";
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(MissingLetterTest, EnglishWordsAreCountedInCharactersAndMayHoldNeitherBlankNorHyphen) {
  put({{.név = u"a", .angol = u"cat"},
       {.név = u"b", .angol = u"hot dog"},
       {.név = u"c", .angol = u"t-shirt"},
       {.név = u"d", .angol = u"butterfly"},
       {.név = u"e-f", .angol = u"ponies"},
       {.név = u"utolsó", .angol = u"last"}});
  put_settings(u"betűhiány.ini", {u" 4 ", u" 8 ", u"False", u"True"});
  start();
  machine.script_random({record(0), record(1), record(2), record(3), record(4), 0.0});
  EXPECT_EQ(open<frm_betűhiány>().aktuális_kép(), 4) << "the Hungarian name does not count";
}

TEST_F(MissingLetterTest, TheLastRecordIsNeverDrawn) {
  put({{.név = u"alma"}, {.név = u"körte"}, {.név = u"szilva"}});
  start();
  machine.script_random({0.999999});
  auto& window = open<frm_betűhiány>();
  std::set<int> seen;
  for (int i = 0; i < 50; ++i) {
    seen.insert(window.aktuális_kép());
    window.beáll();
  }
  EXPECT_EQ(seen, (std::set<int>{0, 1}));
}

TEST_F(MissingLetterTest, AWordWithoutALetterBetweenTwoOthersIsPassedOver) {
  put({{.név = u"a", .angol = u"szzs"}, {.név = u"b", .angol = u"table"}, {.név = u"c", .angol = u"last"}});
  put_settings(u"betűhiány.ini", {u" 4 ", u" 8 ", u"False", u"True"});
  start();
  machine.script_random({record(0), record(1), 0.0});
  EXPECT_EQ(open<frm_betűhiány>().aktuális_kép(), 1);
}

TEST_F(MissingLetterTest, EveryPuzzleSeedsTheGeneratorForTheWordAndForTheGap) {
  auto& window = deal(u"alma", 1, 4);
  const int before = machine.seedings;
  window.beáll();
  EXPECT_EQ(machine.seedings, before + 2);
}

// The row.

TEST_F(MissingLetterTest, OneLetterIsTakenOutAndTheOthersMoveUp) {
  auto& window = deal(u"gyöngysor", 3, 7);
  EXPECT_EQ(row(window), "gy|ö|n|s|o|r");
  EXPECT_EQ(picture(window.kép), picture_path(0));
  window.betű.each([](const Label& letter) {
    EXPECT_TRUE(letter.Visible);
    EXPECT_EQ(utf8(letter.Tag), "0");
  });
}

TEST_F(MissingLetterTest, TheFirstAndTheLastTwoLettersAreNeverTaken) {
  auto& window = deal(u"mókus", 1, 5);
  EXPECT_EQ(row(window), "m|k|u|s");
  machine.script_random({record(1)});
  window.beáll();
  machine.script_random({record(0), 0.999999});
  window.beáll();
  EXPECT_EQ(row(window), "m|ó|u|s");
}

TEST_F(MissingLetterTest, OfThreeLettersTheMiddleOneIsTaken) {
  put({{.név = u"a", .angol = u"lynx"}, {.név = u"b", .angol = u"last"}});
  put_settings(u"betűhiány.ini", {u" 4 ", u" 8 ", u"False", u"True"});
  start();
  auto& window = open<frm_betűhiány>();
  EXPECT_EQ(row(window), "ly|x") << "English words have Hungarian letters too";
  hand::click(window.betű[1]);
  EXPECT_EQ(row(window), "lyn|x");
}

TEST_F(MissingLetterTest, TheRowIsCentredUnderThePictureWithoutGaps) {
  auto& window = deal(u"mamut", 2, 5);
  const Font& font = window.betű[0].Font;
  const double left = rounded(window.kép.Left + window.kép.Width / 2) - machine.measure(font, u"maut").width / 2;
  expect_side_by_side(window.betű, {left, window.kép.Top + window.kép.Height + 20});
}

TEST_F(MissingLetterTest, TheLettersOfAShortWordAreLimitedByTheRoomAboveTheButton) {
  auto& window = deal(u"alma", 1, 4);
  const double room = 0.9 * (window.cmd_kész.Top - (window.kép.Top + window.kép.Height));
  Font font = window.betű[0].Font;
  EXPECT_LE(machine.measure(font, u"alma").height, room);
  ++font.size;
  EXPECT_GT(machine.measure(font, u"alma").height, room);
}

TEST_F(MissingLetterTest, TheLettersOfALongWordLeaveRoomForTwoHyphens) {
  put_settings(u"betűhiány.ini", {u" 4 ", u" 16 ", u"True", u"False"});
  machine.set_screen(1024, 600);
  Text word;
  for (int i = 0; i < 16; ++i) word += u"dzs";
  auto& window = deal(word, 1, 16);
  Font font = window.betű[0].Font;
  EXPECT_LE(machine.measure(font, word + u"--").width, window.kép.Width);
  ++font.size;
  EXPECT_GT(machine.measure(font, word + u"--").width, window.kép.Width);
}

TEST_F(MissingLetterTest, ALetterBehindEveryOtherOneStillFitsUnderThePictureAndTheSizeComesBack) {
  put_settings(u"betűhiány.ini", {u" 4 ", u" 16 ", u"True", u"False"});
  auto& window = deal(u"hőmérőmmmmmmmmmm", 2, 16);
  const double fitted = window.betű[0].Font.size;
  for (int i = 1; i < window.betű.count(); ++i) hand::click(window.betű[i]);
  EXPECT_EQ(utf8(window.betű[0].Caption + window.betű[1].Caption + window.betű[13].Caption), "hmőmmm");
  EXPECT_LT(window.betű[0].Font.size, fitted);
  EXPECT_GE(window.betű[0].Left, window.kép.Left - 1);
  const Label& last = window.betű[window.betű.count() - 1];
  EXPECT_LE(last.Left + last.Width, window.kép.Left + window.kép.Width + 1);
  for (int i = 1; i < window.betű.count(); ++i) hand::click(window.betű[i]);
  EXPECT_EQ(window.betű[0].Font.size, fitted);
}

TEST_F(MissingLetterTest, TheNextWordHasNothingOfTheLast) {
  auto& window = deal(u"mennyezet", 1, 8);
  hand::click(window.betű[3]);
  EXPECT_EQ(row(window), "m|n|nye|e|z|e|t");
  EXPECT_EQ(utf8(window.betű[2].Tag), "3");
  script(1, 1, 5);
  window.beáll();
  EXPECT_EQ(row(window), "k|ny|é|r");
  window.betű.each([](const Label& letter) { EXPECT_EQ(utf8(letter.Tag), "0"); });
  hand::click(window.betű[3]);
  EXPECT_EQ(row(window), "k|ny|ée|r");
}

// Pulling.

TEST_F(MissingLetterTest, PullingTheLetterBehindTheGapPutsTheMissingOneIn) {
  auto& window = deal(u"almafa", 2, 6);
  forget_commands();
  pull(window, 2, 1, u"m");
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  EXPECT_EQ(commands(), sound(put_in));
}

TEST_F(MissingLetterTest, PushingItBackTakesItOut) {
  auto& window = deal(u"almafa", 2, 6);
  pull(window, 2, 1, u"m");
  forget_commands();
  pull(window, 2, -1, u"m");
  EXPECT_EQ(row(window), "a|l|a|f|a");
  EXPECT_EQ(commands(), "close hang\n" + sound(taken_out));
}

TEST_F(MissingLetterTest, TheLetterCanBePutBehindAnySingleOne) {
  auto& window = deal(u"almafa", 2, 6);
  for (int i = 1; i < 5; ++i) pull(window, i, 1, u"m");
  EXPECT_EQ(row(window), "am|lm|am|fm|a");
}

TEST_F(MissingLetterTest, AnElementThatHoldsTwoLettersTakesNothingMore) {
  auto& window = deal(u"almafa", 2, 6);
  pull(window, 2, 1, u"m");
  forget_commands();
  pull(window, 2, 1, u"m");
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  EXPECT_EQ(commands(), "");
}

TEST_F(MissingLetterTest, PushingWhereTheLetterIsNotDoesNothingAndIsSilent) {
  auto& window = deal(u"almafa", 2, 6);
  forget_commands();
  pull(window, 2, -1, u"m");
  pull(window, 1, -1, u"m");
  EXPECT_EQ(row(window), "a|l|a|f|a");
  EXPECT_EQ(commands(), "");
}

TEST_F(MissingLetterTest, TheFirstLetterCannotBePulled) {
  auto& window = deal(u"almafa", 2, 6);
  forget_commands();
  pull(window, 0, 1, u"m");
  pull(window, 0, -1, u"m");
  hand::click(window.betű[0]);
  EXPECT_EQ(row(window), "a|l|a|f|a");
  EXPECT_EQ(commands(), "");
}

TEST_F(MissingLetterTest, APullCountsFromFourTenthsOfTheMissingLettersWidth) {
  auto& window = deal(u"almafa", 2, 6);
  Label& letter = window.betű[2];
  const double far = 0.4 * machine.measure(window.betű[0].Font, u"m").width;
  hand::press(letter, 100.6, 100); // counts as 101
  hand::move(letter, 101 + far - 1, 100);
  EXPECT_EQ(row(window), "a|l|a|f|a");
  hand::move(letter, 101 + far, 100);
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  hand::move(letter, 101 - far + 1, 100);
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  hand::move(letter, 101 - far, 100);
  EXPECT_EQ(row(window), "a|l|a|f|a") << "one press goes on acting";
}

TEST_F(MissingLetterTest, ARealPullDoesNotJumpBackUnderTheMovingRow) {
  auto& window = deal(u"almafa", 2, 6);
  const double far = machine.measure(window.betű[0].Font, u"m").width;
  hand::drag(window.betű[2], far, 0);
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  hand::drag(window.betű[2], -far, 0);
  EXPECT_EQ(row(window), "a|l|a|f|a");
}

TEST_F(MissingLetterTest, AnyButtonPullsAndOnlyWhileItIsHeld) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
    auto& window = deal(u"almafa", 2, 6);
    Label& letter = window.betű[2];
    hand::move(letter, 5000, 0);
    EXPECT_EQ(row(window), "a|l|a|f|a");
    hand::press(letter, 0, 0, button);
    hand::move(letter, 2000, 0, button);
    hand::release(letter, 2000, 0, button);
    EXPECT_EQ(row(window), "a|lm|a|f|a");
    hand::move(letter, -5000, 0);
    EXPECT_EQ(row(window), "a|lm|a|f|a");
    end_session();
  }
}

// Clicks and keys.

TEST_F(MissingLetterTest, AClickPutsTheLetterInAndTheNextOneTakesItOut) {
  auto& window = deal(u"almafa", 2, 6);
  hand::click(window.betű[2]);
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  hand::click(window.betű[2]);
  EXPECT_EQ(row(window), "a|l|a|f|a");
}

TEST_F(MissingLetterTest, CtrlAndAnArrowPullAndPush) {
  auto& window = deal(u"almafa", 2, 6);
  EXPECT_EQ(row(window), "a|l|a|f|a");
  expect_pulled_by_keys(window.betű, 2, "a|lm|a|f|a");
}

TEST_F(MissingLetterTest, IsPlayedByArrowsSpaceAndEnterAlone) {
  auto& window = deal(u"almafa", 2, 6);
  window.set_focus(&window.betű[0]);
  hand::key(window, key::right);
  hand::key(window, key::right);
  ASSERT_EQ(window.focus(), &window.betű[2]);
  hand::key(window, key::space);
  EXPECT_EQ(row(window), "a|lm|a|f|a");
  machine.script_random({0.0});
  script(1, 1, 5);
  hand::key(window, key::enter);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "almafa");
  EXPECT_EQ(window.focus(), &window.betű[2]) << "in the row of the next word";
}

// Long double consonants.

TEST_F(MissingLetterTest, ALongDoubleConsonantIsShownInTwoPieces) {
  auto& window = deal(u"mennyezet", 1, 8);
  EXPECT_EQ(row(window), "m|n|ny|e|z|e|t");
  EXPECT_EQ(utf8(window.betű[2].Tag), "3");
  EXPECT_EQ(utf8(window.betű[1].Tag), "0");
}

TEST_F(MissingLetterTest, WhereItsFirstPieceIsTakenItsSecondBringsTheFirstBack) {
  auto& window = deal(u"asszony", 1, 5);
  EXPECT_EQ(row(window), "a|sz|o|ny");
  EXPECT_EQ(utf8(window.betű[1].Tag), "3");
  pull(window, 1, 1, u"sz");
  EXPECT_EQ(row(window), "as|sz|o|ny");
  pull(window, 1, -1, u"sz");
  EXPECT_EQ(row(window), "a|sz|o|ny");
  pull(window, 1, 1, u"sz");
  machine.script_random({0.0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "asszony");
}

TEST_F(MissingLetterTest, TheSecondPieceItselfIsNeverTaken) {
  auto& window = deal(u"asszony", 2, 5);
  EXPECT_EQ(row(window), "a|sz|o|ny") << "the first piece goes instead";
  EXPECT_EQ(utf8(window.betű[1].Tag), "3");
}

TEST_F(MissingLetterTest, PullingTheLetterBehindTheSecondPieceCountsAsPullingThatPiece) {
  auto& window = deal(u"asszony", 1, 5);
  pull(window, 2, 1, u"sz");
  EXPECT_EQ(row(window), "as|sz|o|ny");
  pull(window, 2, -1, u"sz");
  EXPECT_EQ(row(window), "a|sz|o|ny");
}

TEST_F(MissingLetterTest, OfALetterOfSeveralCharactersTheSecondPieceTakesTheFirstCharacter) {
  auto& window = deal(u"esszégyek", 4, 7);
  EXPECT_EQ(row(window), "e|s|sz|é|e|k");
  pull(window, 2, 1, u"gy");
  EXPECT_EQ(row(window), "e|sg|sz|é|e|k");
  pull(window, 2, -1, u"gy");
  EXPECT_EQ(row(window), "e|s|sz|é|e|k");
  pull(window, 4, 1, u"gy");
  EXPECT_EQ(row(window), "e|s|sz|égy|e|k");
}

TEST_F(MissingLetterTest, OneThatOpensTheWordStaysWholeAndMayItselfBeTaken) {
  auto& window = deal(u"sszabók", 1, 5);
  EXPECT_EQ(row(window), "a|b|ó|k") << "the first letter went";
}

TEST_F(MissingLetterTest, AllSevenLongDoubleConsonantsAreSplit) {
  for (const auto& [word, pieces] : std::vector<std::pair<Text, std::string>>{{u"akkorccsa", "a|k|o|r|c|cs|a"},
                                                                              {u"akkorggya", "a|k|o|r|g|gy|a"},
                                                                              {u"akkorllya", "a|k|o|r|l|ly|a"},
                                                                              {u"akkornnya", "a|k|o|r|n|ny|a"},
                                                                              {u"akkorssza", "a|k|o|r|s|sz|a"},
                                                                              {u"akkorttya", "a|k|o|r|t|ty|a"},
                                                                              {u"akkorzzsa", "a|k|o|r|z|zs|a"}}) {
    auto& window = deal(word, 1, 8);
    EXPECT_EQ(row(window), pieces);
    EXPECT_EQ(utf8(window.betű[5].Tag), "3");
    end_session();
  }
}

TEST_F(MissingLetterTest, ALetterThatMakesOneWithItsNeighbourCanBeTakenOutAgain) {
  // An s behind a c, an sz behind an s: one letter each.
  for (const auto& [word, before, joined] : std::vector<std::tuple<Text, std::string, std::string>>{
           {u"cipősor", "c|i|p|ő|o|r", "cs|i|p|ő|o|r"}, {u"saraszka", "s|a|r|a|k|a", "ssz|a|r|a|k|a"}}) {
    auto& window = deal(word, 4, 7);
    EXPECT_EQ(row(window), before);
    hand::click(window.betű[1]);
    EXPECT_EQ(row(window), joined);
    window.set_focus(&window.betű[1]);
    hand::key(window, key::right, shift::control);
    EXPECT_EQ(row(window), joined);
    hand::key(window, key::left, shift::control);
    EXPECT_EQ(row(window), before);
    end_session();
  }
}

// The answer.

TEST_F(MissingLetterTest, TheRightRowIsHeardKeptAndFollowedByTheNextWord) {
  auto& window = deal(u"almafa", 2, 6);
  hand::click(window.betű[2]);
  forget_commands();
  machine.script_random({0.0});
  script(1, 1, 5);
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "almafa");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(0));
  EXPECT_EQ(row(window), "k|ny|é|r");
}

TEST_F(MissingLetterTest, AWrongRowIsHeardAndStays) {
  auto& window = deal(u"almafa", 2, 6);
  hand::click(window.betű[3]);
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + bad_sound);
  EXPECT_EQ(row(window), "a|l|am|f|a");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(MissingLetterTest, NoRowButTheWordIsRight) {
  // Every row that can be made.
  auto& window = deal(u"almafa", 2, 6);
  const int others = window.betű.count() - 1;
  int wrong = 0;
  for (unsigned made = 0; made < 1U << others; ++made) {
    if (made == 2) continue; // the word itself
    for (int i = 0; i < others; ++i) {
      const bool wanted = (made >> i & 1U) != 0;
      if ((window.betű[i].Caption.size() > 1) != wanted) hand::click(window.betű[i + 1]);
    }
    hand::click(window.cmd_kész);
    ++wrong;
  }
  EXPECT_EQ(wrong, 15);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(MissingLetterTest, InEnglishTheEnglishWordIsRightAndThePanelShowsTheHungarianName) {
  put_settings(u"betűhiány.ini", {u" 4 ", u" 10 ", u"False", u"True"});
  auto& window = deal(u"szék", 2, 5, u"chair");
  EXPECT_EQ(row(window), "c|h|i|r");
  hand::click(window.betű[2]);
  machine.script_random({0.0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "szék");
}

TEST_F(MissingLetterTest, APuzzleIsJudgedInTheLanguageInWhichItWasDealt) {
  auto& window = deal(u"almafa", 2, 6, u"apple");
  // Without a file a cancelled change stays in the dialog.
  then_in<dlg_betűhiány>([](dlg_betűhiány& dialog) {
    hand::click(dialog.opt_nyelv[1]);
    hand::click(dialog.CancelButton);
  });
  hand::click(window.mnu_fájl_beáll);
  hand::click(window.betű[2]);
  machine.script_random({0.0});
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "almafa");
}

TEST_F(MissingLetterTest, TheSixthWordIsCongratulatedBeforeTheNextWordAndThePanelIsEmptied) {
  auto& window = deal(u"almafa", 2, 6);
  const auto solve = [&] {
    // The only way that makes the word.
    for (int i = 1; i < window.betű.count(); ++i) {
      hand::click(window.betű[i]);
      Text joined;
      window.betű.each([&](const Label& letter) { joined += letter.Caption; });
      if (joined == window.szó()) break;
      hand::click(window.betű[i]);
    }
    hand::click(window.cmd_kész);
  };
  for (int i = 0; i < 5; ++i) solve();
  EXPECT_EQ(utf8(window.lbl_eredmény[4].Caption), "almafa");
  EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "");
  const int sixth = window.aktuális_kép();
  seen_at_congratulation = [&] {
    EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "kenyér");
    EXPECT_EQ(window.aktuális_kép(), sixth) << "the next word comes behind the panel";
  };
  then_close_congratulation();
  solve();
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_NE(window.aktuális_kép(), sixth);
}

TEST_F(MissingLetterTest, AClickOnThePictureShowsTheWholeWord) {
  std::string said;
  const auto look = [&](frm_betűhiány& window) {
    then_in<üzenet>([&](üzenet& panel) {
      said = utf8(panel.üzenet_szöveg.Caption) + " " + picture(panel.üzenet_kép);
      hand::click(panel.Command1);
    });
    hand::click(window.kép);
    EXPECT_EQ(row(window).find("m"), std::string::npos) << "which costs nothing";
  };
  look(deal(u"almafa", 2, 6));
  EXPECT_EQ(said, "almafa " + picture_path(0));
  end_session();
  put_settings(u"betűhiány.ini", {u" 4 ", u" 10 ", u"False", u"True"});
  look(deal(u"szék", 2, 5, u"chair"));
  EXPECT_EQ(said, "chair " + picture_path(0));
}

// Nothing to draw, closing.

TEST_F(MissingLetterTest, WhereNoWordFitsTheWindowStaysTellsWhyAndTheSettingsHelp) {
  put({{.név = u"alma"}, {.név = u"utolsó"}});
  put_settings(u"betűhiány.ini", {u" 9 ", u" 10 ", u"True", u"False"});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_betűhiány>();
  EXPECT_EQ(message, "Nincs elég ilyen hosszú szavunk.\r\nKérlek, engedj meg a beállításokban rövidebb vagy hosszabb "
                     "szavakat is!");
  EXPECT_TRUE(window.visible());
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_FALSE(window.betű[0].Visible);
  hand::click(window.cmd_kész);
  hand::click(window.kép);
  EXPECT_EQ(commands(), "");
  then_in<dlg_betűhiány>([](dlg_betűhiány& dialog) {
    dialog.ud_minbetűszám.set_value(4);
    hand::click(dialog.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(window.aktuális_kép(), 0);
  EXPECT_TRUE(window.betű[0].Visible);
}

TEST_F(MissingLetterTest, TheCloseEntryUnloadsTheDialogFirst) {
  auto& window = deal(u"alma", 1, 4);
  hand::click(window.mnu_fájl_kilép);
  EXPECT_EQ(machine.diary({"unload dlg", "unload frm"}),
            (std::vector<std::string>{"unload dlg_betűhiány", "unload frm_betűhiány"}));
}

TEST_F(MissingLetterTest, TheWindowsOwnControlLeavesTheDialogLoaded) {
  auto& window = deal(u"alma", 1, 4);
  hand::close(window);
  EXPECT_FALSE(session().loaded<frm_betűhiány>());
  EXPECT_TRUE(session().loaded<dlg_betűhiány>());
}

TEST_F(MissingLetterTest, HelpOpensItsPage) {
  auto& window = deal(u"alma", 1, 4);
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("betűhiány - a feladat.mht"));
}

} // namespace
} // namespace cserko
