#include "exercises/letters/frmverem.h"

#include "core/finally.h"
#include "core/numbers.h"
#include "core/window_gone.h"
#include "exercises/letters/frmveremigennem.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "feedback/névjegy.h"

#include <cmath>

namespace cserko {

namespace {

constexpr TextView no_letter = u" ";
constexpr double frame_line = 45;    // twips
constexpr int fruitless_draws = 200; // then all files are looked through once, without drawing

constexpr Color board_color{255, 253, 247};
constexpr Color row_color{255, 226, 160};
constexpr Color line_color{59, 36, 20};
constexpr Color mark_color{255, 0, 0};

constexpr TextView advice =
    u"Kevés olyan szavunk van, amelyik elég rövid.\r\nKérlek, engedj meg a beállításokban hosszabb szavakat vagy "
    u"kevesebb képet!";

} // namespace

frmverem::frmverem(Session& session) : ExerciseWindow(session, u"frmverem", {8400, 9900}, u"Cserkó - Tekergő") {
  betű[0].WordWrap = false;
  betű[0].ForeColor = black;
  betű[0].Tag = u"0";
  kép[0].Visible = false;
  kép[0].Tag = no_letter;
  képnév[0].Visible = false;
  képnév[0].WordWrap = false;
  bind_pointer();
  bind_menu();
}

void frmverem::bind_pointer() {
  betű.MouseDown = [this](int index, const MouseEvent& event) { cell_pressed(index, event); };
  betű.MouseMove = [this](int index, const MouseEvent& event) {
    betűk_kiemelése(-1);
    cell_pulled(index, event);
  };
  betű.MouseUp = [this](int index, const MouseEvent& event) { cell_released(index, event); };
  betű.Click = [this](int index) { cell_clicked(index); };
  kép.Click = [this](int slot) { in_turn({[this, slot] { show_slot_panel(slot); }}); };
  kép.MouseMove = [this](int slot, const MouseEvent&) { betűk_kiemelése(slot); };
  // The focus that the child has moved, not one that had to leave a picture that is gone.
  kép.LostFocus = [this](int slot) { left_slot_ = slot; };
  kép.GotFocus = [this](int slot) {
    if (left_slot_ >= 0 && kép[left_slot_].Visible) betűk_kiemelése(slot);
  };
}

void frmverem::bind_menu() {
  Timer1.Tick = [this] {
    if (busy_) {
      picture_due_ = true;
    } else {
      új_kép();
    }
  };
  mnubeállításokdlg.Click = [this] { in_turn({[this] { show_settings(); }}); };
  újjáték.Click = [this] { in_turn({[this] { újjáték_Click(); }}); };
  kilép.Click = [this] { in_turn({[this] { leave(); }}); };
  mnusúgósúgó.Click = [this] {
    in_turn({[this] { with_timer_paused([this] { súgó_megnyitás(session(), u"Tekergő  - A feladat.mht"); }); }});
  };
  mnusúgónévjegy.Click = [this] {
    in_turn({[this] { with_timer_paused([this] { platform().show_modal(session().window<Névjegy>()); }); }});
  };
}

void frmverem::Load() {
  settings().read();
  make_cells();
  place_slots();
  ablak_méretezés(*this, 0.9);
  ablak_középre(session(), *this);
  felső_szél_ = betű[0].Top;
  fit_letters();
  gombok_illesztése(*this);
  draw_board();
  deal_first([this] { új_játék(); });
  kurzor_ = 4;
  pozíció_kiemelése();
}

void frmverem::make_cells() {
  const Label& first = betű[0];
  for (int index = 1; index < columns * rows; ++index) {
    Label& made = betű.load(index);
    const int row = index / columns;
    made.move_to(first.Left + index % columns * first.Width, first.Top + row * first.Height);
    made.Visible = true;
  }
}

void frmverem::place_slots() {
  const Label& corner = cell(columns - 1, rows - 1);
  const double left = corner.Left + corner.Width + 300;
  const double top = corner.Top + corner.Height - slot_rows * kép[0].Height;
  for (int i = 0; i < slots; ++i) {
    PictureBox& picture = i == 0 ? kép[0] : kép.load(i);
    Label& name = i == 0 ? képnév[0] : képnév.load(i);
    const int row = i / slot_columns;
    picture.move_to(left + i % slot_columns * picture.Width, top + row * (picture.Height + name.Height));
    name.move_to(picture.Left, picture.Top + picture.Height);
  }
}

void frmverem::fit_letters() {
  cserko::Font font = betű[0].Font;
  font.size = 8;
  // A text that is as wide as its cell is too wide already.
  const Size limits{std::nextafter(betű[0].Width, 0), betű[0].Height};
  const double size = first_overfilling_size(platform(), font, u"dzs", limits) - 1;
  betű.each([size](Label& letter) { letter.Font.size = size; });
}

void frmverem::draw_board() {
  const Label& first = betű[0];
  const auto draw = [&](double top, double height, Color color) {
    const Rect place{first.Left, top, columns * first.Width, height};
    const double right = place.left + place.width;
    const double bottom = place.top + place.height;
    canvas().filled_box(place, color);
    canvas().line({place.left, top}, {right, top}, line_color, frame_line);
    canvas().line({place.left, bottom}, {right, bottom}, line_color, frame_line);
    canvas().line({place.left, top}, {place.left, bottom}, line_color, frame_line);
    canvas().line({right, top}, {right, bottom}, line_color, frame_line);
  };
  draw(felső_szél_, rows * first.Height, board_color);
  draw(felső_szél_ + middle * first.Height, first.Height, row_color);
}

void frmverem::nyelv(int language) {
  if (language == kszöveg::magyar || language == kszöveg::angol) nyelv_ = language;
}

// The game.

void frmverem::újjáték_Click() {
  új_játék();
  pozíció_kiemelése();
}

void frmverem::clear_board() {
  Timer1.Enabled = false;
  picture_due_ = false;
  drag_.reset();
  walk_to_ = -1;
  kép.each([](PictureBox& slot) {
    slot.Visible = false;
    slot.Tag = no_letter;
    slot.ToolTipText = no_letter;
  });
  képnév.each([](Label& name) {
    name.Caption.clear();
    name.Visible = false;
  });
  kiemelés_törlése();
  betű.each([this](Label& letter) { put(letter, Text(no_letter)); });
}

void frmverem::új_játék() {
  deal([this] {
    clear_board();
    nyelv(settings().language());
    for (int i = 0; i < settings().udképekszámakezdéskor.value(); ++i) add_picture();
    Timer1.Interval = (settings().udfokozat.value() * 10 + 15) * 1000;
    Timer1.restart();
  });
}

// By the timer. Where no further word fits, the game goes on with the pictures that are there.
void frmverem::új_kép() {
  bool placed = false;
  try {
    placed = add_picture();
  } catch (const NothingFits&) {
    Timer1.Enabled = false;
    throw;
  }
  if (!placed) vereség();
}

// False where there is no slot for the picture or no cell for one of its letters.
bool frmverem::add_picture() {
  std::vector<int> free;
  Text present = u",";
  kép.each([&](const PictureBox& slot) {
    if (!slot.Visible) free.push_back(slot.Index);
    present += slot.Tag + u",";
  });
  if (free.empty()) return false;
  const int drawn = random_below(platform(), static_cast<double>(free.size()));
  PictureBox& slot = kép[free[static_cast<std::size_t>(drawn)]];
  const int file = draw_file(present);
  const Text word = fájlok_.word(file, nyelv_);
  show_picture_file(slot, fájlok_.picture(fájlok_.names()[static_cast<std::size_t>(file)]), word);
  slot.Tag = word;
  slot.ToolTipText = word;
  slot.Visible = true;
  képnév[slot.Index].Visible = settings().chbxképnevek.ticked();
  szöveg_illesztés(képnév[slot.Index], Text(word));
  const kszöveg letters = in_letters(word);
  for (int i = 1; i <= letters.MAGYARBETŰKSZÁMA(); ++i) {
    if (!drop_letter(letters.szóbetűje(int(i)))) return false;
  }
  return true;
}

// One letter falls onto an end of the lowest column. False where the board is full.
bool frmverem::drop_letter(const Text& letter) {
  int column = legrövidebb_oszlop();
  int direction = static_cast<int>(std::floor(platform().random() + 0.5)) * 2 - 1;
  const auto start_row = [&] { return direction < 0 ? 0 : rows - 1; };
  const auto row_is_full = [&] {
    return !walk_on(0, columns - 1, Round::No, [&](int c) { return empty(c, start_row()); });
  };
  if (row_is_full()) direction = -direction;
  if (row_is_full()) return false;
  int row = start_row();
  while (!empty(column, row)) column = (column + 1) % columns;
  while (row != middle && empty(column, row - direction)) row -= direction;
  put(cell(column, row), letter);
  return true;
}

int frmverem::legrövidebb_oszlop() const {
  int best = 0;
  int best_height = rows;
  for (int column = 0; column < columns; ++column) {
    int first = 0;
    while (first < middle && empty(column, first)) ++first;
    int last = rows - 1;
    while (last > middle && empty(column, last)) --last;
    if (last - first >= best_height) continue;
    best = column;
    best_height = last - first;
  }
  return best;
}

int frmverem::draw_file(const Text& present) {
  const int last = fájlok_.count() - 1;
  // The last file is only come to from the one before it.
  const auto can_come = [&](int file) {
    return fits(file, present) && (file < last || file == 0 || !short_enough(file - 1));
  };
  for (int fruitless = 0;; ++fruitless) {
    if (last < 0 || (fruitless == fruitless_draws && !walk_on(0, last, Round::No, can_come))) throw NothingFits(advice);
    if (const auto file = véletlenkép(); file && fits(*file, present)) return *file;
  }
}

// From a drawn file on to the first whose word is short enough; behind the last one the search does not go round.
std::optional<int> frmverem::véletlenkép() {
  const int last = fájlok_.count() - 1;
  return walk_on(random_below(platform(), last), last, Round::No, [this](int file) { return short_enough(file); });
}

bool frmverem::short_enough(int file) {
  return static_cast<int>(fájlok_.word(file, nyelv_).size()) <= settings().udszóhossz.value();
}

// An empty word is part of every text: what could not be read is never taken.
bool frmverem::fits(int file, const Text& present) {
  return short_enough(file) && present.find(fájlok_.word(file, nyelv_)) == Text::npos;
}

int frmverem::letters_on_board() const {
  int letters = 0;
  betű.each([&letters](const Label& letter) { letters += letter.Caption == no_letter ? 0 : 1; });
  return letters;
}

void frmverem::win() {
  // What was meant for a board that is over counts no more, and no picture comes to it.
  waiting_.clear();
  Timer1.Enabled = false;
  platform().show_modal(session().window<frm_gratuláció>());
  if (platform().ended() || !session().is_loaded(*this)) throw WindowGone();
  új_játék();
}

void frmverem::vereség() {
  Timer1.Enabled = false;
  drag_.reset();
  auto& question = session().window<frmveremigennem>();
  const bool again = question.ask(u"Ez nem volt az igazi. Majd a következő! Megpróbálod még egyszer?");
  if (platform().ended() || !session().is_loaded(*this)) throw WindowGone();
  session().unload(question);
  if (again) {
    új_játék();
  } else {
    save_on_close_ = false;
    leave();
  }
}

// The pictures.

void frmverem::MouseMove(const MouseEvent&) { betűk_kiemelése(-1); }

void frmverem::betűk_kiemelése(int slot) {
  if (!settings().chb_betűkiemelés.ticked() || slot == utolsó_kiemelés_) return;
  const kszöveg name = in_letters(slot < 0 ? Text() : képnév[slot].Caption);
  betű.each([&](Label& letter) {
    const bool marked = letter.Caption != no_letter && name.vanebenne(letter.Caption);
    letter.Font.bold = marked;
    letter.ForeColor = marked ? mark_color : black;
  });
  utolsó_kiemelés_ = slot;
}

void frmverem::show_names() {
  const bool wanted = settings().chbxképnevek.ticked();
  képnév.each([&](Label& name) { name.Visible = wanted && kép[name.Index].Visible; });
}

void frmverem::show_slot_panel(int slot) {
  if (!kép[slot].Visible) return;
  with_timer_paused([&] { show_hint(session(), kép[slot], kép[slot].Tag); });
}

void frmverem::show_settings() {
  with_timer_paused([this] { platform().show_modal(settings()); });
  CheckBox& marks = settings().chb_betűkiemelés;
  if (marks.ticked()) return;
  // Marks of before would stay for good once the option is off.
  marks.set_value(1);
  betűk_kiemelése(-1);
  marks.set_value(0);
}

// The interval begins anew behind the work. A new game that was started meanwhile has set its own.
void frmverem::with_timer_paused(const std::function<void()>& work) {
  const int interval = std::exchange(Timer1.Interval, 0);
  const Finally go_on([&] {
    if (Timer1.Interval == 0) Timer1.Interval = interval;
    if (Timer1.Enabled) Timer1.restart();
  });
  work();
}

// The end of the game.

void frmverem::leave() {
  leaving_ = true;
  session().unload(*this);
  throw WindowGone();
}

void frmverem::QueryUnload(bool& cancel) {
  if (!busy_ || leaving_) return;
  // In the middle of a slide: the window goes when that is over.
  cancel = true;
  in_turn({[this] { leave(); }});
}

void frmverem::Unload() {
  ExerciseWindow::Unload();
  if (save_on_close_) settings().write();
}

} // namespace cserko
