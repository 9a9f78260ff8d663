// Kills somebody who draws at random moments, so many times, always on the same disk. Each time the latest drawing that
// is kept must open and be the state that was kept last, or the one that was just being kept.
//
// Usage: cserko-kill-drawing PROGRAM COUNT
#include "platform/bitmap.h"
#include "tests/kills/kill.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <random>
#include <stdexcept>

namespace {

using namespace cserko;

constexpr int longest = 400; // ms that it draws

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
  if (!read_bitmap(bytes)) throw std::runtime_error("the latest kept drawing does not open");
  if (fate.kept == 0 && !fate.in_write) return;
  // What the first write was to replace is of the life before.
  if (!fate.allows(told_hash(bytes)) && fate.kept > 0)
    throw std::runtime_error("the latest kept drawing is not the one that was kept last");
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
    const Fate fate = work_and_die(program, home.path(), static_cast<unsigned>(chance() % 100000), lifetime).whole;
    check(home.path(), fate);
    kept += fate.kept;
    in_write += fate.in_write ? 1 : 0;
  }
  std::printf("%d kills: %d states were kept, %d kills came while one was written, the last state opened each time\n",
              count, kept, in_write);
  return 0;
}

} // namespace

int main(int argc, char** argv) { return cserko::kill_from_command_line(argc, argv, run); }
