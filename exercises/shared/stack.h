// Elements of an array one under another.
#pragma once

#include "platform/element_array.h"

namespace cserko {

/// Gives an array so many elements, all visible, that fill a height together, with a gap between them (twips). They
/// begin at the place of the first one and have its width and look.
template<class T> void stack(ElementArray<T>& elements, int count, double height, double gap) {
  elements.unload_from(1);
  T& first = elements[0];
  first.Height = (height - (count - 1) * gap) / count;
  first.Visible = true;
  for (int i = 1; i < count; ++i) {
    T& next = elements.load(i);
    next.move_to(first.Left, elements[i - 1].Top + first.Height + gap);
    next.Visible = true;
  }
}

} // namespace cserko
