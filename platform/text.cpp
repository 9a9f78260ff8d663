#include "platform/text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace cserko {

namespace {

constexpr char32_t replacement = 0xFFFD;

void append(Text& text, char32_t point) {
  if (point < 0x10000) {
    text.push_back(static_cast<char16_t>(point));
    return;
  }
  point -= 0x10000;
  text.push_back(static_cast<char16_t>(0xD800 + (point >> 10)));
  text.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
}

void append(std::string& bytes, char32_t point) {
  const auto put = [&bytes](char32_t value) { bytes.push_back(static_cast<char>(value)); };
  if (point < 0x80) {
    put(point);
  } else if (point < 0x800) {
    put(0xC0 | (point >> 6));
    put(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    put(0xE0 | (point >> 12));
    put(0x80 | ((point >> 6) & 0x3F));
    put(0x80 | (point & 0x3F));
  } else {
    put(0xF0 | (point >> 18));
    put(0x80 | ((point >> 12) & 0x3F));
    put(0x80 | ((point >> 6) & 0x3F));
    put(0x80 | (point & 0x3F));
  }
}

// Length of the sequence that a lead byte opens; 0 for a byte that opens none.
std::size_t sequence_length(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

// The code point at `at`, or none where the sequence is malformed, overlong or a surrogate.
std::optional<char32_t> decode(std::string_view bytes, std::size_t at, std::size_t length) {
  if (length == 0 || at + length > bytes.size()) return std::nullopt;
  const auto lead = static_cast<unsigned char>(bytes[at]);
  if (length == 1) return lead;
  char32_t point = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[at + i]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    point = (point << 6) | (next & 0x3FU);
  }
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = point >= 0xD800 && point < 0xE000;
  if (point < smallest.at(length) || surrogate || point > 0x10FFFF) return std::nullopt;
  return point;
}

// In these blocks of Latin Extended-A the even code is the capital and the next odd one its small letter …
bool even_capital(char16_t c) { return (c >= 0x0100 && c <= 0x0137) || (c >= 0x014A && c <= 0x0177); }
// … and in these it is the other way round.
bool odd_capital(char16_t c) { return (c >= 0x0139 && c <= 0x0148) || (c >= 0x0179 && c <= 0x017E); }

} // namespace

Text from_utf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = sequence_length(static_cast<unsigned char>(bytes[at]));
    const std::optional<char32_t> point = decode(bytes, at, length);
    append(text, point.value_or(replacement));
    at += point ? length : 1;
  }
  return text;
}

std::string to_utf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t point = text[at];
    if (point >= 0xD800 && point < 0xE000) {
      const bool pair = point < 0xDC00 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
      point = pair ? 0x10000 + ((point - 0xD800) << 10) + (text[++at] - 0xDC00U) : replacement;
    }
    append(bytes, point);
  }
  return bytes;
}

char16_t lower_case(char16_t c) {
  if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c + 32);
  if (c >= 0x00C0 && c <= 0x00DE && c != 0x00D7) return static_cast<char16_t>(c + 32);
  if ((even_capital(c) && c % 2 == 0) || (odd_capital(c) && c % 2 == 1)) return static_cast<char16_t>(c + 1);
  return c;
}

char16_t upper_case(char16_t c) {
  if (c >= u'a' && c <= u'z') return static_cast<char16_t>(c - 32);
  if (c >= 0x00E0 && c <= 0x00FE && c != 0x00F7) return static_cast<char16_t>(c - 32);
  if ((even_capital(c) && c % 2 == 1) || (odd_capital(c) && c % 2 == 0)) return static_cast<char16_t>(c - 1);
  return c;
}

Text lower_case(TextView text) {
  Text result(text);
  std::transform(result.begin(), result.end(), result.begin(), [](char16_t c) { return lower_case(c); });
  return result;
}

bool equal_ignoring_case(TextView left, TextView right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char16_t a, char16_t b) { return lower_case(a) == lower_case(b); });
}

Text to_text(long long number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

int leading_number(TextView text) {
  constexpr std::size_t most_digits = 6;
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  int number = 0;
  for (const char16_t digit : text.substr(0, most_digits)) {
    if (digit < u'0' || digit > u'9') break;
    number = number * 10 + (digit - u'0');
  }
  return number;
}

} // namespace cserko
