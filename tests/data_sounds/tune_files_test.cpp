#include "data/music/arrangement.h"
#include "pack_files.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace cserko::test {
namespace {

/// What a test wants to know of a MIDI file, read by nothing that wrote it.
class MidiReader {
 public:
  explicit MidiReader(const std::string& bytes) : bytes_(bytes) {
    if (bytes_.substr(0, 4) != "MThd" || number(4, 4) != 6) return;
    type = number(8, 2);
    tracks = number(10, 2);
    division = number(12, 2);
    at_ = 14;
    for (unsigned i = 0; i < tracks; ++i) read_track();
    whole = at_ == bytes_.size();
  }

  double seconds() const {
    double sum = 0;
    for (auto tempo = tempos.begin(); tempo != tempos.end(); ++tempo) {
      const auto next = std::next(tempo);
      const unsigned end = next == tempos.end() ? last : next->first;
      sum += (end - tempo->first) * (tempo->second / 1e6) / division;
    }
    return sum;
  }

  unsigned type = 0;
  unsigned tracks = 0;
  unsigned division = 1;
  unsigned last = 0;                   // ticks
  std::map<unsigned, unsigned> tempos; // ticks, microseconds a quarter
  int notes = 0;
  bool even = true;   // every note that starts ends
  bool whole = false; // nothing missing or left over
  std::set<int> keys;

 private:
  unsigned number(std::size_t at, int size) const { return big_endian(bytes_, at, size); }

  unsigned variable() {
    unsigned value = 0;
    unsigned byte = 0;
    do {
      byte = number(at_++, 1);
      value = value << 7 | (byte & 0x7F);
    } while (byte >= 0x80);
    return value;
  }

  void read_track() {
    EXPECT_EQ(bytes_.substr(at_, 4), "MTrk");
    const std::size_t end = at_ + 8 + number(at_ + 4, 4);
    at_ += 8;
    unsigned ticks = 0;
    std::map<unsigned, int> sounding;
    while (at_ < end) {
      ticks += variable();
      const unsigned status = number(at_++, 1);
      if (status == 0xFF)
        read_meta(ticks);
      else
        read_message(status, sounding);
    }
    even = even && std::ranges::all_of(sounding, [](const auto& key) { return key.second == 0; });
    last = std::max(last, ticks);
  }

  void read_meta(unsigned ticks) {
    const unsigned kind = number(at_++, 1);
    const unsigned size = variable();
    if (kind == 0x51) tempos[ticks] = number(at_, 3);
    at_ += size;
  }

  void read_message(unsigned status, std::map<unsigned, int>& sounding) {
    const unsigned key = number(at_, 1);
    if (status >> 4 == 9) {
      ++notes;
      ++sounding[key];
      keys.insert(static_cast<int>(key));
      even = even && sounding[key] == 1;
    } else if (status >> 4 == 8) {
      --sounding[key];
    }
    at_ += status >> 4 == 0xC ? 1 : 2;
  }

  const std::string& bytes_;
  std::size_t at_ = 0;
};

TEST(TuneFiles, AreAtLeastTwelve) { EXPECT_GE(names_in("dysmid", ".mid").size(), 12U); }

TEST(TuneFiles, AreWholeTypeOneFilesOfTwoOrThreeVoices) {
  for (const std::string& name : names_in("dysmid", ".mid")) {
    const std::string bytes = bytes_of(in_pack("dysmid/" + name));
    const MidiReader midi(bytes);
    EXPECT_TRUE(midi.whole) << name;
    EXPECT_EQ(midi.type, 1U) << name;
    EXPECT_GE(midi.tracks, 3U) << name;
    EXPECT_LE(midi.tracks, 4U) << name;
    EXPECT_TRUE(midi.even) << name;
    EXPECT_GT(midi.notes, 100) << name;
  }
}

TEST(TuneFiles, LastOneToThreeMinutesAtACalmTempo) {
  for (const std::string& name : names_in("dysmid", ".mid")) {
    const std::string bytes = bytes_of(in_pack("dysmid/" + name));
    const MidiReader midi(bytes);
    EXPECT_GE(midi.seconds(), 60) << name;
    EXPECT_LE(midi.seconds(), 180) << name;
    ASSERT_FALSE(midi.tempos.empty()) << name;
    EXPECT_GE(midi.tempos.begin()->second, 60'000'000U / 100) << name; // at most 100 quarters a minute
  }
}

TEST(TuneFiles, StayInTheRangeOfEarAndInstrument) {
  for (const std::string& name : names_in("dysmid", ".mid")) {
    const std::string bytes = bytes_of(in_pack("dysmid/" + name));
    const MidiReader midi(bytes);
    ASSERT_FALSE(midi.keys.empty()) << name;
    EXPECT_GE(*midi.keys.begin(), 31) << name;
    EXPECT_LE(*midi.keys.rbegin(), 88) << name;
  }
}

TEST(TuneFiles, LastAsLongAsTheirNotesSay) {
  std::ifstream stream(DATA_DIR "/music/tunes/Boci, boci tarka.tune");
  const Tune tune = read_tune(stream);
  const std::string bytes = bytes_of(in_pack("dysmid/Boci, boci tarka.mid"));
  EXPECT_NEAR(MidiReader(bytes).seconds(), seconds_of(arrange(tune), tune.tempo), 0.01);
}

TEST(Playlist, IsSilentAtFirstAndNamesEveryTune) {
  auto lines = text_lines_of(bytes_of(in_pack("cserko/zenebeáll.ini")));
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.front(), " 0 ");
  lines.erase(lines.begin());
  EXPECT_EQ(lines, names_in("dysmid", ".mid"));
}

} // namespace
} // namespace cserko::test
