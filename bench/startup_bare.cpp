// What any program of the toolkit needs to show a window with twenty buttons: the measure of `bench_startup`.
#include "bench/paint_watch.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const cserko::PaintWatch watch(QStringLiteral("bare"));
  QWidget window;
  window.setWindowTitle(QStringLiteral("bare"));
  auto* grid = new QGridLayout(&window);
  for (int i = 0; i < 20; ++i) grid->addWidget(new QPushButton(QStringLiteral("Button %1").arg(i)), i / 3, i % 3);
  window.show();
  return QApplication::exec();
}
