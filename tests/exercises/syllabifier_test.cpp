// Syllabifier: the row of letters, opening and closing breaks by pull, click and key, the split long consonants, the
// answer.
#include "core/numbers.h"
#include "tests/exercises/syllabifier_fixture.h"

#include <bit>
#include <set>

namespace cserko {
namespace {

class SyllabifierTest : public SyllabifierFixture {};

TEST_F(SyllabifierTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_szótagoló>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Szótagoló");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Szótagold a szót!");
  EXPECT_EQ(place_of(window->kép), (Rect{120, 720, 6735, 6735}));
  EXPECT_EQ(utf8(window->betű[0].Caption), "dzs");
  EXPECT_EQ(place_of(window->cmd_kész), (Rect{120, 8280, 6735, 495}));
  EXPECT_EQ(utf8(window->cmd_kész.Caption), "Kész");
  std::vector<Rect> pictures_at;
  std::vector<Rect> labels_at;
  for (const auto& [top, label_top] : std::vector<std::pair<double, double>>{{720, 2640}, {3000, 4920}, {5280, 7200}}) {
    for (const double left : {6960, 9000}) {
      pictures_at.push_back({left, top, 1935, 1935});
      labels_at.push_back({left, label_top, 1935, 255});
    }
  }
  EXPECT_EQ(places_of(window->pic_eredmény), pictures_at);
  EXPECT_EQ(places_of(window->lbl_eredmény), labels_at);
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_beállítások.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(window->mnu_súgó_súgó.ShortcutKey, key::f1);
}

TEST_F(SyllabifierTest, FillsItsShareOfTheScreen) {
  auto& window = deal(u"alma", u"al-ma");
  expect_scaled(window, 0.95, u"kép");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

// The row.

TEST_F(SyllabifierTest, ShowsThePictureAndTheLettersOfTheName) {
  auto& window = deal(u"szilva", u"szil-va");
  EXPECT_EQ(picture(window.kép), picture_path(0));
  EXPECT_EQ(row(window), "sz|i|l|v|a");
  window.betű.each([](const Label& letter) {
    EXPECT_TRUE(letter.Visible);
    EXPECT_EQ(utf8(letter.Tag), "0");
  });
}

TEST_F(SyllabifierTest, TheRowIsCentredUnderThePictureWithoutGaps) {
  auto& window = deal(u"mamut", u"ma-mut");
  const Font& font = window.betű[0].Font;
  const int center = rounded(window.kép.Left + window.kép.Width / 2);
  const double left = center - rounded(machine.measure(font, u"mamut").width) / 2.0;
  expect_side_by_side(window.betű, {left, window.kép.Top + window.kép.Height + 20});
}

TEST_F(SyllabifierTest, TheLettersOfAShortWordAreLimitedByTheRoomAboveTheButton) {
  auto& window = deal(u"ló", u"ló");
  const double room = 0.9 * (window.cmd_kész.Top - (window.kép.Top + window.kép.Height));
  Font font = window.betű[0].Font;
  EXPECT_LE(machine.measure(font, u"ló").height, room);
  ++font.size;
  EXPECT_GT(machine.measure(font, u"ló").height, room);
}

TEST_F(SyllabifierTest, TheLettersOfALongWordLeaveRoomForAHyphenBetweenAllOfThem) {
  const Text word = u"karavellamaratonok";
  auto& window = deal(word, word);
  const Text widest = word + Text(word.size() - 1, u'-');
  Font font = window.betű[0].Font;
  EXPECT_LE(machine.measure(font, widest).width, window.kép.Width);
  ++font.size;
  EXPECT_GT(machine.measure(font, widest).width, window.kép.Width);
}

// The draw.

TEST_F(SyllabifierTest, WordsWithMoreSyllablesThanAllowedAreDrawnAgain) {
  put({{.név = u"pillangó", .szótagolt = u"pil-lan-gó"},
       {.név = u"alma", .szótagolt = u"al-ma"},
       {.név = u"ló", .szótagolt = u"ló"},
       {.név = u"utolsó", .szótagolt = u"u-tol-só"}});
  start();
  machine.script_random({record(0), record(1)});
  EXPECT_EQ(open<frm_szótagoló>().aktuális_kép(), 1);
}

TEST_F(SyllabifierTest, WordsOfOneSyllableAreDrawnUnlessTheyAreLeftOut) {
  put({{.név = u"ló", .szótagolt = u"ló"},
       {.név = u"alma", .szótagolt = u"al-ma"},
       {.név = u"utolsó", .szótagolt = u"u-tol-só"}});
  start();
  machine.script_random({record(0)});
  auto& window = open<frm_szótagoló>();
  EXPECT_EQ(window.aktuális_kép(), 0);
  load<dlg_szótagoló>().chk_egyszótagúak_kizárva.set_value(1);
  machine.script_random({record(0), record(1)});
  window.beáll();
  EXPECT_EQ(window.aktuális_kép(), 1);
}

TEST_F(SyllabifierTest, TheSameWordCanComeTwiceRunning) {
  put({{.név = u"alma", .szótagolt = u"al-ma"}, {.név = u"ló", .szótagolt = u"ló"}, {.név = u"utolsó"}});
  start();
  machine.script_random({record(0), record(0)});
  auto& window = open<frm_szótagoló>();
  window.beáll();
  EXPECT_EQ(window.aktuális_kép(), 0);
}

TEST_F(SyllabifierTest, TheLastRecordIsNeverDrawn) {
  put({{.név = u"alma", .szótagolt = u"al-ma"}, {.név = u"ló", .szótagolt = u"ló"}});
  start();
  machine.script_random({0.999999});
  auto& window = open<frm_szótagoló>();
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(window.aktuális_kép(), 0);
    window.beáll();
  }
}

TEST_F(SyllabifierTest, EveryPuzzleSeedsTheGeneratorOnce) {
  auto& window = deal(u"alma", u"al-ma");
  const int before = machine.seedings;
  window.beáll();
  EXPECT_EQ(machine.seedings, before + 1);
}

// Pulling.

TEST_F(SyllabifierTest, PullingALetterRightOpensABreakBeforeIt) {
  auto& window = deal(u"alma", u"al-ma");
  forget_commands();
  pull(window, 2, 1);
  EXPECT_EQ(row(window), "a|l-|m|a");
  EXPECT_EQ(commands(), sound("c:\\cserko\\cserko\\clack 1.wav"));
}

TEST_F(SyllabifierTest, PushingItLeftClosesTheBreak) {
  auto& window = deal(u"alma", u"al-ma");
  pull(window, 2, 1);
  forget_commands();
  pull(window, 2, -1);
  EXPECT_EQ(row(window), "a|l|m|a");
  EXPECT_EQ(commands(), "close hang\n" + sound("c:\\cserko\\cserko\\clack 2.wav"));
}

TEST_F(SyllabifierTest, TheRowIsLaidOutAnewAfterEachChange) {
  auto& window = deal(u"alma", u"al-ma");
  const double before = window.betű[0].Left;
  pull(window, 2, 1);
  const double hyphen = machine.measure(window.betű[0].Font, u"-").width;
  EXPECT_NEAR(window.betű[0].Left, before - hyphen / 2, 1);
  EXPECT_DOUBLE_EQ(window.betű[2].Left, window.betű[1].Left + window.betű[1].Width);
}

TEST_F(SyllabifierTest, AHyphenCannotBeDoubledByPullingNorByTheReleaseThatFollows) {
  auto& window = deal(u"alma", u"al-ma");
  pull(window, 2, 1);
  pull(window, 2, 1);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, PushingWhereNoBreakIsDoesNothing) {
  auto& window = deal(u"alma", u"al-ma");
  forget_commands();
  pull(window, 2, -1);
  EXPECT_EQ(row(window), "a|l|m|a");
  EXPECT_EQ(commands(), "");
}

TEST_F(SyllabifierTest, TheFirstLetterCannotBePulled) {
  auto& window = deal(u"alma", u"al-ma");
  pull(window, 0, 1);
  pull(window, 0, -1);
  hand::click(window.betű[0]);
  EXPECT_EQ(row(window), "a|l|m|a");
}

TEST_F(SyllabifierTest, APullCountsFromAQuarterOfTheLettersWidth) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  hand::press(letter, 100, 100);
  hand::move(letter, 100 + std::ceil(letter.Width / 4) - 1, 100);
  EXPECT_EQ(row(window), "a|l|m|a");
  hand::move(letter, 100 + std::ceil(letter.Width / 4), 100);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, ThePlaceOfThePressIsAWholeNumber) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  letter.Width = 400;
  hand::press(letter, 100.6, 100);
  hand::move(letter, 200.7, 100);
  EXPECT_EQ(row(window), "a|l|m|a") << "counted from 101";
  hand::move(letter, 201, 100);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, AnyButtonPulls) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
    auto& window = deal(u"alma", u"al-ma");
    Label& letter = window.betű[2];
    hand::press(letter, 0, 0, button);
    hand::move(letter, letter.Width, 0, button);
    hand::release(letter, letter.Width, 0, button);
    EXPECT_EQ(row(window), "a|l-|m|a");
    end_session();
  }
}

