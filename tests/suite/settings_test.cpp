// Settings files byte for byte, and what a settings dialog does with its file.
#include "core/settings.h"
#include "feedback/frm_zenebeáll.h"
#include "platform/element_array.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

// A dialog with one control of each kind, in a file order of its own.
class SampleDialog : public SettingsDialog {
 public:
  explicit SampleDialog(Session& session) : SettingsDialog(session, u"sample", {4000, 3000}, u"Sample", u"sample.ini") {
    first.set_value(true);
    set_fields({&updown, &first, &second, &box});
    set_buttons(OKButton, CancelButton);
    set_help(cmd_súgó, u"Minta - beállítások.mht");
  }
  TextBox text{*this, u"text", {0, 0, 500, 300}};
  UpDown updown{*this, u"updown", {500, 0, 300, 300}, text, {-5, 12, 1}, 7};
  OptionButton first{*this, u"first", {0, 400, 500, 300}, u"first"};
  OptionButton second{*this, u"second", {0, 700, 500, 300}, u"second"};
  CheckBox box{*this, u"box", {0, 1000, 500, 300}, u"box"};
  Button OKButton{*this, u"OKButton", {0, 1400, 500, 300}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {600, 1400, 500, 300}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {1200, 1400, 500, 300}, u"Súgó"};
  int applied = 0;
  bool visible_when_applied = false;

 protected:
  void apply() override {
    ++applied;
    visible_when_applied = visible();
  }
};

class FactoryDialog : public SampleDialog {
 public:
  explicit FactoryDialog(Session& session) : SampleDialog(session) { set_factory_file(u"cserko\\sample.ini"); }
};

// A dialog whose first value limits the second in its own way, and whose orders are its own.
class OwnDialog : public SettingsDialog {
 public:
  explicit OwnDialog(Session& session) : SettingsDialog(session, u"own", {4000, 3000}, u"Own", u"sample.ini") {
    words.Change = [this] {
      pairs.Max = words.value();
      if (pairs.value() > pairs.Max) pairs.set_value(pairs.Max);
    };
    set_fields({&pairs, &words, &bar});
    set_buttons(OKButton, CancelButton);
    bar.Change = [this] { shown.Caption = to_text(bar.value()); };
  }
  TextBox txt_pairs{*this, u"txt_pairs", {0, 0, 500, 300}};
  UpDown pairs{*this, u"pairs", {500, 0, 300, 300}, txt_pairs, {5, 18, 1}, 17};
  TextBox txt_words{*this, u"txt_words", {0, 400, 500, 300}};
  UpDown words{*this, u"words", {500, 400, 300, 300}, txt_words, {5, 18, 1}, 18};
  ScrollBar bar{*this, u"bar", {0, 800, 800, 300}, 1, 100};
  Label shown{*this, u"shown", {900, 800, 500, 300}};
  Button OKButton{*this, u"OKButton", {0, 1400, 500, 300}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {600, 1400, 500, 300}, u"Mégsem"};
  std::vector<std::string> done;

 protected:
  void after_read(bool from_file) override { done.emplace_back(from_file ? "read" : "no file"); }
  void accept() override { done.emplace_back("OK"); }
  void cancel() override { done.emplace_back("Cancel"); }
  void close_box() override { done.emplace_back("close box"); }
};

class SettingsTest : public SuiteTest {
 protected:
  SettingsTest() { start(); }
  void put_sample(const std::string& bytes) { machine.files().put(Text(user_folder) + u"sample.ini", bytes); }
};

// The file.

TEST_F(SettingsTest, NumbersHaveABlankForTheSignAndOneBehind) {
  SettingsWriter writer;
  writer.number(12);
  writer.number(0);
  writer.number(-3);
  EXPECT_EQ(writer.bytes(), " 12 \r\n 0 \r\n-3 \r\n");
}

TEST_F(SettingsTest, OptionsAreTheWordsTrueAndFalse) {
  SettingsWriter writer;
  writer.word(true);
  writer.word(false);
  EXPECT_EQ(writer.bytes(), "True\r\nFalse\r\n");
}

TEST_F(SettingsTest, TextsAreInCodePage1250) {
  SettingsWriter writer;
  writer.text(u"őű");
  EXPECT_EQ(writer.bytes(), "\xF5\xFB\r\n");
}

TEST_F(SettingsTest, TheFileHoldsTheFieldsInTheirOrder) {
  auto& dialog = open<SampleDialog>();
  dialog.box.set_value(2);
  hand::click(dialog.OKButton);
  EXPECT_EQ(settings(u"sample.ini"), " 7 \r\nTrue\r\nFalse\r\n 2 \r\n");
}

