// The dialog of the event sounds: its texts, its three files byte for byte, and what each button does to the lists.
#include "feedback/frm_hangbeáll.h"
#include "feedback/sounds.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

class SoundDialogTest : public SuiteTest {
 protected:
  SoundDialogTest() { put_sounds({u"a.wav", u"b.wav", u"c.wav", u"d.txt"}); }

  frm_hangbeáll& dialog() {
    start();
    return open<frm_hangbeáll>();
  }
  static std::string entries(const ListBox& list) {
    std::string all;
    for (const Text& item : list.Items) all += utf8(item) + " ";
    return all;
  }
  std::string list_file(TextView name) { return file(Text(app) + u"cserko\\" + Text(name)); }
  void put_lists() {
    put_app_file(u"cserko\\grathang.ini", u" 0 \r\n 1 \r\n 0 \r\n 1 \r\n 2 \r\na.wav\r\nb.wav\r\n");
    put_app_file(u"cserko\\helyeshang.ini", u"b.wav\r\n");
    put_app_file(u"cserko\\hibahang.ini", u"c.wav\r\na.wav\r\n");
  }
};

TEST_F(SoundDialogTest, HasItsCaptions) {
  auto& d = dialog();
  const std::vector<std::pair<const Element*, std::string>> expected{
      {&d.chk_hang_a_főablakban, "Hangok a grafikus főablakban"},
      {&d.chk_hangjelzés_segítségkérés, "Hangjelzés segítségkérés esetén"},
      {&d.chk_hang_a_gratulálópanelen, "Hangjelzések használata a gratuláló panelen"},
      {&d.chk_hang_a_feladatokban_hiba, "Hangjelzések használata a feladatokban hibás megoldás esetén"},
      {&d.chk_hang_a_feladatokban_helyes, "Hangjelzések használata a feladatokban helyes megoldás esetén"},
      {&d.cmd_gartula, "Hozzáadás a gratuláló  hangok listájához"},
      {&d.cmd_helyeshang_add, "Hozzáadás a sikerhangok listájához"},
      {&d.cmd_hibahang_add, "Hozzáadás a hibahangok listájához"},
      {&d.cmd_hangtörl_gratulahangból, "Törlés a gratuláló hangok listájából"},
      {&d.cmd_hangtörl_helyeshangból, "Törlés a sikerhangok listájából"},
      {&d.cmd_hangtörl_hibahangból, "Törlés a hibahangok listájából"},
      {&d.cmd_play, "Hang lejátszása"},
      {&d.cmd_hangtörlése, "Hang törlése"},
      {&d.cmd_ok, "OK"},
      {&d.cmd_mégsem, "Mégsem"}};
  for (const auto& [element, caption] : expected) EXPECT_EQ(utf8(element->Caption), caption);
}

TEST_F(SoundDialogTest, HasTheHeadingsOfItsLists) {
  auto& d = dialog();
  const auto has_label = [&](TextView caption) {
    return std::any_of(d.elements().begin(), d.elements().end(), [&](const Element* element) {
      return element->kind() == ElementKind::Label && element->Caption == caption;
    });
  };
  EXPECT_TRUE(has_label(u"A gratuláló panelen megszólaló hangok:"));
  EXPECT_TRUE(has_label(u"Helyes megoldás esetén megszólaló hangok:"));
  EXPECT_TRUE(has_label(u"Hibás megoldás esetén megszólaló hangok:"));
}

TEST_F(SoundDialogTest, StandsInTheMiddleOfTheScreen) {
  const auto& d = dialog();
  EXPECT_EQ(d.Left, (machine.screen_size().width - d.Width) / 2);
  EXPECT_EQ(d.Top, (machine.screen_size().height - d.Height) / 2);
}

TEST_F(SoundDialogTest, ListsTheWaveFilesOfItsFolder) {
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Filelist.Pattern), "*.wav");
  EXPECT_EQ(entries(d.Filelist), "a.wav b.wav c.wav ");
}

