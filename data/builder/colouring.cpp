// Colouring pages: bitmaps of outlines under the ending that the drawing reward lists.
#include "data/builder/builder.h"
#include "data/builder/outline_page.h"
#include "data/pack/picture.h"
#include "data/pack/table.h"

#include <QBuffer>

namespace cserko {
namespace {

constexpr size_t kFewestAreas = 4; // the background and three to paint: fewer is no colouring page

QByteArray page_bytes(const IconSet& icons, const QString& icon) {
  SquarePicture picture(icons.svg(icon));
  const QImage page = outline_page(picture.shapes());
  const std::vector<int> areas = white_areas(page);
  if (areas.size() < kFewestAreas) throw PackError(QString("%1: only %2 areas to paint").arg(icon).arg(areas.size()));
  if (areas.back() < kSmallestArea) throw PackError(icon + ": an area is too small to paint");
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!page.save(&buffer, "BMP")) throw PackError(icon + ": the page cannot be written as a bitmap");
  return buffer.data();
}

} // namespace

void build_colouring(const BuildPaths& paths) {
  const IconSet icons(paths.icons);
  QStringList written;
  for (const TableRow& row : read_table(paths.table, {"icon"})) {
    const QString file = QString::number(written.size()) + ".kif";
    write_if_changed(paths.output + "/" + file, page_bytes(icons, row.cells[0]));
    written << file;
  }
  remove_others(paths.output, {"*.kif"}, written);
}

} // namespace cserko
