// Somebody who opens one exercise again and again, plays a little of it and leaves, and what memory is in use then.
#pragma once

#include "core/frm_főablak.h"
#include "tests/players/played_exercise.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

namespace cserko {

class Openings {
 public:
  /// By then everything that an exercise keeps for its next opening is there, and so often it is opened in all.
  static constexpr int first_count = 10;
  static constexpr int last_count = 100;
  /// How much the memory behind the last opening may differ from that behind the tenth.
  static constexpr double most_growth = 0.02;

  /// `memory` tells how much is in use, bytes. So many deeds are done in the exercise each time.
  Openings(Session& session, const PlayedExercise& exercise, std::function<std::int64_t()> memory, int deeds)
      : session_(session), exercise_(exercise), memory_(std::move(memory)), most_deeds_(deeds) {}

  /// One step in the window at the front; false where there is nothing to do but wait.
  bool step(Window& top, Hand& hand) {
    if (top.Name == u"frm_főablak") {
      count();
      if (done()) return false;
      player_ = exercise_.make(session_, PlayMode::Mouse, 2);
      return player_->step(top, hand);
    }
    if (top.Name != exercise_.window) return player_ != nullptr && player_->step(top, hand);
    inside_ = true;
    if (++deeds_ <= most_deeds_) return player_->step(top, hand);
    session_.close_request(top);
    return true;
  }

  bool done() const { return openings_ == last_count; }
  std::int64_t first() const { return first_; }
  std::int64_t last() const { return last_; }
  /// By how much of it the memory has changed.
  double growth() const { return static_cast<double>(last_ - first_) / static_cast<double>(first_); }
  bool steady() const { return done() && growth() <= most_growth && growth() >= -most_growth; }

 private:
  // Back in the main window nothing of the exercise is needed any more, nor of its player.
  void count() {
    player_.reset();
    deeds_ = 0;
    if (!std::exchange(inside_, false)) return;
    ++openings_;
    if (openings_ == first_count) first_ = memory_();
    if (openings_ == last_count) last_ = memory_();
  }

  Session& session_;
  const PlayedExercise& exercise_;
  std::function<std::int64_t()> memory_;
  int most_deeds_;
  std::unique_ptr<Player> player_;
  int openings_ = 0;
  int deeds_ = 0;
  bool inside_ = false;
  std::int64_t first_ = 0;
  std::int64_t last_ = 0;
};

/// One line of the report.
inline void print_openings(const PlayedExercise& exercise, const Openings& openings) {
  std::printf("%-22s %10lld %10lld %+.2f %%\n", std::string(exercise.name).c_str(),
              static_cast<long long>(openings.first()), static_cast<long long>(openings.last()),
              100 * openings.growth());
  std::fflush(stdout);
}

/// Opens each exercise that the command line names, or all of them; false where any of them is not steady.
inline bool open_each(int argc, char** argv, const std::function<bool(const PlayedExercise&)>& open) {
  const std::vector<std::string_view> wanted(argv + 1, argv + argc);
  bool steady = true;
  int opened = 0;
  std::printf("%-22s %10d %10d\n", "bytes behind opening", Openings::first_count, Openings::last_count);
  for (const PlayedExercise& exercise : played_exercises()) {
    if (!wanted.empty() && std::find(wanted.begin(), wanted.end(), exercise.name) == wanted.end()) continue;
    ++opened;
    if (open(exercise)) continue;
    steady = false;
    std::fprintf(stderr, "%s does not leave the memory as it was\n", std::string(exercise.name).c_str());
  }
  return steady && opened > 0;
}

} // namespace cserko
