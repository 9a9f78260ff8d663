#include "feedback/frm_rajz.h"

#include "core/finally.h"
#include "core/frame.h"
#include "feedback/frm_színezőmegnyitás.h"
#include "feedback/message_panels.h"
#include "platform/bitmap.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cserko {

namespace {

constexpr int minutes_of_a_reward = 2;
constexpr double eraser_side = 50;  // twips for each unit of line width
constexpr int keep_every = 20000;   // ms
constexpr double marker_step = 120; // twips
constexpr int swatches_in_a_row = 16;
constexpr Color pale{170, 170, 170}; // white on white would not be seen while it is stretched
constexpr TextView page_ending = u".kif";

Text work_file() { return Text(fixed_root) + u"temp.bmp"; }

void ignoring_errors(const std::function<void()>& deed) {
  try {
    deed();
  } catch (const std::exception&) {
    // What cannot be made or saved is not saved.
  }
}

// How far an arrow key goes along a row of choices, and across rows; 0 for other keys.
int arrow_step(int code, int in_a_row) {
  switch (code) {
  case key::left:
    return -1;
  case key::right:
    return 1;
  case key::up:
    return -in_a_row;
  case key::down:
    return in_a_row;
  default:
    return 0;
  }
}

// Arrow keys choose among the elements of an array and take the focus along.
template<class T> void choose_by_arrows(ElementArray<T>& array, int in_a_row, int index, KeyEvent& event) {
  const int next = index + arrow_step(event.code, in_a_row);
  if (next == index || !array.loaded(next)) return;
  event.code = 0;
  array.Click(next);
  array[next].window().set_focus(&array[next]);
}

} // namespace

frm_rajz::frm_rajz(Session& session)
    : Window(session.platform(), u"frm_rajz", {13500, 8400}, u"Cserkó - Rajz"),
      session_(session),
      kept_(session.platform()) {
  KeyPreview = true;
  design_look();
  bind_tools();
  bind_buttons();
  bind_keys();
  Timer2.Tick = [this] { Timer2_tick(); };
  keep_timer.Tick = [this] { keep_tick(); };
}

void frm_rajz::bind_tools() {
  kép.MouseDown = [this](const MouseEvent& event) { kép_mouse_down(event); };
  kép.MouseMove = [this](const MouseEvent& event) { kép_mouse_move(event); };
  kép.MouseUp = [this](const MouseEvent& event) { kép_mouse_up(event); };
  cmd_művelet.Click = [this](int index) { cmd_művelet_click(index); };
  szín.Click = [this](int index) { szín_click(index); };
  vonalvastagság.Click = [this](int index) { vonalvastagság_click(index); };
  aktívszín.DblClick = [this] { choose_color(); };
}

void frm_rajz::bind_buttons() {
  cmd_megnyit.Click = [this] { cmd_megnyit_click(); };
  cmd_ment.Click = [this] { cmd_ment_click(); };
  cmd_nyomtat.Click = [this] { cmd_nyomtat_click(); };
  cmd_törlés.Click = [this] { run_as_step([this] { board_.clear(); }); };
  Command1.Click = [this] { Command1_click(); };
  Command2.Click = [this] { Command2_click(); };
  cmd_színező.Click = [this] { cmd_színező_click(); };
  cmd_earlier.Click = [this] { take_earlier(); };
  cmd_undo.Click = [this] { step_back(); };
  cmd_redo.Click = [this] { step_forward(); };
}

void frm_rajz::bind_keys() {
  kép.KeyDown = [this](KeyEvent& event) { kép_key_down(event); };
  szín.KeyDown = [this](int index, KeyEvent& event) { choose_by_arrows(szín, swatches_in_a_row, index, event); };
  vonalvastagság.KeyDown = [this](int index, KeyEvent& event) { choose_by_arrows(vonalvastagság, 3, index, event); };
  aktívszín.KeyDown = [this](KeyEvent& event) {
    if (event.code != key::space && event.code != key::enter) return;
    event.code = 0;
    choose_color();
  };
}

// ---- Drawing ----

void frm_rajz::kép_mouse_down(const MouseEvent& event) {
  if (event.button != MouseButton::Left || pressed_) return;
  hide_marker();
  begin_stroke({event.x, event.y});
}

void frm_rajz::kép_mouse_move(const MouseEvent& event) {
  if (by_keyboard_) return;
  const Point place{event.x, event.y};
  if (pressed_) {
    draw_to(place);
  } else if (event.button == MouseButton::None && tool() == Tool::eraser) {
    place_eraser(place);
  }
}

