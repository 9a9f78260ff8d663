// Sentence to picture: the ring of six records, the definition, answers by text, the free background, the keys.
#include "exercises/sentences/frm_mondatkép.h"
#include "tests/exercises/exercise_fixture.h"

#include <set>

namespace cserko {
namespace {

class SentenceTest : public ExerciseTest {
 protected:
  void put_numbered(int count) {
    for (int i = 0; i < count; ++i) put({.név = to_text(i), .meghatározás = u"meghatározás " + to_text(i)});
  }
  /// What chance gives for a puzzle with these records at these places, the first of them being the right one.
  void script_deal(const std::vector<std::pair<int, int>>& records_at_places) {
    bool right_one = true;
    for (const auto& [index, place] : records_at_places) {
      if (right_one) {
        machine.script_random({record(index), drawing(place, 6)});
      } else {
        machine.script_random({drawing(place, 6), record(index)});
      }
      right_one = false;
    }
  }
  void script_sound() { machine.script_random({0.0}); }
  /// Opens the exercise with record 1 at place 2 as the right one.
  frm_mondatkép& deal() {
    start();
    put_answer_sounds();
    script_deal({{1, 2}, {2, 0}, {3, 1}, {4, 3}, {5, 4}, {6, 5}});
    return open<frm_mondatkép>();
  }
  static std::vector<std::string> tags(const frm_mondatkép& window) {
    std::vector<std::string> all;
    window.pic_feladványkép.each([&](const PictureBox& box) { all.push_back(utf8(box.Tag)); });
    return all;
  }
  static int place_of_right_one(const frm_mondatkép& window) {
    const auto all = tags(window);
    return static_cast<int>(std::find(all.begin(), all.end(), std::to_string(window.aktuális_kép())) - all.begin());
  }
  static inline const std::string too_few = "Nincs elég olyan kép, amelyikhez meghatározás tartozik.";
};

TEST_F(SentenceTest, HasItsTextsPlacesAndMenus) {
  start();
  const auto window = designed<frm_mondatkép>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó Mondat-Kép");
  EXPECT_EQ(utf8(window->lbl_feladat.Caption), "Kattints rá a meghatározáshoz tartozó képre!");
  std::vector<Rect> ring;
  for (const auto& [left, top] : std::vector<std::pair<double, double>>{
           {4920, 1440}, {1560, 480}, {120, 1440}, {3480, 480}, {1560, 2400}, {3480, 2400}})
    ring.push_back({left, top, 1095, 1095});
  EXPECT_EQ(places_of(window->pic_feladványkép), ring);
  EXPECT_EQ(place_of(window->lbl_meghatározás), (Rect{1320, 1680, 3495, 615}));
  EXPECT_EQ(place_of(window->Frame1), (Rect{120, 3490, 5895, 1815}));
  std::vector<Rect> pictures_at;
  for (const double left : {120, 1080, 2040, 3000, 3960, 4920}) pictures_at.push_back({left, 240, 855, 855});
  EXPECT_EQ(places_of(window->pic_eredmény), pictures_at);
  for (int i = 0; i < 6; ++i) {
    const Rect under{pictures_at[static_cast<std::size_t>(i)].left, 1080, 855, 600};
    EXPECT_EQ(place_of(window->lbl_eredmény[i]), under);
  }
  EXPECT_EQ(window->lbl_eredmény[5].container(), &window->Frame1);
  EXPECT_EQ(utf8(window->mnu_fájl.Caption), "Fájl");
  EXPECT_EQ(utf8(window->mnu_újjáték.Caption), "Új játék");
  EXPECT_EQ(utf8(window->mnu_fájl_separate.Caption), "-");
  EXPECT_EQ(utf8(window->mnu_fájl_kilép.Caption), "Kilép");
  EXPECT_EQ(utf8(window->mnu_súgó.Caption), "&Súgó");
}

TEST_F(SentenceTest, FillsItsShareOfTheScreen) {
  put_numbered(8);
  auto& window = deal();
  expect_scaled(window, 0.95, u"lbl_meghatározás");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(SentenceTest, TheDefinitionStandsInTheMiddleAndSixRecordsAroundIt) {
  put_numbered(8);
  auto& window = deal();
  EXPECT_EQ(window.aktuális_kép(), 1);
  EXPECT_EQ(drawn(window.lbl_meghatározás).texts(), std::vector<Text>{u"meghatározás 1"});
  EXPECT_EQ(utf8(window.lbl_meghatározás.Tag), "meghatározás 1");
  EXPECT_EQ(tags(window), (std::vector<std::string>{"2", "3", "1", "4", "5", "6"}));
  EXPECT_EQ(pictures(window.pic_feladványkép),
            (std::vector<std::string>{picture_path(2), picture_path(3), picture_path(1), picture_path(4),
                                      picture_path(5), picture_path(6)}));
}

TEST_F(SentenceTest, TakenPlacesAndRecordsAreDrawnAgain) {
  put_numbered(9);
  start();
  machine.script_random({record(1), drawing(5, 6)});
  machine.script_random({drawing(5, 6), drawing(0, 6), record(1), record(2)});
  machine.script_random({drawing(0, 6), drawing(5, 6), drawing(1, 6), record(2), record(1), record(3)});
  machine.script_random({drawing(2, 6), record(4), drawing(3, 6), record(5), drawing(4, 6), record(3), record(6)});
  auto& window = open<frm_mondatkép>();
  EXPECT_EQ(tags(window), (std::vector<std::string>{"2", "3", "4", "5", "6", "1"}));
}

TEST_F(SentenceTest, TheSixPicturesAreAlwaysSixDifferentRecords) {
  put_numbered(9);
  auto& window = deal();
  int last = window.aktuális_kép();
  for (int i = 0; i < 300; ++i) {
    window.feladat_kirakása();
    const auto all = tags(window);
    const std::set<std::string> different(all.begin(), all.end());
    EXPECT_EQ(different.size(), 6U);
    EXPECT_EQ(different.count("8"), 0U) << "the last record is never drawn";
    EXPECT_EQ(different.count(std::to_string(window.aktuális_kép())), 1U);
    EXPECT_NE(window.aktuális_kép(), last) << "no sentence comes twice running";
    last = window.aktuális_kép();
  }
}

TEST_F(SentenceTest, TheFirstSentenceIsNeverThatOfTheFirstRecord) {
  put_numbered(8);
  start();
  machine.script_random({record(0)});
  script_deal({{1, 0}, {0, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}});
  auto& window = open<frm_mondatkép>();
  EXPECT_EQ(window.aktuális_kép(), 1);
}

TEST_F(SentenceTest, ARecordWithoutADefinitionIsNeverDrawn) {
  put({{.név = u"a", .meghatározás = u"a"}, {.név = u"b"}});
  put_numbered(8);
  start();
  machine.script_random({record(1)});
  script_deal({{2, 0}, {3, 1}, {4, 2}, {5, 3}, {6, 4}});
  machine.script_random({drawing(5, 6), record(1), record(7)});
  EXPECT_EQ(tags(open<frm_mondatkép>()), (std::vector<std::string>{"2", "3", "4", "5", "6", "7"}));
}

TEST_F(SentenceTest, ARightPictureIsHeardKeptAndFollowedByTheNextSentence) {
  put_numbered(8);
  auto& window = deal();
  script_sound();
  script_deal({{4, 0}, {1, 1}, {2, 2}, {3, 3}, {5, 4}, {6, 5}});
  hand::click(window.pic_feladványkép[2]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "meghatározás 1");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(1));
  EXPECT_EQ(window.aktuális_kép(), 4);
  EXPECT_EQ(tags(window), (std::vector<std::string>{"4", "1", "2", "3", "5", "6"}));
}

TEST_F(SentenceTest, AWrongPictureIsHeardAndThePuzzleStays) {
  put_numbered(8);
  auto& window = deal();
  const auto before = tags(window);
  script_sound();
  hand::click(window.pic_feladványkép[0]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(tags(window), before);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
}

TEST_F(SentenceTest, AnotherRecordWithTheSameDefinitionIsRightToo) {
  put_numbered(1);
  put({{.név = u"egyik", .meghatározás = u"közös"}, {.név = u"másik", .meghatározás = u"közös"}});
  put_numbered(6);
  auto& window = deal();
  script_sound();
  script_deal({{4, 0}, {1, 1}, {2, 2}, {3, 3}, {5, 4}, {6, 5}});
  hand::click(window.pic_feladványkép[0]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(2)) << "the picture that was clicked";
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "közös");
}

TEST_F(SentenceTest, TheSixthRightAnswerIsCongratulatedBeforeTheNextSentenceAndTheStripIsEmptied) {
  put_numbered(9);
  auto& window = deal();
  for (int solved = 0; solved < 5; ++solved) hand::click(window.pic_feladványkép[place_of_right_one(window)]);
  EXPECT_EQ(congratulations, 0);
  EXPECT_NE(utf8(window.lbl_eredmény[4].Caption), "");
  EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "");
  const int sixth = window.aktuális_kép();
  seen_at_congratulation = [&] {
    EXPECT_EQ(utf8(window.lbl_eredmény[5].Caption), "meghatározás " + std::to_string(sixth));
    EXPECT_EQ(window.aktuális_kép(), sixth);
  };
  then_close_congratulation();
  hand::click(window.pic_feladványkép[place_of_right_one(window)]);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_NE(window.aktuális_kép(), sixth);
}

TEST_F(SentenceTest, AClickOnTheFreeBackgroundDealsAnotherSentenceInSilenceAndTheStripStays) {
  put_numbered(9);
  auto& window = deal();
  hand::click(window.pic_feladványkép[2]);
  const auto strip = captions(window.lbl_eredmény);
  const int before = window.aktuális_kép();
  forget_commands();
  const double x = window.inner_width() - 30;
  const double y = window.inner_height() - 30;
  ASSERT_EQ(hand::element_at(window, x, y), nullptr);
  const int next = before == 7 ? 6 : 7;
  script_deal({{next, 5}, {0, 0}, {2, 1}, {3, 2}, {4, 3}, {5, 4}});
  hand::click_at(window, x, y);
  EXPECT_EQ(window.aktuális_kép(), next);
  EXPECT_EQ(utf8(window.lbl_meghatározás.Tag), "meghatározás " + std::to_string(next));
  EXPECT_EQ(tags(window), (std::vector<std::string>{"0", "2", "3", "4", "5", std::to_string(next)}));
  EXPECT_EQ(pictures(window.pic_feladványkép),
            (std::vector<std::string>{picture_path(0), picture_path(2), picture_path(3), picture_path(4),
                                      picture_path(5), picture_path(next)}));
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(captions(window.lbl_eredmény), strip);
  EXPECT_EQ(strip[0], "meghatározás 1");
}

TEST_F(SentenceTest, AClickOnADefinitionOrTheTaskLineIsNoneOnTheBackground) {
  put_numbered(9);
  auto& window = deal();
  hand::click(window.lbl_meghatározás);
  hand::click(window.lbl_feladat);
  hand::click(window.pic_eredmény[0]);
  EXPECT_EQ(window.aktuális_kép(), 1);
}

TEST_F(SentenceTest, ANewGameEmptiesTheStripAndDeals) {
  put_numbered(9);
  auto& window = deal();
  hand::click(window.pic_feladványkép[2]);
  const int before = window.aktuális_kép();
  hand::click(window.mnu_újjáték);
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(6));
  EXPECT_EQ(pictures(window.pic_eredmény), no_pictures(6));
  EXPECT_NE(window.aktuális_kép(), before);
}

