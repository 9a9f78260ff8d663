#include "arrangement.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr int melody_loudness = 92;
constexpr int second_loudness = 58;
constexpr int bass_loudness = 62;
constexpr int first_beat_accent = 6;

/// The three keys of a chord, each in the octave from `lowest` up: neighbours move by small steps, as a player would do
/// it.
std::array<int, 3> close_position(const Chord& chord, int lowest) {
  std::array<int, 3> keys = {chord.root, chord.root + (chord.minor ? 3 : 4), chord.root + 7};
  for (int& key : keys) key = lowest + (key - lowest % 12 + 24) % 12;
  std::ranges::sort(keys);
  return keys;
}

int key_of(int tone, int lowest) { return lowest + (tone - lowest % 12 + 12) % 12; }

class Player {
 public:
  explicit Player(const Tune& tune) : tune_(tune) {}

  Arrangement play() {
    for (const Verse& verse : tune_.verses) {
      choose_instruments(verse);
      for (const char letter : verse.parts)
        for (const Bar& bar : tune_.parts.at(letter)) play_bar(verse, bar);
    }
    played_.end = now_;
    return played_;
  }

 private:
  void choose_instruments(const Verse& verse) {
    const std::array<std::optional<int>, 3> programs = {verse.melody, verse.second, verse.bass};
    for (std::size_t i = 0; i < programs.size(); ++i)
      if (programs[i]) played_.voices[i].instruments.push_back({now_, *programs[i]});
  }

  void play_bar(const Verse& verse, const Bar& bar) {
    if (played_.meters.empty() || played_.meters.back().meter != bar.meter) played_.meters.push_back({now_, bar.meter});
    played_.last_bar = now_;
    if (verse.melody) play_melody(verse, bar);
    int start = now_;
    for (const Chord& chord : bar.chords) {
      if (verse.second) play_second(verse.style, chord, start);
      if (verse.bass) play_bass(chord, start);
      start += chord.ticks;
    }
    now_ += bar.meter.bar_ticks();
  }

  void play_melody(const Verse& verse, const Bar& bar) {
    int start = now_;
    for (const TuneNote& note : bar.notes) {
      const int accent = start == now_ ? first_beat_accent : 0;
      if (note.key) add(0, start, note.ticks, *note.key + verse.transposition, melody_loudness + accent);
      start += note.ticks;
    }
  }

  void play_second(Style style, const Chord& chord, int start) {
    switch (style) {
    case Style::Arpeggio:
      return play_arpeggio(chord, start);
    case Style::Beats:
      return play_beats(chord, start);
    case Style::Held:
      for (const int key : close_position(chord, 55)) add(1, start, chord.ticks, key, second_loudness - 8);
      return;
    case Style::Drone:
      add(1, start, chord.ticks, key_of(chord.root, 48), second_loudness - 6);
      add(1, start, chord.ticks, key_of(chord.root, 48) + 7, second_loudness - 10);
      return;
    }
  }

  /// Eighths up and down over the open chord: root, fifth, octave, tenth.
  void play_arpeggio(const Chord& chord, int start) {
    const int root = key_of(chord.root, 45);
    const std::array<int, 6> steps = {0, 7, 12, chord.minor ? 15 : 16, 12, 7};
    constexpr int eighth = ticks_per_quarter / 2;
    std::size_t step = 0;
    for (int at = 0; at < chord.ticks; at += eighth) {
      add(1, start + at, eighth, root + steps[step], second_loudness - (step % 2 == 0 ? 0 : 6));
      step = (step + 1) % steps.size();
    }
  }

  /// The root on the first beat, the chord on the others.
  void play_beats(const Chord& chord, int start) {
    add(1, start, ticks_per_quarter, key_of(chord.root, 45), second_loudness);
    for (int at = ticks_per_quarter; at < chord.ticks; at += ticks_per_quarter)
      for (const int key : close_position(chord, 55))
        add(1, start + at, ticks_per_quarter * 2 / 3, key, second_loudness - 12);
  }

  /// The root, and in a long chord the fifth in its second half.
  void play_bass(const Chord& chord, int start) {
    const int root = key_of(chord.root, 36);
    if (chord.ticks < 4 * ticks_per_quarter) return add(2, start, chord.ticks, root, bass_loudness);
    const int half = chord.ticks / 2;
    add(2, start, half, root, bass_loudness);
    add(2, start + half, half, root + (root > 43 ? -5 : 7), bass_loudness - 6);
  }

  void add(std::size_t voice, int start, int ticks, int key, int loudness) {
    // A little air between two notes keeps repeated ones apart.
    const int air = std::min(ticks / 10, ticks_per_quarter / 8);
    played_.voices[voice].notes.push_back({start, ticks - air, key, loudness});
  }

  const Tune& tune_;
  Arrangement played_;
  int now_ = 0;
};

} // namespace

Arrangement arrange(const Tune& tune) { return Player(tune).play(); }

double seconds_of(const Arrangement& arrangement, int tempo) {
  const double seconds_per_tick = 60.0 / tempo / ticks_per_quarter;
  const double slow = (arrangement.end - arrangement.last_bar) * 100.0 / last_bar_tempo_percent;
  return (arrangement.last_bar + slow) * seconds_per_tick;
}

} // namespace cserko
