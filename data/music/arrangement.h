// A written tune played out: every note of every voice at its time.
#pragma once

#include "tune.h"

#include <array>
#include <vector>

namespace cserko {

struct PlayedNote {
  int start = 0; // ticks from the beginning
  int ticks = 0;
  int key = 0;
  int loudness = 0; // 1 to 127
};

struct InstrumentChange {
  int start = 0;
  int program = 0;
};

/// One voice over the whole tune.
struct PlayedVoice {
  std::vector<InstrumentChange> instruments;
  std::vector<PlayedNote> notes;
};

struct MeterChange {
  int start = 0;
  Meter meter;
};

struct Arrangement {
  std::array<PlayedVoice, 3> voices; // melody, second voice, bass
  std::vector<MeterChange> meters;
  int last_bar = 0; // start of the last bar, which is played slower
  int end = 0;      // ticks
};

/// Plays the verses of a tune one after the other.
Arrangement arrange(const Tune& tune);

/// Tempo of the last bar, of 100 parts of the tempo of the tune.
constexpr int last_bar_tempo_percent = 75;

/// How long the tune lasts, in seconds.
double seconds_of(const Arrangement& arrangement, int tempo);

} // namespace cserko
