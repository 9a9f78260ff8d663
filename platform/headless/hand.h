// A person's hand for tests: what mouse and keyboard do to elements of the headless machine. A hand can only reach what
// a person could: elements that are shown in the window at the front. Anything else throws OutOfReach.
#pragma once

#include "platform/input.h"

#include <stdexcept>

namespace cserko {

/// A test tries to touch what nobody could touch.
class OutOfReach : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

namespace hand {

/// Presses and releases the left button in the middle of an element; a disabled one does not react.
void click(Element& element);
/// The same with another button, or with keys held down.
void click(Element& element, MouseButton button, int shift = shift::none);
/// Two quick clicks in the middle of an element.
void double_click(Element& element);

/// Takes an element in its middle, moves it in steps by that distance (twips) and lets go.
void drag(Element& element, double dx, double dy);
/// Takes it at a place of its own and drags it to a place of its window (twips).
void drag_to(Element& element, Point from, Point to_in_window);
/// Draws freehand: presses at the first point, moves through all others and lets go at the last. The points are in the
/// element's coordinates as it stands at the press (twips).
void draw(Element& element, const std::vector<Point>& path, MouseButton button = MouseButton::Left);

/// Single steps of the mouse, in the element's own coordinates (twips).
void press(Element& element, double x, double y, MouseButton button = MouseButton::Left, int shift = shift::none);
void move(Element& element, double x, double y, MouseButton button = MouseButton::Left, int shift = shift::none);
void release(Element& element, double x, double y, MouseButton button = MouseButton::Left, int shift = shift::none);

/// Clicks whatever lies uppermost at a place of the window (twips); the window itself where no element does.
void click_at(Window& window, double x, double y, MouseButton button = MouseButton::Left, int shift = shift::none);
/// The uppermost shown element at a place of the window, null if there is none.
Element* element_at(const Window& window, double x, double y);

/// Presses and releases a key. Letters and digits have the code of their capital character. What the machine itself
/// does with a key follows: Tab moves the focus, characters go into a text box, arrows move in lists and scroll bars.
void key(Window& window, int code, int shift = shift::none);
/// Types a text, key by key.
void type(Window& window, TextView text);

/// Puts the focus into a text box and replaces its text.
void write(TextBox& box, TextView text);
void select(ListBox& list, int index, int shift = shift::none);
void select(ListBox& list, TextView entry);
void step(UpDown& updown, int direction);
void scroll(ScrollBar& bar, int value);
/// The window's close control.
void close(Window& window);
/// Takes the window by its title bar to a place of the screen (twips).
void move_window(Window& window, double left, double top);
/// Gives a window that can be resized another size, with its frame (twips).
void resize_window(Window& window, double width, double height);

} // namespace hand
} // namespace cserko
