// Files of the data pack that builders write.
#pragma once

#include <filesystem>
#include <string_view>

namespace cserko {

/// Writes a whole file into the pack, with the folders that it needs. The name is UTF-8 with "/" between folders.
/// Throws std::runtime_error when the file cannot be written whole.
void write_pack_file(const std::filesystem::path& pack, std::string_view name, std::string_view bytes);

} // namespace cserko
