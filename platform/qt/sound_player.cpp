#include "platform/qt/sound_player.h"

#include "platform/qt/sound_font.h"

#include <QFile>
#include <SDL.h>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <future>
#include <numbers>
#include <utility>

namespace cserko {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// One buffer is 12 ms: soon enough after a key for a child's ear, long enough for a slow computer.
constexpr int buffer_frames = 512;

/// Music is a background: it stays well under the event sounds, which fill the scale.
constexpr int music_gain = 40;
constexpr int gain_step = 5;
/// A little below 0: the music counts as silent only after the mixer has surely made a buffer at gain 0.
constexpr int silent_gain = -5 * gain_step;
constexpr milliseconds fade_tick{5};
constexpr milliseconds watch_tick{40};

/// A title that was let go keeps the sound font in memory, so that the next one opens in a moment. After this time
/// without a next one the memory is given back.
constexpr milliseconds keep_released{10'000};

/// A tune may have been recorded for computers without instruments: the recording has its name but for the ending.
constexpr char recording_ending[] = ".ogg";

std::vector<std::int16_t> make_beep() {
  constexpr double seconds = 0.18;
  constexpr double pitch = 523.25; // a low, round c: a remark, not an alarm
  constexpr double peak = 0.3;
  constexpr double rise = 0.006;
  const auto frames = static_cast<std::size_t>(seconds * mixer_rate);
  std::vector<std::int16_t> samples;
  samples.reserve(frames * mixer_channels);
  for (std::size_t i = 0; i < frames; ++i) {
    const double t = static_cast<double>(i) / mixer_rate;
    const double envelope = std::min(1.0, t / rise) * std::exp(-t * 14.0) * std::min(1.0, (seconds - t) / 0.02);
    const double wave = std::sin(2.0 * std::numbers::pi * pitch * t);
    const auto sample = static_cast<std::int16_t>(std::lround(wave * envelope * peak * 32767.0));
    samples.insert(samples.end(), mixer_channels, sample);
  }
  return samples;
}

/// The recording that lies beside a tune; null where there is none that can be played.
Mix_Music* load_recording(const std::string& tune) {
  const std::string recording = tune.substr(0, tune.rfind('.')) + recording_ending;
  if (!QFile::exists(QString::fromStdString(recording))) return nullptr;
  return Mix_LoadMUS_RW(SDL_RWFromFile(recording.c_str(), "rb"), SDL_TRUE);
}

std::size_t index(MediaAlias alias) { return static_cast<std::size_t>(alias); }

} // namespace

SoundPlayer::SoundPlayer() : player_([this] { return player_upkeep(); }), loader_([this] { return loader_upkeep(); }) {
  player_.post([this] { open_device(); });
}

SoundPlayer::~SoundPlayer() {
  // The player forgets the music before the loader frees it, and the device closes last, on the thread that opened it.
  std::promise<void> silent;
  player_.post([this, &silent] {
    closing_ = true;
    if (device_open_) {
      voices_.halt();
      Mix_HaltMusic();
    }
    wave_ = {};
    music_ = {};
    leaving_music_ = nullptr;
    silent.set_value();
  });
  {
    const std::lock_guard lock(mutex_);
    for (Title& title : titles_) ++title.number; // what is still waiting to be loaded is loaded no more
  }
  silent.get_future().wait();
  loader_.stop([this] {
    free_all_music();
    SDL_TLSCleanup(); // SDL keeps its error texts by thread
  });
  player_.stop([this] {
    close_device();
    SDL_TLSCleanup();
  });
}

void SoundPlayer::load(MediaAlias alias, const std::string& utf8_path) {
  unsigned number = 0;
  {
    const std::lock_guard lock(mutex_);
    Title& title = titles_[index(alias)];
    title.fate = TitleFate::Underway;
    number = ++title.number;
  }
  if (alias == MediaAlias::Hang) {
    player_.post([this, number, utf8_path] { load_wave(number, utf8_path); });
    return;
  }
  player_.post([this, number, utf8_path] {
    close_music();
    music_.number = number;
    if (!device_open_) return set_fate(MediaAlias::Midi, number, TitleFate::Mute);
    loader_.post([this, number, utf8_path] { load_music(number, utf8_path); });
  });
}

void SoundPlayer::start(MediaAlias alias) {
  unsigned number = 0;
  {
    const std::lock_guard lock(mutex_);
    Title& title = titles_[index(alias)];
    if (title.fate == TitleFate::Ended) title.fate = TitleFate::Underway;
    number = title.number;
  }
  if (alias == MediaAlias::Hang)
    player_.post([this, number] { start_wave(number); });
  else
    player_.post([this] {
      music_.wish = Wish::Play;
      step_music();
    });
}

void SoundPlayer::pause_music() {
  player_.post([this] { music_.wish = Wish::Pause; });
}

void SoundPlayer::resume_music() {
  player_.post([this] { music_.wish = Wish::Play; });
}

void SoundPlayer::close(MediaAlias alias) {
  {
    const std::lock_guard lock(mutex_);
    ++titles_[index(alias)].number;
  }
  player_.post([this, alias] { alias == MediaAlias::Hang ? close_wave() : close_music(); });
}

void SoundPlayer::beep() {
  player_.post([this] { play_beep(); });
}

TitleFate SoundPlayer::fate(MediaAlias alias) const {
  const std::lock_guard lock(mutex_);
  return titles_[index(alias)].fate;
}

std::u16string SoundPlayer::silence_reason() const {
  const std::lock_guard lock(mutex_);
  return silence_reason_;
}

unsigned SoundPlayer::title_number(MediaAlias alias) const {
  const std::lock_guard lock(mutex_);
  return titles_[index(alias)].number;
}

void SoundPlayer::set_fate(MediaAlias alias, unsigned number, TitleFate fate) {
  const std::lock_guard lock(mutex_);
  Title& title = titles_[index(alias)];
  if (title.number == number) title.fate = fate;
}

void SoundPlayer::set_silence_reason(std::u16string reason) {
  const std::lock_guard lock(mutex_);
  silence_reason_ = std::move(reason);
}

void SoundPlayer::open_device() {
  SDL_SetMainReady();                            // the program has begun without SDL
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // ending the program is not SDL's business
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Cserkó");
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
    if (Mix_OpenAudioDevice(mixer_rate, mixer_format, mixer_channels, buffer_frames, nullptr, 0) == 0) {
      Mix_AllocateChannels(SoundVoices::count);
      beep_samples_ = make_beep();
      device_open_ = true;
      return;
    }
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }
  set_silence_reason(no_device);
}

