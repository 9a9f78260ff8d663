#include "data/word_tool/add_word.h"

#include "data/pack/drawn_metafile.h"
#include "data/pack/record_checks.h"
#include "data/pack/record_folders.h"
#include "data/pack/table.h"
#include "data/word_tool/picture_file.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QSet>
#include <algorithm>

namespace cserko {
namespace {

constexpr int kLargestSide = 20000; // pixels of a photo that is opened at all
constexpr int kProbeSide = 64;      // pixels, enough to see whether a metafile draws anything

PictureFile from_metafile(const QByteArray& bytes) {
  if (draw_metafile(bytes, kProbeSide).isNull()) throw PackError("a WMF kép nem rajzolható ki.");
  return {bytes, ".wmf"};
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
  if (longer > kLongestPictureSide)
    reader.setScaledSize(size.scaled(kLongestPictureSide, kLongestPictureSide, Qt::KeepAspectRatio));
  const QImage image = reader.read();
  if (image.isNull()) throw PackError("a kép nem olvasható.");
  const bool as_it_is = longer <= kLongestPictureSide && reader.transformation() == QImageIOHandler::TransformationNone;
  return {as_it_is ? bytes : encoded_picture(image, format), ending};
}

QByteArray bytes_of(const QString& path) {
  QFile file(path);
  if (!file.exists()) throw PackError("nincs ilyen kép.");
  if (!file.open(QIODevice::ReadOnly)) throw PackError("a kép nem olvasható.");
  return file.readAll();
}

PictureFile read_picture(const QString& path) {
  const QByteArray bytes = bytes_of(path);
  const QString ending = QFileInfo(path).suffix().toLower();
  if (ending == "wmf") return from_metafile(bytes);
  if (ending == "svg") return picture_from_svg(bytes);
  if (ending == "png") return from_pixels(bytes, "png", ".png");
  if (ending == "jpg" || ending == "jpeg") return from_pixels(bytes, "jpeg", ".jpg");
  throw PackError(QStringLiteral("a kép %1 legyen.").arg(picture_kinds()));
}

// The first number that no file has as its base name, whatever its ending and its case: behind the pack's.
int first_free_number(const RecordFolders& folders) {
  QSet<QString> taken;
  for (const QString& name : folders.names("*")) taken << name.section('.', 0, 0);
  int number = 0;
  while (taken.contains(QString::number(number))) ++number;
  return number;
}

// The word list has one word a line, in small letters.
bool in_word_list(const QByteArray& list, const QString& name) {
  const QByteArray line = to_code_page(name.toLower()) + "\r\n";
  return list.startsWith(line) || list.contains("\n" + line);
}

void look_at_twins(const RecordFolders& folders, const WordRecord& record, Review& review) {
  for (const QString& name : folders.names("*.wms")) {
    const auto other = read_record(read_file(folders.find(name)));
    if (!other) continue;
    if (other->name.compare(record.name, Qt::CaseInsensitive) == 0)
      review.faults << QString("Ez a szó már megvan: %1 (%2).").arg(record.name, name);
    else if (other->definition == record.definition)
      review.remarks << QString("Ez a meghatározás már megvan: %1 (%2).").arg(record.definition, name);
  }
}

Review review_of(const RecordFolders& folders, const WordRecord& record, const QByteArray& word_list) {
  Review review{record_faults(record), {}};
  if (!review.faults.isEmpty()) return review;
  review.remarks = style_remarks(record);
  look_at_twins(folders, record, review);
  if (!word_list.isEmpty() && !in_word_list(word_list, record.name))
    review.remarks << QString("A szó nincs a program szójegyzékében, jól van írva? %1").arg(record.name);
  return review;
}

void write_new(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) throw PackError(path + ": nem hozható létre.");
  const bool written = file.write(bytes) == bytes.size() && file.flush();
  file.close();
  if (written) return;
  file.remove();
  throw PackError(path + ": nem írható, talán megtelt a lemez.");
}

} // namespace

QByteArray encoded_picture(const QImage& image, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, format)) throw PackError("a kép nem alakítható át.");
  return buffer.data();
}

AddedWord add_word(const QStringList& folder_paths, const WordRecord& record, const QString& picture_path,
                   const WordRules& rules) {
  AddedWord result;
  const RecordFolders folders(folder_paths);
  const QDir folder(folders.first());
  if (folder_paths.isEmpty() || !folder.exists()) return {{{folders.first() + ": nincs ilyen mappa."}, {}}, {}, {}};
  try {
    result.review = review_of(folders, record, rules.word_list);
    if (!result.review.faults.isEmpty() || (rules.strict && !result.review.remarks.isEmpty())) return result;
    const PictureFile picture = read_picture(picture_path);
    const QString base = folder.filePath(QString::number(first_free_number(folders)));
    write_new(base + picture.ending, picture.bytes);
    result.picture = base + picture.ending;
    write_new(base + ".wms", record_bytes(record));
    result.text_file = base + ".wms";
  } catch (const PackError& error) {
    // A picture without its text would keep its number taken for ever.
    if (!result.picture.isEmpty()) QFile::remove(result.picture);
    return {{{QFileInfo(picture_path).fileName() + ": " + error.what()}, result.review.remarks}, {}, {}};
  }
  return result;
}

} // namespace cserko
