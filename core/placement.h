// How long a random search for free places may go on.
#pragma once

#include "core/nothing_fits.h"

namespace cserko {

/// Counts the tries of a placement that may have no way out. Past a run of fruitless tries, far above what any solvable
/// case needs, the placement starts over; after a few starts there is no place.
class PlacementBudget {
 public:
  /// `sentence` tells the user what to change where nothing fits.
  explicit PlacementBudget(TextView sentence) : sentence_(sentence) {}

  /// Whether one more try is left before the placement has to start over.
  bool take() { return tries_++ < tries_a_start; }

  /// Counts a new start. Throws NothingFits after the last.
  void start_over() {
    tries_ = 0;
    if (++starts_ >= most_starts) throw NothingFits(sentence_);
  }

 private:
  static constexpr int tries_a_start = 20000;
  static constexpr int most_starts = 5;

  TextView sentence_;
  int tries_ = 0;
  int starts_ = 0;
};

} // namespace cserko
