#include "data/checker/exceptions.h"

#include "data/pack/table.h"

namespace cserko {

Exceptions::Exceptions(const QString& path, const QStringList& columns) : path_(path) {
  for (const TableRow& row : read_table(path, columns + QStringList{"reason"}))
    reasons_[row.cells.mid(0, columns.size()).join('\t')] = row.cells.last();
}

bool Exceptions::excuse(const QStringList& cells) {
  const QString key = cells.join('\t');
  if (!reasons_.count(key)) return false;
  used_.insert(key);
  return true;
}

std::vector<QStringList> Exceptions::rows() const {
  std::vector<QStringList> rows;
  for (const auto& [key, reason] : reasons_) rows.push_back(key.split('\t'));
  return rows;
}

QStringList Exceptions::faults() const {
  QStringList faults;
  for (const auto& [key, reason] : reasons_) {
    if (!used_.contains(key)) faults << QString("%1: \"%2\" excuses nothing and can go").arg(path_, key);
    if (reason.trimmed().isEmpty()) faults << QString("%1: \"%2\" has no reason").arg(path_, key);
  }
  return faults;
}

QString Exceptions::as_rows() const {
  QString rows;
  for (const auto& [key, reason] : reasons_) rows += "| " + QString(key).replace('\t', " | ") + " | " + reason + " |\n";
  return rows;
}

} // namespace cserko
