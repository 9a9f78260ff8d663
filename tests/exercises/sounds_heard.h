// Which sounds were begun.
#pragma once

#include <string>

namespace cserko {

/// The sounds that media commands, one a line, have begun, each by its path under the application folder.
inline std::string sounds_heard(const std::string& commands) {
  std::string files;
  const std::string beginning = "open \"c:\\cserko\\";
  for (std::size_t at = commands.find(beginning); at != std::string::npos; at = commands.find(beginning, at + 1)) {
    const std::size_t begin = at + beginning.size();
    files += (files.empty() ? "" : " ") + commands.substr(begin, commands.find('"', begin) - begin);
  }
  return files;
}

} // namespace cserko
