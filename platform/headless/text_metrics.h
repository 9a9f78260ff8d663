// Text extents that are the same on every computer: each character has a fixed share of the font's size.
#pragma once

#include "platform/elements.h"

namespace cserko::text_metrics {

/// Height of one line in twips. A point of font size is 20 twips.
double line_height(const Font& font);

/// Width of a character in twips: 0.8 of the size for m and w, else 0.5.
double character_width(const Font& font, char16_t character);

/// Extent of a text whose lines end with CR LF, CR or LF, twips. An empty text is one line high.
Size measure(const Font& font, TextView text);

/// Extent of a text that is also broken at blanks where a line would exceed the width, and inside a word that is wider
/// by itself, twips.
Size measure_wrapped(const Font& font, TextView text, double width);

} // namespace cserko::text_metrics
