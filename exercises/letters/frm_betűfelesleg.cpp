#include "exercises/letters/frm_betűfelesleg.h"

#include "core/numbers.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr TextView full_alphabet = u"csgylynysztyzsertzuiopőúóüöűáélkjhgfdsacvbnmí";
constexpr TextView sample_word = u"markológép-kezelő";
constexpr double space_under_picture = 50; // twips, as the next two
constexpr double space_under_row = 800;    // with title bar and menu bar
constexpr double margin = 120;
constexpr Color red{255, 0, 0};

} // namespace

frm_betűfelesleg_beáll::frm_betűfelesleg_beáll(Session& session)
    : SettingsDialog(session, u"frm_betűfelesleg_beáll", {5640, 2940}, u"Cserkó - Betűfelesleg beállítások",
                     u"betfelesleg.ini") {
  labszópárok.Centered = false;
  txtbetszám.AccessibleName = labszópárok.Caption;
  set_fields({&udbetszám, &opt_betűforrás[0], &opt_betűforrás[1]});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Betűfelesleg - beállítások.mht");
}

void frm_betűfelesleg_beáll::apply() { session().window<frm_betűfelesleg>().beáll(); }

frm_betűfelesleg::frm_betűfelesleg(Session& session)
    : ExerciseWindow(session, u"frm_betűfelesleg", {9255, 7565}, u"Cserkó - Betűfelesleg"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  pic_kép.Border = true;
  pic_eredmény.design_places({{5880, 840}, {7560, 840}, {5880, 2760}, {7560, 2760}, {5880, 4680}, {7560, 4680}});
  lbl_eredmény.design_places({{5880, 2400}, {7560, 2400}, {5880, 4320}, {7560, 4320}, {5880, 6240}, {7560, 6240}});
  lbl_betű[0].ForeColor = black;
  row_.Pressed = [this](int letter, const MouseEvent&) { letter_pressed(letter); };
  row_.Released = [this](int letter, const MouseEvent&) { letter_released(letter); };
  pic_kép.Click = [this] {
    if (has_puzzle()) show_hint(this->session(), pic_kép, pic_kép.Tag);
  };
  Timer1.Tick = [this] { next_step(); };
  set_settings_entry<frm_betűfelesleg_beáll>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Betűfelesleg - a feladat.mht");
}

void frm_betűfelesleg::Load() {
  ablak_beállítás();
  results_.clear();
  // Whoever plays by keyboard begins on a letter, and the row keeps the focus from word to word.
  set_focus(&lbl_betű[0]);
  deal_first([this] { beáll(); });
}

void frm_betűfelesleg::ablak_beállítás() {
  ablak_méretezés(*this, 0.9);
  lbl_feladat.Left = pic_kép.Left;
  lbl_feladat.Width = pic_kép.Width;
  szöveg_illesztés(lbl_feladat, Text(task));
  const Size extent = platform().measure(lbl_feladat.Font, lbl_feladat.Caption);
  lbl_feladat.Width = extent.width;
  lbl_feladat.Height = extent.height;
  lbl_feladat.WordWrap = false; // it is as wide as its place to the twip, and pixels are coarser
  // The picture stands right under it and begins with the panel; so a row wider than the picture is free of the panel.
  lbl_feladat.Top = pic_eredmény[0].Top - lbl_feladat.Height;
  pic_kép.Top = lbl_feladat.Top + lbl_feladat.Height;
  lbl_betű[0].Width = pic_kép.Width;
  szöveg_illesztés(lbl_betű[0], Text(sample_word));
  letter_size_ = lbl_betű[0].Font.size;
  ablak_középre(session(), *this);
}

void frm_betűfelesleg::beáll() {
  deal([this] {
    feladat_törlése();
    aktuális_kép_ = szóválasztás();
    betű_beszúrása(aktuális_kép_);
    lépés_ = 0;
  });
}

void frm_betűfelesleg::no_puzzle() {
  feladat_törlése();
  clear_picture(pic_kép);
  pic_kép.Tag.clear();
}

