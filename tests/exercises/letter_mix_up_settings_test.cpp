// The settings of Letter mix-up: texts, ranges, the file of five lines, OK, Cancel and Help.
#include "tests/exercises/letter_mix_up_fixture.h"
#include "tests/exercises/word_lengths.h"

namespace cserko {
namespace {

class LetterMixUpSettingsTest : public LetterMixUpFixture {};

TEST_F(LetterMixUpSettingsTest, HasItsTextsRangesAndDefaults) {
  start();
  auto& d = load<frm_betűkeverő_beáll>();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Betűkeveredő beállítások");
  EXPECT_EQ(utf8(d.lbl_szavakszáma.Caption), "Választási lehetőségek száma");
  EXPECT_EQ(utf8(d.Chk_szótagolva.Caption), "Szavak megjelenítése szótagolva");
  EXPECT_EQ(captions(d.opt_nyelv), (std::vector<std::string>{"Magyar", "Angol"}));
  EXPECT_EQ(d.ud_szavakszáma.Min, 3);
  EXPECT_EQ(d.ud_szavakszáma.Max, 6);
  EXPECT_EQ(d.ud_szavakszáma.value(), 4);
  expect_fresh_lengths(d, 5);
  EXPECT_EQ(utf8(d.txt_szavakszáma.text()), "4");
  EXPECT_EQ(d.Chk_szótagolva.value(), 0);
  EXPECT_TRUE(d.Chk_szótagolva.Enabled);
  EXPECT_FALSE(d.english());
}

TEST_F(LetterMixUpSettingsTest, TheLengthsLimitEachOther) {
  start();
  auto& d = load<frm_betűkeverő_beáll>();
  expect_lengths_to_limit_each_other(d);
}

TEST_F(LetterMixUpSettingsTest, SyllablesAreOfferedInHungarianAlone) {
  start();
  auto& d = load<frm_betűkeverő_beáll>();
  d.opt_nyelv.choose(1);
  EXPECT_FALSE(d.Chk_szótagolva.Enabled);
  d.opt_nyelv.choose(0);
  EXPECT_TRUE(d.Chk_szótagolva.Enabled);
}

TEST_F(LetterMixUpSettingsTest, TheFiveLinesAreRead) {
  put_settings(u"betűkeverő.ini", {u" 11 ", u" 13 ", u" 1 ", u" 6 ", u"False"});
  start();
  const auto& d = load<frm_betűkeverő_beáll>();
  EXPECT_EQ(d.ud_minbetűszám.value(), 11);
  EXPECT_EQ(d.ud_maxbetűszám.value(), 13);
  EXPECT_EQ(d.Chk_szótagolva.value(), 1);
  EXPECT_EQ(d.ud_szavakszáma.value(), 6);
  EXPECT_TRUE(d.english());
  EXPECT_TRUE(d.opt_nyelv[1].value());
  EXPECT_FALSE(d.Chk_szótagolva.Enabled);
}

TEST_F(LetterMixUpSettingsTest, OkWritesFiveLinesMakesTheLabelsAndDealsAnew) {
  auto& window = deal();
  in_dialog(window, [this](frm_betűkeverő_beáll& d) {
    d.ud_maxbetűszám.set_value(9);
    d.ud_minbetűszám.set_value(6);
    d.ud_minbetűszám.set_value(5);
    d.Chk_szótagolva.set_value(1);
    d.ud_szavakszáma.set_value(3);
    script(1, 2, 3, 3, {{0, 1}, {1, 2}});
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"betűkeverő.ini"), " 5 \r\n 9 \r\n 1 \r\n 3 \r\nTrue\r\n");
  EXPECT_FALSE(load<frm_betűkeverő_beáll>().visible());
  EXPECT_EQ(spellings(window), "hgya-ma|ham-gya|hagy-ma");
  EXPECT_EQ(window.focus(), &window.lbl_szó[0]);
}

TEST_F(LetterMixUpSettingsTest, TheFoundPicturesSurviveANewSetting) {
  auto& window = deal();
  hand::click(window.lbl_szó[1]);
  machine.advance(1000);
  in_dialog(window, [](frm_betűkeverő_beáll& d) { hand::click(d.OKButton); });
  EXPECT_EQ(found(window), "0 -1 -1 -1 -1 -1");
}

TEST_F(LetterMixUpSettingsTest, CancelReadsTheFileAgainAndKeepsTheRound) {
  put_settings(u"betűkeverő.ini", {u" 5 ", u" 9 ", u" 0 ", u" 4 ", u"True"});
  auto& window = deal();
  in_dialog(window, [](frm_betűkeverő_beáll& d) {
    d.ud_maxbetűszám.set_value(16);
    d.ud_szavakszáma.set_value(6);
    d.opt_nyelv.choose(1);
    hand::key(d, key::escape);
  });
  const auto& d = load<frm_betűkeverő_beáll>();
  EXPECT_EQ(d.ud_maxbetűszám.value(), 9);
  EXPECT_EQ(d.ud_szavakszáma.value(), 4);
  EXPECT_FALSE(d.english());
  EXPECT_EQ(spellings(window), "tbála|tábla|tlbáa|tálba");
}

TEST_F(LetterMixUpSettingsTest, WithoutAFileACancelledLanguageHoldsFromTheNextWordOn) {
  auto& window = deal();
  in_dialog(window, [](frm_betűkeverő_beáll& d) {
    d.opt_nyelv.choose(1);
    hand::click(d.CancelButton);
  });
  hand::click(window.lbl_szó[1]);
  EXPECT_EQ(commands(), good_sound);
  script(1, 1, 4, 3, {{0, 1}, {0, 2}, {1, 2}});
  machine.advance(1000);
  EXPECT_EQ(found(window), "0 -1 -1 -1 -1 -1");
  EXPECT_EQ(spellings(window), "oinon|onion|ooinn|onoin");
}

TEST_F(LetterMixUpSettingsTest, HelpOpensThePageOfTheSettings) {
  auto& window = deal();
  in_dialog(window, [](frm_betűkeverő_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(help_page(), help_command("Bteűkeverő - beállítások.mht"));
}

} // namespace
} // namespace cserko
