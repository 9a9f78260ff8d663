// Where is it: the words around the picture, the direction words on the buttons, the answer, hints, results, keys.
#include "tests/exercises/where_is_it_fixture.h"

#include <map>

namespace cserko {
namespace {

class WhereIsItTest : public WhereIsItFixture {};

using Strings = std::vector<std::string>;

TEST_F(WhereIsItTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_holvan>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Hol van?");
  EXPECT_EQ(utf8(window->Label1.Caption), "Hol van a kép neve? Nyomd meg a megfelelő gombot!");
  EXPECT_EQ(place_of(window->Label1), (Rect{0, 0, 6495, 375}));
  EXPECT_EQ(place_of(window->Picture1), (Rect{120, 480, 6495, 735}));
  EXPECT_EQ(window->cmd_irány[3].container(), &window->Picture1);
  EXPECT_EQ(places_of(window->cmd_irány),
            (std::vector<Rect>{
                {240, 120, 1335, 495}, {3360, 120, 1335, 495}, {1800, 120, 1335, 495}, {4920, 120, 1335, 495}}));
  EXPECT_EQ(place_of(window->kép), (Rect{2160, 2520, 2295, 2295}));
  EXPECT_EQ(places_of(window->lbl_szó),
            (std::vector<Rect>{
                {120, 3360, 2055, 735}, {2280, 1320, 2055, 735}, {4440, 3360, 2055, 735}, {2280, 5520, 2055, 735}}));
  EXPECT_EQ(window->pic_eredménykép.count(), 6);
  window->pic_eredménykép.each([](const PictureBox& box) { EXPECT_EQ(box.Top, 6360); });
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(window->mnu_újjáték.Caption), "& Új játék");
  EXPECT_EQ(utf8(shortcut_text(window->mnu_újjáték)), "F2");
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "&Beállítások");
  EXPECT_EQ(utf8(shortcut_text(window->mnu_fájl_beáll)), "F3");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(utf8(shortcut_text(window->mnu_súgó_súgó)), "F1");
}

TEST_F(WhereIsItTest, IsScaledTwiceAndFillsItsShareOfTheScreen) {
  auto& window = deal(0);
  const auto model = designed<frm_holvan>();
  model->set_inner_size(model->design_size());
  ablak_méretezés(*model, 0.95);
  model->ablak_állítás();
  ablak_méretezés(*model, 0.95);
  EXPECT_EQ(place_of(window.kép), place_of(model->kép));
  EXPECT_EQ(places_of(window.pic_eredménykép), places_of(model->pic_eredménykép));
  EXPECT_EQ(window.Left + window.Width / 2, machine.screen_size().width / 2);
  EXPECT_EQ(window.Top + window.Height / 2, machine.screen_size().height / 2);
  EXPECT_EQ(results(window), Strings(6, "-1"));
}

TEST_F(WhereIsItTest, TheResultsAreSpreadOverTheWidthOfTheButtons) {
  start();
  const auto window = designed<frm_holvan>();
  window->Picture1.Left = 200;
  window->Picture1.Width = 6300;
  window->pic_eredménykép[0].Top = 5000;
  window->ablak_állítás();
  std::vector<Rect> places;
  for (int i = 0; i < 6; ++i) places.push_back({200.0 + i * 1060, 5000, 1000, 1000});
  EXPECT_EQ(places_of(window->pic_eredménykép), places);
}

// The puzzle.

TEST_F(WhereIsItTest, TheNameOfThePictureStandsOnTheDrawnSide) {
  for (const int side : {0, 1, 2, 3}) {
    auto& window = deal(side);
    EXPECT_EQ(words(window), (Strings{"alma", "körte", "szilva", "medve"}));
    EXPECT_EQ(window.aktuális_kép(), side);
    EXPECT_EQ(picture(window.kép), picture_path(side));
    EXPECT_EQ(machine.scripted_random_left(), 0U);
    end_session();
    start_numbering();
  }
}

