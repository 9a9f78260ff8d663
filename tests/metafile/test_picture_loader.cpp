#include "drawing.h"
#include "platform/qt/picture_loader.h"

#include <QFile>
#include <QTemporaryDir>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace cserko::test {
namespace {

/// A folder of picture files that goes away with the test.
class Pictures : public testing::Test {
 protected:
  QString path(const QString& name) const { return folder_.filePath(name); }
  QString write(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return path(name);
  }
  QString write_metafile(const QString& name, quint32 color) const {
    return write(name, Wmf().window(200, 100).fills(color).rectangle(0, 0, 200, 100).file());
  }
  QString write_image(const QString& name, const char* format, const QColor& color, QSize size = {40, 20}) const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    EXPECT_TRUE(image.save(path(name), format));
    return path(name);
  }

 private:
  QTemporaryDir folder_;
};

} // namespace

TEST_F(Pictures, AllKindsAreRead) {
  const QStringList files = {write_metafile("a.wmf", kRed), write_image("b.bmp", "BMP", Qt::red),
                             write_image("c.png", "PNG", Qt::red), write_image("d.jpg", "JPG", Qt::red)};
  for (const QString& file : files) {
    const auto picture = load_picture(file);
    ASSERT_TRUE(picture) << file.toStdString();
    EXPECT_EQ(picture->natural_size().width(), picture->natural_size().height() * 2);
    const QImage image = picture->image({100, 100});
    EXPECT_EQ(image.size(), QSize(100, 50)) << "aspect kept";
    EXPECT_TRUE(has_color(image, 50, 25, kRed)) << file.toStdString();
    EXPECT_EQ(picture->stretched({30, 90}).size(), QSize(30, 90));
  }
}

#ifdef __GLIBC__
TEST_F(Pictures, ASmallPictureTakesLittleMemory) {
  const QString file = write_metafile("a.wmf", kRed);
  const auto in_use = [] {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
  };
  const std::size_t before = in_use();
  const auto picture = load_picture(file);
  ASSERT_TRUE(picture);
  EXPECT_LT(in_use(), before + 100'000U);
}
#endif

TEST_F(Pictures, ContentTellsTheKindNotTheName) {
  write_image("x.png", "PNG", Qt::blue);
  QFile::rename(path("x.png"), path("x.wmf"));
  EXPECT_TRUE(load_picture(path("x.wmf")));
  write_metafile("y.wmf", kRed);
  QFile::rename(path("y.wmf"), path("y.bmp"));
  EXPECT_TRUE(load_picture(path("y.bmp")));
}

TEST_F(Pictures, MissingMetafileIsReplacedByAPictureOfTheSameName) {
  for (const char* ending : {"png", "jpg", "jpeg"}) {
    const QString other = write_image(QStringLiteral("7.") + ending, ending[0] == 'p' ? "PNG" : "JPG", Qt::blue);
    EXPECT_EQ(picture_file(path("7.wmf")), other);
    const auto picture = load_picture(path("7.wmf"));
    ASSERT_TRUE(picture);
    EXPECT_TRUE(has_color(picture->image({10, 10}), 5, 2, kBlue));
    QFile::remove(other);
  }
  EXPECT_EQ(picture_file(path("7.wmf")), QString());
}

TEST_F(Pictures, MetafileComesFirst) {
  write_metafile("7.wmf", kRed);
  write_image("7.png", "PNG", Qt::blue);
  EXPECT_TRUE(has_color(load_picture(path("7.wmf"))->image({10, 10}), 5, 2, kRed));
}

TEST_F(Pictures, OnlyMetafilesAreReplaced) {
  write_image("7.png", "PNG", Qt::blue);
  EXPECT_EQ(picture_file(path("7.bmp")), QString());
  EXPECT_EQ(picture_file(path("nincs")), QString());
}

TEST_F(Pictures, NamesMayHaveAccentsAndBlanks) {
  EXPECT_TRUE(load_picture(write_metafile(QString::fromUtf8("tűzoltó őr.wmf"), kRed)));
}

TEST_F(Pictures, WhatCannotBeDrawnIsNull) {
  EXPECT_FALSE(load_picture(path("nincs.wmf")));
  EXPECT_FALSE(load_picture(path(".")));
  EXPECT_FALSE(load_picture(QString()));
  EXPECT_FALSE(load_picture(write("empty.wmf", {})));
  EXPECT_FALSE(load_picture(write("text.wmf", "Ez nem kép.")));
  EXPECT_FALSE(load_picture(write("half.png", "\x89PNG\r\n\x1a\n")));
  EXPECT_FALSE(load_picture(write("half.bmp", "BM")));
  EXPECT_FALSE(load_picture(write("half.jpg", "\xFF\xD8\xFF\xE0")));
  EXPECT_FALSE(load_picture(write("nothing.wmf", Wmf().window(10, 10).file())));
}

TEST_F(Pictures, OversizedFilesAndImagesAreRefused) {
  EXPECT_FALSE(load_picture(write("big.wmf", QByteArray(33 * 1024 * 1024, '\1'))));
  Bytes bitmap;
  bitmap.u8('B').u8('M').u32(200).u32(0).u32(54).u32(40).u32(30000).u32(30000).words({1, 8});
  for (int i = 0; i < 6; ++i) bitmap.u32(0);
  EXPECT_FALSE(load_picture(write("wide.bmp", bitmap.raw(QByteArray(200, '\0')).bytes())));
}

TEST_F(Pictures, EmptyBoxesGiveNoImage) {
  const auto picture = load_picture(write_metafile("a.wmf", kRed));
  ASSERT_TRUE(picture);
  EXPECT_TRUE(picture->image({0, 10}).isNull());
  EXPECT_TRUE(picture->stretched({10, -1}).isNull());
  EXPECT_TRUE(picture->stretched({9000, 10}).isNull());
}

TEST_F(Pictures, SlimPicturesKeepAtLeastOnePixel) {
  const auto picture = load_picture(write_image("slim.png", "PNG", Qt::red, {2000, 2}));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->image({50, 50}).size(), QSize(50, 1));
}

