// Random choices that go on until one passes, as all exercises make them: none of them can run for ever.
//
// Which to use:
//   - a record, the last one never among them (the usual rule):   képek().draw(platform, passes, advice)
//   - a record, the last one too:                                 the same with Records::Reach::All or WithLast
//   - an entry of a list, a free place of n:                      draw_below(platform, n, passes, advice)
//   - the same by a rounded number (0 to `last`, both ends with
//     half the chance):                                           draw_rounded(platform, last, passes, advice)
//   - from a drawn index on to the first that passes:             walk_on(from, last, Round::Yes, passes)
#pragma once

#include "platform/platform.h"

#include <functional>
#include <optional>

namespace cserko {

/// What a draw asks of an index. It must give the same answer for the same index as long as the draw lasts, and it is
/// asked very often: what it compares with is fetched before the draw.
using Passes = std::function<bool(int index)>;

/// Draws the whole part of (random × n), 0 to n - 1, until one passes; each draw takes one random number. Of n below 1
/// only 0 is drawn. Throws NothingFits with the advice (a Hungarian sentence) if none of them can pass.
int draw_below(Platform& platform, int n, const Passes& passes, TextView advice);

/// Draws (random × last) rounded, 0 to last, until one passes. Both ends have half the chance of the others.
int draw_rounded(Platform& platform, int last, const Passes& passes, TextView advice);

/// Whether a walk that comes to the end goes on with 0.
enum class Round : std::uint8_t { No, Yes };

/// The first index from `from` on, up to and with `last`, that passes; going round it ends where it began. Draws
/// nothing. Empty if none passes.
std::optional<int> walk_on(int from, int last, Round round, const Passes& passes);

} // namespace cserko
