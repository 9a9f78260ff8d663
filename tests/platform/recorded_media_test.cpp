#include "platform/headless/headless_platform.h"

#include <gtest/gtest.h>

namespace cserko {
namespace {

class RecordedMediaTest : public testing::Test {
 protected:
  RecordedMediaTest() {
    platform.files().put(u"c:\\cserko\\hangok\\taps.wav", "RIFF");
    platform.files().put(u"c:\\cserko\\dysmid\\dal.mid", "MThd");
  }

  int send(const Text& command) { return platform.media().send(command).code; }
  Text status(const Text& alias) { return platform.media().send(u"Status " + alias + u" mode").reply; }
  int open_sound() { return send(u"open \"c:\\cserko\\\\hangok\\taps.wav\" type waveaudio alias hang"); }
  int open_music() { return send(u"open \"c:\\cserko\\dysmid\\dal.mid\" type sequencer alias midi"); }

  HeadlessPlatform platform;
};

TEST_F(RecordedMediaTest, WritesDownCommandsAndWhatBeganToSound) {
  EXPECT_EQ(open_sound(), 0);
  EXPECT_EQ(send(u"play hang "), 0);
  EXPECT_EQ(send(u"nonsense"), static_cast<int>(MediaError::UnknownCommand));
  EXPECT_EQ(platform.media().commands.size(), 3U);
  EXPECT_EQ(platform.media().played, std::vector<Text>{u"c:\\cserko\\\\hangok\\taps.wav"});
}

TEST_F(RecordedMediaTest, ASoundLastsAsLongAsItIsSaidTo) {
  platform.media().set_length(u"C:\\cserko\\hangok\\TAPS.wav", 700);
  open_sound();
  EXPECT_EQ(status(u"hang"), u"stopped");
  send(u"play hang ");
  platform.advance(699);
  EXPECT_EQ(status(u"hang"), u"playing");
  platform.advance(1);
  EXPECT_EQ(status(u"hang"), u"stopped");
  send(u"play hang ");
  EXPECT_EQ(status(u"hang"), u"playing") << "it starts over";
  EXPECT_EQ(platform.media().played.size(), 2U);
}

TEST_F(RecordedMediaTest, APauseDoesNotCountForTheLength) {
  platform.media().music_length = 1000;
  open_music();
  send(u"play midi ");
  platform.advance(400);
  EXPECT_EQ(send(u"pause midi"), 0);
  EXPECT_EQ(status(u"midi"), u"paused");
  platform.advance(5000);
  EXPECT_EQ(status(u"midi"), u"paused");
  send(u"play midi");
  platform.advance(599);
  EXPECT_EQ(platform.media().mode(MediaAlias::Midi), MediaMode::Playing);
  platform.advance(1);
  EXPECT_EQ(platform.media().mode(MediaAlias::Midi), MediaMode::Stopped);
  EXPECT_EQ(platform.media().played.size(), 1U) << "going on is no new beginning";
}

TEST_F(RecordedMediaTest, PlayingWhatPlaysGoesOn) {
  open_music();
  send(u"play midi");
  platform.advance(59000);
  send(u"play midi");
  platform.advance(1000);
  EXPECT_EQ(status(u"midi"), u"stopped");
}

TEST_F(RecordedMediaTest, TheTwoAliasesAreIndependent) {
  open_sound();
  open_music();
  send(u"play midi");
  EXPECT_EQ(status(u"hang"), u"stopped");
  EXPECT_EQ(status(u"midi"), u"playing");
  EXPECT_EQ(send(u"close hang"), 0);
  EXPECT_EQ(status(u"midi"), u"playing");
  EXPECT_EQ(platform.media().path(MediaAlias::Midi), u"c:\\cserko\\dysmid\\dal.mid");
}

TEST_F(RecordedMediaTest, RefusesWhatTheMediaControlRefuses) {
  const auto code = [](MediaError error) { return static_cast<int>(error); };
  EXPECT_EQ(send(u"play hang "), code(MediaError::AliasNotOpen));
  EXPECT_EQ(send(u"close midi"), code(MediaError::AliasNotOpen));
  EXPECT_EQ(send(u"open \"c:\\nincs.wav\" type waveaudio alias hang"), code(MediaError::FileNotFound));
  open_sound();
  EXPECT_EQ(open_sound(), code(MediaError::AliasInUse));
  platform.media().break_title(u"c:\\cserko\\dysmid\\dal.mid");
  EXPECT_EQ(open_music(), code(MediaError::BadFile));
  EXPECT_FALSE(platform.media().error_text(code(MediaError::BadFile)).empty());
}

TEST_F(RecordedMediaTest, AlsoRefusesWhatATestWants) {
  open_music();
  send(u"play midi");
  platform.media().refuse(u"pause", 42);
  EXPECT_EQ(send(u"pause midi"), 42);
  EXPECT_EQ(status(u"midi"), u"playing");
}

TEST_F(RecordedMediaTest, CountsBeeps) {
  platform.media().beep();
  platform.media().beep();
  EXPECT_EQ(platform.media().beeps, 2);
}

} // namespace
} // namespace cserko
