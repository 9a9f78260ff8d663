// Files that live in memory, with failures on demand.
#pragma once

#include "platform/platform.h"

#include <set>
#include <unordered_map>

namespace cserko {

/// Folders and files by the system's own paths, below its two folders; a test can put files anywhere, but the suite
/// finds none elsewhere. Names are compared without case, doubled backslashes count as one, and the order in which
/// files were made is the order in which the file system lists them.
class MemoryFiles : public Files {
 public:
  MemoryFiles();

  std::vector<Text> list(const Text& pattern) const override;
  bool exists(const Text& path) const override;
  std::optional<std::string> read(const Text& path) const override;
  void write(const Text& path, std::string_view bytes) override;
  void make_folder(const Text& path) override;
  void remove(const Text& path) override;

  /// Content of a file that a person has chosen, wherever it lies; none if it cannot be read.
  std::optional<std::string> read_chosen(const Text& path) const;
  /// Writes such a file. Throws FileError, the old file whole.
  void write_chosen(const Text& path, std::string_view bytes);

  /// Told of each file that the suite writes or removes, behind the deed: "write" or "remove", and its path.
  std::function<void(TextView deed, const Text& path)> watch;

  // What a test does to the disk. None of this fails or counts as done by the suite.

  /// Puts a file there with all folders above it.
  void put(const Text& path, std::string_view bytes);
  /// Makes a folder with all folders above it.
  void put_folder(const Text& path);
  bool folder_exists(const Text& path) const;
  /// Takes a file away, or nothing if it is not there.
  void take(const Text& path);
  /// Every file in order, by its full path.
  std::vector<Text> all() const;

  /// The file is there and its content cannot be read.
  void make_unreadable(const Text& path) { unreadable_.insert(folded(path)); }
  /// The file, or every file of the folder and below, can be neither written, made nor deleted.
  void make_unwritable(const Text& path) { unwritable_.insert(folded(path)); }
  void make_writable(const Text& path) { unwritable_.erase(folded(path)); }
  /// Bytes that can still be written; none: no limit. A file that is replaced gives its bytes free only afterwards.
  std::optional<std::size_t> free_space;

  /// How often files were read since the machine began.
  int reads() const { return reads_; }

  /// A path as it is compared: lower case, single backslashes, none at the end.
  static Text folded(const Text& path);

 private:
  struct File {
    Text path;
    Text folder; // folded
    std::string bytes;
  };

  const File* find(const Text& path) const;
  void store(const Text& path, std::string_view bytes);
  bool writable(const Text& folded_path) const;

  std::vector<File> files_;
  std::unordered_map<Text, std::size_t> index_; // by folded path
  std::set<Text> folders_;
  std::set<Text> unreadable_;
  std::set<Text> unwritable_;
  mutable int reads_ = 0;
};

} // namespace cserko
