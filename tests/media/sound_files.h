// Small sounds and tunes made for tests.
#pragma once

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

namespace cserko::test {

using Bytes = std::vector<std::uint8_t>;

// One by one: GCC 12 takes the insertion of a range into a short vector for an overflow when it optimises.
inline void append(Bytes& bytes, std::string_view text) {
  for (const char character : text) bytes.push_back(static_cast<std::uint8_t>(character));
}

inline void append(Bytes& bytes, const Bytes& more) {
  for (const std::uint8_t byte : more) bytes.push_back(byte);
}

inline void append_little(Bytes& bytes, std::uint32_t number, int count) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

inline void append_big(Bytes& bytes, std::uint32_t number, int count) {
  for (int i = count - 1; i >= 0; --i) bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

inline constexpr int test_rate = 44100;

/// A mono wave file of 16-bit samples at 44.1 kHz.
inline Bytes wave_file(const std::vector<std::int16_t>& samples) {
  const auto size = static_cast<std::uint32_t>(samples.size() * 2);
  Bytes bytes;
  append(bytes, "RIFF");
  append_little(bytes, 36 + size, 4);
  append(bytes, "WAVEfmt ");
  append_little(bytes, 16, 4);
  append_little(bytes, 1, 2); // plain samples
  append_little(bytes, 1, 2); // one channel
  append_little(bytes, test_rate, 4);
  append_little(bytes, test_rate * 2, 4);
  append_little(bytes, 2, 2);
  append_little(bytes, 16, 2);
  append(bytes, "data");
  append_little(bytes, size, 4);
  for (const std::int16_t sample : samples) append_little(bytes, static_cast<std::uint16_t>(sample), 2);
  return bytes;
}

/// A sine that starts at 0.
inline std::vector<std::int16_t> sine(double hertz, double seconds, double peak) {
  std::vector<std::int16_t> samples(static_cast<std::size_t>(seconds * test_rate));
  for (std::size_t i = 0; i < samples.size(); ++i)
    samples[i] = static_cast<std::int16_t>(
        std::lround(peak * std::sin(2.0 * std::numbers::pi * hertz * static_cast<double>(i) / test_rate)));
  return samples;
}

/// A MIDI file with the given tracks; each track is the events without the end mark, which is added here.
inline Bytes midi_file(std::uint16_t division, std::initializer_list<Bytes> tracks) {
  Bytes bytes;
  append(bytes, "MThd");
  append_big(bytes, 6, 4);
  append_big(bytes, 1, 2);
  append_big(bytes, static_cast<std::uint32_t>(tracks.size()), 2);
  append_big(bytes, division, 2);
  for (const Bytes& track : tracks) {
    append(bytes, "MTrk");
    append_big(bytes, static_cast<std::uint32_t>(track.size() + 4), 4);
    append(bytes, track);
    append(bytes, Bytes{0x00, 0xFF, 0x2F, 0x00});
  }
  return bytes;
}

/// One organ tone at 120 quarters a minute, 96 ticks each: it lasts for the given quarters, 1 to 100.
inline Bytes one_tone_tune(int quarters) {
  const int ticks = quarters * 96;
  return midi_file(96, {Bytes{0x00, 0xC0, 16, 0x00, 0x90, 60, 110, static_cast<std::uint8_t>(0x80 | (ticks >> 7)),
                              static_cast<std::uint8_t>(ticks & 0x7F), 0x80, 60, 0}});
}

} // namespace cserko::test
