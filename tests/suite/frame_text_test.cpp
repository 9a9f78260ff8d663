// Texts fitted into controls, and pictures with their names. The text extents are those of the headless machine: at a
// font size of s points a line is 23 × s twips high, a character 10 × s wide, an m 16 × s.
#include "core/frame.h"
#include "core/numbers.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

struct Sheet : PlainWindow {
  explicit Sheet(Session& session) : PlainWindow(session, u"sheet") { set_inner_size({9000, 9000}); }
  Label label{*this, u"label", {0, 0, 1000, 500}, u"abcd"};
  Button button{*this, u"button", {0, 0, 1000, 500}, u"&abcd"};
  Button second{*this, u"second", {0, 0, 5000, 300}, u"abcd"};
  PictureBox box{*this, u"box", {0, 0, 3000, 2900}};
};

class TextTest : public SuiteTest {
 protected:
  TextTest() {
    put_word({u"alma", u"apple", u"al-ma"});
    put_word({u"körte", u"pear", u"kör-te", false});
    put_word({u"szilva"});
    start();
  }
  Sheet& sheet() { return load<Sheet>(); }
  std::vector<Drawing> drawings() { return drawn(sheet().box).drawings(); }
  std::string box_texts() {
    std::string all;
    for (const Text& text : drawn(sheet().box).texts()) all += utf8(text) + "\n";
    return all;
  }
};

// szöveg_illesztés

TEST_F(TextTest, ALabelTakesTheFirstSizeThatOverfillsItsHeight) {
  szöveg_illesztés(sheet().label, u"xyz");
  // 0.9 × 500 = 450: size 19 is 437 high and fits, size 20 is 460 high and stays.
  EXPECT_EQ(sheet().label.Font.size, 20);
  EXPECT_EQ(utf8(sheet().label.Caption), "xyz");
}

TEST_F(TextTest, ALabelTakesTheFirstSizeThatOverfillsItsWidth) {
  szöveg_illesztés(sheet().label, u"abcdefghij");
  // 0.9 × 1000 = 900: size 9 is exactly 900 wide and fits, size 10 stays.
  EXPECT_EQ(sheet().label.Font.size, 10);
}

TEST_F(TextTest, ALabelStartsAtSizeSixEvenIfThatOverfills) {
  sheet().label.Font.size = 30;
  szöveg_illesztés(sheet().label, Text(200, u'x'));
  EXPECT_EQ(sheet().label.Font.size, 6);
}

TEST_F(TextTest, AnEmptyTextKeepsTheCaptionOfALabelAndOnlyResizesIt) {
  szöveg_illesztés(sheet().label);
  EXPECT_EQ(utf8(sheet().label.Caption), "abcd");
  EXPECT_EQ(sheet().label.Font.size, 20);
}

TEST_F(TextTest, AnEmptyTextReachesTheCallerAsTheCaption) {
  Text text;
  szöveg_illesztés(sheet().label, text);
  EXPECT_EQ(utf8(text), "abcd");
}

TEST_F(TextTest, FittingSetsTheFontNameOfTheSuite) {
  sheet().label.Font.name = u"Arial";
  sheet().box.Font.name = u"Arial";
  szöveg_illesztés(sheet().label);
  szöveg_illesztés(sheet().box, u"x");
  EXPECT_EQ(utf8(sheet().label.Font.name), "Times New Roman");
  EXPECT_EQ(utf8(sheet().box.Font.name), "Times New Roman");
}

TEST_F(TextTest, TheMarkOfAMnemonicTakesNoRoom) {
  sheet().button.Width = 500;
  szöveg_illesztés(sheet().button);
  // 0.9 × 500 = 450: four characters at size 11 are 440 wide, at size 12 480.
  EXPECT_EQ(sheet().button.Font.size, 12);
  EXPECT_EQ(utf8(sheet().button.Caption), "&abcd");
}

TEST_F(TextTest, APictureBoxShowsTheTextInItsMiddleAndKeepsItAsTag) {
  PictureBox& box = sheet().box;
  szöveg_illesztés(box, u"abcd");
  // 0.9 × 3000 = 2700: size 67 is 2680 wide, size 68 2720.
  EXPECT_EQ(box.Font.size, 68);
  ASSERT_EQ(drawings().size(), 1U);
  EXPECT_NEAR(drawings()[0].from.x, 1500 - 2720 / 2.0, 1e-6);
  EXPECT_NEAR(drawings()[0].from.y, 1450 - 68 * 23 / 2.0, 1e-6);
  EXPECT_EQ(utf8(drawings()[0].text), "abcd");
  EXPECT_EQ(utf8(box.Tag), "abcd");
}

