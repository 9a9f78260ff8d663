#include "core/draw.h"

#include "core/nothing_fits.h"
#include "core/numbers.h"

#include <algorithm>

namespace cserko {

namespace {

// After so many draws without success all candidates are looked through once, without drawing.
constexpr int fruitless_draws = 200;

template<class Draw> int draw_until(int last, const Passes& passes, TextView advice, Draw draw) {
  for (int fruitless = 0;; ++fruitless) {
    if (fruitless == fruitless_draws && !walk_on(0, last, Round::No, passes)) throw NothingFits(advice);
    const int index = draw();
    if (passes(index)) return index;
  }
}

} // namespace

int draw_below(Platform& platform, int n, const Passes& passes, TextView advice) {
  const int candidates = std::max(n, 1);
  return draw_until(candidates - 1, passes, advice, [&] { return random_below(platform, candidates); });
}

int draw_rounded(Platform& platform, int last, const Passes& passes, TextView advice) {
  return draw_until(last, passes, advice, [&] { return rounded(platform.random() * last); });
}

std::optional<int> walk_on(int from, int last, Round round, const Passes& passes) {
  for (int index = from; index <= last; ++index) {
    if (passes(index)) return index;
  }
  for (int index = 0; round == Round::Yes && index < from; ++index) {
    if (passes(index)) return index;
  }
  return std::nullopt;
}

} // namespace cserko