void frm_betűfelesleg::feladat_törlése() {
  // A word that was just solved may still be on its way into the panel.
  Timer1.Enabled = false;
  row_.clear();
  lbl_betű[0].ForeColor = black;
}

int frm_betűfelesleg::szóválasztás() const {
  const int most = settings().udbetszám.value();
  return képek().draw(
      platform(),
      [&](int index) {
        const int letters = képek().MAGYARBETŰKSZÁMA(index);
        return letters > 0 && letters <= most;
      },
      u"Nincs ilyen rövid szavunk.\r\nKérlek, engedj meg a beállításokban több betűt!");
}

void frm_betűfelesleg::betű_beszúrása(int record) {
  const kszöveg word(képek()[record].név);
  const kszöveg source(settings().opt_betűforrás[0].value() ? full_alphabet : TextView(word.value()));
  const int letters = word.MAGYARBETŰKSZÁMA();
  const Text surplus = source.szóbetűje(1 + random_below(platform(), source.MAGYARBETŰKSZÁMA()));
  pic_kép.Tag = word.value();
  // Never the first place and none of the last two, as far as the word has others.
  const int place = std::max(0, static_cast<int>(std::floor(platform().random() * (letters - 2) + 1)));
  show_record_picture(session(), pic_kép, record);
  row_.show(word);
  lbl_betű.each([](Label& letter) { letter.Tag.clear(); });
  Label& inserted = row_.insert(place);
  inserted.Caption = surplus;
  inserted.Tag = culprit;
  betűk_igazítása();
}

void frm_betűfelesleg::betűk_igazítása() {
  lbl_betű[0].Font.size = letter_size_;
  // A row that is wider than the picture goes beyond it, and one that is wider than the window takes smaller letters.
  const double widest = inner_width() - 2 * margin;
  if (row_.text_width() > widest) row_.fit(row_.text(), {widest, pic_kép.Height});
  const double width = row_.text_width();
  const double centered = pic_kép.Left + pic_kép.Width / 2 - width / 2;
  const double left = std::max(margin, std::min(centered, margin + widest - width));
  row_.lay_out({left, pic_kép.Top + pic_kép.Height + space_under_picture});
  const double bottom = lbl_betű[0].Top + lbl_betű[0].Height;
  Height = bottom + std::max(space_under_row, platform().chrome(*this).height + margin);
  ablak_középre(session(), *this);
}

void frm_betűfelesleg::letter_pressed(int letter) {
  if (has_puzzle() && lépés_ < 1) lbl_betű[letter].ForeColor = red;
}

void frm_betűfelesleg::letter_released(int letter) {
  if (!has_puzzle() || lépés_ >= 1) return;
  const int surplus = surplus_letter();
  // Either letter of a doubled pair is the surplus one.
  const bool twin = std::abs(letter - surplus) == 1 && lbl_betű[letter].Caption == lbl_betű[surplus].Caption;
  if (letter == surplus || twin) {
    std::swap(lbl_betű[letter].Tag, lbl_betű[surplus].Tag);
    lbl_betű[letter].ForeColor = red;
    Timer1.Enabled = true;
    helyes_hang(session());
  } else {
    lbl_betű[letter].ForeColor = black;
    hiba_hang(session());
  }
}

int frm_betűfelesleg::surplus_letter() const {
  int found = 0;
  lbl_betű.each([&found](const Label& letter) {
    if (letter.Tag == culprit) found = letter.Index;
  });
  return found;
}

void frm_betűfelesleg::next_step() {
  ++lépés_;
  if (lépés_ == 1) {
    close_up();
  } else {
    Timer1.Enabled = false;
    eredmény_felvétele();
    beáll();
  }
}

void frm_betűfelesleg::close_up() {
  row_.remove(surplus_letter());
  lbl_betű.each([](Label& letter) { letter.ForeColor = black; });
  row_.lay_out({lbl_betű[0].Left, lbl_betű[0].Top});
}

void frm_betűfelesleg::eredmény_felvétele() { results_.add(aktuális_kép_, képek()[aktuális_kép_].szótagolt); }

} // namespace cserko
