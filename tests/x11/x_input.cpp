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

struct Disconnect {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

} // namespace

struct XInput::Server {
  void fake(std::uint8_t type, std::uint8_t detail, QPoint place = {}) const;
  std::uint8_t key_code(std::uint32_t symbol) const;

  std::unique_ptr<xcb_connection_t, Disconnect> connection{xcb_connect(nullptr, nullptr)};
  std::uint32_t root = 0;
};

XInput::XInput() : server_(std::make_unique<Server>()) {
  xcb_connection_t* connection = server_->connection.get();
  if (xcb_connection_has_error(connection) != 0) throw std::runtime_error("no X server can be reached");
  const auto version = owned(xcb_test_get_version_reply(connection, xcb_test_get_version(connection, 2, 2), nullptr));
  if (!version) throw std::runtime_error("the X server takes no made-up events");
  server_->root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

XInput::~XInput() = default;

void XInput::move(QPoint place) { server_->fake(XCB_MOTION_NOTIFY, 0, place); }

XInput::Pointer XInput::pointer() const {
  xcb_connection_t* connection = server_->connection.get();
  Pointer found;
  for (xcb_window_t window = server_->root; window != XCB_NONE;) {
    const auto reply = owned(xcb_query_pointer_reply(connection, xcb_query_pointer(connection, window), nullptr));
    if (!reply) break; // the window has gone meanwhile
    found = {window, {reply->win_x, reply->win_y}};
    window = reply->child;
  }
  return found;
}

void XInput::button(int number, bool down) {
  server_->fake(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(number));
}

void XInput::key(std::uint32_t symbol, bool down) {
  server_->fake(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, server_->key_code(symbol));
}

void XInput::Server::fake(std::uint8_t type, std::uint8_t detail, QPoint place) const {
  xcb_test_fake_input(connection.get(), type, detail, XCB_CURRENT_TIME, root, static_cast<std::int16_t>(place.x()),
                      static_cast<std::int16_t>(place.y()), 0);
  xcb_flush(connection.get());
}

std::uint8_t XInput::Server::key_code(std::uint32_t symbol) const {
  const xcb_setup_t* setup = xcb_get_setup(connection.get());
  const int first = setup->min_keycode;
  const int count = setup->max_keycode - first + 1;
  const auto request = xcb_get_keyboard_mapping(connection.get(), setup->min_keycode, static_cast<std::uint8_t>(count));
  const auto mapping = owned(xcb_get_keyboard_mapping_reply(connection.get(), request, nullptr));
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