TEST_F(WhereIsItTest, EachWordRemembersItsRecord) {
  auto& window = deal(2);
  Strings tags;
  window.lbl_szó.each([&](const Label& word) { tags.push_back(utf8(word.Tag)); });
  EXPECT_EQ(tags, (Strings{"0", "1", "2", "3"}));
}

TEST_F(WhereIsItTest, WordsOfAnotherLengthAreDrawnAgain) {
  put_only({{.név = u"ló"},
            {.név = u"alma"},
            {.név = u"körte"},
            {.név = u"szilva"},
            {.név = u"medve"},
            {.név = u"kilométeróra"}});
  start();
  script(0, {0, 1, 5, 2, 3, 4}, {0, 1, 2, 3});
  EXPECT_EQ(words(open<frm_holvan>()), (Strings{"alma", "körte", "szilva", "medve"}));
}

TEST_F(WhereIsItTest, LettersOfSeveralCharactersCountAsOne) {
  put_settings(u"holvan.ini", {u" 4 ", u" 4 ", u"True", u"False", u"False"});
  put_only(
      {{.név = u"gyík"}, {.név = u"alma"}, {.név = u"csiga"}, {.név = u"dzsem"}, {.név = u"kutya"}, {.név = u"hajó"}});
  start();
  script(0, {0, 1, 3, 2, 4, 5}, {0, 1, 2, 3});
  EXPECT_EQ(words(open<frm_holvan>()), (Strings{"alma", "csiga", "kutya", "hajó"}));
}

TEST_F(WhereIsItTest, NoTextStandsAtTwoPlaces) {
  put_only({{.név = u"alma"}, {.név = u"alma"}, {.név = u"körte"}, {.név = u"szilva"}, {.név = u"medve"}});
  start();
  script(0, {0, 1, 2, 0, 3, 4}, {0, 1, 2, 3});
  EXPECT_EQ(words(open<frm_holvan>()), (Strings{"alma", "körte", "szilva", "medve"}));
}

