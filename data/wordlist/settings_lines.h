// Lines of the settings files, as the program reads and writes them: code page 1250, CR LF.
#pragma once

#include <string>
#include <string_view>

namespace cserko {

/// A number or the value of a check box: a blank or a minus in the place of the sign, the digits, a blank.
std::string number_line(int value);

/// A truth value as a word.
std::string word_line(bool value);

/// A text as it is, such as a file name. The value is UTF-8.
std::string text_line(std::string_view value);

/// A text between quotation marks. The value is UTF-8.
std::string quoted_line(std::string_view value);

} // namespace cserko
