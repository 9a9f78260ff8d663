// The dialog of the playlist: its lists, its buttons, its file, and the way to it from the main window.
#include "core/frm_főablak.h"
#include "tests/rewards/music_fixture.h"

namespace cserko {
namespace {

class MusicDialogTest : public MusicTest {
 protected:
  /// The dialog as a person sees it, with that playlist and no selection.
  frm_zenebeáll& show(std::initializer_list<TextView> titles) {
    auto& dialog = open<frm_zenebeáll>();
    dialog.list_playlist.Items.assign(titles.begin(), titles.end());
    return dialog;
  }
  static std::string buttons(const frm_zenebeáll& dialog) {
    std::string states;
    if (dialog.cmd_add.Enabled) states += "add ";
    if (dialog.cmd_törl.Enabled) states += "remove ";
    if (dialog.cmd_áthelyez[0].Enabled) states += "up ";
    if (dialog.cmd_áthelyez[2].Enabled) states += "down ";
    return states;
  }
  static constexpr TextView file_path = u"c:\\pomzu\\cserko\\zenebeáll.ini";
};

TEST_F(MusicDialogTest, HasItsCaptions) {
  auto& dialog = load<frm_zenebeáll>();
  EXPECT_EQ(utf8(dialog.chk_zene_enged.Caption), "Zene engedélyezése");
  EXPECT_EQ(utf8(dialog.Label1.Caption), "A rendelkezésre álló zenei fájlok:");
  EXPECT_EQ(utf8(dialog.Label2.Caption), "A lejátszásra kerülő zenei fájlok:");
  EXPECT_EQ(utf8(dialog.cmd_add.Caption), "Zene hozzáadása a listához");
  EXPECT_EQ(utf8(dialog.cmd_törl.Caption), "Zene törlése a listából");
  EXPECT_EQ(utf8(dialog.cmd_ok.Caption), "OK");
  EXPECT_EQ(utf8(dialog.cmd_mégsem.Caption), "Mégsem");
  EXPECT_EQ(utf8(dialog.lab_türelem.Caption), "Fájl.mid lejátszása");
  EXPECT_FALSE(dialog.lab_türelem.Visible);
  EXPECT_TRUE(dialog.cmd_áthelyez.loaded(0) && dialog.cmd_áthelyez.loaded(2));
  EXPECT_EQ(dialog.cmd_áthelyez.count(), 2);
}

TEST_F(MusicDialogTest, StandsInTheMiddleOfTheScreen) {
  const auto& dialog = load<frm_zenebeáll>();
  EXPECT_EQ(dialog.Left, (machine.screen_size().width - dialog.Width) / 2);
  EXPECT_EQ(dialog.Top, (machine.screen_size().height - dialog.Height) / 2);
}

TEST_F(MusicDialogTest, ListsTheTunesOfTheFolderAndNothingElse) {
  put_app_file(u"dysmid\\notes.txt");
  auto& dialog = load<frm_zenebeáll>();
  EXPECT_EQ(dialog.filelist_zene.Items, (std::vector<Text>{u"a.mid", u"b.mid", u"c.mid"}));
}

// Preview.

TEST_F(MusicDialogTest, AClickInEitherListPlaysTheTitle) {
  auto& dialog = show({u"b.mid"});
  hand::select(dialog.filelist_zene, u"c.mid");
  EXPECT_EQ(commands(), start_of("c.mid"));
  hand::select(dialog.list_playlist, u"b.mid");
  EXPECT_EQ(commands(), "close midi\n" + start_of("b.mid"));
}

TEST_F(MusicDialogTest, TheTitleThatPlaysIsNotStartedAgainFromEitherList) {
  auto& dialog = show({u"b.mid"});
  hand::select(dialog.filelist_zene, u"b.mid");
  forget_commands();
  hand::select(dialog.filelist_zene, u"b.mid");
  hand::select(dialog.list_playlist, u"b.mid");
  EXPECT_EQ(commands(), "");
}

// A machine without sound that looks at the dialog whenever it is painted at once.
class WatchingPlatform : public HeadlessPlatform {
 public:
  void redraw(Window& window) override {
    HeadlessPlatform::redraw(window);
    auto* dialog = dynamic_cast<frm_zenebeáll*>(&window);
    if (dialog == nullptr) return;
    ++paintings;
    pointer = dialog->Pointer;
    patience = dialog->lab_türelem.Visible ? to_utf8(dialog->lab_türelem.Caption) : "(hidden)";
    opened_by_then = silent.commands.size();
  }
  RecordedMedia& media() override { return silent; }

