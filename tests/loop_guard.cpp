#include "tests/loop_guard.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

namespace cserko {

namespace {

using namespace std::chrono_literals;

std::atomic<std::clock_t> begin_of_test{0};

class BeginOfTest : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& /*test*/) override { begin_of_test = std::clock(); }
};

double seconds_of_test() { return static_cast<double>(std::clock() - begin_of_test) / CLOCKS_PER_SEC; }

[[noreturn]] void end_program(double seconds) {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::fprintf(stderr, "[ ENDLESS  ] %s.%s has worked for %.1f seconds and is taken for a loop without an end\n",
               test != nullptr ? test->test_suite_name() : "", test != nullptr ? test->name() : "", seconds);
  std::fflush(nullptr);
  // Nothing is cleaned up: the loop would go on meanwhile.
  std::_Exit(EXIT_FAILURE);
}

} // namespace

LoopGuard::LoopGuard(double most_seconds) : most_seconds_(most_seconds) {
  begin_of_test = std::clock();
  testing::UnitTest::GetInstance()->listeners().Append(new BeginOfTest); // theirs from now on
  watch_ = std::thread([this] { watch(); });
}

LoopGuard::~LoopGuard() {
  {
    const std::lock_guard lock(mutex_);
    tests_are_over_ = true;
  }
  over_.notify_one();
  watch_.join();
}

void LoopGuard::watch() {
  std::unique_lock lock(mutex_);
  while (!over_.wait_for(lock, 100ms, [this] { return tests_are_over_; })) {
    if (const double seconds = seconds_of_test(); seconds > most_seconds_) end_program(seconds);
  }
}

} // namespace cserko