TEST_F(SyllabifierTest, MovingWithoutAPressDoesNothing) {
  auto& window = deal(u"alma", u"al-ma");
  hand::move(window.betű[2], 5000, 0);
  pull(window, 2, 1);
  hand::move(window.betű[2], -5000, 0);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, ALetterThatIsHeldGoesOnActingAgainstTheSamePlace) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  hand::press(letter, 100, 0);
  hand::move(letter, 100 + letter.Width, 0);
  EXPECT_EQ(row(window), "a|l-|m|a");
  hand::move(letter, 100 - letter.Width, 0);
  EXPECT_EQ(row(window), "a|l|m|a");
  hand::move(letter, 100 + letter.Width, 0);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

// Clicking and keys.

TEST_F(SyllabifierTest, AClickOpensAndClosesTheBreakBeforeTheLetter) {
  auto& window = deal(u"alma", u"al-ma");
  hand::click(window.betű[2]);
  EXPECT_EQ(row(window), "a|l-|m|a");
  hand::click(window.betű[2]);
  EXPECT_EQ(row(window), "a|l|m|a");
}

TEST_F(SyllabifierTest, TheReleaseOfAPullInsideTheLetterIsNoClick) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  hand::press(letter, 10, 10);
  hand::move(letter, 10 + letter.Width / 2, 10);
  hand::release(letter, 10 + letter.Width / 2, 10);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, TheReleaseOfAPushThatChangedNothingIsNoClick) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  hand::press(letter, letter.Width - 10, 10);
  hand::move(letter, letter.Width / 4, 10);
  hand::release(letter, letter.Width / 4, 10);
  EXPECT_EQ(row(window), "a|l|m|a");
}

