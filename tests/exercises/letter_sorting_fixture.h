// A small pack for Letter sorting: two pairs of letters, and words of which the test knows the letters.
#pragma once

#include "exercises/letters/frm_betűválogatás.h"
#include "exercises/shared/frm_irányválasztó.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

class LetterSortingTest : public ExerciseTest {
 protected:
  static constexpr TextView file_name = u"betűválogató.ini";
  static constexpr TextView factory = u"cserko\\betűválogató.ini";
  static constexpr int words = 16;

  LetterSortingTest() {
    put_app_file(u"betűpár.kvl", u"s-sz\r\nb-d\r\na-á\r\n");
    put({{u"sas", u"sas", u"bell"},
         {u"sál", u"sál", u"box"},
         {u"sün", u"sün", u"bag"},
         {u"só", u"só", u"bus"},
         {u"sor", u"sor", u"bear"},
         {u"saru", u"sa-ru", u"book"},
         {u"szék", u"szék", u"dog"},
         {u"szó", u"szó", u"door"},
         {u"szív", u"szív", u"dice"},
         {u"szita", u"szi-ta", u"doll"},
         {u"szem", u"szem", u"dish"},
         {u"szánkó", u"szán-kó", u"day"},
         {u"szőlős", u"sző-lős", u"bed"},
         {u"ló", u"ló", u"horse"},
         {u"sárkányrepülő", u"sár-kány-re-pü-lő", u"dragon"},
         {u"sapka", u"sap-ka", u"cap"}});
  }

  /// Chance for a round: the pair s and sz, the first twelve words in their order, the first picture.
  void script_round(int first_place = 0) {
    script_pair(0);
    for (int i = 0; i < frm_betűválogatás::places; ++i) machine.script_random({drawing(i, words)});
    script_place(first_place);
  }
  void script_pair(int index, int of = 3) { machine.script_random({drawing(index, of)}); }
  void script_word(int index) { machine.script_random({drawing(index, words)}); }
  void script_place(int place) { machine.script_random({drawing(place, frm_betűválogatás::places)}); }
  /// Chance for a click that is answered by a sound: each list of sounds has one.
  void script_sound() { machine.script_random({0.0}); }

  /// The exercise with the first round as scripted.
  frm_betűválogatás& deal(int first_place = 0) {
    start();
    put_answer_sounds();
    script_round(first_place);
    auto& window = open<frm_betűválogatás>();
    EXPECT_EQ(machine.scripted_random_left(), 0U);
    return window;
  }
  /// Answers right; the next picture is that of the place.
  void solve(frm_betűválogatás& window, int next_place) {
    script_sound();
    script_place(next_place);
    hand::click(window.betű[is_left(window) ? 0 : 1]);
  }
  static bool is_left(const frm_betűválogatás& window) { return window.kép.Tag.size() == 1 && window.kép.Tag < u"6"; }
  /// Answers all of a round that was dealt with place 0; what comes behind the last one is scripted by the caller.
  void solve_but_last(frm_betűválogatás& window) {
    for (int next = 1; next < frm_betűválogatás::places; ++next) solve(window, next);
  }

  frm_betűválogatás_beállítás& dialog() { return load<frm_betűválogatás_beállítás>(); }
  void in_dialog(frm_betűválogatás& window, const std::function<void(frm_betűválogatás_beállítás&)>& deed) {
    then_in<frm_betűválogatás_beállítás>(deed);
    hand::click(window.mnubeállítások);
  }
  /// What is shown at the places: their names, nothing where they are hidden.
  static std::vector<std::string> shown(const frm_betűválogatás& window) {
    std::vector<std::string> all;
    for (int i = 0; i < frm_betűválogatás::places; ++i) {
      const bool visible = window.eredménykép[i].Visible && window.eredményképnév[i].Visible;
      all.push_back(visible ? utf8(window.eredményképnév[i].Caption) : "");
    }
    return all;
  }
  static std::string tags(const frm_betűválogatás& window) {
    std::string all;
    window.eredménykép.each([&](const PictureBox& place) { all += utf8(place.Tag); });
    return all;
  }
  /// The arm that shows the word.
  static Label& arm(frm_irányválasztó& panel, TextView word) {
    Label* found = nullptr;
    panel.cmd_iránygomb.each([&](Label& label) {
      if (label.Visible && label.Caption == word) found = &label;
    });
    if (found == nullptr) throw std::logic_error("no arm says so");
    return *found;
  }
  /// What the person does at the next question of the panel.
  void then_on_panel(const std::function<void(frm_irányválasztó&)>& deed) { then_in<frm_irányválasztó>(deed); }
};

} // namespace cserko
