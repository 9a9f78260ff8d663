// What the stops of all exercises share: the way in, a wrong answer, a solved task, a full set, the way out.
#pragma once

#include "core/exercise_table.h"
#include "core/frm_főablak.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "platform/input.h"
#include "tests/players/player.h"
#include "tests/players/strip.h"
#include "tests/tour/tour_hand.h"
#include "tests/tour/window_stops.h"

#include <algorithm>
#include <memory>

namespace cserko::tour {

inline constexpr TextView congratulation = u"frm_gratuláció";
inline constexpr TextView text_message = u"szövegüzenet";
inline constexpr TextView picture_message = u"üzenet";

/// Somebody in an exercise: what leads in, through and out is the same everywhere. The deeds of the stops keep a copy.
template<class Exercise, class Player> class Visit {
 public:
  Visit(Guide& guide, Session& session, WatchedPlatform& platform, TextView name, std::string picture)
      : guide_(guide), session_(session), platform_(platform), name_(name), picture_(std::move(picture)) {}

  Exercise& exercise() const { return session_.window<Exercise>(); }
  Session& session() const { return session_; }
  WatchedPlatform& platform() const { return platform_; }
  Guide& guide() const { return guide_; }

  void open() const {
    const auto* entry = std::find_if(exercise_table.begin(), exercise_table.end(),
                                     [this](const ExerciseEntry& e) { return e.window == name_; });
    const auto index = static_cast<int>(entry - exercise_table.begin());
    guide_.act(main_window,
               [index](Window& window) { input::click(static_cast<frm_főablak&>(window).cmd_játék[index]); });
    look("");
  }

  void look(const std::string& state) const { guide_.picture(name_, picture_ + state); }

  void act(std::function<void(Exercise&)> deed) const {
    guide_.act(name_, [deed = std::move(deed)](Window& window) { deed(static_cast<Exercise&>(window)); });
  }

  // The focus, as those see it who use the keyboard.
  void look_at_focus(int steps = 2) const {
    for (int i = 0; i < steps; ++i) act([](Exercise&) { press_key(Qt::Key_Tab); });
    look("-focus");
    act([](Exercise&) { touch_mouse(); });
  }

  void err() const {
    const auto player = std::make_shared<Player>(session_, PlayMode::Mouse, 1);
    play(player, [player] { return player->wrong_answers() > 0; });
    look("-wrong-answer");
  }

  void solve_until(const std::function<bool()>& done) const {
    play(std::make_shared<Player>(session_, PlayMode::Mouse), done);
  }

  void solve_all() const {
    solve_until([*this] { return guide_.at_front(congratulation); });
    guide_.picture_behind(
        congratulation, [*this]() -> Window& { return exercise(); }, picture_ + "-full");
    guide_.picture(congratulation, picture_ + "-congratulation");
    guide_.act(congratulation, [](Window& window) { input::click(static_cast<frm_gratuláció&>(window).cmd_ok); });
    look("-next-set");
  }

  // The panel with a text, or with a picture and its word.
  void close_message(const std::string& state) const {
    guide_.picture(text_message, picture_ + state);
    guide_.act(text_message, [](Window& window) { input::click(static_cast<szövegüzenet&>(window).Command1); });
  }
  void close_picture_message(const std::string& state) const {
    guide_.picture(picture_message, picture_ + state);
    guide_.act(picture_message, [](Window& window) { input::click(static_cast<üzenet&>(window).Command1); });
  }

  void close() const {
    act([](Exercise& window) { input::close(window); });
  }

 private:
  void play(const std::shared_ptr<Player>& player, const std::function<bool()>& done) const {
    const auto step = [player](Window& window) {
      TourHand hand(window);
      player->step(window, hand);
    };
    guide_.repeat(name_, step, done);
  }

  Guide& guide_;
  Session& session_;
  WatchedPlatform& platform_;
  TextView name_;
  std::string picture_;
};

/// How many tasks the strip of results shows as solved.
template<class V> int results(const V& visit) { return solved_in(visit.exercise()); }

/// Solves the present task and looks at the window.
template<class V> void solve_one(const V& visit, const std::string& state) {
  const auto before = std::make_shared<int>(0);
  visit.act([visit, before](auto&) { *before = results(visit); });
  visit.solve_until([visit, before] { return results(visit) > *before; });
  visit.look(state);
}

/// The record that an exercise can draw and whose texts are worst to show.
template<class Worth> int worst_record(const Records& records, Worth worth) {
  int worst = 0;
  for (int i = 1; i < records.képszám; ++i) {
    if (worth(records[i]) > worth(records[worst])) worst = i;
  }
  return worst;
}

/// The next draw takes the record.
template<class V, class Worth> void draw_worst(const V& visit, Worth worth) {
  const Records& records = visit.session().képek;
  visit.platform().chance = {(worst_record(records, worth) + 0.5) / records.képszám};
}

} // namespace cserko::tour