void SoundPlayer::close_device() {
  if (!device_open_) return;
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  device_open_ = false;
}

void SoundPlayer::load_wave(unsigned number, const std::string& path) {
  close_wave();
  if (title_number(MediaAlias::Hang) != number) return; // closed again meanwhile: a slow computer skips it
  wave_.number = number;
  if (!device_open_) return set_fate(MediaAlias::Hang, number, TitleFate::Mute);
  wave_.chunk = ChunkPtr(Mix_LoadWAV(path.c_str()), [](Mix_Chunk* chunk) { Mix_FreeChunk(chunk); });
  if (!wave_.chunk) set_fate(MediaAlias::Hang, number, TitleFate::Broken);
}

void SoundPlayer::start_wave(unsigned number) {
  if (wave_.number != number || !wave_.chunk || title_number(MediaAlias::Hang) != number) return;
  voices_.stop(wave_.voice);
  wave_.voice = voices_.play(wave_.chunk);
  wave_.started = true;
}

void SoundPlayer::close_wave() {
  voices_.stop(wave_.voice);
  wave_ = {};
}

void SoundPlayer::take_music(unsigned number, Mix_Music* music) {
  if (closing_) return;
  if (music_.number != number) return release_music(music);
  music_.music = music;
  step_music();
}

void SoundPlayer::close_music() {
  if (music_.music != nullptr) {
    if (music_.started && leaving_music_ == nullptr)
      leaving_music_ = music_.music;
    else
      release_music(music_.music);
  }
  music_ = {};
}

void SoundPlayer::release_music(Mix_Music* music) {
  loader_.post([this, music] {
    released_music_.push_back(music);
    release_time_ = steady_clock::now() + keep_released;
  });
}

