#include "platform/headless/recorded_media.h"

namespace cserko {

RecordedMedia::RecordedMedia(const MemoryFiles& files, std::function<std::int64_t()> clock)
    : files_(files), clock_(std::move(clock)) {}

MediaResult RecordedMedia::send(const std::u16string& command) {
  commands.push_back(command);
  for (const auto& [beginning, code] : refused_) {
    if (command.starts_with(beginning)) return {code, {}};
  }
  const auto parsed = parse_media_command(command);
  if (const auto* error = std::get_if<MediaError>(&parsed)) return {static_cast<int>(*error), {}};
  return carry_out(std::get<MediaCommand>(parsed));
}

MediaResult RecordedMedia::carry_out(const MediaCommand& command) {
  notice_end(command.alias);
  MediaError error = state_.refusal(command);
  if (error == MediaError::None && command.verb == MediaVerb::Open) error = open_error(command);
  if (error != MediaError::None) return {static_cast<int>(error), {}};
  if (command.verb == MediaVerb::Play) play(command.alias);
  if (command.verb == MediaVerb::Pause) pause(command.alias);
  state_.apply(command);
  return {0, command.verb == MediaVerb::Status ? state_.status_word(command.alias) : Text()};
}

MediaError RecordedMedia::open_error(const MediaCommand& command) const {
  if (!files_.exists(command.path)) return MediaError::FileNotFound;
  return broken_.count(MemoryFiles::folded(command.path)) != 0 ? MediaError::BadFile : MediaError::None;
}

void RecordedMedia::play(MediaAlias alias) {
  const MediaMode mode = state_.mode(alias);
  if (mode == MediaMode::Playing) return;
  if (mode == MediaMode::Stopped) {
    run(alias).left = length(alias);
    played.push_back(state_.path(alias));
  }
  run(alias).since = clock_();
}

void RecordedMedia::pause(MediaAlias alias) {
  if (state_.mode(alias) == MediaMode::Playing) run(alias).left -= clock_() - run(alias).since;
}

void RecordedMedia::notice_end(MediaAlias alias) {
  if (state_.mode(alias) == MediaMode::Playing && clock_() - run(alias).since >= run(alias).left)
    state_.title_ended(alias);
}

std::int64_t RecordedMedia::length(MediaAlias alias) const {
  const auto found = lengths_.find(MemoryFiles::folded(state_.path(alias)));
  if (found != lengths_.end()) return found->second;
  return alias == MediaAlias::Hang ? sound_length : music_length;
}

MediaMode RecordedMedia::mode(MediaAlias alias) {
  notice_end(alias);
  return state_.mode(alias);
}

std::u16string RecordedMedia::error_text(int code) { return media_error_text(code); }

} // namespace cserko
