// Word flash with records of which each has the same length, and a ring that the test has drawn.
#pragma once

#include "core/settings.h"
#include "exercises/sentences/frm_szóvillám.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

class WordFlashFixture : public ExerciseTest {
 protected:
  /// Ten records, "szó 0" to "szó 9", in English "word 0" and so on; the last is never drawn.
  WordFlashFixture() {
    for (int i = 0; i < 10; ++i) put({.név = u"szó " + to_text(i), .angol = u"word " + to_text(i)});
  }
  void clear_records() {
    for (const Text& path : machine.files().all()) {
      if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
    }
    start_numbering();
  }

  /// What chance gives for a ring of these records with the word of that place.
  void script_ring(const std::vector<int>& records, int right) {
    for (const int index : records) machine.script_random({record(index)});
    machine.script_random({drawing(right, 6)});
  }
  void script_sound() { machine.script_random({0.0}); }
  /// Opens the exercise with that ring.
  frm_szóvillám& deal(const std::vector<int>& records = {5, 3, 0, 7, 1, 4}, int right = 0) {
    start();
    put_answer_sounds();
    script_ring(records, right);
    return open<frm_szóvillám>();
  }
  /// The same in a program of its own whose words flash for so many ms.
  frm_szóvillám& deal_with_time(int ms) {
    end_session();
    put_settings(u"szóvillám.ini",
                 {u" 3 ", u" 10 ", u" " + to_text(ms / 1000) + u" ", u" " + to_text(ms / 100 % 10) + u" ",
                  u" " + to_text(ms / 10 % 10) + u" ", u"True", u"False"});
    return deal();
  }
  /// From a new ring to the moment at which the word is shown.
  void let_pass_to_word(const frm_szóvillám& window) {
    machine.advance(2500);
    ASSERT_TRUE(window.Timer_villám.Enabled);
  }

  frm_szóvillám_beáll& settings_dialog() { return session().window<frm_szóvillám_beáll>(); }

  /// What stands in the middle of the ring.
  static std::string shown(frm_szóvillám& window) {
    if (window.lbl_feladvány.drawn_canvas() == nullptr) return "";
    const auto texts = drawn(window.lbl_feladvány).texts();
    return texts.empty() ? "" : utf8(texts.back());
  }
  static std::vector<int> ring(const frm_szóvillám& window) {
    std::vector<int> records;
    window.pic_feladványkép.each(
        [&](const PictureBox& picture) { records.push_back(number_in(picture.Tag).value_or(-2)); });
    return records;
  }
  static std::vector<std::string> strip(const frm_szóvillám& window) {
    std::vector<std::string> tags;
    window.pic_eredmény.each([&](const PictureBox& picture) { tags.push_back(utf8(picture.Tag)); });
    return tags;
  }
};

} // namespace cserko
