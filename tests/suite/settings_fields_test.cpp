// What the lines of a settings file can stand for, each kind with good and damaged lines, and ranges that limit each
// other.
#include "core/settings.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

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

// A field of each kind.
struct Kinds : Window {
  explicit Kinds(Platform& platform) : Window(platform, u"kinds", {3000, 2000}, u"Kinds") {
    pairs.MultiSelect = true;
    pairs.Items = {u"i-í", u"o-ó", u"ö-ő"};
  }
  Frame group{*this, u"group", {0, 0, 1000, 1000}};
  OptionButton yes{group, u"yes", {0, 0, 500, 300}, u"yes"};
  OptionButton no{group, u"no", {0, 400, 500, 300}, u"no", true};
  TextBox letter{*this, u"letter", {0, 1000, 500, 300}, u"."};
  ScrollBar bar{*this, u"bar", {0, 1400, 800, 300}, 1, 5};
  TextBox txt_count{*this, u"txt_count", {0, 1800, 500, 300}};
  UpDown count{*this, u"count", {500, 1800, 300, 300}, txt_count, {-5, 12, 1}, 7};
  CheckBox box{*this, u"box", {0, 2200, 500, 300}, u"box"};
  ListBox pairs{*this, u"pairs", {0, 2600, 500, 900}};
  int language = 2;

  SettingsFields entries() { return SettingsFields({SelectedEntries{&pairs}, &box}); }
  SettingsFields options() { return SettingsFields({OppositeOptions{&yes, &no}}); }
  SettingsFields text() { return SettingsFields({&letter}); }
  SettingsFields updown() { return SettingsFields({&count}); }
  SettingsFields check() { return SettingsFields({&box}); }
  SettingsFields option() { return SettingsFields({&yes}); }
  SettingsFields scroll() { return SettingsFields({&bar}); }
  SettingsFields number() {
    return SettingsFields({StoredNumber{[this] { return language; },
                                        [this](int number) {
                                          if (number == 2 || number == 4) language = number;
                                        }}});
  }
  SettingsFields place() { return SettingsFields({WindowPlace{this}}); }
};

class SettingsFieldsTest : public SuiteTest {
 protected:
  SettingsFieldsTest() { start(); }
  void put_sample(const std::string& bytes) { machine.files().put(Text(user_folder) + u"sample.ini", bytes); }
};

// The kinds of fields.

