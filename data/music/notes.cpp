#include "notes.h"

#include <algorithm>
#include <array>

namespace cserko {

namespace {

struct NamedNumber {
  std::string_view name;
  int number;
};

// Only what the tables use or are likely to use: the calm end of the General MIDI set.
constexpr auto instruments = std::to_array<NamedNumber>({
    {"piano", 0},         {"electric-piano", 4}, {"harpsichord", 6},   {"celesta", 8},       {"glockenspiel", 9},
    {"music-box", 10},    {"vibraphone", 11},    {"marimba", 12},      {"xylophone", 13},    {"tubular-bells", 14},
    {"dulcimer", 15},     {"reed-organ", 20},    {"accordion", 21},    {"harmonica", 22},    {"nylon-guitar", 24},
    {"steel-guitar", 25}, {"acoustic-bass", 32}, {"violin", 40},       {"viola", 41},        {"cello", 42},
    {"contrabass", 43},   {"pizzicato", 45},     {"harp", 46},         {"timpani", 47},      {"strings", 48},
    {"slow-strings", 49}, {"choir", 52},         {"trumpet", 56},      {"trombone", 57},     {"tuba", 58},
    {"french-horn", 60},  {"brass", 61},         {"oboe", 68},         {"english-horn", 69}, {"bassoon", 70},
    {"clarinet", 71},     {"piccolo", 72},       {"flute", 73},        {"recorder", 74},     {"pan-flute", 75},
    {"bottle", 76},       {"whistle", 78},       {"ocarina", 79},      {"warm-pad", 89},     {"kalimba", 108},
    {"bagpipe", 109},     {"fiddle", 110},       {"tinkle-bell", 112}, {"steel-drums", 114}, {"woodblock", 115},
    {"melodic-tom", 117}, {"bird", 123},         {"applause", 126},
});

constexpr auto drums = std::to_array<NamedNumber>({
    {"acoustic-bass-drum", 35},
    {"bass-drum", 36},
    {"side-stick", 37},
    {"snare", 38},
    {"hand-clap", 39},
    {"electric-snare", 40},
    {"low-floor-tom", 41},
    {"closed-hi-hat", 42},
    {"high-floor-tom", 43},
    {"pedal-hi-hat", 44},
    {"low-tom", 45},
    {"open-hi-hat", 46},
    {"low-mid-tom", 47},
    {"high-mid-tom", 48},
    {"crash", 49},
    {"high-tom", 50},
    {"ride", 51},
    {"chinese-cymbal", 52},
    {"ride-bell", 53},
    {"tambourine", 54},
    {"splash", 55},
    {"cowbell", 56},
    {"second-crash", 57},
    {"vibraslap", 58},
    {"high-bongo", 60},
    {"low-bongo", 61},
    {"mute-conga", 62},
    {"open-conga", 63},
    {"low-conga", 64},
    {"high-timbale", 65},
    {"low-timbale", 66},
    {"high-agogo", 67},
    {"low-agogo", 68},
    {"cabasa", 69},
    {"maracas", 70},
    {"short-guiro", 73},
    {"long-guiro", 74},
    {"claves", 75},
    {"high-woodblock", 76},
    {"low-woodblock", 77},
    {"mute-triangle", 80},
    {"open-triangle", 81},
});

std::optional<int> number_of(const auto& table, std::string_view name) {
  const auto found = std::ranges::find(table, name, &NamedNumber::name);
  if (found == table.end()) return std::nullopt;
  return found->number;
}

} // namespace

std::optional<int> instrument_program(std::string_view name) { return number_of(instruments, name); }

std::optional<int> drum_key(std::string_view name) { return number_of(drums, name); }

std::optional<int> note_key(std::string_view name) {
  constexpr std::string_view letters = "C D EF G A B";
  if (name.size() < 2 || name.size() > 3 || name[0] == ' ') return std::nullopt;
  const auto letter = letters.find(name[0]);
  if (letter == std::string_view::npos) return std::nullopt;
  int key = static_cast<int>(letter);
  if (name.size() == 3) {
    if (name[1] != '#' && name[1] != 'b') return std::nullopt;
    key += name[1] == '#' ? 1 : -1;
  }
  const char octave = name.back();
  if (octave < '0' || octave > '8') return std::nullopt;
  return key + 12 * (octave - '0' + 1);
}

} // namespace cserko
