#include "tests/players/played_exercise.h"

#include <algorithm>

namespace cserko {

namespace {

// Made on first use, since the players put themselves on it in no particular order.
std::vector<PlayedExercise>& list() {
  static std::vector<PlayedExercise> exercises;
  return exercises;
}

} // namespace

Played::Played(const PlayedExercise& exercise) { list().push_back(exercise); }

std::vector<PlayedExercise> played_exercises() {
  std::vector<PlayedExercise> sorted = list();
  std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  return sorted;
}

} // namespace cserko
