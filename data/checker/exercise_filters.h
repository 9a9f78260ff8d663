// Which records each exercise can use in each of its settings, and how many it needs: one entry for each exercise.
#pragma once

#include "data/checker/word_facts.h"

#include <functional>

namespace cserko {

/// How a setting takes part in the demands on the pack.
enum class SettingKind {
  choice, ///< a language, a rule, a tick, the size of a board: every value must be playable with every other choice
  range,  ///< a number: every value must be playable while all other numbers stand at their default
  each,   ///< a pair or a letter out of a list that is in play whole by default
};

struct Setting {
  QString name;
  SettingKind kind;
  int standard;
  std::vector<int> values;
  std::function<QString(int)> label; ///< empty: the number itself
};

/// One value for each setting of an exercise, in their order.
using Choice = std::vector<int>;

struct ExerciseFilter {
  QString window;
  QString title;
  std::vector<Setting> settings;
  /// Whether the dialog lets the values stand together.
  std::function<bool(const Choice&)> offered;
  /// How many records (or words, or starts) the exercise must have to go on for ever.
  std::function<int(const Choice&)> needed;
  /// How many there are.
  std::function<int(const Choice&)> fitting;
};

/// The table of all twenty exercises for a pack. The pack must outlive it.
std::vector<ExerciseFilter> exercise_filters(const Pack& pack);

} // namespace cserko
