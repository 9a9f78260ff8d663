// The stops of the tour, in the order in which somebody who opens everything would come by.
#pragma once

#include "core/session.h"
#include "tests/tour/guide.h"

namespace cserko::tour {

/// Lays all stops out, from the main window to leaving the program.
void lay_out(Guide& guide, Session& session, WatchedPlatform& platform);

} // namespace cserko::tour
