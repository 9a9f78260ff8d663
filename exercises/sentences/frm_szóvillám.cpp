#include "exercises/sentences/frm_szóvillám.h"

#include "core/numbers.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr std::int16_t first_count = 4; // one above the first number that is shown
constexpr int shortest_flash = 10;      // ms
constexpr TextView empty_place = u"-1";
constexpr TextView no_time = u"0.00";
constexpr TextView advice =
    u"Nincs hat ilyen hosszú szavunk.\r\nKérlek, engedj meg a beállításokban rövidebb vagy hosszabb szavakat is!";

} // namespace

frm_szóvillám_beáll::frm_szóvillám_beáll(Session& session)
    : SettingsDialog(session, u"frm_szóvillám_beáll", {5640, 7560}, u"Cserkó - Szóvillám Beállítások",
                     u"szóvillám.ini"),
      WordLanguage(*this, {120, 120}) {
  const auto head = [](Label& heading, TextBox& box) {
    heading.Centered = false;
    box.AccessibleName = heading.Caption;
  };
  head(lbl_betszámmin, txt_betszámmin);
  head(lbl_betszámmax, txt_betszámmax);
  head(lbl_mp, txt_mp);
  head(lbl_tizedmp, txt_tizedmp);
  head(lbl_századmp, txt_századmp);
  for (Label* text : {&lbl_time, &lbl_idő, &lbl_note}) text->Centered = false;
  for (UpDown* part : {&ud_mp, &ud_tizedmp, &ud_századmp}) part->Change = [this] { show_time(); };
  set_fields({&ud_betszámmin, &ud_betszámmax, &ud_mp, &ud_tizedmp, &ud_századmp, &opt_nyelv[0], &opt_nyelv[1]});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Szóvillám - beállítások.mht");
}

void frm_szóvillám_beáll::show_time() {
  lbl_idő.Caption = to_text(ud_mp.value()) + u"." + to_text(ud_tizedmp.value()) + to_text(ud_századmp.value());
  OKButton.Enabled = lbl_idő.Caption != no_time;
}

void frm_szóvillám_beáll::apply() {
  auto& exercise = session().window<frm_szóvillám>();
  exercise.nagytakarítás();
  exercise.beáll();
}

frm_szóvillám::frm_szóvillám(Session& session)
    : ExerciseWindow(session, u"frm_szóvillám", {6135, 4800}, u"Cserkó - SzóVillám"), results_(session, pic_eredmény) {
  lbl_feladvány.TabStop = false;
  cmd_újra.Visible = false;
  cmd_újra.AccessibleName = u"Még egyszer";
  cmd_újra.TabIndex = 1; // behind all the pictures
  pic_feladványkép[0].Border = true;
  pic_feladványkép.design_places({{4920, 1440}, {1560, 480}, {120, 1440}, {3480, 480}, {1560, 2400}, {3480, 2400}});
  pic_eredmény.design_places({{120, 240}, {1080, 240}, {2040, 240}, {3000, 240}, {3960, 240}, {4920, 240}});
  pic_feladványkép.Click = [this](int index) { pic_feladványkép_click(index); };
  Timer_villám.WholeFrames = true;
  Timer_visszaszámláló.Tick = [this] { count_down(); };
  Timer_villám.Tick = [this] { end_flash(); };
  Timer_kérdőjelmegjelenítő.Tick = [this] {
    cmd_újra.Visible = true;
    Timer_kérdőjelmegjelenítő.Enabled = false;
  };
  cmd_újra.Click = [this] {
    cmd_újra.Visible = false;
    Timer_visszaszámláló.Enabled = true;
  };
  mnu_fájl_újjáték.Click = [this] {
    nagytakarítás();
    beáll();
  };
  set_settings_entry<frm_szóvillám_beáll>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"szóvillám - a feladat.mht");
}

void frm_szóvillám::Load() {
  fill_screen({&lbl_feladat});
  nagytakarítás();
  szöveg_illesztés(cmd_újra);
  deal_first([this] { beáll(); });
}

