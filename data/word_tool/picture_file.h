// A user's picture on its way into a folder of records.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace cserko {

/// Pixels of the longer side of a photo or of a drawn SVG: sharp on every screen, and no burden on memory.
inline constexpr int kLongestPictureSide = 1200;

/// What is written for a picture.
struct PictureFile {
  QByteArray bytes;
  QString ending;
};

/// The image in a format of Qt's. Throws PackError when it cannot be written so.
QByteArray encoded_picture(const QImage& image, const char* format);

/// The kinds of pictures that can be read on this system, as people read them: "SVG, PNG, JPEG vagy WMF". The first one
/// is the best for a word.
QString picture_kinds();

/// An SVG of solid fills as a metafile, any other as a PNG picture. Throws PackError when it cannot be read, or where
/// this system has no reader for SVG.
PictureFile picture_from_svg(const QByteArray& svg);

} // namespace cserko
