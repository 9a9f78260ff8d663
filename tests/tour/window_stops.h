// The stops of the tour in the exercises: who lays them out in which. Each exercise puts its own on the list in a
// source of the folder `stops`, with a `Stops` at the end of it.
#pragma once

#include "core/session.h"
#include "tests/tour/guide.h"

namespace cserko::tour {

/// Lays the stops of an exercise out, from its button in the main window through its states back to the main window.
using LayOut = void (*)(Guide& guide, Session& session, WatchedPlatform& platform);

/// Puts the stops of an exercise on the list as long as the program runs.
class Stops {
 public:
  Stops(TextView window, LayOut lay_out);
};

/// What lays the stops of an exercise out, null if it has none.
LayOut stops_in(TextView window);

} // namespace cserko::tour
