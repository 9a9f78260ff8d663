#include "sound_font.h"

#include "../music/notes.h"

#include <algorithm>
#include <array>
#include <fluidsynth.h>
#include <memory>

namespace cserko {

namespace {

using Settings = std::unique_ptr<fluid_settings_t, decltype(&delete_fluid_settings)>;
using Synthesizer = std::unique_ptr<fluid_synth_t, decltype(&delete_fluid_synth)>;

struct Event {
  std::size_t sample; // when
  bool on;
  int channel;
  int key;
  int loudness;
};

Settings make_settings() {
  Settings settings(new_fluid_settings(), &delete_fluid_settings);
  fluid_settings_setnum(settings.get(), "synth.sample-rate", sample_rate);
  fluid_settings_setnum(settings.get(), "synth.gain", 0.8);
  fluid_settings_setint(settings.get(), "synth.cpu-cores", 1);     // more would mix in any order
  fluid_settings_setint(settings.get(), "synth.chorus.active", 0); // blurs short sounds
  fluid_settings_setint(settings.get(), "synth.reverb.active", 1);
  fluid_settings_setnum(settings.get(), "synth.reverb.room-size", 0.3);
  fluid_settings_setnum(settings.get(), "synth.reverb.level", 0.25);
  fluid_settings_setint(settings.get(), "synth.dynamic-sample-loading", 1); // decodes only what is played
  return settings;
}

std::vector<Event> events_of(const std::vector<SoundLayer>& layers) {
  std::vector<Event> events;
  int channel = 0;
  for (const SoundLayer& layer : layers) {
    if (layer.voice != Voice::Instrument && layer.voice != Voice::Drums) continue;
    const int own = layer.voice == Voice::Drums ? percussion_channel : channel++;
    for (const SoundNote& note : layer.notes) {
      const auto start = static_cast<std::size_t>(note.start * sample_rate);
      const auto end = static_cast<std::size_t>((note.start + note.length) * sample_rate);
      events.push_back({start, true, own, note.key, note.loudness});
      events.push_back({end, false, own, note.key, 0});
    }
  }
  // A key that is struck again just as it is released has to be released first.
  std::ranges::stable_sort(
      events, [](const Event& a, const Event& b) { return a.sample != b.sample ? a.sample < b.sample : a.on < b.on; });
  return events;
}

void choose_instruments(fluid_synth_t* synthesizer, const std::vector<SoundLayer>& layers) {
  int channel = 0;
  for (const SoundLayer& layer : layers)
    if (layer.voice == Voice::Instrument) fluid_synth_program_change(synthesizer, channel++, layer.program);
}

} // namespace

void play_with_sound_font(Samples& samples, const std::vector<SoundLayer>& layers,
                          const std::filesystem::path& sound_font) {
  const std::vector<Event> events = events_of(layers);
  if (events.empty()) return;
  const Settings settings = make_settings();
  const Synthesizer synthesizer(new_fluid_synth(settings.get()), &delete_fluid_synth);
  if (!synthesizer || fluid_synth_sfload(synthesizer.get(), sound_font.string().c_str(), 1) == FLUID_FAILED)
    throw std::runtime_error("cannot use the sound font " + sound_font.string());
  choose_instruments(synthesizer.get(), layers);

  // The synthesizer works in blocks of this many samples: events are heard at the start of the next block.
  constexpr std::size_t block = 64;
  auto next = events.begin();
  for (std::size_t done = 0; done < samples.size(); done += block) {
    for (; next != events.end() && next->sample <= done; ++next) {
      if (next->on)
        fluid_synth_noteon(synthesizer.get(), next->channel, next->key, next->loudness);
      else
        fluid_synth_noteoff(synthesizer.get(), next->channel, next->key);
    }
    std::array<float, block> left{};
    std::array<float, block> right{};
    fluid_synth_write_float(synthesizer.get(), block, left.data(), 0, 1, right.data(), 0, 1);
    for (std::size_t i = 0; i < block && done + i < samples.size(); ++i) samples[done + i] += (left[i] + right[i]) / 2;
  }
}

} // namespace cserko
