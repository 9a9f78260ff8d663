#include "exercises/letters/frmveremigennem.h"

#include "core/frame.h"
#include "exercises/letters/frmverembeállítások.h"

namespace cserko {

namespace {

constexpr double space_below = 500; // twips, with the title bar

} // namespace

frmveremigennem::frmveremigennem(Session& session)
    : Window(session.platform(), u"frmveremigennem", {7560, 5520}, u"Cserkó"), session_(session) {
  Command1.Default = true;
  Command1.Click = [this] { answer(u"True"); };
  Command2.Cancel = true;
  Command2.Click = [this] { answer(u"False"); };
}

void frmveremigennem::Load() {
  // The controls are those of the settings, not its own, which is intended.
  Height = give_one_font(session_.window<frmverembeállítások>(), Label1) + space_below;
  ablak_középre(session_, *this);
  gombok_illesztése(*this);
}

bool frmveremigennem::ask(TextView question) {
  Tag.clear();
  fit_wrapped(Label1, question);
  platform().show_modal(*this);
  return Tag == u"True";
}

void frmveremigennem::answer(TextView tag) {
  Tag = tag;
  platform().hide(*this);
}

} // namespace cserko
