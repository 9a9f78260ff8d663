#include "reader.h"

#include <QtEndian>
#include <algorithm>

namespace cserko {

namespace {

constexpr quint32 kPlaceableKey = 0x9AC6CDD7;
constexpr qsizetype kPlaceableBytes = 22;
constexpr qsizetype kHeaderBytes = 18;
constexpr qsizetype kRecordHeaderBytes = 6;

qint16 s16_at(QByteArrayView bytes, qsizetype offset) { return qFromLittleEndian<qint16>(bytes.data() + offset); }

} // namespace

quint16 WmfRecord::u16(qsizetype word) const {
  if (word < 0 || word >= words()) return 0;
  return qFromLittleEndian<quint16>(arguments_.data() + word * 2);
}

QByteArrayView WmfRecord::bytes(qsizetype word) const {
  if (word < 0 || word >= words()) return {};
  return arguments_.sliced(word * 2);
}

std::optional<WmfHeader> read_wmf_header(QByteArrayView bytes) {
  WmfHeader header;
  if (bytes.size() >= kPlaceableBytes && qFromLittleEndian<quint32>(bytes.data()) == kPlaceableKey) {
    const int x0 = s16_at(bytes, 6), y0 = s16_at(bytes, 8), x1 = s16_at(bytes, 10), y1 = s16_at(bytes, 12);
    if (x0 != x1 && y0 != y1) {
      header.box = QRect(std::min(x0, x1), std::min(y0, y1), std::abs(x1 - x0), std::abs(y1 - y0));
    }
    header.units_per_inch = qFromLittleEndian<quint16>(bytes.data() + 14);
    header.first_record = kPlaceableBytes;
  }
  header.first_record += kHeaderBytes;
  if (bytes.size() < header.first_record) return std::nullopt;
  return header;
}

bool WmfReader::next(WmfRecord& record) {
  const qsizetype left = bytes_.size() - position_;
  if (left < kRecordHeaderBytes) return false;
  const char* at = bytes_.data() + position_;
  const qsizetype size = static_cast<qsizetype>(qFromLittleEndian<quint32>(at)) * 2;
  const quint16 function = qFromLittleEndian<quint16>(at + 4);
  if (size < kRecordHeaderBytes || size > left || function == 0) return false;
  record = WmfRecord(function, QByteArrayView(at + kRecordHeaderBytes, size - kRecordHeaderBytes));
  position_ += size;
  return true;
}

} // namespace cserko
