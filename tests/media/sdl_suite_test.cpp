// A tune in the background and an event sound over it, as the suite sends them, both found in what the device got.
#include "tests/media/sdl_fixture.h"

#include <numbers>
#include <span>

namespace cserko {
namespace {

using namespace test;

// How strongly a tone is in the samples: its amplitude, by the Goertzel algorithm.
double level_of(double hertz, std::span<const std::int16_t> samples) {
  const double turn = 2.0 * std::numbers::pi * hertz / test_rate;
  const double k = 2.0 * std::cos(turn);
  double last = 0;
  double before = 0;
  for (const std::int16_t sample : samples) {
    const double now = sample + k * last - before;
    before = last;
    last = now;
  }
  return 2.0 * std::sqrt(last * last + before * before - k * last * before) / static_cast<double>(samples.size());
}

// The highest level that the tone has in any tenth of a second.
double highest_level(double hertz, const std::vector<std::int16_t>& samples) {
  constexpr std::size_t window = test_rate / 10;
  double highest = 0;
  for (std::size_t at = 0; at + window <= samples.size(); at += window / 2)
    highest = std::max(highest, level_of(hertz, std::span(samples).subspan(at, window)));
  return highest;
}

// A tone of the tune (the middle c) and one of the event sound that no harmonic of the tune comes near.
constexpr double tune_hertz = 261.63;
constexpr double sound_hertz = 3270;

class SdlMusicAndSound : public SdlMediaTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(is_sound_font(find_sound_font())) << "the package list names a sound font; there is none here";
    write("dal.mid", one_tone_tune(60));
    write("taps.wav", wave_file(sine(sound_hertz, 0.5, 8'000)));
  }
  void play_tune() {
    start_recording("5");
    ASSERT_EQ(open_midi(u"dal.mid"), 0);
    ASSERT_EQ(send(u"play midi "), 0);
    ASSERT_TRUE(eventually([this] { return peak(listen()) > 0; })) << "first the sound font is read";
  }
  void play_sound() {
    ASSERT_EQ(open_hang(u"taps.wav"), 0);
    ASSERT_EQ(send(u"play hang "), 0);
    ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  }
};

TEST_F(SdlMusicAndSound, ATuneAloneHasNothingOfTheSound) {
  play_tune();
  ASSERT_TRUE(record_more(1.0));
  const auto heard = end_and_listen();
  EXPECT_GT(highest_level(tune_hertz, heard), 100);
  EXPECT_LT(highest_level(sound_hertz, heard), 100);
}

TEST_F(SdlMusicAndSound, ATuneAndAnEventSoundAreHeardAtOneTime) {
  play_tune();
  ASSERT_TRUE(record_more(0.5));
  play_sound();
  EXPECT_EQ(midi_mode(), u"playing");
  const auto heard = end_and_listen();
  constexpr std::size_t window = test_rate / 10;
  bool both = false;
  for (std::size_t at = 0; at + window <= heard.size(); at += window / 2) {
    const auto part = std::span(heard).subspan(at, window);
    both = both || (level_of(tune_hertz, part) > 100 && level_of(sound_hertz, part) > 4'000);
  }
  EXPECT_TRUE(both) << "tune " << highest_level(tune_hertz, heard) << ", sound " << highest_level(sound_hertz, heard);
}

TEST_F(SdlMusicAndSound, DuringThePauseOfACongratulationOnlyTheSoundIsHeard) {
  play_tune();
  ASSERT_EQ(send(u"pause midi"), 0);
  ASSERT_TRUE(eventually([this] { return silent_at_end(0.1); }));
  const std::size_t paused_at = listen().size();
  play_sound();
  const auto heard = end_and_listen();
  const std::vector<std::int16_t> since(heard.begin() + static_cast<std::ptrdiff_t>(paused_at), heard.end());
  EXPECT_GT(highest_level(sound_hertz, since), 4'000);
  EXPECT_LT(highest_level(tune_hertz, since), 100);
}

} // namespace
} // namespace cserko
