// Direction pictures: one motif, turned or mirrored until it points where its name says.
#include "data/builder/builder.h"
#include "data/pack/picture.h"
#include "data/pack/record.h"
#include "data/pack/table.h"

#include <array>

namespace cserko {
namespace {

constexpr std::array<const char*, 4> kDirections{"bal", "fel", "jobb", "le"};

// "turn90" turns clockwise by so many degrees, "mirror" swaps left and right, "flip" top and bottom; "+" joins steps.
QTransform turn_of(const QString& steps) {
  QTransform turn;
  for (const QString& step : steps.split('+', Qt::SkipEmptyParts)) {
    bool number = false;
    if (step == "mirror")
      turn = turn * QTransform::fromScale(-1, 1);
    else if (step == "flip")
      turn = turn * QTransform::fromScale(1, -1);
    else if (step.startsWith("turn"))
      turn = turn * QTransform().rotate(step.mid(4).toDouble(&number));
    if (step != "mirror" && step != "flip" && !number) throw PackError(step + ": not a step of turning");
  }
  return turn;
}

} // namespace

void build_directions(const BuildPaths& paths) {
  const IconSet icons(paths.icons);
  QStringList written;
  for (const TableRow& row : read_table(paths.table, {"name", "question", "bal", "fel", "jobb", "le"})) {
    const QString& motif = row.cells[0];
    const QString& question = row.cells[1];
    if (question.contains('?')) throw PackError(motif + ": the program adds the question mark itself");
    write_if_changed(paths.output + "/" + motif + ".swm", to_code_page(question) + "\r\n");
    written << motif + ".swm";
    for (size_t direction = 0; direction < kDirections.size(); ++direction) {
      const QString cell = row.cells[static_cast<int>(direction) + 2]; // "icon" or "icon:steps", "-" for none
      if (cell == "-") continue;
      const QString file = motif + "_" + kDirections[direction] + ".wmf";
      SquarePicture picture(icons.svg(cell.section(':', 0, 0)), turn_of(cell.section(':', 1)));
      write_if_changed(paths.output + "/" + file, proved_metafile(picture, file));
      written << file;
    }
  }
  remove_others(paths.output, {"*"}, written);
}

} // namespace cserko
