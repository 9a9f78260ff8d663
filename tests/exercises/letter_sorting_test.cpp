// Letter sorting: the deal of a round, answers, the flight of the pictures, the settings that the exercise takes back.
#include "core/numbers.h"
#include "tests/exercises/letter_sorting_fixture.h"

#include <algorithm>

namespace cserko {
namespace {

constexpr TextView instruction = u"Kattints arra a betűre, amelyik benne van az alábbi szóban!";

TEST_F(LetterSortingTest, HasItsTexts) {
  const auto& window = deal();
  EXPECT_EQ(utf8(window.Caption), "Cserkó - Betűválogató");
  EXPECT_EQ(window.Label1.Caption, instruction);
  EXPECT_EQ(utf8(window.mnufőbeáll.Caption), "&Fájl");
  EXPECT_EQ(utf8(window.mnu_beall_ujjatek.Caption), "Új játék");
  EXPECT_EQ(utf8(window.mnubeállítások.Caption), "&Beállítások");
  EXPECT_EQ(utf8(window.mnu_beáll_separate.Caption), "-");
  EXPECT_EQ(utf8(window.mnu_beáll_kilépés.Caption), "&Kilépés");
  EXPECT_EQ(utf8(window.mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(window.mnu_súgó_súgó.Caption), "&Súgó");
}

TEST_F(LetterSortingTest, HasItsDesign) {
  start();
  const auto model = designed<frm_betűválogatás>();
  EXPECT_EQ(utf8(model->betű[0].Caption), "s");
  EXPECT_EQ(utf8(model->betű[1].Caption), "sz");
  EXPECT_EQ(utf8(model->középsőképnév.Caption), "Label2");
  EXPECT_EQ(place_of(model->betű[0]), (Rect{720, 120, 1500, 1695}));
  EXPECT_EQ(place_of(model->betű[1]), (Rect{9120, 120, 1500, 1695}));
  EXPECT_EQ(place_of(model->kép), (Rect{3000, 1440, 5400, 5400}));
  EXPECT_EQ(place_of(model->középsőképnév), (Rect{3000, 6960, 5295, 615}));
  ASSERT_EQ(model->eredménykép.count(), 12);
  ASSERT_EQ(model->eredményképnév.count(), 12);
  for (int i = 0; i < 12; ++i) {
    const double left = (i < 6 ? 120 : 8520) + i % 2 * 1440;
    const int row = i % 6 / 2;
    EXPECT_EQ(place_of(model->eredménykép[i]), (Rect{left, 1920 + row * 1920.0, 1335, 1335})) << i;
    EXPECT_EQ(place_of(model->eredményképnév[i]), (Rect{left, 3360 + row * 1920.0, 1335, 255})) << i;
  }
}

TEST_F(LetterSortingTest, FillsTheScreenAndCutsNoWord) {
  for (const auto& [width, height] : {std::pair{1280, 1024}, {1024, 600}, {3840, 2160}}) {
    machine.set_screen(width, height);
    const auto& window = deal();
    expect_scaled(window, 0.95, u"kép");
    EXPECT_LE(window.középsőképnév.Top + window.középsőképnév.Height, window.inner_height());
    EXPECT_LE(window.Height, machine.screen_size().height);
    EXPECT_LE(window.Width, machine.screen_size().width);
    expect_fitted(window.Label1);
    end_session();
    start_numbering();
  }
}

TEST_F(LetterSortingTest, ARoundHasSixWordsForEachLetterAndShowsNoneOfThem) {
  const auto& window = deal(7);
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"s", "sz"}));
  EXPECT_EQ(captions(window.eredményképnév), (std::vector<std::string>{"sas", "sál", "sün", "só", "sor", "saru", "szék",
                                                                       "szó", "szív", "szita", "szem", "szánkó"}));
  for (int i = 0; i < 12; ++i) EXPECT_EQ(picture(window.eredménykép[i]), picture_path(i));
  EXPECT_EQ(shown(window), nothing(12));
  EXPECT_EQ(tags(window), "111111101111");
  EXPECT_EQ(utf8(window.kép.Tag), "7");
  EXPECT_EQ(picture(window.kép), picture_path(7));
  EXPECT_TRUE(window.kép.Visible);
  EXPECT_EQ(utf8(window.középsőképnév.Caption), "szó");
  expect_fitted(window.középsőképnév);
  EXPECT_EQ(congratulations, 0);
}

