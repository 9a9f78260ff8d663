// True or false: the draw of a record with both statements, their places and sizes, answers, the strip, the keys.
#include "exercises/sentences/frm_igazhamis.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

class TrueOrFalseTest : public ExerciseTest {
 protected:
  /// Records "0", "1" … with the statements "igaz 0" and "hamis 0" …
  void put_numbered(int count) {
    for (int i = 0; i < count; ++i)
      put({.név = to_text(i), .igaz = u"igaz " + to_text(i), .hamis = u"hamis " + to_text(i)});
  }
  /// Opens the exercise with the record of that index, its true statement in that place.
  frm_igazhamis& deal(int index, int place = 0) {
    start();
    put_answer_sounds();
    machine.script_random({record(index), drawing(place, 2)});
    return open<frm_igazhamis>();
  }
  /// What chance gives from a right answer to the next puzzle: the sound, the record, the place.
  void script_next(int index, int place = 0) { machine.script_random({0.0, record(index), drawing(place, 2)}); }
  static Label& true_one(frm_igazhamis& window) {
    return window.lbl_állítás[window.lbl_állítás[0].Caption.starts_with(u"igaz") ? 0 : 1];
  }
  static Label& false_one(frm_igazhamis& window) {
    return window.lbl_állítás[window.lbl_állítás[0].Caption.starts_with(u"igaz") ? 1 : 0];
  }
};

