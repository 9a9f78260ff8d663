#include "tests/x11/x_hand.h"

#include <QCoreApplication>
#include <QEvent>
#include <array>
#include <stdexcept>

namespace cserko {

namespace {

constexpr int pace = 5;       // ms between two actions
constexpr int drag_steps = 8; // moves of a drag

struct Symbol {
  int code;
  std::uint32_t symbol;
};

// Key symbols of the server for the keys that type no character.
constexpr std::array symbols{
    Symbol{key::backspace, 0xff08}, Symbol{key::tab, 0xff09},     Symbol{key::enter, 0xff0d},
    Symbol{key::escape, 0xff1b},    Symbol{key::page_up, 0xff55}, Symbol{key::page_down, 0xff56},
    Symbol{key::end, 0xff57},       Symbol{key::home, 0xff50},    Symbol{key::left, 0xff51},
    Symbol{key::up, 0xff52},        Symbol{key::right, 0xff53},   Symbol{key::down, 0xff54},
    Symbol{key::insert, 0xff63},    Symbol{key::delete_, 0xffff}};
constexpr std::uint32_t shift_symbol = 0xffe1;
constexpr std::uint32_t control_symbol = 0xffe3;
constexpr std::uint32_t alt_symbol = 0xffe9;
constexpr std::uint32_t f1_symbol = 0xffbe;

std::uint32_t symbol_of(int code) {
  for (const Symbol& entry : symbols) {
    if (entry.code == code) return entry.symbol;
  }
  if (code >= key::f1 && code < key::f1 + 12) return f1_symbol + static_cast<std::uint32_t>(code - key::f1);
  // The symbol of a character of Latin 1 is its code; keys are named by what they type without shift.
  if (code == key::space || (code >= '0' && code <= '9')) return static_cast<std::uint32_t>(code);
  if (code >= 'A' && code <= 'Z') return static_cast<std::uint32_t>(code - 'A' + 'a');
  throw std::runtime_error("the hand has no key for the code " + std::to_string(code));
}

} // namespace

XHand::XHand(Place place) : place_(std::move(place)) {
  QCoreApplication::instance()->installEventFilter(this);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { turn(); });
  since_last_.start();
}

void XHand::click(Element& element) {
  then_move(place_(element, {element.Width / 2, element.Height / 2}));
  then_button(true);
  then_button(false);
}

void XHand::drag(Element& element, double dx, double dy) {
  const Point middle{element.Width / 2, element.Height / 2};
  const QPoint from = place_(element, middle);
  const QPoint to = place_(element, {middle.x + dx, middle.y + dy});
  then_move(from);
  then_button(true);
  for (int step = 1; step <= drag_steps; ++step) then_move(from + (to - from) * step / drag_steps);
  then_button(false);
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

bool XHand::idle() const { return actions_.empty() && heard_ >= sent_; }

bool XHand::eventFilter(QObject* watched, QEvent* event) {
  // A window hears of an event first, before the widget that it is meant for.
  if (!watched->isWindowType() || !event->spontaneous()) return false;
  switch (event->type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
  case QEvent::MouseButtonRelease:
  case QEvent::KeyPress:
  case QEvent::KeyRelease:
    ++heard_;
    break;
  default:
    break;
  }
  return false;
}

void XHand::then_move(QPoint place) {
  then([this, place] { input_.move(place); });
  timer_.start(pace);
}

void XHand::then_button(bool down) {
  then([this, down] { input_.button(1, down); }, true);
  timer_.start(pace);
}

void XHand::then_key(std::uint32_t symbol, bool down) {
  then([this, symbol, down] { input_.key(symbol, down); }, true);
  timer_.start(pace);
}

void XHand::turn() {
  if (heard_ < sent_) {
    // The one before has not arrived yet. It never does where nobody may hear it, as behind a modal window.
    if (since_last_.elapsed() < patience) return;
    unheard_ += sent_ - heard_;
    heard_ = sent_;
  }
  if (actions_.empty()) {
    timer_.stop();
    return;
  }
  const Action action = std::move(actions_.front());
  actions_.pop_front();
  if (action.counted) ++sent_;
  since_last_.restart();
  action.act();
}

} // namespace cserko
