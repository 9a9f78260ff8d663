#include "exercises/letters/frm_cserkó.h"

#include "core/exchange_sort.h"
#include "core/kszöveg.h"
#include "core/numbers.h"
#include "core/placement.h"
#include "exercises/letters/word_list.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <numeric>

namespace cserko {

namespace {

constexpr double mouse_margin = 100; // twips that the mouse cannot reach at the right edge, unlike the arrow keys
constexpr int all_modifiers = shift::shift | shift::control | shift::alt;

int letter_count(const Text& word) { return kszöveg(word).MAGYARBETŰKSZÁMA(); }

} // namespace

frm_cserkó_beáll::frm_cserkó_beáll(Session& session)
    : SettingsDialog(session, u"frm_cserkó_beáll", {4920, 5220}, u"Cserkó - Cserkó beállítások", u"kiscserko.ini") {
  opt_betszám.design(1, {1560, 1080, 1440, 420}, u"Legfeljebb");
  opt_betszám.design(2, {120, 1080, 1440, 420}, u"Legalább");
  opt_betszám[1].set_value(true);
  labszópárok.Centered = false;
  txtbetszám.AccessibleName = labszópárok.Caption;
  set_fields({&udbetszám, &opt_betszám[0], &opt_betszám[1], &opt_betszám[2], &chk_ismételt_keverés_engedélyezése,
              &chk_szórendezés_engedélyezés, &Chk_betűfelfed});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Cserkó - Beállítási lehetőségek.mht");
  keep_button_fonts();
}

void frm_cserkó_beáll::apply() { session().window<frm_cserkó>().beáll(); }

std::optional<bool> frm_cserkó_beáll::allows(int letters) const {
  const int wanted = udbetszám.value();
  if (opt_betszám[0].value()) return letters == wanted;
  if (opt_betszám[1].value()) return letters <= wanted;
  if (opt_betszám[2].value()) return letters >= wanted;
  return std::nullopt;
}

frm_cserkó::frm_cserkó(Session& session) : ExerciseWindow(session, u"frm_cserkó", {4920, 6330}, u"Cserkó - Cserkó") {
  kép.Border = true;
  betű[0].WordWrap = false;
  lbl_megoldás.Visible = false;
  bind();
}

void frm_cserkó::bind() {
  lbl_feladat.MouseDown = [this](const MouseEvent& event) { task_pressed(event); };
  lbl_feladat.MouseUp = [this](const MouseEvent&) { lbl_feladat.Caption = task; };
  kép.MouseDown = [this](const MouseEvent& event) { frame_pressed(event); };
  betű.MouseDown = [this](int letter, const MouseEvent& event) { letter_pressed(letter, event); };
  betű.MouseMove = [this](int, const MouseEvent& event) { letter_moved(event); };
  betű.MouseUp = [this](int letter, const MouseEvent& event) { letter_released(letter, event); };
  const auto button = [this](Button& element, void (frm_cserkó::*action)()) {
    element.Click = [this, action] {
      (this->*action)();
      set_focus(&kép);
    };
  };
  button(cmd_újrakever, &frm_cserkó::újrakeverés);
  button(cmd_rendez, &frm_cserkó::rendezés);
  button(cmd_kész, &frm_cserkó::kész);
  button(cmd_egybetűtfelfed, &frm_cserkó::felfed);
  Timer1.Tick = [this] {
    platform().show_modal(session().window<frm_gratuláció>());
    beáll();
  };
  mnu_fájl_újfeladat.Click = [this] { beáll(); };
  mnu_fájl_beálítások.Click = [this] { platform().show_modal(settings()); };
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Cserkó - A feladat.mht");
}

void frm_cserkó::Load() {
  settings();
  ablak_méretezés(*this, 0.95);
  szöveg_illesztés(lbl_feladat);
  szöveg_illesztés(betű[0], u"m");
  betű[0].Caption.clear();
  ablak_középre(session(), *this);
  gombok_illesztése(*this);
  lépésköz_ = rounded(kép.Width * 0.02);
  kijelölt_betű_.reset();
  deal_first([this] { beáll(); });
}

void frm_cserkó::Unload() { session().unload(settings()); }

void frm_cserkó::beáll() {
  feladat_törlése();
  kép.Font = betű[0].Font;
  szóválasztás();
  betűk_szétszórása(record().név);
  cmd_újrakever.Enabled = settings().chk_ismételt_keverés_engedélyezése.ticked();
  cmd_rendez.Enabled = settings().chk_szórendezés_engedélyezés.ticked();
  cmd_egybetűtfelfed.Enabled = settings().Chk_betűfelfed.ticked();
  felfedett_betűk_ = 0;
}

void frm_cserkó::feladat_törlése() {
  Timer1.Enabled = false;
  kijelölés_törlése();
  dragged_.reset();
  betű.unload_from(1);
  betű[0].Caption.clear();
  betű[0].Visible = false;
  clear_picture(kép);
  lbl_megoldás.Visible = false;
  for (Button* button : {&cmd_kész, &cmd_egybetűtfelfed, &cmd_újrakever, &cmd_rendez}) button->Visible = true;
}

void frm_cserkó::szóválasztás() {
  // With no option on the previous word stands.
  if (!settings().allows(0).has_value()) return;
  feladat_index_ = képek().draw(
      platform(),
      [this](int candidate) {
        const Text& word = képek()[candidate].név;
        return *settings().allows(letter_count(word)) && 0.9 * kép.Width >= text_width(word);
      },
      u"Nincs olyan szavunk, amelyik ilyen hosszú.\r\nKérlek, változtasd meg a beállításokban a betűk számát!");
}

void frm_cserkó::betűk_szétszórása(const Text& word) {
  const kszöveg text(word);
  const int letters = text.MAGYARBETŰKSZÁMA();
  for (int i = 0; i < letters; ++i) {
    Label& letter = i == 0 ? betű[0] : betű.load(i);
    letter.Caption = text.szóbetűje(i + 1);
    const Size extent = platform().measure(kép.Font, letter.Caption);
    letter.Width = extent.width;
    letter.Height = extent.height;
    letter.Visible = true;
  }
  scatter(letters, mouse_margin);
}

void frm_cserkó::scatter(int letters, double right_margin) {
  PlacementBudget budget(u"Nem férnek el a betűk a keretben.\r\nKérlek, válassz a beállításokban rövidebb szavakat!");
  const auto place = [&](int number) {
    Label& letter = betű[number];
    double x = 0;
    double y = 0;
    do {
      if (!budget.take()) return false;
      x = random_below(platform(), kép.Width - letter.Width - right_margin);
      y = random_below(platform(), kép.Height - letter.Height);
    } while (átfedés(number, x, y));
    letter.move_to(x, y);
    return true;
  };
  for (int number = 0; number < letters; ++number) {
    if (place(number)) continue;
    budget.start_over();
    number = -1;
  }
}

bool frm_cserkó::átfedés(int number, double x, double y) const {
  const Label& letter = betű[number];
  for (int i = 0; i < number; ++i) {
    const Label& earlier = betű[i];
    const bool across = x > earlier.Left - letter.Width && x < earlier.Left + earlier.Width;
    const bool down = y > earlier.Top - letter.Height && y < earlier.Top + earlier.Height;
    if (across && down) return true;
  }
  return false;
}

void frm_cserkó::újrakeverés() {
  // The right margin of the first scattering is absent here, which is intended.
  if (settings().chk_ismételt_keverés_engedélyezése.ticked()) scatter(betű.count(), 0);
  kijelölés_törlése();
}

std::vector<int> frm_cserkó::letters_by_left(By by) const {
  std::vector<int> order(static_cast<std::size_t>(betű.count()));
  std::iota(order.begin(), order.end(), 0);
  exchange_sort(order, [&](int left, int right) {
    const double a = betű[left].Left;
    const double b = betű[right].Left;
    return by == By::ExactLeft ? a < b : rounded(a) < rounded(b);
  });
  return order;
}

double frm_cserkó::text_width(TextView text) const { return platform().measure(kép.Font, text).width; }

void frm_cserkó::rendezés() {
  if (settings().chk_szórendezés_engedélyezés.ticked()) {
    const std::vector<int> order = letters_by_left(By::RoundedLeft);
    kép.Font = betű[0].Font;
    Label& first = betű[order.front()];
    first.Left = std::min(first.Left, kép.Width - text_width(record().név) - mouse_margin);
    double left = first.Left;
    for (const int number : order) {
      betű[number].move_to(left, first.Top);
      left += text_width(betű[number].Caption);
    }
  }
  kijelölés_törlése();
}

void frm_cserkó::kijelölés_törlése() {
  betű.each([](Label& letter) { letter.Border = false; });
  kijelölt_betű_.reset();
  picked_up_ = false;
}

void frm_cserkó::kijelölés(int letter) {
  betű[letter].Border = true;
  kijelölt_betű_ = letter;
}

void frm_cserkó::következő_betű() {
  const std::vector<int> order = letters_by_left(By::ExactLeft);
  const auto bordered = std::find_if(order.begin(), order.end(), [&](int number) { return betű[number].Border; });
  const bool go_round = bordered == order.end() || std::next(bordered) == order.end();
  const int next = go_round ? order.front() : *std::next(bordered);
  kijelölés_törlése();
  kijelölés(next);
}

void frm_cserkó::KeyDown(KeyEvent& event) {
  // Without a selected letter any key selects the first one.
  if (event.code == key::space || !kijelölt_betű_) {
    következő_betű();
  } else {
    move_selected(event.code);
  }
  // The arrows belong to the letters; a focused button must not pass the focus on by them.
  if (event.code >= key::left && event.code <= key::down) event.code = 0;
}

void frm_cserkó::move_selected(int code) {
  Label& letter = betű[*kijelölt_betű_];
  switch (code) {
  case key::left:
    letter.Left = std::max(0.0, letter.Left - lépésköz_);
    break;
  case key::up:
    letter.Top = std::max(0.0, letter.Top - lépésköz_);
    break;
  case key::right:
    letter.Left = std::min(kép.Width - letter.Width, letter.Left + lépésköz_);
    break;
  case key::down:
    letter.Top = std::min(kép.Height - letter.Height, letter.Top + lépésköz_);
    break;
  default:
    break;
  }
}

void frm_cserkó::place_in_frame(Label& letter, double left, double top) {
  const double rightmost = kép.Width - letter.Width - mouse_margin;
  const double lowest = kép.Height - letter.Height;
  letter.move_to(std::min(std::max(0.0, left), rightmost), std::min(std::max(0.0, top), lowest));
}

void frm_cserkó::letter_pressed(int letter, const MouseEvent& event) {
  kijelölés_törlése();
  if (event.button != MouseButton::Left) return;
  dragged_ = letter;
  moved_ = false;
  fogáspont_x_ = rounded(event.x);
  fogáspont_y_ = rounded(event.y);
  hang_lejátszás(session(), session().alapkönyvtár + u"cserko\\moving.wav");
}

void frm_cserkó::letter_moved(const MouseEvent& event) {
  if (!dragged_) return;
  Label& letter = betű[*dragged_];
  const double left = rounded(letter.Left + event.x - fogáspont_x_);
  const double top = rounded(letter.Top + event.y - fogáspont_y_);
  moved_ = moved_ || left != rounded(letter.Left) || top != rounded(letter.Top);
  place_in_frame(letter, left, top);
}

void frm_cserkó::letter_released(int letter, const MouseEvent& event) {
  if (event.button != MouseButton::Left || dragged_ != letter) return;
  dragged_.reset();
  hang_lejátszás(session(), session().alapkönyvtár + u"cserko\\moving.wav");
  if (moved_) return;
  // A click without a drag takes the letter up; the next click on the frame puts it down.
  kijelölés(letter);
  picked_up_ = true;
}

void frm_cserkó::frame_pressed(const MouseEvent& event) {
  if (event.button == MouseButton::Left) {
    const bool shuffles = settings().chk_ismételt_keverés_engedélyezése.ticked();
    if (picked_up_ && !shuffles) put_down(event);
    újrakeverés();
  } else if (event.button == MouseButton::Right) {
    rendezés();
  }
}

void frm_cserkó::put_down(const MouseEvent& event) {
  Label& letter = betű[*kijelölt_betű_];
  place_in_frame(letter, rounded(event.x - letter.Width / 2), rounded(event.y - letter.Height / 2));
}

void frm_cserkó::task_pressed(const MouseEvent& event) {
  beáll();
  if (event.button != MouseButton::Middle || event.shift != all_modifiers) return;
  segítség_hang(session());
  lbl_feladat.Caption = record().név;
}

void frm_cserkó::felfed() {
  const kszöveg word(record().név);
  felfedett_betűk_ = std::min(felfedett_betűk_ + 1, word.MAGYARBETŰKSZÁMA());
  auto& panel = session().window<szövegüzenet>();
  szöveg_illesztés(panel.szöveg, u"A szó kezdete: \r\r" + word.magyarleft(felfedett_betűk_));
  platform().show_modal(panel);
}

void frm_cserkó::kész() {
  // The board is judged anew for each question, which reads the word list twice where the answer is not right.
  if (kirakott_szó_vizsgálata() == Answer::Right) {
    solved();
  } else if (kirakott_szó_vizsgálata() == Answer::OtherWord) {
    show_message(kirakott_szó_ + u"\r\rHelyes megfejtés, de van\rmég egy kirakható szó, melyhez\r"
                                 u"képet is tudok mutatni.\rKérlek, folytasd!");
  } else {
    show_message(kirakott_szó_ + u"\r\rEz a szó sajnos nem szerepel az általam használt adatbázisban. ");
  }
  kijelölés_törlése();
}

void frm_cserkó::show_message(const Text& text) {
  auto& panel = session().window<szövegüzenet>();
  panel.szöveg.set_caption(text);
  platform().show_modal(panel);
}

void frm_cserkó::solved() {
  show_record_picture(session(), kép, feladat_index_);
  betű.each([](Label& letter) { letter.Visible = false; });
  szöveg_illesztés(lbl_megoldás, Text(record().név));
  lbl_megoldás.Visible = true;
  for (Button* button : {&cmd_kész, &cmd_egybetűtfelfed, &cmd_újrakever, &cmd_rendez}) button->Visible = false;
  Timer1.Enabled = true;
}

frm_cserkó::Answer frm_cserkó::kirakott_szó_vizsgálata() {
  kirakott_szó_.clear();
  for (const int number : letters_by_left(By::RoundedLeft)) kirakott_szó_ += betű[number].Caption;
  if (kirakott_szó_ == record().név) return Answer::Right;
  // Another word of the same letters is the solution too. The last record counts here, though it is never dealt.
  for (int i = 0; i <= képek().képszám; ++i) {
    if (képek()[i].név != kirakott_szó_) continue;
    feladat_index_ = i;
    return Answer::Right;
  }
  const Text path = session().alapkönyvtár + u"ms.skt";
  const auto words = platform().files().read(path);
  if (!words) throw FileError("A szólista nem olvasható: " + to_utf8(path));
  return szó_a_szótárban(*words, kirakott_szó_) ? Answer::OtherWord : Answer::Unknown;
}

} // namespace cserko
