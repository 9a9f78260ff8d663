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

// Two lengths that limit each other, the shorter one above all by its cap.
class CoupledDialog : public SettingsDialog {
 public:
  explicit CoupledDialog(Session& session)
      : SettingsDialog(session, u"coupled", {4000, 3000}, u"Coupled", u"sample.ini") {
    set_fields({&shortest, &longest});
    set_buttons(OKButton, CancelButton);
  }
  TextBox txt_shortest{*this, u"txt_shortest", {0, 0, 500, 300}};
  UpDown shortest{*this, u"shortest", {500, 0, 300, 300}, txt_shortest, {4, 10, 1}, 4};
  TextBox txt_longest{*this, u"txt_longest", {0, 400, 500, 300}};
  UpDown longest{*this, u"longest", {500, 400, 300, 300}, txt_longest, {4, 16, 1}, 10};
  CoupledRange lengths{shortest, longest, 12};
  Button OKButton{*this, u"OKButton", {0, 1400, 500, 300}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {600, 1400, 500, 300}, u"Mégsem"};
};

// The same with the longer one first in the file and no cap but the range.
class ReversedDialog : public SettingsDialog {
 public:
  explicit ReversedDialog(Session& session)
      : SettingsDialog(session, u"reversed", {4000, 3000}, u"Reversed", u"sample.ini") {
    set_fields({&most, &fewest});
  }
  TextBox txt_fewest{*this, u"txt_fewest", {0, 0, 500, 300}};
  UpDown fewest{*this, u"fewest", {500, 0, 300, 300}, txt_fewest, {3, 7, 1}, 3};
  TextBox txt_most{*this, u"txt_most", {0, 400, 500, 300}};
  UpDown most{*this, u"most", {500, 400, 300, 300}, txt_most, {3, 7, 1}, 7};
  CoupledRange counts{fewest, most};
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

// One field of each kind that is more than a control's own number or word.
struct Kinds : Window {
  explicit Kinds(Platform& platform) : Window(platform, u"kinds", {3000, 2000}, u"Kinds") {}
  Frame group{*this, u"group", {0, 0, 1000, 1000}};
  OptionButton yes{group, u"yes", {0, 0, 500, 300}, u"yes"};
  OptionButton no{group, u"no", {0, 400, 500, 300}, u"no", true};
  TextBox letter{*this, u"letter", {0, 1000, 500, 300}, u"."};
  ScrollBar bar{*this, u"bar", {0, 1400, 800, 300}, 1, 5};
  int language = 2;

