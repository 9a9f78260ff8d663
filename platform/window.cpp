#include "platform/platform.h"

#include <algorithm>

namespace cserko {

Window::Window(Platform& platform, TextView name, Size design, TextView caption)
    : Name(name), Caption(caption), platform_(platform), design_(design) {}

Window::~Window() = default;

double Window::inner_width() const { return Width - platform_.chrome(*this).width; }

double Window::inner_height() const { return Height - platform_.chrome(*this).height; }

void Window::set_inner_size(Size inner) {
  const Size chrome = platform_.chrome(*this);
  Width = inner.width + chrome.width;
  Height = inner.height + chrome.height;
}

Canvas& Window::canvas() {
  const Size inner{inner_width(), inner_height()};
  if (!canvas_ || canvas_->size() != inner) canvas_ = platform_.make_canvas(inner);
  return *canvas_;
}

Element* Window::find(TextView name, int index) const {
  const auto found = std::find_if(elements_.begin(), elements_.end(), [&](const Element* element) {
    return element->Name == name && (index < 0 || element->Index == index);
  });
  return found == elements_.end() ? nullptr : *found;
}

void Window::set_focus(Element* element) {
  if (element == focus_) return;
  if (element != nullptr && !(element->focusable() && element->shown() && element->usable())) return;
  Element* before = focus_;
  focus_ = element;
  if (before != nullptr && before->LostFocus) before->LostFocus();
  if (focus_ == element && element != nullptr && element->GotFocus) element->GotFocus();
}

void Window::register_element(Element& element) { elements_.push_back(&element); }

void Window::unregister_element(Element& element) {
  if (focus_ == &element) focus_ = nullptr;
  elements_.erase(std::remove(elements_.begin(), elements_.end(), &element), elements_.end());
}

void Window::retire(std::unique_ptr<Element> element) {
  unregister_element(*element);
  if (events_running_ > 0) retired_.push_back(std::move(element));
}

void Window::leave_event() {
  if (--events_running_ == 0) retired_.clear();
}

} // namespace cserko
