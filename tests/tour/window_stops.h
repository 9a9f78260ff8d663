// The stops of the tour in the windows that the suite offers, the exercises and the drawing board: who lays them out in
// which. Each window has its own in a source of the folder `stops`, with a `Stops` at the end of it that puts them on
// the list.
#pragma once

#include "core/session.h"
#include "tests/tour/guide.h"

namespace cserko::tour {

/// Lays the stops of a window out, from the main window through its states back to the main window.
using LayOut = void (*)(Guide& guide, Session& session, WatchedPlatform& platform);

/// Puts the stops of a window on the list as long as the program runs.
class Stops {
 public:
  Stops(TextView window, LayOut lay_out);
};

/// What lays the stops of a window out, null if it has none.
LayOut stops_in(TextView window);

} // namespace cserko::tour
