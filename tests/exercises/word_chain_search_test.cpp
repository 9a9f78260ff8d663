// The search of a chain of words: the index beside the plain rule on random packs, its odd rotation, letters and
// syllables, and what it may cost.
#include "core/codepage.h"
#include "core/kszöveg.h"
#include "core/nothing_fits.h"
#include "exercises/boards/chain_search.h"
#include "platform/headless/headless_platform.h"
#include "tests/suite/memory_pack.h"

#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <set>

namespace cserko {
namespace {

struct Named {
  Text name;
  Text syllables;
};

Records records_of(const std::vector<Named>& words) {
  MemoryFiles files;
  int number = 0;
  for (const Named& word : words) {
    const Text content = u"x\r\n" + word.name + u"\r\nx\r\nx\r\n" + word.syllables + u"\r\nx\r\nx\r\nx\r\n";
    // Files are listed in the order in which they were put.
    files.put(Text(app) + u"kepek\\" + to_text(++number) + u".wms", to_cp1250(content));
  }
  Records records;
  records.load(files, Text(app));
  return records;
}

// The search as its rule reads: over all records at each word, with the texts themselves.
class PlainSearch {
 public:
  PlainSearch(Platform& platform, const Records& records, int type, int most)
      : platform_(platform), records_(records), type_(type), most_(most) {}

  std::vector<int> tags = std::vector<int>(7, -1);

  // Empty where so many draws have led to nothing.
  std::optional<std::vector<int>> deal(int draws) {
    platform_.seed_random();
    for (int i = 0; i < draws; ++i) {
      const int r = int_of(platform_.random() * records_.képszám);
      kszöveg word(records_[r].név);
      if (word.MAGYARBETŰKSZÁMA() < 3 || word.MAGYARBETŰKSZÁMA() > most_) continue;
      tags[0] = r;
      if (!lánc_keresés(records_[r].név + u",", word, records_[r].szótagolt, 1).empty()) return tags;
    }
    return std::nullopt;
  }

 private:
  static int int_of(double number) { return static_cast<int>(std::floor(number)); }

  Text ending(const kszöveg& word, const Text& syllabified) const {
    if (type_ == 0) return utolsó_szótag(syllabified);
    return word.magyarright(type_ == 1 ? 2 : 1);
  }
  Text beginning(const kszöveg& word, const Text& syllabified) const {
    if (type_ == 0) return első_szótag(syllabified);
    return word.magyarleft(type_ == 1 ? 2 : 1);
  }

  Text lánc_keresés(const Text& chain, const kszöveg& last, const Text& syllabified, int depth) {
    platform_.seed_random();
    const Text vég = ending(last, syllabified);
    platform_.random();
    std::vector<int> jelöltek;
    for (int i = 0; i <= records_.képszám; ++i) {
      const KépAdat& record = records_[i];
      const bool hit = type_ == 0 ? első_szótag(record.szótagolt) == vég : record.név.substr(0, vég.size()) == vég;
      if (!hit || kszöveg(record.név).MAGYARBETŰKSZÁMA() > most_) continue;
      if ((u"," + chain + u",").find(u"," + record.név + u",") == Text::npos) jelöltek.push_back(i);
    }
    const int u = static_cast<int>(jelöltek.size()) - 1;
    const int r = int_of(platform_.random() * u);
    for (int j = r; j <= r + u; ++j) {
      int k = j;
      if (k >= u) k -= u;
      const int index = jelöltek.at(static_cast<std::size_t>(k));
      const KépAdat& record = records_[index];
      const kszöveg word(record.név);
      if (word.MAGYARBETŰKSZÁMA() <= 2 || beginning(word, record.szótagolt) != vég) continue;
      if (depth == 6) {
        tags[6] = index;
        return record.név + u" , ";
      }
      const Text inner = lánc_keresés(chain + u"," + record.név, word, record.szótagolt, depth + 1);
      if (inner.empty()) continue;
      tags[static_cast<std::size_t>(depth)] = index;
      return record.név + u" , " + inner;
    }
    return {};
  }

