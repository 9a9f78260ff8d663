// The search of the word list, told once more for the tests of the data: a plain transcription of its rules that shares
// no code with the exercise, so that the list is proved against the rules and not against one reading of them.
#pragma once

#include "platform/text.h"

#include <string>

namespace cserko::test {

/// Whether the bytes of ms.skt hold a word, found by bisecting the bytes.
bool szó_a_szótárban_by_rule(const std::string& bytes, const Text& word);

} // namespace cserko::test
