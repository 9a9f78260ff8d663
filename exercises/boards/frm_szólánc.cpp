#include "exercises/boards/frm_szólánc.h"

#include "core/finally.h"
#include "core/numbers.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <array>
#include <set>

namespace cserko {

namespace {

constexpr double scale_factor = 0.95;
constexpr int help_key = 'S';
constexpr Color free_place{246, 236, 214};
constexpr Color chosen_color{255, 224, 138};
constexpr Color chosen_frame{24, 98, 94};
constexpr double chosen_line = 75; // twips

// The places of the design, twips.
constexpr double edge = 120;  // between window, frames and what is in them
constexpr double gap = 60;    // between neighbours
constexpr double title = 300; // of a frame
constexpr double cell_width = 1860;
constexpr double lowest_cell = 900;
constexpr double highest_cell = 1860;
constexpr double top_of_pool = 480;
constexpr double button_width = 2160;
constexpr double button_height = 660;
constexpr double row_width = frm_szólánc::columns * cell_width + (frm_szólánc::columns - 1) * gap + 2 * edge;

constexpr std::array<TextView, 3> tasks{
    u"Alkoss szóláncot, melyben az egyik szó utolsó szótagja megegyezik a következő szó első szótagjával!",
    u"Alkoss szóláncot, melyben az egyik szó utolsó két betűje megegyezik a következő szó első két betűjével!",
    u"Alkoss szóláncot,melyben az egyik szó utolsó betűje megegyezik a következő szó első betűjével!"};

constexpr TextView no_chain = u"Ezekkel a beállításokkal nem találtam hét szóból álló láncot.\r\nKérlek, engedj meg "
                              u"a beállításokban hosszabb szavakat, vagy válassz másik típust!";
constexpr TextView few_words = u"Kevés ilyen rövid szavunk van ennyi képhez.\r\nKérlek, kérj a beállításokban kevesebb "
                               u"képet, vagy engedj meg hosszabb szavakat!";

int record_of(const PictureBox& box) { return number_in(box.Tag).value_or(-1); }

bool taken(const PictureBox& box) { return box.Tag != frm_szólánc::empty; }

void clear(PictureBox& box) {
  clear_picture(box);
  box.Tag = frm_szólánc::empty;
}

} // namespace

frm_szólánc_segítő::frm_szólánc_segítő(Session& session)
    : Window(session.platform(), u"frm_szólánc_segítő", {13620, 2880}, u"Cserkó - Szólánc - Segítő"),
      session_(session) {
  pic_eredménykép[0].Border = pic_eredménykép[0].Opaque = true;
  pic_eredménykép[0].TabStop = false;
  for (int i = 0; i < chain_length; ++i) {
    PictureBox& picture = i == 0 ? pic_eredménykép[0] : pic_eredménykép.load(i);
    picture.Left = edge + i * (cell_width + gap);
    picture.Visible = true;
  }
  cmd_ok.Default = true;
  cmd_ok.Cancel = true;
  cmd_ok.Click = [this] { platform().hide(*this); };
}

void frm_szólánc_segítő::Load() {
  ablak_méretezés(*this, 0.9);
  szöveg_illesztés(cmd_ok);
  ablak_középre(session_, *this);
}

void frm_szólánc_segítő::QueryUnload(bool& cancel) {
  if (!visible()) return;
  cancel = true;
  platform().hide(*this);
}

frm_szólánc::frm_szólánc(Session& session)
    : ExerciseWindow(session, u"frm_szólánc", {13860, 7560}, u"Cserkó - Szólánc") {
  kép[0].Border = kép[0].Opaque = true;
  kép[0].DragAutomatic = true;
  for (int i = 1; i < most_pictures; ++i) kép.load(i);
  pic_eredménykép[0].Border = pic_eredménykép[0].Opaque = true;
  pic_eredménykép[0].BackColor = free_place;
  for (int i = 1; i < chain_length; ++i) pic_eredménykép.load(i).Visible = true;
  cmd_elcsúsztat.design(1, {8000, 1380, 2160, 660}, u"Jobbra");
  cmd_kérdőjel.AccessibleName = u"A megoldás megmutatása";
  dragged.Border = dragged.Opaque = true;
  dragged.TabStop = false;
  dragged.Visible = false;
  bind();
  bind_drag();
}

void frm_szólánc::bind() {
  pic_eredménykép.MouseDown = [this](int place, const MouseEvent& event) {
    if (event.button == MouseButton::Right) {
      place_help(place);
    } else {
      place_pressed(place);
    }
  };
  pic_eredménykép.KeyDown = [this](int place, KeyEvent& event) { place_key(place, event); };
  kép.Click = [this](int picture) { choose(picture); };
  kép.KeyDown = [this](int picture, KeyEvent& event) {
    if (event.code != help_key) return;
    event.code = 0;
    picture_help(picture);
  };
  cmd_elcsúsztat.Click = [this](int direction) { elcsúsztat(direction); };
  cmd_kérdőjel.Click = [this] {
    segítség_hang(session());
    platform().show_modal(solution());
  };
  mnu_fájl_újjáték.Click = [this] { mnu_fájl_újjáték_Click(); };
  set_settings_entry<frm_szólánc_beállítások>(mnu_fájl_beállítások, DialogAtClose::Goes);
  set_dialog<frm_szólánc_segítő>(DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Szólánc  - A feladat.mht");
}

// The drag itself ends in the `DragDrop` of the place under the pointer; here the picture is shown on its way.
void frm_szólánc::bind_drag() {
  kép.MouseDown = [this](int picture, const MouseEvent& event) {
    stop_carrying();
    if (event.button == MouseButton::Right) {
      picture_help(picture);
    } else if (event.button == MouseButton::Left) {
      carried_ = picture;
      grip_ = {event.x, event.y};
      gesture_.begin(grip_);
    }
  };
  kép.MouseMove = [this](int, const MouseEvent& event) {
    if (gesture_.held()) carry({event.x, event.y});
  };
  kép.MouseUp = [this](int, const MouseEvent& event) {
    if (event.button == MouseButton::Left) stop_carrying();
  };
  pic_eredménykép.DragDrop = [this](int place, Element& source, double, double) {
    if (source.Name == kép[0].Name) drop(place, source.Index);
  };
}

void frm_szólánc::carry(const Point& pointer) {
  const PictureBox& source = kép[carried_];
  gesture_.follow(pointer);
  if (!gesture_.moved()) return;
  if (!dragged.Visible) {
    put_down_choice();
    dragged.Width = source.Width;
    dragged.Height = source.Height;
    kép_rajzolás(session(), dragged, record_of(source), caption_);
    dragged.Visible = true;
  }
  const Point corner = source.position_in_window();
  dragged.move_to(corner.x + pointer.x - grip_.x, corner.y + pointer.y - grip_.y);
}

void frm_szólánc::stop_carrying() {
  gesture_.end();
  dragged.Visible = false;
}

void frm_szólánc::Load() {
  take_settings();
  ablak_állítás();
  ablak_középre(session(), *this);
  deal_first([this] { új_lánc(); });
}

void frm_szólánc::mnu_fájl_újjáték_Click() { új_lánc(); }

void frm_szólánc::új_lánc() {
  Pointer = MousePointer::Hourglass;
  const Finally arrow([this] { Pointer = MousePointer::Arrow; });
  deal([this] { new_chain(); });
}

void frm_szólánc::take_settings() {
  rule_ = settings().rule();
  pictures_ = settings().ud_képekszáma.value();
  caption_ = {.körvonalas = settings().Check_pontosbetűháttér.ticked(), .szótagolt = settings().syllables_shown()};
}

void frm_szólánc::new_chain() {
  frm_rejtvény.Visible = frame_szólánc.Visible = false;
  clear_board();
  take_settings();
  ablak_állítás();
  platform().redraw(*this);
  const std::vector<int> chain = ChainSearch(platform(), képek(), rule_, settings().udbetszám.value()).find(no_chain);
  for (int i = 0; i < chain_length; ++i) {
    kép[i].Tag = to_text(chain[static_cast<std::size_t>(i)]);
    kép_rajzolás(session(), solution().pic_eredménykép[i], record_of(kép[i]), caption_);
  }
  fill_pool();
  if (settings().chk_kezdőszó_felfedése.ticked()) {
    pic_eredménykép[0].Tag = kép[0].Tag;
    draw(pic_eredménykép[0]);
  }
  shuffle();
  for (int i = 0; i < pictures(); ++i) {
    draw(kép[i]);
    kép[i].Visible = kép[i].Tag != pic_eredménykép[0].Tag;
  }
  frm_rejtvény.Visible = frame_szólánc.Visible = true;
  cmd_kérdőjel.Enabled = settings().chk_segítség_engedélyezése.ticked();
}

void frm_szólánc::no_puzzle() {
  clear_board();
  solution().pic_eredménykép.each(clear);
  cmd_kérdőjel.Enabled = false;
  frm_rejtvény.Visible = frame_szólánc.Visible = true;
}

void frm_szólánc::clear_board() {
  stop_carrying();
  put_down_choice();
  kép.each([](PictureBox& picture) {
    clear(picture);
    picture.Visible = false;
  });
  pic_eredménykép.each(clear);
}

void frm_szólánc::fill_pool() {
  std::set<Text> used;
  for (int i = 0; i < chain_length; ++i) used.insert(képek()[record_of(kép[i])].név);
  const int most = settings().udbetszám.value();
  const auto fits = [&](int record) {
    const int letters = képek().MAGYARBETŰKSZÁMA(record);
    return letters >= ChainSearch::fewest_letters && letters <= most && used.count(képek()[record].név) == 0;
  };
  for (int i = chain_length; i < pictures(); ++i) {
    const int record = képek().draw(platform(), fits, few_words);
    kép[i].Tag = to_text(record);
    used.insert(képek()[record].név);
  }
}

void frm_szólánc::shuffle() {
  std::vector<Text> before;
  before.reserve(static_cast<std::size_t>(pictures()));
  for (int i = 0; i < pictures(); ++i) before.push_back(kép[i].Tag);
  bool moved_all = false;
  while (!moved_all) {
    moved_all = true;
    for (int i = 0; i < pictures(); ++i) {
      if (kép[i].Tag != before[static_cast<std::size_t>(i)]) continue;
      moved_all = false;
      const int k = draw_below(
          platform(), pictures(), [i](int other) { return other != i; }, few_words);
      std::swap(kép[i].Tag, kép[k].Tag);
    }
  }
}

// Everything is laid out anew at the size of the design and then scaled, so that nothing drifts from game to game.
void frm_szólánc::ablak_állítás() {
  const Size before{Width, Height};
  place_elements(cell_height(pictures() / columns));
  ablak_méretezés(*this, scale_factor);
  ablak_méretezés(*this, scale_factor);
  if (Size{Width, Height} != before) ablak_középre(session(), *this);
  fit_texts();
}

// As high as makes the window fill the screen both ways.
double frm_szólánc::cell_height(int rows) const {
  const Size screen = platform().screen_size();
  const Size frame = platform().chrome(*this);
  const double height = (row_width + 2 * edge) * (screen.height - frame.height) / (screen.width - frame.width);
  const double others = top_of_pool + 2 * title + (rows - 1) * gap + 2 * gap + button_height + 3 * edge;
  return std::clamp((height - others) / (rows + 1), lowest_cell, highest_cell);
}

void frm_szólánc::place_elements(double cell_height) {
  const auto put = [](Element& element, const Rect& place) {
    element.move_to(place.left, place.top);
    element.Width = place.width;
    element.Height = place.height;
  };
  put(lbl_feladat, {edge, 30, row_width, 420});
  // Pictures that are not in use lie where they take no room.
  for (int i = 0; i < most_pictures; ++i) {
    const int place = i < pictures() ? i : 0;
    const int row = place / columns;
    put(kép[i],
        {edge + place % columns * (cell_width + gap), title + row * (cell_height + gap), cell_width, cell_height});
  }
  const PictureBox& last = kép[pictures() - 1];
  put(frm_rejtvény, {edge, top_of_pool, row_width, last.Top + last.Height + edge});
  for (int i = 0; i < chain_length; ++i)
    put(pic_eredménykép[i], {edge + i * (cell_width + gap), title, cell_width, cell_height});
  const double under_row = title + cell_height + gap;
  put(frame_szólánc, {edge, frm_rejtvény.Top + frm_rejtvény.Height + gap, row_width, under_row + button_height + edge});
  const auto put_button = [&](Button& button, double share) {
    put(button, {row_width * share - button_width / 2, under_row, button_width, button_height});
  };
  put_button(cmd_elcsúsztat[0], 1.0 / 3);
  put_button(cmd_kérdőjel, 1.0 / 2);
  put_button(cmd_elcsúsztat[1], 2.0 / 3);
  put(dragged, {edge, top_of_pool, cell_width, cell_height});
}

void frm_szólánc::fit_texts() {
  szöveg_illesztés(lbl_feladat, Text(tasks.at(static_cast<std::size_t>(rule_))));
  const auto buttons = {&cmd_elcsúsztat[0], &cmd_elcsúsztat[1], &cmd_kérdőjel};
  for (Button* button : buttons) szöveg_illesztés(*button);
  for (Button* button : buttons) button->Font.size = cmd_elcsúsztat[1].Font.size;
  const double scale = kép[0].Width / cell_width;
  for (Frame* frame : {&frm_rejtvény, &frame_szólánc}) {
    frame->Font.size = 6;
    frame->Font.size =
        first_overfilling_size(platform(), frame->Font, frame->Caption, {frame->Width, title * scale}) - 1;
  }
}

void frm_szólánc::draw(PictureBox& box) { kép_rajzolás(session(), box, record_of(box), caption_); }

void frm_szólánc::picture_help(int picture) {
  if (!taken(kép[picture])) return;
  const WordForm form = word_form(false, caption_.szótagolt);
  show_hint(session(), record_of(kép[picture]), képek().word(record_of(kép[picture]), form));
}

void frm_szólánc::place_help(int place) {
  if (!taken(pic_eredménykép[place])) return;
  const int record = record_of(pic_eredménykép[place]);
  show_hint(session(), record, képek()[record].név);
}

void frm_szólánc::choose(int picture) {
  if (!has_puzzle()) return;
  const bool again = chosen_ == picture;
  put_down_choice();
  if (again) return;
  chosen_ = picture;
  PictureBox& box = kép[picture];
  box.Selected = true;
  box.BackColor = chosen_color;
  const double inset = chosen_line / 2;
  const Point first{inset, inset};
  const Point last{box.Width - inset, box.Height - inset};
  for (const Point corner : {Point{last.x, first.y}, Point{first.x, last.y}}) {
    box.canvas().line(first, corner, chosen_frame, chosen_line);
    box.canvas().line(last, corner, chosen_frame, chosen_line);
  }
}

void frm_szólánc::put_down_choice() {
  if (!chosen_) return;
  PictureBox& box = kép[*chosen_];
  chosen_.reset();
  box.Selected = false;
  box.BackColor = white;
  draw(box);
}

void frm_szólánc::drop(int place, int picture) {
  if (!has_puzzle()) return;
  put_down_choice();
  send_back(place);
  PictureBox& box = pic_eredménykép[place];
  box.Tag = kép[picture].Tag;
  draw(box);
  kép[picture].Visible = false;
  platform().redraw(*this);
  if (!lánc_ellenőrzés()) return;
  platform().show_modal(session().window<frm_gratuláció>());
  új_lánc();
}

void frm_szólánc::send_back(int place) {
  PictureBox& box = pic_eredménykép[place];
  if (!taken(box)) return;
  for (int i = 0; i < pictures(); ++i) {
    if (kép[i].Tag == box.Tag) kép[i].Visible = true;
  }
  clear(box);
}

void frm_szólánc::place_pressed(int place) {
  if (chosen_) {
    drop(place, *chosen_);
  } else {
    send_back(place);
  }
}

void frm_szólánc::place_key(int place, KeyEvent& event) {
  const bool press = event.code == key::space || event.code == key::enter;
  if (!press && event.code != help_key) return;
  event.code = 0;
  if (event.repeated) return;
  if (press) {
    place_pressed(place);
  } else {
    place_help(place);
  }
}

// To the left or right by one place; the word that falls off goes back.
void frm_szólánc::elcsúsztat(int direction) {
  constexpr int last = chain_length - 1;
  const bool left = direction == 0;
  send_back(left ? 0 : last);
  for (int i = 0; i < last; ++i) {
    const int to = left ? i : last - i;
    pic_eredménykép[to].Tag = pic_eredménykép[left ? to + 1 : to - 1].Tag;
  }
  pic_eredménykép[left ? last : 0].Tag = empty;
  pic_eredménykép.each([this](PictureBox& box) { draw(box); });
}

bool frm_szólánc::lánc_ellenőrzés() const {
  bool full = true;
  pic_eredménykép.each([&](const PictureBox& box) { full = full && taken(box); });
  if (!full) return false;
  const ChainIndex& index = chain_index(képek(), rule_);
  for (int i = 0; i + 1 < chain_length; ++i) {
    if (!index.follow(record_of(pic_eredménykép[i]), record_of(pic_eredménykép[i + 1]))) return false;
  }
  return true;
}

} // namespace cserko