TEST_F(SyllabifierTest, APullThatEndsOutsideTheLetterDoesNotSwallowTheNextKey) {
  auto& window = deal(u"alma", u"al-ma");
  pull(window, 2, 3);
  EXPECT_EQ(row(window), "a|l-|m|a");
  ASSERT_EQ(window.focus(), &window.betű[2]);
  hand::key(window, key::space);
  EXPECT_EQ(row(window), "a|l|m|a");
}

TEST_F(SyllabifierTest, APullByTheRightButtonDoesNotSwallowTheNextKey) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  hand::press(letter, 10, 10, MouseButton::Right);
  hand::move(letter, 10 + letter.Width / 2, 10, MouseButton::Right);
  hand::release(letter, 10 + letter.Width / 2, 10, MouseButton::Right);
  hand::key(window, key::space);
  EXPECT_EQ(row(window), "a|l|m|a");
}

TEST_F(SyllabifierTest, AHesitantGestureChangesNothing) {
  auto& window = deal(u"alma", u"al-ma");
  const auto hesitate = [&](double way) {
    Label& letter = window.betű[2];
    letter.Width = 800;
    hand::press(letter, 400, 10);
    hand::move(letter, 400 + way, 10);
    hand::release(letter, 400 + way, 10);
  };
  forget_commands();
  hesitate(180);
  hesitate(-180);
  EXPECT_EQ(row(window), "a|l|m|a");
  EXPECT_EQ(commands(), "");
  pull(window, 2, 1);
  hesitate(180);
  hesitate(-180);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, AClickOfAShakingHandIsOne) {
  auto& window = deal(u"alma", u"al-ma");
  Label& letter = window.betű[2];
  letter.Width = 800;
  hand::press(letter, 400, 10);
  hand::move(letter, 430, 40);
  hand::release(letter, 430, 40);
  EXPECT_EQ(row(window), "a|l-|m|a");
}

TEST_F(SyllabifierTest, CtrlAndAnArrowPullAndPush) {
  auto& window = deal(u"asszony", u"asz-szony");
  EXPECT_EQ(row(window), "a|s|sz|o|ny");
  expect_pulled_by_keys(window.betű, 2, "a|sz-|sz|o|ny");
}

TEST_F(SyllabifierTest, IsPlayedByArrowsSpaceAndEnterAlone) {
  auto& window = deal(u"alma", u"al-ma");
  window.set_focus(&window.betű[0]);
  hand::key(window, key::right);
  hand::key(window, key::right);
  EXPECT_EQ(window.focus(), &window.betű[2]);
  hand::key(window, key::right);
  hand::key(window, key::left);
  EXPECT_EQ(window.focus(), &window.betű[2]);
  hand::key(window, key::space);
  EXPECT_EQ(row(window), "a|l-|m|a");
  hand::key(window, key::space);
  EXPECT_EQ(row(window), "a|l|m|a");
  hand::key(window, key::space);
  hand::key(window, key::enter);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "al-ma");
}

