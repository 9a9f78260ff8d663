// Every setting of every exercise, counted on the pack.
#pragma once

#include "data/checker/exceptions.h"
#include "data/checker/exercise_filters.h"

namespace cserko {

/// The outcome for one combination of settings.
struct Verdict {
  Choice choice;
  int fitting = 0;
  int needed = 0;
  bool demanded = false; ///< must be playable; otherwise an edge that is only told

  bool playable() const { return fitting >= needed; }
};

struct ExerciseOutcome {
  const ExerciseFilter* filter = nullptr;
  std::vector<Verdict> verdicts; ///< for each combination that the dialog offers
};

/// Counts all combinations of an exercise.
ExerciseOutcome count_combinations(const ExerciseFilter& filter);

/// Demanded combinations that cannot be played and are not excused.
QStringList unplayable(const ExerciseOutcome& outcome, Exceptions& excused);

/// "language English, letters at least 10" for a combination: what differs from the default, or "default".
QString setting_text(const ExerciseFilter& filter, const Choice& choice);

/// The combinations beyond the demand that have too few words, numbers gathered into spans, one line of text each.
QStringList edge_lines(const ExerciseOutcome& outcome);

} // namespace cserko
