// What the logic of the suite costs with as many records as it can name, beside something that is measured in the same
// run: loading the records beside plainly reading the same files in the same order (at most 2 times), ten times the
// records beside once the records (at most 12 times), and the slowest of a hundred new puzzles of each exercise (at
// most 16 ms; of a game of Word chain 100 ms). The two ratios are of processor time, which does not grow with what else
// the computer does. Exit status 1 where a limit is passed.
#include "bench/limits.h"
#include "bench/record_files.h"
#include "exercises/boards/frm_betűkeverő.h"
#include "exercises/boards/frm_hosszrövid.h"
#include "exercises/boards/frm_képmemória.h"
#include "exercises/boards/frm_lóugrás.h"
#include "exercises/boards/frm_szólánc.h"
#include "exercises/exercises.h"
#include "exercises/letters/frm_betűfelesleg.h"
#include "exercises/letters/frm_betűhiány.h"
#include "exercises/letters/frm_betűnézegető.h"
#include "exercises/letters/frm_betűválogatás.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "exercises/sentences/frm_párosító.h"
#include "exercises/sentences/frm_szóvillám.h"
#include "exercises/syllables/frm_holvan.h"
#include "exercises/syllables/frm_merremutat.h"
#include "exercises/syllables/frm_szótagkereső.h"
#include "exercises/syllables/frm_szótagoló.h"
#include "feedback/feedback.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/files.h"
#include "tests/suite/memory_pack.h"

#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>
#include <limits>
#include <map>
#include <random>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

using namespace cserko;

template<class Work> double processor_time(Work&& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// The quickest of several runs.
struct Quickest {
  void add(double run) { seconds = std::min(seconds, run); }
  double seconds = std::numeric_limits<double>::infinity();
};

// Leaves the memory as it is when the program starts: nothing of the records in the processor's caches, and nothing
// that was given back kept for the next load. Otherwise few records fit the caches and what the heap keeps, many do
// not, and the ratio tells the sizes of these.
void start_afresh() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
  constexpr std::size_t larger_than_caches = 96U << 20;
  static std::vector<char> other(larger_than_caches);
  for (std::size_t at = 0; at < other.size(); at += 64) ++other[at];
  benchmark::ClobberMemory();
}

// All records, or a tenth of them: from each ten another one, for the lengths of the words follow their numbers.
const MemoryFiles& memory_files(int one_in) {
  static std::map<int, MemoryFiles> all;
  const auto [found, fresh] = all.try_emplace(one_in);
  if (!fresh) return found->second;
  MemoryFiles& files = found->second;
  if (one_in == 1) {
    put_many_records(files, most_records);
    return files;
  }
  const MemoryFiles& whole = memory_files(1);
  const std::vector<Text> paths = whole.all();
  const auto step = static_cast<std::size_t>(one_in);
  for (std::size_t ten = 0; (ten + 1) * step <= paths.size(); ++ten) {
    const Text& path = paths[ten * step + ten % step];
    files.put(path, whole.read(path).value_or(""));
  }
  return files;
}

// The same records as real files.
struct DiskPack {
  explicit DiskPack(int one_in) : files(folder.filePath("pack"), folder.filePath("user")) {
    write_record_files(memory_files(one_in), folder.filePath("pack"));
  }
  QTemporaryDir folder;
  QtFiles files;
};

const Files& disk_files(int one_in) {
  static std::map<int, DiskPack> all;
  return all.try_emplace(one_in, one_in).first->second.files;
}

using Source = const Files& (*)(int one_in);
const Files& in_memory(int one_in) { return memory_files(one_in); }
const Files& on_disk(int one_in) { return disk_files(one_in); }

void read_plainly(const Files& files) {
  const Text folder = Text(app) + u"kepek\\";
  for (const Text& name : files.list(folder + u"*.wms")) benchmark::DoNotOptimize(files.read(folder + name));
}

// Taking the records away again is no part of loading them.
double load_records(const Files& files) {
  Records records;
  const double seconds = processor_time([&] { records.load(files, Text(app)); });
  benchmark::DoNotOptimize(records);
  return seconds;
}

void loading_beside_reading(benchmark::State& state, Source source) {
  const Files& files = source(1);
  Quickest reading;
  Quickest loading;
  load_records(files); // warms the disk's cache for both
  for ([[maybe_unused]] auto _ : state) {
    reading.add(processor_time([&] { read_plainly(files); }));
    loading.add(load_records(files));
  }
  state.counters["loading_ms"] = loading.seconds * 1000;
  judge(state, "ratio", loading.seconds / reading.seconds, 2);
}

