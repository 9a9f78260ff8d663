#include "data/sounds/sound_table.h"
#include "pack_files.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace cserko::test {
namespace {

const std::vector<Sound>& sounds() {
  static const std::vector<Sound> all = [] {
    std::ifstream table(DATA_DIR "/sounds/sounds.tsv");
    return read_sound_table(table);
  }();
  return all;
}

std::vector<std::string> names_of(SoundRole role) {
  std::vector<std::string> names;
  for (const Sound& sound : sounds())
    if (sound.role == role) names.push_back(sound.name + ".wav");
  return names;
}

std::vector<int> samples_of(const std::string& bytes) {
  std::vector<int> samples;
  for (std::size_t at = 44; at + 1 < bytes.size(); at += 2)
    samples.push_back(static_cast<std::int16_t>(little_endian(bytes, at, 2)));
  return samples;
}

int loudest(const std::vector<int>& samples) {
  int peak = 0;
  for (const int sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

struct File {
  const Sound& sound;
  std::string bytes;
  std::vector<int> samples;
};

/// Every sound of the table with the file that was made of it.
const std::vector<File>& files() {
  static const std::vector<File> all = [] {
    std::vector<File> read;
    for (const Sound& sound : sounds()) {
      const std::string bytes = bytes_of(in_pack(path_in_pack(sound)));
      read.push_back({sound, bytes, samples_of(bytes)});
    }
    return read;
  }();
  return all;
}

TEST(SoundFiles, AreWaveFilesOf44100HertzAndOneChannel) {
  ASSERT_FALSE(files().empty());
  for (const auto& [sound, bytes, samples] : files()) {
    ASSERT_GT(bytes.size(), 44U) << sound.name;
    EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8) + bytes.substr(36, 4), "RIFFWAVEfmt data") << sound.name;
    EXPECT_EQ(little_endian(bytes, 4, 4), bytes.size() - 8) << sound.name;
    EXPECT_EQ(little_endian(bytes, 20, 2), 1U) << sound.name;
    EXPECT_EQ(little_endian(bytes, 22, 2), 1U) << sound.name;
    EXPECT_EQ(little_endian(bytes, 24, 4), 44100U) << sound.name;
    EXPECT_EQ(little_endian(bytes, 28, 4), 88200U) << sound.name;
    EXPECT_EQ(little_endian(bytes, 34, 2), 16U) << sound.name;
    EXPECT_EQ(little_endian(bytes, 40, 4), bytes.size() - 44) << sound.name;
  }
}

TEST(SoundFiles, AreShort) {
  for (const auto& [sound, bytes, samples] : files()) {
    EXPECT_GE(samples.size(), 44100U * 5 / 100) << sound.name;
    EXPECT_LE(samples.size(), 44100U * 5 / 2) << sound.name;
  }
}

TEST(SoundFiles, ReachTheirPeakAndNoMore) {
  for (const auto& [sound, bytes, samples] : files()) {
    if (sound.role == SoundRole::Silence) continue;
    const double decibels = 20 * std::log10(loudest(samples) / 32767.0);
    EXPECT_NEAR(decibels, sound.peak, 0.05) << sound.name;
  }
}

TEST(SoundFiles, AreAllAsLoudButTheQuieterEffects) {
  for (const Sound& sound : sounds()) {
    if (sound.role == SoundRole::Silence) continue;
    EXPECT_LE(sound.peak, -3) << sound.name;
    EXPECT_GE(sound.peak, sound.role == SoundRole::Effect ? -14 : -3) << sound.name;
  }
}

TEST(SoundFiles, StartAndEndWithoutAClick) {
  for (const auto& [sound, bytes, samples] : files()) {
    ASSERT_GE(samples.size(), 20U) << sound.name;
    EXPECT_LE(std::abs(samples.front()), 33) << sound.name;
    EXPECT_LE(std::abs(samples.back()), 33) << sound.name;
    EXPECT_LE(loudest({samples.end() - 20, samples.end()}), loudest(samples) / 50 + 1) << sound.name;
  }
}

TEST(SoundFiles, AreHeardAtOnce) {
  for (const auto& [sound, bytes, samples] : files()) {
    if (sound.role == SoundRole::Silence) continue;
    const int heard = loudest(samples) / 50;
    const auto first = std::ranges::find_if(samples, [&](int sample) { return std::abs(sample) > heard; });
    const int milliseconds = sound.role == SoundRole::Praise ? 40 : 15;
    EXPECT_LT(first - samples.begin(), 44100 * milliseconds / 1000) << sound.name;
  }
}

TEST(SoundFiles, OpenTheDeviceWithSilence) {
  for (const auto& [sound, bytes, samples] : files()) {
    if (sound.role == SoundRole::Silence) {
      EXPECT_EQ(loudest(samples), 0) << sound.name;
    }
  }
}

TEST(SoundFiles, AreEnoughOfEachKind) {
  EXPECT_GE(names_of(SoundRole::Success).size(), 10U);
  EXPECT_GE(names_of(SoundRole::Error).size(), 8U);
  EXPECT_GE(names_of(SoundRole::Praise).size(), 10U);
  EXPECT_EQ(names_of(SoundRole::Drum).size(), 27U);
  EXPECT_EQ(names_of(SoundRole::Silence), std::vector<std::string>{"null.wav"});
}

TEST(SoundFiles, HoldEveryEffectThatTheWindowsPlay) {
  for (const char* name :
       {"alarm", "branch", "clack 1", "clack 2", "cointabl", "grafhang", "kerchunk", "moving", "rd_kick_2", "swallow1"})
    EXPECT_TRUE(std::filesystem::exists(in_pack(std::string("cserko/") + name + ".wav"))) << name;
}

TEST(SoundFiles, FormAKitInAlphabeticalOrder) {
  const auto names = names_in("hangok/dob", ".wav");
  EXPECT_EQ(names, names_of(SoundRole::Drum));
  ASSERT_EQ(names.size(), 27U);
  // Each name tells the key that the order gives it to: the comma, then A to Z.
  EXPECT_NE(names[0].find(" vessző "), std::string::npos);
  for (std::size_t i = 1; i < names.size(); ++i)
    EXPECT_NE(names[i].find(std::string(" ") + static_cast<char>('a' + i - 1) + " "), std::string::npos) << names[i];
}

TEST(SoundFiles, AreNoOthersInTheFolderOfEventSounds) {
  std::set<std::string> known;
  for (const SoundRole role : {SoundRole::Success, SoundRole::Error, SoundRole::Praise})
    for (const std::string& name : names_of(role)) known.insert(name);
  for (const std::string& name : names_in("hangok", ".wav")) EXPECT_TRUE(known.contains(name)) << name;
}

void expect_list(const std::vector<std::string>& names, SoundRole role) {
  EXPECT_EQ(names, names_of(role));
  for (const std::string& name : names) EXPECT_TRUE(std::filesystem::exists(in_pack("hangok/" + name))) << name;
}

TEST(SoundLists, NameFilesThatExist) {
  expect_list(text_lines_of(bytes_of(in_pack("cserko/helyeshang.ini"))), SoundRole::Success);
  expect_list(text_lines_of(bytes_of(in_pack("cserko/hibahang.ini"))), SoundRole::Error);
  const auto lines = text_lines_of(bytes_of(in_pack("cserko/grathang.ini")));
  ASSERT_GT(lines.size(), 5U);
  expect_list({lines.begin() + 5, lines.end()}, SoundRole::Praise);
}

TEST(SoundLists, TickEveryKindOfSound) {
  const auto lines = lines_of(bytes_of(in_pack("cserko/grathang.ini")));
  ASSERT_GT(lines.size(), 5U);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(lines[static_cast<std::size_t>(i)], " 1 ");
}

} // namespace
} // namespace cserko::test
