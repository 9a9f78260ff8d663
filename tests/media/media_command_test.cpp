#include "platform/media_command.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace cserko {
namespace {

MediaCommand command(std::u16string_view text) {
  const auto parsed = parse_media_command(text);
  const auto* known = std::get_if<MediaCommand>(&parsed);
  EXPECT_NE(known, nullptr);
  return known != nullptr ? *known : MediaCommand{};
}

MediaError error(std::u16string_view text) {
  const auto parsed = parse_media_command(text);
  const auto* found = std::get_if<MediaError>(&parsed);
  return found != nullptr ? *found : MediaError::None;
}

/// The command string of a command, written independently of the parser.
std::u16string written(const MediaCommand& c) {
  const std::u16string alias = c.alias == MediaAlias::Hang ? u"hang" : u"midi";
  const std::u16string type = c.alias == MediaAlias::Hang ? u"waveaudio" : u"sequencer";
  switch (c.verb) {
  case MediaVerb::Open:
    return u"open \"" + c.path + u"\" type " + type + u" alias " + alias;
  case MediaVerb::Play:
    return u"play " + alias + u" ";
  case MediaVerb::Pause:
    return u"pause " + alias;
  case MediaVerb::Close:
    return u"close " + alias;
  case MediaVerb::Status:
    return u"Status " + alias + u" mode";
  }
  return {};
}

TEST(MediaCommand, OpensAWaveAndATuneByQuotedPath) {
  EXPECT_EQ(command(u"open \"c:\\a.wav\" type waveaudio alias hang"),
            (MediaCommand{MediaVerb::Open, MediaAlias::Hang, u"c:\\a.wav"}));
  EXPECT_EQ(command(u"open \"c:\\a.mid\" type sequencer alias midi"),
            (MediaCommand{MediaVerb::Open, MediaAlias::Midi, u"c:\\a.mid"}));
}

TEST(MediaCommand, TakesBlanksAccentsAndDoubledBackslashesOfAPathAsTheyAre) {
  const std::u16string path = u"c:\\Hangok és zene\\\\hangok\\Árvíztűrő tükörfúrógép (2).wav";
  EXPECT_EQ(command(u"open \"" + path + u"\" type waveaudio alias hang").path, path);
}

TEST(MediaCommand, APathMayHoldWordsOfTheLanguage) {
  const std::u16string path = u"c:\\type sequencer alias midi\\close hang";
  EXPECT_EQ(command(u"open \"" + path + u"\" type waveaudio alias hang").path, path);
}

TEST(MediaCommand, KnowsEveryFormWithoutAPath) {
  EXPECT_EQ(command(u"play hang "), (MediaCommand{MediaVerb::Play, MediaAlias::Hang, {}}));
  EXPECT_EQ(command(u"close hang"), (MediaCommand{MediaVerb::Close, MediaAlias::Hang, {}}));
  EXPECT_EQ(command(u"Status hang mode"), (MediaCommand{MediaVerb::Status, MediaAlias::Hang, {}}));
  EXPECT_EQ(command(u"play midi "), (MediaCommand{MediaVerb::Play, MediaAlias::Midi, {}}));
  EXPECT_EQ(command(u"play midi"), (MediaCommand{MediaVerb::Play, MediaAlias::Midi, {}}));
  EXPECT_EQ(command(u"pause midi"), (MediaCommand{MediaVerb::Pause, MediaAlias::Midi, {}}));
  EXPECT_EQ(command(u"close midi"), (MediaCommand{MediaVerb::Close, MediaAlias::Midi, {}}));
  EXPECT_EQ(command(u"Status midi mode"), (MediaCommand{MediaVerb::Status, MediaAlias::Midi, {}}));
}

class UnknownMediaCommand : public testing::TestWithParam<std::u16string> {};

TEST_P(UnknownMediaCommand, IsRefused) { EXPECT_EQ(error(GetParam()), MediaError::UnknownCommand); }

INSTANTIATE_TEST_SUITE_P(
    Forms, UnknownMediaCommand,
    testing::Values(u"", u" ", u"play", u"play hang", u"play hang  ", u" play hang ", u"PLAY hang ", u"Play midi",
                    u"play midi  ", u"pause hang", u"pause hang ", u"pause midi ", u"close hang ", u"close midi ",
                    u"status midi mode", u"Status midi", u"Status midi mode ", u"stop midi", u"resume midi",
                    u"open c:\\a.wav type waveaudio alias hang", u"open \"c:\\a.wav\" type waveaudio alias midi",
                    u"open \"c:\\a.mid\" type sequencer alias hang", u"open \"c:\\a.wav\" type waveaudio alias hang ",
                    u"open \"c:\\a.wav\"  type waveaudio alias hang", u"open  \"c:\\a.wav\" type waveaudio alias hang",
                    u"Open \"c:\\a.wav\" type waveaudio alias hang", u"open \"c:\\a.wav type waveaudio alias hang",
                    u"open \" type waveaudio alias hang", u"open \"", u"open \"c:\\a.wav\"",
                    u"open \"c:\\a.wav\" alias hang", u"close all", std::u16string(u"close hang\0", 11)));

TEST(MediaCommand, RefusesNamesThatNoFileCanHave) {
  EXPECT_EQ(error(u"open \"\" type waveaudio alias hang"), MediaError::BadFileName);
  EXPECT_EQ(error(u"open \"a\"b\" type waveaudio alias hang"), MediaError::BadFileName);
  EXPECT_EQ(error(u"open \"a\nb\" type sequencer alias midi"), MediaError::BadFileName);
  EXPECT_EQ(error(std::u16string(u"open \"a\0b\" type waveaudio alias hang", 36)), MediaError::BadFileName);
  EXPECT_EQ(error(u"open \"a\" type waveaudio alias hang\" type waveaudio alias hang"), MediaError::BadFileName);
}

TEST(MediaCommand, WhateverIsUnderstoodIsExactlyWhatWasWritten) {
  std::mt19937 random(20'240'917);
  const std::u16string seeds[] = {u"open \"c:\\pomzu\\Hű ha.wav\" type waveaudio alias hang",
                                  u"open \"c:\\a.mid\" type sequencer alias midi",
                                  u"play hang ",
                                  u"play midi ",
                                  u"pause midi",
                                  u"close hang",
                                  u"close midi",
                                  u"Status midi mode",
                                  u"Status hang mode"};
  int understood = 0;
  for (int round = 0; round < 50'000; ++round) {
    std::u16string text = seeds[random() % std::size(seeds)];
    for (unsigned changes = random() % 3; changes > 0; --changes) {
      const std::size_t place = random() % text.size();
      const auto character = static_cast<char16_t>(random() % 4 == 0 ? random() % 0x10000 : 32 + random() % 96);
      switch (random() % 3) {
      case 0:
        text[place] = character;
        break;
      case 1:
        text.insert(place, 1, character);
        break;
      default:
        text.erase(place, 1 + random() % 3);
        break;
      }
      if (text.empty()) break;
    }
    const auto parsed = parse_media_command(text);
    if (const auto* known = std::get_if<MediaCommand>(&parsed)) {
      ++understood;
      ASSERT_TRUE(text == written(*known) || text == u"play midi");
    }
  }
  EXPECT_GT(understood, 10'000);
}

TEST(MediaErrorText, EveryErrorHasAHungarianSentence) {
  EXPECT_TRUE(media_error_text(0).empty());
  for (int code = 1; code <= static_cast<int>(MediaError::AliasNotOpen); ++code) {
    EXPECT_TRUE(media_error_text(code).ends_with(u'.')) << code;
    EXPECT_NE(media_error_text(code), media_error_text(9999)) << code;
    for (int other = 1; other < code; ++other) EXPECT_NE(media_error_text(code), media_error_text(other));
  }
  EXPECT_TRUE(media_error_text(-5).ends_with(u'.'));
}

class MediaStates : public testing::Test {
 protected:
  /// Does what a machine does with a command string.
  MediaError send(std::u16string_view text) {
    const MediaCommand c = command(text);
    const MediaError refusal = state.refusal(c);
    if (refusal == MediaError::None) state.apply(c);
    return refusal;
  }

  MediaState state;
  const std::u16string open_hang = u"open \"a.wav\" type waveaudio alias hang";
  const std::u16string open_midi = u"open \"a.mid\" type sequencer alias midi";
};

TEST_F(MediaStates, AClosedAliasRefusesEverythingButOpenAndHasNoWord) {
  for (const auto* text : {u"play hang ", u"close hang", u"Status hang mode", u"play midi", u"pause midi",
                           u"close midi", u"Status midi mode"})
    EXPECT_EQ(send(text), MediaError::AliasNotOpen);
  EXPECT_EQ(state.status_word(MediaAlias::Hang), u"");
  EXPECT_EQ(state.status_word(MediaAlias::Midi), u"");
}

TEST_F(MediaStates, AnOpenAliasRefusesASecondTitleAndKeepsTheFirst) {
  EXPECT_EQ(send(open_hang), MediaError::None);
  EXPECT_EQ(send(u"open \"b.wav\" type waveaudio alias hang"), MediaError::AliasInUse);
  EXPECT_EQ(state.path(MediaAlias::Hang), u"a.wav");
}

TEST_F(MediaStates, TheAliasesDoNotTouchEachOther) {
  send(open_hang);
  send(open_midi);
  send(u"play midi ");
  send(u"close hang");
  EXPECT_EQ(state.mode(MediaAlias::Hang), MediaMode::Closed);
  EXPECT_EQ(state.mode(MediaAlias::Midi), MediaMode::Playing);
  EXPECT_EQ(state.path(MediaAlias::Midi), u"a.mid");
}

TEST_F(MediaStates, TheWordsFollowOpenPlayPausePlayEndClose) {
  const auto word = [this] { return state.status_word(MediaAlias::Midi); };
  send(open_midi);
  EXPECT_EQ(word(), u"stopped");
  send(u"play midi ");
  EXPECT_EQ(word(), u"playing");
  send(u"pause midi");
  EXPECT_EQ(word(), u"paused");
  send(u"play midi");
  EXPECT_EQ(word(), u"playing");
  state.title_ended(MediaAlias::Midi);
  EXPECT_EQ(word(), u"stopped");
  send(u"close midi");
  EXPECT_EQ(word(), u"");
}

TEST_F(MediaStates, PausingATitleThatHasEndedIsNoErrorAndLeavesItStopped) {
  send(open_midi);
  send(u"play midi ");
  state.title_ended(MediaAlias::Midi);
  EXPECT_EQ(send(u"pause midi"), MediaError::None);
  EXPECT_EQ(state.mode(MediaAlias::Midi), MediaMode::Stopped);
}

TEST_F(MediaStates, TheEndOfATitleThatIsClosedAlreadyOpensNothing) {
  state.title_ended(MediaAlias::Hang);
  EXPECT_EQ(state.mode(MediaAlias::Hang), MediaMode::Closed);
}

} // namespace
} // namespace cserko
