// Tekergő, a game of reaction, on the real machine: a new picture among as many record files as the suite can name
// (at most 20 ms, a new game as any new puzzle at most 16 ms), and what a frame of a slide
// works (at most 4 ms). Exit status 1 where a limit is passed.
#include "bench/frame_watch.h"
#include "bench/limits.h"
#include "bench/record_files.h"
#include "bench/stage.h"
#include "exercises/letters/frmverem.h"
#include "platform/input.h"
#include "tests/suite/memory_pack.h"

#include <QTemporaryDir>

namespace {

using namespace cserko;

template<class Work> double ms_of(Work&& work) { return elapsed(work) * 1000; }

/// A pack of record files alone.
class LargePack {
 public:
  LargePack() {
    MemoryFiles files;
    put_many_records(files, most_records);
    write_record_files(files, folder_.path());
    before_ = qgetenv("CSERKO_PACK_DIR");
    qputenv("CSERKO_PACK_DIR", folder_.path().toUtf8());
  }
  ~LargePack() {
    if (before_.isEmpty()) {
      qunsetenv("CSERKO_PACK_DIR");
    } else {
      qputenv("CSERKO_PACK_DIR", before_);
    }
  }
  LargePack(const LargePack&) = delete;
  LargePack& operator=(const LargePack&) = delete;

 private:
  QTemporaryDir folder_;
  QByteArray before_;
};

/// New games and a new picture in each, with words of at most so many letters.
void NewPicture(benchmark::State& state) {
  const LargePack pack;
  Stage stage;
  auto& settings = stage.session.window<frmverembeállítások>();
  auto& game = stage.show<frmverem>();
  settings.udszóhossz.set_value(static_cast<int>(state.range(0)));
  settings.udképekszámakezdéskor.set_value(settings.udképekszámakezdéskor.Min);
  std::vector<double> games;
  std::vector<double> pictures;
  for ([[maybe_unused]] auto _ : state) {
    games.push_back(ms_of([&] { stage.machine.act([&] { game.újjáték_Click(); }); }));
    pictures.push_back(ms_of([&] { stage.machine.act([&] { game.Timer1.Tick(); }); }));
  }
  judge(state, "game_p99_ms", percentile(games, 99), 16);
  judge(state, "picture_p99_ms", percentile(pictures, 99), 20);
}
BENCHMARK(NewPicture)->ArgName("letters")->Arg(4)->Arg(8)->Unit(benchmark::kMillisecond)->Iterations(1000);

/// The row turned and a column pushed, one after the other.
void Slide(benchmark::State& state, int code) {
  Stage<FrameWatch> stage;
  auto& game = stage.show<frmverem>();
  std::vector<double> works;
  std::vector<double> lengths;
  int frames = 0;
  bool down = true;
  for ([[maybe_unused]] auto _ : state) {
    stage.machine.start();
    stage.machine.act([&] { input::key_down(game, {.code = code != key::down || down ? code : key::up}); });
    down = !down;
    frames = std::max(frames, static_cast<int>(stage.machine.frames.size()));
    for (const auto& frame : stage.machine.frames) {
      works.push_back(frame.work_ms);
      lengths.push_back(frame.ms);
    }
    let_pass(20'000);
  }
  if (frames == 0) return state.SkipWithError("nothing slides");
  state.counters["frames"] = frames;
  state.counters["frame_ms_median"] = percentile(lengths, 50);
  state.counters["frame_ms_p99"] = percentile(lengths, 99);
  state.counters["work_ms_longest"] = percentile(works, 100);
  judge(state, "work_ms_p99", percentile(works, 99), 4);
}
BENCHMARK_CAPTURE(Slide, row, int{'X'})->Unit(benchmark::kMillisecond)->Iterations(60);
BENCHMARK_CAPTURE(Slide, column, key::down)->Unit(benchmark::kMillisecond)->Iterations(60);

} // namespace

int main(int argc, char** argv) { return cserko::measure_on_screen(argc, argv); }
