// How long the suite waits for its media control, beside plainly reading the same file. `longest_ms` is the longest
// single call of a run: opening a tune must stay under 50 ms, though reading the sound font takes a second. A drum that
// is struck again while it sounds must begin anew without a jump in what the device gets. Exit status 1 where a limit
// is passed.
#include "bench/cold.h"
#include "bench/heard.h"
#include "bench/limits.h"
#include "platform/qt/files.h"
#include "platform/qt/sdl_media.h"
#include "platform/qt/sound_font.h"
#include "tests/media/sound_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtGlobal>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <numbers>
#include <random>
#include <string>
#include <thread>

namespace {

using namespace cserko;

constexpr double drum_hertz = 200;
constexpr double drum_peak = 20'000;

struct Files {
  Files() {
    write(wave, test::wave_file(test::sine(drum_hertz, 1.0, drum_peak)));
    const QDir tunes(QtFiles::find_pack() + QStringLiteral("/dysmid"));
    for (const QString& name : tunes.entryList({QStringLiteral("*.mid")})) pack_tunes.append(tunes.filePath(name));
    if (pack_tunes.isEmpty()) qFatal("the data pack is not built");
    qputenv("SDL_AUDIODRIVER", "dummy");
  }

  static void write(const QString& path, const test::Bytes& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) qFatal("no temporary file");
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  }

  QTemporaryDir folder;
  QStringList pack_tunes;
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

void ReadTune(benchmark::State& state) { read_plainly(state, files().pack_tunes.first()); }
BENCHMARK(ReadTune)->Unit(benchmark::kMicrosecond);

void wait_for_music() {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (Mix_PlayingMusic() == 0) {
    if (std::chrono::steady_clock::now() > deadline) qFatal("a tune of the pack does not sound");
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

// Each tune of the pack as the first one after the computer was started.
void OpenPlayCloseTune(benchmark::State& state) {
  double longest = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (const QString& tune : files().pack_tunes) {
      state.PauseTiming();
      forget(tune);
      forget(QString::fromStdString(find_sound_font()));
      auto media = make_media();
      Sender sender(*media);
      state.ResumeTiming();
      sender.send(u"open \"" + tune.toStdU16String() + u"\" type sequencer alias midi");
      sender.send(u"play midi ");
      sender.send(u"Status midi mode");
      state.PauseTiming();
      wait_for_music();
      state.ResumeTiming();
      sender.send(u"close midi");
      longest = std::max(longest, sender.longest_ms());
      state.PauseTiming();
      media.reset();
      state.ResumeTiming();
    }
  }
  state.counters["tunes"] = static_cast<double>(files().pack_tunes.size());
  judge(state, "longest_ms", longest, 50);
}
BENCHMARK(OpenPlayCloseTune)->Unit(benchmark::kMillisecond)->Iterations(1);

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

int largest_step(const std::vector<std::int16_t>& samples) {
  int largest = 0;
  for (std::size_t i = 1; i < samples.size(); ++i) largest = std::max(largest, std::abs(samples[i] - samples[i - 1]));
  return largest;
}

// The steepest that the new sound, the old one and its fade of 220 samples can be together; a cut of the old sound
// would jump by up to its whole loudness.
double steepest_without_cut() {
  const double of_sine = drum_peak * 2 * std::numbers::pi * drum_hertz / Heard::rate;
  return std::ceil(2 * of_sine + drum_peak / 220 + 2);
}

void StrikeDrumWhileItSounds(benchmark::State& state) {
  const std::u16string open = u"open \"" + files().wave.toStdU16String() + u"\" type waveaudio alias hang";
  Heard heard(files().folder.filePath("heard.raw"));
  std::minstd_rand random(1);
  {
    const auto media = make_media();
    heard.listen();
    Sender sender(*media);
    for ([[maybe_unused]] auto _ : state) {
      sender.send(u"close hang");
      sender.send(open);
      sender.send(u"play hang ");
      std::this_thread::sleep_for(std::chrono::microseconds(20'000 + random() % 40'000));
    }
  }
  qputenv("SDL_AUDIODRIVER", "dummy");
  if (!heard.as_written()) return state.SkipWithError("the device was given something else");
  const auto left = heard.left();
  if (*std::max_element(left.begin(), left.end()) < drum_peak * 0.9) state.SkipWithError("the drum is not heard");
  judge(state, "largest_step", largest_step(left), steepest_without_cut());
}
BENCHMARK(StrikeDrumWhileItSounds)->Unit(benchmark::kMillisecond)->Iterations(200);

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

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return cserko::run_measurements(argc, argv);
}
