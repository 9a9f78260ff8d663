// How soon the real machine answers: from a key of the drum kit to the first sample that differs (at most one buffer of
// the device and 5 ms), how long a title of the music keeps the window from anything else (at most 50 ms, read cold),
// and the frames in which a card of Picture memory turns (each at most 16.7 ms of work). Exit status 1 where a limit is
// passed.
#include "bench/cold.h"
#include "bench/frame_watch.h"
#include "bench/heard.h"
#include "bench/limits.h"
#include "bench/stage.h"
#include "exercises/boards/frm_képmemória.h"
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_zenebeáll.h"
#include "feedback/sounds.h"
#include "platform/input.h"
#include "platform/qt/sound_font.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <optional>
#include <random>

namespace {

using namespace cserko;
using Clock = std::chrono::steady_clock;

double ms_between(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

// ---- The drum kit ----

struct Strike {
  Clock::time_point time;
  std::size_t frame; ///< So many were made before.
};

/// Strikes one key while all is silent, and stops the sound again.
Strike strike(Stage<>& stage, const Window& drums, int code, const Heard& heard) {
  WindowView* view = stage.machine.view_of(drums);
  QObject* target = view->focusWidget() != nullptr ? view->focusWidget() : view;
  QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, QString(QChar(code)));
  const Strike result{Clock::now(), heard.frames()};
  QCoreApplication::sendEvent(target, &press);
  while (heard.frames() < result.frame + 6 * Heard::buffer_frames) let_pass(1'000);
  hang_lejátszás(stage.session, Text());
  while (heard.silent_frames() < 3 * Heard::buffer_frames) let_pass(1'000);
  return result;
}

void KeyToDrum(benchmark::State& state) {
  const QTemporaryDir folder;
  Heard heard(folder.filePath(QStringLiteral("heard.raw")));
  std::vector<Strike> strikes;
  std::minstd_rand random(1);
  {
    Stage stage;
    heard.listen();
    const auto& drums = stage.show<frm_dobszerkó>();
    while (heard.silent_frames() < 3 * Heard::buffer_frames) let_pass(1'000);
    for ([[maybe_unused]] auto _ : state) {
      const int key = 'A' + static_cast<int>(strikes.size() % 26);
      let_pass(static_cast<int>(random() % 12'000)); // at any moment of a buffer
      strikes.push_back(strike(stage, drums, key, heard));
    }
  }
  if (!heard.as_written()) return state.SkipWithError("the device was given something else");
  std::vector<double> waits;
  for (std::size_t i = 0; i < strikes.size(); ++i) {
    const std::size_t sound = heard.first_sound(strikes[i].frame);
    if (sound >= (i + 1 < strikes.size() ? strikes[i + 1].frame : heard.frames()))
      return state.SkipWithError("a drum is not heard");
    waits.push_back(ms_between(strikes[i].time, heard.time_of(sound)));
  }
  state.counters["median_ms"] = percentile(waits, 50);
  state.counters["longest_ms"] = percentile(waits, 100);
  judge(state, "p99_ms", percentile(waits, 99), Heard::buffer_ms + 5);
}
BENCHMARK(KeyToDrum)->Unit(benchmark::kMillisecond)->Iterations(260);

// ---- Music ----

/// The longest time in which the event loop has done nothing else, from a choice in the list until the title sounds.
/// None if the list has no such entry.
std::optional<double> block_of_title(int index) {
  Stage stage;
  auto& dialog = stage.show<frm_zenebeáll>();
  if (index >= dialog.filelist_zene.count()) return std::nullopt;
  forget(QString::fromStdString(find_sound_font()));
  for (const Text& name : dialog.filelist_zene.Items)
    forget(stage.machine.qt_files().real_path(dialog.filelist_zene.path() + u"\\" + name));
  double longest = 0;
  Clock::time_point last = Clock::now();
  const auto beat = [&] {
    const auto now = Clock::now();
    longest = std::max(longest, ms_between(last, now));
    last = now;
  };
  stage.machine.act([&] { input::select(dialog.filelist_zene, index); });
  beat();
  const auto deadline = last + std::chrono::minutes(1);
  while (Mix_PlayingMusic() == 0) {
    if (last > deadline) qFatal("a title of the pack does not sound");
    QCoreApplication::processEvents();
    QThread::usleep(500);
    beat();
  }
  return longest;
}

void OpenTitleInWindow(benchmark::State& state) {
  qputenv("SDL_AUDIODRIVER", "dummy");
  if (!is_sound_font(find_sound_font())) return state.SkipWithError("there is no sound font");
  std::vector<double> blocks;
  for ([[maybe_unused]] auto _ : state) {
    while (const auto block = block_of_title(static_cast<int>(blocks.size()))) blocks.push_back(*block);
  }
  if (blocks.empty()) return state.SkipWithError("the data pack is not built");
  state.counters["titles"] = static_cast<double>(blocks.size());
  state.counters["median_ms"] = percentile(blocks, 50);
  judge(state, "longest_ms", percentile(blocks, 100), 50);
}
BENCHMARK(OpenTitleInWindow)->Unit(benchmark::kMillisecond)->Iterations(1);

// ---- Cards ----

/// Turns one card of a fresh board after the other, whose pictures have never been drawn, at a fineness of the
/// animation.
void TurnCard(benchmark::State& state) {
  qputenv("SDL_AUDIODRIVER", "dummy");
  Stage<FrameWatch> stage;
  auto& board = stage.show<frm_képmemória>();
  auto& settings = stage.session.window<frm_képmem_beáll>();
  settings.HScroll_anim_finomság.set_value(static_cast<int>(state.range(0)));
  std::vector<double> works;
  std::vector<double> lengths;
  int frames = 0;
  int paints = 0;
  int card = 0;
  for ([[maybe_unused]] auto _ : state) {
    stage.machine.act([&] { board.beáll(); });
    while (!board.kép[card].Visible) card = (card + 1) % frm_képmemória::places;
    let_pass(20'000);
    stage.machine.start();
    stage.machine.act([&] { input::mouse_down(board.kép[card], {MouseButton::Left, 0, 100, 100}); });
    for (const auto& frame : stage.machine.frames) {
      works.push_back(frame.work_ms);
      lengths.push_back(frame.ms);
    }
    frames = static_cast<int>(stage.machine.frames.size());
    paints = stage.machine.paints();
    card = (card + 1) % frm_képmemória::places;
  }
  if (frames == 0) return state.SkipWithError("no card turns");
  state.counters["frames"] = frames;
  state.counters["paints"] = paints;
  state.counters["frame_ms_median"] = percentile(lengths, 50);
  state.counters["frame_ms_p99"] = percentile(lengths, 99);
  judge(state, "longest_work_ms", percentile(works, 100), 16.7);
}
BENCHMARK(TurnCard)->ArgName("fineness")->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond)->Iterations(36);
BENCHMARK(TurnCard)->ArgName("fineness")->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(4);

} // namespace

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  qputenv("CSERKO_USER_DIR", folder.path().toUtf8());
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return run_measurements(argc, argv);
}
