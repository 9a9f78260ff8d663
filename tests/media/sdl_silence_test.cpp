// A computer without sound: everything goes on as if it sounded.
#include "tests/media/sdl_fixture.h"

namespace cserko {
namespace {

using namespace test;

class NoDevice : public SdlMediaTest {
 protected:
  void SetUp() override {
    write("hang.wav", wave_file(sine(300, 0.2, 20'000)));
    write("dal.mid", one_tone_tune(1));
    start("nonexistent");
  }
};

TEST_F(NoDevice, SoundsAndMusicSucceedAndLastAsLongAsTheyWould) {
  const auto before = std::chrono::steady_clock::now();
  ASSERT_EQ(open_hang(u"hang.wav"), 0);
  ASSERT_EQ(send(u"play hang "), 0);
  EXPECT_EQ(hang_mode(), u"playing");
  ASSERT_EQ(open_midi(u"dal.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  EXPECT_EQ(midi_mode(), u"playing");
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(200));
  ASSERT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(500));
  EXPECT_EQ(send(u"close hang"), 0);
  EXPECT_EQ(send(u"close midi"), 0);
}

TEST_F(NoDevice, PausedMusicDoesNotRunOn) {
  ASSERT_EQ(open_midi(u"dal.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  ASSERT_EQ(send(u"pause midi"), 0);
  // A sound that lasts longer than the tune runs through meanwhile.
  write("hosszú.wav", wave_file(sine(300, 0.7, 20'000)));
  ASSERT_EQ(open_hang(u"hosszú.wav"), 0);
  ASSERT_EQ(send(u"play hang "), 0);
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  EXPECT_EQ(midi_mode(), u"paused");
  ASSERT_EQ(send(u"play midi"), 0);
  EXPECT_EQ(midi_mode(), u"playing");
  EXPECT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
}

TEST_F(NoDevice, ErrorsAreTheSameAsWithADevice) {
  EXPECT_EQ(open_hang(u"nincs.wav"), static_cast<int>(MediaError::FileNotFound));
  EXPECT_EQ(send(u"play hang "), static_cast<int>(MediaError::AliasNotOpen));
  EXPECT_EQ(send(u"play it"), static_cast<int>(MediaError::UnknownCommand));
  media_->beep();
}

TEST_F(NoDevice, TheReasonIsTold) {
  EXPECT_TRUE(eventually([this] { return !media_->silence_reason().empty(); }));
  EXPECT_NE(media_->silence_reason().find(u"hangeszköz"), std::u16string::npos);
}

class NoSoundFont : public SdlMediaTest, public testing::WithParamInterface<bool> {};

TEST_P(NoSoundFont, MusicRunsInSilenceWithAReasonAndSoundsAreHeard) {
  write("hang.wav", wave_file(sine(300, 0.2, 20'000)));
  write("dal.mid", one_tone_tune(2));
  if (GetParam()) write("font.sf2", Bytes(5'000, 'x')); // a file that is no sound font
  qputenv(sound_font_variable, real("font.sf2").toUtf8());
  start_recording("5");
  EXPECT_EQ(media_->silence_reason(), u"");
  ASSERT_EQ(open_midi(u"dal.mid"), 0);
  ASSERT_EQ(send(u"play midi "), 0);
  EXPECT_EQ(midi_mode(), u"playing");
  ASSERT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
  EXPECT_NE(media_->silence_reason().find(u"hangszerkészlet"), std::u16string::npos);
  ASSERT_EQ(open_hang(u"hang.wav"), 0);
  ASSERT_EQ(send(u"play hang "), 0);
  ASSERT_TRUE(eventually([this] { return hang_mode() == u"stopped"; }));
  EXPECT_GT(peak(end_and_listen()), 15'000);
}

INSTANTIATE_TEST_SUITE_P(MissingOrBroken, NoSoundFont, testing::Bool());

} // namespace
} // namespace cserko
