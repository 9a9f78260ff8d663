#pragma once

#include <QByteArrayView>
#include <QColor>
#include <QImage>
#include <QList>
#include <optional>

namespace cserko {

/// What the header of a device-independent bitmap says, after it has been checked against the bytes that follow.
struct DibInfo {
  int header_size = 0, width = 0, height = 0; ///< height without its sign
  int depth = 0;
  bool top_down = false;
  bool packed = false;     ///< run-length coded
  bool short_core = false; ///< the old header of 12 bytes
  qsizetype table_bytes = 0, pixel_bytes = 0;

  qsizetype pixels() const { return static_cast<qsizetype>(width) * height; }
};

/// How the colours of a bitmap's table are given.
enum class DibColors { Direct = 0, PaletteIndex = 1 };

/// Rows that the header of a bitmap speaks of, without sign; 0 when it is too short to say.
int dib_header_rows(QByteArrayView dib);

/// Nothing when the header is of an unknown kind or the bytes are too few. `rows` other than 0 stands for the rows
/// really present where a record holds only some of them.
std::optional<DibInfo> check_dib(QByteArrayView dib, DibColors colors, int rows = 0);

/// Decodes a checked bitmap, first row at the top, opaque. Null when it cannot be decoded.
QImage decode_dib(QByteArrayView dib, const DibInfo& info, DibColors colors, const QList<QRgb>& palette);

/// A picture of one bit a pixel in the device's own format, as pattern brushes hold it. Null when it is not that.
QImage decode_mono_pattern(QByteArrayView bitmap);

/// Combines pattern, source and what is there already by the middle byte of a ternary raster operation.
QRgb raster_operation(quint8 code, QRgb pattern, QRgb source, QRgb target);

/// Which of the three a raster operation looks at.
constexpr bool raster_reads_pattern(quint8 code) { return (code >> 4) != (code & 0x0F); }
constexpr bool raster_reads_source(quint8 code) { return (code >> 2 & 0x33) != (code & 0x33); }
constexpr bool raster_reads_target(quint8 code) { return (code >> 1 & 0x55) != (code & 0x55); }

} // namespace cserko
