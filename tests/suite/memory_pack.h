// A small data pack in memory, for tests that play and measure.
#pragma once

#include "platform/headless/memory_files.h"

namespace cserko {

inline constexpr TextView app = u"c:\\cserko\\";
inline constexpr TextView user_folder = u"c:\\pomzu\\cserko\\";

/// Fields of one record; those left empty get a text made from the name.
struct Word {
  Text név;
  Text angol{};
  Text szótagolt{};
  bool has_picture = true;
};

/// Puts the record of that number (its base name) and its picture into the pack.
void put_record(MemoryFiles& files, int number, const Word& word);

/// Puts the record files of so many words into the pack: words of three to eleven letters, no pictures.
void put_many_records(MemoryFiles& files, int count);

/// A pack that the whole suite can be played on: words, word list, sounds, tunes, praise pictures.
void put_sample_pack(MemoryFiles& files);

} // namespace cserko
