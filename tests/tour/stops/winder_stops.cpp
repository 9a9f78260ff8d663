#include "exercises/letters/frmverem.h"
#include "exercises/letters/frmveremigennem.h"
#include "exercises/letters/frmveremsúgó.h"
#include "feedback/message_panels.h"
#include "tests/players/verem_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using WinderVisit = Visit<frmverem, VeremPlayer>;

int pictures_shown(frmverem& game) {
  int shown = 0;
  game.kép.each([&](const PictureBox& slot) { shown += slot.Visible ? 1 : 0; });
  return shown;
}

int letters_shown(frmverem& game) {
  int shown = 0;
  game.betű.each([&](const Label& letter) { shown += letter.Visible ? 1 : 0; });
  return shown;
}

// Names of the pictures, marked letters, and all the pictures that a game may begin with.
void choose_helps(const WinderVisit& visit) {
  visit.act([](frmverem& game) { input::click(game.mnubeállításokdlg); });
  visit.guide().act(u"frmverembeállítások", [](Window& window) {
    auto& dialog = static_cast<frmverembeállítások&>(window);
    dialog.chbxképnevek.set_value(1);
    dialog.chb_betűkiemelés.set_value(1);
    dialog.udképekszámakezdéskor.set_value(dialog.udképekszámakezdéskor.Max);
  });
  visit.guide().picture(u"frmverembeállítások", "winder-settings-changed");
  visit.guide().act(u"frmverembeállítások",
                    [](Window& window) { input::click(static_cast<frmverembeállítások&>(window).OKButton); });
  visit.look("-names");
  visit.act([](frmverem& game) { input::mouse_move(game.kép[0], {}); });
  visit.look("-marked-letters");
}

void look_at_moves(const WinderVisit& visit) {
  visit.act([](frmverem&) { press_key(Qt::Key_End); });
  visit.look("-cursor-at-the-end");
  visit.act([](frmverem&) { press_key(Qt::Key_Down); });
  visit.look("-column-pushed");
  visit.act([](frmverem&) { press_key(Qt::Key_X); });
  visit.look("-row-turned");
}

void look_at_hint(const WinderVisit& visit) {
  visit.act([](frmverem& game) {
    for (int slot = 0; slot < game.kép.count(); ++slot) {
      if (game.kép[slot].Visible) return input::click(game.kép[slot]);
    }
  });
  visit.guide().picture(u"üzenet", "winder-hint");
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
}

// More and more pictures, until there is no place for another.
void lose(const WinderVisit& visit) {
  visit.act([](frmverem& game) {
    while (pictures_shown(game) < game.kép.count()) game.Timer1.Tick();
  });
  visit.look("-full-board");
  visit.act([](frmverem& game) { game.Timer1.Tick(); });
  visit.guide().picture(u"frmveremigennem", "winder-question");
  visit.guide().act(u"frmveremigennem",
                    [](Window& window) { input::click(static_cast<frmveremigennem&>(window).Command1); });
  visit.look("-new-game");
}

// A game of few short words, the first of them shown for a second, until too few letters are left.
void win(const WinderVisit& visit) {
  visit.act([](frmverem& game) { input::click(game.mnubeállításokdlg); });
  visit.guide().act(u"frmverembeállítások", [](Window& window) {
    auto& dialog = static_cast<frmverembeállítások&>(window);
    dialog.udszóhossz.set_value(dialog.udszóhossz.Min);
    dialog.udképekszámakezdéskor.set_value(dialog.udképekszámakezdéskor.Min);
    dialog.udváridmegfejt.set_value(1);
    input::click(dialog.OKButton);
  });
  visit.act([](frmverem& game) { input::click(game.újjáték); });
  visit.look("-short-words");
  // A solved word stands alone only while the window lets no event happen: it is looked at as it is drawn.
  const auto seen = std::make_shared<bool>(false);
  visit.act([visit, seen](frmverem&) {
    visit.platform().redrawn = [visit, seen](Window& window) {
      if (*seen || window.Name != u"frmverem" || letters_shown(static_cast<frmverem&>(window)) > frmverem::columns)
        return;
      *seen = true;
      visit.guide().look_at(window, "winder-solved");
    };
  });
  visit.solve_until([seen] { return *seen; });
  visit.solve_all();
  visit.act([visit](frmverem&) { visit.platform().redrawn = {}; });
}

// No entry of the menu opens the panel with the rules.
void look_at_rules(const WinderVisit& visit) {
  visit.act([visit](frmverem&) { visit.platform().show_modal(visit.session().window<frmveremsúgó>()); });
  visit.guide().picture(u"frmveremsúgó", "winder-rules");
  visit.guide().act(u"frmveremsúgó", [](Window& window) { input::click(static_cast<frmveremsúgó&>(window).OKButton); });
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const WinderVisit visit(guide, session, platform, u"frmverem", "winder");
  guide.intended.push_back({u"frmverem", u"betű", u"betű"});     // the cell of the cursor is larger than its place
  guide.intended.push_back({u"frmverem", u"képnév", u"képnév"}); // a name is a pixel wider than its picture
  guide.for_help("winder", "winder");
  guide.for_help("winder-settings", "winder_settings");
  visit.open();
  visit.act([](frmverem& game) { input::click(game.mnubeállításokdlg); });
  guide.picture(u"frmverembeállítások", "winder-settings");
  guide.act(u"frmverembeállítások",
            [](Window& window) { input::click(static_cast<frmverembeállítások&>(window).CancelButton); });
  look_at_moves(visit);
  look_at_hint(visit);
  choose_helps(visit);
  lose(visit);
  win(visit);
  look_at_rules(visit);
  visit.close();
}

const Stops stops{u"frmverem", lay_out};

} // namespace

} // namespace cserko::tour