TEST_F(TrueOrFalseTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_igazhamis>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó Igaz-hamis");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Válaszd ki a képhez tartozó igaz állítást!");
  EXPECT_EQ(place_of(window->Frame2), (Rect{120, 480, 11655, 3015}));
  EXPECT_EQ(place_of(window->kép), (Rect{120, 240, 2655, 2655}));
  EXPECT_EQ(window->kép.container(), &window->Frame2);
  EXPECT_EQ(window->lbl_állítás.count(), 2);
  EXPECT_EQ(window->lbl_állítás[0].container(), &window->Frame2);
  EXPECT_EQ(window->lbl_állítás[0].Left, 2880);
  EXPECT_EQ(window->lbl_állítás[0].Top, 360);
  EXPECT_EQ(window->lbl_állítás[1].Left, 2880);
  EXPECT_EQ(window->lbl_állítás[1].Top, 2040);
  EXPECT_EQ(place_of(window->Frame1), (Rect{120, 3480, 11655, 3615}));
  std::vector<Rect> pictures_at;
  std::vector<Rect> labels_at;
  for (const double left : {120, 2040, 3960, 5880, 7800, 9720}) {
    pictures_at.push_back({left, 240, 1815, 1815});
    labels_at.push_back({left, 2040, 1815, 1125});
  }
  EXPECT_EQ(places_of(window->pic_eredmény), pictures_at);
  EXPECT_EQ(places_of(window->lbl_eredmény), labels_at);
  EXPECT_EQ(window->pic_eredmény[5].container(), &window->Frame1);
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "Fájl");
  EXPECT_EQ(utf8(window->mnu_file_új_játék.Caption), "Új játék");
  EXPECT_EQ(utf8(window->mnu_file_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
}

TEST_F(TrueOrFalseTest, FillsItsShareOfTheScreenAndFitsTheTaskLine) {
  put_numbered(3);
  auto& window = deal(1);
  expect_scaled(window, 0.95, u"kép");
  EXPECT_EQ(window.lbl_feladat.Font.size,
            first_overfilling_size(machine, {u"Times New Roman", 6}, window.lbl_feladat.Caption,
                                   {0.9 * window.lbl_feladat.Width, 0.9 * window.lbl_feladat.Height}));
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
}

TEST_F(TrueOrFalseTest, ShowsThePictureAndBothStatements) {
  put_numbered(4);
  auto& window = deal(2);
  EXPECT_EQ(picture(window.kép), picture_path(2));
  EXPECT_EQ(captions(window.lbl_állítás), (std::vector<std::string>{"igaz 2", "hamis 2"}));
  EXPECT_EQ(window.aktuális_kép(), 2);
}

TEST_F(TrueOrFalseTest, ThePlaceIsTheWholePartOfTwiceARandomNumber) {
  put_numbered(4);
  auto& window = deal(1);
  for (const auto& [chance, first] : std::vector<std::pair<double, std::string>>{
           {0.0, "igaz"}, {0.4999, "igaz"}, {0.5, "hamis"}, {0.9999, "hamis"}}) {
    const int next = window.aktuális_kép() == 1 ? 2 : 1;
    machine.script_random({record(next), chance});
    window.feladat_kirakása();
    EXPECT_TRUE(utf8(window.lbl_állítás[0].Caption).starts_with(first)) << chance;
  }
}

TEST_F(TrueOrFalseTest, TheTrueStatementStandsAboveAsOftenAsBelow) {
  put_numbered(6);
  auto& window = deal(1);
  int above = 0;
  for (int i = 0; i < 1000; ++i) {
    window.feladat_kirakása();
    above += window.lbl_állítás[0].Caption.starts_with(u"igaz") ? 1 : 0;
  }
  EXPECT_GT(above, 430);
  EXPECT_LT(above, 570);
}

TEST_F(TrueOrFalseTest, BothStatementsHaveTheSizeOfTheLongerOne) {
  put({{.név = u"a", .igaz = u"x", .hamis = u"y"},
       {.név = u"b", .igaz = u"rövid", .hamis = u"egy jóval hosszabb állítás, amelyik alig fér ki a helyére"},
       {.név = u"c", .igaz = u"ez pedig éppen az igaz állítás, és ez a hosszabb", .hamis = u"rövid"},
       {.név = u"d"}});
  auto& window = deal(1);
  for (int index : {1, 2}) {
    for (int place : {0, 1}) {
      machine.script_random({record(index == 1 ? 2 : 1), 0.0, record(index), drawing(place, 2)});
      window.feladat_kirakása();
      window.feladat_kirakása();
      double smallest = 1000;
      window.lbl_állítás.each([&](const Label& statement) {
        smallest = std::min(smallest, first_overfilling_size(machine, {u"Times New Roman", 6}, statement.Caption,
                                                             {0.9 * statement.Width, 0.9 * statement.Height}));
      });
      EXPECT_EQ(window.lbl_állítás[0].Font.size, smallest);
      EXPECT_EQ(window.lbl_állítás[1].Font.size, smallest);
    }
  }
}

TEST_F(TrueOrFalseTest, ARecordWithOneEmptyStatementIsNeverDrawn) {
  put({{.név = u"a", .igaz = u"i", .hamis = u"h"},
       {.név = u"b", .hamis = u"h"},
       {.név = u"c", .igaz = u"i"},
       {.név = u"d", .igaz = u"igaz d", .hamis = u"hamis d"},
       {.név = u"e"}});
  start();
  machine.script_random({record(1), record(2), record(3), 0.0});
  auto& window = open<frm_igazhamis>();
  EXPECT_EQ(window.aktuális_kép(), 3);
}

TEST_F(TrueOrFalseTest, TheFirstPuzzleIsNeverTheFirstRecord) {
  put_numbered(4);
  start();
  machine.script_random({record(0), record(2), 0.0});
  EXPECT_EQ(open<frm_igazhamis>().aktuális_kép(), 2);
}

TEST_F(TrueOrFalseTest, TheSameRecordDoesNotComeTwiceRunning) {
  put_numbered(4);
  auto& window = deal(2);
  machine.script_random({record(2), record(2), record(1), 0.0});
  window.feladat_kirakása();
  EXPECT_EQ(window.aktuális_kép(), 1);
}

TEST_F(TrueOrFalseTest, TheLastRecordIsNeverDrawn) {
  put_numbered(3);
  start();
  machine.script_random({0.999999, 0.0});
  auto& window = open<frm_igazhamis>();
  EXPECT_EQ(window.aktuális_kép(), 1);
  for (int i = 0; i < 100; ++i) {
    window.feladat_kirakása();
    EXPECT_NE(window.aktuális_kép(), 2);
  }
}

TEST_F(TrueOrFalseTest, EveryDrawSeedsTheGenerator) {
  put_numbered(4);
  auto& window = deal(1);
  const int before = machine.seedings;
  window.feladat_kirakása();
  EXPECT_EQ(machine.seedings, before + 1);
}

TEST_F(TrueOrFalseTest, ARightAnswerIsHeardKeptAndFollowedByTheNextPuzzle) {
  put_numbered(4);
  auto& window = deal(1, 1);
  script_next(2);
  hand::click(window.lbl_állítás[1]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "igaz 1");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(1));
  EXPECT_EQ(utf8(window.lbl_eredmény[1].Caption), "");
  EXPECT_EQ(window.aktuális_kép(), 2);
}

TEST_F(TrueOrFalseTest, AWrongAnswerIsHeardAndNothingChanges) {
  put_numbered(4);
  auto& window = deal(1);
  machine.script_random({0.0});
  hand::click(window.lbl_állítás[1]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(captions(window.lbl_állítás), (std::vector<std::string>{"igaz 1", "hamis 1"}));
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(window.aktuális_kép(), 1);
}

TEST_F(TrueOrFalseTest, WithErrorSoundsOffAWrongAnswerBeeps) {
  put_numbered(4);
  auto& window = deal(1);
  load<frm_hangbeáll>().chk_hang_a_feladatokban_hiba.set_value(0);
  hand::click(window.lbl_állítás[1]);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(machine.media().beeps, 1);
}

TEST_F(TrueOrFalseTest, WhereBothStatementsAreTheSameTextBothAreRight) {
  for (const int place : {0, 1}) {
    put({{.név = u"a", .igaz = u"i", .hamis = u"h"}, {.név = u"b", .igaz = u"egy", .hamis = u"egy"}});
    put_numbered(3);
    auto& window = deal(1);
    script_next(2);
    hand::click(window.lbl_állítás[place]);
    EXPECT_EQ(commands(), good_sound) << place;
    EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "egy");
    end_session();
  }
}

