#include "platform/qt/sound_voices.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace cserko {
namespace {

constexpr int fade_frames = mixer_rate * 5 / 1000;

} // namespace

void SoundVoices::fade_effect(int, void* stream, int bytes, void* data) {
  Voice& voice = *static_cast<Voice*>(data);
  const bool heard_before = voice.heard.exchange(true);
  if (!voice.fading) return;
  if (!heard_before) voice.fade_frames_left = 0;
  auto* sample = static_cast<std::int16_t*>(stream);
  const int frames = bytes / static_cast<int>(sizeof(std::int16_t) * mixer_channels);
  for (int i = 0; i < frames; ++i) {
    if (voice.fade_frames_left > 0) --voice.fade_frames_left;
    for (int channel = 0; channel < mixer_channels; ++channel, ++sample)
      *sample = static_cast<std::int16_t>(*sample * voice.fade_frames_left / fade_frames);
  }
  if (voice.fade_frames_left == 0) voice.faded = true;
}

void SoundVoices::note_end(int, void* data) { static_cast<Voice*>(data)->over = true; }

int SoundVoices::free_voice() {
  const auto index_of = [this](auto condition) {
    const auto found = std::find_if(voices_.begin(), voices_.end(), condition);
    return found == voices_.end() ? -1 : static_cast<int>(found - voices_.begin());
  };
  if (const int over = index_of([](const Voice& v) { return v.over.load(); }); over >= 0) return over;
  if (const int faded = index_of([](const Voice& v) { return v.faded.load(); }); faded >= 0) return faded;
  if (const int unheard = index_of([](const Voice& v) { return v.fading && !v.heard; }); unheard >= 0) return unheard;
  const auto oldest =
      std::min_element(voices_.begin(), voices_.end(), [](const Voice& a, const Voice& b) { return a.turn < b.turn; });
  return static_cast<int>(oldest - voices_.begin());
}

SoundVoices::Id SoundVoices::play(ChunkPtr chunk) {
  if (!chunk) return {};
  const int channel = free_voice();
  Voice& voice = voices_[static_cast<std::size_t>(channel)];
  Mix_HaltChannel(channel);
  voice.heard = false;
  voice.fading = false;
  voice.faded = false;
  voice.over = false;
  voice.fade_frames_left = fade_frames;
  voice.turn = ++turns_;
  voice.chunk = std::move(chunk);
  if (Mix_RegisterEffect(channel, fade_effect, note_end, &voice) == 0 ||
      Mix_PlayChannel(channel, voice.chunk.get(), 0) < 0) {
    Mix_UnregisterAllEffects(channel);
    voice.over = true;
  }
  return {channel, voice.turn};
}

void SoundVoices::stop(Id id) {
  if (sounding(id)) voices_[static_cast<std::size_t>(id.voice)].fading = true;
}

bool SoundVoices::sounding(Id id) const {
  if (id.voice < 0) return false;
  const Voice& voice = voices_[static_cast<std::size_t>(id.voice)];
  return voice.turn == id.turn && !voice.over;
}

bool SoundVoices::tidy() {
  bool fade_under_way = false;
  for (std::size_t i = 0; i < voices_.size(); ++i) {
    Voice& voice = voices_[i];
    if (voice.faded && !voice.over) Mix_HaltChannel(static_cast<int>(i));
    if (voice.over)
      voice.chunk.reset();
    else if (voice.fading)
      fade_under_way = true;
  }
  return fade_under_way;
}

void SoundVoices::halt() {
  Mix_HaltChannel(-1);
  for (Voice& voice : voices_) {
    voice.over = true;
    voice.chunk.reset();
  }
}

} // namespace cserko
