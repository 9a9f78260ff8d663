// Sheets of all pictures of a folder, for the eye: what no program can tell is whether a child knows the thing again.
#include "data/builder/builder.h"
#include "data/pack/picture.h"
#include "data/pack/record.h"
#include "data/pack/table.h"
#include "platform/qt/metafile/metafile.h"

#include <QDir>
#include <QPainter>
#include <algorithm>

namespace cserko {
namespace {

constexpr int kColumns = 16, kPictureSide = 110, kCellWidth = 124, kCellHeight = 166;
constexpr QRgb kPaper = qRgb(251, 244, 226);

QImage picture_of(const QString& path) {
  if (path.endsWith(".wmf"))
    return render_metafile(read_file(path), QSize(kPictureSide, kPictureSide), PictureFit::Stretch);
  return QImage::fromData(read_file(path), "BMP")
      .convertToFormat(QImage::Format_RGB32)
      .scaled(kPictureSide, kPictureSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

// "12 alma" and "apple" for a record, the file's name for any other picture.
QString label_of(const QString& path) {
  const QFileInfo picture(path);
  const QString text_file = picture.path() + "/" + picture.completeBaseName() + ".wms";
  if (!QFile::exists(text_file)) return picture.completeBaseName();
  const auto record = read_record(read_file(text_file));
  if (!record) throw PackError(text_file + ": not a whole record");
  return QString("%1 %2\n%3").arg(picture.completeBaseName(), record->name, record->english);
}

QStringList pictures_in(const QDir& folder) {
  QStringList names = folder.entryList({"*.wmf", "*.kif"}, QDir::Files, QDir::Name);
  std::stable_sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    return QFileInfo(a).completeBaseName().toInt() < QFileInfo(b).completeBaseName().toInt(); // words count as 0
  });
  return names;
}

} // namespace

void build_contact_sheet(const BuildPaths& paths) {
  const QDir folder(paths.table);
  const QStringList names = pictures_in(folder);
  const int rows = (static_cast<int>(names.size()) + kColumns - 1) / kColumns;
  QImage sheet(kColumns * kCellWidth, std::max(1, rows) * kCellHeight, QImage::Format_RGB32);
  sheet.fill(kPaper);
  QPainter painter(&sheet);
  QFont font("Liberation Sans");
  font.setPixelSize(13);
  painter.setFont(font);
  for (int i = 0; i < names.size(); ++i) {
    const QString path = folder.filePath(names[i]);
    const QImage image = picture_of(path);
    if (image.isNull()) throw PackError(path + ": cannot be shown");
    const QRect cell(i % kColumns * kCellWidth, i / kColumns * kCellHeight, kCellWidth, kCellHeight);
    painter.drawImage(cell.left() + (kCellWidth - kPictureSide) / 2, cell.top() + 4, image);
    painter.drawText(cell.adjusted(1, kPictureSide + 6, -1, 0), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     label_of(path));
  }
  painter.end();
  QDir().mkpath(QFileInfo(paths.output).path());
  if (!sheet.save(paths.output)) throw PackError(paths.output + ": cannot be written");
}

} // namespace cserko
