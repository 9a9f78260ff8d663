// The sort that decides how letters at equal places are read.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace cserko {

/// Sorts by exchanging each position with any later one that is less. Not stable: what comes first among equals is this
/// sort's outcome, and exercises lean on it.
template<class T, class Less> void exchange_sort(std::vector<T>& list, Less less) {
  for (std::size_t p = 0; p < list.size(); ++p) {
    for (std::size_t q = p + 1; q < list.size(); ++q) {
      if (less(list[q], list[p])) std::swap(list[p], list[q]);
    }
  }
}

} // namespace cserko
