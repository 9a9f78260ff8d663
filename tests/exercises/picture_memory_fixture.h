// Boards of Picture memory whose cards the test has put in their places.
#pragma once

#include "exercises/boards/frm_képmemória.h"
#include "tests/suite/memory_pack.h"

#include <array>
#include <vector>

namespace cserko {

/// Where the two cards of a record lie: the picture side and the second side.
struct Pair {
  int record;
  int picture;
  int second;
};

/// A random number by which the rounded draw of a place or record hits the index out of 0 to `last`.
inline double hitting(int index, int last) { return index == last ? (last - 0.25) / last : index / double(last); }

/// What chance gives for a whole board.
inline std::vector<double> board_script(const std::vector<Pair>& pairs, int last_record) {
  std::vector<double> numbers;
  for (const Pair& pair : pairs) {
    numbers.push_back(hitting(pair.picture, frm_képmemória::places - 1));
    numbers.push_back(hitting(pair.record, last_record));
    numbers.push_back(hitting(pair.second, frm_képmemória::places - 1));
  }
  return numbers;
}

inline constexpr std::array<TextView, 20> memory_words{
    u"alma",  u"körte", u"szilva", u"kutya", u"cica",  u"ló",    u"béka",  u"hal",   u"hajó",  u"szék",
    u"vonat", u"egér",  u"medve",  u"róka",  u"tojás", u"kakas", u"labda", u"könyv", u"ablak", u"virág"};

} // namespace cserko