TEST_F(SettingsTest, NegativeNumbersSurviveTheFile) {
  put_sample("-4 \r\n");
  EXPECT_EQ(load<SampleDialog>().updown.value(), -4);
}

// Reading.

TEST_F(SettingsTest, TheDialogReadsItsFileWhenItIsFirstTouched) {
  put_sample(" 3 \r\nFalse\r\nTrue\r\n 1 \r\n");
  auto& dialog = load<SampleDialog>();
  EXPECT_EQ(dialog.updown.value(), 3);
  EXPECT_FALSE(dialog.first.value());
  EXPECT_TRUE(dialog.second.value());
  EXPECT_EQ(dialog.box.value(), 1);
}

TEST_F(SettingsTest, WithoutAFileTheDesignStands) {
  auto& dialog = load<SampleDialog>();
  EXPECT_EQ(dialog.updown.value(), 7);
  EXPECT_TRUE(dialog.first.value());
  EXPECT_EQ(dialog.box.value(), 0);
}

TEST_F(SettingsTest, AShortFileLeavesTheLaterControlsAsTheyWere) {
  put_sample(" 3 \r\n");
  auto& dialog = load<SampleDialog>();
  EXPECT_EQ(dialog.updown.value(), 3);
  EXPECT_TRUE(dialog.first.value());
  EXPECT_EQ(dialog.box.value(), 0);
}

TEST_F(SettingsTest, AMissingLastLineEndAndPlainLineFeedsAreFine) {
  put_sample("3\nFalse\nTrue\n1");
  auto& dialog = load<SampleDialog>();
  EXPECT_EQ(dialog.updown.value(), 3);
  EXPECT_TRUE(dialog.second.value());
  EXPECT_EQ(dialog.box.value(), 1);
}

TEST_F(SettingsTest, ALineThatItsControlCannotTakeIsSkippedAndTheNextStillCounts) {
  put_sample(" 99 \r\nperhaps\r\nTrue\r\n 1 \r\n");
  auto& dialog = load<SampleDialog>();
  EXPECT_EQ(dialog.updown.value(), 7);
  EXPECT_TRUE(dialog.second.value());
  EXPECT_EQ(dialog.box.value(), 1);
}

TEST_F(SettingsTest, ABinaryFileIsHarmless) {
  std::string noise;
  for (int i = 0; i < 4096; ++i) noise.push_back(static_cast<char>(i * 37));
  put_sample(noise);
  EXPECT_EQ(load<SampleDialog>().updown.value(), 7);
}

TEST_F(SettingsTest, AnUnreadableFileLeavesTheDesign) {
  put_sample(" 3 \r\n");
  machine.files().make_unreadable(Text(user_folder) + u"sample.ini");
  EXPECT_EQ(load<SampleDialog>().updown.value(), 7);
}

TEST_F(SettingsTest, AFileWithAllOptionsFalseTurnsAllOff) {
  put_sample(" 3 \r\nFalse\r\nFalse\r\n");
  auto& dialog = load<SampleDialog>();
  EXPECT_FALSE(dialog.first.value());
  EXPECT_FALSE(dialog.second.value());
}

TEST_F(SettingsTest, TheUsersFileWinsOverTheFactoryFile) {
  put_app_file(u"cserko\\sample.ini", u" 1 \r\n");
  put_sample(" 2 \r\n");
  EXPECT_EQ(load<FactoryDialog>().updown.value(), 2);
}

TEST_F(SettingsTest, TheFactoryFileIsReadWhereTheUserHasNone) {
  put_app_file(u"cserko\\sample.ini", u" 1 \r\n");
  EXPECT_EQ(load<FactoryDialog>().updown.value(), 1);
}

TEST_F(SettingsTest, TheFactoryFileIsNeverWritten) {
  put_app_file(u"cserko\\sample.ini", u" 1 \r\n");
  hand::click(open<FactoryDialog>().OKButton);
  EXPECT_EQ(file(Text(app) + u"cserko\\sample.ini"), " 1 \r\n");
  EXPECT_EQ(settings(u"sample.ini").substr(0, 5), " 1 \r\n");
}