// Reading.

TEST_F(SoundDialogTest, ReadsFiveBoxesThenNames) {
  put_lists();
  auto& d = dialog();
  EXPECT_EQ(d.chk_hang_a_gratulálópanelen.value(), 0);
  EXPECT_EQ(d.chk_hang_a_feladatokban_helyes.value(), 1);
  EXPECT_EQ(d.chk_hang_a_feladatokban_hiba.value(), 0);
  EXPECT_EQ(d.chk_hangjelzés_segítségkérés.value(), 1);
  EXPECT_EQ(d.chk_hang_a_főablakban.value(), 2);
  EXPECT_EQ(entries(d.lst_gratulahang), "a.wav b.wav ");
  EXPECT_EQ(entries(d.lst_helyeshang), "b.wav ");
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav a.wav ");
}

TEST_F(SoundDialogTest, EntriesWhoseFileIsGoneAreDropped) {
  put_lists();
  machine.files().take(Text(app) + u"hangok\\a.wav");
  auto& d = dialog();
  EXPECT_EQ(entries(d.lst_gratulahang), "b.wav ");
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav ");
}

TEST_F(SoundDialogTest, AnEntryWithoutAFileIsGoneFromTheFileAfterOk) {
  put_lists();
  machine.files().take(Text(app) + u"hangok\\c.wav");
  hand::click(dialog().cmd_ok);
  EXPECT_EQ(list_file(u"hibahang.ini"), "a.wav\r\n");
}

TEST_F(SoundDialogTest, WithAnEmptyFileTheDesignStandsAndTheListsAreEmpty) {
  put_app_file(u"cserko\\grathang.ini", u"");
  start();
  const frm_hangbeáll design(session());
  auto& d = open<frm_hangbeáll>();
  EXPECT_EQ(d.chk_hang_a_gratulálópanelen.value(), design.chk_hang_a_gratulálópanelen.value());
  EXPECT_EQ(d.chk_hang_a_feladatokban_helyes.value(), design.chk_hang_a_feladatokban_helyes.value());
  EXPECT_EQ(d.chk_hang_a_feladatokban_hiba.value(), design.chk_hang_a_feladatokban_hiba.value());
  EXPECT_EQ(d.chk_hangjelzés_segítségkérés.value(), design.chk_hangjelzés_segítségkérés.value());
  EXPECT_EQ(d.chk_hang_a_főablakban.value(), design.chk_hang_a_főablakban.value());
  for (const ListBox* list : {&d.lst_gratulahang, &d.lst_helyeshang, &d.Lst_hibahang}) EXPECT_EQ(list->count(), 0);
}

TEST_F(SoundDialogTest, ThreeLinesOnlySetThreeBoxes) {
  put_app_file(u"cserko\\grathang.ini", u" 0 \r\n 0 \r\n 0 \r\n");
  auto& d = dialog();
  EXPECT_EQ(d.chk_hang_a_feladatokban_hiba.value(), 0);
  EXPECT_EQ(d.chk_hangjelzés_segítségkérés.value(), 1);
}

