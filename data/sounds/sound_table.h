// The table of sounds: what is played in each sound file of the data pack.
//
// A tab-separated text file with a header line and these columns:
//   file        name of the sound file without ".wav"; empty in a further layer of the sound above
//   role        success, error, praise, drum, effect or silence
//   seconds     greatest length; what rings longer is faded out
//   peak        loudest point in decibels below full scale
//   instrument  an instrument of General MIDI, "drums", or one of the plain tones "sine" and "noise"
//   notes       what it plays, each "start:pitch:length:loudness", in seconds and 1 to 127; the pitch is a note ("C5"),
//               a drum ("snare"), or for a plain tone a frequency in hertz, two of them ("900>300") for a glide
// Lines that start with "#" are remarks.
#pragma once

#include <istream>
#include <stdexcept>
#include <string>
#include <vector>

namespace cserko {

enum class SoundRole { Success, Error, Praise, Drum, Effect, Silence };

enum class Voice { Instrument, Drums, Sine, Noise };

struct SoundNote {
  double start = 0;  // seconds
  double length = 0; // seconds
  int loudness = 0;  // 1 to 127
  int key = 0;       // of an instrument or drum
  double from = 0;   // hertz, of a plain tone
  double to = 0;     // hertz at its end
};

struct SoundLayer {
  Voice voice = Voice::Instrument;
  int program = 0; // of an instrument, 0 to 127
  std::vector<SoundNote> notes;
};

struct Sound {
  std::string name; // file name without its ending
  SoundRole role = SoundRole::Effect;
  double seconds = 0;
  double peak = 0; // decibels, at most 0
  std::vector<SoundLayer> layers;
};

/// A line of a table that cannot be understood; the text names the line and what is wrong with it.
struct TableError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads a table of sounds. Throws TableError at the first line that is wrong.
std::vector<Sound> read_sound_table(std::istream& table);

/// Path of a sound file inside the data pack, with "/" between folders.
std::string path_in_pack(const Sound& sound);

} // namespace cserko