TEST_F(TrueOrFalseTest, TheSixthRightAnswerIsCongratulatedBeforeTheNextPuzzleAndTheStripIsEmptied) {
  put_numbered(9);
  auto& window = deal(1);
  for (int solved = 1; solved < 6; ++solved) {
    script_next(solved + 1);
    hand::click(true_one(window));
    EXPECT_EQ(utf8(window.lbl_eredmény[solved - 1].Caption), "igaz " + std::to_string(solved));
  }
  EXPECT_EQ(congratulations, 0);
  // Sound of the answer, three draws of the congratulation, the next puzzle.
  machine.script_random({0.0, 0.0, 0.0, 0.0, record(7), 0.0});
  seen_at_congratulation = [&] {
    EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "igaz 6");
    EXPECT_EQ(picture(window.pic_eredmény[5]), picture_path(6));
    EXPECT_EQ(window.aktuális_kép(), 6);
  };
  then_close_congratulation();
  hand::click(true_one(window));
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_EQ(window.aktuális_kép(), 7);
}

TEST_F(TrueOrFalseTest, ANewGameEmptiesTheStripAndDeals) {
  put_numbered(5);
  auto& window = deal(1);
  script_next(2);
  hand::click(true_one(window));
  machine.script_random({record(3), 0.0});
  hand::click(window.mnu_file_új_játék);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_EQ(window.aktuális_kép(), 3);
}

TEST_F(TrueOrFalseTest, WithoutARecordTheWindowStaysAndTellsWhyAndAnEmptyStatementIsNoAnswer) {
  put({{.név = u"a"}, {.név = u"b", .igaz = u"i"}, {.név = u"c", .igaz = u"i", .hamis = u"h"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_igazhamis>();
  EXPECT_EQ(message, "Nincs elég olyan kép, amelyikhez igaz és hamis mondat is tartozik.");
  EXPECT_TRUE(window.visible());
  EXPECT_EQ(captions(window.lbl_állítás), nothing(2));
  hand::click(window.lbl_állítás[0]);
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_igazhamis>());
}

TEST_F(TrueOrFalseTest, WithASingleRecordTheStripKeepsItsSolvedTask) {
  put({{.név = u"a"}, {.név = u"b", .igaz = u"igaz b", .hamis = u"hamis b"}, {.név = u"c"}});
  auto& window = deal(1);
  then_close_message();
  hand::click(true_one(window));
  EXPECT_EQ(message, "Nincs elég olyan kép, amelyikhez igaz és hamis mondat is tartozik.");
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "igaz b");
  EXPECT_EQ(captions(window.lbl_állítás), nothing(2));
}

TEST_F(TrueOrFalseTest, ARecordWithoutAPictureShowsItsPlaceholder) {
  put({{.név = u"a", .igaz = u"i", .hamis = u"h"},
       {.név = u"alma", .igaz = u"i", .hamis = u"h", .has_picture = false},
       {.név = u"c"}});
  auto& window = deal(1);
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(drawn(window.kép).texts(), std::vector<Text>{u"alma"});
}

TEST_F(TrueOrFalseTest, IsPlayedByArrowsAndSpaceOrEnterAlone) {
  put_numbered(6);
  auto& window = deal(1, 1);
  window.set_focus(&window.lbl_állítás[0]);
  hand::key(window, key::down);
  EXPECT_EQ(window.focus(), &window.lbl_állítás[1]);
  script_next(2, 0);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "igaz 1");
  hand::key(window, key::up);
  EXPECT_EQ(window.focus(), &window.lbl_állítás[0]);
  script_next(3);
  hand::key(window, key::enter);
  EXPECT_EQ(utf8(window.lbl_eredmény[1].Caption), "igaz 2");
  forget_commands();
  hand::key(window, key::tab);
  EXPECT_EQ(window.focus(), &window.lbl_állítás[1]);
  machine.script_random({0.0});
  hand::key(window, key::space);
  EXPECT_EQ(commands(), "close hang\n" + bad_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[2].Caption), "");
}

TEST_F(TrueOrFalseTest, OnlyTheStatementsTakeTheFocus) {
  put_numbered(4);
  auto& window = deal(1);
  for (int i = 0; i < 5; ++i) {
    hand::key(window, key::tab);
    ASSERT_NE(window.focus(), nullptr);
    EXPECT_EQ(utf8(window.focus()->Name), "lbl_állítás");
  }
}

TEST_F(TrueOrFalseTest, HelpOpensItsPageAlsoByKey) {
  put_numbered(4);
  auto& window = deal(1);
  hand::key(window, key::f1);
  hand::click(window.mnu_súgó_súgó);
  expect_help_twice("igazhamis - a feladat.mht");
}

TEST_F(TrueOrFalseTest, TheWindowsOwnControlClosesItToo) {
  put_numbered(4);
  auto& window = deal(1);
  hand::close(window);
  EXPECT_FALSE(session().loaded<frm_igazhamis>());
}

} // namespace
} // namespace cserko
