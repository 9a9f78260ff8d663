// What ends a test that is caught in a loop of its own.
#include "tests/loop_guard.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

namespace cserko {
namespace {

TEST(LoopGuardDeathTest, EndsATestThatDoesNotEndAndNamesIt) {
  GTEST_FLAG_SET(death_test_style, "threadsafe"); // the guard is a thread
  EXPECT_EXIT(
      {
        const LoopGuard guard(0.2);
        const std::clock_t end = std::clock() + 5 * CLOCKS_PER_SEC; // should the guard not do its work
        while (std::clock() < end) {
        }
      },
      testing::ExitedWithCode(EXIT_FAILURE), "LoopGuardDeathTest.EndsATestThatDoesNotEndAndNamesIt has worked");
}

TEST(LoopGuardDeathTest, LeavesATestAloneThatEnds) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        { const LoopGuard guard; }
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace cserko
