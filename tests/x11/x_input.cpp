#include "tests/x11/x_input.h"

#include <cstddef>
#include <cstdlib>
#include <stdexcept>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace cserko {

namespace {

/// What the library hands out belongs to the caller.
template<class T> std::unique_ptr<T, decltype(&std::free)> owned(T* reply) { return {reply, &std::free}; }

} // namespace

void XInput::Disconnect::operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }

XInput::XInput() : connection_(xcb_connect(nullptr, nullptr)) {
  xcb_connection_t* connection = connection_.get();
  if (xcb_connection_has_error(connection) != 0) throw std::runtime_error("no X server can be reached");
  const auto version = owned(xcb_test_get_version_reply(connection, xcb_test_get_version(connection, 2, 2), nullptr));
  if (!version) throw std::runtime_error("the X server takes no made-up events");
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

void XInput::move(QPoint place) { fake(XCB_MOTION_NOTIFY, 0, place); }

XInput::Pointer XInput::pointer() const {
  Pointer found;
  for (xcb_window_t window = root_; window != XCB_NONE;) {
    const auto request = xcb_query_pointer(connection_.get(), window);
    const auto reply = owned(xcb_query_pointer_reply(connection_.get(), request, nullptr));
    if (!reply) break; // the window has gone meanwhile
    found = {window, {reply->win_x, reply->win_y}};
    window = reply->child;
  }
  return found;
}

void XInput::button(int number, bool down) {
  fake(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(number));
}

void XInput::key(std::uint32_t symbol, bool down) { fake(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key_code(symbol)); }

void XInput::fake(std::uint8_t type, std::uint8_t detail, QPoint place) {
  xcb_test_fake_input(connection_.get(), type, detail, XCB_CURRENT_TIME, root_, static_cast<std::int16_t>(place.x()),
                      static_cast<std::int16_t>(place.y()), 0);
  xcb_flush(connection_.get());
}

std::uint8_t XInput::key_code(std::uint32_t symbol) const {
  xcb_connection_t* connection = connection_.get();
  const xcb_setup_t* setup = xcb_get_setup(connection);
  const int first = setup->min_keycode;
  const int count = setup->max_keycode - first + 1;
  const auto request = xcb_get_keyboard_mapping(connection, setup->min_keycode, static_cast<std::uint8_t>(count));
  const auto mapping = owned(xcb_get_keyboard_mapping_reply(connection, request, nullptr));
  if (mapping) {
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (int i = 0; i < count; ++i) {
      const xcb_keysym_t* of_key = symbols + std::ptrdiff_t{i} * mapping->keysyms_per_keycode;
      if (*of_key == symbol) return static_cast<std::uint8_t>(first + i);
    }
  }
  throw std::runtime_error("no key has the symbol " + std::to_string(symbol));
}

} // namespace cserko
