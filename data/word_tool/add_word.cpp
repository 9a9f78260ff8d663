#include "data/word_tool/add_word.h"

#include "data/pack/picture.h"
#include "data/pack/record_checks.h"
#include "data/pack/table.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <algorithm>

namespace cserko {
namespace {

constexpr int kLongestSide =
    1200; // pixels of a photo or of a drawn SVG: sharp on every screen, and no burden on memory
constexpr int kLargestSide = 20000; // pixels of a photo that is opened at all
constexpr int kProbeSide = 64;      // pixels, enough to see whether a metafile draws anything

struct PictureFile {
  QByteArray bytes;
  QString ending;
};

PictureFile from_metafile(const QByteArray& bytes) {
  if (draw_metafile(bytes, kProbeSide).isNull()) throw PackError("a WMF kép nem rajzolható ki.");
  return {bytes, ".wmf"};
}

QByteArray encoded(const QImage& image, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, format)) throw PackError("a kép nem alakítható át.");
  return buffer.data();
}

// Solid fills become a metafile, as the pack's own pictures do; what a metafile cannot hold is drawn into pixels.
PictureFile from_svg(const QByteArray& svg) {
  try {
    SquarePicture picture(svg);
    return {proved_metafile(picture, "kép"), ".wmf"};
  } catch (const PackError&) {
    QSvgRenderer renderer(svg);
    if (!renderer.isValid() || renderer.viewBoxF().isEmpty()) throw PackError("az SVG kép nem olvasható.");
    QImage image(renderer.viewBoxF().size().scaled(kLongestSide, kLongestSide, Qt::KeepAspectRatio).toSize(),
                 QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return {encoded(image, "PNG"), ".png"};
  }
}

PictureFile from_pixels(const QByteArray& bytes, const char* format, const QString& ending) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer, format);
  reader.setAutoTransform(true); // photos are often stored lying on their side
  const QSize size = reader.size();
  if (size.isEmpty()) throw PackError("a kép nem olvasható.");
  const int longer = std::max(size.width(), size.height());
  if (longer > kLargestSide) throw PackError("a kép túl nagy.");
  if (longer > kLongestSide) reader.setScaledSize(size.scaled(kLongestSide, kLongestSide, Qt::KeepAspectRatio));
  const QImage image = reader.read();
  if (image.isNull()) throw PackError("a kép nem olvasható.");
  const bool as_it_is = longer <= kLongestSide && reader.transformation() == QImageIOHandler::TransformationNone;
  return {as_it_is ? bytes : encoded(image, format), ending};
}

PictureFile read_picture(const QString& path) {
  const QByteArray bytes = read_file(path);
  const QString ending = QFileInfo(path).suffix().toLower();
  if (ending == "wmf") return from_metafile(bytes);
  if (ending == "svg") return from_svg(bytes);
  if (ending == "png") return from_pixels(bytes, "png", ".png");
  if (ending == "jpg" || ending == "jpeg") return from_pixels(bytes, "jpeg", ".jpg");
  throw PackError("a kép SVG, PNG, JPEG vagy WMF legyen.");
}

// Files of a folder whose base name is that number, whatever their endings and their case.
bool taken(const QDir& folder, int number) {
  return !folder.entryList({QString("%1.*").arg(number)}, QDir::Files).isEmpty();
}

int first_free_number(const QDir& folder) {
  int number = 0;
  while (taken(folder, number)) ++number;
  return number;
}

QStringList twin_faults(const QDir& folder, const WordRecord& record) {
  QStringList faults;
  for (const QString& name : folder.entryList({"*.wms"}, QDir::Files)) {
    const auto other = read_record(read_file(folder.filePath(name)));
    if (!other) continue;
    if (other->name.compare(record.name, Qt::CaseInsensitive) == 0)
      faults << QString("Ez a szó már megvan: %1 (%2).").arg(record.name, name);
    else if (other->definition == record.definition)
      faults << QString("Ez a meghatározás már megvan: %1 (%2).").arg(record.definition, name);
  }
  return faults;
}

void write_new(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) throw PackError(path + ": " + file.errorString());
  const bool written = file.write(bytes) == bytes.size() && file.flush();
  file.close();
  if (written) return;
  file.remove();
  throw PackError(path + ": nem írható, talán megtelt a lemez.");
}

} // namespace

AddedWord add_word(const QString& folder_path, const WordRecord& record, const QString& picture_path) {
  AddedWord result;
  const QDir folder(folder_path);
  if (!folder.exists()) return {{folder_path + ": nincs ilyen mappa."}, {}, {}};
  try {
    result.faults = record_faults(record) + twin_faults(folder, record);
    if (!result.faults.isEmpty()) return result;
    const PictureFile picture = read_picture(picture_path);
    const QString base = folder.filePath(QString::number(first_free_number(folder)));
    write_new(base + picture.ending, picture.bytes);
    result.picture = base + picture.ending;
    write_new(base + ".wms", record_bytes(record));
    result.text_file = base + ".wms";
  } catch (const PackError& error) {
    // A picture without its text would keep its number taken for ever.
    if (!result.picture.isEmpty()) QFile::remove(result.picture);
    return {{QFileInfo(picture_path).fileName() + ": " + error.what()}, {}, {}};
  }
  return result;
}

} // namespace cserko
