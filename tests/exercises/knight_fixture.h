// Knight's jump with words and boards that are written down in the test.
#pragma once

#include "exercises/boards/frm_lóugrás.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/sounds_heard.h"

#include <array>

namespace cserko {

/// What the settings file says.
struct KnightSettings {
  int rows = 8;
  int columns = 8;
  int longest = 12;
  int pictures = 4;
  bool read_at_end = false;
  bool filler = true;
  Text character = u".";
  bool presented = false;
  bool hint = false;
  bool neighbours = false;
  int language = 2;
};

inline void PrintTo(const Square& square, std::ostream* out) { *out << square.column << "|" << square.row; }

class KnightTest : public ExerciseTest {
 protected:
  using Wanted = KnightSettings;

  void want(const Wanted& wanted) {
    const auto number = [](int value) { return u" " + to_text(value) + u" "; };
    const auto word = [](bool value) { return value ? u"True" : u"False"; };
    put_settings(u"lóugrás.ini", {number(wanted.rows), number(wanted.columns), number(wanted.longest),
                                  number(wanted.pictures), number(wanted.language), number(wanted.read_at_end),
                                  number(wanted.filler), u"\"" + wanted.character + u"\"", number(wanted.presented),
                                  number(wanted.hint), word(!wanted.neighbours), word(wanted.neighbours),
                                  word(wanted.language == 2), word(wanted.language == 4)});
  }

  static constexpr std::array<TextView, 20> words{
      u"alma",  u"körte", u"szilva", u"barack", u"kutya", u"macska", u"egér",  u"tehén", u"hajó",   u"ház",
      u"ablak", u"ajtó",  u"szék",   u"toll",   u"könyv", u"ceruza", u"kréta", u"lámpa", u"kenyér", u"virág"};
  void put_words() {
    for (const TextView word : words) put({.név = Text(word), .angol = u"en" + Text(word)});
  }
  /// The game as it is started from the main window, its first sounds heard.
  frm_lóugrás& game() {
    if (!begun_) start();
    begun_ = true;
    auto& window = open<frm_lóugrás>();
    heard();
    return window;
  }
  frm_lóugrás& game(const Wanted& wanted) {
    put_words();
    want(wanted);
    return game();
  }

  /// The number by which the draw of a file hits that number.
  double draws(int number) { return drawing(number - 1, session().képek.képszám); }
  /// What the search of a path asks of chance: the start field, then for each letter the number of its direction.
  static std::vector<double> path(Square start, std::initializer_list<int> directions, int rows = 8, int columns = 8) {
    std::vector<double> numbers{drawing(start.column, columns), drawing(start.row, rows)};
    for (const int direction : directions) numbers.push_back(drawing(direction - 1, 8));
    return numbers;
  }
  /// A board of one word, the file of that number, along a path that chance gives.
  frm_lóugrás& board(int number, Square start, std::initializer_list<int> directions, Wanted wanted = {}) {
    wanted.pictures = 1;
    if (!begun_) {
      put_words();
      want(wanted);
      start_session();
    }
    machine.script_random({draws(number)});
    machine.script_random(path(start, directions, wanted.rows, wanted.columns));
    return game();
  }
  void start_session() {
    start();
    begun_ = true;
  }

