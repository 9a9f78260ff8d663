// Wave files as the program plays them.
#pragma once

#include "render.h"

#include <string>

namespace cserko {

/// Bytes of a RIFF wave file: one channel, 16 bits, `sample_rate`. Samples beyond full scale are clipped.
std::string wave_file(const Samples& samples);

} // namespace cserko
