// Instruments and drums of a General MIDI sound font, played by FluidSynth without a sound device.
#pragma once

#include "render.h"

namespace cserko {

/// Adds the notes of all instrument and drum layers to the samples. The same notes give the same samples each time.
void play_with_sound_font(Samples& samples, const std::vector<SoundLayer>& layers,
                          const std::filesystem::path& sound_font);

} // namespace cserko
