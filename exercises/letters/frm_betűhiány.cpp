#include "exercises/letters/frm_betűhiány.h"

#include "core/numbers.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr double space_under_picture = 20; // twips
constexpr double pull_share = 0.4;         // of the width of the missing letter
constexpr int fewest_letters = 3;          // in fewer none has one before and one behind it
constexpr TextView advice =
    u"Nincs elég ilyen hosszú szavunk.\r\nKérlek, engedj meg a beállításokban rövidebb vagy hosszabb szavakat is!";

} // namespace

dlg_betűhiány::dlg_betűhiány(Session& session)
    : SettingsDialog(session, u"dlg_betűhiány", {5640, 3540}, u"Cserkó - Betűhiány beállítások", u"betűhiány.ini"),
      WordLanguage(*this, {120, 120}),
      WordLengths(*this, {120, 1140}, 4) {
  set_fields({&ud_minbetűszám, &ud_maxbetűszám, &opt_nyelv[0], &opt_nyelv[1]});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Betűhiány - beállítások.mht");
}

void dlg_betűhiány::apply() { session().window<frm_betűhiány>().beáll(); }

frm_betűhiány::frm_betűhiány(Session& session)
    : ExerciseWindow(session, u"frm_betűhiány", {9015, 7095}, u"Cserkó - Betűhiány"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  kép.Border = true;
  pic_eredmény.design_places({{5640, 480}, {7320, 480}, {5640, 2640}, {7320, 2640}, {5640, 4800}, {7320, 4800}});
  lbl_eredmény.design_places({{5640, 2160}, {7320, 2160}, {5640, 4320}, {7320, 4320}, {5640, 6480}, {7320, 6480}});
  row_.Pull = [this](int letter, LetterRow::Way way) { return letter_changed(letter, way); };
  row_.pull_distance = [this](int) { return pull_share * platform().measure(betű[0].Font, hiányzó_).width; };
  kép.Click = [this] {
    if (has_puzzle()) show_hint(this->session(), aktuális_kép_, szó_);
  };
  cmd_kész.Default = true;
  cmd_kész.Click = [this] { kész(); };
  set_settings_entry<dlg_betűhiány>(mnu_fájl_beáll, DialogAtClose::GoesByMenuOnly);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"betűhiány - a feladat.mht");
}

void frm_betűhiány::Load() {
  fill_screen({&lbl_feladat, &cmd_kész});
  results_.clear();
  deal_first([this] { beáll(); });
}

void frm_betűhiány::beáll() {
  deal([this] {
    feladat_törlés();
    aktuális_kép_ = szóválasztás();
    show_record_picture(session(), kép, aktuális_kép_);
    szó_kirakása(képek().word(aktuális_kép_, word_form(settings().english(), false)));
  });
}

void frm_betűhiány::no_puzzle() { feladat_törlés(); }

void frm_betűhiány::feladat_törlés() {
  clear_picture(kép);
  row_.clear();
  kiegészült_.clear();
  szó_.clear();
}

int frm_betűhiány::szóválasztás() {
  platform().seed_random();
  const bool english = settings().english();
  const LengthRange lengths = settings().lengths();
  const WordForm form = word_form(english, false);
  return képek().draw(
      platform(),
      [&](int index) {
        if (!lengths.allows(képek().word_length(index, english)) || index == aktuális_kép_) return false;
        const Text& word = képek().word(index, form);
        // A space is allowed in Hungarian, which is intended.
        return word.find_first_of(english ? u"- " : u"-") == Text::npos &&
               képek().MAGYARBETŰKSZÁMA(index, form) >= fewest_letters;
      },
      advice);
}

void frm_betűhiány::szó_kirakása(const Text& word) {
  platform().seed_random();
  szó_ = word;
  // English words are cut into Hungarian letters too.
  const kszöveg text(word);
  const double gap = cmd_kész.Top - (kép.Top + kép.Height);
  row_.fit(word + u"--", {kép.Width, 0.9 * gap});
  illesztett_ = betű[0].Font.size;
  row_.show(text);
  const int split_at = hosszú_kettős_helye(text);
  if (split_at >= 2) row_.split(split_at);
  const int last = betű.count() - 1;
  int taken = static_cast<int>(platform().random() * (last - 2) + 1);
  if (taken == split_at) --taken;
  betű_kivétele(taken);
  betűk_igazítása();
}

void frm_betűhiány::betű_kivétele(int position) {
  const bool halved = betű[position + 1].Tag == LetterRow::second_half;
  hiányzó_ = betű[halved ? position + 1 : position].Caption;
  row_.remove(position);
}

void frm_betűhiány::betűk_igazítása() {
  betű[0].Font.size = illesztett_;
  // Children also put the letter behind many others at once.
  while (betű[0].Font.size > 1 && row_.text_width() > kép.Width) betű[0].Font.size -= 1;
  const int center = rounded(kép.Left + kép.Width / 2);
  row_.lay_out({center - row_.text_width() / 2, kép.Top + kép.Height + space_under_picture});
}

bool frm_betűhiány::letter_changed(int letter, LetterRow::Way way) {
  if (!has_puzzle()) return false;
  const auto halved = [this](int index) { return betű[index].Tag == LetterRow::second_half; };
  // Behind a split consonant the missing half of it can only come before its second piece.
  if (halved(letter - 1) && betű[letter - 1].Caption == hiányzó_) --letter;
  const int changed = letter - 1;
  const bool inserts = way == LetterRow::Way::Right;
  if (kiegészült_.contains(changed) == inserts) return false;
  Text& before = betű[changed].Caption;
  const Text piece = halved(letter) ? hiányzó_.substr(0, 1) : hiányzó_;
  if (inserts) {
    before += piece;
    kiegészült_.insert(changed);
  } else {
    before.resize(before.size() - piece.size());
    kiegészült_.erase(changed);
  }
  hang_lejátszás(session(), session().alapkönyvtár + (inserts ? u"cserko\\clack 1.wav" : u"cserko\\clack 2.wav"));
  betűk_igazítása();
  return true;
}

void frm_betűhiány::kész() {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), row_.text() == szó_)) return;
  results_.add(aktuális_kép_, képek()[aktuális_kép_].név);
  beáll();
}

} // namespace cserko
