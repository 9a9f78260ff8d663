#include "tests/tour/exercise_stops.h"

#include "exercises/boards/frm_képmemória.h"
#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "exercises/syllables/frm_szótagoló.h"
#include "feedback/message_panels.h"
#include "tests/players/igazhamis_player.h"
#include "tests/players/képmemória_player.h"
#include "tests/players/mondatkép_player.h"
#include "tests/players/szótagoló_player.h"
#include "tests/tour/letter_sorting_stops.h"
#include "tests/tour/visit.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

namespace cserko::tour {

namespace {

constexpr std::array<TextView, 5> exercises{u"frm_betűválogatás", u"frm_képmemória", u"frm_szótagoló", u"frm_mondatkép",
                                            u"frm_igazhamis"};

void lay_out_syllabifier(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_szótagoló, SzótagolóPlayer> visit(guide, session, platform, u"frm_szótagoló", "syllabifier");
  guide.intended.push_back({u"frm_szótagoló", u"lbl_eredmény", u"pic_eredmény"}); // by one pixel of the design
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([](frm_szótagoló& window) { input::click(window.mnu_fájl_beállítások); });
  guide.picture(u"dlg_szótagoló", "syllabifier-settings");
  guide.act(u"dlg_szótagoló", [](Window& window) {
    auto& dialog = static_cast<dlg_szótagoló&>(window);
    dialog.udszótagszám.set_value(dialog.udszótagszám.Max);
    input::click(dialog.OKButton);
  });
  visit.act([visit](frm_szótagoló& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.szótagolt.size(); });
    window.beáll();
  });
  visit.look("-longest");
  solve_one(visit, "-longest-result");
  // A long double consonant has a letter more where it is broken up.
  visit.act([visit](frm_szótagoló& window) {
    draw_worst(visit, [](const KépAdat& record) {
      const auto breaks = std::count(record.szótagolt.begin(), record.szótagolt.end(), u'-');
      return record.szótagolt.size() - static_cast<std::size_t>(breaks) > record.név.size();
    });
    window.beáll();
  });
  visit.look("-long-consonant");
  solve_one(visit, "-long-consonant-result");
  visit.solve_all();
  visit.act([](frm_szótagoló& window) { input::click(window.mnu_fájl_kilép); });
}

void lay_out_sentence_to_picture(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_mondatkép, MondatképPlayer> visit(guide, session, platform, u"frm_mondatkép", "sentence-to-picture");
  guide.intended.push_back({u"frm_mondatkép", u"lbl_eredmény", u"pic_eredmény"}); // by one pixel of the design
  visit.open();
  visit.look_at_focus();
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([visit](frm_mondatkép& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.meghatározás.size(); });
    window.feladat_kirakása();
  });
  visit.look("-longest");
  solve_one(visit, "-longest-result");
  visit.solve_all();
  visit.close();
}

void lay_out_true_or_false(Guide& guide, Session& session, WatchedPlatform& platform) {
  const Visit<frm_igazhamis, IgazhamisPlayer> visit(guide, session, platform, u"frm_igazhamis", "true-or-false");
  guide.intended.push_back({u"frm_igazhamis", u"Frame1", u"Frame2"}); // by one pixel of the design, as the next
  guide.intended.push_back({u"frm_igazhamis", u"lbl_eredmény", u"pic_eredmény"});
  visit.open();
  visit.look_at_focus(1);
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([visit](frm_igazhamis& window) {
    draw_worst(visit, [](const KépAdat& record) { return std::max(record.igaz.size(), record.hamis.size()); });
    window.feladat_kirakása();
  });
  visit.look("-longest");
  visit.act([visit](frm_igazhamis& window) {
    draw_worst(visit, [](const KépAdat& record) { return record.igaz.size(); });
    window.feladat_kirakása();
  });
  solve_one(visit, "-longest-result");
  visit.solve_all();
  visit.close();
}

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

void lay_out_picture_memory(Guide& guide, Session& session, WatchedPlatform& platform) {
  const MemoryVisit visit(guide, session, platform, u"frm_képmemória", "picture-memory");
  // A word lies on its card.
  guide.intended.push_back({u"frm_képmemória", u"képszöveg", u"kép"});
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
  visit.solve_all();
  visit.close();
}

} // namespace

bool has_exercise_stops(TextView exercise) {
  return std::find(exercises.begin(), exercises.end(), exercise) != exercises.end();
}

void lay_out_exercises(Guide& guide, Session& session, WatchedPlatform& platform) {
  lay_out_letter_sorting(guide, session, platform);
  lay_out_picture_memory(guide, session, platform);
  lay_out_syllabifier(guide, session, platform);
  lay_out_sentence_to_picture(guide, session, platform);
  lay_out_true_or_false(guide, session, platform);
}

} // namespace cserko::tour
