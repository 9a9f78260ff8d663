#include "exercises/letters/frm_cserkó.h"

#include "core/kszöveg.h"
#include "core/numbers.h"
#include "exercises/letters/word_list.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr double mouse_margin = 100; // twips at the right edge that the mouse cannot reach
constexpr int all_modifiers = shift::shift | shift::control | shift::alt;

} // namespace

frm_cserkó_beáll::frm_cserkó_beáll(Session& session)
    : SettingsDialog(session, u"frm_cserkó_beáll", {4920, 5220}, u"Cserkó - Cserkó beállítások", u"kiscserko.ini") {
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
  lbl_megoldás.Visible = false;
  bind();
}

void frm_cserkó::bind() {
  lbl_feladat.MouseDown = [this](const MouseEvent& event) { task_pressed(event); };
  lbl_feladat.MouseUp = [this](const MouseEvent&) { lbl_feladat.Caption = task; };
  kép.MouseDown = [this](const MouseEvent& event) { frame_pressed(event); };
  letters_.Pressed = [this](int, const MouseEvent&) { letters_.kijelölés_törlése(); };
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
  set_settings_entry<frm_cserkó_beáll>(mnu_fájl_beálítások, DialogAtClose::Goes);
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
  letters_.keyboard = {static_cast<double>(rounded(kép.Width * 0.02)), {kép.Width, kép.Height}};
  deal_first([this] { beáll(); });
}

void frm_cserkó::beáll() {
  deal([this] { new_puzzle(); });
}

void frm_cserkó::no_puzzle() {
  feladat_törlése();
  for (Button* button : answer_buttons()) button->Enabled = false;
}

void frm_cserkó::new_puzzle() {
  feladat_törlése();
  kép.Font = betű[0].Font;
  szóválasztás();
  betűk_szétszórása(record().név);
  cmd_kész.Enabled = true;
  cmd_újrakever.Enabled = settings().chk_ismételt_keverés_engedélyezése.ticked();
  cmd_rendez.Enabled = settings().chk_szórendezés_engedélyezés.ticked();
  cmd_egybetűtfelfed.Enabled = settings().Chk_betűfelfed.ticked();
  felfedett_betűk_ = 0;
}

void frm_cserkó::feladat_törlése() {
  Timer1.Enabled = false;
  letters_.clear();
  clear_picture(kép);
  lbl_megoldás.Visible = false;
  for (Button* button : answer_buttons()) button->Visible = true;
}

void frm_cserkó::szóválasztás() {
  // With no option on the previous word stands.
  const frm_cserkó_beáll& wanted = settings();
  if (!wanted.allows(0).has_value()) return;
  feladat_index_ = képek().draw(
      platform(),
      [&](int candidate) {
        return *wanted.allows(képek().MAGYARBETŰKSZÁMA(candidate)) &&
               0.9 * kép.Width >= text_width(képek()[candidate].név);
      },
      u"Nincs olyan szavunk, amelyik ilyen hosszú.\r\nKérlek, változtasd meg a beállításokban a betűk számát!");
}

void frm_cserkó::betűk_szétszórása(const Text& word) {
  const kszöveg text(word);
  std::vector<Text> letters;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) letters.push_back(text.szóbetűje(int(i)));
  letters_.show(letters, ScatteredPieces::Height::OfText);
  letters_.scatter(mouse_margin);
}

void frm_cserkó::újrakeverés() {
  // The right margin of the first scattering is absent here, which is intended.
  if (settings().chk_ismételt_keverés_engedélyezése.ticked()) letters_.scatter(0);
  letters_.kijelölés_törlése();
}

double frm_cserkó::text_width(TextView text) const { return platform().measure(kép.Font, text).width; }

void frm_cserkó::rendezés() {
  if (settings().chk_szórendezés_engedélyezés.ticked()) {
    kép.Font = betű[0].Font;
    letters_.line_up(text_width(record().név), ScatteredPieces::By::RoundedLeft);
  }
  letters_.kijelölés_törlése();
}

void frm_cserkó::KeyDown(KeyEvent& event) {
  if (has_puzzle()) letters_.key_down(event);
}

void frm_cserkó::frame_pressed(const MouseEvent& event) {
  if (!has_puzzle()) return;
  if (event.button == MouseButton::Left) {
    if (!settings().chk_ismételt_keverés_engedélyezése.ticked()) letters_.put_down(event);
    újrakeverés();
  } else if (event.button == MouseButton::Right) {
    rendezés();
  }
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
  letters_.kijelölés_törlése();
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
  for (Button* button : answer_buttons()) button->Visible = false;
  Timer1.Enabled = true;
}

frm_cserkó::Answer frm_cserkó::kirakott_szó_vizsgálata() {
  kirakott_szó_.clear();
  for (const int number : letters_.by_left(ScatteredPieces::By::RoundedLeft)) kirakott_szó_ += betű[number].Caption;
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
