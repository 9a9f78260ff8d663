#include "sound_table.h"

#include "../music/notes.h"

#include <charconv>
#include <optional>
#include <set>
#include <sstream>

namespace cserko {

namespace {

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

double number(const std::string& text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) throw TableError("not a number: \"" + text + "\"");
  return value;
}

SoundRole role_of(const std::string& text) {
  if (text == "success") return SoundRole::Success;
  if (text == "error") return SoundRole::Error;
  if (text == "praise") return SoundRole::Praise;
  if (text == "drum") return SoundRole::Drum;
  if (text == "effect") return SoundRole::Effect;
  if (text == "silence") return SoundRole::Silence;
  throw TableError("no such role: \"" + text + "\"");
}

SoundLayer layer_of(const std::string& instrument) {
  if (instrument == "drums") return {Voice::Drums, 0, {}};
  if (instrument == "sine") return {Voice::Sine, 0, {}};
  if (instrument == "noise") return {Voice::Noise, 0, {}};
  const std::optional<int> program = instrument_program(instrument);
  if (!program) throw TableError("no such instrument: \"" + instrument + "\"");
  return {Voice::Instrument, *program, {}};
}

void set_pitch(SoundNote& note, Voice voice, const std::string& pitch) {
  if (voice == Voice::Sine || voice == Voice::Noise) {
    const auto glide = split(pitch, '>');
    if (glide.empty() || glide.size() > 2) throw TableError("not a frequency: \"" + pitch + "\"");
    note.from = number(glide.front());
    note.to = number(glide.back());
    return;
  }
  const std::optional<int> key = voice == Voice::Drums ? drum_key(pitch) : note_key(pitch);
  if (!key) throw TableError("no such note: \"" + pitch + "\"");
  note.key = *key;
}

SoundNote note_of(const std::string& text, Voice voice) {
  const auto parts = split(text, ':');
  if (parts.size() != 4) throw TableError("a note has four parts: \"" + text + "\"");
  SoundNote note;
  note.start = number(parts[0]);
  set_pitch(note, voice, parts[1]);
  note.length = number(parts[2]);
  note.loudness = static_cast<int>(number(parts[3]));
  if (note.start < 0 || note.length <= 0 || note.loudness < 1 || note.loudness > 127)
    throw TableError("out of range: \"" + text + "\"");
  return note;
}

void read_row(const std::vector<std::string>& cells, std::vector<Sound>& sounds) {
  if (cells.size() < 5) throw TableError("too few columns");
  if (!cells[0].empty()) sounds.push_back({cells[0], role_of(cells[1]), number(cells[2]), number(cells[3]), {}});
  if (sounds.empty()) throw TableError("a further layer has no sound above it");
  if (sounds.back().role == SoundRole::Silence) return;
  SoundLayer layer = layer_of(cells[4]);
  std::istringstream notes(cells.size() > 5 ? cells[5] : "");
  for (std::string note; notes >> note;) layer.notes.push_back(note_of(note, layer.voice));
  if (layer.notes.empty()) throw TableError("no notes");
  sounds.back().layers.push_back(layer);
}

} // namespace

std::vector<Sound> read_sound_table(std::istream& table) {
  std::vector<Sound> sounds;
  std::string line;
  std::getline(table, line); // the header
  for (int number = 2; std::getline(table, line); ++number) {
    if (line.empty() || line.front() == '#') continue;
    try {
      read_row(split(line, '\t'), sounds);
    } catch (const TableError& error) {
      throw TableError("line " + std::to_string(number) + ": " + error.what());
    }
  }
  std::set<std::string> paths;
  for (const Sound& sound : sounds)
    if (!paths.insert(path_in_pack(sound)).second) throw TableError("twice in the table: " + sound.name);
  return sounds;
}

std::string path_in_pack(const Sound& sound) {
  std::string file = sound.name + ".wav";
  switch (sound.role) {
  case SoundRole::Silence:
    return file;
  case SoundRole::Effect:
    return "cserko/" + file;
  case SoundRole::Drum:
    return "hangok/dob/" + file;
  case SoundRole::Success:
  case SoundRole::Error:
  case SoundRole::Praise:
    break;
  }
  return "hangok/" + file;
}

} // namespace cserko
