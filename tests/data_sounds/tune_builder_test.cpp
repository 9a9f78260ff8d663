#include "data/music/midi_file.h"
#include "pack_files.h"

#include <gtest/gtest.h>
#include <sstream>

namespace cserko::test {
namespace {

Tune tune_of(const std::string& body) {
  std::istringstream stream("title Próba\ntempo 60\nmeter 2/4\n" + body);
  return read_tune(stream);
}

std::string error_of(const std::string& body) {
  try {
    tune_of(body);
  } catch (const TuneError& error) {
    return error.what();
  }
  return "";
}

const std::string part = "part A\nmelody C4:4 D:8. E:16 | F#5:4 -\nchords C | G Am\n";

TEST(WrittenTune, NotesKeepOctaveAndValueOfTheNoteBefore) {
  const Tune tune = tune_of(part + "verse A melody=flute\n");
  const Part& bars = tune.parts.at('A');
  ASSERT_EQ(bars.size(), 2U);
  ASSERT_EQ(bars[0].notes.size(), 3U);
  EXPECT_EQ(bars[0].notes[0].key, 60);
  EXPECT_EQ(bars[0].notes[1].key, 62);
  EXPECT_EQ(bars[0].notes[1].ticks, 360);
  EXPECT_EQ(bars[0].notes[2].ticks, 120);
  EXPECT_EQ(bars[1].notes[0].key, 78);
  EXPECT_EQ(bars[1].notes[1].key, std::nullopt);
  EXPECT_EQ(bars[1].notes[1].ticks, 480);
  ASSERT_EQ(bars[1].chords.size(), 2U);
  EXPECT_EQ(bars[1].chords[1].root, 9);
  EXPECT_TRUE(bars[1].chords[1].minor);
  EXPECT_EQ(bars[1].chords[1].ticks, 480);
}

TEST(WrittenTune, MeterMayChangeInsideAPart) {
  const Tune tune = tune_of("part A\nmelody C4:4 C | (3/4) C C C | C C C\nchords C | C | C\nverse A melody=flute\n");
  const Arrangement played = arrange(tune);
  ASSERT_EQ(played.meters.size(), 2U);
  EXPECT_EQ(played.meters[1].start, 960);
  EXPECT_EQ(played.meters[1].meter.beats, 3);
  EXPECT_EQ(played.end, 960 + 2 * 1440);
}

TEST(WrittenTune, NamesTheLineAndTheFault) {
  EXPECT_EQ(error_of("part A\nmelody C4:4 | C C\n"), "line 5: bar 1 is not full");
  EXPECT_EQ(error_of("part A\nmelody C4:4 C\nchords C | C\n"),
            "line 6: melody and chords have different numbers of bars");
  EXPECT_EQ(error_of("part A\nmelody C4:4 X\n"), "line 5: not a note: \"X\"");
  EXPECT_EQ(error_of("part A\nmelody C4 C\n"), "line 5: the first note has no value");
  EXPECT_EQ(error_of("part A\nmelody C4:5 C\n"), "line 5: not a note value: \"5\"");
  EXPECT_EQ(error_of("part A\nmelody C4:4 C\nchords Q\n"), "line 6: not a chord: \"Q\"");
  EXPECT_EQ(error_of(part + "verse A melody=kazoo\n"), "line 7: no such instrument: \"kazoo\"");
  EXPECT_EQ(error_of(part + "verse A second=harp:loud\n"), "line 7: no such style: \"loud\"");
  EXPECT_EQ(error_of(part + "verse A third=harp\n"), "line 7: no such voice: \"third=harp\"");
  EXPECT_EQ(error_of("dance A\n"), "line 4: no such statement: \"dance\"");
  EXPECT_EQ(error_of(part + "verse AB melody=harp\n"), "there is no part B");
  EXPECT_EQ(error_of(part), "title or verse is missing");
  EXPECT_EQ(error_of("part A\nmelody C4:4 C\nverse A melody=harp\n"), "no chords in part A");
}

TEST(Arrangement, PlaysVersesOneAfterTheOtherWithTheirVoices) {
  const Arrangement played = arrange(tune_of(part + "verse A second=harp:held\nverse AA melody=flute+12 bass=cello\n"));
  EXPECT_EQ(played.end, 3 * 1920);
  EXPECT_EQ(played.last_bar, 5 * 960);
  ASSERT_EQ(played.voices[0].notes.size(), 8U);
  EXPECT_EQ(played.voices[0].notes[0].start, 1920);
  EXPECT_EQ(played.voices[0].notes[0].key, 72);
  EXPECT_GT(played.voices[0].notes[0].loudness, played.voices[0].notes[1].loudness);
  EXPECT_EQ(played.voices[1].notes.size(), 9U);
  EXPECT_EQ(played.voices[2].notes.size(), 6U);
  ASSERT_EQ(played.voices[2].instruments.size(), 1U);
  EXPECT_EQ(played.voices[2].instruments[0].start, 1920);
}

TEST(Arrangement, SecondVoiceStaysInItsChord) {
  for (const char* style : {"arpeggio", "beats", "held", "drone"}) {
    const Arrangement played =
        arrange(tune_of("part A\nmelody C4:4 C\nchords Am\nverse A second=harp:" + std::string(style) + "\n"));
    ASSERT_FALSE(played.voices[1].notes.empty());
    for (const PlayedNote& note : played.voices[1].notes) {
      const int tone = note.key % 12;
      EXPECT_TRUE(tone == 9 || tone == 0 || tone == 4) << style << " " << note.key;
      EXPECT_LE(note.start + note.ticks, played.end);
    }
  }
}

TEST(Arrangement, LastBarIsSlower) {
  const Arrangement played = arrange(tune_of(part + "verse A melody=flute\n"));
  EXPECT_DOUBLE_EQ(seconds_of(played, 60), 2 + 2 / 0.75);
}

TEST(MidiFile, HasOneTrackForEachVoiceThatPlays) {
  const Tune tune = tune_of(part + "verse A melody=flute\n");
  const std::string bytes = midi_file(tune.title, tune.tempo, arrange(tune));
  EXPECT_EQ(bytes.substr(0, 4), "MThd");
  EXPECT_EQ(big_endian(bytes, 4, 4), 6U);
  EXPECT_EQ(big_endian(bytes, 8, 2), 1U);
  EXPECT_EQ(big_endian(bytes, 10, 2), 2U);
  EXPECT_EQ(big_endian(bytes, 12, 2), 480U);
  EXPECT_NE(bytes.find(std::string("\xFF\x51\x03\x0F\x42\x40", 6)), std::string::npos); // a quarter a second
}

} // namespace
} // namespace cserko::test
