// Somebody draws without end on the real machine's drawing board and opens it anew now and then. Every state that is
// kept is told: as `TellingFiles` does. Meant to be killed at any moment.
//
// The clock runs a thousand times as fast, so that what is kept every 20 seconds is kept every 20 milliseconds.
//
// Usage: cserko-draws SEED
#include "core/frm_főablak.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "feedback/frm_rajz.h"
#include "platform/input.h"
#include "platform/qt/qt_platform.h"
#include "tests/kills/telling_files.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace cserko;

class QuickMachine : public QtPlatform {
 public:
  std::int64_t now() const override { return 1000 * QtPlatform::now(); }
  Files& files() override { return telling_; }

 private:
  TellingFiles telling_{qt_files()};
};

class Child {
 public:
  Child(Session& session, unsigned seed) : session_(session), chance_(seed) {}

  void draw() {
    auto& board = session_.window<frm_rajz>();
    if (!board.visible()) {
      board.keep_timer.Interval = 10;
      board.Timer2.Enabled = false;
      session_.platform().show(board);
    }
    input::click(board.cmd_művelet[static_cast<int>(below(frm_rajz::tools))]);
    board.szín.Click(static_cast<int>(below(frm_rajz::swatches)));
    board.vonalvastagság.Click(static_cast<int>(below(frm_rajz::widths)));
    input::mouse_down(board.kép, somewhere(board));
    for (std::size_t i = below(20); i > 0; --i) {
      input::mouse_move(board.kép, somewhere(board));
      if (below(4) == 0) QCoreApplication::processEvents();
    }
    input::mouse_up(board.kép, somewhere(board));
    if (below(10) == 0) input::click(board.cmd_undo);
    if (below(40) == 0) input::close(board);
  }

 private:
  std::size_t below(std::size_t n) { return chance_() % n; }
  MouseEvent somewhere(const frm_rajz& board) {
    return {MouseButton::Left, 0, static_cast<double>(below(static_cast<std::size_t>(board.kép.Width))),
            static_cast<double>(below(static_cast<std::size_t>(board.kép.Height)))};
  }

  Session& session_;
  std::mt19937 chance_;
};

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QuickMachine machine;
  Session session(machine);
  install_feedback(session);
  install_exercises(session);
  session.window<frm_főablak>().Timer1.Enabled = false;
  Child child(session, argc > 1 ? static_cast<unsigned>(std::atoi(argv[1])) : 1);
  std::puts("begins");
  std::fflush(stdout);
  for (;;) {
    machine.act([&] { child.draw(); });
    QCoreApplication::processEvents();
  }
}
