// The stops of the tour in Letter sorting and on the direction panel.
#pragma once

#include "core/session.h"
#include "tests/tour/guide.h"

namespace cserko::tour {

/// From its button in the main window through all its states back to the main window.
void lay_out_letter_sorting(Guide& guide, Session& session, WatchedPlatform& platform);

} // namespace cserko::tour
