// Lines of UTF-8 text, each a command string, through the parser and the state of both aliases. What is understood must
// be what was written, and the state must always have a word that fits.
#include "platform/media_command.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace cserko;

void require(bool condition) {
  if (!condition) std::abort();
}

/// One unit a byte, or two bytes a unit where the line starts with '#': so that all units can be reached.
std::u16string units(std::string_view line) {
  std::u16string text;
  if (!line.starts_with('#')) {
    for (const char c : line) text.push_back(static_cast<unsigned char>(c));
    return text;
  }
  for (std::size_t i = 1; i + 1 < line.size(); i += 2)
    text.push_back(
        static_cast<char16_t>(static_cast<unsigned char>(line[i]) << 8 | static_cast<unsigned char>(line[i + 1])));
  return text;
}

void run(MediaState& state, const std::u16string& text) {
  const auto parsed = parse_media_command(text);
  if (const auto* error = std::get_if<MediaError>(&parsed)) {
    require(*error != MediaError::None && !media_error_text(static_cast<int>(*error)).empty());
    return;
  }
  const auto& command = std::get<MediaCommand>(parsed);
  if (command.verb == MediaVerb::Open)
    require(!command.path.empty() && text.starts_with(u"open \"" + command.path + u"\" type "));
  else
    require(command.path.empty() && text.size() <= 16);
  if (state.refusal(command) == MediaError::None)
    state.apply(command);
  else
    require(command.verb == MediaVerb::Open || state.mode(command.alias) == MediaMode::Closed);
  for (const MediaAlias alias : {MediaAlias::Hang, MediaAlias::Midi}) {
    require(state.status_word(alias).empty() == (state.mode(alias) == MediaMode::Closed));
    require(state.path(alias).empty() == (state.mode(alias) == MediaMode::Closed));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  MediaState state;
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    run(state, units(rest.substr(0, end)));
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
    if (rest.size() % 7 == 0) state.title_ended(rest.size() % 2 == 0 ? MediaAlias::Hang : MediaAlias::Midi);
  }
  return 0;
}
