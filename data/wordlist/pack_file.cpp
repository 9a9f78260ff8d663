#include "pack_file.h"

#include <fstream>
#include <stdexcept>
#include <vector>

namespace cserko {

namespace {

std::filesystem::path from_utf8_name(std::string_view name) { return std::u8string(name.begin(), name.end()); }

} // namespace

void write_pack_file(const std::filesystem::path& pack, std::string_view name, std::string_view bytes) {
  const std::filesystem::path path = pack / from_utf8_name(name);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path.string());
}

void remove_other_files(const std::filesystem::path& pack, std::string_view folder, std::string_view ending,
                        const std::set<std::string>& names) {
  std::vector<std::filesystem::path> others;
  for (const auto& entry : std::filesystem::directory_iterator(pack / from_utf8_name(folder))) {
    const std::u8string name = entry.path().filename().u8string();
    const std::string bytes(name.begin(), name.end());
    if (entry.is_regular_file() && bytes.ends_with(ending) && !names.contains(bytes)) others.push_back(entry.path());
  }
  for (const auto& path : others) std::filesystem::remove(path);
}

} // namespace cserko
