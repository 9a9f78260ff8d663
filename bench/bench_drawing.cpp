// The drawing board on a large screen: what one move of the pen costs until it is painted (at most 8 ms of work at the
// 99th percentile), how long the two fills take while they are seen growing (1000 × 700 points: at most 1 s and 3 s),
// beside a plain scan-line fill of the same area, and what keeping, taking back and opening a drawing cost. Exit status
// 1 where a limit is passed.
#include "bench/limits.h"
#include "core/frm_főablak.h"
#include "exercises/exercises.h"
#include "feedback/drawing/fitting.h"
#include "feedback/feedback.h"
#include "feedback/frm_rajz.h"
#include "platform/bitmap.h"
#include "platform/input.h"
#include "platform/qt/qt_platform.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <chrono>
#include <cmath>
#include <ctime>

namespace {

using namespace cserko;
using Clock = std::chrono::steady_clock;

double ms_since(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// The drawing board on the screen, as large as it is on one of 3840 × 2160.
struct Stage {
  Stage() {
    install_feedback(session);
    install_exercises(session);
    auto& main_window = session.window<frm_főablak>();
    // The window takes its size from the main window, which a smaller screen of the bench would make small.
    const double zoom = machine.fonts().scale() * twips_per_pixel;
    main_window.set_inner_size({0.8 * 3840 * twips_per_pixel / zoom, 0.8 * 2160 * twips_per_pixel / zoom});
    machine.show(board());
    machine.sync_all();
    QCoreApplication::processEvents();
  }

  frm_rajz& board() { return session.window<frm_rajz>(); }
  PixelGrid& grid() { return board().kép.canvas().grid(); }
  QWidget& paper() { return *machine.view_of(board())->widget_of(board().kép); }

  /// A mouse event as the window system gives it, and all painting that follows.
  void mouse(QEvent::Type type, QPointF place) {
    const bool up = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, paper().mapToGlobal(place),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, up ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&paper(), &event);
    QCoreApplication::sendPostedEvents(paper().window(), QEvent::UpdateRequest);
  }

  QtPlatform machine;
  Session session{machine};
};

// ---- The pen ----

/// Draws a spiral over the whole paper with a tool, a width and moves as far apart as a quick hand makes them.
void Stroke(benchmark::State& state) {
  Stage stage;
  stage.machine.act([&] {
    input::click(stage.board().cmd_művelet[static_cast<int>(state.range(0))]);
    stage.board().vonalvastagság.Click(static_cast<int>(state.range(1)));
  });
  const QPointF middle = QRectF(stage.paper().rect()).center();
  std::vector<double> moves;
  for ([[maybe_unused]] auto _ : state) {
    stage.mouse(QEvent::MouseButtonPress, middle);
    for (int i = 1; i <= 400; ++i) {
      const double angle = i * 0.15;
      const double reach = 0.48 * i / 400;
      const QPointF place(middle.x() + std::cos(angle) * reach * stage.paper().width(),
                          middle.y() + std::sin(angle) * reach * stage.paper().height());
      const std::clock_t worked_before = std::clock();
      stage.mouse(QEvent::MouseMove, place);
      moves.push_back(1000.0 * static_cast<double>(std::clock() - worked_before) / CLOCKS_PER_SEC);
    }
    stage.mouse(QEvent::MouseButtonRelease, middle);
  }
  state.counters["columns"] = stage.grid().columns();
  state.counters["rows"] = stage.grid().rows();
  state.counters["median_ms"] = percentile(moves, 50);
  judge(state, "work_p99_ms", percentile(moves, 99), 8);
}
BENCHMARK(Stroke)
    ->ArgNames({"tool", "width"})
    ->Args({frm_rajz::pen, 0})
    ->Args({frm_rajz::pen, 4})
    ->Args({frm_rajz::eraser, 1})
    ->Args({frm_rajz::straight_line, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

// ---- The fills ----

constexpr int fill_width = 1000;
constexpr int fill_height = 700;

// A black frame around an area of that size.
PixelImage framed(int columns, int rows) {
  PixelImage image{columns, rows, {}};
  image.pixels.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), black);
  for (int y = 1; y <= fill_height; ++y) {
    for (int x = 1; x <= fill_width; ++x) image.at(x, y) = white;
  }
  return image;
}

/// What other programs do: whole runs of a row at a time, nothing seen before the end.
void scan_line_fill(PixelGrid& grid, int column, int row, Color color) {
  const Color old = grid.at(column, row);
  std::vector<std::pair<int, int>> open{{column, row}};
  while (!open.empty()) {
    const auto [x, y] = open.back();
    open.pop_back();
    if (grid.at(x, y) != old) continue;
    int left = x;
    int right = x;
    while (left > 0 && grid.at(left - 1, y) == old) --left;
    while (right + 1 < grid.columns() && grid.at(right + 1, y) == old) ++right;
    grid.run(y, left, right + 1, color);
    for (const int next : {y - 1, y + 1}) {
      if (next < 0 || next >= grid.rows()) continue;
      for (int at = left; at <= right; ++at) {
        const bool begins = grid.at(at, next) == old && (at == left || grid.at(at - 1, next) != old);
        if (begins) open.emplace_back(at, next);
      }
    }
  }
}

double scan_line_ms(Stage& stage) {
  stage.grid().paste(0, 0, framed(stage.grid().columns(), stage.grid().rows()));
  const auto begin = Clock::now();
  scan_line_fill(stage.grid(), 1, 1, {214, 40, 40});
  stage.machine.redraw(stage.board());
  return ms_since(begin);
}

void Fill(benchmark::State& state) {
  const bool blot = state.range(0) != 0;
  Stage stage;
  auto& board = stage.board();
  stage.machine.act([&] {
    input::click(board.cmd_művelet[frm_rajz::fill]);
    board.chk_foltfestés.set_value(blot ? 1 : 0);
    board.szín.Click(5);
  });
  if (stage.grid().columns() < fill_width + 2 || stage.grid().rows() < fill_height + 2)
    return state.SkipWithError("the paper is too small");
  std::vector<double> fills;
  std::vector<double> plain;
  for ([[maybe_unused]] auto _ : state) {
    plain.push_back(scan_line_ms(stage));
    stage.grid().paste(0, 0, framed(stage.grid().columns(), stage.grid().rows()));
    stage.machine.sync_all();
    const double middle = (fill_height / 2 + 0.5) * stage.grid().pitch();
    const auto begin = Clock::now();
    stage.machine.act([&] { input::mouse_down(board.kép, {MouseButton::Left, 0, middle, middle}); });
    fills.push_back(ms_since(begin));
    stage.machine.act([&] { input::mouse_up(board.kép, {MouseButton::Left, 0, middle, middle}); });
    if (stage.grid().at(fill_width, fill_height) == white) return state.SkipWithError("the area is not filled");
  }
  state.counters["scan_line_ms"] = percentile(plain, 50);
  state.counters["times_scan_line"] = percentile(fills, 50) / percentile(plain, 50);
  state.counters["median_ms"] = percentile(fills, 50);
  judge(state, "longest_ms", percentile(fills, 100), blot ? 3000 : 1000);
}
BENCHMARK(Fill)->ArgName("blot")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5);

