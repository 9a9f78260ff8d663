// The main of every headless test. It reads the headers that the tests share, once for all of them.
#include "tests/loop_guard.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const cserko::LoopGuard guard;
  return RUN_ALL_TESTS();
}
