#include "state.h"

#include <algorithm>
#include <utility>

namespace cserko {

namespace {

/// Regions beyond this many rectangles are cut off: each one costs time at every clip change.
constexpr std::size_t kRegionRectangles = 4096;

} // namespace

void WmfObjects::create(WmfObject object) {
  if (free_.empty()) {
    slots_.push_back({std::move(object), true});
    return;
  }
  const int slot = *free_.begin();
  free_.erase(free_.begin());
  slots_[static_cast<std::size_t>(slot)] = {std::move(object), true};
}

void WmfObjects::remove(int slot) {
  if (at(slot) == nullptr) return;
  slots_[static_cast<std::size_t>(slot)] = {WmfOther{}, false};
  free_.insert(slot);
}

const WmfObject* WmfObjects::at(int slot) const {
  if (slot < 0 || static_cast<std::size_t>(slot) >= slots_.size()) return nullptr;
  const Slot& found = slots_[static_cast<std::size_t>(slot)];
  return found.taken ? &found.object : nullptr;
}

QColor read_wmf_color(const WmfRecord& record, qsizetype word, const WmfState& state) {
  constexpr int kPaletteIndex = 1;
  const quint32 value = record.u32(word);
  if (value >> 24 == kPaletteIndex) {
    const auto index = static_cast<qsizetype>(value & 0xFFFF);
    return index < state.palette.size() ? QColor(state.palette[index]) : QColor(Qt::black);
  }
  return QColor(static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
                static_cast<int>(value >> 16 & 0xFF));
}

WmfPen read_wmf_pen(const WmfRecord& record, const WmfState& state) {
  WmfPen pen;
  pen.style = record.u16(0) & 0x0F;
  pen.width = std::abs(static_cast<int>(record.s16(1)));
  pen.color = read_wmf_color(record, 3, state);
  return pen;
}

WmfBrush read_wmf_brush(const WmfRecord& record, const WmfState& state) {
  WmfBrush brush;
  brush.style = record.u16(0);
  brush.color = read_wmf_color(record, 1, state);
  brush.hatch = record.u16(3);
  // A brush by number cannot carry a pattern: those styles come with records of their own.
  if (brush.style > WmfBrush::kHatched) brush.style = WmfBrush::kSolid;
  return brush;
}

WmfFont read_wmf_font(const WmfRecord& record) {
  WmfFont font;
  font.height = record.s16(0);
  font.width = std::abs(static_cast<int>(record.s16(1)));
  font.escapement = record.s16(2);
  font.weight = record.s16(4);
  font.italic = (record.u16(5) & 0xFF) != 0;
  font.underline = record.u16(5) >> 8 != 0;
  font.strikeout = (record.u16(6) & 0xFF) != 0;
  font.charset = record.u16(6) >> 8;
  font.pitch_and_family = record.u16(8) >> 8;
  constexpr qsizetype kFaceBytes = 32;
  const QByteArrayView face = record.bytes(9);
  const qsizetype end = std::find(face.begin(), face.end(), '\0') - face.begin();
  font.face = face.first(std::min(end, kFaceBytes)).toByteArray();
  return font;
}

WmfPalette read_wmf_palette(const WmfRecord& record) {
  WmfPalette palette;
  const qsizetype count = std::min<qsizetype>(record.u16(1), (record.words() - 2) / 2);
  for (qsizetype i = 0; i < count; ++i) {
    const quint32 entry = record.u32(2 + i * 2);
    palette.colors.append(qRgb(entry & 0xFF, entry >> 8 & 0xFF, entry >> 16 & 0xFF));
  }
  return palette;
}

WmfRegion read_wmf_region(const WmfRecord& record) {
  WmfRegion region;
  const int scans = record.u16(5);
  qsizetype word = 11;
  for (int scan = 0; scan < scans && word < record.words(); ++scan) {
    const int ends = record.u16(word);
    const int top = record.s16(word + 1), bottom = record.s16(word + 2);
    for (int i = 0; i + 1 < ends && word + 4 + i < record.words(); i += 2) {
      if (region.rectangles.size() >= kRegionRectangles) return region;
      const int left = record.s16(word + 3 + i), right = record.s16(word + 4 + i);
      region.rectangles.emplace_back(left, top, right - left, bottom - top);
    }
    word += 4 + ends;
  }
  return region;
}

} // namespace cserko
