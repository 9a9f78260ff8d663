#pragma once

#include <QByteArrayView>
#include <QRect>
#include <optional>

namespace cserko {

/// One record of a metafile: its function number and the 16-bit words of its arguments. Reading past the arguments
/// gives 0.
class WmfRecord {
 public:
  WmfRecord() = default;
  WmfRecord(quint16 function, QByteArrayView arguments) : function_(function), arguments_(arguments) {}

  quint16 function() const { return function_; }
  /// Number of whole argument words.
  qsizetype words() const { return arguments_.size() / 2; }
  quint16 u16(qsizetype word) const;
  qint16 s16(qsizetype word) const { return static_cast<qint16>(u16(word)); }
  quint32 u32(qsizetype word) const { return u16(word) | static_cast<quint32>(u16(word + 1)) << 16; }
  /// The argument bytes from a word on; empty past the end.
  QByteArrayView bytes(qsizetype word) const;

 private:
  quint16 function_ = 0;
  QByteArrayView arguments_;
};

/// What the two headers tell. Sizes, versions, object counts and checksums are often wrong in real files and are not
/// read at all.
struct WmfHeader {
  std::optional<QRect> box; ///< placeable box with corners in order; none if it has no area
  int units_per_inch = 0;   ///< of the box
  qsizetype first_record = 0;
};

/// Nothing when the bytes are too short for the headers.
std::optional<WmfHeader> read_wmf_header(QByteArrayView bytes);

/// Walks through the records. Ends at the end record, at the end of the bytes, and at the first record whose size
/// cannot be right.
class WmfReader {
 public:
  WmfReader(QByteArrayView bytes, qsizetype first_record) : bytes_(bytes), position_(first_record) {}
  bool next(WmfRecord& record);

 private:
  QByteArrayView bytes_;
  qsizetype position_;
};

} // namespace cserko