/// Brings the music a step closer to what is wished of it.
void SoundPlayer::step_music() {
  if (leaving_music_ != nullptr && (gain_ == silent_gain || Mix_PlayingMusic() == 0 || Mix_PausedMusic() != 0)) {
    Mix_HaltMusic();
    release_music(leaving_music_);
    leaving_music_ = nullptr;
  }
  if (leaving_music_ != nullptr || music_.music == nullptr) return;
  if (!music_.started && music_.wish == Wish::Play) {
    gain_ = music_gain;
    Mix_VolumeMusic(gain_);
    music_.started = Mix_PlayMusic(music_.music, 1) == 0;
    if (!music_.started) {
      release_music(music_.music);
      music_.music = nullptr;
      return set_fate(MediaAlias::Midi, music_.number, TitleFate::Broken);
    }
  }
  if (!music_.started) return;
  if (music_.wish == Wish::Pause && gain_ == silent_gain && Mix_PausedMusic() == 0) Mix_PauseMusic();
  if (music_.wish == Wish::Play && Mix_PausedMusic() != 0) Mix_ResumeMusic();
  if (music_.wish == Wish::Play && Mix_PlayingMusic() == 0) {
    music_.wish = Wish::Rest;
    set_fate(MediaAlias::Midi, music_.number, TitleFate::Ended);
  }
}

/// Moves the loudness of the music towards where it should be. Returns whether it is still on its way.
bool SoundPlayer::step_gain() {
  const bool heard = leaving_music_ == nullptr && music_.started && music_.wish == Wish::Play;
  const int wanted = heard ? music_gain : silent_gain;
  if (gain_ == wanted) return false;
  gain_ = gain_ < wanted ? std::min(gain_ + gain_step, wanted) : std::max(gain_ - gain_step, wanted);
  Mix_VolumeMusic(std::max(gain_, 0));
  return true;
}

void SoundPlayer::play_beep() {
  if (!device_open_) return;
  voices_.stop(beep_voice_);
  auto* bytes = reinterpret_cast<Uint8*>(beep_samples_.data());
  const auto size = static_cast<Uint32>(beep_samples_.size() * sizeof(beep_samples_[0]));
  beep_voice_ = voices_.play(ChunkPtr(Mix_QuickLoad_RAW(bytes, size), [](Mix_Chunk* chunk) { Mix_FreeChunk(chunk); }));
}

std::optional<milliseconds> SoundPlayer::player_upkeep() {
  if (!device_open_ || closing_) return std::nullopt;
  const bool voice_fading = voices_.tidy();
  const bool gain_moving = (music_.started || leaving_music_ != nullptr) && step_gain();
  step_music();
  const bool wave_sounds = voices_.sounding(wave_.voice);
  if (wave_.started && !wave_sounds) {
    wave_.started = false;
    set_fate(MediaAlias::Hang, wave_.number, TitleFate::Ended);
  }
  if (voice_fading || gain_moving || leaving_music_ != nullptr) return fade_tick;
  if (wave_sounds || (music_.started && music_.wish == Wish::Play) || voices_.sounding(beep_voice_)) return watch_tick;
  return std::nullopt;
}

void SoundPlayer::load_music(unsigned number, const std::string& path) {
  if (title_number(MediaAlias::Midi) != number) return;
  Mix_Music* music = load_recording(path);
  if (music == nullptr) {
    choose_sound_font();
    const bool font_usable = is_sound_font(sound_font_);
    // Without a font of ours the mixer may know instruments of its own; a font that is none would play silence.
    if (font_usable || sound_font_.empty()) music = Mix_LoadMUS(path.c_str());
    if (music == nullptr) {
      if (!font_usable) set_silence_reason(no_instruments);
      return set_fate(MediaAlias::Midi, number, font_usable ? TitleFate::Broken : TitleFate::Mute);
    }
  }
  all_music_.push_back(music);
  free_released_music();
  player_.post([this, number, music] { take_music(number, music); });
}

void SoundPlayer::choose_sound_font() {
  if (sound_font_chosen_) return;
  sound_font_chosen_ = true;
  sound_font_ = find_sound_font();
  if (!sound_font_.empty()) Mix_SetSoundFonts(sound_font_.c_str());
}

void SoundPlayer::free_released_music() {
  for (Mix_Music* music : released_music_) {
    std::erase(all_music_, music);
    Mix_FreeMusic(music);
  }
  released_music_.clear();
}

void SoundPlayer::free_all_music() {
  for (Mix_Music* music : all_music_) Mix_FreeMusic(music);
  all_music_.clear();
  released_music_.clear();
}

std::optional<milliseconds> SoundPlayer::loader_upkeep() {
  if (released_music_.empty()) return std::nullopt;
  const auto now = steady_clock::now();
  if (now < release_time_) return std::chrono::ceil<milliseconds>(release_time_ - now);
  free_released_music();
  return std::nullopt;
}

} // namespace cserko
