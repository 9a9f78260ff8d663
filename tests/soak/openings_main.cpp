// Opens every exercise a hundred times on the headless machine, plays a little each time, and compares the memory that
// is in use behind the last opening with that behind the tenth. Exit status 1 where an exercise leaves more behind than
// it may.
//
// Usage: cserko_openings [EXERCISE...]
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "tests/players/headless_hand.h"
#include "tests/soak/counted_heap.h"
#include "tests/soak/openings.h"
#include "tests/suite/memory_pack.h"

#include <cstdlib>
#include <iostream>

namespace {

using namespace cserko;

constexpr int deeds = 12; // in the exercise, each time

// What this machine writes down is no memory of the suite.
void forget_all(HeadlessPlatform& machine) {
  machine.media().commands = std::vector<Text>();
  machine.media().played = std::vector<Text>();
  machine.processes = std::vector<HeadlessPlatform::StartedProcess>();
}

bool open_again_and_again(const PlayedExercise& exercise) {
  HeadlessPlatform machine;
  put_sample_pack(machine.files());
  exercise.prepare(machine.files());
  Session session(machine);
  install_feedback(session);
  install_exercises(session);
  HeadlessHand hand(machine);
  Openings openings(
      session, exercise,
      [&machine] {
        forget_all(machine);
        return heap_in_use();
      },
      deeds);
  machine.deed_time = 20;
  machine.user = [&](Window& top) {
    const bool acted = openings.step(top, hand);
    if (openings.done()) machine.end_process();
    return acted;
  };
  session.Main();
  for (const Text& error : machine.errors) std::cerr << "reported: " << to_utf8(error) << '\n';
  print_openings(exercise, openings);
  return openings.steady() && machine.errors.empty();
}

} // namespace

int main(int argc, char** argv) { return open_each(argc, argv, open_again_and_again) ? EXIT_SUCCESS : EXIT_FAILURE; }
