// Options of which one is on, listed with their texts and places where they stand.
#pragma once

#include "platform/element_array.h"

namespace cserko {

class OptionGroup : public ElementArray<OptionButton> {
 public:
  struct Option {
    int index;
    Rect place;
    TextView caption;
  };

  /// The options in the order of their indexes, which need not begin at 0 nor follow each other; `default_index` is on.
  OptionGroup(Parent parent, TextView name, std::initializer_list<Option> options, int default_index)
      : ElementArray(parent, name, FirstIndex{options.begin()->index}, options.begin()->place,
                     options.begin()->caption) {
    for (const Option* option = options.begin() + 1; option != options.end(); ++option)
      design(option->index, option->place, option->caption);
    (*this)[default_index].set_value(true);
  }

  /// The lowest index whose option is on, -1 where none is, as a file may have it.
  int chosen() const {
    int index = -1;
    each([&index](const OptionButton& option) {
      if (index < 0 && option.value()) index = option.Index;
    });
    return index;
  }
  /// Turns an option on, with its `Click`. Throws std::out_of_range for an index of no option.
  void choose(int index) { (*this)[index].set_value(true); }
  /// Turns that option on where a file has left none of them on.
  void repair(int index) {
    if (chosen() < 0) choose(index);
  }
};

} // namespace cserko