  static void click(frm_lóugrás& window, Square square) { hand::click(window.field(square)); }
  /// Walks so many letters of the hidden path.
  static void walk(frm_lóugrás& window, int letters) {
    for (int i = 1; i <= letters; ++i) click(window, window.megoldás()[static_cast<std::size_t>(i)]);
  }
  /// Enabled fields that can be entered by the rule, without the one stood on.
  static std::vector<Square> ways_on(const frm_lóugrás& window) {
    std::vector<Square> found;
    for (int i = 0; i < window.betű.count(); ++i) {
      const Square to{i % 12, i / 12};
      const Label& label = window.field(to);
      if (label.Visible && label.Enabled && to != window.út().back() && window.is_move(window.út().back(), to))
        found.push_back(to);
    }
    return found;
  }
  /// A field of another letter than the one that comes next.
  static Square wrong_way(const frm_lóugrás& window) {
    const Square right = window.megoldás()[static_cast<std::size_t>(window.lépésszám())];
    for (const Square to : ways_on(window)) {
      if (window.field(to).Caption != window.field(right).Caption) return to;
    }
    throw std::logic_error("every field around has the right letter");
  }
  static std::string names(const frm_lóugrás& window) {
    std::string all;
    window.képnév.each([&](const Label& name) { all += utf8(name.Caption) + "/" + utf8(name.Tag) + " "; });
    return all;
  }
  /// The letters along the hidden path.
  static std::string along_path(const frm_lóugrás& window) {
    std::string all;
    for (const Square square : window.megoldás()) all += utf8(window.field(square).Caption) + " ";
    return all;
  }
  static int shown_fields(const frm_lóugrás& window) {
    int shown = 0;
    window.betű.each([&](const Label& label) { shown += label.Visible ? 1 : 0; });
    return shown;
  }

  /// The sounds since the last call, each by its path under the application folder.
  std::string heard() { return sounds_heard(commands()); }
  static inline const std::string step_sound = "cserko\\rd_kick_2.wav";
  static inline const std::string illegal_sound = "cserko\\cointabl.wav";
  static inline const std::string undo_sound = "cserko\\branch.wav";
  static inline const std::string cursor_sound = "cserko\\moving.wav";

  /// Puts away the next large picture and keeps its word.
  void then_close_picture() {
    then_in<üzenet>([this](üzenet& panel) {
      shown_words += utf8(panel.üzenet_szöveg.Caption) + " ";
      shown_picture = picture(panel.üzenet_kép);
      hand::click(panel.Command1);
    });
  }
  std::string shown_words;
  std::string shown_picture;

 private:
  bool begun_ = false;
};

/// The same with what is looked at while it is played.
class KnightPlayTest : public KnightTest {
 protected:
  static constexpr Color dark_green{0, 120, 0};
  static constexpr Color light_green{0, 200, 0};
  static constexpr Color yellow{255, 255, 0};
  static constexpr Color blue{0, 0, 128};
  static inline const std::string full_message =
      "Kérlek, nézd át még egyszer! Ha a képre kattintasz, segítséget kapsz!";

  /// "alma" from the corner: (2, 1), (4, 2), (3, 4), (4, 6).
  frm_lóugrás& alma(Wanted wanted = {}) { return board(1, {0, 0}, {7, 7, 1, 8}, std::move(wanted)); }
  /// Collects so many letters, the first one wrong: with the last one the names are full, and the message comes.
  void fill_names_wrongly(frm_lóugrás& window, int letters) {
    click(window, wrong_way(window));
    for (int letter = 2; letter < letters; ++letter) click(window, ways_on(window).front());
    EXPECT_EQ(messages_shown, 0);
    then_close_message();
    click(window, ways_on(window).front());
    EXPECT_EQ(messages_shown, 1) << letters << " letters fill the names";
  }
  static std::string ground(const frm_lóugrás& window, Square square) {
    const Color color = window.field(square).BackColor;
    if (color == dark_green) return "dark green";
    if (color == light_green) return "light green";
    return color == window.mezőszín(square.column, square.row) ? "own" : "other";
  }
  static Point center(const Element& element) {
    return {element.Left + element.Width / 2, element.Top + element.Height / 2};
  }
  static std::string colors(const frm_lóugrás& window) {
    std::string all;
    window.Line1.each([&](const Line& line) {
      all += line.ForeColor == yellow ? "y" : line.ForeColor == blue ? "b" : "?";
    });
    return all;
  }
  static void key(Window& window, int code, int times = 1) {
    for (int i = 0; i < times; ++i) hand::key(window, code);
  }
};

} // namespace cserko
