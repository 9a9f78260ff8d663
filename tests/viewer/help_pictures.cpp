// Saves how the viewer shows each help page, whole, for the eye: help_pictures <folder of the pages> <folder> [width]
#include "viewer/help_window.h"

#include <QApplication>
#include <QDir>
#include <cstdio>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 3) {
    std::fputs("Usage: help_pictures PAGES OUT [WIDTH]\n", stderr);
    return 2;
  }
  const QDir pages(arguments[1]);
  const QDir out(arguments[2]);
  const int width = arguments.size() > 3 ? arguments[3].toInt() : 1024;
  if (!out.mkpath(".")) return 1;
  for (const QString& name : pages.entryList({"*.mht"}, QDir::Files, QDir::Name)) {
    cserko::HelpWindow window;
    window.open(pages.filePath(name));
    window.resize(width, 700);
    window.show();
    QApplication::processEvents();
    const int bar = window.height() - window.browser().viewport()->height();
    window.resize(width, bar + static_cast<int>(window.browser().document()->size().height()) + 1);
    QApplication::processEvents();
    const QString file = out.filePath(name.chopped(4) + ".png");
    if (!window.grab().save(file)) {
      std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
      return 1;
    }
  }
  return 0;
}
