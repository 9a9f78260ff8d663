// What the tests of all dialogs with the frame "Szavak" expect of it.
#pragma once

#include "exercises/shared/word_settings.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {

/// Its texts, and its ranges and values where no file has been read.
inline void expect_fresh_lengths(const WordLengths& d, int lowest = 4) {
  EXPECT_EQ(utf8(d.Frame1.Caption), "Szavak");
  EXPECT_EQ(utf8(d.lbl_minbetűszám.Caption), "Minimális betűszám");
  EXPECT_EQ(utf8(d.lbl_maxbetűszám.Caption), "Maximális betűszám");
  EXPECT_EQ(d.ud_minbetűszám.Min, lowest);
  EXPECT_EQ(d.ud_minbetűszám.Max, 10);
  EXPECT_EQ(d.ud_minbetűszám.value(), lowest);
  EXPECT_EQ(d.ud_maxbetűszám.Min, lowest);
  EXPECT_EQ(d.ud_maxbetűszám.Max, 16);
  EXPECT_EQ(d.ud_maxbetűszám.value(), 10);
  EXPECT_EQ(utf8(d.txt_minbetűszám.text()), std::to_string(lowest));
  EXPECT_EQ(utf8(d.txt_maxbetűszám.text()), "10");
}

/// The two numbers limit each other, and the lower one ends at 12. Changes them.
inline void expect_lengths_to_limit_each_other(WordLengths& d) {
  d.ud_maxbetűszám.set_value(7);
  EXPECT_EQ(d.ud_minbetűszám.Max, 7);
  d.ud_maxbetűszám.set_value(16);
  EXPECT_EQ(d.ud_minbetűszám.Max, 12);
  d.ud_minbetűszám.set_value(12);
  EXPECT_EQ(d.ud_maxbetűszám.Min, 12);
}

} // namespace cserko
