// A board of Syllabifier with a known word.
#pragma once

#include "exercises/syllables/frm_szótagoló.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/letter_row_checks.h"

#include <cmath>

namespace cserko {

class SyllabifierFixture : public ExerciseTest {
 protected:
  /// Opens the exercise with that word, which is the only one that can be drawn.
  frm_szótagoló& deal(const Text& name, const Text& syllables) {
    for (const Text& path : machine.files().all()) {
      if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
    }
    start_numbering();
    put({{.név = name, .szótagolt = syllables}, {.név = u"utolsó", .szótagolt = u"u-tol-só"}});
    start();
    return open<frm_szótagoló>();
  }

  /// The captions of the letters with a stroke between them.
  static std::string row(const frm_szótagoló& window) { return letters_of(window.betű); }

  /// Takes a letter in its middle, moves it by that many of its widths and lets it go.
  static void pull(frm_szótagoló& window, int letter, double widths) {
    Label& label = window.betű[letter];
    const double middle = std::floor(label.Width / 2);
    const double to = middle + widths * label.Width;
    hand::press(label, middle, 10);
    hand::move(label, to, 10);
    hand::release(label, to, 10);
  }
};

} // namespace cserko
