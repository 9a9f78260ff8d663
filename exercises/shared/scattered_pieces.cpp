#include "exercises/shared/scattered_pieces.h"

#include "core/exchange_sort.h"
#include "core/numbers.h"
#include "core/placement.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <numeric>

namespace cserko {

ScatteredPieces::ScatteredPieces(Session& session, PictureBox& box, ElementArray<Label>& pieces, const Rules& rules)
    : session_(session), box_(box), pieces_(pieces), rules_(rules) {
  pieces_[0].WordWrap = false;
  pieces_.MouseDown = [this](int piece, const MouseEvent& event) { piece_pressed(piece, event); };
  pieces_.MouseMove = [this](int, const MouseEvent& event) { piece_moved(event); };
  pieces_.MouseUp = [this](int piece, const MouseEvent& event) { piece_released(piece, event); };
}

void ScatteredPieces::clear() {
  kijelölés_törlése();
  dragged_.reset();
  pieces_.unload_from(1);
  pieces_[0].Caption.clear();
  pieces_[0].Visible = false;
}

void ScatteredPieces::show(const std::vector<Text>& texts, Height height) {
  int number = 0;
  for (const Text& text : texts) {
    Label& piece = pieces_.loaded(number) ? pieces_[number] : pieces_.load(number);
    ++number;
    const Size extent = platform().measure(box_.Font, text);
    piece.Caption = text;
    piece.Width = extent.width;
    if (height == Height::OfText) piece.Height = extent.height;
    piece.Visible = true;
  }
}

void ScatteredPieces::scatter(double right_margin) {
  PlacementBudget budget(rules_.advice);
  const auto find_place = [&](int number) {
    Label& piece = pieces_[number];
    double x = 0;
    double y = 0;
    do {
      if (!budget.take()) return false;
      x = random_below(platform(), box_.Width - piece.Width - right_margin);
      y = random_below(platform(), box_.Height - piece.Height);
    } while (átfedés(number, x, y));
    piece.move_to(x, y);
    return true;
  };
  for (int number = 0; number < pieces_.count(); ++number) {
    if (find_place(number)) continue;
    budget.start_over();
    number = -1;
  }
}

bool ScatteredPieces::átfedés(int number, double x, double y) const {
  const Label& piece = pieces_[number];
  for (int i = 0; i < number; ++i) {
    const Label& earlier = pieces_[i];
    const bool across = x > earlier.Left - piece.Width && x < earlier.Left + earlier.Width;
    const bool down = y > earlier.Top - piece.Height && y < earlier.Top + earlier.Height;
    if (across && down) return true;
  }
  return false;
}

std::vector<int> ScatteredPieces::by_left(By by) const {
  std::vector<int> order(static_cast<std::size_t>(pieces_.count()));
  std::iota(order.begin(), order.end(), 0);
  exchange_sort(order, [&](int left, int right) {
    const double a = pieces_[left].Left;
    const double b = pieces_[right].Left;
    return by == By::ExactLeft ? a < b : rounded(a) < rounded(b);
  });
  return order;
}

std::vector<int> ScatteredPieces::line_up(double row_width, By by) {
  std::vector<int> order = by_left(by);
  Label& first = pieces_[order.front()];
  first.Left = std::min(first.Left, box_.Width - row_width - rules_.mouse_margin);
  double left = first.Left;
  for (const int number : order) {
    pieces_[number].move_to(left, first.Top);
    left += text_width(pieces_[number].Caption);
  }
  return order;
}

void ScatteredPieces::select(int piece) {
  kijelölés_törlése();
  pieces_[piece].Border = pieces_[piece].Selected = true;
  selected_ = piece;
}

void ScatteredPieces::kijelölés_törlése() {
  pieces_.each([](Label& piece) { piece.Border = piece.Selected = false; });
  selected_.reset();
  picked_up_.reset();
}

void ScatteredPieces::select_next() {
  const std::vector<int> order = by_left(By::ExactLeft);
  const auto bordered = std::find_if(order.begin(), order.end(), [&](int number) { return pieces_[number].Border; });
  const bool go_round = bordered == order.end() || std::next(bordered) == order.end();
  select(go_round ? order.front() : *std::next(bordered));
}

void ScatteredPieces::key_down(KeyEvent& event) {
  if (event.code == key::space || !selected_) {
    select_next();
  } else {
    move_selected(event.code);
  }
  // The arrows belong to the pieces; a focused button must not pass the focus on by them.
  if (event.code >= key::left && event.code <= key::down) event.code = 0;
}

void ScatteredPieces::move_selected(int code) {
  Label& piece = pieces_[*selected_];
  switch (code) {
  case key::left:
    piece.Left = std::max(0.0, piece.Left - keyboard.step);
    break;
  case key::up:
    piece.Top = std::max(0.0, piece.Top - keyboard.step);
    break;
  case key::right:
    piece.Left = std::min(keyboard.reach.width - piece.Width, piece.Left + keyboard.step);
    break;
  case key::down:
    piece.Top = std::min(keyboard.reach.height - piece.Height, piece.Top + keyboard.step);
    break;
  default:
    break;
  }
}

void ScatteredPieces::place(Label& piece, double left, double top) const {
  const double rightmost = box_.Width - piece.Width - rules_.mouse_margin;
  const double lowest = box_.Height - piece.Height;
  if (rules_.whole_twips) {
    left = rounded(left);
    top = rounded(top);
  }
  piece.move_to(std::min(std::max(0.0, left), rightmost), std::min(std::max(0.0, top), lowest));
}

void ScatteredPieces::piece_pressed(int number, const MouseEvent& event) {
  if (Pressed) Pressed(number, event);
  if (event.button != MouseButton::Left) return;
  const Label& piece = pieces_[number];
  dragged_ = number;
  gesture_.begin({piece.Left + event.x, piece.Top + event.y});
  fogás_x_ = rounded(event.x);
  fogás_y_ = rounded(event.y);
  moving_sound();
}

void ScatteredPieces::piece_moved(const MouseEvent& event) {
  if (!dragged_) return;
  Label& piece = pieces_[*dragged_];
  gesture_.follow({piece.Left + event.x, piece.Top + event.y});
  place(piece, piece.Left + event.x - fogás_x_, piece.Top + event.y - fogás_y_);
}

void ScatteredPieces::piece_released(int number, const MouseEvent& event) {
  if (event.button != MouseButton::Left || dragged_ != number) return;
  dragged_.reset();
  moving_sound();
  if (gesture_.moved()) return;
  // A click without a drag takes the piece up; the next click on the box puts it down.
  select(number);
  picked_up_ = number;
}

bool ScatteredPieces::put_down(const MouseEvent& event) {
  // What shows no border any more is not in anybody's hand.
  if (!picked_up_ || !pieces_[*picked_up_].Border || event.button != MouseButton::Left) return false;
  Label& piece = pieces_[*picked_up_];
  place(piece, event.x - piece.Width / 2, event.y - piece.Height / 2);
  picked_up_.reset();
  return true;
}

double ScatteredPieces::text_width(TextView text) const { return platform().measure(box_.Font, text).width; }

void ScatteredPieces::moving_sound() const { hang_lejátszás(session_, session_.alapkönyvtár + u"cserko\\moving.wav"); }

} // namespace cserko
