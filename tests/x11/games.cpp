#include "tests/x11/games.h"

#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "feedback/frm_hangbeáll.h"
#include "tests/players/betűfelesleg_player.h"
#include "tests/players/betűhiány_player.h"
#include "tests/players/betűnézegető_player.h"
#include "tests/players/betűválogatás_player.h"
#include "tests/players/cserkó_player.h"
#include "tests/players/igazhamis_player.h"
#include "tests/players/képmemória_player.h"
#include "tests/players/mondatkép_player.h"
#include "tests/players/strip.h"
#include "tests/players/szótagoló_player.h"

#include <array>

namespace cserko {

namespace {

constexpr int pairs = 5; // of Picture memory, the fewest that its settings allow

void keep_settings(Files&) {}

// Five pairs of a picture and its word, one second to look at two that differ, two frames of half a turn. The game
// reads the settings of the data pack.
void set_up_memory(Files& files) {
  files.write(u"c:\\cserko\\cserko\\képmem.ini",
              " " + std::to_string(pairs) +
                  " \r\n 12 \r\n 1 \r\n 12 \r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\n 1 \r\n 0 \r\n"
                  " 1 \r\n 2 \r\n 0 \r\n 0 \r\n");
}

// Flights of ten frames, words of every length.
void set_up_sorting(Files& files) {
  files.make_folder(u"c:\\pomzu");
  files.make_folder(u"c:\\pomzu\\cserko");
  files.write(u"c:\\pomzu\\cserko\\betűválogató.ini", " 1 \r\n 1 \r\nTrue\r\nFalse\r\n 0 \r\n 14 \r\n");
}

// Words of two to four syllables, so that each of them has a break to open.
void set_up_syllables(Files& files) {
  files.make_folder(u"c:\\pomzu");
  files.make_folder(u"c:\\pomzu\\cserko");
  files.write(u"c:\\pomzu\\cserko\\szótagoló.ini", " 4 \r\n 1 \r\n");
}

// The reading check is on.
void set_up_viewer(Files& files) {
  files.make_folder(u"c:\\pomzu");
  files.make_folder(u"c:\\pomzu\\cserko");
  files.write(u"c:\\pomzu\\cserko\\betűnézegető.ini",
              " 12 \r\n 0 \r\n 1 \r\nFalse\r\nTrue\r\n 0 \r\nTrue\r\nFalse\r\n");
}

Game scrambled_word(Session& session, bool by_keyboard) {
  using Mode = CserkóPlayer::Mode;
  auto player = std::make_unique<CserkóPlayer>(session, by_keyboard ? Mode::Keyboard : Mode::Mouse, 1);
  Game game{.window = u"frm_cserkó", .tasks = 1};
  game.sets = [&player = *player] { return player.solved(); };
  game.wrong_answers = [&player = *player] { return player.wrong_answers(); };
  game.gathered = [](Window& window) { return dynamic_cast<frm_cserkó&>(window).lbl_megoldás.Visible ? 1 : 0; };
  game.player = std::move(player);
  return game;
}

// Of every `mistakes` tasks one is answered wrong first.
template<class P> Game played_by(Session& session, TextView window, bool by_keyboard, int tasks, int mistakes) {
  using Mode = ExercisePlayer::Mode;
  auto player = std::make_unique<P>(session, by_keyboard ? Mode::Keyboard : Mode::Mouse, mistakes);
  Game game{.window = window, .tasks = tasks};
  game.sets = [&player = *player] { return player.sets(); };
  game.wrong_answers = [&player = *player] { return player.wrong_answers(); };
  game.player = std::move(player);
  return game;
}

Game picture_memory(Session& session, bool by_keyboard) {
  Game game = played_by<KépmemóriaPlayer>(session, u"frm_képmemória", by_keyboard, pairs, 4);
  game.gathered = [](Window& window) {
    int shown = 0;
    dynamic_cast<frm_képmemória&>(window).kép.each([&](const PictureBox& card) { shown += card.shown() ? 1 : 0; });
    return pairs - shown / 2;
  };
  game.heard_right = [](HeardPlatform& platform) { return platform.heard(u"swallow1.wav"); };
  // The two cards of a pair were turned up, two that differ were turned up and back.
  game.heard_wrong = [](HeardPlatform& platform) {
    const int turns = platform.heard(u"Moving.wav") - 2 * platform.heard(u"swallow1.wav");
    return turns % 4 == 0 ? turns / 4 : -1;
  };
  return game;
}

// Every answer is heard by a sound of the lists.
void listen_to_answers(Game& game, Session& session) {
  game.heard_right = [&session](HeardPlatform& platform) {
    return platform.heard_any(session.window<frm_hangbeáll>().lst_helyeshang.Items);
  };
  game.heard_wrong = [&session](HeardPlatform& platform) {
    return platform.heard_any(session.window<frm_hangbeáll>().Lst_hibahang.Items);
  };
}

// An exercise with a strip of solved tasks.
template<class Exercise, class P> Game strip_game(Session& session, TextView window, bool by_keyboard) {
  Game game = played_by<P>(session, window, by_keyboard, 6, 3);
  game.gathered = [](Window& front) { return solved_tasks(dynamic_cast<Exercise&>(front).lbl_eredmény); };
  listen_to_answers(game, session);
  return game;
}

Game letter_sorting(Session& session, bool by_keyboard) {
  Game game = played_by<BetűválogatásPlayer>(session, u"frm_betűválogatás", by_keyboard, frm_betűválogatás::places, 4);
  game.gathered = [](Window& window) {
    int shown = 0;
    dynamic_cast<frm_betűválogatás&>(window).eredménykép.each(
        [&](const PictureBox& place) { shown += place.shown() ? 1 : 0; });
    return shown;
  };
  listen_to_answers(game, session);
  return game;
}

// There is no panel and no praise: the pictures that were found are counted.
Game letter_viewer(Session& session, bool by_keyboard) {
  using Mode = ExercisePlayer::Mode;
  constexpr int set = BetűnézegetőPlayer::set;
  auto player = std::make_unique<BetűnézegetőPlayer>(session, by_keyboard ? Mode::Keyboard : Mode::Mouse, 3);
  Game game{.window = u"frm_betűnézegető", .tasks = set};
  game.sets = [&player = *player] { return player.found() / set; };
  game.wrong_answers = [&player = *player] { return player.wrong_answers(); };
  game.gathered = [&player = *player](Window&) { return player.found() % set; };
  listen_to_answers(game, session);
  game.player = std::move(player);
  return game;
}

Game syllabifier(Session& session, bool by_keyboard) {
  return strip_game<frm_szótagoló, SzótagolóPlayer>(session, u"frm_szótagoló", by_keyboard);
}

Game surplus_letter(Session& session, bool by_keyboard) {
  return strip_game<frm_betűfelesleg, BetűfeleslegPlayer>(session, u"frm_betűfelesleg", by_keyboard);
}

Game missing_letter(Session& session, bool by_keyboard) {
  return strip_game<frm_betűhiány, BetűhiányPlayer>(session, u"frm_betűhiány", by_keyboard);
}

Game sentence_to_picture(Session& session, bool by_keyboard) {
  return strip_game<frm_mondatkép, MondatképPlayer>(session, u"frm_mondatkép", by_keyboard);
}

Game true_or_false(Session& session, bool by_keyboard) {
  return strip_game<frm_igazhamis, IgazhamisPlayer>(session, u"frm_igazhamis", by_keyboard);
}

constexpr std::array entries{GameEntry{"scrambled_word", keep_settings, scrambled_word},
                             GameEntry{"letter_sorting", set_up_sorting, letter_sorting},
                             GameEntry{"missing_letter", keep_settings, missing_letter},
                             GameEntry{"picture_memory", set_up_memory, picture_memory},
                             GameEntry{"syllabifier", set_up_syllables, syllabifier},
                             GameEntry{"letter_viewer", set_up_viewer, letter_viewer},
                             GameEntry{"surplus_letter", keep_settings, surplus_letter},
                             GameEntry{"sentence_to_picture", keep_settings, sentence_to_picture},
                             GameEntry{"true_or_false", keep_settings, true_or_false}};

} // namespace

const GameEntry* find_game(std::string_view name) {
  for (const GameEntry& entry : entries) {
    if (entry.name == name) return &entry;
  }
  return nullptr;
}

} // namespace cserko
