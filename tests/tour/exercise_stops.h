// The stops of the tour in Letter sorting, Picture memory, Syllabifier, Sentence to picture and True or false.
#pragma once

#include "core/session.h"
#include "tests/tour/guide.h"

namespace cserko::tour {

/// From the button in the main window through the states of each exercise back to the main window.
void lay_out_exercises(Guide& guide, Session& session, WatchedPlatform& platform);

/// Whether an exercise has stops here.
bool has_exercise_stops(TextView exercise);

} // namespace cserko::tour
