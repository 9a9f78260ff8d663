// Records and praise pictures.
#include "data/builder/builder.h"
#include "data/pack/picture.h"
#include "data/pack/record.h"
#include "data/pack/table.h"

#include <QDir>

namespace cserko {
namespace {

constexpr int kIconColumn = 7;

void refuse_wrong_number(const BuildPaths& paths, const TableRow& row, int number) {
  if (row.cells[0] == QString::number(number)) return;
  throw PackError(QString("%1:%2: the number must be %3: numbers rise from 0 without a gap")
                      .arg(paths.table)
                      .arg(row.line)
                      .arg(number));
}

} // namespace

QStringList word_table_columns() {
  return {"number", "name", "english", "syllables", "definition", "true", "false", "icon"};
}

void remove_others(const QString& folder, const QStringList& patterns, const QStringList& kept) {
  QDir dir(folder);
  for (const QString& name : dir.entryList(patterns, QDir::Files))
    if (!kept.contains(name) && !dir.remove(name)) throw PackError(dir.filePath(name) + ": cannot be removed");
}

void build_words(const BuildPaths& paths) {
  const IconSet icons(paths.icons);
  QStringList written;
  for (const TableRow& row : read_table(paths.table, word_table_columns())) {
    const int number = static_cast<int>(written.size() / 2);
    refuse_wrong_number(paths, row, number);
    const QStringList& cell = row.cells;
    const QString base = QString::number(number);
    SquarePicture picture(icons.svg(cell[kIconColumn]));
    write_if_changed(paths.output + "/" + base + ".wmf", proved_metafile(picture, cell[kIconColumn]));
    write_if_changed(paths.output + "/" + base + ".wms",
                     record_bytes({cell[1], cell[2], cell[3], cell[4], cell[5], cell[6]}));
    written << base + ".wmf" << base + ".wms";
  }
  remove_others(paths.output, {"*.wmf", "*.wms"}, written);
}

void build_praise_pictures(const BuildPaths& paths) {
  const IconSet icons(paths.icons);
  QStringList written;
  for (const TableRow& row : read_table(paths.table, {"name", "icon"})) {
    const QString file = row.cells[0] + ".wmf";
    SquarePicture picture(icons.svg(row.cells[1]));
    write_if_changed(paths.output + "/" + file, proved_metafile(picture, row.cells[1]));
    written << file;
  }
  remove_others(paths.output, {"*"}, written);
}

} // namespace cserko
