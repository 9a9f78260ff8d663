// Kills somebody who changes settings at random moments, so many times, always on the same disk. Each time every file
// that was ever written must be there, as it was written last or as it was just being written: never short, never
// empty.
//
// Usage: cserko-kill-settings PROGRAM COUNT
#include "platform/qt/files.h"
#include "tests/kills/kill.h"

#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <random>
#include <stdexcept>

namespace {

using namespace cserko;

constexpr int longest = 60; // ms that it writes

// Puts what this life has told over what earlier ones told.
void learn(std::map<QString, Fate>& known, const Life& life) {
  for (const auto& [path, fate] : life.files) {
    Fate& file = known[path];
    if (fate.kept > 0) file.last = fate.last;
    file.kept += fate.kept;
    file.in_write = fate.in_write;
    file.last_begun = fate.last_begun;
  }
}

void check(const QtFiles& files, std::map<QString, Fate>& known) {
  for (auto& [path, fate] : known) {
    const auto bytes = files.read(path.toStdU16String());
    if (!bytes && fate.kept == 0) continue; // killed while it was written for the first time
    if (!bytes) throw std::runtime_error(path.toStdString() + " is gone");
    const QByteArray hash = told_hash(*bytes);
    if (!fate.allows(hash)) throw std::runtime_error(path.toStdString() + " is not as it was written");
    fate.last = hash;
    fate.kept = std::max(fate.kept, 1);
    fate.in_write = false;
  }
}

int run(const QString& program, int count) {
  const QTemporaryDir home;
  QDir(home.path()).mkpath("pack/kepek");
  const QtFiles files(home.filePath("pack"), home.path());
  std::mt19937 chance(std::random_device{}());
  std::map<QString, Fate> known;
  int writes = 0;
  int in_write = 0;
  for (int round = 1; round <= count; ++round) {
    const Life life = work_and_die(program, home.path(), static_cast<unsigned>(chance() % 100000),
                                   static_cast<int>(chance() % longest));
    learn(known, life);
    check(files, known);
    writes += life.whole.kept;
    in_write += life.whole.in_write ? 1 : 0;
  }
  if (writes == 0) throw std::runtime_error("nothing was ever written");
  std::printf("%d kills: %d writes of %zu files were whole, %d kills came in the middle of one, no file was spoilt\n",
              count, writes, known.size(), in_write);
  return 0;
}

} // namespace

int main(int argc, char** argv) { return cserko::kill_from_command_line(argc, argv, run); }
