// The page that tells maintainers and therapists what the pack can do.
#pragma once

#include "data/checker/exercise_check.h"

namespace cserko {

/// The exception lists in the order in which they are told.
struct ReportExceptions {
  const Exceptions* spelling;
  const Exceptions* syllables;
  const Exceptions* settings;
  const Exceptions* pairs;
};

/// The whole page in Markdown.
QString pack_report(const QString& pack_folder, const Pack& pack, const std::vector<ExerciseOutcome>& outcomes,
                    const ReportExceptions& exceptions);

/// The part of the page that fits a terminal: up to the table of edges.
QString summary_of(const QString& report);

} // namespace cserko
