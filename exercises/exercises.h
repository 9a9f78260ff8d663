// The table of the exercises that are built.
#pragma once

#include "core/session.h"

namespace cserko {

/// Makes every built exercise startable by the name of its window.
void install_exercises(Session& session);

} // namespace cserko
