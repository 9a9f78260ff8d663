#include "platform/input.h"

#include "platform/access_key.h"
#include "platform/platform.h"

#include <algorithm>

namespace cserko::input {

namespace {

// What is hidden cannot keep the focus: it goes on to the next control, as by the Tab key.
void leave_hidden_focus(Window& window) {
  const Element* focused = window.focus();
  if (window.Enabled && focused != nullptr && !focused->shown()) window.set_focus(next_focus(window, false));
}

// Every event of a window goes through its host, and the window keeps what is taken out of it until the event is over.
void run(Window& window, const std::function<void()>& handler) {
  const auto counted = [&window, &handler] {
    window.enter_event();
    struct Leave {
      Window& window;
      ~Leave() { window.leave_event(); }
    } leave{window};
    handler();
    leave_hidden_focus(window);
  };
  if (Host* host = window.platform().host; host != nullptr) {
    host->run_event(window, counted);
  } else {
    counted();
  }
}

bool live(const Element& element) { return element.shown() && element.usable() && element.window().Enabled; }

bool inside(const Element& element, const MouseEvent& event) {
  return event.x >= 0 && event.y >= 0 && event.x < element.Width && event.y < element.Height;
}

void drop(Element& source, const MouseEvent& event) {
  const Point corner = source.position_in_window();
  const Point place{corner.x + event.x, corner.y + event.y};
  Element* target = element_at(source.window(), place, &source);
  if (target == nullptr || !target->DragDrop) return;
  const Point origin = target->position_in_window();
  target->DragDrop(source, place.x - origin.x, place.y - origin.y);
}

void press(Element& element) {
  switch (element.kind()) {
  case ElementKind::CheckBox: {
    auto& box = static_cast<CheckBox&>(element);
    box.set_value(box.ticked() ? 0 : 1);
    break;
  }
  case ElementKind::OptionButton:
    static_cast<OptionButton&>(element).set_value(true);
    break;
  default:
    if (element.Click) element.Click();
  }
}

template<class E, class Matches> E* first(const Window& window, ElementKind kind, Matches matches) {
  for (Element* element : window.elements()) {
    if (element->kind() == kind && live(*element) && matches(static_cast<E&>(*element)))
      return static_cast<E*>(element);
  }
  return nullptr;
}

bool choose_by_shortcut(Window& window, const KeyEvent& event) {
  auto* item = first<MenuItem>(window, ElementKind::MenuItem, [&](const MenuItem& m) {
    return m.ShortcutKey != 0 && m.ShortcutKey == event.code && m.ShortcutShift == event.shift;
  });
  if (item == nullptr) return false;
  press(*item);
  return true;
}

// Alt and the marked character of a button, check box or option chooses it; of a label moves on to the next control.
bool choose_by_mnemonic(Window& window, const KeyEvent& event) {
  if (event.shift != shift::alt || event.character == 0) return false;
  const char16_t wanted = lower_case(event.character);
  for (Element* element : window.elements()) {
    const ElementKind kind = element->kind();
    const bool control =
        kind == ElementKind::Button || kind == ElementKind::CheckBox || kind == ElementKind::OptionButton;
    if (TextBox* box = box_behind(*element); box != nullptr && mnemonic(element->Caption) == wanted && live(*box)) {
      window.set_focus(box);
      return true;
    }
    if (!control || !live(*element) || mnemonic(element->Caption) != wanted) continue;
    window.set_focus(element);
    press(*element);
    return true;
  }
  return false;
}

bool is_default(const Button& button) { return button.Default; }

bool press_default(Window& window, const KeyEvent& event, const Element* focused) {
  const bool on_button = focused != nullptr && focused->kind() == ElementKind::Button;
  Button* button = nullptr;
  if (event.code == key::enter && !on_button) {
    button = first<Button>(window, ElementKind::Button, is_default);
  } else if (event.code == key::escape) {
    button = first<Button>(window, ElementKind::Button, [](const Button& b) { return b.Cancel; });
  }
  if (button == nullptr) return false;
  if (event.repeated) return true;
  // The button is to find in the box what leaving it would have made of it.
  if (event.code == key::enter && focused != nullptr && focused->kind() == ElementKind::TextBox) {
    if (UpDown* stepper = static_cast<const TextBox*>(focused)->Stepper) stepper->finish_typing();
  }
  if (live(*button)) press(*button);
  return true;
}

// The space bar clicks what can be chosen, and so does Enter unless it belongs to the window's default button.
bool choose_by_key(Element& element, const KeyEvent& event) {
  const bool enter =
      event.code == key::enter && first<Button>(element.window(), ElementKind::Button, is_default) == nullptr;
  if (!element.Click || !(event.code == key::space || enter)) return false;
  press(element);
  return true;
}

// Arrow keys go round among the options of one group.
bool move_among_options(OptionButton& option, int code) {
  const int direction = code == key::right || code == key::down ? 1 : code == key::left || code == key::up ? -1 : 0;
  if (direction == 0) return false;
  std::vector<Element*> group;
  for (Element* element : option.window().elements()) {
    if (element->kind() == ElementKind::OptionButton && element->container() == option.container() && live(*element))
      group.push_back(element);
  }
  const auto count = static_cast<int>(group.size());
  const auto here = static_cast<int>(std::find(group.begin(), group.end(), &option) - group.begin());
  Element* next = group[static_cast<std::size_t>((here + direction + count) % count)];
  option.window().set_focus(next);
  press(*next);
  return true;
}

bool step_by_key(UpDown& updown, int code) {
  if (code != key::up && code != key::down) return false;
  updown.set_value(updown.clamped(updown.value() + (code == key::up ? 1 : -1) * updown.Increment));
  return true;
}

// Selects the entries from the one touched last to this one, or takes their selection away, as that one's is.
void extend_selection(ListBox& list, int index) {
  const int anchor = std::max(0, list.list_index());
  std::vector<bool> wanted = list.selection();
  const bool selected = list.list_index() < 0 || list.is_selected(anchor);
  for (int i = std::min(anchor, index); i <= std::max(anchor, index); ++i)
    wanted[static_cast<std::size_t>(i)] = selected;
  list.set_list_index(index);
  list.set_selection(wanted);
}

void turn_over(ListBox& list, int index) {
  list.set_list_index(index);
  list.set_selected(index, !list.is_selected(index));
}

// The entry that a key leads to in a list, -1 for a key that leads nowhere.
int entry_towards(const ListBox& list, int code) {
  const double line = list.window().platform().measure(list.Font, u"Á").height;
  const int page = std::max(1, static_cast<int>(list.Height / std::max(1.0, line)) - 1);
  const int here = list.list_index();
  const int last = list.count() - 1;
  switch (code) {
  case key::up:
  case key::left:
    return std::max(0, here - 1);
  case key::down:
  case key::right:
    return std::min(last, here + 1);
  case key::page_up:
    return std::max(0, here - page);
  case key::page_down:
    return std::min(last, here + page);
  case key::home:
    return 0;
  case key::end:
    return last;
  default:
    return -1;
  }
}

bool key_among_several(ListBox& list, const KeyEvent& event) {
  if (list.count() == 0) return false;
  if (event.code == key::space) {
    turn_over(list, std::max(0, list.list_index()));
    return true;
  }
  if (event.code == 'A' && event.shift == shift::control) {
    list.set_selection(std::vector<bool>(list.Items.size(), true));
    return true;
  }
  const int next = entry_towards(list, event.code);
  if (next < 0) return false;
  if ((event.shift & shift::shift) != 0) {
    extend_selection(list, next);
  } else {
    list.set_list_index(next);
  }
  return true;
}

bool presses(const Element& element, const KeyEvent& event) {
  const ElementKind kind = element.kind();
  if (kind == ElementKind::TextBox || kind == ElementKind::UpDown || kind == ElementKind::ScrollBar) return false;
  return event.code == key::space || event.code == key::enter;
}

// What the focused control does with a key by itself. Returns whether it has used it.
bool control_key(Element& element, const KeyEvent& event) {
  // A key that is held down presses once.
  if (event.repeated && presses(element, event)) return true;
  switch (element.kind()) {
  case ElementKind::Label:
  case ElementKind::PictureBox:
    return choose_by_key(element, event);
  case ElementKind::Button:
    if (event.code != key::enter && event.code != key::space) return false;
    press(element);
    return true;
  case ElementKind::OptionButton:
    if (move_among_options(static_cast<OptionButton&>(element), event.code)) return true;
    [[fallthrough]];
  case ElementKind::CheckBox:
    if (event.code != key::space) return false;
    press(element);
    return true;
  case ElementKind::TextBox: {
    UpDown* stepper = static_cast<TextBox&>(element).Stepper;
    return stepper != nullptr && step_by_key(*stepper, event.code);
  }
  case ElementKind::UpDown:
    return step_by_key(static_cast<UpDown&>(element), event.code);
  case ElementKind::ListBox:
  case ElementKind::FileListBox: {
    auto& list = static_cast<ListBox&>(element);
    return list.MultiSelect && key_among_several(list, event);
  }
  default:
    return false;
  }
}

// Space and Enter in a window that has just come up, or that somebody hammers on.
bool comes_too_early(Window& window, const KeyEvent& event) {
  if (window.KeyPause == 0 || (event.code != key::space && event.code != key::enter)) return false;
  if (!event.repeated && window.platform().now() >= window.keys_heard_from()) return false;
  window.put_off_keys();
  return true;
}

bool key_down_in_event(Window& window, KeyEvent& event) {
  if (comes_too_early(window, event)) return false;
  if (choose_by_shortcut(window, event)) return false;
  if (window.KeyPreview) window.KeyDown(event);
  if (event.code == 0 || !window.visible()) return false;
  Element* focused = window.focus();
  if (focused != nullptr && live(*focused) && focused->KeyDown) focused->KeyDown(event);
  if (event.code == 0 || !window.visible()) return false;
  if (!window.KeyPreview) window.KeyDown(event);
  if (event.code == 0 || !window.visible()) return false;
  if (choose_by_mnemonic(window, event)) return false;
  focused = window.focus();
  if (focused != nullptr && live(*focused) && control_key(*focused, event)) return false;
  return !press_default(window, event, focused);
}

} // namespace

Element* element_at(const Window& window, Point place, const Element* except) {
  const std::vector<Element*> elements = window.stacking();
  const auto hit = std::find_if(elements.rbegin(), elements.rend(), [&](const Element* element) {
    const ElementKind kind = element->kind();
    const bool flat = kind == ElementKind::Line || kind == ElementKind::Shape || kind == ElementKind::MenuItem ||
                      kind == ElementKind::Timer;
    const Point corner = element->position_in_window();
    return !flat && element != except && element->shown() &&
           inside(*element, {MouseButton::None, 0, place.x - corner.x, place.y - corner.y});
  });
  return hit == elements.rend() ? nullptr : *hit;
}

void click(Element& element) {
  run(element.window(), [&element] {
    if (live(element)) press(element);
  });
}

void mouse_down(Element& element, const MouseEvent& event) {
  run(element.window(), [&] {
    if (!live(element)) return;
    if (element.focusable() && element.TabStop) element.window().set_focus(&element);
    if (element.MouseDown) element.MouseDown(event);
  });
}

void double_click(Element& element, const MouseEvent& event) {
  mouse_down(element, event);
  if (!element.DblClick || event.button != MouseButton::Left) return;
  run(element.window(), [&element] {
    if (live(element)) element.DblClick();
  });
}

void mouse_move(Element& element, const MouseEvent& event) {
  if (!element.MouseMove) return;
  run(element.window(), [&] {
    if (live(element)) element.MouseMove(event);
  });
}

void mouse_up(Element& element, const MouseEvent& event) {
  run(element.window(), [&] {
    if (!live(element)) return;
    const bool clicked = event.button == MouseButton::Left && inside(element, event);
    if (element.MouseUp) element.MouseUp(event);
    if (element.DragAutomatic && event.button == MouseButton::Left) drop(element, event);
    if (clicked && element.Click && live(element)) element.Click();
  });
}

void mouse_down(Window& window, const MouseEvent& event) {
  run(window, [&] {
    if (window.Enabled) window.MouseDown(event);
  });
}

void mouse_move(Window& window, const MouseEvent& event) {
  run(window, [&] {
    if (window.Enabled) window.MouseMove(event);
  });
}

void mouse_up(Window& window, const MouseEvent& event) {
  run(window, [&] {
    if (window.Enabled) window.MouseUp(event);
  });
}

bool key_down(Window& window, KeyEvent event) {
  // Signs of keys without a code are text alone.
  if (event.code == 0) return window.Enabled;
  bool machine_follows = false;
  run(window, [&] {
    if (window.Enabled) machine_follows = key_down_in_event(window, event);
  });
  return machine_follows;
}

void key_up(Window& window, KeyEvent event) {
  if (event.code == 0) return;
  run(window, [&] {
    if (window.Enabled) window.KeyUp(event);
  });
}

void toggle(CheckBox& box) { click(box); }

void choose(OptionButton& option) { click(option); }

void type(TextBox& box, TextView text) {
  run(box.window(), [&] {
    if (!live(box) || box.Locked) return;
    const bool limited = box.MaxLength > 0 && text.size() > static_cast<std::size_t>(box.MaxLength);
    box.set_text(limited ? text.substr(0, static_cast<std::size_t>(box.MaxLength)) : text);
    if (box.Stepper != nullptr) box.Stepper->take_typed();
  });
}

void finish_typing(TextBox& box) {
  if (box.Stepper == nullptr) return;
  run(box.window(), [&box] { box.Stepper->finish_typing(); });
}

void step(UpDown& updown, int direction) {
  run(updown.window(), [&] {
    if (live(updown)) updown.set_value(updown.clamped(updown.value() + direction * updown.Increment));
  });
}

void select(ListBox& list, int index, int shift) {
  run(list.window(), [&] {
    if (!live(list)) return;
    if (!list.MultiSelect) {
      list.set_list_index(index);
    } else if ((shift & shift::shift) != 0) {
      extend_selection(list, index);
    } else {
      turn_over(list, index);
    }
  });
}

void scroll(ScrollBar& bar, int value) {
  run(bar.window(), [&] {
    if (live(bar)) bar.set_value(std::max(bar.Min, std::min(bar.Max, value)));
  });
}

void focus(Element& element) {
  run(element.window(), [&element] { element.window().set_focus(&element); });
}

Element* next_focus(const Window& window, bool backwards) {
  std::vector<Element*> stops;
  for (Element* element : window.elements()) {
    if (!element->focusable() || !element->TabStop || !live(*element)) continue;
    // One stop a group of options: the one that is on.
    const bool off_option =
        element->kind() == ElementKind::OptionButton && !static_cast<OptionButton*>(element)->value();
    if (!off_option) stops.push_back(element);
  }
  if (stops.empty()) return nullptr;
  const auto comes_before = [](const Element* a, const Element* b) {
    return std::pair(a->TabIndex, a->serial()) < std::pair(b->TabIndex, b->serial());
  };
  std::sort(stops.begin(), stops.end(), comes_before);
  // What has the focus may be no stop itself: its place among them counts.
  const Element* focus = window.focus();
  if (backwards) {
    const auto before = std::find_if(stops.rbegin(), stops.rend(),
                                     [&](const Element* e) { return focus != nullptr && comes_before(e, focus); });
    return before == stops.rend() ? stops.back() : *before;
  }
  const auto behind = std::find_if(stops.begin(), stops.end(),
                                   [&](const Element* e) { return focus == nullptr || comes_before(focus, e); });
  return behind == stops.end() ? stops.front() : *behind;
}

void close(Window& window) {
  if (Host* host = window.platform().host; host != nullptr && window.Enabled) host->close_request(window);
}

void place(Window& window, Rect place) {
  run(window, [&] {
    const bool resized = window.Width != place.width || window.Height != place.height;
    window.Left = place.left;
    window.Top = place.top;
    window.Width = place.width;
    window.Height = place.height;
    if (resized) window.Resize();
  });
}

void activate(Window& window) {
  run(window, [&window] { window.Activate(); });
}

void tick(Timer& timer) {
  if (timer.InTick || !timer.running() || !timer.Tick) return;
  run(timer.window(), [&timer] {
    timer.InTick = true;
    struct Done {
      Timer& timer;
      ~Done() { timer.InTick = false; }
    } done{timer};
    timer.Tick();
  });
}

} // namespace cserko::input
