#include "core/codepage.h"
#include "core/nothing_fits.h"
#include "core/records.h"
#include "platform/headless/headless_platform.h"

#include <gtest/gtest.h>
#include <numeric>

namespace cserko {
namespace {

const Text folder = u"c:\\cserko\\";
const Text records_folder = folder + u"kepek\\";

std::string file_of(const std::vector<Text>& lines, const std::string& line_end = "\r\n") {
  std::string bytes;
  for (const Text& line : lines) bytes += to_cp1250(line) + line_end;
  return bytes;
}

const std::vector<Text> apple{u"16",         u"őszibarack",    u"gyümölcs",
                              u"peach",      u"ő-szi-ba-rack", u"Magvas, lédús gyümölcs.",
                              u"Fán terem.", u"Van szárnya."};

class RecordsTest : public testing::Test {
 protected:
  void put(const Text& name, const std::string& bytes) { platform.files().put(records_folder + name, bytes); }

  /// That many records with the names 0, 1, 2 and so on.
  void put_numbered(int count) {
    for (int i = 0; i < count; ++i) put(to_text(i) + u".wms", "\r\n" + std::to_string(i) + "\r\n\r\n\r\n");
  }

  void load() { records.load(platform.files(), folder); }

  HeadlessPlatform platform;
  Records records;
};

// Loading.

TEST_F(RecordsTest, TakesTheFieldsFromTheirLines) {
  put(u"12.wms", file_of(apple));
  load();
  EXPECT_EQ(records.képszám, 0);
  const KépAdat& record = records[0];
  EXPECT_EQ(record.wms, u"c:\\cserko\\kepek\\12.wms");
  EXPECT_EQ(record.wmf, u"c:\\cserko\\kepek\\12.wmf");
  EXPECT_EQ(record.név, u"őszibarack");
  EXPECT_EQ(record.angol, u"peach");
  EXPECT_EQ(record.szótagolt, u"ő-szi-ba-rack");
  EXPECT_EQ(record.meghatározás, u"Magvas, lédús gyümölcs.");
  EXPECT_EQ(record.igaz, u"Fán terem.");
  EXPECT_EQ(record.hamis, u"Van szárnya.");
}

TEST_F(RecordsTest, EmptyAndBlankLinesKeepTheirPlaces) {
  put(u"1.wms", "\r\n alma \r\n\r\n\r\nal-ma\r\n\r\nigaz\r\n");
  load();
  EXPECT_EQ(records[0].név, u" alma ") << "lines are not trimmed";
  EXPECT_EQ(records[0].angol, u"");
  EXPECT_EQ(records[0].szótagolt, u"al-ma");
  EXPECT_EQ(records[0].meghatározás, u"");
  EXPECT_EQ(records[0].igaz, u"igaz");
}

TEST_F(RecordsTest, LinesBehindTheEighthAreIgnored) {
  auto lines = apple;
  lines.emplace_back(u"kilenc");
  put(u"1.wms", file_of(lines));
  load();
  EXPECT_EQ(records[0].hamis, u"Van szárnya.");
}

TEST_F(RecordsTest, EveryKindOfLineEndWill) {
  put(u"1.wms", file_of(apple, "\n"));
  put(u"2.wms", file_of(apple, "\r"));
  std::string unfinished = file_of(apple);
  unfinished.resize(unfinished.size() - 2);
  put(u"3.wms", unfinished);
  load();
  for (int i = 0; i <= 2; ++i) {
    EXPECT_EQ(records[i].név, u"őszibarack");
    EXPECT_EQ(records[i].hamis, u"Van szárnya.");
  }
}

TEST_F(RecordsTest, ShortFilesLeaveTheLaterFieldsEmpty) {
  for (std::size_t lines = 0; lines <= 8; ++lines)
    put(to_text(static_cast<int>(lines)) + u".wms",
        file_of({apple.begin(), apple.begin() + static_cast<std::ptrdiff_t>(lines)}));
  load();
  ASSERT_EQ(records.képszám, 8);
  for (int lines = 0; lines <= 8; ++lines) {
    EXPECT_EQ(!records[lines].név.empty(), lines >= 2) << lines;
    EXPECT_EQ(!records[lines].angol.empty(), lines >= 4) << lines;
    EXPECT_EQ(!records[lines].szótagolt.empty(), lines >= 5) << lines;
    EXPECT_EQ(!records[lines].meghatározás.empty(), lines >= 6) << lines;
    EXPECT_EQ(!records[lines].igaz.empty(), lines >= 7) << lines;
    EXPECT_EQ(!records[lines].hamis.empty(), lines >= 8) << lines;
  }
}

TEST_F(RecordsTest, NFilesGiveTheLastIndexNMinusOne) {
  put_numbered(7);
  load();
  EXPECT_EQ(records.képszám, 6);
  EXPECT_NO_THROW(records[6]);
  EXPECT_THROW(records[7], std::out_of_range);
  EXPECT_THROW(records[-1], std::out_of_range);
}

TEST_F(RecordsTest, TheOrderIsThatOfTheFileSystem) {
  for (const TextView name : {u"5.wms", u"10.wms", u"1.wms"}) put(Text(name), file_of(apple));
  load();
  EXPECT_EQ(records[0].wms, records_folder + u"5.wms");
  EXPECT_EQ(records[1].wms, records_folder + u"10.wms");
  EXPECT_EQ(records[2].wms, records_folder + u"1.wms");
}

TEST_F(RecordsTest, OnlyTextFilesOfRecordsCountWhateverTheCaseOfTheirEnding) {
  put(u"1.WMS", file_of(apple));
  put(u"1.wmf", "");
  put(u"2.wms.bak", file_of(apple));
  load();
  EXPECT_EQ(records.képszám, 0);
  EXPECT_EQ(records[0].név, u"őszibarack");
  EXPECT_EQ(records[0].wmf, records_folder + u"1.wmf");
}

TEST_F(RecordsTest, AnEmptyOrMissingFolderGivesOneEmptyRecord) {
  load();
  EXPECT_EQ(records.képszám, 0);
  EXPECT_EQ(records.left_out(), 0);
  EXPECT_EQ(records[0].wms, records_folder);
  EXPECT_EQ(records[0].wmf, folder + u"kepwmf") << "the last three characters give way as in any name";
  for (const Text& field : {records[0].név, records[0].angol, records[0].szótagolt, records[0].meghatározás,
                            records[0].igaz, records[0].hamis})
    EXPECT_EQ(field, u"");
  EXPECT_THROW(records[1], std::out_of_range);
}

TEST_F(RecordsTest, BeforeLoadingThereIsOneEmptyRecordToo) {
  EXPECT_EQ(records.képszám, 0);
  EXPECT_EQ(records[0].név, u"");
}

TEST_F(RecordsTest, LoadingAgainForgetsWhatWasLoadedBefore) {
  put_numbered(3);
  load();
  platform.files().take(records_folder + u"1.wms");
  platform.files().take(records_folder + u"2.wms");
  load();
  EXPECT_EQ(records.képszám, 0);
  EXPECT_THROW(records[1], std::out_of_range);
}

TEST_F(RecordsTest, EachFileIsReadOnce) {
  put_numbered(50);
  load();
  EXPECT_EQ(platform.files().reads(), 50);
}

TEST_F(RecordsTest, ProgressIsToldBeforeEachFileInOrder) {
  put_numbered(4);
  std::vector<int> told;
  records.load(platform.files(), folder, [&](int index) {
    EXPECT_EQ(records.képszám, 3) << "the end is known from the first call on";
    EXPECT_EQ(platform.files().reads(), index);
    told.push_back(index);
  });
  EXPECT_EQ(told, (std::vector<int>{0, 1, 2, 3}));
}

// What fails.

TEST_F(RecordsTest, AFileThatCannotBeReadLeavesItsRecordEmptyAndTheOthersWhole) {
  put(u"1.wms", file_of(apple));
  put(u"2.wms", file_of(apple));
  put(u"3.wms", file_of(apple));
  platform.files().make_unreadable(records_folder + u"2.wms");
  load();
  EXPECT_EQ(records.képszám, 2);
  EXPECT_EQ(records[1].wms, records_folder + u"2.wms");
  EXPECT_EQ(records[1].név, u"");
  EXPECT_EQ(records[2].név, u"őszibarack");
}

TEST_F(RecordsTest, AnEmptyFileIsAnEmptyRecord) {
  put(u"1.wms", "");
  load();
  EXPECT_EQ(records[0].név, u"");
  EXPECT_EQ(records.szótagszám(0), 1);
}

TEST_F(RecordsTest, BinaryBytesBecomeCharacters) {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  put(u"1.wms", bytes);
  load();
  const std::string name = to_cp1250(records[0].név);
  EXPECT_EQ(name, bytes.substr(11, 2)) << "between LF and CR";
}

TEST_F(RecordsTest, AHugeLineIsCutAndTheNextOnesAreStillFound) {
  const std::string huge(10'000'000, 'x');
  put(u"1.wms", "\r\n" + huge + "\r\n\r\nenglish\r\na-b\r\n");
  put(u"2.wms", huge);
  load();
  EXPECT_EQ(records[0].név.size(), Records::longest_field);
  EXPECT_EQ(records[0].angol, u"english");
  EXPECT_EQ(records[1].név, u"");
}

TEST_F(RecordsTest, AHugeFileOfShortLinesIsHarmless) {
  std::string bytes;
  while (bytes.size() < 10'000'000) bytes += "a\r\n";
  put(u"1.wms", bytes);
  load();
  EXPECT_EQ(records[0].hamis, u"a");
}

/// A folder that changes between the two walks.
class ChangingFiles : public Files {
 public:
  explicit ChangingFiles(std::vector<std::vector<Text>> walks) : walks_(std::move(walks)) {}