TEST_F(Pictures, CacheHandsOutTheSamePictureAndImage) {
  const QString file = write_metafile("a.wmf", kRed);
  PictureCache cache;
  const auto picture = cache.picture(file);
  ASSERT_TRUE(picture);
  EXPECT_EQ(cache.picture(file), picture);
  const QImage image = cache.image(file, {100, 100});
  EXPECT_EQ(image.size(), QSize(100, 50));
  EXPECT_EQ(cache.image(file, {100, 100}).cacheKey(), image.cacheKey());
  EXPECT_NE(cache.image(file, {50, 50}).cacheKey(), image.cacheKey());
  EXPECT_GE(cache.bytes(), 100 * 50 * 4 + 50 * 25 * 4);
  cache.clear();
  EXPECT_EQ(cache.bytes(), 0);
  EXPECT_NE(cache.picture(file), picture);
}

TEST_F(Pictures, CacheNoticesAChangedFile) {
  const QString file = write_metafile("a.wmf", kRed);
  PictureCache cache;
  EXPECT_TRUE(has_color(cache.image(file, {10, 10}), 5, 2, kRed));
  write(QStringLiteral("a.wmf"), Wmf().window(200, 100).fills(kBlue).rectangle(0, 0, 200, 100).record(0x0626).file());
  EXPECT_TRUE(has_color(cache.image(file, {10, 10}), 5, 2, kBlue));
  QFile::remove(file);
  EXPECT_TRUE(cache.image(file, {10, 10}).isNull());
  EXPECT_FALSE(cache.picture(file));
  write_image("a.png", "PNG", Qt::green);
  EXPECT_TRUE(has_color(cache.image(file, {10, 10}), 5, 2, kGreen));
}

TEST_F(Pictures, CacheStaysWithinItsLimit) {
  const QString a = write_metafile("a.wmf", kRed), b = write_metafile("b.wmf", kBlue);
  constexpr qsizetype kLimit = 70 * 1024; // three images of 100 x 50 and the files
  PictureCache cache(kLimit);
  const qint64 key = cache.image(a, {100, 100}).cacheKey();
  cache.image(b, {100, 100});
  EXPECT_EQ(cache.image(a, {100, 100}).cacheKey(), key) << "still there, and now the most recent";
  cache.image(b, {101, 101});
  cache.image(b, {102, 102});
  EXPECT_LE(cache.bytes(), kLimit);
  EXPECT_EQ(cache.image(a, {100, 100}).cacheKey(), key) << "the least recent goes first";
  for (int i = 10; i < 200; ++i) cache.image(b, {i, i});
  EXPECT_LE(cache.bytes(), kLimit);
  EXPECT_NE(cache.image(a, {100, 100}).cacheKey(), key);
}

TEST_F(Pictures, WhatIsLargerThanTheCacheIsHandedOutAllTheSame) {
  PictureCache cache(1000);
  EXPECT_EQ(cache.image(write_metafile("a.wmf", kRed), {400, 400}).size(), QSize(400, 200));
  EXPECT_LE(cache.bytes(), 1000);
}

} // namespace cserko::test
