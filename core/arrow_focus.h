// Arrow keys that move the keyboard focus, so that what is clicked can be reached without a mouse.
#pragma once

#include "platform/window.h"

namespace cserko {

/// Moves the focus to the nearest control in the direction of an arrow key and uses the key up. Any other key, and an
/// arrow with Ctrl, which belongs to the control that has the focus, is left alone.
void move_focus_by_arrow(Window& window, KeyEvent& event);

} // namespace cserko
