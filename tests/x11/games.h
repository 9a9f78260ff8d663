// The exercises that are played on the screen: who plays each of them, with which settings, and what tells how it goes.
#pragma once

#include "core/session.h"
#include "tests/players/player.h"
#include "tests/x11/heard_platform.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace cserko {

/// One exercise with its player. The functions that are empty are not to be asked.
struct Game {
  TextView window;
  int tasks = 0; ///< Of one set.
  std::unique_ptr<Player> player{};
  std::function<int()> sets{};                      ///< Sets solved so far.
  std::function<int()> wrong_answers{};             ///< Wrong answers given so far.
  std::function<int(Window&)> gathered{};           ///< Tasks of the present set that the window shows as solved.
  std::function<int(HeardPlatform&)> heard_right{}; ///< How often a solved task was heard.
  std::function<int(HeardPlatform&)> heard_wrong{}; ///< How often a wrong answer was heard.
};

/// An exercise as the command line names it.
struct GameEntry {
  std::string_view name;
  /// Writes the settings, before the program starts.
  void (*prepare)(Files& files);
  /// Needs a session with its records loaded.
  Game (*make)(Session& session, bool by_keyboard);
};

/// Null if there is no exercise of that name.
const GameEntry* find_game(std::string_view name);

} // namespace cserko