void frm_szóvillám::nagytakarítás() { results_.clear(); }

void frm_szóvillám::feladat_törlés() {
  pic_feladványkép.each([](PictureBox& picture) {
    clear_picture(picture);
    picture.Tag = empty_place;
  });
  clear_picture(lbl_feladvány);
  lbl_feladvány.Tag.clear();
}

void frm_szóvillám::no_puzzle() {
  feladat_törlés();
  cmd_újra.Visible = false;
  for (Timer* timer : {&Timer_visszaszámláló, &Timer_villám, &Timer_kérdőjelmegjelenítő}) timer->Enabled = false;
}

void frm_szóvillám::beáll() {
  deal([this] { new_puzzle(); });
}

void frm_szóvillám::new_puzzle() {
  Timer_kérdőjelmegjelenítő.Enabled = false;
  cmd_újra.Visible = false;
  Timer_villám.Enabled = false; // the flash of the old word ends with it
  feladat_törlés();
  pic_feladványkép.each([this](PictureBox& picture) {
    const int record = szóválasztás();
    show_record_picture(session(), picture, record);
    picture.Tag = to_text(record);
  });
  visszaszámlálás_ = first_count;
  Timer_visszaszámláló.Enabled = true;
  helyes_hely_ = random_below(platform(), pic_feladványkép.count());
}

int frm_szóvillám::szóválasztás() {
  platform().seed_random();
  const bool english = settings().english();
  const std::vector<Text> ring = words_in_ring();
  const LengthRange lengths{settings().ud_betszámmin.value(), settings().ud_betszámmax.value()};
  return képek().draw(
      platform(),
      [&](int index) {
        // No word that stands in the ring already: nobody could tell which of its two pictures is meant.
        return lengths.allows(képek().word_length(index, english)) &&
               std::find(ring.begin(), ring.end(), word(index)) == ring.end();
      },
      advice);
}

std::vector<Text> frm_szóvillám::words_in_ring() const {
  std::vector<Text> words;
  pic_feladványkép.each([&](const PictureBox& picture) {
    if (picture.Tag != empty_place) words.push_back(word(number_in(picture.Tag).value()));
  });
  return words;
}

const Text& frm_szóvillám::word(int record) const {
  return képek().word(record, word_form(settings().english(), false));
}

int frm_szóvillám::record_at(int place) const { return number_in(pic_feladványkép[place].Tag).value(); }

void frm_szóvillám::count_down() {
  --visszaszámlálás_;
  if (visszaszámlálás_ > 0) {
    szöveg_illesztés(lbl_feladvány, to_text(visszaszámlálás_));
  } else if (visszaszámlálás_ == 0) {
    clear_picture(lbl_feladvány);
  } else {
    flash();
  }
}

void frm_szóvillám::flash() {
  visszaszámlálás_ = first_count;
  Timer_visszaszámláló.Enabled = false;
  szöveg_illesztés(lbl_feladvány, Text(word(record_at(helyes_hely_))));
  // The word is on the screen before its time begins, and has it whole, also where a flash is still under way.
  platform().redraw(*this);
  Timer_villám.Interval = std::max(shortest_flash, settings().flash_time());
  Timer_villám.restart();
}

void frm_szóvillám::end_flash() {
  clear_picture(lbl_feladvány);
  platform().redraw(*this);
  Timer_villám.Enabled = false;
  Timer_kérdőjelmegjelenítő.Enabled = true;
}

void frm_szóvillám::pic_feladványkép_click(int index) {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), index == helyes_hely_)) {
    Timer_visszaszámláló.Enabled = true;
    return;
  }
  eredmény_felvétele(index);
  beáll();
}

void frm_szóvillám::eredmény_felvétele(int index) {
  results_.add_drawn(record_at(index), {.körvonalas = true, .angol = settings().english()});
}

} // namespace cserko
