#pragma once

#include "platform/qt/metafile/metafile.h"

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>
#include <list>
#include <memory>
#include <optional>

namespace cserko {

/// A picture read from a file: a metafile, or a bitmap, PNG or JPEG. Never changes, needs no painter to be kept.
class LoadedPicture {
 public:
  explicit LoadedPicture(Metafile metafile);
  explicit LoadedPicture(QImage image);

  /// Own size in pixels at 96 dots an inch, neither side below 1.
  QSize natural_size() const { return natural_size_; }
  /// The picture as large as fits into a box of device pixels, its aspect kept. Null when the box is empty or too large
  /// (see Metafile::render).
  QImage image(QSize box) const;
  /// The picture over the whole of a size in device pixels, whatever becomes of its aspect.
  QImage stretched(QSize size) const;
  /// Memory held, in bytes.
  qsizetype bytes() const;

 private:
  std::optional<Metafile> metafile_;
  QImage raster_;
  QSize natural_size_;
};

/// The file that is read for a picture path: the path itself, or, where a `.wmf` does not exist, the file of the same
/// base name that ends in .png, .jpg or .jpeg. Empty when there is none.
QString picture_file(const QString& path);

/// Reads a picture. The content tells what it is, not the name. Null when there is no such file, when it cannot be
/// drawn, or when it is above the limits (32 MB, 40 million pixels).
std::shared_ptr<const LoadedPicture> load_picture(const QString& path);
/// The same for what a file holds.
std::shared_ptr<const LoadedPicture> read_picture(const QByteArray& bytes);

/// Pictures and their drawn images by path, the least recently used given up first. A file that has changed (time or
/// size) is read again. For use on one thread.
class PictureCache {
 public:
  static constexpr qsizetype kDefaultLimit = 24LL * 1024 * 1024;
  /// `limit` in bytes. What alone is larger is handed out but not kept.
  explicit PictureCache(qsizetype limit = kDefaultLimit) : limit_(limit) {}

  /// Null on failure, like load_picture.
  std::shared_ptr<const LoadedPicture> picture(const QString& path);
  /// The picture as large as fits into `box` device pixels; a null image on failure.
  QImage image(const QString& path, QSize box);

  qsizetype bytes() const { return used_; }
  qsizetype limit() const { return limit_; }
  void clear();

 private:
  struct Key {
    QString path;
    QSize box; ///< invalid for the picture itself
    bool operator==(const Key&) const = default;
    friend size_t qHash(const Key& key, size_t seed) {
      return qHashMulti(seed, key.path, key.box.width(), key.box.height());
    }
  };
  /// What tells one state of a file from the next.
  struct Stamp {
    QString file;
    qint64 modified = 0, size = 0;
    bool operator==(const Stamp&) const = default;
  };
  struct Entry {
    Key key;
    Stamp stamp;
    std::shared_ptr<const LoadedPicture> picture;
    QImage image;
    qsizetype bytes = 0;
  };

  static std::optional<Stamp> stamp_of(const QString& path);
  /// The kept entry brought to the front; null if there is none or the file has changed since.
  const Entry* find(const Key& key, const Stamp& stamp);
  void keep(Entry entry);
  void drop(std::list<Entry>::iterator entry);

  qsizetype limit_;
  qsizetype used_ = 0;
  std::list<Entry> entries_; ///< most recently used first
  QHash<Key, std::list<Entry>::iterator> index_;
};

} // namespace cserko
