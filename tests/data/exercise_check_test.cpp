#include "data/checker/exceptions.h"
#include "data/checker/exercise_check.h"
#include "data/checker/language_checks.h"
#include "data/checker/word_chain.h"
#include "data/pack/table.h"
#include "tests/data/samples.h"

#include <QSet>
#include <QTemporaryDir>

namespace cserko {
namespace {

const ExerciseFilter& filter_of(const std::vector<ExerciseFilter>& filters, const QString& window) {
  for (const ExerciseFilter& filter : filters)
    if (filter.window == window) return filter;
  throw std::out_of_range(window.toStdString());
}

class Filters : public testing::Test {
 protected:
  // The last record is never drawn, so a filler stands there.
  int fitting(const QString& window, const Choice& choice, const std::vector<WordFacts>& words) {
    pack_.words = words;
    pack_.words.push_back(word("vég", "vég", "end"));
    pack_.m_width = 0.778;
    pack_.line_height = 1.1;
    filters_ = exercise_filters(pack_);
    return filter_of(filters_, window).fitting(choice);
  }
  Pack pack_;
  std::vector<ExerciseFilter> filters_;
};

TEST_F(Filters, CoverTheTwentyExercisesOnce) {
  fitting("frm_cserkó", {0, 12}, {});
  QSet<QString> windows;
  for (const ExerciseFilter& filter : filters_) windows.insert(filter.window);
  EXPECT_EQ(filters_.size(), 20u);
  EXPECT_EQ(windows.size(), 20);
}

TEST_F(Filters, CountDigraphsAsOneLetter) {
  const std::vector<WordFacts> words{word("asszony", "asz-szony"), word("alma", "al-ma")};
  EXPECT_EQ(fitting("frm_cserkó", {1, 4}, words), 2);
  EXPECT_EQ(fitting("frm_cserkó", {1, 7}, words), 0);
  EXPECT_EQ(fitting("frm_betűfelesleg", {4}, words), 2);
}

TEST_F(Filters, NeverCountTheRecordThatIsNeverDrawn) { EXPECT_EQ(fitting("frm_betűfelesleg", {4}, {}), 0); }

TEST_F(Filters, ThrowAwayScrambledWordsTooWideForTheFrame) {
  WordFacts wide = word("alma", "al-ma");
  wide.width = 5;
  EXPECT_EQ(fitting("frm_cserkó", {0, 12}, {wide}), 0);
}

TEST_F(Filters, LeaveOutWordsThatArePartOfOthersOnTheWindersBoard) {
  EXPECT_EQ(fitting("frmverem", {8, 0}, {word("hal", "hal"), word("halász", "ha-lász")}), 2); // "halász" and the filler
}

TEST_F(Filters, SortLettersOnlyWithoutTheOtherOfThePair) {
  pack_.pairs = {{QString("s"), QString("sz")}};
  const std::vector<WordFacts> words{word("sas", "sas"), word("szem", "szem"), word("szokás", "szo-kás")};
  EXPECT_EQ(fitting("frm_betűválogatás", {0, 0, 0, 14}, words), 1);
  EXPECT_EQ(fitting("frm_betűválogatás", {1, 0, 0, 14}, words), 1);
}

TEST_F(Filters, WantThreeDifferentInnerLettersForAMixUp) {
  EXPECT_EQ(fitting("frm_betűkeverő", {0, 4, 5, 10}, {word("tábla", "táb-la"), word("banana", "ba-na-na")}), 1);
  EXPECT_EQ(fitting("frm_betűkeverő", {0, 5, 5, 10}, {word("tábla", "táb-la")}), 0); // three swaps make four choices
}

TEST_F(Filters, CountEachLetterOfTheShortLongPairs) {
  const std::vector<WordFacts> words{word("kígyó", "kí-gyó"), word("kis-kutya", "kis-ku-tya")};
  EXPECT_EQ(fitting("frm_hosszrövid", {1, 4, 10}, words), 1); // í; the hyphen keeps the other out
  EXPECT_EQ(fitting("frm_hosszrövid", {0, 4, 10}, words), 0);
  // The "cs" at the seam of two words is none in syllables.
  EXPECT_EQ(fitting("frm_hosszrövid", {27, 4, 10}, {word("malacsült", "ma-lac-sült"), word("kocsi", "ko-csi")}), 1);
}

TEST_F(Filters, KnowHowManyWordsFitOnTheKnightsBoardTogether) {
  const std::vector<WordFacts> words{word("elefántcsont", "x"), word("orrszarvúhal", "x"), word("tengerimalac", "x")};
  EXPECT_EQ(fitting("frm_lóugrás", {6, 6, 12, 2, 0, 0}, words), 4);
  EXPECT_EQ(fitting("frm_lóugrás", {6, 6, 12, 2, 0, 1}, words), 4);
  EXPECT_EQ(fitting("frm_lóugrás", {6, 6, 12, 4, 0, 0}, words), 0); // 43 characters on a board that takes 28
}

TEST_F(Filters, KnowThatANumberOfTheKnightsBoardAlsoAsksForTheNameOfARecord) {
  const std::vector<WordFacts> words{word("ló", "ló", "horse"), word("elefántcsont", "x", "tusk")};
  EXPECT_EQ(fitting("frm_lóugrás", {8, 8, 4, 1, 0, 0}, words), 1); // two of three, and two of three names are short
  EXPECT_EQ(fitting("frm_lóugrás", {8, 8, 4, 1, 1, 0}, words), 1); // tusk and end
}

TEST_F(Filters, CountSyllables) {
  const std::vector<WordFacts> words{word("ló", "ló"), word("alma", "al-ma"), word("kukorica", "ku-ko-ri-ca")};
  EXPECT_EQ(fitting("frm_szótagoló", {2, 0}, words), 2);
  EXPECT_EQ(fitting("frm_szótagoló", {2, 1}, words), 1);
  EXPECT_EQ(fitting("frm_szótagkereső", {3, 7}, words), 1);
}

TEST_F(Filters, CountMotifsOfEachDirection) {
  pack_.direction_pictures = {5, 4, 3, 0};
  EXPECT_EQ(fitting("frm_merremutat", {1}, {}), 4);
  EXPECT_EQ(fitting("frm_merremutat", {3}, {}), 0);
}

Pack chain_pack(std::initializer_list<const char*> all_syllables) {
  Pack pack;
  for (const char* syllables : all_syllables) pack.words.push_back(word(QString(syllables).remove('-'), syllables));
  return pack;
}

TEST(WordChain, CountsStartsOfSevenWordsThatLinkBySyllablesOfWhichOneMayBeTheLastRecord) {
  Pack pack = chain_pack({"a-ba", "xa-ba", "ya-ba", "ba-ca", "ca-da", "da-ea", "ea-fa", "fa-ga", "ga-ha", "végx-vég"});
  EXPECT_EQ(chain_starts(pack, ChainType::syllable, 12), 2);
  EXPECT_EQ(chain_starts(pack, ChainType::syllable, 3), 0);
  pack.words.erase(pack.words.begin());
  EXPECT_EQ(chain_starts(pack, ChainType::syllable, 12), 1);
  pack.words.erase(pack.words.begin());
  EXPECT_EQ(chain_starts(pack, ChainType::syllable, 12), 0);
}

TEST(WordChain, IsRefusedWhereALinkIsMissingOrComesTwice) {
  EXPECT_EQ(
      chain_starts(chain_pack({"a-ba", "xa-ba", "ba-ca", "ca-da", "ea-fa", "fa-ga", "ga-ha"}), ChainType::syllable, 12),
      0);
  EXPECT_EQ(chain_starts(chain_pack({"a-ba", "xa-ba", "ba-ca", "ca-da", "da-ca"}), ChainType::syllable, 12), 0);
}

TEST(WordChain, LinksByLettersAndNotByCharacters) {
  EXPECT_EQ(chain_starts(chain_pack({"abc", "xbc", "cad", "dae", "eaf", "fag", "gah", "hai"}), ChainType::letter, 12),
            1);
  EXPECT_EQ(chain_starts(chain_pack({"abc", "xbc", "csad", "dae", "eaf", "fag", "gah", "hai"}), ChainType::letter, 12),
            0);
}

TEST_F(Filters, RefuseAWordChainWithoutChainsOrWithTooFewPictures) {
  std::vector<WordFacts> words;
  for (const char* syllables : {"a-ba", "xa-ba", "ba-ca", "ca-da", "da-ea", "ea-fa", "fa-ga", "ga-ha"})
    words.push_back(word(QString(syllables).remove('-'), syllables));
  EXPECT_EQ(fitting("frm_szólánc", {0, 12, 7}, words), 1);
  EXPECT_EQ(fitting("frm_szólánc", {0, 12, 14}, words), 0);
  words.pop_back();
  EXPECT_EQ(fitting("frm_szólánc", {0, 12, 7}, words), 0);
}

// An exercise with one choice and two numbers, of which "3 and 3" is too much.
ExerciseFilter sample() {
  return {"frm_x",
          "X",
          {{"language", SettingKind::choice, 0, {0, 1}, [](int v) { return v ? "English" : "Hungarian"; }},
           {"least", SettingKind::range, 1, {1, 2, 3}, {}},
           {"most", SettingKind::range, 9, {3, 9}, {}}},
          [](const Choice& c) { return c[1] <= c[2]; },
          [](const Choice&) { return 2; },
          [](const Choice& c) { return c[1] == 3 && c[2] == 3   ? 0
                                       : c[0] == 1 && c[1] == 2 ? 1
                                                                : 5; }};
}

class Outcome : public testing::Test {
 protected:
  Exceptions exceptions(const QByteArray& rows) {
    const QString path = folder_.filePath("settings.tsv");
    write_if_changed(path, "window\tsetting\treason\n" + rows);
    return Exceptions(path, {"window", "setting"});
  }
  QTemporaryDir folder_;
  ExerciseFilter filter_ = sample();
  ExerciseOutcome outcome_ = count_combinations(filter_);
};

TEST_F(Outcome, CountsEveryCombinationThatIsOffered) { EXPECT_EQ(outcome_.verdicts.size(), 12u); }

TEST_F(Outcome, DemandsChoicesWithOneNumberOffItsDefault) {
  Exceptions none = exceptions("");
  EXPECT_EQ(unplayable(outcome_, none), QStringList{"frm_x, language English, least 2: 1 fit, 2 are needed"});
}

TEST_F(Outcome, ExcusesWhatWasReviewedAndNothingElse) {
  Exceptions reviewed = exceptions("frm_x\tlanguage English, least 2\tfew short words\n");
  EXPECT_EQ(reviewed.faults().size(), 1); // needed by nothing so far
  EXPECT_TRUE(unplayable(outcome_, reviewed).isEmpty());
  EXPECT_TRUE(reviewed.faults().isEmpty());
  Exceptions idle = exceptions("frm_x\tleast 2\treason\nfrm_x\tleast 3\t\n");
  EXPECT_EQ(idle.faults().size(), 3);
}

TEST_F(Outcome, OnlyTellsOfSeveralNumbersOffTheirDefaults) {
  EXPECT_EQ(edge_lines(outcome_),
            (QStringList{"language Hungarian, least 3; most 3", "language English, least 2; most 3",
                         "language English, least 3; most 3"}));
}

TEST(Hyphenation, AgreesBesideSyllablesOfOneLetterOnly) {
  EXPECT_TRUE(agrees("al-ma", "al-ma"));
  EXPECT_TRUE(agrees("e-per", "eper"));
  EXPECT_TRUE(agrees(QStringLiteral("a-u-tó"), QStringLiteral("au-tó")));
  EXPECT_TRUE(agrees("te-a", "tea"));
  EXPECT_TRUE(agrees("asz-szony", "asz-szony"));
  EXPECT_FALSE(agrees("alma", "al-ma"));
  EXPECT_FALSE(agrees("al-ma", "alma"));
  EXPECT_FALSE(agrees("alm-a", "al-ma"));
}

} // namespace
} // namespace cserko
