// Standard MIDI files.
#pragma once

#include "arrangement.h"

#include <string>

namespace cserko {

/// Bytes of a type 1 file: a first track with title, tempo and meters, then one track for each voice that plays.
std::string midi_file(const std::string& title, int tempo, const Arrangement& arrangement);

} // namespace cserko
