// What user actions mean, the same on every machine: which handlers run, in which order, and what a control does by
// itself. Machines translate their own events into these calls; each call is one event of the window.
#pragma once

#include "platform/window.h"

namespace cserko::input {

/// Presses a button, menu item, label or picture box as a click does. Nothing happens unless it is shown and usable.
void click(Element& element);

/// The mouse on an element. It keeps the mouse from press to release; a left release inside it is also a click for
/// labels, picture boxes and frames.
void mouse_down(Element& element, const MouseEvent& event);
void mouse_move(Element& element, const MouseEvent& event);
void mouse_up(Element& element, const MouseEvent& event);
/// The second press of two quick clicks; comes in place of `mouse_down`.
void double_click(Element& element, const MouseEvent& event);
/// The topmost shown element at a place of the window (twips), other than the one given; null if there is none.
Element* element_at(const Window& window, Point place, const Element* except = nullptr);

/// The mouse on the window itself.
void mouse_down(Window& window, const MouseEvent& event);
void mouse_move(Window& window, const MouseEvent& event);
void mouse_up(Window& window, const MouseEvent& event);

/// A key going down: first the window if it previews keys, then menu shortcuts and default buttons, then the focused
/// element. Returns whether the machine's own treatment of the key (typing, moving the focus) should still follow.
bool key_down(Window& window, KeyEvent event);
void key_up(Window& window, KeyEvent event);

/// The user's ways of changing what a control holds.
void toggle(CheckBox& box);
void choose(OptionButton& option);
void type(TextBox& box, TextView text);
/// Leaving a text box brings the number of its up-down back if what was typed is none, and a number beyond the limits
/// to the nearest one.
void finish_typing(TextBox& box);
void step(UpDown& updown, int direction);
/// A click or tap on an entry of a list; the shift mask counts where several can be selected.
void select(ListBox& list, int index, int shift = shift::none);
void scroll(ScrollBar& bar, int value);
/// The keyboard focus has moved.
void focus(Element& element);
/// The next element that Tab reaches from the focused one; null if there is none.
Element* next_focus(const Window& window, bool backwards);

/// The window's close control.
void close(Window& window);
/// The user has moved the window or given it another size: its place on the screen with the frame, twips.
void place(Window& window, Rect place);
/// The window has come to the front.
void activate(Window& window);
/// A timer is due. It does not fire inside its own handler.
void tick(Timer& timer);

} // namespace cserko::input
