// Files of the data pack that builders write.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace cserko {

/// Writes a whole file into the pack, with the folders that it needs. The name is UTF-8 with "/" between folders.
/// Throws std::runtime_error when the file cannot be written whole.
void write_pack_file(const std::filesystem::path& pack, std::string_view name, std::string_view bytes);

/// Deletes the files of a folder of the pack that end with `ending` and are not among `names`: what an earlier build
/// made and this one does not. The program lists these folders, so a left-over would be played.
void remove_other_files(const std::filesystem::path& pack, std::string_view folder, std::string_view ending,
                        const std::set<std::string>& names);

} // namespace cserko
