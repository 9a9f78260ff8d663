// The settings of Letter sorting: texts, ranges, the file of six lines, the list of pairs.
#include "tests/exercises/letter_sorting_fixture.h"

namespace cserko {
namespace {

class SortingSettingsTest : public LetterSortingTest {
 protected:
  frm_betűválogatás_beállítás& shown_dialog() {
    start();
    return open<frm_betűválogatás_beállítás>();
  }
  static std::vector<std::string> entries(const ListBox& list) {
    std::vector<std::string> all;
    for (const Text& item : list.Items) all.push_back(utf8(item));
    return all;
  }
};

TEST_F(SortingSettingsTest, HasItsTexts) {
  const auto& d = shown_dialog();
  EXPECT_EQ(utf8(d.Caption), "Cserkó Betűválogató Beállítások");
  EXPECT_EQ(utf8(d.cmd_összes.Caption), "Az összes betűpár kijelölése");
  EXPECT_EQ(utf8(d.cmd_egy_sem.Caption), "Minden kijelölés megszüntetése");
  EXPECT_EQ(utf8(d.cmd_megfordít.Caption), "A kijelölés megfordítása");
  EXPECT_EQ(utf8(d.opt_nyelv[0].Caption), "Magyar");
  EXPECT_EQ(utf8(d.opt_nyelv[1].Caption), "Angol");
  EXPECT_EQ(utf8(d.Chk_szótagolva.Caption), "Szótagolva");
  EXPECT_EQ(utf8(d.Label1.Caption), "Szavak maximális hossza:");
  EXPECT_EQ(utf8(d.chk_animáció.Caption), "Animáció");
  EXPECT_EQ(utf8(d.Label3.Caption), "Az animáció finomsága:");
  EXPECT_EQ(utf8(d.chk_iránygyakoroltatása.Caption), "Irányok gyakoroltatása");
}

TEST_F(SortingSettingsTest, HasItsRangesAndDefaults) {
  const auto& d = shown_dialog();
  EXPECT_EQ(d.chk_animáció.value(), 0);
  EXPECT_EQ(d.scrollbar_finomság.Min, 1);
  EXPECT_EQ(d.scrollbar_finomság.Max, 5);
  EXPECT_EQ(d.scrollbar_finomság.value(), 3);
  EXPECT_EQ(d.opt_nyelv.chosen(), 0);
  EXPECT_EQ(d.Chk_szótagolva.value(), 0);
  EXPECT_EQ(d.udszóhossz.Min, 5);
  EXPECT_EQ(d.udszóhossz.Max, 14);
  EXPECT_EQ(d.udszóhossz.Increment, 1);
  EXPECT_EQ(d.udszóhossz.value(), 14);
  EXPECT_EQ(utf8(d.labszóhossz.Caption), "14");
  EXPECT_EQ(d.chk_iránygyakoroltatása.value(), 0);
  EXPECT_EQ(entries(d.lst_betűpárok), (std::vector<std::string>{"s - sz", "b - d", "a - á"}));
  EXPECT_EQ(d.lst_betűpárok.selected_count(), 3);
}

TEST_F(SortingSettingsTest, TheSmoothnessHasAName) {
  auto& d = shown_dialog();
  std::vector<std::string> names;
  for (int value = 1; value <= 5; ++value) {
    d.scrollbar_finomság.set_value(value);
    names.push_back(utf8(d.label_finomság.Caption));
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Nagyon durva", "Durva", "Darabos", "Finom", "Mmmmm..."}));
}

TEST_F(SortingSettingsTest, TheSmoothnessCanBeChosenWhereThereIsAnAnimation) {
  auto& d = shown_dialog();
  const auto enabled = [&d] {
    return std::vector<bool>{d.scrollbar_finomság.Enabled, d.label_finomság.Enabled, d.Label3.Enabled};
  };
  EXPECT_EQ(enabled(), std::vector<bool>(3, false));
  EXPECT_EQ(utf8(d.label_finomság.Caption), "Darabos");
  hand::click(d.chk_animáció);
  EXPECT_EQ(enabled(), std::vector<bool>(3, true));
  hand::click(d.chk_animáció);
  EXPECT_EQ(enabled(), std::vector<bool>(3, false));
}

TEST_F(SortingSettingsTest, EachLineOfTheFileIsRead) {
  put_settings(file_name, {u" 1 ", u" 5 ", u"False", u"True", u" 1 ", u" 6 "});
  const auto& d = shown_dialog();
  EXPECT_EQ(d.chk_animáció.value(), 1);
  EXPECT_TRUE(d.scrollbar_finomság.Enabled);
  EXPECT_EQ(d.scrollbar_finomság.value(), 5);
  EXPECT_EQ(utf8(d.label_finomság.Caption), "Mmmmm...");
  EXPECT_TRUE(d.english());
  EXPECT_EQ(entries(d.lst_betűpárok), std::vector<std::string>{"b - d"});
  EXPECT_EQ(d.Chk_szótagolva.value(), 1);
  EXPECT_FALSE(d.Chk_szótagolva.Enabled);
  EXPECT_EQ(d.udszóhossz.value(), 6);
}

TEST_F(SortingSettingsTest, TheUsersFileWinsOverTheFactorys) {
  put_app_file(factory, u" 1 \r\n 4 \r\nTrue\r\nFalse\r\n 1 \r\n 7 \r\n");
  {
    const auto& d = shown_dialog();
    EXPECT_EQ(d.udszóhossz.value(), 7);
    EXPECT_EQ(d.scrollbar_finomság.value(), 4);
  }
  end_session();
  put_settings(file_name, {u" 0 ", u" 2 ", u"True", u"False", u" 0 ", u" 9 "});
  const auto& d = shown_dialog();
  EXPECT_EQ(d.udszóhossz.value(), 9);
  EXPECT_EQ(d.scrollbar_finomság.value(), 2);
}

TEST_F(SortingSettingsTest, WhatNoControlCanTakeIsSkipped) {
  put_settings(file_name, {u" 7 ", u" 6 ", u"False", u"False", u"x", u" 4 "});
  const auto& d = shown_dialog();
  EXPECT_EQ(d.chk_animáció.value(), 0);
  EXPECT_EQ(d.scrollbar_finomság.value(), 3);
  EXPECT_EQ(d.opt_nyelv.chosen(), 0) << "one language is on";
  EXPECT_EQ(d.lst_betűpárok.count(), 3);
  EXPECT_EQ(d.udszóhossz.value(), 14);
}

TEST_F(SortingSettingsTest, OkWritesSixLinesToTheUsersFile) {
  put_app_file(factory, u" 0 \r\n 3 \r\nTrue\r\nFalse\r\n 0 \r\n 14 \r\n");
  auto& d = shown_dialog();
  hand::click(d.chk_animáció);
  hand::scroll(d.scrollbar_finomság, 1);
  hand::click(d.opt_nyelv[1]);
  hand::step(d.udszóhossz, -1);
  hand::click(d.chk_iránygyakoroltatása);
  hand::click(d.Ok);
  EXPECT_EQ(settings(file_name), " 1 \r\n 1 \r\nFalse\r\nTrue\r\n 0 \r\n 13 \r\n");
  EXPECT_EQ(file(Text(app) + Text(factory)), " 0 \r\n 3 \r\nTrue\r\nFalse\r\n 0 \r\n 14 \r\n");
  EXPECT_EQ(utf8(d.Ok.Tag), "ok");
  EXPECT_FALSE(d.visible());
}

TEST_F(SortingSettingsTest, EnglishHasThePairsOfPlainSingleLettersAndNoSyllables) {
  put_app_file(u"betűpár.kvl", u"s-sz\r\nb-d\r\na-á\r\né-e\r\ncs-c\r\nm-n\r\n");
  auto& d = shown_dialog();
  hand::select(d.lst_betűpárok, 0);
  hand::click(d.opt_nyelv[1]);
  EXPECT_EQ(entries(d.lst_betűpárok), (std::vector<std::string>{"b - d", "m - n"}));
  EXPECT_EQ(d.lst_betűpárok.selected_count(), 2);
  EXPECT_FALSE(d.Chk_szótagolva.Enabled);
  hand::click(d.opt_nyelv[0]);
  EXPECT_EQ(d.lst_betűpárok.count(), 6);
  EXPECT_EQ(d.lst_betűpárok.selected_count(), 6) << "a new list is selected as a whole";
  EXPECT_TRUE(d.Chk_szótagolva.Enabled);
}

TEST_F(SortingSettingsTest, TheFirstHyphenOfALineDividesItAndThirtyOneLinesAreRead) {
  Text content = u"dzs-zs\r\nx--\r\n-b\r\nnothing\r\nab-\r\n";
  for (int i = 0; i < 40; ++i) content += u"b-d\r\n";
  put_app_file(u"betűpár.kvl", content);
  const auto& d = shown_dialog();
  ASSERT_EQ(d.lst_betűpárok.count(), 31 - 3) << "three lines are no pairs";
  EXPECT_EQ(utf8(d.lst_betűpárok.Items[0]), "dzs - zs");
  EXPECT_EQ(utf8(d.lst_betűpárok.Items[1]), "x - -");
}

TEST_F(SortingSettingsTest, TheButtonsSelectAllNoneOrTheOthers) {
  auto& d = shown_dialog();
  hand::click(d.cmd_egy_sem);
  EXPECT_EQ(d.lst_betűpárok.selected_count(), 0);
  EXPECT_FALSE(d.Ok.Enabled);
  hand::click(d.cmd_megfordít);
  EXPECT_EQ(d.lst_betűpárok.selected_count(), 3);
  EXPECT_TRUE(d.Ok.Enabled);
  hand::click(d.cmd_megfordít);
  EXPECT_FALSE(d.Ok.Enabled);
  hand::select(d.lst_betűpárok, 1);
  EXPECT_TRUE(d.Ok.Enabled);
  hand::click(d.cmd_megfordít);
  EXPECT_EQ(d.lst_betűpárok.selection(), (std::vector<bool>{true, false, true}));
  hand::click(d.cmd_összes);
  EXPECT_EQ(d.lst_betűpárok.selected_count(), 3);
}

TEST_F(SortingSettingsTest, WithNoPairOkIsDisabledAndCancelWorks) {
  auto& d = shown_dialog();
  hand::click(d.cmd_egy_sem);
  hand::click(d.Ok);
  hand::key(d, key::enter);
  EXPECT_TRUE(d.visible());
  EXPECT_EQ(utf8(d.Ok.Tag), "");
  hand::click(d.cancel);
  EXPECT_FALSE(d.visible());
  EXPECT_EQ(settings(file_name), "(none)");
}

TEST_F(SortingSettingsTest, EscapeIsCancelAndF1TheHelp) {
  auto& d = shown_dialog();
  hand::key(d, key::f1);
  EXPECT_EQ(help_page(), help_command("Betűválogató - a beállítások.mht"));
  hand::key(d, key::escape);
  EXPECT_FALSE(d.visible());
}

TEST_F(SortingSettingsTest, TheButtonsOfTheBottomHaveOneSize) {
  const auto& d = shown_dialog();
  expect_fitted(d.cmd_súgó, 3);
  EXPECT_EQ(d.Ok.Font.size, d.cmd_súgó.Font.size);
  EXPECT_EQ(d.cancel.Font.size, d.cmd_súgó.Font.size);
  EXPECT_LE(d.Height, 600 * twips_per_pixel);
}

} // namespace
} // namespace cserko
