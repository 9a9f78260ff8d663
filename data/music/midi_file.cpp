#include "midi_file.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string_view>

namespace cserko {

namespace {

std::string big_endian(std::uint32_t value, int size) {
  std::string bytes;
  for (int i = size - 1; i >= 0; --i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
  return bytes;
}

/// Seven bits a byte, the highest first; all but the last have their top bit set.
std::string variable_length(std::uint32_t value) {
  std::string bytes(1, static_cast<char>(value & 0x7F));
  while ((value >>= 7) != 0) bytes.insert(bytes.begin(), static_cast<char>((value & 0x7F) | 0x80));
  return bytes;
}

std::string chunk(std::string_view kind, const std::string& content) {
  return std::string(kind) + big_endian(static_cast<std::uint32_t>(content.size()), 4) + content;
}

std::string message(int status, int first, int second = -1) {
  std::string bytes = {static_cast<char>(status), static_cast<char>(first)};
  if (second >= 0) bytes += static_cast<char>(second);
  return bytes;
}

std::string meta(int kind, const std::string& content) {
  return message(0xFF, kind) + variable_length(static_cast<std::uint32_t>(content.size())) + content;
}

struct Event {
  int ticks;
  int order; // among events of the same time
  std::string bytes;
};

std::string track(std::vector<Event> events, int end) {
  events.push_back({end, 9, meta(0x2F, "")});
  std::ranges::stable_sort(events, [](const Event& a, const Event& b) {
    return a.ticks != b.ticks ? a.ticks < b.ticks : a.order < b.order;
  });
  std::string content;
  int last = 0;
  for (const Event& event : events) {
    content += variable_length(static_cast<std::uint32_t>(event.ticks - last)) + event.bytes;
    last = event.ticks;
  }
  return chunk("MTrk", content);
}

std::string tempo_event(int quarters_a_minute) {
  return meta(0x51, big_endian(static_cast<std::uint32_t>(60'000'000 / quarters_a_minute), 3));
}

std::string leading_track(const std::string& title, int tempo, const Arrangement& arrangement) {
  std::vector<Event> events = {{0, 0, meta(0x03, title)}, {0, 1, tempo_event(tempo)}};
  for (const MeterChange& change : arrangement.meters) {
    const int unit = std::countr_zero(static_cast<unsigned>(change.meter.unit));
    const std::string content = {static_cast<char>(change.meter.beats), static_cast<char>(unit), 24, 8};
    events.push_back({change.start, 2, meta(0x58, content)});
  }
  events.push_back({arrangement.last_bar, 3, tempo_event(tempo * last_bar_tempo_percent / 100)});
  return track(events, arrangement.end);
}

std::string voice_track(const PlayedVoice& voice, int channel, int pan, int end) {
  constexpr int volume_control = 7;
  constexpr int pan_control = 10;
  constexpr int volume = 112;
  std::vector<Event> events = {{0, 0, message(0xB0 | channel, volume_control, volume)},
                               {0, 0, message(0xB0 | channel, pan_control, pan)}};
  for (const InstrumentChange& change : voice.instruments)
    events.push_back({change.start, 2, message(0xC0 | channel, change.program)});
  for (const PlayedNote& note : voice.notes) {
    events.push_back({note.start, 3, message(0x90 | channel, note.key, note.loudness)});
    events.push_back({note.start + note.ticks, 1, message(0x80 | channel, note.key, 0)});
  }
  return track(events, end);
}

} // namespace

std::string midi_file(const std::string& title, int tempo, const Arrangement& arrangement) {
  constexpr std::array<int, 3> pans = {64, 48, 76}; // the melody in the middle
  std::string tracks = leading_track(title, tempo, arrangement);
  std::uint32_t count = 1;
  for (std::size_t i = 0; i < arrangement.voices.size(); ++i) {
    if (arrangement.voices[i].notes.empty()) continue;
    tracks += voice_track(arrangement.voices[i], static_cast<int>(i), pans[i], arrangement.end);
    ++count;
  }
  return chunk("MThd", big_endian(1, 2) + big_endian(count, 2) + big_endian(ticks_per_quarter, 2)) + tracks;
}

} // namespace cserko
