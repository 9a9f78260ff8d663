#include "pack_file.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace cserko {

void write_pack_file(const std::filesystem::path& pack, std::string_view name, std::string_view bytes) {
  const std::filesystem::path path = pack / std::filesystem::path(std::u8string(name.begin(), name.end()));
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path.string());
}

} // namespace cserko
