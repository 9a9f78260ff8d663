// The one list of players: which exercises are played by tests, by whom, with which settings, and what tells how it
// goes. Each player puts itself on the list in its own source, with a `Played` at the end of it.
#pragma once

#include "core/session.h"
#include "tests/players/player.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string_view>
#include <vector>

namespace cserko {

/// What was heard while somebody played.
class Ears {
 public:
  virtual ~Ears() = default;
  /// How often a sound was begun, by the bare name of its file.
  virtual int heard(TextView file) const = 0;
  /// How often any of the sounds was begun that tell of a right answer, or of a wrong one.
  virtual int heard_right() const = 0;
  virtual int heard_wrong() const = 0;
};

/// An exercise with its player.
struct PlayedExercise {
  std::string_view name; ///< In English, as its help page is called: letters and underscores.
  TextView window;
  int tasks = 0; ///< Of one set, with the settings that `prepare` writes.
  /// Plays with the records of the session, which are loaded. Of every `mistakes` tasks one is answered wrong first; 0
  /// for none.
  std::unique_ptr<Player> (*make)(Session& session, PlayMode mode, int mistakes) = nullptr;
  /// Tasks of the present set that the window of the exercise shows as solved.
  int (*gathered)(Window& window, const Player& player) = nullptr;
  /// How often a right and a wrong answer was heard. Null where sounds do not tell.
  int (*heard_right)(const Ears& ears) = nullptr;
  int (*heard_wrong)(const Ears& ears) = nullptr;
  /// Writes the settings with which it is played, before the program starts.
  void (*prepare)(Files& files) = [](Files&) {};
};

/// For the names of tests.
inline void PrintTo(const PlayedExercise& exercise, std::ostream* out) { *out << exercise.name; }

/// All of them, in the order of their names.
std::vector<PlayedExercise> played_exercises();

/// The entry of a class of player.
template<class P> std::unique_ptr<Player> make_player(Session& session, PlayMode mode, int mistakes) {
  return std::make_unique<P>(session, mode, mistakes);
}

/// Right and wrong answers that are heard as those of the suite's lists.
inline int right_sounds(const Ears& ears) { return ears.heard_right(); }
inline int wrong_sounds(const Ears& ears) { return ears.heard_wrong(); }

/// Writes a settings file of the user, who may have none yet.
inline void write_user_settings(Files& files, TextView name, std::string_view lines) {
  files.make_folder(u"c:\\pomzu");
  files.make_folder(u"c:\\pomzu\\cserko");
  files.write(u"c:\\pomzu\\cserko\\" + Text(name), lines);
}

/// Puts an exercise on the list as long as the program runs.
class Played {
 public:
  explicit Played(const PlayedExercise& exercise);
};

} // namespace cserko
