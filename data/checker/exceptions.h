// Reviewed exceptions: what a dictionary does not know or a rule does not foresee, each with its reason.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <map>
#include <vector>

namespace cserko {

/// One list: a table whose last column is the reason. An entry that excuses nothing is a fault of the list.
class Exceptions {
 public:
  /// Reads `columns` and "reason" from the table. Throws PackError.
  Exceptions(const QString& path, const QStringList& columns);

  /// Whether the list excuses these cells; notes that the entry is needed.
  bool excuse(const QStringList& cells);

  /// The cells of all entries without their reasons.
  std::vector<QStringList> rows() const;

  /// Entries that excused nothing so far, or have no reason.
  QStringList faults() const;

  /// All entries with their reasons, as rows of a Markdown table.
  QString as_rows() const;

 private:
  QString path_;
  std::map<QString, QString> reasons_; // cells joined by tabs
  QSet<QString> used_;
};

} // namespace cserko
