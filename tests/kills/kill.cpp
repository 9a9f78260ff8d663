#include "tests/kills/kill.h"

#include <QCoreApplication>
#include <QList>
#include <QProcess>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string_view>

namespace cserko {

namespace {

constexpr int patience = 60000; // ms for the program to begin

void note(Fate& fate, bool kept, const QByteArray& hash) {
  (kept ? fate.last : fate.last_begun) = hash;
  fate.kept += kept ? 1 : 0;
  fate.in_write = !kept;
}

Life life_of(const QByteArray& told) {
  Life life;
  for (const QByteArray& line : told.split('\n')) {
    const bool kept = line.startsWith("kept ");
    if (!kept && !line.startsWith("keeping ")) continue;
    const QByteArray rest = line.mid(line.indexOf(' ') + 1);
    const QByteArray hash = rest.left(rest.indexOf(' '));
    note(life.whole, kept, hash);
    note(life.files[QString::fromUtf8(rest.mid(hash.size() + 1))], kept, hash);
  }
  return life;
}

} // namespace

QByteArray told_hash(std::string_view bytes) {
  return QByteArray::number(static_cast<qulonglong>(std::hash<std::string_view>()(bytes)), 16);
}

Life work_and_die(const QString& program, const QString& home, unsigned seed, int lifetime) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("CSERKO_USER_DIR", home);
  environment.insert("CSERKO_PACK_DIR", home + "/pack");
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::SeparateChannels);
  process.start(program, {QString::number(seed)});
  QByteArray told;
  while (!told.contains("begins")) {
    if (!process.waitForReadyRead(patience)) throw std::runtime_error("the program does not begin");
    told += process.readAllStandardOutput();
  }
  process.waitForFinished(lifetime);
  if (process.state() != QProcess::Running) throw std::runtime_error("the program has ended by itself");
  process.kill();
  process.waitForFinished(patience);
  told += process.readAllStandardOutput();
  // A line that was cut short has not been told.
  return life_of(told.left(told.lastIndexOf('\n')));
}

int kill_from_command_line(int argc, char** argv, int (*run)(const QString& program, int count)) {
  const QCoreApplication application(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s PROGRAM COUNT\n", argv[0]);
    return 2;
  }
  try {
    return run(QString::fromLocal8Bit(argv[1]), std::atoi(argv[2]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}

} // namespace cserko
