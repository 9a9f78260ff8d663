#include "exercises/syllables/frm_szótagoló.h"

#include "core/kszöveg.h"
#include "core/numbers.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cserko {

namespace {

// Written short inside a word and doubled when a syllable ends in them: "asszony" is "asz-szony".
constexpr std::array<TextView, 7> long_double_consonants{u"ccs", u"ggy", u"lly", u"nny", u"ssz", u"tty", u"zzs"};

// Tags of the letters.
constexpr TextView ordinary = u"0";
constexpr TextView second_half = u"3";

constexpr double space_under_picture = 20; // twips

} // namespace

dlg_szótagoló::dlg_szótagoló(Session& session)
    : SettingsDialog(session, u"dlg_szótagoló", {5640, 2520}, u"Cserkó - Szótagoló beállítások", u"szótagoló.ini") {
  lbl_szótagszám.Centered = false;
  txt_szótagszám.AccessibleName = lbl_szótagszám.Caption;
  set_fields({&udszótagszám, &chk_egyszótagúak_kizárva});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"szótagoló - beállítások.mht");
}

bool dlg_szótagoló::allows(int syllables) const {
  return syllables <= udszótagszám.value() && (syllables >= 2 || !chk_egyszótagúak_kizárva.ticked());
}

void dlg_szótagoló::apply() { session().window<frm_szótagoló>().beáll(); }

frm_szótagoló::frm_szótagoló(Session& session)
    : ExerciseWindow(session, u"frm_szótagoló", {11055, 8895}, u"Cserkó - Szótagoló"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  kép.TabStop = false;
  kép.Border = true;
  betű[0].WordWrap = false;
  betű[0].Choosable = true;
  pic_eredmény.design_places({{6960, 720}, {9000, 720}, {6960, 3000}, {9000, 3000}, {6960, 5280}, {9000, 5280}});
  lbl_eredmény.design_places({{6960, 2640}, {9000, 2640}, {6960, 4920}, {9000, 4920}, {6960, 7200}, {9000, 7200}});
  betű.MouseDown = [this](int, const MouseEvent& event) {
    húzás_kezdete_ = rounded(event.x);
    pulled_ = false;
  };
  betű.MouseUp = [this](int letter, const MouseEvent& event) { letter_released(letter, event); };
  betű.MouseMove = [this](int letter, const MouseEvent& event) { letter_moved(letter, event.x); };
  betű.Click = [this](int letter) { letter_clicked(letter); };
  cmd_kész.Default = true;
  cmd_kész.Click = [this] { kész(); };
  mnu_fájl_beállítások.Click = [this] { platform().show_modal(settings()); };
  mnu_fájl_kilép.Click = [this] {
    this->session().unload(settings());
    this->session().unload(*this);
  };
  set_help_entry(mnu_súgó_súgó, u"szótagoló - a feladat.mht");
}

void frm_szótagoló::Load() {
  ablak_méretezés(*this, 0.95);
  szöveg_illesztés(lbl_feladat);
  szöveg_illesztés(cmd_kész);
  ablak_középre(session(), *this);
  results_.clear();
  deal_first([this] { beáll(); });
}

void frm_szótagoló::beáll() {
  feladat_törlés();
  aktuális_kép_ = szóválasztás();
  show_record_picture(session(), kép, aktuális_kép_);
  szó_kirakása(képek()[aktuális_kép_].név);
  húzás_kezdete_ = -1;
  igazítás_alatt_ = false;
}

void frm_szótagoló::feladat_törlés() {
  clear_picture(kép);
  aktuális_kép_ = -1;
  betű.unload_from(1);
  betű[0].Tag = ordinary;
  betű[0].Visible = false;
}

int frm_szótagoló::szóválasztás() {
  platform().seed_random();
  // The present record is forgotten already, so the same word may come twice in a row; that is intended.
  return képek().draw(
      platform(), [this](int index) { return settings().allows(képek().szótagszám(index)) && index != aktuális_kép_; },
      u"Nincs olyan szavunk, amelyiknek ennyi szótagja van.\r\nKérlek, engedj meg a beállításokban több szótagot!");
}

