// Tekergő: letters stand in ten columns around a middle row, pictures beside them. The child turns the row and pushes
// the columns until the name of a picture reads along the row, against a clock that brings new pictures.
#pragma once

#include "core/exercise.h"
#include "core/kszöveg.h"
#include "exercises/letters/frmverembeállítások.h"
#include "exercises/shared/gesture.h"
#include "exercises/shared/record_files.h"

#include <deque>

namespace cserko {

class frmverem : public ExerciseWindow {
 public:
  explicit frmverem(Session& session);

  static constexpr int columns = 10;
  static constexpr int rows = 17;
  static constexpr int middle = 8; ///< The only row that is read for words.
  static constexpr int slots = 18;
  static constexpr int slot_columns = 3;
  static constexpr int slot_rows = 6;
  static constexpr int won_below = 15; ///< Fewer letters than this win the game.

  /// Cell of column c and row r: element c + 10 * r. The caption " " is an empty cell.
  ElementArray<Label> betű{*this, u"betű", {120, 360, 390, 465}, TextView(u" ")};
  ElementArray<PictureBox> kép{*this, u"kép", {4320, 345, 1320, 1320}};
  ElementArray<Label> képnév{*this, u"képnév", {4320, 1665, 1335, 255}};
  Timer Timer1{*this, u"Timer1", 0, false};

  MenuItem mnufile{*this, u"mnufile", u"&Fájl"};
  MenuItem mnubeállításokdlg{mnufile, u"mnubeállításokdlg", u"&Beállítások..."};
  MenuItem elv1{mnufile, u"elv1", u"-"};
  MenuItem újjáték{mnufile, u"újjáték", u"&Új játék"};
  MenuItem elv2{mnufile, u"elv2", u"-"};
  MenuItem kilép{mnufile, u"kilép", u"&Kilép"};
  MenuItem mnusúgó{*this, u"mnusúgó", u"&Súgó"};
  MenuItem mnusúgósúgó{mnusúgó, u"mnusúgósúgó", u"&Súgó...", key::f1};
  MenuItem elv3{mnusúgó, u"elv3", u"-"};
  MenuItem mnusúgónévjegy{mnusúgó, u"mnusúgónévjegy", u"&Névjegy..."};

  /// Starts a new game and shows the cursor. Throws NothingFits where too few words are short enough.
  void újjáték_Click();
  /// Shows or hides the names of the pictures as the settings want it.
  void show_names();

  Label& cell(int column, int row) { return betű[column + columns * row]; }
  const Label& cell(int column, int row) const { return betű[column + columns * row]; }
  bool empty(int column, int row) const { return cell(column, row).Caption == u" "; }
  int letters_on_board() const;
  /// Column of the cursor.
  int kurzor() const { return kurzor_; }
  /// Whether all that the child has done so far has had its effect, slides included.
  bool at_rest() const { return !busy_ && !walking_; }
  /// Language of the words, also the number of their line in a record file.
  int nyelv() const { return nyelv_; }
  /// Takes 2 or 4, anything else changes nothing. A new game takes the language of the settings.
  void nyelv(int language);

  void Load() override;
  void KeyDown(KeyEvent& event) override;
  void MouseMove(const MouseEvent& event) override;
  void QueryUnload(bool& cancel) override;
  void Unload() override;

 protected:
  void no_puzzle() override { clear_board(); }

 private:
  enum class Turn : std::int8_t { Left = -1, Right = 1 };
  enum class Push : std::int8_t { Up = -1, Down = 1 };
  enum class Axis : std::uint8_t { None, Row, Column };

  /// Something that the child does. A key has its code.
  struct Deed {
    std::function<void()> act;
    int key = 0;
    int shift = 0;
  };
  /// A press that may become a pull.
  struct Drag {
    int column;
    bool in_row; ///< It began in the middle row.
    Point from;  ///< Where the press was, twips of the window.
    Axis axis = Axis::None;
    int steps = 0;         ///< Cells that the letters have been pulled.
    int target = 0;        ///< Cells that the pointer is away from the press.
    bool released = false; ///< The letters have yet to come to where the pointer was let go.
  };

  // Load and new game, pictures and their letters (frmverem.cpp).
  void bind_pointer();
  void bind_menu();
  void make_cells();
  void place_slots();
  void fit_letters();
  void draw_board();
  void clear_board();
  void új_játék();
  void új_kép();
  bool add_picture();
  bool drop_letter(const Text& letter);
  int legrövidebb_oszlop() const;
  int draw_file(const Text& present);
  std::optional<int> véletlenkép();
  bool short_enough(int file);
  bool fits(int file, const Text& present);
  void win();
  void vereség();
  void betűk_kiemelése(int slot);
  void show_slot_panel(int slot);
  void show_settings();
  void with_timer_paused(const std::function<void()>& work);
  void leave();

  // What the child does, and what it moves (frmverem_moves.cpp).
  void in_turn(Deed deed);
  void key_pressed(int code, int shift_mask);
  void act(int code, int shift_mask);
  void after_move();
  void pozíció_kiemelése();
  void kiemelés_törlése();
  void move_cursor(int column);
  void step_cursor(int way);
  void walk();
  void sor_tekerése(Turn turn);
  bool can_push(Push push) const;
  void push_column(Push push);
  bool close_gap(int column);
  void oszlop_lehúzása(int column);
  void oszlop_felhúzása(int column);
  void oszlop_helyrerakása(int column, int first_row, int last_row);
  void slide_column(int column, int first_row, int last_row, Push push, int steps);
  void shift_captions(int column, int to, int from);
  bool slide_frame();
  void put(Label& cell, const Text& letter);
  void megfejtés_vizsgálata();
  kszöveg in_letters(const Text& text) const;
  void show_solution(int slot, int first, int letters);
  void take_away(int slot, int first, int letters);
  void cell_pressed(int index, const MouseEvent& event);
  void cell_pulled(int index, const MouseEvent& event);
  void cell_released(int index, const MouseEvent& event);
  void cell_clicked(int index);
  void follow_pull();
  bool pull_one_step(int way);

  frmverembeállítások& settings() const { return session().window<frmverembeállítások>(); }

  int kurzor_ = 4;
  int nyelv_ = kszöveg::magyar;
  double felső_szél_ = 0;
  RecordFiles fájlok_{session()};
  int utolsó_kiemelés_ = 0; ///< The slot whose name is highlighted on the board, -1 for none.

  bool busy_ = false;        ///< A deed is done; its slides let events through.
  std::deque<Deed> waiting_; ///< What the child has done meanwhile.
  bool picture_due_ = false; ///< The timer has ticked meanwhile.
  int left_slot_ = -1;       ///< The picture that had the focus before.
  std::optional<Drag> drag_;
  Gesture gesture_;
  int walk_to_ = -1; ///< The column that the cursor walks to, -1 for none.
  bool walking_ = false;
  bool leaving_ = false;
  bool save_on_close_ = true;
};

} // namespace cserko
