// The suite on the real machine, for measurements.
#pragma once

#include "bench/limits.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "platform/qt/qt_platform.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QThread>
#include <chrono>

namespace cserko {

/// Lets events happen for a while.
inline void let_pass(int microseconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(microseconds);
  do {
    QCoreApplication::processEvents();
    QThread::usleep(200);
  } while (std::chrono::steady_clock::now() < end);
}

/// The suite on the real machine, its records loaded, with windows that are shown without the main window.
template<class Machine = QtPlatform> struct Stage {
  Stage() {
    install_feedback(session);
    install_exercises(session);
    session.képek.load(machine.files(), session.alapkönyvtár);
  }
  /// Shows a window and waits until it stands.
  template<class W> W& show() {
    W& window = session.window<W>();
    machine.show(window);
    machine.sync_all();
    let_pass(200'000);
    return window;
  }
  Machine machine;
  Session session{machine};
};

/// The whole of a program that measures windows in silence, with a user's folder of its own.
inline int measure_on_screen(int argc, char** argv) {
  const QTemporaryDir folder;
  qputenv("CSERKO_USER_DIR", folder.path().toUtf8());
  qputenv("SDL_AUDIODRIVER", "dummy");
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return run_measurements(argc, argv);
}

} // namespace cserko
