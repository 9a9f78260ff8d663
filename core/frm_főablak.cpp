#include "core/frm_főablak.h"

#include "core/exercise_table.h"
#include "core/finally.h"
#include "core/frame.h"
#include "core/kszöveg.h"
#include "core/numbers.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr int columns = 3;
constexpr double column_pitch = 2080;
constexpr double row_pitch = 1037;
// A slide stays a ten-thousandth of a day for each character of its name.
constexpr double ms_per_character = 24.0 * 60 * 60 * 1000 / 10000;
constexpr int swap_after = 20;
constexpr int rest_before_swaps = -100;

} // namespace

frm_főablak::frm_főablak(Session& session)
    : MainWindow(session, u"frm_főablak", {12360, 7380}), drawing(session.platform()) {
  design_buttons();
  bind_menu();
  dísz.Click = [this] { dísz_click(); };
  dísz.TabStop = false;
  lbldisz.Click = [this] { lbldisz.Font.size += 1; };
  Timer1.Tick = [this] { Timer1_tick(); };
  cmd_súgó.TabIndex = 1; // behind the exercises
  cmd_súgó.Click = [this] { open_help(); };
}

void frm_főablak::design_buttons() {
  const Rect first{cmd_játék[0].Left, cmd_játék[0].Top, cmd_játék[0].Width, cmd_játék[0].Height};
  for (int i = 0; i < static_cast<int>(exercise_table.size()); ++i) {
    const int row = i / columns;
    const double left = first.left + i % columns * column_pitch;
    const double top = first.top + row * row_pitch;
    const ExerciseEntry& entry = exercise_table[static_cast<std::size_t>(i)];
    if (i == 0) {
      cmd_játék[0].Caption = entry.caption;
    } else {
      cmd_játék.design(i, {left, top, first.width, first.height}, entry.caption);
    }
    cmd_játék[i].Enabled = session().offers(entry.window);
  }
  cmd_játék.Click = [this](int index) { cmd_játék_click(index); };
}

void frm_főablak::bind_menu() {
  mnu_fájl_főablak_beállításai.Click = [this] { főablak_beállításai(); };
  mnu_fájl_kilépés.Click = [this] { kilépés(); };
  bind_entries(
      {mnu_file_eseményhangok_beállításai, mnu_fájl_zenebeállítások, mnu_jutalomjáték_dobolás, mnu_jutalom_rajz});
}

void frm_főablak::Load() {
  Timer1.Enabled = true;
  dísz.BackColor = white;
  dísz.Opaque = true;
  dísz.Border = true;
  drawing.start();
  ablak_méretezés(*this, 0.8);
  ablak_középre(session(), *this);
  gomb_betűméret();
  cmd_súgó.Font.size = cmd_játék[0].Font.size;
  dísz_indítás();
  platform().redraw(*this);
  Timer1_tick();
}

void frm_főablak::gomb_betűméret() {
  const auto caption_width = [this](const Button& button) {
    return platform().measure(cmd_játék[0].Font, without_mnemonic(button.Caption)).width;
  };
  Button* widest = &cmd_játék[0];
  // A tie goes to the later button.
  cmd_játék.each([&](Button& button) {
    if (caption_width(button) >= caption_width(*widest)) widest = &button;
  });
  szöveg_illesztés(*widest);
  cmd_játék.each([&](Button& button) { button.Font.size = widest->Font.size; });
}

void frm_főablak::dísz_indítás() {
  dísz.canvas().clear();
  lbldisz.Caption.clear();
  if (settings().rajz.ticked()) {
    dísz.Picture = nullptr;
    return;
  }
  platform().seed_random();
  dísz_click();
}

void frm_főablak::Activate() {
  read_order_file(settings());
  platform().redraw(*this);
  képváltás_ideje = platform().now();
  MainWindow::Activate();
}

void frm_főablak::KeyDown(KeyEvent& event) {
  if (event.code == key::escape) kilépés();
}

void frm_főablak::QueryUnload(bool& /*cancel*/) { kilépés(); }

