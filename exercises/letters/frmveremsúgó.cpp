#include "exercises/letters/frmveremsúgó.h"

#include "core/frame.h"

#include <array>

namespace cserko {

namespace {

constexpr TextView indent = u"     ";

constexpr std::array<TextView, 6> texts{
    u"Rakd ki a jobb oldalon látható képek nevét a középső sorba. A betűoszlopokat, sorokat tekerve cserélgetheted a "
    u"betűket. A helyesen kirakott szó, és a hozzá tartozó kép eltűnik. Nehezítés, hogy rendszeres, de általad "
    u"megszabott időközönként a gép új képet ad feladatul. Légy te a gyorsabb!",
    u"A kiemelten látható aktuális poziciót a jobbra, vagy balra nyilakkal, illetve a Home és az End gombokkal lehet "
    u"mozgatni. Az aktuális pozicióhoz tartozó oszlopot a fel, és le nyilakkal lehet mozgatni, de csak mig az oszlop "
    u"alsó, vagy felső széle nem ütközik a verem határaiba. A középső sort jobbra tekerheted a X vagy a Szóköz "
    u"gombokkal, balra a Y gombbal, vagy a CTRL nyomva tartása mellett a jobbra és balra nyilakkal.",
    u"Akkor győzhetsz, ha gyorsabb vagy mint a gép, és kiüríted a pályát. Ha már csak 15 betű van fent, győztél!",
    u"Vesztesz, ha a gép már nem tud újabb képet elhelyezni a játéktéren. Egyszerre legfeljebb 18 kép lehet fent.",
    u"A program számos beállítási lehetőséggel rendelkezik. Beállíthatod, hogy legfeljebb hány betűből álló szavakat "
    u"helyezzen el a gép a feladványban. Megszabhatod, hogy milyen nyelven szeretnéd kapni a feladványokat, "
    u"meghatározhatod, milyen gyakran adjon új képet a gép, és hány képpel induljon az új játék. Szintén Te döntöd el, "
    u"kérsz-e segítséget a játék alatt.",
    u"A gép pirossal kiemeli az egérmutató alatti kép nevében szereplő betűket, ha az erre vonatkozó kapcsolót a "
    u"beállítások között kijelölöd."};
constexpr std::size_t options = 4;
constexpr TextView way_to_options = u"A beállítások a Fájl menü Beállítások pontjából érhetőek el.";

} // namespace

frmveremsúgó::frmveremsúgó(Session& session)
    : Window(session.platform(), u"frmveremsúgó", {12960, 7860}, u"Cserkó Tekergő Súgó"), session_(session) {
  for (Frame* frame : {&Frame1, &Frame2, &Frame3, &Frame4, &Frame5, &Frame6}) {
    const auto index = lab_.size();
    lab_.push_back(std::make_unique<Label>(*frame, u"lab", Rect{120, 360, frame->Width - 240, frame->Height - 480},
                                           texts.at(index)));
    lab_.back()->Index = static_cast<int>(index);
    lab_.back()->Centered = false;
  }
  OKButton.Default = true;
  OKButton.Cancel = true;
  OKButton.Click = [this] { session_.unload(*this); };
}

void frmveremsúgó::Load() {
  lab(options).Caption += u"\r" + Text(indent) + Text(way_to_options);
  for (const auto& label : lab_) label->Caption = Text(indent) + label->Caption;
  ablak_középre(session_, *this);
  gombok_illesztése(*this);
}

} // namespace cserko
