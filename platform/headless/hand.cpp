#include "platform/headless/hand.h"

#include "platform/headless/headless_platform.h"

#include <algorithm>

namespace cserko::hand {

namespace {

HeadlessPlatform* machine(const Window& window) { return dynamic_cast<HeadlessPlatform*>(&window.platform()); }

[[noreturn]] void out_of_reach(const Element& element, const std::string& why) {
  throw OutOfReach(to_utf8(element.window().Name) + "." + to_utf8(element.Name) + " " + why);
}

void require_front(const Window& window) {
  const HeadlessPlatform* platform = machine(window);
  if (platform == nullptr || platform->active_window() == &window) return;
  const Window* front = platform->active_window();
  throw OutOfReach("the window " + to_utf8(window.Name) + " is not at the front but " +
                   (front == nullptr ? "none" : to_utf8(front->Name)));
}

void require_reach(const Element& element) {
  require_front(element.window());
  if (!element.shown()) out_of_reach(element, "is not visible");
}

// An element that may go away while the hand is on it.
class Touched {
 public:
  explicit Touched(Element& element)
      : window_(&element.window()), element_(&element), serial_(element.serial()), platform_(machine(*window_)) {}

  bool there() const {
    if (platform_ != nullptr && !platform_->attached(*window_)) return false;
    const auto& elements = window_->elements();
    return std::any_of(elements.begin(), elements.end(),
                       [this](const Element* other) { return other == element_ && other->serial() == serial_; });
  }

