#include "platform/media_length.h"
#include "tests/media/sound_files.h"

#include <gtest/gtest.h>
#include <random>

namespace cserko {
namespace {

using std::chrono::milliseconds;
using namespace test;

TEST(WaveLength, CountsTheSamples) {
  const Bytes wave = wave_file(sine(440, 1.5, 1000));
  EXPECT_EQ(wave_length(wave, wave.size()), milliseconds(1500));
}

TEST(WaveLength, NeedsOnlyTheBeginning) {
  const Bytes wave = wave_file(sine(440, 1.5, 1000));
  EXPECT_EQ(wave_length(std::span(wave).first(64), wave.size()), milliseconds(1500));
}

TEST(WaveLength, SkipsOtherPartsOfOddSizeBeforeTheSamples) {
  Bytes wave = wave_file(sine(440, 0.5, 1000));
  Bytes note;
  append(note, "LIST");
  append_little(note, 3, 4);
  append(note, "abc");
  note.push_back(0);
  wave.insert(wave.begin() + 12, note.begin(), note.end());
  EXPECT_EQ(wave_length(wave, wave.size()), milliseconds(500));
}

TEST(WaveLength, AFileCutShortIsAsLongAsItsRealSamples) {
  Bytes wave = wave_file(sine(440, 1.0, 1000));
  wave.resize(44 + test_rate);
  EXPECT_EQ(wave_length(wave, wave.size()), milliseconds(500));
}

TEST(WaveLength, OtherFilesAreNoWaves) {
  const Bytes tune = one_tone_tune(1);
  EXPECT_FALSE(wave_length(tune, tune.size()));
  EXPECT_FALSE(wave_length(Bytes{}, 0));
  const Bytes wave = wave_file({});
  EXPECT_FALSE(wave_length(std::span(wave).first(11), 11));
}

TEST(WaveLength, AWaveWithoutFormOrSamplesLastsNoTime) {
  const Bytes wave = wave_file(sine(440, 1.0, 1000));
  EXPECT_EQ(wave_length(std::span(wave).first(12), 12), milliseconds(0));
  EXPECT_EQ(wave_length(std::span(wave).first(36), 36), milliseconds(0));
}

TEST(MidiLength, CountsQuartersAtTheUsualTempo) { EXPECT_EQ(midi_length(one_tone_tune(3)), milliseconds(1500)); }

TEST(MidiLength, FollowsTempoChangesOfTheFirstTrackForTheSecond) {
  // One quarter at half a second, then quarters of a whole second.
  const Bytes tempo{0x60, 0xFF, 0x51, 0x03, 0x0F, 0x42, 0x40};
  const Bytes notes{0x00, 0x90, 60, 100, 0x83, 0x00, 60, 0}; // four quarters, the second event in running status
  EXPECT_EQ(midi_length(midi_file(96, {tempo, notes})), milliseconds(3500));
}

TEST(MidiLength, StepsOverExclusiveMessagesAndTexts) {
  const Bytes track{0x00, 0xF0, 0x03, 1, 2, 0xF7, 0x00, 0xFF, 0x01, 0x02, 'a', 'b', 0x60, 0x90, 60, 0};
  EXPECT_EQ(midi_length(midi_file(96, {track})), milliseconds(500));
}

TEST(MidiLength, ReadsFilmTime) {
  const Bytes track{0x82, 0x2C, 0x90, 60, 0};                            // 300 ticks
  EXPECT_EQ(midi_length(midi_file(0xE728, {track})), milliseconds(300)); // 25 frames of 40 ticks
}

TEST(MidiLength, ATrackThatBreaksOffCountsAsFarAsItGoes) {
  Bytes tune = one_tone_tune(3);
  tune.resize(tune.size() - 6);
  EXPECT_EQ(midi_length(tune), milliseconds(1500));
}

TEST(MidiLength, OtherFilesAreNoTunes) {
  EXPECT_FALSE(midi_length(wave_file({})));
  EXPECT_FALSE(midi_length(Bytes{}));
  const Bytes tune = one_tone_tune(1);
  EXPECT_FALSE(midi_length(std::span(tune).first(13)));
  EXPECT_FALSE(midi_length(midi_file(0, {})));
}

TEST(MediaLength, AnyBytesGiveNoLengthOrOneWithinADay) {
  std::mt19937 random(4'711);
  const Bytes seeds[] = {one_tone_tune(3), wave_file(sine(440, 0.01, 1000))};
  for (int round = 0; round < 50'000; ++round) {
    Bytes bytes = seeds[random() % 2];
    for (unsigned changes = random() % 12; changes > 0; --changes)
      bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
    bytes.resize(random() % 3 == 0 ? random() % bytes.size() : bytes.size());
    for (const auto& length : {midi_length(bytes), wave_length(bytes, random())})
      if (length) {
        ASSERT_GE(*length, milliseconds(0));
        ASSERT_LE(*length, std::chrono::hours(24));
      }
  }
}

} // namespace
} // namespace cserko
