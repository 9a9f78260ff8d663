#include "exercises/letters/frm_betűnézegető.h"
#include "feedback/message_panels.h"
#include "tests/players/betűnézegető_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using ViewerVisit = Visit<frm_betűnézegető, BetűnézegetőPlayer>;

void type(const ViewerVisit& visit, char16_t character, const std::string& state) {
  // The character alone tells the letter; the key is any.
  visit.act([character](frm_betűnézegető& window) { input::key_down(window, {.code = 'A', .character = character}); });
  visit.look(state);
}

void settings(const ViewerVisit& visit, const std::string& state,
              const std::function<void(frm_betűnézegető_beáll&)>& deed) {
  visit.act([](frm_betűnézegető& window) { input::click(window.mneu_fájl_beállítások); });
  visit.guide().act(u"frm_betűnézegető_beáll",
                    [deed](Window& window) { deed(static_cast<frm_betűnézegető_beáll&>(window)); });
  visit.guide().picture(u"frm_betűnézegető_beáll", "letter-viewer-settings" + state);
  visit.guide().act(u"frm_betűnézegető_beáll",
                    [](Window& window) { input::click(static_cast<frm_betűnézegető_beáll&>(window).cmd_ok); });
}

void tiles(const ViewerVisit& visit, const std::string& state) {
  visit.act([](frm_betűnézegető& window) { input::click(window.mnu_letter_tiles); });
  visit.look(state);
  visit.act([](frm_betűnézegető& window) { input::click(window.mnu_letter_tiles); });
}

// A tile is chosen by the keys alone.
void tile_by_keyboard(const ViewerVisit& visit) {
  visit.act([](frm_betűnézegető& window) {
    input::click(window.mnu_letter_tiles);
    press_key(Qt::Key_Tab);
    input::focus(window.letter_tile[13]);
  });
  visit.look("-tile-focus");
  visit.act([](frm_betűnézegető&) { press_key(Qt::Key_Space); });
  visit.look("-tile-chosen");
  visit.act([](frm_betűnézegető& window) {
    touch_mouse();
    input::click(window.mnu_letter_tiles);
  });
}

// The small pictures: asked about, chosen wrong, chosen right.
void reading_check(const ViewerVisit& visit) {
  settings(visit, "-check", [](frm_betűnézegető_beáll& dialog) { dialog.chk_képválasztás.set_value(1); });
  visit.look("-choice");
  tiles(visit, "-choice-with-tiles");
  visit.act([](frm_betűnézegető& window) {
    PictureBox& choice = window.választáskép[2];
    input::mouse_down(choice, {MouseButton::Right, shift::none, choice.Width / 2, choice.Height / 2});
  });
  visit.guide().picture(u"üzenet", "letter-viewer-hint");
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
  visit.err();
  visit.solve_until([visit] { return visit.exercise().kép.Visible; });
  visit.look("-found");
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const ViewerVisit visit(guide, session, platform, u"frm_betűnézegető", "letter-viewer");
  // A word stands right under its picture, which the design lets overlap the row by one pixel.
  guide.intended.push_back({u"frm_betűnézegető", u"Label_betű", u"kép"});
  guide.intended.push_back({u"frm_betűnézegető", u"kép", u"választáskép"});
  // The design lays the small pictures against the task line.
  guide.intended.push_back({u"frm_betűnézegető", u"választáskép", u"lbl_feladat"});
  guide.for_help("letter-viewer-digraph", "letter_viewer", 562);
  visit.open();
  visit.look_at_focus();
  type(visit, u'7', "-digraph");
  type(visit, u'3', "-longest-digraph");
  type(visit, u'q', "-no-word");
  type(visit, u'm', "-m");
  tiles(visit, "-tiles");
  tile_by_keyboard(visit);
  settings(visit, "", [](frm_betűnézegető_beáll&) {});
  settings(visit, "-changed", [](frm_betűnézegető_beáll& dialog) {
    dialog.udbetszám.set_value(dialog.udbetszám.Max);
    dialog.chk_betűk_szétválasztása.set_value(1);
  });
  visit.act([visit](frm_betűnézegető& window) {
    // The longest word that begins with k.
    const Records& records = visit.session().képek;
    int entries = 0;
    int longest = -1;
    int place = 0;
    for (int i = 0; i <= records.képszám; ++i) {
      if (!records.vanebenne(i, u"k")) continue;
      if (longest < 0 || records[i].szótagolt.size() > records[longest].szótagolt.size()) {
        longest = i;
        place = entries;
      }
      ++entries;
    }
    visit.platform().chance = {(place + 0.5) / entries};
    input::key_down(window, {.code = 'K', .character = u'k'});
  });
  visit.look("-longest-word");
  reading_check(visit);
  settings(visit, "-english", [](frm_betűnézegető_beáll& dialog) { input::choose(dialog.opt_nyelv[1]); });
  type(visit, u't', "-english");
  tiles(visit, "-english-tiles");
  visit.act([](frm_betűnézegető& window) { input::click(window.mnu_fájl_kilép); });
}

const Stops stops{u"frm_betűnézegető", lay_out};

} // namespace

} // namespace cserko::tour