// Long double consonants.

TEST_F(SyllabifierTest, ALongDoubleConsonantIsShownInTwoPieces) {
  auto& window = deal(u"asszony", u"asz-szony");
  EXPECT_EQ(row(window), "a|s|sz|o|ny");
  EXPECT_EQ(utf8(window.betű[2].Tag), "3");
  EXPECT_EQ(utf8(window.betű[1].Tag), "0");
}

TEST_F(SyllabifierTest, ABreakInsideItWritesItTwiceAndClosingItTakesThatBack) {
  auto& window = deal(u"asszony", u"asz-szony");
  pull(window, 2, 1);
  EXPECT_EQ(row(window), "a|sz-|sz|o|ny");
  pull(window, 2, -1);
  EXPECT_EQ(row(window), "a|s|sz|o|ny");
  pull(window, 2, 1);
  hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "asz-szony");
}

TEST_F(SyllabifierTest, AllSevenLongDoubleConsonantsAreSplit) {
  const std::vector<std::pair<Text, std::string>> words{
      {u"accsa", "a|c|cs|a"}, {u"aggya", "a|g|gy|a"}, {u"allya", "a|l|ly|a"}, {u"annya", "a|n|ny|a"},
      {u"assza", "a|s|sz|a"}, {u"attya", "a|t|ty|a"}, {u"azzsa", "a|z|zs|a"}};
  for (const auto& [word, pieces] : words) {
    EXPECT_EQ(row(deal(word, word)), pieces);
    end_session();
  }
}

TEST_F(SyllabifierTest, OneThatOpensTheWordStaysWhole) { EXPECT_EQ(row(deal(u"sszabó", u"sszabó")), "ssz|a|b|ó"); }

TEST_F(SyllabifierTest, OnlyTheFirstOfAWordIsSplit) {
  EXPECT_EQ(row(deal(u"asszonnyal", u"asszonnyal")), "a|s|sz|o|nny|a|l");
}

TEST_F(SyllabifierTest, OneBehindAnotherThatOpensTheWordStaysWholeToo) {
  EXPECT_EQ(row(deal(u"sszannya", u"sszannya")), "ssz|a|nny|a");
}

// A break is written only where the row has two pieces: the other long consonants cannot be written twice.
TEST_F(SyllabifierTest, AWordWhoseBreakFallsIntoOneThatStaysWholeCannotBeSolved) {
  put_settings(u"szótagoló.ini", {u" 3 ", u" 0 "});
  const std::vector<std::pair<Text, Text>> words{
      {u"asszonnyal", u"asz-szony-nyal"}, {u"sszabó", u"sz-sza-bó"}, {u"sszannya", u"sszany-nya"}};
  for (const auto& [name, syllables] : words) {
    auto& window = deal(name, syllables);
    const int breaks = window.betű.count() - 1;
    std::set<std::string> rows;
    // Every row that can be laid, in an order in which each differs from the last by one break.
    for (unsigned step = 1; step <= 1U << breaks; ++step) {
      rows.insert(row(window));
      hand::click(window.cmd_kész);
      const int letter = 1 + std::countr_zero(step);
      if (letter <= breaks) hand::click(window.betű[letter]);
    }
    EXPECT_EQ(rows.size(), 1U << breaks);
    EXPECT_EQ(captions(window.lbl_eredmény), nothing(6)) << utf8(name);
    end_session();
  }
}

TEST_F(SyllabifierTest, TheNextWordHasNoTagsOfTheLast) {
  auto& window = deal(u"asszony", u"asz-szony");
  window.beáll();
  EXPECT_EQ(utf8(window.betű[0].Tag), "0");
  EXPECT_EQ(window.betű.count(), 5);
}

// The answer.

TEST_F(SyllabifierTest, TheRightRowIsHeardKeptAndFollowedByTheNextWord) {
  auto& window = deal(u"alma", u"al-ma");
  put_answer_sounds();
  hand::click(window.betű[2]);
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "al-ma");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(0));
  EXPECT_EQ(row(window), "a|l|m|a");
  EXPECT_EQ(window.lbl_eredmény[0].Font.size,
            first_overfilling_size(machine, {u"Times New Roman", 6}, u"al-ma",
                                   {0.9 * window.lbl_eredmény[0].Width, 0.9 * window.lbl_eredmény[0].Height}));
}

