// A collection of motifs that is written down in the test.
#pragma once

#include "exercises/syllables/frm_merremutat.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

class WhichWayFixture : public ExerciseTest {
 protected:
  enum Direction { left, up, right, down };

  /// Puts a motif into the collection: its question and the directions that it is pictured in.
  void put_motif(const Text& name, const Text& question, std::initializer_list<TextView> pictures) {
    put_app_file(u"irkep\\" + name + u".swm", question);
    for (const TextView direction : pictures) put_app_file(u"irkep\\" + name + u"_" + Text(direction) + u".wmf");
  }
  /// In the order of their names: an arrow in all four directions, a car to the left and right, a rocket upwards.
  void put_motifs() {
    put_motif(u"a nyíl", u"Merre mutat a nyíl\r\nmásodik sor", {u"bal", u"fel", u"jobb", u"le"});
    put_motif(u"b autó", u"Merre megy az autó\r\n", {u"bal", u"jobb"});
    put_motif(u"c rakéta", u"Merre repül a rakéta", {u"fel"});
  }
  static std::string picture_of(const std::string& name) { return "c:\\cserko\\irkep\\" + name + ".wmf"; }

  /// Chance for a puzzle: the direction, the element of `irányképek` (0 is the blank one), the places of the words.
  void script(Direction direction, int motif, const std::vector<int>& places) {
    machine.script_random({drawing(direction, 4), drawing(motif, 4)});
    for (const int place : places) machine.script_random({drawing(place, 4)});
  }
  /// Opens the exercise with the arrow in that direction; the buttons read "balra", "fel", "jobbra", "le".
  frm_merremutat& deal(Direction direction) {
    put_motifs();
    start();
    put_answer_sounds();
    script(direction, 1, {0, 1, 2, 3});
    return open<frm_merremutat>();
  }

  static std::vector<std::string> buttons(const frm_merremutat& window) { return captions(window.cmd_irány); }
  static Button& button(frm_merremutat& window, TextView word) {
    Button* found = nullptr;
    window.cmd_irány.each([&](Button& button) {
      if (button.Caption == word) found = &button;
    });
    if (found == nullptr) throw std::logic_error("there is no button " + utf8(word));
    return *found;
  }
  static Button& right_button(frm_merremutat& window) {
    constexpr std::array<TextView, 4> words{u"balra", u"fel", u"jobbra", u"le"};
    return button(window, words.at(static_cast<std::size_t>(window.irány())));
  }
};

} // namespace cserko
