// Tunes as they are written down by hand, and the reading of them.
//
// A tune is a text file, one statement a line; "#" starts a remark.
//   title   TEXT
//   tempo   quarter notes a minute
//   meter   BEATS/UNIT; stands before the parts, and between two of them when it changes
//   part    LETTER, followed by its two lines:
//   melody  notes: name, octave, ":" and note value, as "F#4:8" (an eighth), "D5:4." (a dotted quarter) or "-:4" (a
//   rest);
//           octave and value stay as they were where they are left out; "|" ends a bar, "(2/4)" changes the meter
//   chords  the harmony of the same bars, as "Am" or "C G"; chords of one bar share it equally
//   verse   LETTERS of the parts in order, then the voices: melody=INSTRUMENT[+SEMITONES], second=INSTRUMENT:STYLE,
//           bass=INSTRUMENT; a voice that is left out is silent. Styles: arpeggio, beats, held, drone.
#pragma once

#include <istream>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace cserko {

/// Ticks of a quarter note.
constexpr int ticks_per_quarter = 480;

struct Meter {
  int beats = 4;
  int unit = 4;

  int bar_ticks() const { return beats * 4 * ticks_per_quarter / unit; }
  bool operator==(const Meter&) const = default;
};

struct TuneNote {
  std::optional<int> key; // none for a rest
  int ticks = 0;
};

struct Chord {
  int root = 0; // 0 for C to 11 for B
  bool minor = false;
  int ticks = 0;
};

struct Bar {
  Meter meter;
  std::vector<TuneNote> notes;
  std::vector<Chord> chords;
};

using Part = std::vector<Bar>;

enum class Style { Arpeggio, Beats, Held, Drone };

struct Verse {
  std::string parts; // letters
  std::optional<int> melody;
  int transposition = 0; // of the melody, semitones
  std::optional<int> second;
  Style style = Style::Arpeggio;
  std::optional<int> bass;
};

struct Tune {
  std::string title;
  int tempo = 90; // quarters a minute
  std::map<char, Part> parts;
  std::vector<Verse> verses;
};

/// A tune that cannot be understood; the text names the line and what is wrong with it.
struct TuneError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads a tune. Throws TuneError at the first mistake, be it a bar that is not full.
Tune read_tune(std::istream& stream);

} // namespace cserko
