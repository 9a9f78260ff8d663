// Raw mouse and keyboard events of an X server, as if they came from the devices.
#pragma once

#include <QPoint>
#include <cstdint>
#include <memory>

namespace cserko {

/// A connection of its own to the X server of the environment. Throws std::runtime_error where there is none, or none
/// that takes made-up events.
class XInput {
 public:
  XInput();
  ~XInput();
  XInput(const XInput&) = delete;
  XInput& operator=(const XInput&) = delete;

  /// Where the pointer is: the innermost window under it, and the place in that window, pixels.
  struct Pointer {
    std::uintptr_t window = 0;
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
  struct Server;
  std::unique_ptr<Server> server_;
};

} // namespace cserko
