#include "exercises/template/frm_letter_template.h"

#include "core/numbers.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

namespace cserko {

namespace {

constexpr double row_height = 600; // twips of the design, for the letters under the picture
constexpr TextView alphabet = u"abcdefghijklmnoprstuvwxyz";
constexpr TextView advice = u"Nincs ilyen hosszú szavunk.\r\nKérlek, változtasd meg a beállításokban a betűk számát!";

} // namespace

dlg_letter_template::dlg_letter_template(Session& session)
    : SettingsDialog(session, u"dlg_letter_template", {5640, 3540}, u"Cserkó - Betűminta beállítások",
                     u"letter_template.ini"),
      WordLanguage(*this, {120, 120}),
      WordLengths(*this, {120, 1140}, 4) {
  set_fields({&ud_minbetűszám, &ud_maxbetűszám, &opt_nyelv[0], &opt_nyelv[1]});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"betűminta - beállítások.mht");
}

void dlg_letter_template::apply() { session().window<frm_letter_template>().beáll(); }

frm_letter_template::frm_letter_template(Session& session)
    : ExerciseWindow(session, u"frm_letter_template", {8655, 6915}, u"Cserkó - Betűminta"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  pic_eredmény.design_places({{5640, 660}, {5640, 2745}, {5640, 4830}});
  lbl_eredmény.design_places({{5640, 2265}, {5640, 4350}, {5640, 6435}});
  row_.Clicked = [this](int letter) { betű_click(letter); };
  kép.Click = [this] {
    if (has_puzzle()) show_hint(this->session(), aktuális_kép_, word());
  };
  set_settings_entry<dlg_letter_template>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"betűminta - a feladat.mht");
}

void frm_letter_template::Load() {
  fill_screen({&lbl_feladat});
  results_.clear();
  deal_first([this] { beáll(); });
}

const Text& frm_letter_template::word() const {
  return képek().word(aktuális_kép_, word_form(settings().english(), false));
}

int frm_letter_template::szóválasztás() {
  platform().seed_random();
  const bool english = settings().english();
  const LengthRange lengths = settings().lengths();
  return képek().draw(
      platform(),
      [&](int index) { return lengths.allows(képek().word_length(index, english)) && index != aktuális_kép_; }, advice);
}

void frm_letter_template::beáll() {
  deal([this] {
    aktuális_kép_ = szóválasztás();
    show_record_picture(session(), kép, aktuális_kép_);
    szó_kirakása();
  });
}

void frm_letter_template::no_puzzle() {
  clear_picture(kép);
  row_.clear();
}

void frm_letter_template::szó_kirakása() {
  kszöveg text;
  text.szövegnyelv(settings().english() ? kszöveg::angol : kszöveg::magyar);
  text.value(word());
  const double scale = kép.Height / 5415;
  row_.clear();
  row_.fit(word() + u"mm", {kép.Width, row_height * scale});
  row_.show(text);
  kicserélt_ = random_below(platform(), betű.count());
  Text& replaced = betű[kicserélt_].Caption;
  const auto differs = [&](int index) { return replaced != Text(1, alphabet[static_cast<std::size_t>(index)]); };
  replaced = Text(
      1,
      alphabet[static_cast<std::size_t>(draw_below(platform(), static_cast<int>(alphabet.size()), differs, advice))]);
  row_.lay_out({kép.Left + kép.Width / 2 - row_.text_width() / 2, kép.Top + kép.Height});
}

void frm_letter_template::betű_click(int letter) {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), letter == kicserélt_)) return;
  results_.add(aktuális_kép_, word());
  beáll();
}

} // namespace cserko
