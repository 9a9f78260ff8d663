#include "data/checker/report.h"

#include <QDir>
#include <algorithm>
#include <map>

namespace cserko {
namespace {

const QString edges_title = QStringLiteral("\n## Combinations with too few words\n");

int files_in(const QString& folder, const QString& pattern) {
  return static_cast<int>(QDir(folder).entryList({pattern}, QDir::Files).size());
}

QString histogram(const QString& title, const std::map<int, int>& counts) {
  QString head = "| " + title, line = "|---", row = "| records";
  for (const auto& [value, count] : counts) {
    head += QString(" | %1").arg(value);
    line += "|---";
    row += QString(" | %1").arg(count);
  }
  return head + " |\n" + line + "|\n" + row + " |\n\n";
}

QString numbers(const QString& folder, const Pack& pack) {
  std::map<int, int> letters, syllables, english;
  for (const WordFacts& w : pack.words) {
    ++letters[w.name.count()];
    ++syllables[w.syllables];
    ++english[static_cast<int>(w.record.english.size())];
  }
  return QString("%1 records, %2 direction motifs, %3 praise pictures, %4 colouring pages.\n\n")
             .arg(pack.words.size())
             .arg(files_in(folder + "/irkep", "*.swm"))
             .arg(files_in(folder + QStringLiteral("/dicskép"), "*.wmf"))
             .arg(files_in(folder + "/cserko/kifest", "*.kif")) +
         histogram("letters of the Hungarian name", letters) + histogram("syllables", syllables) +
         histogram("characters of the English name", english);
}

// The demanded combination with the least to spare.
const Verdict* tightest(const ExerciseOutcome& outcome) {
  const Verdict* found = nullptr;
  for (const Verdict& verdict : outcome.verdicts)
    if (verdict.demanded && (!found || verdict.fitting * found->needed < found->fitting * verdict.needed))
      found = &verdict;
  return found;
}

const Verdict* standard(const ExerciseOutcome& outcome) {
  for (const Verdict& verdict : outcome.verdicts)
    if (setting_text(*outcome.filter, verdict.choice) == "default") return &verdict;
  return nullptr;
}

QString counted(const Verdict* verdict) {
  return verdict ? QString("%1 of %2").arg(verdict->fitting).arg(verdict->needed) : QString("–");
}

QString exercise_row(const ExerciseOutcome& outcome) {
  const auto too_few = std::count_if(outcome.verdicts.begin(), outcome.verdicts.end(),
                                     [](const Verdict& verdict) { return !verdict.playable(); });
  const Verdict* least = tightest(outcome);
  return QString("| `%1` | %2 | %3 | %4 (%5) | %6 | %7 |\n")
      .arg(outcome.filter->window, outcome.filter->title, counted(standard(outcome)), counted(least),
           least ? setting_text(*outcome.filter, least->choice) : QString())
      .arg(outcome.verdicts.size())
      .arg(too_few);
}

QString exercise_table(const std::vector<ExerciseOutcome>& outcomes) {
  QString table =
      "## Words for each exercise\n\n"
      "\"12 of 6\" reads: 12 records fit where 6 are needed to go on for ever. Every default setting must be\n"
      "playable, and so must every choice, pair and letter, each with at most one number off its default; the\n"
      "tightest of these is shown. A number off its default is not asked of single pairs and letters.\n\n"
      "| Window | Exercise | Default | Tightest | Combinations | Too few |\n|---|---|---|---|---|---|\n";
  for (const ExerciseOutcome& outcome : outcomes) table += exercise_row(outcome);
  return table;
}

QString edges(const std::vector<ExerciseOutcome>& outcomes) {
  QString text = edges_title +
                 "\nIn these combinations of several settings the program says that no word fits, and which\n"
                 "setting to relax. A list of numbers names the last setting's values.\n\n"
                 "| Window | Settings |\n|---|---|\n";
  for (const ExerciseOutcome& outcome : outcomes)
    for (const QString& line : edge_lines(outcome)) text += "| `" + outcome.filter->window + "` | " + line + " |\n";
  return text;
}

} // namespace

QString pack_report(const QString& pack_folder, const Pack& pack, const std::vector<ExerciseOutcome>& outcomes,
                    const ReportExceptions& exceptions) {
  return "# The data pack in numbers\n\nWritten by `make check-pack`; do not edit.\n\n" + numbers(pack_folder, pack) +
         exercise_table(outcomes) + edges(outcomes) +
         "\n## Reviewed exceptions\n\nSpelling:\n\n| Language | Word | Reason |\n|---|---|---|\n" +
         exceptions.spelling->as_rows() + "\nSyllables:\n\n| Syllables | Reason |\n|---|---|\n" +
         exceptions.syllables->as_rows() +
         "\nSettings that cannot be served:\n\n| Window | Setting | Reason |\n|---|---|---|\n" +
         exceptions.settings->as_rows() +
         "\nPairs that look or read alike and can be told apart:\n\n| What is alike | Names | Reason "
         "|\n|---|---|---|\n" +
         exceptions.pairs->as_rows();
}

QString summary_of(const QString& report) { return report.left(report.indexOf(edges_title)) + "\n"; }

} // namespace cserko
