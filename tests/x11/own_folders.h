// Folders that a program may write to as one who looks after it would.
#pragma once

#include "platform/qt/files.h"

#include <QTemporaryDir>
#include <filesystem>
#include <stdexcept>

namespace cserko {

/// Lets this process read a copy of the data pack and write to a user's folder, both of its own; an application object
/// must be there. Throws std::runtime_error where there is no pack, std::filesystem::filesystem_error where it cannot
/// be copied.
inline void move_in(const QTemporaryDir& home) {
  const QString pack = QtFiles::find_pack();
  if (pack.isEmpty()) throw std::runtime_error("there is no data pack");
  std::filesystem::copy(pack.toStdU16String(), home.filePath("pack").toStdU16String(),
                        std::filesystem::copy_options::recursive);
  qputenv("CSERKO_PACK_DIR", home.filePath("pack").toUtf8());
  qputenv("CSERKO_USER_DIR", home.filePath("user").toUtf8());
}

} // namespace cserko