  SettingsFields options() { return SettingsFields({OppositeOptions{&yes, &no}}); }
  SettingsFields text() { return SettingsFields({&letter}); }
  SettingsFields scroll() { return SettingsFields({&bar}); }
  SettingsFields number() {
    return SettingsFields({StoredNumber{[this] { return language; },
                                        [this](int number) {
                                          if (number == 2 || number == 4) language = number;
                                        }}});
  }
  SettingsFields place() { return SettingsFields({WindowPlace{this}}); }
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

// The other kinds of fields.

class SettingsKindsTest : public SettingsTest {
 protected:
  /// What is written for one of the fields after reading some lines into it.
  std::string after(SettingsFields (Kinds::*fields)(), std::string_view lines) {
    (kinds.*fields)().read(lines);
    return (kinds.*fields)().written().bytes();
  }
  Rect place() const { return {kinds.Left, kinds.Top, kinds.Width, kinds.Height}; }
  Kinds kinds{machine};
};

TEST_F(SettingsKindsTest, OfTwoOppositeOptionsTheFileHoldsOne) {
  EXPECT_EQ(after(&Kinds::options, "True\r\n"), "True\r\n");
  EXPECT_TRUE(kinds.yes.value());
  EXPECT_FALSE(kinds.no.value());
  EXPECT_EQ(after(&Kinds::options, "False\r\n"), "False\r\n");
  EXPECT_FALSE(kinds.yes.value());
  EXPECT_TRUE(kinds.no.value());
}

TEST_F(SettingsKindsTest, ADamagedLineLeavesBothOppositeOptions) {
  after(&Kinds::options, "True\r\n");
  for (const std::string_view line : {"", "perhaps\r\n", "\r\n", " 1 \r\n", "TrueFalse\r\n"}) {
    EXPECT_EQ(after(&Kinds::options, line), "True\r\n") << line;
    EXPECT_FALSE(kinds.no.value()) << line;
  }
}

TEST_F(SettingsKindsTest, ATextStandsBetweenQuotationMarks) {
  EXPECT_EQ(after(&Kinds::text, "\"*\"\r\n"), "\"*\"\r\n");
  EXPECT_EQ(utf8(kinds.letter.text()), "*");
}

TEST_F(SettingsKindsTest, BlanksAndQuotationMarksSurviveInAText) {
  for (const TextView text : {u" ", u"\"", u" a \" b ", u"ő", u"\"\""}) {
    kinds.letter.set_text(text);
    const std::string written = kinds.text().written().bytes();
    kinds.letter.set_text(u"-");
    EXPECT_EQ(after(&Kinds::text, written), written);
    EXPECT_EQ(utf8(kinds.letter.text()), utf8(text));
  }
}

TEST_F(SettingsKindsTest, ATextWithoutItsQuotationMarksIsTakenAsItIs) {
  EXPECT_EQ(after(&Kinds::text, "  #\r\n"), "\"#\"\r\n");
  EXPECT_EQ(after(&Kinds::text, "\"+\r\n"), "\"+\"\r\n");
}

TEST_F(SettingsKindsTest, AnEmptyTextIsATextAndAnEmptyLineIsNone) {
  EXPECT_EQ(after(&Kinds::text, "\r\n"), "\".\"\r\n");
  EXPECT_EQ(after(&Kinds::text, ""), "\".\"\r\n");
  EXPECT_EQ(after(&Kinds::text, "\"\"\r\n"), "\"\"\r\n");
}

TEST_F(SettingsKindsTest, ATextThatIsTooLongForItsBoxIsSkipped) {
  kinds.letter.MaxLength = 2;
  EXPECT_EQ(after(&Kinds::text, "\"abc\"\r\n"), "\".\"\r\n");
  EXPECT_EQ(after(&Kinds::text, "\"ab\"\r\n"), "\"ab\"\r\n");
}

TEST_F(SettingsKindsTest, TheRuleOfATextBoxHoldsForWhatIsRead) {
  kinds.letter.Change = [this] { kinds.letter.set_text((kinds.letter.text() + u".").substr(0, 1)); };
  EXPECT_EQ(after(&Kinds::text, "\"\"\r\n"), "\".\"\r\n");
  EXPECT_EQ(after(&Kinds::text, "\"xyz\"\r\n"), "\"x\"\r\n");
}

TEST_F(SettingsKindsTest, AScrollBarTakesWhatLiesInItsRange) {
  EXPECT_EQ(after(&Kinds::scroll, " 4 \r\n"), " 4 \r\n");
  for (const std::string_view line : {"", "0\r\n", " 6 \r\n", "-1 \r\n", "True\r\n", "4.5\r\n", "99999999999\r\n"})
    EXPECT_EQ(after(&Kinds::scroll, line), " 4 \r\n") << line;
}

TEST_F(SettingsKindsTest, ANumberThatNoControlHoldsIsJudgedByWhoTakesIt) {
  EXPECT_EQ(after(&Kinds::number, " 4 \r\n"), " 4 \r\n");
  EXPECT_EQ(after(&Kinds::number, " 3 \r\n"), " 4 \r\n");
  EXPECT_EQ(after(&Kinds::number, "four\r\n"), " 4 \r\n");
}

TEST_F(SettingsKindsTest, AWindowRemembersWhereItLay) {
  EXPECT_EQ(after(&Kinds::place, " 300 \r\n 450 \r\n 3000 \r\n 1500 \r\n"), " 300 \r\n 450 \r\n 3000 \r\n 1500 \r\n");
  EXPECT_EQ(place(), (Rect{300, 450, 3000, 1500}));
}

TEST_F(SettingsKindsTest, AWindowThatLayOnALargerScreenComesOntoThisOne) {
  const Size screen = machine.screen_size();
  after(&Kinds::place, " 99000 \r\n-500 \r\n 3000 \r\n 1500 \r\n");
  EXPECT_EQ(place(), (Rect{screen.width - 3000, 0, 3000, 1500}));
}

TEST_F(SettingsKindsTest, APlaceThatNoWindowCanHaveIsNotTaken) {
  after(&Kinds::place, "300\n450\n3000\n1500\n");
  for (const std::string_view lines :
       {"0\n0\n0\n0\n", "0\n0\n-3000\n1500\n", "0\n0\n999999\n1500\n", "0\n0\n100\n1500\n", "0\n0\n2000\n", "0\n0\n",
        "", "0\n0\nwide\n1500\n", "\n\n\n\n"}) {
    after(&Kinds::place, lines);
    EXPECT_EQ(place(), (Rect{300, 450, 3000, 1500})) << lines;
  }
}

TEST_F(SettingsKindsTest, LinesBehindTheFieldsAreLeftToTheCaller) {
  LineReader lines("True\r\nthe rest\r\n");
  kinds.options().read(lines);
  EXPECT_EQ(lines.next(), "the rest");
}

TEST_F(SettingsKindsTest, NotedValuesCanBeTakenBack) {
  after(&Kinds::options, "True\r\n");
  const NotedFields before({OppositeOptions{&kinds.yes, &kinds.no}, &kinds.letter, &kinds.bar});
  after(&Kinds::options, "False\r\n");
  kinds.letter.set_text(u"x");
  kinds.bar.set_value(5);
  before.take_back();
  EXPECT_TRUE(kinds.yes.value());
  EXPECT_EQ(utf8(kinds.letter.text()), ".");
  EXPECT_EQ(kinds.bar.value(), 1);
}

// Ranges that limit each other.

TEST_F(SettingsTest, ThePairLimitsItselfFromTheStart) {
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.Max, 10);
  EXPECT_EQ(dialog.longest.Min, 4);
}

TEST_F(SettingsTest, ThePairFollowsItselfUpToTheCap) {
  auto& dialog = open<CoupledDialog>();
  dialog.longest.set_value(11);
  EXPECT_EQ(dialog.shortest.Max, 11);
  dialog.longest.set_value(16);
  EXPECT_EQ(dialog.shortest.Max, 12);
  dialog.shortest.set_value(7);
  EXPECT_EQ(dialog.longest.Min, 7);
}

TEST_F(SettingsTest, ALineThatANeighboursNarrowRangeWouldRefuseIsRead) {
  put_sample(" 12 \r\n 12 \r\n");
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.value(), 12);
  EXPECT_EQ(dialog.longest.value(), 12);
  EXPECT_EQ(dialog.shortest.Max, 12);
  EXPECT_EQ(dialog.longest.Min, 12);
  EXPECT_EQ(utf8(dialog.txt_shortest.text()), "12");
}

