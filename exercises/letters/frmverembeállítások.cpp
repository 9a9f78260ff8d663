#include "exercises/letters/frmverembeállítások.h"

#include "core/kszöveg.h"
#include "exercises/letters/frmverem.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr double space_below = 500; // twips, with the title bar

} // namespace

double give_one_font(Window& window, const Element& model) {
  double bottom = 0;
  for (Element* element : window.elements()) {
    element->Font.name = model.Font.name;
    element->Font.size = model.Font.size;
    bottom = std::max(bottom, element->Top + element->Height);
  }
  return bottom;
}

frmverembeállítások::frmverembeállítások(Session& session)
    : SettingsDialog(session, u"frmverembeállítások", {7560, 5640}, u"Cserkó Tekergő Beállítások", u"verem.ini") {
  udszóhossz.TextLimits = {4, 10};
  udképekszámakezdéskor.TextLimits = {5, 16};
  // Wider than the range of the level itself, which is intended.
  udfokozat.TextLimits = {1, 10};
  bind_boxes();
  optnyelv.Click = [this](int index) { framenyelv.Tag = to_text(index); };
  framenyelv.Tag = to_text(kszöveg::magyar);
  chbxképnevek.Click = [this] { show_names(); };
  set_fields({&udszóhossz, &udképekszámakezdéskor, &udfokozat, &udváridmegfejt,
              StoredNumber{[this] { return stored_language(); }, [this](int number) { take_language(number); }},
              &chbxképnevek, &chb_betűkiemelés});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Tekergő  - Beállítások.mht");
}

void frmverembeállítások::bind_boxes() {
  for (const auto& [heading, box] : {std::pair{&labelszóhossz, &txtszóhossz},
                                     {&labelképekszámakezdéskor, &txtképekszámakezdéskor},
                                     {&labelfokozat, &txtfokozat},
                                     {&labelváridmegfejt, &txtváridmegfejt}}) {
    heading->Centered = false;
    box->AccessibleName = heading->Caption;
  }
  txtfokozatmásodpercben.Centered = false;
  for (TextBox* box : {&txtszóhossz, &txtképekszámakezdéskor, &txtfokozat})
    box->GotFocus = [box] { box->select_all(); };
  txtfokozat.Change = [this] {
    const int level = leading_number(txtfokozat.text());
    if (level > 0)
      txtfokozatmásodpercben.Caption = u" " + to_text(level * 10 + 15) + u" másodpercenként kap új elemet.";
  };
  txtváridmegfejt.Change = [this] {
    if (focus() != nullptr && focus()->kind() == ElementKind::TextBox) static_cast<TextBox*>(focus())->select_all();
  };
}

void frmverembeállítások::Load() {
  optnyelv.choose(kszöveg::magyar);
  Height = give_one_font(*this, labelszóhossz) + space_below;
  SettingsDialog::Load();
  txtfokozat.Change();
}

void frmverembeállítások::Activate() {
  noted_.emplace(std::vector<SettingsField>{&udszóhossz, &udképekszámakezdéskor, &udfokozat, &optnyelv[kszöveg::magyar],
                                            &optnyelv[kszöveg::angol]});
  ablak_középre(session(), *this);
}

int frmverembeállítások::language() const { return leading_number(framenyelv.Tag); }

int frmverembeállítások::stored_language() const {
  return session().loaded<frmverem>() ? session().window<frmverem>().nyelv() : language();
}

// The line has no lasting effect, which is intended: the next game takes the language that is chosen here.
void frmverembeállítások::take_language(int language) {
  if (session().loaded<frmverem>()) session().window<frmverem>().nyelv(language);
}

void frmverembeállítások::show_names() {
  if (session().loaded<frmverem>()) session().window<frmverem>().show_names();
}

// The file is written when the game closes, not here.
void frmverembeállítások::accept() {
  // The box that is left limits its number.
  set_focus(&txtszóhossz);
  platform().hide(*this);
  session().window<frmverem>().újjáték_Click();
}

// The pause and the check boxes are not taken back, which is intended.
void frmverembeállítások::cancel() {
  if (noted_) noted_->take_back();
  platform().hide(*this);
}

} // namespace cserko
