// Notes and instruments in the terms of General MIDI, for the builders of sounds and tunes.
#pragma once

#include <optional>
#include <string_view>

namespace cserko {

/// MIDI channel that plays percussion, one drum a key.
constexpr int percussion_channel = 9;

/// Program number (0 to 127) of an instrument such as "glockenspiel" or "music-box"; nothing if there is no such name.
std::optional<int> instrument_program(std::string_view name);

/// Key of the percussion channel (27 to 87) of a drum such as "closed-hi-hat"; nothing if there is no such name.
std::optional<int> drum_key(std::string_view name);

/// MIDI key (0 to 127) of a note such as "C4" (60), "F#3" or "Bb5"; nothing if it is not one.
std::optional<int> note_key(std::string_view name);

} // namespace cserko
