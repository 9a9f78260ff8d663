// A row of Surplus letter with a known word and a known letter too many.
#pragma once

#include "exercises/letters/frm_betűfelesleg.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/letter_row_checks.h"

namespace cserko {

class SurplusLetterFixture : public ExerciseTest {
 protected:
  static constexpr int alphabet = 38; ///< Letters of the whole source.

  SurplusLetterFixture() {
    put({{.név = u"asztal", .szótagolt = u"asz-tal"},
         {.név = u"szilva", .szótagolt = u"szil-va"},
         {.név = u"alma", .szótagolt = u"al-ma"},
         {.név = u"utolsó", .szótagolt = u"u-tol-só"}});
  }
  /// Chance for a puzzle: the record, which of the `source` letters comes in, and before which letter of the word, from
  /// 0, of `letters`.
  void script(int index, int letter, int source, int place, int letters) {
    machine.script_random({record(index), drawing(letter, source), drawing(place - 1, letters - 2)});
  }
  frm_betűfelesleg& open_exercise() {
    auto& window = open<frm_betűfelesleg>();
    forget_commands();
    return window;
  }
  /// "asztal" with an "r" of the whole alphabet before its "t".
  frm_betűfelesleg& deal() {
    start();
    put_answer_sounds();
    script(0, 8, alphabet, 2, 5);
    return open_exercise();
  }
  static std::string row(const frm_betűfelesleg& window) { return letters_of(window.lbl_betű); }
  /// A character for each letter: R where it is red, "." where it is black.
  static std::string colors(const frm_betűfelesleg& window) {
    std::string all;
    window.lbl_betű.each([&](const Label& letter) {
      all += letter.ForeColor == Color{255, 0, 0} ? 'R' : letter.ForeColor == black ? '.' : '?';
    });
    return all;
  }
  /// The answers that were heard since the last call: "good " and "bad ", in order.
  std::string heard() {
    const std::string all = commands();
    std::string answers;
    for (std::size_t at = all.find(".wav"); at != std::string::npos; at = all.find(".wav", at + 1))
      answers += all.compare(at - 4, 4, "good") == 0 ? "good " : all.compare(at - 3, 3, "bad") == 0 ? "bad " : "? ";
    return answers;
  }
  static int culprit(const frm_betűfelesleg& window) {
    int found = -1;
    window.lbl_betű.each([&](const Label& letter) {
      if (letter.Tag == u"Én vagyok a bűnös!") found = letter.Index;
    });
    return found;
  }
};

} // namespace cserko
