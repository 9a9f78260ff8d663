// The tables of the data pack: UTF-8 text, one row a line, cells between tabs, the first line names the columns.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace cserko {

/// What is wrong with a table, a picture or a file of the pack, told to the person who edits it.
class PackError : public std::exception {
 public:
  explicit PackError(const QString& message) : message_(message.toUtf8()) {}
  const char* what() const noexcept override { return message_.constData(); }

 private:
  QByteArray message_;
};

/// One row of a table with the line on which it stands, for messages.
struct TableRow {
  int line = 0;
  QStringList cells;
};

/// Reads a table that must have exactly these columns. Empty lines and lines that begin with '#' are passed over.
/// Throws PackError when the file cannot be read, the columns differ or a row has another number of cells.
std::vector<TableRow> read_table(const QString& path, const QStringList& columns);

/// Reads a whole file. Throws PackError when it cannot be read.
QByteArray read_file(const QString& path);

/// Writes a file, through a temporary one, unless it already holds these bytes; makes the folder when it is missing.
/// Throws PackError when it cannot be written.
void write_if_changed(const QString& path, const QByteArray& bytes);

} // namespace cserko
