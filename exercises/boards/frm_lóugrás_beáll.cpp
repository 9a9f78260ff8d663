#include "exercises/boards/frm_lóugrás_beáll.h"

#include "exercises/boards/frm_lóugrás.h"

#include <utility>

namespace cserko {

frm_lóugrás_beáll::frm_lóugrás_beáll(Session& session)
    : SettingsDialog(session, u"frm_lóugrás_beáll", {7920, 8040}, u"Cserkó - Lóugrás - Beállítások", u"lóugrás.ini") {
  for (const auto& [heading, box] : {std::pair{&lbl_sorokszáma, &txtsorokszáma},
                                     {&lbl_oszlopokszáma, &txtoszlopokszáma},
                                     {&lbl_szóbetmaxszám, &txtszóbetmaxszám},
                                     {&lbl_képekszáma, &txtképekszáma},
                                     {&lbl_töltelékkarakter, &txt_töltelékkarakter}}) {
    heading->Centered = false;
    box->AccessibleName = without_mnemonic(heading->Caption);
  }
  txt_töltelékkarakter.Change = [this] { keep_one_character(); };
  txt_töltelékkarakter.GotFocus = [this] { txt_töltelékkarakter.select_all(); };
  chk_segítség_engedélyezése.Click = [this] { allow_hint(); };
  optnyelv.Click = [this](int index) { take_language(index); };
  set_fields({&udsorokszáma, &udoszlopokszáma, &udszóbetmaxszám, &udképekszáma,
              StoredNumber{[this] { return language(); }, [this](int number) { language_read_ = number; }},
              &befejezés_után_olvasás, &chktöltelékbetűk, &txt_töltelékkarakter, &chk_képekbemutatása,
              &chk_segítség_engedélyezése, &optszabály[0], &optszabály[1], &optnyelv[kszöveg::magyar],
              &optnyelv[kszöveg::angol]});
  set_factory_file(u"\\cserko\\lóugrás.ini");
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Lóugrás  - Beállítások.mht");
}

void frm_lóugrás_beáll::keep_one_character() {
  txt_töltelékkarakter.set_text((txt_töltelékkarakter.text() + u".").substr(0, 1));
  txt_töltelékkarakter.select_all();
}

int frm_lóugrás_beáll::language() const {
  if (session().loaded<frm_lóugrás>()) return session().window<frm_lóugrás>().nyelv();
  return optnyelv[kszöveg::angol].value() ? kszöveg::angol : kszöveg::magyar;
}

void frm_lóugrás_beáll::take_language(int language) {
  if (session().loaded<frm_lóugrás>()) session().window<frm_lóugrás>().nyelv(language);
}

void frm_lóugrás_beáll::allow_hint() {
  if (!session().loaded<frm_lóugrás>()) return;
  session().window<frm_lóugrás>().cmd_súgó.Enabled = chk_segítség_engedélyezése.ticked();
}

void frm_lóugrás_beáll::after_read(bool from_file) {
  const int read = std::exchange(language_read_, std::nullopt).value_or(language());
  const int wanted = from_file && (read == kszöveg::magyar || read == kszöveg::angol) ? read
                     : from_file                                                      ? language()
                                                                                      : kszöveg::magyar;
  optnyelv.choose(wanted);
  take_language(wanted);
  optszabály.repair(0);
  allow_hint();
}

void frm_lóugrás_beáll::apply() {
  auto& game = session().window<frm_lóugrás>();
  game.iránybeolvasás();
  game.beáll();
}

} // namespace cserko
