// The record files by their names, for exercises that go to the files themselves and not through the records.
#pragma once

#include "core/session.h"

#include <map>
#include <optional>
#include <unordered_map>

namespace cserko {

/// The files `kepek\*.wms` under the application folder, listed once, when they are first asked for. The words of a
/// file are read once and kept, so a search among many thousand files opens each of them once at most.
class RecordFiles {
 public:
  explicit RecordFiles(const Session& session) : session_(session) {}

  /// Base names (without ".wms") in the order in which the file system lists them.
  const std::vector<Text>& names();
  /// Number of files.
  int count() { return static_cast<int>(names().size()); }

  /// A line of a file in lower case; lines count from 1: 2 is the Hungarian word, 4 the English one. Empty where the
  /// file is not there, cannot be read or ends before that line. Throws std::out_of_range for an index of no file.
  const Text& word(int index, int line);
  /// The same of a file by its base name, for example a number.
  const Text& word(const Text& name, int line);

  /// Full path of the picture that belongs to a base name.
  Text picture(TextView name) const;

 private:
  Text path(TextView name, TextView ending) const;
  Text read(TextView name, int line) const;

  const Session& session_;
  bool listed_ = false;
  std::vector<Text> names_;
  std::unordered_map<Text, int> indexes_;                 ///< By name in lower case.
  std::map<int, std::vector<std::optional<Text>>> words_; ///< By line.
};

} // namespace cserko
