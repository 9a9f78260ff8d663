// The player of the background music: the timer, the selection that plays, and the commands that are sent.
#include "feedback/message_panels.h"
#include "tests/rewards/music_fixture.h"

namespace cserko {
namespace {

// The timer.

TEST_F(MusicTest, TheTimerTicksOnceASecondAndStandsUntilItIsAllowed) {
  EXPECT_EQ(load<frm_referencia>().Timer_zene.Interval, 1000);
  EXPECT_FALSE(load<frm_referencia>().Timer_zene.Enabled);
}

TEST_F(MusicTest, WithoutASelectionTheFirstTickStartsTheFirstTitle) {
  auto& dialog = player({u"b.mid", u"a.mid"});
  EXPECT_EQ(dialog.list_playlist.list_index(), -1);
  tick();
  EXPECT_EQ(commands(), ask + start_of("b.mid"));
  EXPECT_EQ(dialog.list_playlist.list_index(), 0);
  EXPECT_EQ(utf8(load<frm_referencia>().Caption), "b.mid");
  EXPECT_TRUE(session().zene_nyitva);
  EXPECT_TRUE(session().hangállapot.midi);
}

TEST_F(MusicTest, WhileATitlePlaysATickOnlyAsks) {
  player({u"a.mid", u"b.mid"});
  tick();
  forget_commands();
  tick(3);
  EXPECT_EQ(commands(), std::string(ask) + ask + ask);
}

TEST_F(MusicTest, WhileATitleIsPausedATickOnlyAsks) {
  player({u"a.mid", u"b.mid"});
  tick();
  zene_szünet(session());
  forget_commands();
  tick(100);
  EXPECT_EQ(commands().find("open"), std::string::npos);
  EXPECT_EQ(music(), MediaMode::Paused);
}

TEST_F(MusicTest, AFinishedTitleIsFollowedByTheNextWithinASecond) {
  auto& dialog = player({u"a.mid", u"b.mid"});
  all_titles_last(2500);
  tick(3);
  EXPECT_EQ(played(), "a.mid ");
  forget_commands();
  tick();
  EXPECT_EQ(commands(), ask + ("close midi\n" + start_of("b.mid")));
  EXPECT_EQ(dialog.list_playlist.list_index(), 1);
  EXPECT_EQ(utf8(load<frm_referencia>().Caption), "b.mid");
}

TEST_F(MusicTest, AfterTheLastTitleTheFirstComesAgain) {
  player({u"c.mid", u"a.mid", u"b.mid"});
  all_titles_last(500);
  tick(7);
  EXPECT_EQ(played(), "c.mid a.mid b.mid c.mid a.mid b.mid c.mid ");
}

TEST_F(MusicTest, ASingleTitlePlaysOnceAndFallsSilent) {
  player({u"a.mid"});
  all_titles_last(500);
  tick(20);
  EXPECT_EQ(played(), "a.mid ");
  EXPECT_EQ(music(), MediaMode::Stopped);
  forget_commands();
  tick();
  EXPECT_EQ(commands(), ask);
}

TEST_F(MusicTest, ASingleTitleComesAgainOnceTheDialogHasPlayedAnother) {
  auto& dialog = player({u"a.mid"});
  all_titles_last(500);
  tick(5);
  machine.show(dialog);
  hand::select(dialog.filelist_zene, u"c.mid");
  hand::click(dialog.cmd_ok);
  tick(5);
  EXPECT_EQ(played(), "a.mid c.mid a.mid ");
}

TEST_F(MusicTest, ATitleDeletedFromTheDiskIsSkippedAtOneTick) {
  auto& dialog = player({u"a.mid", u"gone.mid", u"c.mid"});
  all_titles_last(500);
  tick();
  forget_commands();
  tick();
  EXPECT_EQ(commands(), ask + ("close midi\n" + start_of("gone.mid")));
  EXPECT_EQ(dialog.list_playlist.list_index(), 1);
  EXPECT_EQ(music(), MediaMode::Closed);
  tick();
  EXPECT_EQ(commands(), ask + ("close midi\n" + start_of("c.mid")));
  EXPECT_EQ(played(), "a.mid c.mid ");
}

TEST_F(MusicTest, TwoDeletedTitlesTakeTwoTicks) {
  auto& dialog = player({u"gone.mid", u"lost.mid", u"c.mid"});
  tick(2);
  EXPECT_EQ(played(), "");
  EXPECT_EQ(dialog.list_playlist.list_index(), 1);
  tick();
  EXPECT_EQ(played(), "c.mid ");
}

TEST_F(MusicTest, AFileThatIsNoTuneIsSkippedWithoutAWord) {
  machine.media().break_title(u"c:\\cserko\\dysmid\\a.mid");
  player({u"a.mid", u"b.mid"});
  tick(2);
  EXPECT_EQ(played(), "b.mid ");
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(MusicTest, WithAnEmptyPlaylistEveryTickOnlyAsks) {
  auto& dialog = player({});
  tick(3);
  EXPECT_EQ(commands(), std::string(ask) + ask + ask);
  EXPECT_EQ(dialog.list_playlist.list_index(), -1);
}

TEST_F(MusicTest, WithTheCheckBoxNotTickedATickDoesNotEvenAsk) {
  auto& dialog = player({u"a.mid"});
  for (const int value : {0, 2}) {
    dialog.chk_zene_enged.set_value(value);
    tick(2);
    EXPECT_EQ(commands(), "") << value;
  }
}

TEST_F(MusicTest, TicksArriveWhileAPanelIsOpen) {
  player({u"a.mid"});
  then([this](Window&) {
    tick();
    EXPECT_EQ(played(), "a.mid ");
  });
  szöveges_üzenet(session(), u"Nyomtatok.", 40);
}

// The procedures.

TEST_F(MusicTest, StartingATitleClosesTheOneBefore) {
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\a.mid");
  EXPECT_EQ(commands(), start_of("a.mid"));
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\b.mid");
  EXPECT_EQ(commands(), "close midi\n" + start_of("b.mid"));
}

TEST_F(MusicTest, AnEmptyTextClosesTheMusic) {
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\a.mid");
  forget_commands();
  zene_lejátszás(session(), {});
  EXPECT_EQ(commands(), "close midi\n");
  EXPECT_FALSE(session().zene_nyitva);
  EXPECT_FALSE(session().hangállapot.midi);
  EXPECT_EQ(utf8(zene_állapot(session())), "");
}

TEST_F(MusicTest, AnEmptyTextWithNothingOpenSendsNothing) {
  zene_lejátszás(session(), {});
  EXPECT_EQ(commands(), "");
}

TEST_F(MusicTest, TheStateBeginsWithTheWordOfTheMode) {
  EXPECT_EQ(utf8(zene_állapot(session())), "");
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\a.mid");
  EXPECT_TRUE(zene_állapot(session()).starts_with(u"playing"));
  zene_szünet(session());
  EXPECT_TRUE(zene_állapot(session()).starts_with(u"paused"));
  zene_szünet(session());
  machine.advance(machine.media().music_length);
  const Text ended = zene_állapot(session());
  EXPECT_FALSE(ended.starts_with(u"playing") || ended.starts_with(u"paused")) << utf8(ended);
}

TEST_F(MusicTest, ThePauseTogglesMusicThatIsOpenAndNothingElse) {
  zene_szünet(session());
  EXPECT_EQ(commands(), "") << "nothing was opened";
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\a.mid");
  forget_commands();
  zene_szünet(session());
  EXPECT_EQ(commands(), "Status midi mode\npause midi\n");
  zene_szünet(session());
  EXPECT_EQ(commands(), "Status midi mode\nplay midi\n");
}

TEST_F(MusicTest, ThePauseOfATitleThatCouldNotBeOpenedOnlyAsks) {
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\gone.mid");
  forget_commands();
  zene_szünet(session());
  EXPECT_EQ(commands(), ask);
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(MusicTest, MusicThatCannotGoOnIsToldInThePlatformsMessageBox) {
  zene_lejátszás(session(), u"c:\\cserko\\dysmid\\a.mid");
  zene_szünet(session());
  machine.media().refuse(u"play midi", 6);
  zene_szünet(session());
  ASSERT_EQ(machine.messages.size(), 1U);
  EXPECT_EQ(machine.messages[0], machine.media().error_text(6));
  EXPECT_EQ(music(), MediaMode::Paused);
}

} // namespace
} // namespace cserko
