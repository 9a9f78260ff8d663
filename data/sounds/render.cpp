#include "render.h"

#include "../music/notes.h"
#include "sound_font.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>

namespace cserko {

namespace {

// A note that starts later than the others may need a moment of the sound font's own attack: the samples are cut to
// their length only after the leading silence is gone.
constexpr double spare_seconds = 0.25;

std::size_t sample_count(double seconds) { return static_cast<std::size_t>(std::lround(seconds * sample_rate)); }

/// Rises within a few milliseconds and dies away like something struck.
double struck_envelope(double time, double length) {
  constexpr double attack = 0.003;
  const double rise = std::min(1.0, time / attack);
  const double end = std::min(1.0, (length - time) / (0.2 * length));
  return rise * std::exp(-3.5 * time / length) * std::max(0.0, end);
}

double glide(const SoundNote& note, double time) {
  return note.from * std::pow(note.to / note.from, std::min(1.0, time / note.length));
}

void add_sine(Samples& samples, const SoundNote& note) {
  const std::size_t first = sample_count(note.start);
  const std::size_t last = std::min(samples.size(), first + sample_count(note.length));
  const double level = 0.4 * note.loudness / 127;
  double phase = 0;
  for (std::size_t i = first; i < last; ++i) {
    const double time = static_cast<double>(i - first) / sample_rate;
    phase += 2 * std::numbers::pi * glide(note, time) / sample_rate;
    samples[i] += static_cast<float>(level * std::sin(phase) * struck_envelope(time, note.length));
  }
}

/// Noise through a resonant filter around the gliding frequency.
void add_noise(Samples& samples, const SoundNote& note) {
  const std::size_t first = sample_count(note.start);
  const std::size_t last = std::min(samples.size(), first + sample_count(note.length));
  const double level = 1.6 * note.loudness / 127;
  constexpr double damping = 0.5;
  std::mt19937 random(static_cast<std::uint32_t>(first + 1)); // the same noise at every build
  double low = 0;
  double band = 0;
  for (std::size_t i = first; i < last; ++i) {
    const double time = static_cast<double>(i - first) / sample_rate;
    const double tuning = 2 * std::sin(std::numbers::pi * std::min(glide(note, time), 7000.0) / sample_rate);
    const double white = static_cast<double>(random()) / std::mt19937::max() * 2 - 1;
    low += tuning * band;
    band += tuning * (white - low - damping * band);
    samples[i] += static_cast<float>(level * band * struck_envelope(time, note.length));
  }
}

void fade(Samples& samples, std::size_t fade_in, std::size_t fade_out) {
  const auto ramp = [](std::size_t i, std::size_t n) {
    const double x = static_cast<double>(i) / static_cast<double>(n);
    return static_cast<float>(0.5 - 0.5 * std::cos(std::numbers::pi * x));
  };
  for (std::size_t i = 0; i < fade_in && i < samples.size(); ++i) samples[i] *= ramp(i, fade_in);
  for (std::size_t i = 0; i < fade_out && i < samples.size(); ++i) samples[samples.size() - 1 - i] *= ramp(i, fade_out);
}

float loudest(const Samples& samples) {
  float peak = 0;
  for (const float sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

} // namespace

Samples render(const Sound& sound, const std::filesystem::path& sound_font) {
  Samples samples(sample_count(sound.seconds + spare_seconds), 0.0F);
  play_with_sound_font(samples, sound.layers, sound_font);
  for (const SoundLayer& layer : sound.layers) {
    for (const SoundNote& note : layer.notes) {
      if (layer.voice == Voice::Sine) add_sine(samples, note);
      if (layer.voice == Voice::Noise) add_noise(samples, note);
    }
  }
  return samples;
}

Samples finish(Samples samples, double seconds, double peak) {
  constexpr float audible = 0.002F; // of the loudest sample, -54 dB
  constexpr double fade_in_seconds = 0.0015;
  constexpr double longest_fade_out = 0.35;
  const float threshold = loudest(samples) * audible;
  if (threshold <= 0) {
    samples.resize(std::min(samples.size(), sample_count(seconds)));
    return samples;
  }
  const auto heard = [threshold](float sample) { return std::abs(sample) > threshold; };
  samples.erase(samples.begin(), std::find_if(samples.begin(), samples.end(), heard));
  samples.erase(std::find_if(samples.rbegin(), samples.rend(), heard).base(), samples.end());
  if (samples.size() > sample_count(seconds)) samples.resize(sample_count(seconds));
  const double length = static_cast<double>(samples.size()) / sample_rate;
  fade(samples, sample_count(fade_in_seconds), sample_count(std::min(longest_fade_out, length / 4)));
  const float gain = static_cast<float>(std::pow(10.0, peak / 20)) / loudest(samples);
  for (float& sample : samples) sample *= gain;
  return samples;
}

} // namespace cserko