TEST_F(SettingsTest, TheUsersPlaylistWinsOverTheFactoryPlaylist) {
  put_app_file(u"cserko\\zenebeáll.ini", u" 1 \r\nfactory.mid\r\n");
  EXPECT_EQ(utf8(load<frm_zenebeáll>().list_playlist.Items.at(0)), "factory.mid");
  put_settings(u"zenebeáll.ini", {u" 0 ", u"own.mid"});
  start();
  EXPECT_EQ(utf8(load<frm_zenebeáll>().list_playlist.Items.at(0)), "own.mid");
  EXPECT_EQ(load<frm_zenebeáll>().chk_zene_enged.value(), 0);
}

TEST_F(SettingsTest, AFileUnderTheApplicationFolderCountsForNothingWithoutBeingAFactoryFile) {
  put_app_file(u"cserko\\sample.ini", u" 1 \r\n");
  EXPECT_EQ(load<SampleDialog>().updown.value(), 7);
}

// Rules over what is read.

TEST_F(SettingsTest, RulesOfTheDialogRunOnceAllLinesAreRead) {
  auto& dialog = load<OwnDialog>();
  dialog.words.set_value(6);
  EXPECT_EQ(dialog.pairs.Max, 6);
  put_sample(" 16 \r\n 17 \r\n 30 \r\n");
  dialog.read();
  EXPECT_EQ(dialog.pairs.value(), 16);
  EXPECT_EQ(dialog.pairs.Max, 17);
  EXPECT_EQ(utf8(dialog.shown.Caption), "30");
  put_sample(" 16 \r\n 9 \r\n");
  dialog.read();
  EXPECT_EQ(dialog.pairs.value(), 9);
}

TEST_F(SettingsTest, WhatDependsOnANumberIsShownWithoutAFileToo) {
  EXPECT_EQ(utf8(load<OwnDialog>().shown.Caption), "1");
}

TEST_F(SettingsTest, TheDialogLearnsWhetherThereWasAFile) {
  auto& dialog = load<OwnDialog>();
  put_sample(" 16 \r\n");
  dialog.read();
  EXPECT_EQ(dialog.done, (std::vector<std::string>{"no file", "read"}));
}

TEST_F(SettingsTest, OkCancelAndTheCloseBoxCanBeADialogsOwn) {
  auto& dialog = open<OwnDialog>();
  dialog.done.clear();
  hand::click(dialog.OKButton);
  hand::click(dialog.CancelButton);
  hand::close(dialog);
  EXPECT_EQ(dialog.done, (std::vector<std::string>{"OK", "Cancel", "close box"}));
  EXPECT_TRUE(session().loaded<OwnDialog>());
  EXPECT_EQ(settings(u"sample.ini"), "(none)");
}

// Writing.

TEST_F(SettingsTest, OkMakesTheFolders) {
  EXPECT_FALSE(machine.files().folder_exists(u"c:\\pomzu"));
  hand::click(open<SampleDialog>().OKButton);
  EXPECT_TRUE(machine.files().folder_exists(u"c:\\pomzu\\cserko"));
}

TEST_F(SettingsTest, OkHidesTheDialogThenApplies) {
  auto& dialog = open<SampleDialog>();
  hand::click(dialog.OKButton);
  EXPECT_FALSE(dialog.visible());
  EXPECT_EQ(dialog.applied, 1);
  EXPECT_FALSE(dialog.visible_when_applied);
  EXPECT_TRUE(session().loaded<SampleDialog>());
}

TEST_F(SettingsTest, AReadOnlyFileIsReportedKeptWholeAndTheSettingsApply) {
  put_sample(" 3 \r\n");
  machine.files().make_unwritable(Text(user_folder) + u"sample.ini");
  auto& dialog = open<SampleDialog>();
  dialog.updown.set_value(9);
  hand::click(dialog.OKButton);
  expected_errors = 1;
  ASSERT_EQ(machine.errors.size(), 1U);
  EXPECT_NE(utf8(machine.errors[0]).find("sample.ini"), std::string::npos);
  EXPECT_EQ(settings(u"sample.ini"), " 3 \r\n");
  EXPECT_EQ(dialog.applied, 1);
  EXPECT_EQ(dialog.updown.value(), 9);
}

TEST_F(SettingsTest, AFullDiskIsReportedAndTheOldFileIsWhole) {
  put_sample(" 3 \r\n");
  machine.files().free_space = 2;
  hand::click(open<SampleDialog>().OKButton);
  expected_errors = 1;
  EXPECT_EQ(settings(u"sample.ini"), " 3 \r\n");
}

TEST_F(SettingsTest, AFolderThatCannotBeMadeIsReported) {
  machine.files().make_unwritable(u"c:\\pomzu");
  auto& dialog = open<SampleDialog>();
  hand::click(dialog.OKButton);
  expected_errors = 1;
  EXPECT_EQ(dialog.applied, 1);
}

