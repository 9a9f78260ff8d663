#include "tests/media/sdl_fixture.h"

#include <algorithm>

namespace cserko {
namespace {

using namespace test;

class SdlWave : public SdlMediaTest {};

TEST_F(SdlWave, EverySampleOfASoundIsHeardInOrder) {
  const auto samples = sine(300, 0.4, 20'000);
  write("hang.wav", wave_file(samples));
  start_recording();
  ASSERT_EQ(open_hang(u"hang.wav"), 0);
  ASSERT_EQ(send(u"play hang "), 0);
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  const auto heard = end_and_listen();
  // The mixer's way from one channel to two may round a sample by one.
  const auto same = [](int a, int b) { return std::abs(a - b) <= 1; };
  EXPECT_NE(std::search(heard.begin(), heard.end(), samples.begin(), samples.end(), same), heard.end());
}

TEST_F(SdlWave, APathWithAccentsAndBlanksPlays) {
  write("Hű, ő áll a fán.wav", wave_file(sine(300, 0.1, 20'000)));
  start_recording();
  ASSERT_EQ(open_hang(u"Hű, ő áll a fán.wav"), 0);
  ASSERT_EQ(send(u"play hang "), 0);
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  EXPECT_GT(peak(end_and_listen()), 15'000);
}

TEST_F(SdlWave, TheWordsFollowTheSoundToItsEnd) {
  write("hang.wav", wave_file(sine(300, 0.5, 20'000)));
  start("dummy");
  EXPECT_EQ(hang_mode(), u"");
  ASSERT_EQ(open_hang(u"hang.wav"), 0);
  EXPECT_EQ(hang_mode(), u"stopped");
  ASSERT_EQ(send(u"play hang "), 0);
  EXPECT_EQ(hang_mode(), u"playing");
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  ASSERT_EQ(send(u"play hang "), 0);
  EXPECT_EQ(hang_mode(), u"playing");
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  EXPECT_EQ(send(u"close hang"), 0);
  EXPECT_EQ(hang_mode(), u"");
}

TEST_F(SdlWave, StrikingAgainAndAgainRestartsTheSoundWithoutAClick) {
  const int peak_level = 20'000;
  const double hertz = 80;
  write("dob.wav", wave_file(sine(hertz, 2.0, peak_level)));
  start_recording();
  const int strikes = 25;
  for (int strike = 0; strike < strikes; ++strike) {
    if (strike > 0) {
      ASSERT_EQ(send(u"close hang"), 0);
    }
    ASSERT_EQ(open_hang(u"dob.wav"), 0);
    ASSERT_EQ(send(u"play hang "), 0);
    ASSERT_TRUE(record_more(0.05 + 0.001 * strike));
  }
  ASSERT_EQ(send(u"close hang"), 0);
  EXPECT_TRUE(eventually([this] { return silent_at_end(0.1); }));
  const auto heard = end_and_listen();
  EXPECT_GT(peak(heard), peak_level * 9 / 10);
  // The steepest step of the new sound, of the old one, and of its fade of 220 samples. A cut would jump by thousands.
  const double step_of_sine = peak_level * 2.0 * std::numbers::pi * hertz / test_rate;
  EXPECT_LT(largest_step(heard), 2 * step_of_sine + peak_level / 220.0 + 10);
  EXPECT_LT(heard.size(), static_cast<std::size_t>(strikes) * test_rate) << "each strike cut the one before";
}

TEST_F(SdlWave, TheSignalIsHeardBesideASound) {
  write("csend.wav", wave_file(std::vector<std::int16_t>(test_rate, 0)));
  SdlMedia& media = start_recording();
  ASSERT_EQ(open_hang(u"csend.wav"), 0);
  ASSERT_EQ(send(u"play hang "), 0);
  media.beep();
  media.beep();
  EXPECT_EQ(hang_mode(), u"playing");
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  const auto heard = end_and_listen();
  EXPECT_GT(peak(heard), 3'000);
  EXPECT_LT(peak(heard), 16'000) << "a signal, not an alarm";
  EXPECT_LT(largest_step(heard), 2'000);
}

TEST_F(SdlWave, WhatIsNoSoundIsRefusedAndLeavesTheAliasClosed) {
  write("szöveg.wav", Bytes(200, 'x'));
  start("dummy");
  EXPECT_EQ(open_hang(u"nincs.wav"), static_cast<int>(MediaError::FileNotFound));
  EXPECT_EQ(open_hang(u"."), static_cast<int>(MediaError::FileNotFound));
  EXPECT_EQ(open_hang(u"szöveg.wav"), static_cast<int>(MediaError::BadFile));
  EXPECT_EQ(send(u"play hang "), static_cast<int>(MediaError::AliasNotOpen));
  EXPECT_EQ(send(u"close hang"), static_cast<int>(MediaError::AliasNotOpen));
  EXPECT_EQ(media_->error_text(static_cast<int>(MediaError::FileNotFound)), u"A megadott hangfájl nem található.");
}

TEST_F(SdlWave, ASoundBrokenInsideNeitherPlaysNorCrashes) {
  Bytes broken = wave_file(sine(300, 0.1, 1000));
  broken[20] = 77; // a sample format that does not exist
  write("rossz.wav", broken);
  write("üres.wav", wave_file({}));
  start("dummy");
  for (const auto* name : {u"rossz.wav", u"üres.wav"}) {
    ASSERT_EQ(open_hang(name), 0);
    ASSERT_EQ(send(u"play hang "), 0);
    EXPECT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
    ASSERT_EQ(send(u"close hang"), 0);
  }
}

TEST_F(SdlWave, ManyQuickTitlesAndAnEndAtAnyMomentAreFine) {
  write("hang.wav", wave_file(sine(300, 0.3, 20'000)));
  for (int round = 0; round < 5; ++round) {
    start("dummy");
    for (int i = 0; i < 50 * round; ++i) {
      ASSERT_EQ(open_hang(u"hang.wav"), 0);
      ASSERT_EQ(send(u"play hang "), 0);
      if (i % 3 == 0) media_->beep();
      ASSERT_EQ(send(u"close hang"), 0);
    }
    media_.reset();
  }
}

// What a recording is told by its beginning, whatever its name ends in.
TEST_F(SdlWave, ARecordingBesideATunePlaysWithoutInstruments) {
  qputenv(sound_font_variable, real("nincs.sf2").toUtf8());
  write("dal.mid", one_tone_tune(2));
  write("dal.ogg", wave_file(sine(300, 1.5, 20'000)));
  const auto heard = whole_tune(u"dal.mid");
  EXPECT_GT(peak(heard), 3'000);
  EXPECT_LT(peak(heard), 16'000) << "a background";
}

class SdlMusic : public SdlMediaTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(is_sound_font(find_sound_font())) << "the package list names a sound font; there is none here";
  }
};

TEST_F(SdlMusic, ATuneIsPlayingAtOnceAndIsHeardToItsEnd) {
  write("dal.mid", one_tone_tune(2));
  const auto heard = whole_tune(u"dal.mid");
  EXPECT_GT(peak(heard), 300);
  EXPECT_LT(peak(heard), 16'000) << "a background";
}

TEST_F(SdlMusic, BesideABrokenRecordingTheTuneItselfIsHeard) {
  write("dal.mid", one_tone_tune(2));
  write("dal.ogg", Bytes(200, 'x'));
  EXPECT_GT(peak(whole_tune(u"dal.mid")), 300);
}

TEST_F(SdlMusic, PausedMusicIsSilentAndGoesOnWithoutAClick) {
  write("dal.mid", one_tone_tune(60));
  start_recording("5");
  ASSERT_EQ(open_midi(u"dal.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  ASSERT_EQ(send(u"pause midi"), 0);
  EXPECT_EQ(midi_mode(), u"paused");
  ASSERT_EQ(send(u"play midi"), 0);
  ASSERT_TRUE(eventually([this] { return peak(listen()) > 0; })) << "first the sound font is read";
  for (int round = 0; round < 3; ++round) {
    ASSERT_TRUE(record_more(1.0));
    EXPECT_EQ(midi_mode(), u"playing");
    ASSERT_EQ(send(u"pause midi"), 0);
    EXPECT_TRUE(eventually([this] { return silent_at_end(0.25); }));
    EXPECT_EQ(midi_mode(), u"paused");
    ASSERT_EQ(send(u"play midi"), 0);
  }
  ASSERT_EQ(send(u"close midi"), 0);
  EXPECT_EQ(midi_mode(), u"");
  EXPECT_TRUE(eventually([this] { return silent_at_end(0.25); })) << "closed music is gone";
  const auto heard = end_and_listen();
  const int level = peak(heard);
  EXPECT_GT(level, 300);
  EXPECT_LT(largest_step(heard), level / 4) << "a cut would jump by the level itself";
}

TEST_F(SdlMusic, TheNextTuneOfTheListPlaysAfterTheOneBefore) {
  write("a.mid", one_tone_tune(1));
  write("b.mid", one_tone_tune(1));
  start_recording("0");
  for (const auto* name : {u"a.mid", u"b.mid", u"a.mid"}) {
    ASSERT_EQ(open_midi(name), 0);
    ASSERT_EQ(send(u"play midi "), 0);
    ASSERT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
    ASSERT_EQ(send(u"play midi"), 0) << "the same tune once more";
    EXPECT_EQ(midi_mode(), u"playing");
    ASSERT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
    ASSERT_EQ(send(u"close midi"), 0);
  }
  const auto heard = end_and_listen();
  EXPECT_GT(heard.size(), static_cast<std::size_t>(test_rate) * 3) << "six times half a second";
}

TEST_F(SdlMusic, OnlyTheLastOfManyQuickTunesIsPlayed) {
  write("hosszú.mid", one_tone_tune(60));
  write("rövid.mid", one_tone_tune(1));
  start_recording("0");
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(open_midi(u"hosszú.mid"), 0);
    ASSERT_EQ(send(u"play midi "), 0);
    ASSERT_EQ(send(u"close midi"), 0);
  }
  ASSERT_EQ(open_midi(u"rövid.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  EXPECT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
}

TEST_F(SdlMusic, TheProgramMayEndWhileATuneLoadsOrPlays) {
  write("dal.mid", one_tone_tune(20));
  start("dummy");
  ASSERT_EQ(open_midi(u"dal.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  media_.reset();
  start_recording();
  ASSERT_EQ(open_midi(u"dal.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  ASSERT_TRUE(eventually([this] { return peak(listen()) > 0; }));
  media_.reset();
}

TEST_F(SdlMusic, ATuneBrokenInsideEndsAndTheNextOnePlays) {
  Bytes broken = one_tone_tune(1);
  broken.resize(20);
  write("rossz.mid", broken);
  write("jó.mid", one_tone_tune(1));
  start("dummy");
  EXPECT_EQ(open_midi(u"nincs.mid"), static_cast<int>(MediaError::FileNotFound));
  EXPECT_EQ(midi_mode(), u"");
  if (open_midi(u"rossz.mid") == 0) {
    send(u"play midi ");
    EXPECT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
    ASSERT_EQ(send(u"close midi"), 0);
  }
  ASSERT_EQ(open_midi(u"jó.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  EXPECT_EQ(midi_mode(), u"playing");
}

} // namespace
} // namespace cserko
