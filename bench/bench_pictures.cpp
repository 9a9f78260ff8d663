// What a picture costs at 900 x 900, beside painting an image of that size that is already in memory: read and drawn
// cold (at most 10 ms), and from the cache (at most 3 ms). The picture is of the weight of the pack's heavier ones:
// a few thousand points in a dozen colours. With CSERKO_BENCH_PICTURE set to a file, that file is taken instead.
#include "platform/qt/picture_loader.h"
#include "tests/metafile/wmf_bytes.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>

namespace {

using namespace cserko;

constexpr QSize kSize(900, 900);
constexpr int kUnits = 6400;

/// Wavy discs one upon the other, 300 points each.
QByteArray wavy_picture() {
  constexpr int kDiscs = 12, kPoints = 300;
  test::Wmf wmf;
  wmf.window(kUnits, kUnits).bk_mode(1).pen(5, 0, 0).select(0);
  for (int disc = 0; disc < kDiscs; ++disc) {
    QList<QPoint> points;
    for (int i = 0; i < kPoints; ++i) {
      const double angle = 2 * std::numbers::pi * i / kPoints;
      const double radius = kUnits / 2.0 * (1.0 - disc / 14.0) * (0.95 + 0.05 * std::sin(9 * angle + disc));
      points.append({static_cast<int>(kUnits / 2.0 + radius * std::cos(angle)),
                     static_cast<int>(kUnits / 2.0 + radius * std::sin(angle))});
    }
    wmf.brush(0, test::rgb(20 * disc, 255 - 20 * disc, 128)).select(disc + 1).polygon(points);
  }
  return wmf.file(test::Wmf::placeable(0, 0, kUnits, kUnits, kUnits / 2));
}

const QString& picture_path() {
  static const QTemporaryDir folder;
  static const QString path = [] {
    const QString given = qEnvironmentVariable("CSERKO_BENCH_PICTURE");
    if (!given.isEmpty()) return given;
    QFile file(folder.filePath(QStringLiteral("kep.wmf")));
    if (!file.open(QIODevice::WriteOnly) || file.write(wavy_picture()) < 0) qFatal("no temporary file");
    return file.fileName();
  }();
  return path;
}

QImage screen() {
  QImage image(kSize, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

void paint(QImage& on, const QImage& image) {
  if (image.isNull()) qFatal("no picture");
  QPainter(&on).drawImage(0, 0, image);
}

void plain_image_painted(benchmark::State& state) {
  QImage on = screen();
  QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
  image.fill(QColor(200, 30, 30, 128));
  for (auto _ : state) paint(on, image);
}

void picture_cold(benchmark::State& state) {
  QImage on = screen();
  for (auto _ : state) {
    const auto picture = load_picture(picture_path());
    if (!picture) qFatal("no picture");
    paint(on, picture->image(kSize));
  }
}

void picture_from_the_cache(benchmark::State& state) {
  QImage on = screen();
  PictureCache cache;
  cache.image(picture_path(), kSize);
  for (auto _ : state) paint(on, cache.image(picture_path(), kSize));
}

BENCHMARK(plain_image_painted)->Unit(benchmark::kMillisecond);
BENCHMARK(picture_cold)->Unit(benchmark::kMillisecond);
BENCHMARK(picture_from_the_cache)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
