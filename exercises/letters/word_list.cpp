#include "exercises/letters/word_list.h"

#include "core/codepage.h"
#include "core/numbers.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr int close_enough = 500; // bytes; from here on lines are read one by one
constexpr int back_step = 30;     // bytes; no word is longer

// Positions count from 1, as a file's seek operation does.
LineReader reader_at(std::string_view bytes, int position) {
  return LineReader(bytes, static_cast<std::size_t>(std::max(position, 1) - 1));
}

int position_of(const LineReader& lines) { return static_cast<int>(lines.position()) + 1; }

bool found_between(std::string_view bytes, int from, int end, TextView word) {
  LineReader lines = reader_at(bytes, from);
  while (!lines.end()) {
    if (from_cp1250(lines.next()) == word) return true;
    if (position_of(lines) >= end) return false;
  }
  return false;
}

} // namespace

bool szó_a_szótárban(std::string_view bytes, TextView word) {
  int high = static_cast<int>(bytes.size());
  int low = 0;
  do {
    const int middle = rounded((high + low) / 2.0);
    LineReader lines = reader_at(bytes, middle);
    if (!lines.end()) lines.next(); // may be the tail of a word
    if (lines.end()) {
      // The last line has been reached: it bounds the search from above, and it may start just here.
      if (middle + 1 >= high) break;
      high = middle + 1;
      continue;
    }
    const Text line = from_cp1250(lines.next());
    if (line == word) return true;
    const int position = position_of(lines);
    if (line < word) {
      low = position;
    } else if (position < high) {
      high = position;
    } else {
      break; // lines longer than half the range: reading on finds what there is
    }
  } while (high - low > close_enough);
  return found_between(bytes, std::max(low, back_step + 1) - back_step, high, word);
}

} // namespace cserko
