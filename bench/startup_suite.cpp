// The program as it is, with a word when its main window has been painted: what `bench_startup` measures.
#include "bench/paint_watch.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "platform/qt/qt_platform.h"

#include <QApplication>

int main(int argc, char** argv) {
  using namespace cserko;
  const QApplication application(argc, argv);
  const PaintWatch watch(QStringLiteral("Tintakő Cserkó"));
  QtPlatform platform;
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  session.Main();
  return 0;
}
