// The help viewer: shows the page that the rest of the command line names, blanks included.

#include "viewer/help_window.h"

#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("tintabrowser");
  QStringList words = QCoreApplication::arguments();
  words.removeFirst();
  cserko::HelpWindow window;
  window.open(words.join(' '));
  window.showMaximized();
  return QApplication::exec();
}