  Platform& platform_;
  const Records& records_;
  int type_;
  int most_;
};

// Words that often begin with what others end with, digraphs and their parts among them; some names come twice.
std::vector<Named> random_words(std::mt19937& chance, int count) {
  const std::vector<Text> parts{u"a", u"cs", u"c", u"s", u"sz", u"e", u"d", u"dz", u"dzs", u"ba", u"ka", u"ssz", u"ó"};
  const auto part = [&] { return parts[chance() % parts.size()]; };
  std::vector<Text> syllables;
  for (int i = 0; i < 7; ++i) syllables.push_back(part() + (chance() % 2 == 0 ? part() : Text()));
  std::vector<Named> words;
  for (int i = 0; i < count; ++i) {
    if (!words.empty() && chance() % 12 == 0) {
      words.push_back(words[chance() % words.size()]);
      continue;
    }
    Named word;
    for (std::size_t more = 1 + chance() % 3; more > 0; --more) {
      const Text& syllable = syllables[chance() % syllables.size()];
      word.name += syllable;
      word.syllables += (word.syllables.empty() ? u"" : u"-") + syllable;
    }
    words.push_back(word);
  }
  return words;
}

class IndexBesidePlainRule : public ::testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Types, IndexBesidePlainRule, ::testing::Values(0, 1, 2));

TEST_P(IndexBesidePlainRule, GivesTheSameChainsByTheSameRandomNumbers) {
  const int type = GetParam();
  std::mt19937 chance(static_cast<unsigned>(type) + 7);
  int solved = 0;
  for (int pack = 0; pack < 80; ++pack) {
    const Records records = records_of(random_words(chance, 20 + static_cast<int>(chance() % 60)));
    const int most = 4 + static_cast<int>(chance() % 6);
    HeadlessPlatform by_rule;
    HeadlessPlatform by_index;
    by_rule.set_seed(static_cast<std::uint64_t>(pack));
    by_index.set_seed(static_cast<std::uint64_t>(pack));
    for (int game = 0; game < 3; ++game) {
      by_rule.seedings = by_index.seedings = 0;
      PlainSearch plain(by_rule, records, type, most);
      const auto expected = plain.deal(100);
      // A pack without a chain is no matter of this test, nor is one in which the search uses its budget up.
      if (!expected || by_rule.seedings > 2000) break;
      ++solved;
      const auto found = ChainSearch(by_index, records, static_cast<ChainRule>(type), most).find(u"none");
      ASSERT_EQ(found, *expected) << "pack " << pack << ", game " << game;
      ASSERT_EQ(by_index.random(), by_rule.random()) << "pack " << pack << ", game " << game;
      ASSERT_EQ(by_index.seedings, by_rule.seedings) << "pack " << pack << ", game " << game;
    }
  }
  EXPECT_GE(solved, 40) << "packs with chains";
}

class ChainSearchTest : public ::testing::Test {
 protected:
  std::vector<int> find(const std::vector<Named>& words, ChainRule rule = ChainRule::Syllable, int most = 12) {
    records = records_of(words);
    return ChainSearch(machine, records, rule, most).find(u"Nincs lánc.");
  }
  // A chain by syllables behind a start: a-b, b-c, and so on.
  static std::vector<Named> line() {
    return {{u"aaab", u"a-b"}, {u"baac", u"b-c"}, {u"caad", u"c-d"}, {u"daae", u"d-e"},
            {u"eaaf", u"e-f"}, {u"faag", u"f-g"}, {u"gaah", u"g-h"}, {u"utolsó", u"u-tol-só"}};
  }
  static const inline std::vector<int> in_line{0, 1, 2, 3, 4, 5, 6};