TEST_F(TextTest, APictureBoxStartsAtSizeEight) {
  szöveg_illesztés(sheet().box, Text(400, u'x'));
  EXPECT_EQ(sheet().box.Font.size, 8);
}

TEST_F(TextTest, AnEmptyTextInAPictureBoxAsksForOneAndTellsTheCaller) {
  Text text;
  szöveg_illesztés(sheet().box, text);
  EXPECT_EQ(utf8(text), "Kéne írni ide valamit!");
  EXPECT_EQ(box_texts(), "Kéne írni ide valamit!\n");
  EXPECT_EQ(utf8(sheet().box.Tag), "Kéne írni ide valamit!");
}

TEST_F(TextTest, FittingAnewClearsWhatThePictureBoxShowed) {
  szöveg_illesztés(sheet().box, u"first");
  szöveg_illesztés(sheet().box, u"second");
  EXPECT_EQ(box_texts(), "second\n");
}

TEST_F(TextTest, TheButtonsOfAWindowAreFittedAndThenThreePointsSmaller) {
  gombok_illesztése(sheet());
  EXPECT_EQ(sheet().button.Font.size, 20 - 3);
  // 0.9 × 300 = 270: size 11 is 253 high, size 12 276.
  EXPECT_EQ(sheet().second.Font.size, 12 - 3);
  EXPECT_EQ(utf8(sheet().second.Caption), "abcd");
  EXPECT_EQ(sheet().label.Font.size, Font{}.size);
}

// kép_rajzolás. "alma" is 46 × s wide; a quarter of the height of the box is 725, so size 32 (736 high) overfills.

constexpr double name_width = 46 * 31;
constexpr double name_height = 23 * 31;
constexpr Point name_place{1500 - name_width / 2, 2900 - name_height};

TEST_F(TextTest, TheNameOfAPictureIsAsLargeAsDoesFit) {
  kép_rajzolás(session(), sheet().box, 0);
  EXPECT_EQ(sheet().box.Font.size, 31);
}

TEST_F(TextTest, TheNameOfAPictureIsFittedByTheWholeWidthToo) {
  sheet().box.Width = 1000;
  kép_rajzolás(session(), sheet().box, 0);
  // 46 × 21 = 966 fits into 1000.
  EXPECT_EQ(sheet().box.Font.size, 21);
}

TEST_F(TextTest, TheNameOfAPictureEndsAboveItsBorder) {
  sheet().box.Border = true;
  kép_rajzolás(session(), sheet().box, 0);
  // The border takes 15 at every side; above the lower one a pixel of 15 is clear.
  EXPECT_EQ(sheet().box.Font.size, 31);
  EXPECT_EQ(drawings().back().from, (Point{std::nearbyint(name_place.x), name_place.y - 30}));
}

TEST_F(TextTest, TheNameOfAPictureIsFittedBetweenItsBorders) {
  sheet().box.Border = true;
  sheet().box.Width = 980;
  kép_rajzolás(session(), sheet().box, 0);
  // 46 × 21 = 966 would fit into 980, but not into 950.
  EXPECT_EQ(sheet().box.Font.size, 20);
}

TEST_F(TextTest, ThePictureComesFromTheRecordAndTheTagHoldsItsIndex) {
  kép_rajzolás(session(), sheet().box, 2);
  ASSERT_NE(sheet().box.Picture, nullptr);
  EXPECT_EQ(utf8(sheet().box.Picture->path()), "c:\\cserko\\kepek\\3.wmf");
  EXPECT_EQ(utf8(sheet().box.Tag), "2");
}

