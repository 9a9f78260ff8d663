// Wave sounds on the mixer's channels. A sound that is stopped fades out within a few milliseconds while the next one
// already plays on another channel: no click, no delay.
#pragma once

#include <SDL_mixer.h>
#include <array>
#include <atomic>
#include <memory>

namespace cserko {

using ChunkPtr = std::shared_ptr<Mix_Chunk>;

/// The format in which the device is opened; the fade works on samples of this format.
inline constexpr int mixer_rate = 44100;
inline constexpr Uint16 mixer_format = AUDIO_S16SYS;
inline constexpr int mixer_channels = 2;

/// All calls from one thread, while the mixer is open.
class SoundVoices {
 public:
  static constexpr int count = 8;

  /// Names one playing of one sound; it stays valid, and not sounding, after its end.
  struct Id {
    int voice = -1;
    unsigned turn = 0;
  };

  /// Starts a sound at once. The voice keeps it alive until it is over. An Id that never sounds if it cannot be played.
  Id play(ChunkPtr chunk);

  /// Fades a sound out within 5 ms. One that was not heard yet stays unheard.
  void stop(Id id);

  bool sounding(Id id) const;

  /// Ends what has faded out and lets go of the sounds that are over. Returns whether a fade is still under way.
  bool tidy();

  /// Ends everything at once.
  void halt();

 private:
  struct Voice {
    std::atomic<bool> heard{false}; // some of it has been mixed
    std::atomic<bool> fading{false};
    std::atomic<bool> faded{false};
    std::atomic<bool> over{true};
    int fade_frames_left = 0; // the mixer's thread alone touches it while the voice sounds
    unsigned turn = 0;
    ChunkPtr chunk;
  };

  static void SDLCALL fade_effect(int channel, void* stream, int bytes, void* voice);
  static void SDLCALL note_end(int channel, void* voice);
  int free_voice();

  std::array<Voice, count> voices_;
  unsigned turns_ = 0;
};

} // namespace cserko