void frm_rajz::kép_mouse_up(const MouseEvent& event) {
  if (event.button != MouseButton::Left || !pressed_ || by_keyboard_) return;
  draw_to({event.x, event.y});
  end_stroke();
}

void frm_rajz::begin_stroke(Point place) {
  start_ = last_ = place;
  if (tool() == Tool::fill) {
    fill_from(place);
    return;
  }
  pressed_ = true;
  board_.begin();
  if (tool() == Tool::pen) {
    board_.line(place, place, kép.DrawWidth, aktívszín.BackColor);
  } else if (tool() == Tool::eraser) {
    erase_to(place);
  } else {
    stretch_rubber(place);
  }
}

void frm_rajz::draw_to(Point place) {
  if (place == last_) return;
  if (tool() == Tool::pen) {
    board_.line(last_, place, kép.DrawWidth, aktívszín.BackColor);
  } else if (tool() == Tool::eraser) {
    erase_to(place);
  } else {
    stretch_rubber(place);
  }
  last_ = place;
}

void frm_rajz::end_stroke() {
  if (tool() == Tool::rectangle) board_.rectangle(start_, last_, kép.DrawWidth, aktívszín.BackColor);
  if (tool() == Tool::straight_line) board_.line(start_, last_, kép.DrawWidth, aktívszín.BackColor);
  give_up_stroke();
}

// What a rubber line only promised is not drawn; what pen and eraser have done stays.
void frm_rajz::give_up_stroke() {
  hide_rubber();
  if (!pressed_) return;
  pressed_ = false;
  by_keyboard_ = false;
  board_.end();
  refresh_buttons();
}

void frm_rajz::stretch_rubber(Point to) {
  const auto stretch = [this](Line& line, Point a, Point b) {
    line.Left = std::min(a.x, b.x);
    line.Top = std::min(a.y, b.y);
    line.Width = std::abs(a.x - b.x);
    line.Height = std::abs(a.y - b.y);
    line.Rising = (b.x - a.x) * (b.y - a.y) < 0;
    line.ForeColor = aktívszín.BackColor == white ? pale : aktívszín.BackColor;
    line.BorderWidth = kép.DrawWidth * twips_per_pixel;
    line.Visible = true;
  };
  if (tool() == Tool::straight_line) {
    stretch(vonal, start_, to);
    return;
  }
  const std::array<Point, 4> corners{start_, Point{to.x, start_.y}, to, Point{start_.x, to.y}};
  for (std::size_t i = 0; i < corners.size(); ++i)
    stretch(Line1[static_cast<int>(i)], corners.at(i), corners.at((i + 1) % corners.size()));
}

void frm_rajz::hide_rubber() {
  vonal.Visible = false;
  Line1.each([](Line& line) { line.Visible = false; });
}

void frm_rajz::place_eraser(Point place) {
  radír.Width = radír.Height = eraser_side * kép.DrawWidth;
  radír.Left = place.x - radír.Width / 2;
  radír.Top = place.y - radír.Height / 2;
  radír.Visible = true;
}

// A quick hand moves further than the eraser is wide: it wipes all the way.
void frm_rajz::erase_to(Point place) {
  const double side = eraser_side * kép.DrawWidth;
  const double distance = std::max(std::abs(place.x - last_.x), std::abs(place.y - last_.y));
  const int steps = std::max(1, static_cast<int>(std::ceil(std::min(distance, kép.Width + kép.Height) / (side / 4))));
  for (int step = 1; step <= steps; ++step) {
    place_eraser({last_.x + (place.x - last_.x) * step / steps, last_.y + (place.y - last_.y) * step / steps});
    board_.erase({radír.Left, radír.Top, radír.Width, radír.Height});
  }
}

void frm_rajz::fill_from(Point place) {
  if (!board_.contains(place)) return;
  const Color present = board_.color_at(place);
  if (chk_vonalnem.ticked() && present == szín[0].BackColor) return;
  if (present == aktívszín.BackColor) return;
  Enabled = false;
  kép.DrawWidth = 1;
  Pointer = MousePointer::Hourglass;
  const Finally restore([this] {
    Pointer = MousePointer::Arrow;
    kép.DrawWidth = aktívvastagság.DrawWidth;
    Enabled = true;
  });
  run_as_step(
      [&] { board_.flood(place, aktívszín.BackColor, chk_foltfestés.ticked(), [this] { platform().redraw(*this); }); });
}

