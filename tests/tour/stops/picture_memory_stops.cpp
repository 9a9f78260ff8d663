#include "exercises/boards/frm_képmemória.h"
#include "feedback/message_panels.h"
#include "tests/players/képmemória_player.h"
#include "tests/tour/visit.h"

#include <stdexcept>

namespace cserko::tour {

namespace {

using MemoryVisit = Visit<frm_képmemória, KépmemóriaPlayer>;

bool lies_open(const frm_képmemória& window, const PictureBox& card) {
  return card.shown() && card.BackColor == white && card.Width >= window.nemkép.Width;
}

int open_cards(const frm_képmemória& window) {
  int open = 0;
  window.kép.each([&](const PictureBox& card) { open += lies_open(window, card) ? 1 : 0; });
  return open;
}

int cards_left(const frm_képmemória& window) {
  int left = 0;
  window.kép.each([&](const PictureBox& card) { left += card.shown() ? 1 : 0; });
  return left;
}

// The first closed card that passes.
template<class Passes> PictureBox& closed_card(frm_képmemória& window, Passes passes) {
  PictureBox* found = nullptr;
  window.kép.each([&](PictureBox& card) {
    if (found == nullptr && card.shown() && !window.felfordítva(card.Index) && passes(card)) found = &card;
  });
  if (found == nullptr) throw std::runtime_error("the board has no such card");
  return *found;
}

// Two cards lie open together only while the window lets no event happen: they are looked at as they are drawn.
void watch_two_cards(const MemoryVisit& visit, const std::string& name) {
  visit.act([visit, name](frm_képmemória&) {
    visit.platform().redrawn = [visit, name, taken = false](Window& window) mutable {
      if (taken || window.Name != u"frm_képmemória") return;
      if (open_cards(static_cast<frm_képmemória&>(window)) < 2) return;
      taken = true;
      visit.guide().look_at(window, name);
    };
  });
}

void turn(frm_képmemória& window, PictureBox& card) {
  TourHand hand(window);
  hand.click(card);
}

void help_panel(const MemoryVisit& visit) {
  visit.act([](frm_képmemória& window) {
    PictureBox& card = closed_card(window, [](const PictureBox&) { return true; });
    input::mouse_down(card, {MouseButton::Right, shift::none, card.Width / 2, card.Height / 2});
  });
  visit.guide().picture(u"üzenet", "picture-memory-help");
  visit.guide().act(u"üzenet", [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
}

void memory_settings(const MemoryVisit& visit) {
  visit.act([](frm_képmemória& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().picture(u"frm_képmem_beáll", "picture-memory-settings");
  visit.guide().act(u"frm_képmem_beáll", [](Window& window) {
    auto& dialog = static_cast<frm_képmem_beáll&>(window);
    dialog.szópárszám.set_value(dialog.szópárszám.Min);
    dialog.Chk_szótagolva.set_value(1);
    input::toggle(dialog.chk_anim_enged);
  });
  visit.guide().picture(u"frm_képmem_beáll", "picture-memory-settings-changed");
  visit.guide().act(u"frm_képmem_beáll",
                    [](Window& window) { input::click(static_cast<frm_képmem_beáll&>(window).cmd_ok); });
}

// Each picture before the game, then two pictures for a pair.
void presentation(const MemoryVisit& visit) {
  visit.act([](frm_képmemória& window) { input::click(window.mnu_fájl_beáll); });
  visit.guide().act(u"frm_képmem_beáll", [](Window& window) {
    auto& dialog = static_cast<frm_képmem_beáll&>(window);
    dialog.chk_képek_bemutatása.set_value(1);
    input::choose(dialog.párbeállítás[0]);
  });
  visit.guide().picture(u"frm_képmem_beáll", "picture-memory-settings-pictures");
  visit.guide().act(u"frm_képmem_beáll",
                    [](Window& window) { input::click(static_cast<frm_képmem_beáll&>(window).cmd_ok); });
  visit.guide().picture_behind(
      picture_message, [visit]() -> Window& { return visit.exercise(); }, "picture-memory-presentation-board");
  visit.close_picture_message("-presentation");
  visit.guide().repeat(
      picture_message, [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); },
      [visit] { return visit.guide().at_front(u"frm_képmemória"); });
  watch_two_cards(visit, "picture-memory-pair-of-pictures");
  visit.act([visit](frm_képmemória& window) {
    visit.session().window<frm_képmem_beáll>().chk_képek_bemutatása.set_value(0);
    turn(window, closed_card(window, [](const PictureBox&) { return true; }));
  });
  visit.look("-one-picture");
  visit.act([](frm_képmemória& window) {
    Text open;
    window.kép.each([&](const PictureBox& card) { open = window.felfordítva(card.Index) ? card.Tag : open; });
    turn(window, closed_card(window, [&](const PictureBox& card) { return card.Tag == open; }));
  });
  visit.act([visit](frm_képmemória&) { visit.platform().redrawn = {}; });
  visit.look("-pair-gone");
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const MemoryVisit visit(guide, session, platform, u"frm_képmemória", "picture-memory");
  // A word lies on its card.
  guide.intended.push_back({u"frm_képmemória", u"képszöveg", u"kép"});
  guide.for_help("picture-memory-one-card", "picture_memory", 562);
  guide.for_help("picture-memory-settings", "picture_memory_settings");
  visit.open();
  visit.look_at_focus();
  visit.act([](frm_képmemória& window) {
    turn(window, closed_card(window, [&](const PictureBox& card) { return window.képoldal(card.Index); }));
  });
  visit.look("-one-card");
  watch_two_cards(visit, "picture-memory-wrong-answer");
  visit.act([](frm_képmemória& window) {
    Text open;
    window.kép.each([&](const PictureBox& card) { open = window.felfordítva(card.Index) ? card.Tag : open; });
    turn(window,
         closed_card(window, [&](const PictureBox& card) { return !window.képoldal(card.Index) && card.Tag != open; }));
  });
  visit.act([visit](frm_képmemória&) { visit.platform().redrawn = {}; });
  visit.look("-turned-back");
  help_panel(visit);
  memory_settings(visit);
  visit.look("-few-cards");
  watch_two_cards(visit, "picture-memory-pair");
  visit.solve_until([visit] { return cards_left(visit.exercise()) < 10; });
  visit.look("-one-result");
  visit.act([visit](frm_képmemória&) { visit.platform().redrawn = {}; });
  presentation(visit);
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_képmemória", lay_out};

} // namespace

} // namespace cserko::tour
