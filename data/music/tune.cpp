#include "tune.h"

#include "notes.h"

#include <array>
#include <charconv>
#include <sstream>
#include <utility>

namespace cserko {

namespace {

int number(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size())
    throw TuneError("not a number: \"" + std::string(text) + "\"");
  return value;
}

Meter meter_of(std::string_view text) {
  const auto slash = text.find('/');
  if (slash == std::string_view::npos) throw TuneError("not a meter: \"" + std::string(text) + "\"");
  const Meter meter{number(text.substr(0, slash)), number(text.substr(slash + 1))};
  if (meter.beats < 1 || (meter.unit != 2 && meter.unit != 4 && meter.unit != 8))
    throw TuneError("not a meter: \"" + std::string(text) + "\"");
  return meter;
}

int ticks_of(std::string_view value) {
  const bool dotted = value.ends_with('.');
  if (dotted) value.remove_suffix(1);
  const int denominator = number(value);
  if (denominator < 1 || denominator > 16 || (denominator & (denominator - 1)) != 0)
    throw TuneError("not a note value: \"" + std::string(value) + "\"");
  const int ticks = 4 * ticks_per_quarter / denominator;
  return dotted ? ticks * 3 / 2 : ticks;
}

/// Reads the notes of a melody one after the other; remembers what a note may leave out.
class MelodyReader {
 public:
  TuneNote read(const std::string& token) {
    const auto colon = token.find(':');
    if (colon != std::string::npos) ticks_ = ticks_of(std::string_view(token).substr(colon + 1));
    if (ticks_ == 0) throw TuneError("the first note has no value");
    std::string name = token.substr(0, colon);
    if (name == "-") return {std::nullopt, ticks_};
    if (name.empty()) throw TuneError("not a note: \"" + token + "\"");
    if (name.back() >= '0' && name.back() <= '9')
      octave_ = name.back();
    else
      name += octave_;
    const std::optional<int> key = note_key(name);
    if (!key) throw TuneError("not a note: \"" + token + "\"");
    return {*key, ticks_};
  }

 private:
  int ticks_ = 0;
  char octave_ = '4';
};

Part part_of(const std::string& text, Meter meter) {
  MelodyReader reader;
  Part part(1);
  int ticks = 0;
  const auto end_bar = [&] {
    part.back().meter = meter;
    if (ticks != meter.bar_ticks()) throw TuneError("bar " + std::to_string(part.size()) + " is not full");
    ticks = 0;
  };
  std::istringstream tokens(text);
  for (std::string token; tokens >> token;) {
    if (token == "|") {
      end_bar();
      part.emplace_back();
    } else if (token.front() == '(') {
      meter = meter_of(std::string_view(token).substr(1, token.size() - 2));
    } else {
      part.back().notes.push_back(reader.read(token));
      ticks += part.back().notes.back().ticks;
    }
  }
  end_bar();
  return part;
}

Chord chord_of(std::string name) {
  const bool minor = name.ends_with('m');
  if (minor) name.pop_back();
  const std::optional<int> key = note_key(name + "4");
  if (!key) throw TuneError("not a chord: \"" + name + "\"");
  return {*key % 12, minor, 0};
}

void add_chords(Part& part, const std::string& text) {
  std::size_t bar = 0;
  std::istringstream tokens(text);
  for (std::string token; tokens >> token;) {
    if (token == "|")
      ++bar;
    else if (bar < part.size())
      part[bar].chords.push_back(chord_of(token));
  }
  if (bar + 1 != part.size()) throw TuneError("melody and chords have different numbers of bars");
  for (Bar& each : part) {
    const int ticks = each.meter.bar_ticks();
    const int count = static_cast<int>(each.chords.size());
    if (count == 0 || ticks % count != 0) throw TuneError("the chords do not share their bar equally");
    for (Chord& chord : each.chords) chord.ticks = ticks / count;
  }
}

int instrument_of(const std::string& name) {
  const std::optional<int> program = instrument_program(name);
  if (!program) throw TuneError("no such instrument: \"" + name + "\"");
  return *program;
}

Style style_of(const std::string& name) {
  constexpr std::array<std::pair<std::string_view, Style>, 4> styles = {
      {{"arpeggio", Style::Arpeggio}, {"beats", Style::Beats}, {"held", Style::Held}, {"drone", Style::Drone}}};
  for (const auto& [known, style] : styles)
    if (name == known) return style;
  throw TuneError("no such style: \"" + name + "\"");
}

void set_voice(Verse& verse, const std::string& token) {
  const auto equals = token.find('=');
  const std::string voice = token.substr(0, equals);
  const std::string value = equals == std::string::npos ? "" : token.substr(equals + 1);
  if (voice == "melody") {
    const auto plus = value.find('+');
    verse.melody = instrument_of(value.substr(0, plus));
    if (plus != std::string::npos) verse.transposition = number(std::string_view(value).substr(plus + 1));
  } else if (voice == "second") {
    const auto colon = value.find(':');
    verse.second = instrument_of(value.substr(0, colon));
    verse.style = style_of(colon == std::string::npos ? "" : value.substr(colon + 1));
  } else if (voice == "bass") {
    verse.bass = instrument_of(value);
  } else {
    throw TuneError("no such voice: \"" + token + "\"");
  }
}

Verse verse_of(const std::string& text) {
  Verse verse;
  std::istringstream tokens(text);
  tokens >> verse.parts;
  for (std::string token; tokens >> token;) set_voice(verse, token);
  return verse;
}

/// What the lines of a file have told so far.
struct TuneReader {
  Tune tune;
  Meter meter;
  char part = 0;

  void read(const std::string& word, const std::string& rest) {
    if (word == "title")
      tune.title = rest;
    else if (word == "tempo")
      tune.tempo = number(rest);
    else if (word == "meter")
      meter = meter_of(rest);
    else if (word == "part")
      part = rest.size() == 1 ? rest[0] : throw TuneError("a part is named by one letter");
    else if (word == "melody")
      tune.parts[part] = part_of(rest, meter);
    else if (word == "chords")
      add_chords(tune.parts[part], rest);
    else if (word == "verse")
      tune.verses.push_back(verse_of(rest));
    else
      throw TuneError("no such statement: \"" + word + "\"");
  }

  void check() const {
    if (tune.title.empty() || tune.verses.empty()) throw TuneError("title or verse is missing");
    for (const auto& [letter, bars] : tune.parts)
      for (const Bar& bar : bars)
        if (bar.chords.empty()) throw TuneError(std::string("no chords in part ") + letter);
    for (const Verse& verse : tune.verses)
      for (const char letter : verse.parts)
        if (!tune.parts.contains(letter)) throw TuneError(std::string("there is no part ") + letter);
  }
};

} // namespace

Tune read_tune(std::istream& stream) {
  TuneReader reader;
  std::string line;
  for (int line_number = 1; std::getline(stream, line); ++line_number) {
    if (line.empty() || line.front() == '#') continue;
    const auto blank = line.find(' ');
    const auto start = line.find_first_not_of(' ', blank);
    try {
      reader.read(line.substr(0, blank), start == std::string::npos ? "" : line.substr(start));
    } catch (const TuneError& error) {
      throw TuneError("line " + std::to_string(line_number) + ": " + error.what());
    }
  }
  reader.check();
  return reader.tune;
}

} // namespace cserko