TEST_F(TextTest, ThePlateOfTheNameHasAnOutlineThatIsWiderAtTheSidesOnly) {
  kép_rajzolás(session(), sheet().box, 0);
  const auto all = drawings();
  ASSERT_EQ(all.size(), 3U);
  const double x = std::nearbyint(name_place.x);
  const double y = name_place.y;
  EXPECT_EQ(all[0].kind, Drawing::Kind::FilledBox);
  EXPECT_EQ(all[0].place, (Rect{x, y, name_width, name_height}));
  EXPECT_EQ(all[0].color, white);
  EXPECT_EQ(all[1].kind, Drawing::Kind::Box);
  EXPECT_EQ(all[1].place, (Rect{x - 15, y, name_width + 30, name_height}));
  EXPECT_EQ(all[1].color, black);
  EXPECT_EQ(all[2].kind, Drawing::Kind::Print);
  EXPECT_EQ(all[2].from, (Point{x, y}));
  EXPECT_EQ(all[2].color, black);
  EXPECT_EQ(utf8(all[2].text), "alma");
}

TEST_F(TextTest, TheHaloOfTheNameIsPrintedAllAroundBeforeTheName) {
  kép_rajzolás(session(), sheet().box, 0, {.körvonalas = true});
  const auto all = drawings();
  const double step = 3.1415 / (2900 / 300.0);
  const auto prints = static_cast<std::size_t>(std::floor(6.283 / step)) + 1;
  ASSERT_EQ(all.size(), prints + 1);
  const Point place{std::nearbyint(name_place.x), name_place.y};
  const double radius = 40; // 3000 / 75
  for (std::size_t i = 0; i < prints; ++i) {
    const double angle = static_cast<double>(i) * step;
    EXPECT_NEAR(all[i].from.x, place.x + radius * std::sin(angle), 1e-6) << i;
    EXPECT_NEAR(all[i].from.y, place.y + radius * std::cos(angle), 1e-6) << i;
    EXPECT_EQ(all[i].color, white);
  }
  EXPECT_EQ(all.back().from, place);
  EXPECT_EQ(all.back().color, black);
}

TEST_F(TextTest, TheRadiusOfTheHaloIsAWholeNumber) {
  sheet().box.Width = 3040;
  kép_rajzolás(session(), sheet().box, 0, {.körvonalas = true});
  const double x = std::nearbyint(1520 - name_width / 2);
  EXPECT_EQ(drawings()[0].from, (Point{x, name_place.y + 40}));
}

TEST_F(TextTest, TheNameCanBeSyllabifiedOrEnglish) {
  kép_rajzolás(session(), sheet().box, 0, {.szótagolt = true});
  EXPECT_EQ(box_texts(), "al-ma\n");
  kép_rajzolás(session(), sheet().box, 0, {.angol = true});
  EXPECT_EQ(box_texts(), "apple\n");
}

TEST_F(TextTest, EnglishWinsOverSyllables) {
  kép_rajzolás(session(), sheet().box, 0, {.szótagolt = true, .angol = true});
  EXPECT_EQ(box_texts(), "apple\n");
}

TEST_F(TextTest, IndexMinusOneClearsTheBoxAndLeavesTheTag) {
  kép_rajzolás(session(), sheet().box, 2);
  kép_rajzolás(session(), sheet().box, -1);
  EXPECT_EQ(sheet().box.Picture, nullptr);
  EXPECT_TRUE(drawings().empty());
  EXPECT_EQ(utf8(sheet().box.Tag), "2");
}

TEST_F(TextTest, APictureDrawnAnewShowsNothingOfTheOneBefore) {
  kép_rajzolás(session(), sheet().box, 0);
  kép_rajzolás(session(), sheet().box, 2);
  EXPECT_EQ(box_texts(), "szilva\n");
}

TEST_F(TextTest, AMissingPictureIsReplacedByAPlaceholderWithTheName) {
  show_record_picture(session(), sheet().box, 1);
  EXPECT_EQ(sheet().box.Picture, nullptr);
  EXPECT_EQ(box_texts(), "körte\n");
  EXPECT_GE(drawings().size(), 2U);
}

TEST_F(TextTest, ABrokenPictureIsReplacedByAPlaceholderWithTheName) {
  machine.break_picture(Text(app) + u"kepek\\1.wmf");
  show_record_picture(session(), sheet().box, 0);
  EXPECT_EQ(sheet().box.Picture, nullptr);
  EXPECT_EQ(box_texts(), "alma\n");
}

TEST_F(TextTest, AnIndexOfNoRecordIsAnError) {
  EXPECT_THROW(kép_rajzolás(session(), sheet().box, 3), std::out_of_range);
}

} // namespace
} // namespace cserko