// ---- Around the drawing ----

void KeepAndTakeBack(benchmark::State& state) {
  Stage stage;
  auto& board = stage.board().board();
  std::vector<double> keeps;
  std::vector<double> backs;
  KeptDrawings kept(stage.machine);
  for ([[maybe_unused]] auto _ : state) {
    board.begin();
    board.clear();
    for (int i = 0; i < 60; ++i) board.line({500.0 * i, 0}, {300.0 * (60 - i), 20000}, 13, {20, 60, 200});
    board.end();
    auto begin = Clock::now();
    kept.keep(board.image());
    keeps.push_back(ms_since(begin));
    begin = Clock::now();
    board.undo();
    board.redo();
    backs.push_back(ms_since(begin) / 2);
  }
  state.counters["undo_ms"] = percentile(backs, 50);
  state.counters["step_bytes"] =
      static_cast<double>(board.steps().bytes()) / static_cast<double>(board.steps().steps());
  state.counters["keep_ms"] = percentile(keeps, 50);
}
BENCHMARK(KeepAndTakeBack)->Unit(benchmark::kMillisecond)->Iterations(10);

void OpenPage(benchmark::State& state) {
  Stage stage;
  PixelImage page{600, 600, {}};
  for (int i = 0; i < 600 * 600; ++i) page.pixels.push_back(i % 600 / 40 % 2 == i / 24000 % 2 ? black : white);
  for ([[maybe_unused]] auto _ : state) stage.board().board().load(page);
}
BENCHMARK(OpenPage)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  qputenv("CSERKO_USER_DIR", folder.path().toUtf8());
  qputenv("SDL_AUDIODRIVER", "dummy");
  qputenv("CSERKO_ZOOM", "2.5"); // as on a screen of 3840 × 2160
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return run_measurements(argc, argv);
}
