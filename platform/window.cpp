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

std::vector<Element*> Window::stacking() const {
  std::map<const Element*, std::vector<Element*>> inside; // by their container
  for (Element* element : elements_) inside[element->container()].push_back(element);
  std::vector<Element*> order;
  order.reserve(elements_.size());
  const std::function<void(const Element*)> pile = [&](const Element* container) {
    const auto found = inside.find(container);
    if (found == inside.end()) return;
    std::sort(found->second.begin(), found->second.end(),
              [](const Element* a, const Element* b) { return a->layer() < b->layer(); });
    for (Element* element : found->second) {
      order.push_back(element);
      pile(element);
    }
  };
  pile(nullptr);
  return order;
}

void Window::set_focus(Element* element) {
  if (element == focus_) return;
  if (element != nullptr && !(element->focusable() && element->shown() && element->usable())) return;
  Element* before = focus_;
  focus_ = element;
  if (before != nullptr && before->kind() == ElementKind::TextBox) {
    if (UpDown* stepper = static_cast<TextBox*>(before)->Stepper) stepper->finish_typing();
  }
  if (before != nullptr && before->LostFocus) before->LostFocus();
  if (focus_ == element && element != nullptr && element->GotFocus) element->GotFocus();
}

void Window::set_visible(bool visible) {
  if (visible && !visible_) put_off_keys();
  visible_ = visible;
}

void Window::put_off_keys() { last_unheard_ = platform_.now(); }

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
