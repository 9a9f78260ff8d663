#include "data/checker/word_chain.h"

#include <QHash>
#include <algorithm>
#include <random>
#include <string>

namespace cserko {
namespace {

constexpr int kChainLength = 7;
constexpr int kFewestLetters = 3;
constexpr int kMostSteps = 200000; // of one search: far above what a chain that exists needs

using Words = std::vector<const WordFacts*>;

QString end_of(const WordFacts& word, ChainType type) {
  switch (type) {
  case ChainType::syllable:
    return word.record.syllables.section('-', -1);
  case ChainType::two_letters:
    return word.name.last(2);
  case ChainType::letter:
    return word.name.last(1);
  }
  return {};
}

QString start_of(const WordFacts& word, ChainType type) {
  switch (type) {
  case ChainType::syllable:
    return word.record.syllables.section('-', 0, 0);
  case ChainType::two_letters:
    return word.name.first(2);
  case ChainType::letter:
    return word.name.first(1);
  }
  return {};
}

class ChainSearch {
 public:
  ChainSearch(const Words& words, ChainType type, int most_letters)
      : words_(words), type_(type), most_letters_(most_letters) {
    for (int i = 0; i < static_cast<int>(words_.size()); ++i) {
      if (word(i).name.count() <= most_letters_) fitting_.push_back(i);
    }
  }

  /// Start words that the search goes on from in the order of the words; the last record is never drawn.
  int starts() {
    return count_starts(static_cast<int>(words_.size()) - 1, [this] { return extend(); });
  }

  /// Start words that it goes on from in any order. One of them may be the last.
  int starts_in_any_order() {
    const int all = count_starts(static_cast<int>(words_.size()), [this] { return extend_in_any_order(); });
    return std::max(0, all - 1);
  }

 private:
  template<class Extend> int count_starts(int drawn, Extend extend_chain) {
    int count = 0;
    for (int i = 0; i < drawn; ++i) {
      if (!long_enough(i) || word(i).name.count() > most_letters_) continue;
      chain_ = {i};
      steps_ = 0;
      if (extend_chain()) ++count;
    }
    return count;
  }

  const WordFacts& word(int index) const { return *words_[static_cast<size_t>(index)]; }
  bool long_enough(int index) const { return word(index).name.count() >= kFewestLetters; }

  bool used(int index) const {
    return std::any_of(chain_.begin(), chain_.end(),
                       [&](int i) { return word(i).record.name == word(index).record.name; });
  }

  // The search's first look compares plain characters.
  const std::vector<int>& beginning_with(const QString& end) {
    const auto known = beginning_.find(end);
    if (known != beginning_.end()) return *known;
    std::vector<int> found;
    for (const int i : fitting_) {
      const bool fits =
          type_ == ChainType::syllable ? start_of(word(i), type_) == end : word(i).record.name.startsWith(end);
      if (fits) found.push_back(i);
    }
    return *beginning_.insert(end, found);
  }

  std::vector<int> candidates(const QString& end) {
    std::vector<int> found;
    for (const int i : beginning_with(end)) {
      if (!used(i)) found.push_back(i);
    }
    return found;
  }

  // Its second look compares letters.
  bool follows(int index, const QString& end) const {
    return long_enough(index) && start_of(word(index), type_) == end;
  }

  bool extend() {
    if (chain_.size() == kChainLength) return true;
    if (++steps_ > kMostSteps) return false;
    const QString end = end_of(word(chain_.back()), type_);
    std::vector<int> next = candidates(end);
    // The last one is never tried, unless it is alone.
    if (next.size() > 1) next.pop_back();
    return std::any_of(next.begin(), next.end(), [&](int i) { return follows(i, end) && extend_by(i); });
  }

  // Whichever of several candidates stands last, another one must lead on: two have to, or the only one that there is.
  bool extend_in_any_order() {
    if (chain_.size() == kChainLength) return true;
    if (++steps_ > kMostSteps) return false;
    const QString end = end_of(word(chain_.back()), type_);
    const std::vector<int> next = candidates(end);
    int missing = next.size() == 1 ? 1 : 2;
    for (const int i : next) {
      if (!follows(i, end)) continue;
      chain_.push_back(i);
      if (extend_in_any_order()) --missing;
      chain_.pop_back();
      if (missing == 0) return true;
    }
    return false;
  }

  bool extend_by(int index) {
    chain_.push_back(index);
    if (extend()) return true;
    chain_.pop_back();
    return false;
  }

  const Words& words_;
  ChainType type_;
  int most_letters_;
  std::vector<int> fitting_; // short enough
  QHash<QString, std::vector<int>> beginning_;
  std::vector<int> chain_;
  int steps_ = 0;
};

Words in_order(const Pack& pack) {
  Words words;
  for (const WordFacts& word : pack.words) words.push_back(&word);
  return words;
}

// 0.wms, 1.wms, 10.wms, 100.wms …
Words by_file_name(const Words& words) {
  std::vector<std::string> names;
  names.reserve(words.size());
  for (size_t i = 0; i < words.size(); ++i) names.push_back(std::to_string(i));
  std::sort(names.begin(), names.end());
  Words sorted;
  sorted.reserve(words.size());
  for (const std::string& name : names) sorted.push_back(words[std::stoul(name)]);
  return sorted;
}

// Written out, since the library's shuffle may differ from one compiler to the next.
Words shuffled(Words words, std::mt19937& random) {
  for (size_t i = words.size(); i > 1; --i) std::swap(words[i - 1], words[random() % i]);
  return words;
}

} // namespace

int chain_starts_in_any_order(const Pack& pack, ChainType type, int most_letters) {
  const Words words = in_order(pack);
  return ChainSearch(words, type, most_letters).starts_in_any_order();
}

int chain_starts_in_some_orders(const Pack& pack, ChainType type, int most_letters) {
  constexpr int shuffles = 4;
  const Words words = in_order(pack);
  std::vector<Words> orders{words, by_file_name(words)};
  std::mt19937 random(1);
  for (int i = 0; i < shuffles; ++i) orders.push_back(shuffled(words, random));
  int least = static_cast<int>(words.size());
  for (const Words& order : orders) least = std::min(least, ChainSearch(order, type, most_letters).starts());
  return least;
}

} // namespace cserko
