// A process that writes files and tells of it, killed in the middle of its work.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>

namespace cserko {

/// What a process told before it died, of one file or of all.
struct Fate {
  int kept = 0;          ///< Writes that were whole.
  bool in_write = false; ///< Killed while something was written.
  QByteArray last;       ///< Hash of what was last told as kept.
  QByteArray last_begun; ///< Hash of what was last told as begun.

  /// Whether a content of that hash may be there, if something was kept or begun at all.
  bool allows(const QByteArray& hash) const { return hash == last || (in_write && hash == last_begun); }
};

struct Life {
  Fate whole;
  std::map<QString, Fate> files; ///< By their paths.
};

/// The hash by which `TellingFiles` tells of the content of a file.
QByteArray told_hash(std::string_view bytes);

/// Starts the program with a seed as its argument and its files in `home`, waits until it has said "begins", and kills
/// it so many ms later. Throws std::runtime_error where it does not begin or ends by itself.
Life work_and_die(const QString& program, const QString& home, unsigned seed, int lifetime);

/// The whole of a program that kills the one of its first argument as often as its second one says. What `run` throws
/// is told, and the exit status is 1.
int kill_from_command_line(int argc, char** argv, int (*run)(const QString& program, int count));

} // namespace cserko
