// Keys and buttons of Qt as the system's codes.
#pragma once

#include "platform/elements.h"

#include <QKeyEvent>

namespace cserko {

/// The key event as the suite gets it; code 0 for a key that has none.
KeyEvent to_key_event(const QKeyEvent& event);
int to_shift_mask(Qt::KeyboardModifiers modifiers);
MouseButton to_mouse_button(Qt::MouseButton button);
/// The button that is held during a move, the left one first.
MouseButton held_button(Qt::MouseButtons buttons);

} // namespace cserko
