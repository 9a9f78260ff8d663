// The words of a chain: which records end and begin alike, worked out once for all of them, and the search of seven
// that follow each other.
#pragma once

#include "core/records.h"

namespace cserko {

/// What must be equal between the end of a word and the start of the next one; its value is the index of the option.
enum class ChainRule : std::uint8_t { Syllable, TwoLetters, Letter };

inline constexpr int chain_length = 7;

/// The part of a text behind its last "-", or the whole text.
Text utolsó_szótag(TextView text);
/// The part of a text before its first "-", or the whole text.
Text első_szótag(TextView text);

/// Which record ends and begins how, by one rule. Endings have numbers, so that the search compares no texts.
class ChainIndex {
 public:
  ChainIndex(const Records& records, ChainRule rule);

  /// The number of what the next word must begin with; -1 for a word with too few letters, which is never in a chain.
  int end_of(int record) const { return at(ends_, record); }
  /// The number of the ending that the word's own start equals; -1 where no word ends so.
  int start_of(int record) const { return at(starts_, record); }
  /// Whether a word follows another one, letters compared and not characters.
  bool follow(int left, int right) const { return end_of(left) >= 0 && end_of(left) == start_of(right); }
  /// The records whose text begins with an ending, in their order: by syllable those whose first one it is, by letters
  /// all whose characters it is, so that those of "c" hold the ones of "cs".
  const std::vector<std::int16_t>& beginning_with(int ending) const;
  /// How many different endings there are.
  int endings() const { return static_cast<int>(beginning_.size()); }
  /// Equal for records with the same name.
  int name_of(int record) const { return at(names_, record); }

 private:
  static int at(const std::vector<int>& numbers, int record) { return numbers.at(static_cast<std::size_t>(record)); }

  std::vector<int> ends_;
  std::vector<int> starts_;
  std::vector<int> names_;
  std::vector<std::vector<std::int16_t>> beginning_;
};

/// The index of the records by a rule, made when it is first asked for.
const ChainIndex& chain_index(const Records& records, ChainRule rule);

/// Looks for seven different words that follow each other, of which none is longer than allowed.
///
/// The search is depth first and draws its random numbers word by word. Where most ways end nowhere it could go on for
/// ever: it has a budget. Once that is used up it begins anew, leaves out what no seven words can go through and tries
/// all the rest, so that it finds a chain where there are two starts with one, in whatever order the records are.
class ChainSearch {
 public:
  static constexpr int fewest_letters = 3;

  ChainSearch(Platform& platform, const Records& records, ChainRule rule, int most_letters)
      : platform_(platform), records_(records), index_(chain_index(records, rule)), most_letters_(most_letters) {}

  /// The records of a chain, from a start that is drawn. Throws NothingFits with the advice (a Hungarian sentence)
  /// where none is found.
  std::vector<int> find(TextView advice);
  /// Whether the word of a record has a length that is allowed.
  bool fits_length(int record) const;

 private:
  bool draw_starts();
  bool draw_promising_starts(TextView advice);
  bool chain_from(int start);
  bool lánc_keresés();
  std::vector<std::int16_t> candidates(int ending) const;
  bool follows(int record, int ending) const;
  void find_ways();
  bool leads_on(int record, int further_words) const;
  bool spend(int steps);

  Platform& platform_;
  const Records& records_;
  const ChainIndex& index_;
  int most_letters_;
  std::vector<int> chain_;
  std::vector<std::vector<bool>> ways_; ///< By number of words and ending: so many can follow it. Empty: not known.
  int steps_left_ = 0;
  int steps_left_of_start_ = 0;
};

} // namespace cserko
