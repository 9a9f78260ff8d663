// The sounding half of the media control: SDL's mixer behind two background threads, so that no call ever waits for a
// device, a file or a sound font. The player thread makes all short calls of the mixer; the loader thread reads music,
// which takes a second when the sound font is read first.
#pragma once

#include "platform/media_command.h"
#include "platform/qt/sound_voices.h"
#include "platform/qt/worker.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace cserko {

/// Why nothing is heard.
inline constexpr char16_t no_device[] = u"Nem található működő hangeszköz, ezért a program most hang nélkül fut.";
inline constexpr char16_t no_instruments[] =
    u"Nem található hangszerkészlet (General MIDI sound font), ezért a háttérzene nem szól.";

/// What has become of a title.
enum class TitleFate : std::uint8_t {
  Underway, ///< loading, ready or sounding
  Ended,    ///< it sounded to its end
  Broken,   ///< it cannot be played
  Mute,     ///< the machine has no device, or no instruments for music
};

/// Calls come from one thread and return at once.
class SoundPlayer {
 public:
  SoundPlayer();
  ~SoundPlayer();
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;

  /// Makes the title of an alias ready; the alias has none, or is closed first.
  void load(MediaAlias alias, const std::string& utf8_path);
  /// Plays the loaded title from its beginning, as soon as it is ready.
  void start(MediaAlias alias);
  void pause_music();
  void resume_music();
  /// Stops and lets go of the title, fading out.
  void close(MediaAlias alias);
  void beep();

  TitleFate fate(MediaAlias alias) const;
  /// Why there is no sound or no music, in Hungarian; empty if all is well, or not known to be otherwise yet.
  std::u16string silence_reason() const;

 private:
  struct Title {
    unsigned number = 0;
    TitleFate fate = TitleFate::Underway;
  };
  enum class Wish : std::uint8_t { Rest, Play, Pause };
  struct Wave {
    unsigned number = 0;
    ChunkPtr chunk;
    SoundVoices::Id voice;
    bool started = false;
  };
  struct Music {
    unsigned number = 0;
    Mix_Music* music = nullptr; // the loader's own; null until it is loaded
    Wish wish = Wish::Rest;
    bool started = false;
  };

  unsigned title_number(MediaAlias alias) const;
  void set_fate(MediaAlias alias, unsigned number, TitleFate fate);
  void set_silence_reason(std::u16string reason);

  // On the player thread.
  void open_device();
  void close_device();
  void load_wave(unsigned number, const std::string& path);
  void start_wave(unsigned number);
  void close_wave();
  void take_music(unsigned number, Mix_Music* music);
  void close_music();
  void release_music(Mix_Music* music);
  void step_music();
  bool step_gain();
  void play_beep();
  std::optional<std::chrono::milliseconds> player_upkeep();

  // On the loader thread.
  void load_music(unsigned number, const std::string& path);
  void choose_sound_font();
  void free_released_music();
  void free_all_music();
  std::optional<std::chrono::milliseconds> loader_upkeep();

  mutable std::mutex mutex_; // guards the next two
  std::array<Title, 2> titles_;
  std::u16string silence_reason_;

  // The player thread's.
  bool device_open_ = false;
  bool closing_ = false;
  SoundVoices voices_;
  SoundVoices::Id beep_voice_;
  std::vector<std::int16_t> beep_samples_;
  Wave wave_;
  Music music_;
  Mix_Music* leaving_music_ = nullptr; // fading out, then released
  int gain_ = 0;                       // of the music, 0 to 128, or below 0 when it has been silent for a while

  // The loader thread's.
  bool sound_font_chosen_ = false;
  std::string sound_font_;
  std::vector<Mix_Music*> all_music_;
  std::vector<Mix_Music*> released_music_;
  std::chrono::steady_clock::time_point release_time_;

  Worker player_;
  Worker loader_;
};

} // namespace cserko
