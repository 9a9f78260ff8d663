#include "tests/x11/x_hand.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <array>
#include <stdexcept>

namespace cserko {

namespace {

constexpr int pace = 5;               // ms between two actions
constexpr int drag_steps = 8;         // moves of a drag
constexpr int release_patience = 200; // ms for a release when another window has come to the front

struct Symbol {
  int code;
  std::uint32_t symbol;
};

// Key symbols of the server for the keys that type no character.
constexpr std::array symbols{Symbol{key::backspace, 0xff08},
                             Symbol{key::tab, 0xff09},
                             Symbol{key::enter, 0xff0d},
                             Symbol{key::escape, 0xff1b},
                             Symbol{key::page_up, 0xff55},
                             Symbol{key::page_down, 0xff56},
                             Symbol{key::end, 0xff57},
                             Symbol{key::home, 0xff50},
                             Symbol{key::left, 0xff51},
                             Symbol{key::up, 0xff52},
                             Symbol{key::right, 0xff53},
                             Symbol{key::down, 0xff54},
                             Symbol{190, 0x2e},
                             Symbol{key::insert, 0xff63},
                             Symbol{key::delete_, 0xffff}};
constexpr std::uint32_t shift_symbol = 0xffe1;
constexpr std::uint32_t control_symbol = 0xffe3;
constexpr std::uint32_t alt_symbol = 0xffe9;
constexpr std::uint32_t f1_symbol = 0xffbe;

std::uint32_t symbol_of(int code) {
  for (const Symbol& entry : symbols) {
    if (entry.code == code) return entry.symbol;
  }
  if (code >= key::f1 && code < key::f1 + 12) return f1_symbol + static_cast<std::uint32_t>(code - key::f1);
  if (code == key::comma) return ',';
  if (code == key::minus) return '-';
  if (code == key::period) return '.';
  // The symbol of a character of Latin 1 is its code; keys are named by what they type without shift.
  if (code == key::space || (code >= '0' && code <= '9')) return static_cast<std::uint32_t>(code);
  if (code >= 'A' && code <= 'Z') return static_cast<std::uint32_t>(code - 'A' + 'a');
  throw std::runtime_error("the hand has no key for the code " + std::to_string(code));
}

// Buttons of the server.
int number_of(MouseButton button) {
  switch (button) {
  case MouseButton::Right:
    return 3;
  case MouseButton::Middle:
    return 2;
  default:
    return 1;
  }
}

bool is_press(QEvent::Type type) { return type == QEvent::MouseButtonPress || type == QEvent::KeyPress; }

} // namespace

XHand::XHand(Place place) : place_(std::move(place)) {
  QCoreApplication::instance()->installEventFilter(this);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { turn(); });
  since_last_.start();
}

void XHand::click(Element& element, MouseButton button) {
  then_press(place_(element, {element.Width / 2, element.Height / 2}), button);
  then_release(button);
}

void XHand::drag(Element& element, double dx, double dy) {
  const Point middle{element.Width / 2, element.Height / 2};
  std::vector<Point> path{middle};
  for (int step = 1; step <= drag_steps; ++step)
    path.push_back({middle.x + dx * step / drag_steps, middle.y + dy * step / drag_steps});
  draw(element, path);
}

void XHand::draw(Element& element, const std::vector<Point>& path, MouseButton button) {
  // The element may follow the mouse: its place at the press counts.
  const Spot from = place_(element, path.front());
  then_press(from, button);
  for (std::size_t i = 1; i < path.size(); ++i) {
    const QPoint place = place_(element, path[i]).place;
    then({.act = [this, from, place] {
      if (from.window != nullptr) input_.move(from.window->mapToGlobal(place));
    }});
  }
  then_release(button);
}

void XHand::key(int code, int shift) {
  const std::array modifiers{std::pair{shift::shift, shift_symbol}, std::pair{shift::control, control_symbol},
                             std::pair{shift::alt, alt_symbol}};
  for (const auto& [bit, symbol] : modifiers) {
    if ((shift & bit) != 0) then_key(symbol, true);
  }
  then_key(symbol_of(code), true);
  then_key(symbol_of(code), false);
  for (const auto& [bit, symbol] : modifiers) {
    if ((shift & bit) != 0) then_key(symbol, false);
  }
}

bool XHand::eventFilter(QObject* watched, QEvent* event) {
  // A window hears of an event first, before the widget that it is meant for. Of a double click it hears as of a press
  // like any other, and once more as a double click. A key that is held repeats itself.
  if (!watched->isWindowType() || !event->spontaneous() || event->type() != awaited_) return false;
  if (const auto* key = dynamic_cast<QKeyEvent*>(event); key != nullptr && key->isAutoRepeat()) return false;
  if (is_press(*awaited_)) pressed_ = watched;
  awaited_.reset();
  return false;
}

void XHand::then(Action action) {
  actions_.push_back(std::move(action));
  timer_.start(pace);
}

void XHand::then_press(const Spot& spot, MouseButton button) {
  then({.ready = [this, spot] { return aim(spot); },
        .act = [this, button] { input_.button(number_of(button), true); },
        .heard_as = QEvent::MouseButtonPress});
}

void XHand::then_release(MouseButton button) {
  then({.act = [this, button] { input_.button(number_of(button), false); }, .heard_as = QEvent::MouseButtonRelease});
}

void XHand::then_key(std::uint32_t symbol, bool down) {
  then({.act = [this, symbol, down] { input_.key(symbol, down); },
        .heard_as = down ? QEvent::KeyPress : QEvent::KeyRelease});
}

// Moves the pointer. A window that has just come may still be moved or raised by the window manager, and nobody presses
// before they see the pointer where they want it.
bool XHand::aim(const Spot& spot) {
  if (spot.window == nullptr) return false;
  input_.move(spot.window->mapToGlobal(spot.place));
  const XInput::Pointer pointer = input_.pointer();
  return pointer.window == spot.window->winId() && pointer.place == spot.place;
}

// A press that opens or closes a window may leave its release to nobody.
bool XHand::still_awaiting() {
  if (!awaited_) return false;
  const bool press = is_press(*awaited_);
  const bool window_changed = !press && pressed_ != QGuiApplication::focusWindow();
  if (since_last_.elapsed() < (window_changed ? release_patience : patience)) return true;
  if (press) ++lost_;
  awaited_.reset();
  return false;
}

void XHand::turn() {
  if (still_awaiting()) return;
  if (actions_.empty()) {
    timer_.stop();
    return;
  }
  if (const Action& next = actions_.front(); next.ready && !next.ready()) {
    if (since_last_.elapsed() < patience) return;
    ++lost_;
    actions_.clear();
    return;
  }
  const Action action = std::move(actions_.front());
  actions_.pop_front();
  awaited_ = action.heard_as;
  since_last_.restart();
  action.act();
}

} // namespace cserko
