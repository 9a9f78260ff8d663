// What the logic of the suite costs with as many records as it can name, beside something that is measured in the same
// run: loading the records beside plainly reading the same files in the same order (at most 2 times), ten times the
// records beside once the records (at most 12 times), and the slowest of a hundred new puzzles of each exercise (at
// most 16 ms).
#include "exercises/boards/frm_képmemória.h"
#include "exercises/exercises.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "exercises/syllables/frm_szótagoló.h"
#include "feedback/feedback.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/files.h"
#include "tests/suite/memory_pack.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <limits>
#include <map>

namespace {

using namespace cserko;

constexpr int kMostRecords = 32767;
constexpr int kTenthOfRecords = kMostRecords / 10;

template<class Work> double elapsed(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The quickest of several runs: what else the computer does counts least in it.
struct Quickest {
  template<class Work> void time(Work&& work) { seconds = std::min(seconds, elapsed(work)); }
  double seconds = std::numeric_limits<double>::infinity();
};

const MemoryFiles& memory_files(int records) {
  static std::map<int, MemoryFiles> all;
  const auto [found, fresh] = all.try_emplace(records);
  if (fresh) put_many_records(found->second, records);
  return found->second;
}

// The same records as real files.
struct DiskPack {
  explicit DiskPack(int records) : files(folder.filePath("pack"), folder.filePath("user")) {
    const MemoryFiles& memory = memory_files(records);
    QDir(folder.path()).mkpath("pack/kepek");
    for (const Text& path : memory.all()) {
      QFile file(folder.filePath("pack/kepek/" + QString::fromStdU16String(path.substr(path.rfind(u'\\') + 1))));
      const std::string bytes = memory.read(path).value_or("");
      if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0)
        qFatal("the temporary files cannot be written");
    }
  }
  QTemporaryDir folder;
  QtFiles files;
};

const Files& disk_files(int records) {
  static std::map<int, DiskPack> all;
  return all.try_emplace(records, records).first->second.files;
}

using Source = const Files& (*)(int records);
const Files& in_memory(int records) { return memory_files(records); }
const Files& on_disk(int records) { return disk_files(records); }

void read_plainly(const Files& files) {
  const Text folder = Text(app) + u"kepek\\";
  for (const Text& name : files.list(folder + u"*.wms")) benchmark::DoNotOptimize(files.read(folder + name));
}

// Taking the records away again is no part of loading them.
void load_records(const Files& files, Quickest& watch) {
  Records records;
  watch.time([&] { records.load(files, Text(app)); });
  benchmark::DoNotOptimize(records);
}

void loading_beside_reading(benchmark::State& state, Source source) {
  const Files& files = source(kMostRecords);
  Quickest reading;
  Quickest loading;
  load_records(files, loading); // warms the disk's cache for both
  for (auto _ : state) {
    reading.time([&] { read_plainly(files); });
    load_records(files, loading);
  }
  state.counters["loading_ms"] = loading.seconds * 1000;
  state.counters["ratio_at_most_2"] = loading.seconds / reading.seconds;
}

void ten_times_the_records(benchmark::State& state, Source source) {
  const Files& few = source(kTenthOfRecords);
  const Files& many = source(kTenthOfRecords * 10);
  Quickest once;
  Quickest ten_times;
  for (auto _ : state) {
    load_records(few, once);
    load_records(many, ten_times);
  }
  state.counters["ratio_at_most_12"] = ten_times.seconds / once.seconds;
}

// The slowest of a hundred, ms.
double p99(std::vector<double> seconds_each) {
  const auto rank = static_cast<std::ptrdiff_t>(seconds_each.size() * 99 / 100);
  std::nth_element(seconds_each.begin(), seconds_each.begin() + rank, seconds_each.end());
  return seconds_each[static_cast<std::size_t>(rank)] * 1000;
}

// New puzzles under the settings that make the draw work hardest and under the plain ones.
void new_puzzle(benchmark::State& state) {
  HeadlessPlatform machine;
  put_many_records(machine.files(), kMostRecords);
  if (state.range(0) == 1)
    machine.files().put(Text(user_folder) + u"kiscserko.ini", " 8 \r\nTrue\r\nFalse\r\nFalse\r\n");
  Session session(machine);
  install_feedback(session);
  install_exercises(session);
  session.képek.load(machine.files(), session.alapkönyvtár);
  auto& window = session.window<frm_cserkó>();
  std::vector<double> times;
  for (auto _ : state) times.push_back(elapsed([&] { window.beáll(); }));
  state.counters["p99_ms_at_most_16"] = p99(std::move(times));
}

// What the further exercises are dealt from: every record has a picture; few words have two syllables, where words of
// one are left out.
void put_for_all(MemoryFiles& files) {
  constexpr int one_in = 1000;
  put_many_records(files, kMostRecords);
  for (int i = one_in; i <= kMostRecords; i += one_in) put_record(files, i, {to_text(i) + u"alma", {}, u"al-ma"});
  for (int i = 1; i <= kMostRecords; ++i) files.put(Text(app) + u"kepek\\" + to_text(i) + u".wmf", "picture");
  files.put(Text(user_folder) + u"szótagoló.ini", " 2 \r\n 1 \r\n");
}

template<class Exercise> void deal(benchmark::State& state, void (Exercise::*new_task)()) {
  HeadlessPlatform machine;
  put_for_all(machine.files());
  Session session(machine);
  install_feedback(session);
  install_exercises(session);
  session.képek.load(machine.files(), session.alapkönyvtár);
  auto& window = session.window<Exercise>();
  std::vector<double> times;
  for (auto _ : state) times.push_back(elapsed([&] { (window.*new_task)(); }));
  state.counters["p99_ms_at_most_16"] = p99(std::move(times));
}

BENCHMARK_CAPTURE(loading_beside_reading, memory, in_memory)->Unit(benchmark::kMillisecond)->Iterations(7);
BENCHMARK_CAPTURE(loading_beside_reading, disk, on_disk)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK_CAPTURE(ten_times_the_records, memory, in_memory)->Unit(benchmark::kMillisecond)->Iterations(7);
BENCHMARK_CAPTURE(ten_times_the_records, disk, on_disk)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(new_puzzle)->ArgName("exactly_8_letters")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(2000);
BENCHMARK_CAPTURE(deal, picture_memory, &frm_képmemória::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, syllabifier, &frm_szótagoló::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, sentence_to_picture, &frm_mondatkép::feladat_kirakása)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1000);
BENCHMARK_CAPTURE(deal, true_or_false, &frm_igazhamis::feladat_kirakása)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1000);

} // namespace

BENCHMARK_MAIN();
