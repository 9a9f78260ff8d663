// The help viewer: shows the page that the rest of the command line names, blanks included.

#include "platform/qt/command_line.h"
#include "platform/qt/theme.h"
#include "viewer/help_window.h"
#include "viewer/page_path.h"
#include "viewer/screen_scale.h"

#include <QApplication>

namespace {

void answer_question(int argc, char** argv) {
  const QCoreApplication without_screen(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("A Cserkó súgóoldalait mutatja meg."));
  parser.addPositionalArgument(QStringLiteral("oldal"),
                               QStringLiteral("Egy súgóoldal (.mht); a szavak közti szóközök is a nevéhez tartoznak."),
                               QStringLiteral("[oldal]"));
  cserko::read_command_line(parser, {});
}

} // namespace

int main(int argc, char** argv) {
  // The name of a page is made of words that may look like anything.
  if (argc == 2 && cserko::asks_about_program(argc, argv)) answer_question(argc, argv);
  cserko::scale_to_screen(argc, argv);
  const QApplication application(argc, argv);
  cserko::theme::apply();
  QApplication::setApplicationName("tintabrowser");
  cserko::HelpWindow window;
  window.open(cserko::page_path(QCoreApplication::arguments().mid(1)));
  window.showMaximized();
  return QApplication::exec();
}
