// Looking words up in a sorted word list, a text file of one word a line.
#pragma once

#include "platform/text.h"

#include <string_view>

namespace cserko {

/// Whether the word stands in the list. `bytes` is the file in code page 1250, its lines ended by a carriage return
/// with or without a line feed and sorted by the codes of their characters.
///
/// Bisects by bytes, then reads on from 30 bytes before the last lower end. Its first line there may be the tail of a
/// longer word, which is compared all the same and so counts as found; that is accepted.
bool szó_a_szótárban(std::string_view bytes, TextView word);

} // namespace cserko
