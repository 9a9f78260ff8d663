#include "feedback/message_panels.h"
#include "tests/players/szólánc_player.h"
#include "tests/tour/visit.h"

#include <stdexcept>

namespace cserko::tour {

namespace {

/// Knows the solution without opening it: the stops look at one window at a time.
class KnowingPlayer : public SzóláncPlayer {
 public:
  KnowingPlayer(Session& session, Mode mode, int mistakes = 0)
      : SzóláncPlayer(session, mode, mistakes), session_(session) {}

 protected:
  bool play(Window& window, Hand& hand) override {
    see(session_.window<frm_szólánc_segítő>());
    return SzóláncPlayer::play(window, hand);
  }

 private:
  Session& session_;
};

using ChainVisit = Visit<frm_szólánc, KnowingPlayer>;

// The first picture of the pool that is to be seen and whose record passes.
template<class Passes> PictureBox& pool_picture(frm_szólánc& window, Passes passes) {
  PictureBox* found = nullptr;
  window.kép.each([&](PictureBox& picture) {
    if (found == nullptr && picture.shown() && passes(std::stoi(to_utf8(picture.Tag)))) found = &picture;
  });
  if (found == nullptr) throw std::runtime_error("the pool has no such picture");
  return *found;
}

PictureBox& any_picture(frm_szólánc& window) {
  return pool_picture(window, [](int) { return true; });
}

void press(Element& element, MouseButton button) {
  input::mouse_down(element, {button, shift::none, element.Width / 2, element.Height / 2});
}

// A picture on its way, in the middle of the window, as the pointer holds it.
void look_at_drag(const ChainVisit& visit) {
  const auto to_middle = [](frm_szólánc& window, const PictureBox& picture) {
    const Point corner = picture.position_in_window();
    return MouseEvent{MouseButton::Left, shift::none, window.inner_width() / 2 - corner.x,
                      window.inner_height() / 2 - corner.y};
  };
  visit.act([to_middle](frm_szólánc& window) {
    PictureBox& picture = any_picture(window);
    press(picture, MouseButton::Left);
    input::mouse_move(picture, to_middle(window, picture));
  });
  visit.look("-drag");
  visit.act([to_middle](frm_szólánc& window) {
    PictureBox& picture = any_picture(window);
    input::mouse_up(picture, to_middle(window, picture));
  });
}

void look_at_choice(const ChainVisit& visit) {
  visit.act([](frm_szólánc& window) { input::click(any_picture(window)); });
  visit.look("-chosen");
  visit.act([](frm_szólánc& window) { input::click(any_picture(window)); });
}

void look_at_help(const ChainVisit& visit) {
  visit.act([](frm_szólánc& window) { press(any_picture(window), MouseButton::Right); });
  visit.guide().picture(u"üzenet", "word-chain-help");
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
}

void look_at_solution(const ChainVisit& visit) {
  visit.act([](frm_szólánc& window) { input::click(window.cmd_kérdőjel); });
  visit.guide().picture(u"frm_szólánc_segítő", "word-chain-solution");
  visit.guide().act(u"frm_szólánc_segítő",
                    [](Window& window) { input::click(static_cast<frm_szólánc_segítő&>(window).cmd_ok); });
}

void with_settings(const ChainVisit& visit, const std::function<void(frm_szólánc_beállítások&)>& change) {
  visit.act([](frm_szólánc& window) { input::click(window.mnu_fájl_beállítások); });
  visit.guide().act(u"frm_szólánc_beállítások", [change](Window& window) {
    auto& dialog = static_cast<frm_szólánc_beállítások&>(window);
    change(dialog);
    input::click(dialog.OKButton);
  });
}

// Each type with another number of pictures, the names with syllables or on plates.
void look_at_settings(const ChainVisit& visit) {
  visit.act([](frm_szólánc& window) { input::click(window.mnu_fájl_beállítások); });
  visit.guide().picture(u"frm_szólánc_beállítások", "word-chain-settings");
  visit.guide().act(u"frm_szólánc_beállítások", [](Window& window) {
    auto& dialog = static_cast<frm_szólánc_beállítások&>(window);
    input::click(dialog.opt_típus[2]);
    input::step(dialog.ud_képekszáma, -1);
  });
  visit.guide().picture(u"frm_szólánc_beállítások", "word-chain-settings-letter");
  visit.guide().act(u"frm_szólánc_beállítások",
                    [](Window& window) { input::click(static_cast<frm_szólánc_beállítások&>(window).CancelButton); });
  with_settings(visit, [](frm_szólánc_beállítások& dialog) {
    dialog.chk_szavak_megjelenítése_szótagolva.set_value(1);
    dialog.ud_képekszáma.set_value(21);
  });
  visit.look("-syllables");
  with_settings(visit, [](frm_szólánc_beállítások& dialog) {
    dialog.opt_típus.choose(1);
    dialog.Check_pontosbetűháttér.set_value(0);
    dialog.ud_képekszáma.set_value(14);
  });
  visit.look("-two-letters");
  with_settings(visit, [](frm_szólánc_beállítások& dialog) {
    dialog.opt_típus.choose(2);
    dialog.udbetszám.set_value(17);
    dialog.ud_képekszáma.set_value(28);
    dialog.chk_kezdőszó_felfedése.set_value(0);
    dialog.chk_segítség_engedélyezése.set_value(0);
  });
  visit.look("-one-letter");
  with_settings(visit, [](frm_szólánc_beállítások& dialog) {
    dialog.ud_képekszáma.set_value(7);
    dialog.chk_kezdőszó_felfedése.set_value(1);
    dialog.chk_segítség_engedélyezése.set_value(1);
  });
  visit.look("-few-pictures");
}

// Nothing in the pack links words of four letters by whole syllables.
void look_at_no_chain(const ChainVisit& visit) {
  with_settings(visit, [](frm_szólánc_beállítások& dialog) {
    dialog.opt_típus.choose(0);
    dialog.udbetszám.set_value(4);
  });
  visit.guide().picture(u"szövegüzenet", "word-chain-no-chain-message");
  visit.guide().act(u"szövegüzenet", [](Window& window) { input::click(static_cast<szövegüzenet&>(window).Command1); });
  visit.look("-no-chain");
  with_settings(visit, [](frm_szólánc_beállítások& dialog) {
    dialog.udbetszám.set_value(12);
    dialog.ud_képekszáma.set_value(28);
  });
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const ChainVisit visit(guide, session, platform, u"frm_szólánc", "word-chain");
  // What is dragged lies over everything.
  for (const TextView under : {u"frm_rejtvény", u"frm_szólánc"})
    guide.intended.push_back({u"frm_szólánc", u"dragged", under});
  guide.for_help("word-chain", "word_chain");
  guide.for_help("word-chain-settings", "word_chain_settings");
  visit.open();
  visit.look_at_focus();
  look_at_drag(visit);
  look_at_choice(visit);
  look_at_help(visit);
  look_at_solution(visit);
  look_at_settings(visit);
  look_at_no_chain(visit);
  visit.err();
  const auto half_full = [visit] { return visit.exercise().pic_eredménykép[3].Tag != frm_szólánc::empty; };
  visit.solve_until(half_full);
  visit.look("-half");
  visit.act([](frm_szólánc& window) { input::click(window.cmd_elcsúsztat[0]); });
  visit.look("-moved");
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_szólánc", lay_out};

} // namespace

} // namespace cserko::tour
