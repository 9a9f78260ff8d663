// Ends a test program whose test does not end.
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace cserko {

/// Lives beside the tests and ends the program, as failed and with the name of the test, once a single test has used so
/// much processor time: no other way leads out of a loop that asks nothing of the machine. Time in which the test gets
/// no processor does not count; on Windows it does, whose C clock is that of the wall.
class LoopGuard {
 public:
  /// Far above what any test needs, also under the sanitizers, seconds.
#ifdef _WIN32
  static constexpr double longest_test = 200;
#else
  static constexpr double longest_test = 20;
#endif

  explicit LoopGuard(double most_seconds = longest_test);
  ~LoopGuard();
  LoopGuard(const LoopGuard&) = delete;
  LoopGuard& operator=(const LoopGuard&) = delete;

 private:
  void watch();

  double most_seconds_;
  std::mutex mutex_;
  std::condition_variable over_;
  bool tests_are_over_ = false;
  std::thread watch_;
};

} // namespace cserko
