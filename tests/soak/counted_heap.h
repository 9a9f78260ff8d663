// How much memory the program holds, counted exactly: linking this replaces the operators that get and free it.
#pragma once

#include <cstdint>

namespace cserko {

/// Bytes that are asked for and not given back, without what C libraries get by themselves.
std::int64_t heap_in_use();

} // namespace cserko
