#include "data/pack/record_folders.h"

#include <QDir>

namespace cserko {

QStringList RecordFolders::names(const QString& pattern) const {
  QStringList names;
  for (const QString& folder : folders_) names += QDir(folder).entryList({pattern}, QDir::Files);
  names.removeDuplicates();
  return names;
}

QString RecordFolders::find(const QString& name) const {
  for (const QString& folder : folders_)
    if (QFile::exists(folder + '/' + name)) return folder + '/' + name;
  return {};
}

QString RecordFolders::picture(const QString& base) const {
  for (const QString& folder : folders_)
    for (const char* ending : {".wmf", ".png", ".jpg", ".jpeg"})
      if (QFile::exists(folder + '/' + base + ending)) return folder + '/' + base + ending;
  return {};
}

} // namespace cserko
