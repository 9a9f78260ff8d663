// Raw mouse and keyboard events of an X server, as if they came from the devices.
#pragma once

#include <QPoint>
#include <cstdint>
#include <memory>

struct xcb_connection_t;

namespace cserko {

/// A connection of its own to the X server of the environment. Throws std::runtime_error where there is none, or none
/// that takes made-up events.
class XInput {
 public:
  XInput();

  /// Where the pointer is: the innermost window under it, and the place in that window, pixels.
  struct Pointer {
    std::uint32_t window = 0;
    QPoint place;
  };

  /// Moves the pointer to a place of the screen, pixels.
  void move(QPoint place);
  /// As the server sees it, behind all moves so far.
  Pointer pointer() const;
  /// Buttons of the server: 1 left, 2 middle, 3 right.
  void button(int number, bool down);
  /// A key by its key symbol. Throws std::runtime_error for a symbol that no key has.
  void key(std::uint32_t symbol, bool down);

 private:
  void fake(std::uint8_t type, std::uint8_t detail, QPoint place = {});
  std::uint8_t key_code(std::uint32_t symbol) const;

  struct Disconnect {
    void operator()(xcb_connection_t* connection) const;
  };
  std::unique_ptr<xcb_connection_t, Disconnect> connection_;
  std::uint32_t root_ = 0;
};

} // namespace cserko
