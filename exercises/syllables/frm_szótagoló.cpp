#include "exercises/syllables/frm_szótagoló.h"

#include "core/numbers.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

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
  pic_eredmény.design_places({{6960, 720}, {9000, 720}, {6960, 3000}, {9000, 3000}, {6960, 5280}, {9000, 5280}});
  lbl_eredmény.design_places({{6960, 2640}, {9000, 2640}, {6960, 4920}, {9000, 4920}, {6960, 7200}, {9000, 7200}});
  row_.Pull = [this](int letter, LetterRow::Way way) { return break_changed(letter, way); };
  cmd_kész.Default = true;
  cmd_kész.Click = [this] { kész(); };
  set_settings_entry<dlg_szótagoló>(mnu_fájl_beállítások, DialogAtClose::GoesByMenuOnly);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"szótagoló - a feladat.mht");
}

void frm_szótagoló::Load() {
  fill_screen({&lbl_feladat, &cmd_kész});
  results_.clear();
  deal_first([this] { beáll(); });
}

void frm_szótagoló::beáll() {
  deal([this] {
    feladat_törlés();
    aktuális_kép_ = szóválasztás();
    show_record_picture(session(), kép, aktuális_kép_);
    szó_kirakása(képek()[aktuális_kép_].név);
  });
}

void frm_szótagoló::no_puzzle() { feladat_törlés(); }

void frm_szótagoló::feladat_törlés() {
  clear_picture(kép);
  aktuális_kép_ = -1;
  row_.clear();
}

int frm_szótagoló::szóválasztás() {
  platform().seed_random();
  const dlg_szótagoló& wanted = settings();
  // The present record is forgotten already, so the same word may come twice in a row; that is intended.
  return képek().draw(
      platform(), [&](int index) { return wanted.allows(képek().szótagszám(index)) && index != aktuális_kép_; },
      u"Nincs olyan szavunk, amelyiknek ennyi szótagja van.\r\nKérlek, engedj meg a beállításokban több szótagot!");
}

void frm_szótagoló::szó_kirakása(const Text& word) {
  const kszöveg text(word);
  const int most_breaks = std::max(text.MAGYARBETŰKSZÁMA() - 1, 0);
  const double gap = cmd_kész.Top - (kép.Top + kép.Height);
  row_.fit(word + Text(static_cast<std::size_t>(most_breaks), u'-'), {kép.Width, 0.9 * gap});
  row_.show(text);
  // A long double consonant that opens the word stays whole.
  if (const int position = hosszú_kettős_helye(text); position >= 2) row_.split(position);
  betűk_igazítása();
}

void frm_szótagoló::betűk_igazítása() {
  const int center = rounded(kép.Left + kép.Width / 2);
  row_.lay_out({center - rounded(row_.text_width()) / 2.0, kép.Top + kép.Height + space_under_picture});
}

bool frm_szótagoló::break_changed(int letter, LetterRow::Way way) {
  const bool open = way == LetterRow::Way::Right;
  const bool halved = betű[letter].Tag == LetterRow::second_half;
  Text& before = betű[letter - 1].Caption;
  if (before.ends_with(u'-') == open) return false;
  if (open) {
    if (halved) before = betű[letter].Caption;
    before += u'-';
  } else {
    before.pop_back();
    if (halved) before = before.substr(0, 1);
  }
  hang_lejátszás(session(), session().alapkönyvtár + (open ? u"cserko\\clack 1.wav" : u"cserko\\clack 2.wav"));
  betűk_igazítása();
  return true;
}

void frm_szótagoló::kész() {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), row_.text() == képek()[aktuális_kép_].szótagolt)) return;
  results_.add(aktuális_kép_, képek()[aktuális_kép_].szótagolt);
  beáll();
}

} // namespace cserko
