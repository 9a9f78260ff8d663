#include "platform/qt/keys.h"

#include "platform/qt/qt_text.h"

#include <array>
#include <utility>

namespace cserko {

namespace {

constexpr std::array<std::pair<int, int>, 23> named_keys{{
    {Qt::Key_Backspace, key::backspace},
    {Qt::Key_Tab, key::tab},
    {Qt::Key_Backtab, key::tab},
    {Qt::Key_Return, key::enter},
    {Qt::Key_Enter, key::enter},
    {Qt::Key_Shift, key::shift},
    {Qt::Key_Control, key::control},
    {Qt::Key_Alt, key::alt},
    {Qt::Key_Escape, key::escape},
    {Qt::Key_Space, key::space},
    {Qt::Key_PageUp, key::page_up},
    {Qt::Key_PageDown, key::page_down},
    {Qt::Key_End, key::end},
    {Qt::Key_Home, key::home},
    {Qt::Key_Left, key::left},
    {Qt::Key_Up, key::up},
    {Qt::Key_Right, key::right},
    {Qt::Key_Down, key::down},
    {Qt::Key_Insert, key::insert},
    {Qt::Key_Delete, key::delete_},
    {Qt::Key_Comma, 188},
    {Qt::Key_Period, 190},
    {Qt::Key_Minus, 189},
}};

// The capitals of the Hungarian letters that have a code of their own in code page 1250, where it is not the Unicode
// one.
int letter_code(char16_t capital) {
  switch (capital) {
  case u'Ő':
    return 213;
  case u'Ű':
    return 219;
  default:
    return capital < 256 ? capital : 0;
  }
}

int code_of(const QKeyEvent& event) {
  const int key = event.key();
  for (const auto& [qt, code] : named_keys) {
    if (qt == key) return code;
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return key::f1 + key - Qt::Key_F1;
  if (key > 0x20 && key < 0x1000) return letter_code(upper_case(static_cast<char16_t>(key)));
  return 0;
}

} // namespace

int to_shift_mask(Qt::KeyboardModifiers modifiers) {
  int mask = shift::none;
  if (modifiers.testFlag(Qt::ShiftModifier)) mask |= shift::shift;
  if (modifiers.testFlag(Qt::ControlModifier)) mask |= shift::control;
  if (modifiers.testFlag(Qt::AltModifier)) mask |= shift::alt;
  return mask;
}

KeyEvent to_key_event(const QKeyEvent& event) {
  KeyEvent result;
  result.code = code_of(event);
  result.shift = to_shift_mask(event.modifiers());
  // A modifier that goes down is not yet one that is held.
  if (result.code == key::shift) result.shift &= ~shift::shift;
  if (result.code == key::control) result.shift &= ~shift::control;
  if (result.code == key::alt) result.shift &= ~shift::alt;
  const Text typed = from_qt(event.text());
  constexpr char16_t delete_character = 0x7F;
  if (typed.size() == 1 && typed[0] >= u' ' && typed[0] != delete_character) result.character = typed[0];
  return result;
}

MouseButton to_mouse_button(Qt::MouseButton button) {
  switch (button) {
  case Qt::LeftButton:
    return MouseButton::Left;
  case Qt::RightButton:
    return MouseButton::Right;
  case Qt::MiddleButton:
    return MouseButton::Middle;
  default:
    return MouseButton::None;
  }
}

MouseButton held_button(Qt::MouseButtons buttons) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (buttons.testFlag(button)) return to_mouse_button(button);
  }
  return MouseButton::None;
}

} // namespace cserko
