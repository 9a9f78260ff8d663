#include "bitmap.h"

#include <QByteArray>
#include <QtEndian>
#include <algorithm>
#include <limits>

namespace cserko {

namespace {

constexpr int kCoreHeader = 12, kInfoHeader = 40;
constexpr int kLongestHeader = 124;
constexpr int kCoreHeightOffset = 6, kInfoHeightOffset = 8;
constexpr qint64 kMostPixels = 16'000'000;
constexpr int kFileHeader = 14;

enum Compression : quint32 { kRgb = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3 };

template<typename T> T at(QByteArrayView bytes, qsizetype offset) {
  return qFromLittleEndian<T>(bytes.data() + offset);
}

bool read_core_header(QByteArrayView dib, DibInfo& info) {
  info.short_core = true;
  info.width = at<qint16>(dib, 4);
  info.height = at<qint16>(dib, kCoreHeightOffset);
  info.depth = at<quint16>(dib, 10);
  return true;
}

bool read_info_header(QByteArrayView dib, DibInfo& info, quint32& compression) {
  if (dib.size() < kInfoHeader) return false;
  info.width = at<qint32>(dib, 4);
  const auto height = at<qint32>(dib, kInfoHeightOffset);
  if (height == std::numeric_limits<qint32>::min()) return false;
  info.top_down = height < 0;
  info.height = std::abs(height);
  info.depth = at<quint16>(dib, 14);
  compression = at<quint32>(dib, 16);
  return true;
}

/// Depths and codings that belong together.
bool known_coding(const DibInfo& info, quint32 compression) {
  switch (compression) {
  case kRgb:
    return info.depth == 1 || info.depth == 4 || info.depth == 8 || info.depth == 16 || info.depth == 24 ||
           info.depth == 32;
  case kRle8:
    return info.depth == 8 && !info.top_down;
  case kRle4:
    return info.depth == 4 && !info.top_down;
  case kBitFields:
    return info.depth == 16 || info.depth == 32;
  default:
    return false;
  }
}

qsizetype entry_bytes(const DibInfo& info, DibColors colors) {
  if (colors == DibColors::PaletteIndex) return 2;
  return info.short_core ? 3 : 4;
}

qsizetype table_entries(const DibInfo& info, DibColors colors) { return info.table_bytes / entry_bytes(info, colors); }

qsizetype table_bytes(QByteArrayView dib, const DibInfo& info, quint32 compression, DibColors colors) {
  const quint32 used = info.short_core ? 0 : at<quint32>(dib, 32);
  qsizetype bytes = 0;
  if (compression == kBitFields && info.header_size == kInfoHeader) bytes += 12;
  if (info.depth <= 8) {
    const quint32 most = 1U << info.depth;
    bytes += static_cast<qsizetype>(used == 0 ? most : std::min(used, most)) * entry_bytes(info, colors);
  } else {
    bytes += static_cast<qsizetype>(std::min(used, 256U)) * 4; // a hint for palette displays, skipped
  }
  return bytes;
}

/// The table with colours in place of palette indices.
QByteArray resolved_table(QByteArrayView table, const QList<QRgb>& palette, bool short_core) {
  QByteArray resolved;
  for (qsizetype i = 0; i + 1 < table.size(); i += 2) {
    const qsizetype index = at<quint16>(table, i);
    const QRgb color = index < palette.size() ? palette[index] : qRgb(0, 0, 0);
    resolved.append(static_cast<char>(qBlue(color)));
    resolved.append(static_cast<char>(qGreen(color)));
    resolved.append(static_cast<char>(qRed(color)));
    if (!short_core) resolved.append('\0');
  }
  return resolved;
}

void put_u32(QByteArray& bytes, qsizetype offset, quint32 value) { qToLittleEndian(value, bytes.data() + offset); }

} // namespace

int dib_header_rows(QByteArrayView dib) {
  if (dib.size() < kCoreHeader) return 0;
  if (at<quint32>(dib, 0) == kCoreHeader) return std::max<int>(at<qint16>(dib, kCoreHeightOffset), 0);
  constexpr qint64 kMostRows = 1 << 24;
  return static_cast<int>(std::min(std::abs(static_cast<qint64>(at<qint32>(dib, kInfoHeightOffset))), kMostRows));
}

std::optional<DibInfo> check_dib(QByteArrayView dib, DibColors colors, int rows) {
  if (dib.size() < kCoreHeader) return std::nullopt;
  DibInfo info;
  const auto header_size = at<quint32>(dib, 0);
  if (header_size != kCoreHeader && (header_size < kInfoHeader || header_size > kLongestHeader)) return std::nullopt;
  if (header_size > static_cast<quint32>(dib.size())) return std::nullopt;
  info.header_size = static_cast<int>(header_size);
  quint32 compression = kRgb;
  const bool core = header_size == kCoreHeader;
  if (!(core ? read_core_header(dib, info) : read_info_header(dib, info, compression))) return std::nullopt;
  if (rows > 0) info.height = core ? std::min<int>(rows, std::numeric_limits<qint16>::max()) : rows;
  if (info.width <= 0 || info.height <= 0 || !known_coding(info, compression)) return std::nullopt;
  if (static_cast<qint64>(info.width) * info.height > kMostPixels) return std::nullopt;
  info.packed = compression == kRle8 || compression == kRle4;
  info.table_bytes = table_bytes(dib, info, compression, colors);
  const qsizetype row_bits = static_cast<qsizetype>(info.width) * info.depth;
  const qsizetype stride = (row_bits + 31) / 32 * 4;
  info.pixel_bytes = dib.size() - info.header_size - info.table_bytes;
  // Some writers leave out the padding of the last row.
  const qsizetype needed = info.packed ? 1 : stride * (info.height - 1) + (row_bits + 7) / 8;
  if (info.pixel_bytes < needed) return std::nullopt;
  if (!info.packed) info.pixel_bytes = std::min(info.pixel_bytes, stride * info.height);
  return info;
}

QImage decode_dib(QByteArrayView dib, const DibInfo& info, DibColors colors, const QList<QRgb>& palette) {
  const QByteArrayView table = dib.sliced(info.header_size, info.table_bytes);
  const QByteArrayView pixels = dib.sliced(info.header_size + info.table_bytes, info.pixel_bytes);
  QByteArray file(kFileHeader, '\0');
  file[0] = 'B';
  file[1] = 'M';
  file.append(dib.first(info.header_size));
  file.append(colors == DibColors::PaletteIndex && info.depth <= 8 ? resolved_table(table, palette, info.short_core)
                                                                   : table.toByteArray());
  const qsizetype offset = file.size();
  file.append(pixels);
  const qsizetype stride = (static_cast<qsizetype>(info.width) * info.depth + 31) / 32 * 4;
  if (!info.packed) file.append(stride * info.height - info.pixel_bytes, '\0');
  put_u32(file, 2, static_cast<quint32>(file.size()));
  put_u32(file, 10, static_cast<quint32>(offset));
  // The height of the rows really present, the colours really used; many writers forget the number of planes.
  if (info.short_core) {
    qToLittleEndian(static_cast<quint16>(info.height), file.data() + kFileHeader + kCoreHeightOffset);
  } else {
    put_u32(file, kFileHeader + kInfoHeightOffset, static_cast<quint32>(info.top_down ? -info.height : info.height));
    if (info.depth <= 8) put_u32(file, kFileHeader + 32, static_cast<quint32>(table_entries(info, colors)));
  }
  file[kFileHeader + (info.short_core ? 8 : 12)] = 1;
  file[kFileHeader + (info.short_core ? 9 : 13)] = 0;
  QImage image = QImage::fromData(file, "BMP");
  if (image.isNull()) return {};
  // The spare byte of 32-bit pixels is not transparency in this format.
  if (image.hasAlphaChannel()) image.reinterpretAsFormat(QImage::Format_RGB32);
  return image.convertToFormat(QImage::Format_RGB32);
}

QImage decode_mono_pattern(QByteArrayView bitmap) {
  constexpr qsizetype kHeader = 32; // the bitmap's header of 14 bytes and 18 unused ones
  if (bitmap.size() < kHeader) return {};
  const int width = at<qint16>(bitmap, 2), height = at<qint16>(bitmap, 4), stride = at<qint16>(bitmap, 6);
  const int planes = at<quint8>(bitmap, 8), depth = at<quint8>(bitmap, 9);
  if (width <= 0 || height <= 0 || planes != 1 || depth != 1 || stride * 8 < width) return {};
  if (bitmap.size() < kHeader + static_cast<qsizetype>(stride) * height) return {};
  constexpr qint64 kMostPatternPixels = 1 << 20;
  if (static_cast<qint64>(width) * height > kMostPatternPixels) return {};
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto byte = at<quint8>(bitmap, kHeader + static_cast<qsizetype>(y) * stride + x / 8);
      image.setPixel(x, y, (byte >> (7 - x % 8) & 1) != 0 ? 0xFFFFFFFF : 0xFF000000);
    }
  }
  return image;
}

QRgb raster_operation(quint8 code, QRgb pattern, QRgb source, QRgb target) {
  switch (code) {
  case 0x00:
    return 0xFF000000;
  case 0x55:
    return ~target | 0xFF000000;
  case 0x66:
    return (source ^ target) | 0xFF000000;
  case 0x88:
    return (source & target) | 0xFF000000;
  case 0xCC:
    return source | 0xFF000000;
  case 0xEE:
    return source | target | 0xFF000000;
  case 0xF0:
    return pattern | 0xFF000000;
  case 0xFF:
    return 0xFFFFFFFF;
  default:
    break;
  }
  QRgb result = 0xFF000000;
  for (int bit = 0; bit < 8; ++bit) {
    if ((code >> bit & 1) == 0) continue;
    result |= ((bit & 4) != 0 ? pattern : ~pattern) & ((bit & 2) != 0 ? source : ~source) &
              ((bit & 1) != 0 ? target : ~target);
  }
  return result;
}

} // namespace cserko
