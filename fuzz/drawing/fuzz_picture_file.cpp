// Any bytes as a bitmap file, as the drawing board opens those of the user.
#include "platform/bitmap.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(data), size);
  const auto image = cserko::read_bitmap(file);
  if (!image) return 0;
  const auto points = static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height);
  if (image->width <= 0 || image->height <= 0 || image->pixels.size() != points) std::abort();
  // What was read can be saved and is the same then. Large pictures are slow and show nothing that small ones do not.
  constexpr std::size_t most_points = 1 << 16;
  if (points <= most_points && cserko::read_bitmap(cserko::write_bitmap(*image)) != image) std::abort();
  return 0;
}
