#include "data/checker/word_chain.h"

#include <algorithm>
#include <random>
#include <string>

namespace cserko {
namespace {

constexpr int kChainLength = 7;
constexpr int kFewestLetters = 3;
constexpr int kMostSteps = 200000; // of one search: far above what a chain that exists needs

class ChainSearch {
 public:
  ChainSearch(const std::vector<const WordFacts*>& words, ChainType type, int most_letters)
      : words_(words), type_(type), most_letters_(most_letters) {}

  int starts() {
    int count = 0;
    for (int i = 0; i + 1 < static_cast<int>(words_.size()); ++i) { // the last record is never drawn
      const int letters = word(i).name.count();
      if (letters >= kFewestLetters && letters <= most_letters_ && from(i)) ++count;
    }
    return count;
  }

 private:
  bool from(int start) {
    chain_ = {start};
    steps_ = 0;
    return extend();
  }

  QString end_of(const WordFacts& word) const {
    switch (type_) {
    case ChainType::syllable:
      return word.record.syllables.section('-', -1);
    case ChainType::two_letters:
      return word.name.last(2);
    case ChainType::letter:
      return word.name.last(1);
    }
    return {};
  }

  QString start_of(const WordFacts& word) const {
    switch (type_) {
    case ChainType::syllable:
      return word.record.syllables.section('-', 0, 0);
    case ChainType::two_letters:
      return word.name.first(2);
    case ChainType::letter:
      return word.name.first(1);
    }
    return {};
  }

  bool used(int index) const {
    return std::any_of(chain_.begin(), chain_.end(),
                       [&](int i) { return word(i).record.name == word(index).record.name; });
  }

  const WordFacts& word(int index) const { return *words_[static_cast<size_t>(index)]; }

  // The search's first look compares plain characters; of what it collects it never tries the last, unless it is alone.
  std::vector<int> candidates(const QString& end) const {
    std::vector<int> found;
    for (int i = 0; i < static_cast<int>(words_.size()); ++i) {
      const bool fits = type_ == ChainType::syllable ? start_of(word(i)) == end : word(i).record.name.startsWith(end);
      if (fits && word(i).name.count() <= most_letters_ && !used(i)) found.push_back(i);
    }
    if (found.size() > 1) found.pop_back();
    return found;
  }

  bool extend() {
    if (chain_.size() == kChainLength) return true;
    if (++steps_ > kMostSteps) return false;
    const QString end = end_of(word(chain_.back()));
    for (int next : candidates(end)) {
      if (word(next).name.count() < kFewestLetters || start_of(word(next)) != end) continue;
      chain_.push_back(next);
      if (extend()) return true;
      chain_.pop_back();
    }
    return false;
  }

  const std::vector<const WordFacts*>& words_;
  ChainType type_;
  int most_letters_;
  std::vector<int> chain_;
  int steps_ = 0;
};

// 0.wms, 1.wms, 10.wms, 100.wms …
std::vector<const WordFacts*> by_file_name(const std::vector<const WordFacts*>& words) {
  std::vector<std::string> names;
  names.reserve(words.size());
  for (size_t i = 0; i < words.size(); ++i) names.push_back(std::to_string(i));
  std::sort(names.begin(), names.end());
  std::vector<const WordFacts*> sorted;
  sorted.reserve(words.size());
  for (const std::string& name : names) sorted.push_back(words[std::stoul(name)]);
  return sorted;
}

// Written out, since the library's shuffle may differ from one compiler to the next.
std::vector<const WordFacts*> shuffled(std::vector<const WordFacts*> words, std::mt19937& random) {
  for (size_t i = words.size(); i > 1; --i) std::swap(words[i - 1], words[random() % i]);
  return words;
}

} // namespace

int chain_starts(const Pack& pack, ChainType type, int most_letters) {
  constexpr int shuffles = 4;
  std::vector<const WordFacts*> words;
  for (const WordFacts& word : pack.words) words.push_back(&word);
  std::vector<std::vector<const WordFacts*>> orders{words, by_file_name(words)};
  std::mt19937 random(1);
  for (int i = 0; i < shuffles; ++i) orders.push_back(shuffled(words, random));
  int least = static_cast<int>(words.size());
  for (const auto& order : orders) least = std::min(least, ChainSearch(order, type, most_letters).starts());
  return least;
}

} // namespace cserko
