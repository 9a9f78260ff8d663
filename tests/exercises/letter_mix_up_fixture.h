// A round of Letter mix-up with a known word, known swaps and a known place of the right spelling.
#pragma once

#include "exercises/boards/frm_betűkeverő.h"
#include "tests/exercises/exercise_fixture.h"

#include <utility>

namespace cserko {

class LetterMixUpFixture : public ExerciseTest {
 protected:
  using Swaps = std::vector<std::pair<int, int>>; ///< Places among the inner letters, from 0.

  /// "tábla", whose three inner letters make three swaps, and words of five letters and more behind it.
  void put_tábla() {
    put_only({{.név = u"tábla", .szótagolt = u"tá-bla", .angol = u"board"},
              {.név = u"hagyma", .szótagolt = u"hagy-ma", .angol = u"onion"},
              {.név = u"szilva", .szótagolt = u"szil-va", .angol = u"plum tree"}});
  }
  /// Chance for a round: the record, the place of the right spelling among so many, the two letters of each swap.
  void script(int index, int place, int labels, int inner, const Swaps& swaps) {
    std::vector<double> all{record(index), drawing(place - 1, labels - 1)};
    for (const auto& [a, b] : swaps) {
      all.push_back(drawing(a, inner));
      all.push_back(drawing(b, inner));
    }
    machine.script_random(all);
  }
  frm_betűkeverő& open_exercise() {
    put_answer_sounds();
    auto& window = open<frm_betűkeverő>();
    forget_commands();
    return window;
  }
  /// "tábla" as the second of four spellings.
  frm_betűkeverő& deal() {
    put_tábla();
    start();
    script(0, 1, 4, 3, {{0, 1}, {0, 2}, {1, 2}});
    return open_exercise();
  }
  static std::string spellings(const frm_betűkeverő& window) {
    std::string all;
    window.lbl_szó.each([&](const Label& label) { all += (all.empty() ? "" : "|") + utf8(label.Caption); });
    return all;
  }
  /// The label with the name of the picture.
  Label& right_one(frm_betűkeverő& window) {
    const KépAdat& name = session().képek[window.szó_index()];
    int index = -1;
    window.lbl_szó.each([&](const Label& label) {
      if (label.Caption == name.név || label.Caption == name.szótagolt || label.Caption == name.angol)
        index = label.Index;
    });
    return window.lbl_szó[index];
  }
  /// The records in the row of found pictures, "-1" for a free place.
  static std::string found(const frm_betűkeverő& window) {
    std::string all;
    window.pic_eredménykép.each([&](const PictureBox& box) { all += (all.empty() ? "" : " ") + utf8(box.Tag); });
    return all;
  }
  void in_dialog(frm_betűkeverő& window, const std::function<void(frm_betűkeverő_beáll&)>& deed) {
    then_in<frm_betűkeverő_beáll>(deed);
    hand::click(window.mnu_fájl_beáll);
  }
};

} // namespace cserko
