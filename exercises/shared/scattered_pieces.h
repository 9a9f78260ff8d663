// Pieces of a word that lie about in a box, one label each: scattered without overlap, dragged by mouse within limits,
// carried by click and click, moved by keyboard, read and lined up from left to right.
//
// How an exercise uses it:
//
//     PictureBox szövegtároló{*this, u"szövegtároló", {240, 5520, 5175, 1575}};   // in the header
//     ElementArray<Label> lbl_szótag{szövegtároló, u"lbl_szótag", {0, 0, 2587, 525}};
//     ScatteredPieces pieces_{session(), szövegtároló, lbl_szótag, {.advice = u"…"}};
//
//     pieces_.keyboard = {step, {kép.Width, kép.Height}};    // when the window has its size
//
//     pieces_.clear();                                       // a new word; set the font of piece 0 and the box
//     pieces_.show(texts, ScatteredPieces::Height::OfText);
//     pieces_.scatter(100);
//
//     void frm_x::KeyDown(KeyEvent& event) { pieces_.key_down(event); }
//     szövegtároló.MouseDown = [this](const MouseEvent& event) { if (!pieces_.put_down(event)) … };
//
// The element array's handlers belong to the pieces; `Pressed` is there for what else a press does. All measuring is in
// the font of the box.
#pragma once

#include "core/session.h"
#include "exercises/shared/gesture.h"
#include "platform/element_array.h"

#include <optional>

namespace cserko {

class ScatteredPieces {
 public:
  /// What an exercise states of its own.
  struct Rules {
    TextView advice;           ///< The Hungarian sentence where the pieces find no place.
    bool whole_twips = false;  ///< A dragged piece stands at whole numbers.
    double mouse_margin = 100; ///< Twips at the right edge that the mouse cannot reach, unlike the arrow keys.
  };
  /// What the arrow keys do: by how much they move a piece, and how far to the right and down its edges may come.
  struct Keyboard {
    double step = 0;
    Size reach;
  };
  enum class Height : std::uint8_t { OfText, AsDesigned };
  /// What orders pieces from left to right; ties by the outcome of the exchange sort.
  enum class By : std::uint8_t { ExactLeft, RoundedLeft };

  /// Takes the array's handlers. The box is the container of the array.
  ScatteredPieces(Session& session, PictureBox& box, ElementArray<Label>& pieces, const Rules& rules);
  ScatteredPieces(const ScatteredPieces&) = delete;
  ScatteredPieces& operator=(const ScatteredPieces&) = delete;

  Keyboard keyboard;
  /// Runs first at any press of a piece, whatever the button.
  std::function<void(int piece, const MouseEvent& event)> Pressed;

  // The word.

  /// Takes all pieces away but piece 0, which becomes empty and hidden. Nothing is selected or held any more.
  void clear();
  /// One visible piece for each text, as wide as the text and as high as is said.
  void show(const std::vector<Text>& texts, Height height);
  /// Puts all pieces at random places where none overlaps an earlier one, `right_margin` twips off the right edge at
  /// least. Throws NothingFits where there are no such places.
  void scatter(double right_margin);
  /// Whether that piece would overlap one of a lower number at the place. To touch is not to overlap.
  bool átfedés(int piece, double x, double y) const;

  // From left to right.

  std::vector<int> by_left(By by) const;
  /// Puts the pieces in a row in their order from left to right, at the height of the leftmost. That one moves to the
  /// left where a row of the given width would not fit. Returns the order.
  std::vector<int> line_up(double row_width, By by);

  // Selection: the piece that the arrow keys move shows a border.

  std::optional<int> selected() const { return selected_; }
  void select(int piece);
  /// Takes the selection away; what was picked up by a click is put down where it lies.
  void kijelölés_törlése();
  /// Selects the next piece from left to right, after the last one the first again.
  void select_next();
  /// A key of the window: the space bar selects the next piece, and so does any key while none is selected; arrows move
  /// the selected one and do not move the focus.
  void key_down(KeyEvent& event);

  /// A press of the box: puts the piece there that a click has picked up. Returns whether there was one.
  bool put_down(const MouseEvent& event);

 private:
  void piece_pressed(int piece, const MouseEvent& event);
  void piece_moved(const MouseEvent& event);
  void piece_released(int piece, const MouseEvent& event);
  void place(Label& piece, double left, double top) const;
  void move_selected(int code);
  double text_width(TextView text) const;
  void moving_sound() const;
  Platform& platform() const { return session_.platform(); }

  Session& session_;
  PictureBox& box_;
  ElementArray<Label>& pieces_;
  Rules rules_;
  std::optional<int> selected_;
  std::optional<int> dragged_;   ///< The piece that the mouse holds.
  std::optional<int> picked_up_; ///< The piece that a click has picked up and the next one puts down.
  Gesture gesture_;
  int fogás_x_ = 0; ///< Where inside the held piece it was pressed.
  int fogás_y_ = 0;
};

} // namespace cserko
