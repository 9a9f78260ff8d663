// Text as the whole suite holds it: UTF-16, one unit a character. Nothing here depends on a locale.
#pragma once

#include <string>
#include <string_view>

namespace cserko {

using Text = std::u16string;
using TextView = std::u16string_view;

/// UTF-8 to UTF-16. Malformed bytes become U+FFFD, one for each.
Text from_utf8(std::string_view bytes);

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD.
std::string to_utf8(TextView text);

/// Lower case of one character of the Latin letters that code page 1250 holds; any other character is returned as it
/// is.
char16_t lower_case(char16_t character);

/// Upper case, the counterpart of `lower_case`.
char16_t upper_case(char16_t character);

/// Lower case of every character.
Text lower_case(TextView text);

/// Whether two texts are equal when case is ignored, as file names are compared.
bool equal_ignoring_case(TextView left, TextView right);

/// Decimal text of a whole number, "-12" or "12", without blanks.
Text to_text(long long number);

/// The whole number that a text begins with, blanks before it left out: 0 if it begins with none, and no more than its
/// first six digits.
int leading_number(TextView text);

} // namespace cserko