TEST_F(SoundDialogTest, ABinaryFileIsHarmless) {
  std::string noise(3000, '\0');
  for (std::size_t i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>(i * 91);
  for (const TextView name : {u"grathang.ini", u"helyeshang.ini", u"hibahang.ini"})
    machine.files().put(Text(app) + u"cserko\\" + Text(name), noise);
  EXPECT_EQ(dialog().lst_helyeshang.count(), 0);
}

// Writing.

TEST_F(SoundDialogTest, OkStopsTheSoundWritesThreeFilesAndHides) {
  auto& d = dialog();
  d.chk_hang_a_főablakban.set_value(0);
  d.lst_gratulahang.Items = {u"b.wav", u"a.wav"};
  d.lst_helyeshang.Items = {u"c.wav"};
  hang_lejátszás(session(), u"*");
  forget_commands();
  hand::click(d.cmd_ok);
  EXPECT_EQ(commands(), "close hang\n");
  EXPECT_EQ(list_file(u"grathang.ini"), " 1 \r\n 1 \r\n 1 \r\n 1 \r\n 0 \r\nb.wav\r\na.wav\r\n");
  EXPECT_EQ(list_file(u"helyeshang.ini"), "c.wav\r\n");
  EXPECT_EQ(list_file(u"hibahang.ini"), "");
  EXPECT_FALSE(d.visible());
  EXPECT_TRUE(session().loaded<frm_hangbeáll>());
}

TEST_F(SoundDialogTest, TheFilesLieUnderTheApplicationFolderAlone) {
  hand::click(dialog().cmd_ok);
  EXPECT_FALSE(machine.files().folder_exists(u"c:\\pomzu"));
}

TEST_F(SoundDialogTest, ListsAmongTheSettingsOfTheUserAreNotRead) {
  put_settings(u"grathang.ini", {u" 0 ", u" 0 ", u" 0 ", u" 0 ", u" 0 ", u"a.wav"});
  put_settings(u"hibahang.ini", {u"a.wav"});
  auto& d = dialog();
  EXPECT_TRUE(d.chk_hang_a_gratulálópanelen.ticked());
  EXPECT_EQ(entries(d.lst_gratulahang) + entries(d.Lst_hibahang), "");
}

TEST_F(SoundDialogTest, AReadOnlyFolderIsReportedAndTheDialogCloses) {
  put_lists();
  auto& d = dialog();
  machine.files().make_unwritable(Text(app) + u"cserko");
  d.lst_helyeshang.Items.clear();
  hand::click(d.cmd_ok);
  expected_errors = machine.errors.size();
  EXPECT_GE(expected_errors, 1U);
  EXPECT_FALSE(d.visible());
  EXPECT_EQ(list_file(u"helyeshang.ini"), "b.wav\r\n");
}

TEST_F(SoundDialogTest, CancelReadsTheFilesAgain) {
  put_lists();
  auto& d = dialog();
  d.lst_gratulahang.Items = {u"c.wav"};
  d.Lst_hibahang.Items.clear();
  hand::click(d.chk_hang_a_gratulálópanelen);
  hang_lejátszás(session(), u"*");
  forget_commands();
  hand::click(d.cmd_mégsem);
  EXPECT_EQ(commands(), "close hang\n");
  EXPECT_EQ(entries(d.lst_gratulahang), "a.wav b.wav ");
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav a.wav ");
  EXPECT_EQ(d.chk_hang_a_gratulálópanelen.value(), 0);
  EXPECT_FALSE(d.visible());
}

TEST_F(SoundDialogTest, AfterCancelNothingIsSelectedAndTheCountsAreThoseOfTheFiles) {
  put_lists();
  auto& d = dialog();
  hand::select(d.Filelist, 2);
  hand::click(d.cmd_gartula);
  hand::select(d.Lst_hibahang, 1);
  ASSERT_EQ(utf8(d.Label_gartula.Caption), "3 hang");
  hand::click(d.cmd_mégsem);
  EXPECT_EQ(utf8(d.Label_gartula.Caption), "2 hang");
  EXPECT_EQ(d.lst_gratulahang.list_index(), -1);
  EXPECT_EQ(d.Lst_hibahang.list_index(), -1);
  EXPECT_FALSE(d.cmd_hangtörl_gratulahangból.Enabled);
  EXPECT_FALSE(d.cmd_hangtörl_hibahangból.Enabled);
}

TEST_F(SoundDialogTest, WithoutAFileCancelKeepsTheBoxesAsTheyWere) {
  auto& d = dialog();
  hand::click(d.chk_hang_a_gratulálópanelen);
  hand::click(d.cmd_mégsem);
  EXPECT_EQ(d.chk_hang_a_gratulálópanelen.value(), 0);
}

TEST_F(SoundDialogTest, TheCloseControlCancels) {
  put_lists();
  auto& d = dialog();
  d.lst_gratulahang.Items.clear();
  hand::close(d);
  EXPECT_TRUE(session().loaded<frm_hangbeáll>());
  EXPECT_EQ(entries(d.lst_gratulahang), "a.wav b.wav ");
}

// Adding and removing.

TEST_F(SoundDialogTest, AddingAppendsSelectsAndStepsToTheNextFile) {
  auto& d = dialog();
  hand::select(d.Filelist, 0);
  hand::click(d.cmd_gartula);
  EXPECT_EQ(entries(d.lst_gratulahang), "a.wav ");
  EXPECT_EQ(d.lst_gratulahang.list_index(), 0);
  EXPECT_EQ(d.Filelist.list_index(), 1);
}

TEST_F(SoundDialogTest, RepeatedPressesAddAllFilesAndStopAtTheLast) {
  auto& d = dialog();
  hand::select(d.Filelist, 0);
  for (int i = 0; i < 5; ++i) hand::click(d.cmd_helyeshang_add);
  EXPECT_EQ(entries(d.lst_helyeshang), "a.wav b.wav c.wav ");
  EXPECT_EQ(d.Filelist.list_index(), 2);
  EXPECT_EQ(d.lst_helyeshang.list_index(), 2);
}

TEST_F(SoundDialogTest, AddingWhatIsThereSelectsIt) {
  auto& d = dialog();
  d.Lst_hibahang.Items = {u"c.wav", u"a.wav", u"b.wav"};
  hand::select(d.Filelist, 0);
  hand::click(d.cmd_hibahang_add);
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav a.wav b.wav ");
  EXPECT_EQ(d.Lst_hibahang.list_index(), 1);
}

TEST_F(SoundDialogTest, RemovingSelectsWhatHasTakenThePlace) {
  put_lists();
  auto& d = dialog();
  d.Lst_hibahang.Items = {u"a.wav", u"b.wav", u"c.wav"};
  hand::select(d.Lst_hibahang, 1);
  hand::click(d.cmd_hangtörl_hibahangból);
  EXPECT_EQ(entries(d.Lst_hibahang), "a.wav c.wav ");
  EXPECT_EQ(d.Lst_hibahang.list_index(), 1);
  EXPECT_EQ(utf8(d.Label_hibahang.Caption), "2 hang");
}

TEST_F(SoundDialogTest, RemovingTheLastEntryLeavesNoneSelected) {
  put_lists();
  auto& d = dialog();
  hand::select(d.lst_gratulahang, 1);
  hand::click(d.cmd_hangtörl_gratulahangból);
  EXPECT_EQ(d.lst_gratulahang.list_index(), -1);
  EXPECT_FALSE(d.cmd_hangtörl_gratulahangból.Enabled);
}

// Deleting from the disk.

TEST_F(SoundDialogTest, DeletingAsksNothingAndTakesTheNameOutOfAllLists) {
  put_lists();
  auto& d = dialog();
  hand::select(d.Filelist, u"a.wav");
  forget_commands();
  hand::click(d.cmd_hangtörlése);
  EXPECT_EQ(commands(), "close hang\n");
  EXPECT_FALSE(machine.files().exists(Text(app) + u"hangok\\a.wav"));
  EXPECT_EQ(entries(d.Filelist), "b.wav c.wav ");
  EXPECT_EQ(entries(d.lst_gratulahang), "b.wav ");
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav ");
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(SoundDialogTest, TheDeleteKeyDeletesToo) {
  auto& d = dialog();
  hand::select(d.Filelist, u"b.wav");
  hand::key(d, 46);
  EXPECT_EQ(entries(d.Filelist), "a.wav c.wav ");
}

TEST_F(SoundDialogTest, NoOtherKeyDeletes) {
  auto& d = dialog();
  hand::select(d.Filelist, u"b.wav");
  for (const int code : {int{'A'}, key::backspace, key::space, key::insert}) hand::key(d, code);
  EXPECT_EQ(entries(d.Filelist), "a.wav b.wav c.wav ");
}

TEST_F(SoundDialogTest, TheDeleteKeyOnAnotherListDeletesNothing) {
  put_lists();
  auto& d = dialog();
  hand::select(d.Filelist, u"b.wav");
  hand::select(d.Lst_hibahang, u"a.wav");
  hand::key(d, 46);
  EXPECT_EQ(entries(d.Filelist), "a.wav b.wav c.wav ");
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav a.wav ");
}

TEST_F(SoundDialogTest, ANameThatStandsTwiceInAListGoesWithItsFile) {
  put_app_file(u"cserko\\hibahang.ini", u"a.wav\r\nb.wav\r\na.wav\r\n");
  auto& d = dialog();
  hand::select(d.Filelist, u"a.wav");
  hand::click(d.cmd_hangtörlése);
  EXPECT_EQ(entries(d.Lst_hibahang), "b.wav ");
}

TEST_F(SoundDialogTest, AfterADeletionNothingIsSelectedAndTheCountsAreNew) {
  put_lists();
  auto& d = dialog();
  hand::select(d.Lst_hibahang, u"a.wav");
  hand::select(d.Filelist, u"a.wav");
  hand::click(d.cmd_hangtörlése);
  EXPECT_EQ(utf8(d.Label_hangszám.Caption), "2 hang áll rendelkezésemre");
  EXPECT_EQ(utf8(d.Label_hibahang.Caption), "1 hang");
  for (const Button* button : {&d.cmd_hibahang_add, &d.cmd_play, &d.cmd_hangtörlése, &d.cmd_hangtörl_hibahangból})
    EXPECT_FALSE(button->Enabled) << utf8(button->Name);
}

TEST_F(SoundDialogTest, DeletingChangesTheListFilesOnlyOnOk) {
  put_lists();
  auto& d = dialog();
  hand::select(d.Filelist, u"a.wav");
  hand::click(d.cmd_hangtörlése);
  EXPECT_EQ(list_file(u"hibahang.ini"), "c.wav\r\na.wav\r\n");
  hand::click(d.cmd_mégsem);
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav ");
  EXPECT_EQ(list_file(u"hibahang.ini"), "c.wav\r\na.wav\r\n");
  machine.show(d);
  hand::click(d.cmd_ok);
  EXPECT_EQ(list_file(u"hibahang.ini"), "c.wav\r\n");
}

TEST_F(SoundDialogTest, AFileThatCannotBeDeletedIsReportedAndStaysInTheLists) {
  put_lists();
  auto& d = dialog();
  machine.files().make_unwritable(Text(app) + u"hangok\\a.wav");
  hand::select(d.Filelist, u"a.wav");
  hand::click(d.cmd_hangtörlése);
  expected_errors = 1;
  EXPECT_EQ(entries(d.Filelist), "a.wav b.wav c.wav ");
  EXPECT_EQ(entries(d.Lst_hibahang), "c.wav a.wav ");
}

// Listening.

TEST_F(SoundDialogTest, AClickOnAFilePlaysIt) {
  auto& d = dialog();
  forget_commands();
  hand::select(d.Filelist, 1);
  EXPECT_EQ(commands(), "open \"c:\\cserko\\hangok\\b.wav\" type waveaudio alias hang\nplay hang \n");
}

TEST_F(SoundDialogTest, AClickOnAListPlaysItsEntry) {
  put_lists();
  auto& d = dialog();
  forget_commands();
  hand::select(d.Lst_hibahang, 0);
  EXPECT_EQ(commands(), "open \"c:\\cserko\\hangok\\c.wav\" type waveaudio alias hang\nplay hang \n");
}

TEST_F(SoundDialogTest, ThePlayButtonPlaysTheSelectedFile) {
  auto& d = dialog();
  hand::select(d.Filelist, 2);
  forget_commands();
  hand::click(d.cmd_play);
  EXPECT_EQ(commands(), "close hang\nopen \"c:\\cserko\\hangok\\c.wav\" type waveaudio alias hang\nplay hang \n");
}

// Buttons and counts.

TEST_F(SoundDialogTest, ButtonsFollowTheSelections) {
  put_lists();
  auto& d = dialog();
  for (const Button* button :
       {&d.cmd_gartula, &d.cmd_helyeshang_add, &d.cmd_hibahang_add, &d.cmd_play, &d.cmd_hangtörlése,
        &d.cmd_hangtörl_gratulahangból, &d.cmd_hangtörl_helyeshangból, &d.cmd_hangtörl_hibahangból}) {
    EXPECT_FALSE(button->Enabled) << utf8(button->Name);
  }
  hand::select(d.Filelist, 0);
  for (const Button* button :
       {&d.cmd_gartula, &d.cmd_helyeshang_add, &d.cmd_hibahang_add, &d.cmd_play, &d.cmd_hangtörlése})
    EXPECT_TRUE(button->Enabled) << utf8(button->Name);
  hand::select(d.lst_helyeshang, 0);
  EXPECT_TRUE(d.cmd_hangtörl_helyeshangból.Enabled);
  EXPECT_FALSE(d.cmd_hangtörl_hibahangból.Enabled);
}

TEST_F(SoundDialogTest, TheCountOfFilesBecomesThePositionOfTheSelectedOne) {
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Label_hangszám.Caption), "3 hang áll rendelkezésemre");
  hand::select(d.Filelist, 1);
  EXPECT_EQ(utf8(d.Label_hangszám.Caption), "2\\3");
}

