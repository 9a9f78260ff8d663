// What the child does on the board of Knight's jump: moves and their undoing, the hint, the keys, the reading.
#include "exercises/boards/frm_lóugrás.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace cserko {

namespace {

constexpr double cursor_growth = 1.2;
constexpr double line_width = 0.12; // of a field's side
constexpr double edge_width = 0.22;

constexpr int hint_key = 'S';

bool is_arrow(int code) { return code >= key::left && code <= key::down; }

bool is_board_key(int code) {
  return code == key::enter || code == key::space || code == key::backspace || code == hint_key ||
         (code >= '1' && code < '1' + frm_lóugrás::most_pictures);
}

Point center_of(const Label& square) { return {square.Left + square.Width / 2, square.Top + square.Height / 2}; }

} // namespace

void frm_lóugrás::sound(TextView file) const {
  hang_lejátszás(session(), session().alapkönyvtár + u"cserko\\" + Text(file));
}

// The move. The game's own entry of the start field is one as well.
void frm_lóugrás::enter(int index) {
  const Square to{index % columns, index / columns};
  set_ground(field(to), own_color(to));
  // Where the start is the field that stands before every way, it is not entered: the child's first step may then go
  // anywhere. That is intended.
  if (to == út_.back()) return take_back();
  if (made_move(to)) return win();
  segítő_törlés();
}

bool frm_lóugrás::is_move(Square from, Square to) const {
  const int dx = std::abs(to.column - from.column);
  const int dy = std::abs(to.row - from.row);
  return moves_ == &knight_moves ? std::min(dx, dy) == 1 && std::max(dx, dy) == 2 : dx <= 1 && dy <= 1;
}

// Whether the move has won the game.
bool frm_lóugrás::made_move(Square to) {
  const bool first = lépésszám() == 0;
  if (!first && !is_move(út_.back(), to)) {
    sound(u"cointabl.wav");
    return false;
  }
  // Who was told to look the names through has nothing to do but undo.
  if (!first && names_full()) {
    tell_full();
    return false;
  }
  sound(u"rd_kick_2.wav");
  if (!first) {
    Label& left = field(út_.back());
    left.Enabled = false;
    set_ground(left, green(út_.back()));
  }
  út_.push_back(to);
  if (field(to).Caption != u"*") append(field(to).Caption);
  if (names_complete()) return true;
  if (names_full()) tell_full();
  return false;
}

// To the first name that is not full yet, whether the letter belongs to it or not.
void frm_lóugrás::append(const Text& letter) {
  for (int i = 0; i < most_pictures; ++i) {
    if (képnév[i].Caption.size() >= képnév[i].Tag.size()) continue;
    return show_name(i, képnév[i].Caption + letter);
  }
}

// Wrong letters may be wider than those of the word: such a name gets smaller until it fits.
void frm_lóugrás::show_name(int index, const Text& found) {
  Label& name = képnév[index];
  name.Caption = found;
  name.Font.size = name_size_;
  while (name.Font.size > 6 && platform().measure(name.Font, found).width > name.Width) name.Font.size -= 1;
}

bool frm_lóugrás::names_complete() const {
  bool complete = true;
  képnév.each(
      [&](const Label& name) { complete = complete && (name.Index >= képek_darab_ || name.Caption == name.Tag); });
  return complete;
}

bool frm_lóugrás::names_full() const {
  std::size_t found = 0;
  std::size_t wanted = 0;
  képnév.each([&](const Label& name) {
    found += name.Caption.size();
    wanted += name.Tag.size();
  });
  return found >= wanted;
}

void frm_lóugrás::tell_full() const {
  session().feedback.tell(u"Kérlek, nézd át még egyszer! Ha a képre kattintasz, segítséget kapsz!");
}

void frm_lóugrás::win() {
  platform().redraw(*this);
  if (settings().befejezés_után_olvasás.ticked()) képbemutatás(true);
  platform().show_modal(session().window<frm_gratuláció>());
  beáll();
}

// The start field is never taken back.
void frm_lóugrás::take_back() {
  segítő_törlés();
  if (lépésszám() > 1) {
    sound(u"branch.wav");
    Label& left = field(út_.back());
    set_ground(left, own_color(út_.back()));
    const std::size_t length = left.Caption.size();
    út_.pop_back();
    Label& here = field(út_.back());
    here.Enabled = true;
    set_ground(here, own_color(út_.back()));
    for (int i = most_pictures - 1; i >= 0; --i) {
      const Text& found = képnév[i].Caption;
      if (found.empty()) continue;
      show_name(i, found.substr(0, found.size() - std::min(length, found.size())));
      break;
    }
  }
  set_focus(&kép[0]);
}

// The colours. The chessboard shows through the way in two greens.

Color frm_lóugrás::green(Square square) const {
  return own_color(square) == lbl_Szürke.BackColor ? light_green : dark_green;
}

void frm_lóugrás::set_ground(Label& square, Color color) const {
  square.BackColor = color;
  square.ForeColor = color == dark_green ? white : black;
}

void frm_lóugrás::blink() {
  if (!has_puzzle()) return;
  Label& here = field(út_.back());
  const bool is_green = here.BackColor == dark_green || here.BackColor == light_green;
  set_ground(here, is_green ? own_color(út_.back()) : green(út_.back()));
}

// The hint: the true way from the start through the next field, however the child has walked.

