#include "exercises/boards/frm_képmem_beáll.h"

#include "core/frame.h"
#include "exercises/boards/frm_képmemória.h"

#include <algorithm>
#include <unordered_set>

namespace cserko {

namespace {

// A wait in seconds as the time text that the game compares.
Text as_time(int seconds) {
  const Text digits = to_text(seconds);
  return Text(TextView(u"00:00:00").substr(0, 8 - digits.size())) + digits;
}

} // namespace

frm_képmem_beáll::frm_képmem_beáll(Session& session)
    : SettingsDialog(session, u"frm_képmem_beáll", {5520, 7260}, u"Cserkó Képmemória - Beállítások", u"képmem.ini") {
  HScroll_anim_finomság.SmallChange = 5;
  HScroll_anim_finomság.LargeChange = 10;
  HScroll_anim_finomság.set_value(10);
  for (const auto& [heading, box] : {std::pair{&lbl_szópárszám, &szópárszámkijelző},
                                     {&lbl_betűméret, &txtbetűméret},
                                     {&lbl_várid, &txtvárid},
                                     {&lbl_betszám, &txtbetszám}}) {
    heading->Centered = false;
    box->Locked = true;
    box->AccessibleName = heading->Caption;
  }
  Label_animfinomság.Centered = false;
  HScroll_anim_finomság.AccessibleName = Label_animfinomság.Caption;
  udvárid.Format = as_time;
  udbetszám.Format = [](int letters) { return letters == no_limit ? Text(u"korlátlan") : to_text(letters); };
  set_fields({&szópárszám, &udbetűméret, &udvárid, &udbetszám, &optnyelv[2], &optnyelv[4], &párbeállítás[0],
              &párbeállítás[1], &segítség_engedélyezése, &segít, &chk_anim_enged, &HScroll_anim_finomság,
              &chk_képek_bemutatása, &Chk_szótagolva});
  set_factory_file(u"\\cserko\\képmem.ini");
  set_buttons(cmd_ok, cmd_mégsem);
  set_help(cmd_súgó, u"Képmemória - Beállítások.mht");
  bind();
}

void frm_képmem_beáll::bind() {
  udbetszám.Change = [this] { count_words(); };
  HScroll_anim_finomság.Change = [this] {
    Label_animfinomság_kijelző.Caption = to_text(HScroll_anim_finomság.value());
  };
  chk_anim_enged.Click = [this] {
    HScroll_anim_finomság.Enabled = chk_anim_enged.ticked();
    Label_animfinomság.Enabled = chk_anim_enged.ticked();
  };
  segítség_engedélyezése.Click = [this] { show_help_options(); };
  optnyelv.Click = [this](int) { Chk_szótagolva.Enabled = !english(); };
}

std::optional<Text> frm_képmem_beáll::file_to_read() const {
  return SettingsDialog::file_to_read() ? std::optional(factory_file()) : std::nullopt;
}

void frm_képmem_beáll::after_read(bool /*from_file*/) {
  optnyelv.repair(2);
  párbeállítás.repair(1);
}

void frm_képmem_beáll::show_help_options() {
  const bool allowed = segítség_engedélyezése.ticked();
  session().window<frm_képmemória>().labszópárok[0].Visible = allowed;
  segít.Enabled = allowed;
}

int frm_képmem_beáll::fitting_words() const {
  const Records& records = session().képek;
  const WordForm form = word_form(english(), false);
  std::unordered_set<Text> seen;
  int count = 0;
  for (int i = 0; i <= records.képszám && count < szópárszám_limit; ++i) {
    if (!seen.insert(records.word(i, form)).second) continue;
    if (records.MAGYARBETŰKSZÁMA(i, form) <= udbetszám.value()) ++count;
  }
  return count;
}

void frm_képmem_beáll::count_words() {
  const int count = fitting_words();
  if (count >= szópárszám.Min) {
    szópárszám.Max = count;
    if (szópárszám.value() > count) szópárszám.set_value(count);
    return;
  }
  platform().message_box(u"Sajnos nincs elegendő megfelelő szó!");
  // At the top there is nothing to raise; the game then says that nothing fits.
  if (udbetszám.value() < udbetszám.Max) udbetszám.set_value(udbetszám.value() + 1);
}

void frm_képmem_beáll::apply() {
  auto& game = session().window<frm_képmemória>();
  game.betűméretállítás();
  game.beáll();
}

} // namespace cserko