void frm_szótagoló::szó_kirakása(const Text& word) {
  const kszöveg text(word);
  const int letters = text.MAGYARBETŰKSZÁMA();
  const Text widest_form = word + Text(static_cast<std::size_t>(std::max(letters - 1, 0)), u'-');
  const double gap = cmd_kész.Top - (kép.Top + kép.Height);
  cserko::Font font = betű[0].Font;
  font.size = 8;
  betű[0].Font.size = first_overfilling_size(platform(), font, widest_form, {kép.Width, 0.9 * gap}) - 1;
  for (int i = 0; i < letters; ++i) {
    Label& letter = i == 0 ? betű[0] : betű.load(i);
    letter.Caption = text.szóbetűje(i + 1);
    letter.Visible = true;
  }
  // A long double consonant that opens the word stays whole.
  if (const int position = hosszú_kettős_helye(word); position >= 2) split_long_consonant(position);
  betűk_igazítása();
}

void frm_szótagoló::split_long_consonant(int position) {
  const int last = betű.count();
  betű.load(last).Visible = true;
  for (int i = last; i >= position; --i) betű[i].Caption = betű[i - 1].Caption;
  const Text whole = betű[position].Caption;
  betű[position - 1].Caption = whole.substr(0, 1);
  betű[position].Caption = whole.substr(whole.size() - 2);
  betű[position].Tag = second_half;
}

int frm_szótagoló::hosszú_kettős_helye(const Text& word) const {
  const kszöveg text(word);
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) {
    const Text letter = text.szóbetűje(int(i));
    if (std::find(long_double_consonants.begin(), long_double_consonants.end(), letter) != long_double_consonants.end())
      return i;
  }
  return 0;
}

Text frm_szótagoló::row_text() const {
  Text joined;
  betű.each([&](const Label& letter) { joined += letter.Caption; });
  return joined;
}

void frm_szótagoló::betűk_igazítása() {
  const int center = rounded(kép.Left + kép.Width / 2);
  const Size row = platform().measure(betű[0].Font, row_text());
  double left = center - rounded(row.width) / 2.0;
  const double top = kép.Top + kép.Height + space_under_picture;
  betű.each([&](Label& letter) {
    letter.Font = betű[0].Font;
    letter.move_to(left, top);
    const Size extent = platform().measure(letter.Font, letter.Caption);
    letter.Width = extent.width;
    letter.Height = extent.height;
    left += extent.width;
  });
}

bool frm_szótagoló::break_before(int letter) const { return betű[letter - 1].Caption.ends_with(u'-'); }

void frm_szótagoló::close_break(int letter) {
  Text& before = betű[letter - 1].Caption;
  before.pop_back();
  if (betű[letter].Tag == second_half) before = before.substr(0, 1);
  hang_lejátszás(session(), session().alapkönyvtár + u"cserko\\clack 2.wav");
  betűk_igazítása();
}

void frm_szótagoló::open_break(int letter) {
  Text& before = betű[letter - 1].Caption;
  if (betű[letter].Tag == second_half) before = betű[letter].Caption;
  before += u'-';
  hang_lejátszás(session(), session().alapkönyvtár + u"cserko\\clack 1.wav");
  betűk_igazítása();
}

void frm_szótagoló::letter_moved(int letter, double x) {
  if (igazítás_alatt_ || húzás_kezdete_ == -1) return;
  if (std::abs(húzás_kezdete_ - x) < betű[letter].Width / 4 || letter == 0) return;
  pulled_ = true;
  const bool pushed_left = x < húzás_kezdete_;
  if (pushed_left != break_before(letter)) return;
  igazítás_alatt_ = true;
  if (pushed_left) {
    close_break(letter);
  } else {
    open_break(letter);
  }
  igazítás_alatt_ = false;
}

void frm_szótagoló::letter_released(int letter, const MouseEvent& event) {
  húzás_kezdete_ = -1;
  // Only a left release inside the letter is a click as well. No other one may leave a pull behind, which would keep
  // the next space bar from its effect.
  const Label& label = betű[letter];
  const bool inside = event.x >= 0 && event.x < label.Width && event.y >= 0 && event.y < label.Height;
  if (event.button != MouseButton::Left || !inside) pulled_ = false;
}

void frm_szótagoló::letter_clicked(int letter) {
  // The end of a pull is no click. A mere click, or the space bar, opens and closes the break before the letter.
  if (std::exchange(pulled_, false) || letter == 0) return;
  if (break_before(letter)) {
    close_break(letter);
  } else {
    open_break(letter);
  }
}

void frm_szótagoló::kész() {
  if (aktuális_kép_ < 0) return; // no word fitted the settings
  if (row_text() != képek()[aktuális_kép_].szótagolt) {
    hiba_hang(session());
    return;
  }
  helyes_hang(session());
  results_.add(aktuális_kép_, képek()[aktuális_kép_].szótagolt);
  beáll();
}

} // namespace cserko
