#include "exercises/sentences/frm_képhatározó.h"

#include "core/numbers.h"
#include "exercises/shared/stack.h"
#include "feedback/sounds.h"

namespace cserko {

namespace {

constexpr double gap = 60;           // twips between the definitions
constexpr double smallest_line = 14; // points; a definition that would be smaller on one line is broken into several
constexpr TextView advice =
    u"Nincs elég olyan kép, amelyikhez meghatározás tartozik.\r\nKérlek, kérj a beállításokban kevesebb meghatározást!";

} // namespace

frm_képhatározó_beáll::frm_képhatározó_beáll(Session& session)
    : SettingsDialog(session, u"frm_képhatározó_beáll", {5640, 2160}, u"Képhatározó Beállítások", u"kephat.ini") {
  Label1.Centered = false;
  Label_meghatározásokszáma.AccessibleName = Label1.Caption;
  Ud_meghatározásokszáma.Change = [this] {
    szöveg_illesztés(Label_meghatározásokszáma, to_text(Ud_meghatározásokszáma.value()));
  };
  set_fields({&Check_képnévis, &Ud_meghatározásokszáma});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"képhatározó - beállítások.mht");
}

void frm_képhatározó_beáll::apply() {
  auto& exercise = session().window<frm_képhatározó>();
  exercise.nagytakarítás();
  exercise.beáll();
}

frm_képhatározó::frm_képhatározó(Session& session)
    : ExerciseWindow(session, u"frm_képhatározó", {8115, 4530}, u"Cserkó Képhatározó"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::Wrapped) {
  kép.TabStop = false;
  kép.Border = true;
  lbl_meghatározás[0].Border = true;
  pic_eredmény.design_places({{120, 240}, {1440, 240}, {2760, 240}, {4080, 240}, {5400, 240}, {6720, 240}});
  lbl_eredmény.design_places({{120, 1440}, {1440, 1440}, {2760, 1440}, {4080, 1440}, {5400, 1440}, {6720, 1440}});
  results_.Full = [this] { nagytakarítás(); };
  lbl_meghatározás.Click = [this](int index) { lbl_meghatározás_click(index); };
  mnu_fájl_újjáték.Click = [this] {
    nagytakarítás();
    beáll();
  };
  set_settings_entry<frm_képhatározó_beáll>(mnu_fájl_beáll, DialogAtClose::Stays);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"képhatározó - a feladat.mht");
}

void frm_képhatározó::Load() {
  fill_screen({&lbl_feladat});
  nagytakarítás();
  deal_first([this] { beáll(); });
}

void frm_képhatározó::nagytakarítás() {
  results_.clear();
  const int count = settings().Ud_meghatározásokszáma.value();
  if (lbl_meghatározás.count() == count) return;
  stack(lbl_meghatározás, count, kép.Height, gap);
}

void frm_képhatározó::feladat_törlés() {
  lbl_meghatározás.each([](PictureBox& definition) {
    clear_picture(definition);
    definition.Tag.clear();
  });
  clear_picture(kép);
}

int frm_képhatározó::szóválasztás() {
  platform().seed_random();
  return képek().draw(
      platform(),
      [this](int index) {
        const Text& definition = képek()[index].meghatározás;
        return index != aktuális_kép_ && !definition.empty() && !shown(definition);
      },
      advice);
}

bool frm_képhatározó::shown(const Text& definition) const {
  bool found = false;
  lbl_meghatározás.each([&](const PictureBox& box) { found = found || box.Tag == definition; });
  return found;
}

void frm_képhatározó::beáll() {
  deal([this] { new_puzzle(); });
}

void frm_képhatározó::new_puzzle() {
  feladat_törlés();
  aktuális_kép_ = szóválasztás();
  if (settings().Check_képnévis.ticked()) {
    kép_rajzolás(session(), kép, aktuális_kép_, {.körvonalas = true});
  } else {
    show_record_picture(session(), kép, aktuális_kép_);
    kép.Tag = to_text(aktuális_kép_);
  }
  const int count = lbl_meghatározás.count();
  const auto show = [&](int place, int record) {
    fit_printed(lbl_meghatározás[place], képek()[record].meghatározás, smallest_line);
  };
  show(random_below(platform(), count), aktuális_kép_);
  for (int filled = 1; filled < count; ++filled) {
    const int free_place = draw_below(
        platform(), count, [this](int place) { return lbl_meghatározás[place].Tag.empty(); }, advice);
    show(free_place, szóválasztás());
  }
}

void frm_képhatározó::lbl_meghatározás_click(int index) {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), lbl_meghatározás[index].Tag == képek()[aktuális_kép_].meghatározás)) return;
  eredmény_felvétele(index);
  beáll();
}

void frm_képhatározó::eredmény_felvétele(int index) {
  const Text definition = lbl_meghatározás[index].Tag;
  if (settings().Check_képnévis.ticked()) {
    results_.add_drawn(aktuális_kép_, {.körvonalas = true}, definition);
  } else {
    results_.add(aktuális_kép_, definition);
  }
}

} // namespace cserko
