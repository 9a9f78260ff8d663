// The hands of a program of Windows that is shown on an X server: the program says on its standard output what they do,
// and `cserko-x11-events`, which stands beside it on the other system, has the server do it. What lies under the
// pointer is what this side believes.
#include "tests/x11/x_input.h"

#include <cstdio>
#include <windows.h>

namespace cserko {

namespace {

template<class... Part> void say(const char* form, Part... part) {
  std::printf(form, part...);
  std::fflush(stdout);
}

} // namespace

struct XInput::Server {};

XInput::XInput() = default;

XInput::~XInput() = default;

void XInput::move(QPoint place) { say("move %d %d\n", place.x(), place.y()); }

XInput::Pointer XInput::pointer() const {
  POINT place{};
  if (GetCursorPos(&place) == 0) return {};
  HWND window = WindowFromPoint(place);
  if (window == nullptr || ScreenToClient(window, &place) == 0) return {};
  return {reinterpret_cast<std::uintptr_t>(window), {static_cast<int>(place.x), static_cast<int>(place.y)}};
}

void XInput::button(int number, bool down) { say("button %d %d\n", number, down ? 1 : 0); }

void XInput::key(std::uint32_t symbol, bool down) { say("key %u %d\n", static_cast<unsigned>(symbol), down ? 1 : 0); }

} // namespace cserko