void frm_főablak::dísz_click() {
  if (settings().rajz.ticked()) {
    drawing.choose_figure(dísz);
  } else {
    új_kép();
  }
}

void frm_főablak::új_kép() {
  if (session().képek.képszám == 0) return;
  const int index = random_below(platform(), session().képek.képszám);
  show_record_picture(session(), dísz, index);
  lbldisz.Caption = session().képek[index].név;
  cserko::Font font = lbldisz.Font;
  font.size = 8;
  lbldisz.Font.size =
      first_overfilling_size(platform(), font, lbldisz.Caption, {0.9 * lbldisz.Width, 0.9 * lbldisz.Height});
}

void frm_főablak::Timer1_tick() {
  if (settings().rajz.ticked()) {
    // The option may have been set while a picture was shown: the drawing begins on an empty panel.
    if (!lbldisz.Caption.empty()) {
      clear_picture(dísz);
      lbldisz.Caption.clear();
    }
    drawing.tick(dísz);
  } else {
    show_slide();
  }
}

void frm_főablak::show_slide() {
  const auto shown_for = static_cast<double>(platform().now() - képváltás_ideje);
  if (shown_for > static_cast<double>(lbldisz.Caption.size()) * ms_per_character) {
    képváltás_ideje = platform().now();
    új_kép();
    cserélő = rest_before_swaps;
  }
  if (cserélő > swap_after && settings().Chkcserkózás.ticked()) {
    swap_letters();
  } else {
    ++cserélő;
  }
}

void frm_főablak::swap_letters() {
  kszöveg name;
  name.szövegnyelv(0); // no language has this code: the Hungarian letters stay in force
  name.value(lbldisz.Caption);
  const int letters = name.MAGYARBETŰKSZÁMA();
  cserélő = 0;
  if (letters == 0) return;
  platform().seed_random();
  int p = static_cast<int>(1 + (letters - 1) * platform().random());
  // The rest is one letter too short for a mere swap: the letter behind the pair falls out and the name grows shorter
  // with every swap until the next picture. That is intended.
  Text swapped = name.magyarleft(p - 1) + name.szóbetűje(p + 1) + name.szóbetűje(p);
  if (const int rest = letters - p - 2; rest > 0) swapped += name.magyarright(rest);
  lbldisz.Caption = swapped;
}

void frm_főablak::rest_decoration() {
  képváltás_ideje = long_ago;
  cserélő = rest_before_swaps;
}

void frm_főablak::indítás(TextView exercise) {
  const Finally go_on([this] {
    rest_decoration();
    Timer1.Interval = 1;
  });
  Timer1.Interval = 0;
  MainWindow::indítás(exercise);
}

void frm_főablak::cmd_játék_click(int index) {
  // The caption decides, not the index: the table's order is the order of comparison.
  const auto entry = std::find_if(exercise_table.begin(), exercise_table.end(), [&](const ExerciseEntry& candidate) {
    return candidate.caption == cmd_játék[index].Caption;
  });
  if (entry != exercise_table.end() && session().offers(entry->window)) indítás(entry->window);
}

void frm_főablak::főablak_beállításai() {
  const Finally go_on([this] { Timer1.Enabled = true; });
  Timer1.Enabled = false;
  platform().show_modal(settings());
  if (!settings().chk_grafikus_főablak.ticked()) return;
  // Loaded before this window goes: where that fails, the person still has one.
  Window& graphic = session().window(u"frm_grafikus_főablak");
  platform().hide(*this);
  platform().show_modal(graphic);
  rest_decoration();
  if (settings().chk_grafikus_főablak.ticked()) {
    kilépés();
  } else {
    platform().show(*this);
  }
}

void frm_főablak::zenebeállítások() {
  const Finally go_on([this] { Timer1.Enabled = true; });
  Timer1.Enabled = false;
  MainWindow::zenebeállítások();
}

void frm_főablak::kilépés() {
  write_order_file(settings());
  session().feedback.hang_lejátszás({});
  session().feedback.zene_lejátszás({});
  delete_work_file(platform());
  platform().end_process();
}

} // namespace cserko