// Cancel.

TEST_F(SettingsTest, AfterCancelEveryChangedControlEqualsTheFile) {
  put_sample(" 3 \r\nFalse\r\nTrue\r\n 1 \r\n");
  auto& dialog = open<SampleDialog>();
  dialog.updown.set_value(11);
  hand::click(dialog.first);
  hand::click(dialog.box);
  ASSERT_TRUE(dialog.first.value());
  ASSERT_EQ(dialog.box.value(), 0);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.updown.value(), 3);
  EXPECT_EQ(utf8(dialog.text.text()), "3");
  EXPECT_FALSE(dialog.first.value());
  EXPECT_TRUE(dialog.second.value());
  EXPECT_EQ(dialog.box.value(), 1);
}

TEST_F(SettingsTest, AfterCancelControlsBehindTheLastLineKeepWhatTheUserSet) {
  put_sample(" 3 \r\nFalse\r\n");
  auto& dialog = open<SampleDialog>();
  dialog.updown.set_value(11);
  hand::click(dialog.second);
  hand::click(dialog.box);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.updown.value(), 3);
  EXPECT_FALSE(dialog.first.value());
  EXPECT_TRUE(dialog.second.value());
  EXPECT_EQ(dialog.box.value(), 1);
}

TEST_F(SettingsTest, AfterCancelTheControlsEqualTheFileOfNow) {
  put_sample(" 3 \r\nFalse\r\nTrue\r\n 1 \r\n");
  auto& dialog = open<SampleDialog>();
  put_sample(" 4 \r\nTrue\r\nFalse\r\n 0 \r\n");
  dialog.updown.set_value(11);
  hand::click(dialog.box);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.updown.value(), 4);
  EXPECT_TRUE(dialog.first.value());
  EXPECT_EQ(dialog.box.value(), 0);
  EXPECT_FALSE(dialog.visible());
  EXPECT_EQ(dialog.applied, 0);
}

TEST_F(SettingsTest, WithoutAFileCancelKeepsWhatWasChanged) {
  auto& dialog = open<SampleDialog>();
  dialog.updown.set_value(11);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.updown.value(), 11);
  EXPECT_FALSE(dialog.visible());
  EXPECT_EQ(settings(u"sample.ini"), "(none)");
}

TEST_F(SettingsTest, TheCloseControlCancelsAndTheDialogStaysLoaded) {
  put_sample(" 3 \r\n");
  auto& dialog = open<SampleDialog>();
  dialog.updown.set_value(11);
  hand::close(dialog);
  EXPECT_TRUE(session().loaded<SampleDialog>());
  EXPECT_FALSE(dialog.visible());
  EXPECT_EQ(dialog.updown.value(), 3);
}

TEST_F(SettingsTest, EnterIsOkAndEscapeIsCancel) {
  auto& dialog = open<SampleDialog>();
  hand::key(dialog, key::enter);
  EXPECT_EQ(dialog.applied, 1);
  machine.show(dialog);
  hand::key(dialog, key::escape);
  EXPECT_EQ(dialog.applied, 1);
  EXPECT_FALSE(dialog.visible());
}

TEST_F(SettingsTest, HelpOpensThePageOfTheDialog) {
  hand::click(open<SampleDialog>().cmd_súgó);
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line),
            "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\Minta - beállítások.mht");
}

TEST_F(SettingsTest, F1IsTheHelpButton) {
  auto& dialog = open<SampleDialog>();
  hand::key(dialog, key::f1);
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_NE(utf8(machine.processes[0].command_line).find("Minta - beállítások.mht"), std::string::npos);
  hand::key(open<OwnDialog>(), key::f1);
  EXPECT_EQ(machine.processes.size(), 1U) << "a dialog without a help button";
}

TEST_F(SettingsTest, TheButtonsAreFitted) {
  auto& dialog = load<SampleDialog>();
  expect_fitted(dialog.OKButton, 3);
  expect_fitted(dialog.cmd_súgó, 3);
}

TEST_F(SettingsTest, TheDialogIsCentred) {
  auto& dialog = load<SampleDialog>();
  EXPECT_DOUBLE_EQ(dialog.Left, (machine.screen_size().width - dialog.Width) / 2);
  EXPECT_DOUBLE_EQ(dialog.Top, (machine.screen_size().height - dialog.Height) / 2);
}

} // namespace
} // namespace cserko
