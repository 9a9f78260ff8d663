// Knight's jump: the names of up to four pictures lie hidden on a board, letter by letter. The child walks from field
// to field, in knight's moves or to neighbouring fields, and so reads them out.
#pragma once

#include "core/exercise.h"
#include "core/kszöveg.h"
#include "exercises/boards/frm_lóugrás_beáll.h"
#include "exercises/boards/hidden_path.h"
#include "exercises/shared/record_files.h"

#include <set>

namespace cserko {

/// The letters along the path of words that are separated by commas: "dzs" and the digraphs are one letter in
/// Hungarian (language 2), every character is one in English (4). A character of no alphabet is a letter too.
std::vector<Text> path_letters(TextView words, int language);

class frm_lóugrás : public ExerciseWindow {
 public:
  explicit frm_lóugrás(Session& session);

  static constexpr int columns = PathSearch::most_columns;
  static constexpr int rows = PathSearch::most_rows;
  static constexpr int most_pictures = 4;
  static constexpr Color dark_green{0, 120, 0};
  static constexpr Color light_green{0, 200, 0};
  static constexpr Color yellow{255, 255, 0};
  static constexpr Color blue{0, 0, 128};

  Label lbl_feladat{*this, u"lbl_feladat", {90, 60, 10020, 330}};
  Button Command1{*this, u"Command1", {90, 600, 1710, 780}, u"Törlés"};
  ElementArray<PictureBox> kép{*this, u"kép", {1890, 450, 1560, 840}};
  ElementArray<Label> képnév{*this, u"képnév", {1890, 1290, 1560, 330}};
  PictureBox nemkép{*this, u"nemkép", {1890, 450, 1560, 840}};
  Button cmd_súgó{*this, u"cmd_súgó", {8400, 600, 1710, 780}, u"Következő lépés"};
  /// The field of column c and row r: element c + 12 * r.
  ElementArray<Label> betű{*this, u"betű", {1500, 1710, 600, 600}};
  /// The colours of the squares, kept in two hidden labels below the board.
  Label Lbl_sötétszürke{*this, u"Lbl_sötétszürke", {1500, 6510, 600, 90}};
  Label lbl_Szürke{*this, u"lbl_Szürke", {2100, 6510, 600, 90}};
  /// The hint: each line lies on a broader one of the other colour, so that both can be seen on every square.
  ElementArray<Line> Line_szegély{*this, u"Line_szegély", {1500, 1710, 0, 0}};
  ElementArray<Line> Line1{*this, u"Line1", {1500, 1710, 0, 0}};
  Timer Timer1{*this, u"Timer1", 400};
  Timer Timer_segítő{*this, u"Timer_segítő", 100, false};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_új_játék{mnu_fájl, u"mnu_fájl_új_játék", u"&Új játék"};
  MenuItem mnu_fájl_beállítások{mnu_fájl, u"mnu_fájl_beállítások", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Builds a new board from the settings and starts the game. Throws NothingFits where no words fit it.
  void beáll();
  /// Takes the moves of the rule from the settings and tells them in the task line.
  void iránybeolvasás();

  Label& field(Square square) { return betű[square.column + columns * square.row]; }
  const Label& field(Square square) const { return betű[square.column + columns * square.row]; }
  /// The colour of a field that has not been walked.
  Color mezőszín(int x, int y) const;

  /// Language of the words, also the number of their line in a record file.
  int nyelv() const { return nyelv_; }
  /// Takes 2 or 4, anything else changes nothing. The next board takes the language.
  void nyelv(int language);
  /// Fields that the child has entered; it stands on the last one.
  int lépésszám() const { return static_cast<int>(út_.size()) - 1; }
  /// Those fields, behind an entry 0 that is the same in every game.
  const std::vector<Square>& út() const { return út_; }
  /// The hidden path: the start field and the field of each letter.
  const std::vector<Square>& megoldás() const { return megoldás_; }
  /// The field of the keyboard.
  Square kurzor() const { return kurzor_; }
  /// Whether somebody who stands on the one field may step onto the other by the rule.
  bool is_move(Square from, Square to) const;

  void Load() override;
  void KeyDown(KeyEvent& event) override;

 protected:
  void no_puzzle() override;

 private:
  // The board (frm_lóugrás.cpp).
  void bind();
  void make_fields();
  void new_board();
  void clear_board();
  void lay_out_pictures();
  void lay_out_fields();
  Text choose_words();
  void blank_picture(int index);
  Text draw_word(int index, const Text& words);
  int draw_number(const Text& words, bool hyphens, bool with_picture);
  int véletlenkép();
  bool short_named(int number) const;
  bool can_come(int number);
  bool fits(const Text& word, const Text& words, bool hyphens) const;
  Text szó_beolvasás(int number) { return files_.word(to_text(number), nyelv_); }
  void hide_words(const Text& words);
  void place_start(Square start);
  void töltelék_kitöltés();
  void tábla_levágás();
  void tábla_igazítás(int width, int height);
  void betűméret_tábla();
  void betűméret_képnév();

  // The play (frm_lóugrás_play.cpp).
  void enter(int index);
  bool made_move(Square to);
  void append(const Text& letter);
  bool names_complete() const;
  bool names_full() const;
  void tell_full() const;
  void win();
  void take_back();
  void blink();
  void set_ground(Label& square, Color color) const;
  Color own_color(Square square) const { return mezőszín(square.column, square.row); }
  Color green(Square square) const;
  void show_next_step();
  void show_line(int index, Square from, Square to);
  void color_line(int index, Color color);
  void run_front();
  void segítő_törlés();
  void help(int index);
  void board_key(int code);
  void move_cursor(int code);
  void kurzor_be();
  void kurzor_ki();
  void resize_cursor(double factor);
  void fit_letter(Label& square) const;
  void show_name(int index, const Text& found);
  void képbemutatás(bool ended);
  void sound(TextView file) const;

  frm_lóugrás_beáll& settings() const { return session().window<frm_lóugrás_beáll>(); }
  int columns_in_play() const { return settings().udoszlopokszáma.value(); }
  int rows_in_play() const { return settings().udsorokszáma.value(); }

  RecordFiles files_{session()};
  std::set<int> without_picture_; ///< Numbers of files whose picture could not be loaded.
  const Moves* moves_ = &knight_moves;
  int nyelv_ = kszöveg::magyar;
  int képek_darab_ = 0;
  Color plain_ = white;         ///< Of a field before it gets a colour.
  Rect board_;                  ///< Where the board may lie, twips.
  Text widest_letter_ = u"dzs"; ///< On this board.
  double name_size_ = 16;       ///< Font of the names, points.
  std::vector<Square> megoldás_;
  std::vector<Square> út_{first_entry};
  Square kurzor_;

  /// Entry 0 of every way, wherever it starts.
  static constexpr Square first_entry{2, 1};
};

} // namespace cserko
