#include "data/pack/table.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace cserko {

QByteArray read_file(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw PackError(path + ": " + file.errorString());
  return file.readAll();
}

void write_if_changed(const QString& path, const QByteArray& bytes) {
  if (QFile present(path); present.open(QIODevice::ReadOnly) && present.readAll() == bytes) return;
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  if (!written) throw PackError(path + ": " + file.errorString());
}

std::vector<TableRow> read_table(const QString& path, const QStringList& columns) {
  const QStringList lines = QString::fromUtf8(read_file(path)).split('\n');
  std::vector<TableRow> rows;
  bool header_seen = false;
  for (int i = 0; i < lines.size(); ++i) {
    QString line = lines[i].normalized(QString::NormalizationForm_C);
    if (line.endsWith('\r')) line.chop(1);
    if (line.isEmpty() || line.startsWith('#')) continue;
    const QStringList cells = line.split('\t');
    if (!header_seen) {
      if (cells != columns)
        throw PackError(QString("%1: the first line must name the columns %2").arg(path, columns.join(", ")));
      header_seen = true;
      continue;
    }
    if (cells.size() != columns.size())
      throw PackError(
          QString("%1:%2: %3 cells, %4 are needed").arg(path).arg(i + 1).arg(cells.size()).arg(columns.size()));
    rows.push_back({i + 1, cells});
  }
  if (!header_seen) throw PackError(path + ": the table is empty");
  return rows;
}

} // namespace cserko
