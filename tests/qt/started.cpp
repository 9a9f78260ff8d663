// Writes its arguments, a line each, into the file that the first one names.
#include <QCoreApplication>
#include <QSaveFile>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments().mid(1);
  if (arguments.isEmpty()) return 1;
  QSaveFile file(arguments.front());
  if (!file.open(QIODevice::WriteOnly)) return 1;
  file.write(arguments.join('\n').toUtf8());
  return file.commit() ? 0 : 1;
}