TEST_F(SyllabifierTest, AWrongRowIsHeardAndStays) {
  auto& window = deal(u"alma", u"al-ma");
  put_answer_sounds();
  hand::click(window.betű[1]);
  forget_commands();
  hand::click(window.cmd_kész);
  EXPECT_EQ(commands(), "close hang\n" + bad_sound);
  EXPECT_EQ(row(window), "a-|l|m|a");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(SyllabifierTest, AWordOfOneLetterOrOneSyllableIsRightAtOnce) {
  for (const Text& word : {Text(u"ó"), Text(u"sz"), Text(u"gyöngy")}) {
    auto& window = deal(word, word);
    hand::click(window.cmd_kész);
    EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), utf8(word));
    end_session();
  }
}

TEST_F(SyllabifierTest, TheOnlyLetterOfAWordCannotBePulled) {
  for (const Text& word : {Text(u"ó"), Text(u"sz")}) {
    auto& window = deal(word, word);
    forget_commands();
    ASSERT_EQ(window.betű.count(), 1);
    pull(window, 0, 1);
    hand::click(window.betű[0]);
    EXPECT_EQ(row(window), utf8(word));
    EXPECT_EQ(commands(), "");
    end_session();
  }
}

TEST_F(SyllabifierTest, TheComparisonIsExactInCase) {
  auto& window = deal(u"Duna", u"du-na");
  hand::click(window.betű[2]);
  EXPECT_EQ(row(window), "D|u-|n|a");
  hand::click(window.cmd_kész);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(SyllabifierTest, TheSixthWordIsCongratulatedBeforeTheNextWordAndThePanelIsEmptied) {
  auto& window = deal(u"ló", u"ló");
  for (int i = 0; i < 5; ++i) hand::click(window.cmd_kész);
  EXPECT_EQ(utf8(window.lbl_eredmény[4].Caption), "ló");
  EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "");
  const std::uint64_t present = machine.seedings;
  seen_at_congratulation = [&] {
    EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "ló");
    // The answer's sound and the congratulation have seeded, the next word has not.
    EXPECT_EQ(machine.seedings, static_cast<int>(present) + 2);
  };
  then_close_congratulation();
  hand::click(window.cmd_kész);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_EQ(row(window), "l|ó");
}

// Nothing to draw, closing.

TEST_F(SyllabifierTest, WhereNoWordFitsTheWindowStaysTellsWhyAndTheSettingsHelp) {
  put({{.név = u"pillangó", .szótagolt = u"pil-lan-gó"}, {.név = u"utolsó", .szótagolt = u"u"}});
  start();
  then_close_message();
  auto& window = open<frm_szótagoló>();
  EXPECT_EQ(message, "Nincs olyan szavunk, amelyiknek ennyi szótagja van.\r\n"
                     "Kérlek, engedj meg a beállításokban több szótagot!");
  EXPECT_TRUE(window.visible());
  EXPECT_EQ(window.aktuális_kép(), -1);
  EXPECT_EQ(picture(window.kép), "(none)");
  hand::click(window.cmd_kész);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  then_in<dlg_szótagoló>([](dlg_szótagoló& dialog) {
    hand::step(dialog.udszótagszám, 1);
    hand::click(dialog.OKButton);
  });
  hand::click(window.mnu_fájl_beállítások);
  EXPECT_EQ(window.aktuális_kép(), 0);
  EXPECT_EQ(row(window), "p|i|l|l|a|n|g|ó");
}

TEST_F(SyllabifierTest, TheCloseEntryUnloadsTheDialogFirst) {
  auto& window = deal(u"alma", u"al-ma");
  hand::click(window.mnu_fájl_kilép);
  EXPECT_EQ(machine.diary({"unload dlg", "unload frm"}),
            (std::vector<std::string>{"unload dlg_szótagoló", "unload frm_szótagoló"}));
}

TEST_F(SyllabifierTest, TheWindowsOwnControlLeavesTheDialogLoaded) {
  auto& window = deal(u"alma", u"al-ma");
  hand::close(window);
  EXPECT_FALSE(session().loaded<frm_szótagoló>());
  EXPECT_TRUE(session().loaded<dlg_szótagoló>());
}

TEST_F(SyllabifierTest, HelpOpensItsPage) {
  auto& window = deal(u"alma", u"al-ma");
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("szótagoló - a feladat.mht"));
}

} // namespace
} // namespace cserko
