#include "platform/media_command.h"

#include <algorithm>

namespace cserko {
namespace {

struct FixedForm {
  std::u16string_view text;
  MediaVerb verb;
  MediaAlias alias;
};

constexpr FixedForm fixed_forms[] = {
    {u"play hang ", MediaVerb::Play, MediaAlias::Hang},
    {u"close hang", MediaVerb::Close, MediaAlias::Hang},
    {u"Status hang mode", MediaVerb::Status, MediaAlias::Hang},
    {u"play midi ", MediaVerb::Play, MediaAlias::Midi},
    {u"play midi", MediaVerb::Play, MediaAlias::Midi},
    {u"pause midi", MediaVerb::Pause, MediaAlias::Midi},
    {u"close midi", MediaVerb::Close, MediaAlias::Midi},
    {u"Status midi mode", MediaVerb::Status, MediaAlias::Midi},
};

constexpr std::u16string_view open_start = u"open \"";

struct OpenForm {
  std::u16string_view end;
  MediaAlias alias;
};

constexpr OpenForm open_forms[] = {
    {u"\" type waveaudio alias hang", MediaAlias::Hang},
    {u"\" type sequencer alias midi", MediaAlias::Midi},
};

bool can_be_file_name(std::u16string_view path) {
  return !path.empty() && std::none_of(path.begin(), path.end(), [](char16_t c) { return c < u' ' || c == u'"'; });
}

} // namespace

std::variant<MediaCommand, MediaError> parse_media_command(std::u16string_view text) {
  for (const FixedForm& form : fixed_forms)
    if (text == form.text) return MediaCommand{form.verb, form.alias, {}};
  if (!text.starts_with(open_start)) return MediaError::UnknownCommand;
  text.remove_prefix(open_start.size());
  for (const OpenForm& form : open_forms) {
    if (!text.ends_with(form.end)) continue;
    text.remove_suffix(form.end.size());
    if (!can_be_file_name(text)) return MediaError::BadFileName;
    return MediaCommand{MediaVerb::Open, form.alias, std::u16string(text)};
  }
  return MediaError::UnknownCommand;
}

std::u16string media_error_text(int code) {
  switch (static_cast<MediaError>(code)) {
  case MediaError::None:
    return {};
  case MediaError::UnknownCommand:
    return u"A hanglejátszó nem ismeri ezt a parancsot.";
  case MediaError::BadFileName:
    return u"A megadott fájlnév nem használható.";
  case MediaError::FileNotFound:
    return u"A megadott hangfájl nem található.";
  case MediaError::BadFile:
    return u"A megadott fájl nem játszható le, mert sérült, vagy nem hangfájl.";
  case MediaError::AliasInUse:
    return u"Már meg van nyitva egy hangfájl, előbb azt be kell zárni.";
  case MediaError::AliasNotOpen:
    return u"Nincs megnyitva hangfájl.";
  }
  return u"Ismeretlen hiba történt a hang lejátszása közben.";
}

MediaError MediaState::refusal(const MediaCommand& command) const {
  const bool open = mode(command.alias) != MediaMode::Closed;
  if (command.verb == MediaVerb::Open) return open ? MediaError::AliasInUse : MediaError::None;
  return open ? MediaError::None : MediaError::AliasNotOpen;
}

void MediaState::apply(const MediaCommand& command) {
  MediaMode& mode = modes_[static_cast<std::size_t>(command.alias)];
  std::u16string& path = paths_[static_cast<std::size_t>(command.alias)];
  switch (command.verb) {
  case MediaVerb::Open:
    mode = MediaMode::Stopped;
    path = command.path;
    break;
  case MediaVerb::Play:
    mode = MediaMode::Playing;
    break;
  case MediaVerb::Pause:
    if (mode == MediaMode::Playing) mode = MediaMode::Paused;
    break;
  case MediaVerb::Close:
    mode = MediaMode::Closed;
    path.clear();
    break;
  case MediaVerb::Status:
    break;
  }
}

void MediaState::title_ended(MediaAlias alias) {
  MediaMode& mode = modes_[static_cast<std::size_t>(alias)];
  if (mode != MediaMode::Closed) mode = MediaMode::Stopped;
}

std::u16string MediaState::status_word(MediaAlias alias) const {
  switch (mode(alias)) {
  case MediaMode::Closed:
    return {};
  case MediaMode::Stopped:
    return u"stopped";
  case MediaMode::Playing:
    return u"playing";
  case MediaMode::Paused:
    return u"paused";
  }
  return {};
}

} // namespace cserko
