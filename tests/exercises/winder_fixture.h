// Tekergő with words and boards that are written down in the test.
#pragma once

#include "core/numbers.h"
#include "exercises/letters/frmverem.h"
#include "exercises/letters/frmveremigennem.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/sounds_heard.h"

#include <array>

namespace cserko {

class WinderTest : public ExerciseTest {
 protected:
  static constexpr std::array<TextView, 20> words{
      u"alma",  u"körte", u"szilva", u"barack", u"kutya", u"macska", u"egér",  u"tehén", u"hajó",   u"ház",
      u"ablak", u"ajtó",  u"szék",   u"toll",   u"könyv", u"ceruza", u"kréta", u"lámpa", u"kenyér", u"virág"};

  void put_words() {
    for (const TextView word : words) put({.név = Text(word), .angol = u"en " + Text(word)});
  }
  /// The game with the words above, as it is started from the main window.
  frmverem& deal() {
    put_words();
    start();
    return open();
  }
  frmverem& open() {
    auto& window = ExerciseTest::open<frmverem>();
    heard();
    return window;
  }
  /// The game with no pictures and a board that is empty but for letters enough in the corners of the first two columns
  /// not to be won.
  frmverem& empty_game() {
    auto& window = deal();
    empty_board(window);
    for (int column = 0; column < 2; ++column) {
      put_column(window, column, 0, u"qqqq");
      put_column(window, column, 13, u"wwww");
    }
    return window;
  }
  static void empty_board(frmverem& window) {
    window.betű.each([](Label& letter) { letter.Caption = u" "; });
    window.kép.each([](PictureBox& slot) {
      slot.Visible = false;
      slot.Tag = u" ";
    });
    window.képnév.each([](Label& name) { name.Visible = false; });
  }
  /// A picture with that word.
  static void show(frmverem& window, int slot, TextView word) {
    window.kép[slot].Visible = true;
    window.kép[slot].Tag = word;
    window.képnév[slot].Caption = word;
  }
  /// Puts letters, given between bars, into the middle row from a column on.
  static void put_row(frmverem& window, std::string_view letters, int column = 0) {
    std::size_t begin = 0;
    while (begin <= letters.size()) {
      const std::size_t end = std::min(letters.find('|', begin), letters.size());
      window.cell(column++, frmverem::middle).Caption = from_utf8(letters.substr(begin, end - begin));
      begin = end + 1;
    }
  }
  /// Puts single letters into a column, downwards from a row.
  static void put_column(frmverem& window, int column, int row, TextView letters) {
    for (const char16_t letter : letters) window.cell(column, row++).Caption = Text(1, letter);
  }
  static std::string row(const frmverem& window, int row = frmverem::middle) {
    std::string all;
    for (int column = 0; column < frmverem::columns; ++column)
      all += (column > 0 ? "|" : "") + utf8(window.cell(column, row).Caption);
    return all;
  }
  /// A column from above, a dot for an empty cell.
  static std::string column(const frmverem& window, int column) {
    std::string all;
    for (int row = 0; row < frmverem::rows; ++row)
      all += window.empty(column, row) ? "." : utf8(window.cell(column, row).Caption);
    return all;
  }
  static std::string board(const frmverem& window) {
    std::string all;
    for (int line = 0; line < frmverem::rows; ++line) all += row(window, line) + "\n";
    return all;
  }
  static int pictures(const frmverem& window) {
    int shown = 0;
    window.kép.each([&](const PictureBox& slot) { shown += slot.Visible ? 1 : 0; });
    return shown;
  }

  /// The sounds since the last call, each by its path under the application folder.
  std::string heard() { return sounds_heard(commands()); }
  static inline const std::string step_sound = "cserko\\rd_kick_2.wav";
  static inline const std::string move_sound = "cserko\\kerchunk.wav";
  static inline const std::string solved_sound = "cserko\\swallow1.wav";

  static bool highlighted(const frmverem& window, int column) {
    const Label& cell = window.cell(column, frmverem::middle);
    return cell.Tag == u"1" && cell.Opaque && cell.Border && cell.BackColor == window.BackColor &&
           cell.Width > window.cell(column, 7).Width;
  }
  /// The columns whose cell in the middle row is larger than the others.
  static std::vector<int> highlights(const frmverem& window) {
    std::vector<int> found;
    for (int column = 0; column < frmverem::columns; ++column) {
      if (highlighted(window, column)) found.push_back(column);
    }
    return found;
  }

  /// The answer to the next question.
  void then_answer(bool yes) {
    then_in<frmveremigennem>([this, yes](frmveremigennem& question) {
      ++questions;
      asked = utf8(question.Label1.Caption);
      hand::click(yes ? question.Command1 : question.Command2);
    });
  }
  int questions = 0;
  std::string asked;
};

} // namespace cserko
