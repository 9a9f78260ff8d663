#include "exercises/boards/chain_search.h"

#include "core/kszöveg.h"
#include "core/nothing_fits.h"
#include "core/numbers.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace cserko {

namespace {

using Numbers = std::unordered_map<Text, int>;

// What the search may cost, in looks at a record.
constexpr int budget = 1000000;
constexpr int budget_of_start = 400000;
constexpr int cost_of_word = 100; // seeding and two random numbers
constexpr int cost_of_draw = 10;

constexpr int none = -1;

// The number of a text, the next free one if it is new.
int number_of(Numbers& numbers, const Text& text) {
  return numbers.try_emplace(text, static_cast<int>(numbers.size())).first->second;
}

int known(const Numbers& numbers, const Text& text) {
  const auto found = numbers.find(text);
  return found == numbers.end() ? none : found->second;
}

// Both ends of a word; a word with fewer letters than the rule compares has none.
struct Ends {
  bool any = false;
  Text first;
  Text last;
};

Ends ends_of(const KépAdat& record, ChainRule rule) {
  if (rule == ChainRule::Syllable) return {true, első_szótag(record.szótagolt), utolsó_szótag(record.szótagolt)};
  const int letters = rule == ChainRule::TwoLetters ? 2 : 1;
  const kszöveg word(record.név);
  if (word.MAGYARBETŰKSZÁMA() < letters) return {};
  return {true, word.magyarleft(letters), word.magyarright(letters)};
}

template<ChainRule rule> struct IndexBy : ChainIndex {
  explicit IndexBy(const Records& records) : ChainIndex(records, rule) {}
};

} // namespace

Text utolsó_szótag(TextView text) {
  const std::size_t hyphen = text.rfind(u'-');
  return Text(hyphen == TextView::npos ? text : text.substr(hyphen + 1));
}

Text első_szótag(TextView text) { return Text(text.substr(0, text.find(u'-'))); }

ChainIndex::ChainIndex(const Records& records, ChainRule rule) {
  Numbers endings;
  Numbers names;
  std::vector<Ends> ends;
  std::set<std::size_t> lengths; // of the endings, characters
  for (int i = 0; i <= records.képszám; ++i) {
    ends.push_back(ends_of(records[i], rule));
    ends_.push_back(ends.back().any ? number_of(endings, ends.back().last) : none);
    names_.push_back(number_of(names, records[i].név));
    if (ends.back().any) lengths.insert(ends.back().last.size());
  }
  beginning_.resize(endings.size());
  for (int i = 0; i <= records.képszám; ++i) {
    const Ends& of_word = ends[static_cast<std::size_t>(i)];
    starts_.push_back(of_word.any ? known(endings, of_word.first) : none);
    const auto enter = [&](int ending) {
      if (ending != none) beginning_[static_cast<std::size_t>(ending)].push_back(static_cast<std::int16_t>(i));
    };
    if (rule == ChainRule::Syllable) {
      enter(starts_.back());
      continue;
    }
    const Text& name = records[i].név;
    for (const std::size_t length : lengths) {
      if (length <= name.size()) enter(known(endings, name.substr(0, length)));
    }
  }
}

const std::vector<std::int16_t>& ChainIndex::beginning_with(int ending) const {
  return beginning_.at(static_cast<std::size_t>(ending));
}

const ChainIndex& chain_index(const Records& records, ChainRule rule) {
  switch (rule) {
  case ChainRule::Syllable:
    return records.derived<IndexBy<ChainRule::Syllable>>();
  case ChainRule::TwoLetters:
    return records.derived<IndexBy<ChainRule::TwoLetters>>();
  default:
    return records.derived<IndexBy<ChainRule::Letter>>();
  }
}

std::vector<int> ChainSearch::find(TextView advice) {
  platform_.seed_random();
  if (draw_starts() || draw_promising_starts(advice)) return chain_;
  throw NothingFits(advice);
}

bool ChainSearch::fits_length(int record) const {
  const int letters = records_.MAGYARBETŰKSZÁMA(record);
  return letters >= fewest_letters && letters <= most_letters_;
}

