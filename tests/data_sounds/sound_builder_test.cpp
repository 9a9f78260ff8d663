#include "data/music/notes.h"
#include "data/sounds/render.h"
#include "data/sounds/wave_file.h"
#include "pack_files.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace cserko::test {
namespace {

const std::string header = "file\trole\tseconds\tpeak\tinstrument\tnotes\n";

std::vector<Sound> table_of(const std::string& rows) {
  std::istringstream stream(header + rows);
  return read_sound_table(stream);
}

std::string error_of(const std::string& rows) {
  try {
    table_of(rows);
  } catch (const TableError& error) {
    return error.what();
  }
  return "";
}

Samples tone(std::size_t silent, std::size_t sounding, std::size_t tail) {
  Samples samples(silent, 0.0F);
  for (std::size_t i = 0; i < sounding; ++i) samples.push_back(0.2F * std::sin(0.1F * static_cast<float>(i)));
  samples.insert(samples.end(), tail, 0.0F);
  return samples;
}

float loudest(const Samples& samples) {
  float peak = 0;
  for (const float sample : samples) peak = std::max(peak, std::abs(sample));
  return peak;
}

TEST(Notes, AreNamedByLetterSignAndOctave) {
  EXPECT_EQ(note_key("C4"), 60);
  EXPECT_EQ(note_key("F#3"), 54);
  EXPECT_EQ(note_key("Bb5"), 82);
  EXPECT_EQ(note_key("B0"), 23);
  EXPECT_EQ(note_key("H4"), std::nullopt);
  EXPECT_EQ(note_key(" 4"), std::nullopt);
  EXPECT_EQ(note_key("C"), std::nullopt);
  EXPECT_EQ(note_key("C9"), std::nullopt);
}

TEST(SoundTable, ARowTellsASoundAndRowsBelowAddLayers) {
  const auto sounds = table_of("tus\tpraise\t2\t-3\tflute\t0:C5:0.5:90 0.5:E5:1:100\n\t\t\t\tdrums\t0:snare:0.1:50\n"
                               "# a remark\ncsepp\teffect\t0.4\t-6\tsine\t0:900>300:0.2:80\n");
  ASSERT_EQ(sounds.size(), 2U);
  ASSERT_EQ(sounds[0].layers.size(), 2U);
  EXPECT_EQ(path_in_pack(sounds[0]), "hangok/tus.wav");
  EXPECT_EQ(sounds[0].layers[0].notes[1].key, 76);
  EXPECT_EQ(sounds[0].layers[1].notes[0].key, 38);
  EXPECT_EQ(path_in_pack(sounds[1]), "cserko/csepp.wav");
  EXPECT_EQ(sounds[1].layers[0].notes[0].from, 900);
  EXPECT_EQ(sounds[1].layers[0].notes[0].to, 300);
}

TEST(SoundTable, NamesTheLineAndTheFaultOfAWrongRow) {
  EXPECT_EQ(error_of("x\tshout\t1\t-3\tflute\t0:C5:1:90\n"), "line 2: no such role: \"shout\"");
  EXPECT_EQ(error_of("x\terror\t1\t-3\tkazoo\t0:C5:1:90\n"), "line 2: no such instrument: \"kazoo\"");
  EXPECT_EQ(error_of("x\terror\t1\t-3\tflute\t0:H5:1:90\n"), "line 2: no such note: \"H5\"");
  EXPECT_EQ(error_of("x\terror\t1\t-3\tflute\t0:C5:1:128\n"), "line 2: out of range: \"0:C5:1:128\"");
  EXPECT_EQ(error_of("x\terror\t1\t-3\tflute\t0:C5:1\n"), "line 2: a note has four parts: \"0:C5:1\"");
  EXPECT_EQ(error_of("x\terror\t1\t-3\tflute\t\n"), "line 2: no notes");
  EXPECT_EQ(error_of("\t\t\t\tflute\t0:C5:1:90\n"), "line 2: a further layer has no sound above it");
  EXPECT_EQ(error_of("x\terror\t1\t-3\tflute\t0:C5:1:90\nx\tpraise\t1\t-3\tflute\t0:C5:1:90\n"),
            "twice in the table: x");
}

TEST(FinishedSound, LosesSilenceAtBothEndsAndReachesThePeak) {
  const Samples samples = finish(tone(5000, 10000, 7000), 2.5, -3);
  EXPECT_NEAR(static_cast<double>(samples.size()), 10000, 40);
  EXPECT_NEAR(loudest(samples), std::pow(10.0, -3 / 20.0), 1e-4);
}

TEST(FinishedSound, IsCutToItsLengthAndFadedToZero) {
  const Samples samples = finish(tone(0, 44100 * 4, 0), 1.5, -6);
  EXPECT_EQ(samples.size(), 66150U);
  EXPECT_EQ(samples.front(), 0);
  EXPECT_EQ(samples.back(), 0);
  const float end = loudest({samples.end() - 1000, samples.end()});
  EXPECT_LT(end, 0.01F);
}

TEST(FinishedSound, StaysSilentIfItIs) {
  const Samples samples = finish(Samples(20000, 0.0F), 0.2, 0);
  EXPECT_EQ(samples.size(), 8820U);
  EXPECT_EQ(loudest(samples), 0);
}

TEST(RenderedSound, IsTheSameEachTime) {
  const auto sounds = table_of("x\tpraise\t1\t-3\tharp\t0:C5:0.3:90\n\t\t\t\tdrums\t0.1:snare:0.1:90\n"
                               "\t\t\t\tnoise\t0:500:0.3:90\n");
  const Samples first = render(sounds[0], SOUND_FONT);
  EXPECT_GT(loudest(first), 0.01F);
  EXPECT_EQ(first, render(sounds[0], SOUND_FONT));
}

TEST(RenderedSound, NeedsItsSoundFont) {
  const auto sounds = table_of("x\tpraise\t1\t-3\tharp\t0:C5:0.3:90\n");
  EXPECT_THROW(render(sounds[0], "no-such-file.sf3"), std::runtime_error);
}

TEST(WaveFile, HasOneChannelOfSixteenBits) {
  const std::string bytes = wave_file({0.0F, 1.0F, -1.0F, 2.0F});
  EXPECT_EQ(bytes.substr(0, 4), "RIFF");
  EXPECT_EQ(little_endian(bytes, 4, 4), bytes.size() - 8);
  EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ");
  EXPECT_EQ(bytes.substr(36, 4), "data");
  EXPECT_EQ(little_endian(bytes, 40, 4), 8U);
  EXPECT_EQ(little_endian(bytes, 44, 2), 0U);
  EXPECT_EQ(little_endian(bytes, 46, 2), 32767U);
  EXPECT_EQ(little_endian(bytes, 48, 2), 65536U - 32767U);
  EXPECT_EQ(little_endian(bytes, 50, 2), 32767U); // clipped, not wrapped
}

} // namespace
} // namespace cserko::test
