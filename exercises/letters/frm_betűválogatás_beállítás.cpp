#include "exercises/letters/frm_betűválogatás_beállítás.h"

#include "core/frame.h"

#include <array>

namespace cserko {

namespace {

constexpr int first_accented = 193; // code of Á: below it there are plain letters alone

constexpr std::array<TextView, 5> smoothness{u"Nagyon durva", u"Durva", u"Darabos", u"Finom", u"Mmmmm..."};

bool plain(TextView letter) { return letter.size() == 1 && cp1250_code(letter.front()) < first_accented; }

} // namespace

frm_betűválogatás_beállítás::frm_betűválogatás_beállítás(Session& session)
    : SettingsDialog(session, u"frm_betűválogatás_beállítás", {7560, 6960}, u"Cserkó Betűválogató Beállítások",
                     u"betűválogató.ini") {
  for (Label* heading : {&lbl_betűpárok, &Label1, &Label3}) heading->Centered = false;
  lst_betűpárok.MultiSelect = true;
  lst_betűpárok.AccessibleName = lbl_betűpárok.Caption;
  udszóhossz.AccessibleName = Label1.Caption;
  labszóhossz.Border = true;
  scrollbar_finomság.AccessibleName = Label3.Caption;
  scrollbar_finomság.LargeChange = 1;
  scrollbar_finomság.set_value(3);
  set_fields({&chk_animáció, &scrollbar_finomság, &opt_nyelv[0], &opt_nyelv[1], &Chk_szótagolva, &udszóhossz});
  set_factory_file(u"cserko\\betűválogató.ini");
  set_buttons(Ok);
  set_help(cmd_súgó, u"Betűválogató - a beállítások.mht");
  bind();
}

void frm_betűválogatás_beállítás::bind() {
  cancel.Cancel = true;
  cancel.Click = [this] { platform().hide(*this); };
  cmd_összes.Click = [this] { select_all(true); };
  cmd_egy_sem.Click = [this] { select_all(false); };
  cmd_megfordít.Click = [this] { invert_selection(); };
  lst_betűpárok.Click = [this] { Ok.Enabled = lst_betűpárok.selected_count() > 0; };
  opt_nyelv.Click = [this](int) { opt_nyelv_click(); };
  chk_animáció.Click = [this] { show_animation(); };
  scrollbar_finomság.Change = [this] {
    label_finomság.Caption = smoothness.at(static_cast<std::size_t>(scrollbar_finomság.value() - 1));
  };
}

void frm_betűválogatás_beállítás::Load() {
  read_pairs();
  SettingsDialog::Load();
  for (Button* button : {&Ok, &cancel}) button->Font.size = cmd_súgó.Font.size;
}

void frm_betűválogatás_beállítás::read_pairs() {
  pairs_.clear();
  const auto bytes = platform().files().read(session().alapkönyvtár + u"betűpár.kvl");
  if (!bytes) return;
  LineReader lines(*bytes);
  for (int i = 0; i < pair_count && !lines.end(); ++i) {
    const Text line = from_cp1250(lines.next());
    const auto hyphen = line.find(u'-');
    if (hyphen == Text::npos || hyphen == 0 || hyphen + 1 == line.size()) continue;
    pairs_.push_back({line.substr(0, hyphen), line.substr(hyphen + 1)});
  }
}

void frm_betűválogatás_beállítás::after_read(bool /*from_file*/) {
  opt_nyelv.repair(0);
  opt_nyelv_click();
  show_animation();
}

void frm_betűválogatás_beállítás::opt_nyelv_click() {
  lst_betűpárok.clear();
  for (const Pair& pair : pairs_) {
    if (!english() || (plain(pair.left) && plain(pair.right)))
      lst_betűpárok.Items.push_back(pair.left + u" - " + pair.right);
  }
  select_all(true);
  Chk_szótagolva.Enabled = !english();
}

void frm_betűválogatás_beállítás::select_all(bool selected) {
  lst_betűpárok.set_selection(std::vector<bool>(lst_betűpárok.Items.size(), selected));
  lst_betűpárok.Click();
}

void frm_betűválogatás_beállítás::invert_selection() {
  std::vector<bool> selection = lst_betűpárok.selection();
  selection.flip();
  lst_betűpárok.set_selection(selection);
}

void frm_betűválogatás_beállítás::show_animation() {
  for (Element* element : {static_cast<Element*>(&scrollbar_finomság), static_cast<Element*>(&label_finomság),
                           static_cast<Element*>(&Label3)})
    element->Enabled = chk_animáció.ticked();
}

void frm_betűválogatás_beállítás::accept() {
  Ok.Tag = u"ok";
  SettingsDialog::accept();
}

} // namespace cserko