bool ChainSearch::draw_starts() {
  steps_left_ = steps_left_of_start_ = budget;
  while (spend(cost_of_draw)) {
    const int start = random_below(platform_, records_.képszám);
    if (fits_length(start) && chain_from(start)) return true;
  }
  return false;
}

// The plain search has come to nothing. Words that no six others can follow are not even begun with, and every
// candidate is tried, also the last of several: whether there is a chain no longer depends on the order of the records.
bool ChainSearch::draw_promising_starts(TextView advice) {
  find_ways();
  steps_left_ = steps_left_of_start_ = budget;
  while (spend(cost_of_draw)) {
    const int start = records_.draw(
        platform_, [this](int record) { return fits_length(record) && leads_on(record, chain_length - 1); }, advice);
    if (chain_from(start)) return true;
  }
  return false;
}

bool ChainSearch::chain_from(int start) {
  chain_ = {start};
  steps_left_of_start_ = budget_of_start;
  const bool whole = lánc_keresés();
  steps_left_of_start_ = budget;
  return whole;
}

// Finds the words behind the last one of the chain, each call one of them.
bool ChainSearch::lánc_keresés() {
  platform_.seed_random();
  const int vég = index_.end_of(chain_.back());
  platform_.random(); // drawn and dropped, which is intended
  const std::vector<std::int16_t> jelöltek = candidates(vég);
  if (!spend(cost_of_word + static_cast<int>(index_.beginning_with(vég).size()))) return false;
  // The last index, and not the number, is the period: of several candidates the last one is never tried and the first
  // one twice. That is intended, as long as there are chains without it.
  const int u = static_cast<int>(jelöltek.size()) - 1;
  const int period = ways_.empty() ? u : u + 1;
  const int r = random_below(platform_, period);
  for (int j = r; j <= r + u; ++j) {
    const int k = j >= period ? j - period : j;
    const int word = jelöltek[static_cast<std::size_t>(k)];
    if (!follows(word, vég)) continue;
    chain_.push_back(word);
    if (static_cast<int>(chain_.size()) == chain_length || lánc_keresés()) return true;
    chain_.pop_back();
    if (!spend(0)) return false;
  }
  return false;
}

std::vector<std::int16_t> ChainSearch::candidates(int ending) const {
  const auto used = [this](int record) {
    return std::any_of(chain_.begin(), chain_.end(),
                       [&](int word) { return index_.name_of(word) == index_.name_of(record); });
  };
  std::vector<std::int16_t> found;
  for (const std::int16_t record : index_.beginning_with(ending)) {
    if (records_.MAGYARBETŰKSZÁMA(record) <= most_letters_ && !used(record)) found.push_back(record);
  }
  return found;
}

bool ChainSearch::follows(int record, int ending) const {
  if (records_.MAGYARBETŰKSZÁMA(record) < fewest_letters || index_.start_of(record) != ending) return false;
  return ways_.empty() || leads_on(record, chain_length - 1 - static_cast<int>(chain_.size()));
}

// From the last word of a chain backwards: which endings can be followed by one word, by two, and so on. That a word
// may come only once is not looked at, so that some of these ways may lead nowhere.
void ChainSearch::find_ways() {
  const auto endings = static_cast<std::size_t>(index_.endings());
  ways_.assign(chain_length, std::vector<bool>(endings));
  ways_[0].assign(endings, true);
  for (std::size_t words = 1; words < ways_.size(); ++words) {
    for (int i = 0; i <= records_.képszám; ++i) {
      if (index_.start_of(i) >= 0 && fits_length(i) && ways_[words - 1][static_cast<std::size_t>(index_.end_of(i))])
        ways_[words][static_cast<std::size_t>(index_.start_of(i))] = true;
    }
  }
}

bool ChainSearch::leads_on(int record, int further_words) const {
  return ways_[static_cast<std::size_t>(further_words)][static_cast<std::size_t>(index_.end_of(record))];
}

// Whether there was so much left. A start has a share of its own, so that no single one uses everything up.
bool ChainSearch::spend(int steps) {
  steps_left_ -= steps;
  steps_left_of_start_ -= steps;
  return steps_left_ > 0 && steps_left_of_start_ > 0;
}

} // namespace cserko
