// A picture file as the suite holds it.
#pragma once

#include "platform/elements.h"
#include "platform/qt/picture_loader.h"

namespace cserko {

class QtPicture : public Picture {
 public:
  QtPicture(Text path, QString file, PictureCache& cache, Size natural_size)
      : path_(std::move(path)), file_(std::move(file)), cache_(cache), natural_size_(natural_size) {}

  const Text& path() const override { return path_; }
  Size natural_size() const override { return natural_size_; }
  /// The picture as large as fits into a box of device pixels; null if the file is gone since.
  QImage image(QSize box) const { return cache_.image(file_, box); }

 private:
  Text path_;
  QString file_;
  PictureCache& cache_;
  Size natural_size_;
};

} // namespace cserko
