// Puts the feedback layer into a session.
#pragma once

#include "core/session.h"

namespace cserko {

/// Gives the session its sound procedures and message panel, and offers the windows of this layer by name.
void install_feedback(Session& session);

} // namespace cserko