TEST_F(SentenceTest, WithFewerThanSixDefinitionsTheWindowStaysAndTellsWhy) {
  put_numbered(5);
  put({{.név = u"x"}, {.név = u"y", .meghatározás = u"y"}});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_mondatkép>();
  EXPECT_EQ(message, too_few);
  EXPECT_TRUE(window.visible());
  // The place that stayed empty is no answer.
  const auto all = tags(window);
  const auto empty = std::find(all.begin(), all.end(), "-1");
  ASSERT_NE(empty, all.end());
  hand::click(window.pic_feladványkép[static_cast<int>(empty - all.begin())]);
  EXPECT_EQ(commands(), "");
  then_close_message();
  hand::click(window.mnu_újjáték);
  EXPECT_EQ(messages_shown, 2);
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_mondatkép>());
}

TEST_F(SentenceTest, IsPlayedByArrowsAndSpaceOrEnterAlone) {
  put_numbered(9);
  auto& window = deal();
  // The ring: 2 on the left, 1 and 3 above, 0 on the right, 4 and 5 below.
  window.set_focus(&window.pic_feladványkép[1]);
  hand::key(window, key::right);
  EXPECT_EQ(window.focus(), &window.pic_feladványkép[3]);
  hand::key(window, key::down);
  EXPECT_NE(window.focus(), &window.pic_feladványkép[3]);
  std::set<int> reached;
  for (const int code : {key::left, key::left, key::left, key::up, key::right, key::right, key::right, key::down,
                         key::down, key::left, key::left}) {
    hand::key(window, code);
    reached.insert(window.focus()->Index);
  }
  EXPECT_EQ(reached.size(), 6U) << "the arrows reach every picture";
  window.set_focus(&window.pic_feladványkép[2]);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "meghatározás 1");
  window.set_focus(&window.pic_feladványkép[place_of_right_one(window)]);
  hand::key(window, key::enter);
  EXPECT_NE(utf8(window.lbl_eredmény[1].Caption), "");
}

TEST_F(SentenceTest, OnlyTheRingTakesTheFocus) {
  put_numbered(9);
  auto& window = deal();
  std::set<int> reached;
  for (int i = 0; i < 6; ++i) {
    hand::key(window, key::tab);
    ASSERT_NE(window.focus(), nullptr);
    EXPECT_EQ(utf8(window.focus()->Name), "pic_feladványkép");
    reached.insert(window.focus()->Index);
  }
  EXPECT_EQ(reached.size(), 6U);
}

TEST_F(SentenceTest, HelpOpensItsPage) {
  put_numbered(8);
  auto& window = deal();
  hand::click(window.mnu_súgó_súgó);
  EXPECT_EQ(help_page(), help_command("mondatkép - a feladat.mht"));
}

TEST_F(SentenceTest, TheWindowsOwnControlClosesItToo) {
  put_numbered(8);
  auto& window = deal();
  hand::close(window);
  EXPECT_FALSE(session().loaded<frm_mondatkép>());
}

} // namespace
} // namespace cserko
