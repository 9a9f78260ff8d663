// How long the suite waits for its media control, beside plainly reading the same file. `longest_ms` is the longest
// single call of a run: opening a tune must stay under 50 ms, though reading the sound font takes a second.
#include "platform/qt/sdl_media.h"
#include "tests/media/sound_files.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtGlobal>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <string>

namespace {

using namespace cserko;

struct Files {
  Files() {
    write(tune, test::one_tone_tune(90));
    write(wave, test::wave_file(test::sine(200, 1.0, 20'000)));
    qputenv("SDL_AUDIODRIVER", "dummy");
  }

  static void write(const QString& path, const test::Bytes& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) qFatal("no temporary file");
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  }

  QTemporaryDir folder;
  QString tune = folder.filePath("dal.mid");
  QString wave = folder.filePath("dob.wav");
};

const Files& files() {
  static const Files made;
  return made;
}

std::unique_ptr<SdlMedia> make_media() {
  return std::make_unique<SdlMedia>(
      [](const std::u16string& path) { return QString::fromStdU16String(path).toStdString(); });
}

/// Sends the commands of one title and notes the longest wait.
class Sender {
 public:
  explicit Sender(SdlMedia& media) : media_(media) {}

  void send(const std::u16string& command) {
    const auto before = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(media_.send(command));
    longest_ = std::max(longest_, std::chrono::steady_clock::now() - before);
  }

  double longest_ms() const { return std::chrono::duration<double, std::milli>(longest_).count(); }

 private:
  SdlMedia& media_;
  std::chrono::steady_clock::duration longest_{};
};

void read_plainly(benchmark::State& state, const QString& path) {
  for ([[maybe_unused]] auto _ : state) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) state.SkipWithError("cannot read");
    benchmark::DoNotOptimize(file.readAll());
  }
}

void ReadTune(benchmark::State& state) { read_plainly(state, files().tune); }
BENCHMARK(ReadTune)->Unit(benchmark::kMicrosecond);

void OpenPlayCloseTune(benchmark::State& state) {
  const std::u16string open = u"open \"" + files().tune.toStdU16String() + u"\" type sequencer alias midi";
  const auto media = make_media();
  Sender sender(*media);
  for ([[maybe_unused]] auto _ : state) {
    sender.send(open);
    sender.send(u"play midi ");
    sender.send(u"Status midi mode");
    sender.send(u"close midi");
  }
  state.counters["longest_ms"] = sender.longest_ms();
}
BENCHMARK(OpenPlayCloseTune)->Unit(benchmark::kMicrosecond);

void ReadWave(benchmark::State& state) { read_plainly(state, files().wave); }
BENCHMARK(ReadWave)->Unit(benchmark::kMicrosecond);

void StrikeDrum(benchmark::State& state) {
  const std::u16string open = u"open \"" + files().wave.toStdU16String() + u"\" type waveaudio alias hang";
  const auto media = make_media();
  Sender sender(*media);
  for ([[maybe_unused]] auto _ : state) {
    sender.send(u"close hang");
    sender.send(open);
    sender.send(u"play hang ");
  }
  state.counters["longest_ms"] = sender.longest_ms();
}
BENCHMARK(StrikeDrum)->Unit(benchmark::kMicrosecond)->Iterations(2'000);

void Start(benchmark::State& state) {
  files();
  for ([[maybe_unused]] auto _ : state) {
    auto media = make_media();
    state.PauseTiming();
    media.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(Start)->Unit(benchmark::kMicrosecond)->Iterations(200);

} // namespace

BENCHMARK_MAIN();
