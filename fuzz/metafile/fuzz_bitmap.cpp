// Any bytes as a device-independent bitmap, and as a pattern of the device's own format.
#include "platform/qt/metafile/bitmap.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const auto colors = (data[0] & 1) != 0 ? cserko::DibColors::PaletteIndex : cserko::DibColors::Direct;
  const int rows = data[1];
  const QByteArrayView dib(data + 2, static_cast<qsizetype>(size - 2));
  const QList<QRgb> palette = {qRgb(1, 2, 3), qRgb(4, 5, 6)};
  // Large pictures are slow and show nothing that small ones do not.
  constexpr int kMostPixels = 1 << 20;
  if (const auto info = cserko::check_dib(dib, colors, rows); info && info->width * info->height <= kMostPixels) {
    const QImage image = cserko::decode_dib(dib, *info, colors, palette);
    const bool as_told = image.width() == info->width && image.height() == info->height;
    if (!image.isNull() && !as_told) std::abort();
  }
  cserko::decode_mono_pattern(dib);
  return 0;
}
