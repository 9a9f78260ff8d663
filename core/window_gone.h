// What ends a handler whose window has gone while it waited.
#pragma once

#include <exception>

namespace cserko {

/// The window was unloaded, or the program has ended, while a handler of it animated or waited. It ends that handler;
/// the event boundary tells nobody.
class WindowGone : public std::exception {
 public:
  const char* what() const noexcept override { return "the window has gone while it waited"; }
};

} // namespace cserko
