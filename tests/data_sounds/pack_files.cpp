#include "pack_files.h"

#include "core/codepage.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace cserko::test {

std::filesystem::path in_pack(std::string_view name) {
  return std::filesystem::path(PACK_DIR) / std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::string bytes_of(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> lines_of(const std::string& bytes) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < bytes.size();) {
    const auto end = bytes.find("\r\n", start);
    if (end == std::string::npos) {
      ADD_FAILURE() << "the last line has no end";
      break;
    }
    lines.push_back(bytes.substr(start, end - start));
    EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos);
    start = end + 2;
  }
  return lines;
}

std::vector<std::string> text_lines_of(const std::string& bytes) {
  std::vector<std::string> lines = lines_of(bytes);
  for (std::string& line : lines) line = to_utf8(from_cp1250(line));
  return lines;
}

std::vector<std::string> names_in(std::string_view folder, std::string_view ending) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(in_pack(folder)))
    if (entry.is_regular_file() && entry.path().filename().string().ends_with(ending))
      names.push_back(entry.path().filename().string());
  std::ranges::sort(names);
  return names;
}

std::uint32_t little_endian(const std::string& bytes, std::size_t at, int size) {
  std::uint32_t value = 0;
  for (int i = size - 1; i >= 0; --i)
    value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
  return value;
}

std::uint32_t big_endian(const std::string& bytes, std::size_t at, int size) {
  std::uint32_t value = 0;
  for (int i = 0; i < size; ++i)
    value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
  return value;
}

} // namespace cserko::test
