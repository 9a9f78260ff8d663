// The program: joins the real machine with the suite.
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "platform/qt/command_line.h"
#include "platform/qt/qt_platform.h"

#include <QApplication>

namespace {

void read_arguments() {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Játékos gyakorlatok az olvasás és a helyesírás fejlesztésére, diszlexiás gyerekeknek.\n\n"
                     "A parancs a főablakot nyitja meg; minden más a programban választható."));
  cserko::read_command_line(
      parser,
      QStringLiteral("Környezeti változók:\n"
                     "  CSERKO_PACK_DIR  Az adatcsomag mappája; lehet csak olvasható, hálózati megosztáson is.\n"
                     "  CSERKO_USER_DIR  A beállítások és a saját szavak mappája.\n"
                     "  CSERKO_ZOOM      A képernyőhöz nem igazodó ablakok nagyítása, például 1.5.\n\n"
                     "Kilépési kód: 0, ha a felhasználó lépett ki; 1, ha nincs adatcsomag; 2, ha a parancssor nem "
                     "érthető.\n"));
}

} // namespace

int main(int argc, char** argv) {
  using namespace cserko;
  if (asks_about_program(argc, argv)) {
    const QCoreApplication without_screen(argc, argv);
    read_arguments();
  }
  const QApplication application(argc, argv);
  read_arguments();
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