  int paintings = 0;
  MousePointer pointer = MousePointer::Arrow;
  std::string patience;
  std::size_t opened_by_then = 0;

 private:
  struct SilentMedia : RecordedMedia {
    using RecordedMedia::RecordedMedia;
    std::u16string silence_reason() const override { return u"Nincs hangeszköz."; }
  };
  SilentMedia silent{files(), [this] { return now(); }};
};

class WatchedDialogTest : public ::testing::Test {
 protected:
  WatchedDialogTest() {
    machine.files().put(Text(app) + u"dysmid\\dal.mid", "x");
    install_feedback(session);
  }
  WatchingPlatform machine;
  Session session{machine};
};

TEST_F(WatchedDialogTest, PatienceIsAskedForBeforeTheTitleIsOpened) {
  auto& dialog = session.window<frm_zenebeáll>();
  machine.show(dialog);
  const int before = machine.paintings;
  hand::select(dialog.filelist_zene, u"dal.mid");
  EXPECT_EQ(machine.paintings, before + 1);
  EXPECT_EQ(machine.patience, "dal.mid fájl lejátszása");
  EXPECT_EQ(machine.pointer, MousePointer::Hourglass);
  EXPECT_EQ(machine.opened_by_then, 0U);
  EXPECT_GT(machine.media().commands.size(), 0U) << "the medium that is counted is the one that plays";
  EXPECT_EQ(dialog.Pointer, MousePointer::Arrow);
  EXPECT_FALSE(dialog.lab_türelem.Visible);
}

TEST_F(WatchedDialogTest, TheNameOfTheTitleFillsItsPlace) {
  auto& dialog = session.window<frm_zenebeáll>();
  machine.show(dialog);
  hand::select(dialog.filelist_zene, u"dal.mid");
  cserko::Font font = dialog.lab_türelem.Font;
  const auto overfills = [&] {
    const Size extent = machine.measure(font, u"dal.mid fájl lejátszása");
    return extent.width > 0.9 * dialog.lab_türelem.Width || extent.height > 0.9 * dialog.lab_türelem.Height;
  };
  EXPECT_GT(font.size, 8);
  EXPECT_TRUE(overfills());
  font.size -= 1;
  EXPECT_FALSE(overfills());
}

TEST_F(WatchedDialogTest, SaysWhyThereIsNoMusic) {
  auto& dialog = session.window<frm_zenebeáll>();
  machine.show(dialog);
  EXPECT_EQ(utf8(dialog.lbl_csend.Caption), "Nincs hangeszköz.");
}

TEST_F(MusicDialogTest, SaysNothingWhereThereIsMusic) { EXPECT_EQ(utf8(show({}).lbl_csend.Caption), ""); }

// The buttons.

TEST_F(MusicDialogTest, AddAppendsTheTitleAndSelectsIt) {
  auto& dialog = show({u"a.mid"});
  hand::select(dialog.filelist_zene, u"c.mid");
  hand::click(dialog.cmd_add);
  EXPECT_EQ(titles(dialog), "a.mid c.mid ");
  EXPECT_EQ(dialog.list_playlist.list_index(), 1);
}

TEST_F(MusicDialogTest, AddOnlySelectsATitleThatIsThere) {
  auto& dialog = show({u"a.mid", u"b.mid"});
  hand::select(dialog.filelist_zene, u"a.mid");
  hand::click(dialog.cmd_add);
  EXPECT_EQ(titles(dialog), "a.mid b.mid ");
  EXPECT_EQ(dialog.list_playlist.list_index(), 0);
}

TEST_F(MusicDialogTest, RemoveSelectsTheTitleThatMovedUp) {
  auto& dialog = show({u"a.mid", u"b.mid", u"c.mid"});
  hand::select(dialog.list_playlist, 1);
  hand::click(dialog.cmd_törl);
  EXPECT_EQ(titles(dialog), "a.mid c.mid ");
  EXPECT_EQ(utf8(dialog.list_playlist.selected()), "c.mid");
  EXPECT_EQ(played(), "b.mid c.mid ") << "to select is to play";
}

TEST_F(MusicDialogTest, RemovingTheLastTitleLeavesNoSelection) {
  auto& dialog = show({u"a.mid", u"b.mid"});
  hand::select(dialog.list_playlist, 1);
  hand::click(dialog.cmd_törl);
  EXPECT_EQ(titles(dialog), "a.mid ");
  EXPECT_EQ(dialog.list_playlist.list_index(), -1);
  EXPECT_FALSE(dialog.cmd_törl.Enabled);
}

TEST_F(MusicDialogTest, TheArrowsMoveTheTitleAndItStaysSelected) {
  auto& dialog = show({u"a.mid", u"b.mid", u"c.mid"});
  hand::select(dialog.list_playlist, 1);
  forget_commands();
  hand::click(dialog.cmd_áthelyez[0]);
  EXPECT_EQ(titles(dialog), "b.mid a.mid c.mid ");
  EXPECT_EQ(dialog.list_playlist.list_index(), 0);
  hand::click(dialog.cmd_áthelyez[2]);
  hand::click(dialog.cmd_áthelyez[2]);
  EXPECT_EQ(titles(dialog), "a.mid c.mid b.mid ");
  EXPECT_EQ(dialog.list_playlist.list_index(), 2);
  EXPECT_EQ(commands(), "") << "the moved title plays on";
}

TEST_F(MusicDialogTest, TheButtonsFollowTheSelections) {
  put_settings(u"zenebeáll.ini", {u" 1 ", u"a.mid", u"b.mid", u"c.mid"});
  auto& dialog = show({u"a.mid", u"b.mid", u"c.mid"});
  EXPECT_EQ(buttons(dialog), "down ") << "no selection is not the last entry";
  hand::click(dialog.cmd_áthelyez[2]);
  EXPECT_EQ(titles(dialog), "a.mid b.mid c.mid ") << "and nothing is there to move";
  hand::select(dialog.list_playlist, 0);
  EXPECT_EQ(buttons(dialog), "remove down ");
  hand::select(dialog.list_playlist, 1);
  EXPECT_EQ(buttons(dialog), "remove up down ");
  hand::select(dialog.list_playlist, 2);
  EXPECT_EQ(buttons(dialog), "remove up ");
  hand::select(dialog.filelist_zene, 0);
  EXPECT_EQ(buttons(dialog), "add remove up ");
}

TEST_F(MusicDialogTest, ASingleEntryCannotBeMoved) {
  auto& dialog = show({u"a.mid"});
  hand::select(dialog.list_playlist, 0);
  EXPECT_EQ(buttons(dialog), "remove ");
}

TEST_F(MusicDialogTest, WithoutAnyEntryNoButtonOfTheListIsLive) { EXPECT_EQ(buttons(load<frm_zenebeáll>()), ""); }

// OK, Cancel and the file.

TEST_F(MusicDialogTest, OkWritesTheFileStopsThePreviewAndHides) {
  put_app_file(u"dysmid\\őszi dal.mid");
  auto& dialog = show({u"c.mid", u"őszi dal.mid"});
  dialog.chk_zene_enged.set_value(1);
  hand::select(dialog.list_playlist, 1);
  forget_commands();
  hand::click(dialog.cmd_ok);
  EXPECT_EQ(file(file_path), " 1 \r\nc.mid\r\n\xF5szi dal.mid\r\n");
  EXPECT_EQ(commands(), "close midi\n");
  EXPECT_FALSE(dialog.visible());
  EXPECT_TRUE(session().loaded<frm_zenebeáll>()) << "its list is what the player reads";
}

TEST_F(MusicDialogTest, OkMakesTheFoldersOfTheFile) {
  ASSERT_FALSE(machine.files().folder_exists(u"c:\\pomzu"));
  auto& dialog = show({});
  dialog.chk_zene_enged.set_value(0);
  hand::click(dialog.cmd_ok);
  EXPECT_EQ(file(file_path), " 0 \r\n");
}

class DiscardingTest : public MusicDialogTest {
 protected:
  /// Changes everything in the dialog, leaves it that way, and looks whether the file holds again.
  void expect_discarded(const std::function<void(frm_zenebeáll&)>& leave) {
    put_settings(u"zenebeáll.ini", {u" 1 ", u"b.mid", u"a.mid"});
    auto& dialog = open<frm_zenebeáll>();
    ASSERT_EQ(titles(dialog), "b.mid a.mid ");
    hand::click(dialog.chk_zene_enged);
    hand::select(dialog.filelist_zene, u"c.mid");
    hand::click(dialog.cmd_add);
    ASSERT_EQ(titles(dialog), "b.mid a.mid c.mid ");
    forget_commands();
    leave(dialog);
    EXPECT_EQ(titles(dialog), "b.mid a.mid ");
    EXPECT_EQ(dialog.list_playlist.list_index(), -1);
    EXPECT_FALSE(dialog.cmd_törl.Enabled);
    EXPECT_TRUE(dialog.chk_zene_enged.ticked());
    EXPECT_EQ(commands(), "close midi\n");
    EXPECT_FALSE(dialog.visible());
    EXPECT_TRUE(session().loaded<frm_zenebeáll>());
    EXPECT_EQ(file(file_path), " 1 \r\nb.mid\r\na.mid\r\n");
  }
};

TEST_F(DiscardingTest, CancelReadsTheFileAgain) {
  expect_discarded([](frm_zenebeáll& dialog) { hand::click(dialog.cmd_mégsem); });
}

TEST_F(DiscardingTest, TheCloseControlDoesTheSame) {
  expect_discarded([](frm_zenebeáll& dialog) { hand::close(dialog); });
}

TEST_F(DiscardingTest, EscapeDoesTheSame) {
  expect_discarded([](frm_zenebeáll& dialog) { hand::key(dialog, key::escape); });
}

TEST_F(MusicDialogTest, WithoutAFileOfTheUserTheFactoryCopyIsRead) {
  put_app_file(u"cserko\\zenebeáll.ini", u" 1 \r\nc.mid\r\nb.mid\r\n");
  auto& dialog = load<frm_zenebeáll>();
  EXPECT_TRUE(dialog.chk_zene_enged.ticked());
  EXPECT_EQ(titles(dialog), "c.mid b.mid ");
}

TEST_F(MusicDialogTest, TheFileOfTheUserComesBeforeTheFactoryCopy) {
  put_app_file(u"cserko\\zenebeáll.ini", u" 1 \r\nc.mid\r\nb.mid\r\n");
  put_settings(u"zenebeáll.ini", {u" 0 ", u"a.mid"});
  auto& dialog = load<frm_zenebeáll>();
  EXPECT_FALSE(dialog.chk_zene_enged.ticked());
  EXPECT_EQ(titles(dialog), "a.mid ");
}

TEST_F(MusicDialogTest, WithNeitherFileThePlaylistIsEmpty) {
  auto& dialog = show({u"a.mid"});
  hand::click(dialog.cmd_mégsem);
  EXPECT_EQ(titles(dialog), "");
}

// From the main window.

TEST_F(MusicDialogTest, WhileItIsOpenTheTimerStandsAndMusicThenGoesOnWithTheNextTitle) {
  auto& dialog = player({u"a.mid", u"b.mid", u"c.mid"});
  tick();
  auto& main = open<frm_főablak>();
  then_in<frm_zenebeáll>([this](frm_zenebeáll& shown) {
    forget_commands();
    tick(5);
    EXPECT_EQ(commands(), "");
    hand::click(shown.cmd_ok);
  });
  hand::click(main.mnu_fájl_zenebeállítások);
  EXPECT_EQ(music(), MediaMode::Closed);
  tick();
  EXPECT_EQ(played(), "a.mid b.mid ");
  EXPECT_EQ(dialog.list_playlist.list_index(), 1);
}

TEST_F(MusicDialogTest, FromTheMenuAPreviewStopsByCancelAndTheFileSaysWhetherMusicGoesOn) {
  for (const bool allowed : {true, false}) {
    put_settings(u"zenebeáll.ini", {allowed ? u" 1 " : u" 0 ", u"a.mid", u"b.mid"});
    auto& main = open<frm_főablak>();
    then_in<frm_zenebeáll>([&](frm_zenebeáll& shown) {
      shown.chk_zene_enged.set_value(allowed ? 0 : 1);
      hand::select(shown.filelist_zene, u"c.mid");
      EXPECT_EQ(music(), MediaMode::Playing);
      hand::click(shown.cmd_mégsem);
    });
    hand::click(main.mnu_fájl_zenebeállítások);
    EXPECT_EQ(music(), MediaMode::Closed);
    tick();
    EXPECT_EQ(music(), allowed ? MediaMode::Playing : MediaMode::Closed);
  }
}

TEST_F(MusicDialogTest, MusicThatIsAllowedInTheDialogStartsAfterIt) {
  auto& main = open<frm_főablak>();
  then_in<frm_zenebeáll>([](frm_zenebeáll& shown) {
    shown.chk_zene_enged.set_value(0);
    hand::click(shown.chk_zene_enged);
    shown.list_playlist.Items = {u"b.mid"};
    hand::click(shown.cmd_ok);
  });
  hand::click(main.mnu_fájl_zenebeállítások);
  EXPECT_TRUE(load<frm_referencia>().Timer_zene.Enabled);
  tick();
  EXPECT_EQ(played(), "b.mid ");
}

} // namespace
} // namespace cserko