void frm_lóugrás::show_next_step() {
  const int segments = std::min(lépésszám(), static_cast<int>(megoldás_.size()) - 1);
  for (int i = 1; i <= segments; ++i) {
    if (!Line1.loaded(i - 1)) {
      Line_szegély.load(i - 1);
      Line1.load(i - 1);
    }
    show_line(i - 1, megoldás_[static_cast<std::size_t>(i - 1)], megoldás_[static_cast<std::size_t>(i)]);
  }
  Line_szegély[0].Visible = true;
  Line1[0].Visible = true;
  Line_szegély.each([](Line& edge) { edge.bring_to_front(); });
  Line1.each([](Line& line) { line.bring_to_front(); });
  Timer_segítő.Enabled = true;
  Timer_segítő.restart();
  set_focus(&kép[0]);
  segítség_hang(session());
}

void frm_lóugrás::show_line(int index, Square from, Square to) {
  const Point a = center_of(field(from));
  const Point b = center_of(field(to));
  const double side = betű[0].Width;
  for (const auto& [line, width] : {std::pair{&Line_szegély[index], edge_width}, {&Line1[index], line_width}}) {
    line->move_to(std::min(a.x, b.x), std::min(a.y, b.y));
    line->Width = std::abs(b.x - a.x);
    line->Height = std::abs(b.y - a.y);
    line->Rising = (b.x - a.x) * (b.y - a.y) < 0;
    line->BorderWidth = width * side;
    line->Visible = true;
  }
  color_line(index, yellow);
}

void frm_lóugrás::color_line(int index, Color color) {
  Line1[index].ForeColor = color;
  Line_szegély[index].ForeColor = color == yellow ? blue : yellow;
}

// A blue front runs along the way.
void frm_lóugrás::run_front() {
  for (int i = 0; i < Line1.count(); ++i) {
    if (Line1[i].ForeColor == yellow) return color_line(i, blue);
  }
  for (int i = 0; i < Line1.count(); ++i) color_line(i, yellow);
}

void frm_lóugrás::segítő_törlés() {
  Timer_segítő.Enabled = false;
  Line_szegély.unload_from(1);
  Line1.unload_from(1);
  Line_szegély[0].Visible = false;
  Line1[0].Visible = false;
}

void frm_lóugrás::help(int index) {
  if (has_puzzle() && kép[index].Visible) show_hint(session(), kép[index], képnév[index].Tag);
}

// The keys.

void frm_lóugrás::KeyDown(KeyEvent& event) {
  const int code = event.code;
  const bool arrow = is_arrow(code);
  // A key that is held down is one press; only arrows go on.
  if (event.repeated && !arrow && is_board_key(code)) {
    event.code = 0;
    return;
  }
  segítő_törlés();
  if (!has_puzzle()) return ExerciseWindow::KeyDown(event);
  const bool on_button = focus() != nullptr && focus()->kind() == ElementKind::Button;
  const bool presses_button = on_button && (code == key::enter || code == key::space);
  const bool plain = (event.shift & (shift::control | shift::alt)) == 0;
  if (presses_button || !plain || !(arrow || is_board_key(code))) return;
  event.code = 0;
  if (arrow) {
    set_focus(&kép[0]);
    move_cursor(code);
  } else {
    board_key(code);
  }
}

void frm_lóugrás::board_key(int code) {
  if (code == key::backspace) {
    take_back();
  } else if (code == hint_key) {
    if (cmd_súgó.Enabled) show_next_step();
  } else if (code == key::enter || code == key::space) {
    const Label& here = field(kurzor_);
    if (here.Enabled) enter(here.Index);
  } else {
    help(code - '1');
  }
}

// Beyond an edge it comes in at the other one, past the part of the board that is not in play.
void frm_lóugrás::move_cursor(int code) {
  sound(u"moving.wav");
  kurzor_ki();
  const int dx = code == key::left ? -1 : code == key::right ? 1 : 0;
  const int dy = code == key::up ? -1 : code == key::down ? 1 : 0;
  do {
    kurzor_.column = (kurzor_.column + dx + columns) % columns;
    kurzor_.row = (kurzor_.row + dy + rows) % rows;
  } while (!field(kurzor_).Visible);
  kurzor_be();
}

void frm_lóugrás::kurzor_be() {
  Label& here = field(kurzor_);
  here.Tag = u"1";
  resize_cursor(cursor_growth);
  here.Border = here.Selected = true;
  here.bring_to_front();
}

void frm_lóugrás::kurzor_ki() {
  Label& here = field(kurzor_);
  if (here.Tag != u"1") return;
  here.Tag = u"0";
  resize_cursor(1 / cursor_growth);
  here.Border = here.Selected = false;
}

void frm_lóugrás::resize_cursor(double factor) {
  Label& here = field(kurzor_);
  const Point center = center_of(here);
  here.Width *= factor;
  here.Height *= factor;
  here.move_to(center.x - here.Width / 2, center.y - here.Height / 2);
  fit_letter(here);
}

void frm_lóugrás::fit_letter(Label& square) const {
  cserko::Font font = square.Font;
  font.size = 8;
  square.Font.size =
      first_overfilling_size(platform(), font, widest_letter_, {0.9 * square.Width, 0.9 * square.Height});
}

void frm_lóugrás::képbemutatás(bool ended) {
  if (!ended && !settings().chk_képekbemutatása.ticked()) return;
  Text text;
  if (ended) {
    text = u"\rNagyon ügyesen megfejtetted!\r";
    text += képek_darab_ > 1 ? u"Kérlek, olvasd fel a képek nevét!" : u"Kérlek, olvasd fel a kép nevét!";
  } else if (settings().udképekszáma.value() < 2) {
    text = u"Most megmutatom Neked a képet, amivel játszani fogunk!";
  } else {
    text = u"Most megmutatom Neked a képeket, amikkel játszani fogunk!";
  }
  session().feedback.tell(text);
  for (int i = 0; i < képek_darab_; ++i) show_hint(session(), kép[i], képnév[i].Tag);
}

} // namespace cserko
