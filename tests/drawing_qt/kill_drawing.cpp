// Kills somebody who draws at random moments, so many times, always on the same disk. Each time the latest drawing that
// is kept must open and be the state that was kept last, or the one that was just being kept.
//
// Usage: cserko-kill-drawing PROGRAM COUNT
#include "platform/bitmap.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <stdexcept>

namespace {

constexpr int patience = 60000; // ms for the program to begin
constexpr int longest = 400;    // ms that it draws

struct Fate {
  int kept = 0;          ///< States that were kept whole.
  bool in_write = false; ///< Killed while one was written.
  QByteArray last;       ///< The last one told as kept.
  QByteArray last_begun; ///< The last one told as begun.
};

Fate fate_of(const QByteArray& told) {
  Fate fate;
  for (const QByteArray& line : told.split('\n')) {
    if (line.startsWith("kept ")) {
      fate.last = line.mid(5);
      ++fate.kept;
      fate.in_write = false;
    } else if (line.startsWith("keeping ")) {
      fate.last_begun = line.mid(8);
      fate.in_write = true;
    }
  }
  return fate;
}

Fate draw_and_die(const QString& program, const QString& home, unsigned seed, int lifetime) {
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
  return fate_of(told.left(told.lastIndexOf('\n')));
}

QByteArray latest_file(const QString& home) {
  const QDir folder(home + "/cserko/rajzok");
  int latest = 0;
  for (const QString& name : folder.entryList({"*.bmp"}, QDir::Files))
    latest = std::max(latest, name.left(name.indexOf('.')).toInt());
  QFile file(folder.filePath(QString::number(latest) + ".bmp"));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no drawing is kept");
  return file.readAll();
}

void check(const QString& home, const Fate& fate) {
  const QByteArray file = latest_file(home);
  const std::string_view bytes(file.constData(), static_cast<std::size_t>(file.size()));
  if (!cserko::read_bitmap(bytes)) throw std::runtime_error("the latest kept drawing does not open");
  if (fate.kept == 0 && !fate.in_write) return;
  const QByteArray hash = QByteArray::number(static_cast<qulonglong>(std::hash<std::string_view>()(bytes)), 16);
  const bool known = hash == fate.last || (fate.in_write && (fate.kept == 0 || hash == fate.last_begun));
  if (!known) throw std::runtime_error("the latest kept drawing is not the one that was kept last");
}

int run(const QString& program, int count) {
  const QTemporaryDir home;
  QDir(home.path()).mkpath("pack/kepek");
  std::mt19937 chance(std::random_device{}());
  int kept = 0;
  int in_write = 0;
  for (int round = 1; round <= count; ++round) {
    // The first one lives long enough to keep anything at all.
    const int lifetime = round == 1 ? 5000 : static_cast<int>(chance() % longest);
    const Fate fate = draw_and_die(program, home.path(), static_cast<unsigned>(chance() % 100000), lifetime);
    check(home.path(), fate);
    kept += fate.kept;
    in_write += fate.in_write ? 1 : 0;
  }
  std::printf("%d kills: %d states were kept, %d kills came while one was written, the last state opened each time\n",
              count, kept, in_write);
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("usage: cserko-kill-drawing PROGRAM COUNT\n", stderr);
    return 2;
  }
  try {
    return run(QString::fromLocal8Bit(argv[1]), std::atoi(argv[2]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
