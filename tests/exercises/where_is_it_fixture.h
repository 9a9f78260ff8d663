// A board of Where is it with known words at known places.
#pragma once

#include "exercises/syllables/frm_holvan.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

class WhereIsItFixture : public ExerciseTest {
 protected:
  /// Ten words of four to six letters; the eleventh is never drawn.
  void put_words() {
    put_only({{.név = u"alma"},
              {.név = u"körte"},
              {.név = u"szilva"},
              {.név = u"medve"},
              {.név = u"csillag"},
              {.név = u"vonat"},
              {.név = u"hajó"},
              {.név = u"lepke"},
              {.név = u"torony"},
              {.név = u"róka"}});
  }
  /// Chance for a puzzle: the side of the name, the words of the four sides, the places of the direction words.
  void script(int side, const std::vector<int>& words, const std::vector<int>& places) {
    machine.script_random({drawing(side, 4)});
    for (const int word : words) machine.script_random({record(word)});
    for (const int place : places) machine.script_random({drawing(place, 4)});
  }
  /// Chance for the sound of a right answer, which comes before the next puzzle.
  void script_answer() { machine.script_random({0.0}); }
  /// Opens the exercise: "alma" on the left, "körte" above, "szilva" on the right, "medve" below; the picture belongs
  /// to the word of that side, and the buttons read "balra", "fent", "jobbra", "lent".
  frm_holvan& deal(int side) {
    put_words();
    start();
    put_answer_sounds();
    script(side, {0, 1, 2, 3}, {0, 1, 2, 3});
    return open<frm_holvan>();
  }
  /// Presses OK in the settings after some changes.
  void change_settings(frm_holvan& window, const std::function<void(frm_holvan_beáll&)>& deed) {
    then_in<frm_holvan_beáll>([deed](frm_holvan_beáll& d) {
      deed(d);
      hand::click(d.OKButton);
    });
    hand::click(window.mnu_fájl_beáll);
  }

  static std::vector<std::string> words(const frm_holvan& window) { return captions(window.lbl_szó); }
  static std::vector<std::string> buttons(const frm_holvan& window) { return captions(window.cmd_irány); }
  /// The button with that word.
  static Button& button(frm_holvan& window, TextView word) {
    Button* found = nullptr;
    window.cmd_irány.each([&](Button& button) {
      if (button.Caption == word) found = &button;
    });
    if (found == nullptr) throw std::logic_error("there is no button " + utf8(word));
    return *found;
  }
  static Button& right_button(frm_holvan& window) {
    constexpr std::array<TextView, 4> directions{u"balra", u"fent", u"jobbra", u"lent"};
    for (int side = 0; side < 4; ++side) {
      const Text& name = window.lbl_szó[side].Caption;
      if (window.lbl_szó[side].Tag == to_text(window.aktuális_kép()) && !name.empty())
        return button(window, directions.at(static_cast<std::size_t>(side)));
    }
    throw std::logic_error("the name stands nowhere");
  }
  static std::vector<std::string> results(const frm_holvan& window) {
    std::vector<std::string> all;
    window.pic_eredménykép.each([&](const PictureBox& box) { all.push_back(utf8(box.Tag)); });
    return all;
  }
};

} // namespace cserko
