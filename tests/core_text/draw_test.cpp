// Random choices among indexes: what a random number hits, when they give up, walks from an index on.
#include "core/draw.h"
#include "core/nothing_fits.h"
#include "platform/headless/headless_platform.h"

#include <gtest/gtest.h>

namespace cserko {
namespace {

constexpr TextView advice = u"Nincs több hely.";
const Passes any = [](int) { return true; };
const Passes none = [](int) { return false; };

class DrawTest : public ::testing::Test {
 protected:
  HeadlessPlatform platform;
};

TEST_F(DrawTest, AnEntryOfAListIsTheWholePart) {
  platform.script_random({0, 0.3, 0.34, 0.999999});
  std::vector<int> drawn;
  for (int i = 0; i < 4; ++i) drawn.push_back(draw_below(platform, 3, any, advice));
  EXPECT_EQ(drawn, (std::vector<int>{0, 0, 1, 2}));
}

TEST_F(DrawTest, AFreePlaceIsFoundAmongTakenOnes) {
  platform.script_random({0.1, 0.6, 0.9});
  EXPECT_EQ(draw_below(
                platform, 4, [](int place) { return place == 3; }, advice),
            3);
  EXPECT_EQ(platform.scripted_random_left(), 0U);
}

TEST_F(DrawTest, WithoutAFreePlaceTheAdviceIsThrown) {
  try {
    draw_below(platform, 4, none, advice);
    FAIL() << "nothing was thrown";
  } catch (const NothingFits& unfit) {
    EXPECT_EQ(unfit.message(), Text(advice));
  }
  EXPECT_THROW(draw_rounded(platform, 35, none, advice), NothingFits);
}

TEST_F(DrawTest, OfNothingOnlyZeroIsDrawn) {
  EXPECT_EQ(draw_below(platform, 0, any, advice), 0);
  EXPECT_EQ(draw_rounded(platform, 0, any, advice), 0);
  EXPECT_THROW(draw_below(platform, 0, none, advice), NothingFits);
}

TEST_F(DrawTest, ARoundedDrawReachesTheLastAndItsGuardDoes) {
  platform.script_random({0.985, 0.99});
  EXPECT_EQ(draw_rounded(platform, 35, any, advice), 34);
  EXPECT_EQ(draw_rounded(platform, 35, any, advice), 35);
  EXPECT_EQ(draw_rounded(
                platform, 35, [](int place) { return place == 35; }, advice),
            35);
}

TEST_F(DrawTest, AWalkGoesOnToTheFirstThatPassesAndDrawsNothing) {
  const auto tens = [](int index) { return index % 10 == 0; };
  EXPECT_EQ(walk_on(11, 35, Round::No, tens), 20);
  EXPECT_EQ(walk_on(30, 35, Round::No, tens), 30) << "the first one counts";
  EXPECT_EQ(walk_on(31, 35, Round::No, tens), std::nullopt);
  EXPECT_EQ(walk_on(31, 40, Round::No, tens), 40) << "and so does the last";
}

TEST_F(DrawTest, AWalkRoundEndsWhereItBegan) {
  EXPECT_EQ(walk_on(4, 9, Round::Yes, [](int index) { return index == 3; }), 3);
  int asked = 0;
  EXPECT_EQ(walk_on(4, 9, Round::Yes,
                    [&](int) {
                      ++asked;
                      return false;
                    }),
            std::nullopt);
  EXPECT_EQ(asked, 10);
}

} // namespace
} // namespace cserko
