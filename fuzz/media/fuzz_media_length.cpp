// Any bytes as a wave and as a tune: a length within a day, or none.
#include "platform/media_length.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  for (const auto& length : {cserko::wave_length(bytes, size), cserko::midi_length(bytes)})
    if (length && (length->count() < 0 || *length > std::chrono::hours(24))) std::abort();
  return 0;
}
