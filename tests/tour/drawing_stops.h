// The stops of the drawing board and its colouring pages.
#pragma once

#include "core/session.h"
#include "tests/tour/guide.h"

namespace cserko::tour {

void lay_out_drawing(Guide& guide);

} // namespace cserko::tour
