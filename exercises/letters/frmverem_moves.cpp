// What the child does in Tekergő by keys and pointer, and how the letters move.
#include "core/animation.h"
#include "core/finally.h"
#include "exercises/letters/frmverem.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cserko {

namespace {

constexpr TextView no_letter = u" ";
constexpr double cursor_margin = 50; // twips that the cursor's cell is larger on each side
constexpr double cursor_growth = 4;  // points that its letter is larger
constexpr int row_steps = 6;         // frames of the slides, beside the one at rest
constexpr int column_steps = 4;
constexpr int gap_steps = 7;
constexpr int walk_pause = 30; // ms
constexpr TextView cursor_sound = u"cserko\\rd_kick_2.wav";
constexpr TextView move_sound = u"cserko\\kerchunk.wav";
constexpr TextView solved_sound = u"cserko\\swallow1.wav";

// The keys that mean something on the board.
bool is_game_key(int code) {
  constexpr std::array codes{key::home, key::end,   key::left,   key::right, key::up,
                             key::down, key::space, key::escape, int{'X'},   int{'Y'}};
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

// Cells that a pull is long, the first from half a cell on.
int whole_cells(double cells) { return static_cast<int>(cells < 0 ? std::ceil(cells - 0.5) : std::floor(cells + 0.5)); }

} // namespace

// One after the other: what comes while a deed is done waits for it, and its slide ends at once, so that nothing is
// lost and nothing is answered late.
void frmverem::in_turn(Deed deed) {
  waiting_.push_back(std::move(deed));
  if (busy_) return;
  {
    busy_ = true;
    const Finally rest([this] {
      busy_ = false;
      waiting_.clear();
    });
    while (!waiting_.empty()) {
      const Deed next = std::move(waiting_.front());
      waiting_.pop_front();
      next.act();
    }
  }
  if (std::exchange(picture_due_, false)) új_kép();
  if (walk_to_ >= 0 && !walking_) walk();
}

// The keys.

void frmverem::KeyDown(KeyEvent& event) {
  const int code = event.code;
  const int shift_mask = event.shift;
  const bool repeats = event.repeated;
  const bool opens_picture = code == key::enter && focus() != nullptr && focus()->kind() == ElementKind::PictureBox;
  if (is_game_key(code) || opens_picture) event.code = 0;
  // Of a key that is held down one waits at most, or the letters would go on moving behind its release.
  const bool one_waits = std::any_of(waiting_.begin(), waiting_.end(),
                                     [&](const Deed& deed) { return deed.key == code && deed.shift == shift_mask; });
  if (repeats && (one_waits || opens_picture)) return;
  in_turn({[this, code, shift_mask] { key_pressed(code, shift_mask); }, code, shift_mask});
}

void frmverem::key_pressed(int code, int shift_mask) {
  betűk_kiemelése(-1);
  if (code == key::escape) leave();
  if (!has_puzzle()) return;
  act(code, shift_mask);
  after_move();
}

void frmverem::act(int code, int shift_mask) {
  // Shift with an arrow turns the row as Y and X do.
  if (shift_mask == shift::shift && code == key::left) code = 'Y';
  if (shift_mask == shift::shift && code == key::right) code = 'X';
  const bool control = shift_mask == shift::control;
  switch (code) {
  case key::home:
    return move_cursor(0);
  case key::end:
    return move_cursor(columns - 1);
  case key::left:
    return control ? sor_tekerése(Turn::Left) : step_cursor(-1);
  case key::right:
    return control ? sor_tekerése(Turn::Right) : step_cursor(1);
  case key::space:
  case 'X':
    return sor_tekerése(Turn::Right);
  case 'Y':
    return sor_tekerése(Turn::Left);
  case key::up:
    return push_column(Push::Up);
  case key::down:
    return push_column(Push::Down);
  case key::enter:
    if (focus() != nullptr && focus()->kind() == ElementKind::PictureBox) show_slot_panel(focus()->Index);
    return;
  default:
    return;
  }
}

void frmverem::after_move() {
  megfejtés_vizsgálata();
  if (letters_on_board() < won_below) win();
}

// The cursor.

void frmverem::pozíció_kiemelése() {
  Label& here = cell(kurzor_, middle);
  if (here.Tag == u"1") return;
  here.Left -= cursor_margin;
  here.Top -= cursor_margin;
  here.Width += 2 * cursor_margin;
  here.Height += 2 * cursor_margin;
  here.Font.size += cursor_growth;
  here.Border = true;
  here.Opaque = true;
  here.BackColor = BackColor;
  here.Tag = u"1";
  here.bring_to_front();
}

void frmverem::kiemelés_törlése() {
  Label& here = cell(kurzor_, middle);
  if (here.Tag != u"1") return;
  here.Left += cursor_margin;
  here.Top += cursor_margin;
  here.Width -= 2 * cursor_margin;
  here.Height -= 2 * cursor_margin;
  here.Font.size -= cursor_growth;
  here.Opaque = false;
  here.Tag = u"0";
  put(here, here.Caption);
}

void frmverem::move_cursor(int column) {
  kiemelés_törlése();
  kurzor_ = column;
  pozíció_kiemelése();
}

void frmverem::step_cursor(int way) {
  move_cursor((kurzor_ + way + columns) % columns);
  hang_lejátszás(session(), session().alapkönyvtár + Text(cursor_sound));
}

// Another click meanwhile leads the same walk elsewhere.
void frmverem::walk() {
  walking_ = true;
  const Finally arrived([this] { walking_ = false; });
  while (walk_to_ >= 0) {
    const int way = walk_to_ - kurzor_;
    move_cursor(kurzor_ + std::clamp(way, -1, 1));
    platform().redraw(*this);
    live_pause(session(), *this, walk_pause);
    if (kurzor_ == walk_to_) walk_to_ = -1;
  }
}

// The letters. A letter has an edge, an empty cell has none.

void frmverem::put(Label& cell, const Text& letter) {
  cell.Caption = letter;
  cell.Border = letter != no_letter || cell.Tag == u"1";
}

void frmverem::sor_tekerése(Turn turn) {
  const int way = static_cast<int>(turn);
  const double width = betű[0].Width;
  std::array<Text, columns> captions;
  for (int column = 0; column < columns; ++column)
    captions.at(static_cast<std::size_t>(column)) = cell(column, middle).Caption;
  kiemelés_törlése();
  const int first = turn == Turn::Right ? 0 : 1; // the cell that goes round is not seen to move
  for (int step = 0; step <= row_steps; ++step) {
    for (int column = first; column < first + columns - 1; ++column)
      cell(column, middle).Left = cell(column, middle - 1).Left + way * width * step / row_steps;
    if (!slide_frame()) break;
  }
  for (int column = 0; column < columns; ++column) {
    Label& letter = cell(column, middle);
    put(letter, captions.at(static_cast<std::size_t>((column - way + columns) % columns)));
    letter.Left = cell(column, middle - 1).Left;
  }
  pozíció_kiemelése();
  for (int column = 0; column < columns; ++column) {
    if (empty(column, middle)) close_gap(column);
  }
  hang_lejátszás(session(), session().alapkönyvtár + Text(move_sound));
}

// Neither may the column leave the board nor the middle row lose its last letter.
bool frmverem::can_push(Push push) const {
  const int way = static_cast<int>(push);
  return !empty(kurzor_, middle - way) && empty(kurzor_, push == Push::Down ? rows - 1 : 0);
}

void frmverem::push_column(Push push) {
  if (!can_push(push)) return;
  const bool down = push == Push::Down;
  kiemelés_törlése();
  slide_column(kurzor_, down ? 0 : 1, down ? rows - 2 : rows - 1, push, column_steps);
  pozíció_kiemelése();
  shift_captions(kurzor_, down ? rows - 1 : 0, down ? 0 : rows - 1);
  hang_lejátszás(session(), session().alapkönyvtár + Text(move_sound));
}

// Letters above the gap come first; where there are none, those below it. False where there are neither.
bool frmverem::close_gap(int column) {
  if (!empty(column, middle - 1)) {
    oszlop_lehúzása(column);
  } else if (!empty(column, middle + 1)) {
    oszlop_felhúzása(column);
  } else {
    return false;
  }
  return true;
}

void frmverem::oszlop_lehúzása(int column) {
  Label& cursor = cell(kurzor_, middle);
  cursor.Border = false;
  slide_column(column, 0, middle - 1, Push::Down, gap_steps);
  shift_captions(column, middle, 0);
  put(cursor, cursor.Caption);
}

void frmverem::oszlop_felhúzása(int column) {
  Label& cursor = cell(kurzor_, middle);
  cursor.Border = false;
  slide_column(column, middle + 1, rows - 1, Push::Up, gap_steps);
  shift_captions(column, middle, rows - 1);
  put(cursor, cursor.Caption);
}

void frmverem::slide_column(int column, int first_row, int last_row, Push push, int steps) {
  const double height = betű[0].Height;
  for (int step = 0; step <= steps; ++step) {
    const double way = static_cast<int>(push) * height * step / steps;
    for (int row = first_row; row <= last_row; ++row) cell(column, row).Top = felső_szél_ + row * height + way;
    if (!slide_frame()) break;
  }
  oszlop_helyrerakása(column, first_row, last_row);
}

// Only what has moved: the cursor's cell keeps its own place.
void frmverem::oszlop_helyrerakása(int column, int first_row, int last_row) {
  for (int row = first_row; row <= last_row; ++row) cell(column, row).Top = felső_szél_ + row * betű[0].Height;
}

// Moves the letters one cell towards the row `to`, from the row `from` on, which becomes empty.
void frmverem::shift_captions(int column, int to, int from) {
  const int back = from < to ? -1 : 1;
  for (int row = to; row != from; row += back) put(cell(column, row), cell(column, row + back).Caption);
  put(cell(column, from), Text(no_letter));
}

// One frame of a slide. False where the rest of the slide is to be left out, since the child has gone on.
bool frmverem::slide_frame() {
  const auto in_haste = [this] { return !waiting_.empty() || (drag_ && drag_->steps != drag_->target); };
  if (in_haste()) return false;
  live_frame(session(), *this, in_haste);
  return !in_haste();
}

// Solved words.

kszöveg frmverem::in_letters(const Text& text) const {
  kszöveg letters;
  letters.szövegnyelv(nyelv_);
  letters.value(text);
  return letters;
}

void frmverem::megfejtés_vizsgálata() {
  Text joined;
  Text listed = u",";
  for (int column = 0; column < columns; ++column) {
    joined += cell(column, middle).Caption;
    listed += cell(column, middle).Caption + u",";
  }
  for (int slot = 0; slot < slots; ++slot) {
    if (!kép[slot].Visible) continue;
    const kszöveg word = in_letters(kép[slot].Tag);
    if (listed.find(word.VesszősSzöveg()) == Text::npos) continue;
    // The letters before it are those of the row as one text: an "s" and a "z" side by side count as one.
    const int first = in_letters(joined.substr(0, joined.find(word.value()))).MAGYARBETŰKSZÁMA();
    const int letters = std::min(word.MAGYARBETŰKSZÁMA(), columns - first);
    drag_.reset();
    if (settings().udváridmegfejt.value() > 0) show_solution(slot, first, letters);
    take_away(slot, first, letters);
    return;
  }
}

void frmverem::show_solution(int slot, int first, int letters) {
  PictureBox& picture = kép[slot];
  const Rect place{picture.Left, picture.Top, picture.Width, picture.Height};
  std::array<bool, slots> shown{};
  for (int i = 0; i < slots; ++i) {
    shown.at(static_cast<std::size_t>(i)) = kép[i].Visible;
    kép[i].Visible = false;
    képnév[i].Visible = false;
  }
  kiemelés_törlése();
  picture.move_to(kép[slot_columns].Left, kép[slot_columns].Top);
  picture.Width = 3 * place.width;
  picture.Height = 3 * (place.height + képnév[slot].Height);
  picture.Visible = true;
  if (!picture.Picture) show_picture_of(picture, picture, picture.Tag);
  betű.each([](Label& letter) { letter.Visible = false; });
  for (int column = first; column < first + letters; ++column) cell(column, middle).Visible = true;
  platform().redraw(*this);
  const Text sound = session().alapkönyvtár + Text(solved_sound);
  hang_lejátszás(session(), Text(sound));
  Animation(session(), *this).wait(settings().udváridmegfejt.value() * 1000);
  hang_lejátszás(session(), Text(sound));
  for (int i = 0; i < slots; ++i) {
    kép[i].Visible = shown.at(static_cast<std::size_t>(i));
    képnév[i].Visible = kép[i].Visible && settings().chbxképnevek.ticked();
  }
  betű.each([](Label& letter) { letter.Visible = true; });
  pozíció_kiemelése();
  picture.move_to(place.left, place.top);
  picture.Width = place.width;
  picture.Height = place.height;
}

void frmverem::take_away(int slot, int first, int letters) {
  kép[slot].Visible = false;
  képnév[slot].Visible = false;
  for (int column = first; column < first + letters; ++column) {
    if (!close_gap(column)) put(cell(column, middle), Text(no_letter));
  }
  kép[slot].Tag = no_letter;
  kép[slot].ToolTipText = no_letter;
}

// The pointer.

void frmverem::cell_pressed(int index, const MouseEvent& event) {
  drag_.reset();
  if (event.button != MouseButton::Left || !has_puzzle()) return;
  const Point from{betű[index].Left + event.x, betű[index].Top + event.y};
  gesture_.begin(from);
  drag_ = Drag{.column = index % columns, .in_row = index / columns == middle, .from = from};
}

// The row or the column follows the pointer by whole cells, in the direction that the pull took first.
void frmverem::cell_pulled(int index, const MouseEvent& event) {
  if (!drag_ || drag_->released) return;
  if (event.button != MouseButton::Left) {
    drag_.reset(); // its release went to nobody
    return;
  }
  const Point here{betű[index].Left + event.x, betű[index].Top + event.y};
  gesture_.follow(here);
  const int across = whole_cells((here.x - drag_->from.x) / betű[0].Width);
  const int along = whole_cells((here.y - drag_->from.y) / betű[0].Height);
  if (drag_->axis == Axis::None) {
    if (drag_->in_row && std::abs(across) > std::abs(along)) {
      drag_->axis = Axis::Row;
    } else if (along != 0) {
      drag_->axis = Axis::Column;
    } else {
      return;
    }
  }
  drag_->target = drag_->axis == Axis::Row ? across : along;
  if (drag_->target != drag_->steps) in_turn({[this] { follow_pull(); }});
}

void frmverem::follow_pull() {
  while (drag_ && drag_->steps != drag_->target) {
    if (!pull_one_step(drag_->target > drag_->steps ? 1 : -1)) break;
  }
  if (drag_ && drag_->released) drag_.reset();
}

// As the key that does the same. False where the rules do not allow it.
bool frmverem::pull_one_step(int way) {
  gesture_.mark_moved();
  if (drag_->axis == Axis::Column) {
    const Push push = way > 0 ? Push::Down : Push::Up;
    if (kurzor_ != drag_->column) move_cursor(drag_->column);
    if (!can_push(push)) return false;
    drag_->steps += way;
    push_column(push);
  } else {
    drag_->steps += way;
    sor_tekerése(way > 0 ? Turn::Right : Turn::Left);
  }
  after_move();
  return true;
}

void frmverem::cell_released(int index, const MouseEvent& event) {
  if (busy_ && drag_ && drag_->steps != drag_->target) {
    drag_->released = true;
  } else {
    drag_.reset();
  }
  const Label& cell = betű[index];
  const bool click_follows = event.button == MouseButton::Left && event.x >= 0 && event.y >= 0 &&
                             event.x < cell.Width && event.y < cell.Height;
  if (!click_follows) gesture_ = Gesture();
}

void frmverem::cell_clicked(int index) {
  const bool pulled = std::exchange(gesture_, Gesture()).moved();
  if (pulled || !has_puzzle()) return;
  walk_to_ = index % columns;
  if (!busy_ && !walking_) walk();
}

} // namespace cserko
