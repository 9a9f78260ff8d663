#include "picture_loader.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <utility>

namespace cserko {

namespace {

constexpr qint64 kMostFileBytes = 32LL * 1024 * 1024;
constexpr qint64 kMostPixels = 40'000'000;
constexpr int kMostSide = 8192;

/// Name of the image format that a file begins like; empty for anything else, which is tried as a metafile.
QByteArray raster_format(const QByteArray& bytes) {
  if (bytes.startsWith("\x89PNG")) return "png";
  if (bytes.startsWith("\xFF\xD8\xFF")) return "jpg";
  if (bytes.startsWith("BM")) return "bmp";
  return {};
}

QImage read_raster(QByteArray bytes, const QByteArray& format) {
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (!size.isValid() || static_cast<qint64>(size.width()) * size.height() > kMostPixels) return {};
  const QImage image = reader.read();
  return image.isNull() ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

LoadedPicture::LoadedPicture(Metafile metafile)
    : metafile_(std::move(metafile)), natural_size_(metafile_->natural_size().toSize().expandedTo({1, 1})) {}

LoadedPicture::LoadedPicture(QImage image) : raster_(std::move(image)), natural_size_(raster_.size()) {}

QImage LoadedPicture::image(QSize box) const {
  if (box.isEmpty()) return {};
  return stretched(fitted_size(metafile_ ? metafile_->natural_size() : QSizeF(natural_size_), box));
}

QImage LoadedPicture::stretched(QSize size) const {
  if (metafile_) return metafile_->render(size, PictureFit::Stretch);
  if (size.isEmpty() || size.width() > kMostSide || size.height() > kMostSide) return {};
  if (static_cast<qint64>(size.width()) * size.height() > kMostPixels) return {};
  return raster_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

qsizetype LoadedPicture::bytes() const { return metafile_ ? metafile_->bytes() : raster_.sizeInBytes(); }

QString picture_file(const QString& path) {
  const QFileInfo info(path);
  if (info.isFile()) return path;
  if (info.suffix().compare(QLatin1String("wmf"), Qt::CaseInsensitive) != 0) return {};
  const QString base = path.left(path.size() - info.suffix().size());
  for (const char* ending : {"png", "jpg", "jpeg", "PNG", "JPG", "JPEG"}) {
    QString other = base + QLatin1String(ending);
    if (QFileInfo(other).isFile()) return other;
  }
  return {};
}

std::shared_ptr<const LoadedPicture> load_picture(const QString& path) {
  QFile file(picture_file(path));
  if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly) || file.size() > kMostFileBytes) return nullptr;
  // As much as there is: what is read stays with a metafile, and room for more would stay with it too.
  return read_picture(file.read(file.size()));
}

std::shared_ptr<const LoadedPicture> read_picture(const QByteArray& bytes) {
  const QByteArray format = raster_format(bytes);
  if (format.isEmpty()) {
    std::optional<Metafile> metafile = Metafile::parse(bytes);
    return metafile ? std::make_shared<LoadedPicture>(*std::move(metafile)) : nullptr;
  }
  QImage image = read_raster(bytes, format);
  return image.isNull() ? nullptr : std::make_shared<LoadedPicture>(std::move(image));
}

std::shared_ptr<const LoadedPicture> PictureCache::picture(const QString& path) {
  const std::optional<Stamp> stamp = stamp_of(path);
  if (!stamp) return nullptr;
  const Key key{path, QSize()};
  if (const Entry* entry = find(key, *stamp)) return entry->picture;
  std::shared_ptr<const LoadedPicture> picture = load_picture(stamp->file);
  if (picture) keep({key, *stamp, picture, {}, picture->bytes()});
  return picture;
}

QImage PictureCache::image(const QString& path, QSize box) {
  const std::optional<Stamp> stamp = stamp_of(path);
  if (!stamp || box.isEmpty()) return {};
  const Key key{path, box};
  if (const Entry* entry = find(key, *stamp)) return entry->image;
  const std::shared_ptr<const LoadedPicture> source = picture(path);
  if (!source) return {};
  QImage image = source->image(box);
  if (!image.isNull()) keep({key, *stamp, nullptr, image, image.sizeInBytes()});
  return image;
}

void PictureCache::clear() {
  entries_.clear();
  index_.clear();
  used_ = 0;
}

std::optional<PictureCache::Stamp> PictureCache::stamp_of(const QString& path) {
  const QString file = picture_file(path);
  if (file.isEmpty()) return std::nullopt;
  const QFileInfo info(file);
  return Stamp{file, info.lastModified().toMSecsSinceEpoch(), info.size()};
}

const PictureCache::Entry* PictureCache::find(const Key& key, const Stamp& stamp) {
  const auto found = index_.constFind(key);
  if (found == index_.constEnd()) return nullptr;
  const auto entry = *found;
  if (entry->stamp != stamp) {
    drop(entry);
    return nullptr;
  }
  entries_.splice(entries_.begin(), entries_, entry);
  return &*entry;
}

void PictureCache::keep(Entry entry) {
  if (entry.bytes > limit_) return;
  used_ += entry.bytes;
  while (used_ > limit_ && !entries_.empty()) drop(std::prev(entries_.end()));
  entries_.push_front(std::move(entry));
  index_.insert(entries_.front().key, entries_.begin());
}

void PictureCache::drop(std::list<Entry>::iterator entry) {
  used_ -= entry->bytes;
  index_.remove(entry->key);
  entries_.erase(entry);
}

} // namespace cserko
