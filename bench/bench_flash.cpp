// How long a word of Word flash is on the screen of the real machine beside the time that was set, 10 ms to 2 s, in
// silence and with music: never off by more than a frame of 60 in a second, and never less than a frame; and how evenly
// the countdown before it goes. Measured from one painting of the word's box to the next. Exit status 1 where a limit
// is passed.
#include "bench/limits.h"
#include "bench/stage.h"
#include "exercises/sentences/frm_szóvillám.h"
#include "feedback/sounds.h"
#include "platform/qt/qt_canvas.h"

#include <cmath>
#include <optional>

namespace {

using namespace cserko;
using Clock = std::chrono::steady_clock;

constexpr double frame = 1000.0 / 60; // ms
constexpr double slack = 1;           // ms, of a note that is taken before the painting itself

double ms_between(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

/// Notes each painting of the box, and what was in it.
class BoxWatch : public QtPlatform {
 public:
  struct Painting {
    Clock::time_point time;
    bool inked;
    bool counting; ///< The countdown was on: what is inked is a number.
  };

  void watch(frm_szóvillám& window) {
    window_ = &window;
    box_ = view_of(window)->widget_of(window.lbl_feladvány);
  }
  std::vector<Painting> paintings;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == box_ && event->type() == QEvent::Paint)
      paintings.push_back({Clock::now(), inked(), window_->Timer_visszaszámláló.Enabled});
    return QtPlatform::eventFilter(object, event);
  }

 private:
  bool inked() const {
    const auto* canvas = static_cast<const QtCanvas*>(window_->lbl_feladvány.drawn_canvas());
    if (canvas == nullptr) return false;
    const QImage& image = canvas->image();
    for (int y = 0; y < image.height(); ++y) {
      const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
      if (std::any_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; })) return true;
    }
    return false;
  }

  frm_szóvillám* window_ = nullptr;
  const QObject* box_ = nullptr;
};

/// The exercise on the screen, with music or without.
struct FlashStage : Stage<BoxWatch> {
  explicit FlashStage(bool music) {
    if (music) {
      const Text folder = session.alapkönyvtár + u"dysmid\\";
      const auto titles = machine.files().list(folder + u"*.mid");
      if (!titles.empty()) zene_lejátszás(session, folder + titles.front());
    }
    window = &show<frm_szóvillám>();
    plays = zene_állapot(session).starts_with(u"playing");
    machine.watch(*window);
  }
  frm_szóvillám* window = nullptr;
  bool plays = false;
};

void set_time(frm_szóvillám_beáll& settings, int ms) {
  settings.ud_mp.set_value(ms / 1000);
  settings.ud_tizedmp.set_value(ms / 100 % 10);
  settings.ud_századmp.set_value(ms / 10 % 10);
}

/// Brings one word and waits until it has gone: how long it stood, none where it was never painted.
std::optional<double> flash(FlashStage& stage) {
  stage.machine.paintings.clear();
  stage.machine.act([&] { stage.window->beáll(); });
  const auto deadline = Clock::now() + std::chrono::seconds(10);
  while (!stage.window->Timer_kérdőjelmegjelenítő.Enabled && Clock::now() < deadline) QCoreApplication::processEvents();
  let_pass(5'000);
  std::optional<Clock::time_point> begin;
  for (const auto& painting : stage.machine.paintings) {
    if (painting.counting) continue;
    if (painting.inked && !begin) begin = painting.time;
    if (!painting.inked && begin) return ms_between(*begin, painting.time);
  }
  return std::nullopt;
}

void FlashedWord(benchmark::State& state) {
  const auto set = static_cast<int>(state.range(0));
  const bool music = state.range(1) != 0;
  FlashStage stage(music);
  if (!stage.window->has_puzzle()) return state.SkipWithError("the data pack is not built");
  if (music && !stage.plays) return state.SkipWithError("no music can be played");
  set_time(stage.session.window<frm_szóvillám_beáll>(), set);
  stage.window->Timer_visszaszámláló.Interval = 50; // the countdown is measured by itself
  std::vector<double> shown;
  std::vector<double> errors;
  for ([[maybe_unused]] auto _ : state) {
    const auto time = flash(stage);
    if (!time) return state.SkipWithError("a word was not painted");
    shown.push_back(*time);
    errors.push_back(std::abs(*time - set));
  }
  state.counters["shown_ms_median"] = percentile(shown, 50);
  judge(state, "short_of_a_frame_ms", std::max(0.0, frame - percentile(shown, 0)), slack);
  judge(state, "error_ms", percentile(errors, 100), frame);
}
BENCHMARK(FlashedWord)
    ->ArgNames({"set_ms", "music"})
    ->ArgsProduct({{10, 20, 30, 50, 100, 200, 500, 1000, 2000}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);

// Three, two, one, nothing and the word, each half a second after the one before.
void Countdown(benchmark::State& state) {
  const bool music = state.range(0) != 0;
  FlashStage stage(music);
  if (!stage.window->has_puzzle()) return state.SkipWithError("the data pack is not built");
  if (music && !stage.plays) return state.SkipWithError("no music can be played");
  const double step = stage.window->Timer_visszaszámláló.Interval;
  std::vector<double> errors;
  for ([[maybe_unused]] auto _ : state) {
    if (!flash(stage)) return state.SkipWithError("a word was not painted");
    // What was painted before the first number is the window as it was dealt.
    const auto& paintings = stage.machine.paintings;
    const auto first = std::find_if(paintings.begin(), paintings.end(), [](const auto& p) { return p.inked; });
    for (int i = 1; i <= 4 && paintings.end() - first > i; ++i)
      errors.push_back(std::abs(ms_between((first + i - 1)->time, (first + i)->time) - step));
  }
  state.counters["steps"] = static_cast<double>(errors.size());
  judge(state, "error_ms", percentile(errors, 100), frame);
}
BENCHMARK(Countdown)->ArgName("music")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace

int main(int argc, char** argv) { return cserko::measure_on_screen(argc, argv); }
