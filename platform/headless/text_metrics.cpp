#include "platform/headless/text_metrics.h"

#include <algorithm>

namespace cserko::text_metrics {

namespace {

constexpr double twips_per_point = 20;

double line_width(const Font& font, TextView line) {
  double width = 0;
  for (const char16_t character : line) width += character_width(font, character);
  return width;
}

// Takes the first line off the text, with its end. Says in `more` whether another one follows.
TextView take_line(TextView& text, bool& more) {
  const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
  const TextView line = text.substr(0, end);
  more = end < text.size();
  const bool pair = text.substr(end, 2) == u"\r\n";
  text.remove_prefix(std::min(text.size(), end + (pair ? 2 : 1)));
  return line;
}

// How many characters of a line stand in its first row: up to the last blank that fits, or as many as fit at all.
std::size_t first_row(const Font& font, TextView line, double width) {
  double taken = 0;
  std::size_t break_at = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    taken += character_width(font, line[i]);
    if (taken > width && line[i] != u' ') return break_at > 0 ? break_at : std::max<std::size_t>(1, i);
    if (line[i] == u' ') break_at = i + 1;
  }
  return line.size();
}

TextView without_last_blanks(TextView row) {
  const std::size_t last = row.find_last_not_of(u' ');
  return last == TextView::npos ? TextView() : row.substr(0, last + 1);
}

} // namespace

double line_height(const Font& font) { return 1.15 * font.size * twips_per_point; }

double character_width(const Font& font, char16_t character) {
  const bool wide = character == u'm' || character == u'M' || character == u'w' || character == u'W';
  return (wide ? 0.8 : 0.5) * font.size * twips_per_point;
}

Size measure(const Font& font, TextView text) {
  Size size;
  for (bool more = true; more;) {
    size.width = std::max(size.width, line_width(font, take_line(text, more)));
    size.height += line_height(font);
  }
  return size;
}

Size measure_wrapped(const Font& font, TextView text, double width) {
  Size size;
  for (bool more = true; more;) {
    TextView line = take_line(text, more);
    do {
      const std::size_t length = first_row(font, line, width);
      size.width = std::max(size.width, line_width(font, without_last_blanks(line.substr(0, length))));
      size.height += line_height(font);
      line.remove_prefix(length);
    } while (!line.empty());
  }
  return size;
}

} // namespace cserko::text_metrics
