// Files of the built data pack, as tests read them.
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace cserko::test {

/// A path inside the pack; the name is UTF-8.
std::filesystem::path in_pack(std::string_view name);

/// All bytes of a file; empty if there is none.
std::string bytes_of(const std::filesystem::path& path);

/// Lines of bytes that all have to end with CR LF, without their ends.
std::vector<std::string> lines_of(const std::string& bytes);

/// The same lines from code page 1250 to UTF-8.
std::vector<std::string> text_lines_of(const std::string& bytes);

/// Names of the files of a folder of the pack that end with `ending`, in alphabetical order.
std::vector<std::string> names_in(std::string_view folder, std::string_view ending);

/// A number of `size` bytes, lowest first or highest first.
std::uint32_t little_endian(const std::string& bytes, std::size_t at, int size);
std::uint32_t big_endian(const std::string& bytes, std::size_t at, int size);

} // namespace cserko::test