TEST_F(WhereIsItTest, AWordOfTheLastPuzzleDoesNotComeBackInAPlaceAheadOfIt) {
  auto& window = deal(0);
  // Each is refused as long as its own place is not filled anew.
  script(1, {0, 1, 2, 4, 2, 5, 3, 6, 7}, {0, 1, 2, 3});
  window.beáll();
  EXPECT_EQ(words(window), (Strings{"csillag", "vonat", "hajó", "lepke"}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(WhereIsItTest, AWordWhosePlaceIsFilledAnewMayComeBackBehindIt) {
  auto& window = deal(0);
  script(1, {4, 0, 1, 2}, {0, 1, 2, 3});
  window.beáll();
  EXPECT_EQ(words(window), (Strings{"csillag", "alma", "körte", "szilva"}));
  EXPECT_EQ(window.aktuális_kép(), 0);
}

TEST_F(WhereIsItTest, TheLastRecordIsNeverDrawn) {
  auto& window = deal(0);
  for (int i = 0; i < 100; ++i) {
    window.beáll();
    window.lbl_szó.each([](const Label& word) { EXPECT_NE(utf8(word.Caption), "utolsó"); });
  }
}

TEST_F(WhereIsItTest, EachWordAndTheButtonsSeedTheGenerator) {
  auto& window = deal(0);
  const int before = machine.seedings;
  window.beáll();
  EXPECT_EQ(machine.seedings, before + 5);
}

TEST_F(WhereIsItTest, TheFourWordsHaveTheSizeThatTheWidestOfThemNeeds) {
  put_only({{.név = u"alma"}, {.név = u"mamutfenyő"}, {.név = u"szilva"}, {.név = u"medve"}, {.név = u"róka"}});
  start();
  script(0, {0, 1, 2, 3}, {0, 1, 2, 3});
  auto& window = open<frm_holvan>();
  expect_fitted(window.lbl_szó[1]);
  window.lbl_szó.each([&](const Label& word) { EXPECT_EQ(word.Font.size, window.lbl_szó[1].Font.size); });
  expect_fitted(button(window, u"jobbra"));
  window.cmd_irány.each([&](const Button& other) { EXPECT_EQ(other.Font.size, button(window, u"jobbra").Font.size); });
}

// The buttons.

TEST_F(WhereIsItTest, TheDirectionWordsGoToFreePlacesByChance) {
  auto& window = deal(0);
  script(0, {4, 5, 6, 7}, {2, 2, 0, 0, 3, 1});
  window.beáll();
  EXPECT_EQ(buttons(window), (Strings{"fent", "lent", "balra", "jobbra"}));
  Strings tags;
  window.cmd_irány.each([&](const Button& button) {
    tags.push_back(utf8(button.Tag));
    EXPECT_TRUE(button.Visible);
  });
  EXPECT_EQ(tags, (Strings{"1", "3", "0", "2"}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(WhereIsItTest, WithRightAndLeftTheNameStandsBesideAndTheTwoButtonsMove) {
  put_settings(u"holvan.ini", {u" 4 ", u" 10 ", u"False", u"True", u"False"});
  put_words();
  start();
  machine.script_random({drawing(1, 4), drawing(3, 4)}); // above and below do not fit
  script(2, {0, 1, 2, 3}, {3, 3, 1});
  auto& window = open<frm_holvan>();
  EXPECT_EQ(window.aktuális_kép(), 2);
  EXPECT_EQ(words(window), (Strings{"alma", "körte", "szilva", "medve"})) << "all four words stand there";
  EXPECT_EQ(buttons(window), (Strings{"", "jobbra", "", "balra"}));
  std::map<Text, int> seen;
  for (int i = 0; i < 200; ++i) {
    window.beáll();
    Text shown;
    window.cmd_irány.each([&](const Button& button) {
      EXPECT_EQ(button.Visible, !button.Caption.empty());
      shown += button.Caption + u",";
    });
    ++seen[shown];
    const Text& tag =
        window.lbl_szó[0].Tag == to_text(window.aktuális_kép()) ? window.lbl_szó[0].Tag : window.lbl_szó[2].Tag;
    EXPECT_EQ(tag, to_text(window.aktuális_kép()));
  }
  EXPECT_EQ(seen.size(), 12U) << "every pair of places";
}

TEST_F(WhereIsItTest, WithUpAndDownTheNameStandsAboveOrBelow) {
  put_settings(u"holvan.ini", {u" 4 ", u" 10 ", u"False", u"False", u"True"});
  put_words();
  start();
  put_answer_sounds();
  machine.script_random({drawing(0, 4), drawing(2, 4)});
  script(3, {0, 1, 2, 3}, {0, 2});
  auto& window = open<frm_holvan>();
  EXPECT_EQ(window.aktuális_kép(), 3);
  EXPECT_EQ(buttons(window), (Strings{"fent", "", "lent", ""}));
  hand::click(right_button(window));
  EXPECT_EQ(begun(u"good.wav"), 1);
}

// The answer.

TEST_F(WhereIsItTest, TheRightButtonIsHeardKeptAndFollowedByTheNextPuzzle) {
  constexpr std::array<TextView, 4> directions{u"balra", u"fent", u"jobbra", u"lent"};
  for (const int side : {0, 1, 2, 3}) {
    auto& window = deal(side);
    hand::click(button(window, directions.at(static_cast<std::size_t>(side))));
    EXPECT_EQ(commands(), good_sound);
    EXPECT_EQ(results(window), (Strings{std::to_string(side), "-1", "-1", "-1", "-1", "-1"}));
    EXPECT_EQ(picture(window.pic_eredménykép[0]), picture_path(side));
    EXPECT_EQ(drawn(window.pic_eredménykép[0]).texts().back(), session().képek[side].név);
    EXPECT_NE(words(window)[0], "alma");
    end_session();
    start_numbering();
  }
}

TEST_F(WhereIsItTest, TheNameOfASolvedPictureHasAHaloAndNoPlate) {
  auto& window = deal(0);
  hand::click(right_button(window));
  int boxes = 0;
  for (const Drawing& drawing : drawn(window.pic_eredménykép[0]).drawings())
    boxes += drawing.kind == Drawing::Kind::FilledBox ? 1 : 0;
  EXPECT_EQ(boxes, 0);
  EXPECT_GT(drawn(window.pic_eredménykép[0]).texts().size(), 1U);
}

TEST_F(WhereIsItTest, AWrongButtonIsHeardAndNothingChanges) {
  auto& window = deal(1);
  for (const TextView wrong : {u"balra", u"jobbra", u"lent"}) hand::click(button(window, wrong));
  EXPECT_EQ(begun(u"bad.wav"), 3);
  EXPECT_EQ(begun(u"good.wav"), 0);
  EXPECT_EQ(words(window), (Strings{"alma", "körte", "szilva", "medve"}));
  EXPECT_EQ(results(window), Strings(6, "-1"));
}

TEST_F(WhereIsItTest, TheSixthRightAnswerIsCongratulatedAndTheResultsEmptied) {
  auto& window = deal(0);
  for (int i = 0; i < 5; ++i) hand::click(right_button(window));
  EXPECT_EQ(congratulations, 0);
  const int sixth = window.aktuális_kép();
  seen_at_congratulation = [&] {
    EXPECT_EQ(results(window)[5], std::to_string(sixth));
    EXPECT_EQ(window.aktuális_kép(), sixth) << "the next puzzle comes after it";
  };
  then_close_congratulation();
  hand::click(right_button(window));
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(results(window), Strings(6, "-1"));
  EXPECT_EQ(pictures(window.pic_eredménykép), no_pictures(6));
}

// Hints.

TEST_F(WhereIsItTest, AClickOnThePictureShowsItWithItsName) {
  auto& window = deal(2);
  then_in<üzenet>([](üzenet& panel) {
    EXPECT_EQ(utf8(panel.üzenet_szöveg.Caption), "szilva");
    EXPECT_EQ(picture(panel.üzenet_kép), picture_path(2));
    hand::click(panel.Command1);
  });
  hand::click(window.kép);
  EXPECT_EQ(commands(), "") << "it is no answer";
}

TEST_F(WhereIsItTest, AClickOnAWordShowsThatWordsOwnPicture) {
  auto& window = deal(2);
  for (const int word : {0, 1, 2, 3}) {
    then_in<üzenet>([this, word](üzenet& panel) {
      EXPECT_EQ(panel.üzenet_szöveg.Caption, session().képek[word].név);
      EXPECT_EQ(picture(panel.üzenet_kép), picture_path(word));
      hand::click(panel.Command1);
    });
    hand::click(window.lbl_szó[word]);
  }
  EXPECT_EQ(results(window), Strings(6, "-1"));
}

// Menu.

TEST_F(WhereIsItTest, ANewGameEmptiesTheResultsAndDeals) {
  for (const bool by_key : {false, true}) {
    auto& window = deal(0);
    script_answer();
    script(1, {4, 5, 6, 7}, {0, 1, 2, 3});
    hand::click(right_button(window));
    EXPECT_EQ(results(window)[0], "0");
    script(2, {0, 1, 2, 3}, {0, 1, 2, 3});
    if (by_key) {
      hand::key(window, key::f1 + 1);
    } else {
      hand::click(window.mnu_újjáték);
    }
    EXPECT_EQ(results(window), Strings(6, "-1"));
    EXPECT_EQ(words(window)[0], "alma");
    end_session();
    start_numbering();
  }
}

TEST_F(WhereIsItTest, TheMenuClosesTheDialogTooAndTheWindowsOwnControlDoesNot) {
  for (const bool by_menu : {true, false}) {
    auto& window = deal(0);
    if (by_menu) {
      hand::click(window.mnu_fájl_kilép);
    } else {
      hand::close(window);
    }
    EXPECT_FALSE(session().loaded<frm_holvan>());
    EXPECT_EQ(session().loaded<frm_holvan_beáll>(), !by_menu);
    end_session();
    start_numbering();
  }
}

TEST_F(WhereIsItTest, HelpOpensItsPageAlsoByKey) {
  auto& window = deal(0);
  hand::key(window, key::f1);
  hand::click(window.mnu_súgó_súgó);
  expect_help_twice("Hol van - a feladat.mht");
}

// Keys.

TEST_F(WhereIsItTest, TheArrowsMoveAmongTheButtonsAndAnswerNothing) {
  auto& window = deal(0);
  EXPECT_EQ(window.focus(), &window.cmd_irány[0]);
  for (const int next : {2, 1, 3}) {
    hand::key(window, key::right);
    EXPECT_EQ(window.focus(), &window.cmd_irány[next]) << "in the order of their places";
  }
  hand::key(window, key::left);
  EXPECT_EQ(window.focus(), &window.cmd_irány[1]);
  for (const int arrow : {key::up, key::down, key::left, key::right}) hand::key(window, arrow);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(results(window), Strings(6, "-1"));
}

TEST_F(WhereIsItTest, IsPlayedByKeysAlone) {
  auto& window = deal(0);
  hand::key(window, key::space);
  EXPECT_EQ(results(window)[0], "0");
  hand::key(window, key::down);
  ASSERT_NE(window.focus(), nullptr);
  EXPECT_EQ(utf8(window.focus()->Name), "lbl_szó");
  const int word = window.focus()->Index;
  const Text name = window.lbl_szó[word].Caption;
  then_in<üzenet>([name](üzenet& panel) {
    EXPECT_EQ(panel.üzenet_szöveg.Caption, name);
    hand::click(panel.Command1);
  });
  hand::key(window, key::enter);
}

TEST_F(WhereIsItTest, TheFocusStaysAmongTheButtonsWhereTheNextPuzzleLeavesItsPlaceEmpty) {
  put_settings(u"holvan.ini", {u" 4 ", u" 10 ", u"False", u"True", u"False"});
  put_words();
  start();
  put_answer_sounds();
  script(0, {0, 1, 2, 3}, {0, 1});
  auto& window = open<frm_holvan>();
  EXPECT_EQ(window.focus(), &window.cmd_irány[0]);
  script_answer();
  script(0, {4, 5, 6, 7}, {2, 3});
  hand::key(window, key::space);
  ASSERT_NE(window.focus(), nullptr);
  EXPECT_EQ(window.focus(), &window.cmd_irány[2]);
  EXPECT_TRUE(window.focus()->Visible);
}

// Where something is missing.

TEST_F(WhereIsItTest, WithTooFewWordsTheWindowStaysEmptyAndTellsWhy) {
  put_only({{.név = u"alma"}, {.név = u"körte"}, {.név = u"szilva"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_holvan>();
  EXPECT_EQ(message, "Nincs elég ilyen hosszú szavunk.\r\nKérlek, engedj meg a beállításokban rövidebb vagy hosszabb "
                     "szavakat is!");
  EXPECT_TRUE(window.visible());
  EXPECT_EQ(words(window), nothing(4));
  EXPECT_EQ(buttons(window), nothing(4));
  EXPECT_EQ(picture(window.kép), "(none)");
  hand::click(window.kép);
  hand::click(window.lbl_szó[0]);
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_holvan>());
}

TEST_F(WhereIsItTest, WithFourWordsThereIsNoSecondPuzzleUntilTheBoardIsEmpty) {
  put_only({{.név = u"alma"}, {.név = u"körte"}, {.név = u"szilva"}, {.név = u"medve"}});
  start();
  auto& window = open<frm_holvan>();
  then_close_message();
  hand::click(right_button(window));
  EXPECT_EQ(messages_shown, 1);
  EXPECT_NE(results(window)[0], "-1") << "the solved picture is kept";
  EXPECT_EQ(words(window), nothing(4));
  hand::click(window.mnu_újjáték);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(WhereIsItTest, ARecordWithoutAPictureShowsItsPlaceholder) {
  put_only({{.név = u"alma", .has_picture = false}, {.név = u"körte"}, {.név = u"szilva"}, {.név = u"medve"}});
  start();
  script(0, {0, 1, 2, 3}, {0, 1, 2, 3});
  EXPECT_EQ(drawn(open<frm_holvan>().kép).texts(), std::vector<Text>{u"alma"});
}

} // namespace
} // namespace cserko
