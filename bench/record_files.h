// Records of a test as real files.
#pragma once

#include "platform/headless/memory_files.h"

#include <QDir>
#include <QFile>

namespace cserko {

/// Writes the records that stand in memory into the folder of the records of a pack.
inline void write_record_files(const MemoryFiles& memory, const QString& pack) {
  const QDir folder(pack + "/kepek");
  if (!folder.mkpath(".")) qFatal("the temporary folder cannot be made");
  for (const Text& path : memory.all()) {
    QFile file(folder.filePath(QString::fromStdU16String(path.substr(path.rfind(u'\\') + 1))));
    const std::string bytes = memory.read(path).value_or("");
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0)
      qFatal("the temporary files cannot be written");
  }
}

} // namespace cserko