void frm_rajz::run_as_step(const std::function<void()>& deed) {
  give_up_stroke();
  board_.begin();
  const Finally finish([this] {
    board_.end();
    refresh_buttons();
  });
  deed();
}

void frm_rajz::step_back() {
  if (!pressed_) board_.undo();
  refresh_buttons();
}

void frm_rajz::step_forward() {
  if (!pressed_) board_.redo();
  refresh_buttons();
}

void frm_rajz::refresh_buttons() {
  cmd_undo.Enabled = board_.can_undo();
  cmd_redo.Enabled = board_.can_redo();
  cmd_earlier.Enabled = kept_.any_earlier();
}

void frm_rajz::MouseMove(const MouseEvent& /*event*/) { radír.Visible = false; }

// ---- Keys ----

void frm_rajz::KeyDown(KeyEvent& event) {
  const int digit = event.code - '1';
  const bool control = event.shift == shift::control;
  if (event.code == key::escape && pressed_) {
    give_up_stroke();
  } else if (event.code == key::f1) {
    súgó_megnyitás(session_, u"Rajz.mht");
  } else if (digit >= 0 && digit < tools && event.shift == shift::none) {
    cmd_művelet_click(digit);
  } else if (digit >= 0 && digit < widths && control) {
    vonalvastagság_click(digit);
  } else if (event.code == 'Z' && control) {
    step_back();
  } else if (event.code == 'Y' && control) {
    step_forward();
  } else if (event.code == 'O' && control) {
    cmd_megnyit_click();
  } else if (event.code == 'S' && control) {
    cmd_ment_click();
  } else if (event.code == 'P' && control) {
    cmd_nyomtat_click();
  } else if (event.code == 'V' && control) {
    Command2_click();
  } else {
    return;
  }
  event.code = 0;
}

void frm_rajz::KeyUp(KeyEvent& event) {
  if (event.code == key::space) space_held_ = false;
}

// The pen by keyboard: arrows move it, the space bar puts it on the paper and lifts it again.
void frm_rajz::kép_key_down(KeyEvent& event) {
  if (event.code == key::space) {
    if (!space_held_) press_at_marker();
    space_held_ = true;
  } else if (arrow_step(event.code, 1) != 0 && (!pressed_ || by_keyboard_)) {
    move_marker(event.code, event.shift);
  } else {
    return;
  }
  event.code = 0;
}

void frm_rajz::move_marker(int code, int shift) {
  const double step = (shift & shift::shift) != 0     ? twips_per_pixel
                      : (shift & shift::control) != 0 ? 4 * marker_step
                                                      : marker_step;
  const int direction = arrow_step(code, 1);
  const bool across = code == key::left || code == key::right;
  marker_.x = std::clamp(marker_.x + (across ? direction * step : 0), 0.0, kép.Width - twips_per_pixel);
  marker_.y = std::clamp(marker_.y + (across ? 0 : direction * step), 0.0, kép.Height - twips_per_pixel);
  show_marker();
  if (pressed_) {
    draw_to(marker_);
  } else if (tool() == Tool::eraser) {
    place_eraser(marker_);
  }
}

void frm_rajz::press_at_marker() {
  if (pressed_ && !by_keyboard_) return;
  show_marker();
  if (pressed_) {
    end_stroke();
  } else {
    begin_stroke(marker_);
    by_keyboard_ = pressed_;
  }
}

// ---- Files, printer, clipboard ----

void frm_rajz::cmd_megnyit_click() {
  give_up_stroke();
  const auto chosen =
      platform().dialogs().open_file(*this, {u"Minden fájl (*.*)|*.*|Képfájlok (*.bmp)|*.bmp", 2, {}, {}});
  if (!chosen) return;
  const auto bytes = platform().dialogs().read(*chosen);
  const auto image = bytes ? platform().decode_picture(*bytes) : std::nullopt;
  if (!image) throw FileError(to_utf8(u"Ez a fájl nem kép, vagy megsérült: " + *chosen));
  run_as_step([&] { board_.load(*image); });
}

void frm_rajz::cmd_ment_click() {
  give_up_stroke();
  const FileQuestion question{u"Képfájl (*.bmp)|*.bmp", 1, u"c:\\", u".bmp"};
  const std::string bytes = write_bitmap(board_.image());
  for (;;) {
    const auto chosen = platform().dialogs().save_file(*this, question);
    // Unlike opening, giving this up counts as an error; so it was made.
    if (!chosen) throw FileError(to_utf8(u"A rajz nincs elmentve: nem választottunk fájlt."));
    try {
      platform().dialogs().write(*chosen, bytes);
      return;
    } catch (const FileError&) {
      session_.feedback.tell(u"Ide nem sikerült elmenteni a rajzot. Válasszunk másik helyet!");
    }
  }
}

