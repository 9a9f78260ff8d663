#include "platform/media_length.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace cserko {
namespace {

using std::chrono::milliseconds;

/// Reads big and little endian numbers from bytes; past the end it gives zeros and is no longer `good`.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  bool good() const { return good_; }
  std::size_t left() const { return bytes_.size() - place_; }

  std::uint8_t byte() {
    if (left() == 0) {
      good_ = false;
      return 0;
    }
    return bytes_[place_++];
  }

  std::uint32_t big(int count) {
    std::uint32_t number = 0;
    for (int i = 0; i < count; ++i) number = (number << 8) | byte();
    return number;
  }

  std::uint32_t little(int count) {
    std::uint32_t number = 0;
    for (int i = 0; i < count; ++i) number |= static_cast<std::uint32_t>(byte()) << (8 * i);
    return number;
  }

  /// Seven bits a byte, most significant first, four bytes at most.
  std::uint32_t variable_length() {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i) {
      const std::uint8_t next = byte();
      number = (number << 7) | (next & 0x7Fu);
      if ((next & 0x80u) == 0) return number;
    }
    good_ = false;
    return number;
  }

  bool tag(std::string_view wanted) {
    for (const char c : wanted)
      if (byte() != static_cast<std::uint8_t>(c)) return false;
    return good_;
  }

  void skip(std::size_t count) {
    if (count > left()) good_ = false;
    place_ += std::min(count, left());
  }

  /// The next bytes, as many as there are, as a reader of their own.
  ByteReader part(std::size_t count) {
    const std::size_t real = std::min(count, left());
    ByteReader result(bytes_.subspan(place_, real));
    place_ += real;
    return result;
  }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t place_ = 0;
  bool good_ = true;
};

struct Tempo {
  std::uint64_t tick = 0;
  std::uint32_t microseconds_per_quarter = 500'000;
};

/// One event after its delta time. Returns false at the end of the track or where it cannot be read.
bool read_event(ByteReader& track, std::uint8_t& running_status, std::uint64_t tick, std::vector<Tempo>& tempos) {
  std::uint8_t status = track.byte();
  if (status < 0x80) { // a data byte: the last channel message goes on
    if (running_status == 0) return false;
    const std::uint8_t kind = running_status & 0xF0u;
    if (kind != 0xC0 && kind != 0xD0) track.byte();
    return track.good();
  }
  if (status < 0xF0) {
    running_status = status;
    track.skip((status & 0xF0u) == 0xC0 || (status & 0xF0u) == 0xD0 ? 1 : 2);
    return track.good();
  }
  const std::uint8_t meta = status == 0xFF ? track.byte() : 0;
  if (status != 0xFF && status != 0xF0 && status != 0xF7) return false;
  const std::uint32_t length = track.variable_length();
  if (!track.good() || meta == 0x2F) return false;
  ByteReader data = track.part(length);
  if (meta == 0x51 && length == 3) {
    const std::uint32_t tempo = data.big(3);
    if (data.good()) tempos.push_back({tick, tempo});
  }
  return true;
}

/// Collects the tempo changes of a track; returns its length in ticks.
std::uint64_t read_track(ByteReader track, std::vector<Tempo>& tempos) {
  std::uint64_t tick = 0;
  std::uint8_t running_status = 0;
  while (track.left() > 0) {
    const std::uint32_t delta = track.variable_length();
    if (!track.good()) break;
    tick += delta;
    if (!read_event(track, running_status, tick, tempos)) break;
  }
  return tick;
}

milliseconds bounded(double microseconds) {
  constexpr double day = 24.0 * 60 * 60 * 1000;
  return milliseconds(static_cast<std::int64_t>(std::clamp(microseconds / 1000.0, 0.0, day)));
}

milliseconds length_by_tempo(std::uint64_t ticks, std::uint32_t ticks_per_quarter, std::vector<Tempo> tempos) {
  std::stable_sort(tempos.begin(), tempos.end(), [](const Tempo& a, const Tempo& b) { return a.tick < b.tick; });
  double microseconds = 0;
  Tempo now;
  const auto run_to = [&](std::uint64_t tick) {
    microseconds += static_cast<double>(tick - now.tick) * now.microseconds_per_quarter / ticks_per_quarter;
  };
  for (const Tempo& next : tempos) {
    run_to(next.tick);
    now = next;
  }
  run_to(ticks);
  return bounded(microseconds);
}

} // namespace

std::optional<milliseconds> wave_length(std::span<const std::uint8_t> beginning, std::uint64_t file_size) {
  ByteReader reader(beginning);
  if (!reader.tag("RIFF")) return std::nullopt;
  reader.skip(4);
  if (!reader.tag("WAVE")) return std::nullopt;
  std::uint32_t bytes_per_second = 0;
  while (reader.good() && reader.left() >= 8) {
    const std::uint32_t kind = reader.big(4);
    const std::uint32_t size = reader.little(4);
    if (kind == 0x666D7420) { // "fmt "
      ByteReader format = reader.part(size);
      format.skip(8);
      bytes_per_second = format.little(4);
      reader.skip(size & 1u);
    } else if (kind == 0x64617461) { // "data"
      if (bytes_per_second == 0) break;
      const std::uint64_t start = beginning.size() - reader.left();
      const std::uint64_t real = std::min<std::uint64_t>(size, file_size > start ? file_size - start : 0);
      return bounded(static_cast<double>(real) * 1'000'000.0 / bytes_per_second);
    } else {
      reader.skip(std::size_t{size} + (size & 1u));
    }
  }
  return milliseconds(0);
}

std::optional<milliseconds> midi_length(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes);
  if (!reader.tag("MThd")) return std::nullopt;
  ByteReader header = reader.part(reader.big(4));
  header.skip(4);
  const std::uint32_t division = header.big(2);
  if (!header.good() || division == 0) return std::nullopt;
  std::vector<Tempo> tempos;
  std::uint64_t ticks = 0;
  while (reader.left() >= 8) {
    const bool is_track = reader.big(4) == 0x4D54726B; // "MTrk"
    ByteReader chunk = reader.part(reader.big(4));
    if (is_track) ticks = std::max(ticks, read_track(chunk, tempos));
  }
  if ((division & 0x8000u) == 0) return length_by_tempo(ticks, division, std::move(tempos));
  // Film time: the high byte is the negative number of frames a second, the low byte the ticks in a frame.
  const std::uint32_t frames = 256 - (division >> 8);
  const std::uint32_t ticks_per_frame = division & 0xFFu;
  if (ticks_per_frame == 0) return std::nullopt;
  return bounded(static_cast<double>(ticks) * 1'000'000.0 / (frames * ticks_per_frame));
}

} // namespace cserko