  HeadlessPlatform machine;
  Records records;
};

TEST_F(ChainSearchTest, FindsSevenWordsThatLinkBySyllables) { EXPECT_EQ(find(line()), in_line); }

TEST_F(ChainSearchTest, DrawsANumberThatItDropsAndOneForTheRotationAtEachWord) {
  const Records drawn = records_of(line());
  machine.script_random({0.0});
  machine.script_random(std::vector<double>(12, 0.9));
  EXPECT_EQ(ChainSearch(machine, drawn, ChainRule::Syllable, 12).find(u""), in_line);
  EXPECT_EQ(machine.scripted_random_left(), 0U);
  EXPECT_EQ(machine.seedings, 7);
}

TEST_F(ChainSearchTest, DoesNotTryTheLastOfSeveralCandidatesWhereOthersLeadOn) {
  auto words = line();
  words.insert(words.begin() + 2, {u"baax", u"b-x"}); // behind the word that leads on
  EXPECT_EQ(find(words), (std::vector<int>{0, 1, 3, 4, 5, 6, 7}));
  words[2] = {u"baax", u"b-c"};
  for (int game = 0; game < 50; ++game) EXPECT_EQ(find(words).at(1), 1);
}

TEST_F(ChainSearchTest, TriesTheLastOfSeveralCandidatesWhenThePlainSearchHasComeToNothing) {
  auto words = line();
  words.insert(words.begin() + 1, {u"baax", u"b-x"}); // before the word that leads on, which becomes the last
  EXPECT_EQ(find(words), (std::vector<int>{0, 2, 3, 4, 5, 6, 7}));
  EXPECT_GT(machine.seedings, 2000) << "the plain search comes first, to the end of its budget";
}

TEST_F(ChainSearchTest, FindsAChainInEveryOrderOfTheRecords) {
  // Behind each word one that leads on and two that do not; with two starts, one of which may be the last record.
  auto words = line();
  words.pop_back();
  words.push_back({u"xaab", u"x-b"});
  for (char16_t letter = u'b'; letter <= u'g'; ++letter) {
    const Text start(1, letter);
    for (const Text& end : {Text(u"x1"), Text(u"x2")}) words.push_back({start + end, start + u"-" + end});
  }
  std::mt19937 chance(3);
  for (int order = 0; order < 20; ++order) {
    for (std::size_t i = words.size(); i > 1; --i) std::swap(words[i - 1], words[chance() % i]);
    const std::vector<int> found = find(words);
    const ChainIndex& index = chain_index(records, ChainRule::Syllable);
    ASSERT_EQ(found.size(), 7U);
    EXPECT_EQ(std::set<int>(found.begin(), found.end()).size(), 7U);
    for (std::size_t i = 1; i < found.size(); ++i) EXPECT_TRUE(index.follow(found[i - 1], found[i]));
  }
}

TEST_F(ChainSearchTest, TakesNoWordTwice) {
  auto words = line();
  // The way through "d" comes back to a name that stands in the chain already.
  words[3] = {u"daab", u"d-b"};
  words.erase(words.begin() + 4);
  words.push_back({u"baac", u"b-c"});
  words.push_back({u"utolsó", u"u-tol-só"});
  EXPECT_THROW(find(words), NothingFits);
}

TEST_F(ChainSearchTest, AWordDoesNotFollowItself) {
  std::vector<Named> words{{u"mama", u"ma-ma"}, {u"mapa", u"ma-ma"}, {u"utolsó", u"u"}};
  EXPECT_THROW(find(words), NothingFits);
}

TEST_F(ChainSearchTest, LeavesOutWordsThatAreTooLongOrTooShort) {
  auto words = line();
  EXPECT_EQ(find(words, ChainRule::Syllable, 4), in_line);
  words[3] = {u"daaae", u"d-e"};
  EXPECT_THROW(find(words, ChainRule::Syllable, 4), NothingFits);
  words[3] = {u"da", u"d-e"};
  EXPECT_THROW(find(words), NothingFits);
  words[3] = {u"dasz", u"d-e"}; // three letters
  EXPECT_EQ(find(words), in_line);
}

TEST_F(ChainSearchTest, AWordWithoutHyphenIsItsOwnFirstAndLastSyllable) {
  auto words = line();
  words[1] = {u"bbb", u"b"};
  words[2] = {u"bcd", u"b-d"};
  words.insert(words.begin() + 3, {u"bxx", u"b-x"}); // the last of those that begin so is never tried
  EXPECT_EQ(find(words), (std::vector<int>{0, 1, 2, 4, 5, 6, 7}));
}

TEST_F(ChainSearchTest, TellsDigraphsFromTheirFirstLetter) {
  // Behind "k…c" only a word that begins with the letter "c" comes, not one with "cs".
  const std::vector<Named> wrong{{u"abc", u""}, {u"csad", u""}, {u"dae", u""}, {u"eaf", u""},
                                 {u"fag", u""}, {u"gah", u""},  {u"hai", u""}, {u"utolsó", u""}};
  EXPECT_THROW(find(wrong, ChainRule::Letter), NothingFits);
  auto right = wrong;
  right[1] = {u"cad", u""};
  EXPECT_EQ(find(right, ChainRule::Letter), in_line);
}

TEST_F(ChainSearchTest, ADigraphIsOneOfTheTwoLastLetters) {
  const std::vector<Named> words{{u"kúsz", u""}, {u"úszog", u""}, {u"ogab", u""}, {u"abce", u""},
                                 {u"cefi", u""}, {u"fijo", u""},  {u"jola", u""}, {u"utolsó", u""}};
  EXPECT_EQ(find(words, ChainRule::TwoLetters), in_line);
  const ChainIndex& index = chain_index(records, ChainRule::TwoLetters);
  EXPECT_TRUE(index.follow(0, 1));
  EXPECT_FALSE(index.follow(1, 0));
}

TEST_F(ChainSearchTest, TheLastRecordIsNoStart) {
  auto words = line();
  words.pop_back();
  std::rotate(words.begin(), words.begin() + 1, words.end());
  EXPECT_THROW(find(words), NothingFits);
}

TEST_F(ChainSearchTest, SyllablesAreCutAtHyphens) {
  EXPECT_EQ(utolsó_szótag(u"al-ma"), u"ma");
  EXPECT_EQ(utolsó_szótag(u"ló"), u"ló");
  EXPECT_EQ(utolsó_szótag(u"szo-ba-"), u"");
  EXPECT_EQ(első_szótag(u"al-ma"), u"al");
  EXPECT_EQ(első_szótag(u"ló"), u"ló");
  EXPECT_EQ(első_szótag(u""), u"");
}

TEST_F(ChainSearchTest, TheIndexIsMadeOnceAndWithTheRecords) {
  records = records_of(line());
  const ChainIndex* index = &chain_index(records, ChainRule::Syllable);
  EXPECT_EQ(index, &chain_index(records, ChainRule::Syllable));
  EXPECT_NE(index, &chain_index(records, ChainRule::Letter));
  EXPECT_TRUE(index->follow(0, 1));
  MemoryFiles other;
  for (int i = 1; i <= 3; ++i) put_record(other, i, {u"alma", {}, u"al-ma"});
  records.load(other, Text(app));
  EXPECT_FALSE(chain_index(records, ChainRule::Syllable).follow(0, 1));
}

// Layers of words that all lead on to the next layer; the sixth leads nowhere but for one word in so many.
std::vector<Named> layers(int width, int last_width) {
  std::vector<Named> words;
  int number = 0;
  for (int layer = 0; layer < 6; ++layer) {
    for (int i = 0; i < (layer == 5 ? last_width : width); ++i) {
      const char16_t letter = static_cast<char16_t>(u'a' + layer);
      const Text end = layer == 5 ? u"vége" + to_text(i) : Text(1, static_cast<char16_t>(letter + 1));
      words.push_back({u"szó" + to_text(++number), Text(1, letter) + u"-" + end});
    }
  }
  words.push_back({u"utolsó", u"u-tol-só"});
  return words;
}

TEST_F(ChainSearchTest, DoesNotRunThroughAllWaysThatLeadNowhere) {
  // 30 words in each of six layers: 24 million ways of six words, and none of seven.
  machine.step_limit = 2000000;
  EXPECT_THROW(find(layers(30, 30), ChainRule::Syllable, 17), NothingFits);
}

TEST_F(ChainSearchTest, FindsTheOneWayAmongAllThatLeadNowhere) {
  auto words = layers(30, 30);
  // The ways of seven words lead through "vége7" and begin with "a" alone.
  words.insert(words.begin(), {u"folytatás", u"vége7-x"});
  machine.step_limit = 2000000;
  const auto found = find(words, ChainRule::Syllable, 17);
  EXPECT_EQ(found.back(), 0);
  EXPECT_EQ(records[found[5]].szótagolt, u"f-vége7");
}

} // namespace
} // namespace cserko