class SettingsKindsTest : public SettingsFieldsTest {
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

TEST_F(SettingsKindsTest, EachEntryOfAListHasItsLine) {
  EXPECT_EQ(after(&Kinds::entries, "True\r\nFalse\r\nTrue\r\n 2 \r\n"), "True\r\nFalse\r\nTrue\r\n 2 \r\n");
  EXPECT_EQ(kinds.pairs.selection(), (std::vector<bool>{true, false, true}));
  EXPECT_EQ(after(&Kinds::entries, "False\r\nTrue\r\nFalse\r\n 0 \r\n"), "False\r\nTrue\r\nFalse\r\n 0 \r\n");
}

TEST_F(SettingsKindsTest, ADamagedOrMissingLineLeavesItsEntryAlone) {
  after(&Kinds::entries, "True\nFalse\nTrue\n");
  EXPECT_EQ(after(&Kinds::entries, "False\r\nperhaps\r\n 1 \r\n 2 \r\n"), "False\r\nFalse\r\nTrue\r\n 2 \r\n");
  EXPECT_EQ(after(&Kinds::entries, "True\r\n"), "True\r\nFalse\r\nTrue\r\n 2 \r\n");
  EXPECT_EQ(after(&Kinds::entries, ""), "True\r\nFalse\r\nTrue\r\n 2 \r\n");
}

TEST_F(SettingsKindsTest, AListIsToldOnceThatItsSelectionHasChanged) {
  int clicks = 0;
  kinds.pairs.Click = [&clicks] { ++clicks; };
  after(&Kinds::entries, "True\nTrue\nTrue\n");
  EXPECT_EQ(clicks, 1);
}

TEST_F(SettingsKindsTest, NotedEntriesOfAListThatHasGrownShorterAreTakenBackAsFarAsItGoes) {
  after(&Kinds::entries, "True\nFalse\nTrue\n");
  const NotedFields before({&kinds.box, SelectedEntries{&kinds.pairs}});
  kinds.pairs.clear();
  kinds.pairs.Items = {u"b-d"};
  kinds.box.set_value(2);
  before.take_back();
  EXPECT_EQ(kinds.pairs.selection(), std::vector<bool>{true});
  EXPECT_EQ(kinds.box.value(), 0);
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

TEST_F(SettingsKindsTest, AnUpDownTakesWhatLiesInItsRange) {
  EXPECT_EQ(after(&Kinds::updown, "-5 \r\n"), "-5 \r\n");
  for (const std::string_view line : {"", "\r\n", "-6 \r\n", " 13 \r\n", "False\r\n", "7.0\r\n", "--5\r\n", "-\r\n",
                                      " 1 2 \r\n", "99999999999\r\n", "\xFF\r\n"})
    EXPECT_EQ(after(&Kinds::updown, line), "-5 \r\n") << line;
}

TEST_F(SettingsKindsTest, ACheckBoxTakesItsThreeValues) {
  for (const std::string_view line : {" 1 \r\n", " 0 \r\n", " 2 \r\n"}) EXPECT_EQ(after(&Kinds::check, line), line);
  for (const std::string_view line : {"", "\r\n", " 3 \r\n", "-1 \r\n", "True\r\n", "x\r\n"})
    EXPECT_EQ(after(&Kinds::check, line), " 2 \r\n") << line;
}

TEST_F(SettingsKindsTest, AnOptionTakesTheTwoWordsInAnyCase) {
  EXPECT_EQ(after(&Kinds::option, " TRUE \r\n"), "True\r\n");
  for (const std::string_view line : {"", "\r\n", " 0 \r\n", "Igaz\r\n", "Fals\r\n", "False False\r\n"})
    EXPECT_EQ(after(&Kinds::option, line), "True\r\n") << line;
  EXPECT_EQ(after(&Kinds::option, "false\r\n"), "False\r\n");
}

TEST_F(SettingsKindsTest, AScrollBarTakesWhatLiesInItsRange) {
  EXPECT_EQ(after(&Kinds::scroll, " 4 \r\n"), " 4 \r\n");
  for (const std::string_view line : {"", "0\r\n", " 6 \r\n", "-1 \r\n", "True\r\n", "4.5\r\n", "99999999999\r\n"})
    EXPECT_EQ(after(&Kinds::scroll, line), " 4 \r\n") << line;
  EXPECT_EQ(after(&Kinds::scroll, " 1 \r\n"), " 1 \r\n") << "the lowest value is one of them";
  EXPECT_EQ(after(&Kinds::scroll, " 5 \r\n"), " 5 \r\n") << "and so is the highest";
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

TEST_F(SettingsFieldsTest, ThePairLimitsItselfFromTheStart) {
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.Max, 10);
  EXPECT_EQ(dialog.longest.Min, 4);
}

TEST_F(SettingsFieldsTest, ThePairFollowsItselfUpToTheCap) {
  auto& dialog = open<CoupledDialog>();
  dialog.longest.set_value(11);
  EXPECT_EQ(dialog.shortest.Max, 11);
  dialog.longest.set_value(16);
  EXPECT_EQ(dialog.shortest.Max, 12);
  dialog.shortest.set_value(7);
  EXPECT_EQ(dialog.longest.Min, 7);
}

TEST_F(SettingsFieldsTest, ALineThatANeighboursNarrowRangeWouldRefuseIsRead) {
  put_sample(" 12 \r\n 12 \r\n");
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.value(), 12);
  EXPECT_EQ(dialog.longest.value(), 12);
  EXPECT_EQ(dialog.shortest.Max, 12);
  EXPECT_EQ(dialog.longest.Min, 12);
  EXPECT_EQ(utf8(dialog.txt_shortest.text()), "12");
}

TEST_F(SettingsFieldsTest, ALineAboveTheCapIsSkipped) {
  put_sample(" 13 \r\n 16 \r\n");
  auto& dialog = load<CoupledDialog>();
  EXPECT_EQ(dialog.shortest.value(), 4);
  EXPECT_EQ(dialog.longest.value(), 16);
}

TEST_F(SettingsFieldsTest, InAFileThatContradictsItselfTheFirstLineHolds) {
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

TEST_F(SettingsFieldsTest, CancelOpensRangesThatTheUserHasNarrowed) {
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

TEST_F(SettingsFieldsTest, AFileWithoutTheSecondLineLeavesWhatTheUserSetThere) {
  put_sample(" 6 \r\n");
  auto& dialog = open<CoupledDialog>();
  dialog.longest.set_value(8);
  dialog.shortest.set_value(5);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.shortest.value(), 6);
  EXPECT_EQ(dialog.longest.value(), 8);
  EXPECT_EQ(dialog.longest.Min, 6);
}

TEST_F(SettingsFieldsTest, WithoutAFileCancelKeepsThePairAsItWasChanged) {
  auto& dialog = open<CoupledDialog>();
  dialog.longest.set_value(14);
  dialog.shortest.set_value(12);
  hand::click(dialog.CancelButton);
  EXPECT_EQ(dialog.shortest.value(), 12);
  EXPECT_EQ(dialog.longest.value(), 14);
  EXPECT_EQ(dialog.shortest.Max, 12);
  EXPECT_EQ(dialog.longest.Min, 12);
}

} // namespace
} // namespace cserko
