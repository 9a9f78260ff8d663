// Figures with a limit: shown under a name that ends in it, and told on the error stream where they pass it.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace cserko {

/// As many records as the suite can name and draw.
inline constexpr int most_records = 32767;

/// How long some work takes, seconds.
template<class Work> double elapsed(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Whether a figure of this run has passed its limit.
inline bool limit_passed = false;

/// Shows a figure as "<name>_at_most_<limit>".
inline void judge(benchmark::State& state, const std::string& name, double value, double limit) {
  char shown_limit[32];
  std::snprintf(shown_limit, sizeof shown_limit, "%g", limit);
  state.counters[name + "_at_most_" + shown_limit] = value;
  if (value <= limit) return;
  limit_passed = true;
  std::fprintf(stderr, "%s is %g, the limit is %s.\n", name.c_str(), value, shown_limit);
}

/// The value that so many hundredths of all do not pass: 50 is the median, 99 the slowest of a hundred.
inline double percentile(std::vector<double> values, std::size_t hundredths) {
  if (values.empty()) return 0;
  const auto rank = static_cast<std::ptrdiff_t>(std::min(values.size() - 1, values.size() * hundredths / 100));
  std::nth_element(values.begin(), values.begin() + rank, values.end());
  return values[static_cast<std::size_t>(rank)];
}

/// Runs what was registered; the exit status of a program of measurements: 1 where a limit is passed.
inline int run_measurements(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return limit_passed ? 1 : 0;
}

} // namespace cserko
