// Which way: the collection of motifs, the draw, the words on the buttons, the answer, results, settings, and what is
// said where pictures are missing.
#include "tests/exercises/which_way_fixture.h"

#include <map>

namespace cserko {
namespace {

class WhichWayTest : public WhichWayFixture {};

using Strings = std::vector<std::string>;

TEST_F(WhichWayTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_merremutat>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Merre mutat?");
  EXPECT_EQ(place_of(window->Frame1), (Rect{120, 120, 3975, 7815}));
  std::vector<Rect> pictures_at;
  std::vector<Rect> labels_at;
  for (const double column : {120, 2040}) {
    for (const double top : {240, 2760, 5520}) pictures_at.push_back({column, top, 1815, 1815});
    for (const double top : {2040, 4560, 7320}) labels_at.push_back({column, top, 1815, 375});
  }
  EXPECT_EQ(places_of(window->pic_eredmény), pictures_at);
  EXPECT_EQ(places_of(window->lbl_eredmény), labels_at);
  EXPECT_EQ(window->pic_eredmény[5].container(), &window->Frame1);
  EXPECT_EQ(window->lbl_eredmény[5].container(), &window->Frame1);
  EXPECT_EQ(place_of(window->lbl_feladat), (Rect{4200, 0, 6495, 615}));
  EXPECT_EQ(place_of(window->Picture2), (Rect{4200, 720, 6495, 735}));
  EXPECT_EQ(window->cmd_irány[3].container(), &window->Picture2);
  EXPECT_EQ(places_of(window->cmd_irány),
            (std::vector<Rect>{
                {240, 120, 1335, 495}, {3360, 120, 1335, 495}, {1800, 120, 1335, 495}, {4920, 120, 1335, 495}}));
  EXPECT_EQ(place_of(window->kép), (Rect{4200, 1440, 6495, 6495}));
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "&Fájl");
  EXPECT_EQ(utf8(window->mnu_fájl_beáll.Caption), "Beállítások");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "&Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
  EXPECT_EQ(window->mnu_súgó_súgó.ShortcutKey, key::f1);
}

TEST_F(WhichWayTest, FillsItsShareOfTheScreen) {
  auto& window = deal(left);
  expect_scaled(window, 0.95, u"kép");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

// The collection.

TEST_F(WhichWayTest, ReadsTheMotifsBehindABlankOneInTheOrderOfTheFolder) {
  auto& window = deal(left);
  const auto& motifs = window.irányképek();
  ASSERT_EQ(motifs.size(), 4U);
  EXPECT_EQ(utf8(motifs[0].kérdés), "");
  EXPECT_EQ(utf8(motifs[1].kérdés), "Merre mutat a nyíl");
  EXPECT_EQ(utf8(motifs[2].kérdés), "Merre megy az autó");
  EXPECT_EQ(utf8(motifs[3].kérdés), "Merre repül a rakéta");
  const auto files = [&](std::size_t motif) {
    Strings all;
    for (const Text& file : motifs[motif].képfájl) all.push_back(utf8(file));
    return all;
  };
  EXPECT_EQ(files(0), nothing(4));
  EXPECT_EQ(files(1), (Strings{picture_of("a nyíl_bal"), picture_of("a nyíl_fel"), picture_of("a nyíl_jobb"),
                               picture_of("a nyíl_le")}));
  EXPECT_EQ(files(2), (Strings{picture_of("b autó_bal"), "", picture_of("b autó_jobb"), ""}));
  EXPECT_EQ(files(3), (Strings{"", picture_of("c rakéta_fel"), "", ""}));
}

TEST_F(WhichWayTest, TheNameOfAMotifEndsAtItsFirstEnding) {
  put_app_file(u"irkep\\x.swm.swm", u"Merre");
  put_app_file(u"irkep\\x_bal.wmf");
  put_app_file(u"irkep\\Y.SWM", u"Merre");
  put_app_file(u"irkep\\y_le.wmf");
  start();
  const auto& motifs = open<frm_merremutat>().irányképek();
  ASSERT_EQ(motifs.size(), 3U);
  Strings found;
  for (const IrányKép& motif : motifs) {
    for (const Text& file : motif.képfájl) {
      if (!file.empty()) found.push_back(utf8(lower_case(file)));
    }
  }
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (Strings{picture_of("x_bal"), picture_of("y_le")}));
}

TEST_F(WhichWayTest, TheQuestionEndsInOneMarkWhateverItsLineEndsIn) {
  for (const TextView line :
       {u"Merre megy az autó", u"Merre megy az autó?", u"Merre megy az autó ?? ", u"Merre megy az autó?\r\n?"}) {
    put_motif(u"autó", Text(line), {u"bal", u"jobb"});
    start();
    auto& window = open<frm_merremutat>();
    EXPECT_EQ(utf8(window.lbl_feladat.Caption), "Merre megy az autó?") << utf8(line);
    expect_fitted(window.lbl_feladat);
    end_session();
  }
}

TEST_F(WhichWayTest, AMarkInsideTheQuestionStays) {
  put_motif(u"autó", u"Látod? Merre megy", {u"bal"});
  start();
  EXPECT_EQ(utf8(open<frm_merremutat>().lbl_feladat.Caption), "Látod? Merre megy?");
}

// The draw.

TEST_F(WhichWayTest, ShowsTheMotifInTheDrawnDirection) {
  const Strings files{"a nyíl_bal", "a nyíl_fel", "a nyíl_jobb", "a nyíl_le"};
  for (const Direction direction : {left, up, right, down}) {
    auto& window = deal(direction);
    EXPECT_EQ(window.irány(), direction);
    EXPECT_EQ(picture(window.kép), picture_of(files[direction]));
    EXPECT_EQ(utf8(window.lbl_feladat.Caption), "Merre mutat a nyíl?");
    EXPECT_EQ(machine.scripted_random_left(), 0U);
    end_session();
  }
}

TEST_F(WhichWayTest, MotifsWithoutTheDirectionAndTheBlankOneAreDrawnAgain) {
  put_motifs();
  start();
  machine.script_random({drawing(up, 4), drawing(0, 4), drawing(2, 4), drawing(3, 4)});
  auto& window = open<frm_merremutat>();
  EXPECT_EQ(window.irány(), up);
  EXPECT_EQ(picture(window.kép), picture_of("c rakéta_fel"));
}

TEST_F(WhichWayTest, AMotifWithOnePictureComesOnlyInItsDirection) {
  put_motifs();
  start();
  auto& window = open<frm_merremutat>();
  std::map<std::string, int> seen;
  for (int i = 0; i < 400; ++i) {
    ++seen[picture(window.kép)];
    if (window.irány() != up) {
      EXPECT_EQ(utf8(window.lbl_feladat.Caption).find("rakéta"), std::string::npos);
    }
    window.beáll();
  }
  EXPECT_EQ(seen.size(), 7U);
  EXPECT_GT(seen[picture_of("c rakéta_fel")], 20);
}

TEST_F(WhichWayTest, EveryPuzzleSeedsTheGeneratorOnce) {
  auto& window = deal(left);
  const int before = machine.seedings;
  window.beáll();
  EXPECT_EQ(machine.seedings, before + 1);
}

TEST_F(WhichWayTest, TheSettingSaysWhichDirectionsAreDrawn) {
  const std::vector<std::set<int>> allowed{{left, right}, {up, down}, {left, up, right, down}};
  for (int option = 0; option < 3; ++option) {
    const auto word = [&](int of) { return of == option ? u"True" : u"False"; };
    put_settings(u"merremutat.ini", {word(0), word(1), word(2)});
    put_motifs();
    start();
    auto& window = open<frm_merremutat>();
    std::set<int> seen;
    for (int i = 0; i < 100; ++i) {
      seen.insert(window.irány());
      window.beáll();
    }
    EXPECT_EQ(seen, allowed[static_cast<std::size_t>(option)]);
    end_session();
  }
}

// The buttons.

TEST_F(WhichWayTest, AllFourWordsStandOnTheButtonsWhateverTheSetting) {
  put_settings(u"merremutat.ini", {u"False", u"True", u"False"});
  put_motifs();
  start();
  script(up, 1, {3, 3, 1, 0, 1, 2});
  auto& window = open<frm_merremutat>();
  EXPECT_EQ(buttons(window), (Strings{"jobbra", "fel", "le", "balra"}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
  window.cmd_irány.each([this](const Button& button) {
    EXPECT_TRUE(button.Visible);
    expect_fitted(button);
  });
}

TEST_F(WhichWayTest, TheFirstPuzzleTakesAnyOrderOfTheWords) {
  put_motifs();
  start();
  const Strings words{"balra", "fel", "jobbra", "le"};
  // Each word comes once to each button.
  for (int turn = 0; turn < 4; ++turn) {
    std::vector<int> places;
    Strings expected = nothing(4);
    for (int i = 0; i < 4; ++i) {
      places.push_back((i + turn) % 4);
      expected[static_cast<std::size_t>(places.back())] = words[static_cast<std::size_t>(i)];
    }
    script(left, 1, places);
    auto& window = open<frm_merremutat>();
    EXPECT_EQ(buttons(window), expected);
    hand::close(window);
  }
}

TEST_F(WhichWayTest, AWordThatWouldStayOnItsButtonStartsTheShuffleAgain) {
  auto& window = deal(left);
  // "balra" goes to 1, "fel" to 0, "jobbra" would stay on 2: the next order moves them all.
  script(right, 1, {1, 0, 2, 1, 0, 3, 2});
  window.beáll();
  EXPECT_EQ(buttons(window), (Strings{"fel", "balra", "le", "jobbra"}));
  EXPECT_EQ(machine.scripted_random_left(), 0U);
}

TEST_F(WhichWayTest, NoWordStaysOnItsButtonFromPuzzleToPuzzle) {
  auto& window = deal(left);
  for (int i = 0; i < 300; ++i) {
    const Strings before = buttons(window);
    window.beáll();
    const Strings now = buttons(window);
    for (std::size_t place = 0; place < 4; ++place) EXPECT_NE(now[place], before[place]);
    EXPECT_EQ(std::set(now.begin(), now.end()).size(), 4U);
  }
}

// The answer.

TEST_F(WhichWayTest, TheRightWordIsHeardKeptAndFollowedByTheNextPuzzle) {
  const Strings words{"balra", "fel", "jobbra", "le"};
  for (const Direction direction : {left, up, right, down}) {
    auto& window = deal(direction);
    const std::string shown = picture(window.kép);
    script(direction, 2, {1, 0, 3, 2});
    hand::click(window.cmd_irány[direction]);
    EXPECT_EQ(commands(), good_sound);
    EXPECT_EQ(captions(window.lbl_eredmény), (Strings{words[direction], "", "", "", "", ""}));
    EXPECT_EQ(picture(window.pic_eredmény[0]), shown);
    EXPECT_NE(buttons(window), words);
    end_session();
  }
}

TEST_F(WhichWayTest, AWrongWordIsHeardAndNothingChanges) {
  auto& window = deal(up);
  for (const Direction direction : {left, right, down}) hand::click(window.cmd_irány[direction]);
  EXPECT_EQ(begun(u"bad.wav"), 3);
  EXPECT_EQ(begun(u"good.wav"), 0);
  EXPECT_EQ(buttons(window), (Strings{"balra", "fel", "jobbra", "le"}));
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(WhichWayTest, WithUpAndDownTheOtherWordsAreWrong) {
  put_settings(u"merremutat.ini", {u"False", u"True", u"False"});
  auto& window = deal(down);
  hand::click(button(window, u"balra"));
  hand::click(button(window, u"jobbra"));
  EXPECT_EQ(begun(u"bad.wav"), 2);
  hand::click(button(window, u"le"));
  EXPECT_EQ(begun(u"good.wav"), 1);
}

TEST_F(WhichWayTest, TheSixthRightAnswerIsCongratulatedAndThePanelEmptied) {
  auto& window = deal(left);
  for (int i = 0; i < 5; ++i) hand::click(right_button(window));
  EXPECT_EQ(congratulations, 0);
  const Text sixth = right_button(window).Caption;
  seen_at_congratulation = [&] {
    EXPECT_EQ(window.lbl_eredmény[5].Caption, sixth);
    EXPECT_EQ(window.pic_eredmény[5].Picture, window.kép.Picture) << "the next puzzle comes after it";
  };
  then_close_congratulation();
  hand::click(right_button(window));
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
}

// Keys.

TEST_F(WhichWayTest, TheArrowsMoveAmongTheButtonsAndAnswerNothing) {
  auto& window = deal(left);
  EXPECT_EQ(window.focus(), &window.cmd_irány[0]);
  for (const int next : {2, 1, 3}) {
    hand::key(window, key::right);
    EXPECT_EQ(window.focus(), &window.cmd_irány[next]) << "in the order of their places";
  }
  for (const int arrow : {key::left, key::up, key::down, key::left}) hand::key(window, arrow);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(WhichWayTest, IsPlayedByKeysAlone) {
  auto& window = deal(right);
  hand::key(window, key::right);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "jobbra");
  EXPECT_EQ(window.focus(), &window.cmd_irány[2]);
  window.set_focus(&right_button(window));
  hand::key(window, key::enter);
  EXPECT_NE(utf8(window.lbl_eredmény[1].Caption), "");
}

TEST_F(WhichWayTest, OnlyTheButtonsTakeTheFocus) {
  auto& window = deal(left);
  for (int i = 0; i < 5; ++i) {
    hand::key(window, key::tab);
    ASSERT_NE(window.focus(), nullptr);
    EXPECT_EQ(utf8(window.focus()->Name), "cmd_irány");
  }
}

// Where something is missing.

class WhichWayMissingTest : public WhichWayFixture {
 protected:
  /// Opens the exercise, which finds no puzzle, and returns what it says.
  std::string told() {
    start();
    put_answer_sounds();
    then_close_message();
    auto& window = open<frm_merremutat>();
    EXPECT_TRUE(window.visible());
    EXPECT_FALSE(window.has_puzzle());
    EXPECT_EQ(picture(window.kép), "(none)");
    EXPECT_EQ(utf8(window.lbl_feladat.Caption), "");
    EXPECT_EQ(buttons(window), nothing(4));
    return message;
  }
  static inline const std::string no_pictures =
      "Nem találom azokat a képeket, amelyek mutatnak valamerre.\r\nKérlek, szólj egy felnőttnek: a programot újra "
      "kell telepíteni!";
  static inline const std::string none_that_way =
      "Nincs olyan képünk, amelyik a kért irányba mutat.\r\nKérlek, válassz a beállításokban más irányokat!";
};

TEST_F(WhichWayMissingTest, WithoutACollectionItIsTold) { EXPECT_EQ(told(), no_pictures); }

TEST_F(WhichWayMissingTest, WithQuestionsAndNoPictureItIsTold) {
  put_motif(u"nyíl", u"Merre mutat a nyíl", {});
  put_motif(u"autó", u"Merre megy az autó", {});
  EXPECT_EQ(told(), no_pictures);
}

TEST_F(WhichWayMissingTest, WithPicturesAndNoQuestionItIsTold) {
  put_motif(u"nyíl", u"", {u"bal", u"fel"});
  put_motif(u"autó", u" ? \r\nMerre megy az autó", {u"bal"});
  put_app_file(u"irkep\\hal_bal.wmf");
  EXPECT_EQ(told(), no_pictures);
}

TEST_F(WhichWayMissingTest, WherePicturesPointInOtherDirectionsTheSettingsAreNamed) {
  put_settings(u"merremutat.ini", {u"False", u"True", u"False"});
  put_motif(u"autó", u"Merre megy az autó", {u"bal", u"jobb"});
  EXPECT_EQ(told(), none_that_way);
  auto& window = load<frm_merremutat>();
  then_in<frm_merremutat_beáll>([](frm_merremutat_beáll& d) {
    hand::click(d.opt_irány[0]);
    hand::click(d.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_TRUE(window.has_puzzle()) << "and it goes on";
  hand::click(right_button(window));
  EXPECT_EQ(begun(u"good.wav"), 1);
}

TEST_F(WhichWayMissingTest, WherePicturesAreLostLaterNoOldWordIsLeft) {
  put_motif(u"autó", u"Merre megy az autó", {u"bal", u"jobb"});
  start();
  auto& window = open<frm_merremutat>();
  machine.break_picture(Text(app) + u"irkep\\autó_bal.wmf");
  machine.break_picture(Text(app) + u"irkep\\autó_jobb.wmf");
  then_close_message();
  hand::click(right_button(window));
  EXPECT_EQ(message, no_pictures);
  EXPECT_EQ(utf8(window.lbl_feladat.Caption), "");
  EXPECT_EQ(buttons(window), nothing(4));
  EXPECT_NE(utf8(window.lbl_eredmény[0].Caption), "") << "the solved one stays";
}

TEST_F(WhichWayMissingTest, ADirectionThatNoPictureHasIsPassedOver) {
  put_motif(u"autó", u"Merre megy az autó", {u"bal"});
  start();
  machine.script_random({drawing(right, 4), drawing(up, 4), drawing(left, 4), drawing(0, 2), drawing(1, 2)});
  auto& window = open<frm_merremutat>();
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(window.irány(), left);
    window.beáll();
  }
}

TEST_F(WhichWayMissingTest, APictureThatCannotBeDrawnCountsAsMissing) {
  put_motif(u"autó", u"Merre megy az autó", {u"bal", u"jobb"});
  put_motif(u"nyíl", u"Merre mutat a nyíl", {u"le"});
  start();
  machine.break_picture(Text(app) + u"irkep\\autó_bal.wmf");
  machine.break_picture(Text(app) + u"irkep\\nyíl_le.wmf");
  auto& window = open<frm_merremutat>();
  for (int i = 0; i < 30; ++i) {
    EXPECT_EQ(window.irány(), right);
    EXPECT_EQ(picture(window.kép), picture_of("autó_jobb"));
    EXPECT_EQ(utf8(window.lbl_feladat.Caption), "Merre megy az autó?");
    window.beáll();
  }
}

TEST_F(WhichWayMissingTest, AnEndlessLineIsNoQuestionOfEndlessLength) {
  put_motif(u"nyíl", Text(100000, u'x'), {u"bal"});
  start();
  EXPECT_EQ(open<frm_merremutat>().irányképek()[1].kérdés.size(), Records::longest_field);
}

// Settings.

class WhichWaySettingsTest : public WhichWayFixture {};

TEST_F(WhichWaySettingsTest, HasItsTextsAndDefaults) {
  start();
  auto& d = load<frm_merremutat_beáll>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Merre mutat? - Beállítások");
  EXPECT_EQ(utf8(d.frame_irányok.Caption), "A használt irányok");
  EXPECT_EQ(captions(d.opt_irány), (Strings{"Jobbra - balra", "Fel - le", "Jobbra - balra, fel - le"}));
  EXPECT_EQ(d.opt_irány[0].container(), &d.frame_irányok);
  EXPECT_EQ(d.opt_irány.chosen(), 2);
  EXPECT_EQ(utf8(d.OKButton.Caption), "OK");
  EXPECT_EQ(utf8(d.CancelButton.Caption), "Mégsem");
  EXPECT_EQ(utf8(d.cmd_súgó.Caption), "Súgó");
}

TEST_F(WhichWaySettingsTest, OkWritesThreeLinesHidesTheDialogAndDealsAnewAndTheResultsStay) {
  auto& window = deal(left);
  hand::click(right_button(window));
  then_in<frm_merremutat_beáll>([this](frm_merremutat_beáll& d) {
    hand::click(d.opt_irány[1]);
    machine.script_random({drawing(left, 4), drawing(down, 4), drawing(1, 4)});
    hand::click(d.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(settings(u"merremutat.ini"), "False\r\nTrue\r\nFalse\r\n");
  EXPECT_FALSE(load<frm_merremutat_beáll>().visible());
  EXPECT_EQ(window.irány(), down);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "balra");
}

TEST_F(WhichWaySettingsTest, TheThreeLinesAreRead) {
  put_settings(u"merremutat.ini", {u"True", u"False", u"False"});
  start();
  EXPECT_EQ(load<frm_merremutat_beáll>().opt_irány.chosen(), 0);
}

TEST_F(WhichWaySettingsTest, AllDirectionsAreUsedWhereTheFileHasNoOptionOn) {
  put_settings(u"merremutat.ini", {u"False", u"False", u"False"});
  start();
  EXPECT_EQ(load<frm_merremutat_beáll>().opt_irány.chosen(), 2);
}

TEST_F(WhichWaySettingsTest, CancelReadsTheFileAgainAndKeepsThePuzzle) {
  put_settings(u"merremutat.ini", {u"True", u"False", u"False"});
  auto& window = deal(left);
  then_in<frm_merremutat_beáll>([](frm_merremutat_beáll& d) {
    hand::click(d.opt_irány[1]);
    hand::key(d, key::escape);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_FALSE(load<frm_merremutat_beáll>().visible());
  EXPECT_EQ(load<frm_merremutat_beáll>().opt_irány.chosen(), 0);
  EXPECT_EQ(buttons(window), (Strings{"balra", "fel", "jobbra", "le"}));
}

TEST_F(WhichWaySettingsTest, AFileThatCannotBeWrittenLeavesTheNewSettingsInForce) {
  put_settings(u"merremutat.ini", {u"False", u"False", u"True"});
  auto& window = deal(left);
  machine.files().make_unwritable(Text(user_folder) + u"merremutat.ini");
  then_in<frm_merremutat_beáll>([](frm_merremutat_beáll& d) {
    hand::click(d.opt_irány[0]);
    hand::click(d.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  expected_errors = 1;
  EXPECT_EQ(settings(u"merremutat.ini"), "False\r\nFalse\r\nTrue\r\n");
  EXPECT_EQ(load<frm_merremutat_beáll>().opt_irány.chosen(), 0);
}

TEST_F(WhichWaySettingsTest, HelpOpensThePageOfTheExerciseFromBothWindows) {
  auto& window = deal(left);
  hand::key(window, key::f1);
  then_in<frm_merremutat_beáll>([](frm_merremutat_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  hand::click(window.mnu_fájl_beáll);
  expect_help_twice("Merre mutat - a feladat.mht");
}

TEST_F(WhichWaySettingsTest, TheDialogGoesWithTheExerciseHoweverItIsClosed) {
  for (const bool by_menu : {true, false}) {
    auto& window = deal(left);
    if (by_menu) {
      hand::click(window.mnu_fájl_kilép);
    } else {
      hand::close(window);
    }
    EXPECT_FALSE(session().loaded<frm_merremutat>());
    EXPECT_FALSE(session().loaded<frm_merremutat_beáll>());
    end_session();
  }
}

} // namespace
} // namespace cserko