// Few records are loaded as many times as it takes to make them many: a neighbour on the computer then disturbs both
// alike, while a short run would find a quiet moment more easily than a long one.
void ten_times_the_records(benchmark::State& state, Source source) {
  const Files& few = source(10);
  const Files& many = source(1);
  Quickest once;
  Quickest ten_times;
  for ([[maybe_unused]] auto _ : state) {
    double ten_loads = 0;
    for (int i = 0; i < 10; ++i) {
      start_afresh();
      ten_loads += load_records(few);
    }
    once.add(ten_loads / 10);
    start_afresh();
    ten_times.add(load_records(many));
  }
  state.counters["once_ms"] = once.seconds * 1000;
  judge(state, "ratio", ten_times.seconds / once.seconds, 12);
}

// The slowest of a hundred new puzzles.
void judge_deals(benchmark::State& state, const std::vector<double>& seconds_each) {
  judge(state, "p99_ms", percentile(seconds_each, 99) * 1000, 16);
}

// The suite on the headless machine, with the records and settings that `put` writes.
struct HeadlessStage {
  explicit HeadlessStage(const std::function<void(MemoryFiles&)>& put) {
    machine.step_limit = std::numeric_limits<std::int64_t>::max(); // all deals are one event to it
    put(machine.files());
    install_feedback(session);
    install_exercises(session);
    session.képek.load(machine.files(), session.alapkönyvtár);
  }
  HeadlessPlatform machine;
  Session session{machine};
};

// New puzzles under the settings that make the draw work hardest and under the plain ones.
void new_puzzle(benchmark::State& state) {
  HeadlessStage stage([&](MemoryFiles& files) {
    put_many_records(files, most_records);
    if (state.range(0) == 1) files.put(Text(user_folder) + u"kiscserko.ini", " 8 \r\nTrue\r\nFalse\r\nFalse\r\n");
  });
  auto& window = stage.session.window<frm_cserkó>();
  std::vector<double> times;
  for ([[maybe_unused]] auto _ : state) times.push_back(elapsed([&] { window.beáll(); }));
  judge_deals(state, times);
}

// What the further exercises are dealt from: every record has a picture; few words have two syllables, where words of
// one are left out.
void put_for_all(MemoryFiles& files) {
  constexpr int one_in = 1000;
  put_many_records(files, most_records);
  for (int i = one_in; i <= most_records; i += one_in) put_record(files, i, {to_text(i) + u"alma", {}, u"al-ma"});
  for (int i = 1; i <= most_records; ++i) files.put(Text(app) + u"kepek\\" + to_text(i) + u".wmf", "picture");
  files.put(Text(user_folder) + u"szótagoló.ini", " 2 \r\n 1 \r\n");
  // Of two letters as few words as will do.
  for (int i = 1; i <= 12; ++i) put_record(files, i * one_in + 1, {to_text(i) + (i % 2 == 0 ? u"xa" : u"qa")});
  files.put(Text(app) + u"betűpár.kvl", "x-q\r\n");
  // As few words of many syllables, all of twelve letters.
  for (int i = 0; i < 12; ++i)
    put_record(files, i * one_in + 2,
               {u"almafavirág" + Text(1, static_cast<char16_t>(u'a' + i)), {}, u"al-ma-fa-vi-rág"});
  files.put(Text(user_folder) + u"holvan.ini", " 12 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\n");
  files.put(Text(user_folder) + u"szóvillám.ini", " 10 \r\n 17 \r\n 1 \r\n 0 \r\n 0 \r\nTrue\r\nFalse\r\n");
  for (int i = 1; i <= 40; ++i) {
    const Text motif = Text(app) + u"irkep\\" + to_text(i);
    files.put(motif + u".swm", "Merre");
    for (const TextView picture : {u"_bal.wmf", u"_fel.wmf", u"_jobb.wmf", u"_le.wmf"})
      files.put(motif + Text(picture), "picture");
  }
}

template<class Exercise> void deal_by(benchmark::State& state, const std::function<void(Exercise&)>& new_task) {
  HeadlessStage stage(put_for_all);
  auto& window = stage.session.window<Exercise>();
  std::vector<double> times;
  for ([[maybe_unused]] auto _ : state) times.push_back(elapsed([&] { new_task(window); }));
  judge_deals(state, times);
}

template<class Exercise> void deal(benchmark::State& state, void (Exercise::*new_task)()) {
  deal_by<Exercise>(state, new_task);
}

// A round of Letter sorting, as OK in its settings deals it: nobody is congratulated.
void deal_round(benchmark::State& state) {
  deal_by<frm_betűválogatás>(state, [](frm_betűválogatás& window) {
    window.középsőképnév.Caption = u"Label2";
    window.új_sorozat();
  });
}

