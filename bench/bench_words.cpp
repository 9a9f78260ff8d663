// What drawing a word costs with as many records as the suite can name, where few of them pass: the first look at the
// letters of all words (of the processor's time), and the slowest of a hundred draws that only one word in four
// thousand passes (each at most 16 ms). Exit status 1 where a limit is passed.
#include "bench/limits.h"
#include "core/records.h"
#include "platform/headless/headless_platform.h"
#include "tests/suite/memory_pack.h"

#include <chrono>
#include <ctime>

namespace {

using namespace cserko;

constexpr int kOneIn = 4000;

struct Words {
  Words() {
    put_many_records(machine.files(), most_records);
    for (int i = kOneIn; i <= most_records; i += kOneIn) put_record(machine.files(), i, {u"dzsungelharcos"});
    records.load(machine.files(), Text(app));
  }
  HeadlessPlatform machine;
  Records records;
};

template<class Work> double elapsed_ms(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

template<class Work> double processor_ms(Work&& work) {
  const std::clock_t start = std::clock();
  work();
  return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

using Ask = bool (*)(const Records& records, int index);
bool by_letters(const Records& records, int index) { return records.MAGYARBETŰKSZÁMA(index) == 12; }
bool by_letter(const Records& records, int index) { return records.vanebenne(index, u"dzs"); }

void first_look(benchmark::State& state, Ask ask) {
  Words words;
  std::vector<double> times;
  for ([[maybe_unused]] auto _ : state) {
    words.records.load(words.machine.files(), Text(app));
    times.push_back(processor_ms([&] {
      for (int i = 0; i <= words.records.képszám; ++i) benchmark::DoNotOptimize(ask(words.records, i));
    }));
  }
  judge(state, "median_ms", percentile(times, 50), 16);
}

void rare_word(benchmark::State& state, Ask ask) {
  Words words;
  std::vector<double> times;
  for ([[maybe_unused]] auto _ : state) {
    times.push_back(
        elapsed_ms([&] { words.records.draw(words.machine, [&](int index) { return ask(words.records, index); }); }));
  }
  judge(state, "p99_ms", percentile(times, 99), 16);
}

BENCHMARK_CAPTURE(first_look, letters, by_letters)->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK_CAPTURE(first_look, one_letter, by_letter)->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK_CAPTURE(rare_word, letters, by_letters)->Unit(benchmark::kMillisecond)->Iterations(2000);
BENCHMARK_CAPTURE(rare_word, one_letter, by_letter)->Unit(benchmark::kMillisecond)->Iterations(2000);

} // namespace

int main(int argc, char** argv) { return cserko::run_measurements(argc, argv); }
