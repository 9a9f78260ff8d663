// A board of Missing letter with a known word and a known gap.
#pragma once

#include "exercises/letters/frm_betűhiány.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/letter_row_checks.h"

#include <cmath>

namespace cserko {

class MissingLetterFixture : public ExerciseTest {
 protected:
  /// Opens the exercise with that word, less the letter at that index of its row; `pieces` is how many the whole row
  /// has. The word behind it is "kenyér", in English "bread".
  frm_betűhiány& deal(const Text& name, int taken, int pieces, const Text& english = {}) {
    for (const Text& path : machine.files().all()) {
      if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
    }
    start_numbering();
    put({{.név = name, .angol = english}, {.név = u"kenyér", .angol = u"bread"}, {.név = u"utolsó", .angol = u"last"}});
    start();
    put_answer_sounds();
    script(0, taken, pieces);
    return open<frm_betűhiány>();
  }
  /// Chance for the next puzzle.
  void script(int index, int taken, int pieces) { machine.script_random({record(index), gap(taken, pieces)}); }
  static double gap(int taken, int pieces) { return pieces > 3 ? drawing(taken - 1, pieces - 3) : 0.5; }

  /// The captions of the letters with a stroke between them.
  static std::string row(const frm_betűhiány& window) { return letters_of(window.betű); }

  /// Takes a letter in its middle, moves it by that many widths of the text and lets it go.
  void pull(frm_betűhiány& window, int letter, double widths, TextView text) {
    Label& label = window.betű[letter];
    const double middle = std::floor(label.Width / 2);
    const double to = middle + widths * machine.measure(window.betű[0].Font, text).width;
    hand::press(label, middle, 10);
    hand::move(label, to, 10);
    hand::release(label, to, 10);
  }
};

} // namespace cserko
