#include "platform/qt/sdl_media.h"

#include "platform/media_length.h"
#include "platform/qt/sound_player.h"

#include <QFile>
#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <variant>
#include <vector>

namespace cserko {
namespace {

/// Of a wave the beginning is enough; a tune is read whole, and a bigger file is none that is meant here.
constexpr qint64 wave_beginning = 65'536;
constexpr qint64 longest_tune = 4'194'304;

using Length = std::optional<std::chrono::milliseconds>;

Length length_of(QFile& file, MediaAlias alias) {
  const QByteArray bytes = file.read(alias == MediaAlias::Hang ? wave_beginning : longest_tune);
  const std::span view(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                       static_cast<std::size_t>(bytes.size()));
  return alias == MediaAlias::Hang ? wave_length(view, static_cast<std::uint64_t>(file.size())) : midi_length(view);
}

} // namespace

SdlMedia::SdlMedia(PathMapping utf8_path)
    : utf8_path_(std::move(utf8_path)), player_(std::make_unique<SoundPlayer>()) {}

SdlMedia::~SdlMedia() = default;

MediaResult SdlMedia::send(const std::u16string& command) {
  const auto parsed = parse_media_command(command);
  if (const auto* error = std::get_if<MediaError>(&parsed)) return {static_cast<int>(*error), {}};
  const auto& known = std::get<MediaCommand>(parsed);
  notice_end(known.alias);
  if (const MediaError refusal = state_.refusal(known); refusal != MediaError::None)
    return {static_cast<int>(refusal), {}};
  if (const MediaError error = carry_out(known); error != MediaError::None) return {static_cast<int>(error), {}};
  state_.apply(known);
  return {0, known.verb == MediaVerb::Status ? state_.status_word(known.alias) : std::u16string()};
}

std::u16string SdlMedia::error_text(int code) { return media_error_text(code); }

void SdlMedia::beep() { player_->beep(); }

std::u16string SdlMedia::silence_reason() const { return player_->silence_reason(); }

MediaError SdlMedia::carry_out(const MediaCommand& command) {
  switch (command.verb) {
  case MediaVerb::Open:
    return open(command);
  case MediaVerb::Play:
    play(command.alias);
    break;
  case MediaVerb::Pause:
    pause();
    break;
  case MediaVerb::Close:
    player_->close(command.alias);
    break;
  case MediaVerb::Status:
    break;
  }
  return MediaError::None;
}

MediaError SdlMedia::open(const MediaCommand& command) {
  const std::string path = utf8_path_(command.path);
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) return MediaError::FileNotFound;
  const Length length = length_of(file, command.alias);
  if (!length) return MediaError::BadFile;
  run(command.alias) = {*length, {}, {}};
  player_->load(command.alias, path);
  return MediaError::None;
}

void SdlMedia::play(MediaAlias alias) {
  const MediaMode mode = state_.mode(alias);
  if (mode == MediaMode::Playing) return;
  if (mode == MediaMode::Paused) {
    player_->resume_music();
  } else {
    // Music that has ended is made ready anew: not every instrument of the mixer can go back to the beginning.
    if (alias == MediaAlias::Midi && player_->fate(alias) == TitleFate::Ended)
      player_->load(alias, utf8_path_(state_.path(alias)));
    run(alias).before = {};
    player_->start(alias);
  }
  run(alias).since = Clock::now();
}

void SdlMedia::pause() {
  if (state_.mode(MediaAlias::Midi) != MediaMode::Playing) return;
  Run& midi = run(MediaAlias::Midi);
  midi.before += Clock::now() - midi.since;
  player_->pause_music();
}

void SdlMedia::notice_end(MediaAlias alias) {
  if (state_.mode(alias) != MediaMode::Playing) return;
  const Run& title = run(alias);
  switch (player_->fate(alias)) {
  case TitleFate::Underway:
    break;
  case TitleFate::Ended:
  case TitleFate::Broken:
    state_.title_ended(alias);
    break;
  case TitleFate::Mute:
    if (title.before + (Clock::now() - title.since) >= title.length) state_.title_ended(alias);
    break;
  }
}

} // namespace cserko
