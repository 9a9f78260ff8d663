#include "tests/soak/restless_person.h"

#include "platform/headless/hand.h"

#include <algorithm>
#include <array>

namespace cserko {

namespace {

constexpr int events_between_homecomings = 300;
constexpr int most_steps_home = 200;

bool drawn_kind(ElementKind kind) {
  return kind != ElementKind::Timer && kind != ElementKind::MenuItem && kind != ElementKind::Line &&
         kind != ElementKind::Shape;
}

bool is_main(const Window& window) { return window.Name == u"frm_főablak" || window.Name == u"frm_grafikus_főablak"; }

// The entry by which the program is left.
bool leaves(const Element& item) {
  return is_main(item.window()) && (item.Name == u"mnu_fájl_kilépés" || item.Name == u"mnu_fájl_kilép");
}

bool is_leaf(const Element& item) {
  const auto& all = item.window().elements();
  return item.Caption != u"-" &&
         std::none_of(all.begin(), all.end(), [&](const Element* other) { return other->container() == &item; });
}

} // namespace

void RestlessPerson::sit_down(HeadlessPlatform& machine) {
  machine_ = &machine;
  machine.user = [this](Window& top) { return act(top); };
}

bool RestlessPerson::act(Window& top) {
  if (events_left_ <= 0) {
    machine_->end_process();
    return true;
  }
  if (!top.Enabled) {
    wait();
    return true;
  }
  if (until_home_ > 0) {
    --until_home_;
    --events_left_;
    ++events_by_window_[top.Name];
    anything(top);
  } else {
    go_home(top);
  }
  return true;
}

void RestlessPerson::anything(Window& top) {
  if (sensible && sensible_steps_ == 0 && below(400) == 0) sensible_steps_ = 1 + below(120);
  if (sensible_steps_ > 0) {
    --sensible_steps_;
    if (!sensible(top)) wait();
    return;
  }
  const int choice = below(100);
  if (choice < 25) {
    click_element(top);
  } else if (choice < 35) {
    click_somewhere(top);
  } else if (choice < 40) {
    choose_menu(top);
  } else if (choice < 50) {
    change_control(top);
  } else if (choice < 62) {
    drag_element(top);
  } else if (choice < 66) {
    loose_mouse(top);
  } else if (choice < 88) {
    press_key(top);
  } else if (choice < 98) {
    wait();
  } else if (!is_main(top) || below(10) == 0) {
    hand::close(top);
  }
}

// By close controls alone, with some patience for what closes by itself.
void RestlessPerson::go_home(Window& top) {
  if (is_main(top)) {
    until_home_ = events_between_homecomings;
    steps_home_ = 0;
    return;
  }
  if (++steps_home_ > most_steps_home) throw NoWayOut("no way out of " + to_utf8(top.Name));
  if (steps_home_ % 4 == 0) machine_->advance(1000);
  if (machine_->active_window() == &top) hand::close(top);
}

Element* RestlessPerson::any_element(Window& top, const std::function<bool(const Element&)>& wanted) {
  std::vector<Element*> found;
  std::copy_if(top.elements().begin(), top.elements().end(), std::back_inserter(found),
               [&](const Element* element) { return wanted(*element); });
  return found.empty() ? nullptr : found[static_cast<std::size_t>(below(static_cast<int>(found.size())))];
}

void RestlessPerson::click_element(Window& top) {
  Element* element =
      any_element(top, [](const Element& e) { return drawn_kind(e.kind()) && e.shown() && e.Width > 0; });
  if (element == nullptr) return;
  if (below(8) == 0) {
    hand::click(*element, std::array{MouseButton::Right, MouseButton::Middle}[static_cast<std::size_t>(below(2))],
                below(8));
  } else {
    hand::click(*element);
  }
}

void RestlessPerson::click_somewhere(Window& top) {
  constexpr std::array buttons{MouseButton::Left, MouseButton::Left, MouseButton::Right, MouseButton::Middle};
  hand::click_at(top, within(top.inner_width()), within(top.inner_height()),
                 buttons[static_cast<std::size_t>(below(4))], below(8));
}

void RestlessPerson::choose_menu(Window& top) {
  Element* item = any_element(top, [](const Element& e) {
    return e.kind() == ElementKind::MenuItem && e.usable() && is_leaf(e) && !leaves(e);
  });
  if (item != nullptr) hand::click(*item);
}

void RestlessPerson::change_control(Window& top) {
  Element* element = any_element(top, [](const Element& e) {
    switch (e.kind()) {
    case ElementKind::CheckBox:
    case ElementKind::OptionButton:
    case ElementKind::TextBox:
    case ElementKind::UpDown:
    case ElementKind::ListBox:
    case ElementKind::FileListBox:
    case ElementKind::ScrollBar:
      return e.shown() && e.usable();
    default:
      return false;
    }
  });
  if (element == nullptr) return;
  switch (element->kind()) {
  case ElementKind::TextBox:
    hand::write(static_cast<TextBox&>(*element), to_text(below(40) - 10));
    break;
  case ElementKind::UpDown:
    hand::step(static_cast<UpDown&>(*element), below(2) * 2 - 1);
    break;
  case ElementKind::ListBox:
  case ElementKind::FileListBox:
    if (auto& list = static_cast<ListBox&>(*element); list.count() > 0) hand::select(list, below(list.count()));
    break;
  case ElementKind::ScrollBar:
    hand::scroll(static_cast<ScrollBar&>(*element), below(1000) - 100);
    break;
  default:
    hand::click(*element);
  }
}

void RestlessPerson::drag_element(Window& top) {
  Element* element = any_element(top, [](const Element& e) {
    return (e.kind() == ElementKind::Label || e.kind() == ElementKind::PictureBox) && e.shown();
  });
  if (element != nullptr) hand::drag(*element, within(20000) - 10000, within(20000) - 10000);
}

// Presses without a release, releases and moves without a press, also over what no element covers.
void RestlessPerson::loose_mouse(Window& top) {
  Element* element = any_element(top, [](const Element& e) { return drawn_kind(e.kind()) && e.shown(); });
  if (element == nullptr) return;
  const double x = within(element->Width * 2) - element->Width / 2;
  const double y = within(element->Height * 2) - element->Height / 2;
  switch (below(4)) {
  case 0:
    hand::press(*element, x, y);
    break;
  case 1:
    hand::move(*element, x, y);
    break;
  case 2:
    input::mouse_move(top, {MouseButton::None, shift::none, x, y});
    break;
  default:
    hand::release(*element, x, y);
  }
}

void RestlessPerson::press_key(Window& top) {
  constexpr std::array often{key::space, key::space, key::left,  key::up, key::right,   key::down,
                             key::tab,   key::tab,   key::enter, key::f1, key::delete_, key::backspace};
  const int choice = below(100);
  if (choice < 70) {
    hand::key(top, often[static_cast<std::size_t>(below(static_cast<int>(often.size())))], below(6) == 0 ? 1 : 0);
  } else if (choice < 72) {
    // In a main window Escape leaves the program.
    if (!is_main(top) || below(10) == 0) hand::key(top, key::escape);
  } else if (choice < 95) {
    hand::key(top, 'A' + below(26), below(4) == 0 ? shift::alt : below(2));
  } else {
    hand::key(top, 1 + below(254), below(8));
  }
}

void RestlessPerson::wait() {
  constexpr std::array<int, 8> times{10, 50, 100, 300, 1000, 3000, 10000, 40000};
  machine_->advance(times[static_cast<std::size_t>(below(static_cast<int>(times.size())))]);
}

} // namespace cserko