TEST_F(SettingsTest, ALineAboveTheCapIsSkipped) {
  put_sample(" 13 \r\n 16 \r\n");
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.value(), 4);
  EXPECT_EQ(dialog.longest.value(), 16);
}

TEST_F(SettingsTest, InAFileThatContradictsItselfTheFirstLineHolds) {
  put_sample(" 9 \r\n 5 \r\n");
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.value(), 9);
  EXPECT_EQ(dialog.longest.value(), 9);
  put_sample(" 4 \r\n 6 \r\n");
  auto& reversed = load<ReversedDialog>();
  EXPECT_EQ(reversed.most.value(), 4);
  EXPECT_EQ(reversed.fewest.value(), 4);
  EXPECT_EQ(reversed.most.Min, 4);
  EXPECT_EQ(reversed.fewest.Max, 4);
}

TEST_F(SettingsTest, CancelOpensRangesThatTheUserHasNarrowed) {
  put_sample(" 11 \r\n 12 \r\n");
  auto& dialog = open<CoupledDialog>();
  dialog.shortest.set_value(4);
  dialog.longest.set_value(5);
  EXPECT_EQ(dialog.shortest.Max, 5);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.shortest.value(), 11);
  EXPECT_EQ(dialog.longest.value(), 12);
  EXPECT_EQ(dialog.shortest.Max, 12);
  EXPECT_EQ(dialog.longest.Min, 11);
}

TEST_F(SettingsTest, AFileWithoutTheSecondLineLeavesWhatTheUserSetThere) {
  put_sample(" 6 \r\n");
  auto& dialog = open<CoupledDialog>();
  dialog.longest.set_value(8);
  dialog.shortest.set_value(5);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.shortest.value(), 6);
  EXPECT_EQ(dialog.longest.value(), 8);
  EXPECT_EQ(dialog.longest.Min, 6);
}

TEST_F(SettingsTest, WithoutAFileCancelKeepsThePairAsItWasChanged) {
  auto& dialog = open<CoupledDialog>();
  dialog.longest.set_value(14);
  dialog.shortest.set_value(12);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.shortest.value(), 12);
  EXPECT_EQ(dialog.longest.value(), 14);
  EXPECT_EQ(dialog.shortest.Max, 12);
  EXPECT_EQ(dialog.longest.Min, 12);
}

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
  hand::key(open<CoupledDialog>(), key::f1);
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
