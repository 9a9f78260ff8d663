// Where a reader of records looks for their files.
#pragma once

#include <QString>
#include <QStringList>

namespace cserko {

/// Folders of records that are read as one: what an earlier folder has hides a file of the same name in a later one, as
/// it does in the program. New files go to the first.
class RecordFolders {
 public:
  explicit RecordFolders(const QStringList& folders) : folders_(folders) {}

  /// The folder that new files go to.
  QString first() const { return folders_.isEmpty() ? QString() : folders_.first(); }

  /// Names of the files that match a pattern such as "*.wms", each once.
  QStringList names(const QString& pattern) const;

  /// The path of the file with that name; empty when no folder has it.
  QString find(const QString& name) const;

  /// The picture of the record with that base name: a metafile, or a picture of another kind that the program takes
  /// where there is none. Empty when no folder has one.
  QString picture(const QString& base) const;

 private:
  QStringList folders_;
};

} // namespace cserko
