// The program: joins the real machine with the suite.
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "platform/qt/qt_platform.h"

#include <QApplication>

int main(int argc, char** argv) {
  using namespace cserko;
  const QApplication application(argc, argv);
  QtPlatform platform;
  if (!platform.has_pack()) {
    platform.report_error(u"A Cserkó adatcsomagja hiányzik: nem található sem a program mellett, sem a telepítés "
                          u"mappájában.\r\nKérem, telepítse újra a programot!");
    return 1;
  }
  platform.set_window_icon(platform.application_folder() + u"cserko\\cserko-icon.png");

  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  // Those who work on an exercise need not look for its button each time.
  session.first_exercise = qEnvironmentVariable("CSERKO_EXERCISE").toStdU16String();
  session.Main();
  return 0;
}
