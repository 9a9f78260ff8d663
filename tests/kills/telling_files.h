// The disk, with a word on the standard output before and behind each write: "keeping HASH PATH", "kept HASH PATH".
// What kills the process knows by these what must be on the disk.
#pragma once

#include "platform/platform.h"
#include "platform/qt/files.h"

#include <cstdio>
#include <functional>

namespace cserko {

class TellingFiles : public Files {
 public:
  explicit TellingFiles(QtFiles& files) : files_(files) {}

  std::vector<Text> list(const Text& pattern) const override { return files_.list(pattern); }
  bool exists(const Text& path) const override { return files_.exists(path); }
  std::optional<std::string> read(const Text& path) const override { return files_.read(path); }
  void make_folder(const Text& path) override { files_.make_folder(path); }
  void remove(const Text& path) override { files_.remove(path); }
  void write(const Text& path, std::string_view bytes) override {
    tell("keeping", bytes, path);
    files_.write(path, bytes);
    tell("kept", bytes, path);
  }

 private:
  static void tell(const char* what, std::string_view bytes, const Text& path) {
    std::printf("%s %zx %s\n", what, std::hash<std::string_view>()(bytes), to_utf8(path).c_str());
    std::fflush(stdout);
  }

  QtFiles& files_;
};

} // namespace cserko
