// A tray of Syllable search with known words, whose syllables the test may lay out as it likes.
#pragma once

#include "exercises/syllables/frm_szótagkereső.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

class SyllableSearchFixture : public ExerciseTest {
 protected:
  /// "almafa", "mafaal" of the same syllables, "esernyő" and "televízió" can be drawn, "faalma" is the last record.
  void put_words() {
    put_only({{.név = u"almafa", .szótagolt = u"al-ma-fa"},
              {.név = u"mafaal", .szótagolt = u"ma-fa-al"},
              {.név = u"esernyő", .szótagolt = u"e-ser-nyő"},
              {.név = u"televízió", .szótagolt = u"te-le-ví-zi-ó"},
              {.név = u"pók", .szótagolt = u"pók"}},
             {.név = u"faalma", .szótagolt = u"fa-al-ma"});
  }
  /// Opens the exercise with the record of that index as its puzzle.
  frm_szótagkereső& deal(int index = 0) {
    put_words();
    start();
    put_answer_sounds();
    machine.script_random({record(index)});
    return open<frm_szótagkereső>();
  }
  /// The next puzzle of an open exercise.
  void deal_next(frm_szótagkereső& window, int index) {
    machine.script_random({record(index)});
    window.beáll();
  }
  /// OK in the settings after some changes; the next puzzle is the record of that index.
  void change_settings(frm_szótagkereső& window, int next, const std::function<void(frm_szótagkereső_beáll&)>& deed) {
    then_in<frm_szótagkereső_beáll>([this, deed, next](frm_szótagkereső_beáll& d) {
      deed(d);
      machine.script_random({record(next)});
      hand::click(d.OKButton);
    });
    hand::click(window.mnu_fájl_beáll);
  }

  /// Lays the syllables at those places of the tray, in the order of their indexes.
  static void lay(frm_szótagkereső& window, const std::vector<Point>& places) {
    ASSERT_EQ(window.lbl_szótag.count(), static_cast<int>(places.size()));
    window.lbl_szótag.each([&](Label& piece) {
      piece.move_to(places[static_cast<std::size_t>(piece.Index)].x, places[static_cast<std::size_t>(piece.Index)].y);
    });
  }
  /// Lays three syllables so that they read in the order of those indexes.
  static void lay_as(frm_szótagkereső& window, std::initializer_list<int> order) {
    double left = 20;
    for (const int index : order) {
      window.lbl_szótag[index].move_to(left, 100);
      left += 300;
    }
  }
  static void lay_right(frm_szótagkereső& window) {
    window.lbl_szótag.each([](Label& piece) { piece.move_to(20 + 300 * piece.Index, 100); });
  }

  static std::vector<Point> positions(const frm_szótagkereső& window) {
    std::vector<Point> all;
    window.lbl_szótag.each([&](const Label& piece) { all.push_back({piece.Left, piece.Top}); });
    return all;
  }
  static Point position(const frm_szótagkereső& window, int piece) {
    return {window.lbl_szótag[piece].Left, window.lbl_szótag[piece].Top};
  }
  static std::vector<int> bordered(const frm_szótagkereső& window) {
    std::vector<int> all;
    window.lbl_szótag.each([&](const Label& piece) {
      if (piece.Border) all.push_back(piece.Index);
      EXPECT_EQ(piece.Selected, piece.Border) << "a screen reader is told of it";
    });
    return all;
  }
  /// Presses the tray where no syllable lies.
  static void press_tray(frm_szótagkereső& window, Point place, MouseButton button = MouseButton::Left) {
    hand::press(window.szövegtároló, place.x, place.y, button);
    hand::release(window.szövegtároló, place.x, place.y, button);
  }
  double width(const frm_szótagkereső& window, TextView text) {
    return machine.measure(window.lbl_szótag[0].Font, text).width;
  }

  /// Random numbers that scatter three syllables side by side at the top.
  void script_scatter() { machine.script_random({0.0, 0.0, 0.4, 0.0, 0.9, 0.0}); }
};

} // namespace cserko
