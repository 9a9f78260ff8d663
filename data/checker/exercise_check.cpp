#include "data/checker/exercise_check.h"

#include <algorithm>
#include <map>

namespace cserko {
namespace {

QString value_text(const Setting& setting, int value) {
  return setting.name + " " + (setting.label ? setting.label(value) : QString::number(value));
}

// Any choice and any member of a list goes together with at most one number off its default; a list that is in play
// whole must serve at the default numbers only, since no word list could serve each letter at each single length.
bool is_demanded(const ExerciseFilter& filter, const Choice& choice) {
  bool has_list = false;
  int numbers_off = 0;
  for (size_t i = 0; i < choice.size(); ++i) {
    const Setting& setting = filter.settings[i];
    has_list = has_list || setting.kind == SettingKind::each;
    if (setting.kind == SettingKind::range && choice[i] != setting.standard) ++numbers_off;
  }
  return numbers_off <= (has_list ? 0 : 1);
}

// Steps through all combinations like a milometer; false after the last.
bool next_choice(const ExerciseFilter& filter, std::vector<size_t>& wheel) {
  for (size_t i = wheel.size(); i-- > 0;) {
    if (++wheel[i] < filter.settings[i].values.size()) return true;
    wheel[i] = 0;
  }
  return false;
}

QString spans(std::vector<int> values) {
  std::sort(values.begin(), values.end());
  QStringList parts;
  for (size_t i = 0; i < values.size();) {
    size_t end = i;
    while (end + 1 < values.size() && values[end + 1] == values[end] + 1) ++end;
    parts << (end == i ? QString::number(values[i]) : QString("%1–%2").arg(values[i]).arg(values[end]));
    i = end + 1;
  }
  return parts.join(", ");
}

} // namespace

ExerciseOutcome count_combinations(const ExerciseFilter& filter) {
  ExerciseOutcome outcome{&filter, {}};
  std::vector<size_t> wheel(filter.settings.size(), 0);
  do {
    Verdict verdict;
    for (size_t i = 0; i < wheel.size(); ++i) verdict.choice.push_back(filter.settings[i].values[wheel[i]]);
    if (!filter.offered(verdict.choice)) continue;
    verdict.fitting = filter.fitting(verdict.choice);
    verdict.needed = filter.needed(verdict.choice);
    verdict.demanded = is_demanded(filter, verdict.choice);
    outcome.verdicts.push_back(std::move(verdict));
  } while (next_choice(filter, wheel));
  return outcome;
}

QStringList unplayable(const ExerciseOutcome& outcome, Exceptions& excused) {
  QStringList faults;
  for (const Verdict& verdict : outcome.verdicts) {
    if (!verdict.demanded || verdict.playable()) continue;
    const QString setting = setting_text(*outcome.filter, verdict.choice);
    if (!excused.excuse({outcome.filter->window, setting}))
      faults << QString("%1, %2: %3 fit, %4 are needed")
                    .arg(outcome.filter->window, setting)
                    .arg(verdict.fitting)
                    .arg(verdict.needed);
  }
  return faults;
}

QString setting_text(const ExerciseFilter& filter, const Choice& choice) {
  QStringList parts;
  for (size_t i = 0; i < choice.size(); ++i) {
    const Setting& setting = filter.settings[i];
    if (setting.kind == SettingKind::each || choice[i] != setting.standard) parts << value_text(setting, choice[i]);
  }
  return parts.isEmpty() ? "default" : parts.join(", ");
}

QStringList edge_lines(const ExerciseOutcome& outcome) {
  // Grouped by everything but the last number, whose values are gathered.
  const auto& settings = outcome.filter->settings;
  size_t last = settings.size();
  for (size_t i = 0; i < settings.size(); ++i)
    if (settings[i].kind == SettingKind::range) last = i;
  std::map<QString, std::vector<int>> groups;
  std::vector<QString> order;
  for (const Verdict& verdict : outcome.verdicts) {
    if (verdict.playable() || verdict.demanded) continue;
    QStringList parts;
    for (size_t i = 0; i < settings.size(); ++i)
      if (i != last) parts << value_text(settings[i], verdict.choice[i]);
    const QString key = parts.join(", ");
    if (!groups.count(key)) order.push_back(key);
    groups[key].push_back(last < settings.size() ? verdict.choice[last] : 0);
  }
  // Groups with the same gathered values are told in one line.
  QStringList lines;
  for (const QString& key : order)
    lines << key + (key.isEmpty() ? "" : "; ") + settings[last].name + " " + spans(groups[key]);
  return lines;
}

} // namespace cserko