void frm_rajz::cmd_nyomtat_click() {
  give_up_stroke();
  try {
    const auto job = start_printing();
    if (!job) return;
    const Size page = job->page();
    double s = page.width / kép.Width;
    if (kép.Height * s > page.height) s = page.height / kép.Height;
    job->image(board_.image(), {0, 0, kép.Width * s, kép.Height * s});
    job->finish();
  } catch (const PrintError& error) {
    session_.feedback.tell(u"Nem sikerült nyomtatni. " + from_utf8(error.what()));
    return;
  }
  szöveges_üzenet(session_, u"Nyomtatás folyamatban...", 40);
}

std::unique_ptr<PrintJob> frm_rajz::start_printing() {
  if (platform().printing().available()) return platform().printing().start(*this);
  session_.feedback.tell(u"Ezen a gépen nincs nyomtató. A rajzot PDF-fájlba nyomtathatjuk.");
  const auto chosen = platform().dialogs().save_file(*this, {u"PDF-fájl (*.pdf)|*.pdf", 1, u"c:\\", u".pdf"});
  return chosen ? platform().printing().start_pdf(*chosen) : nullptr;
}

// The loaded picture becomes a page, without the strokes made on it since. That is intended, and so is the silence.
void frm_rajz::Command1_click() {
  ignoring_errors([this] {
    const Text folder = Text(fixed_root) + u"kifest\\";
    int number = 0;
    while (platform().files().exists(folder + to_text(number) + Text(page_ending))) ++number;
    if (board_.picture())
      platform().files().write(folder + to_text(number) + Text(page_ending), write_bitmap(*board_.picture()));
  });
}

void frm_rajz::Command2_click() {
  if (const auto image = platform().clipboard_image()) {
    run_as_step([&] { board_.load(*image); });
  } else {
    session_.feedback.tell(u"Nincs kép a vágólapon.");
  }
}

void frm_rajz::cmd_színező_click() {
  give_up_stroke();
  // The click that closes the dialog must not draw on the page.
  kép.Enabled = false;
  const Finally enable([this] { kép.Enabled = true; });
  platform().show_modal(session_.window<frm_színezőmegnyitás>());
  platform().pump_events([] { return true; });
}

void frm_rajz::open_page(const PixelImage& page) {
  run_as_step([&] { board_.load(page); });
  chk_vonalnem.set_value(1);
}

void frm_rajz::choose_color() {
  if (const auto color = platform().dialogs().choose_color(*this, aktívszín.BackColor)) set_color(*color);
}

// ---- Nothing is lost ----

void frm_rajz::take_earlier() {
  if (const auto image = kept_.next_earlier()) {
    run_as_step([&] { board_.load(*image); });
  } else {
    session_.feedback.tell(u"A korábbi rajz sajnos nem olvasható.");
  }
}

void frm_rajz::keep_tick() {
  if (!pressed_ && platform().now() - kept_at_ >= keep_every) keep_if_changed();
}

// An empty sheet is never kept over the drawing that was on it.
void frm_rajz::keep_if_changed() {
  if (board_.revision() == kept_revision_) return;
  kept_revision_ = board_.revision();
  kept_at_ = platform().now();
  if (const PixelImage image = board_.image(); !is_blank(image)) kept_.keep(image);
}

// ---- The time limit ----

void frm_rajz::Timer2_tick() {
  ++percek;
  if (percek < minutes_of_a_reward || !platform().is_active(*this)) return;
  szöveges_üzenet(session_, u"Folytassuk a játékot a betűkkel!", 150);
  save_work_file();
  session_.unload(*this);
}

void frm_rajz::save_work_file() {
  ignoring_errors([this] { platform().files().make_folder(u"c:\\pomzu"); });
  // A slip of the pen, kept: this makes no folder that anybody uses.
  ignoring_errors([this] { platform().files().make_folder(u" c:\\pomzu\\cserok"); });
  ignoring_errors([this] { platform().files().write(work_file(), write_bitmap(board_.image())); });
}

void frm_rajz::load_work_file() {
  const auto bytes = platform().files().read(work_file());
  const auto image = bytes ? read_bitmap(*bytes) : std::nullopt;
  if (image) board_.load(*image);
}

} // namespace cserko
