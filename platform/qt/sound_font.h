// The General MIDI sound font that gives the music its instruments.
#pragma once

#include <string>

namespace cserko {

/// Environment variable that names the sound font to use, before all other places.
inline constexpr char sound_font_variable[] = "CSERKO_SOUND_FONT";

/// UTF-8 path of the sound font to use: the one that the environment names, one beside the program (its own folder or
/// `soundfonts` in it), or one of the system's data folders. Empty if there is none. What the environment names is
/// returned as it is.
std::string find_sound_font();

/// Whether a file can be read and starts as a sound font does.
bool is_sound_font(const std::string& utf8_path);

} // namespace cserko
