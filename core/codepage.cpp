#include "core/codepage.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace cserko {

namespace {

constexpr int first_high_code = 128;

// Characters of the codes 128 to 255; the lower half is ASCII.
constexpr std::array<char16_t, 128> high_characters{
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, // 128
    0x0088, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179, // 136
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 144
    0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, // 152
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7, // 160
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, // 168
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, // 176
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, // 184
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, // 192
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, // 200
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, // 208
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, // 216
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, // 224
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, // 232
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7, // 240
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9, // 248
};

struct Entry {
  char16_t character;
  int code;
};

// The same table the other way round, ordered by character.
std::array<Entry, 128> by_character() {
  std::array<Entry, 128> entries{};
  for (std::size_t i = 0; i < entries.size(); ++i)
    entries[i] = {high_characters[i], static_cast<int>(i) + first_high_code};
  std::sort(entries.begin(), entries.end(), [](Entry a, Entry b) { return a.character < b.character; });
  return entries;
}

char16_t character_of(unsigned char byte) {
  return byte < first_high_code ? static_cast<char16_t>(byte) : high_characters[byte - first_high_code];
}

} // namespace

Text from_cp1250(std::string_view bytes) {
  Text text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char byte) { return character_of(static_cast<unsigned char>(byte)); });
  return text;
}

std::string to_cp1250(TextView text) {
  std::string bytes(text.size(), '?');
  std::transform(text.begin(), text.end(), bytes.begin(), [](char16_t character) {
    const int code = cp1250_code(character);
    return code < 0 ? '?' : static_cast<char>(code);
  });
  return bytes;
}

int cp1250_code(char16_t character) {
  if (character < first_high_code) return character;
  static const std::array<Entry, 128> entries = by_character();
  const auto found = std::lower_bound(entries.begin(), entries.end(), character,
                                      [](Entry entry, char16_t wanted) { return entry.character < wanted; });
  return found != entries.end() && found->character == character ? found->code : -1;
}

char16_t cp1250_character(int code) {
  if (code < 0 || code > 255) throw std::out_of_range("code page 1250: the code is not 0 to 255");
  return character_of(static_cast<unsigned char>(code));
}

LineReader::LineReader(std::string_view bytes, std::size_t start)
    : bytes_(bytes), position_(std::min(start, bytes.size())) {}

std::string_view LineReader::next() {
  const std::size_t start = position_;
  const auto ends_line = [](char byte) { return byte == '\r' || byte == '\n'; };
  const auto found = std::find_if(bytes_.begin() + static_cast<std::ptrdiff_t>(start), bytes_.end(), ends_line);
  const auto line_end = static_cast<std::size_t>(found - bytes_.begin());
  const bool pair = bytes_.substr(line_end, 2) == "\r\n";
  position_ = std::min(line_end + (pair ? 2 : 1), bytes_.size());
  return bytes_.substr(start, line_end - start);
}

} // namespace cserko
