// From notes to samples: a sound font for instruments and drums, plain tones made here.
#pragma once

#include "sound_table.h"

#include <filesystem>
#include <vector>

namespace cserko {

/// Samples a second of all sound files.
constexpr int sample_rate = 44100;

/// Mono samples, 1 is full scale before levelling.
using Samples = std::vector<float>;

/// Plays all layers of a sound with the General MIDI sound font; the result is as long as `sound.seconds` and a little
/// more, neither trimmed nor levelled. Throws std::runtime_error when the sound font cannot be used.
Samples render(const Sound& sound, const std::filesystem::path& sound_font);

/// Cuts silence off both ends, keeps at most `seconds`, fades the ends to zero and brings the loudest sample to `peak`
/// decibels. Silence stays as it is.
Samples finish(Samples samples, double seconds, double peak);

} // namespace cserko