  std::vector<Text> list(const Text&) const override { return walks_.at(static_cast<std::size_t>(walk_++)); }
  bool exists(const Text&) const override { return true; }
  std::optional<std::string> read(const Text&) const override { return file_of(apple); }
  void write(const Text&, std::string_view) override {}
  void make_folder(const Text&) override {}
  void remove(const Text&) override {}

 private:
  std::vector<std::vector<Text>> walks_;
  mutable int walk_ = 0;
};

TEST_F(RecordsTest, AFileThatAppearsBetweenTheWalksIsNotSeen) {
  records.load(ChangingFiles({{u"1.wms", u"2.wms"}, {u"1.wms", u"2.wms", u"3.wms"}}), folder);
  EXPECT_EQ(records.képszám, 1);
  EXPECT_EQ(records[1].wms, records_folder + u"2.wms");
}

TEST_F(RecordsTest, AFileThatVanishesBetweenTheWalksLeavesAnEmptyRecord) {
  records.load(ChangingFiles({{u"1.wms", u"2.wms"}, {u"1.wms"}}), folder);
  EXPECT_EQ(records.képszám, 1);
  EXPECT_EQ(records[0].név, u"őszibarack");
  EXPECT_EQ(records[1].wms, records_folder);
  EXPECT_EQ(records[1].név, u"");
}

TEST_F(RecordsTest, MoreFilesThanTheIndexCanNameAreLeftOutAndCounted) {
  std::vector<Text> names;
  for (int i = 0; i < 32768 + 5; ++i) names.push_back(to_text(i) + u".wms");
  records.load(ChangingFiles({names, names}), folder);
  EXPECT_EQ(records.képszám, 32767);
  EXPECT_EQ(records.left_out(), 5);
  EXPECT_EQ(records[32767].wms, records_folder + u"32767.wms");
  names.resize(32768);
  records.load(ChangingFiles({names, names}), folder);
  EXPECT_EQ(records.képszám, 32767);
  EXPECT_EQ(records.left_out(), 0);
}

// Syllables.

TEST_F(RecordsTest, SyllablesAreOneMoreThanTheHyphens) {
  const auto with_syllables = [](const std::string& syllables) { return "\r\nx\r\n\r\ny\r\n" + syllables + "\r\n"; };
  put(u"1.wms", with_syllables("al-ma"));
  put(u"2.wms", with_syllables("fa"));
  put(u"3.wms", with_syllables(""));
  put(u"4.wms", with_syllables("-a--b-"));
  load();
  EXPECT_EQ(records.szótagszám(0), 2);
  EXPECT_EQ(records.szótagszám(1), 1);
  EXPECT_EQ(records.szótagszám(2), 1);
  EXPECT_EQ(records.szótagszám(3), 5) << "every hyphen counts";
  EXPECT_THROW(records.szótagszám(4), std::out_of_range);
}

// The words.

TEST_F(RecordsTest, AWordIsChosenByLanguageAndSyllables) {
  EXPECT_EQ(word_form(false, false), WordForm::Név);
  EXPECT_EQ(word_form(false, true), WordForm::Szótagolt);
  EXPECT_EQ(word_form(true, false), WordForm::Angol);
  EXPECT_EQ(word_form(true, true), WordForm::Angol);
  put(u"1.wms", file_of({u"x", u"asszony", u"x", u"woman", u"asz-szony"}));
  load();
  EXPECT_EQ(records.word(0, WordForm::Név), u"asszony");
  EXPECT_EQ(records.word(0, WordForm::Szótagolt), u"asz-szony");
  EXPECT_EQ(records.word(0, WordForm::Angol), u"woman");
}

TEST_F(RecordsTest, LettersAreThoseOfTheFormAndCountTheSameEachTime) {
  put(u"1.wms", file_of({u"x", u"asszony", u"x", u"sandy", u"asz-szony"}));
  load();
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(records.MAGYARBETŰKSZÁMA(0), 4);
    EXPECT_EQ(records.MAGYARBETŰKSZÁMA(0, WordForm::Szótagolt), 6) << "a, sz, -, sz, o, ny";
    EXPECT_EQ(records.MAGYARBETŰKSZÁMA(0, WordForm::Angol), 5);
    EXPECT_EQ(records.word_length(0, false), 4);
    EXPECT_EQ(records.word_length(0, true), 5);
    EXPECT_TRUE(records.vanebenne(0, u"ssz"));
    EXPECT_FALSE(records.vanebenne(0, u"sz"));
    EXPECT_TRUE(records.vanebenne(0, u"sz", WordForm::Szótagolt));
    EXPECT_FALSE(records.vanebenne(0, u"s", WordForm::Szótagolt));
  }
  EXPECT_THROW(records.MAGYARBETŰKSZÁMA(1), std::out_of_range);
  EXPECT_THROW(records.vanebenne(-1, u"a"), std::out_of_range);
}

TEST_F(RecordsTest, WhatIsKeptOfWordsEndsWithTheRecords) {
  put(u"1.wms", file_of({u"x", u"alma", u"x", u"", u"al-ma"}));
  load();
  EXPECT_EQ(records.MAGYARBETŰKSZÁMA(0), 4);
  EXPECT_TRUE(records.vanebenne(0, u"m"));
  put(u"1.wms", file_of({u"x", u"sas", u"x", u"", u"sas"}));
  load();
  EXPECT_EQ(records.MAGYARBETŰKSZÁMA(0), 3);
  EXPECT_FALSE(records.vanebenne(0, u"m"));
}

TEST_F(RecordsTest, AnEmptyWordHasNoLetters) {
  load();
  EXPECT_EQ(records.MAGYARBETŰKSZÁMA(0), 0);
  EXPECT_FALSE(records.vanebenne(0, u"a"));
  EXPECT_EQ(records.word_length(0, true), 0);
}

// The draw.

TEST_F(RecordsTest, ADrawTakesTheWholePartAndNeverTheLastRecord) {
  put_numbered(5);
  load();
  platform.script_random({0, 0.24, 0.25, 0.74, 0.999999});
  const auto any = [](int) { return true; };
  std::vector<int> drawn;
  for (int i = 0; i < 5; ++i) drawn.push_back(records.draw(platform, any));
  EXPECT_EQ(drawn, (std::vector<int>{0, 0, 1, 2, 3}));
  EXPECT_EQ(platform.scripted_random_left(), 0U) << "one random number for each draw";
}

TEST_F(RecordsTest, ADrawGoesOnUntilARecordPasses) {
  put_numbered(5);
  load();
  platform.script_random({0.1, 0.3, 0.6, 0.9});
  EXPECT_EQ(records.draw(platform, [](int index) { return index >= 2; }), 2);
  EXPECT_EQ(platform.scripted_random_left(), 1U);
}

TEST_F(RecordsTest, WithTheLastIndexZeroOnlyIndexZeroIsDrawn) {
  load();
  EXPECT_EQ(records.draw(platform, [](int) { return true; }), 0);
  put_numbered(1);
  load();
  EXPECT_EQ(records.draw(platform, [](int) { return true; }), 0);
  EXPECT_THROW(records.draw(platform, [](int) { return false; }), NothingFits);
}

TEST_F(RecordsTest, ADrawThatOnlyTheLastRecordCouldPassFindsNothing) {
  put_numbered(5);
  load();
  EXPECT_THROW(records.draw(platform, [](int index) { return index == 4; }), NothingFits);
}

TEST_F(RecordsTest, WhereNothingCanPassTheAdviceIsThrown) {
  put_numbered(5);
  load();
  try {
    records.draw(
        platform, [](int) { return false; }, u"Engedj hosszabb szavakat!");
    FAIL() << "nothing was thrown";
  } catch (const NothingFits& unfit) {
    EXPECT_EQ(unfit.message(), u"Engedj hosszabb szavakat!");
    EXPECT_STREQ(unfit.what(), "Engedj hosszabb szavakat!");
  }
  try {
    records.draw(platform, [](int) { return false; });
    FAIL() << "nothing was thrown";
  } catch (const NothingFits& unfit) {
    EXPECT_FALSE(unfit.message().empty());
  }
}

TEST_F(RecordsTest, TheGuardAsksEveryCandidateOnceAndDrawsNothing) {
  put_numbered(5);
  load();
  // After many fruitless draws a hit comes: the number of random numbers is that of the plain rule.
  std::vector<double> numbers(1000, 0.1);
  numbers.push_back(0.9);
  platform.script_random(numbers);
  int asked = 0;
  const int drawn = records.draw(platform, [&](int index) {
    ++asked;
    return index == 3;
  });
  EXPECT_EQ(drawn, 3);
  EXPECT_EQ(platform.scripted_random_left(), 0U);
  EXPECT_EQ(asked, 1001 + 4) << "one question for each draw, and one look at the candidates 0 to 3";
}

TEST_F(RecordsTest, EveryRecordButTheLastComesUp) {
  put_numbered(20);
  load();
  std::vector<int> counts(20, 0);
  for (int i = 0; i < 4000; ++i) ++counts[static_cast<std::size_t>(records.draw(platform, [](int) { return true; }))];
  for (int i = 0; i < 19; ++i) EXPECT_GT(counts[static_cast<std::size_t>(i)], 100) << i;
  EXPECT_EQ(counts[19], 0);
}

TEST_F(RecordsTest, ARoundedDrawReachesTheLastRecordAndBothEndsHalfAsOften) {
  put_numbered(5);
  load();
  platform.script_random({0, 0.124, 0.125, 0.126, 0.375, 0.874, 0.875, 0.999});
  const auto any = [](int) { return true; };
  std::vector<int> drawn;
  for (int i = 0; i < 8; ++i)
    drawn.push_back(records.draw(platform, any, Records::general_advice, Records::Reach::WithLast));
  EXPECT_EQ(drawn, (std::vector<int>{0, 0, 0, 1, 2, 3, 4, 4})) << "a half goes to the even neighbour";
  EXPECT_EQ(records.draw(
                platform, [](int index) { return index == 4; }, Records::general_advice, Records::Reach::WithLast),
            4);
}

TEST_F(RecordsTest, ADrawOfAllGivesTheLastRecordTheSameChance) {
  put_numbered(5);
  load();
  platform.script_random({0, 0.19, 0.2, 0.79, 0.8, 0.999999});
  std::vector<int> drawn;
  for (int i = 0; i < 6; ++i)
    drawn.push_back(records.draw(
        platform, [](int) { return true; }, Records::general_advice, Records::Reach::All));
  EXPECT_EQ(drawn, (std::vector<int>{0, 0, 1, 3, 4, 4}));
  EXPECT_EQ(records.draw(
                platform, [](int index) { return index == 4; }, Records::general_advice, Records::Reach::All),
            4);
}

TEST_F(RecordsTest, TheGuardOfARoundedDrawAsksTheLastRecordToo) {
  put_numbered(5);
  load();
  std::vector<double> numbers(1000, 0.1);
  numbers.push_back(0.999);
  platform.script_random(numbers);
  const auto last = [](int index) { return index == 4; };
  EXPECT_EQ(records.draw(platform, last, Records::general_advice, Records::Reach::WithLast), 4);
}

TEST_F(RecordsTest, AnErrorInTheFilterReachesTheCaller) {
  put_numbered(5);
  load();
  EXPECT_THROW(records.draw(platform, [](int) -> bool { throw std::out_of_range("x"); }), std::out_of_range);
}

} // namespace
} // namespace cserko
