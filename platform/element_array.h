// Elements under one name with an index; further ones can be loaded and unloaded at run time.
#pragma once

#include "platform/window.h"

#include <utility>

namespace cserko {

/// The lowest index of an array that does not start at 0.
struct FirstIndex {
  int value = 0;
};

/// An element array. Handlers set on the array serve all its elements and are given the index. The element of the
/// lowest index, 0 unless another is given, belongs to the design and is the model of those loaded later.
template<class T> class ElementArray {
 public:
  /// An array with the design element alone.
  template<class... Design>
  ElementArray(Parent parent, TextView name, Rect place, const Design&... design)
      : ElementArray(parent, name, FirstIndex{}, place, design...) {}
  template<class... Design>
  ElementArray(Parent parent, TextView name, FirstIndex first, Rect place, const Design&... design)
      : parent_(parent),
        name_(name),
        first_(first.value),
        make_([design...](Parent in, TextView element_name, Rect at) {
          return std::make_unique<T>(in, element_name, at, design...);
        }) {
    add(first_, place);
  }
  ElementArray(const ElementArray&) = delete;
  ElementArray& operator=(const ElementArray&) = delete;

  std::function<void(int)> Click;
  std::function<void(int)> DblClick;
  std::function<void(int, const MouseEvent&)> MouseDown;
  std::function<void(int, const MouseEvent&)> MouseMove;
  std::function<void(int, const MouseEvent&)> MouseUp;
  std::function<void(int)> GotFocus;
  std::function<void(int)> LostFocus;
  std::function<void(int, KeyEvent&)> KeyDown;
  std::function<void(int, Element& source, double x, double y)> DragDrop;

  /// The element of that index. Throws std::out_of_range if it is not loaded.
  T& operator[](int index) { return *elements_.at(index); }
  const T& operator[](int index) const { return *elements_.at(index); }

  bool loaded(int index) const { return elements_.count(index) != 0; }
  int count() const { return static_cast<int>(elements_.size()); }

  /// Creates an element like the design element, hidden. Throws InvalidValue if the index is taken.
  T& load(int index) {
    if (loaded(index)) throw InvalidValue("element array: the index is loaded already");
    const T& design = *elements_.at(first_);
    T& element = add(index, {design.Left, design.Top, design.Width, design.Height});
    element.copy_design(design);
    element.Visible = false;
    return element;
  }

  /// Creates an element at a place of its own, visible, as part of the design.
  T& design(int index, Rect place, TextView caption = {}) {
    T& element = load(index);
    element.Left = place.left;
    element.Top = place.top;
    element.Width = place.width;
    element.Height = place.height;
    element.Caption = caption;
    element.Visible = true;
    return element;
  }

  /// Puts the design element and further ones like it, visible, at the given left top corners, in order of index.
  void design_places(std::initializer_list<Point> places) {
    int index = first_;
    for (const Point place : places) {
      T& element = loaded(index) ? (*this)[index] : load(index);
      element.move_to(place.x, place.y);
      element.Visible = true;
      ++index;
    }
  }

  /// Takes an element away. The design element stays: throws InvalidValue.
  void unload(int index) {
    if (index == first_) throw InvalidValue("element array: the design element cannot be unloaded");
    if (const auto found = elements_.find(index); found != elements_.end()) {
      parent_.window().retire(std::move(found->second));
      elements_.erase(found);
    }
  }

  /// Takes all elements from that index up away.
  void unload_from(int index) {
    while (!elements_.empty() && elements_.rbegin()->first >= index) unload(elements_.rbegin()->first);
  }

  /// Calls the function with each element in order of index.
  template<class F> void each(F&& function) {
    for (auto& [index, element] : elements_) function(*element);
  }
  template<class F> void each(F&& function) const {
    for (const auto& [index, element] : elements_) function(std::as_const(*element));
  }

 private:
  T& add(int index, Rect place) {
    auto element = make_(parent_, name_, place);
    element->Index = index;
    element->Click = [this, index] {
      if (Click) Click(index);
    };
    element->DblClick = [this, index] {
      if (DblClick) DblClick(index);
    };
    element->MouseDown = [this, index](const MouseEvent& event) {
      if (MouseDown) MouseDown(index, event);
    };
    element->MouseMove = [this, index](const MouseEvent& event) {
      if (MouseMove) MouseMove(index, event);
    };
    element->MouseUp = [this, index](const MouseEvent& event) {
      if (MouseUp) MouseUp(index, event);
    };
    element->GotFocus = [this, index] {
      if (GotFocus) GotFocus(index);
    };
    element->LostFocus = [this, index] {
      if (LostFocus) LostFocus(index);
    };
    element->DragDrop = [this, index](Element& source, double x, double y) {
      if (DragDrop) DragDrop(index, source, x, y);
    };
    element->KeyDown = [this, index](KeyEvent& event) {
      if (KeyDown) KeyDown(index, event);
    };
    return *(elements_[index] = std::move(element));
  }

  Parent parent_;
  Text name_;
  int first_;
  std::function<std::unique_ptr<T>(Parent, TextView, Rect)> make_;
  std::map<int, std::unique_ptr<T>> elements_;
};

} // namespace cserko
