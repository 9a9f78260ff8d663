// What Scrambled word says to an answer, the reveal, and the road from a right answer to the next puzzle.
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "tests/suite/scrambled_fixture.h"

namespace cserko {
namespace {

const std::string unknown = "\r\rEz a szó sajnos nem szerepel az általam használt adatbázisban. ";
const std::string other_word = "\r\rHelyes megfejtés, de van\rmég egy kirakható szó, melyhez\r"
                               "képet is tudok mutatni.\rKérlek, folytasd!";

class AnswerTest : public ScrambledTest {
 protected:
  AnswerTest() { put_app_file(u"dicskép\\one.wmf"); }
  static bool solved(const frm_cserkó& window) { return window.lbl_megoldás.Visible; }
};

// Right.

TEST_F(AnswerTest, TheWordItselfIsRight) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(utf8(window.lbl_megoldás.Caption), "kos");
  ASSERT_NE(window.kép.Picture, nullptr);
  EXPECT_EQ(utf8(window.kép.Picture->path()), "c:\\cserko\\kepek\\1.wmf");
  EXPECT_TRUE(window.Timer1.Enabled);
  window.betű.each([](const Label& letter) { EXPECT_FALSE(letter.Visible); });
  for (const Button* button : {&window.cmd_kész, &window.cmd_egybetűtfelfed, &window.cmd_újrakever, &window.cmd_rendez})
    EXPECT_FALSE(button->Visible) << utf8(button->Name);
}

TEST_F(AnswerTest, TheSolvedWordFillsItsPlace) {
  auto& window = deal({u"kos", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  expect_fitted(window.lbl_megoldás);
}

TEST_F(AnswerTest, TilesOfSeveralCharactersAreReadAsWholes) {
  auto& window = deal({u"dzsessz", u"utolsó"});
  lay(window, {u"ssz", u"e", u"dzs"});
  EXPECT_EQ(answer(window), "sszedzs" + unknown);
  lay(window, {u"dzs", u"e", u"ssz"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
}

TEST_F(AnswerTest, OnlyTheOrderFromLeftToRightCounts) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  window.betű[0].move_to(10, 9000);
  window.betű[1].move_to(11, 10);
  window.betű[2].move_to(12, 4000);
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
}

TEST_F(AnswerTest, EqualPlacesAreReadByTheOutcomeOfTheExchangeSort) {
  auto& window = deal({u"kos", u"sok", u"utolsó"});
  // k and o at 2, s at 1: the exchange of k and s puts k behind o. A sort that keeps equal ones in place reads "sko".
  window.betű[0].move_to(2, 0);
  window.betű[1].move_to(2, 5000);
  window.betű[2].move_to(1, 9000);
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(utf8(window.lbl_megoldás.Caption), "sok");
}

TEST_F(AnswerTest, PlacesCountAsWholeNumbers) {
  auto& window = deal({u"kos", u"utolsó"});
  // Rounded, the first two are equal and stay in the order of their elements.
  window.betű[0].move_to(100.4, 0);
  window.betű[1].move_to(99.6, 0);
  window.betű[2].move_to(200, 0);
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
}

TEST_F(AnswerTest, AnotherWordOfTheRecordsWinsAndItsPictureIsShown) {
  auto& window = deal({u"kos", u"sok", u"utolsó"}, 0);
  lay(window, {u"s", u"o", u"k"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(utf8(window.lbl_megoldás.Caption), "sok");
  EXPECT_EQ(utf8(window.kép.Picture->path()), "c:\\cserko\\kepek\\2.wmf");
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(AnswerTest, TheFirstRecordCountsAsAnotherWordToo) {
  auto& window = deal({u"sok", u"kos", u"utolsó"}, 1);
  lay(window, {u"s", u"o", u"k"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(window.feladat_index(), 0);
}

TEST_F(AnswerTest, TheLastRecordIsNeverDealtButItsWordWins) {
  auto& window = deal({u"kos", u"hal", u"sok"}, 0);
  lay(window, {u"s", u"o", u"k"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(window.feladat_index(), 2);
}

TEST_F(AnswerTest, OfTwoRecordsWithTheSameWordTheDealtOneIsShown) {
  auto& window = deal({u"kos", u"kos", u"utolsó"}, 1);
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(AnswerTest, OfSeveralRecordsWithAnotherWordTheFirstIsShown) {
  auto& window = deal({u"kos", u"sok", u"sok", u"utolsó"}, 0);
  lay(window, {u"s", u"o", u"k"});
  hand::click(window.cmd_kész);
  EXPECT_EQ(window.feladat_index(), 1);
}

TEST_F(AnswerTest, TheExercisePlaysNeitherTheRightNorTheWrongSound) {
  auto& window = deal({u"kos", u"utolsó"});
  forget_commands();
  lay(window, {u"o", u"k", u"s"});
  answer(window);
  lay(window, {u"k", u"o", u"s"});
  answer(window);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(machine.media().beeps, 0);
}

TEST_F(AnswerTest, ARightAnswerReadsNoWordList) {
  machine.files().take(Text(app) + u"ms.skt");
  auto& window = deal({u"kos", u"utolsó"});
  const int reads = machine.files().reads();
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(machine.files().reads(), reads);
}

// Not right.

TEST_F(AnswerTest, AWordOfTheListWithoutAPictureIsPraisedAndTheChildGoesOn) {
  auto& window = deal({u"kos", u"utolsó"});
  lay(window, {u"s", u"o", u"k"});
  EXPECT_EQ(answer(window), "sok" + other_word);
  EXPECT_FALSE(solved(window));
  EXPECT_EQ(captions(window), "k o s ");
}

TEST_F(AnswerTest, AWordThatIsNoneIsToldSo) {
  auto& window = deal({u"kos", u"utolsó"});
  lay(window, {u"o", u"s", u"k"});
  EXPECT_EQ(answer(window), "osk" + unknown);
  EXPECT_FALSE(solved(window));
}

TEST_F(AnswerTest, TheWordListIsReadTwiceForAnAnswerThatIsNotRight) {
  auto& window = deal({u"kos", u"utolsó"});
  lay(window, {u"o", u"s", u"k"});
  const int reads = machine.files().reads();
  answer(window);
  EXPECT_EQ(machine.files().reads(), reads + 2);
}

TEST_F(AnswerTest, AnAnswerClearsTheSelectionInEveryCase) {
  auto& window = deal({u"kos", u"utolsó"});
  for (const auto& order :
       {std::initializer_list<TextView>{u"o", u"s", u"k"}, {u"s", u"o", u"k"}, {u"k", u"o", u"s"}}) {
    lay(window, order);
    hand::key(window, key::space);
    EXPECT_EQ(selected(window).size(), 1U);
    answer(window);
    EXPECT_TRUE(selected(window).empty());
  }
}

TEST_F(AnswerTest, ThePanelsTextIsSetDirectlyAndFittedByThePanelItself) {
  auto& window = deal({u"kos", u"utolsó"});
  lay(window, {u"o", u"s", u"k"});
  then_in<szövegüzenet>([this](szövegüzenet& panel) {
    const double size = panel.szöveg.Font.size;
    hand::click(panel.szöveg);
    EXPECT_EQ(panel.szöveg.Font.size, size);
    hand::click(panel.Command1);
  });
  hand::click(window.cmd_kész);
}

TEST_F(AnswerTest, WithoutAWordListTheFailureIsReportedAndThePlayGoesOn) {
  auto& window = deal({u"kos", u"utolsó"});
  machine.files().take(Text(app) + u"ms.skt");
  lay(window, {u"o", u"s", u"k"});
  hand::click(window.cmd_kész);
  expected_errors = 1;
  ASSERT_EQ(machine.errors.size(), 1U);
  EXPECT_NE(utf8(machine.errors[0]).find("ms.skt"), std::string::npos);
  EXPECT_FALSE(solved(window));
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
}

// Reveal.

TEST_F(AnswerTest, EachPressRevealsOneMoreLetterAndThenTheWholeWord) {
  auto& window = deal({u"szőlő", u"utolsó"});
  for (const std::string expected : {"sz", "sző", "szől", "szőlő", "szőlő", "szőlő"}) {
    then_close_message();
    hand::click(window.cmd_egybetűtfelfed);
    EXPECT_EQ(message, "A szó kezdete: \r\r" + expected);
  }
}

TEST_F(AnswerTest, RevealingChangesNothingOnTheBoard) {
  auto& window = deal({u"kos", u"utolsó"});
  const auto before = positions(window);
  then_close_message();
  hand::click(window.cmd_egybetűtfelfed);
  EXPECT_EQ(positions(window), before);
  EXPECT_EQ(captions(window), "k o s ");
}

TEST_F(AnswerTest, ANewPuzzleRevealsFromTheBeginning) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  for (int i = 0; i < 2; ++i) {
    then_close_message();
    hand::click(window.cmd_egybetűtfelfed);
  }
  deal_next(window, 1);
  then_close_message();
  hand::click(window.cmd_egybetűtfelfed);
  EXPECT_EQ(message, "A szó kezdete: \r\rh");
}

// After a right answer.

TEST_F(AnswerTest, CongratulatesAfterThreeSecondsAndDealsTheNextWord) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  machine.advance(2999);
  EXPECT_FALSE(session().loaded<frm_gratuláció>());
  then_in<frm_gratuláció>([&](frm_gratuláció& panel) {
    EXPECT_TRUE(solved(window)) << "the board stays under the panel";
    EXPECT_EQ(machine.now(), 3000);
    hand::click(panel.cmd_ok);
    machine.script_random({record(1)});
  });
  machine.advance(1);
  EXPECT_EQ(captions(window), "h a l ");
  EXPECT_FALSE(solved(window));
  EXPECT_FALSE(window.Timer1.Enabled);
  EXPECT_EQ(window.kép.Picture, nullptr);
  EXPECT_TRUE(window.cmd_kész.Visible);
}

TEST_F(AnswerTest, ThereIsOneCongratulationForAWinHoweverLongThePanelStays) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  then_in<frm_gratuláció>([this](frm_gratuláció& panel) {
    machine.advance(60000);
    hand::click(panel.cmd_ok);
  });
  machine.advance(3000);
  machine.advance(60000);
  EXPECT_EQ(machine.count("modal frm_gratuláció"), 1);
}

TEST_F(AnswerTest, WhileSolvedTheInstructionStillDealsANewWordAndNoCongratulationComes) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  machine.advance(1000);
  machine.script_random({record(1)});
  hand::click(window.lbl_feladat, MouseButton::Left);
  EXPECT_EQ(captions(window), "h a l ");
  machine.advance(10000);
  EXPECT_EQ(machine.count("modal frm_gratuláció"), 0);
}

TEST_F(AnswerTest, KeysAreLiveWhileSolved) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  hand::key(window, key::space);
  hand::key(window, key::right);
  EXPECT_EQ(selected(window).size(), 1U);
}

TEST_F(AnswerTest, TheWindowCanBeClosedWhileSolved) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  hand::click(window.mnu_fájl_kilép);
  machine.advance(10000);
  EXPECT_FALSE(session().loaded<frm_cserkó>());
  EXPECT_EQ(machine.count("modal frm_gratuláció"), 0);
}

TEST_F(AnswerTest, ThePictureOfASolvedWordThatIsMissingIsReplacedByItsName) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  machine.break_picture(Text(app) + u"kepek\\1.wmf");
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(drawn(window.kép).texts(), std::vector<Text>{u"kos"});
}

TEST_F(AnswerTest, TheFifthWinOffersTheReward) {
  auto& window = deal({u"kos", u"utolsó"});
  for (int i = 1; i <= 5; ++i) {
    lay(window, {u"k", u"o", u"s"});
    hand::click(window.cmd_kész);
    then_in<frm_gratuláció>([&](frm_gratuláció& panel) {
      EXPECT_EQ(panel.Timer1.Interval, i == 5 ? 10000 : 0);
      EXPECT_EQ(panel.cmd_dob.Enabled, i == 5);
      hand::click(panel.cmd_ok);
    });
    machine.advance(3000);
  }
}

} // namespace
} // namespace cserko