TEST_F(LetterSortingTest, WordsOfBothLettersOfNeitherTooLongOnesAndThoseDrawnAlreadyAreRefused) {
  put_settings(file_name, {u" 0 ", u" 3 ", u"True", u"False", u" 0 ", u" 11 "});
  start();
  script_pair(0);
  for (const int index : {0, 12 /* both */, 13 /* neither */, 14 /* twelve letters */, 0, 6 /* the other's */, 1, 2, 3,
                          4, 15 /* the last record */, 0 /* the other's */, 6, 7, 8, 9, 10, 11})
    script_word(index);
  script_place(0);
  const auto& window = open<frm_betűválogatás>();
  EXPECT_EQ(captions(window.eredményképnév),
            (std::vector<std::string>{"sas", "sál", "sün", "só", "sor", "sapka", "szék", "szó", "szív", "szita", "szem",
                                      "szánkó"}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(LetterSortingTest, OnlySelectedPairsAreDrawn) {
  start();
  dialog().lst_betűpárok.set_selection({true, false, false});
  script_pair(2);
  script_pair(1);
  script_round();
  EXPECT_EQ(captions(open<frm_betűválogatás>().betű), (std::vector<std::string>{"s", "sz"}));
}

TEST_F(LetterSortingTest, SyllablesAreShownWhereTheyAreWanted) {
  put_settings(file_name, {u" 0 ", u" 3 ", u"True", u"False", u" 1 ", u" 14 "});
  const auto& window = deal();
  EXPECT_EQ(utf8(window.eredményképnév[5].Caption), "sa-ru");
}

TEST_F(LetterSortingTest, ANameOfManySyllablesStaysInItsPlace) {
  auto& window = deal();
  Label& name = window.eredményképnév[0];
  for (const TextView many : {u"sár-kány-re-pü-lő", u"sza-kács-mű-vé-szet", u"sze-mé-lyi-i-ga-zol-vány"}) {
    name.Caption = many;
    const double width = name.Width;
    window.kép.Tag = u"0";
    solve(window, 1);
    EXPECT_LE(machine.measure(name.Font, name.Caption).width, width) << utf8(Text(many));
  }
  EXPECT_FALSE(name.WordWrap);
}

TEST_F(LetterSortingTest, EnglishWordsAreShownWhereTheyAreWanted) {
  put_settings(file_name, {u" 0 ", u" 3 ", u"False", u"True", u" 1 ", u" 14 "});
  start();
  script_pair(0, 1);
  for (int i = 0; i < 12; ++i) script_word(i);
  script_place(11);
  const auto& window = open<frm_betűválogatás>();
  EXPECT_EQ(captions(window.betű), (std::vector<std::string>{"b", "d"}));
  EXPECT_EQ(utf8(window.eredményképnév[5].Caption), "book") << "syllables are of Hungarian words";
  EXPECT_EQ(utf8(window.középsőképnév.Caption), "day");
}

TEST_F(LetterSortingTest, TheLettersHaveTheLargestSizeAtWhichBothFit) {
  const auto& window = deal();
  const double size = window.betű[0].Font.size;
  EXPECT_EQ(window.betű[1].Font.size, size);
  const auto fits = [&](double points) {
    bool all = true;
    window.betű.each([&](const Label& letter) {
      Font font = letter.Font;
      font.size = points;
      const Size extent = machine.measure(font, letter.Caption);
      all = all && extent.width <= letter.Width && extent.height <= letter.Height;
    });
    return all;
  };
  EXPECT_TRUE(fits(size));
  EXPECT_FALSE(fits(size + 1));
}

TEST_F(LetterSortingTest, TheRightLetterPutsThePictureIntoItsPlaceAtOnce) {
  auto& window = deal(2);
  const Rect place = place_of(window.kép);
  solve(window, 9);
  EXPECT_EQ(commands(), good_sound);
  auto expected = nothing(12);
  expected[2] = "sün";
  EXPECT_EQ(shown(window), expected);
  expect_fitted(window.eredményképnév[2]);
  EXPECT_EQ(machine.frames, 0);
  EXPECT_EQ(place_of(window.kép), place);
  EXPECT_EQ(utf8(window.középsőképnév.Caption), "szita");
  EXPECT_EQ(tags(window), "110111111011");
}

TEST_F(LetterSortingTest, TheRightSideIsThatOfTheLetter) {
  auto& window = deal(6);
  script_sound();
  script_place(0);
  hand::click(window.betű[1]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(shown(window)[6], "szék");
}

TEST_F(LetterSortingTest, AWrongLetterOnlySounds) {
  for (const int place : {5, 6}) {
    auto& window = deal(place);
    const std::string before = tags(window);
    script_sound();
    hand::click(window.betű[place == 5 ? 1 : 0]);
    EXPECT_EQ(commands(), bad_sound);
    EXPECT_EQ(shown(window), nothing(12));
    EXPECT_EQ(tags(window), before);
    EXPECT_EQ(utf8(window.kép.Tag), std::to_string(place));
    end_session();
    start_numbering();
  }
}

TEST_F(LetterSortingTest, ArrowKeysAnswerLikeClicksOnTheLetters) {
  auto& window = deal(0);
  script_sound();
  hand::key(window, key::right);
  EXPECT_EQ(commands(), bad_sound);
  script_sound();
  script_place(6);
  hand::key(window, key::left);
  EXPECT_EQ(commands(), "close hang\n" + good_sound);
  EXPECT_EQ(shown(window)[0], "sas");
  script_sound();
  script_place(1);
  hand::key(window, key::right);
  EXPECT_EQ(shown(window)[6], "szék");
}

TEST_F(LetterSortingTest, LettersAreChosenByTabAndSpaceToo) {
  auto& window = deal(6);
  window.set_focus(&window.betű[0]);
  hand::key(window, key::tab);
  ASSERT_EQ(window.focus(), &window.betű[1]);
  script_sound();
  script_place(0);
  hand::key(window, key::space);
  EXPECT_EQ(shown(window)[6], "szék");
}

TEST_F(LetterSortingTest, EscapeLeaves) {
  auto& window = deal();
  hand::key(window, key::escape);
  EXPECT_FALSE(session().loaded<frm_betűválogatás>());
  EXPECT_TRUE(session().loaded<frm_betűválogatás_beállítás>()) << "the dialog holds the settings";
}

TEST_F(LetterSortingTest, TheMenuLeavesAndHelps) {
  auto& window = deal();
  hand::click(window.mnu_súgó_súgó);
  EXPECT_EQ(help_page(), help_command("Betűválogató - a feladat.mht"));
  hand::click(window.mnu_beáll_kilépés);
  EXPECT_FALSE(session().loaded<frm_betűválogatás>());
}

TEST_F(LetterSortingTest, AFinishedRoundIsCongratulatedOnAndMayBringTheSameWordsAgain) {
  auto& window = deal(0);
  solve_but_last(window);
  EXPECT_EQ(tags(window), "000000000000");
  EXPECT_EQ(congratulations, 0);
  then_close_congratulation();
  seen_at_congratulation = [&] {
    EXPECT_EQ(shown(window)[11], "szánkó");
    script_round(3);
  };
  script_sound();
  hand::click(window.betű[1]);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(shown(window), nothing(12));
  EXPECT_EQ(window.has_puzzle(), true);
}

TEST_F(LetterSortingTest, NewGameInARoundGoesOnWithoutThePictureInPlay) {
  auto& window = deal(0);
  script_place(1);
  hand::click(window.mnu_beall_ujjatek);
  EXPECT_EQ(utf8(window.középsőképnév.Caption), "sál");
  EXPECT_EQ(tags(window), "001111111111");
  EXPECT_EQ(shown(window), nothing(12)) << "the lost picture gets no place";
  EXPECT_EQ(congratulations, 0);
}

// --- The flight ---

class FlightTest : public LetterSortingTest {
 protected:
  FlightTest() { put_settings(file_name, {u" 1 ", u" 2 ", u"True", u"False", u" 0 ", u" 14 "}); }
};

TEST_F(FlightTest, ThePictureShrinksAboutItsCentreAndFliesToItsPlaceAStepAFrame) {
  auto& window = deal(8);
  const Rect start = place_of(window.kép);
  const Rect goal = place_of(window.eredménykép[8]);
  std::vector<Rect> seen;
  machine.during_frame = [&] {
    seen.push_back(place_of(window.kép));
    EXPECT_EQ(shown(window), nothing(12));
  };
  solve(window, 0);
  ASSERT_EQ(seen.size(), 20U);
  EXPECT_NEAR(seen[0].width, start.width - (start.width - goal.width) / 4, 1e-6);
  EXPECT_NEAR(seen[0].left + seen[0].width / 2, start.left + start.width / 2, 1);
  EXPECT_NEAR(seen[3].width, goal.width, 1e-6);
  EXPECT_NEAR(seen[3].height, goal.height, 1e-6);
  EXPECT_EQ(seen[3].left, rounded(start.left + start.width / 2 - goal.width / 2));
  EXPECT_EQ(seen[3].top, rounded(start.top + start.height / 2 - goal.height / 2));
  EXPECT_NEAR(seen[11].left, (seen[3].left + goal.left) / 2, 1e-6);
  EXPECT_NEAR(seen[11].top, (seen[3].top + goal.top) / 2, 1e-6);
  EXPECT_EQ(seen[19], goal);
  EXPECT_EQ(place_of(window.kép), start);
  EXPECT_TRUE(window.kép.Visible) << "the next one is there";
  EXPECT_EQ(shown(window)[8], "szív");
}

TEST_F(FlightTest, ThePictureFliesOverTheOthers) {
  auto& window = deal();
  const auto order = window.stacking();
  const auto at = [&](const Element& element) { return std::find(order.begin(), order.end(), &element); };
  window.eredménykép.each([&](const PictureBox& place) { EXPECT_LT(at(place), at(window.kép)); });
}

TEST_F(FlightTest, ClicksAndKeysMeanwhileAreLost) {
  auto& window = deal(8);
  machine.during_frame = [&] {
    hand::click(window.betű[0]);
    hand::key(window, key::right);
    hand::key(window, key::escape);
    hand::click(window.mnu_beall_ujjatek);
    hand::close(window);
  };
  solve(window, 0);
  machine.during_frame = {};
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(tags(window), "011111110111");
  EXPECT_TRUE(window.Enabled);
  solve(window, 1);
  EXPECT_EQ(commands(), "close hang\n" + good_sound);
}

TEST_F(FlightTest, TheProgramMayEndMeanwhile) {
  auto& window = deal(8);
  machine.during_frame = [&] { machine.end_process(); };
  script_sound();
  hand::click(window.betű[1]);
  EXPECT_EQ(machine.frames, 1);
  EXPECT_EQ(tags(window), "111111110111") << "nothing was dealt behind it";
}

TEST_F(FlightTest, AWrongAnswerDoesNotFly) {
  auto& window = deal(8);
  script_sound();
  hand::click(window.betű[0]);
  EXPECT_EQ(machine.frames, 0);
}

// --- Nothing fits ---

TEST_F(LetterSortingTest, APairWithTooFewWordsIsNamedAtOnceAndNothingCanBePlayed) {
  start();
  put_answer_sounds();
  script_pair(1);
  then_close_message();
  auto& window = open<frm_betűválogatás>();
  EXPECT_NE(message.find("b - d"), std::string::npos) << message;
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_FALSE(window.kép.Visible);
  EXPECT_FALSE(window.középsőképnév.Visible);
  EXPECT_EQ(tags(window), "000000000000");
  hand::click(window.betű[0]);
  hand::key(window, key::right);
  EXPECT_EQ(commands(), "");
  script_round();
  hand::click(window.mnu_beall_ujjatek);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_TRUE(window.középsőképnév.Visible);
  EXPECT_EQ(congratulations, 0) << "nothing was solved";
}

TEST_F(LetterSortingTest, FiveWordsForALetterAreTooFew) {
  start_numbering();
  put({{u"ló", u"ló"}, {u"tó", u"tó"}}); // for sas and sál: what is left with s are five words and a very long one
  put_settings(file_name, {u" 0 ", u" 3 ", u"True", u"False", u" 0 ", u" 5 "});
  start();
  dialog().lst_betűpárok.set_selection({true, false, false});
  then_close_message();
  open<frm_betűválogatás>();
  EXPECT_NE(message.find("s - sz"), std::string::npos) << message;
}

TEST_F(LetterSortingTest, AFailedRoundAfterASolvedOneLeavesNothingOfIt) {
  auto& window = deal(0);
  solve_but_last(window);
  then_close_congratulation();
  seen_at_congratulation = [&] { script_pair(1); };
  then_close_message();
  script_sound();
  hand::click(window.betű[1]);
  EXPECT_NE(message.find("b - d"), std::string::npos) << message;
  EXPECT_EQ(shown(window), nothing(12));
  EXPECT_EQ(utf8(window.betű[0].Caption), "");
}

TEST_F(LetterSortingTest, WithoutTheListOfPairsItSaysSo) {
  machine.files().remove(Text(app) + u"betűpár.kvl");
  start();
  then_close_message();
  auto& window = open<frm_betűválogatás>();
  EXPECT_NE(message.find("betűpár.kvl"), std::string::npos) << message;
  EXPECT_FALSE(dialog().Ok.Enabled);
  hand::click(window.mnu_beáll_kilépés);
}

// --- The settings that the exercise takes over or back ---

TEST_F(LetterSortingTest, OkDealsANewRoundWithoutACongratulation) {
  auto& window = deal(0);
  solve(window, 1);
  in_dialog(window, [this](frm_betűválogatás_beállítás& d) {
    hand::click(d.Chk_szótagolva);
    script_round(5);
    hand::click(d.Ok);
  });
  EXPECT_EQ(utf8(window.középsőképnév.Caption), "sa-ru");
  EXPECT_EQ(shown(window), nothing(12));
  EXPECT_EQ(tags(window), "111110111111");
  EXPECT_EQ(utf8(dialog().Ok.Tag), "");
  EXPECT_EQ(congratulations, 0);
  EXPECT_EQ(settings(file_name), " 0 \r\n 3 \r\nTrue\r\nFalse\r\n 1 \r\n 14 \r\n");
}

TEST_F(LetterSortingTest, CancelAndTheCloseBoxTakeFourThingsBackAndLeaveThree) {
  auto& window = deal(0);
  for (const bool by_close_box : {false, true}) {
    in_dialog(window, [&](frm_betűválogatás_beállítás& d) {
      d.chk_animáció.set_value(1);
      d.scrollbar_finomság.set_value(5);
      d.udszóhossz.set_value(6);
      hand::select(d.lst_betűpárok, 1);
      d.Chk_szótagolva.set_value(1);
      d.chk_iránygyakoroltatása.set_value(1);
      if (by_close_box) {
        hand::close(d);
      } else {
        hand::click(d.cancel);
      }
    });
    const auto& d = dialog();
    EXPECT_EQ(d.chk_animáció.value(), 0);
    EXPECT_FALSE(d.scrollbar_finomság.Enabled);
    EXPECT_EQ(d.scrollbar_finomság.value(), 3);
    EXPECT_EQ(d.udszóhossz.value(), 14);
    EXPECT_EQ(d.lst_betűpárok.selection(), std::vector<bool>(3, true));
    EXPECT_EQ(d.Chk_szótagolva.value(), 1);
    EXPECT_EQ(d.chk_iránygyakoroltatása.value(), 1);
    EXPECT_EQ(settings(file_name), "(none)");
    EXPECT_EQ(utf8(window.középsőképnév.Caption), "sas") << "the round goes on";
  }
}

TEST_F(LetterSortingTest, ALanguageThatIsLeftByCancelNeverLeavesThePairsUnselected) {
  auto& window = deal(0);
  dialog().lst_betűpárok.set_selection({false, false, true});
  in_dialog(window, [](frm_betűválogatás_beállítás& d) {
    hand::click(d.opt_nyelv[1]);
    hand::click(d.cancel);
  });
  EXPECT_TRUE(dialog().english());
  EXPECT_EQ(dialog().lst_betűpárok.selection(), std::vector<bool>(1, true));
  EXPECT_TRUE(dialog().Ok.Enabled);
}

} // namespace
} // namespace cserko
