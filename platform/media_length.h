// How long a sound or a tune lasts, read from its bytes. It tells a title from any other file before it is opened, and
// lets a machine that cannot sound run the title through in silence.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

namespace cserko {

/// Length of a wave sound; none if the bytes are no RIFF wave. The beginning of the file is enough, with the size of
/// the whole. A sound whose parts cannot be made out has length 0.
std::optional<std::chrono::milliseconds> wave_length(std::span<const std::uint8_t> beginning, std::uint64_t file_size);

/// Length of a standard MIDI file by its tempo changes, from the start to its last event, a day at most; none if the
/// bytes do not start as such a file. A track that breaks off counts as far as it goes.
std::optional<std::chrono::milliseconds> midi_length(std::span<const std::uint8_t> bytes);

} // namespace cserko
