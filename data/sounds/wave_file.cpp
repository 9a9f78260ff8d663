#include "wave_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace cserko {

namespace {

void append(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

} // namespace

std::string wave_file(const Samples& samples) {
  constexpr std::uint32_t bytes_per_sample = 2;
  const auto data_size = static_cast<std::uint32_t>(samples.size() * bytes_per_sample);
  std::string bytes = "RIFF";
  append(bytes, 36 + data_size, 4);
  bytes += "WAVEfmt ";
  append(bytes, 16, 4);
  append(bytes, 1, 2); // plain samples
  append(bytes, 1, 2); // one channel
  append(bytes, sample_rate, 4);
  append(bytes, sample_rate * bytes_per_sample, 4);
  append(bytes, bytes_per_sample, 2);
  append(bytes, 16, 2);
  bytes += "data";
  append(bytes, data_size, 4);
  for (const float sample : samples) {
    const long value = std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767);
    append(bytes, static_cast<std::uint32_t>(value), 2);
  }
  return bytes;
}

} // namespace cserko
