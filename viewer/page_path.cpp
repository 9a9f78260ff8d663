#include "viewer/page_path.h"

#include <QDir>
#include <QFileInfo>

namespace cserko {

QString page_path(const QStringList& words) {
  const QString path = words.join(' ');
  const QFileInfo named(path);
  if (path.isEmpty() || named.exists()) return path;
  const QDir folder = named.absoluteDir();
  for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
    if (name.simplified() == named.fileName().simplified()) return folder.filePath(name);
  }
  return path;
}

} // namespace cserko
