#include "exercises/boards/frm_lóugrás.h"
#include "feedback/message_panels.h"
#include "tests/players/lóugrás_player.h"
#include "tests/tour/visit.h"

#include <memory>

namespace cserko::tour {

namespace {

using KnightVisit = Visit<frm_lóugrás, LóugrásPlayer>;

// Opens the settings, changes them and accepts them: a new board lies then.
void settle(const KnightVisit& visit, const std::function<void(frm_lóugrás_beáll&)>& change) {
  visit.act([](frm_lóugrás& window) { input::click(window.mnu_fájl_beállítások); });
  visit.guide().act(u"frm_lóugrás_beáll", [change](Window& window) {
    auto& dialog = static_cast<frm_lóugrás_beáll&>(window);
    change(dialog);
    input::click(dialog.OKButton);
  });
}

void settings_pictures(const KnightVisit& visit) {
  visit.act([](frm_lóugrás& window) { input::click(window.mnu_fájl_beállítások); });
  visit.guide().picture(u"frm_lóugrás_beáll", "knights-jump-settings");
  visit.guide().act(u"frm_lóugrás_beáll", [](Window& window) {
    auto& dialog = static_cast<frm_lóugrás_beáll&>(window);
    input::choose(dialog.optszabály[1]);
    input::choose(dialog.optnyelv[4]);
    input::toggle(dialog.chktöltelékbetűk);
  });
  visit.guide().picture(u"frm_lóugrás_beáll", "knights-jump-settings-changed");
  visit.guide().act(u"frm_lóugrás_beáll",
                    [](Window& window) { input::click(static_cast<frm_lóugrás_beáll&>(window).CancelButton); });
}

// Walks so many letters of the hidden path.
void walk(const KnightVisit& visit, int letters) {
  visit.act([letters](frm_lóugrás& window) {
    TourHand hand(window);
    for (int i = 1; i <= letters; ++i) hand.click(window.field(window.megoldás()[static_cast<std::size_t>(i)]));
  });
}

void hint(const KnightVisit& visit, const std::string& state) {
  visit.act([](frm_lóugrás& window) {
    input::click(window.cmd_súgó);
    // Half of it in blue.
    for (int i = 0; i < window.Line1.count() / 2; ++i) window.Timer_segítő.Tick();
    window.Timer_segítő.Enabled = false;
  });
  visit.look(state);
}

// The pictures before the game, and their words to be read when it is won.
void reading(const KnightVisit& visit) {
  const auto show = [&visit](int pictures, const std::string& state) {
    settle(visit, [pictures](frm_lóugrás_beáll& dialog) {
      dialog.udképekszáma.set_value(pictures);
      dialog.chk_képekbemutatása.set_value(1);
      dialog.befejezés_után_olvasás.set_value(1);
    });
    visit.close_message(state + "-message");
    for (int i = 0; i < pictures; ++i) visit.close_picture_message(state + "-" + std::to_string(i + 1));
  };
  show(2, "-presented-two");
  visit.look("-presented");
  show(1, "-presented-one");
  visit.act([visit](frm_lóugrás&) { visit.session().window<frm_lóugrás_beáll>().chk_képekbemutatása.set_value(0); });
  visit.solve_until([visit] { return visit.guide().at_front(text_message); });
  visit.guide().picture_behind(
      text_message, [visit]() -> Window& { return visit.exercise(); }, "knights-jump-won");
  visit.close_message("-reading-message");
  visit.close_picture_message("-reading");
  visit.guide().act(congratulation, [](Window& window) { input::click(static_cast<frm_gratuláció&>(window).cmd_ok); });
  visit.act([visit](frm_lóugrás&) { visit.session().window<frm_lóugrás_beáll>().befejezés_után_olvasás.set_value(0); });
}

void picture_panel(const KnightVisit& visit) {
  visit.act([](frm_lóugrás& window) { input::click(window.kép[0]); });
  visit.guide().picture(u"üzenet", "knights-jump-help");
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
}

// A wrong letter stands in the name, and the names are full.
void astray(const KnightVisit& visit) {
  const auto player = std::make_shared<LóugrásPlayer>(visit.session(), PlayMode::Mouse, 0, 1);
  const auto step = [player](Window& window) {
    TourHand hand(window);
    player->step(window, hand);
  };
  visit.guide().repeat(u"frm_lóugrás", step, [visit] { return visit.exercise().lépésszám() > 2; });
  visit.look("-wrong-letters");
  visit.guide().repeat(u"frm_lóugrás", step, [visit] { return visit.guide().at_front(u"szövegüzenet"); });
  visit.guide().picture_behind(
      u"szövegüzenet", [visit]() -> Window& { return visit.exercise(); }, "knights-jump-names-full");
  visit.guide().picture(u"szövegüzenet", "knights-jump-message");
  visit.guide().act(u"szövegüzenet", [](Window& window) { input::click(static_cast<szövegüzenet&>(window).Command1); });
}

// Both greens, the hint over them and the cursor in the middle, on a board of that size.
void board(const KnightVisit& visit, int rows, int columns, const std::string& state) {
  settle(visit, [rows, columns](frm_lóugrás_beáll& dialog) {
    dialog.udsorokszáma.set_value(rows);
    dialog.udoszlopokszáma.set_value(columns);
    dialog.chk_segítség_engedélyezése.set_value(1);
  });
  visit.look(state);
  walk(visit, 6);
  visit.act([](frm_lóugrás&) {
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down}) press_key(key);
  });
  visit.look(state + "-walked");
  hint(visit, state + "-hint");
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const KnightVisit visit(guide, session, platform, u"frm_lóugrás", "knights-jump");
  guide.intended.push_back({u"frm_lóugrás", u"betű", u"betű"}); // the field of the cursor is larger than its place
  for (const TextView line : {u"Line1", u"Line_szegély"}) {
    for (const TextView below : {u"betű", u"Line1", u"Line_szegély"})
      guide.intended.push_back({u"frm_lóugrás", line, below});
    guide.intended.push_back(
        {u"frm_lóugrás", u"betű", line}); // lines are painted above the fields, whichever was first
  }
  guide.for_help("knights-jump-large-walked", "knights_jump");
  guide.for_help("knights-jump-settings", "knights_jump_settings");
  visit.open();
  visit.look_at_focus();
  settings_pictures(visit);
  board(visit, 6, 6, "-small");
  picture_panel(visit);
  board(visit, 8, 12, "-large");
  settle(visit, [](frm_lóugrás_beáll& dialog) {
    dialog.chktöltelékbetűk.set_value(0);
    dialog.optszabály.choose(1);
  });
  visit.look("-walls");
  settle(visit, [](frm_lóugrás_beáll& dialog) {
    dialog.udszóbetmaxszám.set_value(4);
    dialog.udképekszáma.set_value(1);
    dialog.udsorokszáma.set_value(6);
    dialog.udoszlopokszáma.set_value(6);
    dialog.chktöltelékbetűk.set_value(1);
    dialog.optszabály.choose(0);
  });
  visit.look("-one-picture");
  reading(visit);
  astray(visit);
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_lóugrás", lay_out};

} // namespace

} // namespace cserko::tour
