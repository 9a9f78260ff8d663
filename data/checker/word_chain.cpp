#include "data/checker/word_chain.h"

#include <QHash>
#include <algorithm>

namespace cserko {
namespace {

constexpr int kChainLength = 7;
constexpr int kFewestLetters = 3;
constexpr int kMostSteps = 2000; // of one start, less than the exercise spends on it

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

class ChainStarts {
 public:
  ChainStarts(const Pack& pack, ChainType type, int most_letters)
      : words_(pack.words), type_(type), most_letters_(most_letters) {}

  int count() {
    int count = 0;
    for (int i = 0; i < static_cast<int>(words_.size()); ++i) {
      if (!fits_length(i)) continue;
      chain_ = {i};
      steps_ = 0;
      if (extend()) ++count;
    }
    return count;
  }

 private:
  const WordFacts& word(int index) const { return words_[static_cast<size_t>(index)]; }

  bool fits_length(int index) const {
    const int letters = word(index).name.count();
    return letters >= kFewestLetters && letters <= most_letters_;
  }

  bool used(int index) const {
    return std::any_of(chain_.begin(), chain_.end(),
                       [&](int i) { return word(i).record.name == word(index).record.name; });
  }

  // Letters are compared, not characters: "cs" does not follow "c".
  const std::vector<int>& beginning_with(const QString& end) {
    const auto known = beginning_.find(end);
    if (known != beginning_.end()) return *known;
    std::vector<int> found;
    for (int i = 0; i < static_cast<int>(words_.size()); ++i) {
      if (fits_length(i) && start_of(word(i), type_) == end) found.push_back(i);
    }
    return *beginning_.insert(end, found);
  }

  bool extend() {
    if (chain_.size() == kChainLength) return true;
    if (++steps_ > kMostSteps) return false;
    const std::vector<int> next = beginning_with(end_of(word(chain_.back()), type_));
    return std::any_of(next.begin(), next.end(), [&](int i) { return !used(i) && extend_by(i); });
  }

  bool extend_by(int index) {
    chain_.push_back(index);
    if (extend()) return true;
    chain_.pop_back();
    return false;
  }

  const std::vector<WordFacts>& words_;
  ChainType type_;
  int most_letters_;
  QHash<QString, std::vector<int>> beginning_;
  std::vector<int> chain_;
  int steps_ = 0;
};

} // namespace

int chain_starts(const Pack& pack, ChainType type, int most_letters) {
  return std::max(0, ChainStarts(pack, type, most_letters).count() - 1);
}

} // namespace cserko