// Hidden paths of Knight's jump for the longest words that a board takes: the slowest of a hundred, on the worst of all
// sizes (at most 100 ms).
void hidden_path(benchmark::State& state) {
  constexpr std::size_t boards = 10000;
  std::mt19937_64 generator(1);
  const auto random = [&generator] { return std::uniform_real_distribution<double>(0, 1)(generator); };
  double worst = 0;
  int most_steps = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (int rows = 6; rows <= PathSearch::most_rows; ++rows) {
      for (int columns = 6; columns <= PathSearch::most_columns; ++columns) {
        PathSearch search(columns, rows, state.range(0) == 1 ? knight_moves : neighbour_moves, random);
        const int letters = rows * columns * 4 / 5 - 1;
        std::vector<double> times;
        for (std::size_t i = 0; i < boards; ++i) {
          times.push_back(elapsed([&] { benchmark::DoNotOptimize(search.find(letters)); }));
          most_steps = std::max(most_steps, search.steps());
        }
        worst = std::max(worst, percentile(times, 99));
      }
    }
  }
  state.counters["most_steps"] = most_steps;
  judge(state, "p99_ms", worst * 1000, 100);
}

// Words of two to four syllables, most of which begin as many others end, by syllables as well as by letters; each has
// a picture.
void put_for_chains(MemoryFiles& files) {
  const auto consonants = std::to_array<TextView>({u"b", u"d", u"g", u"k", u"l", u"m", u"n", u"sz", u"t", u"cs"});
  const auto vowels = std::to_array<TextView>({u"a", u"e", u"i", u"o", u"ó", u"u"});
  std::mt19937 chance(1);
  const auto one_of = [&chance](const auto& texts) { return Text(texts[chance() % texts.size()]); };
  for (int i = 1; i <= most_records; ++i) {
    Word word;
    for (unsigned syllables = 2 + chance() % 3; syllables > 0; --syllables) {
      const Text syllable = one_of(consonants) + one_of(vowels) + (chance() % 3 == 0 ? one_of(consonants) : Text());
      word.név += syllable;
      word.szótagolt += (word.szótagolt.empty() ? u"" : u"-") + syllable;
    }
    put_record(files, i, word);
  }
}

// A game of Word chain by each of its types, all 28 pictures drawn: a tenth of a second is not felt where a child has
// just finished a row.
void deal_chain(benchmark::State& state) {
  HeadlessStage stage(put_for_chains);
  Session& session = stage.session;
  session.window<frm_szólánc_beállítások>().opt_típus.choose(static_cast<int>(state.range(0)));
  std::vector<double> times;
  times.push_back(elapsed([&] { session.window<frm_szólánc>(); })); // the first one makes the index
  auto& window = session.window<frm_szólánc>();
  for ([[maybe_unused]] auto _ : state) times.push_back(elapsed([&] { window.mnu_fájl_újjáték_Click(); }));
  state.counters["first_ms"] = times.front() * 1000;
  judge(state, "p99_ms", percentile(times, 99) * 1000, 100);
}

BENCHMARK_CAPTURE(loading_beside_reading, memory, in_memory)->Unit(benchmark::kMillisecond)->Iterations(25);
BENCHMARK_CAPTURE(loading_beside_reading, disk, on_disk)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK_CAPTURE(ten_times_the_records, memory, in_memory)->Unit(benchmark::kMillisecond)->Iterations(25);
BENCHMARK_CAPTURE(ten_times_the_records, disk, on_disk)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(new_puzzle)->ArgName("exactly_8_letters")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(2000);
BENCHMARK(deal_round)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, letter_mix_up, &frm_betűkeverő::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK(deal_chain)->ArgName("type")->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, missing_letter, &frm_betűhiány::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, picture_memory, &frm_képmemória::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, knights_jump, &frm_lóugrás::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK(hidden_path)->ArgName("knight")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(deal, letter_viewer, &frm_betűnézegető::véletlenkép)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, short_long, &frm_hosszrövid::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, surplus_letter, &frm_betűfelesleg::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, syllable_search, &frm_szótagkereső::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, syllabifier, &frm_szótagoló::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, sentence_to_picture, &frm_mondatkép::feladat_kirakása)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1000);
BENCHMARK_CAPTURE(deal, true_or_false, &frm_igazhamis::feladat_kirakása)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1000);
BENCHMARK_CAPTURE(deal, sentence_pairing, &frm_párosító::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, word_flash, &frm_szóvillám::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, where_is_it, &frm_holvan::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(deal, which_way, &frm_merremutat::beáll)->Unit(benchmark::kMillisecond)->Iterations(1000);

} // namespace

int main(int argc, char** argv) { return cserko::run_measurements(argc, argv); }