TEST_F(SoundDialogTest, EachListTellsItsCount) {
  auto& d = dialog();
  hand::select(d.Filelist, 0);
  hand::click(d.cmd_gartula);
  hand::click(d.cmd_gartula);
  hand::click(d.cmd_hibahang_add);
  EXPECT_EQ(utf8(d.Label_gartula.Caption), "2 hang");
  EXPECT_EQ(utf8(d.Label_helyeshang.Caption), "0 hang");
  EXPECT_EQ(utf8(d.Label_hibahang.Caption), "1 hang");
}

TEST_F(SoundDialogTest, AddingTheLastFileCountsToo) {
  auto& d = dialog();
  hand::select(d.Filelist, 2); // behind it there is none to step on to
  hand::click(d.cmd_hibahang_add);
  EXPECT_EQ(utf8(d.Label_hibahang.Caption), "1 hang");
}

TEST_F(SoundDialogTest, AListReadFromItsFileTellsItsCountFromTheStart) {
  put_lists();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Label_gartula.Caption), "2 hang");
  EXPECT_EQ(utf8(d.Label_helyeshang.Caption), "1 hang");
  EXPECT_EQ(utf8(d.Label_hibahang.Caption), "2 hang");
}

TEST_F(SoundDialogTest, TheThreeListsShareOnePairOfButtonPictures) {
  put_app_file(u"cserko\\listára.wmf");
  put_app_file(u"cserko\\listáról.wmf");
  auto& d = dialog();
  const PicturePtr in = d.cmd_hibahang_add.Picture;
  const PicturePtr out = d.cmd_hangtörl_hibahangból.Picture;
  ASSERT_NE(in, nullptr);
  ASSERT_NE(out, nullptr);
  EXPECT_EQ(utf8(in->path()), "c:\\cserko\\cserko\\listára.wmf");
  EXPECT_EQ(utf8(out->path()), "c:\\cserko\\cserko\\listáról.wmf");
  EXPECT_EQ(d.cmd_gartula.Picture, in);
  EXPECT_EQ(d.cmd_helyeshang_add.Picture, in);
  EXPECT_EQ(d.cmd_hangtörl_gratulahangból.Picture, out);
  EXPECT_EQ(d.cmd_hangtörl_helyeshangból.Picture, out);
}

} // namespace
} // namespace cserko
