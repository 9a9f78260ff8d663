// The media control of the real machine: the command strings over SDL's mixer. Waves play at once, music through a
// sound font. Where the computer has no device or no sound font everything runs in silence, for as long as it would
// have sounded, and `silence_reason` tells why.
#pragma once

#include "platform/media.h"
#include "platform/media_command.h"

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace cserko {

class SoundPlayer;

class SdlMedia : public Media {
 public:
  /// Gives the real path, in UTF-8, of a path as the suite writes it.
  using PathMapping = std::function<std::string(const std::u16string&)>;

  /// Starts to open the sound device in the background.
  explicit SdlMedia(PathMapping utf8_path);
  ~SdlMedia() override;
  SdlMedia(const SdlMedia&) = delete;
  SdlMedia& operator=(const SdlMedia&) = delete;

  MediaResult send(const std::u16string& command) override;
  std::u16string error_text(int code) override;
  void beep() override;

  /// Why there is no sound, or no music, in Hungarian; empty when all is well or nothing is known to be wrong yet. The
  /// device shows within moments after start, the sound font when the first music is opened.
  std::u16string silence_reason() const override;

 private:
  using Clock = std::chrono::steady_clock;

  /// How far a title has run, for the case that nothing sounds.
  struct Run {
    Clock::duration length{};
    Clock::duration before{}; // ran before the last pause
    Clock::time_point since{};
  };

  MediaError carry_out(const MediaCommand& command);
  MediaError open(const MediaCommand& command);
  void play(MediaAlias alias);
  void pause();
  void notice_end(MediaAlias alias);
  Run& run(MediaAlias alias) { return runs_[static_cast<std::size_t>(alias)]; }

  PathMapping utf8_path_;
  MediaState state_;
  std::array<Run, 2> runs_;
  std::unique_ptr<SoundPlayer> player_;
};

} // namespace cserko
