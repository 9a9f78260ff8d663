// cserko-x11-events: has the X server do what the lines of the standard input say, `move X Y`, `button NUMBER DOWN` and
// `key SYMBOL DOWN`. All other lines go on to the standard output, for they are meant for people.
#include "tests/x11/x_input.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <sstream>
#include <string>

namespace {

bool obey(cserko::XInput& server, const std::string& line) {
  std::istringstream words(line);
  std::string deed;
  long what = 0;
  long how = 0;
  if (!(words >> deed >> what >> how)) return false;
  if (deed == "move")
    server.move({static_cast<int>(what), static_cast<int>(how)});
  else if (deed == "button")
    server.button(static_cast<int>(what), how != 0);
  else if (deed == "key")
    server.key(static_cast<std::uint32_t>(what), how != 0);
  else
    return false;
  return true;
}

} // namespace

int main() {
  try {
    cserko::XInput server;
    std::string line;
    while (std::getline(std::cin, line)) {
      if (!obey(server, line)) std::cout << line << std::endl;
    }
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
