// What the tests of several exercises ask of a word that lies as a row of letters.
#pragma once

#include "exercises/shared/letter_row.h"
#include "platform/headless/hand.h"

#include <gtest/gtest.h>

namespace cserko {

/// The letters with a stroke between them: "a|sz|o|ny".
inline std::string letters_of(const ElementArray<Label>& row) {
  std::string all;
  row.each([&](const Label& letter) { all += (all.empty() ? "" : "|") + to_utf8(letter.Caption); });
  return all;
}

/// Expects the letters side by side from a corner on, without gaps, each as wide as its text in the font of all.
inline void expect_side_by_side(const ElementArray<Label>& row, Point corner) {
  const Font& font = row[0].Font;
  row.each([&](const Label& letter) {
    EXPECT_DOUBLE_EQ(letter.Left, corner.x);
    EXPECT_DOUBLE_EQ(letter.Top, corner.y);
    EXPECT_EQ(letter.Font, font);
    EXPECT_DOUBLE_EQ(letter.Width, letter.window().platform().measure(font, letter.Caption).width);
    corner.x += letter.Width;
  });
}

/// Ctrl and an arrow pull the letter and push it back; a second time they change nothing, and it keeps the focus.
inline void expect_pulled_by_keys(ElementArray<Label>& row, int letter, const std::string& pulled) {
  Window& window = row[letter].window();
  const std::string before = letters_of(row);
  window.set_focus(&row[letter]);
  for (const auto& [arrow, after] : {std::pair{key::right, pulled}, {key::left, before}}) {
    hand::key(window, arrow, shift::control);
    hand::key(window, arrow, shift::control);
    EXPECT_EQ(letters_of(row), after);
  }
  EXPECT_EQ(window.focus(), &row[letter]);
}

} // namespace cserko