 private:
  const Window* window_;
  const Element* element_;
  std::uint64_t serial_;
  HeadlessPlatform* platform_;
};

bool pressed_whole(const Element& element) {
  switch (element.kind()) {
  case ElementKind::Button:
  case ElementKind::CheckBox:
  case ElementKind::OptionButton:
  case ElementKind::MenuItem:
    return true;
  default:
    return false;
  }
}

// The character that a key types, 0 if none.
char16_t character_of(int code, int shift) {
  constexpr int double_o = 0xD5; // of code page 1250, as its other letters
  constexpr int double_u = 0xDB;
  if (code == key::comma) return (shift & shift::shift) != 0 ? u'?' : u',';
  if (code == key::minus) return (shift & shift::shift) != 0 ? u'_' : u'-';
  if (code == key::period) return (shift & shift::shift) != 0 ? u':' : u'.';
  const bool letter = (code >= 'A' && code <= 'Z') || code >= 0xC1;
  const bool digit = code >= '0' && code <= '9';
  if (!letter && !digit && code != key::space) return 0;
  const char16_t capital = code == double_o ? u'Ő' : code == double_u ? u'Ű' : static_cast<char16_t>(code);
  return (shift & shift::shift) != 0 ? capital : lower_case(capital);
}

// The key and shift mask that type a character; the code 0 for a sign whose key has none.
std::pair<int, int> key_of(char16_t character) {
  if (character == u',') return {key::comma, shift::none};
  if (character == u'-') return {key::minus, shift::none};
  if (character == u'.') return {key::period, shift::none};
  const char16_t capital = upper_case(character);
  const bool coded = capital != lower_case(capital) || (character >= u'0' && character <= u'9') || character == u' ';
  if (!coded) return {0, shift::none};
  const int code = capital == u'Ő' ? 0xD5 : capital == u'Ű' ? 0xDB : capital;
  return {code, capital == character && lower_case(character) != character ? shift::shift : shift::none};
}

void type_into(TextBox& box, const KeyEvent& event) {
  Text text = box.text();
  if (event.code == key::backspace && !text.empty()) {
    if (box.all_selected()) text.resize(1);
    text.pop_back();
  } else if (event.character != 0) {
    if (box.all_selected()) text.clear();
    text.push_back(event.character);
  } else {
    return;
  }
  input::type(box, text);
}

int arrow(int code) {
  if (code == key::down || code == key::right) return 1;
  return code == key::up || code == key::left ? -1 : 0;
}

void move_focus(Window& window, bool backwards) {
  if (Element* next = input::next_focus(window, backwards); next != nullptr) input::focus(*next);
}

// What the machine does with a key that nobody has used.
void machine_key(Window& window, const KeyEvent& event) {
  if (event.code == key::tab) {
    move_focus(window, (event.shift & shift::shift) != 0);
    return;
  }
  Element* focused = window.focus();
  if (focused == nullptr || !focused->usable() || (event.shift & (shift::control | shift::alt)) != 0) return;
  if (focused->kind() == ElementKind::TextBox) type_into(static_cast<TextBox&>(*focused), event);
  if (arrow(event.code) == 0) return;
  if (focused->kind() == ElementKind::ListBox || focused->kind() == ElementKind::FileListBox) {
    auto& list = static_cast<ListBox&>(*focused);
    const int next = std::clamp(list.list_index() + arrow(event.code), 0, std::max(0, list.count() - 1));
    if (list.count() > 0 && next != list.list_index()) input::select(list, next);
  } else if (focused->kind() == ElementKind::ScrollBar) {
    auto& bar = static_cast<ScrollBar&>(*focused);
    input::scroll(bar, bar.value() + arrow(event.code) * bar.SmallChange);
  }
}

void send_key(Window& window, KeyEvent event) {
  require_front(window);
  HeadlessPlatform* platform = machine(window);
  const bool machine_follows = input::key_down(window, event);
  if (platform == nullptr) return;
  if (machine_follows && platform->attached(window) && window.visible()) machine_key(window, event);
  // The key comes up in whatever window is at the front by then.
  if (Window* front = platform->active_window(); front != nullptr && !platform->ended()) input::key_up(*front, event);
}

} // namespace

void click(Element& element) {
  if (!pressed_whole(element)) {
    click(element, MouseButton::Left);
    return;
  }
  if (element.kind() == ElementKind::MenuItem) {
    require_front(element.window());
  } else {
    require_reach(element);
    const Touched touched(element);
    if (element.focusable() && element.TabStop && element.usable()) input::focus(element);
    if (!touched.there()) return;
  }
  input::click(element);
}

void click(Element& element, MouseButton button, int shift) {
  const Touched touched(element);
  press(element, element.Width / 2, element.Height / 2, button, shift);
  if (touched.there()) release(element, element.Width / 2, element.Height / 2, button, shift);
}

void drag(Element& element, double dx, double dy) {
  const Point middle{element.Width / 2, element.Height / 2};
  const Point corner = element.position_in_window();
  drag_to(element, middle, {corner.x + middle.x + dx, corner.y + middle.y + dy});
}

void drag_to(Element& element, Point from, Point to_in_window) {
  constexpr int steps = 4;
  const Point corner = element.position_in_window();
  const Point way{to_in_window.x - corner.x - from.x, to_in_window.y - corner.y - from.y};
  std::vector<Point> path{from};
  for (int step = 1; step <= steps; ++step)
    path.push_back({from.x + way.x * step / steps, from.y + way.y * step / steps});
  draw(element, path);
}

void draw(Element& element, const std::vector<Point>& path, MouseButton button) {
  const Touched touched(element);
  const Point corner = element.position_in_window();
  // The mouse moves over the window; the element, which may follow it, sees it in its own coordinates.
  const auto seen = [&](const Point& point) -> Point {
    const Point own = element.position_in_window();
    return {corner.x + point.x - own.x, corner.y + point.y - own.y};
  };
  press(element, path.front().x, path.front().y, button);
  for (std::size_t i = 1; i < path.size() && touched.there(); ++i) {
    const Point place = seen(path[i]);
    move(element, place.x, place.y, button);
  }
  if (!touched.there()) return;
  const Point last = seen(path.back());
  release(element, last.x, last.y, button);
}

void double_click(Element& element) {
  const Touched touched(element);
  const MouseEvent middle{MouseButton::Left, shift::none, element.Width / 2, element.Height / 2};
  click(element, MouseButton::Left);
  if (!touched.there()) return;
  require_reach(element);
  input::double_click(element, middle);
  if (touched.there()) release(element, middle.x, middle.y);
}

void press(Element& element, double x, double y, MouseButton button, int shift) {
  require_reach(element);
  input::mouse_down(element, {button, shift, x, y});
}

void move(Element& element, double x, double y, MouseButton button, int shift) {
  input::mouse_move(element, {button, shift, x, y});
}

void release(Element& element, double x, double y, MouseButton button, int shift) {
  input::mouse_up(element, {button, shift, x, y});
}

Element* element_at(const Window& window, double x, double y) { return input::element_at(window, {x, y}); }

void click_at(Window& window, double x, double y, MouseButton button, int shift) {
  require_front(window);
  Element* element = element_at(window, x, y);
  if (element == nullptr) {
    input::mouse_down(window, {button, shift, x, y});
    input::mouse_up(window, {button, shift, x, y});
    return;
  }
  if (pressed_whole(*element) && button == MouseButton::Left) {
    click(*element);
    return;
  }
  const Touched touched(*element);
  const Point corner = element->position_in_window();
  press(*element, x - corner.x, y - corner.y, button, shift);
  if (touched.there()) release(*element, x - corner.x, y - corner.y, button, shift);
}

void key(Window& window, int code, int shift) { send_key(window, {code, shift, character_of(code, shift)}); }

void type(Window& window, TextView text) {
  for (const char16_t character : text) {
    const auto [code, shift] = key_of(character);
    send_key(window, {code, shift, character});
  }
}

void write(TextBox& box, TextView text) {
  require_reach(box);
  input::focus(box);
  input::type(box, text);
}

void select(ListBox& list, int index, int shift) {
  require_reach(list);
  input::focus(list);
  input::select(list, index, shift);
}

void select(ListBox& list, TextView entry) {
  const int index = list.find(entry);
  if (index < 0) out_of_reach(list, "has no entry " + to_utf8(entry));
  select(list, index);
}

void step(UpDown& updown, int direction) {
  require_reach(updown);
  input::step(updown, direction);
}

void scroll(ScrollBar& bar, int value) {
  require_reach(bar);
  input::focus(bar);
  input::scroll(bar, value);
}

void close(Window& window) {
  require_front(window);
  input::close(window);
}

void move_window(Window& window, double left, double top) {
  require_front(window);
  if (window.Border == WindowBorder::None) throw OutOfReach(to_utf8(window.Name) + " has no title bar");
  input::place(window, {left, top, window.Width, window.Height});
}

void resize_window(Window& window, double width, double height) {
  require_front(window);
  if (window.Border != WindowBorder::Sizable) throw OutOfReach(to_utf8(window.Name) + " cannot be resized");
  input::place(window, {window.Left, window.Top, width, height});
}

} // namespace cserko::hand
