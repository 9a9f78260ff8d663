// What it costs to compare a window of 200 elements with what it last showed, which follows every event, beside plainly
// comparing as many copies. Exit status 1 where a full comparison takes longer than allowed.
#include "platform/qt/qt_platform.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

using namespace cserko;

constexpr double most_milliseconds = 0.2;
bool too_slow = false;

/// As many elements as the fullest exercise has, of the kinds that exercises use.
class FullWindow : public Window {
 public:
  explicit FullWindow(QtPlatform& machine) : Window(machine, u"frm_mérés", {18000, 12000}, u"Mérés") {
    set_inner_size({18000, 12000});
    machine.attach(*this);
    for (int index = 0; index < 100; ++index) add<Label>(index, u"betű és szó");
    for (int index = 100; index < 140; ++index) add<PictureBox>(index).canvas().filled_box({0, 0, 300, 300}, black);
    for (int index = 140; index < 165; ++index) add<Button>(index, u"&Következő");
    for (int index = 165; index < 180; ++index) add<CheckBox>(index, u"&Hanggal");
    for (int index = 180; index < 190; ++index) add<TextBox>(index, u"12");
    for (int index = 190; index < 195; ++index) add<Line>(index);
    for (int index = 195; index < 200; ++index) add<ProgressBar>(index);
  }
  ~FullWindow() override { platform().detach(*this); }

  std::vector<std::unique_ptr<Element>> parts;

 private:
  template<class T, class... More> T& add(int index, const More&... more) {
    const Rect place{index % 20 * 900.0, static_cast<double>(index / 20) * 1200, 840, 1100};
    auto made = std::make_unique<T>(*this, u"elem", place, more...);
    T& element = *made;
    parts.push_back(std::move(made));
    return element;
  }
};

/// The machine with the window on the screen.
struct Stage {
  Stage() {
    machine.show(window);
    QCoreApplication::processEvents();
    machine.sync_all();
  }
  WindowView& view() { return *machine.view_of(window); }

  QtPlatform machine;
  FullWindow window{machine};
};

std::unique_ptr<Stage> shown_stage; // From the start of main to its end: Qt's windows do not outlive the application.
Stage& stage() { return *shown_stage; }

struct Copy {
  Rect place;
  Text caption;
  Font font;
  bool visible;
  bool operator==(const Copy&) const = default;
};

std::vector<Copy> copies() {
  std::vector<Copy> result;
  for (const auto& part : stage().window.parts)
    result.push_back({{part->Left, part->Top, part->Width, part->Height}, part->Caption, part->Font, part->Visible});
  return result;
}

void CompareCopies(benchmark::State& state) {
  const std::vector<Copy> shown = copies();
  const std::vector<Copy> wanted = copies();
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(shown == wanted);
}
BENCHMARK(CompareCopies)->Unit(benchmark::kMicrosecond);

void CompareAll(benchmark::State& state) {
  const auto start = std::chrono::steady_clock::now();
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(stage().view().sync());
  const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
  too_slow = passed.count() / static_cast<double>(state.iterations()) > most_milliseconds;
}
BENCHMARK(CompareAll)->Unit(benchmark::kMicrosecond);

void MoveOneAndCompareAll(benchmark::State& state) {
  Element& letter = *stage().window.parts[50];
  for ([[maybe_unused]] auto _ : state) {
    letter.Left += letter.Left > 9000 ? -1500 : 15;
    benchmark::DoNotOptimize(stage().view().sync());
  }
}
BENCHMARK(MoveOneAndCompareAll)->Unit(benchmark::kMicrosecond);

void MoveOneAndPaint(benchmark::State& state) {
  Element& letter = *stage().window.parts[50];
  for ([[maybe_unused]] auto _ : state) {
    letter.Left += letter.Left > 9000 ? -1500 : 15;
    stage().machine.redraw(stage().window);
  }
}
BENCHMARK(MoveOneAndPaint)->Unit(benchmark::kMicrosecond);

/// The progress window asks for a redraw at each of 32,767 records.
void RedrawAtEveryRecord(benchmark::State& state) {
  auto& bar = static_cast<ProgressBar&>(*stage().window.parts[196]);
  bar.Max = 32767;
  for ([[maybe_unused]] auto _ : state) {
    bar.Value = bar.Value < bar.Max ? bar.Value + 1 : 0;
    stage().machine.redraw(stage().window);
  }
}
BENCHMARK(RedrawAtEveryRecord)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  qputenv("CSERKO_USER_DIR", folder.path().toUtf8());
  qputenv("CSERKO_PACK_DIR", folder.path().toUtf8());
  qputenv("SDL_AUDIODRIVER", "dummy");
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  shown_stage = std::make_unique<Stage>();
  benchmark::RunSpecifiedBenchmarks();
  shown_stage.reset();
  if (too_slow) std::fprintf(stderr, "A full comparison takes longer than %.1f ms.\n", most_milliseconds);
  return too_slow ? 1 : 0;
}
