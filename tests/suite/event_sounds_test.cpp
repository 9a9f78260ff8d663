// The sounds that answer the child, as the command strings that the media control gets.
#include "feedback/frm_hangbeáll.h"
#include "feedback/sounds.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

std::string open_and_play(const std::string& path) {
  return "open \"" + path + "\" type waveaudio alias hang\nplay hang \n";
}

class SoundTest : public SuiteTest {
 protected:
  SoundTest() {
    put_sounds({u"a.wav", u"b.wav", u"c.wav"});
    start();
  }
  frm_hangbeáll& settings() { return load<frm_hangbeáll>(); }
  void success_list(std::vector<Text> names) { settings().lst_helyeshang.Items = std::move(names); }
  void error_list(std::vector<Text> names) { settings().Lst_hibahang.Items = std::move(names); }
};

// The primitive.

TEST_F(SoundTest, TheFirstSoundIsOpenedAndPlayed) {
  hang_lejátszás(session(), u"c:\\cserko\\hangok\\a.wav");
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\hangok\\a.wav"));
  EXPECT_TRUE(session().hangállapot.hang);
}

TEST_F(SoundTest, EveryNewSoundCutsTheLast) {
  hang_lejátszás(session(), u"c:\\cserko\\hangok\\a.wav");
  forget_commands();
  hang_lejátszás(session(), u"c:\\cserko\\hangok\\b.wav");
  EXPECT_EQ(commands(), "close hang\n" + open_and_play("c:\\cserko\\hangok\\b.wav"));
}

TEST_F(SoundTest, AnEmptyTextStopsAndCloses) {
  hang_lejátszás(session(), u"c:\\cserko\\hangok\\a.wav");
  forget_commands();
  hang_lejátszás(session(), {});
  EXPECT_EQ(commands(), "close hang\n");
  EXPECT_FALSE(session().hangállapot.hang);
}

TEST_F(SoundTest, StoppingWhatIsClosedSendsNothing) {
  hang_lejátszás(session(), {});
  EXPECT_EQ(commands(), "");
}

TEST_F(SoundTest, TheStarPlaysTheSilentFileAndReachesTheCaller) {
  Text text = u"*";
  hang_lejátszás(session(), text);
  EXPECT_EQ(utf8(text), "c:\\cserko\\null.wav");
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\null.wav"));
}

TEST_F(SoundTest, AMissingFileFailsInSilenceAndTheNextCallSendsAHarmlessClose) {
  hang_lejátszás(session(), u"c:\\cserko\\nothing.wav");
  EXPECT_TRUE(session().hangállapot.hang);
  forget_commands();
  hang_lejátszás(session(), u"c:\\cserko\\hangok\\a.wav");
  EXPECT_EQ(commands(), "close hang\n" + open_and_play("c:\\cserko\\hangok\\a.wav"));
  EXPECT_EQ(machine.media().mode(MediaAlias::Hang), MediaMode::Playing);
}

TEST_F(SoundTest, WithoutASoundDeviceEverythingIsSilentAndNothingFails) {
  machine.media().refuse(u"", 99);
  success_list({u"a.wav"});
  error_list({u"a.wav"});
  hang_lejátszás(session(), u"*");
  helyes_hang(session());
  hiba_hang(session());
  segítség_hang(session());
  EXPECT_TRUE(machine.messages.empty());
  EXPECT_TRUE(machine.media().played.empty());
}

// Right answers.

TEST_F(SoundTest, ARightAnswerPlaysARandomEntryOfTheSuccessList) {
  success_list({u"a.wav", u"b.wav", u"c.wav"});
  machine.script_random({drawing(1, 3)});
  helyes_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\b.wav"));
  EXPECT_EQ(machine.media().played.size(), 1U) << "the doubled backslash is harmless";
}

TEST_F(SoundTest, FirstAndLastEntryCanBeDrawn) {
  success_list({u"a.wav", u"b.wav", u"c.wav"});
  machine.script_random({0.0, 0.999999});
  helyes_hang(session());
  helyes_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\a.wav") + "close hang\n" +
                            open_and_play("c:\\cserko\\\\hangok\\c.wav"));
}

TEST_F(SoundTest, TwoRightAnswersInQuickSuccessionCutEachOther) {
  success_list({u"a.wav"});
  helyes_hang(session());
  helyes_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\a.wav") + "close hang\n" +
                            open_and_play("c:\\cserko\\\\hangok\\a.wav"));
}

TEST_F(SoundTest, ARightAnswerIsSilentWhenItsSoundIsOff) {
  success_list({u"a.wav"});
  settings().chk_hang_a_feladatokban_helyes.set_value(0);
  helyes_hang(session());
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(machine.media().beeps, 0);
}

TEST_F(SoundTest, AGreyedBoxIsNotTicked) {
  success_list({u"a.wav"});
  settings().chk_hang_a_feladatokban_helyes.set_value(2);
  helyes_hang(session());
  EXPECT_EQ(commands(), "");
}

TEST_F(SoundTest, AnEmptyListOpensTheFolderWhichFailsInSilence) {
  helyes_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\"));
  EXPECT_TRUE(machine.media().played.empty());
}

TEST_F(SoundTest, TheGeneratorIsSeededBeforeEachDraw) {
  settings();
  const int before = machine.seedings;
  helyes_hang(session());
  hiba_hang(session());
  EXPECT_EQ(machine.seedings, before + 2);
}

// Wrong answers.

TEST_F(SoundTest, AWrongAnswerPlaysARandomEntryOfTheErrorList) {
  error_list({u"a.wav", u"b.wav"});
  machine.script_random({drawing(1, 2)});
  hiba_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\b.wav"));
  EXPECT_EQ(machine.media().beeps, 0);
}

TEST_F(SoundTest, AWrongAnswerBeepsWhenItsSoundIsOff) {
  error_list({u"a.wav"});
  settings().chk_hang_a_feladatokban_hiba.set_value(0);
  hiba_hang(session());
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(machine.media().beeps, 1);
}

TEST_F(SoundTest, AnEmptyErrorListOpensTheFolderAndDoesNotBeep) {
  hiba_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\"));
  EXPECT_TRUE(machine.media().played.empty());
  EXPECT_EQ(machine.media().beeps, 0);
}

// Calls for help.

TEST_F(SoundTest, ACallForHelpPlaysTheAlarm) {
  segítség_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\cserko\\alarm.wav"));
}

TEST_F(SoundTest, ACallForHelpIsSilentWhenItsSoundIsOff) {
  settings().chk_hangjelzés_segítségkérés.set_value(0);
  segítség_hang(session());
  EXPECT_EQ(commands(), "");
  EXPECT_EQ(machine.media().beeps, 0);
}

// Praise.

TEST_F(SoundTest, PraiseComesFromItsOwnList) {
  settings().lst_gratulahang.Items = {u"a.wav", u"c.wav"};
  machine.script_random({drawing(1, 2)});
  dicséret_hang(session());
  EXPECT_EQ(commands(), open_and_play("c:\\cserko\\\\hangok\\c.wav"));
}

} // namespace
} // namespace cserko
