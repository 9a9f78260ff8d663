// The language of the media control: its command strings, what it refuses, and the words for its state. Every machine
// speaks it through these, so that a test hears the same answers as a child's computer gives.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace cserko {

/// The two names under which a title can be open: one wave sound, one piece of music.
enum class MediaAlias : std::uint8_t { Hang, Midi };

enum class MediaVerb : std::uint8_t { Open, Play, Pause, Close, Status };

struct MediaCommand {
  MediaVerb verb = MediaVerb::Status;
  MediaAlias alias = MediaAlias::Hang;
  std::u16string path; ///< only for Open: the text between the quotes

  bool operator==(const MediaCommand&) const = default;
};

enum class MediaError : int {
  None = 0,
  UnknownCommand = 1, ///< not one of the command strings
  BadFileName = 2,    ///< no name between the quotes, or one that no file can have
  FileNotFound = 3,
  BadFile = 4,      ///< the file is there and is no title of the asked kind
  AliasInUse = 5,   ///< open, and the alias has a title already
  AliasNotOpen = 6, ///< anything but open, and the alias has no title
};

/// Reads one command string. Exactly these are known, blanks and letter case included:
///   open "PATH" type waveaudio alias hang      open "PATH" type sequencer alias midi
///   play hang[blank]    close hang             play midi[blank]    play midi    pause midi    close midi
///   Status hang mode    Status midi mode
std::variant<MediaCommand, MediaError> parse_media_command(std::u16string_view text);

/// A Hungarian sentence for a code; empty for 0, a general sentence for a code that is not an error of ours.
std::u16string media_error_text(int code);

enum class MediaMode : std::uint8_t { Closed, Stopped, Playing, Paused };

/// What both aliases are up to, and which commands that allows. It knows no clock and no sound: the machine asks
/// `refusal`, does the work, tells it by `apply`, and reports the end of a title.
class MediaState {
 public:
  /// Why a command cannot be carried out now; None if it can. Playing what plays and pausing what has ended are no
  /// errors: the title may have ended between the question and the command.
  MediaError refusal(const MediaCommand& command) const;

  /// Takes note of a command that was carried out. Call it only where `refusal` gives None.
  void apply(const MediaCommand& command);

  /// The title under an alias has come to its end by itself, or turned out to be unplayable.
  void title_ended(MediaAlias alias);

  MediaMode mode(MediaAlias alias) const { return modes_[static_cast<std::size_t>(alias)]; }

  /// Path of the title that is open under an alias; empty if none is.
  const std::u16string& path(MediaAlias alias) const { return paths_[static_cast<std::size_t>(alias)]; }

  /// "playing", "paused" or "stopped"; empty if the alias is not open.
  std::u16string status_word(MediaAlias alias) const;

 private:
  std::array<MediaMode, 2> modes_{MediaMode::Closed, MediaMode::Closed};
  std::array<std::u16string, 2> paths_;
};

} // namespace cserko
