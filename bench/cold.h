// Files as they are when the computer has just been started.
#pragma once

#include <QFile>
#include <QString>
#if __has_include(<fcntl.h>)
#include <fcntl.h>
#endif

namespace cserko {

/// Asks the system to drop a file from its memory, so that it must be read from the disk again. Does nothing where the
/// system knows no such request.
inline void forget([[maybe_unused]] const QString& path) {
#ifdef POSIX_FADV_DONTNEED
  QFile file(path);
  if (file.open(QIODevice::ReadOnly)) posix_fadvise(file.handle(), 0, 0, POSIX_FADV_DONTNEED);
#endif
}

} // namespace cserko
