// The help viewer: shows the page that the rest of the command line names, blanks included.

#include "platform/qt/theme.h"
#include "viewer/help_window.h"
#include "viewer/page_path.h"
#include "viewer/screen_scale.h"

#include <QApplication>

int main(int argc, char** argv) {
  cserko::scale_to_screen(argc, argv);
  const QApplication application(argc, argv);
  cserko::theme::apply();
  QApplication::setApplicationName("tintabrowser");
  cserko::HelpWindow window;
  window.open(cserko::page_path(QCoreApplication::arguments().mid(1)));
  window.showMaximized();
  return QApplication::exec();
}
