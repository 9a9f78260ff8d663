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
    {Qt::Key_Comma, key::comma},
    {Qt::Key_Period, key::period},
    {Qt::Key_Minus, key::minus},
}};

// The accented capitals of code page 1250 that Unicode has at the same place.
constexpr std::u16string_view accented_capitals = u"ÁÂÄÇÉËÍÎÓÔÖÚÜÝ";

// The code of a letter, in code page 1250; 0 for what is none.
int letter_code(char16_t capital) {
  if (capital >= u'A' && capital <= u'Z') return capital;
  if (capital == u'Ő') return 213;
  if (capital == u'Ű') return 219;
  return accented_capitals.find(capital) != std::u16string_view::npos ? capital : 0;
}

// With Shift a key types a sign of its own, which says little about the key: "%" is on the 5 here and elsewhere not.
// Where the key lies says it: the digits, comma and period have the same place on the keyboards of all countries that
// write from left to right. Scan codes as of the window system, which counts from 8 on.
int code_of_place(const QKeyEvent& event) {
#ifdef Q_OS_WIN
  constexpr quint32 first = 0;
#else
  constexpr quint32 first = 8;
#endif
  if (event.key() == Qt::Key_Underscore) return key::minus;
  if (event.key() == Qt::Key_section) return '0'; // the 0 to the left of the 1
  if (event.nativeScanCode() < first) return 0;
  const quint32 place = event.nativeScanCode() - first;
  constexpr quint32 one = 2;
  constexpr quint32 nine = 10;
  if (place >= one && place <= nine) return '1' + static_cast<int>(place - one);
  if (place == 11) return '0';
  if (place == 51) return key::comma;
  return place == 52 ? key::period : 0;
}

int code_of(const QKeyEvent& event) {
  const int key = event.key();
  for (const auto& [qt, code] : named_keys) {
    if (qt == key) return code;
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return key::f1 + key - Qt::Key_F1;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
  if (key <= 0x20 || key >= 0x1000) return 0;
  if (const int letter = letter_code(upper_case(static_cast<char16_t>(key))); letter != 0) return letter;
  return event.modifiers().testFlag(Qt::ShiftModifier) ? code_of_place(event) : 0;
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
  result.repeated = event.isAutoRepeat();
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
