// A board of Scrambled word with known words, whose letters the test may lay out as it likes.
#pragma once

#include "core/numbers.h"
#include "exercises/letters/frm_cserkó.h"
#include "tests/suite/suite_fixture.h"

#include <algorithm>

namespace cserko {

class ScrambledTest : public SuiteTest {
 protected:
  ScrambledTest() { put_app_file(u"ms.skt", u"alam\rmalac\rsok\r"); }

  /// Opens the exercise with the record of that index as its puzzle. The last record can never be dealt.
  frm_cserkó& deal(std::initializer_list<TextView> words, int index = 0) {
    put_words(words);
    start();
    machine.script_random({record(index)});
    return open<frm_cserkó>();
  }
  /// The next puzzle of an open exercise.
  void deal_next(frm_cserkó& window, int index) {
    machine.script_random({record(index)});
    window.beáll();
  }

  frm_cserkó_beáll& dialog() { return load<frm_cserkó_beáll>(); }

  /// Lays the letters in a row so that they read as the text; letters of equal caption in order of their number.
  static void lay(frm_cserkó& window, std::initializer_list<TextView> letters) {
    std::vector<Label*> free;
    window.betű.each([&](Label& letter) { free.push_back(&letter); });
    double left = 10;
    for (const TextView wanted : letters) {
      const auto found = std::find_if(free.begin(), free.end(), [&](Label* label) { return label->Caption == wanted; });
      ASSERT_NE(found, free.end()) << utf8(wanted);
      (*found)->move_to(left, 100);
      left += 50;
      free.erase(found);
    }
    ASSERT_TRUE(free.empty());
  }

  static std::string captions(const frm_cserkó& window) {
    std::string all;
    window.betű.each([&](const Label& letter) { all += utf8(letter.Caption) + " "; });
    return all;
  }
  static std::vector<Point> positions(const frm_cserkó& window) {
    std::vector<Point> all;
    window.betű.each([&](const Label& letter) { all.push_back({letter.Left, letter.Top}); });
    return all;
  }
  /// Indexes of the letters that show a border.
  static std::vector<int> selected(const frm_cserkó& window) {
    std::vector<int> all;
    window.betű.each([&](const Label& letter) {
      if (letter.Border) all.push_back(letter.Index);
      EXPECT_EQ(letter.Selected, letter.Border) << "a screen reader is told of it";
    });
    return all;
  }
  double text_width(const frm_cserkó& window, TextView text) {
    return machine.measure(window.betű[0].Font, text).width;
  }
  static double step(const frm_cserkó& window) { return rounded(window.kép.Width * 0.02); }

  /// Presses "Kész" and returns what the panel says, "(none)" if none comes.
  std::string answer(frm_cserkó& window) {
    message = "(none)";
    then_close_message();
    hand::click(window.cmd_kész);
    if (!window.lbl_megoldás.Visible) return message;
    machine.script.clear();
    return message;
  }
};

} // namespace cserko
