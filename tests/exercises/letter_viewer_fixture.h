// Letter viewer with ten known words.
#pragma once

#include "exercises/letters/frm_betűnézegető.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/letter_row_checks.h"

namespace cserko {

class LetterViewerFixture : public ExerciseTest {
 protected:
  static constexpr int letters = 31;         ///< Of which one is drawn in Hungarian.
  static constexpr int english_letters = 22; ///< The same in English.
  static constexpr int m = 30;               ///< The place of that letter among them.

  LetterViewerFixture() {
    put({{.név = u"alma", .szótagolt = u"al-ma", .angol = u"apple"},
         {.név = u"szék", .szótagolt = u"szék", .angol = u"chair"},
         {.név = u"asztal", .szótagolt = u"asz-tal", .angol = u"table"},
         {.név = u"egér", .szótagolt = u"e-gér", .angol = u"mouse"},
         {.név = u"kutya", .szótagolt = u"ku-tya", .angol = u"dog"},
         {.név = u"hal", .szótagolt = u"hal", .angol = u"fish"},
         {.név = u"kő", .szótagolt = u"kő", .angol = u"city"},
         {.név = u"dzsem", .szótagolt = u"dzsem", .angol = u"jam"},
         {.név = u"asszony", .szótagolt = u"asz-szony", .angol = u"woman"},
         {.név = u"hattyú", .szótagolt = u"haty-tyú", .angol = u"swan"}});
  }
  struct Choices {
    int longest = 12;
    bool apart = false;
    bool check = false;
    bool first = false;
    bool syllables = false;
    bool english = false;
  };
  void put_choices(const Choices& wanted) {
    const auto word = [](bool value) { return value ? TextView(u"True") : TextView(u"False"); };
    const auto tick = [](bool value) { return value ? TextView(u" 1 ") : TextView(u" 0 "); };
    const Text longest = u" " + to_text(wanted.longest) + u" ";
    put_settings(u"betűnézegető.ini",
                 {longest, tick(wanted.apart), tick(wanted.check), word(wanted.first), word(!wanted.first),
                  tick(wanted.syllables), word(!wanted.english), word(wanted.english)});
  }
  /// Opens the exercise with "alma" on show for the letter m.
  frm_betűnézegető& look(const Choices& wanted) {
    put_choices(wanted);
    start();
    put_answer_sounds();
    if (wanted.english) {
      machine.script_random({drawing(english_letters - 1, english_letters)}); // "m" in "mouse", "jam", "woman"
      machine.script_random({drawing(0, 3)});
    } else {
      machine.script_random({drawing(m, letters), drawing(0, wanted.first ? 1 : 2)});
    }
    auto& window = open<frm_betűnézegető>();
    forget_commands();
    return window;
  }
  frm_betűnézegető& look() { return look(Choices()); }

  static constexpr int layout_key = 226;
  /// A key that types that character on whatever keyboard: its code is that of no letter.
  static void type(frm_betűnézegető& window, char16_t character, int shift = shift::none) {
    input::key_down(window, {.code = layout_key, .shift = shift, .character = character});
  }
  static std::string word(const frm_betűnézegető& window) { return letters_of(window.Label_betű); }
  /// A character for each letter of the word: R where it is red, "." where it is black.
  static std::string colors(const frm_betűnézegető& window) {
    std::string all;
    window.Label_betű.each([&](const Label& letter) {
      all += letter.ForeColor == Color{255, 0, 0} ? 'R' : letter.ForeColor == black ? '.' : '?';
    });
    return all;
  }
  static std::string large(const frm_betűnézegető& window) {
    return utf8(window.Label_kisbetű.Caption) + " " + utf8(window.Label_nagybetű.Caption);
  }
  static int right_place(const frm_betűnézegető& window) {
    int found = -1;
    window.választáskép.each([&](const PictureBox& choice) {
      if (choice.Tag == window.kép.Tag) found = choice.Index;
    });
    return found;
  }
  /// The picture large, or the eight small ones with the instruction, and nothing else.
  static void expect_one_of_both(const frm_betűnézegető& window) {
    window.választáskép.each([&](const PictureBox& choice) { EXPECT_EQ(choice.Visible, !window.kép.Visible); });
    EXPECT_EQ(window.lbl_feladat.Visible, !window.kép.Visible);
  }
};

} // namespace cserko
